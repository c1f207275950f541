#include "Pelorin/containers/FlowLayout.h"
#include "Pelorin/containers/ScrollAreaNG.h"
#include "Pelorin/containers/ScrollAreaNGContainer.h"
#include "tests/containers/ItemList.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QBoxLayout>
#include <QPointer>
#include <QScrollBar>

#include <utility>

using namespace ItemList;

Q_DECLARE_METATYPE(ScrollAreaNG::eScrollBarColor)
Q_DECLARE_METATYPE(Qt::ScrollBarPolicy)

class tst_ScrollAreaNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void setsItsBarsUp_data();
    void setsItsBarsUp();
    void colorsItsBars_data();
    void colorsItsBars();
    void laysItemsOut_data();
    void laysItemsOut();
    void nestsBoxesForRowAndColumn();

    void appendsAnItem_data();
    void appendsAnItem();
    void appendsAList();
    void insertsAnItem_data();
    void insertsAnItem();
    void leavesNoHelperInItsContainer_data();
    void leavesNoHelperInItsContainer();
    void showsAnItemWhenItKnowsItsState();
    void showsAListBeforeItKnowsItsState();
    void ignoresNullAndItemsThatAreThere();
    void movesAnItem_data();
    void movesAnItem();
    void movesNothingAtTheEnds_data();
    void movesNothingAtTheEnds();

    void makesAnItemCurrent();
    void staysSilentAboutTheSameItem();
    void clearsTheCurrentItem();
    void scrollsTheCurrentItemIntoView_data();
    void scrollsTheCurrentItemIntoView();
    void keepsAMarginRoundTheCurrentItem_data();
    void keepsAMarginRoundTheCurrentItem();
    void settlesBeforeItScrolls_data();
    void settlesBeforeItScrolls();
    void checksAnItem();
    void processesEventsForACurrentItemOnly();
    void takesRequestsOfItems();
    void tellsItemsOfTheirStateInOrder();
    void repaintsTheItemsThatChange();

    void deletesAnItem();
    void keepsTheCurrentItemUntilItIsDeleted();
    void deletesAll();
    void handsAnItemBack();
    void keepsATakenItemCurrent();
    void addsATakenItemAgain();
    void tellsOfScrolling_data();
    void tellsOfScrolling();
    void tellsOfScrollEvents();
    void answersBadIndices_data();
    void answersBadIndices();

    void livesWithItemsDeletedBehindItsBack_data();
    void livesWithItemsDeletedBehindItsBack();
    void takesAnEntryWithoutAnItemOut_data();
    void takesAnEntryWithoutAnItemOut();
    void findsNoDeletedItem();
    void livesWithoutItsContainer();
    void freesItsItems();
};

void tst_ScrollAreaNG::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &area = ScrollAreaNG::staticMetaObject;
    const QMetaObject &item = ScrollAreaNGItem::staticMetaObject;

    QCOMPARE(area.superClass(), &QScrollArea::staticMetaObject);
    QCOMPARE(item.superClass(), &QWidgetNG::staticMetaObject);
    QCOMPARE(ScrollAreaNGContainer::staticMetaObject.superClass(), &QWidgetNG::staticMetaObject);
    QCOMPARE(
        ownMethods(area),
        list({ "currentIndexChanged(int)", "currentItemChanged(ScrollAreaNGItem*)",
               "contentScrolled()", "listItemAppend(ScrollAreaNGItem*)",
               "listItemAppend(QList<ScrollAreaNGItem*>)", "listItemInsert(int,ScrollAreaNGItem*)",
               "listItemDelete(ScrollAreaNGItem*)", "listItemDeleteIndex(int)",
               "listItemDeleteAll()", "listItemMoveBackward(ScrollAreaNGItem*)",
               "listItemMoveForward(ScrollAreaNGItem*)",
               "listItemSetCurrent(ScrollAreaNGItem*,bool)",
               "listItemSetCurrent(ScrollAreaNGItem*)", "listItemSetCurrentIndex(int,bool)",
               "listItemSetCurrentIndex(int)", "listItemSetChecked(ScrollAreaNGItem*)" }));
    QCOMPARE(
        ownMethods(item),
        list({ "selectionChanged(bool)", "checkedChanged(bool)", "indexChanged(int)",
               "contentScrolled()", "listItemSetCurrent(ScrollAreaNGItem*,bool)",
               "listItemSetCurrent(ScrollAreaNGItem*)", "listItemSetChecked(ScrollAreaNGItem*)" }));
}

