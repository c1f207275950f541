#include "Pelorin/sliders/RangedInputSlider.h"

#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/RangedScaleSlider.h"

#include <QPointer>

#include <cmath>

RangedInputSlider::RangedInputSlider(int sideMargin, QWidget *parent)
    : RangedInputPanel(parent)
    , m_startInput(new LineEditNumber)
    , m_stopInput(new LineEditNumber)
    , m_slider(new RangedScaleSlider)
{
    m_startInput->enableTimeout(true); // an edit of the stop has no timeout
    connect(m_startInput, &LineEditNumber::numberSaved, this, &RangedInputSlider::checkStartInput);
    connect(m_stopInput, &LineEditNumber::numberSaved, this, &RangedInputSlider::checkStopInput);

    m_slider->setSideMargins(sideMargin);
    m_slider->setStartRange(400.0, 900.0);
    using Slider = RangedScaleSlider;
    using Panel = RangedInputSlider;
    connect(m_slider, &Slider::startHandleMoved, this, &Panel::setStartInput);
    connect(m_slider, &Slider::startHandleFinishedMoving, this, &Panel::setStartInput);
    connect(m_slider, &Slider::startHandleFinishedMoving, this, &Panel::startValueChanged);
    connect(m_slider, &Slider::stopHandleMoved, this, &Panel::setStopInput);
    connect(m_slider, &Slider::stopHandleFinishedMoving, this, &Panel::setStopInput);
    connect(m_slider, &Slider::stopHandleFinishedMoving, this, &Panel::stopValueChanged);
    layOut(sideMargin, m_startInput, m_stopInput, m_slider);
}

void RangedInputSlider::setPrecision(int decimals)
{
    m_precision = decimals;
    const double step = std::pow(10.0, -double(decimals));
    m_startInput->allowNudge(step);
    m_stopInput->allowNudge(step);
    m_slider->setNudge(step);
}

void RangedInputSlider::setStartRange(double min, double max)
{
    if (!qIsFinite(min) || !qIsFinite(max))
        return;
    m_startMin = min;
    m_startMax = max;
    m_slider->setStartRange(min, max);
    setStartValue(m_startValue, false);
}

void RangedInputSlider::setStopRange(double min, double max)
{
    if (!qIsFinite(min) || !qIsFinite(max))
        return;
    m_stopMin = min;
    m_stopMax = max;
    m_slider->setStopRange(min, max);
    setStopValue(m_stopValue, false);
}

void RangedInputSlider::setStartValue(double value, bool adjustStop)
{
    if (qIsNaN(value))
        return;
    m_startValue = qBound(m_startMin, value, m_startMax);
    setStartInput(m_startValue);
    const QPointer<RangedInputSlider> self(this);
    m_slider->setCurrentStartValue(m_startValue, adjustStop);
    if (!self || m_startValue <= m_stopValue)
        return;
    m_stopValue = m_startValue;
    setStopInput(m_stopValue);
    m_slider->setCurrentStopValue(m_stopValue, false);
}

void RangedInputSlider::setStopValue(double value, bool adjustStart)
{
    if (qIsNaN(value))
        return;
    m_stopValue = qBound(m_stopMin, value, m_stopMax);
    setStopInput(m_stopValue);
    const QPointer<RangedInputSlider> self(this);
    m_slider->setCurrentStopValue(m_stopValue, adjustStart);
    if (!self || m_startValue <= m_stopValue)
        return;
    m_startValue = m_stopValue;
    setStartInput(m_startValue);
    m_slider->setCurrentStartValue(m_startValue, false);
}

void RangedInputSlider::checkStartInput(double value)
{
    const QPointer<RangedInputSlider> self(this);
    setStartValue(value, true);
    if (self)
        Q_EMIT startValueChanged(m_startValue);
}

void RangedInputSlider::checkStopInput(double value)
{
    const QPointer<RangedInputSlider> self(this);
    setStopValue(value, true);
    if (self)
        Q_EMIT stopValueChanged(m_stopValue);
}

void RangedInputSlider::setStartInput(double value)
{
    m_startInput->setNumber(value, m_precision, false);
}

void RangedInputSlider::setStopInput(double value)
{
    m_stopInput->setNumber(value, m_precision, false);
}

void RangedInputSlider::setFixedStart(bool enable, double value)
{
    setStartValue(value, false);
    m_slider->setFixedStart(enable, value);
    m_startInput->setEnabled(!enable);
}

void RangedInputSlider::setFixedStop(bool enable, double value)
{
    setStopValue(value, false);
    m_slider->setFixedStop(enable, value);
    m_stopInput->setEnabled(!enable);
}
