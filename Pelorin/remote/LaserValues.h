#ifndef PELORIN_REMOTE_LASERVALUES_H
#define PELORIN_REMOTE_LASERVALUES_H

#include <QString>

/// What the panels of the laser models hold of their laser. They attach no meaning to the numbers: they
/// are passed on and given back as they came, not-a-number included. Not for direct use.
class LaserValues
{
public:
    // What was reported or requested last.
    bool getDWLSFeature() const { return m_dwlsFeature; }
    uchar getDynamicWavelength() const { return m_dynamicWavelength; }
    double getSetpointDWLS_IR() const { return m_setpointDWLS_IR; }
    double getSetpointDWLS_SHG() const { return m_setpointDWLS_SHG; }
    double getSetpointDWLS_THG() const { return m_setpointDWLS_THG; }
    double getSetpointDWLS_FHG() const { return m_setpointDWLS_FHG; }
    double getMeasuredLaserPower() const { return m_measuredLaserPower; }
    double getMeasuredLaserPowerMaximum() const { return m_measuredLaserPowerMaximum; }
    double getSetpointLaserPower() const { return m_setpointLaserPower; }
    /// The range is 0 to 100, without decimals and unit, until the laser reports another one.
    double getSetpointLaserPowerMin() const { return m_setpointLaserPowerMin; }
    double getSetpointLaserPowerMax() const { return m_setpointLaserPowerMax; }
    int getSetpointLaserPowerDec() const { return m_setpointLaserPowerDec; }
    QString getSetpointLaserPowerUnit() const { return m_setpointLaserPowerUnit; }

protected:
    LaserValues() = default;
    ~LaserValues() = default;

    void storeDWLSSetpoints(double ir, double shg, double thg, double fhg)
    {
        m_setpointDWLS_IR = ir;
        m_setpointDWLS_SHG = shg;
        m_setpointDWLS_THG = thg;
        m_setpointDWLS_FHG = fhg;
    }
    void storeMeasuredPower(double power, double maximum)
    {
        m_measuredLaserPower = power;
        m_measuredLaserPowerMaximum = maximum;
    }
    void storeSetpointRange(double min, double max, int decimals, const QString &unit)
    {
        m_setpointLaserPowerMin = min;
        m_setpointLaserPowerMax = max;
        m_setpointLaserPowerDec = decimals;
        m_setpointLaserPowerUnit = unit;
    }

    bool m_dwlsFeature = false;
    uchar m_dynamicWavelength = 0;
    double m_setpointLaserPower = 0.0;

private:
    Q_DISABLE_COPY(LaserValues)

    double m_setpointDWLS_IR = 0.0;
    double m_setpointDWLS_SHG = 0.0;
    double m_setpointDWLS_THG = 0.0;
    double m_setpointDWLS_FHG = 0.0;
    double m_measuredLaserPower = 0.0;
    double m_measuredLaserPowerMaximum = 0.0;
    double m_setpointLaserPowerMin = 0.0;
    double m_setpointLaserPowerMax = 100.0;
    int m_setpointLaserPowerDec = 0;
    QString m_setpointLaserPowerUnit;
};

#endif
