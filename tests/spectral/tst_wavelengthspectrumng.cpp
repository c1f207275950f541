#include "Pelorin/spectral/WavelengthSpectrumNG.h"
#include "tests/spectral/SpectrumChecks.h"
#include "tests/spectral/SpectrumProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"

#include <QPaintEvent>
#include <QPainter>

#include <limits>

namespace {

using namespace SpectrumProbe;

constexpr QRgb blue = 0xFF0000FF;
constexpr QRgb green = 0xFF008000;
constexpr QRgb red = 0xFFFF0000;

/// The widget whose spectrum is \a inner large when powers go up to 100, on white.
template<class Spectrum>
class Sized : public Spectrum
{
public:
    explicit Sized(int margin = 10, QSize inner = QSize(401, 200))
        : Spectrum(margin)
    {
        const QSize frame(labelWidth("100") + 2 * margin, labelHeight() + 2 * margin);
        showOnWhite(*this, inner + frame);
    }
};

using Bar = Sized<WavelengthSpectrumNG>;

/// A subclass that shows the rainbow, as some do, and nothing else.
class PlainRainbow : public WavelengthSpectrumNG
{
public:
    using WavelengthSpectrumNG::WavelengthSpectrumNG;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        WavelengthSpectrumNG::paintEvent(event);
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        drawWavelengths(&painter);
    }
};

using Rainbow = Sized<PlainRainbow>;

} // namespace

class tst_WavelengthSpectrumNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetWithoutSignalsAndSlots();
    void startsWithTheDefaults();
    void keepsAnyRange_data();
    void keepsAnyRange();
    void repaintsWhenARangeIsSet();
    void layoutsTheSpectrumWhenPainted_data();
    void layoutsTheSpectrumWhenPainted();
    void hasTheColorsOfTheGammaRamp_data();
    void hasTheColorsOfTheGammaRamp();

    void fillsThreeFlatRectangles_data();
    void fillsThreeFlatRectangles();
    void drawsARainbowForSubclasses_data();
    void drawsARainbowForSubclasses();
    void overhangsTheSpectrumByTheMargin_data();
    void overhangsTheSpectrumByTheMargin();
    void drawsARainbowOfFewColumns_data();
    void drawsARainbowOfFewColumns();

    void findsTheDistanceOfWavelengths_data();
    void findsTheDistanceOfWavelengths();
    void cutsTheRangeBeforeItIsMeasured();
    void findsTheDistanceOfPowers_data();
    void findsTheDistanceOfPowers();
    void labelsTheRanges_data();
    void labelsTheRanges();
    void placesTheLabelsUnderTheirTicks();
    void shiftsTheLastLabel();
    void placesThePowersBesideTheirTicks();

    void paintsNoScalesWhereThereIsNoRoom_data();
    void paintsNoScalesWhereThereIsNoRoom();
    void drawsNothingBeforeTheFirstPaint();
    void livesThroughAbsurdNumbers_data();
    void livesThroughAbsurdNumbers();
};

void tst_WavelengthSpectrumNG::isAWidgetWithoutSignalsAndSlots()
{
    const QMetaObject &meta = WavelengthSpectrumNG::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList());
}

void tst_WavelengthSpectrumNG::startsWithTheDefaults()
{
    WavelengthSpectrumNG bar(10, nullptr);

    QCOMPARE(bar.minimumSize(), QSize(450, 250));
    QCOMPARE(bar.sizeHint(), QSize(450, 250));
    QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(bar.sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(bar.minPower(), 0.0);
    QCOMPARE(bar.maxPower(), 100.0);
    QCOMPARE(bar.minWavelength(), 300.0);
    QCOMPARE(bar.maxWavelength(), 950.0);
    QCOMPARE(bar.spectrumRect(), QRect(0, 0, 0, 0));

    bar.setMinimumSize(500, 300);
    QCOMPARE(bar.sizeHint(), QSize(500, 300));
}

void tst_WavelengthSpectrumNG::keepsAnyRange_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("ascending") << 400.5 << 700.25;
    QTest::newRow("reversed") << 700.0 << 400.0;
    QTest::newRow("without span") << 500.0 << 500.0;
    QTest::newRow("infinite") << -qInf() << qInf();
}

