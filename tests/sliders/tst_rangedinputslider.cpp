#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/RangedInputSlider.h"
#include "Pelorin/sliders/RangedScaleSlider.h"
#include "tests/sliders/RangedPanelParts.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

namespace {

using Parts = RangedPanelParts<RangedInputSlider, LineEditNumber, RangedScaleSlider>;

/// A shown panel over 400 to 900 at 500 and 700, with one decimal. Its slider is 335 pixels wide,
/// so the handles stand at 60 and at 180.
class Panel : public RangedInputSlider
{
public:
    Panel()
        : RangedInputSlider(0, nullptr)
    {
        resize(335, 160);
        show();
        setPrecision(1);
        setStopRange(400.0, 900.0);
        setStartRange(400.0, 900.0);
        setStopValue(700.0);
        setStartValue(500.0);
    }
};

const QPoint onStart(70, 17);
const QPoint onStop(190, 17);

} // namespace

class tst_RangedInputSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsParts();
    void declaresSignalsAndSlotsInOrder();
    void startsWithoutAStopRange();
    void takesTexts();
    void takesAGround();
    void drawsTheGroundOfTheSheet();
    void enablesTheTimeoutOfTheStartAlone();
    void stepsByTheLastDecimal_data();
    void stepsByTheLastDecimal();

    void setsInSilence();
    void clampsASetValue_data();
    void clampsASetValue();
    void setsTheNumberAnewOnANewRange();
    void ignoresARangeThatIsNotFinite();
    void pushesTheStopByItsOwnNumbers();
    void pushesTheStartByItsOwnNumbers();
    void reportsAnEndThatTheSliderDragsAlong();

    void reportsATypedNumber();
    void clampsATypedNumber();
    void reportsBothEndsOfAPushByTyping();
    void reportsACheckAlways();
    void writesIntoAFieldAlone();

    void followsADrag();
    void keepsItsNumbersInADrag();
    void reportsTheWheel();
    void fixesAnEnd();

    void survivesItsDeletionByAListener_data();
    void survivesItsDeletionByAListener();
};

void tst_RangedInputSlider::startsWithItsParts()
{
    RangedInputSlider panel(17, nullptr);

    Parts(panel).haveTheirLook(17);
    QCOMPARE(panel.precision(), 0);
}

void tst_RangedInputSlider::declaresSignalsAndSlotsInOrder()
{
    QCOMPARE(ownMethods(RangedInputSlider::staticMetaObject),
             list({ "startValueChanged(double)", "stopValueChanged(double)",
                    "setStartRange(double,double)", "setStopRange(double,double)",
                    "setStartValue(double,bool)", "setStartValue(double)",
                    "setStopValue(double,bool)", "setStopValue(double)", "checkStartInput(double)",
                    "checkStopInput(double)", "setStartInput(double)", "setStopInput(double)",
                    "setFixedStart(bool,double)", "setFixedStop(bool,double)" }));
}

void tst_RangedInputSlider::startsWithoutAStopRange()
{
    RangedInputSlider panel(0, nullptr);
    const Parts parts(panel);

    parts.slider->setCurrentStartValue(0.0, false);
    QCOMPARE(parts.slider->currentValueMin(), 400.0);
    parts.slider->setCurrentStartValue(1000.0, false);
    QCOMPARE(parts.slider->currentValueMin(), 900.0);
    parts.slider->setCurrentStopValue(1000.0, false);
    QCOMPARE(parts.slider->currentValueMax(), 0.0);

    panel.setStartValue(500.0); // the panel's own ranges are empty
    QCOMPARE(parts.startInput->text(), QStringLiteral("0"));
}

void tst_RangedInputSlider::takesTexts()
{
    RangedInputSlider panel(0, nullptr);
    Parts(panel).takeTexts();
}

void tst_RangedInputSlider::takesAGround()
{
    RangedInputSlider panel(0, nullptr);
    Parts(panel).takeAGround();
}

