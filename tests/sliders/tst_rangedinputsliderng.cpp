#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/sliders/RangedInputSliderNG.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/sliders/RangedPanelParts.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPointer>

namespace {

using Parts = RangedPanelParts<RangedInputSliderNG, LineEditNumberNG, ScaleSliderNG>;

/// A shown panel over 0 to 1000 at 200 and 500, at least 100 and at most 600 apart, without
/// decimals. Its slider is 1035 pixels wide: a pixel for each unit.
class Panel : public RangedInputSliderNG
{
public:
    Panel()
        : RangedInputSliderNG(0, nullptr)
    {
        TestCase::tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in "));
        resize(1035, 160);
        show();
        setPrecision(0);
        setDoubleRange(100.0, 600.0, true);
        setRange(0.0, 1000.0, true);
        setStartValue(200.0);
        setStopValue(500.0);
    }
};

QPoint handleAt(int value)
{
    return QPoint(value + 17, 17);
}

} // namespace

class tst_RangedInputSliderNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsParts();
    void declaresSignalsAndSlotsInOrder();
    void keepsItsHelpersPrivate();
    void startsWithADistanceOf400To900();
    void takesTexts();
    void takesAGround();
    void drawsTheGroundOfTheSheet();
    void takesItsDigits();

    void setsInSilence();
    void setsNoHandleInTheHand();
    void reportsANewRange();
    void staysSilentWhenARangeIsSetSo();
    void reportsANewDistance();

    void reportsATypedNumber();
    void reportsBothEndsOfAPushByTyping();
    void pushesTheStartByTyping();
    void leavesATypedNumberThatChangesNothing();
    void reportsADrag();

    void survivesItsDeletionByAListener_data();
    void survivesItsDeletionByAListener();
};

void tst_RangedInputSliderNG::startsWithItsParts()
{
    RangedInputSliderNG panel(17, nullptr);
    const Parts parts(panel);

    Parts(panel).haveTheirLook(17);
    QCOMPARE(panel.precision(), 0);
    QCOMPARE(parts.slider->orientation(), Qt::Horizontal);
    QCOMPARE(parts.slider->scaleType(), ScaleSliderNG::ScaleLinear);
    QVERIFY(parts.slider->isDoubleSlider());
}

void tst_RangedInputSliderNG::declaresSignalsAndSlotsInOrder()
{
    QCOMPARE(ownMethods(RangedInputSliderNG::staticMetaObject),
             list({ "startValueChanging(double)", "startValueChanged(double)",
                    "stopValueChanging(double)", "stopValueChanged(double)",
                    "setRange(double,double,bool)", "setRange(double,double)",
                    "setDoubleRange(double,double,bool)", "setDoubleRange(double,double)",
                    "setStartValue(double)", "setStopValue(double)",
                    "startValueInputChanged(double)", "stopValueInputChanged(double)",
                    "startValueSliderChanging(double)", "stopValueSliderChanging(double)",
                    "startValueSliderChanged(double)", "stopValueSliderChanged(double)" }));
}

void tst_RangedInputSliderNG::keepsItsHelpersPrivate()
{
    const QMetaObject &meta = RangedInputSliderNG::staticMetaObject;
    const int first = meta.indexOfMethod("startValueInputChanged(double)");

    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        QCOMPARE(meta.method(i).access() == QMetaMethod::Private, i >= first);
}

void tst_RangedInputSliderNG::startsWithADistanceOf400To900()
{
    RangedInputSliderNG panel(0, nullptr);
    panel.setRange(0.0, 2000.0, true);

    panel.setStartValue(0.0);
    panel.setStopValue(0.0);
    QCOMPARE(panel.startValue(), 0.0);
    QCOMPARE(panel.stopValue(), 400.0);

    panel.setStopValue(1500.0);
    QCOMPARE(panel.startValue(), 600.0);
}

