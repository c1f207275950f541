#include "Pelorin/controls/LineEditNumber.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <limits>

namespace {

class Field : public LineEditNumber
{
public:
    QTimer *hold() const { return findChild<QTimer *>(QStringLiteral("nudgeHoldTimer")); }
    QTimer *feedback() const { return findChild<QTimer *>(QStringLiteral("feedbackTimer")); }
};

/// What LineEdit and LineEditNumber declare.
class Recorder : public SignalRecorder
{
public:
    explicit Recorder(const LineEditNumber &field)
        : SignalRecorder(&field, QString(), &QLineEdit::staticMetaObject)
    {}
};

void expectNudge(double value, int decimals)
{
    QString line;
    QDebug(&line) << "LineEditNumber::nudge" << value << decimals;
    TestCase::expectMessage(QtDebugMsg, line.trimmed());
}

} // namespace

class tst_LineEditNumber : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void roundsToSignificantDigits_data();
    void roundsToSignificantDigits();
    void declaresSignalsAndSlotsInOrder();
    void startsAlignedToTheRight();
    void filtersWhatIsSet_data();
    void filtersWhatIsSet();
    void showsANumber_data();
    void showsANumber();
    void reportsEachChange();
    void reportsTheNumberBeforeTheText();
    void filtersTheKeys_data();
    void filtersTheKeys();
    void reportsTheArrows();
    void nudgesByItsStep_data();
    void nudgesByItsStep();
    void reportsANudgeInOrder();
    void nudgesOnlyWhereAllowed_data();
    void nudgesOnlyWhereAllowed();
    void letsTextFromOutsideWaitAfterANudge();
};

void tst_LineEditNumber::roundsToSignificantDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("text");

    QTest::newRow("rounded before the point") << 1234.5 << 2 << "1200";
    QTest::newRow("half of the last digit goes up") << 1250.0 << 2 << "1300";
    QTest::newRow("small") << 0.012345 << 2 << "0.012";
    QTest::newRow("whole and fraction") << 12.345 << 3 << "12.3";
    QTest::newRow("as many digits as there are") << 123.0 << 3 << "123";
    QTest::newRow("more digits than there are") << 1.5 << 4 << "1.500";
    QTest::newRow("zero") << 0.0 << 3 << "0.00";
    QTest::newRow("zero with one digit") << 0.0 << 1 << "0";
    QTest::newRow("no digits") << 12.0 << 0 << "0";
    QTest::newRow("fewer than none") << 12.0 << -4 << "0";
    QTest::newRow("a power of ten") << 1000.0 << 2 << "1000";
    QTest::newRow("negative, by its size") << -1234.5 << 2 << "-1200";
    QTest::newRow("beyond an int") << 123456789012.0 << 11 << "123456789010";
    QTest::newRow("not a number") << qQNaN() << 3 << "nan";
    QTest::newRow("infinite") << qInf() << 3 << "inf";
}

void tst_LineEditNumber::roundsToSignificantDigits()
{
    QFETCH(double, value);
    QFETCH(int, digits);

    QTEST(toSignificantDigits(value, digits), "text");
    // No number of digits does harm.
    QVERIFY(!toSignificantDigits(value, std::numeric_limits<int>::max()).isEmpty());
}

void tst_LineEditNumber::declaresSignalsAndSlotsInOrder()
{
    const QStringList own = ownMethods(LineEditNumber::staticMetaObject);

    QCOMPARE(own, list({ "numberChanged(double)", "numberSaved(double)", "arrowPressed(int)",
                         "setNumber(double,int,bool)", "setNumber(double,int)", "setText(QString)",
                         "emitNumberChanged(QString)", "emitNumberSaved()", "nudge(int)",
                         "updateFeedbackValue()" }));
    QCOMPARE(LineEditNumber::staticMetaObject.superClass(), &LineEdit::staticMetaObject);
}

void tst_LineEditNumber::startsAlignedToTheRight()
{
    const Field field;

    QCOMPARE(field.alignment(), Qt::AlignRight);
    QCOMPARE(field.number(), 0.0);
    QCOMPARE(field.hold()->interval(), 250);
    QCOMPARE(field.feedback()->interval(), 250);
    QVERIFY(field.hold()->isSingleShot());
    QVERIFY(field.feedback()->isSingleShot());
}

