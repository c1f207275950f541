#include "Pelorin/spectral/WavelengthChart.h"

#include <QRandomGenerator>

#include <algorithm>

namespace {

bool isFinite(const QPointF &point)
{
    return qIsFinite(point.x()) && qIsFinite(point.y());
}

} // namespace

void WavelengthChart::setSpectrometerData(QVector<QPointF> serie)
{
    // What is not finite breaks the whole path that Qt draws.
    if (!std::all_of(serie.cbegin(), serie.cend(), isFinite)) {
        serie.erase(std::remove_if(serie.begin(), serie.end(),
                                   [](const QPointF &point) { return !isFinite(point); }),
                    serie.end());
    }
    if (m_spectrumSeries)
        m_spectrumSeries->replace(serie);
}

void WavelengthChart::setWavelengthBandwidthPower(double wavelength, double bandwidth, double power)
{
    if (!qIsFinite(wavelength) || !qIsFinite(bandwidth) || !qIsFinite(power))
        return;
    m_wavelength = qBound(m_minWavelength, wavelength, m_maxWavelength);
    m_bandwidth = bandwidth;
    m_filterPower = power;
    refreshFilterIllustration();
    forEachFluorophore([this, wavelength](tFluorophoreViewData &view) {
        const double scale = scaleOf(view, wavelength);
        if (m_dynamicEmission && m_emissionVisible)
            refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
}

/// A band with a flat top at the setpoint, and at both of its edges a spike up to the top of the
/// axis, so that a narrow band is seen too.
void WavelengthChart::refreshFilterIllustration()
{
    if (!m_filterSeries || !m_filterArea)
        return;
    const double lower = std::max(m_minWavelength, m_wavelength - m_bandwidth * 0.5);
    const double upper = std::min(m_maxWavelength, m_wavelength + m_bandwidth * 0.5);
    const double level = qBound(m_filterPowerMin, m_filterPower, m_filterPowerMax);
    m_filterSeries->replace(QVector<QPointF>{ { lower, m_filterPowerMin },
                                              { lower + 0.1, m_filterPowerMax },
                                              { lower + 0.2, level },
                                              { upper - 0.2, level },
                                              { upper - 0.1, m_filterPowerMax },
                                              { upper, m_filterPowerMin } });
}

void WavelengthChart::generateSpectrum()
{
    QRandomGenerator *const random = QRandomGenerator::global();
    QMap<int, int> noise;
    for (int i = 0; i < 2048; ++i) {
        const int x = 380 + random->bounded(370);
        noise.insert(x, 25 + random->bounded(25));
    }
    QList<QPointF> spectrum;
    for (auto point = noise.cbegin(); point != noise.cend(); ++point)
        spectrum.append(QPointF(point.key(), point.value()));
    m_spectrumSeries->append(spectrum);

    QList<QPointF> filter;
    for (int i = 380; i < 750; ++i)
        filter.append(QPointF(i, i >= 450 && i <= 454 ? 50.0 : 10.0));
    m_filterSeries->append(filter);
}

void WavelengthChart::appendRandomData()
{
    if (!m_spectrumSeries || m_spectrumSeries->count() < 2)
        return;
    QRandomGenerator *const random = QRandomGenerator::global();
    const int index = random->bounded(m_spectrumSeries->count() - 1);
    m_spectrumSeries->replace(index, m_spectrumSeries->at(index).x(), random->bounded(100));
}
