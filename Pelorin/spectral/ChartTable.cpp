#include "Pelorin/spectral/ChartTable_p.h"

#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// Text is handed on when it has become as long as this.
constexpr std::size_t pieceLength = 1 << 16;

/// From here on a number goes the long way to text.
constexpr double largestShort = 1e15;

std::vector<double> wholeWavelengths(double min, double max)
{
    std::vector<double> result;
    const double first = std::trunc(min) + 0.0; // never -0
    for (int i = 0; i < ChartTable::mostWholeWavelengths && first + i < max + 1.0; ++i)
        result.push_back(first + i);
    return result;
}

bool isLeft(const QPointF &left, const QPointF &right)
{
    return left.x() < right.x();
}

/// Within the range, in ascending order, one for each wavelength: the one that came last.
QVector<QPointF> inOrder(const QVector<QPointF> &points, double first, double last)
{
    QVector<QPointF> sorted;
    sorted.reserve(points.size());
    std::copy_if(points.cbegin(), points.cend(), std::back_inserter(sorted),
                 [=](const QPointF &point) { return point.x() >= first && point.x() <= last; });
    if (!std::is_sorted(sorted.cbegin(), sorted.cend(), isLeft))
        std::stable_sort(sorted.begin(), sorted.end(), isLeft);
    const auto begin = std::make_reverse_iterator(sorted.end());
    const auto end = std::make_reverse_iterator(sorted.begin());
    const auto kept = std::unique(begin, end, [](const QPointF &later, const QPointF &earlier) {
        return later.x() == earlier.x();
    });
    sorted.erase(sorted.begin(), kept.base());
    return sorted;
}

/// Walks along one curve, from row to row.
class Cursor
{
public:
    explicit Cursor(const QVector<QPointF> &points)
        : m_right(points.cbegin())
        , m_end(points.cend())
    {}

    /// The cell at \a wavelength; 0 before and after the curve. To be asked for every row in turn.
    double take(double wavelength)
    {
        if (m_right == m_end)
            return 0.0;
        if (wavelength < m_right->x()) {
            m_bridging = m_left != nullptr;
            return m_bridging ? bridge(wavelength) : 0.0;
        }
        // The end of a bridge is calculated as well, and may differ from the point in the last bits.
        const double value = m_bridging ? bridge(wavelength) : m_right->y();
        m_left = m_right++;
        m_bridging = false;
        return value;
    }

private:
    double bridge(double wavelength) const
    {
        return (wavelength - m_left->x()) / (m_right->x() - m_left->x())
                   * (m_right->y() - m_left->y())
               + m_left->y();
    }

    const QPointF *m_left = nullptr;
    const QPointF *m_right;
    const QPointF *m_end;
    bool m_bridging = false;
};

} // namespace

ChartTable::ChartTable(double min, double max, QVector<Curve> curves)
    : m_curves(std::move(curves))
    , m_wavelengths(wholeWavelengths(min, max))
{
    const double first = m_wavelengths.empty() ? 0.0 : m_wavelengths.front();
    const double last = m_wavelengths.empty() ? -1.0 : m_wavelengths.back();
    for (Curve &curve : m_curves) {
        curve.points = inOrder(curve.points, first, last);
        for (const QPointF &point : qAsConst(curve.points))
            m_wavelengths.push_back(point.x() + 0.0);
    }
    std::sort(m_wavelengths.begin(), m_wavelengths.end());
    m_wavelengths.erase(std::unique(m_wavelengths.begin(), m_wavelengths.end()),
                        m_wavelengths.end());
}

QString ChartTable::text(QChar separator) const
{
    QString result = header(separator);
    forEachPiece([&result, separator](const std::string &piece) {
        QString text = QString::fromLatin1(piece.data(), int(piece.size()));
        if (separator != QLatin1Char(','))
            text.replace(QLatin1Char(','), separator); // no number has a comma
        result += text;
    });
    return result;
}

void ChartTable::writeTo(QIODevice &device) const
{
    device.write(header(QLatin1Char(',')).toUtf8());
    forEachPiece(
        [&device](const std::string &piece) { device.write(piece.data(), qint64(piece.size())); });
}

QString ChartTable::header(QChar separator) const
{
    QString line = QStringLiteral("\"Wavelength (nm)\"");
    for (const Curve &curve : m_curves)
        line += separator + QLatin1Char('"') + curve.title + QLatin1Char('"');
    return line + QLatin1Char('\n');
}

void ChartTable::forEachPiece(const std::function<void(const std::string &)> &take) const
{
    std::vector<Cursor> cursors;
    for (const Curve &curve : m_curves)
        cursors.emplace_back(curve.points);
    std::string piece;
    for (const double wavelength : m_wavelengths) {
        appendNumber(piece, wavelength);
        for (Cursor &cursor : cursors) {
            piece += ',';
            appendNumber(piece, cursor.take(wavelength));
        }
        piece += '\n';
        if (piece.size() >= pieceLength) {
            take(piece);
            piece.clear();
        }
    }
    take(piece);
}

void ChartTable::appendNumber(std::string &line, double value)
{
    const double size = std::fabs(value);
    if (!(size < largestShort)) {
        line += QString::number(value, 'f', 2).toStdString();
        return;
    }
    // The decimals as a binary fraction of 64 digits, which is exact where they can matter, times a
    // hundred in two halves; a half of a hundredth is rounded up.
    const auto whole = quint64(size);
    const auto fraction = quint64((size - double(whole)) * 0x1p64);
    const quint64 high = (fraction >> 32) * 100 + (((fraction & 0xFFFFFFFFu) * 100) >> 32);
    quint64 hundredths = whole * 100 + ((high + 0x80000000u) >> 32);

    char text[24];
    char *const end = std::end(text);
    char *begin = end;
    for (int digits = 0; hundredths > 0 || digits < 3; ++digits, hundredths /= 10) {
        if (digits == 2)
            *--begin = '.';
        *--begin = char('0' + hundredths % 10);
    }
    if (value < 0.0)
        *--begin = '-';
    line.append(begin, end);
}