void tst_ScrollAreaNG::setsItsBarsUp_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<Qt::ScrollBarPolicy>("horizontal");
    QTest::addColumn<Qt::ScrollBarPolicy>("vertical");

    QTest::newRow("row") << row << Qt::ScrollBarAlwaysOn << Qt::ScrollBarAlwaysOff;
    QTest::newRow("column") << column << Qt::ScrollBarAlwaysOff << Qt::ScrollBarAlwaysOn;
    QTest::newRow("flow") << flow << Qt::ScrollBarAlwaysOff << Qt::ScrollBarAlwaysOn;
}

void tst_ScrollAreaNG::setsItsBarsUp()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    const ScrollAreaNG area(style, ScrollAreaNG::ScrollBarRed, 0, 0, Qt::ScrollBarAlwaysOn);

    QTEST(area.horizontalScrollBarPolicy(), "horizontal");
    QTEST(area.verticalScrollBarPolicy(), "vertical");
    QVERIFY(area.widgetResizable());
    QVERIFY(qobject_cast<ScrollAreaNGContainer *>(area.widget()));
    QCOMPARE(area.listItemCount(), 0);
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(area.listItemCurrentIndex(), -1);
}

void tst_ScrollAreaNG::colorsItsBars_data()
{
    QTest::addColumn<ScrollAreaNG::eScrollBarColor>("color");
    QTest::addColumn<QString>("type");

    QTest::newRow("red") << ScrollAreaNG::ScrollBarRed << "scrollbar-flat-rounded-red";
    QTest::newRow("grey") << ScrollAreaNG::ScrollBarGrey << "scrollbar-flat-rounded-grey";
    QTest::newRow("another") << ScrollAreaNG::eScrollBarColor(7) << "scrollbar-flat-rounded-grey";
}

void tst_ScrollAreaNG::colorsItsBars()
{
    QFETCH(ScrollAreaNG::eScrollBarColor, color);
    const ScrollAreaNG area(column, color, 0, 0, Qt::ScrollBarAsNeeded);

    QTEST(area.horizontalScrollBar()->property("type").toString(), "type");
    QTEST(area.verticalScrollBar()->property("type").toString(), "type");
}

void tst_ScrollAreaNG::laysItemsOut_data()
{
    addStyles();
}

void tst_ScrollAreaNG::laysItemsOut()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 3);
    QApplication::processEvents();
    QLayout *const layout = area.itemLayout();

    const QPoint first = area.listItemAt(0)->pos();
    const QPoint second = area.listItemAt(1)->pos();
    QCOMPARE(first.x(), 4);
    QCOMPARE(second.x(), style == column ? 4 : 90); // 4 + width + 6
    if (style != row) {                             // in a row they stand in the middle
        QCOMPARE(first.y(), 4);
        QCOMPARE(second.y(), style == column ? 50 : 4); // 4 + height + 6
    }
    if (style == flow) {
        QVERIFY(qobject_cast<FlowLayout *>(layout));
        return;
    }
    QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(layout->spacing(), 6);
}

void tst_ScrollAreaNG::nestsBoxesForRowAndColumn()
{
    const ScrollAreaNG across(row, ScrollAreaNG::ScrollBarGrey, 5, 7, Qt::ScrollBarAsNeeded);
    const ScrollAreaNG down(column, ScrollAreaNG::ScrollBarGrey, 5, 7, Qt::ScrollBarAsNeeded);

    auto *const outerRow = qobject_cast<QHBoxLayout *>(across.widget()->layout());
    auto *const outerColumn = qobject_cast<QVBoxLayout *>(down.widget()->layout());

    QVERIFY(outerRow && qobject_cast<QHBoxLayout *>(outerRow->itemAt(0)->layout()));
    QVERIFY(outerColumn && qobject_cast<QVBoxLayout *>(outerColumn->itemAt(0)->layout()));
    for (QBoxLayout *const outer :
         { static_cast<QBoxLayout *>(outerRow), static_cast<QBoxLayout *>(outerColumn) }) {
        QCOMPARE(outer->count(), 2);
        QVERIFY(outer->itemAt(1)->spacerItem());
        QCOMPARE(outer->stretch(1), 0);
        QCOMPARE(outer->spacing(), 0);
        QCOMPARE(outer->contentsMargins(), QMargins());
    }
}

void tst_ScrollAreaNG::appendsAnItem_data()
{
    addStyles();
}

