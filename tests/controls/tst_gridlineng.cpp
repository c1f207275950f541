#include "Pelorin/controls/GridLineNG.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QImage>
#include <QPainter>

#include <limits>

namespace {

constexpr QRgb red = 0xFF87212E;
constexpr QRgb ground = 0xFFEEEEEE;
using Lines = QVector<QLine>;

/// The cell on the ground of a style sheet.
QImage painted(GridLineNG &cell)
{
    cell.setStyleSheet(QStringLiteral("GridLineNG { background-color: #EEEEEE; }"));
    cell.show();
    return cell.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage drawn(QSize size, const Lines &lines)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setPen(QPen(QColor::fromRgb(red), 4));
    painter.drawLines(lines);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(Lines)

class tst_GridLineNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsAsAFlatLabel();
    void drawsTheLinesOfItsType_data();
    void drawsTheLinesOfItsType();
    void roundsTheMiddleDown();
    void drawsNothingForAnUnknownType_data();
    void drawsNothingForAnUnknownType();
    void repaintsOnlyForAnotherType();
    void showsNoText();
};

void tst_GridLineNG::declaresItsInterface()
{
    const QMetaObject &meta = GridLineNG::staticMetaObject;

    QCOMPARE(meta.className(), "GridLineNG");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList());
}

void tst_GridLineNG::startsAsAFlatLabel()
{
    const GridLineNG cell(GridLineNG::Across);

    QCOMPARE(cell.lineType(), GridLineNG::Across);
    QCOMPARE(cell.property("flat"), QVariant(true));
    QCOMPARE(cell.property("type"), QVariant(QStringLiteral("label")));
    QCOMPARE(cell.minimumSize(), QSize(5, 20));
}

/// All in a cell of 60 x 40: the middle is (30, 20), half a pen 2.
void tst_GridLineNG::drawsTheLinesOfItsType_data()
{
    QTest::addColumn<GridLineNG::tLineType>("type");
    QTest::addColumn<int>("number");
    QTest::addColumn<Lines>("lines");

    const QLine left(0, 20, 30, 20);
    const QLine right(30, 20, 60, 20);
    const QLine up(30, 0, 30, 20);
    const QLine down(30, 20, 30, 40);
    const QLine across(0, 20, 60, 20);
    const QLine upright(30, 0, 30, 40);
    QTest::newRow("up and right") << GridLineNG::UpAndRight << 0 << Lines({ right, up });
    QTest::newRow("right and down") << GridLineNG::RightAndDown << 1 << Lines({ right, down });
    QTest::newRow("across and up") << GridLineNG::AcrossAndUp << 2 << Lines({ across, up });
    QTest::newRow("across and down") << GridLineNG::AcrossAndDown << 3 << Lines({ across, down });
    QTest::newRow("left and up") << GridLineNG::LeftAndUp << 4 << Lines({ left, up });
    QTest::newRow("left and down") << GridLineNG::LeftAndDown << 5 << Lines({ left, down });
    QTest::newRow("across") << GridLineNG::Across << 6 << Lines({ across });
    QTest::newRow("up") << GridLineNG::Up << 7 << Lines({ up });
    QTest::newRow("down") << GridLineNG::Down << 8 << Lines({ down });
    QTest::newRow("across, up at the left edge")
        << GridLineNG::AcrossAndUpAtLeftEdge << 9 << Lines({ across, QLine(2, 0, 2, 20) });
    QTest::newRow("across, with a slant")
        << GridLineNG::AcrossAndSlant << 10 << Lines({ across, QLine(30, 0, 40, 20) });
    QTest::newRow("across, up at the right edge")
        << GridLineNG::AcrossAndUpAtRightEdge << 11 << Lines({ across, QLine(58, 0, 58, 20) });
    QTest::newRow("across, down at the right edge")
        << GridLineNG::AcrossAndDownAtRightEdge << 12 << Lines({ across, QLine(58, 20, 58, 40) });
    QTest::newRow("left edge") << GridLineNG::LeftEdge << 13 << Lines({ QLine(2, 0, 2, 40) });
    QTest::newRow("right edge") << GridLineNG::RightEdge << 14 << Lines({ QLine(58, 0, 58, 40) });
    QTest::newRow("up and down") << GridLineNG::UpAndDown << 15 << Lines({ upright });
    QTest::newRow("up, down and left")
        << GridLineNG::UpDownAndLeft << 16 << Lines({ left, upright });
    QTest::newRow("up, down and right")
        << GridLineNG::UpDownAndRight << 17 << Lines({ right, upright });
    QTest::newRow("cross") << GridLineNG::Cross << 18 << Lines({ across, upright });
}

void tst_GridLineNG::drawsTheLinesOfItsType()
{
    QFETCH(GridLineNG::tLineType, type);
    QFETCH(int, number);
    QFETCH(Lines, lines);
    GridLineNG cell(type);
    cell.resize(60, 40);

    QCOMPARE(int(type), number);
    QCOMPARE(painted(cell), drawn(QSize(60, 40), lines));
}

void tst_GridLineNG::roundsTheMiddleDown()
{
    GridLineNG cell(GridLineNG::Cross);
    cell.resize(25, 47);
    QCOMPARE(painted(cell), drawn(QSize(25, 47), { QLine(0, 23, 25, 23), QLine(12, 0, 12, 47) }));

    GridLineNG slanted(GridLineNG::AcrossAndSlant);
    slanted.resize(95, 47); // the height is the middle: nothing slants
    QCOMPARE(painted(slanted),
             drawn(QSize(95, 47), { QLine(0, 23, 95, 23), QLine(47, 0, 47, 23) }));
}

void tst_GridLineNG::drawsNothingForAnUnknownType_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("one too many") << 19;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_GridLineNG::drawsNothingForAnUnknownType()
{
    QFETCH(int, type);
    GridLineNG cell{ GridLineNG::tLineType(type) };
    cell.resize(60, 40);

    QCOMPARE(painted(cell), drawn(QSize(60, 40), {}));
}

void tst_GridLineNG::repaintsOnlyForAnotherType()
{
    GridLineNG cell(GridLineNG::Cross);
    cell.show();
    RepaintCounter repaints(cell);

    cell.changeLineType(GridLineNG::Cross);
    QCOMPARE(repaints.taken(), 0);

    cell.changeLineType(GridLineNG::LeftEdge);
    QCOMPARE(repaints.taken(), 1);
    QCOMPARE(cell.lineType(), GridLineNG::LeftEdge);
}

void tst_GridLineNG::showsNoText()
{
    GridLineNG cell(GridLineNG::LeftEdge);
    cell.setText(QStringLiteral("MMMMM"));
    cell.resize(60, 40);

    QCOMPARE(painted(cell), drawn(QSize(60, 40), { QLine(2, 0, 2, 40) }));
}

PELORIN_TEST_MAIN(tst_GridLineNG)
#include "tst_gridlineng.moc"
