#include "Pelorin/spectral/SeriesLayer_p.h"

#include <QAreaSeries>
#include <QChart>
#include <QLineSeries>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QXYSeries>

using QtCharts::QAbstractSeries;
using QtCharts::QAreaSeries;
using QtCharts::QXYSeries;

SeriesLayer::SeriesLayer(QtCharts::QChart *chart)
    : QGraphicsObject(chart)
    , m_chart(chart)
{
    setAcceptedMouseButtons(Qt::NoButton);
}

void SeriesLayer::adopt(QXYSeries *series)
{
    takeOver(series);
    watch(series);
}

void SeriesLayer::adopt(QAreaSeries *series)
{
    takeOver(series);
    watch(series->upperSeries());
    connect(series, &QAreaSeries::colorChanged, this, &SeriesLayer::invalidate);
    connect(series, &QAreaSeries::borderColorChanged, this, &SeriesLayer::invalidate);
}

/// The item that appears with a series is its curve.
void SeriesLayer::takeOver(QAbstractSeries *series)
{
    const QList<QGraphicsItem *> before = m_chart->childItems();
    m_chart->addSeries(series);
    const QList<QGraphicsItem *> after = m_chart->childItems();
    for (QGraphicsItem *item : after) {
        QGraphicsObject *const object = item->toGraphicsObject();
        if (!object || before.contains(item))
            continue;
        item->setFlag(QGraphicsItem::ItemHasNoContents);
        m_items.append(object);
        setZValue(qMax(zValue(), item->zValue()));
    }
    connect(series, &QAbstractSeries::visibleChanged, this, &SeriesLayer::invalidate);
    connect(series, &QAbstractSeries::opacityChanged, this, &SeriesLayer::invalidate);
    invalidate();
}

void SeriesLayer::watch(QXYSeries *line)
{
    connect(line, &QXYSeries::pointsReplaced, this, &SeriesLayer::invalidate);
    connect(line, &QXYSeries::pointReplaced, this, &SeriesLayer::invalidate);
    connect(line, &QXYSeries::pointAdded, this, &SeriesLayer::invalidate);
    connect(line, &QXYSeries::pointRemoved, this, &SeriesLayer::invalidate);
    connect(line, &QXYSeries::pointsRemoved, this, &SeriesLayer::invalidate);
    connect(line, &QXYSeries::penChanged, this, &SeriesLayer::invalidate);
}

void SeriesLayer::invalidate()
{
    m_image = QImage();
    update();
}

void SeriesLayer::setPlotArea(const QRectF &area)
{
    prepareGeometryChange();
    m_area = area;
    invalidate();
}

void SeriesLayer::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *widget)
{
    const QTransform device = painter->deviceTransform();
    const bool plain = device.type() <= QTransform::TxScale && device.m11() > 0.0
                       && qFuzzyCompare(device.m11(), device.m22());
    if (!plain || painter->paintEngine()->type() != QPaintEngine::Raster || m_area.isEmpty()) {
        painter->save();
        paintItems(*painter, painter->worldTransform(), widget);
        painter->restore();
        return;
    }
    const Picture wanted = pictureFor(device);
    if (m_image.isNull() || !(wanted == m_picture))
        render(wanted, *painter, widget);
    // Pixel upon pixel, so that the curves look as if they had been painted here.
    painter->drawImage(device.inverted().map(QPointF(wanted.place.topLeft())), m_image);
}

SeriesLayer::Picture SeriesLayer::pictureFor(const QTransform &device) const
{
    Picture picture{ device, device.mapRect(m_area).toAlignedRect(), {} };
    for (const QPointer<QGraphicsObject> &item : m_items) {
        if (item)
            picture.looks.append(
                { item, item->isVisible(), item->effectiveOpacity(), item->scenePos() });
    }
    return picture;
}

void SeriesLayer::render(const Picture &picture, const QPainter &target, QWidget *widget)
{
    ++m_renderCount;
    m_picture = picture;
    m_items.removeAll(QPointer<QGraphicsObject>());
    m_image = QImage(picture.place.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHints(target.renderHints());
    const QPoint origin = picture.place.topLeft();
    paintItems(painter, picture.device * QTransform::fromTranslate(-origin.x(), -origin.y()),
               widget);
    painter.end();
    m_image.setDevicePixelRatio(picture.device.m11());
}

void SeriesLayer::paintItems(QPainter &painter, const QTransform &base, QWidget *widget) const
{
    for (const QPointer<QGraphicsObject> &item : m_items) {
        if (!item || !item->isVisible())
            continue;
        QStyleOptionGraphicsItem option;
        option.rect = item->boundingRect().toAlignedRect();
        option.exposedRect = item->boundingRect();
        painter.save();
        painter.setTransform(item->itemTransform(this) * base);
        painter.setOpacity(item->effectiveOpacity());
        item->paint(&painter, &option, widget);
        painter.restore();
    }
}
