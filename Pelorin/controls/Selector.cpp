#include "Pelorin/controls/Selector.h"

#include "Pelorin/controls/DropDown.h"

Selector::Selector(const QString &text, QWidget *parent)
    : DropDownLabel(text, parent)
{
    connect(dropDown(), &DropDown::itemSelected, this, &Selector::itemSelected);
}

void Selector::addItem(const QString &text)
{
    dropDown()->addItem(text);
    if (itemCount() == 1)
        setItemVisibility(0, false);
}

int Selector::itemCount() const
{
    return dropDown()->count();
}

QPoint Selector::dropDownPosition() const
{
    return QPoint(0, height());
}
