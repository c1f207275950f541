#include "Pelorin/controls/Indicator.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QImage>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();
constexpr QRgb red = 0xFFFF0000;
constexpr QRgb grey = 0xFF555555;
constexpr QRgb orange = 0xFFF58B2E;
constexpr QRgb green = 0xFF95D400;
constexpr QRgb white = 0xFFFFFFFF;

/// Longer than any test.
constexpr int never = 10'000'000;

/// A lamp on a white ground, with a look at its timer.
class Lamp : public Indicator
{
public:
    Lamp()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        setPalette(palette);
        show();
    }

    QImage picture() { return grab().toImage(); }
    QRgb shown() { return picture().pixel(width() / 2, height() / 2); }
    QTimer &timer() const { return *findChild<QTimer *>(); }
};

} // namespace

Q_DECLARE_METATYPE(QList<QPoint>)

class tst_Indicator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsAsAGreyDisc();
    void fixesItsSize_data();
    void fixesItsSize();
    void showsItsColor();
    void letsTheGroundThroughATranslucentColor();
    void drawsItsForm_data();
    void drawsItsForm();
    void outlinesTheDiscAlone_data();
    void outlinesTheDiscAlone();
    void repaintsForItsColorAlone();
    void beginsToBlinkInTheOtherColor();
    void blinksByItsTimer();
    void stopsBlinkingInItsOwnColor();
    void flashesOnce();
    void changesBetweenBlinkingAndAFlash();
    void hasDefaultTimes();
    void survivesAbsurdTimes_data();
    void survivesAbsurdTimes();
    void isGreyWhenDisabled();
    void takesAColorThroughTheEventLoop();
};

void tst_Indicator::declaresItsInterface()
{
    const QMetaObject &meta = Indicator::staticMetaObject;

    QCOMPARE(meta.className(), "Indicator");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             QStringList(
                 { QStringLiteral("setSize(int)"), QStringLiteral("setSize(int,int)"),
                   QStringLiteral("setColor(Indicator::Color)"), QStringLiteral("setBorder(bool)"),
                   QStringLiteral("setBlink(bool,int,Indicator::Color)"),
                   QStringLiteral("setOneShoot(int,Indicator::Color)"),
                   QStringLiteral("setForm(Indicator::Form)"), QStringLiteral("toggleBlink()") }));
}

void tst_Indicator::startsAsAGreyDisc()
{
    Lamp lamp;

    QCOMPARE(lamp.minimumSize(), QSize(20, 20));
    QCOMPARE(lamp.maximumSize(), QSize(20, 20));
    QCOMPARE(lamp.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(lamp.color(), grey);
    QCOMPARE(lamp.form(), Indicator::Round);
    QVERIFY(!lamp.hasBorder());
    QVERIFY(!lamp.timer().isActive());
    QCOMPARE(lamp.shown(), grey);
}

void tst_Indicator::fixesItsSize_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("fixed");

    QTest::newRow("wide") << QSize(40, 10) << QSize(40, 10);
    QTest::newRow("high") << QSize(10, 40) << QSize(10, 40);
    QTest::newRow("nothing") << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("negative") << QSize(-1, minInt) << QSize(0, 0);
    QTest::newRow("beyond any widget")
        << QSize(maxInt, 16777216) << QSize(QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX - 1);
}

void tst_Indicator::fixesItsSize()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, fixed);
    Indicator lamp;

    lamp.setSize(wanted.width(), wanted.height());
    QCOMPARE(lamp.minimumSize(), fixed);
    QCOMPARE(lamp.maximumSize(), fixed);

    lamp.setSize(wanted.width());
    QCOMPARE(lamp.minimumSize(), QSize(fixed.width(), fixed.width()));
    QCOMPARE(lamp.maximumSize(), QSize(fixed.width(), fixed.width()));
}

void tst_Indicator::showsItsColor()
{
    Lamp lamp;

    lamp.setColor(green);

    QCOMPARE(lamp.color(), green);
    QCOMPARE(lamp.shown(), green);
}

void tst_Indicator::letsTheGroundThroughATranslucentColor()
{
    Lamp lamp;

    lamp.setColor(0x00FF0000);

    QCOMPARE(lamp.shown(), white);
}

