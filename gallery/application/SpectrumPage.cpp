#include "gallery/PageParts.h"
#include "gallery/application/Join.h"
#include "gallery/simulation/Dyes.h"

#include <Pelorin/DropDownNG>
#include <Pelorin/GUIWidget>
#include <Pelorin/HorizontalSlider>
#include <Pelorin/WavelengthChart>

#include <QHBoxLayout>
#include <QLabel>

#include <array>
#include <cmath>

using Simulation::Instrument;

namespace {

constexpr int chartHeight = 400;
constexpr double manyDigits = 500.0; // mW; beyond, labels with decimals touch each other

struct Harmonic
{
    const char *name;
    double nm;
};

/// The first one stands for none.
constexpr std::array<Harmonic, 4> harmonics{
    { { "None", 0.0 }, { "IR 1030 nm", 1030.0 }, { "SHG 515 nm", 515.0 }, { "THG 343 nm", 343.0 } }
};

double roundedUp(double density)
{
    return density < 2.0 ? std::ceil(density * 10.0) / 10.0 : std::ceil(density);
}

/// What the chart shows of the set points.
void showSetpoints(WavelengthChart *chart, const Instrument &instrument)
{
    chart->setWavelengthBandwidthPower(instrument.wavelength(), instrument.bandwidth(),
                                       instrument.powerSetpoint());
    const double top = roundedUp(1.1 * instrument.expectedPeak());
    if (top != chart->maxPower())
        chart->setSpectrumPowerRange(0.0, top, Converter::pwrMW1);
    const double limit = instrument.powerLimits().max;
    if (limit != chart->maxFilterPower())
        chart->setFilterPowerRange(0.0, limit, Converter::pwrMW1);
}

void addDyes(WavelengthChart *chart)
{
    chart->setFluorophores(Simulation::dyes());
    chart->setFluorophoresVisible(true);
}

WavelengthChart *makeChart(const Controls::Desk &desk)
{
    auto *chart = new WavelengthChart(0);
    chart->setObjectName(QStringLiteral("chart"));
    chart->setMinimumHeight(chartHeight);
    chart->setWavelengthRange(desk.device.chart.min, desk.device.chart.max);
    chart->setSpectrometerData({});
    if (desk.device.family == Device::Family::Ostrel || desk.device.family == Device::Family::Plain)
        addDyes(chart);

    Instrument *const instrument = &desk.instrument;
    const auto follow = [chart, instrument] { showSetpoints(chart, *instrument); };
    QObject::connect(instrument, &Instrument::wavelengthChanged, chart, follow);
    QObject::connect(instrument, &Instrument::bandwidthChanged, chart, follow);
    QObject::connect(instrument, &Instrument::powerSetpointChanged, chart, follow);
    follow();
    QObject::connect(instrument, &Instrument::powerMeasured, chart,
                     [chart](double mW, double) { chart->setTotalPower(mW, Converter::pwrMW1); });
    QObject::connect(instrument, &Instrument::frameReady, chart,
                     [chart](const QVector<QPointF> &frame) {
                         if (chart->isVisible()) // a page behind others has no use for it
                             chart->setSpectrometerData(frame);
                     });
    return chart;
}

HorizontalSlider *makeWavelength(const Controls::Desk &desk)
{
    HorizontalSlider *slider =
        PageParts::slider("Wavelength", "nm", desk.device.wavelengths.min,
                          desk.device.wavelengths.max, desk.instrument.wavelength(), 1);
    slider->setObjectName(QStringLiteral("wavelength"));
    join(slider, Setpoints::wavelength, desk);
    return slider;
}

/// A laser that has its lines only; without one of them it is not to be switched on unasked.
QWidget *makeHarmonics(const Controls::Desk &desk)
{
    auto *box = new QWidget;
    auto *list = new DropDownNG;
    list->setObjectName(QStringLiteral("harmonic"));
    for (const Harmonic &harmonic : harmonics)
        list->addItem(QLatin1String(harmonic.name));
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(PageParts::label(QStringLiteral("Harmonic"), "label"));
    layout->addWidget(list);
    layout->addStretch(1);

    Instrument *const instrument = &desk.instrument;
    QObject::connect(list, qOverload<int>(&DropDownNG::sigActivated), instrument,
                     [instrument, note = desk.note](int index) {
                         const Harmonic &harmonic = harmonics.at(std::size_t(index));
                         note(QStringLiteral("harmonic"), QLatin1String(harmonic.name));
                         if (harmonic.nm > 0.0)
                             instrument->requestWavelength(harmonic.nm);
                     });
    const auto show = [list](double nm) {
        for (std::size_t i = 1; i < harmonics.size(); ++i) {
            if (harmonics[i].nm == nm)
                list->setCurrentIndex(int(i));
        }
    };
    show(instrument->wavelength());
    QObject::connect(instrument, &Instrument::wavelengthSetpointChanged, list, [=](double nm) {
        if (list->currentIndex() > 0) // with none, the operator has turned away from them
            show(nm);
    });
    return box;
}

} // namespace

QWidget *Controls::makeSpectrumPage(const Desk &desk)
{
    auto *page = new GUIWidget;
    HorizontalSlider *bandwidth =
        PageParts::slider("Bandwidth", "nm", 1.0, 50.0, desk.instrument.bandwidth(), 1);
    bandwidth->setObjectName(QStringLiteral("bandwidth"));
    join(bandwidth, Setpoints::bandwidth, desk);
    HorizontalSlider *power = PageParts::slider("Power", "mW", 0.0, 100.0, 0.0, 1);
    power->setObjectName(QStringLiteral("power"));
    if (desk.instrument.powers().max > manyDigits)
        power->setLabelRoundingDigits(0);
    followLimits(power, desk);
    join(power, Setpoints::power, desk);

    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap / 2);
    row->addWidget(desk.device.family == Device::Family::Marquel ? makeHarmonics(desk)
                                                                 : makeWavelength(desk),
                   1);
    row->addWidget(bandwidth, 1);
    row->addWidget(power, 1);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(PageParts::gap, PageParts::gap, PageParts::gap, PageParts::gap);
    layout->setSpacing(PageParts::gap);
    layout->addWidget(makeChart(desk));
    layout->addLayout(row);

    QObject::connect(&desk.instrument, &Instrument::faultChanged, page,
                     &GUIWidget::setOverlayMessage);
    return page;
}
