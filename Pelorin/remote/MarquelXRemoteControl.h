#ifndef PELORIN_REMOTE_MARQUELXREMOTECONTROL_H
#define PELORIN_REMOTE_MARQUELXREMOTECONTROL_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/remote/LaserValues.h"

#include <QString>
#include <QWidget>

class IndicatorButton;

/// The remote control panel of the third laser model: the start-up of the laser on four buttons, from
/// "Listen" at the bottom to "Output enable", with the tuning of its pulse stretcher above them, and
/// a store of the laser's values.
///
/// The panel follows the state byte of the laser, which comes in by slotFSMStateChanged(), in
/// whatever order the states come. The buttons ask; none of them changes a lamp.
///
/// A slot named slot...Changed takes a report: it stores first and emits then, on every call, whatever
/// the numbers. Units and ranges are the application's. Nothing sets the dynamic wavelength and the
/// four setpoints of the wavelengths: they are 0.
class PELORIN_EXPORT MarquelXRemoteControl : public QWidget, public LaserValues
{
    Q_OBJECT

public:
    /// In state 0, with all buttons disabled.
    explicit MarquelXRemoteControl(QWidget *parent = nullptr);

    /// Whether the state is 6, although sigEmissionStateChanged() tells of emission in state 8 too.
    bool getEmission() const;

    /// The lamp of one button: 0 is off, 1 blinking, any other number on. The next state takes over.
    void setOutputEnableState(int state);
    void setLaserOnState(int state);
    void setStandbyState(int state);
    void setListenState(int state);

Q_SIGNALS:
    void tpsrOptimizationChanged(bool on);
    /// "Output enable" was pressed, or "Laser On", see laserOnClicked().
    void outEnableChanged(bool on);
    /// "Laser On" was pressed, with "Output enable" in sight.
    void laserOnChanged(bool on);
    /// "Standby" was pressed, or "Laser On", see laserOnClicked().
    void standbyChanged(bool on);
    void listenChanged(bool on);
    /// With every state byte: whether the state is 6 or 8.
    void sigEmissionStateChanged(bool on);
    void sigDWLSFeatureChanged(bool enabled);
    void sigMeasuredLaserPowerChanged(double measuredPower, double maximumPower);
    void sigSetpointLaserPowerChanged(double setpoint);
    void sigSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);
    /// Never sent by the panel.
    void sigWriteLaserPowerSetpoint(double setpoint);

public Q_SLOTS:
    /// Shows or hides "Output enable", in spite of its name.
    void enableOutEnableButton(bool enable);
    /// Shows or hides "Pulse stretcher Auto-Tuning".
    void slotTPSRbuttonView(bool isVisible);

    /// The lamp of "Pulse stretcher Auto-Tuning": 0 is off, 1 blinking, any other number on. The
    /// states 7 and 8 leave it alone, the lower ones switch it off.
    void slotTPSRbuttonState(int state);

    /// Stores the byte, sets buttons and lamps for the states 0 to 8 and leaves them alone for any
    /// other, then emits sigEmissionStateChanged(). The same byte may be sent again.
    void slotFSMStateChanged(uchar state);

    void slotDWLSFeatureChanged(bool enabled);
    void slotMeasuredPowerChanged(double measuredPower, double maximumPower);
    void slotSetpointLaserPowerChanged(double setpoint);
    void slotSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);

    /// A press of "Laser On". It emits laserOnChanged(). Where "Output enable" is hidden it takes its
    /// place in the start-up: outEnableChanged() up to state 3, standbyChanged() above.
    void laserOnClicked(bool on);

private:
    uchar m_fsmState = 0;
    IndicatorButton *m_tpsrButton;
    IndicatorButton *m_outputEnableButton;
    IndicatorButton *m_laserOnButton;
    IndicatorButton *m_standbyButton;
    IndicatorButton *m_listenButton;
};

#endif
