#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/theme/SheetProbe.h"

#include <QFontMetrics>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

namespace {

using namespace SheetColors;

const QString sample = QStringLiteral("Sample");

PaintRecorder::Text paintedTab(QTabBar &bar)
{
    return PaintRecorder(bar).find(sample);
}

/// A scroll area without a frame around a page that is larger both ways.
class ScrolledPage : public QScrollArea
{
public:
    ScrolledPage(const char *type, QSize pageSize)
    {
        for (QScrollBar *bar : { horizontalScrollBar(), verticalScrollBar() }) {
            if (type)
                bar->setProperty("type", QString::fromLatin1(type));
        }
        setFrameShape(NoFrame);
        auto *page = new QWidget;
        page->resize(pageSize);
        setWidget(page);
    }
};

/// Where \a across and \a along of a scroll bar of a shown area lie in that area. A bar is 16 wide.
QPoint onBar(const QScrollArea &area, Qt::Orientation orientation, int along, int across)
{
    return orientation == Qt::Vertical ? QPoint(area.width() - 16 + across, along)
                                       : QPoint(along, area.height() - 16 + across);
}

} // namespace

/// Shows that the rules of the sheet reach tab bars and scroll bars.
class tst_StyleSheetBars : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawsFlatTabs();
    void drawsTheTabsOfTheMainView();
    void colorsTheScrollHandle_data();
    void colorsTheScrollHandle();
    void drawsScrollBarsAsBareHandles_data();
    void drawsScrollBarsAsBareHandles();
    void leavesScrollBarsOutsideOfScrollAreasAlone();
};

void tst_StyleSheetBars::initTestCase()
{
    SheetProbe::installSheet();
}

void tst_StyleSheetBars::drawsFlatTabs()
{
    constexpr QRgb pane = 0xFFC2C7CB;
    QTabWidget tabs;
    tabs.setProperty("flat", true);
    tabs.tabBar()->setProperty("flat", true);
    tabs.addTab(new QWidget, sample);
    tabs.addTab(new QWidget, QStringLiteral("Other"));
    SheetProbe probe(tabs, QSize(800, 120));
    QTabBar &bar = *tabs.tabBar();
    const QRect selected = bar.tabRect(0).translated(bar.pos());
    const QRect other = bar.tabRect(1).translated(bar.pos());
    const QPoint inSelected = selected.center() - QPoint(100, 0);
    const QPoint inOther = other.center() - QPoint(100, 0);
    const int ex = QFontMetrics(paintedTab(bar).font).xHeight();

    QCOMPARE(selected.left(), 5);
    // 30ex by 4ex, padding 2 and border 1 on each side; room for the margin above unselected tabs
    QCOMPARE(selected.size(), QSize(30 * ex + 6, 4 * ex + 6 + 2));
    QCOMPARE(probe.pixel(inSelected), QRgb(0xFFDDDDDD));
    QCOMPARE(probe.pixel(QPoint(inSelected.x(), selected.top())), QRgb(0xFF9B9B9B));
    QCOMPARE(probe.pixel(QPoint(inSelected.x(), selected.bottom())), pane);
    QCOMPARE(probe.pixel(inOther), ground);
    QCOMPARE(probe.pixel(QPoint(inOther.x(), other.top() + 1)), ground);
    QCOMPARE(probe.pixel(QPoint(inOther.x(), other.top() + 2)), QRgb(0xFFC4C4C3));
    QCOMPARE(probe.pixel(QPoint(inOther.x(), other.bottom())), pane);
    QCOMPARE(probe.pixel(QPoint(400, 119)), pane);
    QCOMPARE(paintedTab(bar).font.family(), QStringLiteral("Calibri"));
    QCOMPARE(paintedTab(bar).font.pixelSize(), 20);
    QCOMPARE(paintedTab(bar).color.rgb(), QRgb(0xFF666666));

    probe.hover(inOther);
    QCOMPARE(probe.pixel(inOther), orange);
    QCOMPARE(probe.pixel(inSelected), QRgb(0xFFDDDDDD));

    probe.hover(inSelected); // the rule for the mouse stands after the one for the selection
    QCOMPARE(probe.pixel(inSelected), orange);
    QCOMPARE(probe.pixel(inOther), ground);
}

