#ifndef PELORIN_GALLERY_SNAPSHOT_H
#define PELORIN_GALLERY_SNAPSHOT_H

#include <QString>

/// Writes \a directory/NAME.png for the device or topic called \a page, or for each if \a page is empty.
/// A device is taken as it emits light.
/// The directory is made if it is not there. Returns what went wrong, on one line, or an empty
/// text.
QString takeSnapshots(const QString &directory, const QString &page);

#endif
