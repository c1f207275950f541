#include "Pelorin/sliders/ScaleSlider.h"
#include "tests/sliders/HandleProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QFontMetrics>
#include <QMetaEnum>
#include <QPointer>
#include <QWheelEvent>

#include <limits>

Q_DECLARE_METATYPE(ScaleSlider::ScaleType)

namespace {

using HandleProbe::handleLeft;

/// 300 pixels of travel: three for each of a hundred.
class Slider : public ScaleSlider
{
public:
    explicit Slider(int width = 335)
    {
        resize(width, height());
        show();
    }

    Slider(ScaleType type, double min, double max)
        : Slider()
    {
        setScaleType(type);
        setRange(min, max);
        setCurrentValue(min);
    }

    Slider(ScaleType type, const QList<double> &steps)
        : Slider()
    {
        setScaleType(type);
        setStepList(steps);
        setCurrentValue(steps.value(0));
    }
};

constexpr auto linear = ScaleSlider::LinearScale;
constexpr auto logarithmic = ScaleSlider::LogarithmicScale;
constexpr auto steps = ScaleSlider::StepScale;
constexpr auto interpolated = ScaleSlider::StepScaleInterpolated;

} // namespace

class tst_ScaleSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsWithTheDefaults();

    void takesAValueInItsRange_data();
    void takesAValueInItsRange();
    void takesAValueAsText();
    void keepsLogarithmicValuesAsExponents();
    void leavesTheHandleWhenTheRangeChanges();
    void leavesTheHandleWhenTheMarginsChange();
    void convertsNothingWhenTheTypeChanges();
    void hasTheRangeOfItsSteps();
    void keepsAShortStepListOnly_data();
    void keepsAShortStepListOnly();
    void findsTheNearestStep_data();
    void findsTheNearestStep();
    void findsTheIndexOfAStep_data();
    void findsTheIndexOfAStep();
    void tellsTheValueAtAPlace();
    void spacesStepsEvenly();
    void movesTheHandleWhenResized();

    void dragsTheHandle();
    void speaksInRealValuesOnALogarithmicScale();
    void leapsFromStepToStepWhileTheHandleGlides();
    void stopsTheValueAtTheEndOfTheRange_data();
    void stopsTheValueAtTheEndOfTheRange();
    void tellsTheEndOfADragThatMovedNothing();
    void takesTheHandleStrictlyInside_data();
    void takesTheHandleStrictlyInside();
    void takesAnyButton();
    void movesUnderTheHandWhenSet();
    void takesNoHandleWhileDisabled();
    void letsGoWhatWasReleasedWhileDisabled();
    void letsGoWhatWasReleasedWhileHidden();
    void goesOnWithADragThatOutlastsADisabling();
    void swallowsTheWheel();
    void mayBeDeletedWhileItReports_data();
    void mayBeDeletedWhileItReports();

    void ignoresWhatIsNoNumber();
    void ignoresARangeThatIsNotFinite_data();
    void ignoresARangeThatIsNotFinite();
    void livesWithARangeWithoutSpan_data();
    void livesWithARangeWithoutSpan();
    void takesALogarithmicRangeFromZero_data();
    void takesALogarithmicRangeFromZero();
    void livesInANarrowWidget_data();
    void livesInANarrowWidget();
    void livesWithoutSteps_data();
    void livesWithoutSteps();
    void livesThroughAbsurdNumbers();
};

void tst_ScaleSlider::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = ScaleSlider::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list({ "handleMoved(double)", "handleFinishedMoving(double)", "handleGrapped()",
                    "wheelMoved(int)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             list({ "setRange(double,double)", "setCurrentValue(double)",
                    "setCurrentValueString(QString)", "setAll(double,double,double)",
                    "setScaleType(ScaleSlider::ScaleType)", "setStepList(QList<double>)",
                    "setPrecision(int)" }));
    const QMetaEnum types = QMetaEnum::fromType<ScaleSlider::ScaleType>();
    QCOMPARE(types.keyCount(), 4);
    QCOMPARE(types.valueToKey(0), "LinearScale");
    QCOMPARE(types.valueToKey(1), "LogarithmicScale");
    QCOMPARE(types.valueToKey(2), "StepScale");
    QCOMPARE(types.valueToKey(3), "StepScaleInterpolated");
}

