#include "Pelorin/controls/Display.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();

/// The height of a character in the face of the display by its width, on this machine.
double charRatio()
{
    QFont font(QStringLiteral("Consolas"));
    font.setPixelSize(32);
    return 32.0 / QFontMetrics(font).averageCharWidth();
}

QSize fixedSize(const QWidget &widget)
{
    return widget.minimumSize() == widget.maximumSize() ? widget.maximumSize() : QSize();
}

QStringList linesOf(Display &display)
{
    return PaintRecorder(display).textList();
}

QString text(const char *string)
{
    return QString::fromLatin1(string);
}

} // namespace

class tst_Display : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsInItsOwnSize();
    void cutsTheTextIntoRows_data();
    void cutsTheTextIntoRows();
    void replacesCharactersInTurn();
    void replacesNothingAfterwards();
    void waitsForTheNextRepaint();
    void fitsItsSizeToTheFont_data();
    void fitsItsSizeToTheFont();
    void ignoresAFontOfNoSize_data();
    void ignoresAFontOfNoSize();
    void fitsTheFontToItsWidth_data();
    void fitsTheFontToItsWidth();
    void keepsTheFontWhereNothingFits();
    void writesWhiteRowsOnItsGround();
    void cutsWhatHangsBelowARow();
    void survivesAbsurdNumbers_data();
    void survivesAbsurdNumbers();
};

void tst_Display::declaresItsInterface()
{
    const QMetaObject &meta = Display::staticMetaObject;

    QCOMPARE(meta.className(), "Display");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList(text("setText(QString)")));
}

void tst_Display::startsInItsOwnSize()
{
    Display display(2, 10);

    QCOMPARE(fixedSize(display), QSize(200, 80));
    QCOMPARE(display.contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(linesOf(display), QStringList());
}

void tst_Display::cutsTheTextIntoRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("string");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("more than fits")
        << 2 << 3 << text("abcdefg") << QStringList({ text("abc"), text("def") });
    QTest::newRow("exactly") << 2 << 3 << text("abcdef")
                             << QStringList({ text("abc"), text("def") });
    QTest::newRow("less than a row") << 2 << 3 << text("ab") << QStringList({ text("ab") });
    QTest::newRow("a row and a half")
        << 3 << 4 << text("abcdef") << QStringList({ text("abcd"), text("ef") });
    QTest::newRow("one column") << 3 << 1 << text("abcd")
                                << QStringList({ text("a"), text("b"), text("c") });
    QTest::newRow("no text") << 2 << 3 << QString() << QStringList();
    QTest::newRow("no row") << 0 << 3 << text("abc") << QStringList();
    QTest::newRow("negative rows") << -2 << 3 << text("abc") << QStringList();
    QTest::newRow("no column") << 2 << 0 << text("abc") << QStringList();
    QTest::newRow("negative columns") << 2 << -3 << text("abc") << QStringList();
}

void tst_Display::cutsTheTextIntoRows()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(QString, string);
    QFETCH(QStringList, lines);
    Display display(rows, columns);
    display.setFixedHeight(1000); // room for three columns' letters over the width
    display.setText(text("before"));

    display.setText(string);

    QCOMPARE(linesOf(display), lines);
}

void tst_Display::replacesCharactersInTurn()
{
    Display display(1, 10);
    display.addReplacement(QLatin1Char('a'), QLatin1Char('b'));
    display.addReplacement(QLatin1Char('b'), QLatin1Char('c'));
    display.addReplacement(QLatin1Char('c'), QChar(0x00B5));
    display.addReplacement(QLatin1Char('x'), QLatin1Char('y'));

    display.setText(text("abcABCxw"));

    QCOMPARE(linesOf(display), QStringList(QString(3, QChar(0x00B5)) + text("ABCyw")));
}

void tst_Display::replacesNothingAfterwards()
{
    Display display(1, 10);
    display.setText(text("abc"));

    display.addReplacement(QLatin1Char('a'), QLatin1Char('b'));

    QCOMPARE(linesOf(display), QStringList(text("abc")));
}

void tst_Display::waitsForTheNextRepaint()
{
    Display display(1, 10);
    display.show();
    RepaintCounter repaints(display);

    display.setText(text("abc"));

    QCOMPARE(repaints.taken(), 0);
}

void tst_Display::fitsItsSizeToTheFont_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("px");
    QTest::addColumn<int>("height");

    QTest::newRow("one row") << 1 << 10 << 18 << 38;
    QTest::newRow("four rows") << 4 << 20 << 24 << 116;
    QTest::newRow("one pixel") << 2 << 20 << 1 << 22;
    QTest::newRow("no row") << 0 << 20 << 24 << 20;
    QTest::newRow("negative rows") << -3 << 20 << 24 << 0;
}

