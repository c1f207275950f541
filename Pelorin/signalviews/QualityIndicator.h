#ifndef PELORIN_SIGNALVIEWS_QUALITYINDICATOR_H
#define PELORIN_SIGNALVIEWS_QUALITYINDICATOR_H

#include "Pelorin/PelorinGlobal.h"

#include <QColor>
#include <QFrame>

#include <array>

/// A small bar of six lamps from red to dark green, of which the one for the present quality is lit.
/// The others show a strip of their colour, so that the scale can be read.
class PELORIN_EXPORT QualityIndicator : public QFrame
{
    Q_OBJECT

public:
    /// 98 x 33 pixels, fixed; a quality of 70, and bounds at 65, 70, 75, 80 and 85.
    explicit QualityIndicator(QWidget *parent = nullptr);

public Q_SLOTS:
    /// The quality, in the unit of the bounds. Not-a-number lights no lamp.
    void setQualityValue(double quality);

    /// The lower bounds of all lamps but the red one, in ascending order; a bound belongs to the lamp
    /// that begins there. In another order no lamp may be lit, or several.
    void setQualityRanges(double startOrange, double startYellow, double startLightGreen,
                          double startGreen, double startDarkGreen);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int segmentCount = 6;

    bool isLit(int segment) const;

    int m_leftMargin = 5;
    int m_topMargin = 5;
    QColor m_frameColor{ 0x5E, 0x5E, 0x5E };
    QColor m_offColor{ 0x80, 0x80, 0x80 };
    std::array<QColor, segmentCount> m_colors; // from red to dark green
    double m_quality = 70.0;
    std::array<double, segmentCount> m_starts; // the first one is not used
};

#endif
