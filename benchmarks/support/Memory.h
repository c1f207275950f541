#ifndef PELORIN_BENCHMARKS_MEMORY_H
#define PELORIN_BENCHMARKS_MEMORY_H

#include <QFile>

/// What the system tells of the memory of this process, in KiB: "VmRSS:" for what is resident, "VmHWM:"
/// for the most that was. 0 where it does not tell.
inline long memoryKiB(const char *what)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(what))
            return line.simplified().split(' ').value(1).toLong();
    }
    return 0;
}

#endif
