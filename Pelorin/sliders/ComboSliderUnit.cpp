#include "Pelorin/sliders/ComboSliderUnit.h"

#include <cmath>

ComboSliderUnit::ComboSliderUnit(const QString &text, double min, double max, int precision,
                                 QObject *parent)
    : QObject(parent)
    , m_text(text)
    , m_minValue(min)
    , m_maxValue(max)
    , m_precision(precision)
{}

void ComboSliderUnit::setRange(double min, double max)
{
    m_minValue = min;
    m_maxValue = max;
}

void ComboSliderUnit::setStepList(const QList<double> &steps)
{
    const bool logarithmic = m_scaleType == ScaleSlider::LogarithmicScale;
    QList<double> stored;
    for (const double step : steps) {
        const double entry = logarithmic ? std::log10(step) : step;
        if (qIsFinite(entry))
            stored.append(entry);
    }
    m_stepList = stored;
}
