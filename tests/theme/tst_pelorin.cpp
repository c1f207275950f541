#include "Pelorin/theme/Pelorin.h"
#include "tests/support/TestCase.h"

#include <QFile>
#include <QFontDatabase>
#include <QResource>

namespace {

const QString sheetPath = QStringLiteral(":/Pelorin/css/stylesheet.qss");

QString facePath(const char *name)
{
    return QStringLiteral(":/Pelorin/fonts/fonts/") + QLatin1String(name);
}

/// The families of all fonts that were added to the application, in the order of their numbers.
QStringList applicationFamilies()
{
    QStringList result;
    for (int id = 0; id < 20; ++id)
        result << QFontDatabase::applicationFontFamilies(id);
    return result;
}

} // namespace

class tst_Pelorin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void storesTheSheetCompressedAndTheFacesRaw();
    void loadsTheThreeFaces();
    void loadsThemAgain();
    void removesTheFontsOfTheApplication();
    void returnsTheSheet();
    void goesOnWithoutItsResources();
};

void tst_Pelorin::storesTheSheetCompressedAndTheFacesRaw()
{
    const QResource sheet(sheetPath);
    QVERIFY(sheet.isValid());
    QCOMPARE(sheet.compressionAlgorithm(), QResource::ZlibCompression);

    for (const char *name : { "calibri.ttf", "Tavrin.ttf", "Dravik.ttf" }) {
        const QResource face(facePath(name));
        QVERIFY2(face.isValid(), name);
        QCOMPARE(face.compressionAlgorithm(), QResource::NoCompression);
    }
}

void tst_Pelorin::loadsTheThreeFaces()
{
    Pelorin::loadApplicationFonts();

    QCOMPARE(applicationFamilies().size(), 3);
    QCOMPARE(applicationFamilies().mid(1),
             QStringList({ QStringLiteral("Tavrin"), QStringLiteral("Dravik") }));
}

void tst_Pelorin::loadsThemAgain()
{
    Pelorin::loadApplicationFonts();
    const QStringList once = applicationFamilies();

    Pelorin::loadApplicationFonts();

    QCOMPARE(applicationFamilies(), once);
}

void tst_Pelorin::removesTheFontsOfTheApplication()
{
    QFontDatabase::removeAllApplicationFonts();
    QVERIFY(QFontDatabase::addApplicationFont(facePath("Dravik.ttf")) >= 0);
    QVERIFY(QFontDatabase::addApplicationFont(facePath("Dravik.ttf")) >= 0);

    Pelorin::loadApplicationFonts();

    QCOMPARE(applicationFamilies().size(), 3);
    QCOMPARE(applicationFamilies().count(QStringLiteral("Dravik")), 1);
}

void tst_Pelorin::returnsTheSheet()
{
    QFile source(QStringLiteral(PELORIN_SHEET_SOURCE));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray bytes = source.readAll();

    const QString sheet = Pelorin::getApplicationStylesheet();

    QCOMPARE(sheet, QString::fromUtf8(bytes));
    QVERIFY(!sheet.isEmpty());
    QCOMPARE(sheet.count(QLatin1Char('\n')), sheet.count(QStringLiteral("\r\n")));
    QVERIFY(qApp->styleSheet().isEmpty()); // installing it is left to the application
}

void tst_Pelorin::goesOnWithoutItsResources()
{
    Q_CLEANUP_RESOURCE(pelorin);
    expectMessage(QtWarningMsg, QStringLiteral("Unable to load calibri.ttf"));
    expectMessage(QtWarningMsg, QStringLiteral("Unable to load Tavrin.ttf"));
    expectMessage(QtWarningMsg, QStringLiteral("Unable to load Dravik.ttf"));
    expectMessage(QtWarningMsg,
                  QStringLiteral("Failed to open the stylesheet.qss, check the resource path"));

    Pelorin::loadApplicationFonts();
    const QString sheet = Pelorin::getApplicationStylesheet();

    Q_INIT_RESOURCE(pelorin);
    QCOMPARE(sheet, QString());
    QCOMPARE(applicationFamilies(), QStringList());
}

PELORIN_TEST_MAIN(tst_Pelorin)
#include "tst_pelorin.moc"
