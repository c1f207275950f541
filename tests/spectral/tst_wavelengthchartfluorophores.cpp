#include "tests/spectral/ChartProbe.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QSignalSpy>

#include <functional>

namespace {

using Action = std::function<void(ChartProbe &)>;
constexpr double tolerance = 1.0e-6;

bool isAt(QPointF place, QPointF expected)
{
    return qAbs(place.x() - expected.x()) < tolerance && qAbs(place.y() - expected.y()) < tolerance;
}

/// Which parts of a dye an action sets, whatever they were before.
struct Touched
{
    bool excitation;
    bool emission;
    bool tag;
};

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Touched)

class tst_WavelengthChartFluorophores : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void drawsADye();
    void updatesAKnownId();
    void updatesItsDetails();
    void ignoresUnknownIds();
    void deletesADye();
    void deletesTheLastDyeWithItsControls();
    void deletesByDetails();
    void usesAnIdAgain();
    void showsExactlyAList();
    void takesTheLastOfTwoEqualIds();
    void removesAllWithAnEmptyList();
    void removesAll_data();
    void removesAll();
    void returnsTheDyesInOrder();
    void drawsDyesInTheOrderTheyCame();

    void findsThePeak_data();
    void findsThePeak();
    void colorsADyeByItsEmission_data();
    void colorsADyeByItsEmission();
    void tellsWhatTheLaserExcites_data();
    void tellsWhatTheLaserExcites();
    void scalesTheFullCurveEachTime();

    void followsTheVisibilityTable_data();
    void followsTheVisibilityTable();
    void showsWhatIsVisible_data();
    void showsWhatIsVisible();
    void setsTheBoxesInSilence();
    void redrawsTheFullCurveWithoutDynamics();

    void placesTagsOnPeaks_data();
    void placesTagsOnPeaks();
    void dropsTheTagOfAWeakEmission_data();
    void dropsTheTagOfAWeakEmission();
    void keepsTagsOnThePlot();
    void standsOverTheExcitationWithoutEmission();
    void liftsTagsWhileZoomed();

    void replacesPointsOnRequest();
    void takesAbsurdDyes_data();
    void takesAbsurdDyes();
    void takesAHundredDyes();
    void livesWithSeriesRemovedFromOutside();
};

