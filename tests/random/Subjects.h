#ifndef PELORIN_TESTS_SUBJECTS_H
#define PELORIN_TESTS_SUBJECTS_H

#include <QVector>
#include <QWidget>

#include <functional>

/// A widget of the library, filled as far as it needs to be to have something to do.
struct Subject
{
    const char *name;
    std::function<QWidget *()> make;
};

/// All that has to live through whatever comes. Every widget of the library joins with a line.
const QVector<Subject> &subjects();

#endif
