#ifndef PELORIN_CONTROLS_DROPDOWNNG_H
#define PELORIN_CONTROLS_DROPDOWNNG_H

#include "Pelorin/PelorinGlobal.h"

#include <QComboBox>
#include <QIcon>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// A drop-down list whose items can be hidden one by one, and which shows a fixed item while it is
/// disabled. It is as wide as its widest visible text asks for.
///
/// The items stand in a table of the list's own, each under its item index; the box of the base
/// class holds the visible ones only. So an item index is not a position in the box as soon as an
/// item before it is hidden. All operations here, and sigActivated(int), speak in item indices.
/// What is inherited, sigCurrentIndexChanged(int) and sigHighlighted(int) speak in positions.
///
/// An index is in range from 0 to count() - 1. Every change of the items fills the box anew, in
/// silence, and lets the current item survive by its text; it leaves the signals of the list
/// unblocked, whatever they were before. If the text is gone the first visible item is current.
///
/// ComboBoxNG is the other way to hide items: it keeps them in the box, and can disable them too.
class PELORIN_EXPORT DropDownNG : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)
    Q_PROPERTY(int disabledIndex READ disabledIndex WRITE setDisabledIndex)

public:
    /// Empty, and 50 pixels wide.
    explicit DropDownNG(QWidget *parent = nullptr);

    /// Adds a visible item under the index count(). After a removal that index may be taken: the
    /// item that has it is overwritten.
    void addItem(const QString &text, const QVariant &userData = QVariant());
    void addItem(const QIcon &icon, const QString &text, const QVariant &userData = QVariant());
    /// Adds an item for each of \a texts, without icon and user data.
    void addItems(const QStringList &texts);

    /// Puts a visible item under \a index. Nothing is shifted: an item that is there is
    /// overwritten. One beyond the range counts, but is shown only when the range has grown.
    void insertItem(int index, const QString &text, const QVariant &userData = QVariant());
    void insertItem(int index, const QIcon &icon, const QString &text,
                    const QVariant &userData = QVariant());
    /// The same for each of \a texts, under \a index and those that follow it, without icon and
    /// user data. Texts for which no index is left are dropped.
    void insertItems(int index, const QStringList &texts);

    /// Takes the item away and leaves a gap: the other items keep their indices. The range ends one
    /// earlier, so that the last item is out of sight from then on. Nothing if out of range.
    void removeItem(int index);

    /// These four do nothing if \a index is out of range or a gap.
    void setItemVisibility(int index, const bool &visible);
    void setItemIcon(int index, const QIcon &icon);
    void setItemText(int index, const QString &text);
    void setItemUserData(int index, const QVariant &userData);

    /// These four return false, an empty icon, an empty text, an invalid value if \a index is out
    /// of range or a gap.
    bool itemVisibility(int index) const;
    QIcon itemIcon(int index) const;
    QString itemText(int index) const;
    QVariant itemUserData(int index) const;

    /// All items, the hidden ones too.
    int count() const;
    /// The index of the item that is shown, or -1 if there is none.
    int currentIndex() const;
    /// The text that is shown; empty without a current item.
    QString currentText() const;
    /// An invalid value without a current item.
    QVariant currentData(int role = Qt::UserRole) const;
    int disabledIndex() const { return m_disabledIndex; }

public Q_SLOTS:
    /// Removes all items.
    void clear();
    void clearEditText();
    /// Silent. Nothing if out of range, a gap or hidden. It is no choice of the user: enabling the
    /// list goes back behind it, to the last choice.
    void setCurrentIndex(int index);
    /// Reports a change by sigCurrentIndexChanged(int) and sigCurrentTextChanged(QString), and
    /// counts as a choice of the user. Nothing if no visible item has this text; in an editable
    /// list the text in the field.
    void setCurrentText(QString text);
    void setEditText(QString text);
    /// The item that is shown from the next time on that the list is disabled; 0 at first. If it
    /// cannot be shown then, the current one stays.
    void setDisabledIndex(int index);

Q_SIGNALS:
    /// The user chose an item, also when it was current already.
    void sigActivated(QString text);
    /// The same, with the item's index.
    void sigActivated(int index);
    /// Another item is current, by the user or by setCurrentText(). \a index is its position among
    /// the visible items. Not sent while the list is disabled. It comes before sigActivated.
    void sigCurrentIndexChanged(int index);
    void sigCurrentTextChanged(QString text);
    /// The text in the field of an editable list changed.
    void sigEditTextChanged(QString text);
    /// The user went over an item in the open list.
    void sigHighlighted(QString text);
    /// The same, with the item's position among the visible ones.
    void sigHighlighted(int index);

protected:
    void resizeEvent(QResizeEvent *event) override;
    /// Disabled, the list shows the item disabledIndex(). Enabled again, it shows the last choice
    /// of the user, whose position is taken for an item index here.
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slotActivated(QString text);
    void slotActivated(int index);
    void slotCurrentIndexChanged(int index);
    void slotCurrentTextChanged(QString text);
    void slotEditTextChanged(QString text);
    void slotHighlighted(QString text);
    void slotHighlighted(int index);

private:
    struct tItem
    {
        bool visible = false;
        QIcon icon;
        QString text;
        QVariant userData;
    };

    /// The item under \a index, or null out of range and in a gap.
    const tItem *item(int index) const;
    tItem *item(int index);
    void refreshCombo();
    void adjustSize();

    QMap<int, tItem> m_items;
    QMap<int, int> m_visibleItems; ///< from the item index to the position in the box
    int m_enabledIndex = 0;        ///< the position of the last choice while enabled
    int m_disabledIndex = 0;
};

#endif
