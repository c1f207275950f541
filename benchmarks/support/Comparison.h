#ifndef PELORIN_BENCHMARKS_COMPARISON_H
#define PELORIN_BENCHMARKS_COMPARISON_H

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// One case, measured for the library and for its peers in the same run, so that the ratio means
/// something on a machine whose speed does not.
struct Comparison
{
    using Body = std::function<void(benchmark::State &)>;

    struct Peer
    {
        std::string name;
        Body body;
        double toReach = 0.0; ///< the ratio of our time to the peer's that we want; 0 for none
    };

    std::string name; ///< "Drag step, 1024 px"
    std::string ours; ///< "ScaleSliderNG"
    Body body;
    std::vector<Peer> peers;
    benchmark::TimeUnit unit = benchmark::kMicrosecond;
    int iterations =
        0; ///< fixed, for cases that are too heavy to be repeated at will; 0 lets it be found
    /// The bodies measure by themselves and tell SetIterationTime(), as for what another process
    /// does.
    bool timesItself = false;
};

/// Runs the comparisons in an offscreen application and prints a row for each peer. The arguments
/// are those of Google Benchmark.
int runComparisons(int argc, char **argv, const std::vector<Comparison> &comparisons);

#endif
