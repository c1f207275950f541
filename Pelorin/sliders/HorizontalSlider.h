#ifndef PELORIN_SLIDERS_HORIZONTALSLIDER_H
#define PELORIN_SLIDERS_HORIZONTALSLIDER_H

#include "Pelorin/sliders/SliderAssembly.h"

/// A slider with its title, and its value as a number with a unit, above.
/// When it emits what, SliderAssembly tells.
class PELORIN_EXPORT HorizontalSlider : public SliderAssembly
{
    Q_OBJECT
    Q_PROPERTY(int valuePrecision READ valuePrecision WRITE setValuePrecision)
    Q_PROPERTY(int labelDecimalDigits READ labelDecimalDigits WRITE setLabelDecimalDigits)
    Q_PROPERTY(int labelRoundingDigits READ labelRoundingDigits WRITE setLabelRoundingDigits)

public:
    /// \a sideMargin is the free space in pixels at both sides of title and number, and at both
    /// ends of the track, so that they line up. The range is 0 to 100.
    HorizontalSlider(int sideMargin, ScaleSliderNG::ScaleType type, QWidget *parent);

    QLabel *titleLabel; ///< reads "Title"; owned by the assembly, not to be replaced

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
};

#endif
