#include "Pelorin/controls/Indicator.h"

#include "Pelorin/controls/FixedSize_p.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

QPainterPath triangle(QSize size, bool pointsUp)
{
    const int base = pointsUp ? size.height() : 0;
    const int point = size.height() - base;
    QPainterPath path;
    path.moveTo(0, base);
    path.lineTo(size.width() / 2, point);
    path.lineTo(size.width(), base);
    path.closeSubpath();
    return path;
}

} // namespace

Indicator::Indicator(QWidget *parent)
    : QWidget(parent)
    , m_timer(this)
{
    // The signature of the slots names the colour by its alias, which is to work in a queued call.
    qRegisterMetaType<Indicator::Color>("Indicator::Color");
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSize(20);
    connect(&m_timer, &QTimer::timeout, this, &Indicator::toggleBlink);
}

void Indicator::setSize(int size)
{
    setSize(size, size);
}

void Indicator::setSize(int w, int h)
{
    setFixedSize(boundedLength(w), boundedLength(h));
}

void Indicator::setColor(Indicator::Color color)
{
    m_color = color;
    update();
}

void Indicator::setBorder(bool on)
{
    m_border = on;
}

void Indicator::setBlink(bool blink, int interval, Indicator::Color color)
{
    m_oneShot = false;
    m_blink = blink;
    m_blinkPhase = blink;
    startBlinking(interval, color);
    if (!blink)
        m_timer.stop();
}

void Indicator::setOneShoot(int pulseWidth, Indicator::Color color)
{
    m_blink = false;
    m_oneShot = true;
    m_blinkPhase = true;
    startBlinking(pulseWidth, color);
}

void Indicator::startBlinking(int interval, Color color)
{
    m_blinkColor = color;
    m_timer.start(std::max(interval, 1));
    update();
}

void Indicator::setForm(Indicator::Form form)
{
    m_form = form;
}

void Indicator::toggleBlink()
{
    m_blinkPhase = !m_blinkPhase;
    if (m_oneShot)
        m_timer.stop();
    update();
}

Indicator::Color Indicator::shownColor() const
{
    if (!isEnabled())
        return Grey;
    return (m_blink || m_oneShot) && m_blinkPhase ? m_blinkColor : m_color;
}

void Indicator::paintEvent(QPaintEvent *)
{
    const QColor color = QColor::fromRgba(shownColor());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_form != Round) {
        painter.fillPath(triangle(size(), m_form == TriangleUp), color);
        return;
    }
    const int center = width() / 2;
    const int radius = (width() - 2) / 2;
    painter.setPen(m_border ? QColor(Qt::black) : color);
    painter.setBrush(color);
    painter.drawEllipse(center - radius, center - radius, 2 * radius, 2 * radius);
}