void tst_ScrollAreaNG::appendsAnItem()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 1);
    ScrollAreaNGItem *const item = makeItem();
    QCOMPARE(item->index(), -1);
    SignalRecorder recorder(item, QString(), &QWidgetNG::staticMetaObject);

    area.listItemAppend(item);

    QCOMPARE(area.listItemLast(), item);
    QCOMPARE(area.inLayout().last(), item);
    QCOMPARE(item->index(), 1);
    QVERIFY(item->isVisible());
    QVERIFY(area.widget()->isAncestorOf(item));
    QCOMPARE(recorder.taken(), list({ "indexChanged(1)" }));
}

void tst_ScrollAreaNG::appendsAList()
{
    List area(column, 1);
    ScrollAreaNGItem *const first = makeItem();
    ScrollAreaNGItem *const second = makeItem();

    area.listItemAppend(Items{ first, nullptr, area.listItemAt(0), second, first });

    QCOMPARE(area.inList(), (Items{ area.listItemAt(0), first, second }));
    QCOMPARE(second->index(), 2);
    QVERIFY(first->isVisible() && second->isVisible());
}

void tst_ScrollAreaNG::insertsAnItem_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");

    for (const auto style : { row, column, flow }) {
        const char *const name = styleName(style);
        QTest::addRow("%s, far before", name) << style << -5 << 0;
        QTest::addRow("%s, at minus two", name) << style << -2 << 0;
        QTest::addRow("%s, at minus one", name) << style << -1 << 0;
        QTest::addRow("%s, first", name) << style << 0 << 0;
        QTest::addRow("%s, second", name) << style << 1 << 1;
        QTest::addRow("%s, before the last", name) << style << 2 << 2;
        QTest::addRow("%s, last", name) << style << 3 << 3;
        QTest::addRow("%s, behind the end", name) << style << 4 << 3;
        QTest::addRow("%s, far behind", name) << style << 1000 << 3;
    }
}

void tst_ScrollAreaNG::insertsAnItem()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    QFETCH(int, index);
    QFETCH(int, place);
    List area(style, 3);
    Items expected = area.inList();
    ScrollAreaNGItem *const item = makeItem();
    expected.insert(place, item);

    area.listItemInsert(index, item);

    QCOMPARE(area.inList(), expected);
    QCOMPARE(area.inLayout(), expected);
    QVERIFY(item->isVisible());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(expected.at(i)->index(), i);
}

void tst_ScrollAreaNG::leavesNoHelperInItsContainer_data()
{
    addStyles();
}

void tst_ScrollAreaNG::leavesNoHelperInItsContainer()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 3);

    area.listItemInsert(0, makeItem());
    area.listItemMoveForward(area.listItemFirst());

    QCOMPARE(area.widget()->findChildren<QWidget *>().size(), 4);
    QCOMPARE(area.widget()->findChildren<ScrollAreaNGItem *>().size(), 4);
}

void tst_ScrollAreaNG::showsAnItemWhenItKnowsItsState()
{
    List area(column, 1);
    for (const bool inserted : { false, true }) {
        ScrollAreaNGItem *const item = makeItem();
        bool wasHidden = false;
        connect(item, &ScrollAreaNGItem::indexChanged, this, [&] { wasHidden = item->isHidden(); });

        if (inserted)
            area.listItemInsert(0, item);
        else
            area.listItemAppend(item);

        QVERIFY(wasHidden);
        QVERIFY(item->isVisible());
    }
}

void tst_ScrollAreaNG::showsAListBeforeItKnowsItsState()
{
    List area(column, 1);
    ScrollAreaNGItem *const first = makeItem();
    ScrollAreaNGItem *const second = makeItem();
    int shown = 0;
    connect(first, &ScrollAreaNGItem::indexChanged, this,
            [&] { shown = int(first->isVisible()) + int(second->isVisible()); });

    area.listItemAppend(Items{ first, second });

    QCOMPARE(shown, 2);
}

void tst_ScrollAreaNG::ignoresNullAndItemsThatAreThere()
{
    List area(column, 2);
    const Items before = area.inList();
    ScrollAreaNGItem stranger;

    area.listItemAppend(static_cast<ScrollAreaNGItem *>(nullptr));
    area.listItemAppend(before.first());
    area.listItemInsert(1, nullptr);
    area.listItemInsert(1, before.first());
    area.listItemDelete(nullptr);
    area.listItemDelete(&stranger);

    QCOMPARE(area.inList(), before);
    QCOMPARE(area.inLayout(), before);
    QCOMPARE(area.listItemTake(nullptr), nullptr);
    QCOMPARE(area.listItemTake(&stranger), nullptr);
    QCOMPARE(area.listItemIndexOf(nullptr), -1);
    QCOMPARE(area.listItemIndexOf(&stranger), -1);
    QVERIFY(!area.listItemMoveForward(nullptr));
    QVERIFY(!area.listItemMoveBackward(&stranger));
}

