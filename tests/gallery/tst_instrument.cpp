#include "gallery/simulation/Instrument.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QSignalSpy>

#include <cmath>
#include <memory>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

constexpr int answerMs = 100;
constexpr int stateMs = 1500;
const Simulation::Span wavelengths{ 400.0, 700.0 };
const Simulation::Span powers{ 0.0, 100.0 };

QList<int> states(const QSignalSpy &spy)
{
    QList<int> result;
    for (const QList<QVariant> &arguments : spy)
        result << arguments.at(0).value<uchar>();
    return result;
}

} // namespace

/// The simulated instrument, with its time in the hands of the test.
class tst_Instrument : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listensOnceItIsOn();
    void climbsOneStateAfterTheOther();
    void fallsAtOnce();
    void comesBackFromOff();
    void tunesOnlyWhileItEmits();
    void answersAfterItsTime();
    void keepsSetpointsWithinLimits_data();
    void keepsSetpointsWithinLimits();
    void refusesWhatIsNoNumber();
    void movesTheSetpointIntoNewLimits();
    void ignoresLimitsTheWrongWayRound();
    void ignoresChannelsThatItHasNot_data();
    void ignoresChannelsThatItHasNot();
    void answersForAChannel();
    void answersInTheOrderOfTheRequests();
    void boundsPulseSettings();
    void approachesThePowerAsAFirstOrderLag();
    void isDarkWithoutEmission();
    void tunesInItsOwnTime();
    void deliversFramesWhoseLineFollows();
    void reportsEverySecond();
    void fallsWithAFaultAndRefuses();
    void goesOnWhenTheFaultHasGone();
    void tellsTheSameTwice();
    void runsByItself();

private:
    void pass(int ms) { m_instrument->clock().advance(ms); }
    /// To emission, with the power at its set point.
    void emitLight()
    {
        m_instrument->laser().emitLight(true);
        pass(6 * stateMs + 6000);
    }

    std::unique_ptr<Instrument> m_instrument;
};

void tst_Instrument::init()
{
    TestCase::init();
    m_instrument = std::make_unique<Instrument>(7, wavelengths, 520.0, powers);
}

void tst_Instrument::cleanup()
{
    m_instrument.reset();
    TestCase::cleanup();
}

void tst_Instrument::listensOnceItIsOn()
{
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Off));

    pass(stateMs + Simulation::Clock::stepMs);

    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));
    pass(20 * stateMs);
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));
}

void tst_Instrument::climbsOneStateAfterTheOther()
{
    pass(2 * stateMs);
    const QSignalSpy spy(&m_instrument->laser(), &Laser::stateChanged);

    m_instrument->laser().emitLight(true);
    pass(stateMs - Simulation::Clock::stepMs);
    QCOMPARE(states(spy), QList<int>({ 1 })); // the answer
    pass(Simulation::Clock::stepMs);
    QCOMPARE(states(spy), QList<int>({ 1, 2 }));
    pass(10 * stateMs);

    QCOMPARE(states(spy), QList<int>({ 1, 2, 3, 4, 5, 6 }));
    QVERIFY(m_instrument->laser().emits());
}

void tst_Instrument::fallsAtOnce()
{
    emitLight();
    const QSignalSpy spy(&m_instrument->laser(), &Laser::stateChanged);

    m_instrument->laser().standBy(false);

    QCOMPARE(states(spy), QList<int>({ Laser::Listening }));
    QVERIFY(!m_instrument->laser().emits());
}

void tst_Instrument::comesBackFromOff()
{
    emitLight();

    m_instrument->laser().listen(false);
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Off));
    pass(2 * stateMs);

    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));
}

void tst_Instrument::tunesOnlyWhileItEmits()
{
    pass(2 * stateMs);
    m_instrument->laser().tune(true);
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));

    emitLight();
    m_instrument->laser().tune(true);
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Tuning));
    QVERIFY(m_instrument->laser().emits());
    m_instrument->laser().tune(false);
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Emitting));
}

void tst_Instrument::answersAfterItsTime()
{
    const QSignalSpy spy(m_instrument.get(), &Instrument::powerSetpointChanged);

    m_instrument->requestPower(25.0);
    pass(answerMs - Simulation::Clock::stepMs);
    QVERIFY(spy.isEmpty());
    QVERIFY(m_instrument->powerSetpoint() != 25.0);
    pass(Simulation::Clock::stepMs);

    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toDouble(), 25.0);
    QCOMPARE(m_instrument->powerSetpoint(), 25.0);
}

void tst_Instrument::keepsSetpointsWithinLimits_data()
{
    QTest::addColumn<double>("request");
    QTest::addColumn<double>("power");
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("bandwidth");

    QTest::newRow("within all") << 450.0 << 100.0 << 450.0 << 50.0;
    QTest::newRow("below all") << -5.0 << 0.0 << 400.0 << 1.0;
    QTest::newRow("above all") << 1e9 << 100.0 << 700.0 << 50.0;
}

