#ifndef PELORIN_SLIDERS_SCALESLIDERNG_H
#define PELORIN_SLIDERS_SCALESLIDERNG_H

#include "Pelorin/PelorinGlobal.h"

#include <QList>
#include <QMap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

#include <array>
#include <memory>

class QPainter;
class ScaleAxis;

/// A slider with one or two handles on a linear or square-root scale, continuous or over a list of
/// allowed values, with ticks and computed labels. High values stand at the right or at the top.
///
/// Values are in the unit of the application. Handle positions are in handle units: integers from 0
/// to 100000 over the travel of a handle, whatever the range and the scale. Two rules follow from
/// that and are part of the contract:
///
/// - When range, steps or distances change, a handle keeps its place and its value follows: 50 on 0
/// to
///   100 becomes 100 on 0 to 200. Who wants to keep the value sets it again afterwards.
/// - An arrow key moves the handle by one handle unit (ten with Shift); the value follows when
/// enough
///   units have gathered for its rounding.
///
/// Slots named `set...` store in silence, slots named `change...` store and report. While the
/// operator holds a handle, no slot moves it: a reading never tears it out of the hand.
///
/// Order of the signals, where \e i is 0 or 1:
///
/// | Cause | Signals |
/// |---|---|
/// | Press on a handle | handleGrapped() |
/// | Mouse move in a drag | valueChanging0(), valueChanging1(), each only if that value changed |
/// | Release | valueChanged0(), valueChanged1(), each only if not as at the press |
/// | Arrow key, continuous | valueChanging\e i if the value changed, then valueChanged\e i always |
/// | Arrow key, steps | valueChanging\e i, then valueChanged\e i, always |
/// | setRange(), setDoubleRange() | valueChanging0(), valueChanging1(), then valueChanged0(), |
/// | setSteps(), setDoubleSlider() | valueChanged1(), each only if changed |
///
/// The second value exists, is validated and reported on changes of the range also when the slider
/// has one handle; it is then neither drawn nor reached by mouse or keyboard.
///
/// The wheel does nothing here and goes on to the parent, so that a scrolled panel never changes a
/// setpoint.
///
/// A not-a-number is ignored wherever a value is set, an infinite value is clamped like any other;
/// a range, distance or step list that is not finite is ignored as a whole (but for an infinite
/// largest distance, which means that there is none).
class PELORIN_EXPORT ScaleSliderNG : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(bool doubleSlider READ isDoubleSlider WRITE setDoubleSlider)
    Q_PROPERTY(double minimum READ minimum STORED false)
    Q_PROPERTY(double maximum READ maximum STORED false)
    Q_PROPERTY(double value0 READ value0 WRITE setValue0 USER true)
    Q_PROPERTY(double value1 READ value1 WRITE setValue1)
    Q_PROPERTY(int valuePrecision READ valuePrecision WRITE setValuePrecision)
    Q_PROPERTY(int sideMargins READ sideMargins WRITE setSideMargins)
    Q_PROPERTY(int labelDigits READ labelDigits WRITE setLabelDigits)
    Q_PROPERTY(int labelDecimalDigits READ labelDecimalDigits WRITE setLabelDecimalDigits)
    Q_PROPERTY(int labelRoundingDigits READ labelRoundingDigits WRITE setLabelRoundingDigits)
    Q_PROPERTY(bool hideHandleOnDisable READ hideHandleOnDisable WRITE setHideHandleOnDisable)

