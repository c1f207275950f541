#ifndef PELORIN_CONTROLS_LINEEDITPOWERNG_H
#define PELORIN_CONTROLS_LINEEDITPOWERNG_H

#include "Pelorin/controls/LineEditNumberBase.h"
#include "Pelorin/theme/Converter.h"

/// A field for a power: LineEditNumberNG in all but its class, and with a place for the unit in
/// which its user works. It shows no unit, and the value is a plain number.
///
/// What is said of LineEditNumberNG and of its signals and slots holds here word for word.
class PELORIN_EXPORT LineEditPowerNG : public LineEditNumberBase
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
    explicit LineEditPowerNG(QWidget *parent = nullptr);

Q_SIGNALS:
    void valueChanging(double value);
    void valueChanged(double value);

public Q_SLOTS:
    void setValuePrecision(int digits) { LineEditNumberBase::setValuePrecision(digits); }
    void setValue(double value) { LineEditNumberBase::setValue(value); }
    void changeValue(double value) { LineEditNumberBase::changeValue(value); }
    void setRange(double min, double max, bool ignoreValueChanges = false)
    {
        LineEditNumberBase::setRange(min, max, ignoreValueChanges);
    }
    void setIntegerDigits(int digits, bool allowShrink = false)
    {
        LineEditNumberBase::setIntegerDigits(digits, allowShrink);
    }
    void setDisabledContent(QString content) { LineEditNumberBase::setDisabledContent(content); }
    void setEditTimeout(int timeout) { LineEditNumberBase::setEditTimeout(timeout); }
    void enableEditTimeout(bool enable) { LineEditNumberBase::enableEditTimeout(enable); }
    void enableInfinity(bool enable) { LineEditNumberBase::enableInfinity(enable); }
    void popUpSliderEnable(bool enable, bool logarithmic)
    {
        LineEditNumberBase::popUpSliderEnable(enable, logarithmic);
    }
    void popUpSliderHide() { LineEditNumberBase::popUpSliderHide(); }
    void setIndicatorIcon(QPixmap pixmap) { LineEditNumberBase::setIndicatorIcon(pixmap); }

    /// Remembers the unit in which the application works. Nothing follows from it: neither text nor
    /// range, decimals nor unit of any value. Silent.
    void setBasePowerType(Converter::ePwrType basePwrType) { m_basePowerType = basePwrType; }

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

    Converter::ePwrType m_basePowerType = Converter::ePwrW1;
};

#endif
