#ifndef PELORIN_THEME_CACHEDLAYER_P_H
#define PELORIN_THEME_CACHEDLAYER_P_H

#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QtMath>

/// A part of a widget's picture that is painted once and then copied, until it is invalidated or
/// needed at another size or resolution.
///
/// The copy is made only where it gives the same pixels as painting would: on raster devices, under
/// translation and plain magnification (so at any device pixel ratio). Elsewhere, on a printer for
/// one, the layer is painted anew each time and stays vectors.
class CachedLayer
{
public:
    void invalidate() { m_pixmap = QPixmap(); }

    /// Draws the layer with its top left corner at \a topLeft. \a paint is called with a painter
    /// whose origin lies there, and may paint from (0, 0) to \a size; it has to set pen, brush,
    /// font and hints itself.
    template<typename Paint>
    void draw(QPainter &painter, QPoint topLeft, QSize size, Paint paint)
    {
        const qreal scale = cacheScale(painter, size);
        if (scale > 0.0) {
            prepare(scale, size, painter, paint);
            painter.drawPixmap(topLeft, m_pixmap);
            return;
        }
        painter.save();
        painter.translate(topLeft);
        paint(painter);
        painter.restore();
    }

private:
    /// Device pixels per unit, or 0 when a copy would not do.
    static qreal cacheScale(const QPainter &painter, QSize size)
    {
        constexpr qreal maxDevicePixels = 8.0e6; // 32 MiB
        const QTransform transform = painter.deviceTransform();
        const qreal scale = transform.m11();
        const bool plain = transform.type() <= QTransform::TxScale && scale > 0.0
                           && qFuzzyCompare(scale, transform.m22());
        if (!plain || painter.paintEngine()->type() != QPaintEngine::Raster || size.isEmpty())
            return 0.0;
        const qreal pixels = scale * scale * size.width() * size.height();
        return pixels <= maxDevicePixels ? scale : 0.0;
    }

    template<typename Paint>
    void prepare(qreal scale, QSize size, const QPainter &target, Paint paint)
    {
        const QSize pixels(qCeil(size.width() * scale), qCeil(size.height() * scale));
        if (m_pixmap.size() == pixels && qFuzzyCompare(m_pixmap.devicePixelRatioF(), scale))
            return;
        m_pixmap = QPixmap(pixels);
        m_pixmap.setDevicePixelRatio(scale);
        m_pixmap.fill(Qt::transparent);
        QPainter painter(&m_pixmap);
        painter.setLayoutDirection(target.layoutDirection());
        paint(painter);
    }

    QPixmap m_pixmap;
};

#endif
