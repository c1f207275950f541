#ifndef PELORIN_TESTS_REPAINTCOUNTER_H
#define PELORIN_TESTS_REPAINTCOUNTER_H

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

#include <utility>

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
        m_takenRegion = std::exchange(m_region, QRegion());
        return count;
    }

    /// What the repaints have painted that taken() told of last.
    QRegion region() const { return m_takenRegion; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++m_count;
            m_region += static_cast<QPaintEvent *>(event)->region();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void settle()
    {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }

    int m_count = 0;
    QRegion m_region;
    QRegion m_takenRegion;
};

#endif
