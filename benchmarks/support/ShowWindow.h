#ifndef PELORIN_BENCHMARKS_SHOWWINDOW_H
#define PELORIN_BENCHMARKS_SHOWWINDOW_H

#include <QWidget>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

/// Measures how long a window takes to be built by \a make, polished under the library's full sheet
/// and shown, to the first painted frame. Taking it down is not counted.
void showUnderSheet(benchmark::State &state, const std::function<std::unique_ptr<QWidget>()> &make);

#endif