void tst_WavelengthChartFluorophores::drawsADye()
{
    ChartProbe chart;
    const tFluorophoreData dye = ChartProbe::dye(7);
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);

    chart.addFluorophore(dye);

    QCOMPARE(chart.chart()->series().size(), 5);
    const QColor color = WavelengthChart::generateRgbColor(540.0, 350.0, 800.0, 1.0);
    QCOMPARE(ChartProbe::points(chart.excitation()), dye.excitation);
    QCOMPARE(chart.excitation()->name(), QStringLiteral("Dye 7-Excitation"));
    QCOMPARE(chart.excitation()->pen(), QPen(color, 2.0, Qt::DashLine));
    QCOMPARE(chart.excitation()->brush(), QBrush());
    QCOMPARE(chart.excitation()->lowerSeries(), nullptr);
    QCOMPARE(chart.emission()->name(), QStringLiteral("Dye 7-Emission"));
    QCOMPARE(chart.emission()->pen(), QPen(color));
    QCOMPARE(chart.emission()->brush(),
             QBrush(QColor(color.red(), color.green(), color.blue(), 50)));
    for (QtCharts::QAreaSeries *area : { chart.excitation(), chart.emission() }) {
        QCOMPARE(chart.chart()->axes(Qt::Horizontal, area).value(0), chart.wavelengthAxis());
        QCOMPARE(chart.chart()->axes(Qt::Vertical, area).value(0), chart.fluorophoreAxis());
        QVERIFY(!area->isVisible()); // until dyes are shown
    }
    QCOMPARE(chart.tags().size(), 1);
    QCOMPARE(chart.tags().first()->name(), QStringLiteral("Dye 7"));
    QCOMPARE(chart.tags().first()->toolTip(), QStringLiteral("Description 7"));
    QVERIFY(!chart.tags().first()->isVisible());
    QCOMPARE(chart.wavelengthAxis()->min(), 350.0);
    QCOMPARE(chart.wavelengthAxis()->max(), 800.0);
    QCOMPARE(chart.fluorophoreAxis()->max(), 100.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChartFluorophores::updatesAKnownId()
{
    ChartProbe chart;
    chart.addFluorophore(ChartProbe::dye(7));
    QtCharts::QAreaSeries *const area = chart.emission();
    tFluorophoreData other = ChartProbe::dye(7, 600.0);
    other.name = QStringLiteral("Other");
    other.note = QStringLiteral("Note");

    chart.addFluorophore(other);

    QCOMPARE(chart.chart()->series().size(), 5);
    QCOMPARE(chart.tags().size(), 1);
    QCOMPARE(chart.emission(), area);
    QCOMPARE(area->name(), QStringLiteral("Other-Emission"));
    QCOMPARE(ChartProbe::points(chart.excitation()), other.excitation);
    QList<tFluorophoreData> stored;
    chart.getFluorophores(stored);
    QCOMPARE(stored.size(), 1);
    QCOMPARE(stored.first().note, QStringLiteral("Note"));
    QCOMPARE(stored.first().emission, other.emission);
}

void tst_WavelengthChartFluorophores::updatesItsDetails()
{
    ChartProbe chart;
    const tFluorophoreData dye = ChartProbe::dye(7);
    chart.addFluorophore(dye);
    tFluorophoreDetails details;
    details.id = 7;
    details.name = QStringLiteral("Renamed");
    details.description = QStringLiteral("Told anew");

    chart.updFluorophore(details);

    QCOMPARE(chart.excitation()->name(), QStringLiteral("Renamed-Excitation"));
    QCOMPARE(chart.tags().first()->name(), QStringLiteral("Renamed"));
    QCOMPARE(chart.tags().first()->toolTip(), QStringLiteral("Told anew"));
    QCOMPARE(ChartProbe::points(chart.excitation()), dye.excitation);
}

void tst_WavelengthChartFluorophores::ignoresUnknownIds()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    tFluorophoreDetails details;
    details.id = 9;

    chart.updFluorophore(ChartProbe::dye(9));
    chart.updFluorophore(details);
    chart.strip()->setPixmap(QPixmap());
    chart.delFluorophore(9u);
    chart.delFluorophore(details);

    QCOMPARE(chart.chart()->series().size(), 3);
    QVERIFY(!chart.fluorophoreControls()->isHidden());
    QVERIFY(chart.strip()->pixmap().isNull()); // not drawn again
}

void tst_WavelengthChartFluorophores::deletesADye()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    chart.addFluorophore(ChartProbe::dye(2));
    const QList<QPointer<QObject>> parts{ chart.excitation(), chart.excitation()->upperSeries(),
                                          chart.emission(), chart.emission()->upperSeries() };

    chart.delFluorophore(1u);
    QCOMPARE(chart.chart()->series().size(), 5);
    QCOMPARE(chart.tags().size(), 1);
    QCOMPARE(chart.tags().first()->name(), QStringLiteral("Dye 2"));
    QVERIFY(!chart.fluorophoreControls()->isHidden());

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QPointer<QObject> &part : parts)
        QVERIFY(part.isNull());
    chart.grab();
}

void tst_WavelengthChartFluorophores::deletesTheLastDyeWithItsControls()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    chart.strip()->setPixmap(QPixmap());

    chart.delFluorophore(1u);

    QVERIFY(chart.fluorophoreControls()->isHidden());
    QVERIFY(!chart.strip()->pixmap().isNull());
}

void tst_WavelengthChartFluorophores::deletesByDetails()
{
    ChartProbe chart;
    chart.addFluorophore(ChartProbe::dye(3));
    tFluorophoreDetails details;
    details.id = 3;

    chart.delFluorophore(details);

    QCOMPARE(chart.tags().size(), 0);
}

void tst_WavelengthChartFluorophores::usesAnIdAgain()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    for (int round = 0; round < 20; ++round) {
        chart.addFluorophore(ChartProbe::dye(1, 450.0 + round));
        chart.grab();
        chart.delFluorophore(1u);
        if (round % 3 == 0)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    chart.addFluorophore(ChartProbe::dye(1));

    QCOMPARE(chart.chart()->series().size(), 5);
    QCOMPARE(chart.tags().size(), 1);
}

