#include "Pelorin/signalviews/QualityIndicator.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QImage>

namespace {

constexpr QRgb ground = 0xFFFFFFFF;
const QList<QRgb> colors{ 0xFFC00000, 0xFFF58B2E, 0xFFFFFF00, 0xFF40FF40, 0xFF00C000, 0xFF008000 };

QImage picture(QualityIndicator &bar)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(ground));
    bar.setPalette(palette);
    return bar.grab().toImage();
}

/// The segments whose upper part has their own colour.
QList<int> litSegments(QualityIndicator &bar)
{
    const QImage image = picture(bar);
    QList<int> lit;
    for (int i = 0; i < colors.size(); ++i) {
        if (image.pixel(14 * i + 9 + 5, 9 + 6) == colors.at(i))
            lit << i;
    }
    return lit;
}

} // namespace

class tst_QualityIndicator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsSlotsInOrder();
    void hasAFixedSize();
    void lightsTheSegmentOfTheQuality_data();
    void lightsTheSegmentOfTheQuality();
    void testsEachSegmentByItself_data();
    void testsEachSegmentByItself();
    void drawsAStripForWhatIsNotLit();
    void paintsTheGroundOfTheSheet();
    void repaintsForEachSetter();
};

void tst_QualityIndicator::declaresItsSlotsInOrder()
{
    QCOMPARE(QualityIndicator::staticMetaObject.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(ownMethods(QualityIndicator::staticMetaObject),
             list({ "setQualityValue(double)",
                    "setQualityRanges(double,double,double,double,double)" }));
}

void tst_QualityIndicator::hasAFixedSize()
{
    const QualityIndicator bar;

    QCOMPARE(bar.minimumSize(), QSize(98, 33));
    QCOMPARE(bar.maximumSize(), QSize(98, 33));
    QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(bar.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_QualityIndicator::lightsTheSegmentOfTheQuality_data()
{
    QTest::addColumn<double>("quality");
    QTest::addColumn<QList<int>>("lit");

    QTest::newRow("far below") << -1.0e300 << QList<int>{ 0 };
    QTest::newRow("just below orange") << 64.999 << QList<int>{ 0 };
    QTest::newRow("orange") << 65.0 << QList<int>{ 1 };
    QTest::newRow("just below yellow") << 69.999 << QList<int>{ 1 };
    QTest::newRow("yellow, as at first") << 70.0 << QList<int>{ 2 };
    QTest::newRow("light green") << 75.0 << QList<int>{ 3 };
    QTest::newRow("green") << 80.0 << QList<int>{ 4 };
    QTest::newRow("just below dark green") << 84.999 << QList<int>{ 4 };
    QTest::newRow("dark green") << 85.0 << QList<int>{ 5 };
    QTest::newRow("infinite") << qInf() << QList<int>{ 5 };
    QTest::newRow("not a number") << qQNaN() << QList<int>();
}

void tst_QualityIndicator::lightsTheSegmentOfTheQuality()
{
    QFETCH(double, quality);
    QualityIndicator bar;
    QCOMPARE(litSegments(bar), QList<int>{ 2 });

    bar.setQualityValue(quality);

    QTEST(litSegments(bar), "lit");
}

void tst_QualityIndicator::testsEachSegmentByItself_data()
{
    QTest::addColumn<QList<double>>("bounds");
    QTest::addColumn<QList<int>>("lit");

    QTest::newRow("ascending") << QList<double>{ 10, 20, 30, 40, 50 } << QList<int>{ 5 };
    QTest::newRow("all alike, above") << QList<double>{ 90, 90, 90, 90, 90 } << QList<int>{ 0 };
    QTest::newRow("one too high") << QList<double>{ 10, 90, 30, 40, 50 } << QList<int>{ 1, 5 };
    QTest::newRow("descending") << QList<double>{ 90, 80, 75, 60, 80 } << QList<int>{ 0, 4 };
    QTest::newRow("not a number") << QList<double>{ qQNaN(), qQNaN(), qQNaN(), qQNaN(), qQNaN() }
                                  << QList<int>();
}

void tst_QualityIndicator::testsEachSegmentByItself()
{
    QFETCH(QList<double>, bounds);
    QualityIndicator bar; // at 70

    bar.setQualityRanges(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4]);

    QTEST(litSegments(bar), "lit");
}

void tst_QualityIndicator::drawsAStripForWhatIsNotLit()
{
    QualityIndicator bar;
    bar.setQualityValue(0.0);

    const QImage image = picture(bar);

    for (int i = 1; i < 6; ++i) {
        const int x = 14 * i + 9;
        QCOMPARE(image.pixel(x + 5, 9 + 6), ground);
        // The strip lies between 22 and 24, over the foot of the outline.
        const QRgb strip = image.pixel(x + 5, 22);
        QVERIFY(strip != ground);
        QVERIFY(qAbs(qRed(strip) - qRed(colors.at(i))) < 40);
        QVERIFY(qAbs(qGreen(strip) - qGreen(colors.at(i))) < 40);
    }
    for (int i = 0; i < 6; ++i) {
        const int x = 14 * i + 9;
        QVERIFY(image.pixel(x, 16) != ground); // the outline
        QCOMPARE(image.pixel(x + 12, 16), ground);
    }
    QCOMPARE(image.pixel(50, 6), ground);
    QCOMPARE(image.pixel(50, 27), ground);
}

void tst_QualityIndicator::paintsTheGroundOfTheSheet()
{
    QualityIndicator bar;

    bar.setStyleSheet(QStringLiteral("QualityIndicator { background-color: #123456; }"));

    QCOMPARE(bar.grab().toImage().pixel(4, 4), 0xFF123456);
}

void tst_QualityIndicator::repaintsForEachSetter()
{
    QualityIndicator bar;
    bar.show();
    RepaintCounter repaints(bar);

    bar.setQualityValue(70.0);
    QCOMPARE(repaints.taken(), 1);

    bar.setQualityRanges(1, 2, 3, 4, 5);
    QCOMPARE(repaints.taken(), 1);
}

PELORIN_TEST_MAIN(tst_QualityIndicator)
#include "tst_qualityindicator.moc"
