#include "Pelorin/signalviews/TriggerActionView.h"

#include "Pelorin/signalviews/PulseDrawing_p.h"

#include <algorithm>

namespace {

constexpr QRgb trigger = 0xFF00B252;
constexpr int firstPulse = 40;
constexpr int pulseStride = 6;
constexpr int pulsesInWindow = 21;
constexpr int maxPulses = 42;

} // namespace

TriggerActionView::TriggerActionView(QWidget *parent)
    : QWidget(parent)
{
    PulseDrawing::setUp(*this);
}

void TriggerActionView::setPulseCount(int pulses)
{
    m_pulseCount = pulses;
    update();
}

void TriggerActionView::setPulseInterval(double interval)
{
    m_pulseInterval = interval;
    update();
}

void TriggerActionView::setView(TriggerActionView::tView view)
{
    m_view = view;
    update();
}

void TriggerActionView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    PulseDrawing::begin(painter, *this, QStringLiteral("Trigger action"));
    painter.setPen(QPen(QColor::fromRgba(trigger), 2.0));
    painter.drawPolyline(QPolygon(
        { { 12, 67 }, { 40, 67 }, { 40, 42 }, { 160, 42 }, { 160, 67 }, { width() - 12, 67 } }));
    PulseDrawing::drawCaption(painter, 180, 55, QStringLiteral("Trigger input"));
    PulseDrawing::drawLabel(painter, 45, 57, tr("%1 µs").arg(m_pulseInterval, 0, 'f', 1));
    PulseDrawing::drawArrow(painter, true, firstPulse, 82);
    PulseDrawing::drawArrow(painter, false, firstPulse + pulseStride, 82);

    PulseDrawing::drawBaseLine(painter, *this);
    painter.setPen(QPen(QColor::fromRgba(PulseDrawing::pulse), 1.0));
    const int count =
        m_view == ViewFixedWindow ? pulsesInWindow : std::min(m_pulseCount, maxPulses);
    for (int i = 0; i < count; ++i) {
        const int x = firstPulse + pulseStride * i;
        painter.drawLine(x, PulseDrawing::baseLine, x, 92);
    }
    PulseDrawing::drawCaption(painter, 160, 140, QStringLiteral("Output pulses"));
    painter.end();
    QWidget::paintEvent(event);
}
