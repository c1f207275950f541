#include "Pelorin/spectral/WavelengthChart.h"

#include "Pelorin/spectral/LightColor_p.h"
#include "Pelorin/spectral/SeriesLayer_p.h"
#include "Pelorin/spectral/ZoomResetProxy.h"

#include <QCheckBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QImage>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

using QtCharts::QValueAxis;

namespace {

constexpr int stripHeight = 30;

bool areFinite(double min, double max)
{
    return qIsFinite(min) && qIsFinite(max);
}

} // namespace

double WavelengthChart::wavelengthToWavenumber(double wavelength)
{
    return 1.0 / wavelength * 1000000.0;
}

QColor WavelengthChart::generateRgbColor(double wavelength, double min, double max, double alpha)
{
    return LightColor::chartRamp(wavelength, min, max, alpha);
}

void WavelengthChart::setWavelengthRange(double min, double max)
{
    if (!areFinite(min, max))
        return;
    const bool changed = min != m_minWavelength || max != m_maxWavelength;
    m_minWavelength = min;
    m_maxWavelength = max;
    m_wavelength = qBound(min, m_wavelength, max);
    if (min < max) {
        m_wavelengthAxis->setRange(min, max);
        m_wavelengthAxis->applyNiceNumbers();
    }
    m_wavenumberMin = wavelengthToWavenumber(m_minWavelength);
    m_wavenumberMax = wavelengthToWavenumber(m_maxWavelength);
    if (changed) {
        forEachFluorophore([this](tFluorophoreViewData &view) { refreshFluorophoreData(view); });
        refreshFilterIllustration();
    }
    update();
    Q_EMIT sigWavelengthRangeChanged(m_minWavelength, m_maxWavelength);
}

void WavelengthChart::setSpectrumPowerRange(double min, double max, Converter::pwrType powerType)
{
    if (!areFinite(min, max))
        return;
    m_spectrumPowerMin = min;
    m_spectrumPowerMax = min == 0.0 && max == 0.0 ? 0.001 : max;
    m_spectrumPowerType = powerType;
    showAxis(*m_powerAxis, min, max, tr("Power output in [%1/nm]"), powerType);
    Q_EMIT sigSpectrumPowerRangeChanged(m_spectrumPowerMin, m_spectrumPowerMax);
}

void WavelengthChart::setFilterPowerRange(double min, double max, Converter::pwrType powerType)
{
    if (!areFinite(min, max))
        return;
    m_filterPowerMin = min;
    m_filterPowerMax = max;
    m_filterPowerType = powerType;
    showAxis(*m_filterAxis, min, max, tr("Power setpoint in %1"), powerType);
    refreshFilterIllustration();
    update();
    Q_EMIT sigFilterPowerRangeChanged(m_filterPowerMin, m_filterPowerMax);
}

void WavelengthChart::showAxis(QValueAxis &axis, double min, double max, const QString &title,
                               Converter::pwrType powerType)
{
    axis.setTitleText(title.arg(Converter::getPowerTypeStr(powerType, QString())));
    axis.setLabelFormat(QStringLiteral("%.%1f").arg(Converter::getPowerTypePrecision(powerType)));
    axis.setRange(min, max);
}

void WavelengthChart::setSpectrumPowerRangeVisible(bool visible)
{
    m_powerAxis->setVisible(visible);
}

void WavelengthChart::setFilterPowerRangeVisible(bool visible)
{
    m_filterAxis->setVisible(visible);
}

void WavelengthChart::setTotalPower(double totalPower, Converter::pwrType powerType)
{
    m_totalPowerType = powerType;
    const int decimals = Converter::getPowerTypePrecision(powerType);
    m_totalPowerValue->setText(QString::number(totalPower, 'f', decimals)
                               + Converter::getPowerTypeStr(powerType, QStringLiteral(" ")));
}

void WavelengthChart::setTotalPowerVisible(bool visible)
{
    m_totalPowerContainer->setVisible(visible);
}

void WavelengthChart::setSpectrometerVisibility(bool visible)
{
    {
        const QSignalBlocker blocker(m_spectrometerCheckBox);
        m_spectrometerCheckBox->setChecked(visible);
    }
    showSpectrometer(visible); // a listener may delete the chart, and the box with it
}

void WavelengthChart::priShowSpectrometerClicked(bool checked)
{
    showSpectrometer(checked);
}

void WavelengthChart::showSpectrometer(bool visible)
{
    m_spectrometerVisible = visible;
    if (m_spectrumSeries)
        m_spectrumSeries->setVisible(visible);
    Q_EMIT sigSpectrometerVisibilityChanged(visible);
}

/// The rainbow right above the plot, a column of light for each pixel of the axis.
void WavelengthChart::generateBackBrush()
{
    const QRectF whole = m_chart->boundingRect();
    if (!(whole.width() > 0.0) || !(whole.height() > 0.0))
        return;
    const QRectF plot = m_chart->plotArea();
    const int width = std::max(0, int(plot.width() + 2.0));
    QImage strip(width, stripHeight, QImage::Format_RGB32);
    strip.fill(m_powerAxis->minorGridLineColor());
    const double min = std::trunc(m_wavelengthAxis->min());
    const double max = std::trunc(m_wavelengthAxis->max());
    const double step = (max - min) / width;
    double wavelength = min;
    for (int x = 0; x < width; ++x, wavelength += step) {
        if (x < 2 || x >= width - 2)
            continue;
        const QRgb color = generateRgbColor(wavelength, min, max, 1.0).rgb();
        for (int y = 1; y < stripHeight; ++y)
            reinterpret_cast<QRgb *>(strip.scanLine(y))[x] = color;
    }
    m_backItem->setPixmap(QPixmap::fromImage(strip));
    m_backItem->setPos(whole.left() + plot.left() - 1.0, plot.top() - stripHeight);
}

void WavelengthChart::refreshZoom()
{
    const QSizeF size = m_zoomResetProxy->size();
    m_zoomResetProxy->setPos(m_chart->plotArea().left() * 0.5 - size.width(),
                             m_backItem->y() * 0.5 - size.height() * 0.5);
    m_zoomResetProxy->setVisible(m_chart->isZoomed());
}

void WavelengthChart::refreshDisplayControls()
{
    const QRectF plot = m_chart->plotArea();
    m_controlsProxy->setPos(plot.left(),
                            m_backItem->y() * 0.5 - m_controlsProxy->size().height() * 0.5);
    // At no width Qt would take the row off the screen for good.
    m_controlsProxy->widget()->setFixedWidth(std::max(1, int(plot.width())));
}

void WavelengthChart::priPlotAreaChanged(QRectF plotArea)
{
    if (m_layer)
        m_layer->setPlotArea(plotArea);
    refreshLayout();
}

void WavelengthChart::priScaleChanged()
{
    refreshLayout();
}

void WavelengthChart::refreshLayout()
{
    if (!m_layer) // not built whole yet
        return;
    viewport()->update(); // with the labels, of which Qt Charts leaves crumbs
    generateBackBrush();
    refreshZoom();
    refreshDisplayControls();
    if (m_emissionVisible) {
        forEachFluorophore(
            [this](tFluorophoreViewData &view) { refreshFluorophoreNameTag(view, scaleOf(view)); });
    }
}
