#include "Pelorin/spectral/WavelengthSpectrum.h"
#include "tests/spectral/SpectrumChecks.h"
#include "tests/spectral/SpectrumProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/PartialPaint.h"
#include "tests/support/TestCase.h"

#include <QPainter>

#include <limits>

namespace {

using namespace SpectrumProbe;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/// The widget whose spectrum is \a inner large when powers go up to 100, on white.
class Bar : public WavelengthSpectrum
{
public:
    explicit Bar(int margin = 10, QSize inner = QSize(401, 200))
        : WavelengthSpectrum(margin)
    {
        const QSize frame(labelWidth("000") + 2 * margin + 2, labelHeight() + 2 * margin + 2);
        showOnWhite(*this, inner + frame);
    }
};

} // namespace

class tst_WavelengthSpectrum : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isALabelWithoutSignalsAndSlots();
    void startsWithTheDefaults();
    void keepsAnyRange_data();
    void keepsAnyRange();
    void repaintsWhenARangeIsSet();
    void layoutsTheSpectrumWhenPainted_data();
    void layoutsTheSpectrumWhenPainted();
    void hasTheColorsOfTheHueRamp_data();
    void hasTheColorsOfTheHueRamp();

    void paintsTheColorOfEveryColumn_data();
    void paintsTheColorOfEveryColumn();
    void accumulatesUnevenSteps();
    void overhangsTheSpectrumByTheMargin_data();
    void overhangsTheSpectrumByTheMargin();
    void paintsTheSameColumnsAtAnyRatio_data();
    void paintsTheSameColumnsAtAnyRatio();
    void paintsTheSameInPartAndWhole();
    void showsANewRangeAtOnce();
    void leavesThePainterAsItWas();

    void findsTheDistanceOfWavelengths_data();
    void findsTheDistanceOfWavelengths();
    void findsTheDistanceOfPowers_data();
    void findsTheDistanceOfPowers();
    void labelsTheRanges_data();
    void labelsTheRanges();
    void placesTheLabelsUnderTheirTicks();
    void shiftsTheLastLabel();
    void keepsALabelThatReachesTheEdge();
    void placesThePowersBesideTheirTicks();
    void drawsTheAxes();

    void paintsNothingWhereThereIsNoRoom_data();
    void paintsNothingWhereThereIsNoRoom();
    void drawsNothingBeforeTheFirstPaint();
    void livesThroughAbsurdNumbers_data();
    void livesThroughAbsurdNumbers();
};

void tst_WavelengthSpectrum::isALabelWithoutSignalsAndSlots()
{
    const QMetaObject &meta = WavelengthSpectrum::staticMetaObject;

    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList());
}

void tst_WavelengthSpectrum::startsWithTheDefaults()
{
    const WavelengthSpectrum bar(10, nullptr);

    QCOMPARE(bar.minimumSize(), QSize(250, 250));
    QCOMPARE(bar.minPower(), 0);
    QCOMPARE(bar.maxPower(), 100);
    QCOMPARE(bar.minWavelength(), 300);
    QCOMPARE(bar.maxWavelength(), 950);
    QCOMPARE(bar.spectrumRect(), QRect(0, 0, 0, 0));
}

void tst_WavelengthSpectrum::keepsAnyRange_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");

    QTest::newRow("ascending") << 400 << 700;
    QTest::newRow("reversed") << 700 << 400;
    QTest::newRow("without span") << 500 << 500;
    QTest::newRow("negative") << -20 << -10;
    QTest::newRow("widest") << lowest << highest;
}

void tst_WavelengthSpectrum::keepsAnyRange()
{
    QFETCH(int, min);
    QFETCH(int, max);
    WavelengthSpectrum bar(10);

    SpectrumChecks::keepsAnyRange(bar, min, max);
}

void tst_WavelengthSpectrum::repaintsWhenARangeIsSet()
{
    Bar bar;

    SpectrumChecks::repaintsWhenARangeIsSet(bar);
}

void tst_WavelengthSpectrum::layoutsTheSpectrumWhenPainted_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("maxPower");
    QTest::addColumn<QString>("zeros");

    QTest::newRow("three digits") << 10 << 100 << "000";
    QTest::newRow("one digit") << 10 << 7 << "0";
    QTest::newRow("five digits") << 10 << 12345 << "00000";
    QTest::newRow("a sign is as wide as a digit") << 10 << -100 << "0000";
    QTest::newRow("no margin") << 0 << 100 << "000";
    QTest::newRow("wide margin") << 40 << 100 << "000";
    QTest::newRow("negative margin") << -5 << 100 << "000";
}

