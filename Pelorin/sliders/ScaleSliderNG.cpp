#include "Pelorin/sliders/ScaleSliderNG.h"

#include "Pelorin/sliders/NearestStep_p.h"
#include "Pelorin/sliders/ScaleMapping_p.h"
#include "Pelorin/sliders/ScaleSliderNGLayers_p.h"

#include <QPointer>

#include <algorithm>

namespace {

constexpr int stepsBit = 1;
constexpr int sqrtBit = 2;

ScaleMapping::Curve curveOf(ScaleSliderNG::ScaleType type)
{
    return (type & sqrtBit) != 0 ? ScaleMapping::Curve::Sqrt : ScaleMapping::Curve::Linear;
}

} // namespace

ScaleSliderNG::ScaleSliderNG(Qt::Orientation orientation, ScaleSliderNG::ScaleType type,
                             QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_scaleType(type)
    , m_layers(std::make_unique<Layers>())
{
    QWidget::setFocusPolicy(Qt::StrongFocus);
    initSliderSize(false);
    setAttribute(Qt::WA_MouseTracking);
    setOrientation(orientation);
    setValue0(0.0);
}

ScaleSliderNG::~ScaleSliderNG() = default;

void ScaleSliderNG::setScaleType(ScaleSliderNG::ScaleType type)
{
    m_scaleType = type;
    setOrientation(m_orientation);
}

void ScaleSliderNG::setDoubleSlider(bool on)
{
    m_doubleSlider = on;
    validateRanges(false);
}

void ScaleSliderNG::setValue0(double value)
{
    if (!isGrabbed())
        priSetValue(value, 0);
}

void ScaleSliderNG::setValue1(double value)
{
    if (!isGrabbed())
        priSetValue(value, 1);
}

void ScaleSliderNG::changeValue0(double value)
{
    changeValue(value, 0);
}

void ScaleSliderNG::changeValue1(double value)
{
    changeValue(value, 1);
}

void ScaleSliderNG::setHandlePosition0(int position)
{
    setHandlePosition(position, 0);
}

void ScaleSliderNG::setHandlePosition1(int position)
{
    setHandlePosition(position, 1);
}

void ScaleSliderNG::changeHandlePosition0(int position)
{
    changeHandlePosition(position, 0);
}

void ScaleSliderNG::changeHandlePosition1(int position)
{
    changeHandlePosition(position, 1);
}

void ScaleSliderNG::setRange(double min, double max, bool ignoreValueChanges)
{
    if (!isKnownType() || hasSteps() || !qIsFinite(min) || !qIsFinite(max))
        return;
    m_minValue = min;
    m_maxValue = max;
    validateRanges(ignoreValueChanges);
}

void ScaleSliderNG::setDoubleRange(double min, double max, bool ignoreValueChanges)
{
    // An infinite smallest distance would push a value to infinity, an infinite largest one only
    // never binds.
    if (!qIsFinite(min) || qIsNaN(max))
        return;
    m_minDistance = min;
    m_maxDistance = max;
    validateRanges(ignoreValueChanges);
}

void ScaleSliderNG::setSteps(QList<double> steps)
{
    const bool finite =
        std::all_of(steps.cbegin(), steps.cend(), [](double step) { return qIsFinite(step); });
    if (!isKnownType() || !hasSteps() || !finite)
        return;
    m_steps = steps;
    m_minValue = steps.isEmpty() ? 0.0 : steps.first();
    m_maxValue = steps.size() < 2 ? 0.0 : steps.last();
    validateRanges(false);
}

void ScaleSliderNG::setHideHandleOnDisable(bool hide)
{
    m_hideHandleOnDisable = hide;
    update();
}

void ScaleSliderNG::setMaxLabels(int maxLabels)
{
    m_maxLabels = std::max(maxLabels, 2);
    update();
}

bool ScaleSliderNG::isKnownType() const
{
    return m_scaleType >= ScaleLinear && m_scaleType <= ScaleSqrtSteps;
}

bool ScaleSliderNG::hasSteps() const
{
    return (m_scaleType & stepsBit) != 0;
}

int ScaleSliderNG::value2Handle(double value) const
{
    if (!isKnownType())
        return 0;
    return ScaleMapping::handleOf(value, m_minValue, m_maxValue, curveOf(m_scaleType));
}

double ScaleSliderNG::handle2Value(int handle) const
{
    if (!isKnownType())
        return 0.0;
    return ScaleMapping::valueAt(handle, m_minValue, m_maxValue, curveOf(m_scaleType));
}

double ScaleSliderNG::nearestStepValue(double value) const
{
    return hasSteps() ? nearestStep(m_steps, value) : value;
}

double ScaleSliderNG::prevStepValue(int index) const
{
    const double value = m_value[index];
    const int place = m_steps.indexOf(value);
    return place > 0 ? m_steps.at(place - 1) : value;
}

double ScaleSliderNG::nextStepValue(int index) const
{
    const double value = m_value[index];
    const int next = m_steps.indexOf(value) + 1; // a value between the steps goes to the first one
    return next < m_steps.size() ? m_steps.at(next) : value;
}

/// Stores a value from outside, unrounded, and lets the handle of each value that changed follow.
void ScaleSliderNG::priSetValue(double value, int index)
{
    const Values before = m_value;
    if (isKnownType() && !qIsNaN(value))
        m_value[index] = nearestStepValue(value);
    validateValues(index);
    for (int i = 0; i < 2; ++i) {
        // A value that stays leaves its handle where it is, even if the range has changed
        // meanwhile.
        if (m_value[i] != before[i])
            m_handlePos[i] = value2Handle(m_value[i]);
    }
    updateHandles();
}

/// Derives the value from a handle that was moved. A handle whose value stays keeps the position
/// that it was given, so that single handle units can gather until the rounded value moves.
bool ScaleSliderNG::updateValue(int index, bool snapToStep, bool silent)
{
    const Values before = m_value;
    const double value = handle2Value(m_handlePos[index]);
    if (isKnownType()) {
        m_value[index] = snapToStep && hasSteps() ? nearestStepValue(value)
                                                  : roundedToDecimals(value, m_valuePrecision);
    }
    validateValues(index);
    for (int i = 0; i < 2; ++i) {
        if (m_value[i] == before[i])
            continue;
        m_handlePos[i] = value2Handle(m_value[i]);
        if (!silent && !emitValueChanging(i))
            return false;
    }
    updateHandles();
    return true;
}

/// Clamps to range and distances. The value at \a index has the say, the other one is pushed. In a
/// range given the wrong way round every comparison is turned round as well.
void ScaleSliderNG::validateValues(int index)
{
    if (!isKnownType())
        return;
    const bool inverted = m_maxValue <= m_minValue;
    const auto exceeds = [inverted](double a, double b) { return inverted ? a < b : a > b; };
    const auto keepBelow = [exceeds](double &value, double bound) {
        if (exceeds(value, bound))
            value = bound;
    };
    const auto keepAbove = [exceeds](double &value, double bound) {
        if (exceeds(bound, value))
            value = bound;
    };

    if (!m_doubleSlider) {
        keepBelow(m_value[index], m_maxValue);
        keepAbove(m_value[index], m_minValue);
    } else if (index == 0) {
        keepBelow(m_value[0], m_maxValue - m_minDistance);
        keepAbove(m_value[0], m_minValue);
        keepBelow(m_value[1], m_value[0] + m_maxDistance);
        keepAbove(m_value[1], m_value[0] + m_minDistance);
    } else {
        keepBelow(m_value[1], m_maxValue);
        keepAbove(m_value[1], m_minValue + m_minDistance);
        keepAbove(m_value[0], m_value[1] - m_maxDistance);
        keepBelow(m_value[0], m_value[1] - m_minDistance);
    }
}

/// Brings values, handles and labels in line after a change of range, steps or distances.
void ScaleSliderNG::validateRanges(bool ignoreValueChanges)
{
    const Values before = m_value;
    validateValues(0);
    priSetValue(m_value[0], 0);
    priSetValue(m_value[1], 1);
    buildLabelList();
    if (!updateValue(0, true, ignoreValueChanges) || !updateValue(1, true, ignoreValueChanges))
        return;
    update();
    if (ignoreValueChanges)
        return;
    for (int i = 0; i < 2; ++i) {
        if (m_value[i] != before[i] && !emitValueChanged(i))
            return;
    }
}

void ScaleSliderNG::changeValue(double value, int index)
{
    if (isGrabbed())
        return;
    priSetValue(value, index);
    if (emitValueChanging(index))
        emitValueChanged(index);
}

bool ScaleSliderNG::setHandlePosition(int position, int index)
{
    if (isGrabbed())
        return true;
    m_handlePos[index] = ScaleMapping::boundedHandle(position);
    return updateValue(index, true, false);
}

void ScaleSliderNG::changeHandlePosition(int position, int index)
{
    if (setHandlePosition(position, index))
        emitValueChanged(index);
}

bool ScaleSliderNG::emitValueChanging(int index)
{
    const QPointer<ScaleSliderNG> self(this);
    if (index == 0)
        Q_EMIT valueChanging0(m_value[0]);
    else
        Q_EMIT valueChanging1(m_value[1]);
    return !self.isNull();
}

bool ScaleSliderNG::emitValueChanged(int index)
{
    const QPointer<ScaleSliderNG> self(this);
    if (index == 0)
        Q_EMIT valueChanged0(m_value[0]);
    else
        Q_EMIT valueChanged1(m_value[1]);
    return !self.isNull();
}
