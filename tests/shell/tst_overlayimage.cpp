#include "Pelorin/shell/OverlayImage.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"

#include <QImage>
#include <QPainter>

#include <limits>

namespace {

constexpr QRgb red = 0xFF87212E;
constexpr QRgb grey = 0xFFC5C6C6;
constexpr QRgb ground = 0xFF00FF00;

/// The left half in one colour, the right half in another.
QPixmap picture(QSize size, QRgb left = red, QRgb right = grey)
{
    QPixmap pixmap(size);
    pixmap.fill(QColor::fromRgb(left));
    QPainter painter(&pixmap);
    painter.fillRect(size.width() / 2, 0, size.width(), size.height(), QColor::fromRgb(right));
    return pixmap;
}

/// \a widget on a ground of its own, at a device pixel ratio of \a ratio.
QImage painted(QWidget &widget, qreal ratio = 1.0)
{
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    QPainter painter(&image);
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// Counts how often it was painted.
class CountingImage : public OverlayImage
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        OverlayImage::paintEvent(event);
    }
};

} // namespace

class tst_OverlayImage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAQWidget();
    void startsWithoutAPicture();
    void limitsItsSize_data();
    void limitsItsSize();
    void answersAHeightForAWidth_data();
    void answersAHeightForAWidth();
    void leavesNoRoomForAnEmptyPicture();
    void fillsItsWidth();
    void paintsAsTheSmoothCopy();
    void keepsTheScaledPicture();
    void followsAnotherPictureOfTheSameSize();
    void staysSharpOnADenseScreen_data();
    void staysSharpOnADenseScreen();
    void countsThePixelsOfADensePicture();
    void paintsAVeryLongPictureWithoutACopy();
};

