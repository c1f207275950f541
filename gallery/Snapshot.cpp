#include "gallery/Snapshot.h"

#include "gallery/GalleryWindow.h"
#include "gallery/Pages.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

namespace {

const QSize snapshotSize(1440, 900);

/// Each page is taken in a window of its own, so that the picture does not depend on what was open
/// before.
bool save(const QString &name, const QString &path)
{
    GalleryWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(snapshotSize);
    window.show();
    window.showPage(name);
    QApplication::processEvents(); // layouts settle
    return window.grab().save(path, "PNG");
}

} // namespace

QString takeSnapshots(const QString &directory, const QString &page)
{
    const QDir dir(directory);
    if (directory.isEmpty() || !dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("Cannot make the directory '%1'.").arg(directory);

    for (const Page &each : pages()) {
        if (!page.isEmpty() && each.name != page)
            continue;
        const QString path = dir.filePath(each.name + QStringLiteral(".png"));
        if (!save(each.name, path))
            return QStringLiteral("Cannot write '%1'.").arg(path);
    }
    return QString();
}
