#ifndef PELORIN_CONTROLS_DROPDOWN_H
#define PELORIN_CONTROLS_DROPDOWN_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/IconLabel.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class QFrame;

/// The open list of the first generation, a window without a frame that holds one row below the
/// other. ComboBox and Selector open one; it can be used alone too. New dialogs take DropDownNG or
/// ComboBoxNG.
///
/// An index is in range from 0 to count() - 1, hidden items included. Out of range a text is empty,
/// a question is answered with false, and a change does nothing.
class PELORIN_EXPORT DropDown : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int count READ count)

public:
    /// Empty and closed; show() opens it. It is a window also with a \a parent, who owns it.
    explicit DropDown(QWidget *parent = nullptr);

    /// Adds a visible row at the end.
    void addItem(const QString &text);
    /// The same with an icon, which is loaded as in setIcon().
    void addItem(const QString &text, const QString &iconPath);

    int count() const { return m_items.size(); }

    void setItemText(int index, const QString &text);
    QString itemText(int index) const;

    /// Loads the icon from a file or resource. It is seen when showIcons() gives it a side.
    void setIcon(int index, const QString &iconPath);

    /// Shows or hides a row. The rows below a hidden one move up; indices stay.
    void setItemVisibility(int index, bool visible);
    /// What setItemVisibility() was told last, true at first.
    bool hasItemVisibility(int index) const;
    /// Whether the row can be seen now: never while the list is closed.
    bool isItemVisible(int index) const;

    /// The side at which all rows, also those that are added later, show their icons.
    void showIcons(IconLabel::IconDisplay display);

    /// As large as the rows need; the open list follows.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Removes all items.
    void clear();

Q_SIGNALS:
    /// The left button was pressed on a row that can be seen. The list closes after that.
    void itemSelected(int index);

protected:
    bool event(QEvent *event) override;
    /// The vertical position alone decides which row is hit. The first line of pixels of a row does
    /// not count.
    void mousePressEvent(QMouseEvent *event) override;

private:
    /// The row under \a index, or null out of range, or when somebody else has deleted it.
    IconLabel *item(int index) const;
    /// The first row that can be seen at the height \a y, or -1.
    int itemAt(int y) const;
    void appendItem(IconLabel *item);
    void refresh();

    QFrame *m_frame;
    QList<QPointer<IconLabel>> m_items; ///< owned by the frame
    IconLabel::IconDisplay m_iconDisplay = IconLabel::NoIcon;
};

#endif
