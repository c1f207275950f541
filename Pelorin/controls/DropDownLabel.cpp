#include "Pelorin/controls/DropDownLabel.h"

#include "Pelorin/controls/DropDown.h"

#include <QFocusEvent>
#include <QMouseEvent>

DropDownLabel::DropDownLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
    , m_dropDown(new DropDown(this))
{
    setFocusPolicy(Qt::StrongFocus);
}

void DropDownLabel::setItemVisibility(int index, bool visible)
{
    m_dropDown->setItemVisibility(index, visible);
}

bool DropDownLabel::hasItemVisibility(int index) const
{
    return m_dropDown->hasItemVisibility(index);
}

void DropDownLabel::openDropDown()
{
    // Also before it is shown: a window manager puts a window without a place where it likes.
    m_dropDown->adjustSize();
    setDropDownPosition();
    m_dropDown->show();
    setDropDownPosition();
    m_dropDown->setFocus(Qt::OtherFocusReason);
}

void DropDownLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        QLabel::mousePressEvent(event);
    else if (m_dropDown->isVisible())
        m_dropDown->hide();
    else
        openDropDown();
}

void DropDownLabel::focusOutEvent(QFocusEvent *event)
{
    if (!m_dropDown->hasFocus() && m_dropDown->isVisible())
        m_dropDown->hide();
    QLabel::focusOutEvent(event);
}

void DropDownLabel::setDropDownPosition()
{
    m_dropDown->move(mapToGlobal(dropDownPosition()));
}
