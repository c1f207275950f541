#include "Pelorin/sliders/ScaleSliderNG.h"

#include "Pelorin/sliders/ScaleAxis_p.h"
#include "Pelorin/sliders/ScaleMapping_p.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

/// Tab walks through the handles of a double slider and leaves it only from the last one.
bool ScaleSliderNG::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_doubleSlider && hasFocus()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool forward = key == Qt::Key_Tab && m_focused[0];
        const bool backward = key == Qt::Key_Backtab && m_focused[1];
        if (forward || backward) {
            m_focused = { backward, forward };
            updateHandles();
            return true;
        }
    }
    if (event->type() == QEvent::LayoutDirectionChange)
        updateAll(); // the labels of a vertical scale are aligned by it
    return QWidget::event(event);
}

void ScaleSliderNG::mousePressEvent(QMouseEvent *event)
{
    m_grabbed = {};
    setFocus(Qt::OtherFocusReason);
    const QPoint position = event->localPos().toPoint();
    for (int i = 0; i < 2; ++i) {
        if (isEnabled() && isAboveHandle(position, i))
            grabHandle(i, position);
    }
    if (!isGrabbed()) {
        updateHandles();
        return;
    }
    // Overlapping handles are both in the hand until the drag tells which one is meant.
    const bool both = m_grabbed[0] && m_grabbed[1];
    m_focused = both ? Flags() : m_grabbed;
    updateHandles();
    Q_EMIT handleGrapped();
}

void ScaleSliderNG::mouseReleaseEvent(QMouseEvent *event)
{
    if (!isGrabbed())
        return;
    if (!settleValue(0) || !settleValue(1))
        return;
    m_grabbed = {};
    const QPoint position = event->localPos().toPoint();
    for (int i = 0; i < 2; ++i)
        m_hovered[i] = m_hovered[i] && isAboveHandle(position, i);
    updateHandles();
}

void ScaleSliderNG::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->localPos().toPoint();
    if (isGrabbed() && !dragHandles(position))
        return;
    for (int i = 0; i < 2; ++i)
        m_hovered[i] = !isGrabbed() && isAboveHandle(position, i);
    updateHandles();
}

void ScaleSliderNG::keyPressEvent(QKeyEvent *event)
{
    const bool increase = event->key() == axis().increaseKey();
    const bool decrease = event->key() == axis().decreaseKey();
    if (increase || decrease) {
        const int handleStep = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
        const QPointer<ScaleSliderNG> self(this);
        for (int i = 0; i < 2 && self; ++i) {
            if (hasFocus() && m_focused[i])
                stepHandle(i, increase, handleStep);
        }
        if (!self)
            return;
    }
    QWidget::keyPressEvent(event);
}

/// The keyboard comes in from the side of the tab chain that it left on: one handle after the
/// other.
void ScaleSliderNG::focusInEvent(QFocusEvent *event)
{
    if (event->reason() == Qt::TabFocusReason) {
        const bool second = m_doubleSlider && m_focused[0];
        m_focused = { !second, second };
    } else if (event->reason() == Qt::BacktabFocusReason) {
        const bool second = m_doubleSlider && !m_focused[1];
        m_focused = { !second, second };
    }
    updateHandles();
    QWidget::focusInEvent(event);
}

void ScaleSliderNG::focusOutEvent(QFocusEvent *event)
{
    m_focused = {};
    updateHandles();
    QWidget::focusOutEvent(event);
}

void ScaleSliderNG::leaveEvent(QEvent *)
{
    for (int i = 0; i < 2; ++i)
        m_hovered[i] = m_hovered[i] && m_grabbed[i];
    updateHandles();
}

/// The outermost ring of pixels belongs to the outline of a handle and does not count.
bool ScaleSliderNG::isAboveHandle(QPoint position, int index) const
{
    const QRect rect = getHandleRect(index);
    return position.x() > rect.left() && position.x() < rect.right() && position.y() > rect.top()
           && position.y() < rect.bottom();
}

void ScaleSliderNG::grabHandle(int index, QPoint position)
{
    m_grabbed[index] = true;
    m_pressPos = position;
    m_pressHandle[index] = m_handlePos[index];
    m_pressValue = m_value;
    setFocus(Qt::OtherFocusReason);
}

/// The way is always taken from the press, so that no rounding gathers.
bool ScaleSliderNG::dragHandles(QPoint position)
{
    const int way = axis().rise(m_pressPos, position);
    if (m_grabbed[0] && m_grabbed[1]) {
        // Overlapping handles part in the direction of the drag.
        const int released = way > 0 ? 0 : 1;
        m_grabbed[released] = false;
        m_focused[released] = false;
    }
    const double moved = double(way) / m_trackLength * ScaleMapping::handleMax;
    for (int i = 0; i < 2; ++i) {
        if (!m_grabbed[i])
            continue;
        m_handlePos[i] =
            ScaleMapping::boundedHandle(double(m_pressHandle[i]) + saturatedRound(moved));
        if (!updateValue(i, false, false))
            return false;
    }
    return true;
}

/// The end of a drag: a step type lands on a step now, and a value that was really changed is
/// reported.
bool ScaleSliderNG::settleValue(int index)
{
    if (m_value[index] == m_pressValue[index])
        return true;
    priSetValue(m_value[index], index);
    return m_value[index] == m_pressValue[index] || emitValueChanged(index);
}

void ScaleSliderNG::stepHandle(int index, bool increase, int handleStep)
{
    if (hasSteps() && isKnownType())
        changeValue(increase ? nextStepValue(index) : prevStepValue(index), index);
    else
        changeHandlePosition(m_handlePos[index] + (increase ? handleStep : -handleStep), index);
}

QRect ScaleSliderNG::getHandleRect(int index) const
{
    if (index != 0 && !(index == 1 && m_doubleSlider))
        return QRect();
    const QPoint offset = axis().point(pixelOffset(m_handlePos[index]), 0);
    return QRect(m_trackRect.topLeft() + offset, QSize(m_handleSize, m_handleSize));
}
