#include "tests/controls/NumberField.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"

#include <limits>

namespace {

constexpr int most = std::numeric_limits<int>::max();

} // namespace

class tst_LineEditNumberNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsAtTheLowEndOfItsFirstRange();
    void clampsWhatIsSet_data();
    void clampsWhatIsSet();
    void ignoresNotANumber();
    void keepsTheCursorWhereItIs();
    void reportsTheRoundedValue_data();
    void reportsTheRoundedValue();
    void reportsAChangeThatIsNone();
    void reportsARangeThatMovesTheValue_data();
    void reportsARangeThatMovesTheValue();
    void warnsOfAnInvertedRange();
    void survivesOddNumbersOfDecimals_data();
    void survivesOddNumbersOfDecimals();
    void survivesEndlessRanges();
    void forgetsInfinityWithTheNextValue();
    void takesAnyTimeout();
};

void tst_LineEditNumberNG::declaresItsInterface()
{
    const QMetaObject &meta = LineEditNumberNG::staticMetaObject;

    QCOMPARE(meta.className(), "LineEditNumberNG");
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list("valueChanging(double)", "valueChanged(double)"));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), numberFieldSlots());
    QVERIFY(meta.indexOfSlot("setRange(double,double)") > 0);
    QVERIFY(meta.indexOfSlot("setIntegerDigits(int)") > 0);
}

void tst_LineEditNumberNG::startsAtTheLowEndOfItsFirstRange()
{
    const LineEditNumberNG edit(nullptr);

    QCOMPARE(edit.text(), QStringLiteral("100.00"));
    QCOMPARE(edit.value(), 100.0);
    QCOMPARE(edit.minimum(), 100.0);
    QCOMPARE(edit.maximum(), 2000.0);
    QCOMPARE(edit.valuePrecision(), 2);
    QCOMPARE(edit.integerDigits(), 4);
    QCOMPARE(edit.disabledContent(), QString());
    QCOMPARE(edit.cursorPosition(), 0);
    QCOMPARE(edit.alignment(), Qt::AlignRight);
    QCOMPARE(edit.property("flat"), QVariant(true));
    QCOMPARE(edit.property("type"), QVariant(QStringLiteral("label")));
    QCOMPARE(edit.minimumWidth(), 0);
    QVERIFY(edit.actions().isEmpty());
    const auto *timer = edit.findChild<QTimer *>();
    QVERIFY(timer->isSingleShot() && !timer->isActive());
    QCOMPARE(timer->interval(), 3000);
}

void tst_LineEditNumberNG::clampsWhatIsSet_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<bool>("infinity");
    QTest::addColumn<double>("request");
    QTest::addColumn<double>("stored");

    for (const bool infinity : { false, true }) {
        const QByteArray note = infinity ? ", with infinity" : "";
        const auto row = [&](const char *name, double min, double max, double request,
                             double stored) {
            QTest::newRow(name + note) << min << max << infinity << request << stored;
        };
        const double above = infinity ? qInf() : 10.0;
        row("inside", 0, 10, 5, 5);
        row("at the bottom", 0, 10, 0, 0);
        row("at the top", 0, 10, 10, 10);
        row("below", 0, 10, -0.001, 0);
        row("above", 0, 10, 10.001, above);
        row("infinite", 0, 10, qInf(), above);
        row("negative infinite", 0, 10, -qInf(), 0);
        row("reversed, inside", 10, 0, 5, 5);
        row("reversed, at the bottom", 10, 0, 0, 0);
        row("reversed, at the top", 10, 0, 10, 10);
        row("reversed, below", 10, 0, -0.001, 0);
        row("reversed, above", 10, 0, 10.001, above);
        row("reversed, infinite", 10, 0, qInf(), above);
        row("empty, at its place", 10, 10, 10, 10);
        row("empty, below", 10, 10, 9, 10);
        row("empty, above", 10, 10, 11, above);
    }
}

