#ifndef PELORIN_TESTS_STATECHECKS_H
#define PELORIN_TESTS_STATECHECKS_H

#include "tests/remote/PanelProbe.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TextList.h"

#include <QStringList>
#include <QtTest>

#include <functional>

/// What the state byte makes of the buttons of a panel, told apart from the panel.
///
/// A row has two letters a button: "e" enabled, "d" disabled, then the lamp, "0" off, "1" blinking,
/// "2" on; "-" for what stays as it is.
namespace StateChecks {

inline QString lookAfter(const QString &before, const QString &cell)
{
    static const QStringList lamps{ QStringLiteral("off"), QStringLiteral("blinking"),
                                    QStringLiteral("on") };
    const int blank = before.indexOf(QLatin1Char(' '));
    QString access = before.left(blank);
    if (cell.at(0) != QLatin1Char('-'))
        access =
            cell.at(0) == QLatin1Char('e') ? QStringLiteral("enabled") : QStringLiteral("disabled");
    const QString lamp =
        cell.at(1) == QLatin1Char('-') ? before.mid(blank + 1) : lamps.at(cell.at(1).digitValue());
    return access + QLatin1Char(' ') + lamp;
}

/// The looks of the buttons after \a state, by the rows of \a table.
inline QStringList looksAfter(const QStringList &before, const QStringList &table, int state)
{
    if (state >= table.size())
        return before;
    const QStringList cells = table.at(state).split(QLatin1Char(' '));
    QStringList result;
    for (int i = 0; i < before.size(); ++i)
        result << lookAfter(before.at(i), cells.at(i));
    return result;
}

inline QString signalText(const char *name, bool value)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name),
                                        value ? QStringLiteral("true") : QStringLiteral("false"));
}

/// Sends every byte, each after \a start, and twice.
template<class Panel>
void followsEveryByteAfter(int start, const QStringList &table, const QList<int> &reportedOn)
{
    Panel panel;
    QStringList expected = PanelProbe::looks(panel);
    SignalRecorder recorder(&panel);
    for (int state = 0; state <= 255; ++state) {
        panel.slotFSMStateChanged(uchar(start));
        expected = looksAfter(expected, table, start);
        recorder.taken();

        panel.slotFSMStateChanged(uchar(state));
        panel.slotFSMStateChanged(uchar(state));

        expected = looksAfter(expected, table, state);
        const QString report = signalText("sigEmissionStateChanged", reportedOn.contains(state));
        QCOMPARE(recorder.taken(), QStringList({ report, report }));
        QCOMPARE(PanelProbe::looks(panel), expected);
        QCOMPARE(panel.getEmission(), state == 6);
    }
}

/// Presses every button in every state, after state 6 has enabled as many as it does. \a names tells
/// the signal of each button; an empty one is that of \a laserOn.
template<class Panel>
void reportsEveryPress(bool outputHidden, const QStringList &names,
                       const std::function<QString(int state)> &laserOn)
{
    Panel panel;
    panel.enableOutEnableButton(!outputHidden);
    const QList<IndicatorButton *> buttons = PanelProbe::buttonsOf(panel);
    QCOMPARE(buttons.size(), names.size());
    SignalRecorder recorder(&panel);
    for (int state = 0; state <= 255; ++state) {
        for (int i = 0; i < buttons.size(); ++i) {
            panel.slotFSMStateChanged(6);
            panel.slotFSMStateChanged(uchar(state));
            const QStringList looks = PanelProbe::looks(panel);
            recorder.taken();

            PanelProbe::press(*buttons.at(i));

            const QString name = names.at(i).isEmpty() ? laserOn(state) : names.at(i);
            const bool asksFor = !looks.at(i).endsWith(QLatin1String(" on"));
            const QStringList request(signalText(qPrintable(name), asksFor));
            const bool enabled = looks.at(i).startsWith(QLatin1String("enabled"));
            QCOMPARE(recorder.taken(), enabled ? request : QStringList());
            QCOMPARE(PanelProbe::looks(panel), looks);
            QCOMPARE(panel.getEmission(), state == 6);
        }
    }
}

/// What laserOnClicked() makes of both its values in \a state.
template<class Panel>
void passesOnLaserOn(bool outputHidden, int state, const QString &signal)
{
    Panel panel;
    panel.enableOutEnableButton(!outputHidden);
    panel.slotFSMStateChanged(uchar(state));
    SignalRecorder recorder(&panel);

    panel.laserOnClicked(true);
    panel.laserOnClicked(false);

    QCOMPARE(recorder.taken(), QStringList({ signal + QStringLiteral("(true)"),
                                             signal + QStringLiteral("(false)") }));
}

/// Neither a hidden panel nor a hidden page makes the output button one that was hidden.
template<class Panel>
void takesNoOtherHiding(const QString &signal)
{
    QWidget page;
    auto *panel = new Panel(&page);
    panel->slotFSMStateChanged(4);
    page.show();
    page.hide();
    panel->hide();
    SignalRecorder recorder(panel);

    panel->laserOnClicked(true);

    QCOMPARE(recorder.taken(), QStringList(signal + QStringLiteral("(true)")));
}

/// A hidden output button still follows the states.
template<class Panel>
void showsAndHidesTheOutput()
{
    Panel panel;
    panel.show();
    const IndicatorButton &output = *PanelProbe::find(panel, "Output");
    SignalRecorder recorder(&panel);

    panel.enableOutEnableButton(false);
    QVERIFY(output.isHidden());
    QVERIFY(!output.button()->isEnabled());

    panel.slotFSMStateChanged(6);
    QVERIFY(output.isHidden());
    panel.enableOutEnableButton(true);
    QVERIFY(output.isVisible());
    QVERIFY(output.button()->isEnabled());
    QCOMPARE(recorder.taken(), QStringList(signalText("sigEmissionStateChanged", true)));
}

/// Each press of a button asks for the contrary of what the last one asked for, or the state said.
template<class Panel>
void turnsRoundAtEveryPress()
{
    Panel panel;
    panel.slotFSMStateChanged(3);
    SignalRecorder recorder(&panel);

    PanelProbe::press(*PanelProbe::find(panel, "Listen"));
    PanelProbe::press(*PanelProbe::find(panel, "Listen"));
    PanelProbe::press(*PanelProbe::find(panel, "Standby")); // on already
    PanelProbe::press(*PanelProbe::find(panel, "Standby"));

    QCOMPARE(recorder.taken(), list({ "listenChanged(true)", "listenChanged(false)",
                                      "standbyChanged(false)", "standbyChanged(true)" }));
}

} // namespace StateChecks

#endif