void tst_WavelengthSpectrum::layoutsTheSpectrumWhenPainted()
{
    QFETCH(int, margin);
    QFETCH(int, maxPower);
    QFETCH(QString, zeros);
    WavelengthSpectrum bar(margin);
    showOnWhite(bar, QSize(500, 300));
    bar.setPowerRange(0, maxPower);

    bar.grab();

    const int left = 1 + margin + labelWidth(qPrintable(zeros));
    const int bottom = 298 - margin - labelHeight();
    QCOMPARE(bar.spectrumRect(), QRect(QPoint(left, 1 + margin), QPoint(498 - margin, bottom)));
}

void tst_WavelengthSpectrum::hasTheColorsOfTheHueRamp_data()
{
    QTest::addColumn<int>("wavelength");
    QTest::addColumn<QColor>("color");

    QTest::newRow("nothing") << 0 << QColor::fromHsl(280, 200, 0);
    QTest::newRow("black") << 300 << QColor::fromHsl(280, 200, 0);
    QTest::newRow("violet") << 380 << QColor::fromHsl(280, 200, 128);
    QTest::newRow("green") << 520 << QColor::fromHsl(175, 200, 128);
    QTest::newRow("infrared") << 725 << QColor::fromHsl(0, 200, 76);
    QTest::newRow("far") << 2000 << QColor::fromHsl(0, 0, 0);
}

void tst_WavelengthSpectrum::hasTheColorsOfTheHueRamp()
{
    QFETCH(int, wavelength);
    QFETCH(QColor, color);
    const WavelengthSpectrum bar(10);

    QCOMPARE(bar.generateRgbColor(wavelength), color.rgba());
}

void tst_WavelengthSpectrum::paintsTheColorOfEveryColumn_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<double>("step"); // over 400 columns

    QTest::newRow("a nanometre a column") << 400 << 800 << 1.0;
    QTest::newRow("half a nanometre, cut") << 450 << 650 << 0.5;
    QTest::newRow("two nanometres") << 300 << 1100 << 2.0;
    QTest::newRow("reversed") << 800 << 400 << -1.0;
    QTest::newRow("without span") << 500 << 500 << 0.0;
}

void tst_WavelengthSpectrum::paintsTheColorOfEveryColumn()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(double, step);
    Bar bar(10);
    bar.setWavelengthRange(min, max);

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    QCOMPARE(spectrum.width(), 401);
    for (int x = spectrum.left() - 10; x <= spectrum.right() + 10; ++x) {
        const QRgb color = bar.generateRgbColor(int(min + step * (x - spectrum.left())));
        QCOMPARE(image.pixel(x, spectrum.top() - 10), color);
        if (x > spectrum.left() - 10) // the axis
            QCOMPARE(image.pixel(x, spectrum.bottom() + 9), color);
    }
}

/// A range that no column hits: the sum may end a nanometre below what a product would give.
void tst_WavelengthSpectrum::accumulatesUnevenSteps()
{
    Bar bar(7, QSize(318, 200));
    bar.setWavelengthRange(300, 950);

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    const double step = 650.0 / 317.0;
    double wavelength = 300.0 - step * 7;
    for (int x = spectrum.left() - 7; x <= spectrum.right() + 7; ++x) {
        QCOMPARE(image.pixel(x, spectrum.top() - 7), bar.generateRgbColor(int(wavelength)));
        wavelength += step;
    }
}

void tst_WavelengthSpectrum::overhangsTheSpectrumByTheMargin_data()
{
    QTest::addColumn<int>("margin");

    QTest::newRow("none") << 0;
    QTest::newRow("one pixel") << 1;
    QTest::newRow("wide") << 25;
}

void tst_WavelengthSpectrum::overhangsTheSpectrumByTheMargin()
{
    QFETCH(int, margin);
    Bar bar(margin);
    bar.setWavelengthRange(400, 800);

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    const int middle = spectrum.center().x();
    const QRgb color = bar.generateRgbColor(400 + middle - spectrum.left());
    QCOMPARE(rowsOf(image, middle, color).first(), spectrum.top() - margin);
    // the last row is the axis's
    QCOMPARE(rowsOf(image, middle, color).last(), spectrum.bottom() + margin - 1);
    QCOMPARE(rowsOf(image, middle, ink).first(), spectrum.bottom() + margin);
    QCOMPARE(rowsOf(image, middle, white).first(), 0);
    const int row = spectrum.bottom() + margin - 1;
    QCOMPARE(image.pixel(spectrum.right() + margin, row), bar.generateRgbColor(800 + margin));
    QCOMPARE(image.pixel(spectrum.right() + margin + 1, row), white);
}

