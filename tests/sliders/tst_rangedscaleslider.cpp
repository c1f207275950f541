#include "Pelorin/sliders/RangedScaleSlider.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPointer>
#include <QWheelEvent>

#include <limits>
#include <memory>

namespace {

constexpr int width = 335; // 300 pixels of travel

/// 400 to 900 for both ends, unless told: 0.6 pixels for each unit. The start stands at 500, its
/// handle at 60 to 95, the stop at 700, its handle at 180 to 215.
class Slider : public RangedScaleSlider
{
public:
    explicit Slider(double startMin = 400.0, double startMax = 900.0, double stopMin = 400.0,
                    double stopMax = 900.0)
        : RangedScaleSlider(nullptr)
    {
        resize(::width, height());
        show(); // a hidden widget gets no resize event
        setStartRange(startMin, startMax);
        setStopRange(stopMin, stopMax);
        put(500.0, 700.0);
    }

    void put(double start, double stop)
    {
        setCurrentStartValue(start, false);
        setCurrentStopValue(stop, false);
    }
};

/// Turns the wheel over \a widget; whether that used the event up.
bool turnWheel(QWidget &widget, int delta, int horizontal = 0)
{
    const QPointF place(100.0, 17.0);
    QWheelEvent event(place, widget.mapToGlobal(place.toPoint()), QPoint(),
                      QPoint(horizontal, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

void tap(MouseHand &hand, QPoint place)
{
    hand.press(place);
    hand.release(place);
}

const QPoint onStart(70, 17);
const QPoint onStop(190, 17);

QString signalText(const char *name, double value)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(value, 0, 'g', 12);
}

} // namespace

class tst_RangedScaleSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheDefaults();
    void declaresSignalsAndSlotsInOrder();

    void snapsTheScaleOutward_data();
    void snapsTheScaleOutward();
    void readsAPositionAsADragDoes();
    void labelsTheNewWidthAndMovesTheHandles();
    void keepsHandlesAndValuesWhenARangeIsSet();
    void keepsTheHandlesWhenTheMarginsAreSet();
    void ignoresARangeThatIsNotFinite_data();
    void ignoresARangeThatIsNotFinite();
    void bindsToTheLowerEndOfAReversedRange();

    void clampsASetValue_data();
    void clampsASetValue();
    void dragsTheOtherValueAlong();
    void leavesACrossingWithoutAdjustment();
    void dragsAFixedOtherValueAlong();

    void placesAFixedHandle();
    void refusesValuesForAFixedHandle();
    void refusesTheMouseOnAFixedHandle();
    void coversTheStopWithAFixedStart();
    void staysWhenFixedInTheHand();

    void grabsOnlyInsideTheOutline_data();
    void grabsOnlyInsideTheOutline();
    void takesTheStartWhereHandlesOverlap();
    void grabsWithAnyButton();
    void grabsNothingWhileDisabled();

    void dragsTheStart();
    void dragsTheStop();
    void clampsTheDraggedStopToTheStartRange();
    void parksTheStartAtTheStop();
    void stopsTheStartAtItsLowerEnd();
    void staysSilentBeyondTheLowerEnd();
    void leavesTheStartAboveItsUpperEnd();
    void leavesTheStartThatIsAtItsUpperEnd();
    void parksTheStopAtTheStart();
    void dropsTheStopBelowItsRangeToTheStart();
    void stopsTheStopAtItsUpperEnd();
    void leavesTheStopThatIsAtItsLowerEnd();
    void reportsAReleaseAlways();
    void goesOnFromASetValueInADrag();
    void letsGoOfAHandleThatWasDisabled();
    void dragsOnAfterItWasDisabled();
    void startsAnewAfterALostRelease();

    void shiftsBothEndsWithTheWheel_data();
    void shiftsBothEndsWithTheWheel();
    void leavesTheWheelAloneWithoutANudge_data();
    void leavesTheWheelAloneWithoutANudge();
    void movesTheHandlesWithTheWheel();
    void keepsFixedHandlesUnderTheWheel();

    void survivesItsDeletionByAListener_data();
    void survivesItsDeletionByAListener();
    void livesWithoutAScale_data();
    void livesWithoutAScale();
    void livesWithoutRoom_data();
    void livesWithoutRoom();
};

void tst_RangedScaleSlider::startsWithTheDefaults()
{
    const RangedScaleSlider slider(nullptr);

    QCOMPARE(slider.currentValueMin(), 0.0);
    QCOMPARE(slider.currentValueMax(), 0.0);
    QCOMPARE(slider.sideMargins(), 0);
    QCOMPARE(slider.nudge(), 0.0);
    QCOMPARE(slider.minimumWidth(), 150);
    QCOMPARE(slider.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(slider.minimumHeight(), 60);
    QCOMPARE(slider.maximumHeight(), 60);
    QVERIFY(slider.hasMouseTracking());
    QCOMPARE(slider.metaObject()->superClass(), &QLabel::staticMetaObject);
}

void tst_RangedScaleSlider::declaresSignalsAndSlotsInOrder()
{
    QCOMPARE(ownMethods(RangedScaleSlider::staticMetaObject),
             list({ "startHandleMoved(double)", "stopHandleMoved(double)",
                    "startHandleFinishedMoving(double)", "stopHandleFinishedMoving(double)",
                    "startHandleGrapped()", "stopHandleGrapped()", "setStartRange(double,double)",
                    "setStopRange(double,double)", "setCurrentStartValue(double,bool)",
                    "setCurrentStopValue(double,bool)", "setFixedStart(bool,double)",
                    "setFixedStop(bool,double)" }));
}

void tst_RangedScaleSlider::snapsTheScaleOutward_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("last");

    QTest::newRow("ends on multiples of 100") << 335 << 400.0 << 900.0 << 400.0 << 900.0;
    QTest::newRow("ends between multiples") << 335 << 410.0 << 890.0 << 400.0 << 900.0;
    QTest::newRow("a step of 250") << 150 << 410.0 << 890.0 << 250.0 << 1000.0;
    QTest::newRow("a step of 2") << 335 << 0.0 << 7.0 << 0.0 << 8.0;
    QTest::newRow("a step of 5") << 335 << 1.0 << 19.0 << 0.0 << 20.0;
    QTest::newRow("a step of 25") << 1035 << 410.0 << 890.0 << 400.0 << 900.0;
    QTest::newRow("below zero") << 335 << -15.0 << 15.0 << -20.0 << 20.0;
    QTest::newRow("just less than two labels") << 234 << 0.0 << 130.0 << 0.0 << 200.0;
    QTest::newRow("just two labels") << 235 << 0.0 << 130.0 << 0.0 << 150.0;
}

void tst_RangedScaleSlider::snapsTheScaleOutward()
{
    QFETCH(int, length);
    QFETCH(double, min);
    QFETCH(double, max);
    Slider slider;
    slider.resize(length, slider.height());

    // Neither the upper end of the start nor the lower end of the stop has a say.
    slider.setStartRange(min, (min + max) / 2.0);
    slider.setStopRange((min + max) / 2.0, max);

    QTEST(slider.accordingValue(0), "first");
    QTEST(slider.accordingValue(length - 35), "last");
}

void tst_RangedScaleSlider::readsAPositionAsADragDoes()
{
    Slider slider;

    QCOMPARE(slider.accordingValue(150), 650.0);
    QCOMPARE(slider.accordingValue(-30), 350.0); // beyond the ends as well
    QCOMPARE(slider.accordingValue(330), 950.0);

    slider.setSideMargins(50);
    QCOMPARE(slider.sideMargins(), 50);
    QCOMPARE(slider.accordingValue(50), 400.0);
    QCOMPARE(slider.accordingValue(150), 650.0);
    QCOMPARE(slider.accordingValue(250), 900.0);
}

void tst_RangedScaleSlider::labelsTheNewWidthAndMovesTheHandles()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    slider.resize(1035, slider.height()); // 2 pixels for each unit
    QCOMPARE(slider.accordingValue(500), 650.0);
    QCOMPARE(recorder.taken(), QStringList());

