#include "Pelorin/controls/Button.h"
#include "Pelorin/remote/MarquelRemoteControl.h"
#include "tests/remote/PanelProbe.h"
#include "tests/remote/StoreChecks.h"
#include "tests/support/DialogHand.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>

using namespace PanelProbe;

namespace {

using Panel = MarquelRemoteControl;

IndicatorButton &emissionButton(const Panel &panel)
{
    return *buttonsOf(panel).first();
}

/// The reports and requests that store a value; those of the emission are tested apart.
QVector<StoreChecks::Case<Panel>> cases()
{
    return StoreChecks::commonReports<Panel>() + StoreChecks::wavelengthCases<Panel>();
}

Button *answer(const QDialog &dialog, const char *text)
{
    for (Button *button : dialog.findChildren<Button *>()) {
        if (button->text() == QLatin1String(text))
            return button;
    }
    return nullptr;
}

struct Answer
{
    const char *name;
    std::function<void(QDialog &)> give;
    bool accepted;
};

/// What an operator can do with the dialog.
const Answer answers[] = {
    { "OK", [](QDialog &dialog) { answer(dialog, "OK")->click(); }, true },
    { "Cancel", [](QDialog &dialog) { answer(dialog, "Cancel")->click(); }, false },
    { "Escape", [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, false },
    { "Return, which is Cancel", [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); },
      false },
    { "the window's own button", [](QDialog &dialog) { dialog.close(); }, false },
};

} // namespace

class tst_MarquelRemoteControl : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsOff();
    void buildsItsButton();
    void asksForEmissionWithoutTheLamp();
    void takesAReportOnEveryCall_data();
    void takesAReportOnEveryCall();
    void setsEverythingBeforeTheReportGoesOut();
    void storesAndEmitsOnEveryCall_data();
    void storesAndEmitsOnEveryCall();
    void sharesItsStoreBetweenReportsAndRequests();
    void asksNothingWithoutTheWarning();
    void asksNothingWhenItIsSwitchedOff();
    void setsTheWarningInSilence();
    void waitsForTheAnswer_data();
    void waitsForTheAnswer();
    void warnsAtACallToo();
    void buildsTheWarning();
    void keepsEveryDialogAsAChild();
    void takesReportsWhileItAsks();
    void dropsTheRequestWithThePanel_data();
    void dropsTheRequestWithThePanel();
    void livesThroughItsDeletionInASlot_data();
    void livesThroughItsDeletionInASlot();
    void livesThroughItsDeletionByTheEmission();
};

void tst_MarquelRemoteControl::declaresItsInterface()
{
    const QMetaObject &meta = Panel::staticMetaObject;

    QCOMPARE(meta.className(), "MarquelRemoteControl");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "sigEmissionStateChanged(bool)",
                    "sigDWLSFeatureChanged(bool)",
                    "sigDWLSSetpointsChanged(double,double,double,double)",
                    "sigDynamicWavelengthChanged(uchar)",
                    "sigMeasuredLaserPowerChanged(double,double)",
                    "sigSetpointLaserPowerChanged(double)",
                    "sigSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "sigWriteEmissionState(bool)",
                    "sigWriteDWLSFeature(bool)",
                    "sigWriteDWLSSetpoints()",
                    "sigWriteDynamicWavelength(uchar)",
                    "sigWriteLaserPowerSetpoint(double)",
                    "slotEmissionChanged(bool)",
                    "slotDWLSFeatureChanged(bool)",
                    "slotDWLSSetpointsChanged(double,double,double,double)",
                    "slotDynamicWavelengthChanged(uchar)",
                    "slotMeasuredPowerChanged(double,double)",
                    "slotSetpointLaserPowerChanged(double)",
                    "slotSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "slotSetNoHarmonicWavelengthWarning(bool)",
                    "slotWriteEmissionState(bool)",
                    "slotWriteDWLSFeature(bool)",
                    "slotWriteDWLSSetpoints()",
                    "slotWriteDynamicWavelength(uchar)",
                    "slotWriteLaserPowerSetpoint(double)" }));
}

void tst_MarquelRemoteControl::startsOff()
{
    const Panel panel;

    QVERIFY(!panel.getEmission());
    QCOMPARE(StoreChecks::store(panel), StoreChecks::initialStore());
    QCOMPARE(looks(panel), list({ "enabled off" }));
}