void tst_LineEditNumberNG::clampsWhatIsSet()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(bool, infinity);
    QFETCH(double, request);
    QFETCH(double, stored);
    NumberField field;
    tolerateMessages(QtWarningMsg, QStringLiteral("LineEditNumberNG::setRange - min:"));
    field.edit.enableInfinity(infinity);
    field.edit.setRange(min, max, true);

    field.edit.setValue(request);

    QCOMPARE(field.edit.value(), stored);
    QCOMPARE(field.edit.text(), qIsInf(stored) ? infinitySign() : QString::number(stored, 'f', 2));
    QCOMPARE(field.recorder.taken(), QStringList());
}

void tst_LineEditNumberNG::ignoresNotANumber()
{
    NumberField field(5.0);

    field.edit.setValue(qQNaN());
    field.edit.setRange(qQNaN(), 200.0);
    field.edit.setRange(50.0, qQNaN());

    QCOMPARE(field.edit.value(), 5.0);
    QCOMPARE(field.edit.minimum(), 0.0);
    QCOMPARE(field.edit.maximum(), 100.0);
    QCOMPARE(field.recorder.taken(), QStringList());

    field.edit.changeValue(qQNaN());

    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));
    QCOMPARE(field.recorder.taken(), list("valueChanged(5)"));
}

void tst_LineEditNumberNG::keepsTheCursorWhereItIs()
{
    NumberField field(12.34);
    field.edit.setCursorPosition(4);

    field.edit.setValue(56.78);
    QCOMPARE(field.edit.cursorPosition(), 4);

    field.edit.setValuePrecision(0);
    field.edit.setValue(9.0);
    QCOMPARE(field.edit.text(), QStringLiteral("9"));
    QCOMPARE(field.edit.cursorPosition(), 1);
}

void tst_LineEditNumberNG::reportsTheRoundedValue_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("reported");

    const auto row = [](const char *name, int decimals, double value, const char *reported) {
        QTest::newRow(name) << decimals << value
                            << QStringLiteral("valueChanged(%1)").arg(QLatin1String(reported));
    };
    row("two decimals", 2, 12.3456, "12.35");
    row("one decimal", 1, 12.3456, "12.3");
    row("no decimals", 0, 12.5, "13");
    row("half of a negative number", 0, -12.5, "-12");
    row("tens", -1, 128.0, "130");
    row("more than an int holds", 2, 123456789.128, "123456789.13");
    row("many decimals", 15, 1.25, "1.25");
}

void tst_LineEditNumberNG::reportsTheRoundedValue()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(QString, reported);
    NumberField field;
    field.edit.setRange(-1e12, 1e12);
    field.edit.setValuePrecision(decimals);

    field.edit.changeValue(value);

    QCOMPARE(field.recorder.taken(), QStringList(reported));
    QCOMPARE(field.edit.value(), value); // unrounded
}

void tst_LineEditNumberNG::reportsAChangeThatIsNone()
{
    NumberField field(5.0);

    field.edit.setValue(5.0);
    QCOMPARE(field.recorder.taken(), QStringList());
    field.edit.changeValue(5.0);

    QCOMPARE(field.recorder.taken(), list("valueChanged(5)"));
}

void tst_LineEditNumberNG::reportsARangeThatMovesTheValue_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<bool>("infinite");
    QTest::addColumn<QString>("reported");
    QTest::addColumn<QString>("text");

    QTest::newRow("value inside") << 0.0 << 60.0 << false << QString() << QStringLiteral("50.00");
    QTest::newRow("value above") << 0.0 << 40.0 << false << QStringLiteral("valueChanged(40)")
                                 << QStringLiteral("40.00");
    QTest::newRow("value below") << 60.0 << 70.0 << false << QStringLiteral("valueChanged(60)")
                                 << QStringLiteral("60.00");
    QTest::newRow("end with many digits")
        << 60.128 << 70.0 << false << QStringLiteral("valueChanged(60.13)")
        << QStringLiteral("60.13");
    // Infinity is never acceptable, so each range says so again.
    QTest::newRow("value infinite")
        << 0.0 << 100.0 << true << QStringLiteral("valueChanged(inf)") << infinitySign();
}

