#include "gallery/simulation/Spectrometer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int points = 2048;
constexpr int intervalMs = 50;
constexpr double resolutionNm = 0.5;
constexpr double widthToSigma = 2.3548;
constexpr double noise = 0.02;    // mW/nm
constexpr double sidePeak = 0.06; // of the line
constexpr double sidePeakNm = 14.0;

double bell(double distance, double sigma)
{
    return std::exp(-std::pow(distance / sigma, 2.0) / 2.0);
}

} // namespace

Simulation::Spectrometer::Spectrometer(quint32 seed, double firstNm, double lastNm, QObject *parent)
    : QObject(parent)
    , m_random(seed)
    , m_firstNm(firstNm)
    , m_lastNm(lastNm)
{
    m_timer.setInterval(intervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { Q_EMIT frameReady(nextFrame()); });
}

void Simulation::Spectrometer::setBandwidth(double nm)
{
    m_bandwidth = std::max(nm, resolutionNm);
}

double Simulation::Spectrometer::peakOf(double mW, double bandwidth)
{
    const double area = bandwidth / widthToSigma * std::sqrt(2.0 * std::acos(-1.0));
    return mW / area;
}

double Simulation::Spectrometer::density(double nm) const
{
    const double sigma = m_bandwidth / widthToSigma;
    const double distance = nm - m_wavelength;
    const double side = sidePeakNm + m_bandwidth;
    return peak()
           * (bell(distance, sigma) + sidePeak * bell(distance - side, sigma * 1.5)
              + sidePeak * bell(distance + side, sigma * 1.5));
}

QVector<QPointF> Simulation::Spectrometer::nextFrame()
{
    QVector<QPointF> frame;
    frame.reserve(points);
    for (int i = 0; i < points; ++i) {
        const double nm = m_firstNm + (m_lastNm - m_firstNm) * i / (points - 1);
        const double flicker = noise * (m_random.generateDouble() + m_random.generateDouble());
        frame << QPointF(nm, density(nm) + flicker);
    }
    return frame;
}