void tst_OverlayImage::isAQWidget()
{
    QCOMPARE(OverlayImage::staticMetaObject.className(), "OverlayImage");
    QCOMPARE(OverlayImage::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_OverlayImage::startsWithoutAPicture()
{
    OverlayImage image;

    QVERIFY(image.hasHeightForWidth());
    QCOMPARE(image.heightForWidth(100), 0);
    QCOMPARE(image.minimumSize(), QSize(0, 0));
    QCOMPARE(image.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(PaintRecorder(image).pixmaps().size(), 0);
}

void tst_OverlayImage::limitsItsSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("minimum");

    QTest::newRow("wide") << QSize(400, 100) << QSize(200, 50);
    QTest::newRow("high") << QSize(400, 1000) << QSize(200, 500);
    QTest::newRow("as wide as the least width") << QSize(200, 120) << QSize(200, 120);
    QTest::newRow("smaller than the least width") << QSize(100, 40) << QSize(200, 80);
    QTest::newRow("height rounded up") << QSize(400, 101) << QSize(200, 51);
    QTest::newRow("a line of half a pixel") << QSize(400, 1) << QSize(200, 1);
    QTest::newRow("a line of less") << QSize(401, 1) << QSize(0, 0);
}

void tst_OverlayImage::limitsItsSize()
{
    QFETCH(QSize, size);
    QFETCH(QSize, minimum);
    OverlayImage image;

    image.setImage(picture(size));

    QCOMPARE(image.maximumSize(), size);
    QCOMPARE(image.minimumSize(), minimum);
}

void tst_OverlayImage::answersAHeightForAWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");

    QTest::newRow("its own") << 400 << 100;
    QTest::newRow("half") << 200 << 50;
    QTest::newRow("twice") << 800 << 200;
    QTest::newRow("rounded down") << 201 << 50;
    QTest::newRow("rounded up") << 202 << 51;
    QTest::newRow("half a pixel") << 2 << 1;
    QTest::newRow("less than half a pixel") << 1 << 0;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -200 << 0;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 536870912;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0;
}

void tst_OverlayImage::answersAHeightForAWidth()
{
    QFETCH(int, width);
    QFETCH(int, height);
    OverlayImage image;
    image.setImage(picture(QSize(400, 100)));

    QCOMPARE(image.heightForWidth(width), height);
}

void tst_OverlayImage::leavesNoRoomForAnEmptyPicture()
{
    OverlayImage image;
    image.setImage(picture(QSize(400, 100)));

    image.setImage(QPixmap());

    QCOMPARE(image.maximumSize(), QSize(0, 0));
    QCOMPARE(image.minimumSize(), QSize(0, 0));
    QCOMPARE(image.heightForWidth(300), 0);
    image.show();
    image.grab();
}

void tst_OverlayImage::fillsItsWidth()
{
    OverlayImage image;
    image.setImage(picture(QSize(400, 100)));
    image.resize(200, 80); // 50 are the picture's

    const QImage result = painted(image);

    QCOMPARE(result.pixel(0, 0), red);
    QCOMPARE(result.pixel(95, 49), red);
    QCOMPARE(result.pixel(105, 0), grey);
    QCOMPARE(result.pixel(199, 49), grey);
    QCOMPARE(result.pixel(0, 51), ground);
    QCOMPARE(result.pixel(199, 79), ground);
}

void tst_OverlayImage::paintsAsTheSmoothCopy()
{
    QPixmap original = picture(QSize(400, 100));
    QPainter(&original).drawLine(0, 0, 399, 99);
    OverlayImage image;
    image.setImage(original);
    image.resize(310, 78);

    const QImage expected = original.scaledToWidth(310, Qt::SmoothTransformation).toImage();

    QCOMPARE(expected.size(), QSize(310, 78));
    QCOMPARE(painted(image).convertToFormat(QImage::Format_RGB32),
             expected.convertToFormat(QImage::Format_RGB32));
}

void tst_OverlayImage::keepsTheScaledPicture()
{
    OverlayImage image;
    image.setImage(picture(QSize(400, 100)));
    image.resize(300, 75);
    const auto drawn = [&image] { return PaintRecorder(image).pixmaps().value(0).pixmap; };
    const QPixmap first = drawn();
    QCOMPARE(first.size(), QSize(300, 75));

    QCOMPARE(drawn().cacheKey(), first.cacheKey());

    image.resize(300, 90); // the width says it all
    QCOMPARE(drawn().cacheKey(), first.cacheKey());

    image.resize(260, 90);
    QCOMPARE(drawn().size(), QSize(260, 65));
}

void tst_OverlayImage::followsAnotherPictureOfTheSameSize()
{
    CountingImage image;
    image.setImage(picture(QSize(400, 100)));
    image.resize(300, 75);
    image.show();
    QVERIFY(QTest::qWaitForWindowExposed(&image));
    QCOMPARE(image.grab().toImage().pixel(10, 10), red);
    QApplication::processEvents();
    const int before = image.paints;

    image.setImage(picture(QSize(400, 100), grey, red));

    QTRY_COMPARE(image.paints, before + 1);
    QCOMPARE(image.grab().toImage().pixel(10, 10), grey);
}

void tst_OverlayImage::staysSharpOnADenseScreen_data()
{
    QTest::addColumn<qreal>("ratio");

    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void tst_OverlayImage::staysSharpOnADenseScreen()
{
    QFETCH(qreal, ratio);
    OverlayImage image;
    const QPixmap original = picture(QSize(400, 100));
    image.setImage(original);
    image.resize(200, 50);
    painted(image, 3.0); // another one before

    const QImage result = painted(image, ratio);

    const int width = int(200 * ratio);
    const QImage expected = original.scaledToWidth(width, Qt::SmoothTransformation).toImage();
    for (const int x : { 0, width / 2 - 1, width / 2, width - 1 })
        QCOMPARE(result.pixel(x, 10), expected.pixel(x, 10));
}

void tst_OverlayImage::countsThePixelsOfADensePicture()
{
    QPixmap dense = picture(QSize(400, 100));
    dense.setDevicePixelRatio(2.0);
    OverlayImage image;

    image.setImage(dense);
    image.resize(400, 100);

    QCOMPARE(image.maximumSize(), QSize(400, 100));
    QCOMPARE(painted(image).pixel(399, 99), grey);
}

void tst_OverlayImage::paintsAVeryLongPictureWithoutACopy()
{
    OverlayImage image;
    image.setImage(picture(QSize(4, 30000))); // 1.5 million pixels high at its least width
    image.resize(200, 10);

    QCOMPARE(image.minimumSize(), QSize(200, 1500000));
    image.setMinimumSize(0, 0);
    image.setMaximumSize(300, 300);
    image.resize(200, 100);
    const QImage result = painted(image);
    QCOMPARE(result.pixel(20, 50), red);
    QCOMPARE(result.pixel(180, 50), grey);
    QCOMPARE(PaintRecorder(image).pixmaps().value(0).pixmap.size(), QSize(4, 30000));
}

PELORIN_TEST_MAIN(tst_OverlayImage)
#include "tst_overlayimage.moc"