void tst_RangedInputSlider::drawsTheGroundOfTheSheet()
{
    RangedInputSlider panel(0, nullptr);
    Parts(panel).drawTheGroundOfTheSheet();
}

void tst_RangedInputSlider::enablesTheTimeoutOfTheStartAlone()
{
    Panel panel;
    const Parts parts(panel);
    const auto *startTimer = parts.startInput->findChild<QTimer *>(QStringLiteral("timeoutTimer"));
    const auto *stopTimer = parts.stopInput->findChild<QTimer *>(QStringLiteral("timeoutTimer"));

    QTest::keyClick(parts.startInput, Qt::Key_1);
    QTest::keyClick(parts.stopInput, Qt::Key_1);

    QVERIFY(startTimer->isActive());
    QVERIFY(!stopTimer->isActive());
}

void tst_RangedInputSlider::stepsByTheLastDecimal_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("step");

    QTest::newRow("no decimals") << 0 << 1.0;
    QTest::newRow("two decimals") << 2 << 0.01;
    QTest::newRow("tens") << -1 << 10.0;
    QTest::newRow("more than a number has") << 400 << 0.0;
    QTest::newRow("larger than a number can be") << -400 << 0.0;
    QTest::newRow("the smallest") << std::numeric_limits<int>::min() << 0.0;
}

void tst_RangedInputSlider::stepsByTheLastDecimal()
{
    QFETCH(int, precision);
    QFETCH(double, step);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumber::nudge "));
    RangedInputSlider panel(0, nullptr);
    const Parts parts(panel);

    panel.setPrecision(precision);

    QCOMPARE(panel.precision(), precision);
    QCOMPARE(parts.slider->nudge(), step);
    for (LineEditNumber *field : { parts.startInput, parts.stopInput }) {
        const double before = field->number();
        field->nudge(1);
        QCOMPARE(field->number(), before + step);
    }
}

void tst_RangedInputSlider::setsInSilence()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStartValue(512.34);
    panel.setStopValue(650.0);

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(parts.startInput->text(), QStringLiteral("512.3"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("650.0"));
    QCOMPARE(parts.slider->currentValueMin(), 512.34);
    QCOMPARE(parts.slider->currentValueMax(), 650.0);
}

void tst_RangedInputSlider::clampsASetValue_data()
{
    QTest::addColumn<double>("request");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("stop");

    QTest::newRow("below") << 0.0 << "450.0"
                           << "600.0";
    QTest::newRow("above") << 2000.0 << "550.0"
                           << "850.0";
    QTest::newRow("infinite") << qInf() << "550.0"
                              << "850.0";
    QTest::newRow("minus infinite") << -qInf() << "450.0"
                                    << "600.0";
    QTest::newRow("not a number") << qQNaN() << "500.0"
                                  << "700.0";
}

void tst_RangedInputSlider::clampsASetValue()
{
    QFETCH(double, request);
    Panel panel;
    const Parts parts(panel);
    panel.setStartRange(450.0, 550.0);
    panel.setStopRange(600.0, 850.0);

    panel.setStartValue(request);
    panel.setStopValue(request);

    QTEST(parts.startInput->text(), "start");
    QTEST(parts.stopInput->text(), "stop");
}

