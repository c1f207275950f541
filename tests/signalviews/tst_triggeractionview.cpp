#include "Pelorin/signalviews/TriggerActionView.h"
#include "tests/signalviews/PulsePicture.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <limits>

Q_DECLARE_METATYPE(TriggerActionView::tView)

class tst_TriggerActionView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsSlotsInOrder();
    void hasTheFrameOfAPulseView();
    void drawsTheTriggerLevel();
    void drawsTheOutputPulses_data();
    void drawsTheOutputPulses();
    void marksTheGapBetweenTwoPulses();
    void writesTheInterval();
    void repaintsForEachSetter();
};

void tst_TriggerActionView::declaresItsSlotsInOrder()
{
    QCOMPARE(TriggerActionView::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(TriggerActionView::staticMetaObject),
             list({ "setPulseCount(int)", "setPulseInterval(double)",
                    "setView(TriggerActionView::tView)" }));
    QCOMPARE(int(TriggerActionView::ViewFixedWindow), 0);
    QCOMPARE(int(TriggerActionView::ViewPulseCount), 1);
}

void tst_TriggerActionView::hasTheFrameOfAPulseView()
{
    TriggerActionView view;

    PulsePicture::checkFrame(view, QStringLiteral("Trigger action"),
                             QStringLiteral("Output pulses"), QPoint(160, 140));
}

void tst_TriggerActionView::drawsTheTriggerLevel()
{
    constexpr QRgb trigger = 0xFF00B252;
    TriggerActionView view;

    const QImage image = PulsePicture::of(view);

    for (const QPoint place :
         { QPoint(20, 67), QPoint(40, 55), QPoint(100, 42), QPoint(160, 55), QPoint(270, 67) })
        QCOMPARE(image.pixel(place), trigger);
    QCOMPARE(image.pixel(100, 48), PulsePicture::ground);
    QCOMPARE(image.pixel(20, 42), PulsePicture::ground);
    PulsePicture::checkText(view, QStringLiteral("Trigger input"), QPoint(180, 55));
}

void tst_TriggerActionView::drawsTheOutputPulses_data()
{
    QTest::addColumn<TriggerActionView::tView>("view");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("strokes");

    const auto window = TriggerActionView::ViewFixedWindow;
    const auto counted = TriggerActionView::ViewPulseCount;
    QTest::newRow("fourteen at first") << counted << 14 << 14;
    QTest::newRow("window") << window << 14 << 21;
    QTest::newRow("window, whatever the count") << window << 0 << 21;
    QTest::newRow("none") << counted << 0 << 0;
    QTest::newRow("less than none") << counted << -3 << 0;
    QTest::newRow("one") << counted << 1 << 1;
    QTest::newRow("forty-two") << counted << 42 << 42;
    QTest::newRow("no more than forty-two") << counted << 43 << 42;
    QTest::newRow("absurd") << counted << std::numeric_limits<int>::max() << 42;
    QTest::newRow("another view") << TriggerActionView::tView(7) << 3 << 3;
}

void tst_TriggerActionView::drawsTheOutputPulses()
{
    QFETCH(TriggerActionView::tView, view);
    QFETCH(int, count);
    QFETCH(int, strokes);
    TriggerActionView widget;

    widget.setView(view);
    widget.setPulseCount(count);

    const QImage image = PulsePicture::of(widget);
    QList<int> columns;
    QList<int> expected;
    for (int x = 20; x < 289; ++x) {
        if (image.pixel(x, 110) == PulsePicture::pulse)
            columns << x;
    }
    for (int i = 0; i < strokes; ++i)
        expected << 40 + 6 * i; // the last of 21 at 160, the last of 42 at 286
    QCOMPARE(columns, expected);
    if (strokes > 0) {
        QCOMPARE(image.pixel(40, 92), PulsePicture::pulse);
        QCOMPARE(image.pixel(40, 90), PulsePicture::ground);
    }
}

void tst_TriggerActionView::marksTheGapBetweenTwoPulses()
{
    TriggerActionView view;

    const QImage image = PulsePicture::of(view);

    for (const QPoint place : { QPoint(26, 82), QPoint(35, 82), QPoint(51, 82), QPoint(60, 82) })
        QVERIFY(PulsePicture::isDark(image, place));
    QCOMPARE(image.pixel(43, 82), PulsePicture::ground);
}

void tst_TriggerActionView::writesTheInterval()
{
    TriggerActionView view;
    PulsePicture::checkLabel(view, QString::fromUtf8("12.5 µs"), QPoint(45, 57));

    view.setPulseInterval(3.14159);

    PulsePicture::checkLabel(view, QString::fromUtf8("3.1 µs"), QPoint(45, 57));
}

void tst_TriggerActionView::repaintsForEachSetter()
{
    TriggerActionView view;
    view.show();
    RepaintCounter repaints(view);

    view.setPulseCount(4);
    QCOMPARE(repaints.taken(), 1);

    view.setPulseInterval(4.0);
    QCOMPARE(repaints.taken(), 1);

    view.setView(TriggerActionView::ViewFixedWindow);
    QCOMPARE(repaints.taken(), 1);
}

PELORIN_TEST_MAIN(tst_TriggerActionView)
#include "tst_triggeractionview.moc"