void tst_WavelengthChartFluorophores::showsExactlyAList()
{
    ChartProbe chart;
    chart.setFluorophores({ ChartProbe::dye(1), ChartProbe::dye(2), ChartProbe::dye(3) });
    QtCharts::QAreaSeries *const second = chart.emission(1);

    chart.setFluorophores({ ChartProbe::dye(4), ChartProbe::dye(2, 600.0) });

    QList<tFluorophoreData> stored;
    chart.getFluorophores(stored);
    QCOMPARE(stored.size(), 2);
    QCOMPARE(stored.at(0).id, 2u);
    QCOMPARE(stored.at(1).id, 4u);
    QCOMPARE(chart.chart()->series().size(), 7);
    QVERIFY(chart.chart()->series().contains(second)); // what stays keeps its series
}

void tst_WavelengthChartFluorophores::takesTheLastOfTwoEqualIds()
{
    ChartProbe chart;

    chart.setFluorophores({ ChartProbe::dye(5, 450.0), ChartProbe::dye(5, 550.0) });

    QCOMPARE(chart.chart()->series().size(), 5);
    QCOMPARE(ChartProbe::points(chart.excitation()), ChartProbe::bell(550.0, 20.0));
}

void tst_WavelengthChartFluorophores::removesAllWithAnEmptyList()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.setFluorophores({ ChartProbe::dye(1), ChartProbe::dye(2) });
    chart.strip()->setPixmap(QPixmap());

    chart.setFluorophores({});

    QCOMPARE(chart.chart()->series().size(), 3);
    QVERIFY(chart.fluorophoreControls()->isHidden());
    QVERIFY(!chart.strip()->pixmap().isNull());
}

void tst_WavelengthChartFluorophores::removesAll_data()
{
    QTest::addColumn<Action>("action");

    QTest::newRow("delFluorophores") << Action([](ChartProbe &chart) { chart.delFluorophores(); });
    QTest::newRow("removeAllFluorophores")
        << Action([](ChartProbe &chart) { chart.removeAllFluorophores(); });
}

void tst_WavelengthChartFluorophores::removesAll()
{
    QFETCH(Action, action);
    ChartProbe chart;
    chart.setFluorophores({ ChartProbe::dye(1), ChartProbe::dye(2), ChartProbe::dye(3) });

    action(chart);

    QList<tFluorophoreData> stored{ ChartProbe::dye(9) };
    chart.getFluorophores(stored);
    QCOMPARE(stored.size(), 0);
    QCOMPARE(chart.chart()->series().size(), 3);
    QCOMPARE(chart.tags().size(), 0);
}

void tst_WavelengthChartFluorophores::returnsTheDyesInOrder()
{
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(9);
    dye.value1 = 1.0;
    dye.value4 = 4.0;
    chart.setFluorophores({ dye, ChartProbe::dye(2), ChartProbe::dye(5) });

    QList<tFluorophoreData> stored;
    chart.getFluorophores(stored);

    QList<unsigned int> ids;
    for (const tFluorophoreData &each : stored)
        ids << each.id;
    QCOMPARE(ids, (QList<unsigned int>{ 2, 5, 9 }));
    QCOMPARE(stored.last().value1, 1.0);
    QCOMPARE(stored.last().value4, 4.0);
}

void tst_WavelengthChartFluorophores::drawsDyesInTheOrderTheyCame()
{
    ChartProbe chart;

    chart.setFluorophores({ ChartProbe::dye(9), ChartProbe::dye(2) });

    QCOMPARE(chart.emission(0)->name(), QStringLiteral("Dye 9-Emission"));
    QCOMPARE(chart.emission(1)->name(), QStringLiteral("Dye 2-Emission"));
}

