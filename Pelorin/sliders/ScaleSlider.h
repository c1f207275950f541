#ifndef PELORIN_SLIDERS_SCALESLIDER_H
#define PELORIN_SLIDERS_SCALESLIDER_H

#include "Pelorin/PelorinGlobal.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QVector>
#include <QWidget>

#include <limits>
#include <memory>

class CachedLayer;
struct HandleTravel;

/// A horizontal slider with one handle and a labelled scale, of the first generation. ComboSlider
/// is built on it, and it is the one slider with a true logarithmic scale. New panels take
/// ScaleSliderNG.
///
/// All values that come and go are real ones. On a logarithmic scale they are kept as exponents of
/// ten, and a value of 0 or less counts as lower than any other.
///
/// The handle takes the mouse only: no key and no wheel moves it. A value that is set from outside
/// moves it at any time, also in a drag.
class PELORIN_EXPORT ScaleSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double currentValue READ currentValue WRITE setCurrentValue USER true)

public:
    enum ScaleType {
        LinearScale,      ///< labels with the decimals of setPrecision()
        LogarithmicScale, ///< labels with two significant digits, or decades
        StepScale, ///< the entries of the step list at equal distances, labelled as whole numbers
        StepScaleInterpolated ///< the same, with labels interpolated between the ends
    };
    Q_ENUM(ScaleType)

    /// From 0 to 100, linear, at 0.
    explicit ScaleSlider(QWidget *parent = nullptr);
    ~ScaleSlider() override;

    double currentValue() const;

    /// The entry of the step list that lies nearest to \a value, the upper one in the exact middle.
    /// \a value itself on a scale without steps, and with fewer than two steps.
    double nearestStepValue(double value) const;

    /// The index of the step that lies nearest to \a value, the upper one in the exact middle. The
    /// last one if \a value lies outside of the steps; with fewer than two steps, their number less
    /// one.
    int steplistIndexOf(double value) const;

    /// What the scale tells at the handle's left edge \a x; an exponent on a logarithmic scale. Not
    /// limited to the range.
    double accordingValue(int x) const;

    /// Keeps \a pixels free at both ends, at most as many as a widget can have. The handle follows
    /// when its value is set the next time.
    void setSideMargins(int pixels);

    /// Kept for the caller; it changes nothing here.
    void setNudge(double step);

    /// At most so many parts between the labels of a linear or logarithmic scale, counted when the
    /// range or the width changes the next time. 4 and less are ignored.
    void setMaxLabelIntervals(unsigned int intervals);

    /// On a scale of steps: with \a ticks or fewer of them, all are labelled. With more, only the
    /// ends; with StepScale and a positive \a ticks, each so many-th besides, so that about \a ticks
    /// labels stand there. The sign aside, it says how many there may be; -1 to 1 are ignored.
    void setMaxStepTicks(int ticks);

    /// Labels a logarithmic scale at its ends and at the whole decades between. Counts when the
    /// range or the width changes the next time; set the range first.
    void setTraditionalLogarithmicScale(bool on);

Q_SIGNALS:
    /// The mouse has moved with the handle in the hand, also when the value stayed what it was.
    void handleMoved(double value);
    /// The handle was let go.
    void handleFinishedMoving(double value);
    /// The handle was taken.
    void handleGrapped();
    /// Declared for those who listen to it; the wheel does nothing here.
    void wheelMoved(int direction);

public Q_SLOTS:
    /// The range of a linear or logarithmic scale. A scale of steps has the range of its list, and
    /// keeps it. Neither value nor handle move. Ignored if one of the two is not finite.
    void setRange(double minValue, double maxValue);

    /// Puts the handle at \a currentValue, on a scale of steps at the nearest one, within the
    /// range. Emits nothing. Not-a-number is ignored.
    void setCurrentValue(double currentValue);

    /// The same with the number that \a currentValueString tells, 0 if it tells none.
    void setCurrentValueString(QString currentValueString);

    /// setRange(), then setCurrentValue().
    void setAll(double minValue, double maxValue, double currentValue);

    /// Takes another scale. Range and value are not converted: set them again.
    void setScaleType(ScaleSlider::ScaleType type);

    /// The steps, in ascending order; on a logarithmic scale exponents. Two and more of them set
    /// the range, fewer are only kept. A list with a number that is not finite is ignored.
    void setStepList(QList<double> list);

    /// The decimals of the labels on a linear scale.
    void setPrecision(int precision);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Label
    {
        int x;
        QString text;
    };

    bool hasSteps() const;
    bool hasDecades() const;
    double realValue(double stored) const;
    HandleTravel travel() const;

    void dragTo(int x);
    void updateValue();
    void updateHandle();
    void moveHandle(double left);
    void setHovered(bool hovered);
    void updateScale();

    void calculateLabelValues();
    void calculateRoundLabels();
    double calculateLabelWidth(double value) const;
    double clamped(double value) const;

    QVector<Label> labels() const;
    QVector<Label> decadeLabels() const;
    bool isLabelled(int index) const;
    QString labelText(int index, double value) const;
    void drawScale(QPainter &painter) const;

    int m_fontHeight;
    int m_charWidth;
    QRectF m_handleRect;
    bool m_hovered = false;
    int m_sideMargins = 0;
    bool m_traditionalLogarithmicScale = false;
    double m_minValue = 0.0;
    double m_maxValue = 100.0;
    double m_value = 0.0;
    int m_precision = 1;
    double m_labelStart = 0.0;
    double m_labelEnd = 100.0;
    double m_labelIntervals = 0.0;
    double m_labelWidth = 35.0;
    int m_maxStepTicks = -10;
    unsigned int m_maxLabelIntervals = std::numeric_limits<unsigned int>::max();
    bool m_grabbed = false;
    bool m_releaseMayBeLost = false;
    int m_lastX = 0;
    bool m_grabAllowed = true;
    double m_nudge = 0.0;
    ScaleType m_scaleType = LinearScale;
    QList<double> m_stepList{ 0.0, 100.0 };
    std::unique_ptr<CachedLayer> m_stillLayer;
};

#endif
