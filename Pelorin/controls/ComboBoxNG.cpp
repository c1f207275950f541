#include "Pelorin/controls/ComboBoxNG.h"

#include "Pelorin/controls/ComboBoxNGItemModel.h"

#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QWheelEvent>

class ComboBoxNG::Stepping
{
public:
    explicit Stepping(const ComboBoxNG &box)
        : m_items(qobject_cast<ComboBoxNGItemModel *>(box.model()))
    {
        if (m_items)
            m_items->m_steppedList = qobject_cast<QListView *>(box.view());
    }
    ~Stepping()
    {
        // Who hears of the step may have deleted the box, and the items with it.
        if (m_items)
            m_items->m_steppedList = nullptr;
    }
    Q_DISABLE_COPY(Stepping)

private:
    QPointer<ComboBoxNGItemModel> m_items;
};

ComboBoxNG::ComboBoxNG(QWidget *parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("ComboBoxNG"));
    // The delegate that a box has of its own does not obey the sheet's rules for items.
    setItemDelegate(new QStyledItemDelegate(this));
    // Qt gives the focus before the wheel is heard of, and wheelEvent() could not tell.
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setModel(new ComboBoxNGItemModel(this));
}

void ComboBoxNG::setItemVisible(int index, bool visible)
{
    auto *const list = qobject_cast<QListView *>(view());
    if (list && hasRow(index))
        list->setRowHidden(index, !visible);
}

void ComboBoxNG::setItemEnabled(int index, bool enabled)
{
    if (auto *const items = qobject_cast<ComboBoxNGItemModel *>(model()))
        items->setData(itemPlace(index), enabled, Qt::UserRole);
}

void ComboBoxNG::setItemToolTip(int index, QString text)
{
    model()->setData(itemPlace(index), text, Qt::ToolTipRole);
}

void ComboBoxNG::setRelayItemToolTip(bool relay)
{
    m_relayItemToolTip = relay;
}

bool ComboBoxNG::isItemVisible(int index) const
{
    const auto *const list = qobject_cast<QListView *>(view());
    return list && hasRow(index) && !list->isRowHidden(index);
}

bool ComboBoxNG::isItemEnabled(int index) const
{
    const auto *const items = qobject_cast<ComboBoxNGItemModel *>(model());
    return items && items->data(itemPlace(index), Qt::UserRole).toBool();
}

QString ComboBoxNG::itemTooltip(int index) const
{
    return model()->data(itemPlace(index), Qt::ToolTipRole).toString();
}

void ComboBoxNG::showPopup()
{
    // Heard before Qt's own filter, which bars a disabled item for the mouse only.
    view()->installEventFilter(this);
    QComboBox::showPopup();
}

bool ComboBoxNG::eventFilter(QObject *watched, QEvent *event)
{
    // Qt's filter chooses as early as when a key is offered as a shortcut.
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && watched == view() && choosesBarredItem(*static_cast<QKeyEvent *>(event)))
        return true;
    return QComboBox::eventFilter(watched, event);
}

void ComboBoxNG::setCurrentIndexWithoutEmits(int index)
{
    blockSignals(true);
    QComboBox::setCurrentIndex(index);
    blockSignals(false);
}

bool ComboBoxNG::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        refreshToolTip();
    return QComboBox::event(event);
}

void ComboBoxNG::wheelEvent(QWheelEvent *event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    const Stepping stepping(*this);
    QComboBox::wheelEvent(event);
}

void ComboBoxNG::keyPressEvent(QKeyEvent *event)
{
    const Stepping stepping(*this);
    QComboBox::keyPressEvent(event);
}

/// The round corners of the open list, which the sheet asks for, need a window that can be seen
/// through. That window comes to be with the list, and the box is resized before it is opened.
void ComboBoxNG::resizeEvent(QResizeEvent *event)
{
    if (auto *const frame = findChild<QFrame *>()) {
        frame->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        frame->setAttribute(Qt::WA_TranslucentBackground);
    }
    QComboBox::resizeEvent(event);
}

QModelIndex ComboBoxNG::itemPlace(int index) const
{
    return model()->index(index, 0);
}

bool ComboBoxNG::hasRow(int index) const
{
    return index < model()->rowCount();
}

void ComboBoxNG::refreshToolTip()
{
    if (m_relayItemToolTip)
        setToolTip(currentData(Qt::ToolTipRole).toString());
}

bool ComboBoxNG::choosesBarredItem(const QKeyEvent &event) const
{
    const int key = event.key();
    const bool chooses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select;
    const QModelIndex current = view()->currentIndex();
    return chooses && current.isValid() && !(current.flags() & Qt::ItemIsSelectable);
}