void tst_WavelengthChartFluorophores::findsThePeak_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QPointF>("peak");

    QTest::newRow("empty") << QVector<QPointF>() << QPointF(0, 0);
    QTest::newRow("one") << QVector<QPointF>{ { 500, 3 } } << QPointF(500, 3);
    QTest::newRow("the first of equals")
        << QVector<QPointF>{ { 400, 1 }, { 500, 3 }, { 600, 3 } } << QPointF(500, 3);
    QTest::newRow("all negative") << QVector<QPointF>{ { 400, -1 }, { 500, -3 } } << QPointF(0, 0);
    QTest::newRow("all zero") << QVector<QPointF>{ { 400, 0 } } << QPointF(0, 0);
}

void tst_WavelengthChartFluorophores::findsThePeak()
{
    QFETCH(QVector<QPointF>, points);
    QPointF peak(9, 9);

    WavelengthChart::getSeriesPeakPoint(points, peak);

    QTEST(peak, "peak");
}

void tst_WavelengthChartFluorophores::colorsADyeByItsEmission_data()
{
    QTest::addColumn<double>("emission");
    QTest::addColumn<QColor>("color");

    QTest::newRow("green") << 510.0 << QColor(0, 255, 0);
    QTest::newRow("red") << 645.0 << QColor(255, 0, 0);
    // Half of the way from 380 nm, (97, 0, 97), to the white at 350 nm.
    QTest::newRow("ultraviolet fades to white") << 365.0 << QColor(176, 127, 176);
    // Half of the way from 750 nm, (97, 0, 0), to the white at 800 nm.
    QTest::newRow("infrared fades to white") << 775.0 << QColor(176, 127, 127);
    QTest::newRow("off the chart") << 900.0 << QColor(255, 255, 255);
}

void tst_WavelengthChartFluorophores::colorsADyeByItsEmission()
{
    QFETCH(double, emission);
    QFETCH(QColor, color);
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.emission = { { emission, 100.0 } };

    chart.addFluorophore(dye);

    QCOMPARE(chart.emission()->pen().color().rgb(), color.rgb());
    QCOMPARE(chart.excitation()->pen().color().rgb(), color.rgb());
    QCOMPARE(chart.getFluorophoreColor(dye.emission).rgb(), color.rgb());
}

void tst_WavelengthChartFluorophores::tellsWhatTheLaserExcites_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("bandwidth");
    QTest::addColumn<QVector<QPointF>>("excitation");
    QTest::addColumn<double>("scale");

    const QVector<QPointF> curve{ { 400, 10 }, { 450, 80 }, { 500, 40 }, { 550, 20 } };
    QTest::newRow("empty") << 450.0 << 5.0 << QVector<QPointF>() << 0.0;
    QTest::newRow("the largest in the band") << 460.0 << 120.0 << curve << 0.8;
    QTest::newRow("the first past the band counts") << 440.0 << 10.0 << curve << 0.8;
    QTest::newRow("a point on the lower edge counts") << 460.0 << 20.0 << curve << 0.8;
    QTest::newRow("a point on the upper edge does not end it") << 490.0 << 20.0 << curve << 0.4;
    QTest::newRow("below the curve") << 300.0 << 10.0 << curve << 0.1;
    QTest::newRow("above the curve") << 600.0 << 10.0 << curve << 0.0;
    QTest::newRow("a line between two points") << 475.0 << 0.0 << curve << 0.4;
    // 450 itself and 500: the straight line through them, at 450.
    QTest::newRow("a line on a point") << 450.0 << 0.0 << curve << 0.8;
    QTest::newRow("a line on the last point") << 550.0 << 0.0 << curve << 0.2;
    QTest::newRow("a line below the curve") << 300.0 << 0.0 << curve << 0.1;
    QTest::newRow("a line above the curve") << 600.0 << 0.0 << curve << 0.0;
    QTest::newRow("a line on two equal places")
        << 450.0 << 0.0 << QVector<QPointF>{ { 450, 30 }, { 450, 70 } } << 0.3;
    QTest::newRow("all negative") << 450.0 << 100.0 << QVector<QPointF>{ { 450, -30 } } << -0.3;
}

void tst_WavelengthChartFluorophores::tellsWhatTheLaserExcites()
{
    QFETCH(double, wavelength);
    QFETCH(double, bandwidth);
    QFETCH(QVector<QPointF>, excitation);

    QTEST(WavelengthChart::getExcitationScale(wavelength, bandwidth, excitation), "scale");
}

