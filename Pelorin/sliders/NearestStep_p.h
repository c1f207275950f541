#ifndef PELORIN_SLIDERS_NEARESTSTEP_P_H
#define PELORIN_SLIDERS_NEARESTSTEP_P_H

#include <QList>

/// The entry of the ascending list \a steps that lies nearest to \a value; the exact middle of two
/// entries counts to the upper one. A value beyond the ends gives the end. With fewer than two
/// entries, \a value itself. The list is not sorted here.
inline double nearestStep(const QList<double> &steps, double value)
{
    if (steps.size() < 2)
        return value;
    int upper = 1;
    if (value > steps.first()) {
        while (upper < steps.size() - 1 && value > steps.at(upper))
            ++upper;
    }
    const double lo = steps.at(upper - 1);
    const double hi = steps.at(upper);
    return lo + (hi - lo) * 0.5 <= value ? hi : lo;
}

#endif
