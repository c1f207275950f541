#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QVBoxLayout>

namespace {

constexpr int handleSize = 35;
constexpr int length = 1035; // 1000 pixels of travel: 100 handle units each

/// A slider of a known length, active and with the focus where a test asks for it.
class Slider : public ScaleSliderNG
{
public:
    explicit Slider(ScaleType type = ScaleLinear, Qt::Orientation orientation = Qt::Horizontal)
        : ScaleSliderNG(orientation, type, nullptr)
    {
        if (orientation == Qt::Horizontal)
            resize(length, height());
        else
            resize(width(), length);
        show(); // the layout of a hidden widget waits
    }

    void takeFocus(Qt::FocusReason reason)
    {
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
        clearFocus(); // a window that becomes active has it already
        setFocus(reason);
    }

    /// The middle of a handle that stands at \a handle.
    QPoint place(int handle) const
    {
        const int fromLow = handle / 100;
        if (orientation() == Qt::Horizontal)
            return QPoint(fromLow + handleSize / 2, handleSize / 2);
        return QPoint(width() - 1 - handleSize / 2, 1000 - fromLow + handleSize / 2);
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::sendKeyEvent(QTest::Click, this, Qt::Key(key), QString(), modifiers);
    }
};

} // namespace

Q_DECLARE_METATYPE(Qt::Orientation)

class tst_ScaleSliderNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheDefaults();
    void declaresSignalsAndSlotsInOrder();

    void clampsAndSnapsASetValue_data();
    void clampsAndSnapsASetValue();
    void keepsAllDigitsOfASetValue();
    void reportsAChangedValueAlways();
    void movesTheHandleByPosition_data();
    void movesTheHandleByPosition();
    void reportsAChangedHandlePositionAlways();
    void pushesTheOtherValue_data();
    void pushesTheOtherValue();

    void keepsTheHandleWhenTheRangeChanges_data();
    void keepsTheHandleWhenTheRangeChanges();
    void staysSilentWhenARangeIsSetSo();
    void ignoresTheRangeOfTheOtherKind();
    void takesItsRangeFromTheSteps_data();
    void takesItsRangeFromTheSteps();
    void reportsTheHiddenSecondValue();
    void leavesTheHandleWhenTheTypeChanges();

    void reportsADragInOrder();
    void reportsNothingForADragThatReturns();
    void grabsWithAnyButton();
    void grabsOnlyInsideTheOutline();
    void ignoresThePressOnTheTrack();
    void refusesValuesDuringADrag();
    void snapsAStepTypeAtRelease();
    void returnsToTheStepWithoutAReport();
    void partsOverlappingHandles_data();
    void partsOverlappingHandles();
    void reportsBeforeItLetsGo();
    void dragsUpwardsWhenVertical();
    void keepsTheMiddleOfADragFreeOfRounding();

    void movesByHandleUnitsUnderTheKeys();
    void walksTheStepsUnderTheKeys_data();
    void walksTheStepsUnderTheKeys();
    void passesEveryKeyOn();
    void obeysOnlyTheArrowsAlongTheScale();
    void walksThroughTheHandlesWithTab();
    void needsAHandleForTheKeys();
    void leavesTheWheelToItsParent();

    void survivesNonsense_data();
    void survivesNonsense();
    void survivesAnEmptyRange();
    void ignoresAnUnknownType();
    void survivesOnePixel();
};

void tst_ScaleSliderNG::startsWithTheDefaults()
{
    const ScaleSliderNG slider(Qt::Horizontal, ScaleSliderNG::ScaleSqrt, nullptr);

    QCOMPARE(slider.orientation(), Qt::Horizontal);
    QCOMPARE(slider.scaleType(), ScaleSliderNG::ScaleSqrt);
    QCOMPARE(slider.minimum(), 0.0);
    QCOMPARE(slider.maximum(), 100.0);
    QCOMPARE(slider.value0(), 0.0);
    QCOMPARE(slider.value1(), 0.0);
    QCOMPARE(slider.valuePrecision(), 1);
    QVERIFY(!slider.isDoubleSlider());
    QVERIFY(!slider.hideHandleOnDisable());
    QCOMPARE(slider.sideMargins(), 0);
    QCOMPARE(slider.labelDigits(), 7);
    QCOMPARE(slider.labelDecimalDigits(), 0);
    QCOMPARE(slider.labelRoundingDigits(), 1);
    QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
    QVERIFY(slider.hasMouseTracking());
    QCOMPARE(slider.metaObject()->superClass(), &QWidget::staticMetaObject);
}