    tap(hand, QPoint(201, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleFinishedMoving(500)" }));
    tap(hand, QPoint(634, 17));
    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleFinishedMoving(700)" }));
}

void tst_RangedScaleSlider::keepsHandlesAndValuesWhenARangeIsSet()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    slider.setStartRange(600.0, 650.0);
    slider.setStopRange(750.0, 1200.0);

    QCOMPARE(slider.currentValueMin(), 500.0);
    QCOMPARE(slider.currentValueMax(), 700.0);
    QCOMPARE(recorder.taken(), QStringList());
    hand.press(QPoint(61, 17));
    hand.press(QPoint(181, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "stopHandleGrapped()" }));
}

void tst_RangedScaleSlider::keepsTheHandlesWhenTheMarginsAreSet()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    slider.setSideMargins(50);
    hand.press(QPoint(61, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()" }));
    hand.release(QPoint(61, 17));

    slider.setCurrentStartValue(500.0, false); // 50 + 200 / 5: at 90 now
    recorder.taken();
    hand.press(QPoint(90, 17));
    QCOMPARE(recorder.taken(), QStringList());
    hand.press(QPoint(91, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()" }));
}

void tst_RangedScaleSlider::ignoresARangeThatIsNotFinite_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("not a number below") << qQNaN() << 800.0;
    QTest::newRow("not a number above") << 300.0 << qQNaN();
    QTest::newRow("infinite above") << 300.0 << qInf();
    QTest::newRow("infinite below") << -qInf() << 800.0;
}

void tst_RangedScaleSlider::ignoresARangeThatIsNotFinite()
{
    QFETCH(double, min);
    QFETCH(double, max);
    Slider slider;

    slider.setStartRange(min, max);
    slider.setStopRange(min, max);

    QCOMPARE(slider.accordingValue(0), 400.0);
    QCOMPARE(slider.accordingValue(300), 900.0);
    slider.put(0.0, 2000.0);
    QCOMPARE(slider.currentValueMin(), 400.0);
    QCOMPARE(slider.currentValueMax(), 900.0);
}

void tst_RangedScaleSlider::bindsToTheLowerEndOfAReversedRange()
{
    Slider slider;

    slider.setStartRange(600.0, 500.0);

    for (const double value : { 100.0, 550.0, 1000.0 }) {
        slider.setCurrentStartValue(value, false);
        QCOMPARE(slider.currentValueMin(), 600.0);
    }
}

void tst_RangedScaleSlider::clampsASetValue_data()
{
    QTest::addColumn<double>("request");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("stop");

    QTest::newRow("inside of both") << 620.0 << 620.0 << 620.0;
    QTest::newRow("at the lower ends") << 450.0 << 450.0 << 600.0;
    QTest::newRow("below") << 0.0 << 450.0 << 600.0;
    QTest::newRow("above") << 2000.0 << 650.0 << 850.0;
    QTest::newRow("infinite") << qInf() << 650.0 << 850.0;
    QTest::newRow("minus infinite") << -qInf() << 450.0 << 600.0;
    QTest::newRow("not a number") << qQNaN() << 500.0 << 700.0;
}

void tst_RangedScaleSlider::clampsASetValue()
{
    QFETCH(double, request);
    Slider slider(450.0, 650.0, 600.0, 850.0);
    SignalRecorder recorder(&slider);

    slider.setCurrentStartValue(request, false);
    slider.setCurrentStopValue(request, false);

    QTEST(slider.currentValueMin(), "start");
    QTEST(slider.currentValueMax(), "stop");
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::dragsTheOtherValueAlong()
{
    Slider slider;
    SignalRecorder recorder(&slider);

    slider.setCurrentStartValue(800.0, true);
    QCOMPARE(slider.currentValueMax(), 800.0);
    QCOMPARE(recorder.taken(), list({ "stopHandleFinishedMoving(800)" }));

    slider.setCurrentStopValue(450.0, true);
    QCOMPARE(slider.currentValueMin(), 450.0);
    QCOMPARE(recorder.taken(), list({ "startHandleFinishedMoving(450)" }));

    slider.setCurrentStartValue(450.0, true); // level is no crossing
    slider.setCurrentStopValue(600.0, true);
    QCOMPARE(recorder.taken(), QStringList());

    MouseHand hand(slider); // the handles have come along: 30 and 120
    slider.setCurrentStartValue(800.0, true);
    recorder.taken();
    hand.press(QPoint(241, 17));
    hand.move(QPoint(240, 17));
    QCOMPARE(recorder.taken(),
             QStringList({ QStringLiteral("startHandleGrapped()"),
                           signalText("startHandleMoved", 400.0 + 239.0 / 0.6) }));
}

void tst_RangedScaleSlider::leavesACrossingWithoutAdjustment()
{
    Slider slider;
    SignalRecorder recorder(&slider);

    slider.setCurrentStartValue(800.0, false);
    QCOMPARE(slider.currentValueMin(), 800.0);
    QCOMPARE(slider.currentValueMax(), 700.0);

    slider.setCurrentStopValue(600.0, false);
    QCOMPARE(slider.currentValueMin(), 800.0);
    QCOMPARE(slider.currentValueMax(), 600.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::dragsAFixedOtherValueAlong()
{
    Slider slider;
    slider.setFixedStop(true, 600.0);
    SignalRecorder recorder(&slider);

    slider.setCurrentStartValue(650.0, true);

    QCOMPARE(slider.currentValueMax(), 650.0);
    QCOMPARE(recorder.taken(), list({ "stopHandleFinishedMoving(650)" }));
}

void tst_RangedScaleSlider::placesAFixedHandle()
{
    Slider slider(450.0, 650.0, 600.0, 850.0);
    SignalRecorder recorder(&slider);

    slider.setFixedStart(true, 550.0);
    slider.setFixedStop(true, 9000.0);
    QCOMPARE(slider.currentValueMin(), 550.0);
    QCOMPARE(slider.currentValueMax(), 850.0);

    slider.setFixedStart(true, 640.0); // once more, while it is fixed
    QCOMPARE(slider.currentValueMin(), 640.0);

    slider.setFixedStart(true, 800.0); // above the stop: it stays
    QCOMPARE(slider.currentValueMin(), 650.0);

    slider.setFixedStart(true, qQNaN());
    QCOMPARE(slider.currentValueMin(), 650.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::refusesValuesForAFixedHandle()
{
    Slider slider;
    slider.setFixedStart(true, 550.0);
    slider.setFixedStop(true, 750.0);
    SignalRecorder recorder(&slider);

    slider.setCurrentStartValue(800.0, true);
    slider.setCurrentStopValue(450.0, true);
    QCOMPARE(slider.currentValueMin(), 550.0);
    QCOMPARE(slider.currentValueMax(), 750.0);
    QCOMPARE(recorder.taken(), QStringList());

    slider.setFixedStart(false, 560.0);
    slider.setFixedStop(false, 760.0);
    slider.put(570.0, 770.0);
    QCOMPARE(slider.currentValueMin(), 570.0);
    QCOMPARE(slider.currentValueMax(), 770.0);
}

void tst_RangedScaleSlider::refusesTheMouseOnAFixedHandle()
{
    Slider slider;
    slider.setFixedStart(true, 500.0);
    slider.setFixedStop(true, 700.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(onStart, QPoint(100, 17));
    hand.drag(onStop, QPoint(250, 17));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValueMin(), 500.0);
    QCOMPARE(slider.currentValueMax(), 700.0);
}

void tst_RangedScaleSlider::coversTheStopWithAFixedStart()
{
    Slider slider;
    slider.setFixedStart(true, 700.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(onStop, QPoint(250, 17));

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::staysWhenFixedInTheHand()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    slider.setFixedStart(true, 550.0);
    hand.move(QPoint(100, 17));
    hand.release(QPoint(100, 17));
    hand.press(onStop);
    slider.setFixedStop(true, 750.0);
    hand.move(QPoint(250, 17));
    hand.release(QPoint(250, 17));

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleFinishedMoving(550)",
                                      "stopHandleGrapped()", "stopHandleFinishedMoving(750)" }));
}

void tst_RangedScaleSlider::grabsOnlyInsideTheOutline_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QString>("signal");

    const QString none;
    const QString start = QStringLiteral("startHandleGrapped()");
    const QString stop = QStringLiteral("stopHandleGrapped()");
    QTest::newRow("left edge of the start") << QPoint(60, 17) << none;
    QTest::newRow("left inside of the start") << QPoint(61, 17) << start;
    QTest::newRow("right inside of the start") << QPoint(94, 17) << start;
    QTest::newRow("right edge of the start") << QPoint(95, 17) << none;
    QTest::newRow("top edge") << QPoint(70, 0) << none;
    QTest::newRow("top inside") << QPoint(70, 1) << start;
    QTest::newRow("bottom inside") << QPoint(190, 34) << stop;
    QTest::newRow("bottom edge") << QPoint(190, 35) << none;
    QTest::newRow("left edge of the stop") << QPoint(180, 17) << none;
    QTest::newRow("left inside of the stop") << QPoint(181, 17) << stop;
    QTest::newRow("on the track") << QPoint(120, 17) << none;
}

void tst_RangedScaleSlider::grabsOnlyInsideTheOutline()
{
    QFETCH(QPoint, place);
    QFETCH(QString, signal);
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(place);

    QCOMPARE(recorder.taken().join(QLatin1Char(' ')), signal);
}

void tst_RangedScaleSlider::takesTheStartWhereHandlesOverlap()
{
    Slider slider;
    slider.put(690.0, 700.0); // 174 to 209, and 180 to 215
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    tap(hand, QPoint(208, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleFinishedMoving(690)" }));

    tap(hand, QPoint(209, 17));
    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleFinishedMoving(700)" }));
}

void tst_RangedScaleSlider::grabsWithAnyButton()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart, Qt::RightButton);
    hand.release(onStart);

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleFinishedMoving(500)" }));
}

void tst_RangedScaleSlider::grabsNothingWhileDisabled()
{
    Slider slider;
    slider.setEnabled(false);
    slider.setNudge(1.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(onStart, onStop);
    turnWheel(slider, 120);

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::dragsTheStart()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()" }));

    hand.move(QPoint(100, 17)); // 30 pixels: left 90
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(550)" }));
    QCOMPARE(slider.currentValueMin(), 550.0);

    hand.move(QPoint(10, 59)); // left 0, and outside of the handle
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(400)" }));

    hand.move(QPoint(190, 17)); // left 180: level with the stop
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(700)" }));

    hand.release(QPoint(190, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleFinishedMoving(700)" }));
}

void tst_RangedScaleSlider::dragsTheStop()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    hand.move(QPoint(310, 17)); // 120 pixels: left 300
    hand.move(QPoint(70, 17));  // left 60: level with the start
    hand.release(QPoint(70, 17));

    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleMoved(900)",
                                      "stopHandleMoved(500)", "stopHandleFinishedMoving(500)" }));
    QCOMPARE(slider.currentValueMax(), 500.0);
}

void tst_RangedScaleSlider::clampsTheDraggedStopToTheStartRange()
{
    Slider slider(400.0, 600.0, 400.0, 900.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    hand.move(onStop + QPoint(30, 0)); // 750 is in the range of the stop

    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleMoved(600)" }));
    QCOMPARE(slider.currentValueMax(), 600.0);
}

void tst_RangedScaleSlider::parksTheStartAtTheStop()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    hand.move(QPoint(250, 17));
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleMoved(700)" }));

    hand.move(QPoint(260, 17)); // and again, on each further move
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(700)" }));

    hand.move(QPoint(100, 17)); // from 70, where the last accepted step was: left 90
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(550)" }));

    hand.move(QPoint(250, 17));
    hand.release(QPoint(250, 17));
    recorder.taken();
    hand.press(QPoint(91, 17)); // the handle has not moved
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()" }));
}

void tst_RangedScaleSlider::stopsTheStartAtItsLowerEnd()
{
    Slider slider(450.0, 900.0); // the scale still begins at 400
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    hand.move(QPoint(20, 17)); // left 10 would be 416.7
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleMoved(450)" }));

    hand.move(QPoint(50, 17)); // the handle has stayed at 60, and 20 counts: left 90
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(550)" }));
}

void tst_RangedScaleSlider::staysSilentBeyondTheLowerEnd()
{
    Slider slider(450.0, 900.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    hand.move(QPoint(20, 17));
    recorder.taken();
    hand.move(QPoint(-30, 17)); // left 10 from 20 on
    QCOMPARE(recorder.taken(), QStringList());

    hand.move(QPoint(20, 17)); // no way from 20
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(500)" }));
}

void tst_RangedScaleSlider::leavesTheStartAboveItsUpperEnd()
{
    Slider slider(400.0, 600.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    recorder.taken();
    hand.move(onStart + QPoint(90, 0)); // 650: above 600, below the stop

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValueMin(), 500.0);
    hand.move(onStart + QPoint(60, 0)); // from the press still
    QCOMPARE(recorder.taken(), list({ "startHandleMoved(600)" }));
}

void tst_RangedScaleSlider::leavesTheStartThatIsAtItsUpperEnd()
{
    Slider slider(400.0, 500.0);
    slider.put(500.0, 450.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    recorder.taken();
    hand.move(onStart + QPoint(1, 0));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValueMin(), 500.0);
}

void tst_RangedScaleSlider::parksTheStopAtTheStart()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    hand.move(QPoint(60, 17)); // left 50 would be 483.3
    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleMoved(500)" }));

    hand.move(QPoint(100, 17)); // from 190, where the last accepted step was: left 90
    QCOMPARE(recorder.taken(), list({ "stopHandleMoved(550)" }));

    hand.move(QPoint(60, 17));
    hand.release(QPoint(60, 17));
    recorder.taken();
    hand.press(QPoint(124, 17)); // the handle has not moved from 90
    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()" }));
}

void tst_RangedScaleSlider::dropsTheStopBelowItsRangeToTheStart()
{
    Slider slider(400.0, 900.0, 650.0, 900.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    hand.move(onStop - QPoint(60, 0)); // 600: below 650, above the start

    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleMoved(500)" }));
    QCOMPARE(slider.currentValueMax(), 500.0);
}

void tst_RangedScaleSlider::stopsTheStopAtItsUpperEnd()
{
    Slider slider(400.0, 900.0, 400.0, 850.0); // the scale still ends at 900
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    hand.move(QPoint(300, 17)); // left 290 would be 883.3
    QCOMPARE(recorder.taken(), list({ "stopHandleGrapped()", "stopHandleMoved(850)" }));

    hand.move(QPoint(420, 17)); // left 300 from 300 on
    QCOMPARE(recorder.taken(), QStringList());

    hand.move(QPoint(270, 17)); // the handle has stayed at 180, and 300 counts: left 150
    QCOMPARE(recorder.taken(), list({ "stopHandleMoved(650)" }));
}

void tst_RangedScaleSlider::leavesTheStopThatIsAtItsLowerEnd()
{
    Slider slider(400.0, 900.0, 700.0, 900.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStop);
    recorder.taken();
    hand.move(onStop - QPoint(30, 0));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValueMax(), 700.0);
}

void tst_RangedScaleSlider::reportsAReleaseAlways()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    tap(hand, onStart);
    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleFinishedMoving(500)" }));

    hand.release(onStart); // of nothing
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::goesOnFromASetValueInADrag()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    slider.setCurrentStartValue(600.0, false); // left 120
    QCOMPARE(slider.currentValueMin(), 600.0);
    hand.move(onStart + QPoint(30, 0));

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleMoved(650)" }));
}

void tst_RangedScaleSlider::letsGoOfAHandleThatWasDisabled()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    recorder.taken();
    slider.setEnabled(false);
    hand.release(onStart); // does not arrive
    slider.setEnabled(true);
    hand.move(onStart + QPoint(30, 0));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValueMin(), 500.0);
    hand.release(onStart);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::dragsOnAfterItWasDisabled()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    slider.setEnabled(false);
    hand.move(onStart + QPoint(60, 0));
    slider.setEnabled(true);
    hand.move(onStart + QPoint(30, 0));
    hand.release(onStart + QPoint(30, 0));

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "startHandleMoved(550)",
                                      "startHandleFinishedMoving(550)" }));
}