void tst_LineEditNumberNG::reportsARangeThatMovesTheValue()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(bool, infinite);
    QFETCH(QString, reported);
    QFETCH(QString, text);

    for (const bool silent : { false, true }) {
        NumberField field(50.0);
        field.edit.enableInfinity(infinite);
        if (infinite)
            field.edit.setValue(qInf());

        field.edit.setRange(min, max, silent);

        QCOMPARE(field.edit.text(), text);
        QCOMPARE(field.edit.minimum(), min);
        QCOMPARE(field.edit.maximum(), max);
        QCOMPARE(field.recorder.taken(),
                 silent || reported.isEmpty() ? QStringList() : QStringList(reported));
    }
}

void tst_LineEditNumberNG::warnsOfAnInvertedRange()
{
    NumberField field(50.0);

    expectMessage(QtWarningMsg, QStringLiteral("LineEditNumberNG::setRange - min: 20 max: 10.5"));
    field.edit.setRange(20.0, 10.5);

    QCOMPARE(field.edit.minimum(), 20.0);
    QCOMPARE(field.edit.maximum(), 10.5);
    QCOMPARE(field.recorder.taken(), list("valueChanged(20)"));
    field.edit.setRange(20.0, 20.0); // empty, but not inverted
}

void tst_LineEditNumberNG::survivesOddNumbersOfDecimals_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0 << QStringLiteral("13");
    QTest::newRow("fifteen") << 15 << QStringLiteral("12.750000000000000");
    QTest::newRow("four hundred") << 400
                                  << QStringLiteral("12.75") + QString(398, QLatin1Char('0'));
    // Beyond that no number has any.
    QTest::newRow("the most") << most << QStringLiteral("12.75") + QString(398, QLatin1Char('0'));
    // What Qt makes of less than none.
    QTest::newRow("less than none") << -1 << QStringLiteral("12.750000");
    QTest::newRow("the least") << -most << QStringLiteral("12.750000");
}

void tst_LineEditNumberNG::survivesOddNumbersOfDecimals()
{
    QFETCH(int, decimals);
    QFETCH(QString, text);
    NumberField field;

    field.edit.setValuePrecision(decimals);
    field.edit.setValue(12.75);

    QCOMPARE(field.edit.valuePrecision(), decimals);
    QCOMPARE(field.edit.text(), text);
    QCOMPARE(field.edit.value(), 12.75);
    // Whatever a step makes of it stays a number of the range.
    for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_Return })
        field.press(key);
    QVERIFY(field.edit.value() >= 0.0 && field.edit.value() <= 100.0);
}

void tst_LineEditNumberNG::survivesEndlessRanges()
{
    NumberField field;
    field.edit.enableEditTimeout(false);

    field.edit.setRange(-qInf(), qInf());
    field.edit.changeValue(1e300);
    QCOMPARE(field.recorder.taken(), list("valueChanged(1e+300)"));
    field.press(Qt::Key_Up); // 300 digits left of the cursor
    field.edit.changeValue(qInf());

    QCOMPARE(field.recorder.taken().last(), QStringLiteral("valueChanged(inf)"));
    QCOMPARE(field.edit.text(), QStringLiteral("inf"));
    field.edit.adjustSize();

    field.edit.enableInfinity(true);
    field.edit.setRange(-1e308, 1e308);
    field.press(Qt::Key_Down);
    QCOMPARE(field.edit.value(), qInf());
}

void tst_LineEditNumberNG::forgetsInfinityWithTheNextValue()
{
    NumberField field;
    field.edit.enableInfinity(true);
    field.edit.setValue(qInf());

    field.edit.enableInfinity(false);
    QCOMPARE(field.edit.text(), infinitySign());
    QCOMPARE(field.edit.value(), qInf());
    QCOMPARE(field.recorder.taken(), QStringList());

    field.edit.setValue(field.edit.value());
    QCOMPARE(field.edit.text(), QStringLiteral("100.00"));
}

void tst_LineEditNumberNG::takesAnyTimeout()
{
    NumberField field(5.0);

    field.edit.setEditTimeout(-1);

    QCOMPARE(field.timer()->interval(), 0);
    field.press(Qt::Key_Escape);
    QTRY_VERIFY(!field.isEditing());
    QCOMPARE(field.recorder.taken(), list("valueChanging(5)"));
    field.edit.setEditTimeout(most);
    QCOMPARE(field.timer()->interval(), most);
}

PELORIN_TEST_MAIN(tst_LineEditNumberNG)
#include "tst_lineeditnumberng.moc"
