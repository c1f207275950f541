#include "Pelorin/signalviews/SignalGraph.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QImage>
#include <QLoggingCategory>

#include <limits>

namespace {

constexpr QRgb ground = 0xFFFFFFFF;
constexpr QRgb ink = 0xFF444444;
constexpr QRgb red = 0xFF87212E;
constexpr int graphWidth = 246; // 200 pixels for the curve, less one

using Samples = QVector<short>;

/// A graph of a known size, cleared if it is given samples.
class Graph : public SignalGraph
{
public:
    Graph()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(ground));
        setPalette(palette);
        resize(graphWidth, height());
    }

    explicit Graph(const Samples &samples)
        : Graph()
    {
        clearData();
        insertData(samples, 0, samples.size());
    }

    QImage picture() { return grab().toImage(); }
    QStringList labels() { return PaintRecorder(*this).textList(); }

    /// The y of the zero line, read at its right end; -1 without one.
    int zeroLine()
    {
        clearData(); // the curve would lie over it
        const QImage image = picture();
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(graphWidth - 2, y) == ink)
                return y;
        }
        return -1;
    }

    /// The rows with the curve in column \a x.
    QList<int> curveAt(int x)
    {
        const QImage image = picture();
        QList<int> rows;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) == red)
                rows << y;
        }
        return rows;
    }
};

/// Keeps the log of paints quiet in a test that is about something else.
class Quiet
{
public:
    Quiet() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }
    ~Quiet() { QLoggingCategory::setFilterRules(QString()); }
};

} // namespace

class tst_SignalGraph : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoSignalsAndSlots();
    void startsWithASine();
    void keepsTheExtremesWhenCleared();
    void takesNewExtremesOnceItWasEmpty();
    void widensItsExtremes();
    void insertsBetweenWhatIsThere();
    void ignoresAWrongPlaceOrCount_data();
    void ignoresAWrongPlaceOrCount();
    void placesTheZeroLine_data();
    void placesTheZeroLine();
    void drawsTheAxisAndTheExtremes();
    void fitsTheCurveToTheWidth();
    void drawsNoCurveOfOneSample();
    void livesWithEqualSamples_data();
    void livesWithEqualSamples();
    void livesInANarrowWidget_data();
    void livesInANarrowWidget();
    void logsEachPoint();
    void logsNoZeroLineThatIsNotDrawn();
    void logsNothingThatIsFilteredOut();
    void waitsForAnUpdate();
};

void tst_SignalGraph::hasNoSignalsAndSlots()
{
    QCOMPARE(SignalGraph::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(SignalGraph::staticMetaObject), QStringList());
    const SignalGraph graph;
    QCOMPARE(graph.minimumHeight(), 200);
    QCOMPARE(graph.maximumHeight(), 200);
    QCOMPARE(graph.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(graph.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_SignalGraph::startsWithASine()
{
    const Quiet quiet;
    Graph graph;

    QVERIFY(graph.hasData());
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("10000"), QStringLiteral("-10000") }));
    // Half a period is 31 samples of 314: after a quarter the curve is at its top.
    const int quarter = 46 + 15 * 199 / 314;
    QVERIFY(!graph.curveAt(quarter).isEmpty());
    QVERIFY(graph.curveAt(quarter).first() < 8);
    QVERIFY(graph.zeroLine() >= 0);
}

void tst_SignalGraph::keepsTheExtremesWhenCleared()
{
    const Quiet quiet;
    Graph graph;

    graph.clearData();

    QVERIFY(!graph.hasData());
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("10000"), QStringLiteral("-10000") }));
    QVERIFY(graph.zeroLine() >= 0);
    for (int x = 46; x < graphWidth; ++x)
        QVERIFY(graph.curveAt(x).isEmpty());
}

void tst_SignalGraph::takesNewExtremesOnceItWasEmpty()
{
    const Quiet quiet;
    Graph graph;
    graph.clearData();

    graph.insertData({ 5, 9, -3 }, 0, 3);

    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("9"), QStringLiteral("-3") }));
}

