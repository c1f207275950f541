#include "Pelorin/remote/MarquelXRemoteControl.h"

#include "Pelorin/remote/PanelParts_p.h"
#include "Pelorin/remote/StateTable_p.h"

namespace {

using namespace StateTable;

enum Column : std::size_t { PulseStretcher, OutputEnable, LaserOn, Standby, Listen, ColumnCount };

constexpr std::array<Indicator::Color, ColumnCount> blinkColors{ {
    Indicator::Orange, // pulse stretcher, though it is red when on
    Indicator::Red,    // output enable
    Indicator::Red,    // laser on
    Indicator::Orange, // standby
    Indicator::Orange, // listen, though it is green when on
} };

// clang-format off
constexpr std::array<Row<ColumnCount>, 9> states{ {
    //  Pulse stretcher  Output enable  Laser On         Standby          Listen
    { { disabledOff,    disabledOff,   disabledOff,     disabledOff,     disabledOff  } }, // 0
    { { disabledOff,    disabledOff,   disabledOff,     enabledOff,      enabledOn    } }, // 1
    { { disabledOff,    disabledOff,   disabledOff,     enabledBlinking, enabledOff   } }, // 2
    { { disabledOff,    disabledOff,   enabledOff,      enabledOn,       enabledOff   } }, // 3
    { { disabledOff,    disabledOff,   enabledBlinking, enabledOff,      enabledOff   } }, // 4
    { { disabledOff,    enabledOff,    enabledOn,       enabledOff,      enabledOff   } }, // 5
    { { enabledOff,     enabledOn,     enabledOn,       enabledOff,      enabledOff   } }, // 6
    { { kept,           disabledKept,  disabledKept,    disabledKept,    disabledKept } }, // 7
    { { enabledKept,    enabledOn,     enabledOn,       enabledOff,      enabledOff   } }, // 8
} };
// clang-format on

constexpr uchar emitting = 6;
/// The pulse stretcher is tuned while the laser emits.
constexpr uchar emittingAndTuning = 8;
/// Above it the laser has been switched on.
constexpr uchar standingBy = 3;

} // namespace

MarquelXRemoteControl::MarquelXRemoteControl(QWidget *parent)
    : QWidget(parent)
    , m_tpsrButton(PanelParts::makeButton(tr("Pulse stretcher\nAuto-Tuning"), Indicator::Red, this))
    , m_outputEnableButton(PanelParts::makeEmissionButton(
          tr("Output\nenable"), QStringLiteral("Toggle output on/off"), this))
    , m_laserOnButton(PanelParts::makeButton(tr("Laser On"), Indicator::Red, this))
    , m_standbyButton(PanelParts::makeButton(tr("Standby"), Indicator::Orange, this))
    , m_listenButton(PanelParts::makeButton(tr("Listen"), Indicator::Green, this))
{
    using Panel = MarquelXRemoteControl;
    connect(m_tpsrButton, &IndicatorButton::toggled, this, &Panel::tpsrOptimizationChanged);
    connect(m_outputEnableButton, &IndicatorButton::toggled, this, &Panel::outEnableChanged);
    connect(m_laserOnButton, &IndicatorButton::toggled, this, &Panel::laserOnClicked);
    connect(m_standbyButton, &IndicatorButton::toggled, this, &Panel::standbyChanged);
    connect(m_listenButton, &IndicatorButton::toggled, this, &Panel::listenChanged);
    PanelParts::layOutColumn(this, { m_tpsrButton, m_outputEnableButton, m_laserOnButton,
                                     m_standbyButton, m_listenButton });
    slotFSMStateChanged(0);
}

bool MarquelXRemoteControl::getEmission() const
{
    return m_fsmState == emitting;
}

void MarquelXRemoteControl::setOutputEnableState(int state)
{
    showLamp(*m_outputEnableButton, state, blinkColors[OutputEnable]);
}

void MarquelXRemoteControl::setLaserOnState(int state)
{
    showLamp(*m_laserOnButton, state, blinkColors[LaserOn]);
}

void MarquelXRemoteControl::setStandbyState(int state)
{
    showLamp(*m_standbyButton, state, blinkColors[Standby]);
}

void MarquelXRemoteControl::setListenState(int state)
{
    showLamp(*m_listenButton, state, blinkColors[Listen]);
}

void MarquelXRemoteControl::enableOutEnableButton(bool enable)
{
    m_outputEnableButton->setVisible(enable);
}

void MarquelXRemoteControl::slotTPSRbuttonView(bool isVisible)
{
    m_tpsrButton->setVisible(isVisible);
}

void MarquelXRemoteControl::slotTPSRbuttonState(int state)
{
    showLamp(*m_tpsrButton, state, blinkColors[PulseStretcher]);
}

void MarquelXRemoteControl::slotFSMStateChanged(uchar state)
{
    m_fsmState = state;
    applyState(states, state,
               { { m_tpsrButton, m_outputEnableButton, m_laserOnButton, m_standbyButton,
                   m_listenButton } },
               blinkColors);
    Q_EMIT sigEmissionStateChanged(state == emitting || state == emittingAndTuning);
}

void MarquelXRemoteControl::slotDWLSFeatureChanged(bool enabled)
{
    m_dwlsFeature = enabled;
    Q_EMIT sigDWLSFeatureChanged(enabled);
}

void MarquelXRemoteControl::slotMeasuredPowerChanged(double measuredPower, double maximumPower)
{
    storeMeasuredPower(measuredPower, maximumPower);
    Q_EMIT sigMeasuredLaserPowerChanged(measuredPower, maximumPower);
}

void MarquelXRemoteControl::slotSetpointLaserPowerChanged(double setpoint)
{
    m_setpointLaserPower = setpoint;
    Q_EMIT sigSetpointLaserPowerChanged(setpoint);
}

void MarquelXRemoteControl::slotSetpointLaserPowerRangeChanged(double min, double max, int dec,
                                                               QString unit)
{
    storeSetpointRange(min, max, dec, unit);
    Q_EMIT sigSetpointLaserPowerRangeChanged(min, max, dec, unit);
}

void MarquelXRemoteControl::laserOnClicked(bool on)
{
    if (!m_outputEnableButton->isHidden())
        Q_EMIT laserOnChanged(on);
    else if (m_fsmState > standingBy)
        Q_EMIT standbyChanged(on);
    else
        Q_EMIT outEnableChanged(on);
}
