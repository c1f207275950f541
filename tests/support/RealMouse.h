#ifndef PELORIN_TESTS_REALMOUSE_H
#define PELORIN_TESTS_REALMOUSE_H

#include <QPoint>

class QString;
class QStringList;

/// The pointer and the keyboard of the X server, moved by xdotool: what arrives at a widget has
/// gone the whole way through server and window manager. Each call returns false if xdotool fails.
namespace RealMouse {

bool moveTo(QPoint global);
bool press(int button = 1);
bool release(int button = 1);
bool click(QPoint global, int button = 1);

/// From \a from to \a to in \a steps moves, with the left button down.
bool drag(QPoint from, QPoint to, int steps = 10);

/// A key as xdotool names it, "ctrl+shift+e" or "Return".
bool key(const QString &name);

bool xdotool(const QStringList &arguments);

} // namespace RealMouse

#endif
