#ifndef PELORIN_SPECTRAL_CHARTTABLE_P_H
#define PELORIN_SPECTRAL_CHARTTABLE_P_H

#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>
#include <string>
#include <vector>

class QIODevice;

/// The curves of a chart over one column of wavelengths, as comma-separated values that a spreadsheet
/// can plot. The rows are the whole wavelengths of a range and every wavelength within at which a
/// curve has a point. Between two points of a curve the cells lie on the straight line, outside of the
/// curve they are 0.
///
/// No cell is stored: a table takes the memory of the curves and of one column, and is written row by
/// row while a cursor walks along each curve.
class ChartTable
{
public:
    /// A range that no instrument has, as of a mistyped end, ends after so many whole wavelengths.
    static constexpr int mostWholeWavelengths = 100'000;

    /// Of several points at one wavelength the last one counts. Points outside of the whole
    /// wavelengths, and those without a wavelength, are left out.
    struct Curve
    {
        QString title;
        QVector<QPointF> points; ///< in any order
    };

    /// From \a min, without its decimals, to the first whole wavelength at or above \a max. Without
    /// a row if there is none between.
    ChartTable(double min, double max, QVector<Curve> curves);

    int rowCount() const { return int(m_wavelengths.size()); }

    /// A line of titles, then one for each row. Titles are quoted as they are, whatever they hold.
    QString text(QChar separator) const;

    /// The text with commas, in UTF-8, piece by piece.
    void writeTo(QIODevice &device) const;

    /// Appends \a value with two decimals, to the byte what QString::number(value, 'f', 2) says.
    static void appendNumber(std::string &line, double value);

private:
    QString header(QChar separator) const;
    void forEachPiece(const std::function<void(const std::string &)> &take) const;

    QVector<Curve> m_curves;
    std::vector<double> m_wavelengths;
};

#endif
