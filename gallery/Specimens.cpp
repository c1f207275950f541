#include "gallery/specimens/Specimens_p.h"

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr int margin = 10;

bool save(const Specimen &specimen, const QString &path)
{
    QFrame ground;
    ground.setProperty("widget-color", QStringLiteral("white"));
    ground.setAttribute(Qt::WA_DontShowOnScreen);
    auto *layout = new QVBoxLayout(&ground);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(specimen.build());
    ground.show();
    QApplication::processEvents(); // layouts settle
    return ground.grab().save(path, "PNG");
}

} // namespace

QVector<Specimen> specimens()
{
    using namespace Specimens;
    return sliders() + controls() + views() + panels() + shell();
}

QString takeSpecimens(const QString &directory)
{
    const QDir dir(directory);
    if (directory.isEmpty() || !dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("Cannot make the directory '%1'.").arg(directory);
    for (const Specimen &each : specimens()) {
        const QString path = dir.filePath(QLatin1String(each.name) + QStringLiteral(".png"));
        if (!save(each, path))
            return QStringLiteral("Cannot write '%1'.").arg(path);
    }
    return QString();
}
