#include "tests/spectral/ChartProbe.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>

using QtCharts::QValueAxis;

namespace {

const QString tagStart = QStringLiteral("<div style='padding: 2px; color: #FFFFFF; "
                                        "background-color: rgba(64, 64, 64, 0.7);'>");
const QString wavelengthStart =
    QStringLiteral("<div style='padding: 2px; color: #FFFFFF; background-color: "
                   "rgba(64, 64, 64, 0.7); border: solid 1px; border-radius: 5px;'>&nbsp;");
const QString powerStart =
    QStringLiteral("<div style='display: inline-block; padding: 2px; color: #FFFFFF; "
                   "background-color: rgba(64, 64, 64, 0.7); border-radius: 5px;'>&nbsp;");
const QString end = QStringLiteral("&nbsp;</div>");

QFont readoutFont()
{
    return QFont(QStringLiteral("Calibri"), 9);
}

int lineHeight()
{
    return QFontMetrics(readoutFont()).height();
}

int widthOf(const QString &text)
{
    return QFontMetrics(readoutFont()).horizontalAdvance(text);
}

/// How a text item of its own tells \a html back.
QString asShown(const QString &html)
{
    QGraphicsTextItem item;
    item.setFont(readoutFont());
    item.setHtml(html);
    return item.toHtml();
}

QStringList asShown(const QStringList &htmls)
{
    QStringList result;
    for (const QString &html : htmls)
        result << asShown(html);
    return result;
}

/// A chart with a pointer over it and what it reads out.
class Readout : public ChartProbe
{
public:
    Readout()
        : hand(*viewport())
    {
        for (QGraphicsTextItem *text : itemsOf<QGraphicsTextItem>()) {
            if (text->font() == readoutFont() && !text->parentItem())
                texts << text;
        }
        for (QTimer *each : findChildren<QTimer *>()) {
            if (each->interval() == 5000)
                timer = each;
        }
    }

    /// Dyes on the chart, all their tags in one place in the middle of the plot.
    void addTag(unsigned int id, const QString &description)
    {
        tFluorophoreData described = dye(id);
        described.description = description;
        addFluorophore(described);
        setFluorophoresVisible(true);
        for (FluorophoreTagName *tag : tags()) // what changes the dyes moves all of them
            tag->setPos(tagPlace());
    }
    QPointF tagPlace() const { return plot().center(); }
    QPoint onTag() const { return (tagPlace() + QPointF(5.0, 5.0)).toPoint(); }

    QRectF plot() const { return chart()->plotArea(); }

    /// Those of the three that are shown.
    QStringList shown() const
    {
        QStringList result;
        for (const QGraphicsTextItem *text : texts) {
            if (text->isVisible())
                result << text->toHtml();
        }
        return result;
    }
    bool isShown(int text) const { return texts.at(text)->isVisible(); }

    QString plain(int text) const { return texts.at(text)->toPlainText(); }

    /// The places of all three, relative to \a pointer.
    QList<QPointF> places(QPoint pointer) const
    {
        QList<QPointF> result;
        for (const QGraphicsTextItem *text : texts)
            result << text->pos() - pointer;
        return result;
    }

    MouseHand hand;
    QList<QGraphicsTextItem *> texts;
    QTimer *timer = nullptr;
};

/// What a chart from 350 to 800 nm, 0 to 2 mW/nm and 0 to 100 mW reads at \a pointer.
QStringList coordinatesAt(const Readout &chart, QPoint pointer)
{
    const QRectF plot = chart.plot();
    const double across = (pointer.x() - plot.left()) / plot.width();
    const double up = (plot.bottom() - pointer.y()) / plot.height();
    return { wavelengthStart + QString::number(350.0 + 450.0 * across, 'f', 1)
                 + QStringLiteral("nm") + end,
             powerStart + QStringLiteral("Power output [%1mW/nm]").arg(2.0 * up, 0, 'f', 3) + end,
             powerStart + QStringLiteral("Power setpoint %1mW").arg(100.0 * up, 0, 'f', 3) + end };
}

QList<QPointF> placesToTheRight()
{
    const int h = lineHeight();
    return { QPointF(2, -(h + 4)), QPointF(10, -4), QPointF(10, h - 4) };
}

} // namespace