void tst_ScaleSlider::startsWithTheDefaults()
{
    Slider slider;
    const QFontMetrics metrics(QFont(QStringLiteral("Calibri"), 10, -1, false));

    QCOMPARE(slider.minimumWidth(), 150);
    QCOMPARE(slider.minimumHeight(), metrics.height() + 39);
    QCOMPARE(slider.maximumHeight(), metrics.height() + 39);
    QVERIFY(slider.hasMouseTracking());
    QCOMPARE(slider.currentValue(), 0.0);
    QCOMPARE(handleLeft(slider), 0);
    QCOMPARE(slider.accordingValue(300), 100.0);
    QCOMPARE(slider.steplistIndexOf(100.0), 1); // 0 and 100
}

void tst_ScaleSlider::takesAValueInItsRange_data()
{
    QTest::addColumn<ScaleSlider::ScaleType>("type");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stored");
    QTest::addColumn<int>("left");

    QTest::newRow("inside") << linear << 0.0 << 100.0 << 50.0 << 50.0 << 150;
    QTest::newRow("cut to a pixel") << linear << 0.0 << 100.0 << 50.3 << 50.3 << 150;
    QTest::newRow("below") << linear << 10.0 << 90.0 << 3.0 << 10.0 << 0;
    QTest::newRow("above") << linear << 10.0 << 90.0 << 91.0 << 90.0 << 300;
    QTest::newRow("negative range") << linear << -200.0 << -100.0 << -150.0 << -150.0 << 150;
    QTest::newRow("infinite") << linear << 0.0 << 100.0 << qInf() << 100.0 << 300;
    QTest::newRow("minus infinity") << linear << 0.0 << 100.0 << -qInf() << 0.0 << 0;
    QTest::newRow("decade") << logarithmic << 1.0 << 1000.0 << 100.0 << 100.0 << 200;
    QTest::newRow("below the decades") << logarithmic << 10.0 << 1000.0 << 1.0 << 10.0 << 0;
    QTest::newRow("above the decades") << logarithmic << 1.0 << 1000.0 << 2.0e4 << 1000.0 << 300;
    QTest::newRow("zero on decades") << logarithmic << 1.0 << 1000.0 << 0.0 << 1.0 << 0;
    QTest::newRow("negative on decades") << logarithmic << 1.0 << 1000.0 << -5.0 << 1.0 << 0;
}

