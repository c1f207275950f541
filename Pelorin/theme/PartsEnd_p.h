#ifndef PELORIN_THEME_PARTSEND_P_H
#define PELORIN_THEME_PARTSEND_P_H

#include <QWidget>

/// For the destructor of a widget that listens to its parts. A field in which a number is being typed
/// commits it as it loses the focus, and that it does when the widget around it is half gone
/// already: by then nobody may be listening.
inline void stopListeningToParts(QWidget *whole)
{
    const auto parts = whole->findChildren<QWidget *>();
    for (const QWidget *part : parts)
        part->disconnect(whole);
}

#endif
