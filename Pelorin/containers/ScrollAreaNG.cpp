#include "Pelorin/containers/ScrollAreaNG.h"

#include "Pelorin/containers/FlowLayout.h"
#include "Pelorin/containers/Position_p.h"
#include "Pelorin/containers/ScrollAreaNGContainer.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVariant>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr int visibleMargin = 50;

/// A box layout has no swap of its own; what it is asked to replace, it hands over.
void replaceIn(QLayout &layout, QWidget *from, QWidget *to)
{
    delete layout.replaceWidget(from, to, Qt::FindChildrenRecursively);
}

void swapIn(QLayout &layout, QWidget *left, QWidget *right)
{
    if (auto *flow = qobject_cast<FlowLayout *>(&layout)) {
        flow->swap(left, right);
        return;
    }
    const auto temporary = std::make_unique<QWidget>();
    replaceIn(layout, left, temporary.get());
    replaceIn(layout, right, left);
    replaceIn(layout, temporary.get(), right);
}

template<typename Box>
Box *makeBox(int margin, int spacing)
{
    auto *box = new Box;
    box->setContentsMargins(margin, margin, margin, margin);
    box->setSpacing(spacing);
    return box;
}

} // namespace

ScrollAreaNG::ScrollAreaNG(eLayoutStyle layoutStyle, eScrollBarColor scrollBarColor, int margin,
                           int spacing, Qt::ScrollBarPolicy scrollBarPolicy, QWidget *parent)
    : QScrollArea(parent)
    , m_layoutStyle(layoutStyle)
{
    const QLatin1String type =
        scrollBarColor == ScrollBarRed ? StyleType::scrollBarRed : StyleType::scrollBarGrey;
    horizontalScrollBar()->setProperty(StyleProperty::type, type);
    verticalScrollBar()->setProperty(StyleProperty::type, type);
    auto *container = new ScrollAreaNGContainer;
    container->setLayout(makeLayout(margin, spacing));
    setWidget(container);
    setPolicies(scrollBarPolicy);
    setWidgetResizable(true);
}

/// Items and their own signals may still speak while the area goes.
ScrollAreaNG::~ScrollAreaNG()
{
    disconnect(m_scrolling);
    for (const QPointer<ScrollAreaNGItem> &item : qAsConst(m_items)) {
        if (item)
            cutOff(*item);
    }
}

QLayout *ScrollAreaNG::makeLayout(int margin, int spacing)
{
    if (m_layoutStyle == LayoutHorizontal)
        return makeBoxes<QHBoxLayout>(margin, spacing);
    if (m_layoutStyle != LayoutFlow)
        return makeBoxes<QVBoxLayout>(margin, spacing);
    m_itemLayout = new FlowLayout(nullptr, margin, spacing, spacing);
    return m_itemLayout;
}

/// Makes the layout of the items, and the one round it that keeps them together at the start of a
/// row or a column.
template<typename Box>
QLayout *ScrollAreaNG::makeBoxes(int margin, int spacing)
{
    Box *const items = makeBox<Box>(margin, spacing);
    Box *const outer = makeBox<Box>(0, 0);
    outer->addLayout(items);
    outer->addStretch(0);
    m_itemLayout = items;
    return outer;
}

