#include "tests/spectral/ChartProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QLegend>
#include <QMouseEvent>
#include <QSignalSpy>

#include <functional>
#include <limits>

Q_DECLARE_METATYPE(std::function<void(WavelengthChart &)>)

using QtCharts::QValueAxis;

namespace {

class Recorder : public SignalRecorder
{
public:
    explicit Recorder(const WavelengthChart &chart)
        : SignalRecorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject)
    {}
};

QList<double> rangeOf(const QValueAxis *axis)
{
    return { axis->min(), axis->max() };
}

/// Qt puts embedded widgets on whole pixels.
bool isNear(QPointF place, QPointF expected)
{
    const QPointF way = place - expected;
    return qAbs(way.x()) <= 0.5 && qAbs(way.y()) <= 0.5;
}

} // namespace

class tst_WavelengthChart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsWithTheDefaults();
    void setsUpTheView();
    void setsUpTheSeries();
    void setsUpTheAxes();
    void setsUpTheControls();

    void setsTheWavelengthRange();
    void reportsAnUnchangedWavelengthRange();
    void keepsTheLaserInTheRange_data();
    void keepsTheLaserInTheRange();
    void setsAPowerRange_data();
    void setsAPowerRange();
    void storesAPowerRangeOfNothingAsALittle();
    void keepsZerosOfTheFilterRange();
    void showsTheTotalPower_data();
    void showsTheTotalPower();
    void repaintsTheTotalPowerAtOnce_data();
    void repaintsTheTotalPowerAtOnce();
    void repaintsAllWithAnAxis_data();
    void repaintsAllWithAnAxis();
    void hidesAxesAndTotalPower();
    void hidesTheSpectrometerInOneReport();
    void tellsWhenTheOperatorHidesTheSpectrometer();

    void drawsTheRainbowOverThePlot();
    void drawsTheRainbowForAZoom();
    void drawsNoRainbowWithoutASize();
    void placesTheControls();
    void showsTheZoomResetButtonWhileZoomed();
    void comesBackUnhovered();

    void ignoresRangesThatAreNotFinite_data();
    void ignoresRangesThatAreNotFinite();
    void livesWithRangesWithoutSpan_data();
    void livesWithRangesWithoutSpan();
    void freesAllThatItMakes();
};

void tst_WavelengthChart::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = WavelengthChart::staticMetaObject;

    QCOMPARE(meta.superClass(), &QtCharts::QChartView::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list({ "sigSpectrumPowerRangeChanged(double,double)",
                    "sigWavelengthRangeChanged(double,double)",
                    "sigFilterPowerRangeChanged(double,double)",
                    "sigSpectrometerVisibilityChanged(bool)",
                    "sigFluorophoreVisibilityStateChanged(bool,bool,bool)",
                    "sigChartSaveFilterTypeChanged(QString)",
                    "sigChartSaveFoldernameChanged(QString)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             list({ "appendRandomData()",
                    "setWavelengthRange(double,double)",
                    "setSpectrumPowerRange(double,double,Converter::pwrType)",
                    "setSpectrumPowerRangeVisible(bool)",
                    "setFilterPowerRange(double,double,Converter::pwrType)",
                    "setFilterPowerRangeVisible(bool)",
                    "setTotalPower(double,Converter::pwrType)",
                    "setTotalPowerVisible(bool)",
                    "setSpectrometerData(QVector<QPointF>)",
                    "setSpectrometerVisibility(bool)",
                    "setWavelengthBandwidthPower(double,double,double)",
                    "addFluorophore(tFluorophoreData)",
                    "updFluorophore(tFluorophoreData)",
                    "updFluorophore(tFluorophoreDetails)",
                    "delFluorophore(tFluorophoreDetails)",
                    "delFluorophore(uint)",
                    "delFluorophores()",
                    "setFluorophores(tFluorophoreDataList)",
                    "removeAllFluorophores()",
                    "setFluorophoreVisibilityState(bool,bool,bool)",
                    "setFluorophoresVisible(bool)",
                    "setChartSaveFilterType(QString)",
                    "setChartSaveFoldername(QString)",
                    "priPlotAreaChanged(QRectF)",
                    "priFluorophoreRangeChanged(double,double)",
                    "priScaleChanged()",
                    "priCoordTimeout()",
                    "priSaveChartClicked(bool)",
                    "priShowSpectrometerClicked(bool)",
                    "priZoomReset()",
                    "priShowExcitationClicked(bool)",
                    "priShowEmissionClicked(bool)",
                    "priShowDynamicClicked(bool)",
                    "updateSeries()" }));
    const WavelengthChart chart(0, nullptr);
    QVERIFY(QMetaType::type("tFluorophoreData") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("tFluorophoreDetails") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("tFluorophoreDataList") != QMetaType::UnknownType);
}

