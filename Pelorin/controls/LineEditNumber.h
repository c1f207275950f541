#ifndef PELORIN_CONTROLS_LINEEDITNUMBER_H
#define PELORIN_CONTROLS_LINEEDITNUMBER_H

#include "Pelorin/controls/LineEdit.h"
#include "Pelorin/controls/NudgeHold.h"

/// \a value with \a digits significant digits, rounded and without an exponent: 1234.5 with two digits is "1200",
/// 0.012345 is "0.012". Zero has one digit less behind the point, "0.00" with three. With fewer than one
/// digit the answer is "0". The sign does not count as a digit.
PELORIN_EXPORT QString toSignificantDigits(double value, int digits);

/// A number field of the first generation. It takes the characters of a number only, reports the up and down keys,
/// and can be nudged by a fixed step. New dialogs take LineEditNumberNG.
///
/// For a quarter of a second after a nudge a text from outside waits: the reading that is on its way from the
/// instrument is still the old one.
class PELORIN_EXPORT LineEditNumber : public LineEdit
{
    Q_OBJECT

public:
    explicit LineEditNumber(QWidget *parent = nullptr);

    /// The text as a number; 0 if it is none.
    double number() const;

    /// The step of nudge(); 0 or less, or no finite number, for no nudging.
    void allowNudge(double step);

    /// \a character if it may stand in a number: a digit, '+', '-', '.', 'X' or 'x'. A comma becomes a point, and
    /// anything else a blank.
    static QChar processCharacter(QChar character);

Q_SIGNALS:
    /// The text has changed, by a key or from outside; \a value is its number.
    void numberChanged(double value);
    /// The text was saved; \a value is its number. A listener hears of it before it hears textSaved().
    void numberSaved(double value);
    /// The up key (1) or the down key (-1) was pressed. Who wants it to nudge connects it to nudge().
    void arrowPressed(int direction);

public Q_SLOTS:
    /// Shows \a value with \a precision decimals, or with \a precision significant digits, as setText() does.
    void setNumber(double value, int precision, bool significantDigitsEnabled);
    /// Shows \a value with \a precision decimals.
    void setNumber(double value, int precision);
    /// Shows what of \a text may stand in a number, and falls back on it from now on. Right after a nudge the
    /// text waits; of several that wait, the last one is shown.
    void setText(QString text);
    /// Emits numberChanged() with the number in \a string.
    void emitNumberChanged(QString string);
    /// Emits numberSaved().
    void emitNumberSaved();
    /// Moves the number by \a direction steps and saves it: numberChanged(), numberSaved(), textSaved(). Writes a
    /// line to the log. Does nothing unless allowNudge() has set a step.
    void nudge(int direction);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void updateFeedbackValue();

private:
    double m_nudgeStep = 0.0;
    NudgeHold m_nudgeHold;
    QString m_feedbackValue;
};

#endif