void tst_LineEditNumber::filtersWhatIsSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    QTest::newRow("comma and unit") << "12,5 mW"
                                    << "12.5";
    QTest::newRow("signs") << "+1-2"
                           << "+1-2";
    QTest::newRow("hexadecimal") << "0xX1"
                                 << "0xX1";
    QTest::newRow("slash") << "1/2"
                           << "12";
    QTest::newRow("beyond Latin") << QString::fromUtf8("\u0661\u221e3") << "3";
    QTest::newRow("exponent") << "1e5"
                              << "15";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_LineEditNumber::filtersWhatIsSet()
{
    QFETCH(QString, text);
    Field field;

    field.setText(text);

    QTEST(field.text(), "shown");
}

void tst_LineEditNumber::showsANumber_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<bool>("significant");
    QTest::addColumn<QString>("text");

    QTest::newRow("decimals") << 12.345 << 2 << false << "12.35";
    QTest::newRow("no decimals") << 12.4 << 0 << false << "12";
    QTest::newRow("significant") << 1234.5 << 2 << true << "1200";
    QTest::newRow("significant, small") << 0.012345 << 2 << true << "0.012";
    QTest::newRow("significant, zero") << 0.0 << 3 << true << "0.00";
    QTest::newRow("infinite, without its letters") << qInf() << 2 << false << "";
}

void tst_LineEditNumber::showsANumber()
{
    QFETCH(double, value);
    QFETCH(int, precision);
    QFETCH(bool, significant);
    Field field;

    field.setNumber(value, precision, significant);
    QTEST(field.text(), "text");

    if (!significant) {
        field.setText(QString());
        field.setNumber(value, precision);
        QTEST(field.text(), "text");
    }
}

void tst_LineEditNumber::reportsEachChange()
{
    Field field;
    Recorder recorder(field);

    field.setText(QStringLiteral("12"));
    QCOMPARE(recorder.taken(), list({ "numberChanged(12)" }));
    field.setText(QStringLiteral("12"));
    QCOMPARE(recorder.taken(), QStringList());
    QTest::keyClicks(&field, QStringLiteral("5."));
    QCOMPARE(recorder.taken(), list({ "numberChanged(125)", "numberChanged(125)" }));
}

void tst_LineEditNumber::reportsTheNumberBeforeTheText()
{
    Field field;
    Recorder recorder(field);
    QTest::keyClicks(&field, QStringLiteral("7"));
    recorder.taken();
    QStringList order;
    connect(&field, &LineEdit::textSaved, this, [&order] { order << QStringLiteral("text"); });
    connect(&field, &LineEditNumber::numberSaved, this,
            [&order] { order << QStringLiteral("number"); });

    QTest::keyClick(&field, Qt::Key_Return);

    QCOMPARE(order, list({ "number", "text" }));
    QCOMPARE(recorder.taken().size(), 2);
}

void tst_LineEditNumber::filtersTheKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    // Before the key the field reads 12, and the cursor stands at the end.
    QTest::newRow("digit") << int(Qt::Key_7) << "7"
                           << "127";
    QTest::newRow("plus") << int(Qt::Key_Plus) << "+"
                          << "12+";
    QTest::newRow("minus") << int(Qt::Key_Minus) << "-"
                           << "12-";
    QTest::newRow("point") << int(Qt::Key_Period) << "."
                           << "12.";
    QTest::newRow("comma becomes a point") << int(Qt::Key_Comma) << ","
                                           << "12.";
    QTest::newRow("x") << int(Qt::Key_X) << "x"
                       << "12x";
    QTest::newRow("backspace") << int(Qt::Key_Backspace) << ""
                               << "1";
    QTest::newRow("letter") << int(Qt::Key_A) << "a"
                            << "12";
    QTest::newRow("letter of an exponent") << int(Qt::Key_E) << "e"
                                           << "12";
    QTest::newRow("blank") << int(Qt::Key_Space) << " "
                           << "12";
}

