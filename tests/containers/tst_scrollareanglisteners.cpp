#include "tests/containers/ItemList.h"
#include "tests/support/TestCase.h"

#include <QPointer>
#include <QScrollBar>
#include <QTimer>

#include <functional>
#include <utility>

using namespace ItemList;

namespace {

using Guarded = QPointer<List>;
using Action = std::function<void()>;

enum Moment {
    OfSelection,
    OfCheck,
    OfIndex,
    OfScrollingItem,
    OfCurrentIndex,
    OfCurrentItem,
    OfScrolling,
    OfTimer
};

enum Change {
    DeleteFirst,
    DeleteCurrent,
    DeleteAll,
    Insert,
    AppendTwo,
    Take,
    MoveForward,
    MoveBackward,
    SelectAnother,
    ClearCurrent,
    CheckAnother,
    DestroyItem,
    DestroyArea
};

template<typename Enum>
struct Named
{
    const char *name;
    Enum value;
};

constexpr Named<Moment> moments[] = { { "selectionChanged", OfSelection },
                                      { "checkedChanged", OfCheck },
                                      { "indexChanged", OfIndex },
                                      { "contentScrolled of an item", OfScrollingItem },
                                      { "currentIndexChanged", OfCurrentIndex },
                                      { "currentItemChanged", OfCurrentItem },
                                      { "contentScrolled", OfScrolling },
                                      { "a timer", OfTimer } };

constexpr Named<Change> changes[] = {
    { "delete the first", DeleteFirst }, { "delete the current", DeleteCurrent },
    { "delete all", DeleteAll },         { "insert", Insert },
    { "append two", AppendTwo },         { "take", Take },
    { "move forward", MoveForward },     { "move backward", MoveBackward },
    { "select another", SelectAnother }, { "clear the current", ClearCurrent },
    { "check another", CheckAnother },   { "destroy an item from outside", DestroyItem },
    { "destroy the area", DestroyArea }
};

/// Calls \a action at each signal of one kind.
void listen(const Guarded &area, Moment moment, const Action &action)
{
    const auto act = [action] { action(); };
    if (moment == OfCurrentIndex)
        QObject::connect(area, &ScrollAreaNG::currentIndexChanged, area, act);
    else if (moment == OfCurrentItem)
        QObject::connect(area, &ScrollAreaNG::currentItemChanged, area, act);
    else if (moment == OfScrolling)
        QObject::connect(area, &ScrollAreaNG::contentScrolled, area, act);
    for (ScrollAreaNGItem *item : area->inList()) {
        if (moment == OfSelection)
            QObject::connect(item, &ScrollAreaNGItem::selectionChanged, area, act);
        else if (moment == OfCheck)
            QObject::connect(item, &ScrollAreaNGItem::checkedChanged, area, act);
        else if (moment == OfIndex)
            QObject::connect(item, &ScrollAreaNGItem::indexChanged, area, act);
        else if (moment == OfScrollingItem)
            QObject::connect(item, &ScrollAreaNGItem::contentScrolled, area, act);
    }
}

void apply(const Guarded &area, Change change, Items &taken)
{
    switch (change) {
    case DeleteFirst:
        return area->listItemDelete(area->listItemFirst());
    case DeleteCurrent:
        return area->listItemDelete(area->listItemCurrent());
    case DeleteAll:
        return area->listItemDeleteAll();
    case Insert:
        return area->listItemInsert(0, makeItem());
    case AppendTwo:
        return area->listItemAppend(Items{ makeItem(), makeItem() });
    case Take:
        if (ScrollAreaNGItem *const item = area->listItemTakeAt(1)) {
            item->setParent(nullptr); // hidden by that, and the test's from now on
            taken << item;
        }
        return;
    case MoveForward:
        area->listItemMoveForward(area->listItemFirst());
        return;
    case MoveBackward:
        area->listItemMoveBackward(area->listItemLast());
        return;
    case SelectAnother:
        return area->listItemSetCurrentIndex((area->listItemCurrentIndex() + 1) % 3);
    case ClearCurrent:
        return area->listItemSetCurrent(nullptr);
    case CheckAnother:
        return area->listItemSetChecked(area->listItemLast());
    case DestroyItem: // never the one that is speaking
        delete area->listItemAt(4);
        return;
    case DestroyArea:
        delete area;
    }
}

/// Everything that a list does, as long as it is there.
void useAll(const Guarded &area, Items &taken)
{
    const std::function<void()> uses[] = {
        [&] { area->listItemSetCurrentIndex(1); },
        [&] { area->listItemSetChecked(area->listItemAt(2)); },
        [&] { area->listItemMoveForward(area->listItemFirst()); },
        [&] { area->listItemMoveBackward(area->listItemLast()); },
        [&] { area->listItemAppend(makeItem()); },
        [&] {
            area->listItemAppend(Items{ makeItem(), makeItem() });
        },
        [&] { area->listItemInsert(1, makeItem()); },
        [&] { area->listItemDelete(area->listItemAt(1)); },
        [&] { area->listItemDeleteIndex(0); },
        [&] {
            if (ScrollAreaNGItem *const item = area->listItemTakeAt(0)) {
                item->setParent(nullptr);
                taken << item;
            }
        },
        [&] { area->listItemSetCurrent(area->listItemLast(), true); },
        [&] { area->horizontalScrollBar()->setValue(area->horizontalScrollBar()->value() + 1); },
        [&] { area->verticalScrollBar()->setValue(area->verticalScrollBar()->value() + 1); },
        [&] { Q_EMIT area->contentScrolled(); },
        [&] { area->listItemSetCurrentIndex(0); },
        [&] { area->refreshItemStates(); },
    };
    for (const auto &use : uses) {
        if (area)
            use();
    }
}

/// Whether all places and states agree, with nothing left to tell.
QString disorder(const List &area)
{
    Items living = area.inList();
    living.removeAll(nullptr);
    if (area.inLayout() != living)
        return QStringLiteral("the layout has another order");
    int checked = 0;
    for (ScrollAreaNGItem *item : qAsConst(living)) {
        checked += int(item->checked());
        if (item->index() != area.listItemIndexOf(item))
            return QStringLiteral("an index is not told");
        if (item->selected() != (item == area.listItemCurrent()))
            return QStringLiteral("a selection is not told");
        if (item->isHidden())
            return QStringLiteral("an item is hidden");
    }
    return checked > 1 ? QStringLiteral("two are checked") : QString();
}

/// Item that notes what is said in the order it comes.
void note(QStringList &heard, List &area)
{
    QObject::connect(&area, &ScrollAreaNG::currentIndexChanged,
                     [&heard](int index) { heard << QStringLiteral("index %1").arg(index); });
    QObject::connect(&area, &ScrollAreaNG::currentItemChanged,
                     [&heard, &area](ScrollAreaNGItem *item) {
                         heard << QStringLiteral("item %1").arg(area.listItemIndexOf(item));
                     });
}

} // namespace

