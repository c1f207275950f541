#include "Pelorin/theme/Converter.h"
#include "tests/support/TestCase.h"

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();

double justBelow(double value)
{
    return std::nextafter(value, -infinity);
}

double justAbove(double value)
{
    return std::nextafter(value, infinity);
}

/// The values from \a first to \a last, both included, are shown in this form.
struct Form
{
    const char *title;
    double first;
    double last;
    int type;
    double factor;
    int decimals;
    const char *unit;
};

struct Base
{
    const char *name;
    int firstType;
    QVector<Form> forms;
};

const QVector<Base> &bases()
{
    static const QVector<Base> list{
        { "base W",
          0,
          {
              { "100 up to below 1000", 100, justBelow(1000), 0, 1.0, 1, "W" },
              { "10 up to below 100", 10, justBelow(100), 1, 0.1, 2, "W" },
              { "1 up to below 10", 1, justBelow(10), 2, 0.01, 3, "W" },
              { "0.1 up to below 1", 0.1, justBelow(1), 3, 0.001, 1, "mW" },
              { "0.01 up to below 0.1", 0.01, justBelow(0.1), 4, 0.0001, 2, "mW" },
              { "0.001 up to below 0.01", 0.001, justBelow(0.01), 5, 0.00001, 3, "mW" },
              { "1e-4 up to below 0.001", 1e-4, justBelow(0.001), 6, 1e-6, 1, "uW" },
              { "1e-5 up to below 1e-4", 1e-5, justBelow(1e-4), 7, 1e-7, 2, "uW" },
              { "1e-6 up to below 1e-5", 1e-6, justBelow(1e-5), 8, 1e-8, 3, "uW" },
              { "1e-7 up to below 1e-6", 1e-7, justBelow(1e-6), 9, 1e-9, 1, "nW" },
              { "1e-8 up to below 1e-7", 1e-8, justBelow(1e-7), 10, 1e-10, 2, "uW" },
              { "below 1e-8", -infinity, justBelow(1e-8), 11, 1e-11, 3, "uW" },
          } },
        { "base mW",
          3,
          {
              { "100000 and above", 100000, infinity, 0, 0.001, 1, "W" },
              { "10000 up to below 100000", 10000, justBelow(100000), 1, 0.001, 2, "W" },
              { "1000 up to below 10000", 1000, justBelow(10000), 2, 0.001, 3, "W" },
              { "100 up to below 1000", 100, justBelow(1000), 3, 1.0, 1, "mW" },
              { "10 up to below 100", 10, justBelow(100), 4, 1.0, 2, "mW" },
              { "1 up to below 10", 1, justBelow(10), 5, 1.0, 3, "mW" },
              { "0.1 up to below 1", 0.1, justBelow(1), 6, 1000, 1, "uW" },
              { "0.01 up to below 0.1", 0.01, justBelow(0.1), 7, 1000, 2, "uW" },
              { "0.001 up to below 0.01", 0.001, justBelow(0.01), 8, 1000, 3, "uW" },
              { "1e-4 up to below 0.001", 1e-4, justBelow(0.001), 9, 1000000, 1, "nW" },
              { "1e-5 up to below 1e-4", 1e-5, justBelow(1e-4), 10, 1000000, 2, "nW" },
              { "below 1e-5", -infinity, justBelow(1e-5), 11, 1000000, 3, "nW" },
          } },
        { "base uW",
          6,
          {
              { "above 99999999.9", justAbove(99999999.9), infinity, 0, 1e-8, 1, "W" },
              { "above 9999999.9", justAbove(9999999.9), 99999999.9, 1, 1e-7, 2, "W" },
              { "above 999999.9", justAbove(999999.9), 9999999.9, 2, 1e-6, 3, "W" },
              { "above 99999.9", justAbove(99999.9), 999999.9, 3, 1e-5, 1, "mW" },
              { "above 9999.9", justAbove(9999.9), 99999.9, 4, 1e-4, 2, "mW" },
              { "above 999.9", justAbove(999.9), 9999.9, 5, 0.001, 3, "mW" },
              { "100 up to 999.9", 100, 999.9, 6, 1.0, 1, "uW" },
              { "10 up to below 100", 10, justBelow(100), 7, 0.1, 2, "uW" },
              { "1 up to below 10", 1, justBelow(10), 8, 0.01, 3, "uW" },
              { "0.1 up to below 1", 0.1, justBelow(1), 9, 0.001, 1, "nW" },
              { "0.01 up to below 0.1", 0.01, justBelow(0.1), 10, 1e-4, 2, "nW" },
              { "below 0.01", -infinity, justBelow(0.01), 11, 1e-5, 3, "nW" },
          } },
        { "base nW",
          9,
          {
              { "above 99999999999.9", justAbove(99999999999.9), infinity, 0, 1e-11, 1, "W" },
              { "above 9999999999.9", justAbove(9999999999.9), 99999999999.9, 1, 1e-10, 2, "W" },
              { "above 999999999.9", justAbove(999999999.9), 9999999999.9, 2, 1e-9, 3, "W" },
              { "above 99999999.9", justAbove(99999999.9), 999999999.9, 3, 1e-8, 1, "mW" },
              { "above 9999999.9", justAbove(9999999.9), 99999999.9, 4, 1e-7, 2, "mW" },
              { "above 999999.9", justAbove(999999.9), 9999999.9, 5, 1e-6, 3, "mW" },
              { "above 99999.9", justAbove(99999.9), 999999.9, 6, 1e-5, 1, "uW" },
              { "above 9999.9", justAbove(9999.9), 99999.9, 7, 1e-4, 2, "uW" },
              { "above 999.9", justAbove(999.9), 9999.9, 8, 0.001, 3, "uW" },
              { "100 up to 999.9", 100, 999.9, 9, 1.0, 1, "nW" },
              { "10 up to below 100", 10, justBelow(100), 10, 0.1, 2, "nW" },
              { "below 10", -infinity, justBelow(10), 11, 0.01, 3, "nW" },
          } },
    };
    return list;
}

