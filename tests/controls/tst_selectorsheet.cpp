#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/Selector.h"
#include "tests/controls/ListRows.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"
#include "tests/theme/SheetProbe.h"

#include <QWindow>

namespace {

using namespace SheetColors;

constexpr QRgb listGrey = 0xFFDDDDDD;
const QSize probeSize(160, 40);

/// Where the picture \a name lies at the right of a widget, in the middle of its height.
QRect placeAtRight(const char *name, const QWidget &widget)
{
    const QSize size = themePicture(name).size();
    return QRect(QPoint(widget.width() - size.width(), (widget.height() - size.height()) / 2),
                 size);
}

void open(DropDown &list)
{
    list.show();
    QApplication::processEvents();
}

} // namespace

/// Shows that the rules of the sheet reach the selectors of the first generation and their lists.
class tst_SelectorSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesTheRows_data();
    void writesTheRows();
    void fillsTheList();
    void leavesAGapBetweenTextAndIcon();
    void marksTheRowUnderTheMouse();
    void drawsTheArrowOfAComboBox_data();
    void drawsTheArrowOfAComboBox();
    void writesASelector();
    void drawsThePictureOfASettingsSelector();
};

void tst_SelectorSheet::initTestCase()
{
    SheetProbe::installSheet();
}

void tst_SelectorSheet::writesTheRows_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("pixels");

    QTest::newRow("plain") << QString() << 14;
    QTest::newRow("label") << QStringLiteral("label") << 18;
    QTest::newRow("heading") << QStringLiteral("heading") << 24;
}

void tst_SelectorSheet::writesTheRows()
{
    QFETCH(QString, type);
    QFETCH(int, pixels);
    ComboBox box;
    box.addItems(list({ "Alpha", "Beta" }));
    box.setProperty("type", type); // in time as long as the list was not opened
    open(*listOf(box));

    const PaintRecorder::Text text = PaintRecorder(*listOf(box)).find(QStringLiteral("Beta"));

    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), pixels);
    QCOMPARE(text.baseline.x(), 8.0); // the padding of a row
}

void tst_SelectorSheet::fillsTheList()
{
    DropDown dropDown;
    dropDown.addItem(QStringLiteral("Alpha"));
    dropDown.addItem(QStringLiteral("Beta"));
    open(dropDown);

    const QImage image = dropDown.grab().toImage();
    const QList<IconLabel *> rows = rowsOf(dropDown);

    QCOMPARE(rows.first()->y(), 8);
    QCOMPARE(dropDown.height(), rows.last()->geometry().bottom() + 1 + 8);
    for (const QPoint place : { QPoint(40, 3), QPoint(40, image.height() - 4),
                                QPoint(2, rows.first()->geometry().center().y()) })
        QCOMPARE(image.pixel(place), listGrey);
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0); // round corners in a window that can be seen through
    QCOMPARE(qAlpha(image.pixel(image.width() - 1, image.height() - 1)), 0);
}

void tst_SelectorSheet::leavesAGapBetweenTextAndIcon()
{
    DropDown dropDown;
    dropDown.showIcons(IconLabel::IconRight);
    dropDown.addItem(QStringLiteral("A text that is clearly wider than two hundred pixels"),
                     QStringLiteral(":/Pelorin/images/images/cross.png")); // 25 x 25
    const QSize hint = dropDown.sizeHint();
    open(dropDown);

    QCOMPARE(dropDown.size(), hint); // known before it is shown
    const QLayout &row = *rowsOf(dropDown).first()->layout();
    const QRect text = row.itemAt(0)->geometry();
    const QRect icon = row.itemAt(2)->geometry();
    QVERIFY(text.width() > 200);
    QVERIFY(icon.left() > text.right() + 1);
    QCOMPARE(icon.width(), 25);
    QCOMPARE(icon.right() + 1, dropDown.width() - 8); // the padding of a row
}

void tst_SelectorSheet::marksTheRowUnderTheMouse()
{
    DropDown dropDown;
    dropDown.addItem(QStringLiteral("Alpha"));
    dropDown.addItem(QStringLiteral("Beta"));
    open(dropDown);
    const QPoint place = rowsOf(dropDown).last()->geometry().center();

    QTest::mouseMove(dropDown.windowHandle(), QPoint(40, 3)); // a row is entered from beside it
    QTest::mouseMove(dropDown.windowHandle(), place);
    QApplication::processEvents();
    const QImage image = dropDown.grab().toImage();
    const auto beside = [&](int row) {
        return QPoint(image.width() - 4, rowsOf(dropDown).at(row)->geometry().center().y());
    };
    QCOMPARE(image.pixel(beside(0)), listGrey);
    QCOMPARE(image.pixel(beside(1)), orange);
}

void tst_SelectorSheet::drawsTheArrowOfAComboBox_data()
{
    QTest::addColumn<int>("items");
    QTest::addColumn<bool>("singleMode");
    QTest::addColumn<bool>("arrow");

    QTest::newRow("two items") << 2 << false << true;
    QTest::newRow("one item") << 1 << false << true;
    QTest::newRow("one item in single mode") << 1 << true << false;
    QTest::newRow("two items in single mode") << 2 << true << true;
    QTest::newRow("nothing in it yet") << 0 << false << false;
}

void tst_SelectorSheet::drawsTheArrowOfAComboBox()
{
    QFETCH(int, items);
    QFETCH(bool, singleMode);
    QFETCH(bool, arrow);
    ComboBox box;
    if (singleMode)
        box.setSingleMode(true);
    for (int i = 0; i < items; ++i)
        box.addItem(QStringLiteral("A"));
    SheetProbe probe(box, probeSize);

    QCOMPARE(probe.shows("downArrow.png", placeAtRight("downArrow.png", box)), arrow);
    if (items > 0) {
        const int text = box.fontMetrics().horizontalAdvance(QStringLiteral("A"));
        QCOMPARE(box.sizeHint().width(), text + (arrow ? 20 : 0));
    }
}

void tst_SelectorSheet::writesASelector()
{
    Selector selector(QStringLiteral("Settings"));
    SheetProbe probe(selector, probeSize);

    const PaintRecorder::Text text = PaintRecorder(selector).find(QStringLiteral("Settings"));

    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), 16);
    QCOMPARE(text.color.rgb(), QRgb(0xFFC6C6C6));
}

void tst_SelectorSheet::drawsThePictureOfASettingsSelector()
{
    Selector selector(QStringLiteral("Settings"));
    selector.setProperty("type", QStringLiteral("settings"));
    SheetProbe probe(selector, probeSize);
    // A position of one word is in the middle of the other direction.
    const QRect place = placeAtRight("settings.png", selector);

    QVERIFY(probe.shows("settings.png", place));
    probe.hoverMiddle();
    QVERIFY(probe.shows("settingsHover.png", place));
}

PELORIN_TEST_MAIN(tst_SelectorSheet)
#include "tst_selectorsheet.moc"
