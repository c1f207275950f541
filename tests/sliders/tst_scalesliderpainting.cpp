#include "Pelorin/sliders/ScaleSlider.h"
#include "tests/sliders/HandleProbe.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/PartialPaint.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>
#include <QPaintEvent>

Q_DECLARE_METATYPE(ScaleSlider::ScaleType)

namespace {

using HandleProbe::columnsOf;
using PartialPaint::blank;
using PartialPaint::paintOnto;

constexpr auto linear = ScaleSlider::LinearScale;
constexpr auto logarithmic = ScaleSlider::LogarithmicScale;
constexpr auto steps = ScaleSlider::StepScale;
constexpr auto interpolated = ScaleSlider::StepScaleInterpolated;

constexpr int tickRow = 36;

/// A shown slider on white that remembers what of it was repainted.
class Slider : public ScaleSlider
{
public:
    explicit Slider(int width)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        setPalette(palette);
        resize(width, height());
        show();
    }

    QStringList labels()
    {
        PaintRecorder paper(*this);
        return paper.textList();
    }

    QList<int> ticks() { return columnsOf(grab().toImage(), tickRow, HandleProbe::ink); }

    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        ScaleSlider::paintEvent(event);
    }
};

/// 1, 2, 3 and so on.
QList<double> countingTo(int last)
{
    QList<double> result;
    for (int i = 1; i <= last; ++i)
        result << i;
    return result;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class tst_ScaleSliderPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labelsRoundNumbers_data();
    void labelsRoundNumbers();
    void leavesRoomForWideEndLabels();
    void limitsTheLabels();
    void ignoresSmallLimits();
    void showsThePrecisionAtOnce();
    void labelsWholeDecades_data();
    void labelsWholeDecades();
    void keepsTheLabelledEndsInDecades();
    void labelsSteps_data();
    void labelsSteps();
    void spreadsTheTicks();
    void placesTheTextUnderItsTick();
    void drawsTheTrackBetweenTheMargins();
    void colorsTheHandleByItsState();
    void staysLitInTheHand();
    void marksTheHandle();
    void repaintsOnlyWhereTheHandleMoves();
    void paintsTheSameInPartAndWhole_data();
    void paintsTheSameInPartAndWhole();
};

void tst_ScaleSliderPainting::labelsRoundNumbers_data()
{
    QTest::addColumn<ScaleSlider::ScaleType>("type");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("labels");

    // End labels take between 35 and 55 pixels each in all of these.
    QTest::newRow("two parts and a bit")
        << linear << 0.0 << 100.0 << 320 << "0.0 25.0 50.0 75.0 100.0";
    QTest::newRow("one part") << linear << 0.0 << 100.0 << 150 << "0.0 100.0";
    QTest::newRow("five parts and a bit")
        << linear << 0.0 << 10.0 << 650 << "0.0 1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0 9.0 10.0";
    QTest::newRow("clipped to the range")
        << linear << 10.0 << 90.0 << 320 << "10.0 30.0 50.0 70.0 90.0";
    QTest::newRow("below zero") << linear << -50.0 << 50.0 << 320 << "-50.0 -25.0 0.0 25.0 50.0";
    QTest::newRow("a decade each") << logarithmic << 1.0 << 1000.0 << 340 << "1.0 10 100 1000";
    QTest::newRow("half a decade each")
        << logarithmic << 1.0 << 1000.0 << 620 << "1.0 3.2 10 32 100 320 1000";
    QTest::newRow("below one") << logarithmic << 0.01 << 1.0 << 190 << "0.010 0.10 1.0";
}

void tst_ScaleSliderPainting::labelsRoundNumbers()
{
    QFETCH(ScaleSlider::ScaleType, type);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, width);
    QFETCH(QString, labels);
    Slider slider(width);
    slider.setScaleType(type);
    slider.setRange(min, max);

    QCOMPARE(slider.labels(), labels.split(QLatin1Char(' ')));
}

