#ifndef PELORIN_SHELL_SCALEDIMAGE_P_H
#define PELORIN_SHELL_SCALEDIMAGE_P_H

#include "Pelorin/theme/Rounding_p.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>

/// A picture over the width of a widget, in its own proportions, with the limits that it sets to
/// the widget's size. What has been scaled is kept until the width, the resolution or the picture
/// changes.
///
/// The pixels of the picture count as they are: a device pixel ratio of its own is left aside.
class ScaledImage
{
public:
    /// Takes \a image over and lets \a widget grow to its size, and shrink to a width of 200. An
    /// empty image leaves it no size at all.
    void setImage(QWidget &widget, const QPixmap &image)
    {
        constexpr int smallestWidth = 200;
        m_image = image;
        m_scaled = QPixmap();
        widget.setMaximumSize(bounded(image.size()));
        widget.setMinimumSize(bounded(sizeAt(smallestWidth)));
        widget.update();
    }

    int heightForWidth(int width) const { return sizeAt(width).height(); }

    /// Draws the picture at (0, 0), \a width wide.
    void paint(QPainter &painter, int width)
    {
        if (sizeAt(width).isEmpty())
            return;
        const QTransform transform = painter.deviceTransform();
        const bool plain = transform.type() <= QTransform::TxScale && transform.m11() > 0.0;
        const qreal ratio = plain ? transform.m11() : 1.0;
        const int pixels = saturatedRound(width * ratio);
        if (isLarge(sizeAt(pixels))) {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawPixmap(QRect(QPoint(0, 0), sizeAt(width)), m_image);
            return;
        }
        if (pixels != m_pixels || m_scaled.isNull()) {
            m_pixels = pixels;
            m_scaled = m_image.scaledToWidth(pixels, Qt::SmoothTransformation);
        }
        m_scaled.setDevicePixelRatio(ratio);
        painter.drawPixmap(0, 0, m_scaled);
    }

private:
    /// The picture scaled to \a width in the fast way, which rounds. Nothing is left of one that
    /// gets thinner than half a pixel.
    QSize sizeAt(int width) const
    {
        if (m_image.isNull() || width <= 0)
            return QSize(0, 0);
        const qreal factor = qreal(width) / m_image.width();
        const int height = saturatedRound(factor * m_image.height());
        return height > 0 ? QSize(width, height) : QSize(0, 0);
    }

    /// A copy of this size is not worth its memory.
    static bool isLarge(QSize size)
    {
        constexpr qint64 maxPixels = 16'000'000; // 64 MB
        return qint64(size.width()) * size.height() > maxPixels;
    }

    static QSize bounded(QSize size)
    {
        return size.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    QPixmap m_image;
    QPixmap m_scaled;
    int m_pixels = 0;
};

#endif