/// A value well inside of a form.
double inside(const Form &form)
{
    if (std::isinf(form.first))
        return form.last / 2;
    return std::isinf(form.last) ? form.first * 2 : form.first + (form.last - form.first) / 2;
}

/// What getPowerType() returned and wrote, over results that no row writes.
struct Answer
{
    int type = -1;
    double factor = 42.0;
    int decimals = 42;
    QString unit = QStringLiteral("before");
};

Answer ask(int base, double value)
{
    Answer answer;
    answer.type = Converter::getPowerType(Converter::pwrType(base), value, answer.factor,
                                          answer.decimals, answer.unit);
    return answer;
}

} // namespace

class tst_Converter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersTheTwelveTypes();
    void tellsUnitAndDecimalsOfAType_data();
    void tellsUnitAndDecimalsOfAType();
    void putsThePrefixBeforeTheUnit();
    void choosesTheForm_data();
    void choosesTheForm();
    void writesNothing_data();
    void writesNothing();
    void agreesWithTypeButForTheSmallestWatts();
    void convertsTrulyFromMilliwatts();
};

void tst_Converter::numbersTheTwelveTypes()
{
    const QVector<int> types{ Converter::pwrW1,  Converter::pwrW2,  Converter::pwrW3,
                              Converter::pwrMW1, Converter::pwrMW2, Converter::pwrMW3,
                              Converter::pwrUW1, Converter::pwrUW2, Converter::pwrUW3,
                              Converter::pwrNW1, Converter::pwrNW2, Converter::pwrNW3 };
    const QVector<int> lineEditTypes{ Converter::ePwrW1,  Converter::ePwrW2,  Converter::ePwrW3,
                                      Converter::ePwrMW1, Converter::ePwrMW2, Converter::ePwrMW3,
                                      Converter::ePwrUW1, Converter::ePwrUW2, Converter::ePwrUW3,
                                      Converter::ePwrNW1, Converter::ePwrNW2, Converter::ePwrNW3 };

    QCOMPARE(types, QVector<int>({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 }));
    QCOMPARE(lineEditTypes, types);
    QCOMPARE(sizeof(Converter::pwrType), std::size_t(4));
    QCOMPARE(sizeof(Converter::ePwrType), std::size_t(4));
}

