#include "Pelorin/containers/FlowLayout.h"
#include "Pelorin/containers/ScrollAreaNG.h"
#include "Pelorin/containers/ScrollAreaNGContainer.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QBoxLayout>
#include <QPointer>
#include <QRandomGenerator>
#include <QScrollBar>

#include <functional>

namespace {

constexpr auto row = ScrollAreaNG::LayoutHorizontal;
constexpr auto column = ScrollAreaNG::LayoutVertical;
constexpr auto flow = ScrollAreaNG::LayoutFlow;

using Items = QList<ScrollAreaNGItem *>;

ScrollAreaNGItem *makeItem()
{
    auto *item = new ScrollAreaNGItem;
    item->setFixedSize(80, 40);
    return item;
}

/// A shown list with room for about two items each way.
class List : public ScrollAreaNG
{
public:
    explicit List(eLayoutStyle style = column, int count = 0)
        : ScrollAreaNG(style, ScrollBarGrey, 4, 6, Qt::ScrollBarAsNeeded)
    {
        resize(200, 110);
        for (int i = 0; i < count; ++i)
            listItemAppend(makeItem());
        show();
    }

    QLayout *itemLayout() const
    {
        QLayout *const outer = widget()->layout();
        QLayout *const inner = outer->count() > 0 ? outer->itemAt(0)->layout() : nullptr;
        return inner ? inner : outer;
    }

    Items inLayout() const
    {
        Items result;
        for (int i = 0; i < itemLayout()->count(); ++i)
            result << qobject_cast<ScrollAreaNGItem *>(itemLayout()->itemAt(i)->widget());
        return result;
    }

    Items inList() const
    {
        Items result;
        for (int i = 0; i < listItemCount(); ++i)
            result << listItemAt(i);
        return result;
    }

    bool isInView(ScrollAreaNGItem *item) const
    {
        const QRect place(item->mapTo(viewport(), QPoint()), item->size());
        return viewport()->rect().contains(place);
    }
};

void addStyles()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");

    QTest::newRow("row") << row;
    QTest::newRow("column") << column;
    QTest::newRow("flow") << flow;
}

/// A list and what it should be, under random operations.
class Pair
{
public:
    Pair(ScrollAreaNG::eLayoutStyle style, quint32 seed)
        : m_list(style)
        , m_random(seed)
        , m_recorder(&m_list, QString(), &QScrollArea::staticMetaObject)
    {}

    QString step()
    {
        m_expected.clear();
        m_recorder.taken();
        const int index = m_random.bounded(-2, m_items.size() + 2);
        ScrollAreaNGItem *const item = m_items.value(index);
        switch (m_random.bounded(10)) {
        case 0:
        case 1:
            return append();
        case 2:
            return insert(index);
        case 3:
            m_list.listItemDeleteIndex(index);
            m_items.removeOne(item);
            m_current = m_current == item ? nullptr : m_current;
            m_checked = m_checked == item ? nullptr : m_checked;
            return QStringLiteral("delete %1").arg(index);
        case 4:
            m_taken.append(m_list.listItemTake(item));
            m_items.removeOne(item);
            return QStringLiteral("take %1").arg(index);
        case 5:
            return move(item, 1);
        case 6:
            return move(item, -1);
        case 7:
            m_list.listItemSetChecked(item);
            m_checked = item;
            return QStringLiteral("check %1").arg(index);
        default:
            return select(index, item);
        }
    }

