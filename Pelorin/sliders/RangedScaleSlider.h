#ifndef PELORIN_SLIDERS_RANGEDSCALESLIDER_H
#define PELORIN_SLIDERS_RANGEDSCALESLIDER_H

#include "Pelorin/PelorinGlobal.h"

#include <QLabel>
#include <QPoint>
#include <QRectF>

#include <memory>

class QPainter;
struct HandleTravel;

/// A horizontal slider of the first generation with two handles, for the two ends of a sweep. Start
/// and stop have ranges of their own, and each handle can be fixed. New dialogs take a double
/// ScaleSliderNG, which has one range and keeps the distance of its values.
///
/// Values are in the unit of the application. A position is held in pixels: in the left edge of its
/// handle. The scale runs from the lower end of the start range to the upper end of the stop range
/// and reaches outwards to round numbers. It is there as soon as both ranges make a span that
/// rises; until then there are no labels, and the handles rest at the left end when they are
/// placed.
///
/// | Cause | Signals |
/// |---|---|
/// | Press on a handle | startHandleGrapped() or stopHandleGrapped() |
/// | Mouse move in a drag | startHandleMoved() or stopHandleMoved(), if the step was accepted |
/// | Release | startHandleFinishedMoving() or stopHandleFinishedMoving(), always |
/// | Wheel | startHandleMoved(), stopHandleMoved(), each if that end was placed; then, |
/// |  | always, startHandleFinishedMoving(), stopHandleFinishedMoving() |
/// | setCurrentStartValue() | stopHandleFinishedMoving(), if the stop was dragged along |
/// | setCurrentStopValue() | startHandleFinishedMoving(), if the start was dragged along |
///
/// While a handle is held, values can be set: the handle moves under the hand, and a drag goes on
/// from there. A handle that is held while the slider is disabled is let go in silence when the
/// slider is enabled again and the mouse comes back without a button.
///
/// The text of the label plays no part. A not-a-number is ignored wherever a value is set, an
/// infinite value is clamped like any other, and a range that is not finite is ignored as a whole.
class PELORIN_EXPORT RangedScaleSlider : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int sideMargins READ sideMargins WRITE setSideMargins)
    Q_PROPERTY(double nudge READ nudge WRITE setNudge)

public:
    /// At least 150 pixels wide and 60 pixels high, without ranges and with both values at 0.
    explicit RangedScaleSlider(QWidget *parent = nullptr);
    ~RangedScaleSlider() override;

    /// The start value.
    double currentValueMin() const { return m_start.value; }
    /// The stop value.
    double currentValueMax() const { return m_stop.value; }

    /// Free pixels at both ends of the track. The handles follow at the next update of their
    /// position.
    void setSideMargins(int pixels);
    int sideMargins() const { return m_sideMargins; }

    /// The way of both values under one notch of the wheel. With 0 or less, or no finite number,
    /// the wheel does nothing and goes on to the parent.
    void setNudge(double step);
    double nudge() const { return m_nudge; }

    /// The value with the left edge of a handle at \a x, in widget coordinates, as a drag finds it.
    /// Not clamped.
    double accordingValue(int x) const;

public Q_SLOTS:
    /// The range of the start value; its lower end is the one of the scale. Values and handles stay
    /// until something moves them. Silent. Of ends given the wrong way round, the lower one binds.
    void setStartRange(double minValue, double maxValue);
    /// The range of the stop value; its upper end is the one of the scale. Else as setStartRange().
    void setStopRange(double minValue, double maxValue);

    /// Stores the start value, clamped to the start range; ignored if the start is fixed. With
    /// \a adjustStop, a stop value below it is dragged along and reported by
    /// stopHandleFinishedMoving(), even if it is fixed or leaves its own range. Without, the
    /// crossing stays, in silence.
    void setCurrentStartValue(double value, bool adjustStop);
    /// The same for the stop value, the stop range, \a adjustStart and startHandleFinishedMoving().
    void setCurrentStopValue(double value, bool adjustStart);

    /// Places the start at \a value, clamped to the start range, and with \a enable holds it there
    /// against mouse, wheel and setCurrentStartValue(); the handle is then grey. Silent.
    void setFixedStart(bool enable, double value);
    /// The same for the stop.
    void setFixedStop(bool enable, double value);

Q_SIGNALS:
    /// The start is moving, in a drag or under the wheel.
    void startHandleMoved(double value);
    /// The stop is moving, in a drag or under the wheel.
    void stopHandleMoved(double value);
    /// The start has settled, at the same value perhaps.
    void startHandleFinishedMoving(double value);
    /// The stop has settled, at the same value perhaps.
    void stopHandleFinishedMoving(double value);
    /// The start handle was taken by the mouse.
    void startHandleGrapped();
    /// The stop handle was taken by the mouse.
    void stopHandleGrapped();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    enum class Which { None, Start, Stop };
    struct Handle
    {
        QRectF rect;
        double min = 0.0;
        double max = 0.0;
        double value = 0.0;
        bool fixed = false;
    };
    struct Picture;

    Handle &handle(Which which) { return which == Which::Start ? m_start : m_stop; }
    const Handle &handle(Which which) const { return which == Which::Start ? m_start : m_stop; }
    HandleTravel travel() const;

    // Values and scale
    void setRange(Handle &handle, double min, double max);
    void calculateLabelValues();
    void setCurrentValue(Which which, double value, bool adjustOther);
    void setFixed(Which which, bool enable, double value);
    void placeHandle(Handle &handle);
    void readValue(Handle &handle) const;

    // Input
    Which isAboveHandle(QPoint position) const;
    void forgetLostDrag(Qt::MouseButtons heldBefore);
    void dragStart(int x);
    void dragStop(int x);
    void takeDragStep(Handle &handle, double left, int x);
    bool nudgeStart(double way);
    bool nudgeStop(double way);
    bool placeAndReport(Which which, double value);
    void emitMoved(Which which);
    void emitFinishedMoving(Which which);

    // Painting
    QRgb color(Which which) const;
    void updateHandles();
    void updateAll();
    void drawScale(QPainter &painter) const;
    double labelValue(int index) const;

    Handle m_start;
    Handle m_stop;
    Which m_hovered = Which::None;
    int m_sideMargins = 0;
    double m_labelStart = 0.0;
    double m_labelEnd = 0.0;
    int m_labelIntervals = 0;
    Which m_grabbed = Which::None;
    bool m_releaseMayBeLost = false;
    int m_lastX = 0;
    double m_nudge = 0.0;
    std::unique_ptr<Picture> m_picture;
};

#endif
