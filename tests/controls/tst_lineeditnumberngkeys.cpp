#include "tests/controls/NumberField.h"
#include "tests/support/TestCase.h"

#include <QClipboard>
#include <QKeyEvent>

namespace {

/// Counts the keys that come through to it.
class Parent : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

} // namespace

class tst_LineEditNumberNGKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void stepsTheDigitLeftOfTheCursor_data();
    void stepsTheDigitLeftOfTheCursor();
    void stepsByTheCommittedTextNotTheTypedOne();
    void reportsAStepAtALimit_data();
    void reportsAStepAtALimit();
    void reportsTheRawValueOfAStep();
    void doesNotStepAwayFromInfinity();
    void leavesTheTimerOfAStepRunning();
    void takesKeys_data();
    void takesKeys();
    void swallowsKeys_data();
    void swallowsKeys();
    void startsAnEditWithEveryKey_data();
    void startsAnEditWithEveryKey();
};

void tst_LineEditNumberNGKeys::init()
{
    TestCase::init();
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
}

void tst_LineEditNumberNGKeys::stepsTheDigitLeftOfTheCursor_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("down");

    const auto row = [](const char *name, int decimals, double value, int cursor, const char *up,
                        const char *down) {
        QTest::newRow(name) << decimals << value << cursor << QString::fromLatin1(up)
                            << QString::fromLatin1(down);
    };
    row("at the end", 2, 12.34, 5, "12.35", "12.33");
    row("behind the first decimal", 2, 12.34, 4, "12.44", "12.24");
    row("behind the point", 2, 12.34, 3, "13.34", "11.34");
    row("before the point", 2, 12.34, 2, "13.34", "11.34");
    row("behind the tens", 2, 12.34, 1, "22.34", "2.34");
    row("before the tens", 2, 112.34, 1, "212.34", "12.34");
    row("at the start", 2, 1112.34, 0, "11112.34", "0.00");
    row("whole number, at the end", 0, 1234, 4, "1235", "1233");
    // There is no point to be left out of account, but one is.
    row("whole number, before the units", 0, 1234, 3, "1235", "1233");
    row("whole number, before the tens", 0, 1234, 2, "1244", "1224");
    row("many decimals", 6, 1.5, 8, "1.500001", "1.499999");
}

void tst_LineEditNumberNGKeys::stepsTheDigitLeftOfTheCursor()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(int, cursor);
    QFETCH(QString, up);
    QFETCH(QString, down);

    for (const bool rising : { true, false }) {
        NumberField field(0.0, 1e6);
        field.edit.setValuePrecision(decimals);
        field.edit.setValue(value);
        field.edit.setCursorPosition(cursor);

        field.press(rising ? Qt::Key_Up : Qt::Key_Down);

        const QString expected = rising ? up : down;
        QCOMPARE(field.edit.text(), expected);
        QCOMPARE(field.edit.cursorPosition(), qMin(cursor, expected.size()));
        QCOMPARE(QString::number(field.edit.value(), 'f', decimals), expected);
        const QString number = QString::number(expected.toDouble(), 'g', 12);
        QCOMPARE(field.recorder.taken(),
                 QStringList({ QStringLiteral("valueChanging(%1)").arg(number),
                               QStringLiteral("valueChanged(%1)").arg(number) }));
    }
}

void tst_LineEditNumberNGKeys::stepsByTheCommittedTextNotTheTypedOne()
{
    NumberField field(5.0);
    field.type(QStringLiteral("5")); // one character, but the edit text reads "5.00"

    field.press(Qt::Key_Up); // three characters right of the cursor, one of them the point

    QCOMPARE(field.edit.text(), QStringLiteral("6.00"));
    QCOMPARE(field.edit.cursorPosition(), 1);

    field.type(QStringLiteral("12.345678")); // four characters more than the edit text
    field.press(Qt::Key_Up);

    // 10^-4 of the last decimal is lost in the text, but not in the value.
    QCOMPARE(field.edit.text(), QStringLiteral("12.35"));
    QCOMPARE(QString::number(field.edit.value(), 'f', 9), QStringLiteral("12.345679000"));
}

void tst_LineEditNumberNGKeys::reportsAStepAtALimit_data()
{
    QTest::addColumn<double>("limit");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("signalOrder");

    QTest::newRow("at the top") << 100.0 << int(Qt::Key_Up)
                                << list("valueChanging(100)", "valueChanged(100)");
    QTest::newRow("at the bottom")
        << 0.0 << int(Qt::Key_Down) << list("valueChanging(0)", "valueChanged(0)");
}

void tst_LineEditNumberNGKeys::reportsAStepAtALimit()
{
    QFETCH(double, limit);
    QFETCH(int, key);
    QFETCH(QStringList, signalOrder);
    NumberField field(limit);

    field.press(Qt::Key(key));

    QCOMPARE(field.recorder.taken(), signalOrder);
    QCOMPARE(field.edit.value(), limit);
}

void tst_LineEditNumberNGKeys::reportsTheRawValueOfAStep()
{
    NumberField field(12.3712);
    field.edit.end(false);

    field.press(Qt::Key_Up);

    QCOMPARE(field.recorder.taken(), list("valueChanging(12.38)", "valueChanged(12.3812)"));
}

void tst_LineEditNumberNGKeys::doesNotStepAwayFromInfinity()
{
    NumberField field;
    field.edit.enableInfinity(true);
    field.edit.setValue(qInf());

    field.press(Qt::Key_Down);

    QCOMPARE(field.recorder.taken(), list("valueChanging(inf)", "valueChanged(inf)"));
    QCOMPARE(field.edit.text(), infinitySign());
}

