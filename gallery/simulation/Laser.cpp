#include "gallery/simulation/Laser.h"

namespace {

constexpr int stateMs = 1500;

} // namespace

Simulation::Laser::Laser(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(stateMs);
    connect(&m_timer, &QTimer::timeout, this, &Laser::climb);
}

void Simulation::Laser::setState(uchar state)
{
    m_timer.stop();
    m_state = state;
    m_target = state;
    Q_EMIT stateChanged(state);
}

void Simulation::Laser::startUp()
{
    setState(Off);
    request(true, Emitting, Off);
}

void Simulation::Laser::tune(bool on)
{
    setState(on ? Tuning : Emitting);
}

void Simulation::Laser::request(bool on, State target, State below)
{
    const State wanted = on ? target : below;
    if (wanted <= m_state) {
        setState(wanted);
        return;
    }
    m_target = wanted;
    m_timer.start();
    Q_EMIT stateChanged(m_state);
}

void Simulation::Laser::climb()
{
    ++m_state;
    if (m_state >= m_target)
        m_timer.stop();
    Q_EMIT stateChanged(m_state);
}
