#include "Pelorin/spectral/WavelengthSpectrum.h"

#include "Pelorin/spectral/LightColor_p.h"
#include "Pelorin/spectral/WavelengthSpectrumScale_p.h"
#include "Pelorin/theme/CachedLayer_p.h"

WavelengthSpectrum::WavelengthSpectrum(int margin, QWidget *parent)
    : QLabel(parent)
    , m_layout(std::make_unique<WavelengthSpectrumLayout>(margin))
    , m_stillLayer(std::make_unique<CachedLayer>())
{
    setMinimumSize(250, 250);
}

WavelengthSpectrum::~WavelengthSpectrum() = default;

void WavelengthSpectrum::setPowerRange(int min, int max)
{
    m_minPower = min;
    m_maxPower = max;
    updateSpectrum();
}

int WavelengthSpectrum::minPower() const
{
    return m_minPower;
}

int WavelengthSpectrum::maxPower() const
{
    return m_maxPower;
}

void WavelengthSpectrum::setWavelengthRange(int min, int max)
{
    m_minWavelength = min;
    m_maxWavelength = max;
    updateSpectrum();
}

int WavelengthSpectrum::minWavelength() const
{
    return m_minWavelength;
}

int WavelengthSpectrum::maxWavelength() const
{
    return m_maxWavelength;
}

QRect WavelengthSpectrum::spectrumRect() const
{
    return m_layout->spectrumRect;
}

QRgb WavelengthSpectrum::generateRgbColor(int wavelength) const
{
    return LightColor::hueRamp(wavelength);
}

void WavelengthSpectrum::drawWavelengths(QPainter *painter) const
{
    const QRect rect = m_layout->spectrumRect;
    if (!painter || rect.isEmpty())
        return;
    const int margin = m_layout->margin;
    const double span = double(m_maxWavelength) - m_minWavelength;
    const double step = unitsOfPixels(span, rect.right() - rect.left(), 1);
    WavelengthSpectrumLayout::drawColumns(
        *painter, rect.adjusted(-margin, -margin, margin, margin), m_minWavelength - step * margin,
        step, [this](double wavelength) {
            return generateRgbColor(saturatedRound(std::trunc(wavelength)));
        });
}

void WavelengthSpectrum::drawWavelengthLabels(QPainter *painter) const
{
    const double min = m_minWavelength;
    const double max = m_maxWavelength;
    if (painter)
        m_layout->drawWavelengthScale(*painter, { min, max, min, max, wavelengthDistance() });
}

void WavelengthSpectrum::drawPowerLabels(QPainter *painter) const
{
    const double min = m_minPower;
    const double max = m_maxPower;
    const int height = m_layout->fontHeight;
    if (painter)
        m_layout->drawPowerScale(*painter, { min, max, min, max, powerDistance(height) },
                                 height / 2);
}

int WavelengthSpectrum::calculateHorizontalGridLineDistance() const
{
    return saturatedRound(wavelengthDistance());
}

int WavelengthSpectrum::calculateVerticalGridLineDistance(int pixels) const
{
    return saturatedRound(powerDistance(pixels));
}

void WavelengthSpectrum::paintEvent(QPaintEvent *)
{
    const QFont font(QStringLiteral("Calibri"), 10);
    const WavelengthSpectrumLayout before = *m_layout;
    const QString widestPower(QString::number(m_maxPower).length(), QLatin1Char('0'));
    m_layout->update(rect().adjusted(1, 1, -1, -1), QFontMetrics(font, this), widestPower);
    if (!(*m_layout == before))
        m_stillLayer->invalidate();

    QPainter painter(this);
    m_stillLayer->draw(painter, QPoint(0, 0), size(), [this, font](QPainter &layer) {
        layer.setFont(font);
        drawWavelengths(&layer);
        drawPowerLabels(&layer);
        drawWavelengthLabels(&layer);
    });
}

void WavelengthSpectrum::updateSpectrum()
{
    m_stillLayer->invalidate();
    update();
}

double WavelengthSpectrum::wavelengthDistance() const
{
    const double span = double(m_maxWavelength) - m_minWavelength;
    return wavelengthLabelDistance(
        std::trunc(unitsOfPixels(span, m_layout->spectrumRect.width(), 40)));
}

double WavelengthSpectrum::powerDistance(int pixels) const
{
    const double span = double(m_maxPower) - m_minPower;
    return powerLabelDistance(
        std::trunc(unitsOfPixels(span, m_layout->spectrumRect.height(), pixels)));
}
