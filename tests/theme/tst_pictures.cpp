#include "Pelorin/theme/Pelorin.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QImage>
#include <QResource>

namespace {

const QString folder = QStringLiteral(":/Pelorin/images/images");

struct Picture
{
    const char *name;
    int width;
    int height;
};

/// Applications and their own style sheets name these files: name and size are a promise.
constexpr Picture catalogue[] = {
    // transport
    { "PlayNormal.png", 34, 34 },
    { "PlayHover.png", 34, 34 },
    { "PlayDisabled.png", 34, 34 },
    { "StopNormal.png", 34, 34 },
    { "StopHover.png", 34, 34 },
    { "StopDisabled.png", 34, 34 },
    { "PauseNormal.png", 34, 34 },
    { "PauseHover.png", 34, 34 },
    { "PauseDisabled.png", 34, 34 },
    { "ContinueNormal.png", 34, 34 },
    { "ContinueHover.png", 34, 34 },
    { "ContinueDisabled.png", 34, 34 },
    // edit, save, set, trash
    { "EditNormal.png", 24, 24 },
    { "EditHover.png", 24, 24 },
    { "SaveNormal.png", 32, 32 },
    { "SaveHover.png", 32, 32 },
    { "SaveDisabled.png", 32, 32 },
    { "SetNormal.png", 32, 32 },
    { "SetHover.png", 32, 32 },
    { "TrashNormal.png", 24, 24 },
    { "TrashHover.png", 24, 24 },
    // prerequisites
    { "PreRequisiteFulfilled.png", 25, 25 },
    { "PreRequisiteMissing.png", 25, 25 },
    // popup slider
    { "SliderPopupButton16.png", 16, 16 },
    { "SliderPopupButtonHover16.png", 16, 16 },
    // check boxes and radio buttons
    { "checkbox.png", 25, 25 },
    { "checkboxHover.png", 25, 25 },
    { "checkboxChecked.png", 25, 25 },
    { "checkboxCheckedHover.png", 25, 25 },
    { "checkbox18.png", 18, 18 },
    { "checkboxHover18.png", 18, 18 },
    { "checkboxChecked18.png", 18, 18 },
    { "checkboxCheckedHover18.png", 18, 18 },
    { "checkboxDisabled18.png", 18, 18 },
    { "checkboxCheckedDisabled18.png", 18, 18 },
    { "radio.png", 16, 16 },
    { "radioHover.png", 16, 16 },
    { "radioChecked.png", 16, 16 },
    // close cross
    { "cross.png", 25, 25 },
    { "crossHover.png", 25, 25 },
    // arrows
    { "upArrow.png", 16, 16 },
    { "upArrowHover.png", 16, 16 },
    { "downArrow.png", 16, 16 },
    { "downArrowHover.png", 16, 16 },
    { "downArrowDark.png", 16, 16 },
    { "downArrowRed.png", 16, 16 },
    { "downArrow10Dark.png", 10, 10 },
    { "downArrow10Hover.png", 10, 10 },
    { "downArrow10.png", 10, 10 },
    { "downArrow10Red.png", 10, 10 },
    // arrow buttons
    { "upArrowSmall1.png", 29, 24 },
    { "upArrowSmall1Hover.png", 29, 24 },
    { "dnArrowSmall1.png", 29, 24 },
    { "dnArrowSmall1Hover.png", 29, 24 },
    { "upArrowBig1.png", 46, 38 },
    { "upArrowBig1Hover.png", 46, 38 },
    { "dnArrowBig1.png", 46, 38 },
    { "dnArrowBig1Hover.png", 46, 38 },
    // chart
    { "save18.png", 18, 18 },
    { "saveHover18.png", 18, 18 },
    { "saveDisabled18.png", 18, 18 },
    { "zoomreset18.png", 18, 18 },
    { "zoomresetHover18.png", 18, 18 },
    { "zoomresetDisabled18.png", 18, 18 },
    // settings and warning
    { "settings.png", 22, 22 },
    { "settingsHover.png", 22, 22 },
    { "warningGrey.png", 22, 22 },
    { "warningOrange.png", 22, 22 },
    // signal shapes
    { "sine.png", 39, 18 },
    { "triangleSignal.png", 39, 18 },
    { "sawPosRamp.png", 39, 18 },
    { "sawNegRamp.png", 39, 18 },
    // marks and logos
    { "triangle.png", 200, 200 },
    { "tavrinLogo.png", 157, 35 },
    { "nonameLogo.png", 157, 35 },
};

QString path(const QString &name)
{
    return folder + QLatin1Char('/') + name;
}

/// The share of an image's pixels, from 0 to 1, of which \a counts(x, y) holds.
template<typename Predicate>
double share(const QImage &image, Predicate counts)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += counts(x, y) ? 1 : 0;
    }
    return double(count) / (image.width() * image.height());
}

double inkShare(const QImage &image)
{
    return share(image, [&](int x, int y) { return qAlpha(image.pixel(x, y)) > 200; });
}

double clearShare(const QImage &image)
{
    return share(image, [&](int x, int y) { return qAlpha(image.pixel(x, y)) == 0; });
}

double differingShare(const QImage &one, const QImage &other)
{
    return share(one, [&](int x, int y) { return one.pixel(x, y) != other.pixel(x, y); });
}

} // namespace

class tst_Pictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void holdsTheCatalogueAndNothingElse();
    void keepsEachPictureAtItsSizeAndRaw_data();
    void keepsEachPictureAtItsSizeAndRaw();
    void drawsEachPictureUponAClearGround_data();
    void drawsEachPictureUponAClearGround();
    void tellsTheStatesApart_data();
    void tellsTheStatesApart();
};