class tst_ScrollAreaNGListeners : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mayDoAnythingAtAnySignal_data();
    void mayDoAnythingAtAnySignal();
    void mayDestroyTheAreaAtEverySignal_data();
    void mayDestroyTheAreaAtEverySignal();
    void maySettleTheStatesByTakingNothing();
    void maySelectAnotherWhenTheIndexIsTold();
    void maySelectAnotherWhenTheItemIsTold();
    void mayMoveTheCurrentItemWhileItIsSelected();
    void mayTakeTheItemThatIsAdded_data();
    void mayTakeTheItemThatIsAdded();
    void mayDestroyTheItemThatIsAdded_data();
    void mayDestroyTheItemThatIsAdded();
    void mayDestroyTheAreaAsAnItemIsHidden();
    void mayDestroyItselfAsItIsHidden();
    void mayTakeItselfAsItGetsItsParent_data();
    void mayTakeItselfAsItGetsItsParent();
    void mayAddFromInsideOfAdding();
    void mayDestroyTheAreaAtAScrollEvent();
    void mayDestroyTheAreaWhenBothBarsMove_data();
    void mayDestroyTheAreaWhenBothBarsMove();
    void areNotReachedByAnAreaThatGoes();
};

void tst_ScrollAreaNGListeners::mayDoAnythingAtAnySignal_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("change");

    for (const auto style : { row, column, flow }) {
        for (const auto &moment : moments) {
            for (const auto &change : changes)
                QTest::addRow("%s, %s: %s", styleName(style), moment.name, change.name)
                    << style << int(moment.value) << int(change.value);
        }
    }
}