void tst_MarquelRemoteControl::buildsItsButton()
{
    Panel panel;
    panel.resize(600, 100);
    panel.show();

    const IndicatorButton &emission = emissionButton(panel);
    QCOMPARE(emission.button()->text(), QStringLiteral("Emission\nON / OFF"));
    QCOMPARE(emission.button()->toolTip(), QStringLiteral("Toggle Emission"));
    QCOMPARE(emission.button()->color(), Button::DarkGrey);
    QVERIFY(emission.button()->isEmissionButton());
    QCOMPARE(emission.onColor(), red);
    QCOMPARE(emission.offColor(), grey);
    const auto *row = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(row->count(), 2);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(1)->widget(), &emission);
    QCOMPARE(emission.geometry().right(), panel.rect().right());
    QVERIFY(lampOf(emission).geometry().right() < emission.button()->geometry().left());
}

void tst_MarquelRemoteControl::asksForEmissionWithoutTheLamp()
{
    Panel panel;
    SignalRecorder recorder(&panel);

    press(emissionButton(panel));
    press(emissionButton(panel));

    QCOMPARE(recorder.taken(),
             list({ "sigWriteEmissionState(true)", "sigWriteEmissionState(false)" }));
    QVERIFY(!panel.getEmission());
    QCOMPARE(looks(panel), list({ "enabled off" }));
}

void tst_MarquelRemoteControl::takesAReportOnEveryCall_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("on");

    QTest::newRow("off to on") << false << true;
    QTest::newRow("on to off") << true << false;
    QTest::newRow("still off") << false << false;
    QTest::newRow("still on") << true << true;
}

void tst_MarquelRemoteControl::takesAReportOnEveryCall()
{
    QFETCH(bool, before);
    QFETCH(bool, on);
    Panel panel;
    panel.slotEmissionChanged(before);
    emissionButton(panel).setColors(green, orange); // by somebody who found the button
    SignalRecorder recorder(&panel);

    panel.slotEmissionChanged(on);

    const QString value = QVariant(on).toString();
    QCOMPARE(recorder.taken(),
             QStringList(QStringLiteral("sigEmissionStateChanged(%1)").arg(value)));
    QCOMPARE(panel.getEmission(), on);
    QCOMPARE(shownColor(emissionButton(panel)), on ? red : grey);
    press(emissionButton(panel));
    QCOMPARE(
        recorder.taken(),
        QStringList(QStringLiteral("sigWriteEmissionState(%1)").arg(QVariant(!on).toString())));
    QCOMPARE(panel.getEmission(), on);
    QCOMPARE(shownColor(emissionButton(panel)), on ? red : grey);
}

void tst_MarquelRemoteControl::setsEverythingBeforeTheReportGoesOut()
{
    Panel panel;
    QStringList seen;
    connect(&panel, &Panel::sigEmissionStateChanged, &panel, [&] {
        seen << looks(panel)
             << (panel.getEmission() ? QStringLiteral("on") : QStringLiteral("off"));
    });

    panel.slotEmissionChanged(true);
    panel.slotEmissionChanged(false);

    QCOMPARE(seen, list({ "enabled on", "on", "enabled off", "off" }));
}

void tst_MarquelRemoteControl::storesAndEmitsOnEveryCall_data()
{
    StoreChecks::addRows(cases());
}

void tst_MarquelRemoteControl::storesAndEmitsOnEveryCall()
{
    QFETCH(int, index);

    StoreChecks::storesAndEmits(cases().at(index));
}

void tst_MarquelRemoteControl::sharesItsStoreBetweenReportsAndRequests()
{
    Panel panel;
    panel.slotSetpointLaserPowerChanged(12.0);
    panel.slotDynamicWavelengthChanged(9);
    panel.slotDWLSFeatureChanged(true);
    panel.slotDWLSSetpointsChanged(1.0, 2.0, 3.0, 4.0);

    panel.slotWriteLaserPowerSetpoint(5.0);
    panel.slotWriteDynamicWavelength(1);
    panel.slotWriteDWLSFeature(false);
    panel.slotWriteDWLSSetpoints();

    QCOMPARE(StoreChecks::store(panel),
             StoreChecks::storeWith(
                 list({ "setpoint: 5", "wavelength: 1", "IR: 1", "SHG: 2", "THG: 3", "FHG: 4" })));
}