void tst_WavelengthChart::startsWithTheDefaults()
{
    const ChartProbe chart;

    QCOMPARE(chart.minPower(), -10.0);
    QCOMPARE(chart.maxPower(), 100.0);
    QCOMPARE(chart.minWavelength(), 350.0);
    QCOMPARE(chart.maxWavelength(), 800.0);
    QCOMPARE(chart.minFilterPower(), -10.0);
    QCOMPARE(chart.maxFilterPower(), 100.0);
    QCOMPARE(chart.sizeHint(), QSize(650, 330));
    QCOMPARE(WavelengthChart::wavelengthToWavenumber(500.0), 2000.0);
}

void tst_WavelengthChart::setsUpTheView()
{
    const ChartProbe chart;
    const QColor ground(246, 246, 246);

    QCOMPARE(chart.property("type").toString(), QStringLiteral("wavelengthchart-backwidget"));
    QVERIFY(chart.renderHints().testFlag(QPainter::Antialiasing));
    QCOMPARE(chart.minimumSize(), QSize(650, 330));
    QCOMPARE(chart.sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(chart.sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(chart.backgroundBrush(), QBrush(ground));
    QCOMPARE(chart.rubberBand(), QtCharts::QChartView::HorizontalRubberBand);
    QCOMPARE(chart.chart()->focusPolicy(), Qt::NoFocus);
    QCOMPARE(chart.chart()->margins(), QMargins(0, 55, 0, 0));
    QCOMPARE(chart.chart()->backgroundRoundness(), 0.0);
    QVERIFY(chart.chart()->isBackgroundVisible());
    QCOMPARE(chart.chart()->backgroundBrush(), QBrush(ground));
    QVERIFY(chart.chart()->isPlotAreaBackgroundVisible());
    QCOMPARE(chart.chart()->plotAreaBackgroundBrush(), QBrush(QColor(33, 32, 33)));
    QVERIFY(!chart.chart()->legend()->isVisible());
    double left = -1.0;
    double top = -1.0;
    chart.chart()->layout()->getContentsMargins(&left, &top, nullptr, nullptr);
    QCOMPARE(QPointF(left, top), QPointF(0.0, 0.0));
}

void tst_WavelengthChart::setsUpTheSeries()
{
    const ChartProbe chart;
    const QColor filterColor(226, 226, 226, 80);

    QCOMPARE(chart.chart()->series().size(), 3);
    QCOMPARE(chart.spectrum()->pen(),
             QPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    QCOMPARE(chart.filter()->pen(), QPen(filterColor, 1));
    QCOMPARE(chart.filterArea()->upperSeries(), chart.filter());
    QCOMPARE(chart.filterArea()->lowerSeries(), nullptr);
    QCOMPARE(chart.filterArea()->color(), filterColor);
    QCOMPARE(chart.filterArea()->pen(), QPen(filterColor));
    QCOMPARE(chart.filterArea()->brush(), QBrush(filterColor));
    QCOMPARE(chart.chart()->axes(Qt::Horizontal, chart.filterArea()).value(0),
             chart.wavelengthAxis());
}

void tst_WavelengthChart::setsUpTheAxes()
{
    const ChartProbe chart;

    QCOMPARE(rangeOf(chart.wavelengthAxis()), (QList<double>{ 350.0, 800.0 }));
    QCOMPARE(rangeOf(chart.powerAxis()), (QList<double>{ 0.0, 2.0 }));
    QCOMPARE(rangeOf(chart.filterAxis()), (QList<double>{ 0.0, 100.0 }));
    QCOMPARE(rangeOf(chart.fluorophoreAxis()), (QList<double>{ 0.0, 100.0 }));
    QCOMPARE(chart.wavelengthAxis()->titleText(), QStringLiteral("Wavelength in nm"));
    QCOMPARE(chart.powerAxis()->titleText(), QStringLiteral("Power output in [mW/nm]"));
    QCOMPARE(chart.filterAxis()->titleText(), QStringLiteral("Power setpoint in mW"));
    QCOMPARE(chart.wavelengthAxis()->labelFormat(), QStringLiteral("%.0f"));
    QCOMPARE(chart.powerAxis()->labelFormat(), QStringLiteral("%.3f"));
    QCOMPARE(chart.filterAxis()->labelFormat(), QStringLiteral("%.3f"));
    QCOMPARE(chart.wavelengthAxis()->tickCount(), 20);
    QCOMPARE(chart.wavelengthAxis()->alignment(), Qt::AlignBottom);
    QCOMPARE(chart.powerAxis()->alignment(), Qt::AlignLeft);
    QCOMPARE(chart.filterAxis()->alignment(), Qt::AlignRight);
    QCOMPARE(chart.fluorophoreAxis()->alignment(), Qt::AlignRight);
    QVERIFY(chart.powerAxis()->isVisible());
    QVERIFY(!chart.filterAxis()->isVisible());
    QVERIFY(!chart.fluorophoreAxis()->isVisible());
    const QFont title(QStringLiteral("Calibri"), 12, 75);
    const QFont labels(QStringLiteral("Calibri"), 10);
    for (const QValueAxis *axis :
         { chart.wavelengthAxis(), chart.powerAxis(), chart.filterAxis() }) {
        QVERIFY(!axis->isGridLineVisible());
        QCOMPARE(axis->titleFont(), title);
        QCOMPARE(axis->labelsFont(), labels);
    }
}

void tst_WavelengthChart::setsUpTheControls()
{
    const ChartProbe chart;
    const auto typeOf = [](const QWidget *widget) { return widget->property("type").toString(); };
    const QWidget *const row = chart.controlProxy()->widget();
    const auto *layout = qobject_cast<QHBoxLayout *>(row->layout());

    QCOMPARE(typeOf(row), QStringLiteral("wavelengthchart-control-container"));
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 4);
    QCOMPARE(layout->itemAt(0)->widget(), chart.saveButton());
    QCOMPARE(layout->itemAt(1)->widget(), chart.box("Spectrometer"));
    QCOMPARE(layout->itemAt(2)->widget(), chart.totalPower()->parentWidget());
    QCOMPARE(layout->stretch(2), 1);
    QCOMPARE(layout->itemAt(2)->alignment(), Qt::AlignHCenter);
    QCOMPARE(layout->itemAt(3)->widget(), chart.fluorophoreControls());
    QVERIFY(chart.fluorophoreControls()->isHidden());
    QCOMPARE(chart.controlProxy()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(chart.controlProxy()->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);

    QCOMPARE(typeOf(chart.saveButton()), QStringLiteral("wavelengthchart-savechart-button"));
    QCOMPARE(chart.saveButton()->toolTip(), QStringLiteral("Save chart as image or CSV data"));
    QCOMPARE(typeOf(chart.totalPower()), QStringLiteral("wavelengthchart-totalpower-value"));
    QCOMPARE(chart.totalPower()->text(), QStringLiteral("0.000 mW"));
    QCOMPARE(typeOf(chart.totalPower()->parentWidget()),
             QStringLiteral("wavelengthchart-totalpower-container"));
    const QLabel *const title = row->findChild<QLabel *>();
    QCOMPARE(title->text(), QStringLiteral("Total power:"));
    QCOMPARE(typeOf(title), QStringLiteral("wavelengthchart-totalpower-title"));
    const QList<QPair<const char *, const char *>> boxes{
        { "Spectrometer", "Show spectrometer" },
        { "Excitation", "Show fluorophore excitation" },
        { "Emission", "Show fluorophore emission" },
        { "Dynamic", "Show dynamic emission" }
    };
    for (const auto &each : boxes) {
        const QCheckBox *const box = chart.box(each.first);
        QVERIFY(box->isChecked());
        QCOMPARE(typeOf(box), QStringLiteral("wavelengthchart-visibility-checkbox"));
        QCOMPARE(box->toolTip(), QLatin1String(each.second));
    }
    const auto *reset = qobject_cast<QCheckBox *>(chart.zoomProxy()->widget());
    QCOMPARE(reset->text(), QString());
    QCOMPARE(reset->toolTip(), QStringLiteral("Reset zoom"));
    QCOMPARE(typeOf(reset), QStringLiteral("wavelengthchart-zoomreset-button"));
    QVERIFY(!chart.zoomProxy()->isVisible());
    const QList<QGraphicsTextItem *> texts = chart.itemsOf<QGraphicsTextItem>();
    int ours = 0;
    for (const QGraphicsTextItem *text : texts)
        ours += text->font() == QFont(QStringLiteral("Calibri"), 9) && !text->parentItem() ? 1 : 0;
    QCOMPARE(ours, 3);
}

void tst_WavelengthChart::setsTheWavelengthRange()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setWavelengthRange(400.0, 700.0);

    QCOMPARE(chart.minWavelength(), 400.0);
    QCOMPARE(chart.maxWavelength(), 700.0);
    QVERIFY(chart.wavelengthAxis()->min() <= 400.0); // rounder numbers
    QVERIFY(chart.wavelengthAxis()->max() >= 700.0);
    QCOMPARE(recorder.taken(), list({ "sigWavelengthRangeChanged(400, 700)" }));
}

void tst_WavelengthChart::reportsAnUnchangedWavelengthRange()
{
    ChartProbe chart;
    chart.addFluorophore(ChartProbe::dye(1));
    QSignalSpy refreshed(chart.emission()->upperSeries(), &QtCharts::QXYSeries::pointsReplaced);
    QSignalSpy filtered(chart.filter(), &QtCharts::QXYSeries::pointsReplaced);
    Recorder recorder(chart);

    chart.setWavelengthRange(350.0, 800.0);
    QCOMPARE(recorder.taken(), list({ "sigWavelengthRangeChanged(350, 800)" }));
    QCOMPARE(refreshed.size(), 0);
    QCOMPARE(filtered.size(), 0);

    chart.setWavelengthRange(350.0, 801.0);
    QCOMPARE(refreshed.size(), 2); // all points, then the scaled ones
    QCOMPARE(filtered.size(), 1);
}

void tst_WavelengthChart::keepsTheLaserInTheRange_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("lower");

    // The band is 10 nm wide, and ends at the range.
    QTest::newRow("inside") << 450.0 << 445.0;
    QTest::newRow("below") << 350.0 << 400.0;
    QTest::newRow("above") << 750.0 << 495.0;
}

void tst_WavelengthChart::keepsTheLaserInTheRange()
{
    QFETCH(double, wavelength);
    QFETCH(double, lower);
    ChartProbe chart;
    chart.setWavelengthBandwidthPower(wavelength, 10.0, 5.0);
    Recorder recorder(chart);

    chart.setWavelengthRange(400.0, 500.0);

    QCOMPARE(recorder.taken(), list({ "sigWavelengthRangeChanged(400, 500)" }));
    QCOMPARE(ChartProbe::points(chart.filter()).first().x(), lower);
}

void tst_WavelengthChart::setsAPowerRange_data()
{
    QTest::addColumn<Converter::pwrType>("type");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("format");

    QTest::newRow("W, three decimals") << Converter::pwrW3 << "W"
                                       << "%.3f";
    QTest::newRow("mW, one decimal") << Converter::pwrMW1 << "mW"
                                     << "%.1f";
    QTest::newRow("mW, two decimals") << Converter::pwrMW2 << "mW"
                                      << "%.2f";
    QTest::newRow("nW, one decimal") << Converter::pwrNW1 << "nW"
                                     << "%.1f";
}

void tst_WavelengthChart::setsAPowerRange()
{
    QFETCH(Converter::pwrType, type);
    QFETCH(QString, unit);
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setSpectrumPowerRange(1.5, 8.0, type);
    QCOMPARE(chart.minPower(), 1.5);
    QCOMPARE(chart.maxPower(), 8.0);
    QCOMPARE(rangeOf(chart.powerAxis()), (QList<double>{ 1.5, 8.0 }));
    QCOMPARE(chart.powerAxis()->titleText(), QStringLiteral("Power output in [%1/nm]").arg(unit));
    QTEST(chart.powerAxis()->labelFormat(), "format");
    QCOMPARE(recorder.taken(), list({ "sigSpectrumPowerRangeChanged(1.5, 8)" }));

    chart.setFilterPowerRange(2.5, 9.0, type);
    QCOMPARE(chart.minFilterPower(), 2.5);
    QCOMPARE(chart.maxFilterPower(), 9.0);
    QCOMPARE(rangeOf(chart.filterAxis()), (QList<double>{ 2.5, 9.0 }));
    QCOMPARE(chart.filterAxis()->titleText(), QStringLiteral("Power setpoint in %1").arg(unit));
    QTEST(chart.filterAxis()->labelFormat(), "format");
    QCOMPARE(recorder.taken(), list({ "sigFilterPowerRangeChanged(2.5, 9)" }));
    QCOMPARE(ChartProbe::points(chart.filter()).first().y(), 2.5);
}

void tst_WavelengthChart::storesAPowerRangeOfNothingAsALittle()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setSpectrumPowerRange(0.0, 0.0, Converter::pwrMW3);

    QCOMPARE(chart.minPower(), 0.0);
    QCOMPARE(chart.maxPower(), 0.001);
    QCOMPARE(rangeOf(chart.powerAxis()), (QList<double>{ 0.0, 0.0 }));
    QCOMPARE(recorder.taken(), list({ "sigSpectrumPowerRangeChanged(0, 0.001)" }));
}

