#include "tests/controls/NumberField.h"
#include "tests/support/TestCase.h"

#include <QInputMethodEvent>

class tst_LineEditNumberNGEditing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void reportsEachKeyAndLeavesTheTextAsTyped();
    void readsTheText_data();
    void readsTheText();
    void logsTheTypedText();
    void commits_data();
    void commits();
    void commitsOnlyOnce();
    void commitsTheNumberOfTheShownText();
    void fallsBackAfterTheTimeout();
    void commitsAnEditThatWasGivenUp();
    void protectsAnEditFromTheDevice();
    void overwritesWhatIsTypedWithoutTheTimeout();
    void keepsARunningTimerWhenTheTimeoutIsDisabled();
    void keepsAnEditWhenTheRangeChanges();
    void takesInfinityByAnyWay_data();
    void takesInfinityByAnyWay();
    void commitsInfinityUnrounded();
};

void tst_LineEditNumberNGEditing::init()
{
    TestCase::init();
    if (qstrcmp(QTest::currentTestFunction(), "logsTheTypedText") != 0)
        tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
}

void tst_LineEditNumberNGEditing::reportsEachKeyAndLeavesTheTextAsTyped()
{
    NumberField field(0.0, 10.0);

    field.type(QStringLiteral("123"));

    QCOMPARE(field.recorder.taken(),
             QStringList({ QStringLiteral("valueChanging(1)"), QStringLiteral("valueChanging(10)"),
                           QStringLiteral("valueChanging(10)") }));
    QCOMPARE(field.edit.text(), QStringLiteral("123"));
    QCOMPARE(field.edit.value(), 0.0);

    field.press(Qt::Key_Return);

    QCOMPARE(field.recorder.taken(), list("valueChanged(10)"));
    QCOMPARE(field.edit.text(), QStringLiteral("10.00"));
    QCOMPARE(field.edit.selectedText(), QStringLiteral("10.00"));
    QCOMPARE(field.edit.value(), 10.0);
}

void tst_LineEditNumberNGEditing::readsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("signal");

    const auto row = [](const char *name, const char *text, const char *value) {
        QTest::newRow(name) << QString::fromLatin1(text)
                            << QStringLiteral("valueChanging(%1)").arg(QLatin1String(value));
    };
    row("whole number", "12", "12");
    row("point at the end", "12.", "12");
    row("point at the start", ".5", "0.5");
    row("more decimals than are shown", "12.3456", "12.35");
    row("plus", "+7", "7");
    row("below the range", "-7", "0");
    row("above the range", "101", "100");
    row("power of ten", "5e1", "50");
    row("no number", "12..3", "0");
    row("signs alone", "+-", "0");
    row("nothing", "", "0");
    row("a word", "laser", "0");
    row("not-a-number", "nan", "0");
    row("infinity while it is off", "inf", "100");
    row("negative infinity while it is off", "-inf", "0");
    row("more than any number", "1e999", "100");
}

void tst_LineEditNumberNGEditing::readsTheText()
{
    QFETCH(QString, text);
    QFETCH(QString, signal);
    NumberField field(50.0);
    field.edit.selectAll();

    field.edit.insert(text); // as from the clipboard

    QCOMPARE(field.recorder.taken(), QStringList(signal));
    QCOMPARE(field.edit.text(), text);
    QCOMPARE(field.edit.value(), 50.0);
    QVERIFY(field.isEditing());
}

void tst_LineEditNumberNGEditing::logsTheTypedText()
{
    NumberField field;
    field.edit.selectAll();

    expectMessage(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in \"4\""));
    field.press(Qt::Key_4, Qt::NoModifier, QStringLiteral("4"));
    expectMessage(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in \"4.\""));
    field.press(Qt::Key_Comma, Qt::NoModifier, QStringLiteral(","));
}

void tst_LineEditNumberNGEditing::commits_data()
{
    QTest::addColumn<int>("key"); // 0 for the loss of focus

    QTest::newRow("at Return") << int(Qt::Key_Return);
    QTest::newRow("at Enter") << int(Qt::Key_Enter);
    QTest::newRow("when the focus is lost") << 0;
}