void tst_WavelengthSpectrum::paintsTheSameColumnsAtAnyRatio_data()
{
    QTest::addColumn<double>("ratio");

    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void tst_WavelengthSpectrum::paintsTheSameColumnsAtAnyRatio()
{
    QFETCH(double, ratio);
    Bar bar;
    bar.setWavelengthRange(400, 800);
    QImage image = PartialPaint::blank(bar, ratio);

    PartialPaint::paintOnto(image, bar);

    const QRect spectrum = bar.spectrumRect();
    const int row = int(ratio * spectrum.center().y());
    for (int x = spectrum.left() + 1; x <= spectrum.right(); ++x) {
        const QRgb color = bar.generateRgbColor(400 + x - spectrum.left());
        QCOMPARE(image.pixel(int(ratio * (x + 0.5)), row), color);
    }
}

void tst_WavelengthSpectrum::paintsTheSameInPartAndWhole()
{
    Bar bar;
    QImage whole = PartialPaint::blank(bar, 1.0);
    QImage parts = whole;

    PartialPaint::paintOnto(whole, bar);
    for (int x = 0; x < bar.width(); x += 50)
        PartialPaint::paintOnto(parts, bar, QRect(x, 0, 50, bar.height()));

    QCOMPARE(parts, whole);
}

void tst_WavelengthSpectrum::showsANewRangeAtOnce()
{
    Bar bar;
    const QImage before = picture(bar);

    bar.setWavelengthRange(500, 500);
    const QRect spectrum = bar.spectrumRect();
    QCOMPARE(picture(bar).pixel(spectrum.center()), bar.generateRgbColor(500));

    bar.setWavelengthRange(300, 950);
    bar.setPowerRange(0, 20);
    QVERIFY(picture(bar) != before);

    bar.setPowerRange(0, 100);
    QCOMPARE(picture(bar), before);
}

void tst_WavelengthSpectrum::leavesThePainterAsItWas()
{
    Bar bar;
    bar.grab();
    QImage image(bar.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::yellow, 3));
    painter.setBrush(Qt::blue);

    bar.drawWavelengths(&painter);
    bar.drawPowerLabels(&painter);
    bar.drawWavelengthLabels(&painter);

    QCOMPARE(painter.pen(), QPen(Qt::yellow, 3));
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
    const QRect spectrum = bar.spectrumRect();
    QCOMPARE(image.pixel(spectrum.topLeft()), bar.generateRgbColor(300));
}

void tst_WavelengthSpectrum::findsTheDistanceOfWavelengths_data()
{
    SpectrumChecks::addWavelengthDistances<int>();
    QTest::newRow("widest") << lowest << highest << 429496729; // a tenth of 2 to the 32, less one
}

void tst_WavelengthSpectrum::findsTheDistanceOfWavelengths()
{
    QFETCH(int, min);
    QFETCH(int, max);
    Bar bar(10, QSize(400, 200));
    bar.grab();
    QCOMPARE(bar.spectrumRect().width(), 400);

    bar.setWavelengthRange(min, max);

    QTEST(bar.calculateHorizontalGridLineDistance(), "distance");
}

void tst_WavelengthSpectrum::findsTheDistanceOfPowers_data()
{
    SpectrumChecks::addPowerDistances<int>();
    QTest::newRow("half is cut") << 105 << 20 << 10; // 10.5
    QTest::newRow("more than a number holds") << highest << highest << highest;
}

void tst_WavelengthSpectrum::findsTheDistanceOfPowers()
{
    QFETCH(int, max);
    QFETCH(int, pixels);
    Bar bar;
    bar.grab();
    QCOMPARE(bar.spectrumRect().height(), 200);

    bar.setPowerRange(0, max);

    QTEST(bar.calculateVerticalGridLineDistance(pixels), "distance");
}

void tst_WavelengthSpectrum::labelsTheRanges_data()
{
    SpectrumChecks::addLabels<int>();
    QTest::newRow("to the highest number")
        << 0 << 10 << highest - 15 << highest << "0 10 2147483632 2147483642 2147483647";
}

void tst_WavelengthSpectrum::labelsTheRanges()
{
    Bar bar;

    SpectrumChecks::hasLabels<Bar, int>(bar);
}

void tst_WavelengthSpectrum::placesTheLabelsUnderTheirTicks()
{
    Bar bar;
    bar.setWavelengthRange(400, 700); // 401 * 40 / 300 = 53, so fifties
    const int start = 1 + 10 + labelWidth("000");
    // 401 pixels over 300 nm: 66.8, 133.7, 200.5, 267.3, 334.2
    const QList<int> ticks{ start,       start + 66,  start + 133, start + 200,
                            start + 267, start + 334, start + 401 };

    SpectrumChecks::placesTheWavelengths(bar, ticks, bar.height() - 1 - labelHeight());
}

void tst_WavelengthSpectrum::shiftsTheLastLabel()
{
    Bar bar(0);
    bar.setWavelengthRange(400, 800);

    PaintRecorder paper(bar);

    const int right = bar.width() - 2;
    const int width = metrics().horizontalAdvance(QStringLiteral("800"));
    const int start = right - 2 * (width / 2);
    QVERIFY(qAbs(paper.find(QStringLiteral("800")).baseline.x() - start) < 1.0);
}

