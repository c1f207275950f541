#include "Pelorin/controls/DropDown.h"
#include "tests/controls/ListRows.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace {

const QString settingsIcon = QStringLiteral(":/Pelorin/images/images/settings.png"); // 22 x 22
const QString crossIcon = QStringLiteral(":/Pelorin/images/images/cross.png");       // 25 x 25

void fill(DropDown &list, std::initializer_list<const char *> texts = { "Alpha", "Beta", "Gamma" })
{
    for (const char *text : texts)
        list.addItem(QLatin1String(text));
}

/// Opens the list and lets its rows take their places.
void open(DropDown &list)
{
    list.show();
    QApplication::processEvents();
}

QList<QLabel *> partsOf(const IconLabel &row)
{
    return row.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

QLabel *textPart(const IconLabel &row)
{
    for (QLabel *part : partsOf(row)) {
        if (!part->text().isEmpty())
            return part;
    }
    return nullptr;
}

QLabel *iconPart(const IconLabel &row)
{
    for (QLabel *part : partsOf(row)) {
        if (part->text().isEmpty())
            return part;
    }
    return nullptr;
}

/// Where the icon of a row stands: "left", "right", or "nowhere".
QString iconSide(const IconLabel &row)
{
    if (row.layout()->count() < 3)
        return QStringLiteral("nowhere");
    const bool first = row.layout()->itemAt(0)->widget() == iconPart(row);
    return first ? QStringLiteral("left") : QStringLiteral("right");
}

/// How often a widget was told to arrange itself anew.
class LayoutRequests : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace

class tst_DropDown : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsAsAnEmptyFramelessWindow();
    void isAWindowAlsoInAParent();
    void addsRowsInOrder();
    void arrangesTheRowsAnewWithEachOne();
    void loadsIcons();
    void showsTheIconsOfAllRows();
    void changesATextByItsIndex();
    void ignoresIndicesOutOfRange_data();
    void ignoresIndicesOutOfRange();
    void tellsTheFlagFromWhatIsSeen();
    void removesItemsFromFirstToLast();
    void selectsTheRowUnderTheHeight_data();
    void selectsTheRowUnderTheHeight();
    void missesARowOnItsFirstLine();
    void leavesOtherButtonsAlone_data();
    void leavesOtherButtonsAlone();
    void reportsBeforeItCloses();
    void movesTheRowsBelowAHiddenOneUp();
    void survivesAListenerThatDeletesIt();
    void survivesAListenerThatClearsIt();
    void survivesARowThatIsDeleted();
    void isAsLargeAsItsRows();
    void takesANewSizeBeforeItOpens();
    void keepsItsSize();
    void comesToRest_data();
    void comesToRest();
    void followsItsRowsWhileOpen();
};