void ScrollAreaNG::setPolicies(Qt::ScrollBarPolicy along)
{
    const bool row = m_layoutStyle == LayoutHorizontal;
    setHorizontalScrollBarPolicy(row ? along : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(row ? Qt::ScrollBarAlwaysOff : along);
    const QScrollBar *const bar = row ? horizontalScrollBar() : verticalScrollBar();
    m_scrolling = connect(bar, &QScrollBar::valueChanged, this, &ScrollAreaNG::reportScrolled);
}

ScrollAreaNGItem *ScrollAreaNG::listItemAt(int index) const
{
    return m_items.value(index);
}

int ScrollAreaNG::listItemIndexOf(ScrollAreaNGItem *listItem) const
{
    return positionOf(listItem, m_items);
}

int ScrollAreaNG::listItemCurrentIndex() const
{
    return listItemIndexOf(m_currentItem);
}

ScrollAreaNGItem *ScrollAreaNG::listItemFirst() const
{
    return listItemAt(0);
}

ScrollAreaNGItem *ScrollAreaNG::listItemLast() const
{
    return listItemAt(m_items.size() - 1);
}

ScrollAreaNGItem *ScrollAreaNG::listItemTake(ScrollAreaNGItem *listItem)
{
    const int index = listItemIndexOf(listItem);
    if (index < 0)
        return nullptr;
    return listItemTakeAt(index);
}

ScrollAreaNGItem *ScrollAreaNG::listItemTakeAt(int index)
{
    const QPointer<ScrollAreaNGItem> item = listItemAt(index);
    if (index >= 0 && index < m_items.size())
        release(index);
    refreshItemStates();
    return item;
}

void ScrollAreaNG::listItemAppend(ScrollAreaNGItem *listItem)
{
    if (add(listItem))
        refreshAndShow(listItem);
}

void ScrollAreaNG::listItemAppend(QList<ScrollAreaNGItem *> listItems)
{
    const QPointer<ScrollAreaNG> self(this);
    const QList<QPointer<ScrollAreaNGItem>> guarded(listItems.cbegin(), listItems.cend());
    QList<QPointer<ScrollAreaNGItem>> added;
    for (const QPointer<ScrollAreaNGItem> &item : guarded) {
        if (self && add(item))
            added.append(item);
    }
    for (const QPointer<ScrollAreaNGItem> &item : qAsConst(added)) {
        if (self)
            showListed(item);
    }
    if (self)
        refreshItemStates();
}

void ScrollAreaNG::listItemInsert(int index, ScrollAreaNGItem *listItem)
{
    const int place = qBound(0, index, m_items.size());
    if (!add(listItem))
        return;
    for (int i = listItemIndexOf(listItem); i > place; --i)
        swapWithNext(i - 1);
    refreshAndShow(listItem);
}

/// At the end of the list, hidden. False if there is nothing to add, or nothing left of it: an item
/// may do anything when it is hidden or gets its parent.
bool ScrollAreaNG::add(ScrollAreaNGItem *listItem)
{
    if (!listItem || listItemIndexOf(listItem) >= 0)
        return false;
    const QPointer<ScrollAreaNG> self(this);
    const QPointer<ScrollAreaNGItem> item(listItem);
    item->setVisible(false);
    if (!self || !item || !m_itemLayout || listItemIndexOf(item) >= 0)
        return false;
    m_items.append(item);
    m_itemLayout->addWidget(item);
    if (!self)
        return false;
    if (listItemIndexOf(item) < 0) { // taken out again meanwhile
        if (item && m_itemLayout)
            m_itemLayout->removeWidget(item);
        return false;
    }
    connect(this, &ScrollAreaNG::contentScrolled, item, &ScrollAreaNGItem::contentScrolled);
    connect(item, &ScrollAreaNGItem::listItemSetCurrent, this, &ScrollAreaNG::listItemSetCurrent,
            Qt::UniqueConnection);
    connect(item, &ScrollAreaNGItem::listItemSetChecked, this, &ScrollAreaNG::listItemSetChecked,
            Qt::UniqueConnection);
    return true;
}

void ScrollAreaNG::refreshAndShow(ScrollAreaNGItem *listItem)
{
    const QPointer<ScrollAreaNG> self(this);
    const QPointer<ScrollAreaNGItem> item(listItem);
    refreshItemStates();
    if (self)
        showListed(item);
}

/// One that a listener has taken out by now is its new owner's to show.
void ScrollAreaNG::showListed(ScrollAreaNGItem *item)
{
    if (listItemIndexOf(item) >= 0)
        item->setVisible(true);
}

/// Takes the entry at \a index out of list and layout, and cuts it off from the area.
void ScrollAreaNG::release(int index)
{
    const QPointer<ScrollAreaNGItem> item = m_items.takeAt(index);
    if (!item)
        return;
    if (m_itemLayout)
        m_itemLayout->removeWidget(item);
    cutOff(*item);
}

/// In both directions, so that an item which is added again hears everything once.
void ScrollAreaNG::cutOff(ScrollAreaNGItem &item)
{
    disconnect(this, &ScrollAreaNG::contentScrolled, &item, &ScrollAreaNGItem::contentScrolled);
    disconnect(&item, nullptr, this, nullptr);
}

void ScrollAreaNG::listItemDelete(ScrollAreaNGItem *listItem)
{
    listItemDeleteIndex(listItemIndexOf(listItem));
}

void ScrollAreaNG::listItemDeleteIndex(int index)
{
    if (index < 0 || index >= m_items.size())
        return;
    const QPointer<ScrollAreaNGItem> item = m_items.at(index);
    release(index);
    if (item)
        item->deleteLater();
    refreshItemStates();
}

void ScrollAreaNG::listItemDeleteAll()
{
    m_currentItem = nullptr;
    while (!m_items.isEmpty()) {
        const QPointer<ScrollAreaNGItem> item = m_items.last();
        release(m_items.size() - 1);
        if (item)
            item->deleteLater();
    }
}

bool ScrollAreaNG::listItemMoveBackward(ScrollAreaNGItem *listItem)
{
    return move(listItem, -1);
}

bool ScrollAreaNG::listItemMoveForward(ScrollAreaNGItem *listItem)
{
    return move(listItem, 1);
}

bool ScrollAreaNG::move(ScrollAreaNGItem *item, int distance)
{
    const int from = listItemIndexOf(item);
    const int to = from + distance;
    if (from < 0 || to < 0 || to >= m_items.size())
        return false;
    swapWithNext(std::min(from, to));
    m_currentItem = item;
    const QPointer<ScrollAreaNG> self(this);
    refreshItemStates();
    if (self)
        reportCurrent();
    if (self)
        showCurrent();
    return true;
}

void ScrollAreaNG::swapWithNext(int index)
{
    QWidget *const left = m_items.at(index);
    QWidget *const right = m_items.at(index + 1);
    if (left && right && m_itemLayout) {
        swapIn(*m_itemLayout, left, right);
        m_itemLayout->invalidate();
    }
    m_items.swapItemsAt(index, index + 1);
}

void ScrollAreaNG::listItemSetCurrent(ScrollAreaNGItem *listItem, bool forced)
{
    const int before = listItemCurrentIndex();
    m_currentItem = listItemIndexOf(listItem) >= 0 ? listItem : nullptr;
    const QPointer<ScrollAreaNG> self(this);
    refreshItemStates();
    if (self && (forced || listItemCurrentIndex() != before))
        reportCurrent();
    if (self)
        showCurrent();
}

void ScrollAreaNG::listItemSetCurrentIndex(int currentIndex, bool forced)
{
    listItemSetCurrent(listItemAt(currentIndex), forced);
}

void ScrollAreaNG::reportCurrent()
{
    const QPointer<ScrollAreaNG> self(this);
    Q_EMIT currentIndexChanged(listItemCurrentIndex());
    if (self)
        Q_EMIT currentItemChanged(m_currentItem);
}

/// The layout has to be settled before an item is scrolled into view. The list is told of it when
/// both bars have moved, since Qt goes on to the second one though a listener has deleted the area.
void ScrollAreaNG::showCurrent()
{
    if (!m_currentItem)
        return;
    const QPointer<ScrollAreaNG> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!self || !m_currentItem || !widget())
        return;
    m_holdsScrolled = true;
    ensureWidgetVisible(m_currentItem, visibleMargin, visibleMargin);
    m_holdsScrolled = false;
    if (std::exchange(m_hasScrolled, false))
        Q_EMIT contentScrolled();
}

