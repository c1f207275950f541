#include "Pelorin/sliders/VerticalSlider.h"

VerticalSlider::VerticalSlider(ScaleSliderNG::ScaleType type, bool sliderFirst, QWidget *parent)
    : VerticalSliderAssembly(type, parent)
{
    wire(this);
    layOut(sliderFirst);
}