void tst_DropDown::declaresItsInterface()
{
    const QMetaObject &meta = DropDown::staticMetaObject;

    QCOMPARE(meta.className(), "DropDown");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), list({ "itemSelected(int)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), list({ "clear()" }));
}

void tst_DropDown::startsAsAnEmptyFramelessWindow()
{
    const DropDown list;

    QCOMPARE(list.windowFlags(), Qt::Window | Qt::FramelessWindowHint);
    QVERIFY(list.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(list.minimumSize(), QSize(80, 40));
    QCOMPARE(list.count(), 0);
    QVERIFY(!list.isVisible());
    auto *layout = qobject_cast<QHBoxLayout *>(list.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), frameOf(list));
    QCOMPARE(frameOf(list)->metaObject()->className(), "QFrame");
}

void tst_DropDown::isAWindowAlsoInAParent()
{
    QWidget parent;
    parent.resize(300, 200);
    auto *list = new DropDown(&parent);
    open(*list);

    QVERIFY(list->isWindow());
    QCOMPARE(list->parentWidget(), &parent);
    QCOMPARE(frameOf(*list)->geometry(), list->rect());
}

void tst_DropDown::addsRowsInOrder()
{
    DropDown list;

    fill(list);

    QCOMPARE(list.count(), 3);
    QCOMPARE(list.itemText(0), QStringLiteral("Alpha"));
    QCOMPARE(list.itemText(2), QStringLiteral("Gamma"));
    const QList<IconLabel *> rows = rowsOf(list);
    QCOMPARE(rows.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(rows.at(i)->text(), list.itemText(i));
        QCOMPARE(rows.at(i)->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(rows.at(i)->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(iconSide(*rows.at(i)), QStringLiteral("nowhere"));
    }
}

void tst_DropDown::arrangesTheRowsAnewWithEachOne()
{
    DropDown list;
    fill(list);
    const QPointer<QLayout> former = frameOf(list)->layout();

    list.addItem(QStringLiteral("Delta"));

    QVERIFY(former.isNull());
    auto *column = qobject_cast<QVBoxLayout *>(frameOf(list)->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 4);
}

void tst_DropDown::loadsIcons()
{
    DropDown list;
    list.addItem(QStringLiteral("Alpha"));
    list.addItem(QStringLiteral("Beta"), settingsIcon);
    const auto iconSize = [&list](int row) {
        const QPixmap icon = iconPart(*rowsOf(list).at(row))->pixmap(Qt::ReturnByValue);
        return icon.size();
    };
    QCOMPARE(iconSize(0), QSize(0, 0));
    QCOMPARE(iconSize(1), QSize(22, 22));

    list.setIcon(0, crossIcon);
    list.setIcon(1, QStringLiteral(":/nothing.png"));

    QCOMPARE(iconSize(0), QSize(25, 25));
    QCOMPARE(iconSize(1), QSize(0, 0));
}

void tst_DropDown::showsTheIconsOfAllRows()
{
    DropDown list;
    list.addItem(QStringLiteral("Alpha"), settingsIcon);

    list.showIcons(IconLabel::IconLeft);
    list.addItem(QStringLiteral("Beta"), settingsIcon);
    list.addItem(QStringLiteral("Gamma"));
    for (const IconLabel *row : rowsOf(list))
        QCOMPARE(iconSide(*row), QStringLiteral("left"));

    list.showIcons(IconLabel::IconRight);
    for (const IconLabel *row : rowsOf(list))
        QCOMPARE(iconSide(*row), QStringLiteral("right"));

    list.showIcons(IconLabel::NoIcon);
    for (const IconLabel *row : rowsOf(list))
        QCOMPARE(iconSide(*row), QStringLiteral("nowhere"));
}

void tst_DropDown::changesATextByItsIndex()
{
    DropDown list;
    fill(list);

    list.setItemText(1, QStringLiteral("Second"));

    QCOMPARE(list.itemText(0), QStringLiteral("Alpha"));
    QCOMPARE(list.itemText(1), QStringLiteral("Second"));
    QCOMPARE(list.itemText(2), QStringLiteral("Gamma"));
}

void tst_DropDown::ignoresIndicesOutOfRange_data()
{
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("index");

    QTest::newRow("before the first") << 3 << -1;
    QTest::newRow("behind the last") << 3 << 3;
    QTest::newRow("the largest") << 3 << std::numeric_limits<int>::max();
    QTest::newRow("the smallest") << 3 << std::numeric_limits<int>::min();
    QTest::newRow("the first of none") << 0 << 0;
}

void tst_DropDown::ignoresIndicesOutOfRange()
{
    QFETCH(int, items);
    QFETCH(int, index);
    DropDown list;
    for (int i = 0; i < items; ++i)
        list.addItem(QString::number(i));
    open(list);

    list.setItemText(index, QStringLiteral("None"));
    list.setIcon(index, settingsIcon);
    list.setItemVisibility(index, false);

    QCOMPARE(list.itemText(index), QString());
    QVERIFY(!list.hasItemVisibility(index));
    QVERIFY(!list.isItemVisible(index));
    QCOMPARE(list.count(), items);
    for (int i = 0; i < items; ++i) {
        QCOMPARE(list.itemText(i), QString::number(i));
        QVERIFY(list.isItemVisible(i));
        const QPixmap icon = iconPart(*rowsOf(list).at(i))->pixmap(Qt::ReturnByValue);
        QVERIFY(icon.isNull());
    }
}

void tst_DropDown::tellsTheFlagFromWhatIsSeen()
{
    DropDown list;
    fill(list);
    QVERIFY(list.hasItemVisibility(1));
    QVERIFY(!list.isItemVisible(1)); // closed

    list.setItemVisibility(1, false);
    QVERIFY(!list.hasItemVisibility(1));
    QVERIFY(!rowsOf(list).at(1)->hasVisibility());

    open(list);
    QVERIFY(list.isItemVisible(0));
    QVERIFY(!list.isItemVisible(1));

    list.setItemVisibility(1, true);
    QVERIFY(list.hasItemVisibility(1));
    QVERIFY(list.isItemVisible(1));

    list.hide();
    QVERIFY(list.hasItemVisibility(1));
    QVERIFY(!list.isItemVisible(1));
}

void tst_DropDown::removesItemsFromFirstToLast()
{
    DropDown list;
    fill(list);
    QStringList removed;
    for (IconLabel *row : rowsOf(list)) {
        const QString text = row->text();
        connect(row, &QObject::destroyed, this, [&removed, text] { removed << text; });
    }

    list.clear();

    QCOMPARE(removed, QStringList({ QStringLiteral("Alpha"), QStringLiteral("Beta"),
                                    QStringLiteral("Gamma") }));
    QCOMPARE(list.count(), 0);
    QCOMPARE(list.itemText(0), QString());
    QCOMPARE(frameOf(list)->layout()->count(), 0);

    list.addItem(QStringLiteral("Delta"));
    QCOMPARE(list.itemText(0), QStringLiteral("Delta"));
}

void tst_DropDown::selectsTheRowUnderTheHeight_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("atItsEnd");
    QTest::addColumn<int>("x");

    QTest::newRow("second line of the first row") << 0 << false << 20;
    QTest::newRow("last line of the first row") << 0 << true << 20;
    QTest::newRow("second line of the middle row") << 1 << false << 20;
    QTest::newRow("last line of the last row") << 2 << true << 20;
    QTest::newRow("at the left edge") << 1 << false << 0;
    QTest::newRow("left of the list") << 1 << false << -100;
    QTest::newRow("right of the list") << 1 << true << 10000;
}

void tst_DropDown::selectsTheRowUnderTheHeight()
{
    QFETCH(int, row);
    QFETCH(bool, atItsEnd);
    QFETCH(int, x);
    DropDown list;
    fill(list);
    open(list);
    SignalRecorder recorder(&list);
    const QRect place = rowsOf(list).at(row)->geometry();

    MouseHand(list).press(QPoint(x, atItsEnd ? place.bottom() : place.top() + 1));

    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("itemSelected(%1)").arg(row)));
    QVERIFY(!list.isVisible());
}

