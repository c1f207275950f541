#include "Pelorin/containers/FlowLayout.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace {

/// Many rows of high items add up to more than an int holds.
int saturated(qint64 length)
{
    constexpr qint64 largest = std::numeric_limits<int>::max();
    return int(std::clamp(length, -largest, largest));
}

/// Where an item goes. So far out nothing can be seen, and a rectangle there still has an end that
/// fits an int.
QPoint corner(qint64 x, qint64 y)
{
    constexpr qint64 farthest = std::numeric_limits<int>::max() / 2;
    return QPoint(int(std::clamp(x, -farthest, farthest)), int(std::clamp(y, -farthest, farthest)));
}

/// The hint of an item, no larger than a widget can be.
QSize hintOf(const QLayoutItem &item)
{
    return item.sizeHint().boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

/// \a spacing of the layout or, if that is -1, what the style of the item's widget puts between two
/// buttons. Items without a widget take the style of the application.
int spacingAround(QLayoutItem &item, int spacing, Qt::Orientation orientation)
{
    if (spacing != -1)
        return spacing;
    const QWidget *widget = item.widget();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}

/// The margin that all four sides have in common, -1 if they differ.
int commonMargin(const QMargins &margins)
{
    const int margin = margins.left();
    return margins == QMargins(margin, margin, margin, margin) ? margin : -1;
}

} // namespace

FlowLayout::FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent)
    , m_hSpace(hSpacing)
    , m_vSpace(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing)
    : FlowLayout(nullptr, margin, hSpacing, vSpacing)
{}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_itemList);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    if (item)
        m_itemList.append(item);
}

void FlowLayout::insertItem(int index, QLayoutItem *item)
{
    if (!item)
        return;
    m_itemList.insert(std::clamp(index, 0, m_itemList.size()), item);
    invalidate();
}

void FlowLayout::swap(QWidget *first, QWidget *second)
{
    if (!first || !second || first == second)
        return;
    const auto find = [this](const QWidget *widget) {
        return std::find_if(m_itemList.begin(), m_itemList.end(),
                            [widget](QLayoutItem *item) { return item->widget() == widget; });
    };
    const auto firstPlace = find(first);
    const auto secondPlace = find(second);
    if (firstPlace == m_itemList.end() || secondPlace == m_itemList.end())
        return;
    std::iter_swap(firstPlace, secondPlace);
    invalidate();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_itemList.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    const bool isInside = index >= 0 && index < m_itemList.size();
    return isInside ? m_itemList.takeAt(index) : nullptr;
}

int FlowLayout::horizontalSpacing() const
{
    return m_hSpace >= 0 ? m_hSpace : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_vSpace >= 0 ? m_vSpace : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return Qt::Orientations();
}

int FlowLayout::heightForWidth(int width) const
{
    // The smallest int has no right edge.
    return doLayout(QRect(0, 0, std::max(width, -std::numeric_limits<int>::max()), 0), true);
}

QSize FlowLayout::minimumSize() const
{
    QSize largest; // -1 x -1
    for (const QLayoutItem *item : m_itemList)
        largest = largest.expandedTo(item->minimumSize());
    const qint64 margins = 2 * qint64(commonMargin(contentsMargins()));
    return QSize(saturated(largest.width() + margins), saturated(largest.height() + margins));
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, false);
}

/// Walks through the rows within \a rect, moves the items unless \a testOnly, and returns the
/// height that was used.
int FlowLayout::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = contentsMargins();
    const int hSpacing = horizontalSpacing();
    const int vSpacing = verticalSpacing();
    const qint64 rowStart = qint64(rect.x()) + margins.left();
    const qint64 rightLimit = qint64(rect.right()) - margins.right();
    qint64 x = rowStart;
    qint64 y = qint64(rect.y()) + margins.top();
    qint64 lineHeight = 0;
    for (QLayoutItem *item : m_itemList) {
        const QSize hint = hintOf(*item);
        // A row without height is as good as empty and takes the item, however wide.
        if (x + hint.width() - 1 > rightLimit && lineHeight > 0) {
            y += lineHeight + spacingAround(*item, vSpacing, Qt::Vertical);
            x = rowStart;
            lineHeight = 0;
        }
        if (!testOnly)
            item->setGeometry(QRect(corner(x, y), hint));
        x += qint64(hint.width()) + spacingAround(*item, hSpacing, Qt::Horizontal);
        lineHeight = std::max<qint64>(lineHeight, hint.height());
    }
    return saturated(y + lineHeight - rect.y() + margins.bottom());
}

int FlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    if (const auto *widget = qobject_cast<QWidget *>(parent()))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    if (const auto *layout = qobject_cast<QLayout *>(parent()))
        return layout->spacing();
    return -1;
}