void tst_WavelengthSpectrumNG::keepsAnyRange()
{
    QFETCH(double, min);
    QFETCH(double, max);
    WavelengthSpectrumNG bar(10);

    SpectrumChecks::keepsAnyRange(bar, min, max);
}

void tst_WavelengthSpectrumNG::repaintsWhenARangeIsSet()
{
    Bar bar;

    SpectrumChecks::repaintsWhenARangeIsSet(bar);
}

void tst_WavelengthSpectrumNG::layoutsTheSpectrumWhenPainted_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<double>("maxPower");
    QTest::addColumn<QString>("text");

    QTest::newRow("three digits") << 10 << 100.0 << "100";
    QTest::newRow("one digit") << 10 << 7.0 << "7";
    QTest::newRow("rounded up to two digits") << 10 << 9.5 << "10";
    QTest::newRow("a sign has its own width") << 10 << -100.0 << "-100";
    QTest::newRow("no margin") << 0 << 100.0 << "100";
    QTest::newRow("wide margin") << 40 << 100.0 << "100";
    QTest::newRow("negative margin") << -5 << 100.0 << "100";
}

void tst_WavelengthSpectrumNG::layoutsTheSpectrumWhenPainted()
{
    QFETCH(int, margin);
    QFETCH(double, maxPower);
    QFETCH(QString, text);
    WavelengthSpectrumNG bar(margin);
    showOnWhite(bar, QSize(500, 300));
    bar.setPowerRange(0.0, maxPower);

    bar.grab();

    const int left = labelWidth(qPrintable(text)) + margin;
    const int bottom = 299 - labelHeight() - margin;
    QCOMPARE(bar.spectrumRect(), QRect(QPoint(left, margin), QPoint(499 - margin, bottom)));
}

void tst_WavelengthSpectrumNG::hasTheColorsOfTheGammaRamp_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<QRgb>("color");

    QTest::newRow("violet") << 380.0 << qRgb(97, 0, 97);
    QTest::newRow("pure blue") << 440.0 << qRgb(0, 0, 255);
    QTest::newRow("last red") << 750.0 << qRgb(97, 0, 0);
    QTest::newRow("ultraviolet") << 379.9 << qRgb(63, 63, 63);
    QTest::newRow("infrared") << 750.1 << qRgb(63, 63, 63);
    QTest::newRow("not a number") << qQNaN() << qRgb(63, 63, 63);
}

void tst_WavelengthSpectrumNG::hasTheColorsOfTheGammaRamp()
{
    QFETCH(double, wavelength);
    QFETCH(QRgb, color);
    const WavelengthSpectrumNG bar(10);

    QCOMPARE(bar.generateRgbColor(wavelength), color);
}

void tst_WavelengthSpectrumNG::fillsThreeFlatRectangles_data()
{
    QTest::addColumn<int>("margin");

    QTest::newRow("a margin") << 10;
    QTest::newRow("one pixel") << 1;
}

void tst_WavelengthSpectrumNG::fillsThreeFlatRectangles()
{
    QFETCH(int, margin);
    Bar bar(margin);
    // no labels, so nothing but the axes over the rectangles
    bar.setPowerRange(200.0, 100.0);
    bar.setWavelengthRange(950.0, 300.0);
    const QRect whole = bar.rect();
    const QRect chart = whole.adjusted(labelWidth("100"), 0, 0, -labelHeight());
    const QRect spectrum = chart.adjusted(margin, margin, -margin, -margin);

    const QImage image = picture(bar);

    const int powerAxis = chart.left();
    const int wavelengthAxis = chart.bottom();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QPoint place(x, y);
            QRgb expected = chart.contains(place) ? green : blue;
            if (spectrum.contains(place))
                expected = red;
            if (y == wavelengthAxis && x >= chart.left() && x <= whole.right() + 1 - margin)
                expected = ink;
            if (x == powerAxis && y >= margin && y <= chart.bottom())
                expected = ink;
            if (image.pixel(place) != expected)
                QFAIL(qPrintable(
                    QStringLiteral("%1, %2: %3").arg(x).arg(y).arg(image.pixel(place), 0, 16)));
        }
    }
}

