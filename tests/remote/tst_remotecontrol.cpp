#include "Pelorin/remote/RemoteControl.h"
#include "tests/remote/PanelProbe.h"
#include "tests/remote/SignalWatcher.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QHBoxLayout>
#include <QPointer>

#include <functional>

using namespace PanelProbe;

namespace {

IndicatorButton &emissionButton(const RemoteControl &panel)
{
    return *buttonsOf(panel).first();
}

using LevelSetter = void (RemoteControl::*)(ushort);
using LevelGetter = double (RemoteControl::*)() const;

struct LevelPath
{
    const char *name;
    LevelSetter set;
    LevelGetter get;
    LevelGetter other;
    LevelSetter otherOrigin;
    const char *signal;
};

const LevelPath levelPaths[] = {
    { "power reported", &RemoteControl::setPowerLevelLS, &RemoteControl::getPowerLevel,
      &RemoteControl::getCurrentLevel, &RemoteControl::setPowerLevelRC, "powerChangedByLS" },
    { "power requested", &RemoteControl::setPowerLevelRC, &RemoteControl::getPowerLevel,
      &RemoteControl::getCurrentLevel, &RemoteControl::setPowerLevelLS, "powerChangedByRC" },
    { "current reported", &RemoteControl::setCurrentLevelLS, &RemoteControl::getCurrentLevel,
      &RemoteControl::getPowerLevel, &RemoteControl::setCurrentLevelRC, "currentChangedByLS" },
    { "current requested", &RemoteControl::setCurrentLevelRC, &RemoteControl::getCurrentLevel,
      &RemoteControl::getPowerLevel, &RemoteControl::setCurrentLevelLS, "currentChangedByRC" },
};

/// "powerChangedByLS(7)"
QString levelSignal(const LevelPath &path, int level)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(path.signal)).arg(level);
}

} // namespace

Q_DECLARE_METATYPE(const LevelPath *)

class tst_RemoteControl : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsOff();
    void buildsItsButton();
    void keepsTheButtonAtTheRight();
    void reportsAPressAndLeavesTheLamp();
    void answersAPressWithTheReport();
    void sendsARequestOnEveryCall_data();
    void sendsARequestOnEveryCall();
    void takesAReportOnEveryCall_data();
    void takesAReportOnEveryCall();
    void blinksWhileSomeOfItIsOn_data();
    void blinksWhileSomeOfItIsOn();
    void goesOnBlinkingAtAPlainReport();
    void showsTheLampBeforeAPartialReport();
    void sendsALevelOnlyOnAChange_data();
    void sendsALevelOnlyOnAChange();
    void showsTheOldValueDuringTheSignal_data();
    void showsTheOldValueDuringTheSignal();
    void showsTheOldLevelDuringTheSignal_data();
    void showsTheOldLevelDuringTheSignal();
    void livesThroughItsDeletionInASlot_data();
    void livesThroughItsDeletionInASlot();
};

void tst_RemoteControl::declaresItsInterface()
{
    const QMetaObject &meta = RemoteControl::staticMetaObject;

    QCOMPARE(meta.className(), "RemoteControl");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(
        ownMethods(meta),
        list({ "emissionChanged(bool)", "emissionStateUpdated(bool)", "emissionChangedByLS(bool)",
               "powerChangedByLS(ushort)", "currentChangedByLS(ushort)",
               "emissionChangedByRC(bool)", "powerChangedByRC(ushort)",
               "currentChangedByRC(ushort)", "setEmission(bool)", "setEmissionPartial(bool,bool)",
               "setEmissionLS(bool)", "setEmissionPartialLS(bool,bool)", "setPowerLevelLS(ushort)",
               "setCurrentLevelLS(ushort)", "setEmissionRC(bool)", "setPowerLevelRC(ushort)",
               "setCurrentLevelRC(ushort)" }));
}

void tst_RemoteControl::startsOff()
{
    const RemoteControl panel;

    QVERIFY(!panel.getEmission());
    QCOMPARE(panel.getPowerLevel(), 0.0);
    QCOMPARE(panel.getCurrentLevel(), 0.0);
    QCOMPARE(looks(panel), list({ "enabled off" }));
}

