#ifndef PELORIN_SLIDERS_SLIDERASSEMBLY_H
#define PELORIN_SLIDERS_SLIDERASSEMBLY_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/sliders/ScaleSliderNG.h"

#include <QWidget>

class QLabel;
class QLayout;
class VerticalLabel;

/// What VerticalSlider, VerticalScaleSlider and HorizontalSlider share: a slider and a number field
/// that are kept in step, with a unit, on a panel. Not for direct use.
///
/// | Cause | Signals |
/// |---|---|
/// | Mouse move in a drag | valueChanging(), if the value changed |
/// | Release | valueChanged(), if it differs from the value at the press |
/// | A number committed in the field | valueChanging(), then valueChanged(), as the slider has it |
/// | changeValue() | valueChanging(), then valueChanged(), always |
/// | setRange() | each of the two, if the value of the slider changed |
/// | setValue() | none |
///
/// It has no meta-object of its own, so that each of the three declares its signals and slots
/// itself.
class PELORIN_EXPORT SliderAssembly : public QWidget
{
public:
    /// The decimals of slider and number field.
    void setValuePrecision(int decimals);
    int valuePrecision() const { return slider->valuePrecision(); }

    /// The decimals of the labels at the two ends of the scale.
    void setLabelDecimalDigits(int decimals) { slider->setLabelDecimalDigits(decimals); }
    int labelDecimalDigits() const { return slider->labelDecimalDigits(); }

    /// The decimals of the labels between them.
    void setLabelRoundingDigits(int decimals) { slider->setLabelRoundingDigits(decimals); }
    int labelRoundingDigits() const { return slider->labelRoundingDigits(); }

    // For texts and options that are not repeated here. Owned by the assembly; not to be replaced.
    LineEditNumberNG *lineEdit; ///< the number field
    QLabel *unitLabel;          ///< reads "?" until the application gives it a unit
    ScaleSliderNG *slider;      ///< the slider

protected:
    SliderAssembly(Qt::Orientation orientation, ScaleSliderNG::ScaleType type, QWidget *parent);
    ~SliderAssembly() override;

    /// Joins slider, field and the signals of \a self, which is this assembly in its own class. The
    /// application hears of a number that was typed through the slider alone, once it is clamped
    /// and snapped.
    template<typename Assembly>
    void wire(Assembly *self)
    {
        connect(slider, &ScaleSliderNG::valueChanging0, self, &Assembly::valueChanging);
        connect(slider, &ScaleSliderNG::valueChanging0, lineEdit, &LineEditNumberNG::setValue);
        connect(slider, &ScaleSliderNG::valueChanged0, self, &Assembly::valueChanged);
        connect(lineEdit, &LineEditNumberNG::valueChanged, slider, &ScaleSliderNG::changeValue0);
    }

    /// Puts \a content onto a panel of its own ground, which fills the assembly, or stands in the
    /// middle of it as wide as it needs to be.
    void placeOnPanel(QLayout *content, bool centered);

    void setValue(double value);
    void changeValue(double value);
    void setRange(double min, double max, bool ignoreValueChanges);
};

/// What VerticalSlider and VerticalScaleSlider share: number and unit over an upright slider with
/// its title beside it. Not for direct use.
class PELORIN_EXPORT VerticalSliderAssembly : public SliderAssembly
{
public:
    VerticalLabel *titleLabel; ///< reads "Title"; owned by the assembly, not to be replaced

protected:
    VerticalSliderAssembly(ScaleSliderNG::ScaleType type, QWidget *parent);

    /// Lays all out, the slider left of the title with \a sliderFirst, else right of it.
    void layOut(bool sliderFirst);
};

#endif
