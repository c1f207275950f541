#ifndef PELORIN_TESTS_PANELPROBE_H
#define PELORIN_TESTS_PANELPROBE_H

#include "Pelorin/controls/IndicatorButton.h"

#include <QImage>
#include <QStringList>
#include <QTimer>

/// What can be seen of the buttons of a remote control panel, and a finger that presses them.
namespace PanelProbe {

constexpr QRgb red = 0xFFFF0000;
constexpr QRgb grey = 0xFF555555;
constexpr QRgb orange = 0xFFF58B2E;
constexpr QRgb green = 0xFF95D400;

/// The buttons in the order in which they were made, which is that from top to bottom.
inline QList<IndicatorButton *> buttonsOf(const QWidget &panel)
{
    return panel.findChildren<IndicatorButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/// A text in one line, as "Output enable".
inline QString plain(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

/// Null if no button of \a panel begins with \a text.
inline IndicatorButton *find(const QWidget &panel, const char *text)
{
    for (IndicatorButton *button : buttonsOf(panel)) {
        if (plain(button->button()->text()).startsWith(QLatin1String(text)))
            return button;
    }
    return nullptr;
}

inline Indicator &lampOf(const IndicatorButton &button)
{
    return *button.findChild<Indicator *>();
}

inline QTimer &timerOf(const IndicatorButton &button)
{
    return *lampOf(button).findChild<QTimer *>();
}

inline bool blinks(const IndicatorButton &button)
{
    return timerOf(button).isActive();
}

/// The colour in the middle of the lamp, as it is painted now.
inline QRgb shownColor(const IndicatorButton &button)
{
    const QImage picture = lampOf(button).grab().toImage();
    return picture.pixel(picture.rect().center());
}

/// "enabled on": whether the button takes a press, and its lamp, "off", "blinking" or "on"; what no
/// lamp of a panel may be is told as it is found.
inline QString look(const IndicatorButton &button)
{
    const bool enabled = button.button()->isEnabled();
    const Indicator::Color color = lampOf(button).color();
    QString lamp = QStringLiteral("in the wrong colour");
    if (color == button.onColor())
        lamp = blinks(button) ? QStringLiteral("on and blinking") : QStringLiteral("on");
    else if (color == button.offColor())
        lamp = blinks(button) ? QStringLiteral("blinking") : QStringLiteral("off");
    if (lampOf(button).isEnabled() != enabled)
        lamp += QStringLiteral(" without its button");
    if (blinks(button) && timerOf(button).interval() != 500)
        lamp += QStringLiteral(" at the wrong time");
    return (enabled ? QStringLiteral("enabled ") : QStringLiteral("disabled ")) + lamp;
}

/// look() of each button, from top to bottom.
inline QStringList looks(const QWidget &panel)
{
    QStringList result;
    for (const IndicatorButton *button : buttonsOf(panel))
        result << look(*button);
    return result;
}

/// As a hand would: nothing comes of it where the button is disabled.
inline void press(const IndicatorButton &button)
{
    button.button()->click();
}

} // namespace PanelProbe

#endif