    QString difference()
    {
        const QStringList heard = m_recorder.taken().filter(QStringLiteral("current"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (m_list.inList() != m_items)
            return QStringLiteral("list");
        if (m_list.inLayout() != m_items)
            return QStringLiteral("layout");
        if (m_list.listItemCurrentIndex() != m_items.indexOf(m_current))
            return QStringLiteral("current index");
        for (int i = 0; i < m_items.size(); ++i) {
            const ScrollAreaNGItem *const item = m_items.at(i);
            if (item->index() != i || item->selected() != (item == m_current)
                || item->checked() != (item == m_checked) || item->isHidden())
                return QStringLiteral("state of item %1").arg(i);
        }
        return heard.size() == m_expected.size() && indices(heard) == m_expected
                   ? QString()
                   : QStringLiteral("signals ") + heard.join(QLatin1Char(' '));
    }

    ~Pair() { qDeleteAll(m_taken); }

private:
    /// Of each pair of signals, the index that the first one tells.
    static QStringList indices(const QStringList &heard)
    {
        QStringList result;
        for (const QString &entry : heard)
            result << (entry.startsWith(QStringLiteral("currentIndexChanged"))
                           ? entry
                           : QStringLiteral("item"));
        return result;
    }

    void expectReport()
    {
        m_expected << QStringLiteral("currentIndexChanged(%1)").arg(m_items.indexOf(m_current))
                   << QStringLiteral("item");
    }

    QString append()
    {
        ScrollAreaNGItem *const item = makeItem();
        m_list.listItemAppend(item);
        m_list.listItemAppend(item); // once only
        m_items.append(item);
        return QStringLiteral("append");
    }

    QString insert(int index)
    {
        ScrollAreaNGItem *const item = makeItem();
        m_list.listItemInsert(index, item);
        m_items.insert(qBound(0, index, m_items.size()), item);
        return QStringLiteral("insert at %1").arg(index);
    }

    QString move(ScrollAreaNGItem *item, int distance)
    {
        const int from = m_items.indexOf(item);
        const int to = from + distance;
        const bool moves = item && from >= 0 && to >= 0 && to < m_items.size();
        const bool moved =
            distance > 0 ? m_list.listItemMoveForward(item) : m_list.listItemMoveBackward(item);
        if (moves) {
            m_items.swapItemsAt(from, to);
            m_current = item;
            expectReport();
        }
        return QStringLiteral("move %1 by %2%3")
            .arg(from)
            .arg(distance)
            .arg(moved == moves ? QString() : QStringLiteral(", wrong answer"));
    }

    QString select(int index, ScrollAreaNGItem *item)
    {
        const int before = m_items.indexOf(m_current);
        const bool forced = m_random.bounded(4) == 0;
        m_list.listItemSetCurrentIndex(index, forced);
        m_current = item;
        if (forced || m_items.indexOf(m_current) != before)
            expectReport();
        return QStringLiteral("select %1, forced %2").arg(index).arg(forced);
    }

    List m_list;
    QRandomGenerator m_random;
    SignalRecorder m_recorder;
    Items m_items;
    Items m_taken;
    ScrollAreaNGItem *m_current = nullptr;
    ScrollAreaNGItem *m_checked = nullptr;
    QStringList m_expected;
};

} // namespace

Q_DECLARE_METATYPE(ScrollAreaNG::eLayoutStyle)
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

    void appendsAnItem_data();
    void appendsAnItem();
    void appendsAList();
    void insertsAnItem_data();
    void insertsAnItem();
    void ignoresNullAndItemsThatAreThere();
    void movesAnItem_data();
    void movesAnItem();
    void movesNothingAtTheEnds();

    void makesAnItemCurrent();
    void staysSilentAboutTheSameItem();
    void clearsTheCurrentItem();
    void scrollsTheCurrentItemIntoView_data();
    void scrollsTheCurrentItemIntoView();
    void checksAnItem();
    void takesRequestsOfItems();
    void tellsItemsOfTheirStateInOrder();

    void deletesAnItem();
    void keepsTheCurrentItemUntilItIsDeleted();
    void deletesAll();
    void handsAnItemBack();
    void addsATakenItemAgain();
    void tellsOfScrolling();
    void answersBadIndices_data();
    void answersBadIndices();

    void livesWithItemsDeletedBehindItsBack();
    void letsListenersChangeTheList_data();
    void letsListenersChangeTheList();
    void mayBeDeletedWhileItReports();
    void behavesLikeItsModel_data();
    void behavesLikeItsModel();
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
    QLayout *const outer = area.widget()->layout();
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->count(), 2);
    QVERIFY(outer->itemAt(1)->spacerItem());
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
        const char *const names[] = { "row", "column", "flow" };
        QTest::addRow("%s, first", names[style]) << style << 0 << 0;
        QTest::addRow("%s, between", names[style]) << style << 2 << 2;
        QTest::addRow("%s, last", names[style]) << style << 3 << 3;
        QTest::addRow("%s, far before", names[style]) << style << -5 << 0;
        QTest::addRow("%s, far behind", names[style]) << style << 1000 << 3;
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