void tst_ScaleSliderNG::declaresSignalsAndSlotsInOrder()
{
    const QStringList own = ownMethods(ScaleSliderNG::staticMetaObject);

    QCOMPARE(own, list({ "valueChanging0(double)",
                         "valueChanging1(double)",
                         "valueChanged0(double)",
                         "valueChanged1(double)",
                         "handleGrapped()",
                         "setValue0(double)",
                         "setValue1(double)",
                         "changeValue0(double)",
                         "changeValue1(double)",
                         "setHandlePosition0(int)",
                         "setHandlePosition1(int)",
                         "changeHandlePosition0(int)",
                         "changeHandlePosition1(int)",
                         "setRange(double,double,bool)",
                         "setRange(double,double)",
                         "setDoubleRange(double,double,bool)",
                         "setDoubleRange(double,double)",
                         "setSteps(QList<double>)",
                         "setHideHandleOnDisable(bool)",
                         "setMaxLabels(int)" }));
}

void tst_ScaleSliderNG::clampsAndSnapsASetValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("request");
    QTest::addColumn<double>("stored");

    QTest::newRow("inside") << 0 << 40.0 << 40.0;
    QTest::newRow("lower end") << 0 << 0.0 << 0.0;
    QTest::newRow("upper end") << 0 << 100.0 << 100.0;
    QTest::newRow("above") << 0 << 900.0 << 100.0;
    QTest::newRow("below") << 2 << -900.0 << 0.0;
    QTest::newRow("infinite") << 0 << qInf() << 100.0;
    QTest::newRow("minus infinite") << 2 << -qInf() << 0.0;
    QTest::newRow("not a number") << 0 << qQNaN() << 10.0;
    QTest::newRow("step above the middle") << 1 << 53.0 << 81.0;
    QTest::newRow("step below the middle") << 1 << 52.9 << 25.0;
    QTest::newRow("step, square root") << 3 << 18.5 << 25.0;
    QTest::newRow("step, infinite") << 3 << qInf() << 100.0;
    QTest::newRow("step, not a number") << 1 << qQNaN() << 12.0;
}

void tst_ScaleSliderNG::clampsAndSnapsASetValue()
{
    QFETCH(int, type);
    QFETCH(double, request);
    QFETCH(double, stored);
    Slider slider{ ScaleSliderNG::ScaleType(type) };
    slider.setValue0(10.0);
    SignalRecorder recorder(&slider);

    slider.setValue0(request);

    QCOMPARE(slider.value0(), stored);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::keepsAllDigitsOfASetValue()
{
    Slider slider;

    slider.setValue0(33.333333);
    QCOMPARE(slider.value0(), 33.333333);

    slider.setValuePrecision(0);
    QCOMPARE(slider.value0(), 33.333333);
    QCOMPARE(slider.valuePrecision(), 0);
}

void tst_ScaleSliderNG::reportsAChangedValueAlways()
{
    Slider slider;
    SignalRecorder recorder(&slider);

    slider.changeValue0(40.0);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(40)", "valueChanged0(40)" }));

    slider.changeValue0(40.0);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(40)", "valueChanged0(40)" }));

    slider.changeValue0(1000.0);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(100)", "valueChanged0(100)" }));

    slider.changeValue0(qQNaN());
    QCOMPARE(recorder.taken(), list({ "valueChanging0(100)", "valueChanged0(100)" }));

    slider.changeValue1(7.0);
    QCOMPARE(recorder.taken(), list({ "valueChanging1(7)", "valueChanged1(7)" }));
}

void tst_ScaleSliderNG::movesTheHandleByPosition_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");

    QTest::newRow("linear") << 0 << 40000 << 40.0;
    QTest::newRow("linear, rounded to a decimal") << 0 << 40049 << 40.0;
    QTest::newRow("linear, rounded up") << 0 << 40050 << 40.1;
    QTest::newRow("beyond the end") << 0 << 2000000 << 100.0;
    QTest::newRow("below the start") << 0 << -5 << 10.0; // 0 is no change to the right of 10
    QTest::newRow("square root") << 2 << 50000 << 25.0;
    QTest::newRow("square root, product beyond an int") << 2 << 90000 << 81.0;
    QTest::newRow("steps snap") << 1 << 53000 << 81.0;
    QTest::newRow("square root steps snap") << 3 << 30000 << 12.0;
}

