#ifndef PELORIN_TESTS_CHARTPROBE_H
#define PELORIN_TESTS_CHARTPROBE_H

#include "Pelorin/spectral/FluorophoreTagName.h"
#include "Pelorin/spectral/WavelengthChart.h"
#include "Pelorin/spectral/ZoomResetProxy.h"

#include <QApplication>
#include <QCheckBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QGraphicsTextItem>
#include <QLabel>
#include <QtMath>

/// A chart of a known size, and what an operator sees of it.
class ChartProbe : public WavelengthChart
{
public:
    explicit ChartProbe(QSize size = QSize(1000, 400))
        : WavelengthChart(0, nullptr)
    {
        resize(size);
        show();
        QApplication::processEvents();
    }

    using WavelengthChart::generateBackBrush;
    using WavelengthChart::refreshFilterIllustration;

    QtCharts::QLineSeries *spectrum() const { return line(0); }
    QtCharts::QLineSeries *filter() const { return line(1); }
    QtCharts::QAreaSeries *filterArea() const { return area(2); }
    QtCharts::QAreaSeries *excitation(int dye = 0) const { return area(3 + 2 * dye); }
    QtCharts::QAreaSeries *emission(int dye = 0) const { return area(4 + 2 * dye); }

    QtCharts::QValueAxis *wavelengthAxis() const { return axis(Qt::Horizontal, spectrum()); }
    QtCharts::QValueAxis *powerAxis() const { return axis(Qt::Vertical, spectrum()); }
    QtCharts::QValueAxis *filterAxis() const { return axis(Qt::Vertical, filterArea()); }
    QtCharts::QValueAxis *fluorophoreAxis() const
    {
        for (QtCharts::QAbstractAxis *each : chart()->axes(Qt::Vertical)) {
            if (each != powerAxis() && each != filterAxis())
                return qobject_cast<QtCharts::QValueAxis *>(each);
        }
        return nullptr;
    }

    template<typename Item>
    QList<Item *> itemsOf() const
    {
        QList<Item *> result;
        for (QGraphicsItem *item : scene()->items(Qt::AscendingOrder)) {
            if (Item *const found = dynamic_cast<Item *>(item))
                result << found;
        }
        return result;
    }

    QList<FluorophoreTagName *> tags() const { return itemsOf<FluorophoreTagName>(); }
    ZoomResetProxy *zoomProxy() const { return itemsOf<ZoomResetProxy>().first(); }
    QGraphicsPixmapItem *strip() const { return itemsOf<QGraphicsPixmapItem>().first(); }

    QGraphicsProxyWidget *controlProxy() const
    {
        for (QGraphicsProxyWidget *proxy : itemsOf<QGraphicsProxyWidget>()) {
            if (proxy != zoomProxy())
                return proxy;
        }
        return nullptr;
    }

    QCheckBox *box(const char *text) const
    {
        for (QCheckBox *each : controlProxy()->widget()->findChildren<QCheckBox *>()) {
            if (each->text() == QLatin1String(text))
                return each;
        }
        return nullptr;
    }
    QCheckBox *saveButton() const { return box(""); }
    QWidget *fluorophoreControls() const { return box("Dynamic")->parentWidget(); }
    QLabel *totalPower() const { return controlProxy()->widget()->findChildren<QLabel *>().last(); }

    static QVector<QPointF> points(const QtCharts::QLineSeries *line)
    {
        return line->pointsVector();
    }
    static QVector<QPointF> points(const QtCharts::QAreaSeries *area)
    {
        return area->upperSeries()->pointsVector();
    }

    /// Where \a wavelength and \a percent lie, by the axes.
    QPointF place(double wavelength, double percent) const
    {
        const QRectF plot = chart()->plotArea();
        const auto part = [](double value, const QtCharts::QValueAxis *axis) {
            return (value - axis->min()) / (axis->max() - axis->min());
        };
        return QPointF(plot.left() + part(wavelength, wavelengthAxis()) * plot.width(),
                       plot.bottom() - part(percent, fluorophoreAxis()) * plot.height());
    }

    /// A dye whose excitation is highest at \a center, and whose emission 40 nm further.
    static tFluorophoreData dye(unsigned int id, double center = 500.0)
    {
        tFluorophoreData data;
        data.id = id;
        data.name = QStringLiteral("Dye %1").arg(id);
        data.description = QStringLiteral("Description %1").arg(id);
        data.excitation = bell(center, 20.0);
        data.emission = bell(center + 40.0, 25.0);
        return data;
    }

    /// A point for each nm, 100 at \a center.
    static QVector<QPointF> bell(double center, double width)
    {
        QVector<QPointF> result;
        for (int x = -80; x <= 80; ++x)
            result << QPointF(center + x, 100.0 * qExp(-x * x / (2.0 * width * width)));
        return result;
    }

private:
    QtCharts::QLineSeries *line(int index) const
    {
        return qobject_cast<QtCharts::QLineSeries *>(chart()->series().value(index));
    }
    QtCharts::QAreaSeries *area(int index) const
    {
        return qobject_cast<QtCharts::QAreaSeries *>(chart()->series().value(index));
    }
    QtCharts::QValueAxis *axis(Qt::Orientation orientation, QtCharts::QAbstractSeries *series) const
    {
        return qobject_cast<QtCharts::QValueAxis *>(chart()->axes(orientation, series).value(0));
    }
};

#endif
