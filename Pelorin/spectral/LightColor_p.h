#ifndef PELORIN_SPECTRAL_LIGHTCOLOR_P_H
#define PELORIN_SPECTRAL_LIGHTCOLOR_P_H

#include <QColor>
#include <QtGlobal>

#include <algorithm>
#include <cmath>

/// The colours of light, by its wavelength in nm. Three ramps: a hue ramp for the rainbow of the
/// first generation, a gamma-corrected ramp for the visible band alone, and the same for charts,
/// which fades to white where light cannot be seen.
namespace LightColor {

// Where the gamma-corrected ramps change from one pair of primaries to the next. The bands are
// closed at their upper ends.
constexpr double violet = 380.0;
constexpr double blue = 440.0;
constexpr double cyan = 490.0;
constexpr double green = 510.0;
constexpr double yellow = 580.0;
constexpr double red = 645.0;
constexpr double infrared = 750.0;

/// How far the ends of the visible band are from full brightness: 1 - 0.3 to the power of 0.8.
constexpr double endLoss = 0.6183221090381824;

struct Components
{
    double red;
    double green;
    double blue;

    bool isValid() const
    {
        const auto fits = [](double part) { return part >= 0.0 && part <= 255.0; };
        return fits(red) && fits(green) && fits(blue);
    }
};

inline bool isVisible(double wavelength)
{
    return wavelength >= violet && wavelength <= infrared;
}

/// A part of full brightness as the eye sees it.
inline double gammaPart(double part)
{
    return std::floor(255.0 * std::pow(part, 0.8));
}

/// The colour of a wavelength that can be seen.
inline Components visibleColor(double w)
{
    if (w <= blue) {
        const double fade = 0.3 + 0.7 * (w - violet) / (blue - violet);
        return { gammaPart(fade * (blue - w) / (blue - violet)), 0.0, gammaPart(fade) };
    }
    if (w <= cyan)
        return { 0.0, gammaPart((w - blue) / (cyan - blue)), 255.0 };
    if (w <= green)
        return { 0.0, 255.0, gammaPart((green - w) / (green - cyan)) };
    if (w <= yellow)
        return { gammaPart((w - green) / (yellow - green)), 255.0, 0.0 };
    if (w <= red)
        return { 255.0, gammaPart((red - w) / (red - yellow)), 0.0 };
    return { gammaPart(0.3 + 0.7 * (infrared - w) / (infrared - red)), 0.0, 0.0 };
}

/// Dark grey outside of the visible band.
inline QRgb gammaRamp(double wavelength)
{
    if (!isVisible(wavelength))
        return qRgb(63, 63, 63);
    const Components color = visibleColor(wavelength);
    return color.isValid() ? qRgb(int(color.red), int(color.green), int(color.blue)) : 0;
}

/// The same on a chart from \a min to \a max nm: from the ends of the visible band it fades to white
/// at the ends of the chart, and is white outside of it. \a alpha is limited to 1, and cut to a
/// whole level of 255. A level below 0 gives an invalid colour, and so does a fade that reaches
/// into infinity.
inline QColor chartRamp(double wavelength, double min, double max, double alpha)
{
    const double opacity = std::trunc(255.0 * std::min(alpha, 1.0));
    Components color{ 255.0, 255.0, 255.0 };
    if (wavelength >= min && wavelength <= violet) {
        const double way = min < violet ? (wavelength - min) / (violet - min) : 1.0;
        const double strong = std::floor(255.0 * (1.0 - endLoss * way));
        color = { strong, std::floor(255.0 * (1.0 - way)), strong };
    } else if (isVisible(wavelength)) {
        color = visibleColor(wavelength);
    } else if (wavelength > infrared && wavelength <= max) {
        const double way = (wavelength - infrared) / (max - infrared);
        const double back = (max - wavelength) / (max - infrared);
        const double weak = std::floor(255.0 * way);
        color = { std::floor(255.0 * (1.0 - endLoss * back)), weak, weak };
    }
    if (!color.isValid() || !(opacity >= 0.0))
        return QColor();
    return QColor(int(color.red), int(color.green), int(color.blue), int(opacity));
}

/// A rainbow by hue: ultraviolet comes out of black, infrared darkens, then loses its colour, then
/// goes to black.
inline QRgb hueRamp(int w)
{
    const auto color = [](double hue, int saturation, double lightness) {
        QColor result;
        result.setHsl(int(hue), saturation, int(lightness), 255);
        return result.rgba();
    };
    if (w <= 300)
        return color(280, 200, 0);
    if (w < 380)
        return color(280, 200, (w - 300) * 128.0 / 80.0);

    struct Band
    {
        int end;
        double hueWidth;
        double width;
        double hueAtEnd;
    };
    static constexpr Band bands[] = {
        { 435, 15, 55, 265 }, { 500, 75, 65, 190 }, { 520, 15, 20, 175 }, { 565, 105, 45, 70 },
        { 590, 20, 25, 50 },  { 625, 25, 35, 25 },  { 675, 25, 50, 0 },
    };
    for (const Band &band : bands) {
        if (w < band.end)
            return color((band.end - w) * band.hueWidth / band.width + band.hueAtEnd, 200, 128);
    }
    if (w < 725)
        return color(0, 200, 801 - w);
    const int far = (w - 725) / 2;
    return far <= 200 ? color(0, 200 - far, 76) : color(0, 0, std::max(276 - far, 0));
}

} // namespace LightColor

#endif
