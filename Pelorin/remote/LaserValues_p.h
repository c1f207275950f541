#ifndef PELORIN_REMOTE_LASERVALUES_P_H
#define PELORIN_REMOTE_LASERVALUES_P_H

#include <QString>

/// What the panel of a laser model holds of its laser. The panels attach no meaning to the numbers:
/// they are passed on and given back as they came, not-a-number included.
struct LaserValues
{
    bool dwlsFeature = false;
    uchar dynamicWavelength = 0;
    double setpointDWLS_IR = 0.0;
    double setpointDWLS_SHG = 0.0;
    double setpointDWLS_THG = 0.0;
    double setpointDWLS_FHG = 0.0;
    double measuredLaserPower = 0.0;
    double measuredLaserPowerMaximum = 0.0;
    double setpointLaserPower = 0.0;
    double setpointLaserPowerMin = 0.0;
    double setpointLaserPowerMax = 100.0;
    int setpointLaserPowerDec = 0;
    QString setpointLaserPowerUnit;
};

#endif