void tst_ScrollAreaNG::movesAnItem_data()
{
    addStyles();
}

void tst_ScrollAreaNG::movesAnItem()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 3);
    const Items items = area.inList();
    area.listItemSetCurrentIndex(2);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    QVERIFY(area.listItemMoveForward(items.at(0)));
    QCOMPARE(area.inList(), (Items{ items.at(1), items.at(0), items.at(2) }));
    QCOMPARE(area.inLayout(), area.inList());
    QCOMPARE(area.listItemCurrent(), items.at(0)); // whatever was current before
    QStringList heard = recorder.taken().filter(QStringLiteral("current"));
    QCOMPARE(heard.size(), 2);
    QCOMPARE(heard.first(), QStringLiteral("currentIndexChanged(1)"));
    QVERIFY(heard.last().startsWith(QStringLiteral("currentItemChanged(")));

    QVERIFY(area.listItemMoveBackward(items.at(2)));
    QCOMPARE(area.inList(), (Items{ items.at(1), items.at(2), items.at(0) }));
    QCOMPARE(area.inLayout(), area.inList());
    QCOMPARE(items.at(2)->index(), 1);
}

void tst_ScrollAreaNG::movesNothingAtTheEnds_data()
{
    addStyles();
}

void tst_ScrollAreaNG::movesNothingAtTheEnds()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 3);
    const Items items = area.inList();
    area.listItemSetCurrentIndex(1);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    QVERIFY(!area.listItemMoveForward(items.last()));
    QVERIFY(!area.listItemMoveBackward(items.first()));

    QCOMPARE(area.inList(), items);
    QCOMPARE(area.listItemCurrentIndex(), 1);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScrollAreaNG::makesAnItemCurrent()
{
    List area(column, 3);
    QList<ScrollAreaNGItem *> told;
    QList<int> toldIndices;
    connect(&area, &ScrollAreaNG::currentItemChanged, this,
            [&](ScrollAreaNGItem *item) { told << item; });
    connect(&area, &ScrollAreaNG::currentIndexChanged, this,
            [&](int index) { toldIndices << index; });

    area.listItemSetCurrent(area.listItemAt(2));
    area.listItemSetCurrentIndex(0);

    QCOMPARE(told, (QList<ScrollAreaNGItem *>{ area.listItemAt(2), area.listItemAt(0) }));
    QCOMPARE(toldIndices, (QList<int>{ 2, 0 }));
    QVERIFY(area.listItemAt(0)->selected());
    QVERIFY(!area.listItemAt(2)->selected());
    QCOMPARE(area.listItemCurrent(), area.listItemFirst());
}

void tst_ScrollAreaNG::staysSilentAboutTheSameItem()
{
    List area(column, 3);
    area.listItemSetCurrentIndex(1);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    area.listItemSetCurrentIndex(1);
    area.listItemSetCurrent(area.listItemAt(1));
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")), QStringList());

    area.listItemSetCurrent(area.listItemAt(1), true);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")).size(), 2);
}

void tst_ScrollAreaNG::clearsTheCurrentItem()
{
    List area(column, 3);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);
    area.listItemSetCurrent(nullptr);
    QCOMPARE(recorder.taken(), QStringList());

    ScrollAreaNGItem *reported = area.listItemAt(0);
    connect(&area, &ScrollAreaNG::currentItemChanged, this,
            [&](ScrollAreaNGItem *item) { reported = item; });
    area.listItemSetCurrentIndex(1);
    recorder.taken();
    area.listItemSetCurrent(nullptr);
    QCOMPARE(recorder.taken().filter(QStringLiteral("Index")), list({ "currentIndexChanged(-1)" }));
    QCOMPARE(reported, nullptr);
    QVERIFY(!area.listItemAt(1)->selected());

    area.listItemSetCurrentIndex(99, true); // told by force, though there is none
    QCOMPARE(recorder.taken().filter(QStringLiteral("Index")), list({ "currentIndexChanged(-1)" }));
}

void tst_ScrollAreaNG::scrollsTheCurrentItemIntoView_data()
{
    addStyles();
}

