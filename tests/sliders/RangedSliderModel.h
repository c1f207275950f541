#ifndef PELORIN_TESTS_RANGEDSLIDERMODEL_H
#define PELORIN_TESTS_RANGEDSLIDERMODEL_H

#include <QString>
#include <QStringList>

#include <cmath>

/// What a RangedScaleSlider should do, in numbers alone: written from the rules, without a look at
/// the widget, and with no pixels but the left edges of the handles. The signals are a list of
/// texts.
class RangedSliderModel
{
public:
    explicit RangedSliderModel(int widgetWidth)
        : width(widgetWidth)
    {
        rescale();
    }

    int width;
    int margins = 0;
    double startMin = 0.0, startMax = 0.0, stopMin = 0.0, stopMax = 0.0;
    double start = 0.0, stop = 0.0;
    double startLeft = 0.0, stopLeft = 0.0; // once resized
    bool startFixed = false, stopFixed = false;
    double nudge = 0.0;
    int held = 0;
    int lastX = 0;
    double scaleLow = 0.0, scaleHigh = 0.0;
    QStringList log;

    double usable() const { return width - 35 - 2 * margins; }

    bool hasScale() const { return scaleHigh != scaleLow && usable() > 0.0; }

    double valueAt(double left) const
    {
        if (!hasScale())
            return scaleLow;
        return scaleLow + (left - margins) / usable() * (scaleHigh - scaleLow);
    }

    void rescale()
    {
        const int labels = (width - 35) / 100;
        const double x = (stopMax - startMin) / labels;
        scaleLow = scaleHigh = 0.0;
        if (!(x > 0.0))
            return;
        const double p = std::pow(10.0, std::floor(std::log10(x)));
        const double s = x > 5 * p ? 5 * p : x > 2.5 * p ? 2.5 * p : x > 2 * p ? 2 * p : p;
        scaleLow = std::floor(startMin / s) * s;
        scaleHigh = std::ceil(stopMax / s) * s;
    }

    void resize(int widgetWidth)
    {
        width = widgetWidth;
        rescale();
        startLeft = leftOf(start);
        stopLeft = leftOf(stop);
    }

    void setStart(double v, bool push)
    {
        if (startFixed)
            return;
        start = clamp(v, startMin, startMax);
        startLeft = leftOf(start);
        if (start > stop && push) {
            stop = start;
            stopLeft = leftOf(stop);
            say("stopHandleFinishedMoving", stop);
        }
    }

    void setStop(double v, bool push)
    {
        if (stopFixed)
            return;
        stop = clamp(v, stopMin, stopMax);
        stopLeft = leftOf(stop);
        if (start > stop && push) {
            start = stop;
            startLeft = leftOf(start);
            say("startHandleFinishedMoving", start);
        }
    }

    void fixStart(bool on, double v)
    {
        startFixed = false;
        setStart(v, false);
        startFixed = on;
    }

    void fixStop(bool on, double v)
    {
        stopFixed = false;
        setStop(v, false);
        stopFixed = on;
    }

    void press(int x)
    {
        const bool onStart = x > startLeft && x < startLeft + 35;
        const bool onStop = x > stopLeft && x < stopLeft + 35;
        if (onStart && !startFixed) {
            held = 1;
            lastX = x;
            log << QStringLiteral("startHandleGrapped()");
        } else if (!onStart && onStop && !stopFixed) {
            held = 2;
            lastX = x;
            log << QStringLiteral("stopHandleGrapped()");
        }
    }

    void move(int x)
    {
        if (held == 1 && !startFixed)
            moveStart(x);
        else if (held == 2 && !stopFixed)
            moveStop(x);
    }

    void release()
    {
        if (held == 1)
            say("startHandleFinishedMoving", start);
        else if (held == 2)
            say("stopHandleFinishedMoving", stop);
        held = 0;
    }

    void wheel(int notches)
    {
        if (nudge <= 0.0)
            return;
        const double d = nudge * notches;
        if (!startFixed)
            wheelStart(start + d);
        if (!stopFixed)
            wheelStop(stop + d);
        say("startHandleFinishedMoving", start);
        say("stopHandleFinishedMoving", stop);
    }

private:
    static double clamp(double v, double low, double high)
    {
        if (v > high)
            v = high;
        return v < low ? low : v;
    }

    double leftOf(double v) const
    {
        if (!hasScale())
            return margins;
        const double part = (v - scaleLow) / std::abs(scaleHigh - scaleLow);
        return clamp(std::trunc(part * usable() + margins), -1e6, 1e6); // no farther away
    }

    void moveStart(int x)
    {
        const double left = startLeft + (x - lastX);
        const double v = valueAt(left);
        if (v >= startMin && startMax >= v && stop >= v) {
            startLeft = hasScale() ? left : startLeft;
            start = clamp(v, startMin, startMax);
            lastX = x;
        } else if (v < startMin && start != startMin) {
            start = startMin;
            lastX = x;
        } else if (v > stop && start != startMax) {
            start = stop;
        } else {
            return;
        }
        say("startHandleMoved", start);
    }

    void moveStop(int x)
    {
        const double left = stopLeft + (x - lastX);
        const double v = valueAt(left);
        if (v >= start && v >= stopMin && stopMax >= v) {
            stopLeft = hasScale() ? left : stopLeft;
            stop = clamp(v, startMin, startMax);
            lastX = x;
        } else if (v < stop && stop != stopMin) {
            stop = start;
        } else if (v > stopMax && stop != stopMax) {
            stop = stopMax;
            lastX = x;
        } else {
            return;
        }
        say("stopHandleMoved", stop);
    }

    void wheelStart(double a)
    {
        if (a >= startMin && a <= startMax && a <= stop) {
            turnStart(a);
            return;
        }
        if (a < startMin && start != startMin)
            turnStart(startMin);
        if (a > stop && start != startMax)
            turnStart(stop);
    }

    void wheelStop(double b)
    {
        if (b >= start && b >= stopMin && b <= stopMax) {
            turnStop(b);
            return;
        }
        if (b < stop && stop != stopMin)
            turnStop(start);
        if (b > stopMax && stop != stopMax)
            turnStop(stopMax);
    }

    void turnStart(double v)
    {
        start = v;
        startLeft = leftOf(v);
        say("startHandleMoved", v);
    }

    void turnStop(double v)
    {
        stop = v;
        stopLeft = leftOf(v);
        say("stopHandleMoved", v);
    }

    void say(const char *name, double v)
    {
        log << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(v, 0, 'g', 12);
    }
};

#endif
