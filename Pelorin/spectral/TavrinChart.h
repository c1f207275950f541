#ifndef PELORIN_SPECTRAL_TAVRINCHART_H
#define PELORIN_SPECTRAL_TAVRINCHART_H

#include "Pelorin/PelorinGlobal.h"

#include <QBrush>
#include <QChart>

/// A bare chart of the first generation: a plot area without a ground round it, and without tool
/// tips. New displays take WavelengthChart.
class PELORIN_EXPORT TavrinChart : public QtCharts::QChart
{
    Q_OBJECT

public:
    explicit TavrinChart(QGraphicsItem *parent = nullptr,
                         QFlags<Qt::WindowType> flags = QFlags<Qt::WindowType>());

    /// Keeps the range for the caller, in nm; it changes nothing on the chart. 380 to 750 at first.
    void setWavelengthRange(int min, int max);
    int minWavelength() const { return m_minWavelength; }
    int maxWavelength() const { return m_maxWavelength; }

    /// The colour of light of \a wavelength nm; dark grey outside of 380 to 750.
    QRgb generateRgbColor(double wavelength) const;

    /// Does nothing: the plot area has the ground that QChart gives it.
    void generateBackBrush();

Q_SIGNALS:
    /// The zoom was looked at anew.
    void zoomChanged(bool isZoomed);

protected:
    void resizeEvent(QGraphicsSceneResizeEvent *event) override;
    /// Swallows what asks for a tool tip.
    bool event(QEvent *event) override;

private Q_SLOTS:
    void prepGeometryChange();
    void slotScaleChanged();

private:
    QBrush m_backBrush;
    int m_minWavelength = 380;
    int m_maxWavelength = 750;
};

#endif
