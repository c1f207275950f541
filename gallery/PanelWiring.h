#ifndef PELORIN_GALLERY_PANELWIRING_H
#define PELORIN_GALLERY_PANELWIRING_H

#include <functional>

class MarquelRemoteControl;
class MarquelXRemoteControl;
class OstrelRemoteControl;
class QString;
class RemoteControl;

namespace Simulation {
class Laser;
}

/// Remote control panels at the end of a line to a laser: what the operator asks for goes to the laser,
/// and what the laser reports sets the lamps. The caller owns the panels, which outlive the laser
/// or not, as they please.
namespace PanelWiring {

/// Hears of every request of a panel, by the name of its signal, before the laser does.
using Note = std::function<void(const QString &signal, const QString &value)>;

RemoteControl *makePlain(Simulation::Laser &laser, const Note &note);
MarquelRemoteControl *makeMarquel(Simulation::Laser &laser, const Note &note);
OstrelRemoteControl *makeOstrel(Simulation::Laser &laser, const Note &note);
MarquelXRemoteControl *makeMarquelX(Simulation::Laser &laser, const Note &note);

} // namespace PanelWiring

#endif