void tst_ScrollAreaNG::scrollsTheCurrentItemIntoView()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 30);
    QApplication::processEvents();
    QVERIFY(!area.isInView(area.listItemLast()));

    area.listItemSetCurrentIndex(29);
    QVERIFY(area.isInView(area.listItemLast()));

    area.horizontalScrollBar()->setValue(0);
    area.verticalScrollBar()->setValue(0);
    area.listItemSetCurrentIndex(29); // silent, and seen all the same
    QVERIFY(area.isInView(area.listItemLast()));

    area.horizontalScrollBar()->setValue(0);
    area.verticalScrollBar()->setValue(0);
    area.listItemMoveBackward(area.listItemLast());
    QVERIFY(area.isInView(area.listItemAt(28)));
}

void tst_ScrollAreaNG::keepsAMarginRoundTheCurrentItem_data()
{
    addStyles();
}

void tst_ScrollAreaNG::keepsAMarginRoundTheCurrentItem()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 40);
    area.resize(style == row ? QSize(400, 110) : QSize(200, 400));
    QApplication::processEvents();

    area.listItemSetCurrentIndex(20);

    const ScrollAreaNGItem *const item = area.listItemCurrent();
    const QPoint end = item->mapTo(area.viewport(), QPoint(item->width(), item->height()));
    if (style == row)
        QCOMPARE(end.x() + 50, area.viewport()->width());
    else
        QCOMPARE(end.y() + 50, area.viewport()->height());
}

void tst_ScrollAreaNG::settlesBeforeItScrolls_data()
{
    addStyles();
}

void tst_ScrollAreaNG::settlesBeforeItScrolls()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 30);
    QApplication::processEvents();
    area.listItemSetCurrentIndex(28);

    for (int i = 0; i < 10; ++i)
        area.listItemAppend(makeItem());
    area.listItemSetCurrent(area.listItemLast()); // in the same turn of the event loop

    QVERIFY(area.isInView(area.listItemLast()));
}