void tst_ScrollAreaNGListeners::mayDoAnythingAtAnySignal()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    QFETCH(int, moment);
    QFETCH(int, change);
    const Guarded area = new List(style, 6);
    QApplication::processEvents();
    Items taken;
    constexpr int often = 6; // one that answers each signal would never end
    int answers = 0;
    const auto answer = [&] {
        if (area && answers++ < often)
            apply(area, Change(change), taken);
    };
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, answer);

    listen(area, Moment(moment), answer);
    if (moment == OfTimer)
        timer.start(0);
    useAll(area, taken);

    answers = qMax(answers, often);
    if (area) {
        area->listItemSetCurrentIndex(0); // settles the rest, unanswered
        area->refreshItemStates();
        QCOMPARE(disorder(*area), QString());
    }
    QCOMPARE(area.isNull(), change == DestroyArea);
    QVERIFY(answers > 0);
    delete area;
    qDeleteAll(taken);
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaAtEverySignal_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<int>("moment");

    for (const auto style : { row, column, flow }) {
        for (const auto &moment : moments) {
            if (moment.value != OfTimer)
                QTest::addRow("%s, %s", styleName(style), moment.name)
                    << style << int(moment.value);
        }
    }
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaAtEverySignal()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    QFETCH(int, moment);
    bool isReached = true;
    int last = 0;
    for (; isReached; ++last) {
        const Guarded area = new List(style, 4);
        QApplication::processEvents();
        Items taken;
        int signal = 0;
        listen(area, Moment(moment), [&] {
            if (signal++ == last)
                delete area;
        });

        useAll(area, taken);

        isReached = area.isNull();
        delete area;
        qDeleteAll(taken);
    }

    QVERIFY(last > 1); // the first signal at least, and then none
}

void tst_ScrollAreaNGListeners::maySettleTheStatesByTakingNothing()
{
    List area(column, 3);
    area.listItemSetCurrentIndex(0);
    bool isSettled = false;
    connect(area.listItemAt(0), &ScrollAreaNGItem::selectionChanged, this, [&] {
        area.listItemTakeAt(99);
        isSettled = area.listItemAt(2)->selected();
    });

    area.listItemSetCurrentIndex(2);

    QVERIFY(isSettled);
}

void tst_ScrollAreaNGListeners::maySelectAnotherWhenTheIndexIsTold()
{
    List area(column, 3);
    QStringList heard;
    note(heard, area);
    connect(&area, &ScrollAreaNG::currentIndexChanged, this, [&area](int index) {
        if (index == 1)
            area.listItemSetCurrentIndex(2);
    });

    area.listItemSetCurrentIndex(1);

    // The rest of the first report names what is current by then.
    QCOMPARE(heard, (QStringList{ QStringLiteral("index 1"), QStringLiteral("index 2"),
                                  QStringLiteral("item 2"), QStringLiteral("item 2") }));
    QVERIFY(area.listItemAt(2)->selected());
    QVERIFY(!area.listItemAt(1)->selected());
}

void tst_ScrollAreaNGListeners::maySelectAnotherWhenTheItemIsTold()
{
    List area(column, 3);
    QStringList heard;
    note(heard, area);
    connect(&area, &ScrollAreaNG::currentItemChanged, this, [&area](ScrollAreaNGItem *item) {
        if (item == area.listItemAt(1))
            area.listItemSetCurrent(nullptr);
    });

    area.listItemSetCurrentIndex(1);

    QCOMPARE(heard, (QStringList{ QStringLiteral("index 1"), QStringLiteral("item 1"),
                                  QStringLiteral("index -1"), QStringLiteral("item -1") }));
    QCOMPARE(area.listItemCurrent(), nullptr);
}

