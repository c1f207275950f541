#ifndef PELORIN_GALLERY_SNAPSHOT_H
#define PELORIN_GALLERY_SNAPSHOT_H

#include <QString>

/// Writes \a directory/NAME.png for the page called \a page, or for every page if \a page is empty.
/// The directory is made if it is not there. Returns what went wrong, on one line, or an empty
/// text.
QString takeSnapshots(const QString &directory, const QString &page);

#endif
