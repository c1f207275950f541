#ifndef PELORIN_SLIDERS_RANGEDINPUTSLIDERNG_H
#define PELORIN_SLIDERS_RANGEDINPUTSLIDERNG_H

#include "Pelorin/sliders/RangedInputPanel.h"

class LineEditNumberNG;
class ScaleSliderNG;

/// A double ScaleSliderNG with two number fields, for the two ends of a sweep. Start and stop have
/// one range; the slider keeps the start below the stop and their distance between its limits, and
/// pushes the other end where it must.
///
/// | Cause | Signals |
/// |---|---|
/// | Mouse move in a drag | startValueChanging(), stopValueChanging(), each if it changed |
/// | Release | startValueChanged(), stopValueChanged(), each if not as at the press |
/// | A number committed in a field | startValueChanging(), startValueChanged(), |
/// | | stopValueChanging(), stopValueChanged(), in pairs for each end that changed |
/// | setRange(), setDoubleRange() | each of the four, if that value of the slider changed |
/// | setStartValue(), setStopValue() | none |
///
/// A number typed that changes nothing is not corrected in its field.
class PELORIN_EXPORT RangedInputSliderNG : public RangedInputPanel
{
    Q_OBJECT
    Q_PROPERTY(double startValue READ startValue WRITE setStartValue)
    Q_PROPERTY(double stopValue READ stopValue WRITE setStopValue)
    Q_PROPERTY(int precision READ precision WRITE setPrecision)
    Q_PROPERTY(int valuePrecision READ valuePrecision WRITE setValuePrecision)
    Q_PROPERTY(int labelDecimalDigits READ labelDecimalDigits WRITE setLabelDecimalDigits)
    Q_PROPERTY(int labelRoundingDigits READ labelRoundingDigits WRITE setLabelRoundingDigits)

public:
    /// \a sideMargin is the free space in pixels at both sides of the rows and at both ends of the
    /// track, so that they line up. Slider and fields start on ranges of their own, and with a
    /// distance of 400 to 900; the application sets both.
    explicit RangedInputSliderNG(int sideMargin, QWidget *parent = nullptr);

    double startValue() const;
    double stopValue() const;

    /// The decimals of slider and fields.
    void setPrecision(int decimals);
    int precision() const { return m_precision; }

    /// The decimals of the slider alone.
    void setValuePrecision(int decimals);
    int valuePrecision() const;

    /// The decimals of the labels at the two ends of the scale.
    void setLabelDecimalDigits(int decimals);
    int labelDecimalDigits() const;

    /// The decimals of the labels between them.
    void setLabelRoundingDigits(int decimals);
    int labelRoundingDigits() const;

Q_SIGNALS:
    /// The start is moving.
    void startValueChanging(double value);
    /// The start has settled.
    void startValueChanged(double value);
    /// The stop is moving.
    void stopValueChanging(double value);
    /// The stop has settled.
    void stopValueChanged(double value);

public Q_SLOTS:
    /// The range of slider and fields. The handles keep their places, so the values follow: set
    /// them again afterwards to keep them. With \a ignoreValueChanges nothing is emitted.
    void setRange(double min, double max, bool ignoreValueChanges = false);
    /// The smallest and the largest distance of start and stop, as ScaleSliderNG takes them. With
    /// \a ignoreValueChanges nothing is emitted.
    void setDoubleRange(double min, double max, bool ignoreValueChanges = false);
    /// Sets the start; the stop yields where it must. Silent. Refused while a handle is held.
    void setStartValue(double value);
    /// Sets the stop; the start yields where it must. Silent. Refused while a handle is held.
    void setStopValue(double value);

private Q_SLOTS:
    void startValueInputChanged(double value);
    void stopValueInputChanged(double value);
    void startValueSliderChanging(double value);
    void stopValueSliderChanging(double value);
    void startValueSliderChanged(double value);
    void stopValueSliderChanged(double value);

private:
    void showValues();
    template<typename SetValue>
    void takeInput(SetValue setValue);

    LineEditNumberNG *m_startInput;
    LineEditNumberNG *m_stopInput;
    ScaleSliderNG *m_slider;
    int m_precision = 0;
};

#endif