void tst_ScaleSliderNG::movesTheHandleByPosition()
{
    QFETCH(int, type);
    QFETCH(int, position);
    QFETCH(double, value);
    Slider slider{ ScaleSliderNG::ScaleType(type) };
    if (position < 0)
        value = 0.0;
    else
        slider.setValue0(1.0);
    SignalRecorder recorder(&slider);
    const double before = slider.value0();

    slider.setHandlePosition0(position);

    QCOMPARE(slider.value0(), value);
    const QStringList expected = value == before
                                     ? QStringList()
                                     : QStringList(QStringLiteral("valueChanging0(%1)").arg(value));
    QCOMPARE(recorder.taken(), expected);

    slider.setHandlePosition0(position);
    QCOMPARE(recorder.taken(), QStringList()); // nothing changed any more
}

void tst_ScaleSliderNG::reportsAChangedHandlePositionAlways()
{
    Slider slider;
    SignalRecorder recorder(&slider);

    slider.changeHandlePosition0(40000);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(40)", "valueChanged0(40)" }));

    slider.changeHandlePosition0(40001);
    QCOMPARE(recorder.taken(), list({ "valueChanged0(40)" }));

    // The first value pushes the second one up to 40, but the second handle has stood at 0 all the
    // time and has the last word when it comes to light: both values follow it down.
    slider.setDoubleSlider(true);
    QCOMPARE(recorder.taken(),
             list({ "valueChanging0(0)", "valueChanging1(0)", "valueChanged0(0)" }));

    slider.setValue1(50.0);
    slider.setValue0(40.0);
    slider.setHandlePosition1(60000);
    QCOMPARE(recorder.taken(), list({ "valueChanging1(60)" }));
    slider.changeHandlePosition0(80000);
    QCOMPARE(recorder.taken(),
             list({ "valueChanging0(80)", "valueChanging1(80)", "valueChanged0(80)" }));
}

void tst_ScaleSliderNG::pushesTheOtherValue_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("minDistance");
    QTest::addColumn<double>("maxDistance");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("request");
    QTest::addColumn<double>("value0");
    QTest::addColumn<double>("value1");

    // Before the request the values stand 20 apart, at 40 and 60 of the way.
    QTest::newRow("free") << 0.0 << 100.0 << 10.0 << 50.0 << 0 << 45.0 << 45.0 << 60.0;
    QTest::newRow("0 pushes 1 up") << 0.0 << 100.0 << 10.0 << 50.0 << 0 << 95.0 << 90.0 << 100.0;
    QTest::newRow("0 pulls 1 down") << 0.0 << 100.0 << 10.0 << 50.0 << 0 << 5.0 << 5.0 << 55.0;
    QTest::newRow("0 at the floor") << 0.0 << 100.0 << 10.0 << 50.0 << 0 << -5.0 << 0.0 << 50.0;
    QTest::newRow("1 pushes 0 down") << 0.0 << 100.0 << 10.0 << 50.0 << 1 << 5.0 << 0.0 << 10.0;
    QTest::newRow("1 pulls 0 up") << 0.0 << 100.0 << 10.0 << 50.0 << 1 << 99.0 << 49.0 << 99.0;
    QTest::newRow("1 at the ceiling")
        << 0.0 << 100.0 << 10.0 << 50.0 << 1 << 400.0 << 50.0 << 100.0;
    QTest::newRow("the smallest distance wins")
        << 0.0 << 100.0 << 30.0 << 20.0 << 0 << 50.0 << 50.0 << 80.0;
    QTest::newRow("the smallest distance wins, 1")
        << 0.0 << 100.0 << 30.0 << 20.0 << 1 << 50.0 << 20.0 << 50.0;
    QTest::newRow("no largest distance")
        << 0.0 << 100.0 << 0.0 << qInf() << 0 << 0.0 << 0.0 << 60.0;
    QTest::newRow("falling range, 0") << 100.0 << 0.0 << -10.0 << -50.0 << 0 << 5.0 << 10.0 << 0.0;
    QTest::newRow("falling range, 1")
        << 100.0 << 0.0 << -10.0 << -50.0 << 1 << 95.0 << 100.0 << 90.0;
}

