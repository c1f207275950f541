#ifndef PELORIN_CONTROLS_COMBOBOXNG_H
#define PELORIN_CONTROLS_COMBOBOXNG_H

#include "Pelorin/PelorinGlobal.h"

#include <QComboBox>
#include <QString>

/// A combo box whose items can be hidden and disabled one by one, and which can show the tool tip
/// of its current item as its own.
///
/// Its items stand in a ComboBoxNGItemModel. A hidden item is missing in the open list only: it
/// still counts and has its index. A disabled item looks like the others, but cannot be chosen. The
/// application can make either current; the user cannot, be it in the list or by keys and wheel on
/// the closed box, which pass them over. The model keeps what is disabled under Qt::UserRole: user
/// data of that role are not for this box.
///
/// The style sheet knows a compact form, by the property "type" with the value "text".
///
/// DropDownNG is the other way to hide items: it takes them out of the box.
class PELORIN_EXPORT ComboBoxNG : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool relayItemToolTip READ hasReayItemTooltip WRITE setRelayItemToolTip)

public:
    /// Empty. It takes the focus by Tab and by a click, not by the wheel.
    explicit ComboBoxNG(QWidget *parent = nullptr);

    /// Nothing from the number of items on.
    void setItemVisible(int index, bool visible);
    /// Silent. Nothing if there is no such item.
    void setItemEnabled(int index, bool enabled);
    /// Nothing if there is no such item. For the current one the base reports its text once more,
    /// by currentTextChanged().
    void setItemToolTip(int index, QString text);
    /// Whether the closed box has the tool tip of the item that is current at that moment, in place
    /// of one of its own; false at first.
    void setRelayItemToolTip(bool relay);

    /// False from the number of items on.
    bool isItemVisible(int index) const;
    /// True until it is disabled; false if there is no such item, or if the application has put
    /// another kind of model into the box.
    bool isItemEnabled(int index) const;
    QString itemTooltip(int index) const;
    bool hasReayItemTooltip() const { return m_relayItemToolTip; }

    void showPopup() override;
    /// Takes Return and Enter from the open list where they would choose a disabled item.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Makes an item current in silence. It leaves the signals of the box unblocked, whatever they
    /// were before.
    void setCurrentIndexWithoutEmits(int index);

protected:
    bool event(QEvent *event) override;
    /// Only with the focus: else the wheel is left to a scroll area behind.
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Marks the time in which an event may step the closed box to another item.
    class Stepping;

    QModelIndex itemPlace(int index) const;
    bool hasRow(int index) const;
    bool choosesBarredItem(const QKeyEvent &event) const;
    void refreshToolTip();

    bool m_relayItemToolTip = false;
};

#endif