void tst_RangedInputSliderNG::takesTexts()
{
    RangedInputSliderNG panel(0, nullptr);
    Parts(panel).takeTexts();
}

void tst_RangedInputSliderNG::takesAGround()
{
    RangedInputSliderNG panel(0, nullptr);
    Parts(panel).takeAGround();
}

void tst_RangedInputSliderNG::drawsTheGroundOfTheSheet()
{
    RangedInputSliderNG panel(0, nullptr);
    Parts(panel).drawTheGroundOfTheSheet();
}

void tst_RangedInputSliderNG::takesItsDigits()
{
    RangedInputSliderNG panel(0, nullptr);
    const Parts parts(panel);

    panel.setPrecision(3);
    QCOMPARE(panel.precision(), 3);
    QCOMPARE(panel.valuePrecision(), 3);
    QCOMPARE(parts.startInput->valuePrecision(), 3);
    QCOMPARE(parts.stopInput->valuePrecision(), 3);

    panel.setValuePrecision(2);
    QCOMPARE(parts.slider->valuePrecision(), 2);
    QCOMPARE(panel.valuePrecision(), 2);
    QCOMPARE(panel.precision(), 3);
    QCOMPARE(parts.startInput->valuePrecision(), 3);
    QCOMPARE(parts.stopInput->valuePrecision(), 3);

    panel.setLabelDecimalDigits(4);
    panel.setLabelRoundingDigits(5);
    QCOMPARE(parts.slider->labelDecimalDigits(), 4);
    QCOMPARE(panel.labelDecimalDigits(), 4);
    QCOMPARE(parts.slider->labelRoundingDigits(), 5);
    QCOMPARE(panel.labelRoundingDigits(), 5);
}