void tst_RangedScaleSlider::startsAnewAfterALostRelease()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(onStart);
    slider.hide();
    hand.release(onStart + QPoint(0, 40)); // Qt would not send it
    slider.show();
    recorder.taken();
    hand.press(onStart);
    slider.hide();
    slider.show();
    hand.press(QPoint(120, 17)); // on the track, with the button that was released unheard
    hand.move(QPoint(150, 17));

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()" }));
}

void tst_RangedScaleSlider::shiftsBothEndsWithTheWheel_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("stop");
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("newStart");
    QTest::addColumn<double>("newStop");
    QTest::addColumn<QString>("moved"); // which ends report a move, in order

    // The start goes from 450 to 650, the stop from 600 to 850, a notch is 10.
    QTest::newRow("one notch up") << 500.0 << 700.0 << 120 << 510.0 << 710.0 << "start stop";
    QTest::newRow("two notches down") << 500.0 << 700.0 << -240 << 480.0 << 680.0 << "start stop";
    QTest::newRow("less than a notch") << 500.0 << 700.0 << 119 << 500.0 << 700.0 << "start stop";
    QTest::newRow("less than a notch down")
        << 500.0 << 700.0 << -119 << 500.0 << 700.0 << "start stop";
    QTest::newRow("just to the lower end of the start")
        << 460.0 << 700.0 << -120 << 450.0 << 690.0 << "start stop";
    QTest::newRow("beyond the lower end of the start")
        << 455.0 << 700.0 << -120 << 450.0 << 690.0 << "start stop";
    QTest::newRow("at the lower end of the start")
        << 450.0 << 700.0 << -120 << 450.0 << 690.0 << "stop";
    QTest::newRow("start above its upper end, below the stop")
        << 645.0 << 700.0 << 120 << 645.0 << 710.0 << "stop";
    QTest::newRow("start pushed onto the stop")
        << 645.0 << 650.0 << 120 << 650.0 << 660.0 << "start stop";
    QTest::newRow("start at its upper end") << 650.0 << 655.0 << 120 << 650.0 << 665.0 << "stop";
    QTest::newRow("beyond the upper end of the stop")
        << 500.0 << 845.0 << 120 << 510.0 << 850.0 << "start stop";
    QTest::newRow("at the upper end of the stop")
        << 500.0 << 850.0 << 120 << 510.0 << 850.0 << "start";
    QTest::newRow("stop below its range falls to the start")
        << 500.0 << 605.0 << -120 << 490.0 << 490.0 << "start stop";
    QTest::newRow("stop at its lower end") << 500.0 << 600.0 << -120 << 490.0 << 600.0 << "start";
    QTest::newRow("both at their ends") << 450.0 << 600.0 << -120 << 450.0 << 600.0 << "";
    QTest::newRow("both at their upper ends") << 650.0 << 850.0 << 120 << 650.0 << 850.0 << "";
}

