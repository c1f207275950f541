#ifndef PELORIN_BENCHMARKS_DRAGSTEP_H
#define PELORIN_BENCHMARKS_DRAGSTEP_H

#include "benchmarks/support/Repaint.h"

#include <QWidget>

#include <benchmark/benchmark.h>
#include <qwt_slider.h>

/// The case that the benchmarks of all sliders share, and the peer that they share with it.
namespace DragStep {

constexpr int length = 1024;

/// One step of a drag: a mouse move, the value, the repaint. The pointer goes to and fro in strides
/// of a few pixels, as a hand does. \a moved is the signal of \a slider that has to come.
template<typename Slider, typename Signal>
void run(benchmark::State &state, Slider &slider, Signal moved, QPoint handle)
{
    int moves = 0;
    QObject::connect(&slider, moved, [&moves] { ++moves; });
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
    if (moves == 0)
        state.SkipWithError("the handle was not dragged");
}

/// Its handle lies where its layout puts it, so it is felt for.
inline QPoint findHandle(QwtSlider &slider)
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

inline void runQwt(benchmark::State &state)
{
    QwtSlider slider(Qt::Horizontal);
    slider.setScalePosition(QwtSlider::TrailingScale);
    slider.setScale(0.0, 100.0);
    slider.setScaleMaxMajor(10);
    slider.setTotalSteps(1000);
    slider.resize(length, slider.sizeHint().height());
    showAndSettle(slider);
    run(state, slider, &QwtSlider::valueChanged, findHandle(slider));
}

} // namespace DragStep

#endif
