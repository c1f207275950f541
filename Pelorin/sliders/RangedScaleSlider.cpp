#include "Pelorin/sliders/RangedScaleSlider.h"

#include "Pelorin/sliders/HandleTravel_p.h"
#include "Pelorin/sliders/NiceStep_p.h"
#include "Pelorin/theme/CachedLayer_p.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <array>
#include <utility>

namespace {

constexpr int smallestWidth = 150;
constexpr int fixedHeight = 60;
constexpr int labelDistance = 100;

} // namespace

/// What stands still in a drag, and the handles as they were painted last.
struct RangedScaleSlider::Picture
{
    struct Shown
    {
        QRectF rect;
        QRgb color = 0;
    };

    CachedLayer still;
    std::array<Shown, 2> handles;
};

RangedScaleSlider::RangedScaleSlider(QWidget *parent)
    : QLabel(parent)
    , m_picture(std::make_unique<Picture>())
{
    m_start.rect = HandleTravel::restingHandle();
    m_stop.rect = HandleTravel::restingHandle();
    setMinimumWidth(smallestWidth);
    setFixedHeight(fixedHeight);
    setMouseTracking(true);
}

RangedScaleSlider::~RangedScaleSlider() = default;

void RangedScaleSlider::setSideMargins(int pixels)
{
    m_sideMargins = qBound(-QWIDGETSIZE_MAX, pixels, QWIDGETSIZE_MAX);
    updateAll();
}

void RangedScaleSlider::setNudge(double step)
{
    m_nudge = qIsFinite(step) ? step : 0.0;
}

double RangedScaleSlider::accordingValue(int x) const
{
    return travel().valueAt(x);
}

void RangedScaleSlider::setStartRange(double minValue, double maxValue)
{
    setRange(m_start, minValue, maxValue);
}

void RangedScaleSlider::setStopRange(double minValue, double maxValue)
{
    setRange(m_stop, minValue, maxValue);
}

void RangedScaleSlider::setCurrentStartValue(double value, bool adjustStop)
{
    setCurrentValue(Which::Start, value, adjustStop);
}

void RangedScaleSlider::setCurrentStopValue(double value, bool adjustStart)
{
    setCurrentValue(Which::Stop, value, adjustStart);
}

void RangedScaleSlider::setFixedStart(bool enable, double value)
{
    setFixed(Which::Start, enable, value);
}

void RangedScaleSlider::setFixedStop(bool enable, double value)
{
    setFixed(Which::Stop, enable, value);
}

HandleTravel RangedScaleSlider::travel() const
{
    return { width(), m_sideMargins, m_labelStart, m_labelEnd };
}

void RangedScaleSlider::setRange(Handle &handle, double min, double max)
{
    if (!qIsFinite(min) || !qIsFinite(max))
        return;
    handle.min = min;
    handle.max = max;
    calculateLabelValues();
}

void RangedScaleSlider::calculateLabelValues()
{
    const int labels = std::max((width() - HandleTravel::handleSize) / labelDistance, 1);
    const NiceScale scale = niceScale(m_start.min, m_stop.max, labels);
    m_labelStart = scale.start;
    m_labelEnd = scale.end;
    m_labelIntervals = int(scale.intervals);
    updateAll();
}

void RangedScaleSlider::setCurrentValue(Which which, double value, bool adjustOther)
{
    Handle &own = handle(which);
    if (own.fixed || qIsNaN(value))
        return;
    own.value = qBound(own.min, value, own.max);
    placeHandle(own);
    if (!adjustOther || m_start.value <= m_stop.value)
        return;
    const Which otherOne = which == Which::Start ? Which::Stop : Which::Start;
    Handle &other = handle(otherOne);
    other.value = own.value;
    placeHandle(other);
    emitFinishedMoving(otherOne);
}

void RangedScaleSlider::setFixed(Which which, bool enable, double value)
{
    handle(which).fixed = false;
    setCurrentValue(which, value, false);
    handle(which).fixed = enable;
    updateHandles();
}

void RangedScaleSlider::placeHandle(Handle &handle)
{
    handle.rect.moveLeft(travel().leftOf(handle.value));
    updateHandles();
}

/// Takes the value from a handle that was dragged. The stop is clamped to the start range like the
/// start.
void RangedScaleSlider::readValue(Handle &handle) const
{
    handle.value = qBound(m_start.min, travel().valueAt(handle.rect.left()), m_start.max);
}

void RangedScaleSlider::mousePressEvent(QMouseEvent *event)
{
    forgetLostDrag(event->buttons() & ~event->button());
    const Which which = isAboveHandle(event->pos());
    if (which == Which::None || handle(which).fixed || !isEnabled())
        return;
    m_grabbed = which;
    m_releaseMayBeLost = false;
    m_lastX = event->x();
    updateHandles();
    if (which == Which::Start)
        Q_EMIT startHandleGrapped();
    else
        Q_EMIT stopHandleGrapped();
}

void RangedScaleSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_grabbed == Which::None)
        return;
    const Which held = std::exchange(m_grabbed, Which::None);
    if (isAboveHandle(event->pos()) == Which::None)
        m_hovered = Which::None;
    updateHandles();
    emitFinishedMoving(held);
}

void RangedScaleSlider::mouseMoveEvent(QMouseEvent *event)
{
    forgetLostDrag(event->buttons());
    if (m_grabbed == Which::Start) {
        dragStart(event->x());
    } else if (m_grabbed == Which::Stop) {
        dragStop(event->x());
    } else {
        m_hovered = isAboveHandle(event->pos());
        updateHandles();
    }
}

/// Shifts both ends, each as far as it may.
void RangedScaleSlider::wheelEvent(QWheelEvent *event)
{
    if (!(m_nudge > 0.0)) {
        event->ignore();
        return;
    }
    event->accept();
    const double way = m_nudge * (event->angleDelta().y() / QWheelEvent::DefaultDeltasPerStep);
    if (!nudgeStart(way) || !nudgeStop(way))
        return;
    const QPointer<RangedScaleSlider> self(this);
    emitFinishedMoving(Which::Start);
    if (self)
        emitFinishedMoving(Which::Stop);
}

void RangedScaleSlider::leaveEvent(QEvent *)
{
    if (m_grabbed == Which::None)
        m_hovered = Which::None;
    updateHandles();
}

void RangedScaleSlider::hideEvent(QHideEvent *event)
{
    m_releaseMayBeLost = true;
    QLabel::hideEvent(event);
}

void RangedScaleSlider::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        m_releaseMayBeLost = true;
    else if (event->type() == QEvent::LayoutDirectionChange)
        updateAll(); // it rules how a negative number is written
    QLabel::changeEvent(event);
}

void RangedScaleSlider::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    calculateLabelValues();
    placeHandle(m_start);
    placeHandle(m_stop);
}

/// Where the handles overlap, the start lies below and is taken all the same.
RangedScaleSlider::Which RangedScaleSlider::isAboveHandle(QPoint position) const
{
    if (HandleTravel::isInside(m_start.rect, position))
        return Which::Start;
    return HandleTravel::isInside(m_stop.rect, position) ? Which::Stop : Which::None;
}

/// A slider that is disabled or hidden while a handle is held does not hear of the release.
void RangedScaleSlider::forgetLostDrag(Qt::MouseButtons heldBefore)
{
    if (!m_releaseMayBeLost || heldBefore != Qt::NoButton)
        return;
    m_releaseMayBeLost = false;
    m_grabbed = Which::None;
    updateHandles();
}

void RangedScaleSlider::dragStart(int x)
{
    if (m_start.fixed)
        return;
    const double left = m_start.rect.left() + (double(x) - m_lastX);
    const double value = travel().valueAt(std::trunc(left));
    if (value >= m_start.min && m_start.max >= value && m_stop.value >= value) {
        takeDragStep(m_start, left, x);
    } else if (value < m_start.min && m_start.value != m_start.min) {
        m_start.value = m_start.min;
        m_lastX = x;
    } else if (value > m_stop.value && m_start.value != m_start.max) {
        m_start.value = m_stop.value; // lastX stays: the way back has to be made up for
    } else {
        return;
    }
    Q_EMIT startHandleMoved(m_start.value);
}

void RangedScaleSlider::dragStop(int x)
{
    if (m_stop.fixed)
        return;
    const double left = m_stop.rect.left() + (double(x) - m_lastX);
    const double value = travel().valueAt(std::trunc(left));
    if (value >= m_start.value && value >= m_stop.min && m_stop.max >= value) {
        takeDragStep(m_stop, left, x);
    } else if (value < m_stop.value && m_stop.value != m_stop.min) {
        m_stop.value = m_start.value; // as with the start
    } else if (value > m_stop.max && m_stop.value != m_stop.max) {
        m_stop.value = m_stop.max;
        m_lastX = x;
    } else {
        return;
    }
    Q_EMIT stopHandleMoved(m_stop.value);
}

/// Where all places stand for the same value, the handle stays in view.
void RangedScaleSlider::takeDragStep(Handle &handle, double left, int x)
{
    if (travel().isOpen())
        handle.rect.moveLeft(left);
    readValue(handle);
    m_lastX = x;
    updateHandles();
}