void tst_RangedScaleSlider::shiftsBothEndsWithTheWheel()
{
    QFETCH(double, start);
    QFETCH(double, stop);
    QFETCH(int, delta);
    QFETCH(double, newStart);
    QFETCH(double, newStop);
    QFETCH(QString, moved);
    Slider slider(450.0, 650.0, 600.0, 850.0);
    slider.put(start, stop);
    slider.setNudge(10.0);
    QCOMPARE(slider.nudge(), 10.0);
    SignalRecorder recorder(&slider);

    QVERIFY(turnWheel(slider, delta));

    QStringList expected;
    if (moved.contains(QStringLiteral("start")))
        expected << signalText("startHandleMoved", newStart);
    if (moved.contains(QStringLiteral("stop")))
        expected << signalText("stopHandleMoved", newStop);
    expected << signalText("startHandleFinishedMoving", newStart)
             << signalText("stopHandleFinishedMoving", newStop);
    QCOMPARE(recorder.taken(), expected);
    QCOMPARE(slider.currentValueMin(), newStart);
    QCOMPARE(slider.currentValueMax(), newStop);
}

void tst_RangedScaleSlider::leavesTheWheelAloneWithoutANudge_data()
{
    QTest::addColumn<double>("nudge");

    QTest::newRow("nothing") << 0.0;
    QTest::newRow("less than nothing") << -1.0;
    QTest::newRow("not a number") << qQNaN();
    QTest::newRow("infinite") << qInf();
}