public:
    /// Bit 1 selects the square-root scale, bit 0 the list of steps. Any other number maps every
    /// handle to 0.0 and every value to handle 0, stores no value and leaves the labels as they
    /// were.
    enum ScaleType : int {
        ScaleLinear = 0,      ///< linear, continuous, over the range of setRange()
        ScaleLinearSteps = 1, ///< linear, over the steps of setSteps()
        ScaleSqrt = 2,        ///< square root, continuous, over the range of setRange()
        ScaleSqrtSteps = 3    ///< square root, over the steps of setSteps()
    };
    Q_ENUM(ScaleType)

    /// One tick of the scale with its label.
    struct tLabelItem
    {
        QRect rect;   ///< where the label sits, in widget coordinates
        QString text; ///< the label; empty for a minor tick
    };

    /// A single slider over 0 to 100 at 0, in the normal size, with labels and without a frame. The
    /// step types begin with the steps 0, 12, 25, 81, 100.
    ScaleSliderNG(Qt::Orientation orientation, ScaleSliderNG::ScaleType type, QWidget *parent);
    ~ScaleSliderNG() override;

    /// Rebuilds layout and labels. Values and handles stay until something moves them.
    void setScaleType(ScaleSliderNG::ScaleType type);
    ScaleSliderNG::ScaleType scaleType() const { return m_scaleType; }

    /// Measures the labels with the widget's font, fixes the thickness of the widget, gives it a
    /// minimum length of 150 pixels and lays it out anew. Runs once more at the first show, with
    /// the font that the widget really has on the screen.
    void setOrientation(Qt::Orientation orientation);
    Qt::Orientation orientation() const { return m_orientation; }

    /// Whether the second handle exists.
    void setDoubleSlider(bool on);
    bool isDoubleSlider() const { return m_doubleSlider; }

    /// The decimals to which a handle that is moved rounds its value. A value that is set keeps all
    /// its digits, and a value already held is not rounded.
    void setValuePrecision(int decimals) { m_valuePrecision = decimals; }
    int valuePrecision() const { return m_valuePrecision; }

    double value0() const { return m_value[0]; }
    double value1() const { return m_value[1]; }
    /// The lower end of the scale; above maximum() when the range was given the wrong way round.
    double minimum() const { return m_minValue; }
    /// The upper end of the scale.
    double maximum() const { return m_maxValue; }

    bool hideHandleOnDisable() const { return m_hideHandleOnDisable; }

    /// Free pixels at both ends of a horizontal slider; a vertical one has none.
    void setSideMargins(int pixels);
    int sideMargins() const { return m_sideMargins; }

    /// Applies a size preset and says whether ticks and labels, and an outline over the track, are
    /// drawn. Without labels the widget keeps its full thickness. The thickness of the widget
    /// follows with the next setOrientation(), at the latest at the first show.
    void setSliderSize(bool small, bool labels, bool frame);

    /// Applies the normal or the small size preset, with its font.
    void initSliderSize(bool small);

    /// The number of characters for which the scale makes room beside a vertical track and between
    /// the labels of a horizontal one. The room is measured with the next setOrientation(), at the
    /// latest at the first show.
    void setLabelDigits(int digits);
    int labelDigits() const { return m_labelDigits; }

    /// The decimals of the two end labels.
    void setLabelDecimalDigits(int decimals);
    int labelDecimalDigits() const { return m_labelDecimalDigits; }

    /// The decimals of all labels between the two end labels.
    void setLabelRoundingDigits(int decimals);
    int labelRoundingDigits() const { return m_labelRoundingDigits; }

    /// Lays track, ticks and labels out in the present size of the widget. Unlike the operation of
    /// QWidget that it hides, it does not resize the widget.
    void adjustSize();

    /// 1024 pixels along the scale, the fixed thickness across it.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Stores the value, clamped to the range and to the distance from the other one, which yields;
    /// the step types take the nearest step. Not rounded. Silent. Refused while a handle is held.
    void setValue0(double value);
    void setValue1(double value);

    /// As setValue0() and setValue1(), then reports valueChanging and valueChanged with the stored
    /// value, also when it did not change. Refused, and silent, while a handle is held.
    void changeValue0(double value);
    void changeValue1(double value);

    /// Moves the handle to \a position, clamped to 0 to 100000, rounds the value to
    /// valuePrecision() or snaps it to a step, and emits valueChanging for each value that changed.
    /// Refused while a handle is held.
    void setHandlePosition0(int position);
    void setHandlePosition1(int position);

    /// As setHandlePosition0() and setHandlePosition1(), then valueChanged, always: also while a
    /// handle is held, when the move itself is refused.
    void changeHandlePosition0(int position);
    void changeHandlePosition1(int position);

    /// The ends of a continuous scale; ignored by the step types. The handles keep their places,
    /// the values follow. With \a ignoreValueChanges nothing is emitted. Ends given the wrong way
    /// round are tolerated: the scale then falls. Between equal ends the values stay at that one
    /// point.
    void setRange(double min, double max, bool ignoreValueChanges = false);

    /// The smallest and the largest distance of the two values; the smallest wins. The handles keep
    /// their places as far as they may. With \a ignoreValueChanges nothing is emitted.
    void setDoubleRange(double min, double max, bool ignoreValueChanges = false);

    /// The allowed values of a step type, in ascending order; their ends become the range. Ignored
    /// by the continuous types. An empty list leaves the range 0 to 0, a single entry the range
    /// from that entry to 0.
    void setSteps(QList<double> steps);

    /// A disabled slider draws no handle.
    void setHideHandleOnDisable(bool hide);

    /// The upper bound on the divisions of a continuous scale, 2 at the least, which leaves the two
    /// end labels. The labels follow with the next change of size, range or label digits.
    void setMaxLabels(int maxLabels);