void tst_WavelengthSpectrumNG::drawsARainbowForSubclasses_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step"); // over 400 columns

    QTest::newRow("a nanometre a column") << 400.0 << 800.0 << 1.0;
    QTest::newRow("half a nanometre, not cut") << 450.0 << 650.0 << 0.5;
    QTest::newRow("two nanometres") << 300.0 << 1100.0 << 2.0;
    QTest::newRow("fractions") << 400.25 << 500.25 << 0.25;
    QTest::newRow("reversed") << 800.0 << 400.0 << -1.0;
    QTest::newRow("without span") << 500.0 << 500.0 << 0.0;
}

/// The range ends two columns before the right edge, and the first column is one that the margin has
/// not: so the spectrum begins one step above the lower end.
void tst_WavelengthSpectrumNG::drawsARainbowForSubclasses()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    Rainbow bar(10, QSize(402, 200));
    bar.setWavelengthRange(min, max);

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    QCOMPARE(spectrum.width(), 402);
    for (int x = spectrum.left() - 11; x <= spectrum.right() + 10; ++x) {
        const QRgb color = bar.generateRgbColor(min + step * (x - spectrum.left() + 1));
        QCOMPARE(image.pixel(x, spectrum.top() - 10), color);
        QCOMPARE(image.pixel(x, spectrum.bottom() + 8), color);
    }
}

void tst_WavelengthSpectrumNG::overhangsTheSpectrumByTheMargin_data()
{
    QTest::addColumn<int>("margin");

    QTest::newRow("none") << 0;
    QTest::newRow("one pixel") << 1;
    QTest::newRow("wide") << 25;
}

void tst_WavelengthSpectrumNG::overhangsTheSpectrumByTheMargin()
{
    QFETCH(int, margin);
    Rainbow bar(margin);
    bar.grab();
    const QRect spectrum = bar.spectrumRect();
    QImage image(bar.size() + QSize(10, 10), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(5.0, 5.0);

    bar.drawWavelengths(&painter);
    painter.end();

    // shifted by one row and one column, and a row and a column more at the upper left
    const QRect area(spectrum.left() - margin - 1, spectrum.top() - margin - 1,
                     spectrum.width() + 2 * margin + 1, spectrum.height() + 2 * margin - 1);
    QCOMPARE(area.bottom(), spectrum.bottom() + margin - 2);
    for (int y = -5; y < bar.height() + 5; ++y) {
        for (int x = -5; x < bar.width() + 5; ++x) {
            const bool isPainted = image.pixel(x + 5, y + 5) != white;
            QCOMPARE(isPainted, area.contains(x, y));
        }
    }
}

void tst_WavelengthSpectrumNG::drawsARainbowOfFewColumns_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("step");

    QTest::newRow("one") << 1 << -100.0; // 100 nm over less than no pixels
    QTest::newRow("two") << 2 << 0.0;    // over no pixels: the lower end everywhere
    QTest::newRow("three") << 3 << 100.0;
}

void tst_WavelengthSpectrumNG::drawsARainbowOfFewColumns()
{
    QFETCH(int, width);
    QFETCH(double, step);
    Rainbow bar(3, QSize(width, 50));
    bar.setWavelengthRange(500.0, 600.0);

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    QCOMPARE(spectrum.width(), width);
    for (int x = spectrum.left() - 4; x <= spectrum.right() + 3; ++x) {
        const double wavelength = 500.0 + step * (x - spectrum.left() + 1);
        QCOMPARE(image.pixel(x, spectrum.top()), bar.generateRgbColor(wavelength));
    }
}

void tst_WavelengthSpectrumNG::findsTheDistanceOfWavelengths_data()
{
    SpectrumChecks::addWavelengthDistances<double>();
    QTest::newRow("more than a number holds") << 0.0 << 1.0e300 << std::numeric_limits<int>::max();
    QTest::newRow("infinite") << 0.0 << qInf() << 10;
    QTest::newRow("not a number") << 0.0 << qQNaN() << 10;
}

void tst_WavelengthSpectrumNG::findsTheDistanceOfWavelengths()
{
    QFETCH(double, min);
    QFETCH(double, max);
    Bar bar(10, QSize(400, 200));
    bar.grab();
    QCOMPARE(bar.spectrumRect().width(), 400);

    bar.setWavelengthRange(min, max);

    QTEST(bar.calculateHorizontalGridLineDistance(), "distance");
}

