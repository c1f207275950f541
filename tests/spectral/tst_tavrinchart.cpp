#include "Pelorin/spectral/TavrinChart.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QHelpEvent>

class tst_TavrinChart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsWithTheDefaults();
    void keepsTheWavelengthRange();
    void colorsLight_data();
    void colorsLight();
    void tellsAboutTheZoom();
    void logsAChangeOfScale();
    void swallowsToolTips();
};

void tst_TavrinChart::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = TavrinChart::staticMetaObject;

    QCOMPARE(meta.superClass(), &QtCharts::QChart::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "zoomChanged(bool)", "prepGeometryChange()", "slotScaleChanged()" }));
}

void tst_TavrinChart::startsWithTheDefaults()
{
    TavrinChart chart(nullptr, Qt::Widget);

    QVERIFY(!chart.isBackgroundVisible());
    QVERIFY(chart.isPlotAreaBackgroundVisible());
    QCOMPARE(chart.minWavelength(), 380);
    QCOMPARE(chart.maxWavelength(), 750);
    chart.generateBackBrush();
    QCOMPARE(chart.plotAreaBackgroundBrush(),
             TavrinChart(nullptr, Qt::Widget).plotAreaBackgroundBrush());
}

void tst_TavrinChart::keepsTheWavelengthRange()
{
    TavrinChart chart(nullptr, Qt::Widget);

    chart.setWavelengthRange(700, 400); // in any order

    QCOMPARE(chart.minWavelength(), 700);
    QCOMPARE(chart.maxWavelength(), 400);
}

void tst_TavrinChart::colorsLight_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<QRgb>("color");

    QTest::newRow("too short to see") << 379.9 << qRgb(63, 63, 63);
    QTest::newRow("violet") << 380.0 << qRgb(97, 0, 97);
    QTest::newRow("blue") << 440.0 << qRgb(0, 0, 255);
    QTest::newRow("green") << 510.0 << qRgb(0, 255, 0);
    QTest::newRow("red") << 645.0 << qRgb(255, 0, 0);
    QTest::newRow("too long to see") << 750.1 << qRgb(63, 63, 63);
}

void tst_TavrinChart::colorsLight()
{
    QFETCH(double, wavelength);
    const TavrinChart chart(nullptr, Qt::Widget);

    QTEST(chart.generateRgbColor(wavelength), "color");
}

void tst_TavrinChart::tellsAboutTheZoom()
{
    TavrinChart chart(nullptr, Qt::Widget);
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChart::staticMetaObject);

    QVERIFY(QMetaObject::invokeMethod(&chart, "prepGeometryChange"));

    QCOMPARE(recorder.taken(), list({ "zoomChanged(false)" }));
}

void tst_TavrinChart::logsAChangeOfScale()
{
    TavrinChart chart(nullptr, Qt::Widget);
    expectMessage(QtDebugMsg, QStringLiteral("slotScaleChanged"));

    chart.setScale(2.0);

    QCOMPARE(pendingMessages(), 0);
}

void tst_TavrinChart::swallowsToolTips()
{
    class Chart : public TavrinChart
    {
    public:
        Chart()
            : TavrinChart(nullptr, Qt::Widget)
        {}
        using TavrinChart::event;
        int changes = 0;

    protected:
        void changeEvent(QEvent *) override { ++changes; }
    };
    Chart chart;
    QHelpEvent toolTip(QEvent::ToolTip, QPoint(), QPoint());
    QEvent other(QEvent::StyleChange);

    QVERIFY(chart.event(&toolTip));
    chart.event(&other);
    QCOMPARE(chart.changes, 1); // all else goes on to QChart
}

PELORIN_TEST_MAIN(tst_TavrinChart)
#include "tst_tavrinchart.moc"
