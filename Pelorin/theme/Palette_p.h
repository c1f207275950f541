#ifndef PELORIN_THEME_PALETTE_P_H
#define PELORIN_THEME_PALETTE_P_H

#include <QColor>

/// The fixed colours of painted widgets. They do not come from the style sheet, but they are its
/// own.
namespace Palette {

constexpr QRgb track = 0xFFC5C6C6;
constexpr QRgb handle = 0xFF87212E;
/// The handle in the hand or under the keyboard: the red, let through a little.
constexpr QRgb activeHandle = 0xC887212E;
constexpr QRgb hover = 0xFFED6E00;
constexpr QRgb disabled = 0xFFA6A6A6;
constexpr QRgb text = 0xFF444444;

} // namespace Palette

#endif
