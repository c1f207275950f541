#ifndef PELORIN_TESTS_MOUSEHAND_H
#define PELORIN_TESTS_MOUSEHAND_H

#include <QPoint>
#include <Qt>

class QWidget;

/// A hand on the mouse over one widget: events at exact places, sent straight to the widget.
class MouseHand
{
public:
    explicit MouseHand(QWidget &widget)
        : m_widget(widget)
    {}

    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton);
    void move(QPoint position);
    void release(QPoint position);

    /// Press at \a from, one move to \a to, release there.
    void drag(QPoint from, QPoint to);

private:
    QWidget &m_widget;
    Qt::MouseButton m_button = Qt::NoButton;
};

#endif
