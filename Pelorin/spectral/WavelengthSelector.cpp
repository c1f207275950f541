#include "Pelorin/spectral/WavelengthSelector.h"

#include "Pelorin/spectral/WavelengthSpectrumScale_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPolygon>

namespace {

constexpr int boxSize = 20;
constexpr int boxMiddle = 10;
constexpr double cornerRadius = 5.0;

/// How far the curve reaches out beyond the range, in nm, at each end.
constexpr int curveOverhang = 25;

constexpr QColor darkGrey(0x55, 0x55, 0x55);
constexpr QColor lightGrey(0xCC, 0xCC, 0xCC);

QFont labelFont()
{
    return QFont(QStringLiteral("Calibri"), 10);
}

} // namespace

WavelengthSelector::WavelengthSelector(int margin, QWidget *parent)
    : WavelengthSpectrum(margin, parent)
{}

void WavelengthSelector::setPowerRange(int min, int max)
{
    m_power = { min, max };
    WavelengthSpectrum::setPowerRange(min, max);
}

void WavelengthSelector::setWavelengthRange(int min, int max)
{
    m_wavelength = { min, max };
    WavelengthSpectrum::setWavelengthRange(min, max);
}

bool WavelengthSelector::isAboveChannel(int channel, QPoint point) const
{
    return channel >= 0 && channel < channelCount
           && m_channels[size_t(channel)].rect.contains(point, true);
}

void WavelengthSelector::setChannel(int channel, double wavelength, int power)
{
    setChannelWavelength(channel, wavelength);
    setChannelPower(channel, power);
}

void WavelengthSelector::setChannelPower(int channel, int power)
{
    Channel *target = find(channel);
    if (!target)
        return;
    target->power = m_power.limited(power);
    update();
}

void WavelengthSelector::setChannelWavelength(int channel, double wavelength)
{
    Channel *target = find(channel);
    if (!target || qIsNaN(wavelength))
        return;
    target->wavelength = m_wavelength.limited(wavelength);
    update();
}

void WavelengthSelector::enableChannel(int channel, bool enable)
{
    Channel *target = find(channel);
    if (!target)
        return;
    target->wavelength = m_wavelength.limited(target->wavelength);
    target->power = m_power.limited(target->power);
    target->enabled = enable;
    update();
}

void WavelengthSelector::setCurveData(int startWavelength, QList<int> dataList)
{
    m_curveStart = startWavelength;
    m_curve += dataList;
}

void WavelengthSelector::setCurveVisibility(bool visible)
{
    m_curveVisible = visible;
    update();
}

void WavelengthSelector::setOverdriveVisibility(bool visible)
{
    m_overdriveVisible = visible;
    update();
}

void WavelengthSelector::paintEvent(QPaintEvent *event)
{
    WavelengthSpectrum::paintEvent(event);
    if (m_overdriveVisible)
        drawOverdrive();
    drawChannels();
}

void WavelengthSelector::resizeEvent(QResizeEvent *event)
{
    WavelengthSpectrum::resizeEvent(event);
}

/// Of markers that overlap, the one that is drawn on top is taken: the last.
void WavelengthSelector::mousePressEvent(QMouseEvent *event)
{
    m_selected = -1;
    for (int i = 0; i < channelCount; ++i) {
        const Channel &channel = m_channels[size_t(i)];
        if (!channel.enabled || !isAboveChannel(i, event->pos()))
            continue;
        m_selected = i;
        m_grab = event->pos() - (channel.rect.topLeft() + QPoint(boxMiddle, boxMiddle));
    }
}

void WavelengthSelector::mouseMoveEvent(QMouseEvent *event)
{
    if (m_selected < 0 || !rect().contains(event->pos()))
        return;
    const QRect spectrum = spectrumRect();
    const QPoint middle = event->pos() - m_grab;
    Channel &channel = m_channels[size_t(m_selected)];
    channel.wavelength = m_wavelength.valueAt(middle.x() - spectrum.left(), spectrum.width());
    channel.power = m_power.valueAt(spectrum.bottom() - middle.y(), spectrum.height());
    const QPointer<WavelengthSelector> self(this);
    Q_EMIT channelChanged(m_selected, channel.wavelength, saturatedRound(channel.power));
    if (self)
        update();
}