void tst_DropDown::missesARowOnItsFirstLine()
{
    DropDown list;
    fill(list);
    open(list);
    SignalRecorder recorder(&list);

    for (const IconLabel *row : rowsOf(list))
        MouseHand(list).press(QPoint(20, row->y()));
    MouseHand(list).press(QPoint(20, -5));
    MouseHand(list).press(QPoint(20, rowsOf(list).last()->geometry().bottom() + 1));

    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(list.isVisible());
}

void tst_DropDown::leavesOtherButtonsAlone_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_DropDown::leavesOtherButtonsAlone()
{
    QFETCH(int, button);
    DropDown list;
    fill(list);
    open(list);
    SignalRecorder recorder(&list);
    const auto pressed = Qt::MouseButton(button);
    QMouseEvent press(QEvent::MouseButtonPress, rowsOf(list).at(1)->geometry().center(), pressed,
                      pressed, Qt::NoModifier);

    QApplication::sendEvent(&list, &press);

    QVERIFY(!press.isAccepted()); // as any widget that does not care
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(list.isVisible());
}

void tst_DropDown::reportsBeforeItCloses()
{
    DropDown list;
    fill(list);
    open(list);
    bool wasOpen = false;
    connect(&list, &DropDown::itemSelected, this, [&] { wasOpen = list.isVisible(); });

    // on the text, from which the press has to find its way to the list
    QTest::mousePress(textPart(*rowsOf(list).at(2)), Qt::LeftButton);

    QVERIFY(wasOpen);
    QVERIFY(!list.isVisible());
}

void tst_DropDown::movesTheRowsBelowAHiddenOneUp()
{
    DropDown list;
    fill(list);
    open(list);
    const QPoint place = rowsOf(list).at(1)->geometry().center();

    list.setItemVisibility(1, false);
    QApplication::processEvents();
    SignalRecorder recorder(&list);
    MouseHand(list).press(place);

    QCOMPARE(recorder.taken(), ::list({ "itemSelected(2)" }));
}

void tst_DropDown::survivesAListenerThatDeletesIt()
{
    QPointer<DropDown> list = new DropDown;
    fill(*list);
    open(*list);
    connect(list, &DropDown::itemSelected, this, [&] { delete list; });

    QTest::mousePress(textPart(*rowsOf(*list).at(1)), Qt::LeftButton);

    QVERIFY(list.isNull());
}

void tst_DropDown::survivesAListenerThatClearsIt()
{
    DropDown list;
    fill(list);
    open(list);
    connect(&list, &DropDown::itemSelected, &list, &DropDown::clear);

    QTest::mousePress(textPart(*rowsOf(list).at(1)), Qt::LeftButton);

    QCOMPARE(list.count(), 0);
    QVERIFY(!list.isVisible());
}

void tst_DropDown::survivesARowThatIsDeleted()
{
    DropDown list;
    fill(list);
    open(list);

    delete rowsOf(list).at(1);
    QApplication::processEvents();

    list.setItemText(1, QStringLiteral("None"));
    list.setIcon(1, settingsIcon);
    list.setItemVisibility(1, true);
    list.showIcons(IconLabel::IconLeft);
    QCOMPARE(list.itemText(1), QString());
    QVERIFY(!list.hasItemVisibility(1));
    QVERIFY(!list.isItemVisible(1));
    QCOMPARE(list.itemText(2), QStringLiteral("Gamma")); // the others keep their indices
    SignalRecorder recorder(&list);
    pressRow(list, 1);
    QCOMPARE(recorder.taken(), ::list({ "itemSelected(2)" }));
    list.addItem(QStringLiteral("Delta"));
    list.clear();
    QCOMPARE(list.count(), 0);
}