void tst_RemoteControl::buildsItsButton()
{
    const RemoteControl panel;

    const IndicatorButton &emission = emissionButton(panel);
    QCOMPARE(emission.button()->text(), QStringLiteral("Emission\nON / OFF"));
    QCOMPARE(emission.button()->toolTip(), QStringLiteral("Toggle Emission"));
    QCOMPARE(emission.button()->color(), Button::DarkGrey);
    QVERIFY(emission.button()->isEmissionButton());
    QCOMPARE(emission.button()->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+E")));
    QCOMPARE(emission.onColor(), red);
    QCOMPARE(emission.offColor(), grey);
}

void tst_RemoteControl::keepsTheButtonAtTheRight()
{
    RemoteControl panel;
    panel.resize(600, 100);
    panel.show();

    const auto *row = qobject_cast<QHBoxLayout *>(panel.layout());
    const IndicatorButton &emission = emissionButton(panel);
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(row->count(), 2);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->stretch(0), 0);
    QCOMPARE(row->itemAt(1)->widget(), &emission);
    QCOMPARE(emission.geometry().right(), panel.rect().right());
    QVERIFY(lampOf(emission).geometry().right() < emission.button()->geometry().left());
}

void tst_RemoteControl::reportsAPressAndLeavesTheLamp()
{
    RemoteControl panel;
    SignalRecorder recorder(&panel);

    press(emissionButton(panel));
    QCOMPARE(recorder.taken(), list({ "emissionChanged(true)", "emissionChangedByRC(true)",
                                      "emissionChanged(true)" }));
    QVERIFY(panel.getEmission());
    QCOMPARE(shownColor(emissionButton(panel)), grey);

    press(emissionButton(panel));
    QCOMPARE(recorder.taken(), list({ "emissionChanged(false)", "emissionChangedByRC(false)",
                                      "emissionChanged(false)" }));
    QVERIFY(!panel.getEmission());
    QCOMPARE(shownColor(emissionButton(panel)), grey);
}

void tst_RemoteControl::answersAPressWithTheReport()
{
    RemoteControl panel;
    press(emissionButton(panel));

    panel.setEmissionLS(true);
    QCOMPARE(shownColor(emissionButton(panel)), red);

    press(emissionButton(panel));
    QCOMPARE(shownColor(emissionButton(panel)), red);

    panel.setEmissionLS(false);
    QCOMPARE(shownColor(emissionButton(panel)), grey);
}

void tst_RemoteControl::sendsARequestOnEveryCall_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("on");

    QTest::newRow("off to on") << false << true;
    QTest::newRow("on to off") << true << false;
    QTest::newRow("still off") << false << false;
    QTest::newRow("still on") << true << true;
}

void tst_RemoteControl::sendsARequestOnEveryCall()
{
    QFETCH(bool, before);
    QFETCH(bool, on);
    RemoteControl panel;
    panel.setEmissionLS(before);
    const QStringList looksBefore = looks(panel);
    SignalRecorder recorder(&panel);

    panel.setEmissionRC(on);

    const QString value = QVariant(on).toString();
    QCOMPARE(recorder.taken(), QStringList({ QStringLiteral("emissionChangedByRC(%1)").arg(value),
                                             QStringLiteral("emissionChanged(%1)").arg(value) }));
    QCOMPARE(panel.getEmission(), on);
    QCOMPARE(looks(panel), looksBefore);
}

void tst_RemoteControl::takesAReportOnEveryCall_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("on");

    const char *const ways[] = { "setEmissionLS", "setEmission", "setEmissionPartialLS",
                                 "setEmissionPartial" };
    for (int way = 0; way < 4; ++way) {
        for (const bool before : { false, true }) {
            for (const bool on : { false, true })
                QTest::addRow("%s, %s to %s", ways[way], before ? "on" : "off", on ? "on" : "off")
                    << way << before << on;
        }
    }
}

