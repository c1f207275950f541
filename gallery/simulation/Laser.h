#ifndef PELORIN_GALLERY_LASER_H
#define PELORIN_GALLERY_LASER_H

#include <QObject>

namespace Simulation {

class Clock;

/// A laser as its state byte tells of it: it climbs to where it is sent one state after the other, and
/// falls at once. Requests are answered by stateChanged(), also where they change nothing.
class Laser : public QObject
{
    Q_OBJECT

public:
    enum State : uchar {
        Off = 0,
        Listening = 1,
        WarmingUp = 2,
        StandingBy = 3,
        Starting = 4,
        Ready = 5,
        Emitting = 6,
        Frozen = 7,
        Tuning = 8
    };

    /// Off. It climbs while \a clock runs, which must outlive the laser.
    explicit Laser(Clock &clock, QObject *parent = nullptr);

    uchar state() const { return m_state; }
    bool emits() const { return m_state == Emitting || m_state == Tuning; }
    bool climbs() const { return m_state < m_target; }

    /// No request takes the laser above \a state, and it falls there if it is above.
    void setCeiling(State state);

public Q_SLOTS:
    /// Any byte, at once, whatever the ceiling.
    void setState(uchar state);
    /// From off to emission.
    void startUp();

    void listen(bool on) { request(on, Listening, Off); }
    void standBy(bool on) { request(on, StandingBy, Listening); }
    void switchOn(bool on) { request(on, Ready, StandingBy); }
    void emitLight(bool on) { request(on, Emitting, Ready); }
    /// From emission to tuning, and back; the laser does not tune while it emits nothing.
    void tune(bool on);

Q_SIGNALS:
    void stateChanged(uchar state);

private:
    void request(bool on, State target, State below);
    void tick();

    int m_sinceState = 0; ///< ms
    uchar m_state = Off;
    uchar m_target = Off;
    State m_ceiling = Tuning;
};

} // namespace Simulation

#endif