void tst_Pictures::initTestCase()
{
    Pelorin::loadApplicationFonts(); // as every application does; the pictures come by themselves
}

void tst_Pictures::holdsTheCatalogueAndNothingElse()
{
    QStringList expected;
    for (const Picture &picture : catalogue)
        expected << QString::fromLatin1(picture.name);
    expected.sort();

    QStringList stored = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
    stored.sort();

    QCOMPARE(stored, expected);
    QCOMPARE(stored.size(), 75);
    QCOMPARE(QDir(QStringLiteral(":/Pelorin/images")).entryList(),
             QStringList({ QStringLiteral("images") }));
}

void tst_Pictures::keepsEachPictureAtItsSizeAndRaw_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");

    for (const Picture &picture : catalogue)
        QTest::newRow(picture.name)
            << QString::fromLatin1(picture.name) << QSize(picture.width, picture.height);
}

void tst_Pictures::keepsEachPictureAtItsSizeAndRaw()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);

    const QResource resource(path(name));
    const QImage image = QImage::fromData(resource.data(), int(resource.size()), "PNG");

    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    QCOMPARE(image.size(), size);
}

void tst_Pictures::drawsEachPictureUponAClearGround_data()
{
    QTest::addColumn<QString>("name");

    for (const Picture &picture : catalogue)
        QTest::newRow(picture.name) << QString::fromLatin1(picture.name);
}

void tst_Pictures::drawsEachPictureUponAClearGround()
{
    QFETCH(QString, name);
    const QImage image(path(name));
    QVERIFY(!image.isNull());

    const double ink = inkShare(image);
    const double clear = clearShare(image);

    QVERIFY2(ink >= 0.03, qPrintable(QString::number(ink)));
    // Even what fills its whole square, as the stop button does, has round corners.
    QVERIFY2(clear >= 0.003, qPrintable(QString::number(clear)));
    QCOMPARE(qAlpha(image.pixel(image.rect().topLeft())), 0);
    QCOMPARE(qAlpha(image.pixel(image.rect().bottomRight())), 0);
}

void tst_Pictures::tellsTheStatesApart_data()
{
    QTest::addColumn<QStringList>("names");

    const auto row = [](const char *title, const char *pattern,
                        std::initializer_list<const char *> states) {
        QStringList names;
        for (const char *state : states)
            names << QString::fromLatin1(pattern).replace(QLatin1Char('*'), QLatin1String(state));
        QTest::newRow(title) << names;
    };
    row("play", "Play*.png", { "Normal", "Hover", "Disabled" });
    row("stop", "Stop*.png", { "Normal", "Hover", "Disabled" });
    row("pause", "Pause*.png", { "Normal", "Hover", "Disabled" });
    row("continue", "Continue*.png", { "Normal", "Hover", "Disabled" });
    row("edit", "Edit*.png", { "Normal", "Hover" });
    row("save, large", "Save*.png", { "Normal", "Hover", "Disabled" });
    row("set", "Set*.png", { "Normal", "Hover" });
    row("trash", "Trash*.png", { "Normal", "Hover" });
    row("prerequisite", "PreRequisite*.png", { "Fulfilled", "Missing" });
    row("popup slider", "SliderPopupButton*16.png", { "", "Hover" });
    row("check box", "checkbox*.png", { "", "Hover", "Checked", "CheckedHover" });
    row("check box, small", "checkbox*18.png",
        { "", "Hover", "Checked", "CheckedHover", "Disabled", "CheckedDisabled" });
    row("radio button", "radio*.png", { "", "Hover", "Checked" });
    row("cross", "cross*.png", { "", "Hover" });
    row("up arrow", "upArrow*.png", { "", "Hover" });
    row("down arrow", "downArrow*.png", { "", "Hover", "Dark", "Red" });
    row("down arrow, 10", "downArrow10*.png", { "", "Hover", "Dark", "Red" });
    row("small arrow key up", "upArrowSmall1*.png", { "", "Hover" });
    row("small arrow key down", "dnArrowSmall1*.png", { "", "Hover" });
    row("big arrow key up", "upArrowBig1*.png", { "", "Hover" });
    row("big arrow key down", "dnArrowBig1*.png", { "", "Hover" });
    row("chart save", "save*18.png", { "", "Hover", "Disabled" });
    row("chart zoom reset", "zoomreset*18.png", { "", "Hover", "Disabled" });
    row("settings", "settings*.png", { "", "Hover" });
    row("warning", "warning*.png", { "Grey", "Orange" });
    row("signal shapes", "*.png", { "sine", "triangleSignal", "sawPosRamp", "sawNegRamp" });
    row("logos", "*Logo.png", { "tavrin", "noname" });
}

void tst_Pictures::tellsTheStatesApart()
{
    QFETCH(QStringList, names);

    for (int i = 0; i < names.size(); ++i) {
        const QImage one(path(names.at(i)));
        QVERIFY2(!one.isNull(), qPrintable(names.at(i)));
        for (int j = i + 1; j < names.size(); ++j) {
            const QImage other(path(names.at(j)));
            QCOMPARE(one.size(), other.size());
            QVERIFY2(differingShare(one, other) >= 0.03,
                     qPrintable(names.at(i) + QStringLiteral(" and ") + names.at(j)));
        }
    }
}

PELORIN_TEST_MAIN(tst_Pictures)
#include "tst_pictures.moc"