class tst_WavelengthChartPointer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsSilent();
    void readsCoordinatesOut();
    void namesTheUnitsOfTheAxes();
    void placesCoordinatesToTheRight();
    void flipsAllCoordinatesTogether_data();
    void flipsAllCoordinatesTogether();
    void keepsTheReadoutWhereAnAxisDoesNotReach_data();
    void keepsTheReadoutWhereAnAxisDoesNotReach();
    void hidesTheReadoutOutsideOfThePlot();

    void readsATagOut_data();
    void readsATagOut();
    void placesATagReadout_data();
    void placesATagReadout();
    void flipsATagReadoutTogether();
    void takesTheFirstTagWithADescription();
    void searchesTagsOnlyWhileDyesAreVisible();
    void readsATagOutOutsideOfThePlot();
    void hidesATagReadoutInTheMargin();
    void goesFromTagToCoordinates();
    void livesWithMarkup_data();
    void livesWithMarkup();
    void showsTooManyTablesAsText();

    void hidesTheReadoutAfterAWhile();
    void startsTheTimeAnewWithEachMove();
    void leavesTheSetpointWhenTheFocusGoes();

    void zoomsWithTheLeftButton();
    void resetsTheZoomWithTheRightButton();
    void resetsAllStepsOfAZoom();
    void takesARightClickWithoutZoom();
    void takesARightClickInADrag();
    void doesNotHoldThePointerAfterARightClick();
    void livesWithoutItsSeries();
};

void tst_WavelengthChartPointer::startsSilent()
{
    const Readout chart;

    QCOMPARE(chart.texts.size(), 3);
    QVERIFY(chart.timer);
    QVERIFY(chart.timer->isSingleShot());
    QVERIFY(!chart.timer->isActive());
    for (int i = 0; i < 3; ++i)
        QCOMPARE(chart.plain(i), QString());
}

void tst_WavelengthChartPointer::readsCoordinatesOut()
{
    Readout chart;
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);
    const QPoint pointer = chart.plot().center().toPoint();

    chart.hand.move(pointer);

    QCOMPARE(chart.shown(), asShown(coordinatesAt(chart, pointer)));
    QVERIFY(chart.timer->isActive());
    QCOMPARE(recorder.taken(), QStringList());
    for (const QGraphicsTextItem *text : chart.texts)
        QCOMPARE(text->zValue(), 100.0);
}

void tst_WavelengthChartPointer::namesTheUnitsOfTheAxes()
{
    Readout chart;
    chart.setSpectrumPowerRange(0.0, 2.0, Converter::pwrUW1);
    chart.setFilterPowerRange(0.0, 100.0, Converter::pwrW2);

    chart.hand.move(chart.plot().center().toPoint());

    QVERIFY(chart.plain(1).trimmed().endsWith(QLatin1String("uW/nm]")));
    QVERIFY(chart.plain(2).trimmed().endsWith(QLatin1Char('W')));
    QVERIFY(!chart.plain(2).contains(QLatin1String("mW")));
}

void tst_WavelengthChartPointer::placesCoordinatesToTheRight()
{
    Readout chart;
    const QPoint pointer = chart.plot().center().toPoint();

    chart.hand.move(pointer);

    QCOMPARE(chart.places(pointer), placesToTheRight());
}

void tst_WavelengthChartPointer::flipsAllCoordinatesTogether_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<bool>("flipped");

    QTest::newRow("just room for the widest") << 0 << false;
    QTest::newRow("a pixel too little") << 1 << true;
    QTest::newRow("at the edge") << 100'000 << true;
}

