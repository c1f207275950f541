#include "Pelorin/controls/ComboBox.h"

#include "Pelorin/controls/DropDown.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

ComboBox::ComboBox(QWidget *parent)
    : DropDownLabel(QString(), parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setIndent(0);
    connect(dropDown(), &DropDown::itemSelected, this, &ComboBox::checkCurrentIndex);
}

int ComboBox::addItem(const QString &text)
{
    dropDown()->addItem(text);
    return itemAdded(text);
}

int ComboBox::addItem(const QString &text, const QString &iconPath)
{
    dropDown()->addItem(text, iconPath);
    return itemAdded(text);
}

void ComboBox::addItems(const QStringList &texts)
{
    for (const QString &text : texts)
        addItem(text);
}

int ComboBox::count() const
{
    return dropDown()->count();
}

void ComboBox::setItemText(int index, const QString &text)
{
    dropDown()->setItemText(index, text);
    if (index == m_currentIndex)
        setText(text);
}

QString ComboBox::itemText(int index) const
{
    return dropDown()->itemText(index);
}

bool ComboBox::isItemVisible(int index) const
{
    return dropDown()->isItemVisible(index);
}

void ComboBox::setCurrentIndex(int index)
{
    m_currentIndex = index < count() ? std::max(index, 0) : count();
    setText(itemText(m_currentIndex));
}

QString ComboBox::currentText() const
{
    return itemText(m_currentIndex);
}

void ComboBox::setSingleMode(bool on)
{
    m_singleMode = on;
    setProperty(StyleProperty::singleMode, isPlainLabel());
}

void ComboBox::showIcons(IconLabel::IconDisplay display)
{
    dropDown()->showIcons(display);
}

bool ComboBox::setProperty(const char *name, const QVariant &value)
{
    dropDown()->setProperty(name, value);
    return DropDownLabel::setProperty(name, value);
}

void ComboBox::clear()
{
    dropDown()->clear();
    m_currentIndex = -1;
    DropDownLabel::clear();
}

void ComboBox::checkCurrentIndex(int index)
{
    const QPointer<ComboBox> self(this); // who hears of the change may delete the box
    if (index != m_currentIndex) {
        m_currentIndex = index;
        setText(itemText(index));
        Q_EMIT currentIndexChanged(index);
    }
    if (self)
        Q_EMIT activated(index);
}

QPoint ComboBox::dropDownPosition() const
{
    constexpr int arrow = 20;
    return QPoint(width() - dropDown()->width() - arrow, height());
}

void ComboBox::openDropDown()
{
    DropDown &list = *dropDown();
    // The list is opened twice, the first time only to find its size. The window manager is told of
    // the second time alone: a window that comes, goes and comes again it may lose.
    list.setAttribute(Qt::WA_DontShowOnScreen);
    DropDownLabel::openDropDown();
    list.updateGeometry();
    list.hide();
    list.setAttribute(Qt::WA_DontShowOnScreen, false);
    list.show();
}

void ComboBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !isPlainLabel())
        DropDownLabel::mousePressEvent(event);
}

void ComboBox::focusOutEvent(QFocusEvent *event)
{
    if (event->lostFocus())
        DropDownLabel::focusOutEvent(event);
    else
        QLabel::focusOutEvent(event);
}

int ComboBox::itemAdded(const QString &text)
{
    const int index = count() - 1;
    if (index == 0) {
        m_currentIndex = 0;
        setText(text);
    }
    setSingleMode(m_singleMode);
    return index;
}
