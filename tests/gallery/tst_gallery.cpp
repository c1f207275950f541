#include "tests/support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace {

struct Result
{
    int code = -1;
    QStringList out;
    QStringList err;
};

QStringList lines(const QByteArray &bytes)
{
    return QString::fromLocal8Bit(bytes).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// Runs the gallery as on a machine that has no display at all.
Result gallery(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    const QTemporaryDir runtime;
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PELORIN_GALLERY), arguments);
    Result result;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        result.code = process.exitCode();
    result.out = lines(process.readAllStandardOutput());
    result.err = lines(process.readAllStandardError());
    return result;
}

bool isDevice(const QString &name)
{
    return QStringList{ QStringLiteral("ostrel"), QStringLiteral("marquel"),
                        QStringLiteral("marquelx"), QStringLiteral("lightsource") }
        .contains(name);
}

/// Colours on a grid; a page that shows nothing has a handful.
int colours(const QImage &image, int grid = 3)
{
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); y += grid) {
        for (int x = 0; x < image.width(); x += grid)
            found.insert(image.pixel(x, y));
    }
    return found.size();
}

/// The classes of the library that paint something.
QSet<QString> visibleClasses()
{
    const QStringList all = QStringLiteral(PELORIN_CLASSES).split(QLatin1Char(' '));
    const QStringList unseen{ QStringLiteral("ComboBoxNGItemModel"),
                              QStringLiteral("ComboSliderScale"),
                              QStringLiteral("ComboSliderUnit"),
                              QStringLiteral("Converter"),
                              QStringLiteral("Pelorin"),
                              QStringLiteral("QWidgetNG"),
                              QStringLiteral("ScrollAreaNGItem"),
                              QStringLiteral("ScrollAreaNGContainer"),
                              QStringLiteral("ZoomResetProxy") };
    return QSet<QString>(all.cbegin(), all.cend()) - QSet<QString>(unseen.cbegin(), unseen.cend());
}

/// What README shows a picture of.
QSet<QString> classesInReadme()
{
    QFile file(QStringLiteral(PELORIN_README));
    QSet<QString> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression picture(QStringLiteral("docs/images/widgets/(\\w+)\\.png"));
    auto found = picture.globalMatch(text);
    while (found.hasNext())
        result.insert(found.next().captured(1));
    return result;
}

} // namespace

class tst_Gallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void printsHelp();
    void listsItsPages();
    void takesAPictureOfEveryPage();
    void takesAPictureOfOnePage();
    void takesTheSamePictureTwice_data();
    void takesTheSamePictureTwice();
    void takesAPictureOfEveryClassThatIsSeen();
    void takesTheSamePictureOfAClassTwice();
    void showsEveryClassThatIsSeenInReadme();
    void complainsInOneLine_data();
    void complainsInOneLine();
};

void tst_Gallery::printsHelp()
{
    const Result result = gallery({ QStringLiteral("--help") });

    QCOMPARE(result.code, 0);
    QVERIFY(result.out.first().contains(QStringLiteral("pelorin-gallery")));
    QCOMPARE(result.err, QStringList());
}

void tst_Gallery::listsItsPages()
{
    Result result = gallery({ QStringLiteral("--list") });

    QCOMPARE(result.code, 0);
    QVERIFY(result.out.contains(QStringLiteral("sliders")));
    QVERIFY(result.out.contains(QStringLiteral("ostrel")));
    QCOMPARE(result.out.removeDuplicates(), 0);
    QCOMPARE(result.err, QStringList());
}

void tst_Gallery::takesAPictureOfEveryPage()
{
    QTemporaryDir dir;
    const QString place = dir.filePath(QStringLiteral("new/folder"));

    const Result result = gallery({ QStringLiteral("--snapshot"), place });

    QCOMPARE(result.err, QStringList());
    QCOMPARE(result.code, 0);
    const QStringList names = gallery({ QStringLiteral("--list") }).out;
    QCOMPARE(QDir(place).entryList(QDir::Files).size(), names.size());
    for (const QString &name : names) {
        const QImage image(QDir(place).filePath(name + QStringLiteral(".png")));
        QCOMPARE(image.size(), QSize(isDevice(name) ? 1600 : 1440, 900));
        QVERIFY2(colours(image) > 20, qPrintable(name));
    }
}

void tst_Gallery::takesAPictureOfOnePage()
{
    QTemporaryDir dir;

    const Result result = gallery({ QStringLiteral("--page"), QStringLiteral("sliders"),
                                    QStringLiteral("--snapshot"), dir.path() });

    QCOMPARE(result.code, 0);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList(QStringLiteral("sliders.png")));
}