/// The second line is the widest.
void tst_WavelengthChartPointer::flipsAllCoordinatesTogether()
{
    QFETCH(int, missing);
    QFETCH(bool, flipped);
    Readout chart;
    chart.setSpectrumPowerRange(1.0, 1.5, Converter::pwrMW3); // as many digits everywhere,
    chart.setFilterPowerRange(10.0, 99.0, Converter::pwrMW3); // which are all of one width
    const int y = int(chart.plot().center().y());
    chart.hand.move(QPoint(int(chart.plot().center().x()), y));
    const int reach = widthOf(chart.plain(1)) + 10;
    const int plotEnd = qRound(chart.plot().right());
    const QPoint pointer(std::min(plotEnd - reach + missing, plotEnd - 1), y);

    chart.hand.move(pointer);

    const int h = lineHeight();
    const QList<QPointF> left{ QPointF(-(widthOf(chart.plain(0)) + 2), -(h + 4)),
                               QPointF(-(widthOf(chart.plain(1)) + 10), -4),
                               QPointF(-(widthOf(chart.plain(2)) + 10), h - 4) };
    QCOMPARE(widthOf(chart.plain(1)) + 10, reach);
    QVERIFY(widthOf(chart.plain(2)) + 10 < reach);
    QCOMPARE(chart.places(pointer), flipped ? left : placesToTheRight());
}

void tst_WavelengthChartPointer::keepsTheReadoutWhereAnAxisDoesNotReach_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    // The pointer is at 575 nm and 1 mW/nm.
    QTest::newRow("wavelength above") << Qt::Horizontal << 300.0 << 400.0;
    QTest::newRow("wavelength below") << Qt::Horizontal << 600.0 << 700.0;
    QTest::newRow("power above") << Qt::Vertical << -1.0 << 0.5;
    QTest::newRow("power below") << Qt::Vertical << 5.0 << 6.0;
    QTest::newRow("power axis without span") << Qt::Vertical << 0.0 << 0.0;
}

/// An application has taken the spectrum off the axis.
void tst_WavelengthChartPointer::keepsTheReadoutWhereAnAxisDoesNotReach()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(double, min);
    QFETCH(double, max);
    Readout chart;
    const QPoint pointer = chart.plot().center().toPoint();
    chart.hand.move(pointer);
    const QStringList before = chart.shown();
    chart.timer->stop();
    QCOMPARE(before.size(), 3);
    QValueAxis *const axis =
        orientation == Qt::Horizontal ? chart.wavelengthAxis() : chart.powerAxis();
    QVERIFY(chart.spectrum()->detachAxis(axis));
    axis->setRange(min, max);

    chart.hand.move(pointer + QPoint(1, 1));

    QCOMPARE(chart.shown(), before);
    QCOMPARE(chart.places(pointer), placesToTheRight());
    QVERIFY(!chart.timer->isActive());
}

void tst_WavelengthChartPointer::hidesTheReadoutOutsideOfThePlot()
{
    Readout chart;
    const QRect plot = chart.plot().toAlignedRect();
    const QList<QPoint> outside{ plot.topLeft() - QPoint(5, -20), plot.topLeft() - QPoint(-20, 5),
                                 plot.bottomLeft() + QPoint(20, 5), QPoint(-10, -10) };
    for (const QPoint &place : outside) {
        chart.hand.move(plot.center());
        QCOMPARE(chart.shown().size(), 3);

        chart.hand.move(place);

        QCOMPARE(chart.shown(), QStringList());
        QVERIFY(!chart.timer->isActive());
    }
}

