#ifndef PELORIN_TESTS_REPAINTCOUNTER_H
#define PELORIN_TESTS_REPAINTCOUNTER_H

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

/// Tells how often a shown widget was repainted.
class RepaintCounter : public QObject
{
public:
    explicit RepaintCounter(QWidget &widget)
    {
        settle();
        widget.installEventFilter(this);
    }

    /// The repaints since the last call. What was asked for meanwhile is painted now.
    int taken()
    {
        settle();
        const int count = m_count;
        m_count = 0;
        return count;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    static void settle()
    {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }

    int m_count = 0;
};

#endif
