#include "Pelorin/remote/OstrelRemoteControl.h"
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

using Panel = OstrelRemoteControl;

/// The states 0 to 6: output enable, laser on, standby, listen.
const QStringList states = list({ "d0 d0 d0 d0", "d0 d0 e0 e2", "d0 d0 e1 e0", "d0 e0 e2 e0",
                                  "d0 e1 e0 e0", "e0 e2 e0 e0", "e2 e2 e0 e0" });

const QVector<LampChecks::Button<Panel>> lamps{
    { "Output enable", &Panel::setOutputEnableState, red, red },
    { "Laser On", &Panel::setLaserOnState, red, red },
    { "Standby", &Panel::setStandbyState, orange, orange },
    { "Listen", &Panel::setListenState, green, orange },
};

QVector<StoreChecks::Case<Panel>> cases()
{
    return StoreChecks::commonReports<Panel>() + StoreChecks::wavelengthCases<Panel>();
}

} // namespace

class tst_OstrelRemoteControl : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsInStateZero();
    void buildsItsButtons();
    void keepsTheButtonsInAColumnAtTheRight();
    void followsEveryStateByte_data();
    void followsEveryStateByte();
    void keepsTheLampsInAnUnknownState();
    void takesTheSameStateAgain();
    void reportsEveryPressInEveryState_data();
    void reportsEveryPressInEveryState();
    void passesOnWhatLaserOnAsksFor_data();
    void passesOnWhatLaserOnAsksFor();
    void takesNoOtherHidingForTheButtons();
    void showsAndHidesTheOutputButton();
    void turnsRoundAtEveryPress();
    void setsASingleLamp_data();
    void setsASingleLamp();
    void storesAndEmitsOnEveryCall_data();
    void storesAndEmitsOnEveryCall();
    void livesThroughItsDeletionInASlot_data();
    void livesThroughItsDeletionInASlot();
    void livesThroughItsDeletionByAStateOrAPress();
};

void tst_OstrelRemoteControl::declaresItsInterface()
{
    const QMetaObject &meta = Panel::staticMetaObject;

    QCOMPARE(meta.className(), "OstrelRemoteControl");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "outEnableChanged(bool)",
                    "laserOnChanged(bool)",
                    "standbyChanged(bool)",
                    "listenChanged(bool)",
                    "sigEmissionStateChanged(bool)",
                    "sigDWLSFeatureChanged(bool)",
                    "sigDWLSSetpointsChanged(double,double,double,double)",
                    "sigDynamicWavelengthChanged(uchar)",
                    "sigMeasuredLaserPowerChanged(double,double)",
                    "sigSetpointLaserPowerChanged(double)",
                    "sigSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "sigWriteDWLSFeature(bool)",
                    "sigWriteDWLSSetpoints()",
                    "sigWriteDynamicWavelength(uchar)",
                    "sigWriteLaserPowerSetpoint(double)",
                    "enableOutEnableButton(bool)",
                    "slotFSMStateChanged(uchar)",
                    "slotDWLSFeatureChanged(bool)",
                    "slotDWLSSetpointsChanged(double,double,double,double)",
                    "slotDynamicWavelengthChanged(uchar)",
                    "slotMeasuredPowerChanged(double,double)",
                    "slotSetpointLaserPowerChanged(double)",
                    "slotSetpointLaserPowerRangeChanged(double,double,int,QString)",
                    "slotWriteDWLSFeature(bool)",
                    "slotWriteDWLSSetpoints()",
                    "slotWriteDynamicWavelength(uchar)",
                    "slotWriteLaserPowerSetpoint(double)",
                    "laserOnClicked(bool)" }));
}

void tst_OstrelRemoteControl::startsInStateZero()
{
    const Panel panel;

    QVERIFY(!panel.getEmission());
    QCOMPARE(StoreChecks::store(panel), StoreChecks::initialStore());
    QCOMPARE(looks(panel),
             list({ "disabled off", "disabled off", "disabled off", "disabled off" }));
}

void tst_OstrelRemoteControl::buildsItsButtons()
{
    const Panel panel;

    LampChecks::buttonsAreBuilt(panel, lamps, "Output enable");
    QCOMPARE(find(panel, "Output")->button()->text(), QStringLiteral("Output\nenable"));
    QCOMPARE(find(panel, "Output")->button()->toolTip(), QStringLiteral("Toggle output on/off"));
}

void tst_OstrelRemoteControl::keepsTheButtonsInAColumnAtTheRight()
{
    Panel panel;

    LampChecks::standsInAColumn(panel);
}

void tst_OstrelRemoteControl::followsEveryStateByte_data()
{
    QTest::addColumn<int>("start");

    for (int start = 0; start <= 7; ++start)
        QTest::addRow("after %d", start) << start;
}

