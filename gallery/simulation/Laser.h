#ifndef PELORIN_GALLERY_LASER_H
#define PELORIN_GALLERY_LASER_H

#include <QObject>
#include <QTimer>

namespace Simulation {

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

    explicit Laser(QObject *parent = nullptr);

    uchar state() const { return m_state; }
    bool emits() const { return m_state == Emitting || m_state == Tuning; }

public Q_SLOTS:
    /// Any byte, at once.
    void setState(uchar state);
    /// From off to emission.
    void startUp();

    void listen(bool on) { request(on, Listening, Off); }
    void standBy(bool on) { request(on, StandingBy, Listening); }
    void switchOn(bool on) { request(on, Ready, StandingBy); }
    void emitLight(bool on) { request(on, Emitting, Ready); }
    void tune(bool on);

Q_SIGNALS:
    void stateChanged(uchar state);

private:
    void request(bool on, State target, State below);
    void climb();

    QTimer m_timer;
    uchar m_state = Off;
    uchar m_target = Off;
};

} // namespace Simulation

#endif