void tst_ScaleSlider::takesAValueInItsRange()
{
    QFETCH(ScaleSlider::ScaleType, type);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(int, left);
    Slider slider(type, min, max);
    SignalRecorder recorder(&slider);

    slider.setCurrentValue(value);

    QTEST(slider.currentValue(), "stored");
    QCOMPARE(handleLeft(slider), left);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSlider::takesAValueAsText()
{
    Slider slider;

    slider.setCurrentValueString(QStringLiteral("12.5"));
    QCOMPARE(slider.currentValue(), 12.5);

    slider.setCurrentValueString(QStringLiteral("twelve"));
    QCOMPARE(slider.currentValue(), 0.0);
}

void tst_ScaleSlider::keepsLogarithmicValuesAsExponents()
{
    Slider slider(logarithmic, 1.0, 1000.0);

    slider.setCurrentValue(100.0);

    QCOMPARE(slider.currentValue(), 100.0);
    QCOMPARE(slider.accordingValue(200), 2.0);

    slider.setScaleType(linear); // what is stored shows
    QCOMPARE(slider.currentValue(), 2.0);
}

void tst_ScaleSlider::leavesTheHandleWhenTheRangeChanges()
{
    Slider slider;
    slider.setCurrentValue(50.0);

    slider.setRange(0.0, 200.0);
    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(handleLeft(slider), 150);

    slider.setAll(0.0, 200.0, 50.0);
    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(handleLeft(slider), 75);

    slider.setRange(60.0, 200.0);
    QCOMPARE(slider.currentValue(), 50.0); // not even out of the range
}

void tst_ScaleSlider::leavesTheHandleWhenTheMarginsChange()
{
    Slider slider;
    slider.setCurrentValue(50.0);

    slider.setSideMargins(30);
    QCOMPARE(handleLeft(slider), 150);

    slider.setCurrentValue(25.0);
    QCOMPARE(handleLeft(slider), 30 + 60); // a quarter of 240 pixels

    slider.setCurrentValue(100.0);
    QCOMPARE(handleLeft(slider), 270);
}

void tst_ScaleSlider::convertsNothingWhenTheTypeChanges()
{
    Slider slider;
    slider.setRange(0.0, 3.0);
    slider.setCurrentValue(2.0);

    slider.setScaleType(logarithmic);

    QCOMPARE(slider.currentValue(), 100.0);
}

void tst_ScaleSlider::hasTheRangeOfItsSteps()
{
    Slider slider(steps, { 1.0, 2.0, 5.0 });

    slider.setRange(100.0, 200.0);
    slider.setCurrentValue(150.0);
    QCOMPARE(slider.currentValue(), 5.0);

    slider.setCurrentValue(-10.0);
    QCOMPARE(slider.currentValue(), 1.0);
}

void tst_ScaleSlider::keepsAShortStepListOnly_data()
{
    QTest::addColumn<QList<double>>("list");

    QTest::newRow("empty") << QList<double>();
    QTest::newRow("one entry") << QList<double>{ 70.0 };
}

void tst_ScaleSlider::keepsAShortStepListOnly()
{
    QFETCH(QList<double>, list);
    Slider slider;
    slider.setRange(10.0, 60.0);
    slider.setCurrentValue(50.0);

    slider.setStepList(list);

    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(slider.accordingValue(300), 60.0);
    QCOMPARE(slider.steplistIndexOf(1.0), list.size() - 1);
    slider.setCurrentValue(100.0);
    QCOMPARE(slider.currentValue(), 60.0);
}

void tst_ScaleSlider::findsTheNearestStep_data()
{
    QTest::addColumn<ScaleSlider::ScaleType>("type");
    QTest::addColumn<QList<double>>("list");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("nearest");

    const QList<double> some{ 1.0, 2.0, 5.0 };
    QTest::newRow("nearer to the lower") << steps << some << 3.4 << 2.0;
    QTest::newRow("exact middle") << steps << some << 3.5 << 5.0;
    QTest::newRow("interpolated") << interpolated << some << 1.2 << 1.0;
    QTest::newRow("beyond") << steps << some << 80.0 << 5.0;
    QTest::newRow("one step") << steps << QList<double>{ 7.0 } << 3.3 << 3.3;
    QTest::newRow("no steps") << interpolated << QList<double>() << 3.3 << 3.3;
    QTest::newRow("linear") << linear << some << 3.4 << 3.4;
    QTest::newRow("logarithmic") << logarithmic << some << 3.4 << 3.4;
}

void tst_ScaleSlider::findsTheNearestStep()
{
    QFETCH(ScaleSlider::ScaleType, type);
    QFETCH(QList<double>, list);
    QFETCH(double, value);
    Slider slider(type, list);

    QTEST(slider.nearestStepValue(value), "nearest");
}

void tst_ScaleSlider::findsTheIndexOfAStep_data()
{
    QTest::addColumn<QList<double>>("list");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("index");

    const QList<double> some{ 1.0, 2.0, 5.0 };
    QTest::newRow("on a step") << some << 2.0 << 1;
    QTest::newRow("on the first") << some << 1.0 << 0;
    QTest::newRow("nearer to the lower") << some << 3.0 << 1;
    QTest::newRow("a tie goes up") << some << 3.5 << 2;
    QTest::newRow("below all") << some << 0.0 << 2;
    QTest::newRow("above all") << some << 9.0 << 2;
    QTest::newRow("not a number") << some << qQNaN() << 2;
    QTest::newRow("one step") << QList<double>{ 3.0 } << 3.0 << 0;
    QTest::newRow("no steps") << QList<double>() << 3.0 << -1;
}

void tst_ScaleSlider::findsTheIndexOfAStep()
{
    QFETCH(QList<double>, list);
    QFETCH(double, value);
    Slider slider(steps, list);

    QTEST(slider.steplistIndexOf(value), "index");
}

void tst_ScaleSlider::tellsTheValueAtAPlace()
{
    Slider slider;
    slider.setRange(-100.0, 200.0);
    slider.setSideMargins(50); // 200 pixels of travel

    QCOMPARE(slider.accordingValue(50), -100.0);
    QCOMPARE(slider.accordingValue(150), 50.0);
    QCOMPARE(slider.accordingValue(250), 200.0);
    QCOMPARE(slider.accordingValue(0), -175.0); // not limited
}

void tst_ScaleSlider::spacesStepsEvenly()
{
    Slider slider(steps, { 1.0, 2.0, 500.0 });
    slider.setSideMargins(5); // 290 pixels of travel

    slider.setCurrentValue(2.0);
    QCOMPARE(handleLeft(slider), 150);

    slider.setCurrentValue(500.0);
    QCOMPARE(handleLeft(slider), 295);

    slider.setStepList({ 1.0, 2.0, 500.0, 501.0 });
    slider.setCurrentValue(2.0);
    QCOMPARE(handleLeft(slider), 102); // 5 and a third of 290, rounded
}

void tst_ScaleSlider::movesTheHandleWhenResized()
{
    Slider slider;
    slider.setCurrentValue(50.0);

    slider.resize(535, slider.height());

    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(handleLeft(slider), 250);
}

void tst_ScaleSlider::dragsTheHandle()
{
    Slider slider;
    slider.setCurrentValue(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(QPoint(160, 17));
    QCOMPARE(recorder.taken(), list({ "handleGrapped()" }));

    hand.move(QPoint(190, 17));
    QCOMPARE(recorder.taken(), list({ "handleMoved(60)" }));
    QCOMPARE(slider.currentValue(), 60.0);
    QCOMPARE(handleLeft(slider, HandleProbe::orange), 180);

    hand.move(QPoint(40, 60)); // it need not stay on the track
    QCOMPARE(recorder.taken(), list({ "handleMoved(10)" }));
    QCOMPARE(handleLeft(slider, HandleProbe::orange), 30);

    hand.release(QPoint(40, 60));
    QCOMPARE(recorder.taken(), list({ "handleFinishedMoving(10)" }));
    QCOMPARE(handleLeft(slider), 30); // the mouse is not over it any more

    hand.move(QPoint(45, 17));
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValue(), 10.0);
}

void tst_ScaleSlider::speaksInRealValuesOnALogarithmicScale()
{
    Slider slider(logarithmic, 1.0, 1000.0);
    SignalRecorder recorder(&slider);

    MouseHand(slider).drag(QPoint(17, 17), QPoint(217, 17));

    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "handleMoved(100)", "handleFinishedMoving(100)" }));
}

