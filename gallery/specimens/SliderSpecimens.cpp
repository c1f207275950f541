#include "gallery/PageParts.h"
#include "gallery/specimens/Specimens_p.h"

#include <Pelorin/ComboSlider>
#include <Pelorin/ComboSliderScale>
#include <Pelorin/ComboSliderUnit>
#include <Pelorin/HorizontalSlider>
#include <Pelorin/RangedInputSlider>
#include <Pelorin/RangedInputSliderNG>
#include <Pelorin/RangedScaleSlider>
#include <Pelorin/ScaleSlider>
#include <Pelorin/VerticalLabel>
#include <Pelorin/VerticalScaleSlider>
#include <Pelorin/VerticalSlider>

#include <QLabel>

using Specimens::sized;

namespace {

constexpr int width = 320;
constexpr int sideMargin = 12;
constexpr int uprightHeight = 260;

QWidget *makeScaleSliderNG()
{
    auto *slider = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleSqrt, nullptr);
    slider->setSideMargins(sideMargin);
    slider->setRange(0.0, 1600.0, true);
    slider->setMaxLabels(4); // square numbers: 100, 400, 900
    slider->setLabelRoundingDigits(0);
    slider->setValue0(250.0);
    slider->setFixedWidth(width);
    return slider;
}

QWidget *makeScaleSlider()
{
    auto *slider = new ScaleSlider;
    slider->setSideMargins(sideMargin);
    slider->setPrecision(1);
    slider->setScaleType(ScaleSlider::LogarithmicScale);
    slider->setAll(1.0, 1000.0, 50.0);
    slider->setFixedWidth(width);
    return slider;
}

QWidget *makeHorizontalSlider()
{
    HorizontalSlider *slider = PageParts::slider("Power", "mW", 0.0, 250.0, 90.0, 1);
    slider->slider->setMaxLabels(5);
    slider->slider->setLabelRoundingDigits(0);
    slider->setFixedWidth(width);
    return slider;
}

template<class Assembly>
QWidget *makeUpright(const char *title, const char *unit, double min, double max, double value)
{
    auto *slider = new Assembly(ScaleSliderNG::ScaleLinear, true, nullptr);
    slider->titleLabel->setText(QLatin1String(title));
    slider->unitLabel->setText(QLatin1String(unit));
    slider->setRange(min, max, true);
    slider->setValue(value);
    slider->setFixedHeight(uprightHeight);
    return slider;
}

QWidget *makeVerticalSlider()
{
    return makeUpright<VerticalSlider>("Gain", "%", 0.0, 100.0, 36.0);
}

QWidget *makeVerticalScaleSlider()
{
    return makeUpright<VerticalScaleSlider>("Wavelength", "nm", 400.0, 700.0, 488.0);
}

QWidget *makeComboSlider()
{
    auto *slider = new ComboSlider(sideMargin);
    auto *power = new ComboSliderScale(QStringLiteral("Power"), slider);
    power->addUnit(new ComboSliderUnit(QStringLiteral("mW"), 0.0, 240.0, 1));
    power->addUnit(new ComboSliderUnit(QStringLiteral("%"), 0.0, 100.0, 0));
    auto *light = new ComboSliderScale(QStringLiteral("Wavelength"), slider);
    light->addUnit(new ComboSliderUnit(QStringLiteral("nm"), 400.0, 900.0, 1));
    slider->addScale(power);
    slider->addScale(light);
    slider->setValue(90.0);
    return sized(slider, width, slider->sizeHint().height() + 12);
}

RangedScaleSlider *sweep(RangedScaleSlider *slider)
{
    slider->setSideMargins(sideMargin);
    slider->setStartRange(400.0, 900.0);
    slider->setStopRange(400.0, 900.0);
    slider->setCurrentStartValue(500.0, false);
    slider->setCurrentStopValue(700.0, false);
    slider->setFixedWidth(width);
    return slider;
}

QWidget *makeRangedScaleSlider()
{
    return sweep(new RangedScaleSlider);
}

template<class Panel>
Panel *sweepPanel()
{
    auto *panel = new Panel(sideMargin);
    panel->setUnitText(QStringLiteral("nm"));
    panel->setDarkBackground(true);
    panel->setPrecision(1);
    panel->setFixedWidth(width);
    return panel;
}

template<class Panel>
Panel *atSweep(Panel *panel)
{
    panel->setStopValue(700.0);
    panel->setStartValue(500.0);
    return panel;
}

QWidget *makeRangedInputSlider()
{
    auto *panel = sweepPanel<RangedInputSlider>();
    panel->setStartRange(400.0, 900.0);
    panel->setStopRange(400.0, 900.0);
    return atSweep(panel);
}

QWidget *makeRangedInputSliderNG()
{
    auto *panel = sweepPanel<RangedInputSliderNG>();
    panel->setDoubleRange(20.0, 300.0, true);
    panel->setRange(400.0, 900.0, true);
    return atSweep(panel);
}

} // namespace

QVector<Specimen> Specimens::sliders()
{
    return {
        { "ScaleSliderNG", makeScaleSliderNG },
        { "ScaleSlider", makeScaleSlider },
        { "HorizontalSlider", makeHorizontalSlider },
        { "VerticalSlider", makeVerticalSlider },
        { "VerticalScaleSlider", makeVerticalScaleSlider },
        { "ComboSlider", makeComboSlider },
        { "RangedScaleSlider", makeRangedScaleSlider },
        { "RangedInputSlider", makeRangedInputSlider },
        { "RangedInputSliderNG", makeRangedInputSliderNG },
    };
}
