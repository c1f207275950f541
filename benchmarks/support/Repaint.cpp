#include "benchmarks/support/Repaint.h"

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

void showAndSettle(QWidget &window)
{
    window.show();
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

void paintNow(QWidget &window)
{
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &request);
}

void sendPress(QWidget &widget, QPoint position)
{
    send(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void sendMove(QWidget &widget, QPoint position)
{
    send(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

void sendRelease(QWidget &widget, QPoint position)
{
    send(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}
