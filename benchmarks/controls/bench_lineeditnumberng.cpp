#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/theme/Pelorin.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"
#include "benchmarks/support/ShowWindow.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGridLayout>
#include <QLineEdit>
#include <QProcess>
#include <QVariant>

#include <cstdio>
#include <ctime>
#include <memory>

#include <unistd.h>

namespace {

constexpr int manyFields = 500;
constexpr int readFields = 200;
constexpr int columns = 10;
constexpr int readingsPerSecond = 50;
constexpr char weighOption[] = "--weigh"; ///< followed by the name of a class

template<typename Field>
Field *makeField()
{
    auto *field = new Field;
    field->setRange(0.0, 250.0);
    return field;
}

/// What a field is without its commit model and its popup slider, under the same rules of the
/// sheet.
QLineEdit *makePlain()
{
    auto *field = new QLineEdit(QStringLiteral("100.00"));
    field->setProperty("flat", true);
    field->setProperty("type", QStringLiteral("label"));
    return field;
}

template<typename Make>
std::unique_ptr<QWidget> makeWindow(int count, Make make)
{
    auto window = std::make_unique<QWidget>();
    auto *grid = new QGridLayout(window.get());
    for (int i = 0; i < count; ++i)
        grid->addWidget(make(), i / columns, i % columns);
    return window;
}

template<typename Make>
void showMany(benchmark::State &state, Make make)
{
    showUnderSheet(state, [make] { return makeWindow(manyFields, make); });
}

/// Resident memory of this process in bytes, as the kernel counts it.
double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    const QList<QByteArray> pages = file.readLine().split(' ');
    return pages.value(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

/// The fields of the peers' names, for the process that weighs them.
std::unique_ptr<QWidget> makeNamed(const QString &name)
{
    if (name == QLatin1String("QDoubleSpinBox"))
        return makeWindow(manyFields, makeField<QDoubleSpinBox>);
    if (name == QLatin1String("QLineEdit"))
        return makeWindow(manyFields, makePlain);
    return makeWindow(manyFields, makeField<LineEditNumberNG>);
}

/// Prints what a field adds to the memory of a process that has shown nothing else.
int weigh(int argc, char **argv)
{
    const QApplication app(argc, argv);
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    const std::unique_ptr<QWidget> warmUp = makeWindow(1, makePlain);
    showAndSettle(*warmUp);
    const double before = residentBytes();
    const std::unique_ptr<QWidget> window = makeNamed(QString::fromLocal8Bit(argv[argc - 1]));
    showAndSettle(*window);
    std::printf("%.0f\n", (residentBytes() - before) / manyFields);
    return 0;
}

/// Told as a time, a nanosecond for a byte, so that it stands in the table with a ratio. A process
/// of its own weighs, since here one case would live on what the one before has given back.
void weighMany(benchmark::State &state, const QString &name)
{
    for (auto step : state) {
        Q_UNUSED(step)
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      { QLatin1String(weighOption), name });
        process.waitForFinished();
        const double bytes = process.readAllStandardOutput().trimmed().toDouble();
        if (bytes <= 0.0)
            state.SkipWithError("the fields were not weighed");
        state.SetIterationTime(bytes * 1e-9);
    }
}

double cpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// A second of readings of all fields, with a repaint after each. Its CPU time, in milliseconds, is
/// the CPU share in thousandths.
template<typename Field>
void takeReadings(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window = makeWindow(readFields, makeField<Field>);
    showAndSettle(*window);
    const QList<Field *> fields = window->findChildren<Field *>();
    double value = 0.0;
    for (auto step : state) {
        Q_UNUSED(step)
        const double before = cpuSeconds();
        for (int reading = 0; reading < readingsPerSecond; ++reading) {
            value = value > 200.0 ? 0.0 : value + 0.37;
            for (Field *field : fields)
                field->setValue(value);
            paintNow(*window);
        }
        state.SetIterationTime(cpuSeconds() - before);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], weighOption) == 0)
        return weigh(argc, argv);

    Comparison many;
    many.name = "Build and show 500 fields";
    many.ours = "LineEditNumberNG";
    many.body = [](benchmark::State &state) { showMany(state, makeField<LineEditNumberNG>); };
    many.peers = {
        { "QDoubleSpinBox",
          [](benchmark::State &state) { showMany(state, makeField<QDoubleSpinBox>); } },
        { "QLineEdit", [](benchmark::State &state) { showMany(state, makePlain); } },
    };
    many.unit = benchmark::kMillisecond;

    Comparison memory;
    memory.name = "A field in memory, bytes as ns";
    memory.ours = "LineEditNumberNG";
    memory.body = [](benchmark::State &state) {
        weighMany(state, QStringLiteral("LineEditNumberNG"));
    };
    memory.peers = {
        { "QDoubleSpinBox",
          [](benchmark::State &state) { weighMany(state, QStringLiteral("QDoubleSpinBox")); } },
        { "QLineEdit",
          [](benchmark::State &state) { weighMany(state, QStringLiteral("QLineEdit")); } },
    };
    memory.unit = benchmark::kNanosecond;
    memory.iterations = 1;
    memory.timesItself = true;

    Comparison readings;
    readings.name = "CPU of 200 fields at 50 Hz, 1 s";
    readings.ours = "LineEditNumberNG";
    readings.body = takeReadings<LineEditNumberNG>;
    readings.peers = { { "QDoubleSpinBox", takeReadings<QDoubleSpinBox> } };
    readings.unit = benchmark::kMillisecond;
    readings.iterations = 1;
    readings.timesItself = true;

    return runComparisons(argc, argv, { many, memory, readings });
}
