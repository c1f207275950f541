#ifndef PELORIN_SPECTRAL_CHANNELSLIDERS_H
#define PELORIN_SPECTRAL_CHANNELSLIDERS_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

class Button;
class ComboSlider;
class ComboSliderScale;
class ComboSliderUnit;

/// One channel of a tunable light source in detail: on and off, power in percent and wavelength in nm
/// on combined sliders, and a button to close the panel. It takes what the instrument reports by its
/// setters, which are silent; one signal may be connected to the panels of all channels.
class PELORIN_EXPORT ChannelSliders : public QWidget
{
    Q_OBJECT

public:
    /// The panel of \a channel, counted from 0: 0 to 100 percent, 400 to 750 nm.
    explicit ChannelSliders(int channel, QWidget *parent = nullptr);
    ~ChannelSliders() override;

    int channel() const { return m_channel; }

    // Kept for the application; 0 before.
    int crystal() const { return m_crystal; }
    int profile() const { return m_profile; }
    void setCrystal(int crystal) { m_crystal = crystal; }
    void setProfile(int profile) { m_profile = profile; }

Q_SIGNALS:
    /// The operator closes the panel; \a enable is always false.
    void closeClicked(int channel, bool enable);
    /// The operator switches the channel on or off.
    void enableChanged(int channel, bool enabled);
    /// One of the two values was set; both come. The power is cut to a whole number.
    void channelChanged(int channel, double wavelength, int power);

public Q_SLOTS:
    /// Shows both values, unless it is told of another channel.
    void setChannel(int channel, double wavelength, int power);
    /// Shows whether the channel is on, unless it is told of another one.
    void enableChannel(int channel, bool enabled);
    /// Emits enableChanged().
    void emitEnabledChanged(bool enabled);
    /// Emits channelChanged() with the values of both sliders; \a value is not looked at.
    void emitChannelChanged(double value);
    /// The ends of the wavelength slider in nm. The value is pulled into it in silence.
    void setWavelengthRange(double min, double max);
    /// The ends of the power slider in percent, likewise.
    void setPowerRange(double min, double max);

private Q_SLOTS:
    void closeClicked();

private:
    ComboSlider *makeSlider(const QString &title, ComboSliderScale *&scale, ComboSliderUnit *unit);

    int m_channel;
    int m_profile = 0;
    int m_crystal = 0;
    Button *m_enableButton;
    ComboSlider *m_powerSlider;
    ComboSliderScale *m_powerScale = nullptr;
    ComboSliderUnit *m_powerUnit;
    ComboSlider *m_wavelengthSlider;
    ComboSliderScale *m_wavelengthScale = nullptr;
    ComboSliderUnit *m_wavelengthUnit;
};

#endif
