#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/PartialPaint.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>
#include <QPaintEvent>

namespace {

using PartialPaint::blank;
using PartialPaint::paintOnto;

constexpr QRgb track = 0xFFC5C6C6;
constexpr QRgb red = 0xFF87212E;
constexpr QRgb orange = 0xFFED6E00;
constexpr QRgb grey = 0xFFA6A6A6;
constexpr QRgb ink = 0xFF444444;
constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb ground = 0xFFFFFFFF;

/// A shown slider on a white ground that remembers what of it was repainted.
class Slider : public ScaleSliderNG
{
public:
    explicit Slider(ScaleType type = ScaleLinear, Qt::Orientation orientation = Qt::Horizontal,
                    int length = 1024)
        : ScaleSliderNG(orientation, type, nullptr)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(ground));
        setPalette(palette);
        setLength(length);
        show();
    }

    void setLength(int length)
    {
        if (orientation() == Qt::Horizontal)
            resize(length, height());
        else
            resize(width(), length);
    }

    int labelHeight() const { return QFontMetrics(font()).height(); }
    int labelWidth() const { return 7 * QFontMetrics(font()).horizontalAdvance(QLatin1Char('Q')); }

    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        ScaleSliderNG::paintEvent(event);
    }
};

QImage picture(QWidget &widget)
{
    return widget.grab().toImage();
}

/// What stands between the two end labels of a scale.
QStringList inner(QStringList labels)
{
    labels.removeFirst();
    labels.removeLast();
    return labels;
}

QList<double> numbers(const QStringList &texts)
{
    QList<double> result;
    for (const QString &text : texts)
        result << text.toDouble();
    return result;
}

/// The x at which the row \a y of \a image has ink.
QList<int> inkAlong(const QImage &image, int y)
{
    QList<int> result;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == ink)
            result << x;
    }
    return result;
}

} // namespace

class tst_ScaleSliderNGPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fixesItsThickness_data();
    void fixesItsThickness();
    void growsAlongTheNewDirectionWhenTurned();
    void keepsTheOldSizesUntilTheFirstShow();

    void dividesAContinuousScale_data();
    void dividesAContinuousScale();
    void labelsASquareRootScale();
    void formatsEndAndInnerLabels();
    void survivesAbsurdLabelSettings();
    void keepsLabelDigitsForTheNextLayout();
    void givesUpLabelsThatTouch();
    void comparesWithTheCollapsedNeighbour();
    void dropsAStepOnTheSamePlace();
    void drawsATickForEachStep();
    void keepsTheLabelsOfAnUnknownType();

    void placesHorizontalLabels();
    void placesVerticalLabels();
    void keepsTallVerticalLabelsInside();
    void movesTheHandleAlongItsTravel_data();
    void movesTheHandleAlongItsTravel();
    void colorsTheHandleByItsState();
    void marksTheHandleNextToTheTicks();
    void liftsTheHandleInUse();
    void hidesTheHandleWhenDisabled();
    void leavesScaleAndTicksOut();
    void drawsTheFrameOverTheHandles();
    void paintsTheBackgroundOfTheSheet();
    void usesTheSmallSize();
    void keepsSideMarginsFree();

    void repaintsOnlyWhereTheHandleMoves();
    void paintsNothingWhenNothingMoves();
    void paintsTheSameInPartAndWhole_data();
    void paintsTheSameInPartAndWhole();
};

void tst_ScaleSliderNGPainting::fixesItsThickness_data()
{
    QTest::addColumn<bool>("small");
    QTest::addColumn<int>("bands");

    QTest::newRow("normal") << false << 35 + 5 + 2 + 1;
    QTest::newRow("small") << true << 18 + 2 + 2 + 1;
}

