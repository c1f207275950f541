#include "gallery/simulation/Dyes.h"

#include <QFile>
#include <QStringList>

#include <cmath>

namespace {

constexpr int firstNm = 300;
constexpr int lastNm = 850;

/// A band that falls off steeply on one side and half as steeply on the other: excitation reaches
/// out to shorter waves, emission to longer ones.
QVector<QPointF> band(double peak, double width, bool toLonger)
{
    constexpr double widthToSigma = 2.3548;
    QVector<QPointF> points;
    for (int nm = firstNm; nm <= lastNm; ++nm) {
        const bool wideSide = (nm > peak) == toLonger;
        const double sigma = width / widthToSigma * (wideSide ? 4.0 : 2.0) / 3.0;
        points << QPointF(nm, 100.0 * std::exp(-std::pow((nm - peak) / sigma, 2.0) / 2.0));
    }
    return points;
}

} // namespace

tFluorophoreDataList Simulation::dyes()
{
    tFluorophoreDataList list;
    QFile file(QStringLiteral(":/gallery/dyes.csv"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return list;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const QStringList cells = line.split(QLatin1Char(','));
        bool isNumber = false;
        const double excitation = cells.value(1).toDouble(&isNumber);
        if (cells.size() != 5 || !isNumber)
            continue; // a comment, or the header
        tFluorophoreData dye;
        dye.id = unsigned(list.size() + 1);
        dye.name = cells.at(0);
        dye.description = QStringLiteral("%1\nexcitation at %2 nm\nemission at %3 nm")
                              .arg(cells.at(0), cells.at(1), cells.at(3));
        dye.excitation = band(excitation, cells.at(2).toDouble(), false);
        dye.emission = band(cells.at(3).toDouble(), cells.at(4).toDouble(), true);
        list << dye;
    }
    return list;
}
