#include "Pelorin/sliders/ScaleSlider.h"

#include "Pelorin/sliders/HandleTravel_p.h"
#include "Pelorin/sliders/NearestStep_p.h"
#include "Pelorin/theme/CachedLayer_p.h"
#include "Pelorin/theme/Rounding_p.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

/// What is not above zero has no logarithm, and lies below all that has one.
double exponentOf(double value)
{
    return value > 0.0 ? std::log10(value) : -qInf();
}

} // namespace

ScaleSlider::ScaleSlider(QWidget *parent)
    : QWidget(parent)
    , m_handleRect(HandleTravel::restingHandle())
    , m_stillLayer(std::make_unique<CachedLayer>())
{
    const QFontMetrics metrics(QFont(QStringLiteral("Calibri"), 10, -1, false));
    m_fontHeight = metrics.height();
    m_charWidth = metrics.horizontalAdvance(QLatin1Char('0'));
    setMinimumWidth(150);
    setFixedHeight(m_fontHeight + 39);
    setMouseTracking(true);
    setRange(m_minValue, m_maxValue);
}

ScaleSlider::~ScaleSlider() = default;

double ScaleSlider::currentValue() const
{
    return realValue(m_value);
}

double ScaleSlider::nearestStepValue(double value) const
{
    return hasSteps() ? nearestStep(m_stepList, value) : value;
}

int ScaleSlider::steplistIndexOf(double value) const
{
    const int last = m_stepList.size() - 1;
    for (int i = 0; i < last; ++i) {
        const double lower = m_stepList.at(i);
        const double upper = m_stepList.at(i + 1);
        if (lower <= value && value <= upper)
            return upper - value > value - lower ? i : i + 1;
    }
    return last;
}

double ScaleSlider::accordingValue(int x) const
{
    return travel().valueAt(x);
}

void ScaleSlider::setSideMargins(int pixels)
{
    m_sideMargins = qBound(-QWIDGETSIZE_MAX, pixels, QWIDGETSIZE_MAX);
    updateScale();
}

void ScaleSlider::setNudge(double step)
{
    m_nudge = step;
}

void ScaleSlider::setMaxLabelIntervals(unsigned int intervals)
{
    if (intervals > 4)
        m_maxLabelIntervals = intervals;
}

void ScaleSlider::setMaxStepTicks(int ticks)
{
    if (ticks >= -1 && ticks <= 1)
        return;
    m_maxStepTicks = ticks;
    updateScale();
}

void ScaleSlider::setTraditionalLogarithmicScale(bool on)
{
    m_traditionalLogarithmicScale = on;
    updateScale();
}

void ScaleSlider::setRange(double minValue, double maxValue)
{
    if (!qIsFinite(minValue) || !qIsFinite(maxValue))
        return;
    const bool logarithmic = m_scaleType == LogarithmicScale;
    if (!hasSteps()) {
        m_minValue = logarithmic ? exponentOf(minValue) : minValue;
        m_maxValue = logarithmic ? exponentOf(maxValue) : maxValue;
    }
    calculateLabelValues();
}

void ScaleSlider::setCurrentValue(double currentValue)
{
    if (qIsNaN(currentValue))
        return;
    const bool logarithmic = m_scaleType == LogarithmicScale;
    m_value = clamped(logarithmic ? exponentOf(currentValue) : nearestStepValue(currentValue));
    updateHandle();
}

void ScaleSlider::setCurrentValueString(QString currentValueString)
{
    setCurrentValue(currentValueString.toDouble());
}

void ScaleSlider::setAll(double minValue, double maxValue, double currentValue)
{
    setRange(minValue, maxValue);
    setCurrentValue(currentValue);
}

void ScaleSlider::setScaleType(ScaleSlider::ScaleType type)
{
    m_scaleType = type;
    calculateLabelValues();
}

void ScaleSlider::setStepList(QList<double> list)
{
    if (!std::all_of(list.cbegin(), list.cend(), [](double step) { return qIsFinite(step); }))
        return;
    m_stepList = std::move(list);
    updateScale();
    if (m_stepList.size() < 2)
        return;
    m_minValue = m_stepList.first();
    m_maxValue = m_stepList.last();
    calculateLabelValues();
}

void ScaleSlider::setPrecision(int precision)
{
    m_precision = precision;
    updateScale();
}

void ScaleSlider::mousePressEvent(QMouseEvent *event)
{
    if (!m_grabAllowed || !HandleTravel::isInside(m_handleRect, event->pos()))
        return;
    m_grabbed = true;
    m_releaseMayBeLost = false;
    m_lastX = event->pos().x();
    update(HandleTravel::bounds(m_handleRect));
    Q_EMIT handleGrapped();
}

void ScaleSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_grabbed)
        return;
    m_grabbed = false;
    setHovered(HandleTravel::isInside(m_handleRect, event->pos()));
    update(HandleTravel::bounds(m_handleRect));
    Q_EMIT handleFinishedMoving(currentValue());
}

void ScaleSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (m_releaseMayBeLost && event->buttons() == Qt::NoButton)
        m_grabbed = false; // let go while the slider was disabled
    m_releaseMayBeLost = m_releaseMayBeLost && m_grabbed;
    if (m_grabbed) {
        const QPointer<ScaleSlider> self(this);
        dragTo(event->pos().x());
        Q_EMIT handleMoved(currentValue());
        if (!self)
            return;
    }
    setHovered(HandleTravel::isInside(m_handleRect, event->pos()));
}

/// The wheel belongs to nobody behind the slider either.
void ScaleSlider::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void ScaleSlider::leaveEvent(QEvent *)
{
    if (!m_grabbed)
        setHovered(false);
}

void ScaleSlider::resizeEvent(QResizeEvent *)
{
    calculateLabelValues();
    updateHandle();
}

/// A slider that is hidden or disabled in the hand does not hear of the release.
void ScaleSlider::hideEvent(QHideEvent *event)
{
    m_releaseMayBeLost = m_grabbed;
    QWidget::hideEvent(event);
}

void ScaleSlider::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        m_releaseMayBeLost = m_grabbed;
    QWidget::changeEvent(event);
}

bool ScaleSlider::hasSteps() const
{
    return m_scaleType == StepScale || m_scaleType == StepScaleInterpolated;
}

bool ScaleSlider::hasDecades() const
{
    return m_scaleType == LogarithmicScale && m_traditionalLogarithmicScale;
}

double ScaleSlider::realValue(double stored) const
{
    return m_scaleType == LogarithmicScale ? std::pow(10.0, stored) : stored;
}

HandleTravel ScaleSlider::travel() const
{
    return { width(), m_sideMargins, m_labelStart, m_labelEnd };
}

double ScaleSlider::clamped(double value) const
{
    return qBound(m_minValue, value, m_maxValue);
}

/// Takes the handle to where the hand has moved it, at most to the end of the range.
void ScaleSlider::dragTo(int x)
{
    const HandleTravel way = travel();
    if (!way.isOpen())
        return;
    const double left = m_handleRect.left() + (x - m_lastX);
    const double aimed = way.valueAt(std::trunc(left));
    if (m_minValue <= aimed && aimed <= m_maxValue) {
        moveHandle(left);
        updateValue();
        m_lastX = x;
    } else if (aimed < m_minValue && m_value != m_minValue) {
        m_value = m_minValue;
        m_lastX = x;
        updateHandle();
    } else if (aimed > m_maxValue && m_value != m_maxValue) {
        m_value = m_maxValue;
        m_lastX = x;
        updateHandle();
    }
}

/// The value under the handle. With steps the value goes in leaps while the handle glides.
void ScaleSlider::updateValue()
{
    const HandleTravel way = travel();
    double value = way.valueAt(m_handleRect.left());
    if (hasSteps() && m_stepList.size() > 1) {
        const double part = (m_handleRect.left() - m_sideMargins) / way.length();
        const int index = saturatedRound(part * m_labelIntervals);
        value = m_stepList.at(qBound(0, index, m_stepList.size() - 1));
    }
    m_value = clamped(value);
}

void ScaleSlider::updateHandle()
{
    const HandleTravel way = travel();
    if (!hasSteps()) {
        moveHandle(way.leftOf(m_value));
        return;
    }
    const bool open = way.length() > 0.0 && m_labelIntervals > 0.0;
    const double stride = open ? way.length() / m_labelIntervals : 0.0;
    const int index = std::max(0, steplistIndexOf(m_value));
    moveHandle(saturatedRound(m_sideMargins + index * stride));
}

void ScaleSlider::moveHandle(double left)
{
    const QRect before = HandleTravel::bounds(m_handleRect);
    m_handleRect.moveLeft(left);
    update(before);
    update(HandleTravel::bounds(m_handleRect));
}

void ScaleSlider::setHovered(bool hovered)
{
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    update(HandleTravel::bounds(m_handleRect));
}

void ScaleSlider::updateScale()
{
    m_stillLayer->invalidate();
    update();
}
