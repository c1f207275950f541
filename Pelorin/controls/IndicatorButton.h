#ifndef PELORIN_CONTROLS_INDICATORBUTTON_H
#define PELORIN_CONTROLS_INDICATORBUTTON_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/Indicator.h"

#include <QString>
#include <QWidget>

/// A button with a lamp beside it, for a state of an instrument that is asked for by the button and
/// shown by the lamp.
///
/// A press turns the state round and emits toggled(), as a request; by default the lamp waits for
/// the answer. setActive() is that answer: it sets state and lamp and emits nothing.
class PELORIN_EXPORT IndicatorButton : public QWidget
{
    Q_OBJECT

public:
    /// Where the lamp stands.
    enum Position : int {
        Above = 0, ///< above the button
        Left = 1,  ///< as any other number
        Right = 2,
        Below = 3
    };
    Q_ENUM(Position)

    /// Not active, with a green lamp when it is.
    explicit IndicatorButton(IndicatorButton::Position position, QWidget *parent = nullptr);
    IndicatorButton(const QString &text, IndicatorButton::Position position,
                    QWidget *parent = nullptr);

    Indicator::Color onColor() const { return m_onColor; }
    Indicator::Color offColor() const { return m_offColor; }
    /// The lamp shows the state in the new colour at once, as with the next two.
    void setOnColor(const Indicator::Color &on);
    void setOffColor(const Indicator::Color &off);
    void setColors(const Indicator::Color &on, const Indicator::Color &off);

    /// The lamp's Indicator::setBlink().
    void setBlink(bool blink, int interval = 500, Indicator::Color color = Indicator::Grey);

    /// An emission button keeps its shortcut.
    void setButtonText(const QString &text);
    void setButtonColor(Button::Color color);
    void setButtonSize(Button::Size size);
    void setButtonSize(int width, int height);

    /// Enables lamp and button, but not this widget, whose isEnabled() stays as it is. Hides the
    /// operation of QWidget.
    void setEnabled(bool enabled);

    /// State and lamp from outside. Silent.
    void setActive(bool active);
    bool isActive() const { return m_active; }

    /// Whether the lamp follows a press at once, without waiting for setActive(). Off at first.
    void enableToggle(bool on) { m_toggleEnabled = on; }

    /// The button, owned by this widget.
    Button *button() const { return m_button; }

public Q_SLOTS:
    /// What a press does: turns the state round, lets the lamp follow if it may, emits toggled().
    void toggleState();
    /// See Button::setEmissionButtonStatus().
    void setEmissionButtonStatus(bool on);

Q_SIGNALS:
    /// The button was pressed, and asks for \a on. Never sent by setActive().
    void toggled(bool on);

private:
    void setup(IndicatorButton::Position position);
    void showState();

    Button *m_button = nullptr;
    Indicator *m_indicator = nullptr;
    bool m_active = false;
    bool m_toggleEnabled = false;
    Indicator::Color m_onColor = Indicator::Green;
    Indicator::Color m_offColor = Indicator::Grey;
};

#endif
