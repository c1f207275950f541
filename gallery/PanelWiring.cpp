#include "gallery/PanelWiring.h"

#include "gallery/simulation/Laser.h"

#include <Pelorin/MarquelRemoteControl>
#include <Pelorin/MarquelXRemoteControl>
#include <Pelorin/OstrelRemoteControl>
#include <Pelorin/RemoteControl>

#include <QString>
#include <QVariant>

using Simulation::Laser;

namespace {

/// Passes the requests of one panel on.
class Requests
{
public:
    Requests(Laser &laser, const PanelWiring::Note &note)
        : m_laser(&laser)
        , m_note(note)
    {}

    template<class Panel>
    void pass(Panel *panel, void (Panel::*signal)(bool), const char *name,
              void (Laser::*ask)(bool)) const
    {
        const QString signalName = QLatin1String(name);
        QObject::connect(panel, signal, m_laser, [*this, signalName, ask](bool on) {
            m_note(signalName, QVariant(on).toString());
            (m_laser->*ask)(on);
        });
    }

private:
    Laser *m_laser;
    PanelWiring::Note m_note;
};

/// Calls \a show for the present state, and for every state that is reported.
template<class Panel, class Show>
void follow(Panel *panel, Laser &laser, const Show &show)
{
    QObject::connect(&laser, &Laser::stateChanged, panel, show);
    show(laser.state());
}

} // namespace

RemoteControl *PanelWiring::makePlain(Laser &laser, const Note &note)
{
    auto *panel = new RemoteControl;
    Requests(laser, note)
        .pass(panel, &RemoteControl::emissionChangedByRC, "emissionChangedByRC", &Laser::emitLight);
    follow(panel, laser, [panel, &laser](uchar state) {
        panel->setEmissionPartialLS(laser.emits(), state == Laser::Starting);
    });
    return panel;
}

MarquelRemoteControl *PanelWiring::makeMarquel(Laser &laser, const Note &note)
{
    using Panel = MarquelRemoteControl;
    auto *panel = new Panel;
    Requests(laser, note)
        .pass(panel, &Panel::sigWriteEmissionState, "sigWriteEmissionState", &Laser::emitLight);
    follow(panel, laser, [panel, &laser](uchar) { panel->slotEmissionChanged(laser.emits()); });
    return panel;
}

OstrelRemoteControl *PanelWiring::makeOstrel(Laser &laser, const Note &note)
{
    using Panel = OstrelRemoteControl;
    auto *panel = new Panel;
    const Requests requests(laser, note);
    requests.pass(panel, &Panel::outEnableChanged, "outEnableChanged", &Laser::emitLight);
    requests.pass(panel, &Panel::standbyChanged, "standbyChanged", &Laser::standBy);
    requests.pass(panel, &Panel::listenChanged, "listenChanged", &Laser::listen);
    follow(panel, laser, [panel](uchar state) { panel->slotFSMStateChanged(state); });
    return panel;
}

MarquelXRemoteControl *PanelWiring::makeMarquelX(Laser &laser, const Note &note)
{
    using Panel = MarquelXRemoteControl;
    auto *panel = new Panel;
    const Requests requests(laser, note);
    requests.pass(panel, &Panel::tpsrOptimizationChanged, "tpsrOptimizationChanged", &Laser::tune);
    requests.pass(panel, &Panel::outEnableChanged, "outEnableChanged", &Laser::emitLight);
    requests.pass(panel, &Panel::laserOnChanged, "laserOnChanged", &Laser::switchOn);
    requests.pass(panel, &Panel::standbyChanged, "standbyChanged", &Laser::standBy);
    requests.pass(panel, &Panel::listenChanged, "listenChanged", &Laser::listen);
    follow(panel, laser, [panel](uchar state) {
        panel->slotFSMStateChanged(state);
        if (state == Laser::Tuning)
            panel->slotTPSRbuttonState(1);
    });
    return panel;
}