void tst_WavelengthChart::keepsZerosOfTheFilterRange()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setFilterPowerRange(0.0, 0.0, Converter::pwrMW3);

    QCOMPARE(chart.maxFilterPower(), 0.0);
    QCOMPARE(recorder.taken(), list({ "sigFilterPowerRangeChanged(0, 0)" }));
}

void tst_WavelengthChart::showsTheTotalPower_data()
{
    QTest::addColumn<double>("power");
    QTest::addColumn<Converter::pwrType>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("mW, two decimals") << 1.5 << Converter::pwrMW2 << "1.50 mW";
    QTest::newRow("mW, three decimals") << 0.0 << Converter::pwrMW3 << "0.000 mW";
    QTest::newRow("W, one decimal") << -12.34 << Converter::pwrW1 << "-12.3 W";
}

void tst_WavelengthChart::showsTheTotalPower()
{
    QFETCH(double, power);
    QFETCH(Converter::pwrType, type);
    ChartProbe chart;

    chart.setTotalPower(power, type);

    QTEST(chart.totalPower()->text(), "text");
}

void tst_WavelengthChart::repaintsTheTotalPowerAtOnce_data()
{
    QTest::addColumn<bool>("setUpBefore");
    QTest::addColumn<QSize>("before");

    QTest::newRow("as it is built") << false << QSize(900, 500);
    QTest::newRow("set up before it is shown") << true << QSize(900, 500);
    QTest::newRow("without room for a plot at first") << true << QSize(40, 30);
}

