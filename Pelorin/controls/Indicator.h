#ifndef PELORIN_CONTROLS_INDICATOR_H
#define PELORIN_CONTROLS_INDICATOR_H

#include "Pelorin/PelorinGlobal.h"

#include <QRgb>
#include <QTimer>
#include <QWidget>

/// A lamp: a disc or a triangle in one colour, steady, blinking or flashing once. It takes no
/// input. A disabled lamp is grey; a blinking one goes on to blink when it is enabled again.
///
/// Times are in milliseconds, sizes in pixels. Sizes that a widget cannot have are bounded, times
/// below one millisecond count as one.
class PELORIN_EXPORT Indicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(uint color READ color WRITE setColor)
    Q_PROPERTY(bool border READ hasBorder WRITE setBorder)
    Q_PROPERTY(Form form READ form WRITE setForm)

public:
    /// Alpha, red, green and blue, as 0xAARRGGBB.
    using Color = QRgb;

    static constexpr Color Red = 0xFFFF0000;
    static constexpr Color Grey = 0xFF555555; ///< off
    static constexpr Color Orange = 0xFFF58B2E;
    static constexpr Color Green = 0xFF95D400;

    enum Form : int {
        Round = 0,
        TriangleUp = 1,
        TriangleDown = 2 ///< as any other number
    };
    Q_ENUM(Form)

    /// A round grey lamp, 20 x 20, without border.
    explicit Indicator(QWidget *parent = nullptr);

    Indicator::Color color() const { return m_color; }
    bool hasBorder() const { return m_border; }
    Form form() const { return m_form; }

public Q_SLOTS:
    /// Fixes width and height.
    void setSize(int size);
    /// Fixes width and height. A disc is as large as the width.
    void setSize(int w, int h);

    /// The colour while it does not blink, and of every other half period while it does.
    void setColor(Indicator::Color color);

    /// A black outline, for the disc only. Shown with the next repaint.
    void setBorder(bool on);

    /// Blinks between color() and \a color with a half period of \a interval, beginning with
    /// \a color, or goes back to color(). Ends a flash.
    void setBlink(bool blink, int interval = 500, Indicator::Color color = Grey);

    /// Shows \a color for \a pulseWidth, once. Ends the blinking.
    void setOneShoot(int pulseWidth = 250, Indicator::Color color = Grey);

    /// Shown with the next repaint.
    void setForm(Indicator::Form form);

    /// The timer's own: changes to the other half period, and ends a flash.
    void toggleBlink();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void startBlinking(int interval, Color color);
    Color shownColor() const;

    Color m_color = Grey;
    Color m_blinkColor = Grey;
    Form m_form = Round;
    bool m_blink = false;
    bool m_oneShot = false;
    bool m_border = false;
    bool m_blinkPhase = false;
    QTimer m_timer;
};

#endif