void tst_StyleSheetBars::drawsTheTabsOfTheMainView()
{
    constexpr QRgb border = 0xFF9B9B9B;
    QTabBar bar;
    bar.setProperty("type", QStringLiteral("mainview-tabbar"));
    bar.addTab(sample);
    bar.addTab(QStringLiteral("Other"));
    SheetProbe probe(bar);
    const int ex = QFontMetrics(paintedTab(bar).font).xHeight();
    const QRect selected = bar.tabRect(0);
    const QRect other = bar.tabRect(1);
    const QPoint inSelected = selected.center() - QPoint(100, 0);
    const QPoint inOther = other.center() - QPoint(100, 0);

    // 30ex, a border of 3 or 1 on each side, 8 to the left
    QCOMPARE(selected.width(), 30 * ex + 6 + 8);
    QCOMPARE(other.width(), 30 * ex + 2 + 8);
    for (int y = 0; y < 3; ++y)
        QCOMPARE(probe.pixel(QPoint(inSelected.x(), y)), red);
    QCOMPARE(probe.pixel(QPoint(selected.left() + 7, inSelected.y())), ground);
    for (int x = 8; x < 11; ++x)
        QCOMPARE(probe.pixel(QPoint(selected.left() + x, inSelected.y())), border);
    QCOMPARE(probe.pixel(inSelected), ground);
    QCOMPARE(probe.pixel(QPoint(inSelected.x(), selected.bottom())), white);
    QCOMPARE(probe.pixel(QPoint(inOther.x(), other.top() + 3)), ground);
    QCOMPARE(probe.pixel(QPoint(inOther.x(), other.top() + 4)), border);
    QCOMPARE(probe.pixel(inOther), QRgb(0xFFDDDDDD));
    for (int y = 0; y < 3; ++y)
        QCOMPARE(probe.pixel(QPoint(inOther.x(), other.bottom() - y)), border);
    QCOMPARE(paintedTab(bar).font.pixelSize(), 20);
    QCOMPARE(paintedTab(bar).color.rgb(), QRgb(0xFF666666));

    probe.hover(inOther);
    QCOMPARE(probe.pixel(inOther), orange);

    probe.hover(inSelected);
    QCOMPARE(probe.pixel(inSelected), ground);
    QCOMPARE(probe.pixel(inOther), QRgb(0xFFDDDDDD));
}

void tst_StyleSheetBars::colorsTheScrollHandle_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QRgb>("color");

    const QString redType = QStringLiteral("scrollbar-flat-rounded-red");
    const QString greyType = QStringLiteral("scrollbar-flat-rounded-grey");
    constexpr QRgb off = 0xFFC0C0C0;
    QTest::newRow("plain") << QString() << true << false << red;
    QTest::newRow("plain, under the mouse") << QString() << true << true << orange;
    QTest::newRow("plain, disabled") << QString() << false << false << off;
    QTest::newRow("plain, disabled under the mouse") << QString() << false << true << off;
    QTest::newRow("red") << redType << true << false << red;
    QTest::newRow("red, under the mouse") << redType << true << true << orange;
    QTest::newRow("red, disabled") << redType << false << false << off;
    QTest::newRow("grey") << greyType << true << false << QRgb(0xFF808080);
    QTest::newRow("grey, under the mouse") << greyType << true << true << QRgb(0xFF404040);
    QTest::newRow("grey, disabled") << greyType << false << false << off;
    QTest::newRow("grey, disabled under the mouse") << greyType << false << true << off;
}

void tst_StyleSheetBars::colorsTheScrollHandle()
{
    QFETCH(QString, type);
    QFETCH(bool, enabled);
    QFETCH(bool, hovered);
    QFETCH(QRgb, color);
    const QByteArray typeName = type.toLatin1();
    ScrolledPage area(type.isEmpty() ? nullptr : typeName.constData(), QSize(600, 600));
    area.setEnabled(enabled);
    SheetProbe probe(area, QSize(216, 216));

    for (const Qt::Orientation orientation : { Qt::Horizontal, Qt::Vertical }) {
        const QPoint onHandle = onBar(area, orientation, 20, 8);
        if (hovered)
            probe.hover(onHandle);
        QCOMPARE(probe.pixel(onHandle), color);
        QCOMPARE(probe.pixel(onBar(area, orientation, 150, 8)), ground);
    }
}

void tst_StyleSheetBars::drawsScrollBarsAsBareHandles_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");

    QTest::newRow("horizontal") << Qt::Horizontal;
    QTest::newRow("vertical, whose margin has no unit") << Qt::Vertical;
}

void tst_StyleSheetBars::drawsScrollBarsAsBareHandles()
{
    QFETCH(Qt::Orientation, orientation);
    ScrolledPage area(nullptr, QSize(600, 600));
    SheetProbe probe(area, QSize(216, 216));
    const auto pixel = [&](int along, int across) {
        return probe.pixel(onBar(area, orientation, along, across));
    };

    // A margin of 2 all round, no button before the handle.
    QCOMPARE(pixel(20, 1), ground);
    QCOMPARE(pixel(20, 2), red);
    QCOMPARE(pixel(20, 13), red);
    QCOMPARE(pixel(20, 14), ground);
    QCOMPARE(pixel(1, 8), ground);
    QVERIFY(pixel(2, 8) != ground); // the round end begins here
    QCOMPARE(pixel(2, 2), ground);
    QCOMPARE(pixel(4, 8), red);

    // No button behind it either, and a handle that can be gripped.
    area.widget()->resize(100000, 100000);
    QScrollBar &bar =
        orientation == Qt::Vertical ? *area.verticalScrollBar() : *area.horizontalScrollBar();
    bar.setValue(bar.maximum());
    QCOMPARE(pixel(167, 8), ground);
    QVERIFY(pixel(168, 8) != ground);
    QCOMPARE(pixel(183, 8), red);
    QVERIFY(pixel(197, 8) != ground);
    QCOMPARE(pixel(198, 8), ground);
}

void tst_StyleSheetBars::leavesScrollBarsOutsideOfScrollAreasAlone()
{
    QScrollBar bar(Qt::Horizontal);
    bar.setRange(0, 0); // the handle fills it
    SheetProbe probe(bar, QSize(200, 30));

    QVERIFY(probe.middle() != red);
    QVERIFY(probe.middle() != ground);
}

PELORIN_TEST_MAIN(tst_StyleSheetBars)
#include "tst_stylesheetbars.moc"