void tst_Converter::tellsUnitAndDecimalsOfAType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("decimals");

    QTest::newRow("pwrW1") << 0 << QStringLiteral("W") << 1;
    QTest::newRow("pwrW2") << 1 << QStringLiteral("W") << 2;
    QTest::newRow("pwrW3") << 2 << QStringLiteral("W") << 3;
    QTest::newRow("pwrMW1") << 3 << QStringLiteral("mW") << 1;
    QTest::newRow("pwrMW2") << 4 << QStringLiteral("mW") << 2;
    QTest::newRow("pwrMW3") << 5 << QStringLiteral("mW") << 3;
    QTest::newRow("pwrUW1") << 6 << QStringLiteral("uW") << 1;
    QTest::newRow("pwrUW2") << 7 << QStringLiteral("uW") << 2;
    QTest::newRow("pwrUW3") << 8 << QStringLiteral("uW") << 3;
    QTest::newRow("pwrNW1") << 9 << QStringLiteral("nW") << 1;
    QTest::newRow("pwrNW2") << 10 << QStringLiteral("nW") << 2;
    QTest::newRow("pwrNW3") << 11 << QStringLiteral("nW") << 3;
    QTest::newRow("one above the twelve") << 12 << QStringLiteral("W") << 1;
    QTest::newRow("two above, where a pattern of three would go on")
        << 13 << QStringLiteral("W") << 1;
    QTest::newRow("a full turn of 32 bits above pwrMW3") << 37 << QStringLiteral("W") << 1;
    QTest::newRow("below the twelve") << -1 << QStringLiteral("W") << 1;
    QTest::newRow("largest number") << std::numeric_limits<int>::max() << QStringLiteral("W") << 1;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min() << QStringLiteral("W") << 1;
}

void tst_Converter::tellsUnitAndDecimalsOfAType()
{
    QFETCH(int, type);
    QFETCH(QString, unit);
    QFETCH(int, decimals);

    QCOMPARE(Converter::getPowerTypeStr(Converter::pwrType(type), QString()), unit);
    QCOMPARE(Converter::getPowerTypePrecision(Converter::pwrType(type)), decimals);
}

void tst_Converter::putsThePrefixBeforeTheUnit()
{
    const QString prefix = QStringLiteral("x");

    QCOMPARE(Converter::getPowerTypeStr(Converter::pwrUW2, prefix), QStringLiteral("xuW"));
    QCOMPARE(Converter::getPowerTypeStr(Converter::pwrType(12), prefix), QStringLiteral("xW"));
    QCOMPARE(prefix, QStringLiteral("x"));
}

void tst_Converter::choosesTheForm_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("unit");

    const auto add = [](const Base &base, const Form &form, const char *place, double value) {
        for (int decimals = 1; decimals <= 3; ++decimals) {
            QTest::addRow("%s with %d decimals, %s: %s", base.name, decimals, form.title, place)
                << base.firstType + decimals - 1 << value << form.type << form.factor
                << form.decimals << QString::fromLatin1(form.unit);
        }
    };
    for (const Base &base : bases()) {
        // Neighbours share a bound, so the ends of all forms are the values at, just below and just
        // above each bound.
        for (const Form &form : base.forms) {
            add(base, form, "smallest value", form.first);
            add(base, form, "inside", inside(form));
            add(base, form, "largest value", form.last);
        }
        add(base, base.forms.last(), "zero", 0.0);
        add(base, base.forms.last(), "negative zero", -0.0);
        add(base, base.forms.last(), "minus a large power", -5e6);
        add(base, base.forms.last(), "lowest finite value", -largest);
        add(base, base.forms.last(), "smallest positive value",
            std::numeric_limits<double>::denorm_min());
    }
    for (const Base &base : bases().mid(1))
        add(base, base.forms.first(), "largest finite value", largest);
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    add(bases().at(2), bases().at(2).forms.at(6), "not a number", nan);
    add(bases().at(3), bases().at(3).forms.at(9), "not a number", nan);
}