void tst_WavelengthChartFluorophores::scalesTheFullCurveEachTime()
{
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 400, 10 }, { 500, 50 } };
    dye.emission = { { 550, 80 } };
    chart.addFluorophore(dye);

    for (const double wavelength : { 500.0, 400.0, 500.0 }) {
        chart.setWavelengthBandwidthPower(wavelength, 0.0, 1.0);
        const double scale = wavelength == 500.0 ? 0.5 : 0.1;
        QCOMPARE(ChartProbe::points(chart.emission()).first().y(), 80.0 * scale);
    }
    QList<tFluorophoreData> stored;
    chart.getFluorophores(stored);
    QCOMPARE(stored.first().emission, dye.emission);
}

void tst_WavelengthChartFluorophores::followsTheVisibilityTable_data()
{
    QTest::addColumn<Action>("before");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Touched>("touched");
    QTest::addColumn<int>("emissionsDrawn");
    QTest::addColumn<bool>("tagPlaced");
    QTest::addColumn<QStringList>("signalList");

    const Action nothing([](ChartProbe &) {});
    const Action withoutEmission(
        [](ChartProbe &chart) { chart.setFluorophoreVisibilityState(true, false, true); });
    const Action withoutDynamics(
        [](ChartProbe &chart) { chart.setFluorophoreVisibilityState(true, true, false); });
    const Action setLaser(
        [](ChartProbe &chart) { chart.setWavelengthBandwidthPower(510.0, 5.0, 1.0); });
    const Action setAxis([](ChartProbe &chart) { chart.fluorophoreAxis()->setRange(0.0, 50.0); });
    const Action zoom([](ChartProbe &chart) { chart.wavelengthAxis()->setRange(400.0, 700.0); });
    const auto click = [](const char *box) {
        return Action([box](ChartProbe &chart) { chart.box(box)->click(); });
    };
    const Touched none{ false, false, false };
    const Touched all{ true, true, true };

    QTest::newRow("state set") << nothing << Action([](ChartProbe &chart) {
        chart.setFluorophoreVisibilityState(true, true, false);
    }) << all << 1 << true << QStringList();
    QTest::newRow("dyes shown") << nothing << Action([](ChartProbe &chart) {
        chart.setFluorophoresVisible(true);
    }) << all << 1 << true << QStringList();
    QTest::newRow("excitation clicked")
        << nothing << click("Excitation") << Touched{ true, false, true } << 0 << true
        << list({ "sigFluorophoreVisibilityStateChanged(false, true, true)" });
    QTest::newRow("emission clicked")
        << nothing << click("Emission") << Touched{ false, true, true } << 1 << true
        << list({ "sigFluorophoreVisibilityStateChanged(true, false, true)" });
    QTest::newRow("dynamic clicked")
        << nothing << click("Dynamic") << Touched{ false, true, true } << 1 << true
        << list({ "sigFluorophoreVisibilityStateChanged(true, true, false)" });
    QTest::newRow("axis of the dyes") << nothing << setAxis << none << 1 << true << QStringList();
    QTest::newRow("axis of the dyes, no emission")
        << withoutEmission << setAxis << none << 0 << true << QStringList();
    QTest::newRow("axis of the dyes, no dynamics")
        << withoutDynamics << setAxis << none << 0 << true << QStringList();
    QTest::newRow("laser set") << nothing << setLaser << none << 1 << true << QStringList();
    QTest::newRow("laser set, no emission")
        << withoutEmission << setLaser << none << 0 << true << QStringList();
    QTest::newRow("laser set, no dynamics")
        << withoutDynamics << setLaser << none << 0 << true << QStringList();
    QTest::newRow("zoomed") << nothing << zoom << none << 0 << true << QStringList();
    QTest::newRow("zoomed, no emission")
        << withoutEmission << zoom << none << 0 << false << QStringList();
    QTest::newRow("zoomed, no dynamics")
        << withoutDynamics << zoom << none << 0 << true << QStringList();
}

