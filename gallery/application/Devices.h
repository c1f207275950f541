#ifndef PELORIN_GALLERY_DEVICES_H
#define PELORIN_GALLERY_DEVICES_H

#include "gallery/simulation/Instrument.h"

#include <QString>
#include <QVector>

/// What is known of a device before anyone speaks to it.
struct Device
{
    /// Which remote control panel belongs to it.
    enum class Family { Plain, Ostrel, Marquel, MarquelX };

    QString name;    ///< for the command line and for file names
    QString title;   ///< for people
    QString summary; ///< what it is, in a few words
    Family family;
    Simulation::Span wavelengths; ///< nm
    double firstWavelength;       ///< nm, after it is switched on
    Simulation::Span powers;      ///< mW
    Simulation::Span chart;       ///< nm; with room for the numbers at the axis
};

/// All devices at the lines of the simulated lab, in the order in which they are shown.
const QVector<Device> &devices();

/// The row of the device called \a name, or -1.
int findDevice(const QString &name);

#endif
