#include "Pelorin/remote/MarquelXRemoteControl.h"
#include "tests/remote/LampChecks.h"
#include "tests/remote/PanelProbe.h"
#include "tests/remote/StateChecks.h"
#include "tests/remote/StoreChecks.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

using namespace PanelProbe;

namespace {

using Panel = MarquelXRemoteControl;

/// The states 0 to 8: pulse stretcher, output enable, laser on, standby, listen.
const QStringList states =
    list({ "d0 d0 d0 d0 d0", "d0 d0 d0 e0 e2", "d0 d0 d0 e1 e0", "d0 d0 e0 e2 e0", "d0 d0 e1 e0 e0",
           "d0 e0 e2 e0 e0", "e0 e2 e2 e0 e0", "-- d- d- d- d-", "e- e2 e2 e0 e0" });

const QVector<LampChecks::Button<Panel>> lamps{
    { "Pulse stretcher Auto-Tuning", &Panel::slotTPSRbuttonState, red, orange },
    { "Output enable", &Panel::setOutputEnableState, red, red },
    { "Laser On", &Panel::setLaserOnState, red, red },
    { "Standby", &Panel::setStandbyState, orange, orange },
    { "Listen", &Panel::setListenState, green, orange },
};

QVector<StoreChecks::Case<Panel>> cases()
{
    return StoreChecks::commonReports<Panel>();
}

} // namespace

class tst_MarquelXRemoteControl : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsInStateZero();
    void buildsItsButtons();
    void keepsTheButtonsInAColumnAtTheRight();
    void followsEveryStateByte_data();
    void followsEveryStateByte();
    void freezesTheLowerButtonsInStateSeven();
    void keepsTheTuningLampInStateEight_data();
    void keepsTheTuningLampInStateEight();
    void reportsEmissionInStateEight();
    void takesTheSameStateAgain();
    void reportsEveryPressInEveryState_data();
    void reportsEveryPressInEveryState();
    void passesOnWhatLaserOnAsksFor_data();
    void passesOnWhatLaserOnAsksFor();
    void takesNoOtherHidingForTheButtons();
    void showsAndHidesTheOutputButton();
    void showsAndHidesTheTuningButton();
    void turnsRoundAtEveryPress();
    void setsASingleLamp_data();
    void setsASingleLamp();
    void storesAndEmitsOnEveryCall_data();
    void storesAndEmitsOnEveryCall();
    void livesThroughItsDeletionInASlot_data();
    void livesThroughItsDeletionInASlot();
    void livesThroughItsDeletionByAStateOrAPress();
};

void tst_MarquelXRemoteControl::declaresItsInterface()
{
    const QMetaObject &meta = Panel::staticMetaObject;

    QCOMPARE(meta.className(), "MarquelXRemoteControl");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "tpsrOptimizationChanged(bool)",
                    "outEnableChanged(bool)",
                    "laserOnChanged(bool)",
                    "standbyChanged(bool)",
                    "listenChanged(bool)",
                    "sigEmissionStateChanged(bool)",
                    "sigDWLSFeatureChanged(bool)",
                    "sigMeasuredLaserPowerChanged(double,double)",
                    "sigSetpointLaserPowerChanged(double)",
                    "sigSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "sigWriteLaserPowerSetpoint(double)",
                    "enableOutEnableButton(bool)",
                    "slotTPSRbuttonView(bool)",
                    "slotTPSRbuttonState(int)",
                    "slotFSMStateChanged(uchar)",
                    "slotDWLSFeatureChanged(bool)",
                    "slotMeasuredPowerChanged(double,double)",
                    "slotSetpointLaserPowerChanged(double)",
                    "slotSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "laserOnClicked(bool)" }));
}

void tst_MarquelXRemoteControl::startsInStateZero()
{
    const Panel panel;

    QVERIFY(!panel.getEmission());
    QCOMPARE(StoreChecks::store(panel), StoreChecks::initialStore());
    QCOMPARE(looks(panel), list({ "disabled off", "disabled off", "disabled off", "disabled off",
                                  "disabled off" }));
}

