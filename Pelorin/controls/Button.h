#ifndef PELORIN_CONTROLS_BUTTON_H
#define PELORIN_CONTROLS_BUTTON_H

#include "Pelorin/PelorinGlobal.h"

#include <QPixmap>
#include <QPushButton>
#include <QString>

/// The push button of the library, in one of a few fixed sizes and colours.
///
/// Sizes in pixels; font, corners and colours come from the style sheet, by the properties
/// "button-size", "button-color" and "button-checked-color". The sheet is read when the button is
/// polished, so size and colours are set before it is shown.
class PELORIN_EXPORT Button : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(Color color READ color WRITE setColor)
    Q_PROPERTY(Color checkedColor READ checkedColor WRITE setCheckedColor)
    Q_PROPERTY(bool emissionButton READ isEmissionButton WRITE setEmissionButtonStatus)

public:
    enum Color : int { Red = 0, Grey = 1, DarkGrey = 2, Green = 3, Orange = 4 };
    Q_ENUM(Color)

    enum Size : int {
        Normal = 0,     ///< 95 x 55, normal text
        NormalFat = 1,  ///< 95 x 55, large bold text, as all fat ones
        Small = 2,      ///< 55 x 35, small text
        WideSmall = 3,  ///< 65 x 30, small text
        Square30 = 4,   ///< 30 x 30, fat
        Square40 = 5,   ///< 40 x 40, fat
        Square32 = 6,   ///< 32 x 32, fat
        WideFat = 7,    ///< 65 x 40, fat
        BigArrow = 8,   ///< 46 x 38, fat: as large as the big arrow pictures
        SmallArrow = 9, ///< 29 x 24, fat: as large as the small arrow pictures
        LongSmall = 10  ///< 85 x 35, small text
    };
    Q_ENUM(Size)

    /// A red button of the normal size, orange when checked.
    explicit Button(QWidget *parent = nullptr);
    explicit Button(const QString &text, QWidget *parent = nullptr);

    /// Fixes width and height and sets "button-size". A number outside of the enumeration does
    /// nothing.
    void setSize(Button::Size size);
    /// Fixes width and height and leaves the text as it is.
    void setSize(int width, int height);
    void setWidth(int width);

    /// Sets "button-color"; a number outside of the enumeration counts as Red.
    void setColor(Button::Color color);
    /// The number that was set last, as it was given.
    Button::Color color() const { return m_color; }

    /// Sets "button-checked-color"; a number outside of the enumeration counts as Orange. Red is
    /// special, and panels rely on it: it sets "button-color" instead, so that the button is red
    /// while it is not checked, and keeps the checked colour that it had.
    void setCheckedColor(Button::Color color);
    Button::Color checkedColor() const { return m_checkedColor; }

    /// An emission button switches a laser on: it has the shortcut Ctrl+Shift+E, says so in its
    /// tool tip, and cannot be pressed with the space bar, which somebody might hit by accident.
    ///
    /// Setting a text replaces the shortcut of any Qt button, so the text comes first.
    void setEmissionButtonStatus(bool on);
    bool isEmissionButton() const { return m_emissionButton; }

    /// Shows \a image over the button, but for a rim of two pixels.
    void setBackgroundImage(QPixmap image);

public Q_SLOTS:
    /// Emits clicked(bool, QString) with the button's text.
    void emitClicked(bool checked);

Q_SIGNALS:
    /// The button was clicked. Its text tells a receiver of many buttons which one; it is emitted
    /// before other receivers of QAbstractButton::clicked(bool) are called.
    void clicked(bool checked, QString text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void setup();

    Color m_color = Red;
    Color m_checkedColor = Orange;
    bool m_emissionButton = false;
};

#endif
