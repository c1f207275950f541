#include "gallery/Snapshot.h"

#include "gallery/GalleryWindow.h"
#include "gallery/Pages.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

namespace {

const QSize snapshotSize(1360, 860);

bool save(GalleryWindow &window, const QString &name, const QString &path)
{
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

    GalleryWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(snapshotSize);
    window.show();
    for (const Page &each : pages()) {
        if (!page.isEmpty() && each.name != page)
            continue;
        const QString path = dir.filePath(each.name + QStringLiteral(".png"));
        if (!save(window, each.name, path))
            return QStringLiteral("Cannot write '%1'.").arg(path);
    }
    return QString();
}