void tst_ScaleSliderNGPainting::fixesItsThickness()
{
    QFETCH(bool, small);
    QFETCH(int, bands);
    ScaleSliderNG flat(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    ScaleSliderNG upright(Qt::Vertical, ScaleSliderNG::ScaleLinear, nullptr);
    for (auto *slider : { &flat, &upright }) {
        slider->setSliderSize(small, true, false);
        slider->show();
    }
    const QFontMetrics metrics(QFont(QStringLiteral("Calibri"), small ? 6 : 10));

    QCOMPARE(flat.minimumHeight(), bands + metrics.height());
    QCOMPARE(flat.maximumHeight(), flat.minimumHeight());
    QCOMPARE(flat.minimumWidth(), 150);
    QCOMPARE(flat.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(flat.sizeHint(), QSize(1024, flat.minimumHeight()));
    QCOMPARE(flat.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(flat.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

    QCOMPARE(upright.minimumWidth(), bands + 7 * metrics.horizontalAdvance(QLatin1Char('Q')));
    QCOMPARE(upright.maximumWidth(), upright.minimumWidth());
    QCOMPARE(upright.minimumHeight(), 150);
    QCOMPARE(upright.maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(upright.sizeHint(), QSize(upright.minimumWidth(), 1024));
    QCOMPARE(upright.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(upright.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void tst_ScaleSliderNGPainting::growsAlongTheNewDirectionWhenTurned()
{
    Slider slider;

    slider.setOrientation(Qt::Vertical);
    slider.resize(slider.width(), 700);
    QCOMPARE(slider.height(), 700);
    QCOMPARE(slider.width(), 43 + slider.labelWidth());

    slider.setMaximumHeight(500);
    slider.setOrientation(Qt::Vertical); // not turned: the application's own limit holds
    QCOMPARE(slider.maximumHeight(), 500);
}

void tst_ScaleSliderNGPainting::keepsTheOldSizesUntilTheFirstShow()
{
    ScaleSliderNG slider(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    const int normal = slider.minimumHeight();

    slider.setSliderSize(true, true, false);
    QCOMPARE(slider.minimumHeight(), normal);

    slider.show();
    QVERIFY(slider.minimumHeight() < normal);

    const int small = slider.minimumHeight();
    slider.setSliderSize(false, true, false);
    slider.hide();
    slider.show(); // only the first show lays out anew
    QCOMPARE(slider.minimumHeight(), small);
}

void tst_ScaleSliderNGPainting::dividesAContinuousScale_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("available");
    QTest::addColumn<int>("maxLabels");
    QTest::addColumn<int>("divisions");

    for (const int orientation : { int(Qt::Horizontal), int(Qt::Vertical) }) {
        const char *name = orientation == Qt::Horizontal ? "horizontal" : "vertical";
        const int rows[][3] = { { 3, 10, 1 },  { 4, 10, 4 },   { 4, 3, 3 },
                                { 5, 10, 5 },  { 6, 10, 5 },   { 8, 10, 5 },
                                { 8, 5, 5 },   { 8, 7, 5 },    { 8, 4, 4 },
                                { 10, 10, 5 }, { 11, 10, 10 }, { 20, 10, 10 },
                                { 20, 7, 7 },  { 20, 3, 3 },   { 20, 2, 1 },
                                { 20, 0, 1 },  { 20, -9, 1 },  { 20, 2147483647, 10 } };
        for (const auto &row : rows) {
            if (orientation == Qt::Vertical && row[0] < 8)
                continue; // a vertical slider is never so short
            QTest::addRow("%s, room for %d, at most %d", name, row[0], row[1])
                << orientation << row[0] << row[1] << row[2];
        }
    }
}

void tst_ScaleSliderNGPainting::dividesAContinuousScale()
{
    QFETCH(int, orientation);
    QFETCH(int, available);
    QFETCH(int, maxLabels);
    QFETCH(int, divisions);
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Orientation(orientation));
    slider.setMaxLabels(maxLabels);
    slider.setLength(200); // another one than the next
    const int each = orientation == Qt::Horizontal ? slider.labelWidth() : slider.labelHeight();
    QVERIFY(available * each >= slider.minimumSize().width() || orientation == Qt::Vertical);

    slider.setLength(available * each + each / 2);

    QList<double> expected;
    for (int i = 1; i < divisions; ++i)
        expected << std::floor(i * 1000.0 / divisions + 0.5) / 10.0;
    const QStringList labels = PaintRecorder(slider).textList();
    QCOMPARE(labels.first(), QStringLiteral("0"));
    QCOMPARE(labels.last(), QStringLiteral("100"));
    QCOMPARE(numbers(inner(labels)), expected);
}

void tst_ScaleSliderNGPainting::labelsASquareRootScale()
{
    Slider slider(ScaleSliderNG::ScaleSqrt);

    const QStringList expected =
        QStringLiteral("0 1.0 4.0 9.0 16.0 25.0 36.0 49.0 64.0 81.0 100").split(QLatin1Char(' '));
    QCOMPARE(PaintRecorder(slider).textList(), expected);
}

void tst_ScaleSliderNGPainting::formatsEndAndInnerLabels()
{
    Slider slider;
    slider.setRange(-1.25, 1.25);
    slider.setLabelDecimalDigits(2);
    slider.setLabelRoundingDigits(0);
    slider.setMaxLabels(5);

    slider.setLength(1000);

    QCOMPARE(PaintRecorder(slider).textList(),
             QStringLiteral("-1.25 -1 0 0 1 1.25").split(QLatin1Char(' ')));
    QCOMPARE(slider.labelDecimalDigits(), 2);
    QCOMPARE(slider.labelRoundingDigits(), 0);
}

void tst_ScaleSliderNGPainting::survivesAbsurdLabelSettings()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
        for (const int number : { largest, smallest, 0, -1 }) {
            Slider slider(ScaleSliderNG::ScaleSqrtSteps, orientation, 300);
            slider.setLabelDigits(number);
            slider.setLabelDecimalDigits(number);
            slider.setLabelRoundingDigits(number);
            slider.setValuePrecision(number);
            slider.setScaleType(ScaleSliderNG::ScaleSqrt);
            slider.setOrientation(orientation);
            picture(slider);

            QCOMPARE(slider.labelDigits(), number);
            slider.setLabelDigits(7);
            slider.setLabelDecimalDigits(0);
            slider.setOrientation(orientation);
            QCOMPARE(PaintRecorder(slider).textList().first(), QStringLiteral("0"));
        }
    }
}

void tst_ScaleSliderNGPainting::keepsLabelDigitsForTheNextLayout()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Vertical);
    const int before = slider.width();

    slider.setLabelDigits(9);
    QCOMPARE(slider.width(), before);
    QCOMPARE(slider.labelDigits(), 9);

    slider.setOrientation(Qt::Vertical);
    QCOMPARE(slider.width(), before + slider.labelWidth() * 2 / 7);
}

void tst_ScaleSliderNGPainting::givesUpLabelsThatTouch()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.setSteps({ 0.0, 500.0, 501.0, 502.0, 999.0, 1000.0 });

    // 501 touches the label of 500 before it, 999 the one at the upper end. 502 is compared with
    // the remains of 501 alone, passes behind them, and so may touch 500.
    QCOMPARE(PaintRecorder(slider).textList(),
             QStringLiteral("0 500.0 502.0 1000").split(QLatin1Char(' ')));
}

void tst_ScaleSliderNGPainting::comparesWithTheCollapsedNeighbour()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    const QFontMetrics metrics(slider.font());
    const double travel = 1024 - 35;
    const auto width = [&metrics](const char *text) {
        return metrics.horizontalAdvance(QLatin1String(text)) + 2;
    };
    // The first two steps lie so near to 0 that both would touch its label, which covers the pixels
    // up to its right edge. The first is given up and shrinks to its own left edge; the second,
    // whose label begins to the right of that, is compared with the shrunken one alone and stays.
    const double perPixel = 1000.0 / travel;
    const double first = 4.0 * perPixel;
    const double second = 8.0 * perPixel;
    QVERIFY(17 + 8 - width("8.1") / 2 <= 17 - width("0") / 2 + width("0"));
    slider.setSteps({ 0.0, first, second, 1000.0 });

    const QStringList labels = PaintRecorder(slider).textList();

    QCOMPARE(labels.size(), 3);
    QCOMPARE(labels.at(1), QString::number(second, 'f', 1));
}

void tst_ScaleSliderNGPainting::dropsAStepOnTheSamePlace()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.setLabelRoundingDigits(4);
    slider.setSteps({ 0.0, 50.0, 50.0001, 100.0 });

    QCOMPARE(PaintRecorder(slider).textList(),
             QStringLiteral("0 50.0000 100").split(QLatin1Char(' ')));
    const QList<int> ticks = inkAlong(picture(slider), 38);
    QCOMPARE(ticks.size(), 3);
}

