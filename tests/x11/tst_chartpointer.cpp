#include "tests/spectral/ChartProbe.h"
#include "tests/support/RealMouse.h"
#include "tests/support/TestCase.h"

#include <Pelorin/Pelorin>

#include <QRubberBand>

#include <memory>

/// The wavelength chart under a real pointer.
class tst_ChartPointer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void readsOutWhereThePointerHovers();
    void readsATagOut();
    void zoomsIntoADraggedBand();
    void resetsTheZoomWithARightClick();
    void resetsTheZoomWithTheButton();
    void keepsADragThroughARightClick();

private:
    QRectF plot() const { return m_chart->chart()->plotArea(); }
    QPoint global(QPointF place) const { return m_chart->viewport()->mapToGlobal(place.toPoint()); }
    /// At \a across and \a down of the plot, both from 0 to 1.
    QPoint onPlot(double across, double down) const
    {
        return global(QPointF(plot().left() + across * plot().width(),
                              plot().top() + down * plot().height()));
    }
    /// The texts of the read-out that are shown.
    QStringList shown() const
    {
        QStringList result;
        for (const QGraphicsTextItem *item : m_chart->itemsOf<QGraphicsTextItem>()) {
            if (!item->parentItem() && item->isVisible() && !item->toPlainText().isEmpty())
                result << item->toPlainText().trimmed();
        }
        return result;
    }
    bool isWholeRange() const
    {
        return m_chart->wavelengthAxis()->min() == 350.0
               && m_chart->wavelengthAxis()->max() == 800.0;
    }
    bool isBandShown() const
    {
        const auto *const band = m_chart->findChild<QRubberBand *>();
        return band && band->isVisible();
    }
    bool zoom() { return RealMouse::drag(onPlot(0.25, 0.3), onPlot(0.75, 0.6)); }

    std::unique_ptr<ChartProbe> m_chart;
};

void tst_ChartPointer::initTestCase()
{
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

void tst_ChartPointer::init()
{
    TestCase::init();
    QVERIFY(RealMouse::moveTo(QPoint(10, 10)));
    m_chart = std::make_unique<ChartProbe>(QSize(1000, 500));
    m_chart->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_chart.get()));
    QTRY_VERIFY(plot().width() > 800.0);
}

void tst_ChartPointer::cleanup()
{
    RealMouse::release();
    m_chart.reset();
    TestCase::cleanup();
}

void tst_ChartPointer::readsOutWhereThePointerHovers()
{
    const auto wavelength = [this] {
        return shown().value(0).remove(QStringLiteral("nm")).toDouble();
    };
    QCOMPARE(shown(), QStringList());

    QVERIFY(RealMouse::moveTo(onPlot(0.5, 0.5)));
    QTRY_COMPARE(shown().size(), 3);
    QVERIFY(qAbs(wavelength() - 575.0) < 1.0);
    QVERIFY(shown().at(1).startsWith(QLatin1String("Power output [")));
    QVERIFY(shown().at(2).startsWith(QLatin1String("Power setpoint ")));

    QVERIFY(RealMouse::moveTo(onPlot(0.2, 0.5)));
    QTRY_VERIFY(qAbs(wavelength() - 440.0) < 1.0);

    QVERIFY(RealMouse::moveTo(global(QPointF(5, 300)))); // among the labels of the axis
    QTRY_COMPARE(shown(), QStringList());
}

void tst_ChartPointer::readsATagOut()
{
    tFluorophoreData dye = ChartProbe::dye(1);
    dye.description = QStringLiteral("Green dye\nfor cells");
    m_chart->addFluorophore(dye);
    m_chart->setFluorophoreVisibilityState(true, true, false);
    m_chart->setFluorophoresVisible(true);
    const FluorophoreTagName *const tag = m_chart->tags().first();

    QVERIFY(RealMouse::moveTo(global(tag->pos() + tag->boundingRect().center())));

    QTRY_COMPARE(shown(),
                 (QStringList{ QStringLiteral("Green dye"), QStringLiteral("for cells") }));
}

void tst_ChartPointer::zoomsIntoADraggedBand()
{
    QVERIFY(RealMouse::moveTo(onPlot(0.25, 0.3)));
    QVERIFY(RealMouse::press());
    QVERIFY(RealMouse::moveTo(onPlot(0.5, 0.5)));
    QTRY_VERIFY(isBandShown());
    QVERIFY(RealMouse::moveTo(onPlot(0.75, 0.6)));
    QVERIFY(!m_chart->chart()->isZoomed());
    QVERIFY(RealMouse::release());

    QTRY_VERIFY(m_chart->chart()->isZoomed());
    QVERIFY(qAbs(m_chart->wavelengthAxis()->min() - 462.5) < 2.0);
    QVERIFY(qAbs(m_chart->wavelengthAxis()->max() - 687.5) < 2.0);
    QCOMPARE(m_chart->powerAxis()->max(), 2.0);
    QVERIFY(!isBandShown());
    QVERIFY(m_chart->zoomProxy()->isVisible());
}

void tst_ChartPointer::resetsTheZoomWithARightClick()
{
    QVERIFY(zoom());
    QTRY_VERIFY(m_chart->chart()->isZoomed());
    QVERIFY(zoom()); // a second step
    QTRY_VERIFY(m_chart->wavelengthAxis()->max() < 640.0);

    QVERIFY(RealMouse::click(onPlot(0.5, 0.5), 3));

    QTRY_VERIFY(isWholeRange());
    QVERIFY(!m_chart->chart()->isZoomed());
    QVERIFY(!m_chart->zoomProxy()->isVisible());
}

void tst_ChartPointer::resetsTheZoomWithTheButton()
{
    QVERIFY(zoom());
    QTRY_VERIFY(m_chart->zoomProxy()->isVisible());

    QVERIFY(RealMouse::click(global(m_chart->zoomProxy()->sceneBoundingRect().center())));

    QTRY_VERIFY(isWholeRange());
    QVERIFY(!m_chart->zoomProxy()->isVisible());
}

void tst_ChartPointer::keepsADragThroughARightClick()
{
    QVERIFY(RealMouse::moveTo(onPlot(0.25, 0.3)));
    QVERIFY(RealMouse::press());
    QVERIFY(RealMouse::moveTo(onPlot(0.5, 0.5)));
    QTRY_VERIFY(isBandShown());

    QVERIFY(RealMouse::press(3));
    QVERIFY(RealMouse::release(3));
    QVERIFY(RealMouse::moveTo(onPlot(0.75, 0.6)));
    QVERIFY(RealMouse::release());

    QTRY_VERIFY(m_chart->chart()->isZoomed());
    QVERIFY(!isBandShown());
    QVERIFY(qAbs(m_chart->wavelengthAxis()->min() - 462.5) < 2.0);
}

PELORIN_TEST_MAIN(tst_ChartPointer)
#include "tst_chartpointer.moc"
