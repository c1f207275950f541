#ifndef PELORIN_SLIDERS_VERTICALSCALESLIDER_H
#define PELORIN_SLIDERS_VERTICALSCALESLIDER_H

#include "Pelorin/sliders/SliderAssembly.h"

/// A VerticalSlider that traces its changes: one debug line for each.
/// When it emits what, SliderAssembly tells.
class PELORIN_EXPORT VerticalScaleSlider : public VerticalSliderAssembly
{
    Q_OBJECT
    Q_PROPERTY(int valuePrecision READ valuePrecision WRITE setValuePrecision)
    Q_PROPERTY(int labelDecimalDigits READ labelDecimalDigits WRITE setLabelDecimalDigits)
    Q_PROPERTY(int labelRoundingDigits READ labelRoundingDigits WRITE setLabelRoundingDigits)

public:
    /// The slider stands left of the title with \a sliderFirst, else right of it. Range and value
    /// begin as those of ScaleSliderNG and LineEditNumberNG.
    VerticalScaleSlider(ScaleSliderNG::ScaleType type, bool sliderFirst, QWidget *parent);

Q_SIGNALS:
    /// The value is moving.
    void valueChanging(double value);
    /// The value has settled.
    void valueChanged(double value);

public Q_SLOTS:
    /// Shows \a value, clamped to the range, in silence. While a handle is held the slider stays
    /// with the hand, and the number alone is set.
    void setValue(double value) { SliderAssembly::setValue(value); }
    /// As setValue(), then valueChanging() and valueChanged(), also when nothing changed. Silent
    /// while a handle is held.
    void changeValue(double value) { SliderAssembly::changeValue(value); }
    /// The range of slider and number field; ignored by the slider if it has steps. The handle
    /// keeps its place, so the value follows: set it again afterwards to keep it. With \a
    /// ignoreValueChanges nothing is emitted.
    void setRange(double min, double max, bool ignoreValueChanges = false)
    {
        SliderAssembly::setRange(min, max, ignoreValueChanges);
    }
    /// See ScaleSliderNG::setMaxLabels().
    void setMaxLabels(int maxLabels) { slider->setMaxLabels(maxLabels); }
    /// Writes the debug line, before valueChanging() is emitted.
    void priValueChanging(double value);
};

#endif