void tst_ScaleSliderNGPainting::drawsATickForEachStep()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps, Qt::Horizontal, 1035); // 10 pixels for each 1 %
    slider.setSteps({ 0.0, 50.0, 50.5, 100.0 });
    slider.setValue0(100.0);
    const QImage image = picture(slider);

    // The tick of 50.5 has lost its label and is three pixels shorter than the others.
    QCOMPARE(inkAlong(image, 36), QList<int>({ 17, 517, 522, 1017 }));
    QCOMPARE(inkAlong(image, 38), QList<int>({ 17, 517, 522, 1017 }));
    QCOMPARE(inkAlong(image, 39), QList<int>({ 17, 517, 1017 }));
    QCOMPARE(inkAlong(image, 41), QList<int>({ 17, 517, 1017 }));
    QCOMPARE(inkAlong(image, 35), QList<int>());
}

void tst_ScaleSliderNGPainting::keepsTheLabelsOfAnUnknownType()
{
    Slider slider;
    const QStringList before = PaintRecorder(slider).textList();

    slider.setScaleType(ScaleSliderNG::ScaleType(-1));

    QCOMPARE(PaintRecorder(slider).textList(), before);
}

void tst_ScaleSliderNGPainting::placesHorizontalLabels()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    slider.setLabelDecimalDigits(6);
    const QFontMetrics metrics(slider.font());
    const PaintRecorder paper(slider);

    const auto left = [&paper](const char *text) {
        return paper.find(QLatin1String(text)).baseline.x();
    };
    const auto width = [&metrics](const char *text) {
        return metrics.horizontalAdvance(QLatin1String(text));
    };
    // Centred under the tick at 517: the rectangle is two pixels wider than the text.
    QVERIFY(qAbs(left("50.0") + width("50.0") / 2.0 - 517.5) <= 1.0);
    QCOMPARE(qRound(paper.find(QStringLiteral("50.0")).baseline.y()), 42 + metrics.ascent());
    QCOMPARE(paper.find(QStringLiteral("50.0")).color.rgb(), ink);
    QCOMPARE(paper.find(QStringLiteral("50.0")).font.family(), QStringLiteral("Calibri"));
    QCOMPARE(paper.find(QStringLiteral("50.0")).font.pointSize(), 10);

    // The upper end is wide: it is kept inside the band, and then moved in once more.
    const int box = width("100.000000") + 2;
    const int half = box / 2;
    QVERIFY(1017 + half > 1035);
    const int inside = 1035 - box;
    const int shift = 1035 - (1017 + half);
    const double center = inside + shift + box / 2.0;
    QVERIFY(shift < -5);
    QVERIFY(qAbs(left("100.000000") + width("100.000000") / 2.0 - center) <= 1.0);

    // The lower end likewise, to the other side.
    const int lowBox = width("0.000000") + 2;
    QVERIFY(17 - lowBox / 2 < 0);
    const double lowCenter = (lowBox / 2 - 17) + lowBox / 2.0;
    QVERIFY(qAbs(left("0.000000") + width("0.000000") / 2.0 - lowCenter) <= 1.0);
}

