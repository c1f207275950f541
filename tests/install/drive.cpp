#include <Pelorin/HorizontalSlider>
#include <Pelorin/IndicatorButton>

#include <QApplication>
#include <QTimer>

#include <cstdio>

/// An operator at the example of README, which knows nothing of it: compiled into the program, it
/// works the first window that is shown and ends the program, with 0 if it behaves.

namespace {

constexpr int oftenMs = 20;
constexpr int patienceMs = 20000;

template<class Widget>
Widget *find()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = window->findChild<Widget *>(); found && window->isVisible())
            return found;
    }
    return nullptr;
}

void end(bool good, const char *what)
{
    std::puts(what);
    QApplication::exit(good ? 0 : 1);
}

/// One look at the window; the first report is waited for, then asked for more, then waited for again.
void look()
{
    static bool asked = false;
    auto *power = find<HorizontalSlider>();
    auto *emission = find<IndicatorButton>();
    if (!power || !emission || power->slider->value0() == 0.0)
        return;
    if (!asked) {
        asked = true;
        power->slider->changeHandlePosition0(50000); // half of a square-root scale
        emission->button()->click();
        return;
    }
    if (emission->findChild<Indicator *>()->color() == emission->offColor())
        return; // no report yet
    const bool kept = power->slider->value0() == 100.0;
    end(kept, kept ? "the example works" : "the example does not keep its set point");
}

void drive()
{
    auto *looking = new QTimer(qApp);
    QObject::connect(looking, &QTimer::timeout, qApp, look);
    looking->start(oftenMs);
    QTimer::singleShot(patienceMs, qApp, [] { end(false, "the example does not answer"); });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(drive)
