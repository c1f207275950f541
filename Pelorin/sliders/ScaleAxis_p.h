#ifndef PELORIN_SLIDERS_SCALEAXIS_P_H
#define PELORIN_SLIDERS_SCALEAXIS_P_H

#include <QPoint>
#include <QRect>
#include <QSize>

/// The one place that knows which way a slider lies. "Along" runs in the direction in which a
/// handle travels, from left to right or from top to bottom, "across" is the other direction.
class ScaleAxis
{
public:
    constexpr explicit ScaleAxis(Qt::Orientation orientation)
        : m_horizontal(orientation == Qt::Horizontal)
    {}

    constexpr bool isHorizontal() const { return m_horizontal; }

    constexpr int along(QSize size) const { return m_horizontal ? size.width() : size.height(); }
    constexpr int across(QSize size) const { return m_horizontal ? size.height() : size.width(); }

    constexpr QPoint point(int along, int across) const
    {
        return m_horizontal ? QPoint(along, across) : QPoint(across, along);
    }
    constexpr QSize size(int along, int across) const
    {
        return m_horizontal ? QSize(along, across) : QSize(across, along);
    }

    /// The way from \a from to \a to in the direction of rising values: rightwards or upwards.
    constexpr int rise(QPoint from, QPoint to) const
    {
        return m_horizontal ? to.x() - from.x() : from.y() - to.y();
    }

    /// A distance of \a position from the low end of a scale of \a length, counted from the left or
    /// the top end; high values stand at the top.
    constexpr int fromStart(int position, int length) const
    {
        return m_horizontal ? position : length - position;
    }

    constexpr Qt::Key increaseKey() const { return m_horizontal ? Qt::Key_Right : Qt::Key_Up; }
    constexpr Qt::Key decreaseKey() const { return m_horizontal ? Qt::Key_Left : Qt::Key_Down; }

private:
    bool m_horizontal;
};

#endif