/// The row of controls has no width while the plot has none. It must not go with it: Qt takes a window
/// without width off the screen for good, and then nothing on it is painted anew.
void tst_WavelengthChart::repaintsTheTotalPowerAtOnce()
{
    QFETCH(bool, setUpBefore);
    QFETCH(QSize, before);
    WavelengthChart chart(0);
    chart.setMinimumSize(1, 1);
    chart.resize(before);
    if (setUpBefore)
        chart.setWavelengthRange(400.0, 700.0);
    chart.show();
    QApplication::processEvents();
    chart.resize(900, 500);
    RepaintCounter repaints(*chart.viewport());
    QTRY_COMPARE(repaints.taken(), 0);

    chart.setTotalPower(12.5, Converter::pwrMW1);

    QVERIFY(repaints.taken() > 0);
}

void tst_WavelengthChart::repaintsAllWithAnAxis_data()
{
    using Change = std::function<void(WavelengthChart &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("all");

    QTest::newRow("range of the spectrum")
        << Change([](auto &chart) { chart.setSpectrumPowerRange(0.0, 5.0, Converter::pwrMW3); })
        << true;
    QTest::newRow("decimals of the spectrum")
        << Change([](auto &chart) { chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrMW1); })
        << true;
    QTest::newRow("unit of the spectrum")
        << Change([](auto &chart) { chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrUW3); })
        << true;
    QTest::newRow("nothing new of the spectrum")
        << Change([](auto &chart) { chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrMW3); })
        << false;
    QTest::newRow("range of the setpoint")
        << Change([](auto &chart) { chart.setFilterPowerRange(0.0, 50.0, Converter::pwrMW3); })
        << true;
    QTest::newRow("wavelengths") << Change([](auto &chart) {
        chart.setWavelengthRange(400.0, 700.0);
    }) << true;
    QTest::newRow("another spectrum") << Change([](auto &chart) {
        chart.setSpectrometerData({ { 500.0, 1.0 }, { 550.0, 1.5 } });
    }) << false;
}