void tst_ScaleSliderPainting::leavesRoomForWideEndLabels()
{
    // 100 pixels a part: with the narrowest end labels there is room for more than two parts, with
    // these for less.
    Slider slider(300);
    const int end = QFontMetrics(slider.font()).horizontalAdvance(QStringLiteral("1000000.0")) + 10;
    QVERIFY(end > 50);
    QVERIFY(end < 100);

    slider.setRange(0.0, 1.0e6);

    QCOMPARE(slider.labels(), words("0.0 500000.0 1000000.0"));
}

void tst_ScaleSliderPainting::limitsTheLabels()
{
    Slider slider(850); // seven parts and more, so ten labels

    slider.setMaxLabelIntervals(5);
    QCOMPARE(slider.labels().size(), 11); // counts with the next range

    slider.setRange(0.0, 100.0);
    QCOMPARE(slider.labels(), words("0.0 20.0 40.0 60.0 80.0 100.0"));
}

void tst_ScaleSliderPainting::ignoresSmallLimits()
{
    Slider slider(850);
    slider.setMaxLabelIntervals(4);
    slider.setMaxLabelIntervals(0);
    slider.setRange(0.0, 100.0);
    QCOMPARE(slider.labels().size(), 11);

    slider.setScaleType(steps);
    slider.setStepList(countingTo(10));
    for (const int ignored : { 1, 0, -1 }) {
        slider.setMaxStepTicks(ignored);
        QCOMPARE(slider.labels().size(), 10);
    }
    slider.setMaxStepTicks(-2);
    QCOMPARE(slider.labels().size(), 2);
}

void tst_ScaleSliderPainting::showsThePrecisionAtOnce()
{
    Slider slider(320);
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    slider.grab();

    slider.setPrecision(0);
    QCOMPARE(slider.labels(), words("0 25 50 75 100"));

    slider.setPrecision(3);
    QCOMPARE(slider.labels(), words("0.000 25.000 50.000 75.000 100.000"));
}

void tst_ScaleSliderPainting::labelsWholeDecades_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("labels");
    QTest::addColumn<QList<int>>("ticks");

    // 300 pixels from 17 to 316. The last decade before the upper end stands where the whole
    // decades end, the others share the way to there.
    QTest::newRow("whole ends") << 1.0 << 1000.0 << "1 10 100 1000"
                                << QList<int>{ 17, 167, 316, 317 };
    QTest::newRow("broken upper end")
        << 1.0 << 5000.0 << "1 10 100 1000 5000" << QList<int>{ 17, 98, 179, 260, 316 };
    QTest::newRow("broken ends") << 2.0 << 5000.0 << "2 10 100 1000 5000"
                                 << QList<int>{ 17, 96, 175, 255, 316 };
    QTest::newRow("within a decade") << 2.0 << 5.0 << "2 5" << QList<int>{ 17, 316 };
    QTest::newRow("no span") << 10.0 << 10.0 << "10" << QList<int>{ 17 };
    QTest::newRow("reversed") << 1000.0 << 10.0 << "" << QList<int>();
}

void tst_ScaleSliderPainting::labelsWholeDecades()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, labels);
    Slider slider(335);
    slider.setScaleType(logarithmic);
    slider.setTraditionalLogarithmicScale(true);

    slider.setRange(min, max);

    QStringList shown = slider.labels();
    QCOMPARE(shown, labels.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QTEST(slider.ticks(), "ticks");
}

void tst_ScaleSliderPainting::keepsTheLabelledEndsInDecades()
{
    Slider slider(335);
    slider.setScaleType(logarithmic);
    slider.setRange(1.0, 1000.0);
    slider.setTraditionalLogarithmicScale(true);

    slider.setRange(1.0, 1.0e6);

    QCOMPARE(slider.labels().last(), QStringLiteral("1000000"));
    QCOMPARE(slider.accordingValue(300), 3.0); // the handle still travels from 1 to 1000
}

