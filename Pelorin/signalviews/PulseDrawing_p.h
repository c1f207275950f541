#ifndef PELORIN_SIGNALVIEWS_PULSEDRAWING_P_H
#define PELORIN_SIGNALVIEWS_PULSEDRAWING_P_H

#include "Pelorin/theme/StyledBackground_p.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPolygon>
#include <QWidget>

/// What the pulse views have in common. They explain a timing as a drawing of a fixed size; nothing
/// in it is to scale.
namespace PulseDrawing {

constexpr QRgb frame = 0xFF8C8A8C;
constexpr QRgb pulse = 0xFF842029;
constexpr QRgb label = 0xFFC6C7C6;
constexpr int baseLine = 122;

inline QFont regularFont()
{
    return QFont(QStringLiteral("Calibri"), 10);
}

inline QFont boldFont()
{
    return QFont(QStringLiteral("Calibri"), 10, 75);
}

inline QRect tightBounds(const QPainter &painter, const QString &text)
{
    return QFontMetrics(painter.font(), painter.device()).tightBoundingRect(text);
}

inline void setUp(QWidget &view)
{
    view.setContentsMargins(10, 10, 10, 10);
    view.setFixedSize(300, 160);
}

/// Ground, frame and title.
inline void begin(QPainter &painter, const QWidget &view, const QString &title)
{
    drawStyledBackground(painter, view);
    painter.setPen(QPen(QColor::fromRgba(frame), 2.0));
    painter.drawRect(QRect(QPoint(10, 10), QPoint(view.width() - 12, view.height() - 12)));
    painter.setPen(Qt::black);
    painter.setFont(boldFont());
    painter.drawText(14, tightBounds(painter, title).height() - 1 + 13, title);
}

inline void drawBaseLine(QPainter &painter, const QWidget &view)
{
    painter.setPen(QPen(QColor::fromRgba(pulse), 2.0));
    painter.drawLine(12, baseLine, view.width() - 12, baseLine);
}

inline void drawCaption(QPainter &painter, int x, int y, const QString &text)
{
    painter.setPen(Qt::black);
    painter.setFont(regularFont());
    painter.drawText(x, y, text);
}

/// \a text on a box with its top left corner at (\a x, \a y), in the painter's font.
inline void drawLabel(QPainter &painter, int x, int y, const QString &text)
{
    painter.save();
    const QSize size = tightBounds(painter, text).size();
    const int right = x + size.width() + 10;
    const int bottom = y + size.height() + 6;
    painter.setPen(QColor::fromRgba(label));
    painter.setBrush(QColor::fromRgba(label));
    painter.drawPolygon(QPolygon({ { x, y }, { right, y }, { right, bottom }, { x, bottom } }));
    painter.setPen(Qt::black);
    painter.drawText(x + 5, y + size.height() + 3, text);
    painter.restore();
}

inline void drawHead(QPainter &painter, bool right, int x, int y)
{
    const int back = right ? x - 8 : x + 8;
    painter.drawPolygon(QPolygon({ { x, y }, { back, y - 3 }, { back, y + 3 } }));
}

inline void beginArrow(QPainter &painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::black);
}

/// A short arrow with its tip at (\a x, \a y), which points to the right or to the left.
inline void drawArrow(QPainter &painter, bool right, int x, int y)
{
    beginArrow(painter);
    drawHead(painter, right, x, y);
    if (right)
        painter.drawLine(x - 16, y, x, y);
    else
        painter.drawLine(x, y, x + 16, y);
    painter.restore();
}

/// An arrow with a tip at either end.
inline void drawSpan(QPainter &painter, int x1, int y1, int x2, int y2)
{
    beginArrow(painter);
    drawHead(painter, false, x1, y1);
    drawHead(painter, true, x2, y2);
    painter.drawLine(x1, y1, x2, y2);
    painter.restore();
}

} // namespace PulseDrawing

#endif
