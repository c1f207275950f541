#ifndef PELORIN_TESTS_PARTIALPAINT_H
#define PELORIN_TESTS_PARTIALPAINT_H

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QWidget>

/// Pictures of a widget at any device pixel ratio, whole or bit by bit: what is repainted in parts
/// has to become what a whole repaint gives.
namespace PartialPaint {

/// An empty picture of the size of \a widget, at a device pixel ratio of \a ratio.
inline QImage blank(const QWidget &widget, qreal ratio, const QColor &ground = Qt::white)
{
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    return image;
}

/// Paints all of \a widget, or \a region of it, over \a image.
inline void paintOnto(QImage &image, QWidget &widget, const QRegion &region = QRegion())
{
    QPainter painter(&image);
    widget.render(&painter, region.boundingRect().topLeft(), region);
}

} // namespace PartialPaint

#endif
