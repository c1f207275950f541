#include "Pelorin/remote/OstrelRemoteControl.h"

#include "Pelorin/remote/PanelParts_p.h"
#include "Pelorin/remote/StateTable_p.h"

namespace {

using namespace StateTable;

enum Column : std::size_t { OutputEnable, LaserOn, Standby, Listen, ColumnCount };

constexpr std::array<Indicator::Color, ColumnCount> blinkColors{ {
    Indicator::Red,    // output enable
    Indicator::Red,    // laser on
    Indicator::Orange, // standby
    Indicator::Orange, // listen, though it is green when on
} };

// clang-format off
constexpr std::array<Row<ColumnCount>, 7> states{ {
    //   Output enable  Laser On         Standby          Listen
    { { disabledOff,   disabledOff,     disabledOff,     disabledOff } }, // 0
    { { disabledOff,   disabledOff,     enabledOff,      enabledOn   } }, // 1
    { { disabledOff,   disabledOff,     enabledBlinking, enabledOff  } }, // 2
    { { disabledOff,   enabledOff,      enabledOn,       enabledOff  } }, // 3
    { { disabledOff,   enabledBlinking, enabledOff,      enabledOff  } }, // 4
    { { enabledOff,    enabledOn,       enabledOff,      enabledOff  } }, // 5
    { { enabledOn,     enabledOn,       enabledOff,      enabledOff  } }, // 6
} };
// clang-format on

constexpr uchar emitting = 6;
/// Above it the laser has been switched on.
constexpr uchar standingBy = 3;

} // namespace

OstrelRemoteControl::OstrelRemoteControl(QWidget *parent)
    : QWidget(parent)
    , m_outputEnableButton(PanelParts::makeEmissionButton(
          tr("Output\nenable"), QStringLiteral("Toggle output on/off"), this))
    , m_laserOnButton(PanelParts::makeButton(tr("Laser On"), Indicator::Red, this))
    , m_standbyButton(PanelParts::makeButton(tr("Standby"), Indicator::Orange, this))
    , m_listenButton(PanelParts::makeButton(tr("Listen"), Indicator::Green, this))
{
    using Panel = OstrelRemoteControl;
    connect(m_outputEnableButton, &IndicatorButton::toggled, this, &Panel::outEnableChanged);
    connect(m_laserOnButton, &IndicatorButton::toggled, this, &Panel::laserOnClicked);
    connect(m_standbyButton, &IndicatorButton::toggled, this, &Panel::standbyChanged);
    connect(m_listenButton, &IndicatorButton::toggled, this, &Panel::listenChanged);
    PanelParts::layOutColumn(
        this, { m_outputEnableButton, m_laserOnButton, m_standbyButton, m_listenButton });
    slotFSMStateChanged(0);
}

bool OstrelRemoteControl::getEmission() const
{
    return m_fsmState == emitting;
}

void OstrelRemoteControl::setOutputEnableState(int state)
{
    showLamp(*m_outputEnableButton, state, blinkColors[OutputEnable]);
}

void OstrelRemoteControl::setLaserOnState(int state)
{
    showLamp(*m_laserOnButton, state, blinkColors[LaserOn]);
}

void OstrelRemoteControl::setStandbyState(int state)
{
    showLamp(*m_standbyButton, state, blinkColors[Standby]);
}

void OstrelRemoteControl::setListenState(int state)
{
    showLamp(*m_listenButton, state, blinkColors[Listen]);
}

void OstrelRemoteControl::enableOutEnableButton(bool enable)
{
    m_outputEnableButton->setVisible(enable);
}

void OstrelRemoteControl::slotFSMStateChanged(uchar state)
{
    m_fsmState = state;
    applyState(states, state,
               { { m_outputEnableButton, m_laserOnButton, m_standbyButton, m_listenButton } },
               blinkColors);
    Q_EMIT sigEmissionStateChanged(state == emitting);
}

void OstrelRemoteControl::slotDWLSFeatureChanged(bool enabled)
{
    m_dwlsFeature = enabled;
    Q_EMIT sigDWLSFeatureChanged(enabled);
}

void OstrelRemoteControl::slotDWLSSetpointsChanged(double setpointIR, double setpointSHG,
                                                   double setpointTHG, double setpointFHG)
{
    storeDWLSSetpoints(setpointIR, setpointSHG, setpointTHG, setpointFHG);
    Q_EMIT sigDWLSSetpointsChanged(setpointIR, setpointSHG, setpointTHG, setpointFHG);
}

void OstrelRemoteControl::slotDynamicWavelengthChanged(uchar wavelength)
{
    m_dynamicWavelength = wavelength;
    Q_EMIT sigDynamicWavelengthChanged(wavelength);
}

void OstrelRemoteControl::slotMeasuredPowerChanged(double measuredPower, double maximumPower)
{
    storeMeasuredPower(measuredPower, maximumPower);
    Q_EMIT sigMeasuredLaserPowerChanged(measuredPower, maximumPower);
}

void OstrelRemoteControl::slotSetpointLaserPowerChanged(double setpoint)
{
    m_setpointLaserPower = setpoint;
    Q_EMIT sigSetpointLaserPowerChanged(setpoint);
}

void OstrelRemoteControl::slotSetpointLaserPowerRangeChanged(double min, double max, int dec,
                                                             QString unit)
{
    storeSetpointRange(min, max, dec, unit);
    Q_EMIT sigSetpointLaserPowerRangeChanged(min, max, dec, unit);
}

void OstrelRemoteControl::slotWriteDWLSFeature(bool enabled)
{
    m_dwlsFeature = enabled;
    Q_EMIT sigWriteDWLSFeature(enabled);
}

void OstrelRemoteControl::slotWriteDWLSSetpoints()
{
    Q_EMIT sigWriteDWLSSetpoints();
}

void OstrelRemoteControl::slotWriteDynamicWavelength(uchar wavelength)
{
    m_dynamicWavelength = wavelength;
    Q_EMIT sigWriteDynamicWavelength(wavelength);
}

void OstrelRemoteControl::slotWriteLaserPowerSetpoint(double setpoint)
{
    m_setpointLaserPower = setpoint;
    Q_EMIT sigWriteLaserPowerSetpoint(setpoint);
}

void OstrelRemoteControl::laserOnClicked(bool on)
{
    if (m_outputEnableButton->isHidden() && m_fsmState > standingBy)
        Q_EMIT standbyChanged(on);
    else
        Q_EMIT outEnableChanged(on);
}