void tst_ScaleSlider::leapsFromStepToStepWhileTheHandleGlides()
{
    Slider slider(steps, { 0.0, 10.0, 100.0 });
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);
    hand.press(QPoint(5, 17));
    recorder.taken();

    hand.move(QPoint(79, 17)); // just less than a quarter of the way
    QCOMPARE(recorder.taken(), list({ "handleMoved(0)" }));
    QCOMPARE(handleLeft(slider, HandleProbe::orange), 74);

    hand.move(QPoint(80, 17));
    QCOMPARE(recorder.taken(), list({ "handleMoved(10)" }));
    QCOMPARE(handleLeft(slider, HandleProbe::orange), 75);

    hand.move(QPoint(230, 17)); // three quarters
    QCOMPARE(recorder.taken(), list({ "handleMoved(100)" }));
}

void tst_ScaleSlider::stopsTheValueAtTheEndOfTheRange_data()
{
    QTest::addColumn<int>("outside");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("backBy15");

    // Back again, the handle goes on from the end at once: 15 pixels are 5.
    QTest::newRow("above") << 460 << 100.0 << 95.0;
    QTest::newRow("below") << -160 << 0.0 << 5.0;
}

void tst_ScaleSlider::stopsTheValueAtTheEndOfTheRange()
{
    QFETCH(int, outside);
    QFETCH(double, end);
    Slider slider;
    slider.setCurrentValue(50.0);
    QList<double> values;
    connect(&slider, &ScaleSlider::handleMoved, this, [&values](double value) { values << value; });
    MouseHand hand(slider);
    const int outwards = outside > 0 ? 1 : -1;
    hand.press(QPoint(160, 17));

    hand.move(QPoint(outside, 17));
    hand.move(QPoint(outside + 10 * outwards, 17));
    hand.move(QPoint(outside + 90 * outwards, 17));

    QCOMPARE(values, (QList<double>{ end, end, end })); // it comes on each further move
    QCOMPARE(handleLeft(slider, HandleProbe::orange), outwards > 0 ? 300 : 0);

    hand.move(QPoint(outside - 15 * outwards, 17));

    QTEST(slider.currentValue(), "backBy15");

    slider.setCurrentValue(1000.0 * outwards); // from outside the handle goes to the end
    QCOMPARE(slider.currentValue(), end);
    QCOMPARE(handleLeft(slider, HandleProbe::orange), outwards > 0 ? 300 : 0);
}