void tst_WavelengthSpectrumNG::cutsTheRangeBeforeItIsMeasured()
{
    Bar bar(10, QSize(300, 200));
    bar.setWavelengthRange(400.0, 482.7);
    bar.grab();

    QCOMPARE(bar.spectrumRect().width(), 300);
    QCOMPARE(bar.calculateHorizontalGridLineDistance(), 10); // 10.93 and not 11.03
}

void tst_WavelengthSpectrumNG::findsTheDistanceOfPowers_data()
{
    SpectrumChecks::addPowerDistances<double>();
    QTest::newRow("half is rounded up") << 105.0 << 20 << 20;              // 10.5
    QTest::newRow("range is cut before") << 91.5 << 23 << 10;              // 10.465, not 10.5225
    QTest::newRow("rounded up to no round number") << 201.0 << 137 << 138; // 137.7
    QTest::newRow("more than a number holds") << 1.0e300 << 15 << std::numeric_limits<int>::max();
    QTest::newRow("infinite") << qInf() << 15 << 10;
    QTest::newRow("not a number") << qQNaN() << 15 << 10;
}

void tst_WavelengthSpectrumNG::findsTheDistanceOfPowers()
{
    QFETCH(double, max);
    QFETCH(int, pixels);
    Bar bar;
    bar.grab();
    QCOMPARE(bar.spectrumRect().height(), 200);

    bar.setPowerRange(0.0, max);

    QTEST(bar.calculateVerticalGridLineDistance(pixels), "distance");
}

void tst_WavelengthSpectrumNG::labelsTheRanges_data()
{
    SpectrumChecks::addLabels<double>();
    // the label of 520.9 is that of 520 too, and stands there once
    QTest::newRow("fractions above a step")
        << 0.4 << 20.8 << 500.6 << 520.9 << "0 10 20 21 500 510 520";
    QTest::newRow("fractions between steps")
        << 0.0 << 20.8 << 500.6 << 525.9 << "0 10 20 21 500 510 520 525";
    QTest::newRow("less than a nanometre") << 0.0 << 10.0 << 500.25 << 500.75 << "0 10 500";
    QTest::newRow("a nanometre is begun") << 0.0 << 10.0 << 500.25 << 501.75 << "0 10 500 501";
    QTest::newRow("cut towards zero") << -15.0 << 5.0 << -0.5 << 10.0 << "-15 -5 5 0 10";
    QTest::newRow("without span, between numbers") << 50.0 << 50.0 << 500.5 << 500.5 << "50 500";
    QTest::newRow("infinite") << -qInf() << 100.0 << 300.0 << qInf() << "";
    QTest::newRow("not a number") << qQNaN() << 100.0 << 300.0 << qQNaN() << "";
}

void tst_WavelengthSpectrumNG::labelsTheRanges()
{
    Bar bar;

    SpectrumChecks::hasLabels<Bar, double>(bar);
}

void tst_WavelengthSpectrumNG::placesTheLabelsUnderTheirTicks()
{
    Bar bar;
    bar.setWavelengthRange(400.5, 700.5); // 401 * 40 / 300 = 53, so fifties from 400
    const int start = labelWidth("100") + 10;
    // 401 pixels over 300 nm, half a nanometre early: -0.67, 66.2, 133.0, 199.8, 266.7, 333.5, 400.3
    const QList<int> ticks{ start - 1,   start + 66,  start + 132, start + 199,
                            start + 266, start + 333, start + 400 };

    SpectrumChecks::placesTheWavelengths(bar, ticks, bar.height() - labelHeight());
}

void tst_WavelengthSpectrumNG::shiftsTheLastLabel()
{
    Bar bar(0);

    PaintRecorder paper(bar);

    const int width = metrics().horizontalAdvance(QStringLiteral("950"));
    const int start = bar.width() - 1 - 2 * (width / 2);
    QVERIFY(qAbs(paper.find(QStringLiteral("950")).baseline.x() - start) < 1.0);
}