void tst_RangedInputSlider::setsTheNumberAnewOnANewRange()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStartRange(600.0, 650.0);
    QCOMPARE(parts.startInput->text(), QStringLiteral("600.0"));
    QCOMPARE(parts.slider->currentValueMin(), 600.0);

    panel.setStopRange(750.0, 1000.0);
    QCOMPARE(parts.stopInput->text(), QStringLiteral("750.0"));
    QCOMPARE(parts.slider->currentValueMax(), 750.0);

    panel.setStartRange(800.0, 850.0); // pushes the number of the stop
    QCOMPARE(parts.startInput->text(), QStringLiteral("800.0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("800.0"));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSlider::ignoresARangeThatIsNotFinite()
{
    Panel panel;
    const Parts parts(panel);

    panel.setStartRange(qQNaN(), 450.0);
    panel.setStopRange(750.0, qInf());
    panel.setStartValue(0.0);
    panel.setStopValue(2000.0);

    QCOMPARE(parts.startInput->text(), QStringLiteral("400.0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("900.0"));
}

void tst_RangedInputSlider::pushesTheStopByItsOwnNumbers()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStartValue(800.0);

    QCOMPARE(parts.stopInput->text(), QStringLiteral("800.0"));
    QCOMPARE(parts.slider->currentValueMin(), 800.0);
    QCOMPARE(parts.slider->currentValueMax(), 800.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSlider::pushesTheStartByItsOwnNumbers()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStopValue(450.0);

    QCOMPARE(parts.startInput->text(), QStringLiteral("450.0"));
    QCOMPARE(parts.slider->currentValueMin(), 450.0);
    QCOMPARE(parts.slider->currentValueMax(), 450.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSlider::reportsAnEndThatTheSliderDragsAlong()
{
    Panel panel;
    SignalRecorder recorder(&panel);

    panel.setStartValue(800.0, true);
    QCOMPARE(recorder.taken(), list({ "stopValueChanged(800)" }));

    panel.setStopValue(450.0, true);
    QCOMPARE(recorder.taken(), list({ "startValueChanged(450)" }));
}

void tst_RangedInputSlider::reportsATypedNumber()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.startInput, "512.5");
    QCOMPARE(recorder.taken(), list({ "startValueChanged(512.5)" }));
    QCOMPARE(parts.slider->currentValueMin(), 512.5);

    Parts::type(parts.stopInput, "650");
    QCOMPARE(recorder.taken(), list({ "stopValueChanged(650)" }));
    QCOMPARE(parts.slider->currentValueMax(), 650.0);
    QCOMPARE(parts.stopInput->text(), QStringLiteral("650.0"));
}

void tst_RangedInputSlider::clampsATypedNumber()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.startInput, "1");
    Parts::type(parts.stopInput, "9999");

    QCOMPARE(recorder.taken(), list({ "startValueChanged(400)", "stopValueChanged(900)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("400.0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("900.0"));
}

void tst_RangedInputSlider::reportsBothEndsOfAPushByTyping()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    Parts::type(parts.startInput, "800");
    QCOMPARE(recorder.taken(), list({ "stopValueChanged(800)", "startValueChanged(800)" }));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("800.0"));

    Parts::type(parts.stopInput, "450");
    QCOMPARE(recorder.taken(), list({ "startValueChanged(450)", "stopValueChanged(450)" }));
    QCOMPARE(parts.startInput->text(), QStringLiteral("450.0"));
}

void tst_RangedInputSlider::reportsACheckAlways()
{
    Panel panel;
    SignalRecorder recorder(&panel);

    panel.checkStartInput(500.0);
    panel.checkStopInput(qQNaN());

    QCOMPARE(recorder.taken(), list({ "startValueChanged(500)", "stopValueChanged(700)" }));
}

void tst_RangedInputSlider::writesIntoAFieldAlone()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);

    panel.setStartInput(850.0);
    panel.setStopInput(1.0);

    QCOMPARE(parts.startInput->text(), QStringLiteral("850.0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("1.0"));
    QCOMPARE(parts.slider->currentValueMin(), 500.0);
    QCOMPARE(parts.slider->currentValueMax(), 700.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSlider::followsADrag()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);
    MouseHand hand(*parts.slider);

    hand.press(onStart);
    hand.move(onStart + QPoint(30, 0));
    QCOMPARE(parts.startInput->text(), QStringLiteral("550.0"));
    QCOMPARE(recorder.taken(), QStringList());
    hand.release(onStart + QPoint(30, 0));
    QCOMPARE(recorder.taken(), list({ "startValueChanged(550)" }));

    hand.press(onStop);
    hand.move(onStop - QPoint(30, 0));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("650.0"));
    QCOMPARE(recorder.taken(), QStringList());
    panel.setStopInput(1.0);
    hand.release(onStop - QPoint(30, 0)); // writes it once more
    QCOMPARE(parts.stopInput->text(), QStringLiteral("650.0"));
    QCOMPARE(recorder.taken(), list({ "stopValueChanged(650)" }));
}

void tst_RangedInputSlider::keepsItsNumbersInADrag()
{
    Panel panel;
    const Parts parts(panel);
    MouseHand hand(*parts.slider);

    hand.drag(onStart, onStart + QPoint(60, 0)); // the handle at 600, the number at 500 still
    panel.setStopValue(550.0);

    QCOMPARE(parts.startInput->text(), QStringLiteral("600.0"));
    QCOMPARE(parts.slider->currentValueMin(), 600.0);
    QCOMPARE(parts.slider->currentValueMax(), 550.0);
}

void tst_RangedInputSlider::reportsTheWheel()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);
    QWheelEvent turn(QPointF(), QPointF(), QPoint(), QPoint(0, 360), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);

    QApplication::sendEvent(parts.slider, &turn);

    QCOMPARE(parts.startInput->text(), QStringLiteral("500.3"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("700.3"));
    QCOMPARE(recorder.taken(), list({ "startValueChanged(500.3)", "stopValueChanged(700.3)" }));
}

