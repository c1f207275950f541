#include "benchmarks/support/Comparison.h"

#include <QApplication>

#include <cstdio>
#include <map>

namespace {

constexpr int repetitions = 7;

/// Collects the median of each benchmark, and leaves the rest of the output to the table.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                             run.error_message.c_str());
            else if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] = timeOf(run);
        }
    }

    double median(const std::string &name) const
    {
        const auto found = m_medians.find(name);
        return found == m_medians.end() ? 0.0 : found->second;
    }

private:
    static double timeOf(const Run &run)
    {
        const bool timedItself = !run.run_name.time_type.empty();
        return timedItself ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    }

    std::map<std::string, double> m_medians;
};

/// The offscreen platform complains of what a measurement does not need.
void dropPlatformNoise(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

std::string caseName(const Comparison &comparison, const std::string &side)
{
    return comparison.name + " | " + side;
}

void registerOne(const Comparison &comparison, const std::string &side,
                 const Comparison::Body &body)
{
    auto *registered = benchmark::RegisterBenchmark(caseName(comparison, side).c_str(), body);
    registered->Unit(comparison.unit)->Repetitions(repetitions);
    if (comparison.timesItself)
        registered->UseManualTime();
    if (comparison.iterations > 0)
        registered->Iterations(comparison.iterations);
}

void printRow(const Comparison &comparison, const Comparison::Peer &peer,
              const MedianReporter &reporter)
{
    const double ours = reporter.median(caseName(comparison, comparison.ours));
    const double theirs = reporter.median(caseName(comparison, peer.name));
    if (ours <= 0.0 || theirs <= 0.0)
        return;
    const char *unit = benchmark::GetTimeUnitString(comparison.unit);
    std::printf("%-34s  %-20s %9.2f %s  %-24s %9.2f %s  %6.3f", comparison.name.c_str(),
                comparison.ours.c_str(), ours, unit, peer.name.c_str(), theirs, unit,
                ours / theirs);
    if (peer.toReach > 0.0)
        std::printf("  %6.2f  %s", peer.toReach,
                    ours / theirs <= peer.toReach ? "reached" : "MISSED");
    std::printf("\n");
}

} // namespace

int runComparisons(int argc, char **argv, const std::vector<Comparison> &comparisons)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropPlatformNoise);
    const QApplication app(argc, argv);
    // The sides of a case take turns, so that a slow moment of the machine hits all of them.
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleave);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    for (const Comparison &comparison : comparisons) {
        registerOne(comparison, comparison.ours, comparison.body);
        for (const Comparison::Peer &peer : comparison.peers)
            registerOne(comparison, peer.name, peer.body);
    }

    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("%-34s  %-20s %12s  %-24s %12s  %6s  %s\n", "case", "ours", "time", "peer", "time",
                "ratio", "to reach");
    for (const Comparison &comparison : comparisons) {
        for (const Comparison::Peer &peer : comparison.peers)
            printRow(comparison, peer, reporter);
    }
    return 0;
}
