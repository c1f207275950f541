#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/TavrinChart>

#include <QAreaSeries>
#include <QChartView>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineSeries>
#include <QLinearGradient>
#include <QVBoxLayout>
#include <QValueAxis>

#include <cmath>

namespace {

using QtCharts::QAreaSeries;
using QtCharts::QChartView;
using QtCharts::QLineSeries;
using QtCharts::QValueAxis;

/// The output of a white light source in percent of its peak: what is left of a blue pump, and the
/// phosphor.
double density(double nm)
{
    const auto hump = [nm](double center, double width) {
        return std::exp(-std::pow((nm - center) / width, 2.0));
    };
    return 75.0 * hump(450.0, 16.0) + 95.0 * hump(575.0, 62.0);
}

/// Over the range that the chart keeps, in the colours that it knows.
QAreaSeries *lightSeries(const TavrinChart &chart)
{
    const int min = chart.minWavelength();
    const int max = chart.maxWavelength();
    auto *line = new QLineSeries;
    QLinearGradient colors(0.0, 0.0, 1.0, 0.0);
    colors.setCoordinateMode(QGradient::ObjectBoundingMode);
    for (int nm = min; nm <= max; ++nm) {
        line->append(nm, density(nm));
        colors.setColorAt(double(nm - min) / (max - min), chart.generateRgbColor(nm));
    }
    auto *area = new QAreaSeries(line);
    line->setParent(area); // which does not own it otherwise
    area->setBrush(colors);
    area->setPen(Qt::NoPen);
    return area;
}

QValueAxis *makeAxis(const char *title, double min, double max, int ticks)
{
    auto *axis = new QValueAxis;
    axis->setRange(min, max);
    axis->setTickCount(ticks);
    axis->setLabelFormat(QStringLiteral("%.0f"));
    axis->setLabelsFont(QFont(QStringLiteral("Calibri"), 10));
    axis->setTitleFont(QFont(QStringLiteral("Calibri"), 10));
    axis->setTitleText(QLatin1String(title));
    return axis;
}

TavrinChart *makeChart()
{
    auto *chart = new TavrinChart;
    chart->setMargins(QMargins());
    chart->legend()->hide();
    QAreaSeries *const series = lightSeries(*chart);
    chart->addSeries(series);
    const auto addAxis = [chart, series](QValueAxis *axis, Qt::Alignment side) {
        chart->addAxis(axis, side);
        series->attachAxis(axis);
    };
    addAxis(makeAxis("Wavelength in nm", 350.0, 800.0, 10), Qt::AlignBottom);
    addAxis(makeAxis("Power in percent", 0.0, 100.0, 6), Qt::AlignLeft);
    return chart;
}

/// The colour of light of one wavelength, over its number.
QVBoxLayout *swatch(const TavrinChart &chart, int nm)
{
    auto *patch = new QLabel;
    patch->setFixedHeight(36);
    patch->setStyleSheet(QStringLiteral("background-color: %1; border-radius: 4px;")
                             .arg(QColor(chart.generateRgbColor(nm)).name()));
    QLabel *const number = PageParts::label(QString::number(nm), "text");
    number->setAlignment(Qt::AlignHCenter);
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(patch);
    column->addWidget(number);
    return column;
}

QHBoxLayout *swatches(const TavrinChart &chart)
{
    constexpr int first = 350; // the dark grey of what is not seen stands at both ends
    constexpr int last = 775;
    constexpr int step = 25;
    auto *row = new QHBoxLayout;
    row->setSpacing(4);
    for (int nm = first; nm <= last; nm += step)
        row->addLayout(swatch(chart, nm), 1);
    return row;
}

} // namespace

QWidget *buildBareChartPage()
{
    TavrinChart *const chart = makeChart();
    auto *view = new QChartView(chart);
    view->setFrameShape(QFrame::NoFrame);
    view->setBackgroundBrush(Qt::white); // as the card, for the chart has no ground
    view->setRenderHint(QPainter::Antialiasing);
    view->setRubberBand(QChartView::RectangleRubberBand);

    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(PageParts::gap);
    column->addWidget(PageParts::card(QStringLiteral("A series in the colours of light"),
                                      QStringLiteral("the axes and the series are the "
                                                     "application's own"),
                                      view),
                      1);
    column->addWidget(PageParts::card(QStringLiteral("generateRgbColor()"),
                                      QStringLiteral("nm; dark grey outside of 380 to 750"),
                                      swatches(*chart)));
    return page;
}