void tst_ScrollAreaNG::checksAnItem()
{
    List area(column, 3);
    area.listItemSetCurrentIndex(0);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    area.listItemSetChecked(area.listItemAt(1));
    QVERIFY(area.listItemAt(1)->checked());
    QVERIFY(area.listItemAt(0)->selected()); // the two are apart
    area.listItemSetChecked(area.listItemAt(0));
    QVERIFY(area.listItemAt(0)->checked() && area.listItemAt(0)->selected());
    QVERIFY(!area.listItemAt(1)->checked());

    ScrollAreaNGItem stranger;
    area.listItemSetChecked(&stranger);
    QVERIFY(!area.listItemAt(0)->checked());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScrollAreaNG::processesEventsForACurrentItemOnly()
{
    List area(column, 3);
    area.listItemSetCurrentIndex(1);
    int calls = 0;
    const auto post = [&] {
        QMetaObject::invokeMethod(
            &area, [&] { ++calls; }, Qt::QueuedConnection);
    };

    post();
    area.listItemSetCurrent(nullptr, true);
    QCOMPARE(calls, 0);

    area.listItemSetCurrentIndex(1);
    QCOMPARE(calls, 1);
    post();
    area.listItemSetCurrentIndex(1); // also when nothing is told
    QCOMPARE(calls, 2);
    post();
    area.listItemMoveForward(area.listItemAt(1));
    QCOMPARE(calls, 3);
}

void tst_ScrollAreaNG::takesRequestsOfItems()
{
    List area(column, 3);
    ScrollAreaNGItem *const item = area.listItemAt(1);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    Q_EMIT item->listItemSetCurrent(item);
    QCOMPARE(area.listItemCurrent(), item);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")).size(), 2);

    Q_EMIT item->listItemSetCurrent(item);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")).size(), 0);

    Q_EMIT item->listItemSetCurrent(item, true);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")).size(), 2);

    Q_EMIT item->listItemSetChecked(item);
    QVERIFY(item->checked());
}

void tst_ScrollAreaNG::tellsItemsOfTheirStateInOrder()
{
    List area(column);
    ScrollAreaNGItem *const first = makeItem();
    ScrollAreaNGItem *const second = makeItem();
    area.listItemAppend(Items{ first, second });
    SignalRecorder recorder(first, QStringLiteral("first"), &QWidgetNG::staticMetaObject);
    recorder.watch(second, QStringLiteral("second"), &QWidgetNG::staticMetaObject);
    area.listItemSetChecked(second);
    recorder.taken();

    area.listItemMoveForward(first); // current now, and behind the checked one

    QCOMPARE(recorder.taken(), list({ "second.indexChanged(0)", "first.selectionChanged(true)",
                                      "first.indexChanged(1)" }));
    area.refreshItemStates();
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScrollAreaNG::repaintsTheItemsThatChange()
{
    class Painted : public ScrollAreaNGItem
    {
    public:
        int painted = 0;

    protected:
        void paintEvent(QPaintEvent *) override { ++painted; }
    };
    List area(column);
    area.resize(200, 300);
    Painted items[3];
    for (Painted &item : items)
        area.listItemAppend(makeItem(&item));
    const auto painted = [&items] {
        QApplication::processEvents();
        QList<int> result;
        for (Painted &item : items)
            result << std::exchange(item.painted, 0);
        return result;
    };
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    painted();

    area.listItemSetChecked(&items[1]);
    QCOMPARE(painted(), (QList<int>{ 0, 1, 0 }));

    area.listItemSetCurrent(&items[2]);
    QCOMPARE(painted(), (QList<int>{ 0, 0, 1 }));

    area.listItemSetCurrent(&items[0]);
    QCOMPARE(painted(), (QList<int>{ 1, 0, 1 }));

    area.refreshItemStates();
    QCOMPARE(painted(), (QList<int>{ 0, 0, 0 }));

    area.widget()->layout()->setEnabled(false); // for the index alone, not for another place
    area.listItemTake(&items[0]);
    QCOMPARE(painted(), (QList<int>{ 0, 1, 1 }));
    for (Painted &item : items) {
        area.listItemTake(&item);
        item.setParent(nullptr);
    }
}

void tst_ScrollAreaNG::deletesAnItem()
{
    List area(column, 3);
    const Items items = area.inList();
    const QPointer<ScrollAreaNGItem> deleted = items.at(0);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    area.listItemDelete(items.at(0));
    QCOMPARE(area.inList(), (Items{ items.at(1), items.at(2) }));
    QCOMPARE(area.inLayout(), area.inList());
    QCOMPARE(items.at(1)->index(), 0);
    QVERIFY(deleted); // until the event loop is reached
    Q_EMIT deleted->listItemSetCurrent(items.at(1));
    QCOMPARE(area.listItemCurrent(), nullptr); // it is cut off

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(deleted.isNull());
    area.listItemDeleteIndex(1);
    area.listItemDeleteIndex(1);
    area.listItemDeleteIndex(-1);
    QCOMPARE(area.inList(), Items{ items.at(1) });
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")), QStringList());
}

void tst_ScrollAreaNG::keepsTheCurrentItemUntilItIsDeleted()
{
    List area(column, 3);
    area.listItemSetCurrentIndex(1);
    ScrollAreaNGItem *const item = area.listItemAt(1);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    area.listItemDelete(item);
    QCOMPARE(area.listItemCurrent(), item);
    QCOMPARE(area.listItemCurrentIndex(), -1);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")), QStringList());
}

void tst_ScrollAreaNG::deletesAll()
{
    List area(flow, 4);
    area.listItemSetCurrentIndex(2);
    const QPointer<ScrollAreaNGItem> item = area.listItemAt(2);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);

    area.listItemDeleteAll();

    QCOMPARE(area.listItemCount(), 0);
    QCOMPARE(area.inLayout(), Items());
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(item.isNull());
    QCOMPARE(area.listItemFirst(), nullptr);
    QCOMPARE(area.listItemLast(), nullptr);
}

void tst_ScrollAreaNG::handsAnItemBack()
{
    List area(column, 3);
    ScrollAreaNGItem *const item = area.listItemAt(1);
    QWidget *const parent = item->parentWidget();

    QCOMPARE(area.listItemTake(item), item);
    QCOMPARE(item->parentWidget(), parent);
    QCOMPARE(area.listItemCount(), 2);
    QCOMPARE(area.listItemAt(1)->index(), 1);

    ScrollAreaNGItem *const first = area.listItemAt(0);
    QCOMPARE(area.listItemTakeAt(0), first);
    QCOMPARE(area.listItemTakeAt(7), nullptr);
    QCOMPARE(area.listItemAt(0)->index(), 0);
}

void tst_ScrollAreaNG::keepsATakenItemCurrent()
{
    List area(column, 3);
    ScrollAreaNGItem *const item = area.listItemAt(1);
    area.listItemSetCurrent(item);
    area.listItemSetChecked(item);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);
    recorder.watch(item, QStringLiteral("item"), &QWidgetNG::staticMetaObject);

    QCOMPARE(area.listItemTakeAt(1), item);

    QCOMPARE(area.listItemCurrent(), item);
    QCOMPARE(area.listItemCurrentIndex(), -1);
    QVERIFY(item->isVisible() && item->selected() && item->checked());
    QCOMPARE(item->index(), 1);
    QCOMPARE(recorder.taken(), QStringList());

    area.listItemInsert(0, item);
    QCOMPARE(area.listItemCurrentIndex(), 0); // nothing said so
    QCOMPARE(recorder.taken(), list({ "item.indexChanged(0)" }));

    area.listItemTake(item);
    area.listItemSetCurrent(item); // as one that is not in the list
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(recorder.taken().filter(QStringLiteral("current")),
             QStringList()); // -1 before and now
}