void tst_ScaleSliderNGPainting::placesVerticalLabels()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Vertical, 1035);
    const QFontMetrics metrics(slider.font());
    const PaintRecorder paper(slider);

    const auto text = [&paper](const char *label) { return paper.find(QLatin1String(label)); };
    const auto right = [&metrics, &text](const char *label) {
        return text(label).baseline.x() + metrics.horizontalAdvance(QLatin1String(label));
    };
    // Aligned at the right of the band, the middle of the line at the tick.
    QCOMPARE(qRound(right("50.0")), slider.labelWidth());
    QCOMPARE(qRound(right("100")), slider.labelWidth());
    QCOMPARE(qRound(text("50.0").baseline.y()), 517 - slider.labelHeight() / 2 + metrics.ascent());
    QCOMPARE(qRound(text("100").baseline.y()), 17 - slider.labelHeight() / 2 + metrics.ascent());
    QCOMPARE(qRound(text("0").baseline.y()), 1017 - slider.labelHeight() / 2 + metrics.ascent());
}

void tst_ScaleSliderNGPainting::keepsTallVerticalLabelsInside()
{
    // A sheet may give the widget a font that is taller than a handle; it then rules the layout,
    // while the labels are still drawn in their own.
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Vertical, 1035);
    slider.setStyleSheet(QStringLiteral("ScaleSliderNG { font-size: 60px; }"));
    slider.setOrientation(Qt::Vertical);
    slider.resize(slider.width(), 1035);
    const int tall = slider.labelHeight();
    QVERIFY(tall > 36);
    const int ascent = QFontMetrics(QFont(QStringLiteral("Calibri"), 10)).ascent();

    const PaintRecorder paper(slider);

    QCOMPARE(qRound(paper.find(QStringLiteral("100")).baseline.y()), ascent);
    QCOMPARE(qRound(paper.find(QStringLiteral("0")).baseline.y()), 1035 - tall + ascent);
}

