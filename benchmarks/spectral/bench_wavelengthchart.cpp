#include "Pelorin/spectral/WavelengthChart.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"

#include <QApplication>
#include <QRandomGenerator>

#include <qcustomplot.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <cmath>
#include <string>

namespace {

constexpr double minNm = 350.0;
constexpr double maxNm = 800.0;
const QSize size(1024, 500);
const QColor plotGround(33, 32, 33);
const QColor filterColor(226, 226, 226, 80);
const QPen spectrumPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);

double nmAt(int index, int count)
{
    return minNm + (maxNm - minNm) * index / (count - 1);
}

QVector<QPointF> bell(double center, double width)
{
    constexpr int count = 400;
    QVector<QPointF> points;
    for (int i = 0; i < count; ++i) {
        const double x = nmAt(i, count);
        points << QPointF(x, 100.0 * std::exp(-std::pow((x - center) / width, 2.0) / 2.0));
    }
    return points;
}

/// What the spectrometer delivers: noise, and a line that wanders.
QVector<QVector<QPointF>> makeFrames(int count)
{
    QRandomGenerator random(7);
    QVector<QVector<QPointF>> frames(20);
    for (int frame = 0; frame < frames.size(); ++frame) {
        for (int i = 0; i < count; ++i) {
            const double x = nmAt(i, count);
            const double line = std::exp(-std::pow((x - 488.0 - frame) / 5.0, 2.0) / 2.0);
            frames[frame] << QPointF(x, 0.2 + 0.1 * random.generateDouble() + 1.5 * line);
        }
    }
    return frames;
}

struct Dye
{
    QVector<QPointF> excitation;
    QVector<QPointF> emission;
    QColor color;
};

QVector<Dye> makeDyes(int count)
{
    QVector<Dye> dyes;
    for (int i = 0; i < count; ++i) {
        const double center = 400.0 + 300.0 * i / std::max(1, count);
        dyes << Dye{ bell(center, 20.0), bell(center + 30.0, 25.0),
                     WavelengthChart::generateRgbColor(center + 30.0, minNm, maxNm, 1.0) };
    }
    return dyes;
}

QVector<QPointF> filterBand()
{
    return { { 478, 0 }, { 478.1, 100 }, { 478.2, 50 }, { 497.8, 50 }, { 497.9, 100 }, { 498, 0 } };
}

QColor faint(QColor color)
{
    color.setAlpha(50);
    return color;
}

/// Shows one frame after the other, each painted before the next comes.
template<typename Show>
void showFrames(benchmark::State &state, QWidget &widget, int points, Show show)
{
    const QVector<QVector<QPointF>> frames = makeFrames(points);
    widget.resize(size);
    showAndSettle(widget);
    int next = 0;
    for (auto frame : state) {
        Q_UNUSED(frame)
        show(frames.at(next++ % frames.size()));
        QApplication::sendPostedEvents();
    }
}

void updateOurs(benchmark::State &state, int points, int dyes)
{
    WavelengthChart chart(0, nullptr);
    chart.setWavelengthRange(minNm, maxNm);
    chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrMW3);
    chart.setFluorophoreVisibilityState(true, true, false);
    chart.setFluorophoresVisible(true);
    chart.setWavelengthBandwidthPower(488.0, 20.0, 50.0);
    unsigned int id = 0;
    for (const Dye &dye : makeDyes(dyes)) {
        tFluorophoreData data;
        data.id = id++;
        data.name = QStringLiteral("Dye %1").arg(id);
        data.excitation = dye.excitation;
        data.emission = dye.emission;
        chart.addFluorophore(data);
    }
    showFrames(state, chart, points,
               [&chart](const QVector<QPointF> &frame) { chart.setSpectrometerData(frame); });
}

QwtPlotCurve *addQwtCurve(QwtPlot &plot, const QVector<QPointF> &points, const QPen &pen,
                          const QBrush &brush, QwtPlot::Axis axis)
{
    auto *curve = new QwtPlotCurve;
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setPen(pen);
    curve->setBrush(brush);
    curve->setYAxis(axis);
    curve->setSamples(points);
    curve->attach(&plot);
    return curve;
}

