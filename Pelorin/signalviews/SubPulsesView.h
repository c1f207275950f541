#ifndef PELORIN_SIGNALVIEWS_SUBPULSESVIEW_H
#define PELORIN_SIGNALVIEWS_SUBPULSESVIEW_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

/// A drawing of the sub-pulses within one pulse, which are 20 ns apart. Nothing in it is to scale.
class PELORIN_EXPORT SubPulsesView : public QWidget
{
    Q_OBJECT

public:
    /// 300 x 160 pixels, fixed; five sub-pulses.
    explicit SubPulsesView(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Draws so many of them, 15 at most; 0 and less draw none.
    void setSubPulseCount(int subPulses);
    /// Kept; the drawing says 100 % whatever it is.
    void setSubPulseEnergy(double energy);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawPulses(QPainter &painter, QColor color, int x, int y, int count);

    double m_subPulseEnergy = 40.0;
    int m_subPulseCount = 5;
};

#endif
