#include "Pelorin/sliders/RangedInputSliderNG.h"

#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/sliders/ScaleSliderNG.h"

#include <QPointer>

RangedInputSliderNG::RangedInputSliderNG(int sideMargin, QWidget *parent)
    : RangedInputPanel(parent)
    , m_startInput(new LineEditNumberNG)
    , m_stopInput(new LineEditNumberNG)
    , m_slider(new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr))
{
    using Panel = RangedInputSliderNG;
    using Field = LineEditNumberNG;
    connect(m_startInput, &Field::valueChanged, this, &Panel::startValueInputChanged);
    connect(m_stopInput, &Field::valueChanged, this, &Panel::stopValueInputChanged);

    m_slider->setSideMargins(sideMargin);
    m_slider->setDoubleRange(400.0, 900.0, true);
    m_slider->setDoubleSlider(true);
    using Slider = ScaleSliderNG;
    connect(m_slider, &Slider::valueChanging0, this, &Panel::startValueSliderChanging);
    connect(m_slider, &Slider::valueChanging1, this, &Panel::stopValueSliderChanging);
    connect(m_slider, &Slider::valueChanged0, this, &Panel::startValueSliderChanged);
    connect(m_slider, &Slider::valueChanged1, this, &Panel::stopValueSliderChanged);
    layOut(sideMargin, m_startInput, m_stopInput, m_slider);
}

double RangedInputSliderNG::startValue() const
{
    return m_slider->value0();
}

double RangedInputSliderNG::stopValue() const
{
    return m_slider->value1();
}

void RangedInputSliderNG::setPrecision(int decimals)
{
    m_precision = decimals;
    m_startInput->setValuePrecision(decimals);
    m_stopInput->setValuePrecision(decimals);
    m_slider->setValuePrecision(decimals);
}

void RangedInputSliderNG::setValuePrecision(int decimals)
{
    m_slider->setValuePrecision(decimals);
}

int RangedInputSliderNG::valuePrecision() const
{
    return m_slider->valuePrecision();
}

void RangedInputSliderNG::setLabelDecimalDigits(int decimals)
{
    m_slider->setLabelDecimalDigits(decimals);
}

int RangedInputSliderNG::labelDecimalDigits() const
{
    return m_slider->labelDecimalDigits();
}

void RangedInputSliderNG::setLabelRoundingDigits(int decimals)
{
    m_slider->setLabelRoundingDigits(decimals);
}

int RangedInputSliderNG::labelRoundingDigits() const
{
    return m_slider->labelRoundingDigits();
}

/// Any of the three may report, and a listener may delete the panel.
void RangedInputSliderNG::setRange(double min, double max, bool ignoreValueChanges)
{
    const QPointer<RangedInputSliderNG> self(this);
    m_slider->setRange(min, max, ignoreValueChanges);
    if (self)
        m_startInput->setRange(min, max, ignoreValueChanges);
    if (self)
        m_stopInput->setRange(min, max, ignoreValueChanges);
    if (self)
        showValues();
}

void RangedInputSliderNG::setDoubleRange(double min, double max, bool ignoreValueChanges)
{
    const QPointer<RangedInputSliderNG> self(this);
    m_slider->setDoubleRange(min, max, ignoreValueChanges);
    if (self)
        showValues();
}

void RangedInputSliderNG::setStartValue(double value)
{
    m_slider->setValue0(value);
    showValues();
}

void RangedInputSliderNG::setStopValue(double value)
{
    m_slider->setValue1(value);
    showValues();
}

void RangedInputSliderNG::startValueInputChanged(double value)
{
    takeInput([this, value] { m_slider->setValue0(value); });
}

void RangedInputSliderNG::stopValueInputChanged(double value)
{
    takeInput([this, value] { m_slider->setValue1(value); });
}

void RangedInputSliderNG::startValueSliderChanging(double value)
{
    m_startInput->setValue(value);
    Q_EMIT startValueChanging(value);
}

void RangedInputSliderNG::stopValueSliderChanging(double value)
{
    m_stopInput->setValue(value);
    Q_EMIT stopValueChanging(value);
}

void RangedInputSliderNG::startValueSliderChanged(double value)
{
    Q_EMIT startValueChanged(value);
}

void RangedInputSliderNG::stopValueSliderChanged(double value)
{
    Q_EMIT stopValueChanged(value);
}

/// The numbers as the slider has them.
void RangedInputSliderNG::showValues()
{
    m_startInput->setValue(m_slider->value0());
    m_stopInput->setValue(m_slider->value1());
}

/// Lets the slider have its say on a number that was typed, and reports each end that changed, the
/// other one too if it was pushed.
template<typename SetValue>
void RangedInputSliderNG::takeInput(SetValue setValue)
{
    const double startBefore = m_slider->value0();
    const double stopBefore = m_slider->value1();
    setValue();
    const bool startIsNew = m_slider->value0() != startBefore;
    const bool stopIsNew = m_slider->value1() != stopBefore;
    const QPointer<RangedInputSliderNG> self(this);
    if (startIsNew) {
        startValueSliderChanging(m_slider->value0());
        if (self)
            startValueSliderChanged(m_slider->value0());
    }
    if (stopIsNew && self) {
        stopValueSliderChanging(m_slider->value1());
        if (self)
            stopValueSliderChanged(m_slider->value1());
    }
}
