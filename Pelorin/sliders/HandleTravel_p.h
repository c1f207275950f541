#ifndef PELORIN_SLIDERS_HANDLETRAVEL_P_H
#define PELORIN_SLIDERS_HANDLETRAVEL_P_H

#include "Pelorin/theme/Palette_p.h"

#include <QPainter>
#include <QRectF>

#include <cmath>

/// The way of a handle along a slider of the first generation, which holds a position in pixels: in
/// the left edge of its handle. The handle is a square on a track of its own height, and the track
/// lies at the top of the widget.
struct HandleTravel
{
    static constexpr int handleSize = 35;
    static constexpr int handleMiddle = 17;
    static constexpr int cornerRadius = 6;
    static constexpr int bleed = 2; ///< how far antialiased outlines and line ends reach

    int width; ///< of the widget
    int sideMargins;
    double scaleStart; ///< the value with the handle at the left end
    double scaleEnd;   ///< the value with the handle at the right end

    static QRectF restingHandle() { return QRectF(17.0, 0.0, handleSize, handleSize); }

    /// The pixels that the handle can travel; 0 or less in a widget that is too narrow.
    double length() const { return width - 1.0 - (handleSize - 1.0) - 2.0 * sideMargins; }

    /// Whether a drag can tell one value from another.
    bool isOpen() const
    {
        const double span = scaleEnd - scaleStart;
        return length() > 0.0 && qIsFinite(span) && span != 0.0;
    }

    /// The value with the left edge of the handle at \a left.
    double valueAt(double left) const
    {
        if (!isOpen())
            return scaleStart;
        return scaleStart + (left - sideMargins) / length() * (scaleEnd - scaleStart);
    }

    /// The left edge of the handle at \a value, in whole pixels. Where the scale or the widget has
    /// no room, the left end; what is infinitely far stands at its end.
    double leftOf(double value) const
    {
        constexpr double farAway = 1.0e6; // outside of every screen, inside of every integer
        if (!isOpen() || qIsNaN(value) || value == -qInf())
            return sideMargins;
        if (value == qInf())
            return sideMargins + length();
        const double part = (value - scaleStart) / std::abs(scaleEnd - scaleStart);
        if (qIsNaN(part))
            return sideMargins;
        return qBound(-farAway, std::trunc(part * length() + sideMargins), farAway);
    }

    /// Whether \a position lies inside \a handle and not on its edge.
    static bool isInside(const QRectF &handle, QPointF position)
    {
        return position.x() > handle.left() && position.x() < handle.right()
               && position.y() > handle.top() && position.y() < handle.bottom();
    }

    /// What has to be repainted when \a handle moves away or changes its colour.
    static QRect bounds(const QRectF &handle)
    {
        return handle.toAlignedRect().adjusted(-bleed, -bleed, bleed, bleed);
    }

    void drawTrack(QPainter &painter) const
    {
        const QColor color = QColor::fromRgba(Palette::track);
        const QRectF track(sideMargins, 0.0, width - 1.0 - 2.0 * sideMargins, handleSize);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(color);
        painter.setBrush(color);
        painter.drawRoundedRect(track, cornerRadius, cornerRadius);
    }

    /// The square in \a color, with a white mark at its lower edge, next to the ticks.
    static void drawHandle(QPainter &painter, const QRectF &handle, QRgb rgb)
    {
        constexpr double markLength = 5.0;
        const QColor color = QColor::fromRgba(rgb);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(color);
        painter.setBrush(color);
        painter.drawRoundedRect(handle, cornerRadius, cornerRadius);
        painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        const double x = std::trunc(handle.left() + handleMiddle);
        painter.drawLine(QPointF(x, handle.bottom() - markLength), QPointF(x, handle.bottom()));
    }

    /// The colour of a handle: grey where it can't be moved, and lit under the mouse or in the
    /// hand.
    static QRgb color(bool movable, bool lit)
    {
        if (!movable)
            return Palette::disabled;
        return lit ? Palette::hover : Palette::handle;
    }
};

#endif