void tst_WavelengthChartPointer::readsATagOut_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("lines");

    const QString fifty(50, QLatin1Char('x'));
    QTest::newRow("one line") << "A dye" << list({ "A dye" });
    QTest::newRow("two lines") << "A dye\nfor cells" << list({ "A dye", "for cells" });
    QTest::newRow("many lines") << "1\n2\n3\n4" << list({ "1", "2", "3", "4" });
    QTest::newRow("lines of Windows") << "A dye\r\nfor cells" << list({ "A dye", "for cells" });
    QTest::newRow("an empty line between") << "1\n\n3" << list({ "1", "", "3" });
    QTest::newRow("an empty first line") << "\n2" << list({ "", "2" });
    QTest::newRow("a line end alone") << "\n" << list({ "" });
    QTest::newRow("a line end behind") << "1\n" << list({ "1" });
    QTest::newRow("fifty characters") << fifty << QStringList{ fifty };
    QTest::newRow("fifty-one characters")
        << fifty + QLatin1Char('y') << QStringList{ fifty, QStringLiteral("y") };
    QTest::newRow("a long line of many") << QStringLiteral("1\n%1%1y\n3").arg(fifty)
                                         << QStringList{ QStringLiteral("1"), fifty, fifty,
                                                         QStringLiteral("y"), QStringLiteral("3") };
    QTest::newRow("markup stays markup") << "a<b>c</b>\n&lt;" << list({ "a<b>c</b>", "&lt;" });
    QTest::newRow("places of arguments") << "%1 %2\n%1" << list({ "%1 %2", "%1" });
}

void tst_WavelengthChartPointer::readsATagOut()
{
    QFETCH(QString, description);
    QFETCH(QStringList, lines);
    Readout chart;
    chart.addTag(1, description);

    chart.hand.move(chart.onTag());

    for (QString &line : lines)
        line = QStringLiteral("&nbsp;") + line + QStringLiteral("&nbsp;");
    QStringList htmls{ tagStart + lines.takeFirst() + QStringLiteral("</div>") };
    if (!lines.isEmpty())
        htmls << tagStart + lines.join(QStringLiteral("<br>")) + QStringLiteral("</div>");
    QCOMPARE(chart.shown(), asShown(htmls));
    QVERIFY(!chart.isShown(2));
    QVERIFY(chart.timer->isActive());
    QCOMPARE(chart.texts.at(0)->zValue(), 100.0);
    QCOMPARE(chart.texts.at(1)->zValue(), 100.0);
}

void tst_WavelengthChartPointer::placesATagReadout_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("reachingLine");
    QTest::addColumn<int>("gap");

    QTest::newRow("a wide title") << "A title that is wide\nbody" << 0 << 2;
    QTest::newRow("a wide body") << "title\nA body that is wide" << 1 << 10;
    // The lines of the body count as if they stood side by side.
    QTest::newRow("a high body") << "title\nline\nline\nline\nline" << 1 << 10;
}

void tst_WavelengthChartPointer::placesATagReadout()
{
    QFETCH(QString, description);
    QFETCH(int, reachingLine);
    QFETCH(int, gap);
    Readout chart;
    chart.addTag(1, description);
    chart.hand.move(chart.onTag());
    const int reach = widthOf(chart.plain(reachingLine)) + gap;
    const int plotEnd = qRound(chart.plot().right());
    const int h = lineHeight();
    for (const int missing : { 0, 1 }) {
        const QPoint pointer(plotEnd - reach + missing, 200);
        chart.tags().first()->setPos(pointer);

        chart.hand.move(pointer);

        const QList<QPointF> left{ QPointF(-(widthOf(chart.plain(0)) + 2), -(h + 4)),
                                   QPointF(-(widthOf(chart.plain(1)) + 10), -4) };
        QVERIFY(chart.isShown(0) && chart.isShown(1) && !chart.isShown(2));
        QCOMPARE(chart.places(pointer).mid(0, 2), missing ? left : placesToTheRight().mid(0, 2));
    }
}

