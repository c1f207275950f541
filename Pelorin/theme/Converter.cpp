#include "Pelorin/theme/Converter.h"

#include <algorithm>
#include <array>

namespace {

/// How a value reaches a row. The kinds part at the bound itself and at not-a-number, which reaches
/// no row but NotBelow.
enum class Reach { AtLeast, Above, NotBelow, Below };

struct Row
{
    Reach reach;
    double bound;
    Converter::pwrType type;
    double factor;
    const char *unit;
};

using Rows = std::array<Row, 12>;

// The smallest two forms of base W carry the text of the unit above them. Applications show it so;
// it stays.
constexpr Rows wattRows{ {
    { Reach::AtLeast, 100, Converter::pwrW1, 1.0, "W" },
    { Reach::AtLeast, 10, Converter::pwrW2, 0.1, "W" },
    { Reach::AtLeast, 1, Converter::pwrW3, 0.01, "W" },
    { Reach::AtLeast, 0.1, Converter::pwrMW1, 0.001, "mW" },
    { Reach::AtLeast, 0.01, Converter::pwrMW2, 1e-4, "mW" },
    { Reach::AtLeast, 0.001, Converter::pwrMW3, 1e-5, "mW" },
    { Reach::AtLeast, 1e-4, Converter::pwrUW1, 1e-6, "uW" },
    { Reach::AtLeast, 1e-5, Converter::pwrUW2, 1e-7, "uW" },
    { Reach::AtLeast, 1e-6, Converter::pwrUW3, 1e-8, "uW" },
    { Reach::AtLeast, 1e-7, Converter::pwrNW1, 1e-9, "nW" },
    { Reach::AtLeast, 1e-8, Converter::pwrNW2, 1e-10, "uW" },
    { Reach::Below, 1e-8, Converter::pwrNW3, 1e-11, "uW" },
} };

constexpr Rows milliwattRows{ {
    { Reach::AtLeast, 100000, Converter::pwrW1, 0.001, "W" },
    { Reach::AtLeast, 10000, Converter::pwrW2, 0.001, "W" },
    { Reach::AtLeast, 1000, Converter::pwrW3, 0.001, "W" },
    { Reach::AtLeast, 100, Converter::pwrMW1, 1.0, "mW" },
    { Reach::AtLeast, 10, Converter::pwrMW2, 1.0, "mW" },
    { Reach::AtLeast, 1, Converter::pwrMW3, 1.0, "mW" },
    { Reach::AtLeast, 0.1, Converter::pwrUW1, 1000, "uW" },
    { Reach::AtLeast, 0.01, Converter::pwrUW2, 1000, "uW" },
    { Reach::AtLeast, 0.001, Converter::pwrUW3, 1000, "uW" },
    { Reach::AtLeast, 1e-4, Converter::pwrNW1, 1e6, "nW" },
    { Reach::AtLeast, 1e-5, Converter::pwrNW2, 1e6, "nW" },
    { Reach::Below, 1e-5, Converter::pwrNW3, 1e6, "nW" },
} };

constexpr Rows microwattRows{ {
    { Reach::Above, 99999999.9, Converter::pwrW1, 1e-8, "W" },
    { Reach::Above, 9999999.9, Converter::pwrW2, 1e-7, "W" },
    { Reach::Above, 999999.9, Converter::pwrW3, 1e-6, "W" },
    { Reach::Above, 99999.9, Converter::pwrMW1, 1e-5, "mW" },
    { Reach::Above, 9999.9, Converter::pwrMW2, 1e-4, "mW" },
    { Reach::Above, 999.9, Converter::pwrMW3, 0.001, "mW" },
    { Reach::NotBelow, 100, Converter::pwrUW1, 1.0, "uW" },
    { Reach::NotBelow, 10, Converter::pwrUW2, 0.1, "uW" },
    { Reach::NotBelow, 1, Converter::pwrUW3, 0.01, "uW" },
    { Reach::NotBelow, 0.1, Converter::pwrNW1, 0.001, "nW" },
    { Reach::NotBelow, 0.01, Converter::pwrNW2, 1e-4, "nW" },
    { Reach::Below, 0.01, Converter::pwrNW3, 1e-5, "nW" },
} };

constexpr Rows nanowattRows{ {
    { Reach::Above, 99999999999.9, Converter::pwrW1, 1e-11, "W" },
    { Reach::Above, 9999999999.9, Converter::pwrW2, 1e-10, "W" },
    { Reach::Above, 999999999.9, Converter::pwrW3, 1e-9, "W" },
    { Reach::Above, 99999999.9, Converter::pwrMW1, 1e-8, "mW" },
    { Reach::Above, 9999999.9, Converter::pwrMW2, 1e-7, "mW" },
    { Reach::Above, 999999.9, Converter::pwrMW3, 1e-6, "mW" },
    { Reach::Above, 99999.9, Converter::pwrUW1, 1e-5, "uW" },
    { Reach::Above, 9999.9, Converter::pwrUW2, 1e-4, "uW" },
    { Reach::Above, 999.9, Converter::pwrUW3, 0.001, "uW" },
    { Reach::NotBelow, 100, Converter::pwrNW1, 1.0, "nW" },
    { Reach::NotBelow, 10, Converter::pwrNW2, 0.1, "nW" },
    { Reach::Below, 10, Converter::pwrNW3, 0.01, "nW" },
} };

/// From here on, base W tells nothing about a value.
constexpr double wattLimit = 1000;

constexpr bool isOneOfTheTwelve(Converter::pwrType type)
{
    return type >= Converter::pwrW1 && type <= Converter::pwrNW3;
}

const Rows &rowsOf(Converter::pwrType base)
{
    static constexpr std::array<const Rows *, 4> byUnit{ &wattRows, &milliwattRows, &microwattRows,
                                                         &nanowattRows };
    return *byUnit.at(std::size_t(base) / 3);
}

bool reaches(double value, const Row &row)
{
    switch (row.reach) {
    case Reach::AtLeast:
        return value >= row.bound;
    case Reach::Above:
        return value > row.bound;
    case Reach::NotBelow:
        return !(value < row.bound);
    case Reach::Below:
        return value < row.bound;
    }
    return false;
}

/// The row that speaks of \a value; none where there is nothing to say.
const Row *rowFor(Converter::pwrType base, double value)
{
    if (!isOneOfTheTwelve(base))
        return nullptr;
    const Rows &rows = rowsOf(base);
    if (&rows == &wattRows && value >= wattLimit)
        return nullptr;
    const auto row = std::find_if(rows.begin(), rows.end(), [value](const Row &candidate) {
        return reaches(value, candidate);
    });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace

Converter::pwrType Converter::getPowerType(pwrType base, double value, double &factor,
                                           int &decimals, QString &unit)
{
    const Row *row = rowFor(base, value);
    if (!row)
        return pwrW1;
    factor = row->factor;
    decimals = getPowerTypePrecision(row->type);
    unit = QLatin1String(row->unit);
    return row->type;
}

int Converter::getPowerTypePrecision(pwrType type)
{
    return isOneOfTheTwelve(type) ? type % 3 + 1 : 1;
}

QString Converter::getPowerTypeStr(pwrType type, QString prefix)
{
    static constexpr std::array<const char *, 4> units{ "W", "mW", "uW", "nW" };
    const std::size_t unit = isOneOfTheTwelve(type) ? std::size_t(type) / 3 : 0;
    return prefix += QLatin1String(units.at(unit));
}
