#include "gallery/simulation/Instrument.h"

#include <algorithm>
#include <cmath>

namespace {

// In steps of the clock.
constexpr int answerSteps = 2;
constexpr int reportSteps = 20;
constexpr int measureSteps = 4;
constexpr int blockSteps = 5;

constexpr double powerMs = 400.0;    // time constant of the power
constexpr double warmUpMs = 20000.0; // time constant of the figure of merit
constexpr double tuningNmPerMs = 0.06;
constexpr double spectrumMarginNm = 50.0;
constexpr double relativeNoise = 0.004;
const Simulation::Span bandwidths{ 1.0, 50.0 };

constexpr int blockSize = 320;
constexpr int pulsesInBlock = 4;
constexpr double fullScale = 24000.0;
constexpr double blockNoise = 300.0;

} // namespace

Simulation::Instrument::Instrument(quint32 seed, Span wavelengths, double nm, Span powers,
                                   QObject *parent)
    : QObject(parent)
    , m_laser(m_clock)
    , m_random(seed)
    , m_spectrometer(seed, wavelengths.min - spectrumMarginNm, wavelengths.max + spectrumMarginNm)
    , m_wavelengths(wavelengths)
    , m_powers(powers)
    , m_limits(powers)
    , m_setpoint(powers.min + 0.4 * (powers.max - powers.min))
    , m_nm(wavelengths.clamped(nm))
    , m_nmSetpoint(m_nm)
{
    const double spacing = (wavelengths.max - wavelengths.min) / (channelCount + 1);
    for (std::size_t i = 0; i < m_channels.size(); ++i)
        m_channels[i] = { wavelengths.min + spacing * double(i + 1), 20 + 23 * int(i) % 70,
                          i % 3 != 1 };
    connect(&m_clock, &Clock::ticked, this, &Instrument::tick);
}

/// Every answer comes in the order of the requests.
void Simulation::Instrument::answer(const std::function<void()> &request)
{
    m_requests.enqueue({ m_step + answerSteps, request });
}

void Simulation::Instrument::setPower(double mW)
{
    if (m_fault.isEmpty() && std::isfinite(mW))
        m_setpoint = m_limits.clamped(mW);
    Q_EMIT powerSetpointChanged(m_setpoint);
}

void Simulation::Instrument::requestPower(double mW)
{
    answer([this, mW] { setPower(mW); });
}

void Simulation::Instrument::requestPowerLimits(double min, double max)
{
    answer([this, min, max] {
        if (min < max)
            m_limits = { m_powers.clamped(min), m_powers.clamped(max) };
        Q_EMIT powerLimitsChanged(m_limits.min, m_limits.max);
        setPower(m_limits.clamped(m_setpoint));
    });
}

void Simulation::Instrument::requestWavelength(double nm)
{
    answer([this, nm] {
        if (m_fault.isEmpty() && std::isfinite(nm))
            m_nmSetpoint = m_wavelengths.clamped(nm);
        Q_EMIT wavelengthSetpointChanged(m_nmSetpoint);
    });
}

void Simulation::Instrument::requestBandwidth(double nm)
{
    answer([this, nm] {
        if (m_fault.isEmpty() && std::isfinite(nm))
            m_bandwidth = bandwidths.clamped(nm);
        Q_EMIT bandwidthChanged(m_bandwidth);
    });
}

void Simulation::Instrument::requestPulses(const PulseSettings &pulses)
{
    answer([this, pulses] {
        if (m_fault.isEmpty() && std::isfinite(pulses.intervalUs))
            m_pulses = { qBound(1.0, pulses.intervalUs, 100.0), qBound(1, pulses.subPulses, 20),
                         qBound(1, pulses.perTrigger, 50) };
        Q_EMIT pulsesChanged(m_pulses);
    });
}

void Simulation::Instrument::requestChannel(int channel, double nm, int percent)
{
    if (channel < 0 || channel >= channelCount)
        return;
    answer([this, channel, nm, percent] {
        ChannelSettings &settings = m_channels[std::size_t(channel)];
        if (m_fault.isEmpty() && std::isfinite(nm)) {
            settings.nm = m_wavelengths.clamped(nm);
            settings.percent = qBound(0, percent, 100);
        }
        Q_EMIT channelChanged(channel, settings.nm, settings.percent);
    });
}