void tst_RangedInputSlider::fixesAnEnd()
{
    Panel panel;
    const Parts parts(panel);
    SignalRecorder recorder(&panel);
    MouseHand hand(*parts.slider);

    panel.setFixedStart(true, 520.0);
    panel.setFixedStop(true, 680.0);
    hand.drag(QPoint(80, 17), QPoint(100, 17)); // handles at 72 and 168
    hand.drag(QPoint(180, 17), QPoint(170, 17));
    QVERIFY(!parts.startInput->isEnabled());
    QVERIFY(!parts.stopInput->isEnabled());
    QCOMPARE(parts.startInput->text(), QStringLiteral("520.0"));
    QCOMPARE(parts.stopInput->text(), QStringLiteral("680.0"));
    QCOMPARE(parts.slider->currentValueMin(), 520.0);
    QCOMPARE(parts.slider->currentValueMax(), 680.0);

    panel.setFixedStart(false, 530.0);
    panel.setFixedStop(false, 670.0);
    QVERIFY(parts.startInput->isEnabled());
    QVERIFY(parts.stopInput->isEnabled());
    QCOMPARE(parts.slider->currentValueMin(), 530.0);
    QCOMPARE(parts.slider->currentValueMax(), 670.0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_RangedInputSlider::survivesItsDeletionByAListener_data()
{
    QTest::addColumn<bool>("startSignal");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<double>("value");

    QTest::newRow("start checked, stop pushed") << false << QByteArray("checkStartInput") << 800.0;
    QTest::newRow("start checked") << true << QByteArray("checkStartInput") << 600.0;
    QTest::newRow("stop checked, start pushed") << true << QByteArray("checkStopInput") << 450.0;
    QTest::newRow("stop checked") << false << QByteArray("checkStopInput") << 600.0;
}

void tst_RangedInputSlider::survivesItsDeletionByAListener()
{
    QFETCH(bool, startSignal);
    QFETCH(QByteArray, slot);
    QFETCH(double, value);
    auto *panel = new Panel;
    const QPointer<Panel> alive(panel);
    connect(panel,
            startSignal ? &RangedInputSlider::startValueChanged
                        : &RangedInputSlider::stopValueChanged,
            qApp, [panel] { delete panel; });

    QMetaObject::invokeMethod(panel, slot.constData(), Q_ARG(double, value));

    QVERIFY(alive.isNull());
}

PELORIN_TEST_MAIN(tst_RangedInputSlider)
#include "tst_rangedinputslider.moc"
