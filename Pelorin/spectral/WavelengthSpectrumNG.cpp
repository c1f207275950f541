#include "Pelorin/spectral/WavelengthSpectrumNG.h"

#include "Pelorin/spectral/LightColor_p.h"
#include "Pelorin/spectral/WavelengthSpectrumScale_p.h"

namespace {

/// Qt would turn an empty rectangle inside out, and fill what lies between its edges.
void fillVisible(QPainter &painter, const QRect &area, const char *colorName)
{
    if (!area.isEmpty())
        painter.fillRect(area, QColor(QLatin1String(colorName)));
}

} // namespace

WavelengthSpectrumNG::WavelengthSpectrumNG(int margin, QWidget *parent)
    : QWidget(parent)
    , m_layout(std::make_unique<WavelengthSpectrumLayout>(margin))
{
    setMinimumSize(450, 250);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
}

WavelengthSpectrumNG::~WavelengthSpectrumNG() = default;

void WavelengthSpectrumNG::setPowerRange(double min, double max)
{
    m_minPower = min;
    m_maxPower = max;
    update();
}

double WavelengthSpectrumNG::minPower() const
{
    return m_minPower;
}

double WavelengthSpectrumNG::maxPower() const
{
    return m_maxPower;
}

void WavelengthSpectrumNG::setWavelengthRange(double min, double max)
{
    m_minWavelength = min;
    m_maxWavelength = max;
    update();
}

double WavelengthSpectrumNG::minWavelength() const
{
    return m_minWavelength;
}

double WavelengthSpectrumNG::maxWavelength() const
{
    return m_maxWavelength;
}

QSize WavelengthSpectrumNG::sizeHint() const
{
    return minimumSize();
}

QRect WavelengthSpectrumNG::spectrumRect()
{
    return m_layout->spectrumRect;
}

QRgb WavelengthSpectrumNG::generateRgbColor(double wavelength) const
{
    return LightColor::gammaRamp(wavelength);
}

void WavelengthSpectrumNG::drawWavelengths(QPainter *painter) const
{
    const QRect rect = m_layout->spectrumRect;
    if (!painter || rect.isEmpty())
        return;
    const int margin = m_layout->margin;
    const double span = m_maxWavelength - m_minWavelength;
    const double step = unitsOfPixels(span, rect.right() - rect.left() - 1, 1);
    WavelengthSpectrumLayout::drawColumns(
        *painter, rect.adjusted(-margin - 1, -margin - 1, margin, margin - 2),
        m_minWavelength - step * margin, step,
        [this](double wavelength) { return generateRgbColor(wavelength); });
}

void WavelengthSpectrumNG::drawWavelengthLabels(QPainter *painter) const
{
    const double min = m_minWavelength;
    const double max = m_maxWavelength;
    const WavelengthSpectrumScale scale{ min, max, std::trunc(min), std::trunc(max),
                                         wavelengthDistance() };
    if (painter)
        m_layout->drawWavelengthScale(*painter, scale);
}

void WavelengthSpectrumNG::drawPowerLabels(QPainter *painter) const
{
    const double min = m_minPower;
    const double max = m_maxPower;
    const int height = m_layout->fontHeight;
    if (painter)
        m_layout->drawPowerScale(*painter, { min, max, min, max, powerDistance(height) },
                                 qRound(height * 0.5));
}

int WavelengthSpectrumNG::calculateHorizontalGridLineDistance() const
{
    return saturatedRound(wavelengthDistance());
}

int WavelengthSpectrumNG::calculateVerticalGridLineDistance(int pixels) const
{
    return saturatedRound(powerDistance(pixels));
}

void WavelengthSpectrumNG::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(QFont(QStringLiteral("Calibri"), 10));
    m_layout->update(rect(), QFontMetrics(painter.font(), this),
                     QString::number(m_maxPower, 'f', 0));
    fillVisible(painter, m_layout->widgetRect, "blue");
    fillVisible(painter, m_layout->chartRect, "green");
    fillVisible(painter, m_layout->spectrumRect, "red");
    drawPowerLabels(&painter);
    drawWavelengthLabels(&painter);
}

double WavelengthSpectrumNG::wavelengthDistance() const
{
    const double span = std::trunc(m_maxWavelength - m_minWavelength);
    return wavelengthLabelDistance(
        std::trunc(unitsOfPixels(span, m_layout->spectrumRect.width(), 40)));
}

double WavelengthSpectrumNG::powerDistance(int pixels) const
{
    const double span = std::trunc(m_maxPower - m_minPower);
    return powerLabelDistance(
        std::floor(unitsOfPixels(span, m_layout->spectrumRect.height(), pixels) + 0.5));
}