void tst_WavelengthChartFluorophores::followsTheVisibilityTable()
{
    QFETCH(Action, before);
    QFETCH(Action, action);
    QFETCH(Touched, touched);
    QFETCH(int, emissionsDrawn);
    QFETCH(bool, tagPlaced);
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    before(chart);
    FluorophoreTagName *const tag = chart.tags().first();
    const auto putWrong = [&chart, tag](bool wrong) {
        chart.excitation()->setVisible(wrong);
        chart.emission()->setVisible(wrong);
        tag->setVisible(wrong);
        tag->setPos(-1000.0, -1000.0);
    };
    const auto looked = [&chart, tag] {
        return QList<bool>{ chart.excitation()->isVisible(), chart.emission()->isVisible(),
                            tag->isVisible() };
    };
    QSignalSpy drawn(chart.emission()->upperSeries(), &QtCharts::QXYSeries::pointsReplaced);
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);

    putWrong(false);
    action(chart);

    QCOMPARE(drawn.size(), emissionsDrawn);
    QTEST(recorder.taken(), "signalList");
    QCOMPARE(tag->pos() != QPointF(-1000.0, -1000.0), tagPlaced);
    const bool excitationOn = chart.box("Excitation")->isChecked();
    const bool emissionOn = chart.box("Emission")->isChecked();
    QCOMPARE(looked(), (QList<bool>{ touched.excitation && excitationOn,
                                     touched.emission && emissionOn, touched.tag }));
    QCOMPARE(!chart.fluorophoreControls()->isHidden(), true);
}

void tst_WavelengthChartFluorophores::showsWhatIsVisible_data()
{
    QTest::addColumn<bool>("dyes");
    QTest::addColumn<bool>("excitation");
    QTest::addColumn<bool>("emission");

    for (int bits = 0; bits < 8; ++bits) {
        QTest::addRow("dyes %d, excitation %d, emission %d", bits & 1, bits >> 1 & 1, bits >> 2)
            << bool(bits & 1) << bool(bits & 2) << bool(bits & 4);
    }
}

void tst_WavelengthChartFluorophores::showsWhatIsVisible()
{
    QFETCH(bool, dyes);
    QFETCH(bool, excitation);
    QFETCH(bool, emission);
    ChartProbe chart;
    chart.addFluorophore(ChartProbe::dye(1));

    chart.setFluorophoreVisibilityState(excitation, emission, true);
    chart.setFluorophoresVisible(dyes);
    chart.addFluorophore(ChartProbe::dye(2));

    for (int i = 0; i < 2; ++i) {
        QCOMPARE(chart.excitation(i)->isVisible(), dyes && excitation);
        QCOMPARE(chart.emission(i)->isVisible(), dyes && emission);
        QCOMPARE(chart.tags().at(i)->isVisible(), dyes && (excitation || emission));
    }
    QCOMPARE(!chart.fluorophoreControls()->isHidden(), dyes);
}

void tst_WavelengthChartFluorophores::setsTheBoxesInSilence()
{
    ChartProbe chart;
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);

    chart.setFluorophoreVisibilityState(false, true, false);

    QVERIFY(!chart.box("Excitation")->isChecked());
    QVERIFY(chart.box("Emission")->isChecked());
    QVERIFY(!chart.box("Dynamic")->isChecked());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChartFluorophores::redrawsTheFullCurveWithoutDynamics()
{
    ChartProbe chart;
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 400, 10 }, { 500, 50 } };
    dye.emission = { { 550, 80 } };
    chart.addFluorophore(dye);
    chart.setWavelengthBandwidthPower(500.0, 0.0, 1.0);
    QCOMPARE(ChartProbe::points(chart.emission()).first().y(), 40.0);

    chart.box("Dynamic")->click();
    QCOMPARE(ChartProbe::points(chart.emission()).first().y(), 80.0);

    chart.box("Dynamic")->click();
    QCOMPARE(ChartProbe::points(chart.emission()).first().y(), 40.0);
}