/// Labels of an axis that have moved leave crumbs beside themselves, unless all is painted anew.
void tst_WavelengthChart::repaintsAllWithAnAxis()
{
    QFETCH(std::function<void(WavelengthChart &)>, change);
    ChartProbe chart;
    chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrMW3);
    RepaintCounter repaints(*chart.viewport());
    QTRY_COMPARE(repaints.taken(), 0);

    change(chart);
    repaints.taken();

    QTEST(repaints.region() == QRegion(chart.viewport()->rect()), "all");
}

void tst_WavelengthChart::hidesAxesAndTotalPower()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setSpectrumPowerRangeVisible(false);
    chart.setFilterPowerRangeVisible(true);
    chart.setTotalPowerVisible(false);

    QVERIFY(!chart.powerAxis()->isVisible());
    QVERIFY(chart.filterAxis()->isVisible());
    QVERIFY(chart.totalPower()->parentWidget()->isHidden());
    QCOMPARE(recorder.taken(), QStringList());

    chart.setTotalPowerVisible(true);
    QVERIFY(!chart.totalPower()->parentWidget()->isHidden());
}

void tst_WavelengthChart::hidesTheSpectrometerInOneReport()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setSpectrometerVisibility(false);
    QVERIFY(!chart.spectrum()->isVisible());
    QVERIFY(!chart.box("Spectrometer")->isChecked());
    QCOMPARE(recorder.taken(), list({ "sigSpectrometerVisibilityChanged(false)" }));

    chart.setSpectrometerVisibility(false); // the report comes again
    QCOMPARE(recorder.taken(), list({ "sigSpectrometerVisibilityChanged(false)" }));
}