void updateQwt(benchmark::State &state, int points, int dyes)
{
    QwtPlot plot;
    plot.setCanvasBackground(plotGround);
    plot.setAxisScale(QwtPlot::xBottom, minNm, maxNm);
    plot.setAxisScale(QwtPlot::yLeft, 0.0, 2.0);
    plot.setAxisScale(QwtPlot::yRight, 0.0, 100.0);
    plot.setAxisTitle(QwtPlot::xBottom, QStringLiteral("Wavelength in nm"));
    plot.setAxisTitle(QwtPlot::yLeft, QStringLiteral("Power output in [mW/nm]"));
    QwtPlotCurve *const spectrum = addQwtCurve(plot, {}, spectrumPen, Qt::NoBrush, QwtPlot::yLeft);
    addQwtCurve(plot, filterBand(), filterColor, filterColor, QwtPlot::yRight);
    for (const Dye &dye : makeDyes(dyes)) {
        addQwtCurve(plot, dye.excitation, QPen(dye.color, 2.0, Qt::DashLine), Qt::NoBrush,
                    QwtPlot::yRight);
        addQwtCurve(plot, dye.emission, dye.color, faint(dye.color), QwtPlot::yRight);
    }
    showFrames(state, plot, points, [&plot, spectrum](const QVector<QPointF> &frame) {
        spectrum->setSamples(frame);
        plot.replot();
    });
}

QCPGraph *addCustomGraph(QCustomPlot &plot, const QVector<QPointF> &points, const QPen &pen,
                         const QBrush &brush, QCPAxis *axis)
{
    QCPGraph *const graph = plot.addGraph(plot.xAxis, axis);
    graph->setPen(pen);
    graph->setBrush(brush);
    for (const QPointF &point : points)
        graph->addData(point.x(), point.y());
    return graph;
}

void updateCustomPlot(benchmark::State &state, int points, int dyes)
{
    QCustomPlot plot;
    plot.setBackground(QColor(246, 246, 246));
    plot.axisRect()->setBackground(plotGround);
    plot.xAxis->setRange(minNm, maxNm);
    plot.xAxis->setLabel(QStringLiteral("Wavelength in nm"));
    plot.xAxis->grid()->setVisible(false);
    plot.yAxis->setRange(0.0, 2.0);
    plot.yAxis->setLabel(QStringLiteral("Power output in [mW/nm]"));
    plot.yAxis->grid()->setVisible(false);
    plot.yAxis2->setRange(0.0, 100.0);
    QCPGraph *const spectrum = addCustomGraph(plot, {}, spectrumPen, Qt::NoBrush, plot.yAxis);
    addCustomGraph(plot, filterBand(), filterColor, filterColor, plot.yAxis2);
    for (const Dye &dye : makeDyes(dyes)) {
        addCustomGraph(plot, dye.excitation, QPen(dye.color, 2.0, Qt::DashLine), Qt::NoBrush,
                       plot.yAxis2);
        addCustomGraph(plot, dye.emission, dye.color, faint(dye.color), plot.yAxis2);
    }
    showFrames(state, plot, points, [&plot, spectrum](const QVector<QPointF> &frame) {
        QVector<QCPGraphData> samples;
        samples.reserve(frame.size());
        for (const QPointF &point : frame)
            samples.append(QCPGraphData(point.x(), point.y()));
        spectrum->data()->set(samples, true);
        plot.replot(QCustomPlot::rpImmediateRefresh);
    });
}

Comparison frameCase(int points, int dyes, double ofQwt, bool custom)
{
    using std::placeholders::_1;
    Comparison result;
    result.name =
        "New spectrum of " + std::to_string(points) + " points, " + std::to_string(dyes) + " dyes";
    result.ours = "WavelengthChart";
    result.body = std::bind(updateOurs, _1, points, dyes);
    result.peers = { { "QwtPlot", std::bind(updateQwt, _1, points, dyes), ofQwt } };
    if (custom)
        result.peers.push_back({ "QCustomPlot", std::bind(updateCustomPlot, _1, points, dyes) });
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    return runComparisons(argc, argv,
                          { frameCase(2048, 10, 0.5, true), frameCase(2048, 0, 1.15, true),
                            frameCase(2048, 50, 0.0, false), frameCase(8192, 10, 0.0, false),
                            frameCase(32768, 10, 0.0, false) });
}