void tst_DropDown::isAsLargeAsItsRows()
{
    DropDown list;
    fill(list, { "A", "A text that is clearly wider than eighty pixels" });
    open(list);

    const QList<IconLabel *> rows = rowsOf(list);
    const int text = textPart(*rows.last())->sizeHint().width();
    QCOMPARE(list.width(), text + 16); // with the gaps of a row
    QCOMPARE(rows.first()->width(), list.width());
    QCOMPARE(list.height(), 2 * rows.first()->height());
    // The margin of 5 pixels lies round a line of text.
    QVERIFY(rows.first()->height() >= rows.first()->fontMetrics().height() + 10);
    for (const IconLabel *row : rows)
        QCOMPARE(textPart(*row)->x(), 0); // texts begin one below the other
}

void tst_DropDown::takesANewSizeBeforeItOpens()
{
    const QString wide = QStringLiteral("A text that is clearly wider than eighty pixels");
    DropDown list;
    fill(list, { "Alpha", "Beta" });
    open(list);
    const int row = rowsOf(list).first()->height();
    list.setItemVisibility(0, false);
    QTRY_COMPARE(list.height(), std::max(row, list.minimumHeight()));
    list.hide();

    list.setItemVisibility(0, true);
    list.addItem(QStringLiteral("Gamma"));
    list.setItemText(1, wide);
    list.show();

    // at once, for who opens it puts it at a place that depends on its width
    QCOMPARE(list.height(), 3 * row);
    QCOMPARE(list.width(), list.fontMetrics().size(Qt::TextSingleLine, wide).width() + 16);

    list.hide();
    list.setItemText(1, QStringLiteral("Beta"));
    list.show();
    QCOMPARE(list.width(), list.minimumWidth());
}

void tst_DropDown::keepsItsSize()
{
    DropDown list;
    fill(list);
    open(list);
    const QSize size = list.size();

    for (int i = 0; i < 5; ++i) {
        list.setItemText(1, QStringLiteral("B"));
        list.setItemVisibility(2, false);
        QApplication::processEvents();
        list.hide();
        list.setItemVisibility(2, true);
        list.setItemText(1, QStringLiteral("Beta"));
        open(list);
    }

    QCOMPARE(list.size(), size);
}

void tst_DropDown::comesToRest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<IconLabel::IconDisplay>("display");

    const QString wide(4000, QLatin1Char('W')); // wider than the screen
    QTest::newRow("short text") << QStringLiteral("Alpha") << IconLabel::NoIcon;
    QTest::newRow("short text and icon") << QStringLiteral("Alpha") << IconLabel::IconLeft;
    QTest::newRow("wide text") << wide << IconLabel::NoIcon;
    QTest::newRow("wide text and icon") << wide << IconLabel::IconRight;
}

void tst_DropDown::comesToRest()
{
    QFETCH(QString, text);
    QFETCH(IconLabel::IconDisplay, display);
    DropDown list;
    list.showIcons(display);
    list.addItem(text, crossIcon);
    LayoutRequests requests;
    list.installEventFilter(&requests);
    const auto processAll = [] {
        for (int i = 0; i < 20; ++i)
            QApplication::processEvents();
    };

    list.show();
    processAll();
    const int before = requests.count;
    processAll();

    QCOMPARE(requests.count, before);
    QVERIFY(list.width() < list.screen()->geometry().width());
}

void tst_DropDown::followsItsRowsWhileOpen()
{
    DropDown list;
    fill(list, { "Alpha", "Beta" });
    open(list);
    const int row = rowsOf(list).first()->height();
    QCOMPARE(list.height(), 2 * row);

    list.addItem(QStringLiteral("Gamma"));
    list.addItem(QStringLiteral("Delta"));
    QTRY_COMPARE(list.height(), 4 * row);
    QCOMPARE(shownTexts(list), ::list({ "Alpha", "Beta", "Gamma", "Delta" }));

    list.setItemVisibility(0, false);
    QTRY_COMPARE(list.height(), 3 * row);

    list.setItemText(1, QStringLiteral("A text that is clearly wider than eighty pixels"));
    QTRY_COMPARE(list.width(), textPart(*rowsOf(list).at(1))->sizeHint().width() + 16);
}

PELORIN_TEST_MAIN(tst_DropDown)
#include "tst_dropdown.moc"