void tst_WavelengthChart::tellsWhenTheOperatorHidesTheSpectrometer()
{
    ChartProbe chart;
    Recorder recorder(chart);

    chart.box("Spectrometer")->click();
    QVERIFY(!chart.spectrum()->isVisible());
    QCOMPARE(recorder.taken(), list({ "sigSpectrometerVisibilityChanged(false)" }));

    chart.box("Spectrometer")->click();
    QVERIFY(chart.spectrum()->isVisible());
    QCOMPARE(recorder.taken(), list({ "sigSpectrometerVisibilityChanged(true)" }));
}

void tst_WavelengthChart::drawsTheRainbowOverThePlot()
{
    ChartProbe chart;
    const QRectF plot = chart.chart()->plotArea();
    const QImage strip = chart.strip()->pixmap().toImage();
    const QRgb border = chart.powerAxis()->minorGridLineColor().rgb();

    QCOMPARE(strip.size(), QSize(int(plot.width() + 2.0), 30));
    QCOMPARE(chart.strip()->pos(), QPointF(plot.left() - 1.0, plot.top() - 30.0));
    const int last = strip.width() - 1;
    for (const int x : { 0, 1, last - 1, last })
        QCOMPARE(strip.pixel(x, 15), border);
    for (const int x : { 2, 100, strip.width() / 2, last - 2 }) {
        const double wavelength = 350.0 + x * 450.0 / strip.width();
        const QColor color = WavelengthChart::generateRgbColor(wavelength, 350.0, 800.0, 1.0);
        const QColor shown = strip.pixelColor(x, 15);
        // The wavelength is added up column by column.
        QVERIFY(qAbs(shown.red() - color.red()) <= 1);
        QVERIFY(qAbs(shown.green() - color.green()) <= 1);
        QVERIFY(qAbs(shown.blue() - color.blue()) <= 1);
        QCOMPARE(strip.pixel(x, 0), border);
        QCOMPARE(strip.pixel(x, 1), strip.pixel(x, 15));
        QCOMPARE(strip.pixel(x, 29), strip.pixel(x, 15));
    }
}

