#include "Pelorin/signalviews/PulsesView.h"
#include "tests/signalviews/PulsePicture.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

class tst_PulsesView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsSlotsInOrder();
    void hasTheFrameOfAPulseView();
    void drawsTwoPulsesAndTheSpanBetween();
    void writesTheInterval_data();
    void writesTheInterval();
    void centersTheInterval();
    void drawsTheSameForAnyEnergy();
    void repaintsForEachSetter();
};

void tst_PulsesView::declaresItsSlotsInOrder()
{
    QCOMPARE(PulsesView::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(PulsesView::staticMetaObject),
             list({ "setPulseInterval(double)", "setPulseEnergy(double)" }));
}

void tst_PulsesView::hasTheFrameOfAPulseView()
{
    PulsesView view;

    PulsePicture::checkFrame(view, QStringLiteral("Pulses"), QStringLiteral("Pulse energy (100%)"),
                             QPoint(14, 140));
}

void tst_PulsesView::drawsTwoPulsesAndTheSpanBetween()
{
    PulsesView view;

    const QImage image = PulsePicture::of(view);

    // Strokes of two pixels round 57 and 300 - 57.
    for (const int x : { 57, 243 }) {
        QCOMPARE(image.pixel(x, 60), PulsePicture::pulse);
        QCOMPARE(image.pixel(x, 115), PulsePicture::pulse);
        QCOMPARE(image.pixel(x - 4, 80), PulsePicture::ground);
        QCOMPARE(image.pixel(x + 4, 80), PulsePicture::ground);
        QCOMPARE(image.pixel(x, 48), PulsePicture::ground);
    }
    QVERIFY(PulsePicture::isDark(image, QPoint(150, 42))); // the span
    QVERIFY(PulsePicture::isDark(image, QPoint(64, 41)));  // its heads
    QVERIFY(PulsePicture::isDark(image, QPoint(236, 43)));
    QCOMPARE(image.pixel(75, 39), PulsePicture::ground);
}

void tst_PulsesView::writesTheInterval_data()
{
    QTest::addColumn<double>("interval");
    QTest::addColumn<QString>("text");

    QTest::newRow("one decimal") << 3.14159 << QString::fromUtf8("3.1 µs");
    QTest::newRow("whole") << 12.0 << QString::fromUtf8("12.0 µs");
    QTest::newRow("negative") << -2.55 << QString::fromUtf8("-2.5 µs");
    QTest::newRow("large") << 123456.0 << QString::fromUtf8("123456.0 µs");
}

void tst_PulsesView::writesTheInterval()
{
    QFETCH(double, interval);
    QFETCH(QString, text);
    PulsesView view;
    QVERIFY(PaintRecorder(view).textList().contains(QString::fromUtf8("12.5 µs")));

    view.setPulseInterval(interval);

    QVERIFY(PaintRecorder(view).textList().contains(text));
}

void tst_PulsesView::centersTheInterval()
{
    PulsesView view;
    const QRect bounds = PulsePicture::bounds(QString::fromUtf8("12.5 µs"), false);

    PulsePicture::checkLabel(view, QString::fromUtf8("12.5 µs"),
                             QPoint((300 - 1 - 113) / 2 + 57 - bounds.width() / 2, 52));
}

void tst_PulsesView::drawsTheSameForAnyEnergy()
{
    PulsesView view;
    const QImage before = PulsePicture::of(view);

    view.setPulseEnergy(99.0);

    QCOMPARE(PulsePicture::of(view), before);
}

void tst_PulsesView::repaintsForEachSetter()
{
    PulsesView view;
    view.show();
    RepaintCounter repaints(view);

    view.setPulseInterval(4.0);
    QCOMPARE(repaints.taken(), 1);

    view.setPulseEnergy(4.0);
    QCOMPARE(repaints.taken(), 1);
}

PELORIN_TEST_MAIN(tst_PulsesView)
#include "tst_pulsesview.moc"
