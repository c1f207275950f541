#include "tests/spectral/ChartProbe.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QSet>

#include <limits>

namespace {

QVector<QPointF> band(double lower, double upper, double bottom, double top, double level)
{
    return { { lower, bottom },      { lower + 0.1, top }, { lower + 0.2, level },
             { upper - 0.2, level }, { upper - 0.1, top }, { upper, bottom } };
}

} // namespace

class tst_WavelengthChartSeries : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithASyntheticSpectrum();
    void startsWithASyntheticFilter();
    void showsTheSpectrumAsItComes_data();
    void showsTheSpectrumAsItComes();
    void leavesOutWhatIsNotFinite();
    void drawsTheBandOfTheLaser_data();
    void drawsTheBandOfTheLaser();
    void movesTheBandWithTheRanges();
    void isSilentAboutTheLaser();
    void looksTheScaleUpWhereTheLaserWasSet();
    void refreshesWithTheLaserThatIsKept();
    void replacesOnePointAtRandom();
    void replacesNothingWithoutTwoPoints_data();
    void replacesNothingWithoutTwoPoints();
    void livesWithoutItsSeries();
};

void tst_WavelengthChartSeries::startsWithASyntheticSpectrum()
{
    const ChartProbe chart;
    const QVector<QPointF> points = ChartProbe::points(chart.spectrum());

    // 2048 throws into 370 places leave hardly one of them empty.
    QVERIFY(points.size() > 340);
    QVERIFY(points.size() <= 370);
    double before = 0.0;
    QSet<double> powers;
    for (const QPointF &point : points) {
        QVERIFY(point.x() > before);
        before = point.x();
        QVERIFY(point.x() >= 380.0 && point.x() < 750.0);
        QVERIFY(point.y() >= 25.0 && point.y() < 50.0);
        QCOMPARE(point.x(), std::floor(point.x()));
        QCOMPARE(point.y(), std::floor(point.y()));
        powers.insert(point.y());
    }
    QVERIFY(powers.size() > 15); // of 25
}

void tst_WavelengthChartSeries::startsWithASyntheticFilter()
{
    const ChartProbe chart;
    const QVector<QPointF> points = ChartProbe::points(chart.filter());

    QCOMPARE(points.size(), 370);
    for (int i = 0; i < points.size(); ++i) {
        const int x = 380 + i;
        QCOMPARE(points.at(i), QPointF(x, x >= 450 && x <= 454 ? 50.0 : 10.0));
    }
}

void tst_WavelengthChartSeries::showsTheSpectrumAsItComes_data()
{
    QTest::addColumn<QVector<QPointF>>("points");

    QTest::newRow("sorted") << QVector<QPointF>{ { 400, 1 }, { 500, 2 } };
    QTest::newRow("unsorted") << QVector<QPointF>{ { 500, 1 }, { 400, 2 }, { 450, 3 } };
    QTest::newRow("twice the same") << QVector<QPointF>{ { 500, 1 }, { 500, 1 } };
    QTest::newRow("outside of the axes") << QVector<QPointF>{ { -9, 1 }, { 500, 1e9 }, { 9e3, 2 } };
    QTest::newRow("one point") << QVector<QPointF>{ { 500, 1 } };
    QTest::newRow("empty") << QVector<QPointF>();
}

void tst_WavelengthChartSeries::showsTheSpectrumAsItComes()
{
    QFETCH(QVector<QPointF>, points);
    ChartProbe chart;
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);

    chart.setSpectrometerData(points);
    chart.grab();

    QCOMPARE(ChartProbe::points(chart.spectrum()), points);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChartSeries::leavesOutWhatIsNotFinite()
{
    ChartProbe chart;

    chart.setSpectrometerData(
        { { 400, 1 }, { qQNaN(), 1 }, { 450, qInf() }, { -qInf(), 2 }, { 500, 3 } });

    QCOMPARE(ChartProbe::points(chart.spectrum()), (QVector<QPointF>{ { 400, 1 }, { 500, 3 } }));
}

void tst_WavelengthChartSeries::drawsTheBandOfTheLaser_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("bandwidth");
    QTest::addColumn<double>("power");
    QTest::addColumn<QVector<QPointF>>("points");

    // From 350 to 800 nm and from -10 to 100.
    QTest::newRow("inside") << 488.0 << 10.0 << 40.0 << band(483.0, 493.0, -10.0, 100.0, 40.0);
    QTest::newRow("cut at the upper end")
        << 799.0 << 10.0 << 40.0 << band(794.0, 800.0, -10.0, 100.0, 40.0);
    QTest::newRow("cut at the lower end")
        << 350.0 << 20.0 << 40.0 << band(350.0, 360.0, -10.0, 100.0, 40.0);
    QTest::newRow("laser outside") << 1000.0 << 5.0 << 1.0 << band(797.5, 800.0, -10.0, 100.0, 1.0);
    QTest::newRow("power above the axis")
        << 488.0 << 10.0 << 400.0 << band(483.0, 493.0, -10.0, 100.0, 100.0);
    QTest::newRow("power below the axis")
        << 488.0 << 10.0 << -40.0 << band(483.0, 493.0, -10.0, 100.0, -10.0);
    QTest::newRow("no bandwidth folds back")
        << 488.0 << 0.0 << 40.0 << band(488.0, 488.0, -10.0, 100.0, 40.0);
}