void tst_Indicator::drawsItsForm_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<QPoint>>("inside");
    QTest::addColumn<QList<QPoint>>("outside");

    using Points = QList<QPoint>;
    // Half the width is 20, the radius 19: the disc spans 1 to 39.
    QTest::newRow("disc") << 0 << QSize(40, 40)
                          << Points({ { 20, 2 }, { 20, 37 }, { 2, 20 }, { 37, 20 }, { 8, 8 } })
                          << Points({ { 0, 0 }, { 5, 5 }, { 35, 5 }, { 5, 34 }, { 34, 35 } });
    // Half of 41 is 20, half of 39 is 19: the same disc, and a column to spare.
    QTest::newRow("disc of an odd width") << 0 << QSize(41, 41) << Points({ { 20, 2 }, { 37, 20 } })
                                          << Points({ { 40, 20 }, { 20, 40 } });
    QTest::newRow("disc of the width, not of the height")
        << 0 << QSize(40, 100) << Points({ { 20, 2 }, { 20, 37 } })
        << Points({ { 20, 41 }, { 20, 99 } });
    QTest::newRow("disc cut off below")
        << 0 << QSize(40, 20) << Points({ { 20, 2 }, { 2, 19 }, { 37, 19 } })
        << Points({ { 0, 0 }, { 39, 0 } });
    QTest::newRow("triangle up") << 1 << QSize(40, 40)
                                 << Points({ { 20, 2 }, { 20, 39 }, { 1, 39 }, { 38, 39 } })
                                 << Points({ { 0, 0 }, { 8, 20 }, { 31, 20 }, { 39, 0 } });
    QTest::newRow("triangle up, wide")
        << 1 << QSize(80, 20) << Points({ { 40, 1 }, { 40, 19 }, { 3, 19 }, { 76, 19 } })
        << Points({ { 15, 10 }, { 64, 10 } });
    QTest::newRow("triangle down")
        << 2 << QSize(40, 40) << Points({ { 20, 37 }, { 20, 0 }, { 1, 0 }, { 38, 0 } })
        << Points({ { 0, 39 }, { 8, 20 }, { 31, 20 }, { 39, 39 } });
    QTest::newRow("one too many") << 3 << QSize(40, 40) << Points({ { 20, 37 }, { 1, 0 } })
                                  << Points({ { 0, 39 }, { 39, 39 } });
    QTest::newRow("negative") << -1 << QSize(40, 40) << Points({ { 20, 37 }, { 1, 0 } })
                              << Points({ { 0, 39 }, { 39, 39 } });
}

void tst_Indicator::drawsItsForm()
{
    QFETCH(int, form);
    QFETCH(QSize, size);
    QFETCH(QList<QPoint>, inside);
    QFETCH(QList<QPoint>, outside);
    Lamp lamp;
    lamp.setSize(size.width(), size.height());
    lamp.setColor(red);

    lamp.setForm(Indicator::Form(form));

    const QImage image = lamp.picture();
    for (const QPoint point : inside)
        QCOMPARE(image.pixel(point), red);
    for (const QPoint point : outside)
        QCOMPARE(image.pixel(point), white);
}

void tst_Indicator::outlinesTheDiscAlone_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("dark");

    QTest::newRow("disc") << 0 << false << false;
    QTest::newRow("disc with a border") << 0 << true << true;
    QTest::newRow("triangle up with a border") << 1 << true << false;
    QTest::newRow("triangle down with a border") << 2 << true << false;
}

void tst_Indicator::outlinesTheDiscAlone()
{
    QFETCH(int, form);
    QFETCH(bool, border);
    QFETCH(bool, dark);
    Lamp lamp;
    lamp.setSize(40);
    lamp.setColor(red);

    lamp.setForm(Indicator::Form(form));
    lamp.setBorder(border);

    QCOMPARE(lamp.hasBorder(), border);
    // Red over white has a full red part everywhere, black over either has not.
    const QImage image = lamp.picture();
    int darkest = 255;
    for (int x = 0; x < 40; ++x)
        darkest = qMin(darkest, qRed(image.pixel(x, 20)));
    QCOMPARE(darkest < 200, dark);
    QCOMPARE(image.pixel(20, 20), red);
}

void tst_Indicator::repaintsForItsColorAlone()
{
    Lamp lamp;
    RepaintCounter repaints(lamp);

    lamp.setColor(grey); // also when it is the same
    QCOMPARE(repaints.taken(), 1);
    lamp.setBorder(true);
    lamp.setForm(Indicator::TriangleUp);
    QCOMPARE(repaints.taken(), 0);
    lamp.setBlink(true, never, red);
    QCOMPARE(repaints.taken(), 1);
    lamp.setOneShoot(never, red);
    QCOMPARE(repaints.taken(), 1);
    lamp.toggleBlink();
    QCOMPARE(repaints.taken(), 1);
}