/// Whether a label is shifted goes by its full width, not by the half that lies at the right.
void tst_WavelengthSpectrum::keepsALabelThatReachesTheEdge()
{
    const int width = metrics().horizontalAdvance(QStringLiteral("800"));
    for (const int tooFar : { 0, 1 }) {
        // the tick of the end stands one pixel right of the spectrum
        Bar bar(width + 1 - tooFar);
        bar.setWavelengthRange(400, 800);
        const int right = bar.width() - 2;

        PaintRecorder paper(bar);

        const int tick = bar.spectrumRect().right() + 1;
        QCOMPARE(tick + width, right + tooFar);
        const int place = tooFar == 1 ? right - 2 * (width / 2) : tick - width / 2;
        QVERIFY(qAbs(paper.find(QStringLiteral("800")).baseline.x() - place) < 1.0);
    }
}

void tst_WavelengthSpectrum::placesThePowersBesideTheirTicks()
{
    Bar bar; // two pixels a unit
    bar.grab();

    SpectrumChecks::placesThePowers(bar, bar.spectrumRect().bottom(), 1 + labelWidth("000"),
                                    metrics().height() / 2);
}

void tst_WavelengthSpectrum::drawsTheAxes()
{
    Bar bar;

    const QImage image = picture(bar);

    const QRect spectrum = bar.spectrumRect();
    const int left = 1 + labelWidth("000");
    const int axis = bar.height() - 2 - labelHeight();
    QCOMPARE(spectrum.left() - 10, left);
    QCOMPARE(columnsOf(image, axis).last(), bar.width() - 2 + 1 - 10);
    QCOMPARE(columnsOf(image, axis).mid(0, 3), span(left, left + 2));
    QCOMPARE(columnsOf(image, axis).size(), bar.width() - 1 - 10 - left + 1);
    QCOMPARE(rowsOf(image, left).mid(0, 210), span(spectrum.top(), spectrum.bottom() + 10));
    QCOMPARE(axis, spectrum.bottom() + 10);
}

void tst_WavelengthSpectrum::paintsNothingWhereThereIsNoRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");

    const int width = labelWidth("000") + 2;
    const int height = labelHeight() + 2;
    QTest::newRow("one column short") << QSize(width + 20, 300) << 10;
    QTest::newRow("one row short") << QSize(300, height + 20) << 10;
    QTest::newRow("tiny") << QSize(3, 3) << 0;
    QTest::newRow("margin wider than the widget") << QSize(300, 300) << 400;
    QTest::newRow("margin of any width") << QSize(300, 300) << highest;
}

void tst_WavelengthSpectrum::paintsNothingWhereThereIsNoRoom()
{
    QFETCH(QSize, size);
    QFETCH(int, margin);
    WavelengthSpectrum bar(margin);
    showOnWhite(bar, size);

    const QImage image = picture(bar);

    QVERIFY(bar.spectrumRect().isEmpty());
    QVERIFY(isPlain(image, white));
    QCOMPARE(labels(bar), QString());
}

void tst_WavelengthSpectrum::drawsNothingBeforeTheFirstPaint()
{
    WavelengthSpectrum bar(10);

    SpectrumChecks::drawsNothingBeforeTheFirstPaint(bar);
}

void tst_WavelengthSpectrum::livesThroughAbsurdNumbers_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<QSize>("size");

    QTest::newRow("widest range") << 10 << lowest << highest << QSize(500, 300);
    QTest::newRow("widest range, reversed") << 10 << highest << lowest << QSize(500, 300);
    QTest::newRow("highest number") << 10 << highest << highest << QSize(500, 300);
    QTest::newRow("to the highest number") << 10 << highest - 15 << highest << QSize(500, 300);
    QTest::newRow("lowest margin") << lowest << 300 << 950 << QSize(500, 300);
    QTest::newRow("lowest margin in a tiny widget") << lowest << lowest << highest << QSize(2, 2);
    QTest::newRow("highest margin") << highest << 300 << 950 << QSize(500, 300);
}

void tst_WavelengthSpectrum::livesThroughAbsurdNumbers()
{
    QFETCH(int, margin);
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(QSize, size);
    WavelengthSpectrum bar(margin);
    showOnWhite(bar, size);
    bar.setPowerRange(min, max);
    bar.setWavelengthRange(min, max);

    QCOMPARE(picture(bar).size(), size);
    QVERIFY(PaintRecorder(bar).texts().size() < 1000);
    QCOMPARE(bar.maxPower(), max);

    for (int width = 0; width < 120; ++width) {
        bar.resize(width, 300);
        bar.grab();
    }
    QCOMPARE(bar.width(), 119);
}

PELORIN_TEST_MAIN(tst_WavelengthSpectrum)
#include "tst_wavelengthspectrum.moc"
