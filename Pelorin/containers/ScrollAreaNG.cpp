#include "Pelorin/containers/ScrollAreaNG.h"

#include "Pelorin/containers/FlowLayout.h"
#include "Pelorin/containers/ScrollAreaNGContainer.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVariant>

#include <memory>

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

/// Makes the layout of the items, and the one round it that keeps them together at the start of a
/// row or a column.
QLayout *ScrollAreaNG::makeLayout(int margin, int spacing)
{
    if (m_layoutStyle == LayoutFlow) {
        m_itemLayout = new FlowLayout(nullptr, margin, spacing, spacing);
        return m_itemLayout;
    }
    const bool row = m_layoutStyle == LayoutHorizontal;
    const auto direction = row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    auto *items = new QBoxLayout(direction);
    items->setContentsMargins(margin, margin, margin, margin);
    items->setSpacing(spacing);
    m_itemLayout = items;
    auto *outer = new QBoxLayout(direction);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addLayout(items);
    outer->addStretch(0);
    return outer;
}

void ScrollAreaNG::setPolicies(Qt::ScrollBarPolicy along)
{
    const bool row = m_layoutStyle == LayoutHorizontal;
    setHorizontalScrollBarPolicy(row ? along : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(row ? Qt::ScrollBarAlwaysOff : along);
    const QScrollBar *const bar = row ? horizontalScrollBar() : verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &ScrollAreaNG::contentScrolled);
}

ScrollAreaNGItem *ScrollAreaNG::listItemAt(int index) const
{
    return m_items.value(index);
}

int ScrollAreaNG::listItemIndexOf(ScrollAreaNGItem *listItem) const
{
    return listItem ? m_items.indexOf(listItem) : -1;
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
    const QPointer<ScrollAreaNGItem> item = listItem;
    if (!add(listItem))
        return;
    refreshItemStates();
    if (item)
        item->setVisible(true);
}

void ScrollAreaNG::listItemAppend(QList<ScrollAreaNGItem *> listItems)
{
    QList<QPointer<ScrollAreaNGItem>> added;
    for (ScrollAreaNGItem *item : qAsConst(listItems)) {
        if (add(item))
            added.append(item);
    }
    const QPointer<ScrollAreaNG> self(this);
    for (const QPointer<ScrollAreaNGItem> &item : qAsConst(added)) {
        if (item)
            item->setVisible(true);
    }
    if (self)
        refreshItemStates();
}

void ScrollAreaNG::listItemInsert(int index, ScrollAreaNGItem *listItem)
{
    const QPointer<ScrollAreaNGItem> item = listItem;
    const int place = qBound(0, index, m_items.size());
    if (!add(listItem))
        return;
    for (int i = m_items.size() - 1; i > place; --i)
        swapWithNext(i - 1);
    refreshItemStates();
    if (item)
        item->setVisible(true);
}

/// At the end of the list, hidden. False if there is nothing to add.
bool ScrollAreaNG::add(ScrollAreaNGItem *item)
{
    if (!item || m_items.contains(item))
        return false;
    item->setVisible(false);
    m_items.append(item);
    m_itemLayout->addWidget(item);
    connect(this, &ScrollAreaNG::contentScrolled, item, &ScrollAreaNGItem::contentScrolled);
    connect(item, &ScrollAreaNGItem::listItemSetCurrent, this, &ScrollAreaNG::listItemSetCurrent,
            Qt::UniqueConnection);
    connect(item, &ScrollAreaNGItem::listItemSetChecked, this, &ScrollAreaNG::listItemSetChecked,
            Qt::UniqueConnection);
    return true;
}

/// Takes the entry at \a index out of list and layout, and cuts it off from the area.
void ScrollAreaNG::release(int index)
{
    const QPointer<ScrollAreaNGItem> item = m_items.takeAt(index);
    if (!item)
        return;
    m_itemLayout->removeWidget(item);
    disconnect(this, &ScrollAreaNG::contentScrolled, item, &ScrollAreaNGItem::contentScrolled);
    disconnect(item, nullptr, this, nullptr);
}

void ScrollAreaNG::listItemDelete(ScrollAreaNGItem *listItem)
{
    const int index = listItemIndexOf(listItem);
    if (index < 0)
        return;
    release(index);
    listItem->deleteLater();
    refreshItemStates();
}

void ScrollAreaNG::listItemDeleteIndex(int index)
{
    listItemDelete(listItemAt(index));
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
    if (left && right)
        swapIn(*m_itemLayout, left, right);
    m_itemLayout->invalidate();
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

/// The layout has to be settled before an item is scrolled into view.
void ScrollAreaNG::showCurrent()
{
    if (!m_currentItem)
        return;
    const QPointer<ScrollAreaNG> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (self && m_currentItem)
        ensureWidgetVisible(m_currentItem, visibleMargin, visibleMargin);
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
    if (event->type() == QEvent::Scroll)
        Q_EMIT contentScrolled();
    return QScrollArea::eventFilter(watched, event);
}
