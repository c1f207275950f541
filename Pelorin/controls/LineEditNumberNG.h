#ifndef PELORIN_CONTROLS_LINEEDITNUMBERNG_H
#define PELORIN_CONTROLS_LINEEDITNUMBERNG_H

#include "Pelorin/controls/LineEditNumberBase.h"

/// A field for one bounded number, shown with a fixed number of decimals. It can stand for
/// infinity, steps the digit left of the cursor with the arrow keys, and can open a slider below
/// itself.
///
/// It keeps two values apart. The \e current value belongs to the application, and only a commit
/// changes it; the \e edit value follows keys and popup slider. valueChanging() reports the edit,
/// valueChanged() the commit. Values are in the unit of the application; what the signals carry is
/// rounded to valuePrecision(), but for the valueChanged() of a step and for infinity.
///
/// An edit begins with a key and lives as long as the edit timer runs. A value from the device does
/// not touch it: meanwhile setValue() sets the current value alone, and the field keeps what is
/// typed.
///
/// - The text is edited: valueChanging() with the number, clamped; the field shows what is typed.
/// - Return, Enter, loss of focus, or the popup slider settles: the edit value is committed and
///   shown; valueChanging() if its text changed thereby, then valueChanged() if the text of the
///   current value changed.
/// - Up or Down: valueChanging(), then valueChanged(), also at a limit.
/// - The popup slider is dragged: the field follows, valueChanging().
/// - The edit is left alone for the edit timeout: the field shows the current value again,
///   valueChanging() with it, and all is selected.
///
/// An edit that was given up so is not forgotten: a later Return or loss of focus commits it.
///
/// Beside digits, signs, the point (a comma becomes one) and the letters of "inf", the keys are
/// Backspace, Delete, Home, End, Left and Right. All others, with any modifier, have no effect and
/// reach no parent. The steps of Up and Down work in a read-only field too; only a disabled one is
/// out of reach.
///
/// A number beyond the range is clamped, a text that is no number counts as 0. Not-a-number changes
/// nothing. A range may be given the wrong way round.
///
/// The popup slider belongs to the field and goes with it; it may also be deleted before. It closes
/// when a key is pressed, when the focus is lost, and when the main window of the application
/// property `APPLICATIONWINDOWPTR` (see TavrinMainWindow) moves or changes its size. That property
/// is read when the field is built.
class PELORIN_EXPORT LineEditNumberNG : public LineEditNumberBase
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue USER true)
    Q_PROPERTY(double minimum READ minimum STORED false)
    Q_PROPERTY(double maximum READ maximum STORED false)
    Q_PROPERTY(int valuePrecision READ valuePrecision WRITE setValuePrecision)
    Q_PROPERTY(int integerDigits READ integerDigits WRITE setIntegerDigits)
    Q_PROPERTY(QString disabledContent READ disabledContent WRITE setDisabledContent)

public:
    /// At 100 on 100 to 2000 with 2 decimals, room for 4 integer digits, an edit timeout of 3000
    /// ms, without infinity and without popup slider.
    explicit LineEditNumberNG(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The edit value has moved to \a value, or the field has gone back to the current value.
    void valueChanging(double value);
    /// \a value was committed, or set by changeValue() or a range that leaves no other.
    void valueChanged(double value);

public Q_SLOTS:
    /// The number of decimals. Adjusts the width; the field is rewritten with the next value.
    /// Silent.
    void setValuePrecision(int digits) { LineEditNumberBase::setValuePrecision(digits); }

    /// Sets the current value, and in the absence of an edit the field and the edit value. Silent.
    void setValue(double value) { LineEditNumberBase::setValue(value); }
    /// As setValue(), then valueChanged(), also when the value did not change or is under edit.
    void changeValue(double value) { LineEditNumberBase::changeValue(value); }

    /// Ends given the wrong way round are used as they are, with a warning in the log; not-a-number
    /// is ignored. If the current value lies outside, it is clamped and valueChanged() emitted,
    /// unless \a ignoreValueChanges. The width stays.
    void setRange(double min, double max, bool ignoreValueChanges = false)
    {
        LineEditNumberBase::setRange(min, max, ignoreValueChanges);
    }

    /// The digits before the decimal point for which to make room at the least. \a allowShrink
    /// fixes the width at just the room that is needed; a width once fixed stays.
    void setIntegerDigits(int digits, bool allowShrink = false)
    {
        LineEditNumberBase::setIntegerDigits(digits, allowShrink);
    }

    /// What to show instead of the number while disabled, from the next value or change of the
    /// enabled state on. Empty for the number.
    void setDisabledContent(QString content) { LineEditNumberBase::setDisabledContent(content); }

    /// After how many milliseconds without a key an edit is given up. Less than 0 counts as 0. An
    /// edit under way gets the new time from now on.
    void setEditTimeout(int timeout) { LineEditNumberBase::setEditTimeout(timeout); }
    /// Without the timeout there is no edit state: an edit ends by commit alone, and setValue()
    /// overwrites what is typed. A timer that runs goes on.
    void enableEditTimeout(bool enable) { LineEditNumberBase::enableEditTimeout(enable); }

    /// Lets the field take infinity, which it shows as "∞": typed as "inf" or by any number above
    /// the range, or by the far end of the popup slider.
    void enableInfinity(bool enable) { LineEditNumberBase::enableInfinity(enable); }

    /// Adds or removes the button that opens the popup slider. With \a logarithmic its scale is a
    /// square root, which spreads the low end; else it is linear.
    void popUpSliderEnable(bool enable, bool logarithmic)
    {
        LineEditNumberBase::popUpSliderEnable(enable, logarithmic);
    }
    /// Closes the popup slider if it is enabled and open.
    void popUpSliderHide() { LineEditNumberBase::popUpSliderHide(); }

    /// Shows \a pixmap in front of the number; a null one takes it away.
    void setIndicatorIcon(QPixmap pixmap) { LineEditNumberBase::setIndicatorIcon(pixmap); }

private Q_SLOTS:
    void slotMainWindowMoved(QPoint oldGlobalPos, QPoint newGlobalPos)
    {
        LineEditNumberBase::slotMainWindowMoved(oldGlobalPos, newGlobalPos);
    }
    void slotMainWindowResized(QRect globalRect)
    {
        LineEditNumberBase::slotMainWindowResized(globalRect);
    }
    void textEdited(QString newText) { LineEditNumberBase::textEdited(newText); }
    void editTimeout() { LineEditNumberBase::editTimeout(); }
    void priPopupSliderVisibilityChange(bool checked)
    {
        LineEditNumberBase::priPopupSliderVisibilityChange(checked);
    }
    void priPopupSliderValueChanging(double value)
    {
        LineEditNumberBase::priPopupSliderValueChanging(value);
    }
    void priPopupSliderValueChanged(double value)
    {
        LineEditNumberBase::priPopupSliderValueChanged(value);
    }

private:
    void reportValueChanging(double value) override { Q_EMIT valueChanging(value); }
    void reportValueChanged(double value) override { Q_EMIT valueChanged(value); }
};

#endif
