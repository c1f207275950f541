#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ScaleSliderNG>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

/// As tall as the five rows of horizontal sliders beside it.
constexpr int tallest = 540;

ScaleSliderNG *makeSlider(const char *name, Qt::Orientation orientation,
                          ScaleSliderNG::ScaleType type)
{
    auto *slider = new ScaleSliderNG(orientation, type, nullptr);
    slider->setObjectName(QLatin1String(name));
    return slider;
}

ScaleSliderNG *makeDouble(const char *name, Qt::Orientation orientation)
{
    ScaleSliderNG *slider = makeSlider(name, orientation, ScaleSliderNG::ScaleLinear);
    slider->setDoubleSlider(true);
    slider->setDoubleRange(10.0, 60.0);
    slider->setRange(400.0, 700.0);
    slider->setValue1(560.0);
    slider->setValue0(515.0);
    return slider;
}

QString valueText(const ScaleSliderNG &slider)
{
    const int decimals = slider.isDoubleSlider() ? 0 : 1;
    const QString first = QString::number(slider.value0(), 'f', decimals);
    if (!slider.isDoubleSlider())
        return first;
    return first + QStringLiteral(" \u2013 ") + QString::number(slider.value1(), 'f', decimals);
}

/// The number beside a slider. It follows the signals alone, so it shows what an application would
/// see.
QLabel *makeReadout(ScaleSliderNG *slider, SignalLog *log)
{
    QLabel *readout = PageParts::label(valueText(*slider), "label");
    readout->setObjectName(slider->objectName() + QStringLiteral("Readout"));
    readout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    readout->setMinimumWidth(slider->isDoubleSlider() ? 88 : 56);
    const auto follow = [slider, readout, log](const char *signal) {
        return [slider, readout, log, signal](double value) {
            readout->setText(valueText(*slider));
            log->note(slider->objectName(), QLatin1String(signal), QString::number(value, 'g', 6));
        };
    };
    QObject::connect(slider, &ScaleSliderNG::valueChanging0, readout, follow("valueChanging0"));
    QObject::connect(slider, &ScaleSliderNG::valueChanging1, readout, follow("valueChanging1"));
    QObject::connect(slider, &ScaleSliderNG::valueChanged0, readout, follow("valueChanged0"));
    QObject::connect(slider, &ScaleSliderNG::valueChanged1, readout, follow("valueChanged1"));
    QObject::connect(slider, &ScaleSliderNG::handleGrapped, readout, [slider, log] {
        log->note(slider->objectName(), QStringLiteral("handleGrapped"));
    });
    return readout;
}

QFrame *sliderCard(const char *caption, ScaleSliderNG *slider, SignalLog *log)
{
    if (slider->orientation() == Qt::Vertical)
        slider->setMaximumHeight(tallest);
    return PageParts::readoutCard(QLatin1String(caption), makeReadout(slider, log), slider);
}

ScaleSliderNG *withValue(ScaleSliderNG *slider, double value)
{
    slider->setValue0(value);
    return slider;
}

void addTypes(QGridLayout *grid, SignalLog *log)
{
    const auto flat = Qt::Horizontal;
    grid->addWidget(
        sliderCard("Linear",
                   withValue(makeSlider("linear", flat, ScaleSliderNG::ScaleLinear), 40.0), log),
        0, 0);
    grid->addWidget(sliderCard("Square root",
                               withValue(makeSlider("root", flat, ScaleSliderNG::ScaleSqrt), 25.0),
                               log),
                    0, 1);
    grid->addWidget(
        sliderCard("Linear, steps",
                   withValue(makeSlider("steps", flat, ScaleSliderNG::ScaleLinearSteps), 81.0),
                   log),
        1, 0);
    grid->addWidget(
        sliderCard("Square root, steps",
                   withValue(makeSlider("rootSteps", flat, ScaleSliderNG::ScaleSqrtSteps), 12.0),
                   log),
        1, 1);
}

void addLooks(QGridLayout *grid, SignalLog *log)
{
    const auto flat = Qt::Horizontal;
    const auto linear = ScaleSliderNG::ScaleLinear;
    grid->addWidget(sliderCard("Two handles, 10 to 60 apart", makeDouble("band", flat), log), 2, 0);

    ScaleSliderNG *framed = withValue(makeSlider("framed", flat, linear), 60.0);
    framed->setSliderSize(false, true, true);
    grid->addWidget(sliderCard("With a frame", framed, log), 2, 1);

    ScaleSliderNG *small = withValue(makeSlider("small", flat, linear), 30.0);
    small->setSliderSize(true, true, false);
    grid->addWidget(sliderCard("Small", small, log), 3, 0);

    ScaleSliderNG *bare = withValue(makeSlider("bare", flat, linear), 70.0);
    bare->setSliderSize(true, false, false);
    grid->addWidget(sliderCard("Small, without labels", bare, log), 3, 1);

    ScaleSliderNG *disabled = withValue(makeSlider("disabled", flat, linear), 50.0);
    disabled->setEnabled(false);
    grid->addWidget(sliderCard("Disabled", disabled, log), 4, 0);

    ScaleSliderNG *hidden = withValue(makeSlider("hidden", flat, linear), 50.0);
    hidden->setHideHandleOnDisable(true);
    hidden->setEnabled(false);
    grid->addWidget(sliderCard("Disabled, handle hidden", hidden, log), 4, 1);
}

void addVerticals(QGridLayout *grid, SignalLog *log)
{
    const auto upright = Qt::Vertical;
    grid->addWidget(
        sliderCard("Upright",
                   withValue(makeSlider("upright", upright, ScaleSliderNG::ScaleLinear), 65.0),
                   log),
        0, 2, 5, 1);
    grid->addWidget(sliderCard("Band", makeDouble("uprightBand", upright), log), 0, 3, 5, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 5, 0, 1, 4);
}

} // namespace

QWidget *buildSliderPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    addTypes(grid, log);
    addLooks(grid, log);
    addVerticals(grid, log);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(2, 176);
    grid->setColumnMinimumWidth(3, 176);
    grid->setRowStretch(5, 1);
    return page;
}