void Simulation::Instrument::requestChannelEnabled(int channel, bool enabled)
{
    if (channel < 0 || channel >= channelCount)
        return;
    answer([this, channel, enabled] {
        ChannelSettings &settings = m_channels[std::size_t(channel)];
        if (m_fault.isEmpty())
            settings.enabled = enabled;
        Q_EMIT channelEnabledChanged(channel, settings.enabled);
    });
}

void Simulation::Instrument::raiseFault(const QString &fault)
{
    m_fault = fault;
    m_laser.setCeiling(fault.isEmpty() ? Laser::Tuning : Laser::Listening);
    Q_EMIT faultChanged(m_fault);
}

void Simulation::Instrument::report()
{
    Q_EMIT powerLimitsChanged(m_limits.min, m_limits.max);
    Q_EMIT powerSetpointChanged(m_setpoint);
    Q_EMIT bandwidthChanged(m_bandwidth);
    Q_EMIT wavelengthSetpointChanged(m_nmSetpoint);
    Q_EMIT wavelengthChanged(m_nm);
    Q_EMIT pulsesChanged(m_pulses);
    for (int i = 0; i < channelCount; ++i) {
        const ChannelSettings settings = channel(i);
        Q_EMIT channelChanged(i, settings.nm, settings.percent);
        Q_EMIT channelEnabledChanged(i, settings.enabled);
    }
}

void Simulation::Instrument::tick()
{
    ++m_step;
    while (!m_requests.isEmpty() && m_requests.head().first <= m_step)
        m_requests.dequeue().second();
    if (m_step % reportSteps == 0)
        report();
    if (m_laser.state() == Laser::Off && !m_laser.climbs())
        m_laser.listen(true); // its controller starts anew
    tune();
    measure();
}

void Simulation::Instrument::tune()
{
    if (m_nm == m_nmSetpoint)
        return;
    const double step = tuningNmPerMs * Clock::stepMs;
    m_nm += qBound(-step, m_nmSetpoint - m_nm, step);
    Q_EMIT wavelengthChanged(m_nm);
}

void Simulation::Instrument::measure()
{
    const bool emits = m_laser.emits();
    m_emittingSteps = emits ? m_emittingSteps + 1 : 0;
    const double goal = emits ? m_setpoint : 0.0;
    m_power += (goal - m_power) * (1.0 - std::exp(-Clock::stepMs / powerMs));

    m_spectrometer.setWavelength(m_nm);
    m_spectrometer.setBandwidth(m_bandwidth);
    m_spectrometer.setPower(m_power);
    Q_EMIT frameReady(m_spectrometer.nextFrame());
    if (m_step % measureSteps == 0) {
        const double reading = m_power * (1.0 + relativeNoise * noise());
        Q_EMIT powerMeasured(std::max(reading, 0.0), m_limits.max);
        Q_EMIT qualityMeasured(quality());
    }
    if (m_step % blockSteps == 0)
        Q_EMIT blockReady(block());
}

/// The laser is at its best once it is warm and stands where it is to stand.
double Simulation::Instrument::quality()
{
    if (!m_laser.emits())
        return 0.0;
    const double warmUp = 30.0 * std::exp(-m_emittingSteps * Clock::stepMs / warmUpMs);
    const double detuned = std::min(std::abs(m_nm - m_nmSetpoint), 30.0);
    return qBound(0.0, 94.0 - warmUp - detuned + 0.5 * noise(), 100.0);
}

/// From -1 to 1, more often small than large.
double Simulation::Instrument::noise()
{
    return m_random.generateDouble() - m_random.generateDouble();
}

/// Every pulse is a group of narrow ones under a bell.
QVector<short> Simulation::Instrument::block()
{
    constexpr double pulseSamples = double(blockSize) / pulsesInBlock;
    const double amplitude = fullScale * m_power / m_powers.max;
    QVector<short> samples(blockSize);
    for (int i = 0; i < blockSize; ++i) {
        const double place = std::fmod(i, pulseSamples) / pulseSamples; // 0 to 1 within the pulse
        const double bell = std::exp(-std::pow((place - 0.5) / 0.15, 2.0));
        const double comb = std::pow(std::sin(place * m_pulses.subPulses * std::acos(-1.0)), 2.0);
        samples[i] = short(amplitude * bell * comb + blockNoise * noise());
    }
    return samples;
}