void tst_Indicator::beginsToBlinkInTheOtherColor()
{
    Lamp lamp;
    lamp.setColor(green);

    lamp.setBlink(true, never, orange);
    QCOMPARE(lamp.shown(), orange);
    QCOMPARE(lamp.timer().interval(), never);
    QVERIFY(lamp.timer().isActive());

    lamp.toggleBlink();
    QCOMPARE(lamp.shown(), green);
    QVERIFY(lamp.timer().isActive());

    lamp.toggleBlink();
    QCOMPARE(lamp.shown(), orange);
    QCOMPARE(lamp.color(), green);
}

void tst_Indicator::blinksByItsTimer()
{
    Lamp lamp;
    lamp.setColor(green);

    lamp.setBlink(true, 5, orange);

    QTRY_COMPARE(lamp.shown(), green);
    QTRY_COMPARE(lamp.shown(), orange);
    QTRY_COMPARE(lamp.shown(), green);
}

void tst_Indicator::stopsBlinkingInItsOwnColor()
{
    Lamp lamp;
    lamp.setColor(green);
    lamp.setBlink(true, 5, orange);

    lamp.setBlink(false);

    QCOMPARE(lamp.color(), green);
    QCOMPARE(lamp.shown(), green);
    QVERIFY(!lamp.timer().isActive());
    lamp.toggleBlink(); // by hand: a lamp that does not blink has one colour
    QCOMPARE(lamp.shown(), green);
}

void tst_Indicator::flashesOnce()
{
    Lamp lamp;
    lamp.setColor(green);

    lamp.setOneShoot(never, red);
    QCOMPARE(lamp.shown(), red);
    QCOMPARE(lamp.timer().interval(), never);

    lamp.setOneShoot(5, red);
    QTRY_COMPARE(lamp.shown(), green);
    QVERIFY(!lamp.timer().isActive());

    lamp.setOneShoot(5, orange); // and again
    QCOMPARE(lamp.shown(), orange);
    QTRY_COMPARE(lamp.shown(), green);
}

void tst_Indicator::changesBetweenBlinkingAndAFlash()
{
    Lamp lamp;
    lamp.setColor(green);

    lamp.setBlink(true, never, orange);
    lamp.toggleBlink();
    lamp.setOneShoot(never, red);
    QCOMPARE(lamp.shown(), red);
    lamp.toggleBlink();
    QCOMPARE(lamp.shown(), green);
    QVERIFY(!lamp.timer().isActive()); // the flash has ended the blinking

    lamp.setOneShoot(never, red);
    lamp.setBlink(true, never, orange);
    lamp.toggleBlink();
    QCOMPARE(lamp.shown(), green);
    QVERIFY(lamp.timer().isActive()); // the blinking has ended the flash

    lamp.setOneShoot(never, red);
    lamp.setBlink(false);
    QCOMPARE(lamp.shown(), green);
    QVERIFY(!lamp.timer().isActive());
}

void tst_Indicator::hasDefaultTimes()
{
    Lamp lamp;
    lamp.setColor(green);

    lamp.setBlink(true);
    QCOMPARE(lamp.timer().interval(), 500);
    QCOMPARE(lamp.shown(), grey);

    lamp.setOneShoot();
    QCOMPARE(lamp.timer().interval(), 250);
    QCOMPARE(lamp.shown(), grey);
}

void tst_Indicator::survivesAbsurdTimes_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("used");

    QTest::newRow("none") << 0 << 1;
    QTest::newRow("negative") << -500 << 1;
    QTest::newRow("smallest") << minInt << 1;
    QTest::newRow("largest") << maxInt << maxInt;
}

void tst_Indicator::survivesAbsurdTimes()
{
    QFETCH(int, interval);
    QFETCH(int, used);
    Lamp lamp;

    lamp.setBlink(true, interval, red);
    QCOMPARE(lamp.timer().interval(), used);
    lamp.setOneShoot(interval, red);
    QCOMPARE(lamp.timer().interval(), used);
}

void tst_Indicator::isGreyWhenDisabled()
{
    Lamp lamp;
    lamp.setColor(green);
    lamp.setBlink(true, never, orange);

    lamp.setEnabled(false);
    QCOMPARE(lamp.shown(), grey);
    lamp.toggleBlink();
    QCOMPARE(lamp.shown(), grey);
    QVERIFY(lamp.timer().isActive());

    lamp.toggleBlink();
    lamp.setEnabled(true);
    QCOMPARE(lamp.shown(), orange);
}

void tst_Indicator::takesAColorThroughTheEventLoop()
{
    Indicator lamp;

    QVERIFY(QMetaObject::invokeMethod(&lamp, "setColor", Qt::QueuedConnection,
                                      Q_ARG(Indicator::Color, red)));

    QTRY_COMPARE(lamp.color(), red);
}

PELORIN_TEST_MAIN(tst_Indicator)
#include "tst_indicator.moc"
