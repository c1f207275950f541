#ifndef PELORIN_CONTROLS_COMBOBOXNGITEMMODEL_H
#define PELORIN_CONTROLS_COMBOBOXNGITEMMODEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QListView>
#include <QMap>
#include <QPointer>
#include <QStandardItemModel>

/// The items of a ComboBoxNG. Beside what a QStandardItemModel keeps, it knows which items are
/// disabled: these cannot be chosen, but are drawn like the others.
///
/// The role Qt::UserRole is that knowledge: true for an enabled item, false for a disabled one.
/// Data that an item itself keeps under this role are out of reach through the model.
class PELORIN_EXPORT ComboBoxNGItemModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit ComboBoxNGItemModel(QObject *parent = nullptr);

    /// With Qt::UserRole enables or disables the item, and returns true. That sends no
    /// dataChanged(): nothing of what is drawn changes, and a box would report its current text
    /// once more. With any other role, and at a place without an item, as the base.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// With Qt::UserRole whether the item is enabled, as it is until it is disabled. With any other
    /// role, and at a place without an item, as the base.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// A disabled item has all flags but Qt::ItemIsSelectable.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    friend class ComboBoxNG;

    bool isPassedOver(const QModelIndex &index, bool disabled) const;
    /// An item made later may get the address of one that is gone.
    void forgetLostItems();

    QMap<QStandardItem *, bool> m_disabledItems;
    QPointer<QListView> m_steppedList; ///< set while the box of this list is stepped on
};

#endif
