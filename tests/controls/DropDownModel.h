#ifndef PELORIN_TESTS_DROPDOWNMODEL_H
#define PELORIN_TESTS_DROPDOWNMODEL_H

#include <QString>
#include <QStringList>
#include <QVector>

#include <map>

/// What a DropDownNG does, told without any widget: a table of items, the box as the list of what
/// is visible of it, and the signals as text.
struct DropDownModel
{
    struct Item
    {
        bool visible;
        QString text;
        int userData; ///< 0 for none
    };

    std::map<int, Item> items;
    QVector<int> box; ///< the item indices of what is visible, by position
    int position = -1;
    int lastChoice = 0;
    int disabledIndex = 0;
    bool enabled = true;
    QStringList signalOrder;

    int count() const { return int(items.size()); }
    bool has(int index) const { return index >= 0 && index < count() && items.count(index) > 0; }
    QString textAt(int place) const { return place < 0 ? QString() : items.at(box.at(place)).text; }
    int currentIndex() const { return position < 0 ? -1 : box.at(position); }
    QString currentText() const { return textAt(position); }

    /// The position of the first visible \a text, or -1.
    int find(const QString &text) const
    {
        for (int i = 0; i < box.size(); ++i) {
            if (textAt(i) == text)
                return i;
        }
        return -1;
    }

    /// After every change of the items; \a before is the text that was current.
    void refresh(const QString &before)
    {
        box.clear();
        for (int i = 0; i < count(); ++i) {
            if (has(i) && items.at(i).visible)
                box.append(i);
        }
        const int found = find(before);
        const int first = box.isEmpty() ? -1 : 0;
        position = found >= 0 ? found : first;
    }

    void insert(int index, const QStringList &texts, int userData = 0)
    {
        const QString before = currentText();
        for (const QString &text : texts)
            items[index++] = { true, text, userData };
        refresh(before);
    }

    void add(const QStringList &texts)
    {
        const QString before = currentText();
        for (const QString &text : texts)
            items[count()] = { true, text, 0 };
        refresh(before);
    }

    void remove(int index)
    {
        if (index < 0 || index >= count())
            return;
        const QString before = currentText();
        items.erase(index);
        refresh(before);
    }

    void clear()
    {
        items.clear();
        refresh(QString());
    }

    template<class Change>
    void change(int index, Change apply)
    {
        if (!has(index))
            return;
        const QString before = currentText();
        apply(items.at(index));
        refresh(before);
    }

    void setCurrentIndex(int index)
    {
        const int place = box.indexOf(index);
        position = place >= 0 ? place : position;
    }

    /// By text or by the user: the application hears of it.
    void moveTo(int place)
    {
        if (place == position)
            return;
        position = place;
        if (enabled) {
            lastChoice = place;
            signalOrder << QStringLiteral("sigCurrentIndexChanged(%1)").arg(place);
        }
        signalOrder << QStringLiteral("sigCurrentTextChanged(\"%1\")").arg(currentText());
    }

    void setCurrentText(const QString &text)
    {
        const int place = find(text);
        if (place >= 0)
            moveTo(place);
    }

    /// A key on the closed box.
    void choose(int place)
    {
        if (!enabled || place < 0 || place >= box.size() || place == position)
            return;
        moveTo(place);
        signalOrder << QStringLiteral("sigActivated(%1)").arg(currentIndex())
                    << QStringLiteral("sigActivated(\"%1\")").arg(currentText());
    }

    void setEnabled(bool on)
    {
        if (on == enabled)
            return;
        enabled = on;
        setCurrentIndex(on ? lastChoice : disabledIndex);
    }
};

#endif
