#include "Pelorin/sliders/ScaleSliderNG.h"
#include "benchmarks/sliders/DragStep.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/ShowWindow.h"

#include <QSlider>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int manySliders = 200;

void dragOurs(benchmark::State &state)
{
    ScaleSliderNG slider(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    DragStep::run(state, slider, &ScaleSliderNG::valueChanging0, QPoint(17, 17));
}

/// With a \a tickInterval of 0 the slider chooses its ticks itself.
void dragQt(benchmark::State &state, int tickInterval)
{
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 1000);
    slider.setTickPosition(QSlider::TicksBelow);
    slider.setTickInterval(tickInterval);
    const QPoint handle(6, slider.sizeHint().height() / 2);
    DragStep::run(state, slider, &QSlider::valueChanged, handle);
}

template<typename Make>
void showMany(benchmark::State &state, Make make)
{
    showUnderSheet(state, [make] {
        auto window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(window.get());
        for (int i = 0; i < manySliders; ++i)
            layout->addWidget(make());
        return window;
    });
}

QWidget *makeOurs()
{
    return new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
}

QWidget *makeQwt()
{
    auto *slider = new QwtSlider(Qt::Horizontal);
    slider->setScalePosition(QwtSlider::TrailingScale);
    slider->setScale(0.0, 100.0);
    return slider;
}

QWidget *makeQt()
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    return slider;
}

} // namespace

int main(int argc, char **argv)
{
    Comparison drag;
    drag.name = "Drag step, 1024 px";
    drag.ours = "ScaleSliderNG";
    drag.body = dragOurs;
    drag.peers = { { "QwtSlider with scale", DragStep::runQwt, 0.15 },
                   { "QSlider with ticks", [](benchmark::State &state) { dragQt(state, 0); }, 0.5 },
                   { "QSlider with 10 ticks",
                     [](benchmark::State &state) { dragQt(state, 100); } } };

    Comparison many;
    many.name = "Build and show 200 sliders";
    many.ours = "ScaleSliderNG";
    many.body = [](benchmark::State &state) { showMany(state, makeOurs); };
    many.peers = {
        { "QwtSlider with scale", [](benchmark::State &state) { showMany(state, makeQwt); } },
        { "QSlider with ticks", [](benchmark::State &state) { showMany(state, makeQt); } }
    };
    many.unit = benchmark::kMillisecond;

    return runComparisons(argc, argv, { drag, many });
}
