#ifndef PELORIN_SIGNALVIEWS_PULSESVIEW_H
#define PELORIN_SIGNALVIEWS_PULSESVIEW_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

/// A drawing of two pulses of a train, with the interval between them written on it. Nothing in it
/// is to scale.
class PELORIN_EXPORT PulsesView : public QWidget
{
    Q_OBJECT

public:
    /// 300 x 160 pixels, fixed; an interval of 12.5 us.
    explicit PulsesView(QWidget *parent = nullptr);

public Q_SLOTS:
    /// The interval in us, shown with one decimal.
    void setPulseInterval(double interval);
    /// Kept; the drawing says 100 % whatever it is.
    void setPulseEnergy(double energy);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_pulseInterval = 12.5;
    double m_pulseEnergy = 40.0;
};

#endif
