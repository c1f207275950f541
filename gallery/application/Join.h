#ifndef PELORIN_GALLERY_JOIN_H
#define PELORIN_GALLERY_JOIN_H

#include "gallery/application/Controls.h"
#include "gallery/simulation/Instrument.h"

#include <QString>

/// A set point on the instrument's side: how it is asked for, and how it is told.
struct Setpoint
{
    const char *what;
    const char *unit;
    int decimals;
    void (Simulation::Instrument::*request)(double);
    void (Simulation::Instrument::*report)(double);
};

namespace Setpoints {

using Simulation::Instrument;

constexpr Setpoint power{ "power set point", "mW", 1, &Instrument::requestPower,
                          &Instrument::powerSetpointChanged };
constexpr Setpoint wavelength{ "wavelength", "nm", 1, &Instrument::requestWavelength,
                               &Instrument::wavelengthSetpointChanged };
constexpr Setpoint bandwidth{ "bandwidth", "nm", 1, &Instrument::requestBandwidth,
                              &Instrument::bandwidthChanged };

} // namespace Setpoints

/// Joins \a control, a slider or a number field, to a set point. What the operator settles in it is
/// asked for; while something moves or is typed, nothing is. Every report is shown by the silent
/// setter, which leaves a handle in the hand and a number under edit alone.
template<class Control>
void join(Control *control, const Setpoint &setpoint, const Controls::Desk &desk)
{
    Simulation::Instrument *const instrument = &desk.instrument;
    QObject::connect(control, &Control::valueChanged, instrument,
                     [instrument, setpoint, note = desk.note](double value) {
                         note(QLatin1String(setpoint.what),
                              QStringLiteral("%1 %2")
                                  .arg(value, 0, 'f', setpoint.decimals)
                                  .arg(QLatin1String(setpoint.unit)));
                         (instrument->*setpoint.request)(value);
                     });
    QObject::connect(instrument, setpoint.report, control, &Control::setValue);
}

/// Lets \a control have the power limits of the instrument for its range.
template<class Control>
void followLimits(Control *control, const Controls::Desk &desk)
{
    Simulation::Instrument *const instrument = &desk.instrument;
    const auto follow = [control, known = Simulation::Span()](double min, double max) mutable {
        if (min == known.min && max == known.max)
            return; // told anew
        known = { min, max };
        control->setRange(min, max, true);
    };
    QObject::connect(instrument, &Simulation::Instrument::powerLimitsChanged, control, follow);
    control->setRange(instrument->powerLimits().min, instrument->powerLimits().max, true);
    control->setValue(instrument->powerSetpoint());
}

#endif
