#ifndef PELORIN_SLIDERS_COMBOSLIDERUNIT_H
#define PELORIN_SLIDERS_COMBOSLIDERUNIT_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/sliders/ScaleSlider.h"

#include <QList>
#include <QObject>
#include <QString>

/// One unit in which a ComboSlider sets a quantity: its entry in the unit selector, its range, and
/// how slider and number show it. Plain data; a ComboSlider looks at it when the unit is chosen.
class PELORIN_EXPORT ComboSliderUnit : public QObject
{
    Q_OBJECT

public:
    /// A linear unit without steps, from \a min to \a max, shown with \a precision decimals.
    ComboSliderUnit(const QString &text, double min, double max, int precision,
                    QObject *parent = nullptr);

    /// The entry in the unit selector.
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    /// Real values, also on a logarithmic scale.
    double minValue() const { return m_minValue; }
    double maxValue() const { return m_maxValue; }
    void setRange(double min, double max);

    /// Decimals of the number, or significant digits of it.
    int precision() const { return m_precision; }
    void setPrecision(int precision) { m_precision = precision; }
    bool significantDigits() const { return m_significantDigits; }
    void setSignificantDigits(bool on) { m_significantDigits = on; }

    // Handed to the slider as they are.
    int maxLabelIntervals() const { return m_maxLabelIntervals; }
    void setMaxLabelIntervals(int intervals) { m_maxLabelIntervals = intervals; }
    int maxStepTicks() const { return m_maxStepTicks; }
    void setMaxStepTicks(int ticks) { m_maxStepTicks = ticks; }
    bool traditionalLogarithmicScale() const { return m_traditionalLogarithmicScale; }
    void setTraditionalLogarithmicScale(bool on) { m_traditionalLogarithmicScale = on; }

    ScaleSlider::ScaleType scaleType() const { return m_scaleType; }
    void setScaleType(ScaleSlider::ScaleType type) { m_scaleType = type; }

    /// The allowed values; exponents of ten on a logarithmic scale.
    QList<double> stepList() const { return m_stepList; }

    /// Takes the real values in \a steps, in ascending order. Set the scale type first: on a
    /// logarithmic scale they are kept as exponents. What is not finite, or has no exponent, is left
    /// out.
    void setStepList(const QList<double> &steps);

private:
    QString m_text;
    double m_minValue;
    double m_maxValue;
    int m_precision;
    bool m_significantDigits = false;
    int m_maxLabelIntervals = -1;
    int m_maxStepTicks = -10;
    bool m_traditionalLogarithmicScale = false;
    ScaleSlider::ScaleType m_scaleType = ScaleSlider::LinearScale;
    QList<double> m_stepList;
};

#endif