void tst_Gallery::takesTheSamePictureTwice_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("of a topic") << QStringLiteral("sliders");
    QTest::newRow("of a device") << QStringLiteral("ostrel");
}

void tst_Gallery::takesTheSamePictureTwice()
{
    QFETCH(QString, name);
    QTemporaryDir dir;
    QImage images[2];
    for (QImage &image : images) {
        QCOMPARE(gallery({ QStringLiteral("--page=") + name,
                           QStringLiteral("--snapshot=") + dir.path() })
                     .code,
                 0);
        image = QImage(dir.filePath(name + QStringLiteral(".png")));
    }

    QVERIFY(!images[0].isNull());
    QCOMPARE(images[0], images[1]);
}

void tst_Gallery::takesAPictureOfEveryClassThatIsSeen()
{
    QTemporaryDir dir;
    const QString place = dir.filePath(QStringLiteral("new/folder"));

    const Result result = gallery({ QStringLiteral("--specimens"), place });

    QCOMPARE(result.err, QStringList());
    QCOMPARE(result.code, 0);
    QSet<QString> taken;
    for (const QFileInfo &each : QDir(place).entryInfoList(QDir::Files)) {
        taken.insert(each.completeBaseName());
        const QImage image(each.filePath());
        QVERIFY2(colours(image, 1) > 4, qPrintable(each.fileName()));
        QVERIFY2(image.width() <= 800 && image.height() <= 500, qPrintable(each.fileName()));
    }
    QCOMPARE(taken, visibleClasses());
}

void tst_Gallery::takesTheSamePictureOfAClassTwice()
{
    QTemporaryDir dirs[2];

    for (const QTemporaryDir &each : dirs)
        QCOMPARE(gallery({ QStringLiteral("--specimens=") + each.path() }).code, 0);

    for (const QString &name : QDir(dirs[0].path()).entryList(QDir::Files))
        QVERIFY2(QImage(dirs[0].filePath(name)) == QImage(dirs[1].filePath(name)),
                 qPrintable(name));
}

void tst_Gallery::showsEveryClassThatIsSeenInReadme()
{
    const QSet<QString> shown = classesInReadme();

    QCOMPARE(shown, visibleClasses());
    const QDir pictures(QFileInfo(QStringLiteral(PELORIN_README))
                            .dir()
                            .filePath(QStringLiteral("docs/images/widgets")));
    for (const QString &name : shown)
        QVERIFY2(!QImage(pictures.filePath(name + QStringLiteral(".png"))).isNull(),
                 qPrintable(name));
}

void tst_Gallery::complainsInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");

    const QString snapshot = QStringLiteral("--snapshot");
    QTest::newRow("unknown page") << QStringList{ snapshot, QDir::tempPath(),
                                                  QStringLiteral("--page"),
                                                  QStringLiteral("nowhere") };
    QTest::newRow("directory that cannot be made")
        << QStringList{ snapshot, QStringLiteral("/proc/pictures") };
    QTest::newRow("a file where the directory should be")
        << QStringList{ snapshot, QStringLiteral("/etc/hostname") };
    QTest::newRow("directory that cannot be written")
        << QStringList{ snapshot, QStringLiteral("/proc") };
    QTest::newRow("no directory") << QStringList{ snapshot, QString() };
    QTest::newRow("no word for the directory") << QStringList{ snapshot };
    const QString specimens = QStringLiteral("--specimens");
    QTest::newRow("a file where the directory of the widgets should be")
        << QStringList{ specimens, QStringLiteral("/etc/hostname") };
    QTest::newRow("directory of the widgets that cannot be written")
        << QStringList{ specimens, QStringLiteral("/proc") };
    QTest::newRow("no directory for the widgets") << QStringList{ specimens, QString() };
    QTest::newRow("topics and widgets at once")
        << QStringList{ specimens, QDir::tempPath(), snapshot, QDir::tempPath() };
    QTest::newRow("unknown option")
        << QStringList{ snapshot, QDir::tempPath(), QStringLiteral("--loud") };
    QTest::newRow("stray word") << QStringList{ snapshot, QDir::tempPath(),
                                                QStringLiteral("sliders") };
}

void tst_Gallery::complainsInOneLine()
{
    QFETCH(QStringList, arguments);

    const Result result = gallery(arguments);

    QVERIFY(result.code > 0);
    QCOMPARE(result.err.size(), 1);
    QVERIFY(result.err.first().startsWith(QLatin1String("pelorin-gallery: ")));
    QCOMPARE(result.out, QStringList());
}

PELORIN_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