void tst_ScaleSlider::tellsTheEndOfADragThatMovedNothing()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(QPoint(10, 10));
    hand.release(QPoint(10, 10));

    QCOMPARE(recorder.taken(), list({ "handleGrapped()", "handleFinishedMoving(0)" }));
}

void tst_ScaleSlider::takesTheHandleStrictlyInside_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("taken");

    QTest::newRow("middle") << QPoint(167, 17) << true;
    QTest::newRow("on the left edge") << QPoint(150, 17) << false;
    QTest::newRow("inside of the left edge") << QPoint(151, 17) << true;
    QTest::newRow("on the right edge") << QPoint(185, 17) << false;
    QTest::newRow("inside of the right edge") << QPoint(184, 17) << true;
    QTest::newRow("on the top edge") << QPoint(167, 0) << false;
    QTest::newRow("on the bottom edge") << QPoint(167, 35) << false;
    QTest::newRow("on the track") << QPoint(60, 17) << false;
}

void tst_ScaleSlider::takesTheHandleStrictlyInside()
{
    QFETCH(QPoint, place);
    QFETCH(bool, taken);
    Slider slider;
    slider.setCurrentValue(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.move(place);
    QCOMPARE(handleLeft(slider, HandleProbe::orange), taken ? 150 : -1); // hovered

    hand.press(place);
    hand.move(QPoint(190, 17));
    hand.release(QPoint(190, 17));
    QCOMPARE(recorder.taken().isEmpty(), !taken);
}

void tst_ScaleSlider::takesAnyButton()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(QPoint(17, 17), Qt::RightButton);
    hand.move(QPoint(47, 17));
    hand.release(QPoint(47, 17));

    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "handleMoved(10)", "handleFinishedMoving(10)" }));
}

void tst_ScaleSlider::movesUnderTheHandWhenSet()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);
    hand.press(QPoint(17, 17));
    recorder.taken();

    slider.setCurrentValue(50.0);
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(handleLeft(slider, HandleProbe::orange), 150);

    hand.move(QPoint(47, 17));
    QCOMPARE(recorder.taken(), list({ "handleMoved(60)" }));
}

void tst_ScaleSlider::takesNoHandleWhileDisabled()
{
    Slider slider;
    slider.setEnabled(false);
    SignalRecorder recorder(&slider);

    MouseHand(slider).drag(QPoint(17, 17), QPoint(47, 17));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValue(), 0.0);
}

void tst_ScaleSlider::letsGoWhatWasReleasedWhileDisabled()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);
    hand.press(QPoint(17, 17));
    slider.setEnabled(false);
    hand.release(QPoint(17, 17)); // goes nowhere
    slider.setEnabled(true);
    recorder.taken();

    hand.move(QPoint(47, 17));
    hand.move(QPoint(77, 17));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValue(), 0.0);
    QCOMPARE(handleLeft(slider), 0);
}

void tst_ScaleSlider::letsGoWhatWasReleasedWhileHidden()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand(slider).press(QPoint(17, 17));
    slider.hide();
    slider.show();
    recorder.taken();

    MouseHand(slider).move(QPoint(47, 17)); // without a button

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(slider.currentValue(), 0.0);
}

void tst_ScaleSlider::goesOnWithADragThatOutlastsADisabling()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);
    hand.press(QPoint(17, 17));
    slider.setEnabled(false);
    slider.setEnabled(true);
    recorder.taken();

    hand.move(QPoint(47, 17));
    hand.release(QPoint(47, 17));

    QCOMPARE(recorder.taken(), list({ "handleMoved(10)", "handleFinishedMoving(10)" }));
}

