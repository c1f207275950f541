#include "Pelorin/signalviews/SignalGraph.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"

#include <QApplication>
#include <QLoggingCategory>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>

#include <cmath>
#include <string>

namespace {

const QSize size(600, 200);

short sampleAt(int index)
{
    return short(qRound(std::sin(index / 10.0) * 10000.0));
}

void paintOurs(benchmark::State &state, int count)
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QVector<short> samples(count);
    for (int i = 0; i < count; ++i)
        samples[i] = sampleAt(i);
    SignalGraph graph;
    graph.clearData();
    graph.insertData(samples, 0, count);
    graph.resize(size);
    showAndSettle(graph);
    for (auto paint : state) {
        Q_UNUSED(paint)
        graph.update();
        paintNow(graph);
    }
}

/// With its left axis alone, and without a memory of the last picture, which a new block would
/// spoil.
void paintQwt(benchmark::State &state, int count)
{
    QVector<QPointF> samples;
    for (int i = 0; i < count; ++i)
        samples << QPointF(i, sampleAt(i));
    QwtPlot plot;
    plot.enableAxis(QwtPlot::xBottom, false);
    plot.setAxisScale(QwtPlot::yLeft, -10000.0, 10000.0);
    static_cast<QwtPlotCanvas *>(plot.canvas())
        ->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    auto *curve = new QwtPlotCurve;
    curve->setPen(QColor(0x87, 0x21, 0x2E), 2.0);
    curve->setSamples(samples);
    curve->attach(&plot);
    plot.resize(size);
    showAndSettle(plot);
    for (auto paint : state) {
        Q_UNUSED(paint)
        plot.canvas()->update();
        paintNow(plot);
    }
}

Comparison paintCase(int count)
{
    using std::placeholders::_1;
    Comparison result;
    result.name = "Paint of " + std::to_string(count) + " samples";
    result.ours = "SignalGraph, log filtered";
    result.body = std::bind(paintOurs, _1, count);
    result.peers = { { "QwtPlotCurve", std::bind(paintQwt, _1, count) } };
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    return runComparisons(argc, argv, { paintCase(300), paintCase(10000) });
}