void tst_ScaleSliderNGPainting::movesTheHandleAlongItsTravel_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<double>("value");
    QTest::addColumn<QPoint>("near"); // the nearest and the farthest pixel wholly inside
    QTest::addColumn<QPoint>("far");

    // Twice 7 characters of labels, ticks and gaps lie left of a vertical track; x counts from the
    // track.
    QTest::newRow("horizontal, low")
        << int(Qt::Horizontal) << 0.0 << QPoint(1, 17) << QPoint(33, 17);
    QTest::newRow("horizontal, middle")
        << int(Qt::Horizontal) << 50.0 << QPoint(501, 17) << QPoint(533, 17);
    QTest::newRow("horizontal, high")
        << int(Qt::Horizontal) << 100.0 << QPoint(1001, 17) << QPoint(1033, 17);
    QTest::newRow("vertical, low")
        << int(Qt::Vertical) << 0.0 << QPoint(10, 1001) << QPoint(10, 1033);
    QTest::newRow("vertical, middle")
        << int(Qt::Vertical) << 50.0 << QPoint(10, 501) << QPoint(10, 533);
    QTest::newRow("vertical, high")
        << int(Qt::Vertical) << 100.0 << QPoint(10, 1) << QPoint(10, 33);
}

void tst_ScaleSliderNGPainting::movesTheHandleAlongItsTravel()
{
    QFETCH(int, orientation);
    QFETCH(double, value);
    QFETCH(QPoint, near);
    QFETCH(QPoint, far);
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Orientation(orientation), 1035);
    slider.setValue0(value);
    const bool horizontal = orientation == Qt::Horizontal;
    const QPoint offset = horizontal ? QPoint() : QPoint(slider.labelWidth() + 7, 0);
    const QPoint along = horizontal ? QPoint(1, 0) : QPoint(0, 1);

    const QImage image = picture(slider);

    QCOMPARE(image.pixel(near + offset), red);
    QCOMPARE(image.pixel(far + offset), red);
    for (const QPoint &beyond : { near + offset - along * 3, far + offset + along * 4 }) {
        if (image.rect().contains(beyond))
            QCOMPARE(image.pixel(beyond), track);
    }
}

void tst_ScaleSliderNGPainting::colorsTheHandleByItsState()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    MouseHand hand(slider);
    const QPoint probe(6, 17);
    QVERIFY(QTest::qWaitForWindowActive(&slider));
    slider.clearFocus();

    QCOMPARE(picture(slider).pixel(probe), red);

    hand.move(QPoint(17, 17));
    QCOMPARE(picture(slider).pixel(probe), orange);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&slider, &leave);
    QCOMPARE(picture(slider).pixel(probe), red);

    hand.press(QPoint(17, 17));
    const QColor held = picture(slider).pixel(probe); // the red at 200 of 255 over the track
    QVERIFY(qAbs(held.red() - (0x87 * 200 + 0xC5 * 55) / 255) <= 1);
    QVERIFY(qAbs(held.green() - (0x21 * 200 + 0xC6 * 55) / 255) <= 1);
    QVERIFY(qAbs(held.blue() - (0x2E * 200 + 0xC6 * 55) / 255) <= 1);

    hand.release(QPoint(17, 17)); // focus stays: the same look
    QCOMPARE(QColor(picture(slider).pixel(probe)), held);

    slider.clearFocus();
    QCOMPARE(picture(slider).pixel(probe), red);

    slider.setEnabled(false);
    QCOMPARE(picture(slider).pixel(probe), grey);
}