void WavelengthSelector::mouseReleaseEvent(QMouseEvent *)
{
    if (m_selected < 0)
        return;
    const Channel &channel = m_channels[size_t(m_selected)];
    const QPointer<WavelengthSelector> self(this);
    Q_EMIT channelSaved(m_selected, channel.wavelength, saturatedRound(channel.power));
    if (self)
        m_selected = -1;
}

void WavelengthSelector::drawChannels()
{
    QPainter painter(this);
    painter.setFont(labelFont());
    painter.setBrush(Qt::white);
    for (int i = 0; i < channelCount; ++i) {
        if (m_channels[size_t(i)].enabled)
            drawMarker(painter, i + 1, m_channels[size_t(i)]);
    }
}

/// A box with the number at the place of the values, on a stem from the floor of the bar.
void WavelengthSelector::drawMarker(QPainter &painter, int number, Channel &channel) const
{
    const QRect spectrum = spectrumRect();
    const int rise = m_power.pixelsTo(channel.power, spectrum.height());
    const int x = spectrum.left() + m_wavelength.pixelsTo(channel.wavelength, spectrum.width());
    channel.rect = QRect(x - boxMiddle, spectrum.bottom() - (rise + boxMiddle), boxSize, boxSize);
    painter.setPen(QPen(Qt::white, 3));
    painter.drawRoundedRect(channel.rect.left() + 1, channel.rect.top() + 1, boxSize - 2,
                            boxSize - 2, cornerRadius, cornerRadius);
    painter.drawLine(x, spectrum.bottom(), x, spectrum.bottom() - rise + boxMiddle);
    painter.setPen(darkGrey);
    painter.drawText(channel.rect, Qt::AlignCenter, QString::number(number));
}

void WavelengthSelector::drawOverdrive()
{
    constexpr int sideGap = 10;
    const QString warning = tr("RF Power, Overdrive setting.");
    const QString advice = tr("(Full power from RF driver. Please consult manual before use)");
    QPainter painter(this);
    painter.setFont(labelFont());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::white);
    painter.setPen(darkGrey);

    const QRect spectrum = spectrumRect();
    const QRect line = painter.fontMetrics().boundingRect(advice);
    const int middle = (spectrum.left() + spectrum.right()) / 2;
    const QRect box(middle - (line.width() / 2 + sideGap), spectrum.top() + 5,
                    line.width() + 2 * sideGap, 2 * (line.height() - 1) + 12);
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
    painter.drawText(box, Qt::AlignCenter, warning + QStringLiteral("\n\r") + advice);
}

void WavelengthSelector::drawCurve()
{
    constexpr int floorGap = 10;
    const QRect spectrum = spectrumRect();
    const double pixelsPerPercent = (spectrum.height() - 2 * floorGap) / 100.0;
    const double span = m_wavelength.span() + 2 * curveOverhang;
    QPolygon points;
    qint64 lastTaken = m_curveStart;
    for (int x = spectrum.left(); x < spectrum.right(); ++x) {
        const double place = (x - spectrum.left()) * span / spectrum.width() + m_wavelength.min;
        const qint64 wavelength = qint64(saturatedRound(place)) - curveOverhang;
        const qint64 index = wavelength - m_curveStart;
        if (index < 0 || index >= m_curve.size() || wavelength <= lastTaken)
            continue;
        lastTaken = wavelength;
        const int value = m_curve.at(int(index));
        if (value < 1)
            continue;
        const double y = spectrum.bottom() - floorGap - value * pixelsPerPercent;
        points << QPoint(x, wholePixel(saturatedRound(y)));
    }
    QPainter painter(this);
    painter.setPen(QPen(lightGrey, 3));
    painter.setBrush(lightGrey);
    painter.drawPolyline(points);
}

void WavelengthSelector::drawPowerGrid() {}

/// How far from the lower end \a value lies on \a length pixels; none without a span.
int WavelengthSelector::Limits::pixelsTo(double value, int length) const
{
    const double pixels = (value - min) * length / span();
    return qIsFinite(pixels) ? wholePixel(saturatedRound(pixels)) : 0;
}

/// The value \a pixels away from the lower end, within the limits.
double WavelengthSelector::Limits::valueAt(double pixels, int length) const
{
    const double value = pixels * span() / length + min;
    return limited(qIsFinite(value) ? value : min);
}

WavelengthSelector::Channel *WavelengthSelector::find(int channel)
{
    return channel >= 0 && channel < channelCount ? &m_channels[size_t(channel)] : nullptr;
}
