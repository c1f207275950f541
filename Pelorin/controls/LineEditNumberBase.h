#ifndef PELORIN_CONTROLS_LINEEDITNUMBERBASE_H
#define PELORIN_CONTROLS_LINEEDITNUMBERBASE_H

#include "Pelorin/PelorinGlobal.h"

#include <QLineEdit>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>

class QAction;
class QTimer;
class ScaleSliderNG;

/// All that LineEditNumberNG and LineEditPowerNG do. Not for direct use, and not to be named by an
/// application: take one of the two.
///
/// It has no meta-object of its own, so that each of the two stands in the meta-object system right
/// above QLineEdit, with signals and slots of its own. They forward their slots to the operations
/// of the same names here, and emit their signals when they are told to report.
class PELORIN_EXPORT LineEditNumberBase : public QLineEdit
{
public:
    ~LineEditNumberBase() override;

    /// The committed value, as it stands, unrounded; infinite when infinity was committed.
    double value() const { return m_curValue; }
    /// The lower end of the range; above maximum() when the range was given the wrong way round.
    double minimum() const { return m_minimum; }
    /// The upper end of the range.
    double maximum() const { return m_maximum; }
    /// The decimals that are shown, as they were set.
    int valuePrecision() const { return m_precision; }
    /// The digits before the decimal point for which there is room at the least.
    int integerDigits() const { return m_integerDigits; }
    /// What is shown instead of the number while the field is disabled; empty for the number.
    QString disabledContent() const { return m_disabledContent; }

    /// Makes the field at least as wide as the longest number of its range, with a digit to spare
    /// before and behind the decimal point, and exactly so wide if it may shrink. Runs by itself
    /// when decimals or integer digits are set, but not when the range is. Unlike the operation of
    /// QWidget that it hides, it does not resize the widget.
    void adjustSize();

protected:
    explicit LineEditNumberBase(QWidget *parent);

    /// Emits valueChanging(\a value).
    virtual void reportValueChanging(double value) = 0;
    /// Emits valueChanged(\a value).
    virtual void reportValueChanged(double value) = 0;

    // The public slots
    void setValuePrecision(int digits);
    void setValue(double value);
    void changeValue(double value);
    void setRange(double min, double max, bool ignoreValueChanges);
    void setIntegerDigits(int digits, bool allowShrink);
    void setDisabledContent(const QString &content);
    void setEditTimeout(int timeout);
    void enableEditTimeout(bool enable);
    void enableInfinity(bool enable);
    void popUpSliderEnable(bool enable, bool logarithmic);
    void popUpSliderHide();
    void setIndicatorIcon(const QPixmap &pixmap);

    // The private slots
    void slotMainWindowMoved(QPoint oldGlobalPos, QPoint newGlobalPos);
    void slotMainWindowResized(QRect globalRect);
    void textEdited(const QString &newText);
    void editTimeout();
    void priPopupSliderVisibilityChange(bool checked);
    void priPopupSliderValueChanging(double value);
    void priPopupSliderValueChanged(double value);

    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // Construction
    void createEditTimer();
    void createPopupSlider();
    void followMainWindow();
    void createIndicatorIcon();
    void createPopupSliderButton();

    // Numbers and texts
    int decimals() const;
    bool validateValue(double *v) const;
    QString valueToText(double v) const;
    double textToValue(const QString &text) const;
    double publicValue(double v) const;

    // The two values and the field
    bool setEditValue(double v);
    bool setCurValue(double v);
    void showValue(const QString &text);
    bool acceptEditValue(const QString &text);
    void stepEditValue(int direction);
    bool isEditing() const;
    void restartEditTimer();

    // The popup slider
    bool isPopupShown() const;
    void adjustPopupSliderRange();
    void setPopupSliderValue();
    void adjustPopupSliderPosition();
    void hidePopupSlider();

    QTimer *m_editTimer = nullptr;
    int m_editTimeoutMs = 3000;
    bool m_editTimeoutEnabled = true;
    QAction *m_indicatorAction = nullptr;
    int m_precision = 2;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    double m_curValue = 0.0;
    QString m_curText;
    int m_integerDigits = 4;
    bool m_allowShrink = false;
    double m_editValue = 0.0;
    QString m_editText;
    QString m_disabledContent;
    bool m_infinityEnabled = false;
    QRect m_mainWindowGeometry;
    QPoint m_popupRelativePos;
    QPointer<ScaleSliderNG> m_popupSlider;
    bool m_popupSliderEnabled = false;
    QAction *m_popupSliderAction = nullptr;
};

#endif