void tst_WavelengthChartPointer::flipsATagReadoutTogether()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("title"));
    const QPoint pointer(qRound(chart.plot().right()) - 9, 200);
    chart.tags().first()->setPos(pointer);

    chart.hand.move(pointer);

    // A body without text still keeps ten pixels.
    QCOMPARE(chart.texts.at(0)->pos(),
             QPointF(pointer - QPoint(widthOf(chart.plain(0)) + 2, lineHeight() + 4)));
    QCOMPARE(chart.texts.at(1)->pos(), QPointF(pointer - QPoint(10, 4)));
}

void tst_WavelengthChartPointer::takesTheFirstTagWithADescription()
{
    Readout chart;
    chart.addTag(3, QStringLiteral("third"));
    chart.addTag(1, QString());
    chart.addTag(2, QStringLiteral("second"));

    chart.hand.move(chart.onTag());

    QCOMPARE(chart.plain(0).trimmed(), QStringLiteral("second"));
}

void tst_WavelengthChartPointer::searchesTagsOnlyWhileDyesAreVisible()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("first"));
    chart.setFluorophoresVisible(false);
    chart.tags().first()->setPos(chart.tagPlace());

    chart.hand.move(chart.onTag());

    QCOMPARE(chart.shown(), asShown(coordinatesAt(chart, chart.onTag())));
}

void tst_WavelengthChartPointer::readsATagOutOutsideOfThePlot()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("on the rainbow\nbody"));
    const QPoint onStrip(int(chart.plot().center().x()), int(chart.plot().top()) - 20);
    chart.tags().first()->setPos(onStrip);

    chart.hand.move(onStrip + QPoint(1, 1));

    QCOMPARE(chart.plain(0).trimmed(), QStringLiteral("on the rainbow"));
    QVERIFY(chart.isShown(0) && chart.isShown(1) && !chart.isShown(2));
}

void tst_WavelengthChartPointer::hidesATagReadoutInTheMargin()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("title\nbody"));
    chart.hand.move(chart.onTag());
    QCOMPARE(chart.shown().size(), 2);

    chart.hand.move(QPoint(3, 200));

    QCOMPARE(chart.shown(), QStringList());
    QVERIFY(!chart.timer->isActive());
}

void tst_WavelengthChartPointer::goesFromTagToCoordinates()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("title\nbody"));
    const QRectF tag(chart.tagPlace(), chart.tags().first()->boundingRect().size());
    const QPoint beside = tag.bottomRight().toPoint() + QPoint(2, 2);
    chart.hand.move(chart.onTag());

    chart.hand.move(beside);
    QCOMPARE(chart.shown(), asShown(coordinatesAt(chart, beside)));

    chart.hand.move(chart.onTag());
    QCOMPARE(chart.shown().size(), 2);
}

void tst_WavelengthChartPointer::livesWithMarkup_data()
{
    QTest::addColumn<QString>("description");

    QTest::newRow("tags left open") << "<table><tr><td><b>x\n</table></div></div>";
    QTest::newRow("broken entities") << "&#xFFFFFFFF; &; &#0;\n&#-1;";
    QTest::newRow("a picture that is not there") << "<img src='no:where' width='100000000'>";
    QTest::newRow("nothing but controls") << QString(QChar(0)) + QChar(8);
    QTest::newRow("half a character at the line's end")
        << QString(49, QLatin1Char('x')) + QString::fromUtf8("\xf0\x9f\x94\xac");
    QTest::newRow("very long") << QString(100'000, QLatin1Char('W'));
}

void tst_WavelengthChartPointer::livesWithMarkup()
{
    QFETCH(QString, description);
    Readout chart;
    chart.addTag(1, description);

    chart.hand.move(chart.onTag());
    chart.grab();

    QVERIFY(chart.isShown(0));
    chart.hand.move(QPoint(3, 200));
    QCOMPARE(chart.shown(), QStringList());
}

/// Qt would not come to an end with some dozens within one another.
void tst_WavelengthChartPointer::showsTooManyTablesAsText()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("< Table>x\n").repeated(8));
    chart.hand.move(chart.onTag());
    QVERIFY(!chart.plain(0).contains(QLatin1Char('<')));

    chart.addTag(1, QStringLiteral("< Table>x\n").repeated(9));
    chart.hand.move(chart.onTag());
    QCOMPARE(chart.plain(0).trimmed(), QStringLiteral("< Table>x"));
}

