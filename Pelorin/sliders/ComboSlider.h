#ifndef PELORIN_SLIDERS_COMBOSLIDER_H
#define PELORIN_SLIDERS_COMBOSLIDER_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/NudgeHold.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class ComboBox;
class ComboSliderScale;
class ComboSliderUnit;
class LineEditNumber;
class ScaleSlider;

/// One value of the instrument on a slider and in a number field, with two selectors: one chooses
/// the quantity ("scale"), the other its unit, which brings range, steps and scale type along. Of
/// the first generation.
///
/// | Cause | Signals, in order |
/// |---|---|
/// | Mouse move in a drag | valueChanging() |
/// | Release of the handle | valueEntered(), valueChanged() |
/// | Return in the field, or its loss of the focus in an edit | valueEntered(), valueChanged() |
/// | Up or down key in the field | valueChanged() |
/// | Another scale chosen | selectionChanged(), scaleIndexChanged() |
/// | Another unit chosen | selectionChanged(), unitIndexChanged() |
/// | setValue() | none |
///
/// Readings come by setValue(). For a quarter of a second after each step by a key they wait: a
/// reading that is on its way from the instrument is still the old value.
class PELORIN_EXPORT ComboSlider : public QWidget
{
    Q_OBJECT

public:
    /// Without scales, and so without a selectable value. \a sideMargin pixels stay free at both
    /// sides of selectors and slider.
    explicit ComboSlider(int sideMargin, QWidget *parent = nullptr);
    ~ComboSlider() override;

    /// Adds \a scale at the end and becomes its parent. Its units are shown at once if it is the
    /// first. Emits selectionChanged(). Null is ignored.
    void addScale(ComboSliderScale *scale);

    /// The current index of the scale selector; -1 without scales.
    int scaleIndex() const;
    /// The current index of the unit selector; -1 without units.
    int unitIndex() const;

    /// The value of the slider, in the current unit.
    double value() const;

    /// Does nothing: the precision comes from the unit.
    void setPrecision(int precision);

    /// Chooses between two grounds. Has to be called before the widget is shown.
    void setDarkBackground(bool dark);

    /// Whether the scale at \a index has not been hidden; false out of range.
    bool isScaleVisible(int index) const;

    /// The number field, owned by the combined slider.
    LineEditNumber *getLineInput() const { return m_lineInput; }

Q_SIGNALS:
    /// Scale or unit was chosen or set again, or a scale was added. One choice may send it more than
    /// once.
    void selectionChanged(int scaleIndex, int unitIndex);
    void scaleIndexChanged(int index);
    void unitIndexChanged(int index);
    /// A value is to be set: within the limits of the unit, and on one of its steps.
    void valueChanged(double value);
    /// The handle is being dragged.
    void valueChanging(double value);
    /// The value as it was typed or dragged, on a step if the scale has them, before it is limited
    /// to the unit.
    void valueEntered(double value);

public Q_SLOTS:
    /// Shows a reading on slider and field, limited and snapped as the slider does it. Silent. After
    /// a step by a key it waits; of several that wait, the last one is shown.
    void setValue(double value);

    /// Chooses a scale as ComboBox::setCurrentIndex() does it, and shows its units; emits
    /// selectionChanged().
    void setCurrentScaleIndex(int index);
    /// Chooses a unit as ComboBox::setCurrentIndex() does it. Silent.
    void setCurrentUnitIndex(int index);

    /// Shows or hides a unit of the current scale in the selector. Ignored out of range, as are all
    /// indices below.
    void setUnitVisibility(int index, bool visible);
    void setScaleTitle(int scaleIndex, QString title);
    void setScaleVisible(int scaleIndex, bool visible);

    /// Gives a unit another range. The current value is pulled into it if it is the current unit.
    void setUnitRange(int scaleIndex, int unitIndex, double min, double max);

    void setEnabled(bool enabled);

    /// Takes type, range, steps and labels from the current unit, and pulls the value into the
    /// range. Silent.
    void updateSlider();
    /// Emits selectionChanged().
    void emitSelectionIndexes();
    /// Fills the unit selector anew for the current scale, then updateSlider() and
    /// selectionChanged().
    void updateUnitCombo();
    /// Fills the scale selector anew and keeps the current index, then updateUnitCombo().
    void updateScaleCombo();

    /// Takes the number in the field: ends an edit, emits valueEntered(), then valueChanged() with
    /// the value within the unit, which slider and field show.
    void acceptInputValue();
    /// Shows \a value in the field alone, in the form of the current unit. Silent.
    void setInputValue(double value);

    /// An edit begins: the value is remembered.
    void enterEditMode();
    /// An edit is over.
    void exitEditMode();
    /// An edit is given up, and the remembered value is back. Silent.
    void cancelEditMode();

    /// Steps the value up (1 and more) or down (0 and less) to the next entry of the unit's step
    /// list, or by \a direction times its smallest shown digit without one. Emits valueChanged(),
    /// also at the end of the range.
    void nudge(int direction);

    /// Shows the reading that waits.
    void updateFeedbackValue();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void configureFields(int sideMargin);
    void connectFields();
    void layOut(int sideMargin);

    ComboSliderScale *scale(int index) const;
    ComboSliderUnit *currentUnit() const;
    void showNumber(double value, const ComboSliderUnit &unit);
    double nudgedByDigit(int direction, const ComboSliderUnit &unit) const;
    double nudgedToStep(int direction, const ComboSliderUnit &unit) const;

    ComboBox *m_scaleCombo;
    LineEditNumber *m_lineInput;
    ComboBox *m_unitCombo;
    ScaleSlider *m_slider;
    QList<QPointer<ComboSliderScale>> m_scales;
    NudgeHold m_nudgeHold;
    double m_feedbackValue = 0.0;
    bool m_editMode = false;
    double m_savedValue = 0.0;
};

#endif
