#ifndef PELORIN_TESTS_SCALESLIDERMODEL_H
#define PELORIN_TESTS_SCALESLIDERMODEL_H

#include <QStringList>
#include <QVector>
#include <QtMath>

#include <cmath>

/// A plain second opinion on the value model of ScaleSliderNG: no widget, no pixels but the travel,
/// every rule written out, and the signals as a list of texts.
class ScaleSliderModel
{
public:
    ScaleSliderModel(int scaleType, bool isHorizontal, int travelPixels)
        : type(scaleType)
        , horizontal(isHorizontal)
        , travel(travelPixels)
    {}

    int type;
    bool horizontal;
    int travel;
    bool twoHandles = false;
    double low = 0.0;
    double high = 100.0;
    double shortest = 0.0;
    double longest = 50.0;
    int decimals = 1;
    QVector<double> steps{ 0.0, 12.0, 25.0, 81.0, 100.0 };
    double v[2] = { 0.0, 0.0 };
    int h[2] = { 0, 0 };
    bool grab[2] = { false, false };
    bool keys[2] = { false, false };
    QStringList log;

    bool stepped() const { return type == 1 || type == 3; }
    bool held() const { return grab[0] || grab[1]; }

    void setValue(int i, double value)
    {
        if (!held())
            store(i, value);
    }

    void changeValue(int i, double value)
    {
        if (held())
            return;
        store(i, value);
        say("valueChanging", i);
        say("valueChanged", i);
    }

    void setHandle(int i, int position)
    {
        if (held())
            return;
        h[i] = position < 0 ? 0 : position > 100000 ? 100000 : position;
        follow(i, true, true);
    }

    void changeHandle(int i, int position)
    {
        setHandle(i, position);
        say("valueChanged", i);
    }

    void setRange(double min, double max, bool silent)
    {
        if (stepped())
            return;
        low = min;
        high = max;
        revalidate(silent);
    }

    void setSteps(const QVector<double> &list)
    {
        if (!stepped())
            return;
        steps = list;
        low = list.isEmpty() ? 0.0 : list.first();
        high = list.size() >= 2 ? list.last() : 0.0;
        revalidate(false);
    }

    void setDistances(double min, double max, bool silent)
    {
        shortest = min;
        longest = max;
        revalidate(silent);
    }

    void setTwoHandles(bool on)
    {
        twoHandles = on;
        revalidate(false);
    }

    /// Where the near edge of a handle stands, counted from the left or from the top.
    int edge(int i) const
    {
        return qRound(travel / 100000.0 * (horizontal ? h[i] : 100000 - h[i]));
    }

    /// \a along is counted from the start of the track, \a across runs through the middle of a
    /// handle.
    void press(int along)
    {
        for (int i = 0; i < 2; ++i) {
            const bool there = (i == 0 || twoHandles) && along > edge(i) && along < edge(i) + 34;
            grab[i] = there;
            if (there)
                pressHandle[i] = h[i];
        }
        if (!held())
            return;
        pressAlong = along;
        pressValue[0] = v[0];
        pressValue[1] = v[1];
        keys[0] = grab[0] && !grab[1];
        keys[1] = grab[1] && !grab[0];
        log << QStringLiteral("handleGrapped()");
    }

    void move(int along)
    {
        if (!held())
            return;
        const int up = horizontal ? along - pressAlong : pressAlong - along;
        if (grab[0] && grab[1]) {
            const int loser = up > 0 ? 0 : 1;
            grab[loser] = keys[loser] = false;
        }
        for (int i = 0; i < 2; ++i) {
            if (!grab[i])
                continue;
            const int moved = pressHandle[i] + qRound(double(up) / travel * 100000.0);
            h[i] = moved < 0 ? 0 : moved > 100000 ? 100000 : moved;
            follow(i, false, true);
        }
    }

    void release()
    {
        if (!held())
            return;
        for (int i = 0; i < 2; ++i) {
            if (v[i] == pressValue[i])
                continue;
            store(i, v[i]);
            if (v[i] != pressValue[i])
                say("valueChanged", i);
        }
        grab[0] = grab[1] = false;
    }

