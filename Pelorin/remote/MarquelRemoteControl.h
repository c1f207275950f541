#ifndef PELORIN_REMOTE_MARQUELREMOTECONTROL_H
#define PELORIN_REMOTE_MARQUELREMOTECONTROL_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/remote/LaserValues.h"

#include <QString>
#include <QWidget>

class IndicatorButton;

/// The remote control panel of the second laser model: a button that switches the emission, with a
/// lamp, and a store of the laser's values.
///
/// A slot named slot...Changed takes a report, slotWrite... a request; both store first and emit
/// then, on every call, whatever the numbers. Units and ranges are the application's. Emission is the
/// exception: a request stores nothing, and state and lamp change with the report alone.
class PELORIN_EXPORT MarquelRemoteControl : public QWidget, public LaserValues
{
    Q_OBJECT

public:
    /// Emission off.
    explicit MarquelRemoteControl(QWidget *parent = nullptr);

    /// What was reported last.
    bool getEmission() const { return m_emission; }

Q_SIGNALS:
    /// With every report, after state and lamp are set.
    void sigEmissionStateChanged(bool on);
    void sigDWLSFeatureChanged(bool enabled);
    void sigDWLSSetpointsChanged(double setpointIR, double setpointSHG, double setpointTHG,
                                 double setpointFHG);
    void sigDynamicWavelengthChanged(uchar wavelength);
    void sigMeasuredLaserPowerChanged(double measuredPower, double maximumPower);
    void sigSetpointLaserPowerChanged(double setpoint);
    void sigSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);
    /// The operator asks for \a on.
    void sigWriteEmissionState(bool on);
    void sigWriteDWLSFeature(bool enabled);
    /// The setpoints are read by the getters.
    void sigWriteDWLSSetpoints();
    void sigWriteDynamicWavelength(uchar wavelength);
    void sigWriteLaserPowerSetpoint(double setpoint);

public Q_SLOTS:
    void slotEmissionChanged(bool on);
    void slotDWLSFeatureChanged(bool enabled);
    void slotDWLSSetpointsChanged(double setpointIR, double setpointSHG, double setpointTHG,
                                  double setpointFHG);
    void slotDynamicWavelengthChanged(uchar wavelength);
    void slotMeasuredPowerChanged(double measuredPower, double maximumPower);
    void slotSetpointLaserPowerChanged(double setpoint);
    void slotSetpointLaserPowerRangeChanged(double min, double max, int dec, QString unit);

    /// No wavelength is selected: whoever switches emission on is warned first. Silent; off at first.
    void slotSetNoHarmonicWavelengthWarning(bool enable);

    /// A press of the button. Emits sigWriteEmissionState(); with the warning set, \a on waits for the
    /// operator's answer to a modal dialog and is dropped with Cancel. The button has turned round all
    /// the same, so that the next press asks for off. Each dialog stays a child of the panel.
    void slotWriteEmissionState(bool on);

    void slotWriteDWLSFeature(bool enabled);
    void slotWriteDWLSSetpoints();
    void slotWriteDynamicWavelength(uchar wavelength);
    void slotWriteLaserPowerSetpoint(double setpoint);

private:
    bool warningNoHarmonicWavelength();

    IndicatorButton *m_emissionButton;
    bool m_emission = false;
    bool m_noHarmonicWavelengthWarning = false;
};

#endif
