#include "Pelorin/spectral/WavelengthChart.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Memory.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int manyDyes = 50;
constexpr int pointsOfADye = 1'000; ///< half of them of the excitation
constexpr int spectrumPoints = 2'048;

struct Table
{
    std::vector<double> numbers;
    int columns = 0;
};

/// Fractional wavelengths in order, of which no two curves share one.
QVector<QPointF> randomCurve(QRandomGenerator &random, int count)
{
    QVector<QPointF> points;
    for (int i = 0; i < count; ++i)
        points.append(QPointF(350.0 + random.bounded(450.0), random.bounded(100.0)));
    std::sort(points.begin(), points.end(),
              [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    return points;
}

std::unique_ptr<WavelengthChart> makeChart(int dyes)
{
    QRandomGenerator random(1);
    auto chart = std::make_unique<WavelengthChart>(0);
    chart->setFluorophoreVisibilityState(true, true, false);
    chart->setSpectrometerData(randomCurve(random, spectrumPoints));
    for (int i = 0; i < dyes; ++i) {
        tFluorophoreData dye;
        dye.id = unsigned(i);
        dye.name = QStringLiteral("Dye %1").arg(i);
        dye.excitation = randomCurve(random, pointsOfADye / 2);
        dye.emission = randomCurve(random, pointsOfADye / 2);
        chart->addFluorophore(dye);
    }
    return chart;
}

void writeTable(const WavelengthChart &chart)
{
    QTemporaryFile file;
    file.open();
    file.write(chart.generateCSVContent(QLatin1Char(',')).toUtf8());
}

void exportTable(benchmark::State &state, int dyes)
{
    const std::unique_ptr<WavelengthChart> chart = makeChart(dyes);
    for (auto step : state) {
        Q_UNUSED(step)
        writeTable(*chart);
    }
}

Table readTable(const WavelengthChart &chart)
{
    Table table;
    const QString text = chart.generateCSVContent(QLatin1Char(','));
    QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts);
    table.columns = lines.takeFirst().count(QLatin1Char(',')) + 1;
    for (const QStringRef &line : qAsConst(lines)) {
        for (const QStringRef &cell : line.split(QLatin1Char(',')))
            table.numbers.push_back(cell.toDouble());
    }
    return table;
}

/// The same numbers, that someone else has already put in their places.
void writeNumbers(benchmark::State &state)
{
    const Table table = readTable(*makeChart(manyDyes));
    for (auto step : state) {
        Q_UNUSED(step)
        QTemporaryFile file;
        file.open();
        int column = 0;
        for (const double number : table.numbers) {
            file.write(QString::number(number, 'f', 2).toLatin1());
            column = (column + 1) % table.columns;
            file.putChar(column == 0 ? '\n' : ',');
        }
    }
}

/// In a process of its own: how far its memory grows while it writes the table.
int measureMemory(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const std::unique_ptr<WavelengthChart> chart = makeChart(QByteArray(argv[2]).toInt());
    const long before = memoryKiB("VmHWM:");
    writeTable(*chart);
    std::printf("%ld %ld\n", before, memoryKiB("VmHWM:"));
    return 0;
}

void printMemory(const char *program, int dyes)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(program),
                  { QStringLiteral("--memory"), QString::number(dyes) });
    process.waitForFinished();
    const QList<QByteArray> answer = process.readAll().simplified().split(' ');
    const double before = answer.value(0).toDouble() / 1024;
    const double after = answer.value(1).toDouble() / 1024;
    std::printf(
        "Table of %2d dyes: peak memory %6.1f MiB before, %6.1f MiB after: %6.1f MiB more\n", dyes,
        before, after, after - before);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--memory") == 0)
        return measureMemory(argc, argv);

    // Half as many dyes make half of the columns and half of the rows: a quarter of the cells.
    constexpr double linear = 4.0 * 1.3;
    Comparison comparison;
    comparison.name = "Table of 103 x 52,000 cells";
    comparison.ours = "WavelengthChart, 50 dyes";
    comparison.body = [](benchmark::State &state) { exportTable(state, manyDyes); };
    comparison.peers = { { "QString::number, QFile", writeNumbers, 10.0 },
                         { "WavelengthChart, 25 dyes",
                           [](benchmark::State &state) { exportTable(state, manyDyes / 2); },
                           linear } };
    comparison.unit = benchmark::kMillisecond;
    comparison.iterations = 1;

    const int code = runComparisons(argc, argv, { comparison });
    for (const int dyes : { manyDyes / 2, manyDyes })
        printMemory(argv[0], dyes);
    return code;
}
