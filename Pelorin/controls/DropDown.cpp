#include "Pelorin/controls/DropDown.h"

#include "Pelorin/controls/FixedSize_p.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

/// A layout is invalid after each setAlignment(), also when nothing changes.
void keepFromStretching(QLayout &layout, QLabel *part)
{
    constexpr Qt::Alignment place = Qt::AlignLeft | Qt::AlignVCenter;
    const int index = layout.indexOf(part);
    if (index >= 0 && layout.itemAt(index)->alignment() != place)
        layout.setAlignment(part, place);
}

/// Gives \a row the size that its parts need now, and tells whether that is a new one. For a row
/// asks for the size that its parts have at the moment: stretched by the layout to the width of the
/// list, they would make it wider each time that it is asked.
bool fit(IconLabel &row)
{
    constexpr int gaps = 16; // as a row has it in its size
    QSize size(gaps, 0);
    bool changed = false;
    const auto parts = row.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *part : parts) {
        const QSize needed = part->isHidden() ? QSize(0, 0) : part->sizeHint();
        size = QSize(size.width() + needed.width(), std::max(size.height(), needed.height()));
        keepFromStretching(*row.layout(), part);
        changed = changed || part->size() != part->size().boundedTo(needed);
        part->resize(part->size().boundedTo(needed));
    }
    // The layout adds a distance between text and icon.
    size.rwidth() = boundedLength(std::max(size.width(), row.layout()->totalMinimumSize().width()));
    changed = changed || row.minimumSize() != size;
    row.setMinimumSize(size);
    if (changed)
        row.updateGeometry();
    return changed;
}

} // namespace

DropDown::DropDown(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_frame(new QFrame(this))
{
    setMinimumSize(80, 40);
    setAttribute(Qt::WA_TranslucentBackground); // the sheet makes the frame's corners round
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_frame);
}

void DropDown::addItem(const QString &text)
{
    appendItem(new IconLabel(text));
}

void DropDown::addItem(const QString &text, const QString &iconPath)
{
    auto *added = new IconLabel(text);
    added->setIcon(iconPath);
    appendItem(added);
}

void DropDown::setItemText(int index, const QString &text)
{
    if (IconLabel *const found = item(index))
        found->setText(text);
}

QString DropDown::itemText(int index) const
{
    const IconLabel *const found = item(index);
    return found ? found->text() : QString();
}

void DropDown::setIcon(int index, const QString &iconPath)
{
    if (IconLabel *const found = item(index))
        found->setIcon(iconPath);
}

void DropDown::setItemVisibility(int index, bool visible)
{
    if (IconLabel *const found = item(index)) {
        found->setVisible(visible);
        found->setHasVisibility(visible);
    }
}

bool DropDown::hasItemVisibility(int index) const
{
    const IconLabel *const found = item(index);
    return found && found->hasVisibility();
}

bool DropDown::isItemVisible(int index) const
{
    const IconLabel *const found = item(index);
    return found && found->isVisible();
}

void DropDown::showIcons(IconLabel::IconDisplay display)
{
    m_iconDisplay = display;
    for (const QPointer<IconLabel> &each : qAsConst(m_items)) {
        if (each)
            each->setIconDisplay(display);
    }
}

QSize DropDown::sizeHint() const
{
    ensurePolished(); // the sheet says how large a text is
    bool changed = false;
    for (const QPointer<IconLabel> &each : m_items)
        changed = (each && fit(*each)) || changed;
    if (changed)
        m_frame->updateGeometry();
    return QWidget::sizeHint();
}

void DropDown::clear()
{
    const QList<QPointer<IconLabel>> removed = std::exchange(m_items, {});
    for (const QPointer<IconLabel> &each : removed)
        delete each;
    refresh();
}

bool DropDown::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible() && isWindow()) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false); // the next show() has to do it again
    }
    return handled;
}

void DropDown::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    const int hit = itemAt(event->pos().y());
    if (hit < 0)
        return;
    const QPointer<DropDown> self(this); // who hears of the choice may delete the list
    Q_EMIT itemSelected(hit);
    if (self)
        hide();
}

IconLabel *DropDown::item(int index) const
{
    return index >= 0 && index < m_items.size() ? m_items.at(index).data() : nullptr;
}

int DropDown::itemAt(int y) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        const IconLabel *const each = m_items.at(i);
        if (each && each->y() < y && y < each->y() + each->height() && each->isVisible())
            return i;
    }
    return -1;
}

void DropDown::appendItem(IconLabel *item)
{
    item->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    item->setIconDisplay(m_iconDisplay);
    m_items.append(item);
    refresh();
}

void DropDown::refresh()
{
    delete m_frame->layout();
    auto *column = new QVBoxLayout(m_frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const QPointer<IconLabel> &each : qAsConst(m_items)) {
        if (each)
            column->addWidget(each);
    }
}