void tst_MarquelRemoteControl::asksNothingWithoutTheWarning()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    panel.slotSetNoHarmonicWavelengthWarning(false);
    const DialogHand hand;
    SignalRecorder recorder(&panel);

    press(emissionButton(panel));
    panel.slotWriteEmissionState(true);

    QCOMPARE(recorder.taken(),
             list({ "sigWriteEmissionState(true)", "sigWriteEmissionState(true)" }));
    QCOMPARE(hand.problems(), QStringList());
    QVERIFY(panel.findChildren<QDialog *>().isEmpty());
}

void tst_MarquelRemoteControl::asksNothingWhenItIsSwitchedOff()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    panel.slotEmissionChanged(true);
    const DialogHand hand;
    SignalRecorder recorder(&panel);

    press(emissionButton(panel));
    panel.slotWriteEmissionState(false);

    QCOMPARE(recorder.taken(),
             list({ "sigWriteEmissionState(false)", "sigWriteEmissionState(false)" }));
    QCOMPARE(hand.problems(), QStringList());
    QVERIFY(panel.findChildren<QDialog *>().isEmpty());
}

void tst_MarquelRemoteControl::setsTheWarningInSilence()
{
    Panel panel;
    SignalRecorder recorder(&panel);

    panel.slotSetNoHarmonicWavelengthWarning(true);
    panel.slotSetNoHarmonicWavelengthWarning(true);
    panel.slotSetNoHarmonicWavelengthWarning(false);

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(StoreChecks::store(panel), StoreChecks::initialStore());
}

void tst_MarquelRemoteControl::waitsForTheAnswer_data()
{
    QTest::addColumn<int>("index");

    for (int i = 0; i < 5; ++i)
        QTest::newRow(answers[i].name) << i;
}

void tst_MarquelRemoteControl::waitsForTheAnswer()
{
    QFETCH(int, index);
    const Answer &each = answers[index];
    Panel panel;
    panel.show();
    panel.slotSetNoHarmonicWavelengthWarning(true);
    SignalRecorder recorder(&panel);
    QStringList sentWhileItAsked{ QStringLiteral("no dialog") };
    DialogHand hand;
    for (int i = 0; i < 2; ++i) {
        hand.serve([&](QDialog &dialog) {
            sentWhileItAsked = recorder.entries();
            each.give(dialog);
        });
    }

    press(emissionButton(panel));
    QCOMPARE(hand.shown().size(), 1);
    QCOMPARE(sentWhileItAsked, QStringList());
    QCOMPARE(recorder.taken(),
             each.accepted ? list({ "sigWriteEmissionState(true)" }) : QStringList());
    QVERIFY(!panel.getEmission());
    QCOMPARE(looks(panel), list({ "enabled off" }));

    press(emissionButton(panel)); // the button has turned round, whatever the answer was
    QCOMPARE(recorder.taken(), list({ "sigWriteEmissionState(false)" }));
    QCOMPARE(hand.shown().size(), 1);

    press(emissionButton(panel));
    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(recorder.taken(),
             each.accepted ? list({ "sigWriteEmissionState(true)" }) : QStringList());
}

void tst_MarquelRemoteControl::warnsAtACallToo()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    SignalRecorder recorder(&panel);
    DialogHand hand;
    hand.serve([](QDialog &dialog) { dialog.reject(); });
    hand.serve([](QDialog &dialog) { dialog.accept(); });

    panel.slotWriteEmissionState(true);
    QCOMPARE(recorder.taken(), QStringList());

    panel.slotWriteEmissionState(true);
    QCOMPARE(recorder.taken(), list({ "sigWriteEmissionState(true)" }));
    QCOMPARE(hand.problems(), QStringList());
}

