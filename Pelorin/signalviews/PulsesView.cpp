#include "Pelorin/signalviews/PulsesView.h"

#include "Pelorin/signalviews/PulseDrawing_p.h"

namespace {

/// From either edge to the pulse.
constexpr int inset = 57;

} // namespace

PulsesView::PulsesView(QWidget *parent)
    : QWidget(parent)
{
    PulseDrawing::setUp(*this);
}

void PulsesView::setPulseInterval(double interval)
{
    m_pulseInterval = interval;
    update();
}

void PulsesView::setPulseEnergy(double energy)
{
    m_pulseEnergy = energy;
    update();
}

void PulsesView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    PulseDrawing::begin(painter, *this, QStringLiteral("Pulses"));
    PulseDrawing::drawBaseLine(painter, *this);
    const int right = width() - inset;
    painter.drawLine(inset, PulseDrawing::baseLine, inset, 52);
    painter.drawLine(right, PulseDrawing::baseLine, right, 52);
    PulseDrawing::drawSpan(painter, inset, 42, right, 42);
    PulseDrawing::drawCaption(painter, 14, 140, QStringLiteral("Pulse energy (100%)"));

    const QString label = tr("%1 µs").arg(m_pulseInterval, 0, 'f', 1);
    const int textWidth = PulseDrawing::tightBounds(painter, label).width();
    const int x = (width() - 1 - 113) / 2 + inset - textWidth / 2;
    PulseDrawing::drawLabel(painter, x, 52, label);
    painter.end();
    QWidget::paintEvent(event);
}
