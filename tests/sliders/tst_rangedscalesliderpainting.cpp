#include "Pelorin/sliders/RangedScaleSlider.h"
#include "tests/sliders/HandleProbe.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/PartialPaint.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>
#include <QPaintEvent>

namespace {

using HandleProbe::columnsOf;
using HandleProbe::grey;
using HandleProbe::ink;
using HandleProbe::orange;
using HandleProbe::red;
using HandleProbe::track;
using PartialPaint::blank;
using PartialPaint::paintOnto;

constexpr QRgb white = 0xFFFFFFFF;

/// 400 to 900 over 300 pixels, the start at 500 and the stop at 700: handles at 60 and at 180. It
/// stands on a dark ground, so that the white marks can be told, and remembers what of it was
/// repainted.
class Slider : public RangedScaleSlider
{
public:
    explicit Slider(int width = 335)
        : RangedScaleSlider(nullptr)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::black);
        setPalette(palette);
        resize(width, height());
        show();
        setRanges(400.0, 900.0);
        setCurrentStartValue(500.0, false);
        setCurrentStopValue(700.0, false);
    }

    void setRanges(double min, double max)
    {
        setStartRange(min, max);
        setStopRange(min, max);
    }

    QImage picture() { return grab().toImage(); }
    QRgb startColor() { return picture().pixel(65, 17); }
    QRgb stopColor() { return picture().pixel(185, 17); }
    QStringList labels() { return PaintRecorder(*this).textList(); }

    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        RangedScaleSlider::paintEvent(event);
    }
};

const QPoint onStart(70, 17);
const QPoint onStop(190, 17);

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class tst_RangedScaleSliderPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labelsRoundNumbers_data();
    void labelsRoundNumbers();
    void placesTicksAndLabels();
    void countsTheMarginsOffTheScale();
    void drawsTheTrackBetweenTheMargins();
    void placesTheHandles();
    void laysTheStopOverTheStart();
    void colorsTheHandleUnderTheMouse();
    void staysLitInTheHand();
    void endsTheHoverWithAReleaseElsewhere();
    void showsFixedAndDisabledHandlesGrey();
    void marksTheHandles();
    void showsNoLabelsWithoutAScale();
    void repaintsOnlyWhereAHandleMoves();
    void paintsNothingWhenNothingMoves();
    void showsANewRangeAtOnce();
    void paintsTheSameInPartAndWhole_data();
    void paintsTheSameInPartAndWhole();
};

void tst_RangedScaleSliderPainting::labelsRoundNumbers_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("labels");

    QTest::newRow("three labels or more") << 335 << 400.0 << 900.0 << "400 500 600 700 800 900";
    QTest::newRow("outward") << 335 << 410.0 << 890.0 << "400 500 600 700 800 900";
    QTest::newRow("one label or more") << 150 << 410.0 << 890.0 << "250 500 750 1000";
    QTest::newRow("zero in a scale of tenths") // not 2.77556e-17
        << 435 << -0.2 << 0.4 << "-0.2 -0.1 0 0.1 0.2 0.3 0.4";
    QTest::newRow("six digits") << 235 << 0.0 << 2.0e7 << "0 1e+07 2e+07";
    QTest::newRow("as many labels as there is room for") << 535 << 0.0 << 5.0 << "0 1 2 3 4 5";
}

void tst_RangedScaleSliderPainting::labelsRoundNumbers()
{
    QFETCH(int, width);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, labels);
    Slider slider(width);

    slider.setRanges(min, max);

    QCOMPARE(slider.labels(), words(qPrintable(labels)));
}

void tst_RangedScaleSliderPainting::placesTicksAndLabels()
{
    Slider slider;
    const QImage image = slider.picture();
    PaintRecorder paper(slider);
    const QFont font(QStringLiteral("Calibri"), 10);
    const QFontMetrics metrics(font);

    // 299 pixels in five parts, cut to whole pixels.
    const QList<int> ticks{ 17, 17 + 59, 17 + 119, 17 + 179, 17 + 239, 17 + 299 };
    for (const int row : { 36, 40 })
        QCOMPARE(columnsOf(image, row, ink), ticks);
    QCOMPARE(columnsOf(image, 41, ink), QList<int>());
    const QStringList texts = words("400 500 600 700 800 900");
    QCOMPARE(paper.textList(), texts);
    for (int i = 0; i < texts.size(); ++i) {
        const PaintRecorder::Text text = paper.find(texts.at(i));
        const double middle = text.baseline.x() + metrics.horizontalAdvance(text.text) / 2.0;
        QVERIFY(qAbs(middle - ticks.at(i)) <= 1.0); // 40 pixels from x - 3 on: x + 17
        QCOMPARE(qRound(text.baseline.y()), 45 + metrics.ascent());
        QCOMPARE(text.color.rgb(), ink);
        QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
        QCOMPARE(text.font.pointSize(), 10);
    }
}

