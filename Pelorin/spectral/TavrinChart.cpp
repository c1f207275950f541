#include "Pelorin/spectral/TavrinChart.h"

#include "Pelorin/spectral/LightColor_p.h"

#include <QDebug>
#include <QEvent>

TavrinChart::TavrinChart(QGraphicsItem *parent, QFlags<Qt::WindowType> flags)
    : QtCharts::QChart(parent, flags)
{
    setBackgroundVisible(false);
    setPlotAreaBackgroundVisible(true);
    connect(this, &QGraphicsObject::scaleChanged, this, &TavrinChart::slotScaleChanged);
}

void TavrinChart::setWavelengthRange(int min, int max)
{
    m_minWavelength = min;
    m_maxWavelength = max;
}

QRgb TavrinChart::generateRgbColor(double wavelength) const
{
    return LightColor::gammaRamp(wavelength);
}

void TavrinChart::generateBackBrush() {}

void TavrinChart::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    QtCharts::QChart::resizeEvent(event);
}

bool TavrinChart::event(QEvent *event)
{
    return event->type() == QEvent::ToolTip || QtCharts::QChart::event(event);
}

void TavrinChart::prepGeometryChange()
{
    Q_EMIT zoomChanged(isZoomed());
}

void TavrinChart::slotScaleChanged()
{
    qDebug() << "slotScaleChanged";
}