/// False if a listener has deleted the slider.
bool RangedScaleSlider::nudgeStart(double way)
{
    if (m_start.fixed)
        return true;
    const double value = m_start.value + way;
    if (value >= m_start.min && value <= m_start.max && value <= m_stop.value)
        return placeAndReport(Which::Start, value);
    if (value < m_start.min && m_start.value != m_start.min
        && !placeAndReport(Which::Start, m_start.min))
        return false;
    if (value > m_stop.value && m_start.value != m_start.max)
        return placeAndReport(Which::Start, m_stop.value);
    return true;
}

/// False if a listener has deleted the slider.
bool RangedScaleSlider::nudgeStop(double way)
{
    if (m_stop.fixed)
        return true;
    const double value = m_stop.value + way;
    if (value >= m_start.value && value >= m_stop.min && value <= m_stop.max)
        return placeAndReport(Which::Stop, value);
    if (value < m_stop.value && m_stop.value != m_stop.min
        && !placeAndReport(Which::Stop, m_start.value))
        return false;
    if (value > m_stop.max && m_stop.value != m_stop.max)
        return placeAndReport(Which::Stop, m_stop.max);
    return true;
}

/// False if a listener has deleted the slider.
bool RangedScaleSlider::placeAndReport(Which which, double value)
{
    const QPointer<RangedScaleSlider> self(this);
    handle(which).value = value;
    placeHandle(handle(which));
    emitMoved(which);
    return !self.isNull();
}

void RangedScaleSlider::emitMoved(Which which)
{
    if (which == Which::Start)
        Q_EMIT startHandleMoved(m_start.value);
    else
        Q_EMIT stopHandleMoved(m_stop.value);
}

void RangedScaleSlider::emitFinishedMoving(Which which)
{
    if (which == Which::Start)
        Q_EMIT startHandleFinishedMoving(m_start.value);
    else
        Q_EMIT stopHandleFinishedMoving(m_stop.value);
}

void RangedScaleSlider::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_picture->still.draw(painter, QPoint(), size(), [this](QPainter &layer) {
        drawScale(layer);
        travel().drawTrack(layer);
    });
    // Qt repaints for reasons of its own as well
    m_picture->handles = { Picture::Shown{ m_start.rect, color(Which::Start) },
                           Picture::Shown{ m_stop.rect, color(Which::Stop) } };
    for (const Picture::Shown &shown : m_picture->handles) {
        if (event->region().intersects(HandleTravel::bounds(shown.rect)))
            HandleTravel::drawHandle(painter, shown.rect, shown.color);
    }
}

QRgb RangedScaleSlider::color(Which which) const
{
    const bool movable = isEnabled() && !handle(which).fixed;
    return HandleTravel::color(movable, m_hovered == which || m_grabbed == which);
}

/// Repaints where a handle was and where it is now, and nothing if it still looks the same.
void RangedScaleSlider::updateHandles()
{
    for (const Which which : { Which::Start, Which::Stop }) {
        Picture::Shown &shown = m_picture->handles[which == Which::Start ? 0 : 1];
        const Picture::Shown now{ handle(which).rect, color(which) };
        const Picture::Shown before = std::exchange(shown, now);
        if (now.rect == before.rect && now.color == before.color)
            continue;
        update(HandleTravel::bounds(before.rect));
        update(HandleTravel::bounds(now.rect));
    }
}

void RangedScaleSlider::updateAll()
{
    m_picture->still.invalidate();
    update();
}

void RangedScaleSlider::drawScale(QPainter &painter) const
{
    if (m_labelIntervals == 0)
        return;
    constexpr int tickTop = HandleTravel::handleSize;
    constexpr int tickBottom = 40;
    painter.setFont(QFont(QStringLiteral("Calibri"), 10, -1, false));
    painter.setPen(QColor::fromRgba(Palette::text));
    const qint64 way = width() - 1 - HandleTravel::handleSize - 2 * m_sideMargins;
    for (int i = 0; i <= m_labelIntervals; ++i) {
        const int x = m_sideMargins + int(way * i / m_labelIntervals);
        const int tick = x + HandleTravel::handleMiddle;
        painter.drawLine(tick, tickTop, tick, tickBottom);
        painter.drawText(QRect(QPoint(x - 3, 45), QPoint(x + 36, 59)), Qt::AlignHCenter,
                         QString::number(labelValue(i), 'g', 6));
    }
}

/// A zero between the ends reads "0", whatever is left of it by rounding.
double RangedScaleSlider::labelValue(int index) const
{
    constexpr double noise = 1.0e-12;
    const double span = m_labelEnd - m_labelStart;
    const double value = m_labelStart + span * index / m_labelIntervals;
    return std::abs(value) < span * noise ? 0.0 : value;
}
