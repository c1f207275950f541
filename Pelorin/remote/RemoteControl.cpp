#include "Pelorin/remote/RemoteControl.h"

#include "Pelorin/remote/PanelParts_p.h"

#include <QPointer>

RemoteControl::RemoteControl(QWidget *parent)
    : QWidget(parent)
    , m_emissionButton(PanelParts::makeEmissionButton(tr("Emission\nON / OFF"),
                                                      QStringLiteral("Toggle Emission"), this))
{
    // In this order: receivers of the panel's signal hear of a press before the panel acts on it.
    connect(m_emissionButton, &IndicatorButton::toggled, this, &RemoteControl::emissionChanged);
    connect(m_emissionButton, &IndicatorButton::toggled, this, &RemoteControl::setEmissionRC);
    PanelParts::makeRow(this)->addWidget(m_emissionButton);
}

void RemoteControl::setEmission(bool on)
{
    setEmissionLS(on);
}

void RemoteControl::setEmissionPartial(bool on, bool partial_on)
{
    setEmissionPartialLS(on, partial_on);
}

void RemoteControl::setEmissionLS(bool on)
{
    const QPointer<RemoteControl> self(this); // who hears of the report may delete the panel
    reportEmission(on);
    if (!self)
        return;
    showColors();
    m_emissionButton->setActive(on);
}

void RemoteControl::setEmissionPartialLS(bool on, bool partial_on)
{
    if (partial_on) {
        m_emissionButton->setBlink(true, PanelParts::blinkMs, Indicator::Orange);
    } else {
        m_emissionButton->setBlink(false, PanelParts::blinkMs, Indicator::Grey);
        showColors();
    }
    const QPointer<RemoteControl> self(this);
    reportEmission(on);
    if (self)
        m_emissionButton->setActive(on);
}

void RemoteControl::showColors()
{
    m_emissionButton->setColors(Indicator::Red, Indicator::Grey);
}

void RemoteControl::reportEmission(bool on)
{
    const QPointer<RemoteControl> self(this);
    Q_EMIT emissionChangedByLS(on);
    if (self)
        Q_EMIT emissionStateUpdated(on);
    if (self)
        m_emission = on;
}

void RemoteControl::setPowerLevelLS(ushort power)
{
    changeLevel(m_powerLevel, power, &RemoteControl::powerChangedByLS);
}

void RemoteControl::setCurrentLevelLS(ushort current)
{
    changeLevel(m_currentLevel, current, &RemoteControl::currentChangedByLS);
}

void RemoteControl::setEmissionRC(bool on)
{
    const QPointer<RemoteControl> self(this);
    Q_EMIT emissionChangedByRC(on);
    if (self)
        Q_EMIT emissionChanged(on);
    if (self)
        m_emission = on;
}

void RemoteControl::setPowerLevelRC(ushort power)
{
    changeLevel(m_powerLevel, power, &RemoteControl::powerChangedByRC);
}

void RemoteControl::setCurrentLevelRC(ushort current)
{
    changeLevel(m_currentLevel, current, &RemoteControl::currentChangedByRC);
}

void RemoteControl::changeLevel(ushort &level, ushort value, void (RemoteControl::*changed)(ushort))
{
    const QPointer<RemoteControl> self(this);
    if (value != level)
        Q_EMIT(this->*changed)(value);
    if (self)
        level = value;
}
