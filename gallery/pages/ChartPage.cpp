#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"
#include "gallery/simulation/Dyes.h"
#include "gallery/simulation/Spectrometer.h"

#include <Pelorin/HorizontalSlider>
#include <Pelorin/VerticalLabel>
#include <Pelorin/WavelengthChart>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QShowEvent>

#include <cmath>

namespace {

using Simulation::Spectrometer;

constexpr quint32 seed = 20;

/// Runs the spectrometer while the page is seen.
class ChartPage : public QWidget
{
public:
    Spectrometer spectrometer{ seed };

protected:
    void showEvent(QShowEvent *event) override
    {
        QWidget::showEvent(event);
        spectrometer.start();
    }
    void hideEvent(QHideEvent *event) override
    {
        spectrometer.stop();
        QWidget::hideEvent(event);
    }
};

WavelengthChart *makeChart()
{
    auto *chart = new WavelengthChart(0, nullptr);
    chart->setObjectName(QStringLiteral("chart"));
    chart->setWavelengthRange(350.0, 800.0);
    chart->setFilterPowerRange(0.0, 100.0, Converter::pwrMW1);
    chart->setFluorophores(Simulation::dyes());
    chart->setFluorophoresVisible(true);
    return chart;
}

void logSignals(WavelengthChart *chart, SignalLog *log)
{
    const QString name = QStringLiteral("chart");
    QObject::connect(chart, &WavelengthChart::sigSpectrometerVisibilityChanged, log,
                     [log, name](bool visible) {
                         log->note(name, QStringLiteral("sigSpectrometerVisibilityChanged"),
                                   QVariant(visible).toString());
                     });
    QObject::connect(chart, &WavelengthChart::sigFluorophoreVisibilityStateChanged, log,
                     [log, name](bool excitation, bool emission, bool dynamic) {
                         log->note(name, QStringLiteral("sigFluorophoreVisibilityStateChanged"),
                                   QStringLiteral("%1, %2, %3")
                                       .arg(QVariant(excitation).toString(),
                                            QVariant(emission).toString(),
                                            QVariant(dynamic).toString()));
                     });
}

} // namespace

QWidget *buildChartPage()
{
    auto *page = new ChartPage;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    WavelengthChart *const chart = makeChart();
    auto *log = new SignalLog;
    logSignals(chart, log);

    HorizontalSlider *const wavelength =
        PageParts::slider("Wavelength", "nm", 400.0, 700.0, 546.0, 1);
    HorizontalSlider *const bandwidth = PageParts::slider("Bandwidth", "nm", 1.0, 50.0, 10.0, 1);
    HorizontalSlider *const power = PageParts::slider("Power", "mW", 0.0, 100.0, 40.0, 1);
    Spectrometer *const spectrometer = &page->spectrometer;
    const auto follow = [=] {
        spectrometer->setWavelength(wavelength->slider->value0());
        spectrometer->setBandwidth(bandwidth->slider->value0());
        spectrometer->setPower(power->slider->value0());
        chart->setWavelengthBandwidthPower(wavelength->slider->value0(),
                                           bandwidth->slider->value0(), power->slider->value0());
        chart->setTotalPower(power->slider->value0(), Converter::pwrMW1);
        chart->setSpectrumPowerRange(0.0, std::ceil(1.1 * spectrometer->peak()), Converter::pwrMW1);
    };
    for (HorizontalSlider *slider : { wavelength, bandwidth, power })
        QObject::connect(slider, &HorizontalSlider::valueChanging, chart, follow);
    QObject::connect(spectrometer, &Spectrometer::frameReady, chart,
                     &WavelengthChart::setSpectrometerData);
    follow();
    chart->setSpectrometerData(spectrometer->nextFrame());

    grid->addWidget(chart, 0, 0, 1, 3);
    grid->addWidget(wavelength, 1, 0);
    grid->addWidget(bandwidth, 1, 1);
    grid->addWidget(power, 1, 2);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 2, 0, 1, 3);
    grid->setRowStretch(0, 1);
    return page;
}
