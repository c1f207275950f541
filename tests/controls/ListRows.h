#ifndef PELORIN_TESTS_LISTROWS_H
#define PELORIN_TESTS_LISTROWS_H

#include "Pelorin/controls/DropDown.h"
#include "tests/support/MouseHand.h"

#include <QFrame>
#include <QLayout>

// A look into the list of the first-generation selectors.

/// The list that \a box opens.
inline DropDown *listOf(const QWidget &box)
{
    return box.findChild<DropDown *>();
}

/// The frame that holds the rows. IconLabel is a QFrame too, but no child of the list itself.
inline QFrame *frameOf(const DropDown &list)
{
    return list.findChild<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The rows in the order of the layout.
inline QList<IconLabel *> rowsOf(const DropDown &list)
{
    QList<IconLabel *> result;
    const QLayout *column = frameOf(list)->layout();
    for (int i = 0; column && i < column->count(); ++i)
        result << qobject_cast<IconLabel *>(column->itemAt(i)->widget());
    return result;
}

/// The texts of the rows that can be seen.
inline QStringList shownTexts(const DropDown &list)
{
    QStringList result;
    for (const IconLabel *row : rowsOf(list)) {
        if (row->isVisible())
            result << row->text();
    }
    return result;
}

/// Presses the left button in the middle of row \a index.
inline void pressRow(DropDown &list, int index)
{
    const IconLabel *const row = rowsOf(list).at(index);
    MouseHand(list).press(row->geometry().center());
}

#endif