void tst_LineEditNumberNGEditing::commits()
{
    QFETCH(int, key);
    NumberField field(5.0);
    field.type(QStringLiteral("7.5"));
    field.recorder.taken();

    if (key == 0)
        field.loseFocus();
    else
        field.press(Qt::Key(key));

    QCOMPARE(field.recorder.taken(), list("valueChanged(7.5)"));
    QCOMPARE(field.edit.text(), QStringLiteral("7.50"));
    QCOMPARE(field.edit.value(), 7.5);
    QVERIFY(!field.isEditing());
    QCOMPARE(field.edit.hasSelectedText(), key != 0);
}

void tst_LineEditNumberNGEditing::commitsOnlyOnce()
{
    NumberField field(5.0);
    field.type(QStringLiteral("7.5"));
    field.press(Qt::Key_Return);
    field.recorder.taken();

    field.press(Qt::Key_Return);
    field.loseFocus();

    QCOMPARE(field.recorder.taken(), QStringList());
}

void tst_LineEditNumberNGEditing::commitsTheNumberOfTheShownText()
{
    NumberField field(12.3712);

    field.press(Qt::Key_Return);

    QCOMPARE(field.edit.value(), 12.37);
    QCOMPARE(field.recorder.taken(), QStringList());

    field.edit.setValuePrecision(1);
    QCOMPARE(field.edit.text(), QStringLiteral("12.37"));
    field.press(Qt::Key_Return); // the edit text still has two decimals, the current one has not

    QCOMPARE(field.recorder.taken(), list("valueChanging(12.4)"));
    QCOMPARE(field.edit.text(), QStringLiteral("12.4"));
    QCOMPARE(field.edit.value(), 12.37);

    field.press(Qt::Key_Return);

    QCOMPARE(field.recorder.taken(), QStringList());
    QCOMPARE(field.edit.value(), 12.4);
}

void tst_LineEditNumberNGEditing::fallsBackAfterTheTimeout()
{
    NumberField field(5.0);
    field.type(QStringLiteral("7"));
    field.recorder.taken();

    field.edit.setEditTimeout(1);
    QTRY_VERIFY(!field.isEditing());

    QCOMPARE(field.recorder.taken(), list("valueChanging(5)"));
    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));
    QCOMPARE(field.edit.selectedText(), QStringLiteral("5.00"));
    QCOMPARE(field.edit.value(), 5.0);
}

void tst_LineEditNumberNGEditing::commitsAnEditThatWasGivenUp()
{
    NumberField field(5.0);
    field.type(QStringLiteral("7"));
    field.edit.setEditTimeout(1);
    QTRY_VERIFY(!field.isEditing());
    field.recorder.taken();

    field.loseFocus();

    QCOMPARE(field.recorder.taken(), list("valueChanged(7)"));
    QCOMPARE(field.edit.text(), QStringLiteral("7.00"));
    QCOMPARE(field.edit.value(), 7.0);
}

void tst_LineEditNumberNGEditing::protectsAnEditFromTheDevice()
{
    NumberField field(5.0);
    field.type(QStringLiteral("7"));
    field.recorder.taken();

    field.edit.setValue(20.0);
    QCOMPARE(field.edit.text(), QStringLiteral("7"));
    QCOMPARE(field.edit.value(), 20.0);
    QCOMPARE(field.recorder.taken(), QStringList());

    field.edit.changeValue(30.0);
    QCOMPARE(field.edit.text(), QStringLiteral("7"));
    QCOMPARE(field.edit.value(), 30.0);
    QCOMPARE(field.recorder.taken(), list("valueChanged(30)"));
    QVERIFY(field.isEditing());

    field.press(Qt::Key_Return);
    QCOMPARE(field.recorder.taken(), list("valueChanged(7)"));
    QCOMPARE(field.edit.text(), QStringLiteral("7.00"));
}

