#include "Pelorin/spectral/SeriesLayer_p.h"
#include "tests/spectral/ChartProbe.h"
#include "tests/support/PartialPaint.h"
#include "tests/support/TestCase.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <functional>

namespace {

using Action = std::function<void(ChartProbe &)>;

/// Layers of 8 bits that are laid upon each other in another order differ by their rounding.
constexpr int rounding = 6;

SeriesLayer *layerOf(const ChartProbe &chart)
{
    return chart.itemsOf<SeriesLayer>().value(0);
}

QImage picture(ChartProbe &chart, qreal ratio = 1.0)
{
    QImage image = PartialPaint::blank(chart, ratio);
    PartialPaint::paintOnto(image, chart);
    return image;
}

/// What Qt Charts draws without the layer.
QImage plainPicture(ChartProbe &chart, qreal ratio = 1.0)
{
    SeriesLayer *const layer = layerOf(chart);
    QList<QGraphicsItem *> taken;
    for (QGraphicsItem *item : chart.chart()->childItems()) {
        if (item->toGraphicsObject() && item->flags().testFlag(QGraphicsItem::ItemHasNoContents)
            && item->zValue() == layer->zValue())
            taken << item;
    }
    layer->hide();
    for (QGraphicsItem *item : taken)
        item->setFlag(QGraphicsItem::ItemHasNoContents, false);
    const QImage image = picture(chart, ratio);
    for (QGraphicsItem *item : taken)
        item->setFlag(QGraphicsItem::ItemHasNoContents);
    layer->show();
    return image;
}

int largestDifference(const QImage &a, const QImage &b)
{
    int largest = a.size() == b.size() ? 0 : 256;
    for (int y = 0; y < a.height() && largest < 256; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = qMax(largest, qAbs(qRed(p) - qRed(q)));
            largest = qMax(largest, qAbs(qGreen(p) - qGreen(q)));
            largest = qMax(largest, qAbs(qBlue(p) - qBlue(q)));
        }
    }
    return largest;
}

void fill(ChartProbe &chart)
{
    chart.setSpectrometerData({ { 380, 0.2 }, { 450, 1.5 }, { 500, 0.4 }, { 700, 1.0 } });
    chart.setWavelengthBandwidthPower(488.0, 30.0, 50.0);
    chart.setFluorophoreVisibilityState(true, true, false);
    chart.setFluorophoresVisible(true);
    chart.setFluorophores({ ChartProbe::dye(1, 450.0), ChartProbe::dye(2, 520.0) });
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_SeriesLayer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeQtCharts_data();
    void looksLikeQtCharts();
    void isNotDrawnAgainForASpectrum();
    void followsEachChange_data();
    void followsEachChange();
    void repaintsWhatChanges();
    void staysVectorsOnPaper();
    void livesWithoutItsItems();
};

void tst_SeriesLayer::looksLikeQtCharts_data()
{
    QTest::addColumn<qreal>("ratio");

    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 1.25") << 1.25;
    QTest::newRow("ratio 1.5") << 1.5;
    QTest::newRow("ratio 2") << 2.0;
}

void tst_SeriesLayer::looksLikeQtCharts()
{
    QFETCH(qreal, ratio);
    ChartProbe chart;
    fill(chart);

    const QImage ours = picture(chart, ratio);
    const QImage plain = plainPicture(chart, ratio);

    const int difference = largestDifference(ours, plain);
    QVERIFY2(difference <= rounding, qPrintable(QString::number(difference)));
    chart.setFluorophoresVisible(false);
    QVERIFY(largestDifference(picture(chart, ratio), plain) > 50); // the comparison sees a dye
}

void tst_SeriesLayer::isNotDrawnAgainForASpectrum()
{
    ChartProbe chart;
    fill(chart);
    const QImage before = picture(chart);
    const int renders = layerOf(chart)->renderCount();

    for (int i = 0; i < 5; ++i) {
        chart.setSpectrometerData({ { 380, 0.1 * i }, { 700, 1.0 } });
        picture(chart);
    }

    QCOMPARE(layerOf(chart)->renderCount(), renders);
    QVERIFY(largestDifference(picture(chart), before) > 50);
    QVERIFY(largestDifference(picture(chart), plainPicture(chart)) <= rounding);
}