void tst_SignalGraph::widensItsExtremes()
{
    const Quiet quiet;
    Graph graph({ 5, 9, -3 });

    graph.insertData({ 7, 8 }, 3, 2);
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("9"), QStringLiteral("-3") }));

    const short lowest = std::numeric_limits<short>::min();
    const short highest = std::numeric_limits<short>::max();
    graph.insertData({ lowest, highest }, 0, 2);
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("32767"), QStringLiteral("-32768") }));
}

void tst_SignalGraph::insertsBetweenWhatIsThere()
{
    const Quiet quiet;
    Graph graph({ 0, 0, 0, 0, 0, 100, 100, 100, 100, 100 });

    graph.insertData({ -100, -100, -100, -100, -100 }, 5, 5);

    // Thirds: zero, the lower end, the upper end.
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("100"), QStringLiteral("-100") }));
    QVERIFY(qAbs(graph.curveAt(46 + 30).value(0) - 100) <= 2);
    QVERIFY(graph.curveAt(46 + 95).value(0) > 190);
    QVERIFY(graph.curveAt(46 + 160).value(0) < 8);
}

void tst_SignalGraph::ignoresAWrongPlaceOrCount_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<unsigned int>("position");
    QTest::addColumn<int>("count");

    QTest::newRow("behind the end") << Samples{ 1, 2 } << 4u << 2;
    QTest::newRow("far behind the end") << Samples{ 1, 2 } << 4000000000u << 2;
    QTest::newRow("count too small") << Samples{ 1, 2 } << 0u << 1;
    QTest::newRow("count too large") << Samples{ 1, 2 } << 0u << 3;
    QTest::newRow("count of nothing") << Samples() << 0u << 0;
    QTest::newRow("negative count") << Samples() << 0u << -1;
    QTest::newRow("nothing, with a count") << Samples() << 0u << 1;
}

void tst_SignalGraph::ignoresAWrongPlaceOrCount()
{
    QFETCH(Samples, samples);
    QFETCH(unsigned int, position);
    QFETCH(int, count);
    const Quiet quiet;
    Graph graph({ -20, 0, 20 });
    const QImage before = graph.picture();

    graph.insertData(samples, position, count);
    QCOMPARE(graph.picture(), before);

    graph.clearData();
    graph.insertData(samples, position + 1, count); // behind the end of an empty one
    QVERIFY(!graph.hasData());
    const QStringList extremes = samples.isEmpty()
                                     ? QStringList{ QStringLiteral("20"), QStringLiteral("-20") }
                                     : QStringList{ QStringLiteral("1"), QStringLiteral("1") };
    QCOMPARE(graph.labels(), extremes); // they are set by the first sample nevertheless
}

void tst_SignalGraph::placesTheZeroLine_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<int>("y");

    // 200 pixels, less three, are 197 for the whole range.
    QTest::newRow("in the middle") << Samples{ -100, 100 } << 100; // 98.5 rounded, and 1
    QTest::newRow("a quarter down") << Samples{ -300, 100 } << 50; // 49.25 rounded, and 1
    QTest::newRow("at the foot") << Samples{ 0, 100 } << 198;
    QTest::newRow("at the top") << Samples{ -100, 0 } << 1;
    QTest::newRow("all above") << Samples{ 1, 100 } << -1;
    QTest::newRow("all below") << Samples{ -100, -1 } << -1;
}

void tst_SignalGraph::placesTheZeroLine()
{
    QFETCH(Samples, samples);
    const Quiet quiet;
    Graph graph(samples);

    QTEST(graph.zeroLine(), "y");
}

void tst_SignalGraph::drawsTheAxisAndTheExtremes()
{
    const Quiet quiet;
    Graph graph({ -100, 100 });
    graph.clearData(); // the curve would lie over the foot of the axis

    const QImage image = graph.picture();
    for (const int y : { 0, 50, 197, 198 })
        QCOMPARE(image.pixel(45, y), ink);
    QCOMPARE(image.pixel(45, 199), ground);
    QCOMPARE(image.pixel(44, 60), ground);

    const PaintRecorder paper(graph);
    const QFontMetrics metrics(QFont(QStringLiteral("Calibri"), 10));
    for (const char *text : { "100", "-100" }) {
        const PaintRecorder::Text found = paper.find(QLatin1String(text));
        QCOMPARE(found.font.family(), QStringLiteral("Calibri"));
        QCOMPARE(found.color.rgb(), ink);
        const double right = found.baseline.x() + metrics.horizontalAdvance(found.text);
        QVERIFY(qAbs(right - 42.0) <= 1.0);
    }
    QVERIFY(paper.find(QStringLiteral("100")).baseline.y() <= 15.0);
    QVERIFY(paper.find(QStringLiteral("-100")).baseline.y() > 183.0);
}

