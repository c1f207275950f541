#include "Pelorin/signalviews/SubPulsesView.h"

#include "Pelorin/signalviews/PulseDrawing_p.h"

#include <algorithm>

namespace {

constexpr int firstPulse = 92;
constexpr int pulseStride = 8;
constexpr int maxPulses = 15;

} // namespace

SubPulsesView::SubPulsesView(QWidget *parent)
    : QWidget(parent)
{
    PulseDrawing::setUp(*this);
}

void SubPulsesView::setSubPulseCount(int subPulses)
{
    m_subPulseCount = subPulses;
    update();
}

void SubPulsesView::setSubPulseEnergy(double energy)
{
    m_subPulseEnergy = energy;
    update();
}

void SubPulsesView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    PulseDrawing::begin(painter, *this, QStringLiteral("Sub-pulses"));
    PulseDrawing::drawBaseLine(painter, *this);
    drawPulses(painter, QColor::fromRgba(PulseDrawing::pulse), firstPulse, PulseDrawing::baseLine,
               m_subPulseCount);
    if (m_subPulseCount > 1) {
        PulseDrawing::drawCaption(painter, 87, 32, QStringLiteral("20 ns"));
        PulseDrawing::drawArrow(painter, true, firstPulse, 42);
        PulseDrawing::drawArrow(painter, false, firstPulse + pulseStride, 42);
    }
    PulseDrawing::drawCaption(painter, 14, 140, QStringLiteral("Sub-pulse energy (100%)"));
    painter.end();
    QWidget::paintEvent(event);
}

void SubPulsesView::drawPulses(QPainter &painter, QColor color, int x, int y, int count)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(color, 1.0));
    painter.setBrush(color);
    for (int i = 0; i < std::min(count, maxPulses); ++i) {
        const int left = x - 3 + pulseStride * i;
        painter.drawPolygon(QPolygon({ { left, y }, { left + 3, y - 70 }, { left + 6, y } }));
    }
    painter.restore();
}