void tst_ScaleSlider::swallowsTheWheel()
{
    Slider slider;
    slider.setNudge(5.0);
    slider.setCurrentValue(50.0);
    SignalRecorder recorder(&slider);
    QWheelEvent event(QPointF(10, 10), slider.mapToGlobal(QPoint(10, 10)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();

    QApplication::sendEvent(&slider, &event);

    QVERIFY(event.isAccepted());
    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSlider::mayBeDeletedWhileItReports_data()
{
    QTest::addColumn<int>("event");

    QTest::newRow("taken") << 0;
    QTest::newRow("moved") << 1;
    QTest::newRow("released") << 2;
}

void tst_ScaleSlider::mayBeDeletedWhileItReports()
{
    QFETCH(int, event);
    QPointer<Slider> slider = new Slider;
    const auto vanish = [slider] { delete slider; };
    if (event == 0)
        connect(slider, &ScaleSlider::handleGrapped, this, vanish);
    else if (event == 1)
        connect(slider, &ScaleSlider::handleMoved, this, vanish);
    else
        connect(slider, &ScaleSlider::handleFinishedMoving, this, vanish);
    MouseHand hand(*slider);

    hand.press(QPoint(17, 17));
    if (event > 0)
        hand.move(QPoint(47, 17));
    if (event > 1)
        hand.release(QPoint(47, 17));

    QVERIFY(slider.isNull());
}

void tst_ScaleSlider::ignoresWhatIsNoNumber()
{
    Slider slider;
    slider.setCurrentValue(50.0);

    slider.setCurrentValue(qQNaN());
    slider.setCurrentValueString(QStringLiteral("nan"));
    slider.setStepList({ 1.0, qQNaN() });
    slider.setStepList({ 1.0, qInf() });

    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(slider.steplistIndexOf(100.0), 1); // still 0 and 100
    QCOMPARE(slider.accordingValue(300), 100.0);
}

void tst_ScaleSlider::ignoresARangeThatIsNotFinite_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("no minimum") << qQNaN() << 5.0;
    QTest::newRow("no maximum") << 5.0 << qQNaN();
    QTest::newRow("infinite minimum") << -qInf() << 5.0;
    QTest::newRow("infinite maximum") << 5.0 << qInf();
}

void tst_ScaleSlider::ignoresARangeThatIsNotFinite()
{
    QFETCH(double, min);
    QFETCH(double, max);
    Slider slider;
    slider.setCurrentValue(50.0);

    slider.setRange(min, max);

    QCOMPARE(slider.accordingValue(0), 0.0);
    QCOMPARE(slider.accordingValue(300), 100.0);
    QCOMPARE(slider.currentValue(), 50.0);
}

void tst_ScaleSlider::livesWithARangeWithoutSpan_data()
{
    QTest::addColumn<ScaleSlider::ScaleType>("type");
    QTest::addColumn<bool>("decades");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");

    const double huge = std::numeric_limits<double>::max();
    QTest::newRow("one point") << linear << false << 5.0 << 5.0 << 5.0;
    QTest::newRow("reversed") << linear << false << 9.0 << 5.0 << 9.0;
    QTest::newRow("wider than a double") << linear << false << -huge << huge << 7.0;
    QTest::newRow("one decade") << logarithmic << false << 10.0 << 10.0 << 10.0;
    QTest::newRow("one decade, in decades") << logarithmic << true << 10.0 << 10.0 << 10.0;
    QTest::newRow("reversed decades") << logarithmic << true << 1000.0 << 10.0 << 1000.0;
}

void tst_ScaleSlider::livesWithARangeWithoutSpan()
{
    QFETCH(ScaleSlider::ScaleType, type);
    QFETCH(bool, decades);
    QFETCH(double, min);
    QFETCH(double, max);
    Slider slider;
    slider.setScaleType(type);
    slider.setTraditionalLogarithmicScale(decades);
    slider.setRange(min, max);

    slider.setCurrentValue(7.0);

    QTEST(slider.currentValue(), "value");
    QVERIFY(handleLeft(slider) >= 0);
    MouseHand(slider).drag(QPoint(17, 17), QPoint(47, 17));
    QVERIFY(qIsFinite(slider.currentValue()));
    slider.resize(200, slider.height());
    QVERIFY(qIsFinite(slider.accordingValue(10)));
}

void tst_ScaleSlider::takesALogarithmicRangeFromZero_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<bool>("decades");

    QTest::newRow("zero") << 0.0 << false;
    QTest::newRow("negative") << -4.0 << false;
    QTest::newRow("zero, in decades") << 0.0 << true;
    QTest::newRow("negative, in decades") << -4.0 << true;
}

void tst_ScaleSlider::takesALogarithmicRangeFromZero()
{
    QFETCH(double, min);
    QFETCH(bool, decades);
    Slider slider;
    slider.setScaleType(logarithmic);
    slider.setTraditionalLogarithmicScale(decades);
    slider.setRange(min, 100.0);

    slider.setCurrentValue(0.001);
    QCOMPARE(slider.currentValue(), 0.001);
    slider.setCurrentValue(1000.0);
    QCOMPARE(slider.currentValue(), 100.0);
    slider.setCurrentValue(-1.0);
    QCOMPARE(slider.currentValue(), 0.0);

    QVERIFY(handleLeft(slider) >= 0);
    SignalRecorder recorder(&slider);
    const int left = handleLeft(slider);
    MouseHand(slider).drag(QPoint(left + 5, 17), QPoint(left + 35, 17));
    QCOMPARE(recorder.taken().size(), 3);
}

void tst_ScaleSlider::livesInANarrowWidget_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("margins");
    QTest::addColumn<QPoint>("press");

    QTest::newRow("as wide as the handle") << 35 << 0 << QPoint(5, 17);
    QTest::newRow("narrower than the handle") << 10 << 0 << QPoint(5, 17);
    QTest::newRow("a pixel") << 1 << 0 << QPoint(5, 17);
    QTest::newRow("all margin") << 150 << 90 << QPoint(95, 17);
    QTest::newRow("negative margins") << 149 << -42 << QPoint(62, 17); // half of 198, less 42
}

