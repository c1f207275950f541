#ifndef PELORIN_REMOTE_REMOTECONTROL_H
#define PELORIN_REMOTE_REMOTECONTROL_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

class IndicatorButton;

/// The plain remote control panel: a button that switches the emission, with a lamp, and a held
/// emission state, power level and current level. OstrelRemoteControl, MarquelRemoteControl and
/// MarquelXRemoteControl are the panels of the laser models, and no subclasses of this one.
///
/// A change is named by where it comes from: RC is the operator at this panel, LS is the application,
/// which reports what is. A press is a request and leaves the lamp as it is; the lamp shows what
/// setEmissionLS() reports. Levels are plain numbers, in whatever unit the application uses.
///
/// All signals go out before the value is stored, so that a receiver finds the old one by the getters.
class PELORIN_EXPORT RemoteControl : public QWidget
{
    Q_OBJECT

public:
    /// Emission off, both levels 0.
    explicit RemoteControl(QWidget *parent = nullptr);

    /// What was requested or reported last.
    bool getEmission() const { return m_emission; }
    double getPowerLevel() const { return m_powerLevel; }
    double getCurrentLevel() const { return m_currentLevel; }

Q_SIGNALS:
    /// The operator asks for \a on. A press of the button sends it twice, before and after
    /// emissionChangedByRC().
    void emissionChanged(bool on);
    /// The application reports \a on, after emissionChangedByLS().
    void emissionStateUpdated(bool on);
    void emissionChangedByLS(bool on);
    void powerChangedByLS(ushort power);
    void currentChangedByLS(ushort current);
    void emissionChangedByRC(bool on);
    void powerChangedByRC(ushort power);
    void currentChangedByRC(ushort current);

public Q_SLOTS:
    /// As setEmissionLS().
    void setEmission(bool on);
    /// As setEmissionPartialLS().
    void setEmissionPartial(bool on, bool partial_on);

    /// The emission is \a on: emits emissionChangedByLS(), then emissionStateUpdated(), also when
    /// nothing has changed, and sets the lamp. A lamp that blinks goes on to blink.
    void setEmissionLS(bool on);

    /// As setEmissionLS(), and the lamp blinks in orange while \a partial_on says that only some of
    /// the sources emit. Both are shown before the signals go out, the state after them.
    void setEmissionPartialLS(bool on, bool partial_on);

    /// The level is \a power: emits powerChangedByLS() if it was another one. The other three
    /// work alike; both origins share one value.
    void setPowerLevelLS(ushort power);
    void setCurrentLevelLS(ushort current);

    /// The operator asks for \a on: emits emissionChangedByRC(), then emissionChanged(), also when
    /// nothing has changed. The lamp waits for the report.
    void setEmissionRC(bool on);
    void setPowerLevelRC(ushort power);
    void setCurrentLevelRC(ushort current);

private:
    void showColors();
    void reportEmission(bool on);
    void changeLevel(ushort &level, ushort value, void (RemoteControl::*changed)(ushort));

    IndicatorButton *m_emissionButton;
    bool m_emission = false;
    ushort m_powerLevel = 0;
    ushort m_currentLevel = 0;
};

#endif
