#ifndef PELORIN_SLIDERS_RANGEDINPUTSLIDER_H
#define PELORIN_SLIDERS_RANGEDINPUTSLIDER_H

#include "Pelorin/sliders/RangedInputPanel.h"

class LineEditNumber;
class RangedScaleSlider;

/// A RangedScaleSlider with two number fields: the panel of the first generation for the two ends
/// of a sweep. New dialogs take RangedInputSliderNG.
///
/// The panel keeps the numbers that were given by code or typed in, and keeps the start at or below
/// the stop among these. A drag moves the fields, but not these numbers.
///
/// | Cause | Signals |
/// |---|---|
/// | Release of a handle | startValueChanged() or stopValueChanged() |
/// | Turn of the wheel on the slider | startValueChanged(), stopValueChanged() |
/// | A number saved in a field, | the other end's signal if the slider dragged it along; then, |
/// | checkStartInput(), checkStopInput() | always, startValueChanged() or stopValueChanged() |
/// | setStartValue(), setStopValue() | the other end's signal if the slider dragged it along |
/// | All other slots | none |
///
/// A not-a-number is ignored wherever a value is set, an infinite value is clamped like any other,
/// and a range that is not finite is ignored as a whole.
class PELORIN_EXPORT RangedInputSlider : public RangedInputPanel
{
    Q_OBJECT
    Q_PROPERTY(int precision READ precision WRITE setPrecision)

public:
    /// \a sideMargin is the free space in pixels at both sides of the rows and at both ends of the
    /// track, so that they line up. The slider starts at 400 to 900 for the start and has no stop
    /// range; the application sets both ranges.
    explicit RangedInputSlider(int sideMargin, QWidget *parent = nullptr);

    /// The decimals of the numbers from now on. The last of them is the step of the arrow keys and
    /// of the wheel.
    void setPrecision(int decimals);
    int precision() const { return m_precision; }

Q_SIGNALS:
    /// The start has settled.
    void startValueChanged(double value);
    /// The stop has settled.
    void stopValueChanged(double value);

public Q_SLOTS:
    /// The range of the start, on which its number is set anew. Silent.
    void setStartRange(double min, double max);
    /// The range of the stop, on which its number is set anew. Silent.
    void setStopRange(double min, double max);
    /// Sets the start, clamped to its range, and pushes the number of the stop if that is lower.
    /// With \a adjustStop a stop handle below it is dragged along by the slider, which then
    /// reports stopValueChanged().
    void setStartValue(double value, bool adjustStop = false);
    /// Sets the stop, clamped to its range, and pushes the number of the start if that is higher.
    /// With \a adjustStart a start handle above it is dragged along by the slider, which then
    /// reports startValueChanged().
    void setStopValue(double value, bool adjustStart = false);
    /// As setStartValue() with the stop dragged along, then startValueChanged() with the number
    /// that was stored.
    void checkStartInput(double value);
    /// As setStopValue() with the start dragged along, then stopValueChanged() with the number that
    /// was stored.
    void checkStopInput(double value);
    /// Writes \a value into the start field, and nothing else.
    void setStartInput(double value);
    /// Writes \a value into the stop field, and nothing else.
    void setStopInput(double value);
    /// Sets the start, and with \a enable holds it there against handle, wheel and field.
    void setFixedStart(bool enable, double value);
    /// Sets the stop, and with \a enable holds it there against handle, wheel and field.
    void setFixedStop(bool enable, double value);

private:
    LineEditNumber *m_startInput;
    LineEditNumber *m_stopInput;
    RangedScaleSlider *m_slider;
    double m_startValue = 0.0;
    double m_stopValue = 0.0;
    int m_precision = 0;
    double m_startMin = 0.0;
    double m_startMax = 0.0;
    double m_stopMin = 0.0;
    double m_stopMax = 0.0;
};

#endif