void ScrollAreaNG::reportScrolled()
{
    m_hasScrolled = m_holdsScrolled;
    if (!m_holdsScrolled)
        Q_EMIT contentScrolled();
}

void ScrollAreaNG::listItemSetChecked(ScrollAreaNGItem *listItem)
{
    m_checkedItem = listItemIndexOf(listItem) >= 0 ? listItem : nullptr;
    refreshItemStates();
}

void ScrollAreaNG::refreshItemStates()
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (!refreshSelected(i) || !refreshChecked(i) || !refreshIndex(i))
            return;
    }
}

/// The three of them look at the list afresh, since a listener may have changed it; false if one has
/// deleted the area.
bool ScrollAreaNG::refreshSelected(int index)
{
    ScrollAreaNGItem *const item = listItemAt(index);
    const bool selected = item && item == m_currentItem;
    if (!item || item->m_selected == selected)
        return true;
    const QPointer<ScrollAreaNG> self(this);
    item->m_selected = selected;
    item->update();
    Q_EMIT item->selectionChanged(selected);
    return !self.isNull();
}

bool ScrollAreaNG::refreshChecked(int index)
{
    ScrollAreaNGItem *const item = listItemAt(index);
    const bool checked = item && item == m_checkedItem;
    if (!item || item->m_checked == checked)
        return true;
    const QPointer<ScrollAreaNG> self(this);
    item->m_checked = checked;
    item->update();
    Q_EMIT item->checkedChanged(checked);
    return !self.isNull();
}

bool ScrollAreaNG::refreshIndex(int index)
{
    ScrollAreaNGItem *const item = listItemAt(index);
    if (!item || item->m_index == index)
        return true;
    const QPointer<ScrollAreaNG> self(this);
    item->m_index = index;
    item->update();
    Q_EMIT item->indexChanged(index);
    return !self.isNull();
}

bool ScrollAreaNG::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDone = QScrollArea::eventFilter(watched, event);
    if (event->type() != QEvent::Scroll)
        return isDone;
    const QPointer<ScrollAreaNG> self(this);
    Q_EMIT contentScrolled();
    return isDone || !self; // with the area goes the page that would be next
}