void tst_ScaleSliderPainting::labelsSteps_data()
{
    QTest::addColumn<ScaleSlider::ScaleType>("type");
    QTest::addColumn<QList<double>>("list");
    QTest::addColumn<int>("maxTicks");
    QTest::addColumn<QString>("labels");

    const QList<double> uneven{ 0.0, 10.0, 20.0, 50.0, 100.0 };
    QTest::newRow("ten, all") << steps << countingTo(10) << -10 << "1 2 3 4 5 6 7 8 9 10";
    QTest::newRow("twelve, ends only") << steps << countingTo(12) << -10 << "1 12";
    QTest::newRow("each third and the last") << steps << countingTo(12) << 4 << "1 4 7 10 12";
    QTest::newRow("each third, rounded up") << steps << countingTo(12) << 5 << "1 4 7 10 12";
    QTest::newRow("as many as allowed")
        << steps << countingTo(12) << 12 << "1 2 3 4 5 6 7 8 9 10 11 12";
    QTest::newRow("rounded") << steps << QList<double>{ 0.4, 1.5, 2.6 } << -10 << "0 2 3";
    QTest::newRow("interpolated") << interpolated << uneven << -10 << "0.0 25 50 75 100";
    QTest::newRow("interpolated, just enough") << interpolated << uneven << 4 << "0.0 25 50 75 100";
    QTest::newRow("interpolated, ends only") << interpolated << uneven << 3 << "0.0 100";
    QTest::newRow("interpolated, either sign")
        << interpolated << uneven << -4 << "0.0 25 50 75 100";
}

void tst_ScaleSliderPainting::labelsSteps()
{
    QFETCH(ScaleSlider::ScaleType, type);
    QFETCH(QList<double>, list);
    QFETCH(int, maxTicks);
    QFETCH(QString, labels);
    Slider slider(600);
    slider.setScaleType(type);
    slider.setMaxStepTicks(maxTicks);

    slider.setStepList(list);

    QCOMPARE(slider.labels(), labels.split(QLatin1Char(' ')));
}

void tst_ScaleSliderPainting::spreadsTheTicks()
{
    Slider slider(336);
    QCOMPARE(slider.ticks(), (QList<int>{ 17, 92, 167, 242, 317 }));

    slider.setSideMargins(10);
    QCOMPARE(slider.ticks(), (QList<int>{ 27, 97, 167, 237, 307 }));

    const QImage image = slider.grab().toImage();
    QCOMPARE(image.pixel(167, 38), HandleProbe::ink);
    QCOMPARE(image.pixel(167, 39), 0xFFFFFFFF);
}

void tst_ScaleSliderPainting::placesTheTextUnderItsTick()
{
    Slider slider(336);
    slider.setPrecision(0);
    const QFont font(QStringLiteral("Calibri"), 10, -1, false);
    const QFontMetrics metrics(font);

    const PaintRecorder paper(slider);

    const PaintRecorder::Text text = paper.find(QStringLiteral("50"));
    QCOMPARE(text.text, QStringLiteral("50"));
    QCOMPARE(text.font.family(), font.family());
    QCOMPARE(text.font.pointSize(), 10);
    QCOMPARE(text.color.rgb(), HandleProbe::ink);
    QCOMPARE(text.baseline.y(), 40.0 + metrics.ascent());
    const QRectF ink = QFontMetricsF(font).boundingRect(text.text);
    QVERIFY(qAbs(text.baseline.x() + ink.center().x() - 167.0) <= 1.0);
}

void tst_ScaleSliderPainting::drawsTheTrackBetweenTheMargins()
{
    Slider slider(335);
    slider.setSideMargins(20);
    slider.setCurrentValue(50.0);

    const QImage image = slider.grab().toImage();

    const QList<int> columns = columnsOf(image, 17, HandleProbe::track);
    QCOMPARE(columns.first(), 20);
    QCOMPARE(columns.last(), 313); // 20 + 294, less the antialiased edge
    QCOMPARE(image.pixel(80, 33), HandleProbe::track);
    QCOMPARE(image.pixel(80, 1), HandleProbe::track);
    QVERIFY(image.pixel(20, 1) != HandleProbe::track); // rounded
    QCOMPARE(image.pixel(10, 17), 0xFFFFFFFF);
}

