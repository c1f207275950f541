#ifndef PELORIN_SLIDERS_NICESTEP_P_H
#define PELORIN_SLIDERS_NICESTEP_P_H

#include <QtGlobal>

#include <algorithm>
#include <cmath>

/// The largest of 1, 2, 2.5 and 5 times a power of ten that lies below \a width; a power of ten
/// itself stays what it is. 0 where there is no such step: for nothing, less than nothing, infinity
/// and not-a-number.
inline double niceStep(double width)
{
    if (!(width > 0.0) || !qIsFinite(width))
        return 0.0;
    const double power = std::pow(10.0, std::floor(std::log10(width)));
    for (const double factor : { 5.0, 2.5, 2.0 }) {
        if (width > factor * power)
            return factor * power;
    }
    return power;
}

/// A scale that reaches outwards from a range to the next multiples of a nice step.
struct NiceScale
{
    double start = 0.0;
    double end = 0.0;
    double intervals = 0.0; ///< parts between two labels; 0 where the range has no scale

    bool isValid() const { return intervals > 0.0; }
};

/// The scale over \a min to \a max with at least \a parts intervals. It has no intervals if the
/// range is empty, reversed or not finite.
inline NiceScale niceScale(double min, double max, double parts)
{
    const double step = niceStep((max - min) / parts);
    if (!(step > 0.0))
        return {};
    const double last = std::ceil(max / step);
    const double first = std::floor(min / step);
    if (!qIsFinite(last * step - first * step)) // reaches out beyond the largest number
        return {};
    return { first * step, last * step, std::max(last - first, parts) };
}

#endif