void tst_SignalGraph::fitsTheCurveToTheWidth()
{
    const Quiet quiet;
    // Two samples: the second one stands in the middle, and nothing behind it.
    Graph graph({ -100, 100 });

    QVERIFY(graph.curveAt(47).value(0) > 190);
    QVERIFY(graph.curveAt(46 + 98).value(0) < 8);
    QCOMPARE(graph.curveAt(46 + 104), QList<int>());

    Graph many(Samples(199, 0));
    many.insertData({ 100, -100 }, 199, 2);
    QVERIFY(!many.curveAt(46 + 180).isEmpty());
}

void tst_SignalGraph::drawsNoCurveOfOneSample()
{
    const Quiet quiet;
    Graph graph(Samples{ 7 });

    QVERIFY(graph.hasData());
    for (int x = 46; x < graphWidth; ++x)
        QVERIFY(graph.curveAt(x).isEmpty());
    QCOMPARE(graph.labels(), (QStringList{ QStringLiteral("7"), QStringLiteral("7") }));
}

void tst_SignalGraph::livesWithEqualSamples_data()
{
    QTest::addColumn<short>("value");

    QTest::newRow("zero") << short(0);
    QTest::newRow("above") << short(500);
    QTest::newRow("below") << short(-500);
    QTest::newRow("lowest") << std::numeric_limits<short>::min();
}

void tst_SignalGraph::livesWithEqualSamples()
{
    QFETCH(short, value);
    const Quiet quiet;
    Graph graph(Samples(50, value));

    // Without an extent, the curve lies in the middle.
    QVERIFY(qAbs(graph.curveAt(100).value(0) - 99) <= 2);
}

void tst_SignalGraph::livesInANarrowWidget_data()
{
    QTest::addColumn<int>("width");

    for (const int width : { 1, 45, 46, 47, 48, 49 })
        QTest::addRow("%d pixels", width) << width;
}

void tst_SignalGraph::livesInANarrowWidget()
{
    QFETCH(int, width);
    const Quiet quiet;
    Graph graph;

    graph.resize(width, 200);

    QCOMPARE(graph.picture().width(), width);
}

void tst_SignalGraph::logsEachPoint()
{
    Graph graph({ -100, 100 });
    expectMessage(QtDebugMsg, QStringLiteral("MID LINE: 100"));
    expectMessage(QtDebugMsg, QStringLiteral("X DENSITY: 0.0100503")); // 2 / 199
    expectMessage(QtDebugMsg, QStringLiteral("Y DENSITY: 1.01523"));   // 200 / 197
    expectMessage(QtDebugMsg, QStringLiteral("QPoint(46,200)"));       // 101 + 98.5 rounded
    expectMessage(QtDebugMsg, QStringLiteral("QPoint(146,3)"));        // 99.5 rounded, 101 - 98.5

    graph.picture();

    QCOMPARE(pendingMessages(), 0);
}

void tst_SignalGraph::logsNoZeroLineThatIsNotDrawn()
{
    Graph graph(Samples{ 7 });

    graph.picture(); // no message is expected

    QCOMPARE(pendingMessages(), 0);
}

void tst_SignalGraph::logsNothingThatIsFilteredOut()
{
    const Quiet quiet;
    Graph graph({ -100, 100 });

    graph.picture();

    QCOMPARE(pendingMessages(), 0);
}

void tst_SignalGraph::waitsForAnUpdate()
{
    const Quiet quiet;
    Graph graph;
    graph.show();
    RepaintCounter repaints(graph);

    graph.clearData();
    graph.insertData({ 1, 2, 3 }, 0, 3);
    QCOMPARE(repaints.taken(), 0);

    graph.update();
    QCOMPARE(repaints.taken(), 1);
}

PELORIN_TEST_MAIN(tst_SignalGraph)
#include "tst_signalgraph.moc"