void tst_Converter::choosesTheForm()
{
    QFETCH(int, base);
    QFETCH(double, value);
    QFETCH(int, type);
    QFETCH(double, factor);
    QFETCH(int, decimals);
    QFETCH(QString, unit);

    const Answer answer = ask(base, value);

    QCOMPARE(answer.type, type);
    QVERIFY2(answer.factor == factor, qPrintable(QString::number(answer.factor, 'g', 17)));
    QCOMPARE(answer.decimals, decimals);
    QCOMPARE(answer.unit, unit);
}

void tst_Converter::writesNothing_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<double>("value");

    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (int base = 0; base < 3; ++base) {
        QTest::addRow("base W %d, 1000", base) << base << 1000.0;
        QTest::addRow("base W %d, just above 1000", base) << base << justAbove(1000);
        QTest::addRow("base W %d, infinite", base) << base << infinity;
        QTest::addRow("base W %d, not a number", base) << base << nan;
        QTest::addRow("base mW %d, not a number", base) << base + 3 << nan;
    }
    QTest::newRow("a base above the twelve") << 12 << 5.0;
    QTest::newRow("a base above the twelve, not a number") << 12 << nan;
    QTest::newRow("a base below the twelve") << -1 << 5.0;
    QTest::newRow("the largest base") << std::numeric_limits<int>::max() << 5.0;
    QTest::newRow("the smallest base") << std::numeric_limits<int>::min() << 5.0;
}

void tst_Converter::writesNothing()
{
    QFETCH(int, base);
    QFETCH(double, value);

    const Answer answer = ask(base, value);

    QCOMPARE(answer.type, 0);
    QCOMPARE(answer.factor, 42.0);
    QCOMPARE(answer.decimals, 42);
    QCOMPARE(answer.unit, QStringLiteral("before"));
}

void tst_Converter::agreesWithTypeButForTheSmallestWatts()
{
    QStringList mismatches;
    for (const Base &base : bases()) {
        for (const Form &form : base.forms) {
            const Answer answer = ask(base.firstType, inside(form));
            const auto type = Converter::pwrType(answer.type);
            QCOMPARE(answer.decimals, Converter::getPowerTypePrecision(type));
            if (answer.unit != Converter::getPowerTypeStr(type, QString()))
                mismatches << QStringLiteral("%1, %2").arg(QLatin1String(base.name),
                                                           QLatin1String(form.title));
        }
    }

    QCOMPARE(mismatches, QStringList({ QStringLiteral("base W, 1e-8 up to below 1e-7"),
                                       QStringLiteral("base W, below 1e-8") }));
}

void tst_Converter::convertsTrulyFromMilliwatts()
{
    QCOMPARE(ask(Converter::pwrMW1, 2500).factor * 2500, 2.5);      // W
    QCOMPARE(ask(Converter::pwrMW1, 25).factor * 25, 25.0);         // mW
    QCOMPARE(ask(Converter::pwrMW1, 0.25).factor * 0.25, 250.0);    // uW
    QCOMPARE(ask(Converter::pwrMW1, 2.5e-5).factor * 2.5e-5, 25.0); // nW
}

PELORIN_TEST_MAIN(tst_Converter)
#include "tst_converter.moc"