void tst_MarquelRemoteControl::buildsTheWarning()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    const auto look = [&panel](QDialog &dialog) {
        QCOMPARE(dialog.parent(), &panel);
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.isWindow());
        QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
        QVERIFY(dialog.windowFlags() & Qt::WindowTitleHint);
        const auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 4);
        const char *const texts[] = { "** Attention **",
                                      "No wavelength selected.\nClick OK to continue." };
        const char *const types[] = { "label-header", "label" };
        for (int i = 0; i < 2; ++i) {
            const auto *label = qobject_cast<QLabel *>(layout->itemAt(i)->widget());
            QVERIFY(label);
            QCOMPARE(label->text(), QLatin1String(texts[i]));
            QCOMPARE(label->property("type").toString(), QLatin1String(types[i]));
            QCOMPARE(label->alignment(), Qt::AlignHCenter);
            QCOMPARE(layout->itemAt(i)->alignment(), Qt::AlignHCenter);
        }
        QVERIFY(layout->itemAt(2)->spacerItem());
        QCOMPARE(layout->stretch(2), 1);
        QCOMPARE(layout->itemAt(3)->alignment(), Qt::AlignRight);
        const auto *row = qobject_cast<QHBoxLayout *>(layout->itemAt(3)->widget()->layout());
        QVERIFY(row);
        QCOMPARE(row->count(), 3);
        QVERIFY(row->itemAt(0)->spacerItem());
        QCOMPARE(row->stretch(0), 1);
        QCOMPARE(row->itemAt(1)->widget(), answer(dialog, "Cancel"));
        QCOMPARE(row->itemAt(2)->widget(), answer(dialog, "OK"));
        for (const char *text : { "OK", "Cancel" }) {
            const Button &button = *answer(dialog, text);
            QCOMPARE(button.property("button-size").toString(), QStringLiteral("small"));
            QCOMPARE(button.size(), QSize(55, 35));
            QCOMPARE(button.color(), Button::DarkGrey);
        }
        QVERIFY(answer(dialog, "Cancel")->isDefault());
    };
    DialogHand hand;
    hand.serve([&](QDialog &dialog) {
        look(dialog);
        dialog.reject();
    });

    panel.slotWriteEmissionState(true);

    QCOMPARE(hand.problems(), QStringList());
}

void tst_MarquelRemoteControl::keepsEveryDialogAsAChild()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    DialogHand hand;

    for (int i = 1; i <= 3; ++i) {
        hand.serve([](QDialog &dialog) { dialog.accept(); });
        panel.slotWriteEmissionState(true);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        QCOMPARE(panel.findChildren<QDialog *>().size(), i);
        QVERIFY(panel.findChildren<QDialog *>().last()->isHidden());
        QVERIFY(panel.findChildren<QDialog *>().last()->isModal());
    }
    QCOMPARE(hand.problems(), QStringList());
}

void tst_MarquelRemoteControl::takesReportsWhileItAsks()
{
    Panel panel;
    panel.slotSetNoHarmonicWavelengthWarning(true);
    SignalRecorder recorder(&panel);
    DialogHand hand;
    hand.serve([&](QDialog &dialog) {
        panel.slotEmissionChanged(true); // switched on by somebody else
        dialog.reject();
    });

    press(emissionButton(panel));

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(recorder.taken(), list({ "sigEmissionStateChanged(true)" }));
    QVERIFY(panel.getEmission());
    QCOMPARE(looks(panel), list({ "enabled on" }));
}

void tst_MarquelRemoteControl::dropsTheRequestWithThePanel_data()
{
    QTest::addColumn<bool>("pressed");

    QTest::newRow("pressed") << true;
    QTest::newRow("called") << false;
}

void tst_MarquelRemoteControl::dropsTheRequestWithThePanel()
{
    QFETCH(bool, pressed);
    const QPointer<Panel> panel(new Panel);
    panel->slotSetNoHarmonicWavelengthWarning(true);
    SignalRecorder recorder(panel);
    DialogHand hand;
    hand.serve([panel](QDialog &) { delete panel; });

    if (pressed)
        press(emissionButton(*panel));
    else
        panel->slotWriteEmissionState(true);

    QCOMPARE(hand.problems(), QStringList());
    QVERIFY(panel.isNull());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_MarquelRemoteControl::livesThroughItsDeletionInASlot_data()
{
    StoreChecks::addRows(cases());
}

void tst_MarquelRemoteControl::livesThroughItsDeletionInASlot()
{
    QFETCH(int, index);

    StoreChecks::livesThroughItsDeletion<Panel>(cases().at(index).call);
}

void tst_MarquelRemoteControl::livesThroughItsDeletionByTheEmission()
{
    StoreChecks::livesThroughItsDeletion<Panel>(
        [](Panel &panel) { panel.slotEmissionChanged(true); });
    StoreChecks::livesThroughItsDeletion<Panel>([](Panel &panel) { press(emissionButton(panel)); });
}

PELORIN_TEST_MAIN(tst_MarquelRemoteControl)
#include "tst_marquelremotecontrol.moc"
