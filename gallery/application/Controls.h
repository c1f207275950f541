#ifndef PELORIN_GALLERY_CONTROLS_H
#define PELORIN_GALLERY_CONTROLS_H

#include "gallery/application/Devices.h"

#include <QString>

#include <functional>

class QWidget;
class WavelengthChart;

namespace Simulation {
class Instrument;
}

/// The control pages of a device. Each is joined to its instrument: what the operator settles is a
/// request, and what is shown afterwards is what the instrument reports. The caller owns the pages;
/// the instrument must outlive them.
namespace Controls {

/// Hears of every request in words, as "power setpoint" and "40.0 mW".
using Note = std::function<void(const QString &what, const QString &value)>;

struct Desk
{
    const Device &device;
    Simulation::Instrument &instrument;
    Note note;
};

/// Chart, wavelength, bandwidth and power. The chart is called "chart".
QWidget *makeSpectrumPage(const Desk &desk);
/// The drawings of the pulse train, and its settings.
QWidget *makePulsePage(const Desk &desk);
/// The eight channels.
QWidget *makeChannelPage(const Desk &desk);

/// Settings: which dyes \a chart shows.
QWidget *makeDyePage(WavelengthChart *chart);
/// Settings: within which limits the power can be set.
QWidget *makeLimitPage(const Desk &desk);
/// Settings: faults to try.
QWidget *makeServicePage(const Desk &desk);

/// The readings of the device: power with its set point, wavelength, quality.
QWidget *makeReadings(const Desk &desk);
/// The light over time.
QWidget *makePhotodiode(const Desk &desk);

} // namespace Controls

#endif
