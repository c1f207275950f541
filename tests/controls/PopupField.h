#ifndef PELORIN_TESTS_POPUPFIELD_H
#define PELORIN_TESTS_POPUPFIELD_H

#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/controls/NumberField.h"

#include <QToolButton>

/// A shown field with its popup slider enabled.
struct PopupField : NumberField
{
    explicit PopupField(double value = 0.0, double max = 100.0)
        : NumberField(value, max)
    {
        edit.setGeometry(300, 200, 200, 30);
        edit.popUpSliderEnable(true, false);
        edit.show();
    }

    ScaleSliderNG *slider() const { return edit.findChild<ScaleSliderNG *>(); }
    QToolButton *button() const { return edit.findChild<QToolButton *>(); }
    void clickButton() { QTest::mouseClick(button(), Qt::LeftButton); }
    bool isOpen() const { return slider()->isVisible(); }
};

#endif