void tst_WavelengthChartSeries::drawsTheBandOfTheLaser()
{
    QFETCH(double, wavelength);
    QFETCH(double, bandwidth);
    QFETCH(double, power);
    ChartProbe chart;

    chart.setWavelengthBandwidthPower(wavelength, bandwidth, power);

    QTEST(ChartProbe::points(chart.filter()), "points");
}

void tst_WavelengthChartSeries::movesTheBandWithTheRanges()
{
    ChartProbe chart;
    chart.setWavelengthBandwidthPower(488.0, 10.0, 40.0);

    chart.setFilterPowerRange(0.0, 30.0, Converter::pwrMW3);
    QCOMPARE(ChartProbe::points(chart.filter()), band(483.0, 493.0, 0.0, 30.0, 30.0));

    chart.setWavelengthRange(490.0, 600.0);
    QCOMPARE(ChartProbe::points(chart.filter()), band(490.0, 495.0, 0.0, 30.0, 30.0));
}

void tst_WavelengthChartSeries::isSilentAboutTheLaser()
{
    ChartProbe chart;
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);

    chart.setWavelengthBandwidthPower(488.0, 10.0, 40.0);

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChartSeries::looksTheScaleUpWhereTheLaserWasSet()
{
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 700, 10 }, { 800, 20 }, { 1000, 50 }, { 1010, 60 } };
    dye.emission = { { 600, 100 } };
    chart.addFluorophore(dye);

    chart.setWavelengthBandwidthPower(1000.0, 4.0, 40.0); // 800 is kept, 1000 was asked for

    QCOMPARE(ChartProbe::points(chart.emission()), (QVector<QPointF>{ { 600, 60 } }));
}

void tst_WavelengthChartSeries::refreshesWithTheLaserThatIsKept()
{
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 700, 10 }, { 800, 20 }, { 1000, 50 }, { 1010, 60 } };
    dye.emission = { { 600, 100 } };
    chart.addFluorophore(dye);
    chart.setWavelengthBandwidthPower(1000.0, 4.0, 40.0);

    chart.setFluorophoresVisible(true);

    // At 800 nm, 2 nm to each side: 800 itself and the first point past the band.
    QCOMPARE(ChartProbe::points(chart.emission()), (QVector<QPointF>{ { 600, 50 } }));
}

void tst_WavelengthChartSeries::replacesOnePointAtRandom()
{
    ChartProbe chart;
    QVector<QPointF> points;
    for (int i = 0; i < 50; ++i)
        points << QPointF(400 + i, 1000.0);
    chart.setSpectrometerData(points);

    for (int i = 0; i < 200; ++i)
        chart.appendRandomData();

    const QVector<QPointF> after = ChartProbe::points(chart.spectrum());
    QCOMPARE(after.size(), points.size());
    int changed = 0;
    for (int i = 0; i < after.size(); ++i) {
        QCOMPARE(after.at(i).x(), points.at(i).x());
        if (after.at(i).y() == 1000.0)
            continue;
        ++changed;
        QVERIFY(after.at(i).y() >= 0.0 && after.at(i).y() < 100.0);
    }
    QVERIFY(changed > 20);
    QCOMPARE(after.last().y(), 1000.0); // the last one never has its turn
}

void tst_WavelengthChartSeries::replacesNothingWithoutTwoPoints_data()
{
    QTest::addColumn<QVector<QPointF>>("points");

    QTest::newRow("none") << QVector<QPointF>();
    QTest::newRow("one") << QVector<QPointF>{ { 500, 1000 } };
}

void tst_WavelengthChartSeries::replacesNothingWithoutTwoPoints()
{
    QFETCH(QVector<QPointF>, points);
    ChartProbe chart;
    chart.setSpectrometerData(points);

    chart.appendRandomData();

    QCOMPARE(ChartProbe::points(chart.spectrum()), points);
}

void tst_WavelengthChartSeries::livesWithoutItsSeries()
{
    ChartProbe chart;
    chart.addFluorophore(ChartProbe::dye(1));
    chart.chart()->removeAllSeries(); // by the application

    chart.setSpectrometerData({ { 400, 1 }, { 500, 2 } });
    chart.setWavelengthBandwidthPower(488.0, 10.0, 40.0);
    chart.setWavelengthRange(400.0, 600.0);
    chart.setFilterPowerRange(0.0, 5.0, Converter::pwrMW3);
    chart.setSpectrometerVisibility(false);
    chart.setFluorophoresVisible(true);
    chart.setFluorophoreVisibilityState(true, false, true);
    chart.updFluorophore(ChartProbe::dye(1, 600.0));
    chart.appendRandomData();
    chart.grab();
    chart.delFluorophores();

    QCOMPARE(chart.chart()->series().size(), 0);
}

PELORIN_TEST_MAIN(tst_WavelengthChartSeries)
#include "tst_wavelengthchartseries.moc"