void tst_RangedScaleSlider::leavesTheWheelAloneWithoutANudge()
{
    QFETCH(double, nudge);
    Slider slider;
    slider.setNudge(nudge);
    SignalRecorder recorder(&slider);

    QVERIFY(!turnWheel(slider, 120)); // and the page may scroll

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedScaleSlider::movesTheHandlesWithTheWheel()
{
    Slider slider;
    slider.setNudge(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    turnWheel(slider, 120); // lefts 90 and 210
    recorder.taken();
    hand.press(QPoint(91, 17));
    hand.press(QPoint(244, 17));

    QCOMPARE(recorder.taken(), list({ "startHandleGrapped()", "stopHandleGrapped()" }));
}

void tst_RangedScaleSlider::keepsFixedHandlesUnderTheWheel()
{
    Slider slider;
    slider.setNudge(10.0);
    slider.setFixedStart(true, 500.0);
    SignalRecorder recorder(&slider);

    turnWheel(slider, 120);
    QCOMPARE(recorder.taken(), list({ "stopHandleMoved(710)", "startHandleFinishedMoving(500)",
                                      "stopHandleFinishedMoving(710)" }));

    slider.setFixedStop(true, 710.0);
    turnWheel(slider, 120);
    QCOMPARE(recorder.taken(),
             list({ "startHandleFinishedMoving(500)", "stopHandleFinishedMoving(710)" }));
}

void tst_RangedScaleSlider::survivesItsDeletionByAListener_data()
{
    QTest::addColumn<int>("signalIndex");
    QTest::addColumn<bool>("byWheel");

    QTest::newRow("start moved, drag") << 0 << false;
    QTest::newRow("stop moved, drag") << 1 << false;
    QTest::newRow("start finished, drag") << 2 << false;
    QTest::newRow("stop finished, drag") << 3 << false;
    QTest::newRow("start taken") << 4 << false;
    QTest::newRow("stop taken") << 5 << false;
    QTest::newRow("start moved, wheel") << 0 << true;
    QTest::newRow("stop moved, wheel") << 1 << true;
    QTest::newRow("start finished, wheel") << 2 << true;
    QTest::newRow("stop finished, wheel") << 3 << true;
}

void tst_RangedScaleSlider::survivesItsDeletionByAListener()
{
    QFETCH(int, signalIndex);
    QFETCH(bool, byWheel);
    // Events are called, not sent: Qt itself does not live through a receiver that goes.
    struct Open : public Slider
    {
        using RangedScaleSlider::mouseMoveEvent;
        using RangedScaleSlider::mousePressEvent;
        using RangedScaleSlider::mouseReleaseEvent;
        using RangedScaleSlider::wheelEvent;
    };
    auto *slider = new Open;
    slider->setNudge(1.0);
    const QPointer<Open> alive(slider);
    const auto removeIt = [slider](double = 0.0) { delete slider; };
    using Signal = void (RangedScaleSlider::*)(double);
    const Signal reports[] = { &RangedScaleSlider::startHandleMoved,
                               &RangedScaleSlider::stopHandleMoved,
                               &RangedScaleSlider::startHandleFinishedMoving,
                               &RangedScaleSlider::stopHandleFinishedMoving };
    if (signalIndex < 4)
        connect(slider, reports[signalIndex], qApp, removeIt);
    else if (signalIndex == 4)
        connect(slider, &RangedScaleSlider::startHandleGrapped, qApp, removeIt);
    else
        connect(slider, &RangedScaleSlider::stopHandleGrapped, qApp, removeIt);

    if (byWheel) {
        QWheelEvent turn(QPointF(), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        slider->wheelEvent(&turn);
    }
    const QPoint place = signalIndex % 2 == 0 ? onStart : onStop;
    QMouseEvent press(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    if (alive)
        slider->mousePressEvent(&press);
    if (alive)
        slider->mouseMoveEvent(&move);
    if (alive)
        slider->mouseReleaseEvent(&release);

    QVERIFY(alive.isNull());
}

void tst_RangedScaleSlider::livesWithoutAScale_data()
{
    QTest::addColumn<QList<double>>("ranges");

    QTest::newRow("no ranges yet") << QList<double>();
    QTest::newRow("no span") << QList<double>{ 400.0, 400.0, 400.0, 400.0 };
    QTest::newRow("start above stop") << QList<double>{ 400.0, 900.0, 100.0, 200.0 };
    QTest::newRow("larger than a number can be")
        << QList<double>{ -1.7e308, 1.7e308, -1.7e308, 1.7e308 };
    QTest::newRow("smaller than a number can be") << QList<double>{ 0.0, 5e-324, 0.0, 5e-324 };
}

void tst_RangedScaleSlider::livesWithoutAScale()
{
    QFETCH(QList<double>, ranges);
    RangedScaleSlider slider(nullptr);
    slider.resize(width, slider.height());
    slider.show();
    if (!ranges.isEmpty()) {
        slider.setStartRange(ranges.at(0), ranges.at(1));
        slider.setStopRange(ranges.at(2), ranges.at(3));
    }
    slider.setCurrentStopValue(1e9, false);
    slider.setCurrentStartValue(-1e9, false);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    // Both handles rest at the left end, and a drag leaves them in view.
    slider.resize(width + 10, slider.height());
    hand.press(QPoint(1, 17));
    hand.move(QPoint(200, 17));
    hand.release(QPoint(200, 17));
    hand.press(QPoint(34, 17));
    QCOMPARE(recorder.entries().count(QStringLiteral("startHandleGrapped()")), 2);
    hand.release(QPoint(34, 17));
    slider.setNudge(1.0);
    turnWheel(slider, -120);
    QVERIFY(!slider.grab().isNull());
    for (const double value :
         { slider.currentValueMin(), slider.currentValueMax(), slider.accordingValue(100) })
        QVERIFY(qIsFinite(value));
}

void tst_RangedScaleSlider::livesWithoutRoom_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("margins");
    QTest::addColumn<double>("first"); // of the scale

    // Below the room of a label the scale is made for one: in a step of 250.
    QTest::newRow("as wide as a handle") << 35 << 0 << 250.0;
    QTest::newRow("narrower than a handle") << 20 << 0 << 250.0;
    QTest::newRow("no width") << 0 << 0 << 250.0;
    QTest::newRow("nothing between the margins") << 335 << 150 << 400.0;
    QTest::newRow("margins that cross") << 335 << 400 << 400.0;
    QTest::newRow("the largest margins") << 335 << std::numeric_limits<int>::max() << 400.0;
    QTest::newRow("the smallest margins") << 335 << std::numeric_limits<int>::min() << 400.0;
}

void tst_RangedScaleSlider::livesWithoutRoom()
{
    QFETCH(int, length);
    QFETCH(int, margins);
    Slider slider;
    slider.setMinimumWidth(0);
    slider.setSideMargins(margins);
    slider.resize(length, slider.height());
    slider.setNudge(1.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(onStart, onStop);
    hand.drag(QPoint(5, 5), QPoint(9, 9));
    QVERIFY(turnWheel(slider, 120));
    slider.grab();

    QTEST(slider.accordingValue(qBound(-QWIDGETSIZE_MAX, margins, QWIDGETSIZE_MAX)), "first");
    QCOMPARE(recorder.entries().last(), signalText("stopHandleFinishedMoving", 701.0));
}

PELORIN_TEST_MAIN(tst_RangedScaleSlider)
#include "tst_rangedscaleslider.moc"
