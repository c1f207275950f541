#ifndef PELORIN_GALLERY_SPECTROMETER_H
#define PELORIN_GALLERY_SPECTROMETER_H

#include <QObject>
#include <QPointF>
#include <QRandomGenerator>
#include <QTimer>
#include <QVector>

namespace Simulation {

/// A spectrometer in front of a tunable laser: the line of the laser with a side peak on either
/// hand, over noise. It delivers 2,048 points in mW/nm, twenty times a second.
class Spectrometer : public QObject
{
    Q_OBJECT

public:
    /// From \a firstNm to \a lastNm. The same \a seed gives the same noise.
    explicit Spectrometer(quint32 seed, double firstNm = 350.0, double lastNm = 800.0,
                          QObject *parent = nullptr);

    void start() { m_timer.start(); }
    void stop() { m_timer.stop(); }

    /// The next frame, without waiting for it.
    QVector<QPointF> nextFrame();

    /// The density at the top of the line, in mW/nm.
    double peak() const { return peakOf(m_power, m_bandwidth); }
    /// The same for a line of \a mW that is \a bandwidth nm wide at half its height.
    static double peakOf(double mW, double bandwidth);

public Q_SLOTS:
    void setWavelength(double nm) { m_wavelength = nm; }
    /// The width of the line at half its height; the spectrometer resolves 0.5 nm.
    void setBandwidth(double nm);
    void setPower(double mW) { m_power = mW; }

Q_SIGNALS:
    void frameReady(QVector<QPointF> frame);

private:
    double density(double nm) const;

    QRandomGenerator m_random;
    QTimer m_timer;
    const double m_firstNm;
    const double m_lastNm;
    double m_wavelength = 488.0;
    double m_bandwidth = 10.0;
    double m_power = 40.0;
};

} // namespace Simulation

#endif