void tst_LineEditNumberNGKeys::leavesTheTimerOfAStepRunning()
{
    NumberField field(5.0);
    field.edit.end(false);
    field.press(Qt::Key_Up);
    QVERIFY(field.isEditing());
    field.recorder.taken();

    field.edit.setEditTimeout(1);
    QTRY_VERIFY(!field.isEditing());

    QCOMPARE(field.recorder.taken(), list("valueChanging(5.01)"));
    QCOMPARE(field.edit.text(), QStringLiteral("5.01"));

    field.edit.enableEditTimeout(false);
    field.press(Qt::Key_Down);

    QVERIFY(!field.isEditing());
    QCOMPARE(field.recorder.taken(), list("valueChanging(5)", "valueChanged(5)"));
}

void tst_LineEditNumberNGKeys::takesKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");

    const auto sign = [](const char *name, int key, char typed) {
        QTest::newRow(name) << key << QString(QLatin1Char(typed))
                            << QStringLiteral("12%1.34").arg(QLatin1Char(typed)) << 3;
    };
    for (char digit = '0'; digit <= '9'; ++digit)
        sign(qPrintable(QStringLiteral("digit %1").arg(QLatin1Char(digit))), digit, digit);
    sign("plus", Qt::Key_Plus, '+');
    sign("minus", Qt::Key_Minus, '-');
    sign("point", Qt::Key_Period, '.');
    sign("capital F", Qt::Key_F, 'F');
    sign("small f", Qt::Key_F, 'f');
    sign("capital I", Qt::Key_I, 'I');
    sign("small i", Qt::Key_I, 'i');
    sign("capital N", Qt::Key_N, 'N');
    sign("small n", Qt::Key_N, 'n');
    QTest::newRow("comma") << int(Qt::Key_Comma) << QStringLiteral(",") << QStringLiteral("12..34")
                           << 3;
    const auto move = [](const char *name, Qt::Key key, const char *text, int cursor) {
        QTest::newRow(name) << int(key) << QString() << QString::fromLatin1(text) << cursor;
    };
    move("Backspace", Qt::Key_Backspace, "1.34", 1);
    move("Delete", Qt::Key_Delete, "1234", 2);
    move("Home", Qt::Key_Home, "12.34", 0);
    move("End", Qt::Key_End, "12.34", 5);
    move("Left", Qt::Key_Left, "12.34", 1);
    move("Right", Qt::Key_Right, "12.34", 3);
}

void tst_LineEditNumberNGKeys::takesKeys()
{
    QFETCH(int, key);
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QFETCH(int, cursor);
    NumberField field(12.34);
    field.edit.setCursorPosition(2);

    field.press(Qt::Key(key), Qt::NoModifier, typed);

    QCOMPARE(field.edit.text(), text);
    QCOMPARE(field.edit.cursorPosition(), cursor);
    QCOMPARE(field.recorder.taken().size(), text == QLatin1String("12.34") ? 0 : 1);
}

void tst_LineEditNumberNGKeys::swallowsKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers,
                        const QString &text) {
        QTest::newRow(name) << key << int(modifiers) << text;
    };
    row("Escape", Qt::Key_Escape, Qt::NoModifier, QString());
    row("space", Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    row("a letter", Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
    row("another sign", Qt::Key_Asterisk, Qt::NoModifier, QStringLiteral("*"));
    row("the sign of infinity", 0x221E, Qt::NoModifier, infinitySign());
    row("Page Up", Qt::Key_PageUp, Qt::NoModifier, QString());
    row("Insert", Qt::Key_Insert, Qt::NoModifier, QString());
    row("a function key", Qt::Key_F5, Qt::NoModifier, QString());
    row("copy", Qt::Key_C, Qt::ControlModifier, QString());
    row("paste", Qt::Key_V, Qt::ControlModifier, QString());
    row("cut", Qt::Key_X, Qt::ControlModifier, QString());
    row("undo", Qt::Key_Z, Qt::ControlModifier, QString());
    row("select all", Qt::Key_A, Qt::ControlModifier, QString());
}

void tst_LineEditNumberNGKeys::swallowsKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    Parent parent;
    NumberField field(12.34);
    field.edit.setParent(&parent);
    field.edit.setSelection(0, 2);
    QApplication::clipboard()->setText(QStringLiteral("55"));

    field.press(Qt::Key(key), Qt::KeyboardModifiers(modifiers), text);

    QCOMPARE(field.recorder.taken(), QStringList());
    QCOMPARE(field.edit.text(), QStringLiteral("12.34"));
    QCOMPARE(field.edit.selectedText(), QStringLiteral("12"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("55"));
    QCOMPARE(parent.keys, 0);
    QVERIFY(field.isEditing());
    field.edit.setParent(nullptr);
}

void tst_LineEditNumberNGKeys::startsAnEditWithEveryKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("commits");

    QTest::newRow("a digit") << int(Qt::Key_7) << false;
    QTest::newRow("a comma") << int(Qt::Key_Comma) << false;
    QTest::newRow("the cursor") << int(Qt::Key_Left) << false;
    QTest::newRow("a step") << int(Qt::Key_Up) << false;
    QTest::newRow("a key without effect") << int(Qt::Key_Escape) << false;
    QTest::newRow("Return, which ends it") << int(Qt::Key_Return) << true;
}

void tst_LineEditNumberNGKeys::startsAnEditWithEveryKey()
{
    QFETCH(int, key);
    QFETCH(bool, commits);
    NumberField field(50.0);
    NumberField untimed(50.0);
    untimed.edit.enableEditTimeout(false);

    field.press(Qt::Key(key));
    untimed.press(Qt::Key(key));

    QCOMPARE(field.isEditing(), !commits);
    QVERIFY(!untimed.isEditing());
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGKeys)
#include "tst_lineeditnumberngkeys.moc"