void tst_Instrument::keepsSetpointsWithinLimits()
{
    QFETCH(double, request);
    QFETCH(double, power);
    QFETCH(double, wavelength);
    QFETCH(double, bandwidth);

    m_instrument->requestPower(request);
    m_instrument->requestWavelength(request);
    m_instrument->requestBandwidth(request);
    pass(10000);

    QCOMPARE(m_instrument->powerSetpoint(), power);
    QCOMPARE(m_instrument->wavelength(), wavelength);
    QCOMPARE(m_instrument->bandwidth(), bandwidth);
}

void tst_Instrument::refusesWhatIsNoNumber()
{
    const QSignalSpy spy(m_instrument.get(), &Instrument::powerSetpointChanged);
    const double before = m_instrument->powerSetpoint();

    for (const double bad : { qQNaN(), qInf(), -qInf() }) {
        m_instrument->requestPower(bad);
        m_instrument->requestWavelength(bad);
        m_instrument->requestBandwidth(bad);
        m_instrument->requestPowerLimits(bad, bad);
        m_instrument->requestPulses({ bad, 1, 1 });
        m_instrument->requestChannel(0, bad, 50);
    }
    pass(answerMs);

    QVERIFY(!spy.isEmpty());
    QCOMPARE(m_instrument->powerSetpoint(), before);
    QVERIFY(std::isfinite(m_instrument->bandwidth()));
    QVERIFY(std::isfinite(m_instrument->pulses().intervalUs));
    QVERIFY(std::isfinite(m_instrument->channel(0).nm));
    QCOMPARE(m_instrument->powerLimits().max, 100.0);
}

void tst_Instrument::movesTheSetpointIntoNewLimits()
{
    m_instrument->requestPower(90.0);
    pass(answerMs);
    SignalRecorder recorder(m_instrument.get());

    m_instrument->requestPowerLimits(10.0, 60.0);
    pass(answerMs);

    const QStringList taken = recorder.taken();
    QVERIFY(taken.indexOf(QStringLiteral("powerLimitsChanged(10, 60)")) >= 0);
    QVERIFY(taken.indexOf(QStringLiteral("powerSetpointChanged(60)"))
            > taken.indexOf(QStringLiteral("powerLimitsChanged(10, 60)")));
    QCOMPARE(m_instrument->powerSetpoint(), 60.0);
}

void tst_Instrument::ignoresLimitsTheWrongWayRound()
{
    m_instrument->requestPowerLimits(60.0, 10.0);
    pass(answerMs);

    QCOMPARE(m_instrument->powerLimits().min, 0.0);
    QCOMPARE(m_instrument->powerLimits().max, 100.0);
}

void tst_Instrument::ignoresChannelsThatItHasNot_data()
{
    QTest::addColumn<int>("channel");

    QTest::newRow("below") << -1;
    QTest::newRow("above") << 8;
    QTest::newRow("far above") << std::numeric_limits<int>::max();
}

void tst_Instrument::ignoresChannelsThatItHasNot()
{
    QFETCH(int, channel);
    const QSignalSpy spy(m_instrument.get(), &Instrument::channelChanged);

    m_instrument->requestChannel(channel, 500.0, 50);
    m_instrument->requestChannelEnabled(channel, true);
    pass(answerMs);

    QVERIFY(spy.isEmpty());
}

void tst_Instrument::answersForAChannel()
{
    const QSignalSpy changed(m_instrument.get(), &Instrument::channelChanged);
    const QSignalSpy enabled(m_instrument.get(), &Instrument::channelEnabledChanged);

    m_instrument->requestChannel(3, 900.0, 120);
    m_instrument->requestChannelEnabled(3, true);
    pass(answerMs);

    QCOMPARE(changed.first(), QVariantList({ 3, 700.0, 100 }));
    QCOMPARE(enabled.first(), QVariantList({ 3, true }));
    QCOMPARE(m_instrument->channel(3).percent, 100);
}

