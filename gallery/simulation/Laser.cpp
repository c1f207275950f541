#include "gallery/simulation/Laser.h"

#include "gallery/simulation/Clock.h"

namespace {

constexpr int stateMs = 1500;

} // namespace

Simulation::Laser::Laser(Clock &clock, QObject *parent)
    : QObject(parent)
{
    connect(&clock, &Clock::ticked, this, &Laser::tick);
}

void Simulation::Laser::setCeiling(State state)
{
    m_ceiling = state;
    m_target = qMin<uchar>(m_target, m_ceiling);
    if (m_state > m_ceiling)
        setState(m_ceiling);
}

void Simulation::Laser::setState(uchar state)
{
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
    if (emits())
        setState(on ? Tuning : Emitting);
    else
        Q_EMIT stateChanged(m_state);
}

void Simulation::Laser::request(bool on, State target, State below)
{
    const uchar wanted = qMin(on ? target : below, m_ceiling);
    if (wanted <= m_state) {
        setState(wanted);
        return;
    }
    m_target = wanted;
    m_sinceState = 0;
    Q_EMIT stateChanged(m_state);
}

void Simulation::Laser::tick()
{
    if (!climbs())
        return;
    m_sinceState += Clock::stepMs;
    if (m_sinceState < stateMs)
        return;
    m_sinceState = 0;
    ++m_state;
    Q_EMIT stateChanged(m_state);
}