void tst_LineEditNumberNGEditing::overwritesWhatIsTypedWithoutTheTimeout()
{
    NumberField field(5.0);
    field.edit.enableEditTimeout(false);
    field.type(QStringLiteral("7"));
    QVERIFY(!field.isEditing());
    field.recorder.taken();

    field.edit.setValue(20.0);

    QCOMPARE(field.edit.text(), QStringLiteral("20.00"));
    field.loseFocus();
    QCOMPARE(field.recorder.taken(), QStringList());
    QCOMPARE(field.edit.value(), 20.0);
}

void tst_LineEditNumberNGEditing::keepsARunningTimerWhenTheTimeoutIsDisabled()
{
    NumberField field(5.0);
    field.type(QStringLiteral("7"));

    field.edit.enableEditTimeout(false);

    QVERIFY(field.isEditing());
    field.edit.setEditTimeout(1);
    QTRY_COMPARE(field.edit.text(), QStringLiteral("5.00"));
}

void tst_LineEditNumberNGEditing::keepsAnEditWhenTheRangeChanges()
{
    NumberField field(50.0);
    field.type(QStringLiteral("7"));
    field.recorder.taken();

    field.edit.setRange(10.0, 20.0);

    QCOMPARE(field.recorder.taken(), list("valueChanged(20)"));
    QCOMPARE(field.edit.text(), QStringLiteral("7"));
    QCOMPARE(field.edit.value(), 20.0);

    field.press(Qt::Key_Return); // 7 is too little now

    QCOMPARE(field.recorder.taken(), list("valueChanging(10)", "valueChanged(10)"));
    QCOMPARE(field.edit.text(), QStringLiteral("10.00"));
}

void tst_LineEditNumberNGEditing::takesInfinityByAnyWay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("infinite");

    QTest::newRow("small letters") << QStringLiteral("inf") << true;
    QTest::newRow("capitals") << QStringLiteral("INF") << true;
    QTest::newRow("mixed letters") << QStringLiteral("iNf") << true;
    QTest::newRow("the sign") << infinitySign() << true;
    QTest::newRow("above the range") << QStringLiteral("11") << true;
    QTest::newRow("with a plus") << QStringLiteral("+inf") << true;
    QTest::newRow("at the end of the range") << QStringLiteral("10") << false;
    QTest::newRow("with a minus") << QStringLiteral("-inf") << false;
    QTest::newRow("the sign with a minus") << QChar(QLatin1Char('-')) + infinitySign() << false;
    QTest::newRow("unfinished") << QStringLiteral("in") << false;
}

void tst_LineEditNumberNGEditing::takesInfinityByAnyWay()
{
    QFETCH(QString, text);
    QFETCH(bool, infinite);
    NumberField field(0.0, 10.0);
    field.edit.enableInfinity(true);
    field.edit.selectAll();
    QInputMethodEvent input;
    input.setCommitString(text);

    QApplication::sendEvent(&field.edit, &input);

    QCOMPARE(field.recorder.taken().last() == QLatin1String("valueChanging(inf)"), infinite);
    QCOMPARE(field.edit.text(), text);
    field.press(Qt::Key_Return);
    QCOMPARE(field.edit.text() == infinitySign(), infinite);
    QCOMPARE(qIsInf(field.edit.value()), infinite);
}

void tst_LineEditNumberNGEditing::commitsInfinityUnrounded()
{
    NumberField field(0.0, 10.0);
    field.edit.enableInfinity(true);

    field.type(QStringLiteral("inf"));
    QCOMPARE(field.recorder.taken(),
             QStringList({ QStringLiteral("valueChanging(0)"), QStringLiteral("valueChanging(0)"),
                           QStringLiteral("valueChanging(inf)") }));
    field.press(Qt::Key_Return);

    QCOMPARE(field.recorder.taken(), list("valueChanged(inf)"));
    QCOMPARE(field.edit.value(), qInf());
    QCOMPARE(field.edit.text(), infinitySign());
    QCOMPARE(field.edit.selectedText(), infinitySign());
    field.loseFocus();
    QCOMPARE(field.recorder.taken(), QStringList());
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGEditing)
#include "tst_lineeditnumberngediting.moc"
