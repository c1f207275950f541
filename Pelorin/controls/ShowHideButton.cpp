#include "Pelorin/controls/ShowHideButton.h"

#include "Pelorin/theme/Palette_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QPolygonF>

ShowHideButton::ShowHideButton(QWidget *parent)
    : QPushButton(parent)
{
    setMinimumSize(16, 16);
}

QSize ShowHideButton::sizeHint() const
{
    return QSize(32, 32);
}

int ShowHideButton::heightForWidth(int width) const
{
    return width;
}

void ShowHideButton::setShowState(bool shown)
{
    if (shown == m_shown)
        return;
    m_shown = shown;
    update();
}

/// The triangle has equal sides, and its middle where that of a square button is. The height plays
/// no part.
void ShowHideButton::paintEvent(QPaintEvent *)
{
    constexpr int rim = 4;
    constexpr qreal heightToSide = 0.8660254;
    const qreal side = width() - 2 * rim;
    const int center = width() / 2;
    const qreal rise = side * heightToSide * 0.5;
    const qreal point = m_shown ? center - rise : center + rise;
    const qreal base = m_shown ? center + rise : center - rise;

    QPainter painter(this);
    drawStyledBackground(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor::fromRgba(Palette::track));
    painter.setBrush(QColor::fromRgba(Palette::track));
    painter.drawPolygon(QPolygonF({ QPointF(center, point), QPointF(center + side / 2, base),
                                    QPointF(center - side / 2, base) }));
}

void ShowHideButton::enterEvent(QEvent *event)
{
    m_hovered = true;
    QPushButton::enterEvent(event);
}

void ShowHideButton::leaveEvent(QEvent *event)
{
    m_hovered = false;
    QPushButton::leaveEvent(event);
}
