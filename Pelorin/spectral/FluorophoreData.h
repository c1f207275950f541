#ifndef PELORIN_SPECTRAL_FLUOROPHOREDATA_H
#define PELORIN_SPECTRAL_FLUOROPHOREDATA_H

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QString>
#include <QVector>

/// A dye with its spectra, as an application hands it to a WavelengthChart.
struct tFluorophoreData
{
    unsigned int id = 0; ///< unique on the chart
    QString
        name; ///< on the tag, in the names of the series, and in the header of an exported table
    QString
        description; ///< tool tip of the tag, and what the pointer reads; may have several lines
    QString note;    ///< the application's own, as are the four values; a chart carries them only
    double value1 = 0.0;
    double value2 = 0.0;
    double value3 = 0.0;
    double value4 = 0.0;
    QVector<QPointF> excitation; ///< nm and percent, sorted by wavelength
    QVector<QPointF> emission;   ///< nm and percent, sorted by wavelength
};

using tFluorophoreDataList = QList<tFluorophoreData>;

/// What of a dye can change without new spectra.
struct tFluorophoreDetails
{
    unsigned int id = 0;
    QString name;
    QString description;
};

Q_DECLARE_METATYPE(tFluorophoreData)
Q_DECLARE_METATYPE(tFluorophoreDetails)

#endif
