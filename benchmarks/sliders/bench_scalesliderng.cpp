#include "Pelorin/sliders/ScaleSliderNG.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"
#include "benchmarks/support/ShowWindow.h"

#include <QSlider>
#include <QVBoxLayout>

#include <qwt_slider.h>

#include <memory>

namespace {

constexpr int length = 1024;
constexpr int manySliders = 200;

/// One step of a drag: a mouse move, the value, the repaint. The pointer goes to and fro in strides
/// of a few pixels, as a hand does.
void dragSteps(benchmark::State &state, QWidget &slider, QPoint handle)
{
    slider.resize(length, slider.sizeHint().height());
    showAndSettle(slider);
    sendPress(slider, handle);
    paintNow(slider);
    int x = 100;
    int stride = 7;
    for (auto step : state) {
        Q_UNUSED(step)
        x += stride;
        if (x > 900 || x < 100)
            stride = -stride;
        sendMove(slider, handle + QPoint(x, 0));
        paintNow(slider);
    }
    sendRelease(slider, handle);
}

void dragOurs(benchmark::State &state)
{
    ScaleSliderNG slider(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    int moves = 0;
    QObject::connect(&slider, &ScaleSliderNG::valueChanging0, [&moves](double) { ++moves; });
    dragSteps(state, slider, QPoint(17, 17));
    if (moves == 0)
        state.SkipWithError("the handle was not dragged");
}

/// Its handle lies where its layout puts it, so it is felt for.
QPoint findHandle(QwtSlider &slider)
{
    bool pressed = false;
    QObject::connect(&slider, &QwtSlider::sliderPressed, [&pressed] { pressed = true; });
    QPoint place(slider.transform(0.0), 0);
    while (!pressed && place.y() < slider.height()) {
        place.ry() += 1;
        sendPress(slider, place);
        sendRelease(slider, place);
    }
    return place;
}

void dragQwt(benchmark::State &state)
{
    QwtSlider slider(Qt::Horizontal);
    slider.setScalePosition(QwtSlider::TrailingScale);
    slider.setScale(0.0, 100.0);
    slider.setScaleMaxMajor(10);
    slider.setTotalSteps(1000);
    slider.resize(length, slider.sizeHint().height());
    showAndSettle(slider);
    int moves = 0;
    QObject::connect(&slider, &QwtSlider::valueChanged, [&moves](double) { ++moves; });
    dragSteps(state, slider, findHandle(slider));
    if (moves == 0)
        state.SkipWithError("the handle was not dragged");
}

/// With a \a tickInterval of 0 the slider chooses its ticks itself.
void dragQt(benchmark::State &state, int tickInterval)
{
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 1000);
    slider.setTickPosition(QSlider::TicksBelow);
    slider.setTickInterval(tickInterval);
    int moves = 0;
    QObject::connect(&slider, &QSlider::valueChanged, [&moves](int) { ++moves; });
    dragSteps(state, slider, QPoint(6, slider.sizeHint().height() / 2));
    if (moves == 0)
        state.SkipWithError("the handle was not dragged");
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
    drag.peers = { { "QwtSlider with scale", dragQwt, 0.15 },
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
