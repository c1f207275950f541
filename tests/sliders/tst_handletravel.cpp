#include "Pelorin/sliders/HandleTravel_p.h"
#include "Pelorin/sliders/NiceStep_p.h"
#include "tests/support/TestCase.h"

#include <limits>

class tst_HandleTravel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheNiceStep_data();
    void findsTheNiceStep();
    void reachesOutToNiceNumbers_data();
    void reachesOutToNiceNumbers();
    void placesTheHandle_data();
    void placesTheHandle();
    void readsTheValueBack_data();
    void readsTheValueBack();
    void countsTheEdgeOfAHandleAsOutside_data();
    void countsTheEdgeOfAHandleAsOutside();
};

void tst_HandleTravel::findsTheNiceStep_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("step");

    QTest::newRow("a power of ten is itself") << 100.0 << 100.0;
    QTest::newRow("two is not below two") << 2.0 << 1.0;
    QTest::newRow("just above two") << 2.1 << 2.0;
    QTest::newRow("two and a half is not below itself") << 2.5 << 2.0;
    QTest::newRow("just above two and a half") << 2.6 << 2.5;
    QTest::newRow("five is not below five") << 5.0 << 2.5;
    QTest::newRow("just above five") << 5.1 << 5.0;
    QTest::newRow("a third of five hundred") << 500.0 / 3.0 << 100.0;
    QTest::newRow("a fraction") << 0.07 << 0.05;
    QTest::newRow("nothing") << 0.0 << 0.0;
    QTest::newRow("less than nothing") << -3.0 << 0.0;
    QTest::newRow("infinite") << qInf() << 0.0;
    QTest::newRow("not a number") << qQNaN() << 0.0;
    QTest::newRow("too small for a power of ten")
        << std::numeric_limits<double>::denorm_min() << 0.0;
}

void tst_HandleTravel::findsTheNiceStep()
{
    QFETCH(double, width);
    QFETCH(double, step);

    QCOMPARE(niceStep(width), step);
}

void tst_HandleTravel::reachesOutToNiceNumbers_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("parts");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("intervals");

    QTest::newRow("ends on multiples") << 400.0 << 900.0 << 3.0 << 400.0 << 900.0 << 5.0;
    QTest::newRow("ends between multiples") << 410.0 << 890.0 << 3.0 << 400.0 << 900.0 << 5.0;
    QTest::newRow("below zero") << -15.0 << 15.0 << 3.0 << -20.0 << 20.0 << 4.0;
    QTest::newRow("one part") << 0.0 << 100.0 << 1.0 << 0.0 << 100.0 << 1.0;
    QTest::newRow("empty") << 400.0 << 400.0 << 3.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("reversed") << 900.0 << 400.0 << 3.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("infinite") << 0.0 << qInf() << 3.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("not a number") << qQNaN() << 1.0 << 3.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("beyond the largest number") << 0.0 << 1.7e308 << 3.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("no parts") << 0.0 << 100.0 << 0.0 << 0.0 << 0.0 << 0.0;
}

void tst_HandleTravel::reachesOutToNiceNumbers()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, parts);

    const NiceScale scale = niceScale(min, max, parts);

    QTEST(scale.start, "start");
    QTEST(scale.end, "end");
    QTEST(scale.intervals, "intervals");
    QCOMPARE(scale.isValid(), scale.intervals > 0.0);
}

void tst_HandleTravel::placesTheHandle_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("margins");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("left");

    QTest::newRow("left end") << 335 << 0 << 0.0 << 100.0 << 0.0 << 0.0;
    QTest::newRow("right end") << 335 << 0 << 0.0 << 100.0 << 100.0 << 300.0;
    QTest::newRow("cut to a whole pixel") << 335 << 0 << 0.0 << 100.0 << 33.3 << 99.0;
    QTest::newRow("between margins") << 335 << 20 << 0.0 << 100.0 << 50.0 << 150.0;
    QTest::newRow("before the scale") << 335 << 0 << 400.0 << 900.0 << 300.0 << -60.0;
    QTest::newRow("an empty scale") << 335 << 12 << 5.0 << 5.0 << 5.0 << 12.0;
    QTest::newRow("off an empty scale") << 335 << 12 << 5.0 << 5.0 << 9.0 << 12.0;
    QTest::newRow("a widget as wide as the handle") << 35 << 0 << 0.0 << 100.0 << 50.0 << 0.0;
    QTest::newRow("a widget too narrow") << 10 << 3 << 0.0 << 100.0 << 50.0 << 3.0;
    QTest::newRow("not a number") << 335 << 4 << 0.0 << 100.0 << qQNaN() << 4.0;
    QTest::newRow("minus infinity") << 335 << 4 << 0.0 << 100.0 << -qInf() << 4.0;
    QTest::newRow("infinity") << 335 << 4 << 0.0 << 100.0 << qInf() << 296.0;
    QTest::newRow("far away") << 335 << 0 << 0.0 << 1.0e-300 << 1.0e300 << 1.0e6;
}

void tst_HandleTravel::placesTheHandle()
{
    QFETCH(int, width);
    QFETCH(int, margins);
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, value);

    const HandleTravel travel{ width, margins, start, end };

    QTEST(travel.leftOf(value), "left");
}

void tst_HandleTravel::readsTheValueBack_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("margins");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("value");

    QTest::newRow("left end") << 335 << 0 << 0.0 << 400.0;
    QTest::newRow("right end") << 335 << 0 << 300.0 << 900.0;
    QTest::newRow("between margins") << 335 << 50 << 150.0 << 650.0;
    QTest::newRow("before the scale") << 335 << 0 << -30.0 << 350.0;
    QTest::newRow("no room") << 35 << 0 << 20.0 << 400.0;
    QTest::newRow("less than no room") << 10 << 0 << 20.0 << 400.0;
}

void tst_HandleTravel::readsTheValueBack()
{
    QFETCH(int, width);
    QFETCH(int, margins);
    QFETCH(double, left);

    const HandleTravel travel{ width, margins, 400.0, 900.0 };

    QTEST(travel.valueAt(left), "value");
}

void tst_HandleTravel::countsTheEdgeOfAHandleAsOutside_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("inside");

    QTest::newRow("middle") << QPoint(30, 20) << true;
    QTest::newRow("left edge") << QPoint(17, 20) << false;
    QTest::newRow("right edge") << QPoint(52, 20) << false;
    QTest::newRow("inside of the right edge") << QPoint(51, 20) << true;
    QTest::newRow("top edge") << QPoint(30, 0) << false;
    QTest::newRow("bottom edge") << QPoint(30, 35) << false;
    QTest::newRow("inside of the bottom edge") << QPoint(30, 34) << true;
}

void tst_HandleTravel::countsTheEdgeOfAHandleAsOutside()
{
    QFETCH(QPoint, position);

    const QRectF handle = HandleTravel::restingHandle();

    QTEST(HandleTravel::isInside(handle, position), "inside");
}

PELORIN_TEST_MAIN(tst_HandleTravel)
#include "tst_handletravel.moc"
