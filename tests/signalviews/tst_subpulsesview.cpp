#include "Pelorin/signalviews/SubPulsesView.h"
#include "tests/signalviews/PulsePicture.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <limits>

class tst_SubPulsesView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsSlotsInOrder();
    void hasTheFrameOfAPulseView();
    void drawsAStrokeForEachPulse_data();
    void drawsAStrokeForEachPulse();
    void marksTheGapBetweenTwoPulses_data();
    void marksTheGapBetweenTwoPulses();
    void drawsTheSameForAnyEnergy();
    void repaintsForEachSetter();
};

void tst_SubPulsesView::declaresItsSlotsInOrder()
{
    QCOMPARE(SubPulsesView::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(SubPulsesView::staticMetaObject),
             list({ "setSubPulseCount(int)", "setSubPulseEnergy(double)" }));
}

void tst_SubPulsesView::hasTheFrameOfAPulseView()
{
    SubPulsesView view;

    PulsePicture::checkFrame(view, QStringLiteral("Sub-pulses"),
                             QStringLiteral("Sub-pulse energy (100%)"), QPoint(14, 140));
}

void tst_SubPulsesView::drawsAStrokeForEachPulse_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("strokes");

    QTest::newRow("five at first") << 5 << 5;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("less than none") << -7 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("fifteen") << 15 << 15;
    QTest::newRow("no more than fifteen") << 16 << 15;
    QTest::newRow("a hundred") << 100 << 15;
    QTest::newRow("absurd") << std::numeric_limits<int>::max() << 15;
}

void tst_SubPulsesView::drawsAStrokeForEachPulse()
{
    QFETCH(int, count);
    QFETCH(int, strokes);
    SubPulsesView view;

    view.setSubPulseCount(count);

    // Triangles of six pixels on the base line, with their tips at 92 + 8 i, 70 pixels up.
    const QImage image = PulsePicture::of(view);
    for (int i = 0; i < 16; ++i) {
        const int x = 92 + 8 * i;
        const bool drawn = i < strokes;
        QCOMPARE(image.pixel(x, 115) == PulsePicture::pulse, drawn);
        QCOMPARE(image.pixel(x, 60) != PulsePicture::ground, drawn);
        QCOMPARE(image.pixel(x + 4, 90), PulsePicture::ground); // between two
        QCOMPARE(image.pixel(x, 47), PulsePicture::ground);
    }
}

void tst_SubPulsesView::marksTheGapBetweenTwoPulses_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("marked");

    QTest::newRow("none") << 0 << false;
    QTest::newRow("one") << 1 << false;
    QTest::newRow("two") << 2 << true;
    QTest::newRow("many") << 100 << true;
}

void tst_SubPulsesView::marksTheGapBetweenTwoPulses()
{
    QFETCH(int, count);
    QFETCH(bool, marked);
    SubPulsesView view;

    view.setSubPulseCount(count);

    QCOMPARE(PaintRecorder(view).textList().contains(QStringLiteral("20 ns")), marked);
    if (marked)
        PulsePicture::checkText(view, QStringLiteral("20 ns"), QPoint(87, 32));
    const QImage image = PulsePicture::of(view);
    for (const QPoint place : { QPoint(78, 42), QPoint(87, 42), QPoint(105, 42), QPoint(114, 42) })
        QCOMPARE(PulsePicture::isDark(image, place), marked);
    QCOMPARE(image.pixel(96, 42), PulsePicture::ground); // the gap itself
}

void tst_SubPulsesView::drawsTheSameForAnyEnergy()
{
    SubPulsesView view;
    const QImage before = PulsePicture::of(view);

    view.setSubPulseEnergy(99.0);

    QCOMPARE(PulsePicture::of(view), before);
}

void tst_SubPulsesView::repaintsForEachSetter()
{
    SubPulsesView view;
    view.show();
    RepaintCounter repaints(view);

    view.setSubPulseCount(4);
    QCOMPARE(repaints.taken(), 1);

    view.setSubPulseEnergy(4.0);
    QCOMPARE(repaints.taken(), 1);
}

PELORIN_TEST_MAIN(tst_SubPulsesView)
#include "tst_subpulsesview.moc"