void tst_Display::fitsItsSizeToTheFont()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, px);
    QFETCH(int, height);
    Display display(rows, columns);

    display.setFontSize(px);

    const int width = int(columns * (px / charRatio()) + 20.0);
    QCOMPARE(fixedSize(display), QSize(width, height));
}

void tst_Display::ignoresAFontOfNoSize_data()
{
    QTest::addColumn<int>("px");

    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -18;
    QTest::newRow("smallest") << minInt;
}

void tst_Display::ignoresAFontOfNoSize()
{
    QFETCH(int, px);
    Display display(2, 10);
    display.setFontSize(20);
    const QSize before = fixedSize(display);

    display.setFontSize(px);

    QCOMPARE(fixedSize(display), before);
}

void tst_Display::fitsTheFontToItsWidth_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("columnWidth"); // of the width less 20, in whole pixels

    QTest::newRow("ten columns") << 10 << 200 << 18;
    QTest::newRow("seven columns") << 7 << 200 << 25; // and 5 pixels to spare
    QTest::newRow("wider") << 10 << 419 << 39;
    QTest::newRow("one column") << 1 << 60 << 40;
}

void tst_Display::fitsTheFontToItsWidth()
{
    QFETCH(int, columns);
    QFETCH(int, width);
    QFETCH(int, columnWidth);
    Display display(2, columns);
    display.setText(QString(2 * columns, QLatin1Char('H')));
    display.setFixedHeight(1000);

    display.setFixedWidth(width);

    const int px = int(columnWidth * charRatio());
    const PaintRecorder paper(display);
    QCOMPARE(paper.texts().size(), 2);
    QCOMPARE(paper.texts().at(0).font.pixelSize(), px);
    QCOMPARE(paper.texts().at(0).font.family(), text("Consolas"));
    QCOMPARE(paper.texts().at(0).baseline.x(), 10.0);
    const qreal rowHeight = paper.texts().at(1).baseline.y() - paper.texts().at(0).baseline.y();
    QCOMPARE(rowHeight, qreal(px));
}

void tst_Display::keepsTheFontWhereNothingFits()
{
    Display display(1, 10);
    display.setText(text("H"));
    display.setFixedWidth(200);
    const QFont before = PaintRecorder(display).find(text("H")).font;

    display.setFixedWidth(25); // half a pixel for a column
    QCOMPARE(PaintRecorder(display).find(text("H")).font, before);
}

void tst_Display::writesWhiteRowsOnItsGround()
{
    QWidget window;
    window.setStyleSheet(text("Display { background-color: #C6C6C6; border-radius: 10px; }"));
    Display display(2, 10, &window);
    display.setText(text("HHHHHHHHHHHHHHHHHHHH"));
    window.show();

    const QImage image = window.grab(display.geometry()).toImage();
    const PaintRecorder::Text line = PaintRecorder(display).texts().value(0);

    QCOMPARE(image.pixel(100, 5), 0xFFC6C6C6);
    QVERIFY(image.pixel(0, 0) != 0xFFC6C6C6); // the corner is cut round
    QCOMPARE(line.color.rgba(), 0xFFFFFFFF);
    int ink = 0;
    for (int x = 10; x < 190; ++x) {
        for (int y = 10; y < 70; ++y)
            ink += image.pixel(x, y) == 0xFFFFFFFF ? 1 : 0;
    }
    QVERIFY(ink > 50);
}

void tst_Display::cutsWhatHangsBelowARow()
{
    Display display(1, 5);
    display.setStyleSheet(text("Display { background-color: #000000; }"));
    display.setText(text("|gjy|"));
    display.setFixedSize(220, 200); // columns of 40 pixels
    const int px = int(40 * charRatio());
    QFont font(text("Consolas"));
    font.setPixelSize(px);
    QVERIFY(QFontMetrics(font).height() > px + 2); // or there is nothing to cut

    const QImage image = display.grab().toImage();

    int lowest = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 220; ++x)
            lowest = image.pixel(x, y) != 0xFF000000 ? y : lowest;
    }
    QCOMPARE(lowest, 10 + px - 1);
}

void tst_Display::survivesAbsurdNumbers_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");

    for (const int rows : { minInt, -1, 0, 1, maxInt }) {
        for (const int columns : { minInt, -1, 0, 1, maxInt })
            QTest::addRow("%d rows, %d columns", rows, columns) << rows << columns;
    }
}

void tst_Display::survivesAbsurdNumbers()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    Display display(rows, columns);

    display.setText(text("some longer text"));
    display.setFontSize(maxInt);
    display.setFixedSize(300, 100);
    linesOf(display);
    display.setFixedSize(0, 0);

    QVERIFY(linesOf(display).size() <= 16);
}

PELORIN_TEST_MAIN(tst_Display)
#include "tst_display.moc"
