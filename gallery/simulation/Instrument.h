#ifndef PELORIN_GALLERY_INSTRUMENT_H
#define PELORIN_GALLERY_INSTRUMENT_H

#include "gallery/simulation/Clock.h"
#include "gallery/simulation/Laser.h"
#include "gallery/simulation/Spectrometer.h"

#include <QObject>
#include <QPair>
#include <QPointF>
#include <QQueue>
#include <QRandomGenerator>
#include <QVector>

#include <array>
#include <functional>

namespace Simulation {

/// From and to.
struct Span
{
    double min = 0.0;
    double max = 0.0;

    double clamped(double value) const { return qBound(min, value, max); }
};

struct PulseSettings
{
    double intervalUs = 12.5; ///< 1 to 100
    int subPulses = 5;        ///< 1 to 20
    int perTrigger = 14;      ///< 1 to 50
};

struct ChannelSettings
{
    double nm = 0.0;
    int percent = 0;
    bool enabled = false;
};

/// A laser instrument at the end of a line: a laser with its state byte, a power that follows its set
/// point as the laser warms up to it, a wavelength that is tuned in its own time, eight channels, a
/// spectrometer, a photodiode and a figure of merit.
///
/// A request is answered 100 ms later by the report of what holds now, which is not always what was
/// asked for: numbers are kept within their limits, what is not a number is refused, and so is any
/// change of the set points while a fault stands. Once a second all of it is reported anew, as an
/// instrument does that is asked for its state.
///
/// The same seed, requests and time give the same reports.
class Instrument : public QObject
{
    Q_OBJECT

public:
    static constexpr int channelCount = 8;

    /// Switched on, and about to listen, at \a nm. Wavelengths in nm, powers in mW.
    Instrument(quint32 seed, Span wavelengths, double nm, Span powers, QObject *parent = nullptr);

    /// Time passes in it: by itself after run(), or driven.
    Clock &clock() { return m_clock; }

    /// Its state byte, and the requests that change it.
    Laser &laser() { return m_laser; }

    Span wavelengths() const { return m_wavelengths; } ///< nm
    Span powers() const { return m_powers; }           ///< mW
    Span powerLimits() const { return m_limits; }      ///< mW; within powers()
    double powerSetpoint() const { return m_setpoint; }
    double power() const { return m_power; } ///< mW, without noise
    double wavelength() const { return m_nm; }
    double bandwidth() const { return m_bandwidth; }
    PulseSettings pulses() const { return m_pulses; }
    ChannelSettings channel(int channel) const { return m_channels.at(std::size_t(channel)); }
    QString fault() const { return m_fault; } ///< empty while all is well

    /// The density at the top of the line in mW/nm, if the power were at its set point.
    double expectedPeak() const { return Spectrometer::peakOf(m_setpoint, m_bandwidth); }

public Q_SLOTS:
    void requestPower(double mW);
    void requestPowerLimits(double min, double max);
    void requestWavelength(double nm);
    void requestBandwidth(double nm);
    void requestPulses(const Simulation::PulseSettings &pulses);
    /// Ignored for a channel that there is not.
    void requestChannel(int channel, double nm, int percent);
    void requestChannelEnabled(int channel, bool enabled);

    /// Something is wrong: the laser falls to listening and goes no further until clearFault().
    void raiseFault(const QString &fault);
    void clearFault() { raiseFault(QString()); }

    /// Reports all set points at once.
    void report();

Q_SIGNALS:
    void powerLimitsChanged(double min, double max);
    void powerSetpointChanged(double mW);
    void bandwidthChanged(double nm);
    /// Where the laser is to be tuned to.
    void wavelengthSetpointChanged(double nm);
    /// Where it is; at every step on the way.
    void wavelengthChanged(double nm);
    void pulsesChanged(const Simulation::PulseSettings &pulses);
    void channelChanged(int channel, double nm, int percent);
    void channelEnabledChanged(int channel, bool enabled);
    /// Empty when the fault has gone.
    void faultChanged(const QString &fault);

    /// Five times a second.
    void powerMeasured(double mW, double maximum);
    /// Five times a second, in percent.
    void qualityMeasured(double percent);
    /// Twenty times a second, in nm and mW/nm.
    void frameReady(const QVector<QPointF> &frame);
    /// Four times a second: the light over four intervals of pulses.
    void blockReady(const QVector<short> &block);

private:
    void answer(const std::function<void()> &request);
    void setPower(double mW);
    void tick();
    void tune();
    void measure();
    double quality();
    double noise();
    QVector<short> block();

    Clock m_clock;
    Laser m_laser;
    QRandomGenerator m_random;
    Spectrometer m_spectrometer;
    const Span m_wavelengths;
    const Span m_powers;
    Span m_limits;
    double m_setpoint;
    double m_power = 0.0;
    double m_nm;
    double m_nmSetpoint;
    double m_bandwidth = 10.0;
    PulseSettings m_pulses;
    std::array<ChannelSettings, channelCount> m_channels;
    QString m_fault;
    QQueue<QPair<qint64, std::function<void()>>> m_requests; ///< with the step of the answer
    qint64 m_step = 0;
    int m_emittingSteps = 0;
};

} // namespace Simulation

Q_DECLARE_METATYPE(Simulation::PulseSettings)

#endif