void tst_WavelengthSpectrumNG::placesThePowersBesideTheirTicks()
{
    Bar bar; // two pixels a unit
    bar.grab();

    SpectrumChecks::placesThePowers(bar, bar.spectrumRect().bottom(), labelWidth("100"),
                                    qRound(metrics().height() * 0.5));
}

void tst_WavelengthSpectrumNG::paintsNoScalesWhereThereIsNoRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");
    QTest::addColumn<bool>("hasChart");

    const int width = labelWidth("100");
    const int height = labelHeight();
    QTest::newRow("one column short") << QSize(width + 20, 300) << 10 << true;
    QTest::newRow("one row short") << QSize(300, height + 20) << 10 << true;
    QTest::newRow("no column of a chart") << QSize(width, 300) << 10 << false;
    QTest::newRow("fewer than no columns") << QSize(width - 5, 300) << 10 << false;
    QTest::newRow("tiny") << QSize(3, 3) << 0 << false;
}

void tst_WavelengthSpectrumNG::paintsNoScalesWhereThereIsNoRoom()
{
    QFETCH(QSize, size);
    QFETCH(int, margin);
    QFETCH(bool, hasChart);
    Sized<PlainRainbow> rainbow(margin);
    WavelengthSpectrumNG bar(margin);
    showOnWhite(rainbow, size);
    showOnWhite(bar, size);

    const QImage image = picture(bar);

    QVERIFY(bar.spectrumRect().isEmpty());
    const QRect chart = bar.rect().adjusted(labelWidth("100"), 0, 0, -labelHeight());
    QCOMPARE(!chart.isEmpty(), hasChart);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixel(x, y), hasChart && chart.contains(x, y) ? green : blue);
    }
    QCOMPARE(labels(bar), QString());
    QVERIFY(isPlain(picture(rainbow), white));
}

void tst_WavelengthSpectrumNG::drawsNothingBeforeTheFirstPaint()
{
    WavelengthSpectrumNG bar(10);

    SpectrumChecks::drawsNothingBeforeTheFirstPaint(bar);
}

void tst_WavelengthSpectrumNG::livesThroughAbsurdNumbers_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr double huge = std::numeric_limits<double>::max();
    QTest::newRow("huge range") << 10 << 0.0 << 1.0e15;
    QTest::newRow("a range of large numbers") << 10 << 1.0e18 << 1.0e18 + 1000.0;
    QTest::newRow("widest range") << 10 << -huge << huge;
    QTest::newRow("widest range, reversed") << 10 << huge << -huge;
    QTest::newRow("smallest span") << 10 << 1.5 << std::nextafter(1.5, 2.0);
    QTest::newRow("smallest numbers") << 10 << 0.0 << 5.0e-324;
    QTest::newRow("infinite") << 10 << -qInf() << qInf();
    QTest::newRow("infinite at both ends") << 10 << qInf() << qInf();
    QTest::newRow("not a number") << 10 << qQNaN() << qQNaN();
    QTest::newRow("lowest margin") << lowest << 300.0 << 950.0;
    QTest::newRow("highest margin") << highest << 300.0 << 950.0;
}

void tst_WavelengthSpectrumNG::livesThroughAbsurdNumbers()
{
    QFETCH(int, margin);
    QFETCH(double, min);
    QFETCH(double, max);
    WavelengthSpectrumNG bar(margin);
    PlainRainbow rainbow(margin);
    for (WavelengthSpectrumNG *each : { &bar, static_cast<WavelengthSpectrumNG *>(&rainbow) }) {
        showOnWhite(*each, QSize(500, 300));
        each->setPowerRange(min, max);
        QCOMPARE(picture(*each).size(), QSize(500, 300));

        each->setPowerRange(0.0, 100.0);
        each->setWavelengthRange(min, max);
        QCOMPARE(picture(*each).size(), QSize(500, 300));
        QVERIFY(PaintRecorder(*each).texts().size() < 1000);
        for (int width = 0; width < 80; ++width) {
            each->resize(width, 300);
            each->grab();
        }
    }
    QCOMPARE(bar.width(), 79);
}

PELORIN_TEST_MAIN(tst_WavelengthSpectrumNG)
#include "tst_wavelengthspectrumng.moc"
