#include "Pelorin/controls/Button.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/ShowWindow.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVariant>

#include <memory>

namespace {

constexpr int manyButtons = 500;
constexpr int columns = 20;

template<typename Make>
void showMany(benchmark::State &state, Make make)
{
    showUnderSheet(state, [make] {
        auto window = std::make_unique<QWidget>();
        auto *grid = new QGridLayout(window.get());
        for (int i = 0; i < manyButtons; ++i)
            grid->addWidget(make(i), i / columns, i % columns);
        return window;
    });
}

QWidget *makeOurs(int index)
{
    auto *button = new Button(QStringLiteral("Start"));
    button->setSize(Button::Small);
    button->setColor(Button::Color(index % 5));
    return button;
}

/// Of the same size, and as a plain button is: no rule of the sheet is for it.
QWidget *makePlain(int)
{
    auto *button = new QPushButton(QStringLiteral("Start"));
    button->setFixedSize(55, 35);
    return button;
}

/// One that the sheet knows.
QWidget *makeTyped(int)
{
    QWidget *button = makePlain(0);
    button->setProperty("type", QStringLiteral("rounded-red"));
    return button;
}

} // namespace

int main(int argc, char **argv)
{
    Comparison comparison;
    comparison.name = "Build and show 500 buttons under the sheet";
    comparison.ours = "Button";
    comparison.body = [](benchmark::State &state) { showMany(state, makeOurs); };
    comparison.peers = {
        { "QPushButton", [](benchmark::State &state) { showMany(state, makePlain); } },
        { "QPushButton, rounded-red", [](benchmark::State &state) { showMany(state, makeTyped); } }
    };
    comparison.unit = benchmark::kMillisecond;

    return runComparisons(argc, argv, { comparison });
}
