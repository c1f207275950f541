#include "benchmarks/support/ShowWindow.h"

#include "Pelorin/theme/Pelorin.h"
#include "benchmarks/support/Repaint.h"

#include <QApplication>

void showUnderSheet(benchmark::State &state, const std::function<std::unique_ptr<QWidget>()> &make)
{
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    for (auto step : state) {
        Q_UNUSED(step)
        std::unique_ptr<QWidget> window = make();
        showAndSettle(*window);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
    qApp->setStyleSheet(QString());
}