void tst_ScaleSliderPainting::colorsTheHandleByItsState()
{
    Slider slider(335);
    slider.setCurrentValue(50.0);
    MouseHand hand(slider);
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::red), 150);

    hand.move(QPoint(160, 17));
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::orange), 150);

    hand.move(QPoint(60, 17));
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::red), 150);

    hand.move(QPoint(160, 17));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&slider, &leave);
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::red), 150);

    slider.setEnabled(false);
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::grey), 150);
}

void tst_ScaleSliderPainting::staysLitInTheHand()
{
    Slider slider(335);
    slider.setCurrentValue(50.0);
    MouseHand hand(slider);
    hand.press(QPoint(160, 17));

    hand.move(QPoint(900, 90));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&slider, &leave);
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::orange), 300);

    hand.release(QPoint(900, 90));
    QCOMPARE(HandleProbe::handleLeft(slider, HandleProbe::red), 300);
}

void tst_ScaleSliderPainting::marksTheHandle()
{
    Slider slider(335);
    slider.setCurrentValue(50.0);

    const QImage image = slider.grab().toImage();

    // Two pixels wide around 150 + 17.
    for (int y = 31; y < 35; ++y) {
        QCOMPARE(image.pixel(165, y), HandleProbe::red);
        QCOMPARE(image.pixel(166, y), 0xFFFFFFFF);
        QCOMPARE(image.pixel(167, y), 0xFFFFFFFF);
        QCOMPARE(image.pixel(168, y), HandleProbe::red);
    }
    QCOMPARE(image.pixel(167, 27), HandleProbe::red);
}

void tst_ScaleSliderPainting::repaintsOnlyWhereTheHandleMoves()
{
    Slider slider(1035);
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    MouseHand hand(slider);
    hand.press(QPoint(17, 17));
    QCoreApplication::processEvents();
    slider.painted = QRegion();

    hand.move(QPoint(317, 17));
    QCoreApplication::processEvents();

    const QRegion handles = QRegion(0, 0, 35, 35) + QRegion(300, 0, 35, 35);
    QVERIFY(handles.subtracted(slider.painted).isEmpty());
    const QRegion near = QRegion(0, 0, 38, 38) + QRegion(297, 0, 41, 38);
    QVERIFY(slider.painted.subtracted(near).isEmpty());
}

void tst_ScaleSliderPainting::paintsTheSameInPartAndWhole_data()
{
    QTest::addColumn<qreal>("ratio");

    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 1.25") << 1.25;
    QTest::newRow("ratio 1.5") << 1.5;
    QTest::newRow("ratio 2") << 2.0;
}

void tst_ScaleSliderPainting::paintsTheSameInPartAndWhole()
{
    QFETCH(qreal, ratio);
    Slider slider(403);
    slider.setSideMargins(7);
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QImage kept = blank(slider, ratio);
    paintOnto(kept, slider);
    QCoreApplication::processEvents();

    for (const double value : { 1.0, 3.0, 50.0, 100.0, 33.3, 0.0 }) {
        slider.painted = QRegion();
        slider.setCurrentValue(value);
        QCoreApplication::processEvents();
        const QRegion dirty = slider.painted;
        QVERIFY(!dirty.isEmpty());
        QVERIFY(dirty.boundingRect() != slider.rect());

        paintOnto(kept, slider, dirty); // what the screen holds after a partial update
        slider.setSideMargins(7);       // throws away what is kept
        QImage whole = blank(slider, ratio);
        paintOnto(whole, slider);
        QCoreApplication::processEvents();

        QCOMPARE(kept, whole);
    }
}

PELORIN_TEST_MAIN(tst_ScaleSliderPainting)
#include "tst_scalesliderpainting.moc"