Q_SIGNALS:
    /// The value is moving: in a drag, under a key, or by a slot that says so.
    void valueChanging0(double value);
    void valueChanging1(double value);

    /// The value has settled.
    void valueChanged0(double value);
    void valueChanged1(double value);

    /// A handle was taken by the mouse.
    void handleGrapped();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    using Flags = std::array<bool, 2>;
    using Values = std::array<double, 2>;

    enum class HandleLook { Disabled, Active, Hovered, Idle };
    /// What the operator sees of a handle; a null rectangle stands for no handle.
    struct HandleView
    {
        QRect rect;
        HandleLook look = HandleLook::Idle;
    };
    struct Layers;

    // Value model, in values and handle units. What emits and returns a bool returns false if a
    // listener has deleted the slider.
    bool isKnownType() const;
    bool hasSteps() const;
    bool isGrabbed() const { return m_grabbed[0] || m_grabbed[1]; }
    int value2Handle(double value) const;
    double handle2Value(int handle) const;
    double nearestStepValue(double value) const;
    double prevStepValue(int index) const;
    double nextStepValue(int index) const;
    void priSetValue(double value, int index);
    bool updateValue(int index, bool snapToStep, bool silent);
    void validateValues(int index);
    void validateRanges(bool ignoreValueChanges);
    void changeValue(double value, int index);
    bool setHandlePosition(int position, int index);
    void changeHandlePosition(int position, int index);
    bool emitValueChanging(int index);
    bool emitValueChanged(int index);

    // Input
    bool isAboveHandle(QPoint position, int index) const;
    void grabHandle(int index, QPoint position);
    bool dragHandles(QPoint position);
    bool settleValue(int index);
    void stepHandle(int index, bool increase, int handleStep);

    // Layout and labels
    ScaleAxis axis() const;
    int pixelOffset(int handle) const;
    QRect getHandleRect(int index) const;
    void buildLabelList();
    void addEndLabel(int key, double value);
    void addDivisionLabels();
    void addStepLabels();
    int divisions() const;
    tLabelItem labelItem(int key, double value, int decimals) const;
    void setLabelRect(int key, tLabelItem &item) const;
    void setLabelSize(QSize size, tLabelItem &item) const;

    // Painting
    HandleView handleView(int index) const;
    void updateHandles();
    void updateAll();
    void drawTrack(QPainter &painter) const;
    void drawHandles(QPainter &painter);
    void drawHandle(QPainter &painter, HandleLook look) const;
    void drawScale(QPainter &painter) const;
    void drawLabel(QPainter &painter, int key, const tLabelItem &item, int center) const;
    void drawFrame(QPainter &painter) const;

    int m_sliderThickness = 35;
    int m_handleSize = 35;
    int m_cornerRadius = 6;
    int m_scaleWidth = 5;
    int m_minorTickBase = 5;
    int m_fontSize = 10;
    Qt::Orientation m_orientation;
    bool m_showLabels = true;
    bool m_showFrame = false;
    bool m_orientationPending = true;
    int m_sideMargins = 0;
    bool m_hideHandleOnDisable = false;
    int m_maxLabels = 10;
    double m_minValue = 0.0;
    double m_maxValue = 100.0;
    Values m_value = {};
    ScaleType m_scaleType;
    QList<double> m_steps = { 0.0, 12.0, 25.0, 81.0, 100.0 };
    int m_valuePrecision = 1;
    bool m_doubleSlider = false;
    double m_minDistance = 0.0;
    double m_maxDistance = 50.0;
    int m_labelWidth = 0;
    int m_labelHeight = 0;
    int m_labelDigits = 7;
    int m_labelDecimalDigits = 0;
    int m_labelRoundingDigits = 1;
    QRect m_trackRect;
    QRect m_scaleRect;
    QRect m_labelRect;
    QPoint m_pressPos;
    std::array<int, 2> m_pressHandle = {};
    Values m_pressValue = {};
    std::array<int, 2> m_handlePos = {};
    int m_trackLength = 0;
    Flags m_hovered = {};
    Flags m_grabbed = {};
    Flags m_focused = {};
    QMap<int, tLabelItem> m_labels;
    std::array<HandleView, 2> m_shownHandles;
    std::unique_ptr<Layers> m_layers;
};

#endif
