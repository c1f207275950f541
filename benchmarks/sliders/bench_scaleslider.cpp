#include "Pelorin/sliders/ComboSlider.h"
#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "Pelorin/sliders/ScaleSlider.h"
#include "benchmarks/sliders/DragStep.h"
#include "benchmarks/support/Comparison.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>

namespace {

void dragOurs(benchmark::State &state)
{
    ScaleSlider slider;
    slider.setRange(0.0, 1000.0);
    slider.resize(DragStep::length, slider.height());
    showAndSettle(slider);
    slider.setCurrentValue(0.0);
    DragStep::run(state, slider, &ScaleSlider::handleMoved, QPoint(17, 17));
}

/// From a linear unit to decades and back, with the repaint.
void changeUnits(benchmark::State &state)
{
    ComboSlider control(10);
    auto *scale = new ComboSliderScale(QStringLiteral("Rate"), &control);
    scale->addUnit(new ComboSliderUnit(QStringLiteral("kHz"), 0.0, 250.0, 1));
    auto *decades = new ComboSliderUnit(QStringLiteral("Hz"), 1.0, 5000.0, 3);
    decades->setScaleType(ScaleSlider::LogarithmicScale);
    decades->setStepList({ 1.0, 2.0, 5.0, 10.0, 100.0, 5000.0 });
    scale->addUnit(decades);
    control.addScale(scale);
    control.resize(DragStep::length, 110);
    showAndSettle(control);
    int unit = 0;
    for (auto step : state) {
        Q_UNUSED(step)
        unit = 1 - unit;
        control.setCurrentUnitIndex(unit);
        paintNow(control);
    }
}

/// A QwtSlider and a spin box that are given another scale.
void changeQwtScales(benchmark::State &state)
{
    QWidget panel;
    auto *layout = new QHBoxLayout(&panel);
    auto *slider = new QwtSlider(Qt::Horizontal);
    slider->setScalePosition(QwtSlider::TrailingScale);
    auto *number = new QDoubleSpinBox;
    layout->addWidget(slider, 1);
    layout->addWidget(number);
    panel.resize(DragStep::length, 110);
    showAndSettle(panel);
    bool wide = false;
    for (auto step : state) {
        Q_UNUSED(step)
        wide = !wide;
        const double end = wide ? 5000.0 : 250.0;
        slider->setScale(wide ? 1.0 : 0.0, end);
        slider->setValue(end);
        number->setRange(0.0, end);
        number->setDecimals(wide ? 0 : 1);
        number->setValue(end);
        paintNow(panel);
    }
}

} // namespace

int main(int argc, char **argv)
{
    Comparison drag;
    drag.name = "Drag step, 1024 px";
    drag.ours = "ScaleSlider";
    drag.body = dragOurs;
    drag.peers = { { "QwtSlider with scale", DragStep::runQwt, 0.5 } };

    Comparison units;
    units.name = "Change of unit, repainted";
    units.ours = "ComboSlider";
    units.body = changeUnits;
    units.peers = { { "QwtSlider and QDoubleSpinBox", changeQwtScales } };

    return runComparisons(argc, argv, { drag, units });
}
