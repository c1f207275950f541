#include "Pelorin/sliders/NearestStep_p.h"
#include "Pelorin/sliders/ScaleMapping_p.h"
#include "tests/support/TestCase.h"

#include <limits>

Q_DECLARE_METATYPE(ScaleMapping::Curve)

class tst_ScaleMapping : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mapsValuesToHandles_data();
    void mapsValuesToHandles();
    void mapsHandlesToValues_data();
    void mapsHandlesToValues();
    void comesBackToTheSameHandle();
    void findsTheNearestStep_data();
    void findsTheNearestStep();
    void roundsToDecimals_data();
    void roundsToDecimals();
    void roundsWithoutOverflow_data();
    void roundsWithoutOverflow();
};

using ScaleMapping::Curve;

void tst_ScaleMapping::mapsValuesToHandles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<Curve>("curve");
    QTest::addColumn<int>("handle");

    const double huge = std::numeric_limits<double>::max();
    QTest::newRow("linear low end") << 0.0 << 0.0 << 100.0 << Curve::Linear << 0;
    QTest::newRow("linear high end") << 100.0 << 0.0 << 100.0 << Curve::Linear << 100000;
    QTest::newRow("linear inside") << 12.5 << 0.0 << 100.0 << Curve::Linear << 12500;
    QTest::newRow("linear half a unit rounds up") << 0.0005 << 0.0 << 100.0 << Curve::Linear << 1;
    QTest::newRow("linear falling range") << 75.0 << 100.0 << 0.0 << Curve::Linear << 25000;
    QTest::newRow("linear beyond the range") << 900.0 << 0.0 << 100.0 << Curve::Linear << 100000;
    QTest::newRow("root of 25") << 25.0 << 0.0 << 100.0 << Curve::Sqrt << 50000;
    QTest::newRow("root of 81") << 81.0 << 0.0 << 100.0 << Curve::Sqrt << 90000;
    QTest::newRow("root with an offset") << 410.0 << 400.0 << 440.0 << Curve::Sqrt << 50000;
    QTest::newRow("root falling range") << 75.0 << 100.0 << 0.0 << Curve::Sqrt << 50000;
    QTest::newRow("root below the range") << -1.0 << 0.0 << 100.0 << Curve::Sqrt << 0;
    QTest::newRow("empty range") << 5.0 << 5.0 << 5.0 << Curve::Linear << 0;
    QTest::newRow("empty range, root") << 5.0 << 5.0 << 5.0 << Curve::Sqrt << 0;
    QTest::newRow("range wider than a double") << 0.0 << -huge << huge << Curve::Linear << 50000;
}

void tst_ScaleMapping::mapsValuesToHandles()
{
    QFETCH(double, value);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(Curve, curve);

    QTEST(ScaleMapping::handleOf(value, min, max, curve), "handle");
}

void tst_ScaleMapping::mapsHandlesToValues_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<Curve>("curve");
    QTest::addColumn<double>("value");

    const double huge = std::numeric_limits<double>::max();
    QTest::newRow("linear low end") << 0 << -20.0 << 100.0 << Curve::Linear << -20.0;
    QTest::newRow("linear high end") << 100000 << -20.0 << 100.0 << Curve::Linear << 100.0;
    QTest::newRow("linear inside") << 25000 << 0.0 << 8.0 << Curve::Linear << 2.0;
    QTest::newRow("linear falling range") << 25000 << 8.0 << 0.0 << Curve::Linear << 6.0;
    QTest::newRow("half the way is a quarter") << 50000 << 0.0 << 100.0 << Curve::Sqrt << 25.0;
    QTest::newRow("a quarter is a sixteenth") << 25000 << 0.0 << 16.0 << Curve::Sqrt << 1.0;
    QTest::newRow("root high end") << 100000 << 0.0 << 16.0 << Curve::Sqrt << 16.0;
    QTest::newRow("root falling range") << 50000 << 100.0 << 0.0 << Curve::Sqrt << 75.0;
    QTest::newRow("empty range") << 70000 << 5.0 << 5.0 << Curve::Sqrt << 5.0;
    QTest::newRow("range wider than a double") << 50000 << -huge << huge << Curve::Linear << 0.0;
}

