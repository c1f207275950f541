#ifndef PELORIN_GALLERY_CLOCK_H
#define PELORIN_GALLERY_CLOCK_H

#include <QObject>
#include <QTimer>

namespace Simulation {

/// The time of a simulation. It passes in steps of 50 ms: by itself after run(), or as a test drives
/// it by advance(). What happens in it depends on the steps alone.
class Clock : public QObject
{
    Q_OBJECT

public:
    static constexpr int stepMs = 50;

    explicit Clock(QObject *parent = nullptr);

    /// Lets time pass as it does in the room.
    void run() { m_timer.start(); }
    void stop() { m_timer.stop(); }

    /// Lets \a ms pass at once; what is left of a step counts with the next call.
    void advance(int ms);

Q_SIGNALS:
    /// A step is over.
    void ticked();

private:
    QTimer m_timer;
    int m_left = 0; ///< ms
};

} // namespace Simulation

#endif
