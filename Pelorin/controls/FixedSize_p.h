#ifndef PELORIN_CONTROLS_FIXEDSIZE_P_H
#define PELORIN_CONTROLS_FIXEDSIZE_P_H

#include <QWidget>

#include <algorithm>

/// \a length within the sizes that can be fixed for a widget. Qt complains of any other, and takes
/// the largest of all to mean that the size is free.
inline int boundedLength(qint64 length)
{
    return int(std::clamp<qint64>(length, 0, QWIDGETSIZE_MAX - 1));
}

#endif
