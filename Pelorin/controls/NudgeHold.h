#ifndef PELORIN_CONTROLS_NUDGEHOLD_H
#define PELORIN_CONTROLS_NUDGEHOLD_H

#include <QString>
#include <QTimer>

/// Holds readings back for a quarter of a second after each step of the operator: the reading that is
/// on its way from the instrument is still the old value. LineEditNumber and ComboSlider have one
/// each, and keep the value that waits. Not for direct use.
class NudgeHold
{
public:
    /// \a name is the object name of the timer of the hold, a child of \a owner as the other one is.
    NudgeHold(QObject *owner, const QString &name)
        : m_hold(owner)
        , m_feedback(owner)
    {
        m_hold.setObjectName(name);
        m_feedback.setObjectName(QStringLiteral("feedbackTimer"));
        for (QTimer *timer : { &m_hold, &m_feedback }) {
            timer->setSingleShot(true);
            timer->setInterval(250);
        }
    }

    /// The operator has made a step.
    void begin() { m_hold.start(); }

    /// Whether a reading that has come has to wait. If so, its wait begins now, in place of that of
    /// an earlier one.
    bool holdsBack()
    {
        if (!m_hold.isActive())
            return false;
        m_feedback.start();
        return true;
    }

    /// Its timeout() ends the wait of a reading. The hold may be on still: ask again.
    const QTimer *feedbackTimer() const { return &m_feedback; }

private:
    QTimer m_hold;
    QTimer m_feedback;
};

#endif
