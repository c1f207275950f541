#ifndef PELORIN_SLIDERS_SCALEMAPPING_P_H
#define PELORIN_SLIDERS_SCALEMAPPING_P_H

#include "Pelorin/theme/Rounding_p.h"

/// The way between values and handle units. Handle units divide the travel of a handle, whatever
/// the range and the scale, into a fixed number of whole steps.
namespace ScaleMapping {

constexpr int handleMax = 100000;

enum class Curve { Linear, Sqrt };

inline int boundedHandle(double position)
{
    return qBound(0, saturatedRound(position), handleMax);
}

/// The handle position of \a value between \a min and \a max, from 0 to handleMax. Where the range
/// is empty there is no place to tell, and the answer is 0. On a reversed range the curve runs from
/// \a min downwards.
inline int handleOf(double value, double min, double max, Curve curve)
{
    double way = value - min;
    double span = max - min;
    if (!qIsFinite(span)) { // the ends are finite, their distance is not
        way = value * 0.5 - min * 0.5;
        span = max * 0.5 - min * 0.5;
    }
    if (span == 0.0)
        return 0;
    if (curve == Curve::Linear)
        return boundedHandle(way / span * handleMax);
    if (span < 0.0) {
        way = -way;
        span = -span;
    }
    return way > 0.0 ? boundedHandle(std::sqrt(way) / std::sqrt(span) * handleMax) : 0;
}

/// The value at \a handle. On a square-root scale the fraction of the travel is the square root of
/// the fraction of the range, so that the low end is spread out: a quarter of the travel holds a
/// sixteenth of the range.
inline double valueAt(int handle, double min, double max, Curve curve)
{
    const double h = handle; // its square does not fit an int
    const double span = max - min;
    const double value =
        curve == Curve::Linear ? min + span * h / handleMax : min + span * (h * h) / 1e10;
    if (qIsFinite(value))
        return value;
    const double part = curve == Curve::Linear ? h / handleMax : h * h / 1e10;
    return min * (1.0 - part) + max * part;
}

} // namespace ScaleMapping

#endif