void tst_OstrelRemoteControl::followsEveryStateByte()
{
    QFETCH(int, start);

    StateChecks::followsEveryByteAfter<Panel>(start, states, { 6 });
}

void tst_OstrelRemoteControl::keepsTheLampsInAnUnknownState()
{
    Panel panel;
    panel.slotFSMStateChanged(6);
    const QStringList emitting = looks(panel);
    QVERIFY(panel.getEmission());
    SignalRecorder recorder(&panel);

    panel.slotFSMStateChanged(7);

    QCOMPARE(looks(panel), emitting);
    QVERIFY(!panel.getEmission());
    QCOMPARE(recorder.taken(), list({ "sigEmissionStateChanged(false)" }));
}

void tst_OstrelRemoteControl::takesTheSameStateAgain()
{
    Panel panel;
    panel.slotFSMStateChanged(4);
    panel.setStandbyState(1);
    panel.setLaserOnState(2);

    panel.slotFSMStateChanged(4);

    QCOMPARE(looks(panel),
             list({ "disabled off", "enabled blinking", "enabled off", "enabled off" }));
}

void tst_OstrelRemoteControl::reportsEveryPressInEveryState_data()
{
    QTest::addColumn<bool>("outputHidden");

    QTest::newRow("output shown") << false;
    QTest::newRow("output hidden") << true;
}

void tst_OstrelRemoteControl::reportsEveryPressInEveryState()
{
    QFETCH(bool, outputHidden);

    StateChecks::reportsEveryPress<Panel>(
        outputHidden, list({ "outEnableChanged", "", "standbyChanged", "listenChanged" }),
        [&](int state) {
            return outputHidden && state > 3 ? QStringLiteral("standbyChanged")
                                             : QStringLiteral("outEnableChanged");
        });
}

void tst_OstrelRemoteControl::passesOnWhatLaserOnAsksFor_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("signal");

    const QString output = QStringLiteral("outEnableChanged");
    const QString standby = QStringLiteral("standbyChanged");
    QTest::newRow("shown, 0") << false << 0 << output;
    QTest::newRow("shown, 3") << false << 3 << output;
    QTest::newRow("shown, 4") << false << 4 << output;
    QTest::newRow("shown, 255") << false << 255 << output;
    QTest::newRow("hidden, 0") << true << 0 << output;
    QTest::newRow("hidden, 3") << true << 3 << output;
    QTest::newRow("hidden, 4") << true << 4 << standby;
    QTest::newRow("hidden, 6") << true << 6 << standby;
    QTest::newRow("hidden, 255") << true << 255 << standby;
}

void tst_OstrelRemoteControl::passesOnWhatLaserOnAsksFor()
{
    QFETCH(bool, hidden);
    QFETCH(int, state);
    QFETCH(QString, signal);

    StateChecks::passesOnLaserOn<Panel>(hidden, state, signal);
}

void tst_OstrelRemoteControl::takesNoOtherHidingForTheButtons()
{
    StateChecks::takesNoOtherHiding<Panel>(QStringLiteral("outEnableChanged"));
}

void tst_OstrelRemoteControl::showsAndHidesTheOutputButton()
{
    StateChecks::showsAndHidesTheOutput<Panel>();
}

void tst_OstrelRemoteControl::turnsRoundAtEveryPress()
{
    StateChecks::turnsRoundAtEveryPress<Panel>();
}

void tst_OstrelRemoteControl::setsASingleLamp_data()
{
    LampChecks::addRows(lamps);
}

void tst_OstrelRemoteControl::setsASingleLamp()
{
    LampChecks::setsASingleLamp(lamps);
}

void tst_OstrelRemoteControl::storesAndEmitsOnEveryCall_data()
{
    StoreChecks::addRows(cases());
}

void tst_OstrelRemoteControl::storesAndEmitsOnEveryCall()
{
    QFETCH(int, index);

    StoreChecks::storesAndEmits(cases().at(index));
}

void tst_OstrelRemoteControl::livesThroughItsDeletionInASlot_data()
{
    StoreChecks::addRows(cases());
}

void tst_OstrelRemoteControl::livesThroughItsDeletionInASlot()
{
    QFETCH(int, index);

    StoreChecks::livesThroughItsDeletion<Panel>(cases().at(index).call);
}

void tst_OstrelRemoteControl::livesThroughItsDeletionByAStateOrAPress()
{
    StoreChecks::livesThroughItsDeletionByAStateOrAPress<Panel>(4);
}

PELORIN_TEST_MAIN(tst_OstrelRemoteControl)
#include "tst_ostrelremotecontrol.moc"
