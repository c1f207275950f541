#ifndef PELORIN_THEME_ROUNDING_P_H
#define PELORIN_THEME_ROUNDING_P_H

#include <QtGlobal>
#include <QtMath>

#include <cmath>
#include <limits>

/// qRound() for numbers of any size: what does not fit an int becomes the nearest int, not-a-number
/// 0.
inline int saturatedRound(double value)
{
    if (qIsNaN(value))
        return 0;
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return qRound(value);
}

/// int() for numbers of any size, likewise.
inline int saturatedTruncation(double value)
{
    return saturatedRound(std::trunc(value));
}

/// \a value rounded as qRound() does it to \a decimals decimals; a negative number of decimals
/// rounds to tens, hundreds and so on. A value that a double cannot hold with so many decimals is
/// returned as it is.
inline double roundedToDecimals(double value, int decimals)
{
    const double factor = std::pow(10.0, decimals);
    const double scaled = value * factor;
    const bool fitsInt = std::abs(scaled) < std::numeric_limits<int>::max();
    const double rounded = fitsInt ? qRound(scaled) : std::floor(scaled + 0.5);
    const double result = rounded / factor;
    return qIsFinite(result) ? result : value;
}

#endif