void tst_WavelengthChart::drawsTheRainbowForAZoom()
{
    ChartProbe chart;

    chart.wavelengthAxis()->setRange(510.0, 520.0);

    const QImage strip = chart.strip()->pixmap().toImage();
    const QColor middle = strip.pixelColor(strip.width() / 2, 15); // 515 nm
    QCOMPARE(middle.green(), 255);
    QCOMPARE(middle.blue(), 0);
}

void tst_WavelengthChart::drawsNoRainbowWithoutASize()
{
    class Small : public WavelengthChart
    {
    public:
        Small()
            : WavelengthChart(0, nullptr)
        {
            setMinimumSize(0, 0);
            resize(0, 0);
            chart()->setMinimumSize(0.0, 0.0);
            chart()->resize(0.0, 0.0);
            for (QGraphicsItem *item : scene()->items()) {
                if (auto *found = dynamic_cast<QGraphicsPixmapItem *>(item))
                    strip = found;
            }
            strip->setPixmap(QPixmap());
            generateBackBrush();
        }
        QGraphicsPixmapItem *strip = nullptr;
    };
    const Small chart;

    QVERIFY(chart.chart()->boundingRect().height() <= 0.0);
    QVERIFY(chart.strip->pixmap().isNull());
}

void tst_WavelengthChart::placesTheControls()
{
    ChartProbe chart;
    const QRectF plot = chart.chart()->plotArea();
    const QGraphicsProxyWidget *const row = chart.controlProxy();

    QVERIFY(isNear(row->pos(),
                   QPointF(plot.left(), (plot.top() - 30.0) * 0.5 - row->size().height() * 0.5)));
    QCOMPARE(row->widget()->minimumWidth(), int(plot.width()));
    QCOMPARE(row->widget()->maximumWidth(), int(plot.width()));

    chart.resize(1200, 500);
    QApplication::processEvents();
    QCOMPARE(row->widget()->width(), int(chart.chart()->plotArea().width()));
}

void tst_WavelengthChart::showsTheZoomResetButtonWhileZoomed()
{
    ChartProbe chart;
    const QRectF plot = chart.chart()->plotArea();

    chart.chart()->zoomIn(plot.adjusted(200.0, 0.0, -200.0, 0.0));
    QVERIFY(chart.zoomProxy()->isVisible());
    const QRectF zoomed = chart.chart()->plotArea();
    const QSizeF size = chart.zoomProxy()->size();
    QVERIFY(isNear(chart.zoomProxy()->pos(),
                   QPointF(zoomed.left() * 0.5 - size.width(),
                           (zoomed.top() - 30.0) * 0.5 - size.height() * 0.5)));

    qobject_cast<QCheckBox *>(chart.zoomProxy()->widget())->click();
    QVERIFY(!chart.chart()->isZoomed());
    QVERIFY(!chart.zoomProxy()->isVisible());
    QCOMPARE(rangeOf(chart.wavelengthAxis()), (QList<double>{ 350.0, 800.0 }));
}