void tst_ScaleSliderNG::pushesTheOtherValue()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, minDistance);
    QFETCH(double, maxDistance);
    QFETCH(int, index);
    QFETCH(double, request);
    QFETCH(double, value0);
    QFETCH(double, value1);
    Slider slider;
    slider.setDoubleSlider(true);
    slider.setRange(min, max);
    slider.setDoubleRange(0.0, max > min ? 50.0 : -50.0);
    slider.setValue1(min + (max - min) * 0.6);
    slider.setValue0(min + (max - min) * 0.4);
    slider.setDoubleRange(minDistance, maxDistance);
    SignalRecorder recorder(&slider);

    if (index == 0)
        slider.setValue0(request);
    else
        slider.setValue1(request);

    QCOMPARE(slider.value0(), value0);
    QCOMPARE(slider.value1(), value1);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::keepsTheHandleWhenTheRangeChanges_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("after");
    QTest::addColumn<QStringList>("signalOrder");

    QTest::newRow("wider") << 50.0 << 0.0 << 200.0 << 100.0
                           << list({ "valueChanging0(100)", "valueChanged0(100)" });
    QTest::newRow("shifted") << 50.0 << 40.0 << 60.0 << 50.0 << QStringList();
    QTest::newRow("narrower, clamped before the handle is looked at")
        << 50.0 << 0.0 << 20.0 << 10.0 << list({ "valueChanging0(10)", "valueChanged0(10)" });
    QTest::newRow("at the end, only the settled value is new")
        << 100.0 << 0.0 << 20.0 << 20.0 << list({ "valueChanged0(20)" });
    QTest::newRow("same") << 50.0 << 0.0 << 100.0 << 50.0 << QStringList();
    QTest::newRow("falling") << 30.0 << 100.0 << 0.0 << 70.0
                             << list({ "valueChanging0(70)", "valueChanged0(70)" });
}

void tst_ScaleSliderNG::keepsTheHandleWhenTheRangeChanges()
{
    QFETCH(double, before);
    QFETCH(double, min);
    QFETCH(double, max);
    Slider slider;
    slider.setValue0(before);
    SignalRecorder recorder(&slider);

    slider.setRange(min, max);

    QTEST(slider.value0(), "after");
    QStringList first;
    for (const QString &entry : recorder.taken()) {
        if (entry.contains(QLatin1Char('0')) && !entry.startsWith(QLatin1String("valueChanging1"))
            && !entry.startsWith(QLatin1String("valueChanged1")))
            first << entry;
    }
    QTEST(first, "signalOrder");
}