void tst_MarquelXRemoteControl::buildsItsButtons()
{
    const Panel panel;

    LampChecks::buttonsAreBuilt(panel, lamps, "Output enable");
    QCOMPARE(find(panel, "Output")->button()->text(), QStringLiteral("Output\nenable"));
    QCOMPARE(find(panel, "Output")->button()->toolTip(), QStringLiteral("Toggle output on/off"));
    QCOMPARE(find(panel, "Pulse")->button()->text(),
             QStringLiteral("Pulse stretcher\nAuto-Tuning"));
}

void tst_MarquelXRemoteControl::keepsTheButtonsInAColumnAtTheRight()
{
    Panel panel;

    LampChecks::standsInAColumn(panel);
}

void tst_MarquelXRemoteControl::followsEveryStateByte_data()
{
    QTest::addColumn<int>("start");

    for (int start = 0; start <= 9; ++start)
        QTest::addRow("after %d", start) << start;
}

void tst_MarquelXRemoteControl::followsEveryStateByte()
{
    QFETCH(int, start);

    StateChecks::followsEveryByteAfter<Panel>(start, states, { 6, 8 });
}

void tst_MarquelXRemoteControl::freezesTheLowerButtonsInStateSeven()
{
    Panel panel;
    panel.slotFSMStateChanged(6);
    panel.slotTPSRbuttonState(1);

    panel.slotFSMStateChanged(7);

    QCOMPARE(looks(panel), list({ "enabled blinking", "disabled on", "disabled on", "disabled off",
                                  "disabled off" }));
    QCOMPARE(shownColor(*find(panel, "Output")), grey); // as any disabled lamp
    panel.slotFSMStateChanged(9);
    QCOMPARE(looks(panel), list({ "enabled blinking", "disabled on", "disabled on", "disabled off",
                                  "disabled off" }));
}

void tst_MarquelXRemoteControl::keepsTheTuningLampInStateEight_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("tuning");

    QTest::newRow("0") << 0 << "disabled off";
    QTest::newRow("1") << 1 << "disabled off";
    QTest::newRow("2") << 2 << "disabled off";
    QTest::newRow("3") << 3 << "disabled off";
    QTest::newRow("4") << 4 << "disabled off";
    QTest::newRow("5") << 5 << "disabled off";
    QTest::newRow("6") << 6 << "enabled off";
    QTest::newRow("7") << 7 << "disabled %1";
    QTest::newRow("8") << 8 << "enabled %1";
    QTest::newRow("9") << 9 << "disabled %1";
}

void tst_MarquelXRemoteControl::keepsTheTuningLampInStateEight()
{
    QFETCH(int, state);
    QFETCH(QString, tuning);
    const QString lamps[] = { QStringLiteral("off"), QStringLiteral("blinking"),
                              QStringLiteral("on") };
    for (int lamp = 0; lamp <= 2; ++lamp) {
        Panel panel;
        panel.slotTPSRbuttonState(lamp);

        panel.slotFSMStateChanged(uchar(state));

        const QString expected =
            tuning.contains(QLatin1Char('%')) ? tuning.arg(lamps[lamp]) : tuning;
        QCOMPARE(looks(panel).first(), expected);
    }
}

void tst_MarquelXRemoteControl::reportsEmissionInStateEight()
{
    Panel panel;
    SignalRecorder recorder(&panel);

    panel.slotFSMStateChanged(8);

    QCOMPARE(recorder.taken(), list({ "sigEmissionStateChanged(true)" }));
    QVERIFY(!panel.getEmission());
}

void tst_MarquelXRemoteControl::takesTheSameStateAgain()
{
    Panel panel;
    panel.slotFSMStateChanged(4);
    panel.setStandbyState(1);
    panel.setLaserOnState(2);

    panel.slotFSMStateChanged(4);

    QCOMPARE(looks(panel), list({ "disabled off", "disabled off", "enabled blinking", "enabled off",
                                  "enabled off" }));
}

void tst_MarquelXRemoteControl::reportsEveryPressInEveryState_data()
{
    QTest::addColumn<bool>("outputHidden");

    QTest::newRow("output shown") << false;
    QTest::newRow("output hidden") << true;
}