void tst_RemoteControl::takesAReportOnEveryCall()
{
    QFETCH(int, way);
    QFETCH(bool, before);
    QFETCH(bool, on);
    const std::function<void(RemoteControl &)> ways[] = {
        [on](RemoteControl &panel) { panel.setEmissionLS(on); },
        [on](RemoteControl &panel) { panel.setEmission(on); },
        [on](RemoteControl &panel) { panel.setEmissionPartialLS(on, false); },
        [on](RemoteControl &panel) { panel.setEmissionPartial(on, false); },
    };
    RemoteControl panel;
    panel.setEmissionLS(before);
    emissionButton(panel).setColors(green, orange); // by somebody who found the button
    SignalRecorder recorder(&panel);

    ways[way](panel);

    const QString value = QVariant(on).toString();
    QCOMPARE(recorder.taken(),
             QStringList({ QStringLiteral("emissionChangedByLS(%1)").arg(value),
                           QStringLiteral("emissionStateUpdated(%1)").arg(value) }));
    QCOMPARE(panel.getEmission(), on);
    QCOMPARE(looks(panel),
             QStringList(on ? QStringLiteral("enabled on") : QStringLiteral("enabled off")));
    QCOMPARE(shownColor(emissionButton(panel)), on ? red : grey);
}

void tst_RemoteControl::blinksWhileSomeOfItIsOn_data()
{
    QTest::addColumn<bool>("shortName");
    QTest::addColumn<bool>("on");

    QTest::newRow("on, from the application") << false << true;
    QTest::newRow("off, from the application") << false << false;
    QTest::newRow("on") << true << true;
    QTest::newRow("off") << true << false;
}

void tst_RemoteControl::blinksWhileSomeOfItIsOn()
{
    QFETCH(bool, shortName);
    QFETCH(bool, on);
    RemoteControl panel;
    SignalRecorder recorder(&panel);
    const auto report = [&](bool partial) {
        shortName ? panel.setEmissionPartial(on, partial) : panel.setEmissionPartialLS(on, partial);
    };
    const IndicatorButton &emission = emissionButton(panel);
    const QString value = QVariant(on).toString();
    const QStringList reports{ QStringLiteral("emissionChangedByLS(%1)").arg(value),
                               QStringLiteral("emissionStateUpdated(%1)").arg(value) };

    report(true);
    QCOMPARE(recorder.taken(), reports);
    QVERIFY(blinks(emission));
    QCOMPARE(timerOf(emission).interval(), 500);
    QCOMPARE(shownColor(emission), orange);
    lampOf(emission).toggleBlink();
    QCOMPARE(shownColor(emission), on ? red : grey);
    QCOMPARE(panel.getEmission(), on);

    report(false);
    QCOMPARE(recorder.taken(), reports);
    QVERIFY(!blinks(emission));
    QCOMPARE(shownColor(emission), on ? red : grey);
}

void tst_RemoteControl::goesOnBlinkingAtAPlainReport()
{
    RemoteControl panel;
    panel.setEmissionPartialLS(true, true);

    panel.setEmissionLS(true);
    QVERIFY(blinks(emissionButton(panel)));
    panel.setEmissionLS(false);
    QVERIFY(blinks(emissionButton(panel)));
    press(emissionButton(panel));
    QVERIFY(blinks(emissionButton(panel)));

    panel.setEmissionPartialLS(true, false);
    QVERIFY(!blinks(emissionButton(panel)));
}

void tst_RemoteControl::showsTheLampBeforeAPartialReport()
{
    RemoteControl panel;
    QStringList seen;
    connect(&panel, &RemoteControl::emissionChangedByLS, &panel, [&] { seen << looks(panel); });

    panel.setEmissionPartialLS(true, true);
    panel.setEmissionPartialLS(true, false);
    panel.setEmissionLS(false);

    QCOMPARE(seen, list({ "enabled blinking", "enabled on", "enabled on" }));
    QCOMPARE(looks(panel), list({ "enabled off" }));
}

void tst_RemoteControl::sendsALevelOnlyOnAChange_data()
{
    QTest::addColumn<const LevelPath *>("path");

    for (const LevelPath &path : levelPaths)
        QTest::newRow(path.name) << &path;
}

void tst_RemoteControl::sendsALevelOnlyOnAChange()
{
    QFETCH(const LevelPath *, path);
    RemoteControl panel;
    SignalRecorder recorder(&panel);

    (panel.*path->set)(0);
    QCOMPARE(recorder.taken(), QStringList());

    (panel.*path->set)(7);
    QCOMPARE(recorder.taken(), QStringList(levelSignal(*path, 7)));
    QCOMPARE((panel.*path->get)(), 7.0);
    QCOMPARE((panel.*path->other)(), 0.0);

    (panel.*path->set)(7);
    (panel.*path->otherOrigin)(7);
    QCOMPARE(recorder.taken(), QStringList());

    (panel.*path->set)(65535);
    QCOMPARE(recorder.taken(), QStringList(levelSignal(*path, 65535)));
    QCOMPARE((panel.*path->get)(), 65535.0);
    QCOMPARE(looks(panel), list({ "enabled off" }));
}

