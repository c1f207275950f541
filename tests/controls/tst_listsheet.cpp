#include "Pelorin/controls/ComboBoxNG.h"
#include "Pelorin/controls/DropDownNG.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/theme/SheetProbe.h"

#include <QAbstractItemView>
#include <QPainter>

namespace {

using namespace SheetColors;

constexpr QRgb boxGrey = 0xFFC5C6C6;
constexpr QRgb openGrey = 0xFFD3D3D3; ///< the sheet's "lightgray"
constexpr QRgb lineGrey = 0xFFA9A9A9; ///< the sheet's "darkgray"
constexpr QRgb listGrey = 0xFFDDDDDD;

/// Fixed, for a box takes the size of its texts a moment after they were set.
const QSize probeSize(200, 40);

template<class List>
void fill(List &list)
{
    list.addItems(
        { QStringLiteral("Internal"), QStringLiteral("External"), QStringLiteral("Gated") });
}

/// Whether the picture \a name lies upon \a under, with its middle at \a middle.
bool showsArrow(const QImage &image, const char *name, QPoint middle, QRgb under)
{
    const QSize size = themePicture(name).size();
    const QRect place(middle - QPoint(size.width() / 2, size.height() / 2), size);
    return image.copy(place) == pictureUpon(under, name, size);
}

} // namespace

/// Shows that the rules of the sheet reach the two drop-down lists.
class tst_ListSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesADropDown_data();
    void writesADropDown();
    void drawsTheArrowOfADropDown_data();
    void drawsTheArrowOfADropDown();
    void drawsTheOpenListOfADropDown();
    void fitsADropDownToTheFaceOfTheSheet();
    void writesAComboBox_data();
    void writesAComboBox();
    void fillsAComboBox();
    void drawsTheArrowOfAComboBox_data();
    void drawsTheArrowOfAComboBox();
    void drawsAnEditableComboBox();
    void drawsTheOpenListOfAComboBox_data();
    void drawsTheOpenListOfAComboBox();
    void leavesNoRoomForHiddenItems();
};

void tst_ListSheet::initTestCase()
{
    SheetProbe::installSheet();
}

void tst_ListSheet::writesADropDown_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QRgb>("color");

    QTest::newRow("enabled") << true << QRgb(0xFF666666);
    QTest::newRow("disabled") << false << QRgb(0xFFD6D6D1);
}

void tst_ListSheet::writesADropDown()
{
    QFETCH(bool, enabled);
    QFETCH(QRgb, color);
    DropDownNG list;
    fill(list);
    list.setEnabled(enabled);
    SheetProbe probe(list);

    const PaintRecorder::Text text = PaintRecorder(list).find(QStringLiteral("Internal"));

    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), 20);
    QCOMPARE(text.color.rgb(), color);
    QCOMPARE(probe.pixel(QPoint(0, 0)), white); // no frame, and the ground of an entry field
    QCOMPARE(probe.pixel(QPoint(list.width() - 1, list.height() - 1)), white);
    QVERIFY(list.height() >= 30); // 1.5 em
}

void tst_ListSheet::drawsTheArrowOfADropDown_data()
{
    QTest::addColumn<bool>("hovered");

    QTest::newRow("plain") << false;
    QTest::newRow("under the mouse") << true;
}

void tst_ListSheet::drawsTheArrowOfADropDown()
{
    QFETCH(bool, hovered);
    DropDownNG list;
    fill(list);
    SheetProbe probe(list);

    if (hovered)
        probe.hoverMiddle();

    // in the middle of the 20 pixels at the right
    const QPoint middle(list.width() - 10, list.height() / 2);
    QVERIFY(showsArrow(probe.image(), "downArrow.png", middle, white));
}

void tst_ListSheet::drawsTheOpenListOfADropDown()
{
    DropDownNG list;
    fill(list);
    SheetProbe probe(list);
    QAbstractItemView &view = *list.view();
    list.showPopup();

    const QImage image = view.window()->grab().toImage();
    const QRect first = view.visualRect(list.model()->index(0, 0)).translated(view.pos());

    QCOMPARE(image.pixel(image.width() / 2, 3), listGrey); // 8 pixels above the first
    QCOMPARE(image.pixel(image.width() / 2, image.height() - 4), listGrey);
    QCOMPARE(view.viewport()->mapTo(view.window(), QPoint(0, 0)).y(), 8);
    QCOMPARE(view.palette().color(QPalette::Highlight).rgb(), orange);
    QVERIFY(first.height() < 30); // the current one like the others
    QCOMPARE(first.height(), view.visualRect(list.model()->index(1, 0)).height());
    list.hidePopup();
}

void tst_ListSheet::fitsADropDownToTheFaceOfTheSheet()
{
    DropDownNG list;
    fill(list);
    const int plain = list.width();

    SheetProbe probe(list);

    QFont font(QStringLiteral("Calibri"));
    font.setPixelSize(20);
    const int text = QFontMetrics(font).boundingRect(QStringLiteral("External")).width();
    QCOMPARE(list.width(), text + 25);
    QVERIFY(plain != list.width());
}

void tst_ListSheet::writesAComboBox_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("pixels");

    QTest::newRow("plain") << QString() << 20;
    QTest::newRow("compact") << QStringLiteral("text") << 14;
}

void tst_ListSheet::writesAComboBox()
{
    QFETCH(QString, type);
    QFETCH(int, pixels);
    ComboBoxNG box;
    box.setProperty("type", type);
    fill(box);
    SheetProbe probe(box);

    const PaintRecorder::Text text = PaintRecorder(box).find(QStringLiteral("Internal"));

    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), pixels);
    QCOMPARE(text.color.rgb(), QRgb(0xFF444444));
}