void tst_ScaleSliderNG::staysSilentWhenARangeIsSetSo()
{
    Slider slider;
    slider.setValue0(50.0);
    SignalRecorder recorder(&slider);

    slider.setRange(0.0, 200.0, true);
    QCOMPARE(slider.value0(), 100.0);

    slider.setDoubleSlider(true);
    recorder.taken();
    slider.setDoubleRange(30.0, 40.0, true);
    QCOMPARE(slider.value1() - slider.value0(), 30.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::ignoresTheRangeOfTheOtherKind()
{
    Slider continuous(ScaleSliderNG::ScaleSqrt);
    Slider stepped(ScaleSliderNG::ScaleSqrtSteps);
    continuous.setValue0(50.0);
    stepped.setValue0(25.0);
    SignalRecorder recorder(&continuous, QStringLiteral("continuous"));
    recorder.watch(&stepped, QStringLiteral("stepped"));

    continuous.setSteps({ 1.0, 2.0, 3.0 });
    stepped.setRange(1.0, 3.0);

    QCOMPARE(continuous.maximum(), 100.0);
    QCOMPARE(continuous.value0(), 50.0);
    QCOMPARE(stepped.maximum(), 100.0);
    QCOMPARE(stepped.value0(), 25.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::takesItsRangeFromTheSteps_data()
{
    QTest::addColumn<QList<double>>("steps");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");

    // The handle stands at 81 % of the travel.
    QTest::newRow("many") << QList<double>{ 10.0, 20.0, 90.0, 110.0 } << 10.0 << 110.0 << 90.0;
    QTest::newRow("two") << QList<double>{ 1.0, 2.0 } << 1.0 << 2.0 << 2.0;
    QTest::newRow("one, a range that falls to 0") << QList<double>{ 50.0 } << 50.0 << 0.0 << 9.5;
    QTest::newRow("none") << QList<double>() << 0.0 << 0.0 << 0.0;
    QTest::newRow("infinite, ignored") << QList<double>{ 0.0, qInf() } << 0.0 << 100.0 << 81.0;
    QTest::newRow("not a number, ignored") << QList<double>{ qQNaN(), 5.0 } << 0.0 << 100.0 << 81.0;
}

void tst_ScaleSliderNG::takesItsRangeFromTheSteps()
{
    QFETCH(QList<double>, steps);
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.setValue0(81.0);

    slider.setSteps(steps);

    QTEST(slider.minimum(), "minimum");
    QTEST(slider.maximum(), "maximum");
    QTEST(slider.value0(), "value");
}

void tst_ScaleSliderNG::reportsTheHiddenSecondValue()
{
    Slider slider;
    slider.setValue0(50.0);
    slider.setValue1(25.0);
    SignalRecorder recorder(&slider);

    slider.setRange(0.0, 200.0);

    QCOMPARE(recorder.taken(), list({ "valueChanging0(100)", "valueChanging1(50)",
                                      "valueChanged0(100)", "valueChanged1(50)" }));
}

void tst_ScaleSliderNG::leavesTheHandleWhenTheTypeChanges()
{
    Slider slider;
    slider.setValue0(81.0);
    SignalRecorder recorder(&slider);

    slider.setScaleType(ScaleSliderNG::ScaleSqrt);
    QCOMPARE(slider.value0(), 81.0);
    QCOMPARE(recorder.taken(), QStringList());

    slider.changeHandlePosition0(81000); // where it stands already
    QCOMPARE(recorder.taken(), list({ "valueChanging0(65.6)", "valueChanged0(65.6)" }));
}

void tst_ScaleSliderNG::reportsADragInOrder()
{
    Slider slider;
    slider.setDoubleSlider(true);
    slider.setDoubleRange(10.0, 100.0);
    slider.setValue1(60.0);
    slider.setValue0(20.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(slider.place(20000));
    QCOMPARE(recorder.taken(), list({ "handleGrapped()" }));

    hand.move(slider.place(30000));
    QCOMPARE(recorder.taken(), list({ "valueChanging0(30)" }));

    hand.move(slider.place(70000));
    QCOMPARE(recorder.taken(), list({ "valueChanging0(70)", "valueChanging1(80)" }));

    hand.release(slider.place(70000));
    QCOMPARE(recorder.taken(), list({ "valueChanged0(70)", "valueChanged1(80)" }));

    hand.move(slider.place(10000));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::reportsNothingForADragThatReturns()
{
    Slider slider;
    slider.setValue0(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(slider.place(50000));
    hand.move(slider.place(60000));
    hand.move(slider.place(50000));
    hand.release(slider.place(50000));

    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "valueChanging0(60)", "valueChanging0(50)" }));
}

void tst_ScaleSliderNG::grabsWithAnyButton()
{
    Slider slider;
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    for (const auto button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        hand.press(slider.place(0), button);
        hand.release(slider.place(0));
        QCOMPARE(recorder.taken(), list({ "handleGrapped()" }));
    }
}

void tst_ScaleSliderNG::grabsOnlyInsideTheOutline()
{
    Slider slider;
    slider.setValue0(50.0); // the handle covers x from 500 to 534
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    for (const QPoint outside :
         { QPoint(500, 17), QPoint(534, 17), QPoint(517, 0), QPoint(517, 34) }) {
        hand.press(outside);
        hand.release(outside);
    }
    QCOMPARE(recorder.taken(), QStringList());

    for (const QPoint inside : { QPoint(501, 1), QPoint(533, 33) }) {
        hand.press(inside);
        hand.release(inside);
        QCOMPARE(recorder.taken(), list({ "handleGrapped()" }));
    }
}

void tst_ScaleSliderNG::ignoresThePressOnTheTrack()
{
    Slider slider;
    slider.takeFocus(Qt::OtherFocusReason);
    slider.setValue0(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(slider.place(10000), slider.place(20000));

    QCOMPARE(slider.value0(), 50.0);
    QVERIFY(slider.hasFocus());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::refusesValuesDuringADrag()
{
    Slider slider;
    slider.setDoubleSlider(true);
    slider.setValue1(60.0);
    slider.setValue0(20.0);
    MouseHand hand(slider);
    hand.press(slider.place(20000));
    SignalRecorder recorder(&slider);

    slider.setValue0(5.0);
    slider.setValue1(50.0);
    slider.changeValue0(5.0);
    slider.changeValue1(50.0);
    slider.setHandlePosition0(5000);
    slider.setHandlePosition1(50000);
    QCOMPARE(recorder.taken(), QStringList());

    slider.changeHandlePosition0(5000);
    slider.changeHandlePosition1(50000);
    QCOMPARE(recorder.taken(), list({ "valueChanged0(20)", "valueChanged1(60)" }));
    QCOMPARE(slider.value0(), 20.0);
    QCOMPARE(slider.value1(), 60.0);

    hand.release(slider.place(20000));
    slider.setValue0(5.0);
    QCOMPARE(slider.value0(), 5.0);
}

void tst_ScaleSliderNG::snapsAStepTypeAtRelease()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.setValue0(25.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.press(slider.place(25000));
    hand.move(slider.place(60000));
    hand.release(slider.place(60000));

    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "valueChanging0(60)", "valueChanged0(81)" }));
    QCOMPARE(slider.value0(), 81.0);
}

void tst_ScaleSliderNG::returnsToTheStepWithoutAReport()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.setValue0(25.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(slider.place(25000), slider.place(30000));

    QCOMPARE(recorder.taken(), list({ "handleGrapped()", "valueChanging0(30)" }));
    QCOMPARE(slider.value0(), 25.0);
}

void tst_ScaleSliderNG::partsOverlappingHandles_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<QStringList>("signalOrder");

    QTest::newRow("to the right, the upper one")
        << 100 << list({ "handleGrapped()", "valueChanging1(60)", "valueChanged1(60)" });
    QTest::newRow("to the left, the lower one")
        << -100 << list({ "handleGrapped()", "valueChanging0(40)", "valueChanged0(40)" });
    QTest::newRow("no way, none") << 0 << list({ "handleGrapped()" });
}

void tst_ScaleSliderNG::partsOverlappingHandles()
{
    QFETCH(int, way);
    Slider slider;
    slider.takeFocus(Qt::OtherFocusReason);
    slider.setDoubleSlider(true);
    slider.setValue0(50.0);
    slider.setValue1(50.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);
    const QPoint from = slider.place(50000);

    hand.drag(from, from + QPoint(way, 0));
    QTEST(recorder.taken(), "signalOrder");

    slider.key(Qt::Key_Right); // no handle has the keyboard after that
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::reportsBeforeItLetsGo()
{
    Slider slider;
    MouseHand hand(slider);
    connect(&slider, &ScaleSliderNG::valueChanged0, this, [&slider] { slider.setValue0(5.0); });

    hand.drag(slider.place(0), slider.place(30000));

    QCOMPARE(slider.value0(), 30.0); // the reading came while the hand was still on the handle
}

void tst_ScaleSliderNG::dragsUpwardsWhenVertical()
{
    Slider slider(ScaleSliderNG::ScaleSqrt, Qt::Vertical);
    slider.setValue0(25.0);
    SignalRecorder recorder(&slider);
    MouseHand hand(slider);

    hand.drag(slider.place(50000), slider.place(90000));

    QCOMPARE(recorder.taken(),
             list({ "handleGrapped()", "valueChanging0(81)", "valueChanged0(81)" }));
}

void tst_ScaleSliderNG::keepsTheMiddleOfADragFreeOfRounding()
{
    Slider slider;
    slider.setValuePrecision(-1); // tens
    slider.setValue0(50.0);
    MouseHand hand(slider);
    const QPoint from = slider.place(50000);

    hand.press(from);
    for (int way = 1; way <= 60; ++way)
        hand.move(from + QPoint(way, 0)); // each single way is far below a ten

    QCOMPARE(slider.value0(), 60.0);
}

void tst_ScaleSliderNG::movesByHandleUnitsUnderTheKeys()
{
    Slider slider;
    slider.takeFocus(Qt::TabFocusReason);
    SignalRecorder recorder(&slider);

    for (int i = 1; i < 50; ++i) {
        slider.key(Qt::Key_Right);
        QCOMPARE(recorder.taken(), list({ "valueChanged0(0)" }));
    }
    slider.key(Qt::Key_Right);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(0.1)", "valueChanged0(0.1)" }));

    // The handle has jumped to the exact place of 0.1, which is 100: four fives and a ten lead
    // down.
    for (int i = 0; i < 4; ++i) {
        slider.key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(recorder.taken(), list({ "valueChanged0(0.1)" }));
    }
    slider.key(Qt::Key_Left, Qt::ShiftModifier); // 50 still rounds up
    QCOMPARE(recorder.taken(), list({ "valueChanged0(0.1)" }));
    slider.key(Qt::Key_Left);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(0)", "valueChanged0(0)" }));
}

void tst_ScaleSliderNG::walksTheStepsUnderTheKeys_data()
{
    QTest::addColumn<QList<double>>("steps");
    QTest::addColumn<double>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<double>("to");

    const QList<double> steps{ 0.0, 12.0, 25.0, 81.0, 100.0 };
    QTest::newRow("next") << steps << 12.0 << int(Qt::Key_Right) << 25.0;
    QTest::newRow("previous") << steps << 12.0 << int(Qt::Key_Left) << 0.0;
    QTest::newRow("last stays") << steps << 100.0 << int(Qt::Key_Right) << 100.0;
    QTest::newRow("first stays") << steps << 0.0 << int(Qt::Key_Left) << 0.0;
    // With one step the value is free, and so is not among the steps.
    QTest::newRow("up from nowhere goes to the first")
        << QList<double>{ 50.0 } << 20.0 << int(Qt::Key_Right) << 50.0;
    QTest::newRow("down from nowhere stays")
        << QList<double>{ 50.0 } << 20.0 << int(Qt::Key_Left) << 20.0;
}

void tst_ScaleSliderNG::walksTheStepsUnderTheKeys()
{
    QFETCH(QList<double>, steps);
    QFETCH(double, from);
    QFETCH(int, key);
    QFETCH(double, to);
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.takeFocus(Qt::TabFocusReason);
    slider.setSteps(steps);
    slider.setValue0(from);
    SignalRecorder recorder(&slider);

    slider.key(key, Qt::ShiftModifier); // Shift makes no difference to steps

    QCOMPARE(slider.value0(), to);
    QCOMPARE(recorder.taken(), QStringList({ QStringLiteral("valueChanging0(%1)").arg(to),
                                             QStringLiteral("valueChanged0(%1)").arg(to) }));
}

void tst_ScaleSliderNG::passesEveryKeyOn()
{
    class Panel : public QWidget
    {
    public:
        int keys = 0;

    protected:
        void keyPressEvent(QKeyEvent *) override { ++keys; }
    };
    Panel panel;
    auto *slider = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, &panel);
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    slider->setFocus(Qt::TabFocusReason);

    QTest::keyPress(slider, Qt::Key_Right);
    QTest::keyPress(slider, Qt::Key_X);

    QCOMPARE(panel.keys, 2);
}

void tst_ScaleSliderNG::obeysOnlyTheArrowsAlongTheScale()
{
    for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
        Slider slider(ScaleSliderNG::ScaleLinearSteps, orientation);
        slider.takeFocus(Qt::TabFocusReason);
        slider.setValue0(25.0);
        const bool horizontal = orientation == Qt::Horizontal;

        slider.key(horizontal ? Qt::Key_Up : Qt::Key_Right);
        slider.key(horizontal ? Qt::Key_Down : Qt::Key_Left);
        QCOMPARE(slider.value0(), 25.0);

        slider.key(horizontal ? Qt::Key_Right : Qt::Key_Up);
        QCOMPARE(slider.value0(), 81.0);
        slider.key(horizontal ? Qt::Key_Left : Qt::Key_Down);
        QCOMPARE(slider.value0(), 25.0);
    }
}

void tst_ScaleSliderNG::walksThroughTheHandlesWithTab()
{
    QWidget panel;
    QVBoxLayout layout(&panel);
    auto *before = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, &panel);
    auto *slider = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinearSteps, &panel);
    auto *after = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, &panel);
    for (auto *each : { before, slider, after })
        layout.addWidget(each);
    slider->setDoubleSlider(true);
    slider->setDoubleRange(0.0, 1000.0);
    slider->setValue1(81.0);
    slider->setValue0(12.0);
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    before->setFocus(Qt::TabFocusReason);
    SignalRecorder recorder(slider);

    const auto step = [slider, &recorder] {
        QTest::keyClick(slider, Qt::Key_Right);
        const QStringList entries = recorder.taken();
        return entries.isEmpty() ? QString() : entries.last();
    };

    QTest::keyClick(before, Qt::Key_Tab);
    QVERIFY(slider->hasFocus());
    QCOMPARE(step(), QStringLiteral("valueChanged0(25)"));
    QTest::keyClick(slider, Qt::Key_Tab);
    QVERIFY(slider->hasFocus());
    QCOMPARE(step(), QStringLiteral("valueChanged1(100)"));
    QTest::keyClick(slider, Qt::Key_Tab);
    QVERIFY(after->hasFocus());

    QTest::keyClick(after, Qt::Key_Backtab);
    QVERIFY(slider->hasFocus());
    QCOMPARE(step(), QStringLiteral("valueChanged1(100)"));
    QTest::keyClick(slider, Qt::Key_Backtab);
    QVERIFY(slider->hasFocus());
    QCOMPARE(step(), QStringLiteral("valueChanged0(81)"));
    QTest::keyClick(slider, Qt::Key_Backtab);
    QVERIFY(before->hasFocus());
}