void tst_RemoteControl::showsTheOldValueDuringTheSignal_data()
{
    QTest::addColumn<int>("way");

    QTest::newRow("reported") << 0;
    QTest::newRow("reported in part") << 1;
    QTest::newRow("requested") << 2;
    QTest::newRow("pressed") << 3;
}

void tst_RemoteControl::showsTheOldValueDuringTheSignal()
{
    QFETCH(int, way);
    const std::function<void(RemoteControl &)> ways[] = {
        [](RemoteControl &panel) { panel.setEmissionLS(true); },
        [](RemoteControl &panel) { panel.setEmissionPartialLS(true, true); },
        [](RemoteControl &panel) { panel.setEmissionRC(true); },
        [](RemoteControl &panel) { press(emissionButton(panel)); },
    };
    const int signalsOf[] = { 2, 2, 2, 3 };
    RemoteControl panel;
    QList<bool> seen;
    const auto look = [&] { seen << panel.getEmission(); };
    for (auto signal : { &RemoteControl::emissionChanged, &RemoteControl::emissionStateUpdated,
                         &RemoteControl::emissionChangedByLS, &RemoteControl::emissionChangedByRC })
        connect(&panel, signal, &panel, look);

    ways[way](panel);

    QCOMPARE(seen.size(), signalsOf[way]);
    QVERIFY(!seen.contains(true));
    QVERIFY(panel.getEmission());
}

void tst_RemoteControl::showsTheOldLevelDuringTheSignal_data()
{
    sendsALevelOnlyOnAChange_data();
}

void tst_RemoteControl::showsTheOldLevelDuringTheSignal()
{
    QFETCH(const LevelPath *, path);
    RemoteControl panel;
    QList<double> seen;
    const auto look = [&] { seen << (panel.*path->get)(); };
    for (auto signal : { &RemoteControl::powerChangedByLS, &RemoteControl::powerChangedByRC,
                         &RemoteControl::currentChangedByLS, &RemoteControl::currentChangedByRC })
        connect(&panel, signal, &panel, look);

    (panel.*path->set)(7);
    (panel.*path->set)(9);

    QCOMPARE(seen, QList<double>({ 0.0, 7.0 }));
    QCOMPARE((panel.*path->get)(), 9.0);
}

void tst_RemoteControl::livesThroughItsDeletionInASlot_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("signalsBefore");

    QTest::newRow("first of a report") << 0 << 0;
    QTest::newRow("second of a report") << 0 << 1;
    QTest::newRow("first of a partial report") << 1 << 0;
    QTest::newRow("second of a partial report") << 1 << 1;
    QTest::newRow("first of a request") << 2 << 0;
    QTest::newRow("second of a request") << 2 << 1;
    QTest::newRow("first of a press") << 3 << 0;
    QTest::newRow("second of a press") << 3 << 1;
    QTest::newRow("third of a press") << 3 << 2;
    QTest::newRow("level") << 4 << 0;
}

void tst_RemoteControl::livesThroughItsDeletionInASlot()
{
    QFETCH(int, way);
    QFETCH(int, signalsBefore);
    const std::function<void(RemoteControl &)> ways[] = {
        [](RemoteControl &panel) { panel.setEmissionLS(true); },
        [](RemoteControl &panel) { panel.setEmissionPartialLS(true, true); },
        [](RemoteControl &panel) { panel.setEmissionRC(true); },
        [](RemoteControl &panel) { press(emissionButton(panel)); },
        [](RemoteControl &panel) { panel.setPowerLevelLS(7); },
    };
    const QPointer<RemoteControl> panel(new RemoteControl);
    int came = 0;
    const SignalWatcher watcher(*panel, [&] {
        if (came++ == signalsBefore)
            delete panel;
    });

    ways[way](*panel);

    QVERIFY(panel.isNull());
    QCOMPARE(came, signalsBefore + 1);
}

PELORIN_TEST_MAIN(tst_RemoteControl)
#include "tst_remotecontrol.moc"
