#include "gallery/PageParts.h"
#include "gallery/application/Join.h"

#include <Pelorin/Display>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/QualityIndicator>
#include <Pelorin/SignalGraph>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using Simulation::Instrument;

namespace {

constexpr int digitHeight = 30;
constexpr int columns = 10;
constexpr int margin = 14;

/// A display that shows a reading, newest last; it is no wider than its column.
Display *makeDisplay(const char *name)
{
    auto *display = new Display(1, columns);
    display->setObjectName(QLatin1String(name));
    display->setFontSize(digitHeight);
    return display;
}

void show(Display *display, double value, const char *unit)
{
    display->setText(
        QStringLiteral("%1 %2").arg(value, columns - 3, 'f', 1).arg(QLatin1String(unit)));
    display->update();
}

QFrame *makePane(QVBoxLayout *&layout)
{
    auto *pane = new QFrame;
    pane->setProperty("widget-color", QStringLiteral("light-grey"));
    layout = new QVBoxLayout(pane);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(4);
    return pane;
}

void addRow(QVBoxLayout *layout, const char *caption, QWidget *widget)
{
    layout->addWidget(PageParts::label(QLatin1String(caption), "text"));
    layout->addWidget(widget, 0, Qt::AlignLeft);
    layout->addSpacing(8);
}

/// The set point as a number, which can be typed, stepped, or dragged below the field.
QWidget *makePowerEntry(const Controls::Desk &desk)
{
    auto *entry = new LineEditPowerNG;
    entry->setObjectName(QStringLiteral("powerEntry"));
    entry->setProperty("type", QStringLiteral("label"));
    entry->setValuePrecision(1);
    entry->setIntegerDigits(4);
    entry->popUpSliderEnable(true, false);
    followLimits(entry, desk);
    join(entry, Setpoints::power, desk);

    auto *box = new QWidget;
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(entry);
    row->addWidget(PageParts::label(QStringLiteral("mW"), "label"));
    return box;
}

} // namespace

QWidget *Controls::makeReadings(const Desk &desk)
{
    QVBoxLayout *layout = nullptr;
    QFrame *pane = makePane(layout);
    Display *power = makeDisplay("measuredPower");
    Display *wavelength = makeDisplay("measuredWavelength");
    auto *quality = new QualityIndicator;
    layout->addWidget(PageParts::label(desk.device.title, "label"));
    layout->addSpacing(8);
    addRow(layout, "Measured power", power);
    addRow(layout, "Set point", makePowerEntry(desk));
    addRow(layout, "Wavelength", wavelength);
    addRow(layout, "Quality", quality);
    layout->addStretch(1);

    Instrument *const instrument = &desk.instrument;
    show(power, instrument->power(), "mW");
    show(wavelength, instrument->wavelength(), "nm");
    quality->setQualityValue(0.0);
    QObject::connect(instrument, &Instrument::powerMeasured, power,
                     [power](double mW, double) { show(power, mW, "mW"); });
    QObject::connect(instrument, &Instrument::wavelengthChanged, wavelength,
                     [wavelength](double nm) { show(wavelength, nm, "nm"); });
    QObject::connect(instrument, &Instrument::qualityMeasured, quality,
                     &QualityIndicator::setQualityValue);
    return pane;
}

QWidget *Controls::makePhotodiode(const Desk &desk)
{
    QVBoxLayout *layout = nullptr;
    QFrame *pane = makePane(layout);
    auto *graph = new SignalGraph;
    graph->clearData();
    layout->addWidget(PageParts::label(QStringLiteral("Photodiode"), "text"));
    layout->addWidget(graph);
    layout->addStretch(1);
    QObject::connect(&desk.instrument, &Instrument::blockReady, graph,
                     [graph](const QVector<short> &block) {
                         graph->clearData();
                         graph->insertData(block, 0, block.size());
                         graph->update();
                     });
    return pane;
}
