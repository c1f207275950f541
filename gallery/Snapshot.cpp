#include "gallery/Snapshot.h"

#include "gallery/GalleryWindow.h"
#include "gallery/Pages.h"
#include "gallery/application/InstrumentWindow.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <functional>

namespace {

const QSize deviceSize(1600, 900);
const QSize topicSize(1440, 900);
constexpr int warmMs = 60000;
constexpr int seenMs = 1000;

void show(QWidget &window, QSize size)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(size);
    window.show();
    QApplication::processEvents(); // layouts settle
}

// Each picture is taken in a window of its own, so that it does not depend on what was open before.

bool saveDevice(int row, const QString &path)
{
    InstrumentWindow window;
    window.instrument(row).laser().emitLight(true);
    window.advance(warmMs);
    window.showDevice(devices().at(row).name);
    show(window, deviceSize);
    window.advance(seenMs); // a chart takes what the spectrometer delivers while it is seen
    return window.grab().save(path, "PNG");
}

bool saveTopic(const Page &page, const QString &path)
{
    GalleryWindow window;
    show(window, topicSize);
    window.showPage(page.name);
    QApplication::processEvents();
    return window.grab().save(path, "PNG");
}

} // namespace

QString takeSnapshots(const QString &directory, const QString &page)
{
    const QDir dir(directory);
    if (directory.isEmpty() || !dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("Cannot make the directory '%1'.").arg(directory);

    QString trouble;
    const auto take = [&](const QString &name, const std::function<bool(const QString &)> &save) {
        const QString path = dir.filePath(name + QStringLiteral(".png"));
        if (trouble.isEmpty() && (page.isEmpty() || name == page) && !save(path))
            trouble = QStringLiteral("Cannot write '%1'.").arg(path);
    };
    for (int row = 0; row < devices().size(); ++row)
        take(devices().at(row).name, [row](const QString &path) { return saveDevice(row, path); });
    for (const Page &each : pages())
        take(each.name, [&each](const QString &path) { return saveTopic(each, path); });
    return trouble;
}