void tst_RangedScaleSliderPainting::countsTheMarginsOffTheScale()
{
    Slider slider;

    slider.setSideMargins(25); // 249 pixels in five parts

    QCOMPARE(columnsOf(slider.picture(), 38, ink),
             QList<int>({ 42, 42 + 49, 42 + 99, 42 + 149, 42 + 199, 42 + 249 }));
}

void tst_RangedScaleSliderPainting::drawsTheTrackBetweenTheMargins()
{
    Slider slider;
    slider.setSideMargins(20);

    const QImage image = slider.picture();

    QCOMPARE(image.pixel(18, 17), QColor(Qt::black).rgb());
    QCOMPARE(image.pixel(21, 17), track);
    QCOMPARE(image.pixel(313, 17), track);
    QCOMPARE(image.pixel(316, 17), QColor(Qt::black).rgb());
    QCOMPARE(image.pixel(100, 1), track);
    QCOMPARE(image.pixel(100, 34), track);
    QVERIFY(image.pixel(20, 0) != track); // a round corner
}

void tst_RangedScaleSliderPainting::placesTheHandles()
{
    Slider slider;
    slider.setCurrentStartValue(501.5, false); // 60.9: cut to 60

    const QImage image = slider.picture();

    for (const int left : { 60, 180 }) {
        QCOMPARE(image.pixel(left - 2, 17), track);
        QCOMPARE(image.pixel(left + 1, 17), red);
        QCOMPARE(image.pixel(left + 34, 17), red);
        QCOMPARE(image.pixel(left + 37, 17), track);
        QVERIFY(image.pixel(left, 0) != red); // a round corner
    }
}

void tst_RangedScaleSliderPainting::laysTheStopOverTheStart()
{
    Slider slider;
    MouseHand hand(slider);
    slider.setCurrentStopValue(530.0, false); // 78 to 113, over 60 to 95

    hand.move(QPoint(65, 17)); // lights the start

    const QImage image = slider.picture();
    QCOMPARE(image.pixel(70, 17), orange);
    QCOMPARE(image.pixel(90, 17), red);
}

void tst_RangedScaleSliderPainting::colorsTheHandleUnderTheMouse()
{
    Slider slider;
    MouseHand hand(slider);

    hand.move(onStart);
    QCOMPARE(slider.startColor(), orange);
    QCOMPARE(slider.stopColor(), red);

    hand.move(onStop);
    QCOMPARE(slider.startColor(), red);
    QCOMPARE(slider.stopColor(), orange);

    hand.move(QPoint(180, 17)); // the edge is outside
    QCOMPARE(slider.stopColor(), red);

    hand.move(onStop);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&slider, &leave);
    QCOMPARE(slider.stopColor(), red);
}

void tst_RangedScaleSliderPainting::staysLitInTheHand()
{
    Slider slider;
    MouseHand hand(slider);

    hand.press(onStop); // without a move before
    QCOMPARE(slider.stopColor(), orange);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&slider, &leave);
    hand.move(QPoint(190, 59));
    QCOMPARE(slider.stopColor(), orange);

    hand.release(onStop); // it was not lit before the press
    QCOMPARE(slider.stopColor(), red);

    hand.move(onStop);
    hand.press(onStop);
    QApplication::sendEvent(&slider, &leave);
    hand.release(onStop);
    QCOMPARE(slider.stopColor(), orange);
}

void tst_RangedScaleSliderPainting::endsTheHoverWithAReleaseElsewhere()
{
    Slider slider;
    MouseHand hand(slider);
    hand.move(onStart);

    hand.press(onStart);
    hand.release(onStart);
    QCOMPARE(slider.startColor(), orange);

    hand.press(onStart);
    hand.release(QPoint(70, 50));
    QCOMPARE(slider.startColor(), red);
}

void tst_RangedScaleSliderPainting::showsFixedAndDisabledHandlesGrey()
{
    Slider slider;
    MouseHand hand(slider);

    slider.setFixedStart(true, 500.0);
    hand.move(onStart);
    QCOMPARE(slider.startColor(), grey);
    QCOMPARE(slider.stopColor(), red);

    slider.setFixedStop(true, 700.0);
    QCOMPARE(slider.stopColor(), grey);

    slider.setFixedStart(false, 500.0);
    slider.setFixedStop(false, 700.0);
    QCOMPARE(slider.startColor(), orange); // the mouse is still there
    QCOMPARE(slider.stopColor(), red);

    slider.setEnabled(false);
    QCOMPARE(slider.startColor(), grey);
    QCOMPARE(slider.stopColor(), grey);
}

