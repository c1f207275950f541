#include "Pelorin/signalviews/QualityIndicator.h"

#include "Pelorin/theme/StyledBackground_p.h"

#include <QPainter>
#include <QPainterPath>

QualityIndicator::QualityIndicator(QWidget *parent)
    : QFrame(parent)
    , m_colors{ { QColor(0xC0, 0x00, 0x00), QColor(0xF5, 0x8B, 0x2E), QColor(0xFF, 0xFF, 0x00),
                  QColor(0x40, 0xFF, 0x40), QColor(0x00, 0xC0, 0x00), QColor(0x00, 0x80, 0x00) } }
    , m_starts{ { 0.0, 65.0, 70.0, 75.0, 80.0, 85.0 } }
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFixedSize(98, 33);
}

void QualityIndicator::setQualityValue(double quality)
{
    m_quality = quality;
    update();
}

void QualityIndicator::setQualityRanges(double startOrange, double startYellow,
                                        double startLightGreen, double startGreen,
                                        double startDarkGreen)
{
    m_starts = { 0.0, startOrange, startYellow, startLightGreen, startGreen, startDarkGreen };
    update();
}

bool QualityIndicator::isLit(int segment) const
{
    const bool fromHere = segment == 0 || m_quality >= m_starts[std::size_t(segment)];
    const bool toHere =
        segment == segmentCount - 1 || m_quality < m_starts[std::size_t(segment + 1)];
    return fromHere && toHere;
}

void QualityIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_frameColor, 1.0, Qt::SolidLine));
    for (int i = 0; i < segmentCount; ++i) {
        const QColor color = m_colors[std::size_t(i)];
        const int x = 14 * i + m_leftMargin + 4;
        QPainterPath lamp;
        lamp.addRoundedRect(QRectF(x, m_topMargin + 4, 10, 15), 2, 2, Qt::AbsoluteSize);
        // A lamp in the colour of an unlit one could not be told from it.
        if (isLit(i) && color != m_offColor) {
            painter.fillPath(lamp, color);
        } else {
            QPainterPath strip;
            strip.addRoundedRect(QRectF(x, m_topMargin + 17, 10, 2), 2, 2, Qt::AbsoluteSize);
            painter.fillPath(strip, color);
        }
        painter.drawPath(lamp);
    }
}
