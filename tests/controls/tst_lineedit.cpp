#include "Pelorin/controls/LineEdit.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

namespace {

/// Only what LineEdit itself declares.
class Recorder : public SignalRecorder
{
public:
    explicit Recorder(const LineEdit &field)
        : SignalRecorder(&field, QString(), &QLineEdit::staticMetaObject)
    {}
};

void loseFocus(LineEdit &field)
{
    QFocusEvent event(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&field, &event);
}

void expectReset(const char *text)
{
    TestCase::expectMessage(QtDebugMsg, QStringLiteral("Reset:  \"%1\"").arg(QLatin1String(text)));
}

} // namespace

class tst_LineEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsFlatAndEmpty();
    void declaresSignalsAndSlotsInOrder();
    void takesTheDarkGround();
    void savesOnReturn();
    void fallsBackOnTheTextThatWasSet();
    void tellsOfAnEditOnce();
    void fallsBackAfterTheTimeout();
    void givesTheOperatorFiveSeconds();
    void startsTheTimeAnewWithEachKey();
    void stopsTheTimeOnReturn();
    void savesWhenTheFocusIsLost();
    void savesNothingWithoutTheTimeout();
    void forgetsTheTimeoutWhenToldSo();
    void connectsTheTimeoutOnlyOnce();
    void tellsOfTheFocus();
};

void tst_LineEdit::startsFlatAndEmpty()
{
    const LineEdit field;

    QCOMPARE(field.text(), QString());
    QCOMPARE(field.minimumWidth(), 50);
    QCOMPARE(field.property("flat"), QVariant(true));
    QVERIFY(!field.property("background").isValid());
    QCOMPARE(field.metaObject()->superClass(), &QLineEdit::staticMetaObject);
}

void tst_LineEdit::declaresSignalsAndSlotsInOrder()
{
    const QStringList own = ownMethods(LineEdit::staticMetaObject);

    QCOMPARE(own, list({ "textSaved(QString)", "gotFocus()", "textReset()", "textEditing()",
                         "setText(QString)", "saveText()", "resetText()", "checkForNewText()" }));
}

void tst_LineEdit::takesTheDarkGround()
{
    LineEdit field;

    field.setDarkBackground();

    QCOMPARE(field.property("background").toString(), QStringLiteral("dark"));
}

void tst_LineEdit::savesOnReturn()
{
    LineEdit field;
    Recorder recorder(field);

    QTest::keyClicks(&field, QStringLiteral("488"));
    QCOMPARE(recorder.taken(), QStringList());
    QTest::keyClick(&field, Qt::Key_Return);

    QCOMPARE(recorder.taken(), list({ "textSaved(\"488\")" }));
}

void tst_LineEdit::fallsBackOnTheTextThatWasSet()
{
    LineEdit field;
    field.setText(QStringLiteral("488"));
    Recorder recorder(field);
    QTest::keyClicks(&field, QStringLiteral("99"));
    expectReset("488");

    field.resetText();

    QCOMPARE(field.text(), QStringLiteral("488"));
    QCOMPARE(recorder.taken(), list({ "textReset()" }));
}

void tst_LineEdit::tellsOfAnEditOnce()
{
    LineEdit field;
    field.enableTimeout(true);
    Recorder recorder(field);

    QTest::keyClicks(&field, QStringLiteral("488"));
    QCOMPARE(recorder.taken(), list({ "textEditing()" }));

    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(recorder.taken(), list({ "textSaved(\"488\")" }));

    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(recorder.taken(), list({ "textEditing()" }));

    field.saveText();
    field.checkForNewText(); // nothing new
    QCOMPARE(recorder.taken(), list({ "textSaved(\"48\")" }));
}

void tst_LineEdit::fallsBackAfterTheTimeout()
{
    LineEdit field;
    field.enableTimeout(true);
    field.setText(QStringLiteral("405"));
    field.findChild<QTimer *>(QStringLiteral("timeoutTimer"))->setInterval(20);
    Recorder recorder(field);
    expectReset("405");

    QTest::keyClicks(&field, QStringLiteral("7"));
    QCOMPARE(field.text(), QStringLiteral("4057"));

    QTRY_COMPARE(field.text(), QStringLiteral("405"));
    QCOMPARE(recorder.taken(), list({ "textEditing()", "textReset()" }));
}

void tst_LineEdit::givesTheOperatorFiveSeconds()
{
    LineEdit field;
    const auto *timer = field.findChild<QTimer *>(QStringLiteral("timeoutTimer"));

    QCOMPARE(timer->interval(), 5000);
    QVERIFY(timer->isSingleShot());
    QVERIFY(!timer->isActive());
}

void tst_LineEdit::startsTheTimeAnewWithEachKey()
{
    LineEdit field;
    field.enableTimeout(true);
    auto *timer = field.findChild<QTimer *>(QStringLiteral("timeoutTimer"));
    QTest::keyClicks(&field, QStringLiteral("1"));
    QVERIFY(timer->isActive());

    timer->stop();
    QTest::keyClicks(&field, QStringLiteral("2"));

    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 5000);
}

void tst_LineEdit::stopsTheTimeOnReturn()
{
    LineEdit field;
    field.enableTimeout(true);
    const auto *timer = field.findChild<QTimer *>(QStringLiteral("timeoutTimer"));
    QTest::keyClicks(&field, QStringLiteral("1"));

    QTest::keyClick(&field, Qt::Key_Return);

    QVERIFY(!timer->isActive());
}

void tst_LineEdit::savesWhenTheFocusIsLost()
{
    LineEdit field;
    field.enableTimeout(true);
    Recorder recorder(field);
    QTest::keyClicks(&field, QStringLiteral("12"));

    loseFocus(field);
    QCOMPARE(recorder.taken(), list({ "textEditing()", "textSaved(\"12\")" }));

    loseFocus(field); // no edit, nothing to save
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_LineEdit::savesNothingWithoutTheTimeout()
{
    LineEdit field;
    Recorder recorder(field);
    QTest::keyClicks(&field, QStringLiteral("12"));

    loseFocus(field);

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_LineEdit::forgetsTheTimeoutWhenToldSo()
{
    LineEdit field;
    field.enableTimeout(true);
    field.enableTimeout(false);
    Recorder recorder(field);

    QTest::keyClicks(&field, QStringLiteral("12"));
    QVERIFY(!field.findChild<QTimer *>(QStringLiteral("timeoutTimer"))->isActive());
    QCOMPARE(recorder.taken(), QStringList());

    QTest::keyClick(&field, Qt::Key_Return); // saving by Return is not a matter of the timeout
    QCOMPARE(recorder.taken(), list({ "textSaved(\"12\")" }));
}

void tst_LineEdit::connectsTheTimeoutOnlyOnce()
{
    LineEdit field;
    field.enableTimeout(true);
    field.enableTimeout(true);
    auto *timer = field.findChild<QTimer *>(QStringLiteral("timeoutTimer"));
    timer->setInterval(10);
    Recorder recorder(field);
    expectReset("");

    QTest::keyClicks(&field, QStringLiteral("1"));

    QTRY_COMPARE(recorder.entries(), list({ "textEditing()", "textReset()" }));
}

void tst_LineEdit::tellsOfTheFocus()
{
    LineEdit field;
    Recorder recorder(field);
    QFocusEvent event(QEvent::FocusIn, Qt::MouseFocusReason);

    QApplication::sendEvent(&field, &event);

    QCOMPARE(recorder.taken(), list({ "gotFocus()" }));
}

PELORIN_TEST_MAIN(tst_LineEdit)
#include "tst_lineedit.moc"
