#include "Pelorin/shell/SplashImage.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"

#include <QImage>

namespace {

constexpr QRgb red = 0xFF87212E;
constexpr QRgb grey = 0xFFC5C6C6;

} // namespace

// The macros do not work within a namespace.
static void bringSplash()
{
    Q_INIT_RESOURCE(splash);
}

static void takeSplashAway()
{
    Q_CLEANUP_RESOURCE(splash);
}

/// The picture of these tests is 400 x 160, red on the left, grey on the right.
class tst_SplashImage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAQWidget();
    void loadsThePictureOfTheApplication();
    void fillsItsWidth();
    void takesNoRoomWithoutAPicture();
};

void tst_SplashImage::isAQWidget()
{
    QCOMPARE(SplashImage::staticMetaObject.className(), "SplashImage");
    QCOMPARE(SplashImage::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_SplashImage::loadsThePictureOfTheApplication()
{
    const SplashImage splash;

    QVERIFY(splash.hasHeightForWidth());
    QCOMPARE(splash.maximumSize(), QSize(400, 160));
    QCOMPARE(splash.minimumSize(), QSize(200, 80));
    QCOMPARE(splash.heightForWidth(300), 120);
}

void tst_SplashImage::fillsItsWidth()
{
    SplashImage splash;
    splash.resize(300, 120);

    const QImage image = splash.grab().toImage();

    QCOMPARE(image.pixel(0, 0), red);
    QCOMPARE(image.pixel(140, 119), red);
    QCOMPARE(image.pixel(160, 0), grey);
    QCOMPARE(image.pixel(299, 119), grey);
}

void tst_SplashImage::takesNoRoomWithoutAPicture()
{
    takeSplashAway();
    SplashImage splash;
    bringSplash();

    QCOMPARE(splash.maximumSize(), QSize(0, 0));
    QCOMPARE(splash.minimumSize(), QSize(0, 0));
    QCOMPARE(splash.heightForWidth(300), 0);
    QVERIFY(splash.hasHeightForWidth());
    splash.show();
    QCOMPARE(PaintRecorder(splash).pixmaps().size(), 0);
}

PELORIN_TEST_MAIN(tst_SplashImage)
#include "tst_splashimage.moc"