void tst_WavelengthChart::comesBackUnhovered()
{
    ChartProbe chart;
    ZoomResetProxy *const proxy = chart.zoomProxy();
    QWidget *const button = proxy->widget();
    proxy->show();
    const QPoint middle = chart.mapFromScene(proxy->sceneBoundingRect().center());
    for (const QPoint &place : { QPoint(300, 200), middle, middle + QPoint(1, 0) }) {
        QMouseEvent move(QEvent::MouseMove, place, chart.viewport()->mapToGlobal(place),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(chart.viewport(), &move);
    }
    QVERIFY(button->testAttribute(Qt::WA_UnderMouse));

    proxy->hide();
    proxy->show();

    QVERIFY(!button->testAttribute(Qt::WA_UnderMouse));
}

void tst_WavelengthChart::ignoresRangesThatAreNotFinite_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("no minimum") << qQNaN() << 500.0;
    QTest::newRow("no maximum") << 500.0 << qQNaN();
    QTest::newRow("infinite") << -qInf() << qInf();
}

void tst_WavelengthChart::ignoresRangesThatAreNotFinite()
{
    QFETCH(double, min);
    QFETCH(double, max);
    ChartProbe chart;
    Recorder recorder(chart);

    chart.setWavelengthRange(min, max);
    chart.setSpectrumPowerRange(min, max, Converter::pwrMW3);
    chart.setFilterPowerRange(min, max, Converter::pwrMW3);
    chart.setWavelengthBandwidthPower(min, max, max);

    QCOMPARE(chart.minWavelength(), 350.0);
    QCOMPARE(chart.maxPower(), 100.0);
    QCOMPARE(chart.maxFilterPower(), 100.0);
    QCOMPARE(rangeOf(chart.wavelengthAxis()), (QList<double>{ 350.0, 800.0 }));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChart::livesWithRangesWithoutSpan_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("one point") << 500.0 << 500.0;
    QTest::newRow("reversed") << 700.0 << 400.0;
    QTest::newRow("nothing") << 0.0 << 0.0;
}

void tst_WavelengthChart::livesWithRangesWithoutSpan()
{
    QFETCH(double, min);
    QFETCH(double, max);
    ChartProbe chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    Recorder recorder(chart);

    chart.setWavelengthRange(min, max);
    chart.setSpectrumPowerRange(min, max, Converter::pwrMW3);
    chart.setFilterPowerRange(min, max, Converter::pwrMW3);
    chart.setWavelengthBandwidthPower(500.0, 0.0, 5.0);
    chart.grab();

    QCOMPARE(chart.minWavelength(), min);
    QCOMPARE(chart.maxWavelength(), max);
    QCOMPARE(rangeOf(chart.wavelengthAxis()), (QList<double>{ 350.0, 800.0 }));
    QCOMPARE(recorder.taken().size(), 3);
}

void tst_WavelengthChart::freesAllThatItMakes()
{
    auto *chart = new ChartProbe;
    chart->addFluorophore(ChartProbe::dye(1));
    const QList<QPointer<QObject>> parts{ chart->zoomProxy(),
                                          chart->controlProxy(),
                                          chart->box("Emission"),
                                          chart->spectrum(),
                                          chart->wavelengthAxis(),
                                          chart->emission(),
                                          chart->emission()->upperSeries() };

    delete chart;

    for (const QPointer<QObject> &part : parts)
        QVERIFY(part.isNull());
}

PELORIN_TEST_MAIN(tst_WavelengthChart)
#include "tst_wavelengthchart.moc"