void tst_ScaleSlider::livesInANarrowWidget()
{
    QFETCH(int, width);
    QFETCH(int, margins);
    QFETCH(QPoint, press);
    Slider slider;
    slider.setMinimumWidth(0);
    slider.setSideMargins(margins);
    slider.resize(width, slider.height());
    slider.setCurrentValue(50.0);
    SignalRecorder recorder(&slider);

    MouseHand(slider).drag(press, press);

    QCOMPARE(slider.currentValue(), 50.0);
    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "handleMoved(50)", "handleFinishedMoving(50)" }));
    PaintRecorder paper(slider);
    QVERIFY(slider.grab().width() == width);
}

void tst_ScaleSlider::livesWithoutSteps_data()
{
    keepsAShortStepListOnly_data();
}

void tst_ScaleSlider::livesWithoutSteps()
{
    QFETCH(QList<double>, list);
    for (const auto type : { steps, interpolated }) {
        Slider slider;
        slider.setScaleType(type);
        slider.setStepList(list);

        slider.setCurrentValue(40.0);
        QCOMPARE(slider.currentValue(), 40.0);
        QCOMPARE(handleLeft(slider), 0);

        MouseHand(slider).drag(QPoint(17, 17), QPoint(47, 17));
        QCOMPARE(slider.currentValue(), 10.0);
        slider.resize(500, slider.height());
        PaintRecorder paper(slider);
        QCOMPARE(paper.textList().size(), 2);
    }
}

void tst_ScaleSlider::livesThroughAbsurdNumbers()
{
    const int huge = std::numeric_limits<int>::max();
    Slider slider(steps, { -1.0e300, 0.0, 1.0e300 });
    for (const int number : { huge, -huge - 1, -1, 0 }) {
        slider.setMaxStepTicks(number);
        slider.setPrecision(number);
        slider.setMaxLabelIntervals(uint(number));
        for (const auto type : { linear, logarithmic, steps, interpolated }) {
            slider.setScaleType(type);
            slider.setAll(0.0, 1.0e300, 1.0e200);
            PaintRecorder paper(slider);
            slider.setStepList({ 0.0, 1.0e9 }); // as exponents: a thousand million decades
            slider.setTraditionalLogarithmicScale(true);
            slider.setScaleType(type);
            PaintRecorder decades(slider);
            slider.setTraditionalLogarithmicScale(false);
        }
        slider.setSideMargins(number);
        slider.setCurrentValue(5.0);
        slider.grab();
        slider.setSideMargins(0);
    }
    QVERIFY(slider.accordingValue(huge) != 0.0);
}

PELORIN_TEST_MAIN(tst_ScaleSlider)
#include "tst_scaleslider.moc"
