#include "Pelorin/containers/FlowLayout.h"
#include "benchmarks/support/Comparison.h"

#include <QGridLayout>
#include <QWidget>

#include <memory>

namespace {

constexpr int many = 10'000;
constexpr int few = 1'000;
constexpr int columns = 20;
constexpr int spacing = 8;

/// Items of eight widths, as the names on them would make them.
void addItems(QLayout &layout, int count)
{
    for (int i = 0; i < count; ++i)
        layout.addItem(new QSpacerItem(40 + 12 * (i % 8), 28));
}

std::unique_ptr<FlowLayout> makeFlow(int count)
{
    auto layout = std::make_unique<FlowLayout>(spacing, spacing, spacing);
    addItems(*layout, count);
    return layout;
}

void askForHeight(benchmark::State &state, int count)
{
    const std::unique_ptr<FlowLayout> layout = makeFlow(count);
    int width = 1000;
    for (auto step : state) {
        Q_UNUSED(step)
        width = width == 1000 ? 1001 : 1000;
        benchmark::DoNotOptimize(layout->heightForWidth(width));
    }
}

void layOut(benchmark::State &state, QLayout &layout)
{
    int width = 1000;
    for (auto step : state) {
        Q_UNUSED(step)
        width = width == 1000 ? 1001 : 1000;
        layout.setGeometry(QRect(0, 0, width, 20000));
    }
}

void layOutFlow(benchmark::State &state, int count)
{
    layOut(state, *makeFlow(count));
}

/// Qt's own layout of rows and columns, with as many items.
void layOutGrid(benchmark::State &state)
{
    QWidget window;
    auto *grid = new QGridLayout(&window);
    for (int i = 0; i < many; ++i)
        grid->addItem(new QSpacerItem(40 + 12 * (i % 8), 28), i / columns, i % columns);
    layOut(state, *grid);
}

} // namespace

int main(int argc, char **argv)
{
    // Ten times the items may take ten times the time, and a little for the caches.
    constexpr double linear = 13.0;

    Comparison height;
    height.name = "Height for width";
    height.ours = "FlowLayout, 10,000 items";
    height.body = [](benchmark::State &state) { askForHeight(state, many); };
    height.peers = { { "FlowLayout, 1,000 items",
                       [](benchmark::State &state) { askForHeight(state, few); }, linear } };

    Comparison geometry;
    geometry.name = "Set geometry";
    geometry.ours = "FlowLayout, 10,000 items";
    geometry.body = [](benchmark::State &state) { layOutFlow(state, many); };
    geometry.peers = { { "FlowLayout, 1,000 items",
                         [](benchmark::State &state) { layOutFlow(state, few); }, linear },
                       { "QGridLayout, 10,000 items", layOutGrid } };

    return runComparisons(argc, argv, { height, geometry });
}
