#ifndef PELORIN_SPECTRAL_CHANNELBUTTONS_P_H
#define PELORIN_SPECTRAL_CHANNELBUTTONS_P_H

#include "Pelorin/controls/Button.h"

/// The small dark buttons of the channel controls.
namespace ChannelButtons {

inline Button *makeSmall(const QString &text)
{
    auto *button = new Button(text);
    button->setSize(Button::Small);
    button->setSize(30, 30);
    button->setColor(Button::DarkGrey);
    return button;
}

/// Green while the channel is on.
inline void makeSwitch(Button *button)
{
    button->setCheckable(true);
    button->setColor(Button::DarkGrey);
    button->setCheckedColor(Button::Green);
}

} // namespace ChannelButtons

#endif