void tst_Instrument::answersInTheOrderOfTheRequests()
{
    const QSignalSpy spy(m_instrument.get(), &Instrument::powerSetpointChanged);

    for (int mW = 1; mW <= 5; ++mW)
        m_instrument->requestPower(mW);
    pass(answerMs);

    QCOMPARE(spy.size(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(spy.at(i).first().toDouble(), i + 1.0);
}

void tst_Instrument::boundsPulseSettings()
{
    m_instrument->requestPulses({ 1e6, 0, 1000 });
    pass(answerMs);

    QCOMPARE(m_instrument->pulses().intervalUs, 100.0);
    QCOMPARE(m_instrument->pulses().subPulses, 1);
    QCOMPARE(m_instrument->pulses().perTrigger, 50);
}

/// After one time constant of 400 ms, 1 - 1/e of the way is done.
void tst_Instrument::approachesThePowerAsAFirstOrderLag()
{
    emitLight();
    m_instrument->requestPower(0.0);
    pass(answerMs + 10000);
    QVERIFY(m_instrument->power() < 0.001);

    m_instrument->requestPower(50.0);
    pass(answerMs - Simulation::Clock::stepMs); // the step of the answer counts already
    pass(400);

    QVERIFY(qAbs(m_instrument->power() - 50.0 * (1.0 - std::exp(-1.0))) < 1e-6);
}

void tst_Instrument::isDarkWithoutEmission()
{
    emitLight();
    QVERIFY(qAbs(m_instrument->power() - m_instrument->powerSetpoint()) < 0.01);

    m_instrument->laser().emitLight(false);
    pass(6000);

    QVERIFY(m_instrument->power() < 0.001);
    QCOMPARE(m_instrument->powerSetpoint(), 40.0);
}

/// It starts at 520 nm and tunes at 60 nm/s.
void tst_Instrument::tunesInItsOwnTime()
{
    const QSignalSpy spy(m_instrument.get(), &Instrument::wavelengthSetpointChanged);

    m_instrument->requestWavelength(580.0);
    pass(answerMs - Simulation::Clock::stepMs);
    pass(500);
    QCOMPARE(spy.first().first().toDouble(), 580.0);
    QVERIFY(qAbs(m_instrument->wavelength() - 550.0) < 1e-6);
    pass(500);

    QVERIFY(qAbs(m_instrument->wavelength() - 580.0) < 1e-6);
}

void tst_Instrument::deliversFramesWhoseLineFollows()
{
    emitLight();
    m_instrument->requestWavelength(600.0);
    m_instrument->requestBandwidth(20.0);
    pass(10000);
    QSignalSpy spy(m_instrument.get(), &Instrument::frameReady);

    pass(1000);

    QCOMPARE(spy.size(), 20);
    const auto frame = spy.last().first().value<QVector<QPointF>>();
    const auto top = std::max_element(frame.cbegin(), frame.cend(),
                                      [](QPointF a, QPointF b) { return a.y() < b.y(); });
    QVERIFY(qAbs(top->x() - 600.0) < 2.0);
    QVERIFY(qAbs(top->y() - m_instrument->expectedPeak()) < 0.1);
}

void tst_Instrument::reportsEverySecond()
{
    const QSignalSpy setpoints(m_instrument.get(), &Instrument::powerSetpointChanged);
    const QSignalSpy channels(m_instrument.get(), &Instrument::channelChanged);
    const QSignalSpy powerReadings(m_instrument.get(), &Instrument::powerMeasured);

    pass(3000);

    QCOMPARE(setpoints.size(), 3);
    QCOMPARE(channels.size(), 3 * Instrument::channelCount);
    QCOMPARE(powerReadings.size(), 15);
}

void tst_Instrument::fallsWithAFaultAndRefuses()
{
    emitLight();
    const QSignalSpy faults(m_instrument.get(), &Instrument::faultChanged);

    m_instrument->raiseFault(QStringLiteral("Door open"));
    QCOMPARE(faults.first().first().toString(), QStringLiteral("Door open"));
    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));
    m_instrument->laser().emitLight(true);
    m_instrument->requestPower(11.0);
    m_instrument->requestWavelength(666.0);
    m_instrument->requestBandwidth(5.0);
    m_instrument->requestPulses({ 5.0, 1, 1 });
    m_instrument->requestChannel(0, 666.0, 66);
    m_instrument->requestChannelEnabled(1, true);
    pass(20000);

    QCOMPARE(m_instrument->laser().state(), uchar(Laser::Listening));
    QCOMPARE(m_instrument->powerSetpoint(), 40.0);
    QCOMPARE(m_instrument->wavelength(), 520.0);
    QCOMPARE(m_instrument->bandwidth(), 10.0);
    QCOMPARE(m_instrument->pulses().intervalUs, 12.5);
    QVERIFY(m_instrument->channel(0).percent != 66);
    QVERIFY(!m_instrument->channel(1).enabled);
}

void tst_Instrument::goesOnWhenTheFaultHasGone()
{
    m_instrument->raiseFault(QStringLiteral("Door open"));
    m_instrument->clearFault();

    emitLight();

    QVERIFY(m_instrument->laser().emits());
    QCOMPARE(m_instrument->fault(), QString());
}

void tst_Instrument::tellsTheSameTwice()
{
    QStringList told[2];
    for (QStringList &each : told) {
        Instrument instrument(42, wavelengths, 520.0, powers);
        QSignalSpy powerReadings(&instrument, &Instrument::powerMeasured);
        QSignalSpy frames(&instrument, &Instrument::frameReady);
        instrument.laser().emitLight(true);
        instrument.clock().advance(15000);
        for (const QList<QVariant> &arguments : powerReadings)
            each << QString::number(arguments.first().toDouble(), 'g', 17);
        const auto frame = frames.last().first().value<QVector<QPointF>>();
        each << QString::number(frame.at(1000).y(), 'g', 17);
    }

    QCOMPARE(told[0], told[1]);
    QVERIFY(QSet<QString>(told[0].cbegin(), told[0].cend()).size() > 20); // there is noise in it
}

void tst_Instrument::runsByItself()
{
    const QSignalSpy spy(m_instrument.get(), &Instrument::frameReady);

    m_instrument->clock().run();

    QTRY_VERIFY(spy.size() >= 3);
}

PELORIN_TEST_MAIN(tst_Instrument)
#include "tst_instrument.moc"