void tst_RangedScaleSliderPainting::marksTheHandles()
{
    Slider slider;

    const QImage image = slider.picture();

    // Two pixels wide at left + 17, from 30 to the edge at 35.
    for (const int left : { 60, 180 }) {
        for (int y = 30; y <= 34; ++y) {
            QCOMPARE(image.pixel(left + 16, y), white);
            QCOMPARE(image.pixel(left + 17, y), white);
        }
        QCOMPARE(image.pixel(left + 14, 32), red);
        QCOMPARE(image.pixel(left + 20, 32), red);
        QCOMPARE(image.pixel(left + 17, 27), red);
    }
}

void tst_RangedScaleSliderPainting::showsNoLabelsWithoutAScale()
{
    RangedScaleSlider slider(nullptr);
    slider.resize(335, 60);

    QCOMPARE(PaintRecorder(slider).textList(), QStringList());
    const QImage image = slider.grab().toImage();
    QCOMPARE(columnsOf(image, 38, ink), QList<int>());
    QCOMPARE(image.pixel(10, 17), red);
    QCOMPARE(image.pixel(200, 17), track);
}

void tst_RangedScaleSliderPainting::repaintsOnlyWhereAHandleMoves()
{
    Slider slider;
    MouseHand hand(slider);
    hand.move(onStart);
    hand.press(onStart);
    RepaintCounter counter(slider);
    slider.painted = QRegion();

    hand.move(onStart + QPoint(7, 0)); // from 60 to 67

    QCOMPARE(counter.taken(), 1);
    QVERIFY(slider.painted.boundingRect().contains(QRect(60, 0, 43, 36)));
    QVERIFY(QRect(57, 0, 50, 39).contains(slider.painted.boundingRect()));
    QCOMPARE(slider.picture().pixel(61, 17), track);
}

void tst_RangedScaleSliderPainting::paintsNothingWhenNothingMoves()
{
    Slider slider;
    MouseHand hand(slider);
    RepaintCounter counter(slider);
    slider.grab();
    counter.taken();

    slider.setCurrentStartValue(500.5, false); // the same pixel
    slider.setNudge(3.0);
    hand.move(QPoint(130, 17));
    hand.move(QPoint(140, 17));

    QCOMPARE(counter.taken(), 0);
}

void tst_RangedScaleSliderPainting::showsANewRangeAtOnce()
{
    Slider slider;
    slider.picture();
    slider.painted = QRegion();
    RepaintCounter counter(slider);

    slider.setStopRange(400.0, 1000.0);        // six parts instead of five
    slider.setCurrentStartValue(525.0, false); // 125 of 600, 300 pixels: 62.5

    QCOMPARE(counter.taken(), 1);
    QCOMPARE(slider.painted.boundingRect(), slider.rect());
    QCOMPARE(slider.labels(), words("400 500 600 700 800 900 1000"));
    QCOMPARE(columnsOf(slider.picture(), 38, ink).size(), 7);
    QCOMPARE(HandleProbe::handleLeft(slider), 62);
}

void tst_RangedScaleSliderPainting::paintsTheSameInPartAndWhole_data()
{
    QTest::addColumn<double>("ratio");

    QTest::newRow("one") << 1.0;
    QTest::newRow("one and a half") << 1.5;
    QTest::newRow("two") << 2.0;
}

void tst_RangedScaleSliderPainting::paintsTheSameInPartAndWhole()
{
    QFETCH(double, ratio);
    Slider kept;
    Slider fresh;
    MouseHand hand(kept);
    QImage image = blank(kept, ratio, Qt::black);
    paintOnto(image, kept);
    hand.press(onStart);

    // A step of a drag over the kept picture, only where the widget asks for it.
    for (const int x : { 80, 97, 91 }) {
        kept.painted = QRegion();
        RepaintCounter counter(kept);
        hand.move(QPoint(x, 17));
        counter.taken();
        paintOnto(image, kept, kept.painted);
    }
    hand.release(QPoint(91, 17));
    kept.painted = QRegion();
    QApplication::processEvents();
    paintOnto(image, kept, QRect(0, 0, 335, 40));

    fresh.setCurrentStartValue(fresh.accordingValue(81), false);
    QImage whole = blank(fresh, ratio, Qt::black);
    paintOnto(whole, fresh);
    QCOMPARE(image, whole);
    const auto pixel = [&whole, ratio](double x, double y) {
        return whole.pixel(int(x * ratio), int(y * ratio));
    };
    QCOMPARE(pixel(90.0, 17.5), red);
    QCOMPARE(pixel(97.9, 32.0), white);
    QCOMPARE(pixel(150.0, 17.5), track);
    QCOMPARE(pixel(10.0, 38.0), QColor(Qt::black).rgb());
    QVERIFY(columnsOf(whole, int(38 * ratio), ink).size() >= 6);
}

PELORIN_TEST_MAIN(tst_RangedScaleSliderPainting)
#include "tst_rangedscalesliderpainting.moc"