void tst_WavelengthChartFluorophores::placesTagsOnPeaks_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("percentMax");

    QTest::newRow("whole range") << 350.0 << 800.0 << 100.0;
    QTest::newRow("zoomed in") << 500.0 << 620.0 << 100.0;
    QTest::newRow("zoomed in far") << 538.0 << 543.0 << 100.0;
    QTest::newRow("taller axis") << 400.0 << 700.0 << 200.0;
}

void tst_WavelengthChartFluorophores::placesTagsOnPeaks()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, percentMax);
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.setFluorophoreVisibilityState(true, true, false);
    chart.addFluorophore(ChartProbe::dye(1)); // emission 100 at 540 nm
    FluorophoreTagName *const tag = chart.tags().first();

    chart.fluorophoreAxis()->setRange(0.0, percentMax);
    chart.wavelengthAxis()->setRange(min, max);

    const QSizeF size = tag->boundingRect().size();
    const QPointF peak = chart.place(540.0, 100.0);
    QVERIFY(isAt(tag->pos(), peak - QPointF(size.width() * 0.5, size.height())));

    chart.resize(1300, 600);
    QApplication::processEvents();
    const QPointF moved = chart.place(540.0, 100.0);
    QVERIFY(moved != peak);
    QVERIFY(isAt(tag->pos(), moved - QPointF(size.width() * 0.5, size.height())));
}

void tst_WavelengthChartFluorophores::dropsTheTagOfAWeakEmission_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<bool>("onTheStrip");

    QTest::newRow("none") << 0.0 << true;
    QTest::newRow("a hundredth") << 1.0 << true;
    QTest::newRow("a little more") << 1.1 << false;
    QTest::newRow("a half") << 50.0 << false;
}

void tst_WavelengthChartFluorophores::dropsTheTagOfAWeakEmission()
{
    QFETCH(double, percent);
    QFETCH(bool, onTheStrip);
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 500, percent } };
    chart.addFluorophore(dye);

    chart.setWavelengthBandwidthPower(500.0, 0.0, 1.0);

    FluorophoreTagName *const tag = chart.tags().first();
    const QSizeF size = tag->boundingRect().size();
    const QPointF peak = chart.place(540.0, percent);
    const double y = onTheStrip ? chart.strip()->y() - 2.0 : peak.y() - size.height();
    QVERIFY(isAt(tag->pos(), QPointF(peak.x() - size.width() * 0.5, y)));
}

void tst_WavelengthChartFluorophores::keepsTagsOnThePlot()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.setFluorophoreVisibilityState(true, true, false);
    chart.addFluorophore(ChartProbe::dye(1, 270.0)); // emission at 310 nm
    chart.addFluorophore(ChartProbe::dye(2, 860.0)); // emission at 900 nm
    const QRectF plot = chart.chart()->plotArea();

    QCOMPARE(chart.tags().at(0)->x(), plot.left());
    QCOMPARE(chart.tags().at(1)->x(), plot.right()); // its left edge: it stands out
}

void tst_WavelengthChartFluorophores::standsOverTheExcitationWithoutEmission()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    FluorophoreTagName *const tag = chart.tags().first();

    chart.setFluorophoreVisibilityState(true, false, true);
    const double x = chart.place(500.0, 0.0).x() - tag->boundingRect().width() * 0.5;
    const QPointF onTheStrip(x, chart.strip()->y() - 2.0);
    QVERIFY(isAt(tag->pos(), onTheStrip));

    chart.resize(1300, 600);
    QApplication::processEvents();
    QVERIFY(isAt(tag->pos(), onTheStrip)); // it stays until another refresh

    chart.setFluorophoreVisibilityState(false, false, true);
    QVERIFY(isAt(tag->pos(), onTheStrip));
    QVERIFY(!tag->isVisible());
}

void tst_WavelengthChartFluorophores::liftsTagsWhileZoomed()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.excitation = { { 700, 0 } };
    chart.addFluorophore(dye); // nothing is excited
    QCOMPARE(chart.tags().first()->y(), chart.strip()->y() - 2.0);

    chart.chart()->zoomIn(chart.chart()->plotArea().adjusted(100.0, 0.0, -100.0, 0.0));

    QVERIFY(chart.chart()->isZoomed());
    QCOMPARE(chart.tags().first()->y(), chart.strip()->y() + 4.0);
}

