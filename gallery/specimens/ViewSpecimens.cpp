#include "gallery/Rainbow.h"
#include "gallery/simulation/Dyes.h"
#include "gallery/simulation/Spectrometer.h"
#include "gallery/specimens/Specimens_p.h"

#include <Pelorin/Channel>
#include <Pelorin/ChannelGroup>
#include <Pelorin/ChannelSliders>
#include <Pelorin/FluorophoreTagName>
#include <Pelorin/PulsesView>
#include <Pelorin/QualityIndicator>
#include <Pelorin/SignalGraph>
#include <Pelorin/SubPulsesView>
#include <Pelorin/TavrinChart>
#include <Pelorin/TriggerActionView>
#include <Pelorin/WavelengthChart>
#include <Pelorin/WavelengthSelector>
#include <Pelorin/WavelengthSpectrum>

#include <QChartView>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLineSeries>
#include <QValueAxis>

#include <cmath>

using Specimens::sized;

namespace {

constexpr quint32 seed = 20;
constexpr int barMargin = 10;

QWidget *makeWavelengthChart()
{
    constexpr double nm = 546.0;
    constexpr double bandwidth = 10.0;
    constexpr double power = 40.0;
    Simulation::Spectrometer spectrometer(seed);
    spectrometer.setWavelength(nm);
    spectrometer.setBandwidth(bandwidth);
    spectrometer.setPower(power);
    auto *chart = new WavelengthChart(0, nullptr);
    chart->setWavelengthRange(350.0, 800.0);
    chart->setFilterPowerRange(0.0, 100.0, Converter::pwrMW1);
    chart->setFluorophores(Simulation::dyes());
    chart->setFluorophoresVisible(true);
    chart->setWavelengthBandwidthPower(nm, bandwidth, power);
    chart->setTotalPower(power, Converter::pwrMW1);
    chart->setSpectrumPowerRange(0.0, std::ceil(1.1 * spectrometer.peak()), Converter::pwrMW1);
    chart->setSpectrometerData(spectrometer.nextFrame());
    return sized(chart, 760, 420);
}

QWidget *makeTavrinChart()
{
    auto *chart = new TavrinChart;
    auto *line = new QtCharts::QLineSeries;
    for (int nm = 400; nm <= 700; nm += 2)
        line->append(nm, 100.0 * std::exp(-std::pow((nm - 546.0) / 40.0, 2)));
    line->setColor(chart->generateRgbColor(546.0));
    chart->addSeries(line);
    for (const Qt::Alignment side : { Qt::AlignBottom, Qt::AlignLeft }) {
        auto *axis = new QtCharts::QValueAxis;
        axis->setLabelFormat(QStringLiteral("%d"));
        axis->setLabelsFont(QFont(QStringLiteral("Calibri"), 10));
        chart->addAxis(axis, side);
        line->attachAxis(axis);
    }
    chart->legend()->hide();
    auto *view = new QtCharts::QChartView(chart);
    view->setRenderHint(QPainter::Antialiasing);
    return sized(view, 320, 200);
}

QWidget *makeFluorophoreTagName()
{
    auto *view = new QGraphicsView;
    auto *scene = new QGraphicsScene(view);
    auto *tag = new FluorophoreTagName(QStringLiteral("Alexa 488"), QString());
    scene->addItem(tag);
    view->setScene(scene);
    view->setFrameShape(QFrame::NoFrame);
    const QSize size = tag->boundingRect().size().toSize();
    return sized(view, size.width() + 4, size.height() + 4);
}

template<class Bar>
Bar *bar(int minNm, int maxNm)
{
    auto *result = new Bar(barMargin);
    result->setPowerRange(0, 100);
    result->setWavelengthRange(minNm, maxNm);
    return sized(result, 320, 130);
}

QWidget *makeWavelengthSpectrum()
{
    return bar<WavelengthSpectrum>(400, 700);
}

QWidget *makeWavelengthSpectrumNG()
{
    return bar<Rainbow>(350, 750);
}

QWidget *makeWavelengthSelector()
{
    auto *selector = bar<WavelengthSelector>(400, 750);
    const int powers[] = { 30, 75, 45, 60 };
    for (int i = 0; i < 4; ++i) {
        selector->setChannel(i, 435.0 + 80.0 * i, powers[i]);
        selector->enableChannel(i, true);
    }
    return sized(selector, 320, 190);
}

QWidget *makeChannel()
{
    auto *channel = new Channel(0);
    channel->enableChannel(true);
    channel->setChannel(488.0, 75);
    return channel;
}

QWidget *makeChannelGroup()
{
    auto *group = new ChannelGroup;
    for (int i = 0; i < 8; ++i) {
        group->setChannel(i, 425.0 + 42.0 * i, 20 + 23 * i % 70);
        group->enableChannel(i, i % 3 != 2);
    }
    return group;
}

QWidget *makeChannelSliders()
{
    auto *sliders = new ChannelSliders(0);
    sliders->enableChannel(0, true);
    sliders->setChannel(0, 488.0, 75);
    sliders->setFixedWidth(380);
    return sliders;
}

QWidget *makePulsesView()
{
    auto *view = new PulsesView;
    view->setPulseInterval(12.5);
    return view;
}

QWidget *makeSubPulsesView()
{
    auto *view = new SubPulsesView;
    view->setSubPulseCount(5);
    return view;
}

QWidget *makeTriggerActionView()
{
    auto *view = new TriggerActionView;
    view->setPulseCount(14);
    return view;
}

/// A burst in a block of samples.
QWidget *makeSignalGraph()
{
    constexpr int count = 400;
    QVector<short> block(count);
    for (int i = 0; i < count; ++i)
        block[i] = short(24000.0 * std::exp(-std::pow((i - 200) / 60.0, 2)) * std::sin(i / 6.0));
    auto *graph = new SignalGraph;
    graph->clearData(); // it begins with samples of its own
    graph->insertData(block, 0, count);
    return sized(graph, 320, 140);
}

QWidget *makeQualityIndicator()
{
    auto *indicator = new QualityIndicator;
    indicator->setQualityValue(77.0);
    return indicator;
}

} // namespace

QVector<Specimen> Specimens::views()
{
    return {
        { "WavelengthChart", makeWavelengthChart },
        { "TavrinChart", makeTavrinChart },
        { "FluorophoreTagName", makeFluorophoreTagName },
        { "WavelengthSpectrum", makeWavelengthSpectrum },
        { "WavelengthSpectrumNG", makeWavelengthSpectrumNG },
        { "WavelengthSelector", makeWavelengthSelector },
        { "Channel", makeChannel },
        { "ChannelGroup", makeChannelGroup },
        { "ChannelSliders", makeChannelSliders },
        { "PulsesView", makePulsesView },
        { "SubPulsesView", makeSubPulsesView },
        { "TriggerActionView", makeTriggerActionView },
        { "SignalGraph", makeSignalGraph },
        { "QualityIndicator", makeQualityIndicator },
    };
}
