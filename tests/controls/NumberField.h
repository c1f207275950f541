#ifndef PELORIN_TESTS_NUMBERFIELD_H
#define PELORIN_TESTS_NUMBERFIELD_H

#include "Pelorin/controls/LineEditNumberNG.h"
#include "tests/support/SignalRecorder.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTimer>
#include <QtTest>

/// A number field over 0 to 100 with two decimals, and what it says.
struct NumberField
{
    static constexpr int longTimeMs = 600000; ///< an edit timeout that never comes by itself

    explicit NumberField(double value = 0.0, double max = 100.0)
        : recorder(&edit, QString(), &QLineEdit::staticMetaObject)
    {
        edit.setEditTimeout(longTimeMs);
        edit.setRange(0.0, max, true);
        edit.setValue(value);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               const QString &text = QString())
    {
        QTest::sendKeyEvent(QTest::Press, &edit, key, text, modifiers);
    }

    /// Replaces all that stands in the field, one key after the other.
    void type(const QString &text)
    {
        edit.selectAll();
        for (const QChar &character : text)
            QTest::keyClick(&edit, character.toLatin1());
    }

    void loseFocus()
    {
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&edit, &out);
    }

    QTimer *timer() const { return edit.findChild<QTimer *>(); }
    bool isEditing() const { return timer()->isActive(); }

    LineEditNumberNG edit{ nullptr };
    SignalRecorder recorder;
};

/// The slots that the number field and the power field have alike, in their order.
inline QStringList numberFieldSlots()
{
    return { QStringLiteral("setValuePrecision(int)"),
             QStringLiteral("setValue(double)"),
             QStringLiteral("changeValue(double)"),
             QStringLiteral("setRange(double,double,bool)"),
             QStringLiteral("setIntegerDigits(int,bool)"),
             QStringLiteral("setDisabledContent(QString)"),
             QStringLiteral("setEditTimeout(int)"),
             QStringLiteral("enableEditTimeout(bool)"),
             QStringLiteral("enableInfinity(bool)"),
             QStringLiteral("popUpSliderEnable(bool,bool)"),
             QStringLiteral("popUpSliderHide()"),
             QStringLiteral("setIndicatorIcon(QPixmap)"),
             QStringLiteral("slotMainWindowMoved(QPoint,QPoint)"),
             QStringLiteral("slotMainWindowResized(QRect)"),
             QStringLiteral("textEdited(QString)"),
             QStringLiteral("editTimeout()"),
             QStringLiteral("priPopupSliderVisibilityChange(bool)"),
             QStringLiteral("priPopupSliderValueChanging(double)"),
             QStringLiteral("priPopupSliderValueChanged(double)") };
}

inline QString infinitySign()
{
    return QChar(0x221E);
}

inline QStringList list(const char *first)
{
    return { QLatin1String(first) };
}

inline QStringList list(const char *first, const char *second)
{
    return { QLatin1String(first), QLatin1String(second) };
}

#endif