void tst_SeriesLayer::followsEachChange_data()
{
    QTest::addColumn<Action>("action");

    QTest::newRow("laser") << Action(
        [](ChartProbe &chart) { chart.setWavelengthBandwidthPower(600.0, 50.0, 90.0); });
    QTest::newRow("setpoint axis") << Action(
        [](ChartProbe &chart) { chart.setFilterPowerRange(0.0, 60.0, Converter::pwrMW3); });
    QTest::newRow("range") << Action(
        [](ChartProbe &chart) { chart.setWavelengthRange(400.0, 600.0); });
    QTest::newRow("zoom") << Action(
        [](ChartProbe &chart) { chart.wavelengthAxis()->setRange(440.0, 560.0); });
    QTest::newRow("axis of the dyes")
        << Action([](ChartProbe &chart) { chart.fluorophoreAxis()->setRange(0.0, 150.0); });
    QTest::newRow("dye added") << Action(
        [](ChartProbe &chart) { chart.addFluorophore(ChartProbe::dye(3, 600.0)); });
    QTest::newRow("dye changed") << Action(
        [](ChartProbe &chart) { chart.addFluorophore(ChartProbe::dye(2, 600.0)); });
    QTest::newRow("dye deleted") << Action([](ChartProbe &chart) { chart.delFluorophore(1u); });
    QTest::newRow("emission hidden")
        << Action([](ChartProbe &chart) { chart.box("Emission")->click(); });
    QTest::newRow("excitation hidden")
        << Action([](ChartProbe &chart) { chart.box("Excitation")->click(); });
    QTest::newRow("dynamics") << Action([](ChartProbe &chart) { chart.box("Dynamic")->click(); });
    QTest::newRow("dyes hidden") << Action(
        [](ChartProbe &chart) { chart.setFluorophoresVisible(false); });
    QTest::newRow("size") << Action([](ChartProbe &chart) {
        chart.resize(1200, 500);
        QApplication::processEvents();
    });
    QTest::newRow("axis shown") << Action([](ChartProbe &chart) {
        chart.setFilterPowerRangeVisible(true);
        QApplication::processEvents();
    });
    QTest::newRow("hidden from outside")
        << Action([](ChartProbe &chart) { chart.emission()->setVisible(false); });
    QTest::newRow("points from outside")
        << Action([](ChartProbe &chart) { chart.emission()->upperSeries()->append(790.0, 90.0); });
    QTest::newRow("removed from outside") << Action([](ChartProbe &chart) {
        QtCharts::QAreaSeries *const area = chart.emission();
        chart.chart()->removeSeries(area);
        area->setParent(&chart); // it belongs to whoever has removed it
    });
    QTest::newRow("fill from outside")
        << Action([](ChartProbe &chart) { chart.emission()->setColor(Qt::white); });
}

void tst_SeriesLayer::followsEachChange()
{
    QFETCH(Action, action);
    ChartProbe chart;
    fill(chart);
    const QImage before = picture(chart);

    action(chart);

    const QImage after = picture(chart);
    QVERIFY(largestDifference(after, before) > 20);
    const int difference = largestDifference(after, plainPicture(chart));
    QVERIFY2(difference <= rounding, qPrintable(QString::number(difference)));
}

void tst_SeriesLayer::repaintsWhatChanges()
{
    ChartProbe chart;
    fill(chart);
    chart.setSpectrometerData({});
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    QApplication::processEvents();
    const int renders = layerOf(chart)->renderCount();

    chart.setFluorophoresVisible(false);
    QApplication::processEvents();
    QCOMPARE(layerOf(chart)->renderCount(), renders + 1);

    QApplication::processEvents();
    QCOMPARE(layerOf(chart)->renderCount(), renders + 1);
}

void tst_SeriesLayer::staysVectorsOnPaper()
{
    ChartProbe chart;
    fill(chart);
    const int renders = layerOf(chart)->renderCount();
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter paper(&file);
    QPainter painter(&paper);

    chart.render(&painter);
    painter.end();

    QCOMPARE(layerOf(chart)->renderCount(), renders);
    QVERIFY(file.size() > 0);
}

void tst_SeriesLayer::livesWithoutItsItems()
{
    ChartProbe chart;
    fill(chart);
    chart.chart()->setAnimationOptions(QtCharts::QChart::SeriesAnimations); // makes them anew
    chart.chart()->setAnimationOptions(QtCharts::QChart::NoAnimation);
    picture(chart);
    chart.chart()->removeAllSeries();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    chart.resize(900, 400);

    QVERIFY(!picture(chart).isNull());
}

PELORIN_TEST_MAIN(tst_SeriesLayer)
#include "tst_serieslayer.moc"