void tst_ScaleSliderNG::needsAHandleForTheKeys()
{
    Slider slider(ScaleSliderNG::ScaleLinearSteps);
    slider.takeFocus(Qt::OtherFocusReason);
    MouseHand hand(slider);
    SignalRecorder recorder(&slider);

    hand.drag(slider.place(50000), slider.place(50000)); // the bare track
    slider.key(Qt::Key_Right);
    QCOMPARE(recorder.taken(), QStringList());

    hand.drag(slider.place(0), slider.place(0));
    recorder.taken();
    slider.key(Qt::Key_Right);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(12)", "valueChanged0(12)" }));

    slider.takeFocus(Qt::OtherFocusReason);
    slider.key(Qt::Key_Right);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::leavesTheWheelToItsParent()
{
    Slider slider;
    slider.setValue0(50.0);
    SignalRecorder recorder(&slider);
    QWheelEvent wheel(slider.place(50000), slider.mapToGlobal(slider.place(50000)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QApplication::sendEvent(&slider, &wheel);

    QVERIFY(!wheel.isAccepted());
    QCOMPARE(slider.value0(), 50.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ScaleSliderNG::survivesNonsense_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("not a number") << qQNaN() << qQNaN();
    QTest::newRow("infinite") << -qInf() << qInf();
    QTest::newRow("half infinite") << 0.0 << qInf();
    QTest::newRow("half not a number") << qQNaN() << 5.0;
    QTest::newRow("whole doubles") << -1.7e308 << 1.7e308;
    QTest::newRow("smallest doubles") << 0.0 << 5e-324;
}

void tst_ScaleSliderNG::survivesNonsense()
{
    QFETCH(double, min);
    QFETCH(double, max);
    for (const int type : { 0, 1, 2, 3 }) {
        Slider slider{ ScaleSliderNG::ScaleType(type) };
        slider.setDoubleSlider(true);
        slider.setRange(min, max);
        slider.setDoubleRange(min, max);
        slider.setSteps({ min, max });

        for (const double value : { min, max, 0.0, qInf(), -qInf(), qQNaN() }) {
            slider.setValue0(value);
            slider.changeValue1(value);
        }
        slider.setValuePrecision(300);
        slider.setHandlePosition0(33333);
        slider.setHandlePosition1(77777);
        slider.grab();

        QVERIFY(qIsFinite(slider.minimum()));
        QVERIFY(qIsFinite(slider.maximum()));
        QVERIFY(!qIsNaN(slider.value0()));
        QVERIFY(!qIsNaN(slider.value1()));
    }
}

void tst_ScaleSliderNG::survivesAnEmptyRange()
{
    for (const auto type : { ScaleSliderNG::ScaleLinear, ScaleSliderNG::ScaleSqrt }) {
        Slider slider(type);
        slider.setValue0(50.0);

        slider.setRange(20.0, 20.0);
        QCOMPARE(slider.value0(), 20.0);

        slider.setValue0(70.0);
        QCOMPARE(slider.value0(), 20.0);
        slider.setHandlePosition0(70000);
        QCOMPARE(slider.value0(), 20.0);
        slider.grab();
    }
}

void tst_ScaleSliderNG::ignoresAnUnknownType()
{
    Slider slider;
    slider.setValue0(50.0);
    slider.setScaleType(ScaleSliderNG::ScaleType(7));
    SignalRecorder recorder(&slider);

    slider.setValue0(10.0);
    slider.setHandlePosition0(10000);
    slider.setRange(200.0, 300.0);
    slider.setDoubleRange(1.0, 2.0);
    slider.setSteps({ 1.0, 2.0 });
    QCOMPARE(slider.value0(), 50.0);
    QCOMPARE(recorder.taken(), QStringList());

    slider.changeValue0(10.0);
    QCOMPARE(recorder.taken(), list({ "valueChanging0(50)", "valueChanged0(50)" }));
    slider.grab();
}

void tst_ScaleSliderNG::survivesOnePixel()
{
    for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
        for (const int size : { 0, 1, 34, 35, 36 }) {
            Slider slider(ScaleSliderNG::ScaleLinear, orientation);
            slider.setMinimumSize(0, 0);
            slider.setMaximumSize(size, size);
            slider.resize(size, size);
            slider.setSideMargins(std::numeric_limits<int>::max());
            slider.setSideMargins(0);
            slider.setValue0(50.0);
            MouseHand hand(slider);

            for (int i = -3; i < 40; ++i)
                hand.drag(QPoint(i, i), QPoint(20, 20 - i));
            slider.grab();

            QVERIFY(slider.value0() >= 0.0);
            QVERIFY(slider.value0() <= 100.0);
        }
    }
}

PELORIN_TEST_MAIN(tst_ScaleSliderNG)
#include "tst_scalesliderng.moc"
