#include "tests/support/RealMouse.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

namespace RealMouse {

bool xdotool(const QStringList &arguments)
{
    constexpr int patienceMs = 10000;
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    const bool done = process.waitForFinished(patienceMs);
    QCoreApplication::processEvents();
    return done && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool moveTo(QPoint global)
{
    // Not with --sync, which waits for ever where the pointer stands already.
    return xdotool(
        { QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y()) });
}

bool press(int button)
{
    return xdotool({ QStringLiteral("mousedown"), QString::number(button) });
}

bool release(int button)
{
    return xdotool({ QStringLiteral("mouseup"), QString::number(button) });
}

bool click(QPoint global, int button)
{
    return moveTo(global) && press(button) && release(button);
}

bool drag(QPoint from, QPoint to, int steps)
{
    bool done = moveTo(from) && press();
    for (int i = 1; done && i <= steps; ++i)
        done = moveTo(from + (to - from) * i / steps);
    return release() && done;
}

bool key(const QString &name)
{
    return xdotool({ QStringLiteral("key"), name });
}

} // namespace RealMouse
