#ifndef PELORIN_REMOTE_OSTRELREMOTECONTROL_H
#define PELORIN_REMOTE_OSTRELREMOTECONTROL_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/remote/LaserValues.h"

#include <QString>
#include <QWidget>

class IndicatorButton;

/// The remote control panel of the first laser model: the start-up of the laser on four buttons,
/// from "Listen" at the bottom to "Output enable" at the top, and a store of the laser's values.
///
/// The panel follows the state byte of the laser, which comes in by slotFSMStateChanged(), in
/// whatever order the states come. The buttons ask; none of them changes a lamp.
///
/// A slot named slot...Changed takes a report, slotWrite... a request of the application; both store
/// first and emit then, on every call, whatever the numbers. Units and ranges are the application's.
class PELORIN_EXPORT OstrelRemoteControl : public QWidget, public LaserValues
{
    Q_OBJECT

public:
    /// In state 0, with all buttons disabled.
    explicit OstrelRemoteControl(QWidget *parent = nullptr);

    /// Whether the state is 6.
    bool getEmission() const;

    /// The lamp of one button: 0 is off, 1 blinking, any other number on. The next state takes over.
    void setOutputEnableState(int state);
    void setLaserOnState(int state);
    void setStandbyState(int state);
    void setListenState(int state);

Q_SIGNALS:
    /// "Output enable" was pressed, or "Laser On", see laserOnClicked().
    void outEnableChanged(bool on);
    /// Never sent by the panel.
    void laserOnChanged(bool on);
    /// "Standby" was pressed, or "Laser On", see laserOnClicked().
    void standbyChanged(bool on);
    void listenChanged(bool on);
    /// With every state byte: whether the state is 6.
    void sigEmissionStateChanged(bool on);
    void sigDWLSFeatureChanged(bool enabled);
    void sigDWLSSetpointsChanged(double setpointIR, double setpointSHG, double setpointTHG,
                                 double setpointFHG);
    void sigDynamicWavelengthChanged(uchar wavelength);
    void sigMeasuredLaserPowerChanged(double measuredPower, double maximumPower);
    void sigSetpointLaserPowerChanged(double setpoint);
    void sigSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);
    void sigWriteDWLSFeature(bool enabled);
    /// The setpoints are read by the getters.
    void sigWriteDWLSSetpoints();
    void sigWriteDynamicWavelength(uchar wavelength);
    void sigWriteLaserPowerSetpoint(double setpoint);

public Q_SLOTS:
    /// Shows or hides "Output enable", in spite of its name.
    void enableOutEnableButton(bool enable);

    /// Stores the byte, sets all buttons and lamps for the states 0 to 6 and leaves them alone for
    /// any other, then emits sigEmissionStateChanged(). The same byte may be sent again.
    void slotFSMStateChanged(uchar state);

    void slotDWLSFeatureChanged(bool enabled);
    void slotDWLSSetpointsChanged(double setpointIR, double setpointSHG, double setpointTHG,
                                  double setpointFHG);
    void slotDynamicWavelengthChanged(uchar wavelength);
    void slotMeasuredPowerChanged(double measuredPower, double maximumPower);
    void slotSetpointLaserPowerChanged(double setpoint);
    void slotSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);
    void slotWriteDWLSFeature(bool enabled);
    void slotWriteDWLSSetpoints();
    void slotWriteDynamicWavelength(uchar wavelength);
    void slotWriteLaserPowerSetpoint(double setpoint);

    /// A press of "Laser On". It emits outEnableChanged(); only where "Output enable" is hidden, and
    /// the state is above 3, it takes its place in the start-up and emits standbyChanged().
    void laserOnClicked(bool on);

private:
    uchar m_fsmState = 0;
    IndicatorButton *m_outputEnableButton;
    IndicatorButton *m_laserOnButton;
    IndicatorButton *m_standbyButton;
    IndicatorButton *m_listenButton;
};

#endif