void tst_ScrollAreaNG::addsATakenItemAgain()
{
    List area(column, 30);
    QApplication::processEvents();
    ScrollAreaNGItem *const item = area.listItemTakeAt(3);
    SignalRecorder recorder(item, QString(), &QWidgetNG::staticMetaObject);
    Q_EMIT area.contentScrolled();
    QCOMPARE(recorder.taken(), QStringList()); // it hears nothing meanwhile

    area.listItemAppend(item);
    recorder.taken();
    Q_EMIT area.contentScrolled();
    QCOMPARE(recorder.taken(), list({ "contentScrolled()" })); // and once now

    SignalRecorder ofArea(&area, QString(), &QScrollArea::staticMetaObject);
    Q_EMIT item->listItemSetCurrent(item);
    QCOMPARE(ofArea.taken().filter(QStringLiteral("Index")).size(), 1);
}

void tst_ScrollAreaNG::tellsOfScrolling_data()
{
    addStyles();
}

void tst_ScrollAreaNG::tellsOfScrolling()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 30);
    QApplication::processEvents();
    QScrollBar *const along = style == row ? area.horizontalScrollBar() : area.verticalScrollBar();
    QScrollBar *const across = style == row ? area.verticalScrollBar() : area.horizontalScrollBar();
    across->setRange(0, 100);
    SignalRecorder recorder(&area, QStringLiteral("area"), &QScrollArea::staticMetaObject);
    recorder.watch(area.listItemAt(5), QStringLiteral("item"), &QWidgetNG::staticMetaObject);

    along->setValue(40);
    QCOMPARE(recorder.taken(), list({ "item.contentScrolled()", "area.contentScrolled()" }));

    across->setValue(10);
    QCOMPARE(recorder.taken(), QStringList());

    area.listItemSetCurrentIndex(29);
    QCOMPARE(recorder.taken().filter(QStringLiteral("Scrolled")),
             list({ "item.contentScrolled()", "area.contentScrolled()" }));

    area.listItemSetCurrentIndex(29); // it is in view
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScrollAreaNG::tellsOfScrollEvents()
{
    class Watched : public QWidget
    {
    public:
        int reached = 0;

    protected:
        bool event(QEvent *event) override
        {
            reached += int(event->type() == QEvent::Scroll);
            return QWidget::event(event);
        }
    };
    List area(column, 2);
    Watched watched;
    watched.installEventFilter(&area);
    SignalRecorder recorder(&area, QString(), &QScrollArea::staticMetaObject);
    QEvent scroll(QEvent::Scroll);
    QEvent other(QEvent::User);

    QApplication::sendEvent(&watched, &scroll);
    QCOMPARE(recorder.taken(), list({ "contentScrolled()" }));
    QCOMPARE(watched.reached, 1); // it is not filtered out

    QApplication::sendEvent(area.widget(), &scroll);
    QCOMPARE(recorder.taken(), list({ "contentScrolled()" }));

    QApplication::sendEvent(&watched, &other);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScrollAreaNG::answersBadIndices_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("minus two") << -2;
    QTest::newRow("minus one") << -1;
    QTest::newRow("at the end") << 3;
    QTest::newRow("behind the end") << 4;
}

void tst_ScrollAreaNG::answersBadIndices()
{
    QFETCH(int, index);
    List area(column, 3);
    area.listItemSetCurrentIndex(1);

    QCOMPARE(area.listItemAt(index), nullptr);
    QCOMPARE(area.listItemTakeAt(index), nullptr);
    area.listItemDeleteIndex(index);
    QCOMPARE(area.listItemCount(), 3);
    area.listItemSetCurrentIndex(index);
    QCOMPARE(area.listItemCurrent(), nullptr);
}

void tst_ScrollAreaNG::livesWithItemsDeletedBehindItsBack_data()
{
    addStyles();
}

