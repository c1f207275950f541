#ifndef PELORIN_CONTAINERS_SCROLLAREANG_H
#define PELORIN_CONTAINERS_SCROLLAREANG_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/containers/ScrollAreaNGItem.h"

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QLayout;

/// A scroll area that is a list of items at the same time, with one current item and one checked item,
/// which may be two different ones. The items stand in a row, a column or a flow, and can be moved.
/// Lists are expected to be short: an item that is inserted walks to its place.
///
/// The area owns its items from when they are added. They have to be deleted by its operations: one
/// that is deleted behind its back leaves an entry that counts and is null.
///
/// Null, an item that is in the list already, one that is not in it, and an index out of range are
/// ignored, unless an operation says otherwise. A listener may change the list at any signal.
class PELORIN_EXPORT ScrollAreaNG : public QScrollArea
{
    Q_OBJECT

public:
    enum eLayoutStyle : int { LayoutHorizontal = 0, LayoutVertical = 1, LayoutFlow = 2 };
    Q_ENUM(eLayoutStyle)

    /// How the style sheet draws the scroll bars; any other value counts as grey.
    enum eScrollBarColor : int { ScrollBarRed = 0, ScrollBarGrey = 1 };
    Q_ENUM(eScrollBarColor)

    /// \a margin round the items and \a spacing between them in pixels. \a scrollBarPolicy is that of
    /// the bar along the list; the other one is always off.
    ScrollAreaNG(eLayoutStyle layoutStyle, eScrollBarColor scrollBarColor, int margin, int spacing,
                 Qt::ScrollBarPolicy scrollBarPolicy, QWidget *parent = nullptr);

    /// Null out of range.
    ScrollAreaNGItem *listItemAt(int index) const;
    int listItemCount() const { return m_items.size(); }
    /// The current item, also after it was taken out of the list; null without one.
    ScrollAreaNGItem *listItemCurrent() const { return m_currentItem; }
    /// -1 for an item that is not in the list.
    int listItemIndexOf(ScrollAreaNGItem *listItem) const;
    int listItemCurrentIndex() const;
    ScrollAreaNGItem *listItemFirst() const;
    ScrollAreaNGItem *listItemLast() const;

    /// Hands an item back to the caller, with its parent unchanged; null if it is not in the list.
    ScrollAreaNGItem *listItemTake(ScrollAreaNGItem *listItem);
    ScrollAreaNGItem *listItemTakeAt(int index);

    /// Tells each item what it is: selectionChanged(), checkedChanged(), indexChanged(), each if it
    /// has changed, item by item. The operations of the list do it by themselves.
    void refreshItemStates();

Q_SIGNALS:
    /// Another item became the current one, or the same by force; -1 for none.
    void currentIndexChanged(int index);
    /// Follows currentIndexChanged().
    void currentItemChanged(ScrollAreaNGItem *listItem);
    void contentScrolled();

public Q_SLOTS:
    void listItemAppend(ScrollAreaNGItem *listItem);
    void listItemAppend(QList<ScrollAreaNGItem *> listItems);
    /// Before the item at \a index, which is limited to the entries that there are.
    void listItemInsert(int index, ScrollAreaNGItem *listItem);

    /// Takes an item out and deletes it, when the event loop is reached. The current item stays the
    /// current one until then, and no signal says that it has gone.
    void listItemDelete(ScrollAreaNGItem *listItem);
    void listItemDeleteIndex(int index);
    /// Without a current item from here on, in silence.
    void listItemDeleteAll();

    /// Changes places with the item before, or behind: the moved item becomes the current one,
    /// currentIndexChanged() and currentItemChanged() say so, and it is scrolled into view. False at
    /// the end of the list, where nothing happens.
    bool listItemMoveBackward(ScrollAreaNGItem *listItem);
    bool listItemMoveForward(ScrollAreaNGItem *listItem);

    /// Makes an item the current one, and scrolls it into view. An item that is not in the list, null
    /// included, clears it. Emits currentIndexChanged() and currentItemChanged() if the index has
    /// changed, or if \a forced.
    void listItemSetCurrent(ScrollAreaNGItem *listItem, bool forced = false);
    void listItemSetCurrentIndex(int currentIndex, bool forced = false);

    /// Makes an item the checked one. An item that is not in the list clears it.
    void listItemSetChecked(ScrollAreaNGItem *listItem);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLayout *makeLayout(int margin, int spacing);
    void setPolicies(Qt::ScrollBarPolicy along);

    bool add(ScrollAreaNGItem *item);
    void release(int index);
    bool move(ScrollAreaNGItem *item, int distance);
    void swapWithNext(int index);
    void reportCurrent();
    void showCurrent();

    bool refreshSelected(int index);
    bool refreshChecked(int index);
    bool refreshIndex(int index);

    eLayoutStyle m_layoutStyle;
    QPointer<ScrollAreaNGItem> m_currentItem;
    QPointer<ScrollAreaNGItem> m_checkedItem;
    QLayout *m_itemLayout = nullptr;
    QList<QPointer<ScrollAreaNGItem>> m_items;
};

#endif