void tst_RangedInputSliderNG::setsInSilence()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStartValue(450.0); // pushes the stop
    QCOMPARE(panel.startValue(), 450.0);
    QCOMPARE(panel.stopValue(), 550.0);
    QCOMPARE(parts.startInput->text(), QStringLiteral("450"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("550"));

    panel.setStopValue(9000.0); // pulls the start
    QCOMPARE(parts.startInput->text(), QStringLiteral("450"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("1000"));
    panel.setStopValue(150.0);
    QCOMPARE(parts.startInput->text(), QStringLiteral("50"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("150"));

    panel.setStartValue(qQNaN());
    panel.setStopValue(qQNaN());
    QCOMPARE(panel.startValue(), 50.0);
    QCOMPARE(panel.stopValue(), 150.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSliderNG::setsNoHandleInTheHand()
{
    Panel panel;
    const Parts parts(panel);
    MouseHand hand(*parts.slider);

    hand.press(handleAt(200));
    panel.setStartValue(300.0);
    panel.setStopValue(800.0);

    QCOMPARE(panel.startValue(), 200.0);
    QCOMPARE(panel.stopValue(), 500.0);
    QCOMPARE(parts.startInput->text(), QStringLiteral("200"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("500"));
}

void tst_RangedInputSliderNG::reportsANewRange()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setRange(0.0, 500.0); // the handles stay: at half their values

    QCOMPARE(recorder.taken(), list({ "startValueChanging(100)", "stopValueChanging(250)",
                                      "startValueChanged(100)", "stopValueChanged(250)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("100"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("250"));
    for (const LineEditNumberNG *field : { parts.startInput, parts.stopInput }) {
        QCOMPARE(field->minimum(), 0.0);
        QCOMPARE(field->maximum(), 500.0);
    }
}

void tst_RangedInputSliderNG::staysSilentWhenARangeIsSetSo()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setRange(0.0, 500.0, true);
    QCOMPARE(panel.startValue(), 100.0);
    QCOMPARE(panel.stopValue(), 250.0);
    QCOMPARE(parts.startInput->text(), QStringLiteral("100"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("250"));

    panel.setDoubleRange(200.0, 600.0, true); // the stop keeps its place, the start yields
    QCOMPARE(parts.startInput->text(), QStringLiteral("50"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("250"));
    QCOMPARE(recorder.taken(), QStringList());

    panel.setRange(2000.0, 3000.0, true); // beyond all that slider and fields had
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(parts.startInput->value(), panel.startValue());
    QCOMPARE(parts.stopInput->value(), panel.stopValue());
    QVERIFY(panel.startValue() >= 2000.0);
}

void tst_RangedInputSliderNG::reportsANewDistance()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setDoubleRange(400.0, 600.0); // the stop keeps its place, the start yields

    QCOMPARE(recorder.taken(), list({ "startValueChanging(100)", "stopValueChanging(500)",
                                      "startValueChanged(100)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("100"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("500"));
}

void tst_RangedInputSliderNG::reportsATypedNumber()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.startInput, "250");
    QCOMPARE(recorder.taken(), list({ "startValueChanging(250)", "startValueChanged(250)" }));
    QCOMPARE(parts.slider->value0(), 250.0);

    Parts::type(parts.stopInput, "700");
    QCOMPARE(recorder.taken(), list({ "stopValueChanging(700)", "stopValueChanged(700)" }));
    QCOMPARE(parts.slider->value1(), 700.0);
}

void tst_RangedInputSliderNG::reportsBothEndsOfAPushByTyping()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.startInput, "450");

    QCOMPARE(recorder.taken(), list({ "startValueChanging(450)", "startValueChanged(450)",
                                      "stopValueChanging(550)", "stopValueChanged(550)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("450"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("550"));
}

void tst_RangedInputSliderNG::pushesTheStartByTyping()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.stopInput, "50"); // no less than the distance from the lower end

    QCOMPARE(recorder.taken(), list({ "startValueChanging(0)", "startValueChanged(0)",
                                      "stopValueChanging(100)", "stopValueChanged(100)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("100"));
}

void tst_RangedInputSliderNG::leavesATypedNumberThatChangesNothing()
{
    Panel panel;
    const Parts parts(panel);
    panel.setStopValue(100.0); // the start is at 0
    SignalRecorder recorder(&panel);

    Parts::type(parts.stopInput, "50");

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(panel.stopValue(), 100.0);
    QCOMPARE(parts.stopInput->text(), QStringLiteral("50"));
}

void tst_RangedInputSliderNG::reportsADrag()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);
    MouseHand hand(*parts.slider);

    hand.press(handleAt(200));
    hand.move(handleAt(450));
    QCOMPARE(recorder.taken(), list({ "startValueChanging(450)", "stopValueChanging(550)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("450"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("550"));

    hand.release(handleAt(450));
    QCOMPARE(recorder.taken(), list({ "startValueChanged(450)", "stopValueChanged(550)" }));
}

void tst_RangedInputSliderNG::survivesItsDeletionByAListener_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("start changing") << 0;
    QTest::newRow("start changed") << 1;
    QTest::newRow("stop changing") << 2;
    QTest::newRow("stop changed") << 3;
}

void tst_RangedInputSliderNG::survivesItsDeletionByAListener()
{
    QFETCH(int, index);
    using Signal = void (RangedInputSliderNG::*)(double);
    const Signal reports[] = { &RangedInputSliderNG::startValueChanging,
                               &RangedInputSliderNG::startValueChanged,
                               &RangedInputSliderNG::stopValueChanging,
                               &RangedInputSliderNG::stopValueChanged };
    auto *panel = new Panel;
    const QPointer<Panel> alive(panel);
    connect(panel, reports[index], qApp, [panel] { delete panel; });

    // As from a field, with a number that pushes the stop, so that all four would come.
    QMetaObject::invokeMethod(panel, "startValueInputChanged", Q_ARG(double, 450.0));

    QVERIFY(alive.isNull());
}

PELORIN_TEST_MAIN(tst_RangedInputSliderNG)
#include "tst_rangedinputsliderng.moc"
