#ifndef PELORIN_SIGNALVIEWS_SIGNALGRAPH_H
#define PELORIN_SIGNALVIEWS_SIGNALGRAPH_H

#include "Pelorin/PelorinGlobal.h"

#include <QPolygon>
#include <QVector>
#include <QWidget>

/// A stretch of 16-bit samples as a curve, fitted to the width, with its extremes and the zero line.
/// It is meant for blocks of a few hundred samples: all of them are kept, drawn, and logged.
///
/// The application calls update() after it has changed the samples. Each paint writes its scale and
/// every point to the log (category "default", level debug); where that is filtered out, it costs
/// nothing.
class PELORIN_EXPORT SignalGraph : public QWidget
{
    Q_OBJECT

public:
    /// With five periods of a sine of 10000 to begin with.
    explicit SignalGraph(QWidget *parent = nullptr);

    bool hasData() const { return !m_samples.isEmpty(); }

    /// Drops the samples. The extremes stay until the first insertData().
    void clearData();

    /// Inserts \a data before the sample at \a position; what stands there moves along. The first
    /// block of an empty graph sets the extremes anew, at its first sample.
    ///
    /// Ignored, but for that first sample, if \a position lies behind the end, or if \a count is not
    /// the size of \a data, which is 1 or more.
    void insertData(QVector<short> data, unsigned int position, int count);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawScale(QPainter &painter) const;
    int drawZeroLine(QPainter &painter) const;
    QPolygon curve(int midLine) const;

    QVector<short> m_samples;
    short m_minValue = 0;
    short m_maxValue = 0;
};

#endif