void tst_ScaleSliderNGPainting::marksTheHandleNextToTheTicks()
{
    Slider flat(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    flat.setValue0(50.0);
    const QImage flatImage = picture(flat);
    for (int y = 30; y <= 34; ++y)
        QCOMPARE(flatImage.pixel(517, y), white);
    QCOMPARE(flatImage.pixel(517, 27), red);

    Slider upright(ScaleSliderNG::ScaleLinear, Qt::Vertical, 1035);
    upright.setValue0(50.0);
    const QImage uprightImage = picture(upright);
    const int left = upright.labelWidth() + 7;
    for (int x = left; x <= left + 4; ++x)
        QCOMPARE(uprightImage.pixel(x, 516), white);
    QCOMPARE(uprightImage.pixel(left + 8, 516), red);
}

void tst_ScaleSliderNGPainting::liftsTheHandleInUse()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    slider.setDoubleSlider(true);
    slider.setValue0(50.0);
    slider.setValue1(52.0); // 20 pixels further: x from 500 to 534 and from 520 to 554
    MouseHand hand(slider);
    const QPoint edgeOfSecond(520, 17);
    const QPoint edgeOfFirst(534, 17);

    const QImage idle = picture(slider);
    QCOMPARE(idle.pixel(edgeOfSecond),
             red); // the first handle lies on top of the second one's edge

    hand.press(QPoint(550, 17));
    const QImage held = picture(slider);
    QVERIFY(held.pixel(edgeOfSecond) != red); // now the white outline of the second one shows
    QVERIFY(qRed(held.pixel(edgeOfSecond)) > 0xC0);
    hand.release(QPoint(550, 17));

    hand.press(QPoint(505, 17));
    const QImage other = picture(slider);
    QVERIFY(qRed(other.pixel(edgeOfFirst)) > 0xC0);
}

void tst_ScaleSliderNGPainting::hidesTheHandleWhenDisabled()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    slider.setHideHandleOnDisable(true);
    QVERIFY(slider.hideHandleOnDisable());
    slider.setValue0(50.0);
    QCOMPARE(picture(slider).pixel(505, 17), red);

    slider.setEnabled(false);

    const QImage image = picture(slider);
    QCOMPARE(image.pixel(505, 17), track);
    QCOMPARE(inkAlong(image, 38).size(), 11);
    QCOMPARE(PaintRecorder(slider).textList().size(), 11);
}

void tst_ScaleSliderNGPainting::leavesScaleAndTicksOut()
{
    Slider slider;
    const int height = slider.height();

    slider.setSliderSize(false, false, false);

    QCOMPARE(slider.height(), height);
    QCOMPARE(PaintRecorder(slider).textList(), QStringList());
    QCOMPARE(inkAlong(picture(slider), 38), QList<int>());
}

void tst_ScaleSliderNGPainting::drawsTheFrameOverTheHandles()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    slider.setValue0(50.0);
    const QImage plain = picture(slider);

    slider.setSliderSize(false, true, true);

    // The outline lies half on the first row of pixels: half of dark grey over what is there.
    const QImage framed = picture(slider);
    for (const int x : { 300, 510 }) {
        const QColor below = plain.pixel(x, 0);
        const QColor above = framed.pixel(x, 0);
        QVERIFY(below != above);
        QVERIFY(qAbs(above.red() - (below.red() + 0x80) / 2) <= 3);
        QVERIFY(qAbs(above.green() - (below.green() + 0x80) / 2) <= 3);
    }
    QCOMPARE(framed.pixel(300, 17), track);
}

void tst_ScaleSliderNGPainting::paintsTheBackgroundOfTheSheet()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    const QPoint besideTheTicks(300, 38);
    QCOMPARE(picture(slider).pixel(besideTheTicks), ground);

    slider.setStyleSheet(QStringLiteral("ScaleSliderNG { background-color: #123456; }"
                                        "ScaleSliderNG:disabled { background-color: #654321; }"));
    QCOMPARE(picture(slider).pixel(besideTheTicks), 0xFF123456u);

    slider.setEnabled(false);
    QCOMPARE(picture(slider).pixel(besideTheTicks), 0xFF654321u);
}

