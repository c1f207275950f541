#include "tests/containers/ItemList.h"
#include "tests/containers/ItemListModel.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/TestCase.h"

#include <QPointer>
#include <QRandomGenerator>

using namespace ItemList;

namespace {

/// A list and its model under random operations, good and bad.
class Pair
{
public:
    Pair(ScrollAreaNG::eLayoutStyle style, quint32 seed)
        : m_list(style)
        , m_random(seed)
    {
        QObject::connect(&m_list, &ScrollAreaNG::currentIndexChanged, [this](int index) {
            m_heard << QStringLiteral("current index %1").arg(index);
        });
        QObject::connect(&m_list, &ScrollAreaNG::currentItemChanged,
                         [this](ScrollAreaNGItem *item) {
                             m_heard << QStringLiteral("current item %1").arg(number(item));
                         });
    }

    ~Pair()
    {
        for (const int item : m_model.states.keys()) {
            if (!m_model.has(item))
                delete widget(item);
        }
    }

    QString step()
    {
        m_heard.clear();
        m_model.heard.clear();
        const int index = m_random.bounded(-2, m_model.items.size() + 2);
        const int item = m_random.bounded(8) == 0 ? outside() : m_model.at(index);
        switch (m_random.bounded(14)) {
        case 0:
            return append();
        case 1:
            return appendSeveral();
        case 2:
        case 3:
            return insert(index);
        case 4:
            return remove(item);
        case 5:
            return removeAt(index);
        case 6:
            return take(index);
        case 7:
            return move(item, 1);
        case 8:
            return move(item, -1);
        case 9:
            m_list.listItemSetChecked(widget(item));
            m_model.check(item);
            return QStringLiteral("check %1").arg(item);
        case 10:
            return request(item);
        case 11:
            return m_random.bounded(6) == 0 ? clear() : scroll();
        case 12:
            return select(item);
        default:
            return selectAt(index);
        }
    }

    QString difference()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        forgetDeleted();
        if (!m_wrongAnswer.isEmpty())
            return m_wrongAnswer;
        if (m_heard != m_model.heard)
            return QStringLiteral("signals: %1\nrather than %2")
                .arg(m_heard.join(QStringLiteral(", ")), m_model.heard.join(QStringLiteral(", ")));
        const QString places = differentPlaces();
        return places.isEmpty() ? differentStates() : places;
    }

private:
    static int number(const ScrollAreaNGItem *item)
    {
        return item ? item->objectName().toInt() : ItemListModel::none;
    }

    static QList<int> numbers(const Items &items)
    {
        QList<int> result;
        for (const ScrollAreaNGItem *item : items)
            result << number(item);
        return result;
    }

    ScrollAreaNGItem *widget(int item) const { return m_widgets.value(item); }

    /// An item that was taken out, or null.
    int outside()
    {
        for (const int item : m_model.states.keys()) {
            if (!m_model.has(item))
                return item;
        }
        return ItemListModel::none;
    }

    int make()
    {
        ScrollAreaNGItem *const item = makeItem();
        const int name = m_made++;
        item->setObjectName(QString::number(name));
        const auto write = [this, name](const QString &what, int value) {
            m_heard << QStringLiteral("%1.%2 %3").arg(name).arg(what).arg(value);
        };
        QObject::connect(item, &ScrollAreaNGItem::selectionChanged,
                         [write](bool on) { write(QStringLiteral("selected"), on); });
        QObject::connect(item, &ScrollAreaNGItem::checkedChanged,
                         [write](bool on) { write(QStringLiteral("checked"), on); });
        QObject::connect(item, &ScrollAreaNGItem::indexChanged,
                         [write](int index) { write(QStringLiteral("index"), index); });
        QObject::connect(item, &ScrollAreaNGItem::contentScrolled,
                         [this, name] { ++m_scrolled[name]; });
        m_widgets.insert(name, item);
        return name;
    }

    /// A new one, or one that was here before.
    int makeOrReuse()
    {
        const int old = m_random.bounded(2) == 0 ? outside() : ItemListModel::none;
        return old == ItemListModel::none ? make() : old;
    }

    QString append()
    {
        const int item = makeOrReuse();
        m_list.listItemAppend(widget(item));
        m_list.listItemAppend(widget(item)); // once only
        m_model.insert(m_model.items.size(), { item });
        return QStringLiteral("append %1").arg(item);
    }

    QString appendSeveral()
    {
        const int first = makeOrReuse();
        const int second = make();
        m_list.listItemAppend(
            Items{ widget(first), nullptr, widget(second), m_list.listItemFirst(), widget(first) });
        m_model.insert(m_model.items.size(), { first, second });
        return QStringLiteral("append %1 and %2").arg(first).arg(second);
    }

    QString insert(int index)
    {
        const int item = makeOrReuse();
        m_list.listItemInsert(index, widget(item));
        m_model.insert(index, { item });
        return QStringLiteral("insert %1 at %2").arg(item).arg(index);
    }

    QString remove(int item)
    {
        m_list.listItemDelete(widget(item));
        if (m_model.has(item))
            m_model.take(item);
        return QStringLiteral("delete %1").arg(item);
    }

