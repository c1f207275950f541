#ifndef PELORIN_CONTAINERS_POSITION_P_H
#define PELORIN_CONTAINERS_POSITION_P_H

#include <QList>
#include <QPointer>

#include <algorithm>

/// The first position of \a widget in \a entries, or -1; null is never found. It is compared as an
/// address only: what is asked for may have been deleted.
template<typename Widget>
int positionOf(const Widget *widget, const QList<QPointer<Widget>> &entries)
{
    const auto found =
        std::find_if(entries.cbegin(), entries.cend(),
                     [widget](const QPointer<Widget> &entry) { return entry.data() == widget; });
    return widget && found != entries.cend() ? int(found - entries.cbegin()) : -1;
}

#endif
