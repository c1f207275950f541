#include "Pelorin/sliders/VerticalScaleSlider.h"

#include <QDebug>

VerticalScaleSlider::VerticalScaleSlider(ScaleSliderNG::ScaleType type, bool sliderFirst,
                                         QWidget *parent)
    : VerticalSliderAssembly(type, parent)
{
    connect(slider, &ScaleSliderNG::valueChanging0, this, &VerticalScaleSlider::priValueChanging);
    wire(this);
    layOut(sliderFirst);
}

void VerticalScaleSlider::priValueChanging(double value)
{
    qDebug() << "VerticalScaleSlider::priValueChanging" << value;
}
