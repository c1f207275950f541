#include "tests/controls/NumberField.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"

#include <QAction>
#include <QToolButton>

#include <limits>

namespace {

constexpr int most = std::numeric_limits<int>::max();

} // namespace

class tst_LineEditNumberNGLook : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesRoomForItsNumbers_data();
    void makesRoomForItsNumbers();
    void makesRoomForItsDecimals();
    void fixesTheWidthIfItMayShrink();
    void keepsItsWidthWhenTheRangeChanges();
    void boundsAnAbsurdWidth_data();
    void boundsAnAbsurdWidth();
    void showsAnotherContentWhileDisabled();
    void showsTheNumberWhileDisabledWithoutAContent();
    void forgetsAnEditWhenEnabled();
    void showsAnIndicatorIcon();
    void paintsTheNumberAtTheRight_data();
    void paintsTheNumberAtTheRight();
};

void tst_LineEditNumberNGLook::makesRoomForItsNumbers_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("popup");
    QTest::addColumn<QString>("model");

    const auto row = [](const char *name, double min, double max, int digits, int decimals,
                        bool popup, const char *model) {
        QTest::newRow(name) << min << max << digits << decimals << popup
                            << QString::fromLatin1(model);
    };
    row("integer digits", 0, 100, 4, 2, false, "00000.000");
    row("fewer integer digits than the range", 0, 100, 1, 2, false, "0000.000");
    row("long top of the range", 0, 123456, 4, 2, false, "0000000.000");
    row("long bottom of the range", -12345, 0, 4, 2, false, "0000000.000");
    row("top rounded up", 0, 99.6, 1, 2, false, "0000.000");
    row("no decimals", 0, 100, 4, 0, false, "000000");
    row("three decimals", 0, 100, 4, 3, false, "00000.0000");
    row("decimals less than none", 0, 100, 4, -1, false, "00000");
    row("far less than none", 0, 100, 4, -7, false, "00000");
    row("with the popup button", 0, 100, 4, 2, true, "00000.00000");
}

void tst_LineEditNumberNGLook::makesRoomForItsNumbers()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, digits);
    QFETCH(int, decimals);
    QFETCH(bool, popup);
    QFETCH(QString, model);
    LineEditNumberNG edit(nullptr);
    edit.setRange(min, max);
    edit.setValuePrecision(decimals);
    edit.popUpSliderEnable(popup, false);

    edit.setIntegerDigits(digits);

    QCOMPARE(edit.minimumWidth(), QFontMetrics(edit.font()).horizontalAdvance(model));
    QCOMPARE(edit.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(edit.integerDigits(), digits);
}

void tst_LineEditNumberNGLook::makesRoomForItsDecimals()
{
    LineEditNumberNG edit(nullptr);

    edit.setValuePrecision(4);

    QCOMPARE(edit.minimumWidth(),
             QFontMetrics(edit.font()).horizontalAdvance(QStringLiteral("00000.00000")));
}

void tst_LineEditNumberNGLook::fixesTheWidthIfItMayShrink()
{
    LineEditNumberNG edit(nullptr);

    edit.setIntegerDigits(3, true);
    QCOMPARE(edit.maximumWidth(), edit.minimumWidth());
    QVERIFY(edit.minimumWidth() > 0);

    const int fixed = edit.maximumWidth();
    edit.setIntegerDigits(3, false); // what was fixed stays so
    QCOMPARE(edit.maximumWidth(), fixed);
}

void tst_LineEditNumberNGLook::keepsItsWidthWhenTheRangeChanges()
{
    LineEditNumberNG edit(nullptr);
    edit.setIntegerDigits(4);
    const int width = edit.minimumWidth();

    edit.setRange(0.0, 1e9);
    QCOMPARE(edit.minimumWidth(), width);

    edit.adjustSize();
    QVERIFY(edit.minimumWidth() > width);
}