void tst_ScaleSliderNGPainting::usesTheSmallSize()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps, Qt::Horizontal, 1018); // 1000 pixels of travel
    slider.setSliderSize(true, true, false);
    slider.setOrientation(Qt::Horizontal);
    slider.setSteps({ 0.0, 50.0, 50.1, 100.0 });
    slider.setValue0(100.0);

    const QImage image = picture(slider);

    QCOMPARE(image.pixel(1005, 9), red);
    QCOMPARE(image.pixel(995, 9), track);
    QCOMPARE(PaintRecorder(slider).find(QStringLiteral("50.0")).font.pointSize(), 6);
    // Ticks reach from 19 to 21. A minor tick is one pixel less than none and points up to the
    // track.
    QCOMPARE(inkAlong(image, 21), QList<int>({ 9, 509, 1009 }));
    QCOMPARE(inkAlong(image, 19), QList<int>({ 9, 509, 510, 1009 }));
    QCOMPARE(inkAlong(image, 18), QList<int>({ 510 }));
}

void tst_ScaleSliderNGPainting::keepsSideMarginsFree()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1075);
    slider.setSideMargins(20);
    slider.setValue0(50.0);
    QCOMPARE(slider.sideMargins(), 20);

    const QImage image = picture(slider);

    QCOMPARE(image.pixel(15, 17), ground);
    QCOMPARE(image.pixel(1060, 17), ground);
    QCOMPARE(image.pixel(25, 17), track);
    QCOMPARE(image.pixel(521, 17), red);
    QCOMPARE(inkAlong(image, 38).at(5), 20 + 517);
}

void tst_ScaleSliderNGPainting::repaintsOnlyWhereTheHandleMoves()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
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

void tst_ScaleSliderNGPainting::paintsNothingWhenNothingMoves()
{
    Slider slider(ScaleSliderNG::ScaleLinear, Qt::Horizontal, 1035);
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    slider.setValue0(50.0);
    QCoreApplication::processEvents();
    slider.painted = QRegion();

    slider.setValue0(50.0);
    slider.changeValue0(50.0);
    MouseHand(slider).move(QPoint(300, 17));
    QCoreApplication::processEvents();
    QCOMPARE(slider.painted, QRegion());

    slider.setValue0(60.0);
    QCoreApplication::processEvents();
    QVERIFY(!slider.painted.isEmpty());
}

void tst_ScaleSliderNGPainting::paintsTheSameInPartAndWhole_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<bool>("small");
    QTest::addColumn<bool>("twoHandles");

    for (const int orientation : { int(Qt::Horizontal), int(Qt::Vertical) }) {
        for (const qreal ratio : { 1.0, 1.1, 1.25, 1.5, 1.75, 2.0 }) {
            for (const bool small : { false, true }) {
                QTest::addRow("%s, ratio %.2f, %s",
                              orientation == Qt::Horizontal ? "horizontal" : "vertical", ratio,
                              small ? "small, double" : "normal, single")
                    << orientation << ratio << small << small;
            }
        }
    }
}

void tst_ScaleSliderNGPainting::paintsTheSameInPartAndWhole()
{
    QFETCH(int, orientation);
    QFETCH(qreal, ratio);
    QFETCH(bool, small);
    QFETCH(bool, twoHandles);
    Slider slider(ScaleSliderNG::ScaleSqrt, Qt::Orientation(orientation), 403);
    slider.setSliderSize(small, true, true);
    slider.setOrientation(Qt::Orientation(orientation));
    slider.setDoubleSlider(twoHandles);
    slider.setDoubleRange(0.0, 100.0);
    QVERIFY(QTest::qWaitForWindowActive(&slider));
    QImage kept = blank(slider, ratio);
    paintOnto(kept, slider);
    QCoreApplication::processEvents();

    for (const int position : { 900, 7000, 7300, 50000, 100000, 33333, 0 }) {
        slider.painted = QRegion();
        slider.setHandlePosition0(position);
        QCoreApplication::processEvents();
        const QRegion dirty = slider.painted;
        QVERIFY(!dirty.isEmpty());
        QVERIFY(dirty.boundingRect() != slider.rect());

        paintOnto(kept, slider, dirty); // what the screen holds after a partial update
        slider.adjustSize();            // throws away all that is kept
        QImage whole = blank(slider, ratio);
        paintOnto(whole, slider);
        QCoreApplication::processEvents();

        QCOMPARE(kept, whole);
    }
}

PELORIN_TEST_MAIN(tst_ScaleSliderNGPainting)
#include "tst_scalesliderngpainting.moc"