void tst_ScaleMapping::mapsHandlesToValues()
{
    QFETCH(int, handle);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(Curve, curve);

    QTEST(ScaleMapping::valueAt(handle, min, max, curve), "value");
}

void tst_ScaleMapping::comesBackToTheSameHandle()
{
    for (const Curve curve : { Curve::Linear, Curve::Sqrt }) {
        for (int handle = 0; handle <= ScaleMapping::handleMax; handle += 7) {
            const double value = ScaleMapping::valueAt(handle, 400.0, 700.0, curve);
            QCOMPARE(ScaleMapping::handleOf(value, 400.0, 700.0, curve), handle);
        }
    }
}

void tst_ScaleMapping::findsTheNearestStep_data()
{
    QTest::addColumn<QList<double>>("steps");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");

    const QList<double> steps{ 0.0, 12.0, 25.0, 81.0, 100.0 };
    QTest::newRow("middle goes up") << steps << 53.0 << 81.0;
    QTest::newRow("just below the middle") << steps << 52.9 << 25.0;
    QTest::newRow("a step itself") << steps << 25.0 << 25.0;
    QTest::newRow("first middle") << steps << 6.0 << 12.0;
    QTest::newRow("below all") << steps << -40.0 << 0.0;
    QTest::newRow("above all") << steps << 400.0 << 100.0;
    QTest::newRow("infinite") << steps << qInf() << 100.0;
    QTest::newRow("two steps") << QList<double>{ 1.0, 2.0 } << 1.5 << 2.0;
    QTest::newRow("one step is no choice") << QList<double>{ 7.0 } << 3.3 << 3.3;
    QTest::newRow("no step is no choice") << QList<double>() << 3.3 << 3.3;
    QTest::newRow("unsorted, below the first")
        << QList<double>{ 50.0, 10.0, 100.0 } << 40.0 << 10.0;
}

void tst_ScaleMapping::findsTheNearestStep()
{
    QFETCH(QList<double>, steps);
    QFETCH(double, value);

    QTEST(nearestStep(steps, value), "step");
}

void tst_ScaleMapping::roundsToDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("rounded");

    QTest::newRow("one decimal") << 12.34 << 1 << 12.3;
    QTest::newRow("half goes up") << 0.25 << 1 << 0.3;
    QTest::newRow("negative half goes up too") << -2.5 << 0 << -2.0;
    QTest::newRow("no decimals") << 99.5 << 0 << 100.0;
    QTest::newRow("tens") << 1234.0 << -1 << 1230.0;
    QTest::newRow("beyond an int") << 12345678901.26 << 1 << 12345678901.3;
    QTest::newRow("more decimals than a double has") << 0.1 << 400 << 0.1;
    QTest::newRow("tens beyond a double") << 0.1 << -400 << 0.1;
    QTest::newRow("infinite") << qInf() << 1 << qInf();
}

void tst_ScaleMapping::roundsToDecimals()
{
    QFETCH(double, value);
    QFETCH(int, decimals);

    QTEST(roundedToDecimals(value, decimals), "rounded");
}

void tst_ScaleMapping::roundsWithoutOverflow_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");

    QTest::newRow("half up") << 2.5 << 3;
    QTest::newRow("negative") << -2.6 << -3;
    QTest::newRow("too large") << 1e12 << std::numeric_limits<int>::max();
    QTest::newRow("too small") << -1e12 << std::numeric_limits<int>::min();
    QTest::newRow("infinite") << qInf() << std::numeric_limits<int>::max();
    QTest::newRow("not a number") << qQNaN() << 0;
}

void tst_ScaleMapping::roundsWithoutOverflow()
{
    QFETCH(double, value);

    QTEST(saturatedRound(value), "rounded");
}

PELORIN_TEST_MAIN(tst_ScaleMapping)
#include "tst_scalemapping.moc"