void tst_WavelengthChartFluorophores::replacesPointsOnRequest()
{
    ChartProbe chart;
    chart.setFluorophores({ ChartProbe::dye(1), ChartProbe::dye(2) });
    QSignalSpy first(chart.emission(0)->upperSeries(), &QtCharts::QXYSeries::pointsReplaced);
    QSignalSpy second(chart.emission(1)->upperSeries(), &QtCharts::QXYSeries::pointsReplaced);
    QSignalSpy excitation(chart.excitation()->upperSeries(), &QtCharts::QXYSeries::pointsReplaced);

    QVERIFY(QMetaObject::invokeMethod(&chart, "updateSeries"));

    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 1);
    QCOMPARE(excitation.size(), 0);
}

void tst_WavelengthChartFluorophores::takesAbsurdDyes_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("name");

    QTest::newRow("empty curves") << QVector<QPointF>() << "Dye";
    QTest::newRow("one point") << QVector<QPointF>{ { 500, 50 } } << "Dye";
    QTest::newRow("unsorted") << QVector<QPointF>{ { 600, 50 }, { 500, 20 } } << "Dye";
    QTest::newRow("twice the same") << QVector<QPointF>{ { 500, 50 }, { 500, 50 } } << "Dye";
    QTest::newRow("not finite") << QVector<QPointF>{
        { qQNaN(), 1 }, { 500, qInf() }, { 510, qQNaN() }
    } << "Dye";
    QTest::newRow("huge") << QVector<QPointF>{ { 1e300, 1e300 }, { -1e300, -1e300 } } << "Dye";
    QTest::newRow("markup") << ChartProbe::bell(500, 20) << "<b>%1</b> &amp; \"x\"";
    QTest::newRow("no name") << ChartProbe::bell(500, 20) << "";
    QTest::newRow("long name") << ChartProbe::bell(500, 20) << QString(500, QLatin1Char('W'));
}

void tst_WavelengthChartFluorophores::takesAbsurdDyes()
{
    QFETCH(QVector<QPointF>, points);
    QFETCH(QString, name);
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.name = name;
    dye.excitation = points;
    dye.emission = points;

    chart.addFluorophore(dye);
    chart.setWavelengthBandwidthPower(500.0, 10.0, 1.0);
    chart.setWavelengthRange(400.0, 600.0);
    chart.grab();

    QCOMPARE(chart.tags().first()->name(), name);
    QCOMPARE(chart.emission()->name(), name + QStringLiteral("-Emission"));
    for (const QPointF &point : ChartProbe::points(chart.emission()))
        QVERIFY(qIsFinite(point.x()) && qIsFinite(point.y()));
}

void tst_WavelengthChartFluorophores::takesAHundredDyes()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    tFluorophoreDataList dyes;
    for (unsigned int id = 0; id < 100; ++id)
        dyes << ChartProbe::dye(id, 350.0 + 4.0 * id);

    chart.setFluorophores(dyes);
    chart.grab();
    QCOMPARE(chart.tags().size(), 100);

    chart.removeAllFluorophores();
    QCOMPARE(chart.chart()->series().size(), 3);
    chart.grab();
}

void tst_WavelengthChartFluorophores::livesWithSeriesRemovedFromOutside()
{
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.setFluorophores({ ChartProbe::dye(1), ChartProbe::dye(2) });
    QtCharts::QAreaSeries *const removed = chart.emission(0);
    QtCharts::QAreaSeries *const deleted = chart.excitation(1);
    chart.chart()->removeSeries(removed);
    delete deleted;
    chart.grab();

    chart.setFluorophoreVisibilityState(true, true, false);
    chart.setWavelengthBandwidthPower(520.0, 10.0, 1.0);
    chart.updFluorophore(ChartProbe::dye(1, 520.0));
    chart.updFluorophore(ChartProbe::dye(2, 520.0));
    chart.grab();
    chart.delFluorophores();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(chart.chart()->series().size(), 3);
}

PELORIN_TEST_MAIN(tst_WavelengthChartFluorophores)
#include "tst_wavelengthchartfluorophores.moc"