void tst_ListSheet::fillsAComboBox()
{
    ComboBoxNG box; // without a text that could be hit
    box.setFixedSize(probeSize);
    SheetProbe probe(box, probeSize);

    QCOMPARE(probe.middle(), boxGrey);
    QCOMPARE(probe.pixel(QPoint(probeSize.width() / 2, 0)), boxGrey); // no frame
    for (const QPoint corner : { QPoint(0, 0), QPoint(199, 0), QPoint(0, 39), QPoint(199, 39) })
        QCOMPARE(probe.pixel(corner), ground); // round

    box.showPopup();
    QCOMPARE(probe.middle(), boxGrey); // nothing to open
    fill(box);
    box.showPopup();
    QCOMPARE(probe.middle(), openGrey);
    box.hidePopup();
    QCOMPARE(probe.middle(), boxGrey);
}

void tst_ListSheet::drawsTheArrowOfAComboBox_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("dropDown");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("hoverPicture");

    // 15 pixels, padding at both sides, and the line at the left
    QTest::newRow("plain") << QString() << 15 + 2 * 5 + 1 << QStringLiteral("downArrowDark.png")
                           << QStringLiteral("downArrowHover.png");
    QTest::newRow("compact") << QStringLiteral("text") << 15 + 2 * 2 + 1
                             << QStringLiteral("downArrow10Dark.png")
                             << QStringLiteral("downArrow10Hover.png");
}

void tst_ListSheet::drawsTheArrowOfAComboBox()
{
    QFETCH(QString, type);
    QFETCH(int, dropDown);
    QFETCH(QString, picture);
    QFETCH(QString, hoverPicture);
    ComboBoxNG box;
    box.setProperty("type", type);
    box.setFixedSize(probeSize);
    SheetProbe probe(box, probeSize);
    const int line = probeSize.width() - dropDown;
    const QPoint middle(line + 1 + (dropDown - 1) / 2, probeSize.height() / 2);

    QCOMPARE(probe.pixel(QPoint(line, probeSize.height() / 2)), lineGrey);
    QCOMPARE(probe.pixel(QPoint(line - 1, probeSize.height() / 2)), boxGrey);
    QVERIFY(showsArrow(probe.image(), qPrintable(picture), middle, boxGrey));

    probe.hover(middle);
    QVERIFY(showsArrow(probe.image(), qPrintable(hoverPicture), middle, boxGrey));

    fill(box);
    probe.leave();
    box.showPopup();
    QVERIFY(showsArrow(probe.image(), qPrintable(hoverPicture), middle, openGrey));
    box.hidePopup();
}

void tst_ListSheet::drawsAnEditableComboBox()
{
    ComboBoxNG box;
    box.setEditable(true);
    box.setFixedSize(probeSize);
    SheetProbe probe(box, probeSize);

    QCOMPARE(probe.pixel(QPoint(100, 20)), white);
    QCOMPARE(probe.pixel(QPoint(180, 4)), boxGrey); // under the arrow
    QCOMPARE(probe.pixel(QPoint(174, 20)), lineGrey);
    QVERIFY(showsArrow(probe.image(), "downArrowDark.png", QPoint(187, 20), boxGrey));
}

void tst_ListSheet::drawsTheOpenListOfAComboBox_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("rim");
    QTest::addColumn<int>("margin");

    QTest::newRow("plain") << QString() << 5 << 5;
    QTest::newRow("compact") << QStringLiteral("text") << 2 << 2;
}

void tst_ListSheet::drawsTheOpenListOfAComboBox()
{
    QFETCH(QString, type);
    QFETCH(int, rim);
    QFETCH(int, margin);
    ComboBoxNG box;
    box.setProperty("type", type);
    fill(box);
    box.setItemEnabled(1, false);
    box.setCurrentIndex(2);
    box.setFixedSize(probeSize);
    SheetProbe probe(box, probeSize);
    QAbstractItemView &view = *box.view();
    box.showPopup();

    const QImage image = view.viewport()->grab().toImage();
    const auto row = [&](int i) { return view.visualRect(box.model()->index(i, 0)); };

    QCOMPARE(view.viewport()->mapTo(&view, QPoint(0, 0)).y(), rim);
    const QPoint inChosen(row(2).right() - margin - 4, row(2).center().y());
    QCOMPARE(image.pixel(inChosen), orange);
    QCOMPARE(image.pixel(row(2).right() - margin / 2, inChosen.y()), listGrey); // beside the item
    for (int i : { 0, 1 })
        QCOMPARE(image.pixel(inChosen.x(), row(i).center().y()), listGrey);
    PaintRecorder paper(*view.viewport());
    QCOMPARE(paper.find(QStringLiteral("Internal")).color.rgb(), QRgb(0xFF444444));
    QCOMPARE(paper.find(QStringLiteral("External")).color.rgb(), QRgb(0xFF444444)); // as enabled
    QCOMPARE(paper.find(QStringLiteral("Gated")).color.rgb(), white);
    box.hidePopup();
}

void tst_ListSheet::leavesNoRoomForHiddenItems()
{
    ComboBoxNG box;
    fill(box);
    box.setItemVisible(1, false);
    box.setFixedSize(probeSize);
    SheetProbe probe(box, probeSize);
    box.showPopup();

    QCOMPARE(PaintRecorder(*box.view()->viewport()).textList(),
             QStringList({ QStringLiteral("Internal"), QStringLiteral("Gated") }));
    box.hidePopup();
}

PELORIN_TEST_MAIN(tst_ListSheet)
#include "tst_listsheet.moc"