void tst_MarquelXRemoteControl::reportsEveryPressInEveryState()
{
    QFETCH(bool, outputHidden);

    StateChecks::reportsEveryPress<Panel>(outputHidden,
                                          list({ "tpsrOptimizationChanged", "outEnableChanged", "",
                                                 "standbyChanged", "listenChanged" }),
                                          [&](int state) {
                                              if (!outputHidden)
                                                  return QStringLiteral("laserOnChanged");
                                              return state > 3 ? QStringLiteral("standbyChanged")
                                                               : QStringLiteral("outEnableChanged");
                                          });
}

void tst_MarquelXRemoteControl::passesOnWhatLaserOnAsksFor_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("signal");

    const QString laser = QStringLiteral("laserOnChanged");
    const QString output = QStringLiteral("outEnableChanged");
    const QString standby = QStringLiteral("standbyChanged");
    QTest::newRow("shown, 0") << false << 0 << laser;
    QTest::newRow("shown, 3") << false << 3 << laser;
    QTest::newRow("shown, 4") << false << 4 << laser;
    QTest::newRow("shown, 255") << false << 255 << laser;
    QTest::newRow("hidden, 0") << true << 0 << output;
    QTest::newRow("hidden, 3") << true << 3 << output;
    QTest::newRow("hidden, 4") << true << 4 << standby;
    QTest::newRow("hidden, 6") << true << 6 << standby;
    QTest::newRow("hidden, 255") << true << 255 << standby;
}

void tst_MarquelXRemoteControl::passesOnWhatLaserOnAsksFor()
{
    QFETCH(bool, hidden);
    QFETCH(int, state);
    QFETCH(QString, signal);

    StateChecks::passesOnLaserOn<Panel>(hidden, state, signal);
}

void tst_MarquelXRemoteControl::takesNoOtherHidingForTheButtons()
{
    StateChecks::takesNoOtherHiding<Panel>(QStringLiteral("laserOnChanged"));
}

void tst_MarquelXRemoteControl::showsAndHidesTheOutputButton()
{
    StateChecks::showsAndHidesTheOutput<Panel>();
}

void tst_MarquelXRemoteControl::showsAndHidesTheTuningButton()
{
    Panel panel;
    panel.show();
    const IndicatorButton &tuning = *find(panel, "Pulse");
    SignalRecorder recorder(&panel);

    panel.slotTPSRbuttonView(false);
    QVERIFY(tuning.isHidden());
    panel.laserOnClicked(true); // it does not matter to it
    panel.slotTPSRbuttonView(true);

    QVERIFY(tuning.isVisible());
    QCOMPARE(recorder.taken(), list({ "laserOnChanged(true)" }));
}

void tst_MarquelXRemoteControl::turnsRoundAtEveryPress()
{
    StateChecks::turnsRoundAtEveryPress<Panel>();
}

void tst_MarquelXRemoteControl::setsASingleLamp_data()
{
    LampChecks::addRows(lamps);
}

void tst_MarquelXRemoteControl::setsASingleLamp()
{
    LampChecks::setsASingleLamp(lamps);
}

void tst_MarquelXRemoteControl::storesAndEmitsOnEveryCall_data()
{
    StoreChecks::addRows(cases());
}

void tst_MarquelXRemoteControl::storesAndEmitsOnEveryCall()
{
    QFETCH(int, index);

    StoreChecks::storesAndEmits(cases().at(index));
}

void tst_MarquelXRemoteControl::livesThroughItsDeletionInASlot_data()
{
    StoreChecks::addRows(cases());
}

void tst_MarquelXRemoteControl::livesThroughItsDeletionInASlot()
{
    QFETCH(int, index);

    StoreChecks::livesThroughItsDeletion<Panel>(cases().at(index).call);
}

void tst_MarquelXRemoteControl::livesThroughItsDeletionByAStateOrAPress()
{
    StoreChecks::livesThroughItsDeletionByAStateOrAPress<Panel>(5);
}

PELORIN_TEST_MAIN(tst_MarquelXRemoteControl)
#include "tst_marquelxremotecontrol.moc"
