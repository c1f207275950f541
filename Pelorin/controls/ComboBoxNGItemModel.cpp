#include "Pelorin/controls/ComboBoxNGItemModel.h"

#include <QSet>

namespace {

void collectChildren(const QStandardItem &parent, QSet<QStandardItem *> &found)
{
    for (int row = 0; row < parent.rowCount(); ++row) {
        for (int column = 0; column < parent.columnCount(); ++column) {
            QStandardItem *const child = parent.child(row, column);
            if (!child)
                continue;
            found.insert(child);
            collectChildren(*child, found);
        }
    }
}

} // namespace

ComboBoxNGItemModel::ComboBoxNGItemModel(QObject *parent)
    : QStandardItemModel(parent)
{
    connect(this, &QAbstractItemModel::rowsRemoved, this, &ComboBoxNGItemModel::forgetLostItems);
    connect(this, &QAbstractItemModel::columnsRemoved, this, &ComboBoxNGItemModel::forgetLostItems);
    connect(this, &QAbstractItemModel::modelReset, this, &ComboBoxNGItemModel::forgetLostItems);
    // An item that takes the place of another is told as a new layout.
    connect(this, &QAbstractItemModel::layoutChanged, this, &ComboBoxNGItemModel::forgetLostItems);
}

bool ComboBoxNGItemModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    QStandardItem *const item = role == Qt::UserRole ? itemFromIndex(index) : nullptr;
    if (!item)
        return QStandardItemModel::setData(index, value, role);
    m_disabledItems[item] = !value.toBool();
    return true;
}

QVariant ComboBoxNGItemModel::data(const QModelIndex &index, int role) const
{
    QStandardItem *const item = role == Qt::UserRole ? itemFromIndex(index) : nullptr;
    return item ? !m_disabledItems.value(item) : QStandardItemModel::data(index, role);
}

Qt::ItemFlags ComboBoxNGItemModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags result = QStandardItemModel::flags(index);
    const bool disabled = m_disabledItems.value(itemFromIndex(index));
    if (disabled)
        result &= ~Qt::ItemIsSelectable;
    if (isPassedOver(index, disabled))
        result &= ~Qt::ItemIsEnabled;
    return result;
}

/// A closed box asks for Qt::ItemIsEnabled alone when it looks for the item to step on. The open
/// list draws an item by this flag, and goes by Qt::ItemIsSelectable.
bool ComboBoxNGItemModel::isPassedOver(const QModelIndex &index, bool disabled) const
{
    if (!m_steppedList || m_steppedList->isVisible())
        return false;
    return disabled || m_steppedList->isRowHidden(index.row());
}

void ComboBoxNGItemModel::forgetLostItems()
{
    if (m_disabledItems.isEmpty())
        return;
    QSet<QStandardItem *> items;
    collectChildren(*invisibleRootItem(), items);
    for (auto each = m_disabledItems.begin(); each != m_disabledItems.end();) {
        if (items.contains(each.key()))
            ++each;
        else
            each = m_disabledItems.erase(each);
    }
}