void tst_WavelengthChartPointer::hidesTheReadoutAfterAWhile()
{
    Readout chart;
    chart.timer->setInterval(20);

    chart.hand.move(chart.plot().center().toPoint());

    QCOMPARE(chart.shown().size(), 3);
    QTRY_COMPARE(chart.shown(), QStringList());
    chart.hand.move(chart.plot().center().toPoint());
    QCOMPARE(chart.shown().size(), 3);
}

void tst_WavelengthChartPointer::startsTheTimeAnewWithEachMove()
{
    Readout chart;
    chart.timer->setTimerType(Qt::PreciseTimer);
    chart.addTag(1, QStringLiteral("title"));
    const QPoint places[] = { chart.onTag(), chart.plot().topLeft().toPoint() + QPoint(50, 50) };
    for (const QPoint &place : places) {
        chart.hand.move(place);
        QTRY_VERIFY(chart.timer->remainingTime() < 4900);
        const int left = chart.timer->remainingTime();

        chart.hand.move(place);

        QVERIFY(chart.timer->remainingTime() > left);
    }
}

void tst_WavelengthChartPointer::leavesTheSetpointWhenTheFocusGoes()
{
    Readout chart;
    chart.hand.move(chart.plot().center().toPoint());
    QFocusEvent event(QEvent::FocusOut);

    QApplication::sendEvent(&chart, &event);

    QVERIFY(!chart.isShown(0));
    QVERIFY(!chart.isShown(1));
    QVERIFY(chart.isShown(2));
    QVERIFY(chart.timer->isActive());
}

void tst_WavelengthChartPointer::zoomsWithTheLeftButton()
{
    Readout chart;
    chart.addTag(1, QStringLiteral("title"));
    const QPointF tag = chart.tags().first()->pos();
    const QImage strip = chart.strip()->pixmap().toImage();
    const QRectF plot = chart.plot();
    const QPoint from = plot.topLeft().toPoint() + QPoint(qRound(plot.width() / 4.0), 50);
    const QPoint to = from + QPoint(qRound(plot.width() / 2.0), 100);

    chart.hand.press(from);
    chart.hand.move((from + to) / 2);
    chart.hand.move(to);
    QVERIFY(chart.isShown(0)); // reads out while it drags
    QVERIFY(!chart.chart()->isZoomed());
    chart.hand.release(to);

    QVERIFY(chart.chart()->isZoomed());
    QVERIFY(qAbs(chart.wavelengthAxis()->min() - 462.5) < 2.0);
    QVERIFY(qAbs(chart.wavelengthAxis()->max() - 687.5) < 2.0);
    QCOMPARE(chart.powerAxis()->max(), 2.0);
    QVERIFY(chart.zoomProxy()->isVisible());
    QVERIFY(chart.strip()->pixmap().toImage() != strip);
    QVERIFY(chart.tags().first()->pos() != tag);
    QCOMPARE(chart.minWavelength(), 350.0);
}

void tst_WavelengthChartPointer::resetsTheZoomWithTheRightButton()
{
    Readout chart;
    chart.chart()->zoomIn(chart.plot().adjusted(200.0, 0.0, -200.0, 0.0));
    const QPoint middle = chart.plot().center().toPoint();

    chart.hand.press(middle, Qt::RightButton);
    QVERIFY(chart.chart()->isZoomed());
    chart.hand.release(middle);

    QVERIFY(!chart.chart()->isZoomed());
    QVERIFY(!chart.zoomProxy()->isVisible());
    QCOMPARE(chart.wavelengthAxis()->min(), 350.0);
    QCOMPARE(chart.wavelengthAxis()->max(), 800.0);
}