void tst_ScrollAreaNGListeners::mayMoveTheCurrentItemWhileItIsSelected()
{
    List area(column, 3);
    ScrollAreaNGItem *const item = area.listItemAt(0);
    connect(item, &ScrollAreaNGItem::selectionChanged, this,
            [&area, item] { area.listItemMoveForward(item); });
    QStringList heard;
    note(heard, area);

    area.listItemSetCurrent(item);

    QCOMPARE(area.listItemIndexOf(item), 1);
    QCOMPARE(heard, (QStringList{ QStringLiteral("index 1"), QStringLiteral("item 1"),
                                  QStringLiteral("index 1"), QStringLiteral("item 1") }));
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayTakeTheItemThatIsAdded_data()
{
    QTest::addColumn<bool>("inserted");

    QTest::newRow("appended") << false;
    QTest::newRow("inserted") << true;
}

void tst_ScrollAreaNGListeners::mayTakeTheItemThatIsAdded()
{
    QFETCH(bool, inserted);
    List area(column, 3);
    const QScopedPointer<ScrollAreaNGItem> item(makeItem());
    connect(item.data(), &ScrollAreaNGItem::indexChanged, this, [&area, &item] {
        if (area.listItemTake(item.data()))
            item->setParent(nullptr);
    });

    if (inserted)
        area.listItemInsert(1, item.data());
    else
        area.listItemAppend(item.data());

    QCOMPARE(area.listItemCount(), 3);
    QVERIFY(item->isHidden()); // no window of its own
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayDestroyTheItemThatIsAdded_data()
{
    QTest::addColumn<QEvent::Type>("event");

    QTest::newRow("as it is hidden") << QEvent::HideToParent;
    QTest::newRow("as it gets its parent") << QEvent::ParentChange;
    QTest::newRow("as it is shown") << QEvent::ShowToParent;
}

void tst_ScrollAreaNGListeners::mayDestroyTheItemThatIsAdded()
{
    QFETCH(QEvent::Type, event);
    /// Takes the other one with it.
    class Jealous : public ScrollAreaNGItem
    {
    public:
        QEvent::Type when = QEvent::None;
        QPointer<ScrollAreaNGItem> other;

    protected:
        bool event(QEvent *event) override
        {
            if (event->type() == when)
                delete other;
            return ScrollAreaNGItem::event(event);
        }
    };
    List area(column, 2);
    auto *const first = new Jealous;
    makeItem(first);
    first->when = event;
    first->other = makeItem();

    area.listItemAppend(Items{ first, first->other });

    QVERIFY(first->other.isNull());
    Items living = area.inList();
    living.removeAll(nullptr);
    QCOMPARE(living.size(), 3);
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaAsAnItemIsHidden()
{
    class Hostile : public ScrollAreaNGItem
    {
    public:
        Guarded area;

    protected:
        bool event(QEvent *event) override
        {
            if (event->type() == QEvent::HideToParent)
                delete area;
            return ScrollAreaNGItem::event(event);
        }
    };
    for (int way = 0; way < 3; ++way) {
        const Guarded area = new List(column, 2);
        Hostile hostile;
        ScrollAreaNGItem other;
        hostile.area = area;

        if (way == 0)
            area->listItemAppend(&hostile);
        else if (way == 1)
            area->listItemAppend(Items{ &hostile, &other });
        else
            area->listItemInsert(0, &hostile);

        QVERIFY(area.isNull());
        QCOMPARE(hostile.parentWidget(), nullptr);
        QCOMPARE(other.parentWidget(), nullptr);
    }
}

void tst_ScrollAreaNGListeners::mayDestroyItselfAsItIsHidden()
{
    class Mayfly : public ScrollAreaNGItem
    {
    protected:
        bool event(QEvent *event) override
        {
            if (event->type() != QEvent::HideToParent)
                return ScrollAreaNGItem::event(event);
            delete this;
            return true;
        }
    };
    List area(column, 2);

    area.listItemAppend(new Mayfly);
    area.listItemAppend(Items{ new Mayfly });
    area.listItemInsert(0, new Mayfly);

    QCOMPARE(area.listItemCount(), 2);
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayTakeItselfAsItGetsItsParent_data()
{
    addStyles();
}

void tst_ScrollAreaNGListeners::mayTakeItselfAsItGetsItsParent()
{
    class Fickle : public ScrollAreaNGItem
    {
    public:
        List *area = nullptr;

    protected:
        bool event(QEvent *event) override
        {
            if (event->type() == QEvent::ParentChange)
                area->listItemTake(this);
            return ScrollAreaNGItem::event(event);
        }
    };
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    List area(style, 2);
    auto *const item = new Fickle;
    item->area = &area;

    area.listItemInsert(0, item);
    Q_EMIT item->listItemSetCurrent(area.listItemAt(1));

    QCOMPARE(area.listItemCount(), 2);
    QCOMPARE(area.listItemCurrent(), nullptr); // it is not heard
    QVERIFY(item->isHidden());
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayAddFromInsideOfAdding()
{
    /// Is in the list before the area has come to it.
    class Hasty : public ScrollAreaNGItem
    {
    public:
        List *area = nullptr;

    protected:
        void hideEvent(QHideEvent *) override
        {
            if (List *const to = std::exchange(area, nullptr))
                to->listItemAppend(this);
        }
    };
    QWidget shelf;
    List area(column, 2);
    auto *const item = new Hasty;
    makeItem(item);
    item->setParent(&shelf);
    shelf.show();
    item->area = &area;

    area.listItemInsert(0, item);

    QCOMPARE(area.inList().count(item), 1);
    QCOMPARE(disorder(area), QString());
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaAtAScrollEvent()
{
    Guarded area = new List(column, 3);
    connect(area.data(), &ScrollAreaNG::contentScrolled, this, [&area] { delete area; });
    QEvent scroll(QEvent::Scroll);

    QApplication::sendEvent(area->widget(), &scroll);

    QVERIFY(area.isNull());
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaWhenBothBarsMove_data()
{
    addStyles();
}

void tst_ScrollAreaNGListeners::mayDestroyTheAreaWhenBothBarsMove()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    Guarded area = new List(style, 8);
    for (ScrollAreaNGItem *item : area->inList())
        item->setFixedSize(400, 400); // so that neither way is there room
    QApplication::processEvents();
    int deleted = 0;
    connect(area.data(), &ScrollAreaNG::contentScrolled, this, [&] {
        ++deleted;
        delete area;
    });

    area->listItemSetCurrentIndex(7);

    QVERIFY(area.isNull());
    QCOMPARE(deleted, 1);
}

void tst_ScrollAreaNGListeners::areNotReachedByAnAreaThatGoes()
{
    /// Speaks to the last, as one that gives the selection away when it goes.
    class Talker : public ScrollAreaNGItem
    {
    public:
        QPointer<QScrollBar> bar;

        ~Talker() override
        {
            bar->setValue(bar->value() + 1);
            Q_EMIT listItemSetCurrent(nullptr, true);
            Q_EMIT listItemSetChecked(nullptr);
        }
    };
    auto *const area = new List(column, 2);
    auto *const talker = new Talker;
    talker->bar = area->verticalScrollBar();
    area->listItemInsert(0, makeItem(talker));
    QApplication::processEvents();
    QVERIFY(talker->bar->maximum() > 0);
    QStringList heard;
    note(heard, *area);
    connect(area, &ScrollAreaNG::contentScrolled, this,
            [&heard] { heard << QStringLiteral("scrolled"); });

    delete area;

    QCOMPARE(heard, QStringList());
}

PELORIN_TEST_MAIN(tst_ScrollAreaNGListeners)
#include "tst_scrollareanglisteners.moc"
