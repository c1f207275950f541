#ifndef PELORIN_GALLERY_SPECIMENS_H
#define PELORIN_GALLERY_SPECIMENS_H

#include <QString>
#include <QVector>

class QWidget;

/// A class of the library that can be seen, and an instance of it in a state that tells what it is for.
struct Specimen
{
    const char *name;    ///< of the class
    QWidget *(*build)(); ///< at its own size; the caller owns it
};

/// All of them, subsystem by subsystem.
QVector<Specimen> specimens();

/// Writes \a directory/NAME.png for each of them, on a white ground. The directory is made if it is
/// not there. Returns what went wrong, on one line, or an empty text.
QString takeSpecimens(const QString &directory);

#endif