void tst_WavelengthChartPointer::resetsAllStepsOfAZoom()
{
    Readout chart;
    for (int i = 0; i < 3; ++i)
        chart.chart()->zoomIn(chart.plot().adjusted(100.0, 0.0, -100.0, 0.0));
    const QPoint middle = chart.plot().center().toPoint();

    chart.hand.press(middle, Qt::RightButton);
    chart.hand.release(middle);

    QVERIFY(!chart.chart()->isZoomed());
    QCOMPARE(chart.wavelengthAxis()->min(), 350.0);
    QCOMPARE(chart.wavelengthAxis()->max(), 800.0);
}

void tst_WavelengthChartPointer::takesARightClickWithoutZoom()
{
    Readout chart;
    SignalRecorder recorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject);
    const QPoint middle = chart.plot().center().toPoint();

    chart.hand.press(middle, Qt::RightButton);
    chart.hand.release(middle);

    QVERIFY(!chart.chart()->isZoomed());
    QCOMPARE(chart.wavelengthAxis()->min(), 350.0);
    QCOMPARE(chart.wavelengthAxis()->max(), 800.0); // the base class would have zoomed out
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthChartPointer::takesARightClickInADrag()
{
    Readout chart;
    MouseHand other(*chart.viewport());
    const QPoint from = chart.plot().center().toPoint();
    chart.hand.press(from);
    chart.hand.move(from + QPoint(100, 0));

    other.press(from + QPoint(100, 0), Qt::RightButton);
    other.release(from + QPoint(100, 0));
    QVERIFY(!chart.chart()->isZoomed());

    chart.hand.move(from + QPoint(200, 0));
    chart.hand.release(from + QPoint(200, 0));
    QVERIFY(chart.chart()->isZoomed());
    QVERIFY(qAbs(chart.wavelengthAxis()->min() - 575.0) < 2.0);
}

/// The end of a right click does not reach the scene; wherever it was, the next click still goes to
/// what lies under it.
void tst_WavelengthChartPointer::doesNotHoldThePointerAfterARightClick()
{
    Readout chart;
    chart.setFluorophoresVisible(true);
    chart.addFluorophore(ChartProbe::dye(1));
    const QRectF row = chart.controlProxy()->sceneBoundingRect();
    QCheckBox *const box = chart.box("Spectrometer");
    const QPoint onBox = (row.topLeft() + box->geometry().center()).toPoint();
    const QPoint save =
        (row.topLeft() + chart.box("Dynamic")->mapTo(chart.controlProxy()->widget(), QPoint(5, 8)))
            .toPoint();
    QList<QPoint> places{ onBox, row.center().toPoint(), chart.tags().first()->pos().toPoint(),
                          chart.strip()->pos().toPoint() + QPoint(50, 5), QPoint(5, 5) };
    for (int x = 0; x < chart.width(); x += 25)
        places << QPoint(x, chart.height() - 20) << QPoint(x, 150) << QPoint(x, 300);

    for (const QPoint &place : qAsConst(places)) {
        chart.hand.press(place, Qt::RightButton);
        chart.hand.release(place);

        QVERIFY(!chart.scene()->mouseGrabberItem());
    }

    chart.hand.press(save);
    chart.hand.release(save);
    QVERIFY(!chart.box("Dynamic")->isChecked());
    chart.hand.press(onBox);
    chart.hand.release(onBox);
    QVERIFY(!box->isChecked());
}

void tst_WavelengthChartPointer::livesWithoutItsSeries()
{
    Readout chart;
    delete chart.filterArea();
    delete chart.filter();
    delete chart.spectrum();

    chart.hand.move(chart.plot().center().toPoint());

    QVERIFY(!chart.timer->isActive());
}

PELORIN_TEST_MAIN(tst_WavelengthChartPointer)
#include "tst_wavelengthchartpointer.moc"
