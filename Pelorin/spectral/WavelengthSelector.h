#ifndef PELORIN_SPECTRAL_WAVELENGTHSELECTOR_H
#define PELORIN_SPECTRAL_WAVELENGTHSELECTOR_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/spectral/WavelengthSpectrum.h"

#include <QList>
#include <QPoint>
#include <QRect>

#include <array>

/// A rainbow bar with the eight channels of a tunable light source on it: numbered markers, each at
/// its wavelength and as high as its power. The user drags them; ChannelGroup and ChannelSliders
/// speak of the same channels with the same signals.
///
/// Channels are numbered from 0 to 7 and show the numbers 1 to 8. All are disabled at first, at
/// 500 nm and without power; a disabled one is not shown. A channel number that there is not is
/// ignored by all operations. Wavelengths are in nm, and powers have the unit of the power scale.
class PELORIN_EXPORT WavelengthSelector : public WavelengthSpectrum
{
    Q_OBJECT
    Q_PROPERTY(bool curveVisible READ isCurveVisible WRITE setCurveVisibility)
    Q_PROPERTY(bool overdriveVisible READ isOverdriveVisible WRITE setOverdriveVisibility)

public:
    /// The ranges and the \a margin of a WavelengthSpectrum.
    explicit WavelengthSelector(int margin, QWidget *parent = nullptr);

    /// Sets the scale, and the limits of the markers. What the channels have stored stays, also
    /// outside of the new range, until it is set or enabled the next time.
    void setPowerRange(int min, int max) override;
    /// The same for the wavelengths.
    void setWavelengthRange(int min, int max) override;

    /// Whether \a point lies inside the box of the marker of \a channel, and not on its edge. The box
    /// is that of the last paint; a channel that has been disabled since keeps it.
    bool isAboveChannel(int channel, QPoint point) const;

    bool isCurveVisible() const { return m_curveVisible; }
    bool isOverdriveVisible() const { return m_overdriveVisible; }

Q_SIGNALS:
    /// A marker moves in the hand: with each movement of the mouse inside of the widget, also if
    /// the values stay what they were. \a power is rounded.
    void channelChanged(int channel, double wavelength, int power);
    /// A marker was let go, or only clicked.
    void channelSaved(int channel, double wavelength, int power);

public Q_SLOTS:
    // All of these are silent.

    /// Both values, each limited to its range. A wavelength that is not a number is ignored.
    void setChannel(int channel, double wavelength, int power);
    void setChannelPower(int channel, int power);
    void setChannelWavelength(int channel, double wavelength);

    /// Shows or hides the marker, and limits the values of the channel to the ranges as they are
    /// now.
    void enableChannel(int channel, bool enable);

    /// Adds \a dataList to the curve, a value from 0 to 100 for each nm, and lets the whole curve
    /// start at \a startWavelength. What was there before stays.
    void setCurveData(int startWavelength, QList<int> dataList);

    /// Kept for subclasses that draw the curve; this class does not.
    void setCurveVisibility(bool visible);

    /// Shows a warning at the top of the bar that the light source runs at full power.
    void setOverdriveVisibility(bool visible);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    // The steps of a paint, to be called by paintEvent() alone. They draw over what is there.

    /// The markers of the enabled channels, the last one on top.
    void drawChannels();
    /// The warning.
    void drawOverdrive();
    /// The curve, for subclasses: between the bar and the warning is its place.
    void drawCurve();
    /// Nothing; the bar has no grid.
    void drawPowerGrid();

private:
    static constexpr int channelCount = 8;

    struct Channel
    {
        QRect rect; ///< of the box, as painted last
        double power = 0.0;
        double wavelength = 500.0;
        bool enabled = false;
    };

    /// Of what a marker can be set to.
    struct Limits
    {
        int min;
        int max;

        double limited(double value) const { return qBound(double(min), value, double(max)); }
        double span() const { return double(max) - min; }
        int pixelsTo(double value, int length) const;
        double valueAt(double pixels, int length) const;
    };

    Channel *find(int channel);
    void drawMarker(QPainter &painter, int number, Channel &channel) const;

    std::array<Channel, channelCount> m_channels;
    Limits m_power{ 0, 100 };
    Limits m_wavelength{ 300, 950 };
    int m_selected = -1; ///< the channel in the hand
    QPoint m_grab;       ///< the pointer, seen from the middle of the marker
    int m_curveStart = 0;
    QList<int> m_curve;
    bool m_curveVisible = false;
    bool m_overdriveVisible = false;
};

#endif
