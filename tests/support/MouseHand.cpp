#include "tests/support/MouseHand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace {

void send(QWidget &widget, QEvent::Type type, QPoint position, Qt::MouseButton button,
          Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void MouseHand::press(QPoint position, Qt::MouseButton button)
{
    m_button = button;
    send(m_widget, QEvent::MouseButtonPress, position, button, button);
}

void MouseHand::move(QPoint position)
{
    send(m_widget, QEvent::MouseMove, position, Qt::NoButton, m_button);
}

void MouseHand::release(QPoint position)
{
    send(m_widget, QEvent::MouseButtonRelease, position, m_button, Qt::NoButton);
    m_button = Qt::NoButton;
}

void MouseHand::drag(QPoint from, QPoint to)
{
    press(from);
    move(to);
    release(to);
}