void tst_ScrollAreaNG::livesWithItemsDeletedBehindItsBack()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 5);
    const Items items = area.inList();
    area.listItemSetCurrentIndex(1);
    area.listItemSetChecked(area.listItemAt(1));

    delete area.listItemAt(1);
    delete area.listItemAt(3);

    QCOMPARE(area.listItemCount(), 5);
    QCOMPARE(area.listItemAt(1), nullptr);
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(area.listItemCurrentIndex(), -1);
    area.refreshItemStates();
    ScrollAreaNGItem *const added = makeItem();
    area.listItemInsert(0, added); // walks past both
    QCOMPARE(area.inList(),
             (Items{ added, items.at(0), nullptr, items.at(2), nullptr, items.at(4) }));
    QCOMPARE(area.inLayout(), (Items{ added, items.at(0), items.at(2), items.at(4) }));
    QVERIFY(area.listItemMoveForward(items.at(0))); // with an entry without an item
    QCOMPARE(area.listItemIndexOf(items.at(0)), 2);
    QCOMPARE(items.at(0)->index(), 2);
    area.listItemSetCurrentIndex(1); // none
    QCOMPARE(area.listItemCurrent(), nullptr);
    area.resize(300, 200);
    QApplication::processEvents();
    area.listItemDeleteAll();
    QCOMPARE(area.listItemCount(), 0);
}

void tst_ScrollAreaNG::takesAnEntryWithoutAnItemOut_data()
{
    QTest::addColumn<bool>("isDeleted");

    QTest::newRow("deleted") << true;
    QTest::newRow("taken") << false;
}

void tst_ScrollAreaNG::takesAnEntryWithoutAnItemOut()
{
    QFETCH(bool, isDeleted);
    List area(column, 3);
    ScrollAreaNGItem *const last = area.listItemLast();
    delete area.listItemAt(1);

    if (isDeleted)
        area.listItemDeleteIndex(1);
    else
        QCOMPARE(area.listItemTakeAt(1), nullptr);

    QCOMPARE(area.listItemCount(), 2);
    QCOMPARE(area.listItemLast(), last);
    QCOMPARE(last->index(), 1);
}

void tst_ScrollAreaNG::findsNoDeletedItem()
{
    List area(column, 3);
    ScrollAreaNGItem *const deleted = area.listItemAt(1);
    area.listItemSetCurrentIndex(2);
    delete deleted;

    QCOMPARE(area.listItemIndexOf(deleted), -1);
    QCOMPARE(area.listItemTake(deleted), nullptr);
    QVERIFY(!area.listItemMoveForward(deleted));
    QVERIFY(!area.listItemMoveBackward(deleted));
    area.listItemDelete(deleted);
    area.listItemSetChecked(deleted);
    area.listItemSetCurrent(deleted);

    QCOMPARE(area.listItemCount(), 3);
    QCOMPARE(area.listItemCurrent(), nullptr);
}

void tst_ScrollAreaNG::livesWithoutItsContainer()
{
    List area(row, 3);
    area.listItemSetCurrentIndex(1);
    ScrollAreaNGItem item;
    QScopedPointer<ScrollAreaNGItem> moved(area.listItemAt(2));
    moved->setParent(nullptr);

    area.setWidget(new QWidget); // deletes the container with all items
    area.listItemAppend(&item);
    area.listItemInsert(0, &item);
    area.listItemSetCurrentIndex(1);
    area.refreshItemStates();

    QCOMPARE(area.listItemCount(), 3);
    QCOMPARE(area.listItemCurrent(), nullptr);
    QCOMPARE(item.index(), -1);
    QVERIFY(area.listItemMoveBackward(moved.data())); // in the list alone
    QCOMPARE(area.listItemTake(moved.data()), moved.data());
    area.listItemDeleteIndex(0);
    area.listItemDeleteAll();
    QCOMPARE(area.listItemCount(), 0);

    List lost(row, 3);
    const QScopedPointer<QWidget> container(lost.takeWidget()); // with all items, alive
    lost.listItemSetCurrentIndex(2);
    QVERIFY(lost.listItemAt(2)->selected());
}

void tst_ScrollAreaNG::freesItsItems()
{
    auto *const area = new List(flow, 2);
    const QPointer<ScrollAreaNGItem> listed = area->listItemAt(0);
    const QPointer<ScrollAreaNGItem> taken = area->listItemTakeAt(1); // stays a child

    delete area;

    QVERIFY(listed.isNull());
    QVERIFY(taken.isNull());
}

PELORIN_TEST_MAIN(tst_ScrollAreaNG)
#include "tst_scrollareang.moc"