void tst_LineEditNumber::filtersTheKeys()
{
    QFETCH(int, key);
    QFETCH(QString, typed);
    Field field;
    field.setText(QStringLiteral("12"));

    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key(key), typed, Qt::NoModifier);
    QTEST(field.text(), "text");

    const int cursor = field.cursorPosition();
    QTest::keyClick(&field, Qt::Key_Home); // swallowed as well
    QCOMPARE(field.cursorPosition(), cursor);
    QTest::keyClick(&field, Qt::Key_Left);
    QCOMPARE(field.cursorPosition(), cursor - 1);
}

void tst_LineEditNumber::reportsTheArrows()
{
    Field field;
    field.allowNudge(1.0);
    Recorder recorder(field);

    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Down);

    QCOMPARE(recorder.taken(), list({ "arrowPressed(1)", "arrowPressed(-1)" }));
    QCOMPARE(field.text(), QString()); // the arrows do not nudge by themselves
}

void tst_LineEditNumber::nudgesByItsStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("decimals");

    QTest::newRow("hundredth") << 0.01 << "1" << 1 << "1.01" << 2;
    QTest::newRow("down") << 0.01 << "1" << -1 << "0.99" << 2;
    QTest::newRow("quarter, shortened to one decimal") << 0.25 << "1.01" << 1 << "1.3" << 1;
    QTest::newRow("whole") << 1.0 << "1.7" << 1 << "3" << 0;
    QTest::newRow("nearly whole") << 0.999999 << "1" << 1 << "2" << 0;
    QTest::newRow("tenth") << 0.1 << "1" << 1 << "1.1" << 1;
    QTest::newRow("several steps") << 0.5 << "1" << 3 << "2.5" << 1;
    QTest::newRow("finer than is told apart") << 1e-9 << "1" << 1 << "1.000000" << 6;
    QTest::newRow("no number counts as 0") << 5.0 << "" << 1 << "5" << 0;
}

void tst_LineEditNumber::nudgesByItsStep()
{
    QFETCH(double, step);
    QFETCH(QString, before);
    QFETCH(int, direction);
    QFETCH(int, decimals);
    Field field;
    field.allowNudge(step);
    field.setText(before);
    expectNudge(before.toDouble() + direction * step, decimals);

    field.nudge(direction);

    QTEST(field.text(), "after");
}

void tst_LineEditNumber::reportsANudgeInOrder()
{
    Field field;
    field.allowNudge(0.5);
    field.setText(QStringLiteral("2"));
    Recorder recorder(field);
    expectNudge(2.5, 1);

    field.nudge(1);

    QCOMPARE(recorder.taken(),
             list({ "numberChanged(2.5)", "numberSaved(2.5)", "textSaved(\"2.5\")" }));
    QVERIFY(field.hold()->isActive());
}

void tst_LineEditNumber::nudgesOnlyWhereAllowed_data()
{
    QTest::addColumn<double>("step");

    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("not a number") << qQNaN();
    QTest::newRow("infinite") << qInf();
}

void tst_LineEditNumber::nudgesOnlyWhereAllowed()
{
    QFETCH(double, step);
    Field field;
    field.setText(QStringLiteral("2"));
    Recorder recorder(field);

    field.nudge(1); // before any step was allowed
    field.allowNudge(step);
    field.nudge(1);

    QCOMPARE(field.text(), QStringLiteral("2"));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_LineEditNumber::letsTextFromOutsideWaitAfterANudge()
{
    Field field;
    field.allowNudge(1.0);
    field.setText(QStringLiteral("5"));
    field.hold()->setInterval(60);
    field.feedback()->setInterval(15);
    expectNudge(6.0, 0);

    field.nudge(1);
    field.setText(QStringLiteral("5")); // the old reading
    QCOMPARE(field.text(), QStringLiteral("6"));
    field.setNumber(6.5, 1);
    QCOMPARE(field.text(), QStringLiteral("6"));

    QTRY_COMPARE(field.text(), QStringLiteral("6.5")); // the last one, after the hold
    QVERIFY(!field.hold()->isActive());
    field.setText(QStringLiteral("7"));
    QCOMPARE(field.text(), QStringLiteral("7"));
}

PELORIN_TEST_MAIN(tst_LineEditNumber)
#include "tst_lineeditnumber.moc"