    void arrow(bool up, int units)
    {
        for (int i = 0; i < 2; ++i) {
            if (!keys[i])
                continue;
            if (!stepped()) {
                changeHandle(i, h[i] + (up ? units : -units));
                continue;
            }
            const int at = steps.indexOf(v[i]);
            double target = v[i];
            if (up && at + 1 < steps.size())
                target = steps.at(at + 1);
            if (!up && at > 0)
                target = steps.at(at - 1);
            changeValue(i, target);
        }
    }

private:
    void say(const char *name, int i)
    {
        log << QStringLiteral("%1%2(%3)").arg(QLatin1String(name)).arg(i).arg(v[i], 0, 'g', 12);
    }

    int toHandle(double value) const
    {
        double part = 0.0;
        if (high != low && type < 2)
            part = (value - low) / (high - low);
        else if (high != low && (value - low) / (high - low) > 0.0)
            part = std::sqrt(std::abs(value - low)) / std::sqrt(std::abs(high - low));
        return int(qBound(0.0, std::floor(part * 100000.0 + 0.5), 100000.0));
    }

    double toValue(int handle) const
    {
        if (type < 2)
            return low + (high - low) * handle / 100000.0;
        return low + (high - low) * (double(handle) * double(handle)) / 1e10;
    }

    double snapped(double value) const
    {
        if (!stepped() || steps.size() < 2)
            return value;
        for (int i = 1; i < steps.size(); ++i) {
            const double middle = steps.at(i - 1) + (steps.at(i) - steps.at(i - 1)) * 0.5;
            if (value <= steps.at(i) || i == steps.size() - 1)
                return middle <= value ? steps.at(i) : steps.at(i - 1);
        }
        return value;
    }

    void store(int i, double value)
    {
        const double old[2] = { v[0], v[1] };
        v[i] = snapped(value);
        clamp(i);
        for (int k = 0; k < 2; ++k) {
            if (v[k] != old[k])
                h[k] = toHandle(v[k]);
        }
    }

    void follow(int i, bool snap, bool aloud)
    {
        const double old[2] = { v[0], v[1] };
        const double raw = toValue(h[i]);
        const double factor = std::pow(10.0, decimals);
        v[i] = snap && stepped() ? snapped(raw) : double(qRound64(raw * factor)) / factor;
        clamp(i);
        for (int k = 0; k < 2; ++k) {
            if (v[k] == old[k])
                continue;
            h[k] = toHandle(v[k]);
            if (aloud)
                say("valueChanging", k);
        }
    }

    void revalidate(bool silent)
    {
        const double old[2] = { v[0], v[1] };
        clamp(0);
        store(0, v[0]);
        store(1, v[1]);
        follow(0, true, !silent);
        follow(1, true, !silent);
        for (int k = 0; k < 2; ++k) {
            if (!silent && v[k] != old[k])
                say("valueChanged", k);
        }
    }

    void clamp(int i)
    {
        if (high > low)
            clampRising(i);
        else
            clampFalling(i);
    }

    void clampRising(int i)
    {
        if (!twoHandles) {
            if (v[i] > high)
                v[i] = high;
            if (v[i] < low)
                v[i] = low;
        } else if (i == 0) {
            if (v[0] > high - shortest)
                v[0] = high - shortest;
            if (v[0] < low)
                v[0] = low;
            if (v[1] > v[0] + longest)
                v[1] = v[0] + longest;
            if (v[1] < v[0] + shortest)
                v[1] = v[0] + shortest;
        } else {
            if (v[1] > high)
                v[1] = high;
            if (v[1] < low + shortest)
                v[1] = low + shortest;
            if (v[0] < v[1] - longest)
                v[0] = v[1] - longest;
            if (v[0] > v[1] - shortest)
                v[0] = v[1] - shortest;
        }
    }

    void clampFalling(int i)
    {
        if (!twoHandles) {
            if (v[i] < high)
                v[i] = high;
            if (v[i] > low)
                v[i] = low;
        } else if (i == 0) {
            if (v[0] < high - shortest)
                v[0] = high - shortest;
            if (v[0] > low)
                v[0] = low;
            if (v[1] < v[0] + longest)
                v[1] = v[0] + longest;
            if (v[1] > v[0] + shortest)
                v[1] = v[0] + shortest;
        } else {
            if (v[1] < high)
                v[1] = high;
            if (v[1] > low + shortest)
                v[1] = low + shortest;
            if (v[0] > v[1] - longest)
                v[0] = v[1] - longest;
            if (v[0] < v[1] - shortest)
                v[0] = v[1] - shortest;
        }
    }

    int pressAlong = 0;
    int pressHandle[2] = { 0, 0 };
    double pressValue[2] = { 0.0, 0.0 };
};

#endif
