#ifndef PELORIN_TESTS_MODELWALK_H
#define PELORIN_TESTS_MODELWALK_H

#include <QString>
#include <QStringList>

/// Takes a pair of widget and model through \a steps operations and compares the two after each: by
/// step(), which returns a description of the operation, and difference(), which tells what is not
/// alike. Returns the first difference with the way to it, or nothing.
template<typename Pair>
QString walkTogether(Pair &pair, int steps)
{
    QStringList done;
    QString difference = pair.difference();
    while (difference.isEmpty() && done.size() < steps) {
        done << pair.step();
        difference = pair.difference();
    }
    if (difference.isEmpty())
        return QString();
    return QStringLiteral("step %1: %2\nafter\n  %3")
        .arg(done.size())
        .arg(difference, done.join(QStringLiteral("\n  ")));
}

#endif
