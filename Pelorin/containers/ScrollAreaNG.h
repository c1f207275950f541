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
/// that the application deletes by itself leaves an entry that counts and is null, until
/// listItemDeleteIndex(), listItemTakeAt() or listItemDeleteAll() takes it out. It may not be handed
/// to the area any more. An item that stands in one area has to be taken out of it before it is
/// added to another one.
///
/// Null, an item that is in the list already, one that is not in it, and an index out of range are
/// ignored, unless an operation says otherwise.
///
/// A listener may change the list at any signal, or delete the area: what was begun goes on with the
/// list as it is then. Events are processed when the current item is scrolled into view, those of
/// mouse and keyboard excepted, so that timers and queued calls run inside of these operations.
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
    ~ScrollAreaNG() override;

    /// Null out of range, and for an item that was deleted from outside.
    ScrollAreaNGItem *listItemAt(int index) const;
    /// Counts the entries, those without an item too.
    int listItemCount() const { return m_items.size(); }
    /// The current item, also after it was taken out of the list; null without one.
    ScrollAreaNGItem *listItemCurrent() const { return m_currentItem; }
    /// -1 for an item that is not in the list.
    int listItemIndexOf(ScrollAreaNGItem *listItem) const;
    /// -1 without a current item, and for one that was taken out of the list.
    int listItemCurrentIndex() const;
    /// Null in an empty list, as is listItemLast().
    ScrollAreaNGItem *listItemFirst() const;
    ScrollAreaNGItem *listItemLast() const;

    /// Hands an item back to the caller, with its parent, visibility and state unchanged, and tells
    /// the others of theirs; null if it is not in the list. As after listItemDelete(), a current item
    /// stays the current one, and a checked one the checked.
    ScrollAreaNGItem *listItemTake(ScrollAreaNGItem *listItem);
    /// The same for the item at \a index. Out of range it only tells the items of their states.
    ScrollAreaNGItem *listItemTakeAt(int index);

    /// Tells each item what it is: selectionChanged(), checkedChanged(), indexChanged(), each if it
    /// has changed, item by item. The operations of the list do it by themselves.
    void refreshItemStates();

Q_SIGNALS:
    /// Another item became the current one, or the same by force; -1 for none.
    void currentIndexChanged(int index);
    /// Follows currentIndexChanged().
    void currentItemChanged(ScrollAreaNGItem *listItem);
    /// The bar along the list has moved, or the container was sent a scroll event. Each item is told
    /// by its own signal of this name.
    void contentScrolled();

public Q_SLOTS:
    /// Adds an item at the end: it is hidden, learns its state, and is shown.
    void listItemAppend(ScrollAreaNGItem *listItem);
    /// The same for many: all of them are shown first, and then learn their states.
    void listItemAppend(QList<ScrollAreaNGItem *> listItems);
    /// Adds an item before the one at \a index, which is limited to the entries that there are. The
    /// others learn their new indices; the current item stays, and no signal of the area says that its
    /// index is another.
    void listItemInsert(int index, ScrollAreaNGItem *listItem);

    /// Takes an item out and deletes it, when the event loop is reached. The current item stays the
    /// current one until then, and no signal says that it has gone.
    void listItemDelete(ScrollAreaNGItem *listItem);
    /// The same for the entry at \a index, also for one without an item.
    void listItemDeleteIndex(int index);
    /// Deletes all items as listItemDelete() does, from the last to the first. The list is without a
    /// current item from here on, and nobody is told.
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
    /// The same for the item at an index; one out of range clears it.
    void listItemSetCurrentIndex(int currentIndex, bool forced = false);

    /// Makes an item the checked one. An item that is not in the list clears it. Only the items are
    /// told, by checkedChanged().
    void listItemSetChecked(ScrollAreaNGItem *listItem);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLayout *makeLayout(int margin, int spacing);
    template<typename Box>
    QLayout *makeBoxes(int margin, int spacing);
    void setPolicies(Qt::ScrollBarPolicy along);

    bool add(ScrollAreaNGItem *listItem);
    void refreshAndShow(ScrollAreaNGItem *listItem);
    void showListed(ScrollAreaNGItem *item);
    void release(int index);
    void cutOff(ScrollAreaNGItem &item);
    bool move(ScrollAreaNGItem *item, int distance);
    void swapWithNext(int index);
    void reportCurrent();
    void showCurrent();
    void reportScrolled();

    bool refreshSelected(int index);
    bool refreshChecked(int index);
    bool refreshIndex(int index);

    eLayoutStyle m_layoutStyle;
    QPointer<ScrollAreaNGItem> m_currentItem;
    QPointer<ScrollAreaNGItem> m_checkedItem;
    QPointer<QLayout> m_itemLayout; ///< goes if the application sets another widget
    QList<QPointer<ScrollAreaNGItem>> m_items;
    QMetaObject::Connection m_scrolling;
    bool m_holdsScrolled = false; ///< contentScrolled() has to wait
    bool m_hasScrolled = false;   ///< and is due afterwards
};

#endif
