#ifndef PELORIN_CONTROLS_COMBOBOX_H
#define PELORIN_CONTROLS_COMBOBOX_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/DropDownLabel.h"
#include "Pelorin/controls/IconLabel.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// A combo box of the first generation: a label that shows the current item and opens a list to
/// choose another. New dialogs take DropDownNG or ComboBoxNG.
///
/// An index is in range from 0 to count() - 1, hidden items included. Out of range a text is empty,
/// and a question is answered with false.
class PELORIN_EXPORT ComboBox : public DropDownLabel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex)

public:
    /// Empty and without a current item.
    explicit ComboBox(QWidget *parent = nullptr);

    /// Adds an item at the end and returns its index. The first one becomes the current item, in
    /// silence.
    int addItem(const QString &text);
    /// The same with an icon from a file or resource; it is shown in the list only.
    int addItem(const QString &text, const QString &iconPath);
    void addItems(const QStringList &texts);

    /// All items, the hidden ones too.
    int count() const;

    /// The text of the current item is changed on the box too.
    void setItemText(int index, const QString &text);
    QString itemText(int index) const;

    /// Whether the item can be seen now: never while the list is closed.
    bool isItemVisible(int index) const;

    /// Silent. Below 0 the first item is taken. Beyond the last one the index is count(): none is
    /// current, and the box is empty.
    void setCurrentIndex(int index);
    /// Minus 1 as long as nothing was added.
    int currentIndex() const { return m_currentIndex; }
    /// Empty without a current item.
    QString currentText() const;

    /// With \a on a box of one item looks like a plain label, without an arrow, and does not open.
    /// The look has to be decided before the box is shown.
    void setSingleMode(bool on);

    /// The side at which the rows of the list show their icons.
    void showIcons(IconLabel::IconDisplay display);

    /// Sets a property of the list and then of the box, so that the style sheet gives both the same
    /// look. It hides the operation of QObject; called through a QObject or QWidget it reaches the
    /// box alone. Returns what that returns for the box.
    bool setProperty(const char *name, const QVariant &value);

public Q_SLOTS:
    /// Removes all items and empties the box, in silence.
    void clear();
    /// What follows a choice of the user: currentIndexChanged() if \a index is another one, then
    /// activated() in every case. The index is taken as it is.
    void checkCurrentIndex(int index);

Q_SIGNALS:
    /// Another item was chosen, by the user or by checkCurrentIndex().
    void currentIndexChanged(int index);
    /// An item was chosen, also when it was current already.
    void activated(int index);

protected:
    QPoint dropDownPosition() const override;
    void openDropDown() override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isPlainLabel() const { return m_singleMode && count() == 1; }
    int itemAdded(const QString &text);

    int m_currentIndex = -1;
    bool m_singleMode = false;
};

#endif
