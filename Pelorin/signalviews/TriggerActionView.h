#ifndef PELORIN_SIGNALVIEWS_TRIGGERACTIONVIEW_H
#define PELORIN_SIGNALVIEWS_TRIGGERACTIONVIEW_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

/// A drawing of what a trigger input does to the output pulses, with the interval between them
/// written on it. Nothing in it is to scale.
class PELORIN_EXPORT TriggerActionView : public QWidget
{
    Q_OBJECT

public:
    enum tView : int {
        ViewFixedWindow = 0, ///< pulses as long as the trigger is high, whatever their count
        ViewPulseCount = 1   ///< a given count of pulses; so for any other value
    };
    Q_ENUM(tView)

    /// 300 x 160 pixels, fixed; 14 pulses, an interval of 12.5 us.
    explicit TriggerActionView(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Draws so many of them, 42 at most; 0 and less draw none.
    void setPulseCount(int pulses);
    /// The interval in us, shown with one decimal.
    void setPulseInterval(double interval);
    void setView(TriggerActionView::tView view);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_pulseInterval = 12.5;
    int m_pulseCount = 14;
    tView m_view = ViewPulseCount;
};

#endif