void tst_LineEditNumberNGLook::boundsAnAbsurdWidth_data()
{
    QTest::addColumn<int>("digits");

    QTest::newRow("the most") << most;
    QTest::newRow("the least") << -most - 1;
    QTest::newRow("none") << 0;
}

void tst_LineEditNumberNGLook::boundsAnAbsurdWidth()
{
    QFETCH(int, digits);
    LineEditNumberNG edit(nullptr);
    edit.setValuePrecision(most);

    edit.setIntegerDigits(digits);

    QCOMPARE(edit.integerDigits(), digits);
    QVERIFY(edit.minimumWidth() > 0 && edit.minimumWidth() < QWIDGETSIZE_MAX);
}

void tst_LineEditNumberNGLook::showsAnotherContentWhileDisabled()
{
    NumberField field(5.0);
    field.edit.setDisabledContent(QStringLiteral("---"));
    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));

    field.edit.setEnabled(false);
    QCOMPARE(field.edit.text(), QStringLiteral("---"));

    field.edit.setValue(7.0);
    QCOMPARE(field.edit.text(), QStringLiteral("---"));
    field.edit.setDisabledContent(QStringLiteral("off"));
    QCOMPARE(field.edit.text(), QStringLiteral("---")); // not before the next value
    field.edit.setValue(8.0);
    QCOMPARE(field.edit.text(), QStringLiteral("off"));
    QCOMPARE(field.edit.disabledContent(), QStringLiteral("off"));

    field.edit.setEnabled(true);
    QCOMPARE(field.edit.text(), QStringLiteral("8.00"));
    QCOMPARE(field.edit.value(), 8.0);
    QCOMPARE(field.recorder.taken(), QStringList());
}

void tst_LineEditNumberNGLook::showsTheNumberWhileDisabledWithoutAContent()
{
    NumberField field(5.0);

    field.edit.setEnabled(false);
    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));
    field.edit.setValue(7.0);

    QCOMPARE(field.edit.text(), QStringLiteral("7.00"));
}

void tst_LineEditNumberNGLook::forgetsAnEditWhenEnabled()
{
    NumberField field(5.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
    field.type(QStringLiteral("7"));

    field.edit.setEnabled(false);
    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));
    field.edit.setEnabled(true);

    QCOMPARE(field.edit.text(), QStringLiteral("5.00"));
}

void tst_LineEditNumberNGLook::showsAnIndicatorIcon()
{
    LineEditNumberNG edit(nullptr);
    edit.resize(200, 30);
    edit.show();
    QPixmap lamp(16, 16);
    lamp.fill(Qt::blue);

    edit.setIndicatorIcon(lamp);
    edit.setIndicatorIcon(lamp); // one is enough

    QCOMPARE(edit.actions().size(), 1);
    QCOMPARE(edit.findChildren<QToolButton *>().size(), 1);
    QVERIFY(!edit.actions().first()->isEnabled());
    QVERIFY(edit.findChild<QToolButton *>()->x() < edit.width() / 2);

    edit.setIndicatorIcon(QPixmap());
    QVERIFY(edit.actions().isEmpty());
    edit.setIndicatorIcon(QPixmap());
}

void tst_LineEditNumberNGLook::paintsTheNumberAtTheRight_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("a number") << 12.5 << QStringLiteral("12.50");
    QTest::newRow("infinity") << qInf() << infinitySign();
}

void tst_LineEditNumberNGLook::paintsTheNumberAtTheRight()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    NumberField field;
    field.edit.setFrame(false);
    field.edit.resize(300, 30);
    field.edit.enableInfinity(true);

    field.edit.setValue(value);

    const PaintRecorder::Text painted = PaintRecorder(field.edit).find(text);
    QCOMPARE(painted.text, text);
    const double end = painted.baseline.x() + QFontMetricsF(painted.font).horizontalAdvance(text);
    QVERIFY2(end > 290 && end <= 300, qPrintable(QString::number(end)));
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGLook)
#include "tst_lineeditnumbernglook.moc"
