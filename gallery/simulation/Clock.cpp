#include "gallery/simulation/Clock.h"

#include <QPointer>

Simulation::Clock::Clock(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(stepMs);
    connect(&m_timer, &QTimer::timeout, this, &Clock::ticked);
}

void Simulation::Clock::advance(int ms)
{
    const QPointer<Clock> self(this);
    for (m_left += ms; self && m_left >= stepMs;) {
        m_left -= stepMs;
        Q_EMIT ticked();
    }
}
