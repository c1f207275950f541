#include "Pelorin/sliders/RangedScaleSlider.h"
#include "benchmarks/sliders/DragStep.h"
#include "benchmarks/support/Comparison.h"

namespace {

/// The stop stands at the far end, so that the start has the whole way.
void dragOurs(benchmark::State &state)
{
    RangedScaleSlider slider(nullptr);
    slider.setStartRange(0.0, 1000.0);
    slider.setStopRange(0.0, 1000.0);
    slider.resize(DragStep::length, slider.height());
    showAndSettle(slider);
    slider.setCurrentStopValue(1000.0, false);
    slider.setCurrentStartValue(0.0, false);
    DragStep::run(state, slider, &RangedScaleSlider::startHandleMoved, QPoint(17, 17));
}

} // namespace

int main(int argc, char **argv)
{
    Comparison drag;
    drag.name = "Drag step, 1024 px";
    drag.ours = "RangedScaleSlider";
    drag.body = dragOurs;
    drag.peers = { { "QwtSlider with scale", DragStep::runQwt, 0.5 } };

    return runComparisons(argc, argv, { drag });
}