void tst_ScrollAreaNG::movesNothingAtTheEnds()
{
    List area(column, 3);
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

void tst_ScrollAreaNG::tellsOfScrolling()
{
    List area(column, 30);
    QApplication::processEvents();
    int scrolled = 0;
    int heard = 0;
    connect(&area, &ScrollAreaNG::contentScrolled, this, [&] { ++scrolled; });
    connect(area.listItemAt(5), &ScrollAreaNGItem::contentScrolled, this, [&] { ++heard; });

    area.verticalScrollBar()->setValue(40);

    QVERIFY(scrolled >= 1);
    QCOMPARE(heard, scrolled);
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

void tst_ScrollAreaNG::livesWithItemsDeletedBehindItsBack()
{
    for (const auto style : { row, column, flow }) {
        List area(style, 5);
        area.listItemSetCurrentIndex(1);
        area.listItemSetChecked(area.listItemAt(1));
        delete area.listItemAt(1);
        delete area.listItemAt(3);

        QCOMPARE(area.listItemCount(), 5);
        QCOMPARE(area.listItemAt(1), nullptr);
        QCOMPARE(area.listItemCurrent(), nullptr);
        area.refreshItemStates();
        area.listItemInsert(0, makeItem());
        QVERIFY(area.listItemMoveForward(area.listItemFirst()));
        area.listItemSetCurrentIndex(2); // an entry without an item
        area.listItemTakeAt(2);
        area.listItemDeleteIndex(3);
        area.resize(300, 200);
        QApplication::processEvents();
        area.listItemDeleteAll();
        QCOMPARE(area.listItemCount(), 0);
    }
}

void tst_ScrollAreaNG::letsListenersChangeTheList_data()
{
    QTest::addColumn<int>("change");

    QTest::newRow("delete all") << 0;
    QTest::newRow("delete one") << 1;
    QTest::newRow("insert") << 2;
    QTest::newRow("move") << 3;
    QTest::newRow("take") << 4;
    QTest::newRow("select") << 5;
}

void tst_ScrollAreaNG::letsListenersChangeTheList()
{
    QFETCH(int, change);
    List area(column, 6);
    QList<QPointer<ScrollAreaNGItem>> taken;
    int budget = 20; // a listener that answers each signal would never end
    const auto act = [&] {
        if (--budget < 0)
            return;
        switch (change) {
        case 0:
            area.listItemDeleteAll();
            break;
        case 1:
            area.listItemDeleteIndex(0);
            break;
        case 2:
            area.listItemInsert(0, makeItem());
            break;
        case 3:
            area.listItemMoveForward(area.listItemFirst());
            break;
        case 4:
            taken << area.listItemTakeAt(1);
            break;
        default:
            area.listItemSetCurrentIndex(budget % 4);
        }
    };
    for (int i = 0; i < area.listItemCount(); ++i) {
        ScrollAreaNGItem *const item = area.listItemAt(i);
        connect(item, &ScrollAreaNGItem::selectionChanged, &area, act);
        connect(item, &ScrollAreaNGItem::checkedChanged, &area, act);
        connect(item, &ScrollAreaNGItem::indexChanged, &area, act);
    }
    connect(&area, &ScrollAreaNG::currentIndexChanged, &area, act);
    connect(&area, &ScrollAreaNG::currentItemChanged, &area, act);

    area.listItemSetCurrentIndex(1);
    area.listItemSetChecked(area.listItemAt(0));
    area.listItemMoveForward(area.listItemFirst());
    area.listItemAppend(makeItem());
    area.listItemDelete(area.listItemLast());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    budget = 0;
    area.refreshItemStates();

    const Items items = area.inList();
    QCOMPARE(area.inLayout(), items);
    for (int i = 0; i < items.size(); ++i)
        QCOMPARE(items.at(i)->index(), i);
}

void tst_ScrollAreaNG::mayBeDeletedWhileItReports()
{
    for (int event = 0; event < 3; ++event) {
        QPointer<List> area = new List(column, 3);
        const auto vanish = [area] { delete area; };
        if (event == 0)
            connect(area.data(), &ScrollAreaNG::currentIndexChanged, this, vanish);
        else if (event == 1)
            connect(area.data(), &ScrollAreaNG::currentItemChanged, this, vanish);
        else
            connect(area->listItemAt(1), &ScrollAreaNGItem::selectionChanged, this, vanish);

        area->listItemSetCurrentIndex(1);

        QVERIFY(area.isNull());
    }
}

void tst_ScrollAreaNG::behavesLikeItsModel_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<quint32>("seed");

    const char *const names[] = { "row", "column", "flow" };
    for (const auto style : { row, column, flow }) {
        for (quint32 seed = 1; seed <= 3; ++seed)
            QTest::addRow("%s, seed %u", names[style], seed) << style << seed;
    }
}

void tst_ScrollAreaNG::behavesLikeItsModel()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    QFETCH(quint32, seed);
    Pair pair(style, seed);

    const QString difference = walkTogether(pair, 400);

    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

PELORIN_TEST_MAIN(tst_ScrollAreaNG)
#include "tst_scrollareang.moc"
