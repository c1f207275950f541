#ifndef PELORIN_REMOTE_STATETABLE_P_H
#define PELORIN_REMOTE_STATETABLE_P_H

#include "Pelorin/controls/IndicatorButton.h"
#include "Pelorin/remote/PanelParts_p.h"

#include <array>
#include <cstddef>

/// What the state byte of a laser makes of the buttons of its panel: a table with one row a state and
/// one cell a button, and the one place that applies a row.
namespace StateTable {

enum class Access { Disabled, Enabled, Kept };

/// The lamp states that an application gives as numbers, and Kept for a lamp that stays as it is.
enum Lamp : int { Off = 0, Blinking = 1, On = 2, Kept = -1 };

struct Cell
{
    Access access;
    Lamp lamp;
};

constexpr Cell disabledOff{ Access::Disabled, Off };
constexpr Cell disabledKept{ Access::Disabled, Kept };
constexpr Cell enabledOff{ Access::Enabled, Off };
constexpr Cell enabledBlinking{ Access::Enabled, Blinking };
constexpr Cell enabledOn{ Access::Enabled, On };
constexpr Cell enabledKept{ Access::Enabled, Kept };
constexpr Cell kept{ Access::Kept, Kept };

template<std::size_t buttons>
using Row = std::array<Cell, buttons>;

/// Shows \a lamp, where every number other than Off and Blinking is On. A blinking lamp changes
/// between off and \a blinkColor, beginning anew at each call.
inline void showLamp(IndicatorButton &button, int lamp, Indicator::Color blinkColor)
{
    const bool blinking = lamp == Blinking;
    button.setActive(lamp != Off && !blinking);
    button.setBlink(blinking, PanelParts::blinkMs, blinking ? blinkColor : Indicator::Grey);
}

inline void apply(const Cell &cell, IndicatorButton &button, Indicator::Color blinkColor)
{
    if (cell.access != Access::Kept)
        button.setEnabled(cell.access == Access::Enabled);
    if (cell.lamp != Kept)
        showLamp(button, cell.lamp, blinkColor);
}

/// Applies the row of \a state. A state that the table does not know leaves the buttons alone.
template<std::size_t states, std::size_t buttonCount>
void applyState(const std::array<Row<buttonCount>, states> &table, uchar state,
                const std::array<IndicatorButton *, buttonCount> &buttons,
                const std::array<Indicator::Color, buttonCount> &blinkColors)
{
    if (state >= states)
        return;
    for (std::size_t i = 0; i < buttonCount; ++i)
        apply(table[state][i], *buttons[i], blinkColors[i]);
}

} // namespace StateTable

#endif
