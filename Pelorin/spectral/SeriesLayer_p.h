#ifndef PELORIN_SPECTRAL_SERIESLAYER_P_H
#define PELORIN_SPECTRAL_SERIESLAYER_P_H

#include "Pelorin/PelorinGlobal.h"

#include <QGraphicsObject>
#include <QImage>
#include <QPointer>
#include <QVector>

namespace QtCharts {
class QAbstractSeries;
class QAreaSeries;
class QChart;
class QXYSeries;
} // namespace QtCharts

/// Draws the curves of a chart that stand still, out of a picture of them all. Qt Charts draws a
/// curve anew whenever something changes that it lies over; a spectrum that comes twenty times a
/// second lies under every other curve.
///
/// The items that Qt Charts makes for these series stay what they are in every other way. They are
/// only not asked to paint by the scene, but by this layer. The picture is made anew when data, pen,
/// brush, place, visibility, axes, size or pixel ratio change. On a printer the curves are painted as
/// they are, so that they stay vectors.
class PELORIN_EXPORT SeriesLayer : public QGraphicsObject
{
public:
    explicit SeriesLayer(QtCharts::QChart *chart);

    /// Adds \a series to the chart and takes over its curve.
    void adopt(QtCharts::QXYSeries *series);
    void adopt(QtCharts::QAreaSeries *series);

    /// Something has changed that the layer cannot see.
    void invalidate();

    /// The plot area, in coordinates of the chart.
    void setPlotArea(const QRectF &area);

    QRectF boundingRect() const override { return m_area; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    /// How often the picture was made, for tests.
    int renderCount() const { return m_renderCount; }

private:
    struct Look
    {
        const QGraphicsItem *item;
        bool visible;
        qreal opacity;
        QPointF place;

        bool operator==(const Look &other) const
        {
            return item == other.item && visible == other.visible && opacity == other.opacity
                   && place == other.place;
        }
    };
    struct Picture
    {
        QTransform device;
        QRect place; ///< in device pixels
        QVector<Look> looks;

        bool operator==(const Picture &other) const
        {
            return device == other.device && place == other.place && looks == other.looks;
        }
    };

    void takeOver(QtCharts::QAbstractSeries *series);
    void watch(QtCharts::QXYSeries *line);
    Picture pictureFor(const QTransform &device) const;
    void render(const Picture &picture, const QPainter &target, QWidget *widget);
    void paintItems(QPainter &painter, const QTransform &base, QWidget *widget) const;

    QtCharts::QChart *m_chart;
    QVector<QPointer<QGraphicsObject>> m_items;
    QRectF m_area;
    Picture m_picture;
    QImage m_image;
    int m_renderCount = 0;
};

#endif
