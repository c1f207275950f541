#ifndef PELORIN_TESTS_TEXTLIST_H
#define PELORIN_TESTS_TEXTLIST_H

#include <QStringList>

#include <initializer_list>

/// Plain texts as a list, for what a SignalRecorder is expected to have written.
inline QStringList list(std::initializer_list<const char *> entries)
{
    QStringList result;
    for (const char *entry : entries)
        result << QString::fromLatin1(entry);
    return result;
}

#endif