    QString removeAt(int index)
    {
        m_list.listItemDeleteIndex(index);
        if (m_model.at(index) != ItemListModel::none)
            m_model.take(m_model.at(index));
        return QStringLiteral("delete the one at %1").arg(index);
    }

    QString take(int index)
    {
        const int item = m_model.at(index);
        const bool byIndex = m_random.bounded(2) == 0;
        ScrollAreaNGItem *const taken =
            byIndex ? m_list.listItemTakeAt(index) : m_list.listItemTake(widget(item));
        if (number(taken) != item)
            m_wrongAnswer = QStringLiteral("took %1").arg(number(taken));
        if (byIndex || item != ItemListModel::none)
            m_model.take(item);
        return QStringLiteral("take the one at %1").arg(index);
    }

    QString clear()
    {
        m_list.listItemDeleteAll();
        m_model.clear();
        return QStringLiteral("delete all");
    }

    QString move(int item, int distance)
    {
        const bool moved = distance > 0 ? m_list.listItemMoveForward(widget(item))
                                        : m_list.listItemMoveBackward(widget(item));
        if (m_model.move(item, distance) != moved)
            m_wrongAnswer = QStringLiteral("answer %1").arg(moved);
        return QStringLiteral("move %1 by %2").arg(item).arg(distance);
    }

    QString select(int item)
    {
        const bool forced = m_random.bounded(4) == 0;
        m_list.listItemSetCurrent(widget(item), forced);
        m_model.select(item, forced);
        return QStringLiteral("select %1, forced %2").arg(item).arg(forced);
    }

    QString selectAt(int index)
    {
        const bool forced = m_random.bounded(4) == 0;
        m_list.listItemSetCurrentIndex(index, forced);
        m_model.select(m_model.at(index), forced);
        return QStringLiteral("select the one at %1, forced %2").arg(index).arg(forced);
    }

    /// From the item itself, which is not heard if it stands outside.
    QString request(int item)
    {
        if (!widget(item))
            return QStringLiteral("no request");
        Q_EMIT widget(item)->listItemSetCurrent(widget(item));
        Q_EMIT widget(item)->listItemSetChecked(widget(item));
        if (m_model.has(item)) {
            m_model.select(item, false);
            m_model.check(item);
        }
        return QStringLiteral("request of %1").arg(item);
    }

    QString scroll()
    {
        m_scrolled.clear();
        Q_EMIT m_list.contentScrolled();
        QMap<int, int> expected;
        for (const int item : qAsConst(m_model.items))
            expected[item] = 1;
        if (m_scrolled != expected)
            m_wrongAnswer = QStringLiteral("heard of scrolling other than once");
        return QStringLiteral("scroll");
    }

    void forgetDeleted()
    {
        for (const int item : m_model.states.keys()) {
            if (!widget(item))
                m_model.destroy(item);
        }
    }

    QString differentPlaces() const
    {
        if (numbers(m_list.inList()) != m_model.items)
            return QStringLiteral("list");
        if (numbers(m_list.inLayout()) != m_model.items)
            return QStringLiteral("layout");
        if (m_list.listItemCurrentIndex() != m_model.currentIndex())
            return QStringLiteral("current index");
        if (number(m_list.listItemCurrent()) != m_model.current)
            return QStringLiteral("current item");
        const bool ends = number(m_list.listItemFirst()) == m_model.at(0)
                          && number(m_list.listItemLast()) == m_model.at(m_model.items.size() - 1);
        return ends ? QString() : QStringLiteral("ends");
    }

    QString differentStates() const
    {
        for (auto each = m_model.states.cbegin(); each != m_model.states.cend(); ++each) {
            const ScrollAreaNGItem *const item = widget(each.key());
            const ItemListModel::State state = each.value();
            if (item->index() != state.index || item->selected() != state.selected
                || item->checked() != state.checked || item->isHidden())
                return QStringLiteral("state of %1").arg(each.key());
            if (m_list.listItemIndexOf(widget(each.key())) != m_model.items.indexOf(each.key()))
                return QStringLiteral("index of %1").arg(each.key());
        }
        return QString();
    }

    List m_list;
    ItemListModel m_model;
    QRandomGenerator m_random;
    QMap<int, QPointer<ScrollAreaNGItem>> m_widgets;
    QMap<int, int> m_scrolled;
    QStringList m_heard;
    QString m_wrongAnswer;
    int m_made = 0;
};

} // namespace

class tst_ScrollAreaNGModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void behavesLikeItsModel_data();
    void behavesLikeItsModel();
};

void tst_ScrollAreaNGModel::behavesLikeItsModel_data()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");
    QTest::addColumn<quint32>("seed");

    for (const auto style : { row, column, flow }) {
        for (quint32 seed = 1; seed <= 4; ++seed)
            QTest::addRow("%s, seed %u", styleName(style), seed) << style << seed;
    }
}

void tst_ScrollAreaNGModel::behavesLikeItsModel()
{
    QFETCH(ScrollAreaNG::eLayoutStyle, style);
    QFETCH(quint32, seed);
    Pair pair(style, seed);

    const QString difference = walkTogether(pair, 800);

    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

PELORIN_TEST_MAIN(tst_ScrollAreaNGModel)
#include "tst_scrollareangmodel.moc"
