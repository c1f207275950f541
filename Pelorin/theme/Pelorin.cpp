#include "Pelorin/theme/Pelorin.h"

#include <QDebug>
#include <QFile>
#include <QFont>
#include <QFontDatabase>

namespace {

int addFace(const QString &fileName)
{
    const int id =
        QFontDatabase::addApplicationFont(QStringLiteral(":/Pelorin/fonts/fonts/") + fileName);
    if (id < 0)
        qWarning().noquote() << QStringLiteral("Unable to load %1").arg(fileName);
    return id;
}

// The text face may carry another family name than the one that widgets and sheet ask for.
// Fontconfig knows the two as metric-compatible, other platforms are told here.
void substituteTextFace(int id)
{
    const QString asked = QStringLiteral("Calibri");
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (!families.isEmpty() && !families.contains(asked))
        QFont::insertSubstitutions(asked, families);
}

} // namespace

void Pelorin::loadApplicationFonts()
{
    QFontDatabase::removeAllApplicationFonts();
    const int textFace = addFace(QStringLiteral("calibri.ttf"));
    addFace(QStringLiteral("Tavrin.ttf"));
    addFace(QStringLiteral("Dravik.ttf"));
    substituteTextFace(textFace);
}

QString Pelorin::getApplicationStylesheet()
{
    QFile sheet(QStringLiteral(":/Pelorin/css/stylesheet.qss"));
    if (!sheet.open(QIODevice::ReadOnly)) {
        qWarning("Failed to open the stylesheet.qss, check the resource path");
        return QString();
    }
    // The conversion from a C string ends at the first NUL byte.
    return QString::fromUtf8(sheet.readAll().constData());
}
