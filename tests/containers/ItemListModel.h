#ifndef PELORIN_TESTS_ITEMLISTMODEL_H
#define PELORIN_TESTS_ITEMLISTMODEL_H

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// What an item list is, without a widget: items are numbers, and what they and the list say is
/// written down as "3.index 2" or "current item 3".
struct ItemListModel
{
    static constexpr int none = -1;

    struct State
    {
        bool selected = false;
        bool checked = false;
        int index = -1;
    };

    QList<int> items;
    QMap<int, State> states; ///< of all items that live, in the list or not
    int current = none;
    int checked = none;
    QStringList heard;

    int currentIndex() const { return items.indexOf(current); }
    int at(int index) const { return items.value(index, none); }
    bool has(int item) const { return items.contains(item); }

    void insert(int index, const QList<int> &added)
    {
        int place = qBound(0, index, items.size());
        for (const int item : added) {
            states[item]; // as it was, if it was here before
            items.insert(place++, item);
        }
        refresh();
    }

    void take(int item)
    {
        items.removeOne(item);
        refresh();
    }

    void clear()
    {
        current = none;
        items.clear();
    }

    void destroy(int item)
    {
        states.remove(item);
        current = current == item ? none : current;
        checked = checked == item ? none : checked;
    }

    bool move(int item, int distance)
    {
        const int from = items.indexOf(item);
        const int to = from + distance;
        if (from < 0 || to < 0 || to >= items.size())
            return false;
        items.swapItemsAt(from, to);
        current = item;
        refresh();
        report();
        return true;
    }

    void select(int item, bool forced)
    {
        const int before = currentIndex();
        current = has(item) ? item : none;
        refresh();
        if (forced || currentIndex() != before)
            report();
    }

    void check(int item)
    {
        checked = has(item) ? item : none;
        refresh();
    }

    void refresh()
    {
        for (int i = 0; i < items.size(); ++i) {
            const int item = items.at(i);
            State &state = states[item];
            say(item, QStringLiteral("selected"), state.selected, item == current);
            say(item, QStringLiteral("checked"), state.checked, item == checked);
            say(item, QStringLiteral("index"), state.index, i);
        }
    }

private:
    template<typename Value>
    void say(int item, const QString &what, Value &stored, Value value)
    {
        if (stored == value)
            return;
        stored = value;
        heard << QStringLiteral("%1.%2 %3").arg(item).arg(what).arg(int(value));
    }

    void report()
    {
        heard << QStringLiteral("current index %1").arg(currentIndex())
              << QStringLiteral("current item %1").arg(current);
    }
};

#endif
