#ifndef PELORIN_THEME_CONVERTER_H
#define PELORIN_THEME_CONVERTER_H

#include "Pelorin/PelorinGlobal.h"

#include <QMetaType>
#include <QString>

/// What the library knows of power units: W, mW, uW and nW, each with one to three decimals.
///
/// Nothing here rounds a number. Who writes a value as text takes unit and decimals from here and
/// formats the value himself. The unit texts are plain ASCII, "uW" has the letter u.
class PELORIN_EXPORT Converter
{
public:
    Converter() = delete;

    /// A unit and its decimals in one number: divided by three it gives the unit, from W down to
    /// nW, and the remainder is the number of decimals less one.
    enum pwrType : qint32 {
        pwrW1,
        pwrW2,
        pwrW3,
        pwrMW1,
        pwrMW2,
        pwrMW3,
        pwrUW1,
        pwrUW2,
        pwrUW3,
        pwrNW1,
        pwrNW2,
        pwrNW3,
    };

    /// The same twelve, as the power line edit takes them for the unit it works in.
    enum ePwrType : qint32 {
        ePwrW1,
        ePwrW2,
        ePwrW3,
        ePwrMW1,
        ePwrMW2,
        ePwrMW3,
        ePwrUW1,
        ePwrUW2,
        ePwrUW3,
        ePwrNW1,
        ePwrNW2,
        ePwrNW3,
    };

    /// Chooses the form in which \a value, a power in the unit of \a base, is shown, and returns
    /// its type. The decimals of \a base do not matter.
    ///
    /// \a decimals and \a unit become those of the returned type; base W below 1e-7 W is the
    /// exception, its nanowatts read "uW". \a factor converts the value to the returned unit for
    /// base mW alone; for the other three it falls by one decade from each form to the next smaller
    /// one, starting at 1.0 for W with base W, at 1e-8 with base uW and at 1e-11 with base nW.
    ///
    /// The value is compared with its sign, so that zero and every negative power take the smallest
    /// form. Three cases return pwrW1 and write none of the three results: base W at 1000 and
    /// above, base W or mW with not-a-number, and a base that is none of the twelve. Not-a-number
    /// with base uW or nW counts as 100 to 999.9 of that unit.
    static pwrType getPowerType(pwrType base, double value, double &factor, int &decimals,
                                QString &unit);

    /// The decimals of \a type, 1 to 3; 1 for a number that is none of the twelve.
    static int getPowerTypePrecision(pwrType type);

    /// \a prefix followed by the unit text of \a type; "W" for a number that is none of the twelve.
    static QString getPowerTypeStr(pwrType type, QString prefix);
};

Q_DECLARE_METATYPE(Converter::pwrType)
Q_DECLARE_METATYPE(Converter::ePwrType)

#endif
