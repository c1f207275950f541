#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/ComboSlider.h"
#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "Pelorin/sliders/DigitStep_p.h"
#include "Pelorin/sliders/ScaleSlider.h"
#include "tests/sliders/HandleProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// Power in mW and in percent, and a repetition rate in steps and on decades.
class Control : public ComboSlider
{
public:
    explicit Control(int sideMargin = 10)
        : ComboSlider(sideMargin)
    {
        resize(500, 110);
        auto *power = new ComboSliderScale(QStringLiteral("Power"), this);
        power->addUnit(new ComboSliderUnit(QStringLiteral("mW"), 0.0, 250.0, 1));
        power->addUnit(new ComboSliderUnit(QStringLiteral("%"), 10.0, 100.0, 0));
        addScale(power);
        auto *rate = new ComboSliderScale(QStringLiteral("Rate"), this);
        rate->addUnit(stepped());
        rate->addUnit(decades());
        addScale(rate);
        show();
    }

    /// 1, 2, 5 to 50 kHz, while the range ends at 20.
    ComboSliderUnit *stepped()
    {
        auto *unit = new ComboSliderUnit(QStringLiteral("kHz"), 1.0, 20.0, 0);
        unit->setScaleType(ScaleSlider::StepScale);
        unit->setStepList({ 1.0, 2.0, 5.0, 10.0, 20.0, 50.0 });
        return unit;
    }

    ComboSliderUnit *decades()
    {
        auto *unit = new ComboSliderUnit(QStringLiteral("Hz"), 1.0, 1000.0, 3);
        unit->setSignificantDigits(true);
        unit->setScaleType(ScaleSlider::LogarithmicScale);
        unit->setStepList({ 1.0, 2.0, 5.0, 10.0, 1000.0 });
        return unit;
    }

    ScaleSlider &slider() { return *findChild<ScaleSlider *>(); }
    ComboBox &scales()
    {
        return *findChildren<ComboBox *>(QString(), Qt::FindDirectChildrenOnly).at(0);
    }
    ComboBox &units()
    {
        return *findChildren<ComboBox *>(QString(), Qt::FindDirectChildrenOnly).at(1);
    }
    LineEditNumber &field() { return *getLineInput(); }
    QString number() { return field().text(); }

    /// Lets a wait end now.
    void runOut(const char *timer)
    {
        QTimer *const found = findChild<QTimer *>(QLatin1String(timer));
        QVERIFY(found->isActive());
        found->setInterval(0);
        QTRY_VERIFY(!found->isActive());
        found->setInterval(250);
    }

    bool isWaiting(const char *timer)
    {
        return findChild<QTimer *>(QLatin1String(timer))->isActive();
    }

    void key(Qt::Key key) { QTest::keyClick(&field(), key); }

    void type(const char *text)
    {
        field().selectAll();
        QTest::keyClicks(&field(), QLatin1String(text));
    }

    QPoint handle() { return QPoint(HandleProbe::handleLeft(slider()) + 17, 17); }
};

} // namespace

class tst_ComboSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsWithoutAScale();
    void laysItsFieldsOut();
    void picksAGround_data();
    void picksAGround();
    void paintsTheGroundOfTheSheet();

    void adoptsAScaleAndShowsItsUnits();
    void refillsTheUnitsWithEachScaleAdded();
    void sharesTheWidthBetweenNumberAndUnit();
    void looksLikeALabelWithOneScale();
    void choosesAScaleByIndex();
    void choosesAUnitByIndex();
    void reportsAScaleThatIsChosen();
    void reportsAUnitThatIsChosen();
    void handsTheUnitToTheSlider();
    void pullsTheValueIntoANarrowerUnit_data();
    void pullsTheValueIntoANarrowerUnit();
    void pullsTheValueIntoARangeThatIsSet();
    void renamesAndHidesScales();
    void hidesUnits();
    void refillsTheScales();
    void enablesAllItsParts();

    void showsAReadingInSilence();
    void showsTheReadingAsTheSliderHasIt();
    void reportsADrag();
    void reportsANumberThatIsTyped_data();
    void reportsANumberThatIsTyped();
    void reportsAnEditThatLosesTheFocus();
    void bringsTheValueBackWhenAnEditIsGivenUp();
    void endsAnEditWhenTheValueIsTaken();

    void findsTheWeightOfADigit_data();
    void findsTheWeightOfADigit();
    void nudgesByTheLastDigit_data();
    void nudgesByTheLastDigit();
    void nudgesToTheNextStep_data();
    void nudgesToTheNextStep();
    void nudgesALogarithmicUnitWithoutStepsToAPower();
    void walksAllLogarithmicStepsUpAndDown();
    void neverNudgesOutOfTheUnit();
    void nudgesByTheArrowKeys();
    void takesAReadingInsideOfANudgeAtOnce();
    void holdsReadingsBackAfterANudge();
    void holdsAReadingBackOnceMore();
    void ignoresTheWheel();

    void ignoresBadIndices_data();
    void ignoresBadIndices();
    void doesNothingWithoutUnits();
    void livesWithUnitsAndScalesThatAreDeleted();
    void takesNoNumberAsZero();
    void livesWithLimitsThatAreNoNumbers();
    void mayBeDeletedWhileItReports_data();
    void mayBeDeletedWhileItReports();
};

void tst_ComboSlider::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = ComboSlider::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list({ "selectionChanged(int,int)", "scaleIndexChanged(int)", "unitIndexChanged(int)",
                    "valueChanged(double)", "valueChanging(double)", "valueEntered(double)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             list({ "setValue(double)", "setCurrentScaleIndex(int)", "setCurrentUnitIndex(int)",
                    "setUnitVisibility(int,bool)", "setScaleTitle(int,QString)",
                    "setScaleVisible(int,bool)", "setUnitRange(int,int,double,double)",
                    "setEnabled(bool)", "updateSlider()", "emitSelectionIndexes()",
                    "updateUnitCombo()", "updateScaleCombo()", "acceptInputValue()",
                    "setInputValue(double)", "enterEditMode()", "exitEditMode()",
                    "cancelEditMode()", "nudge(int)", "updateFeedbackValue()" }));
}

void tst_ComboSlider::startsWithoutAScale()
{
    ComboSlider control(0);

    QCOMPARE(control.scaleIndex(), -1);
    QCOMPARE(control.unitIndex(), -1);
    QCOMPARE(control.value(), 50.0);
    QCOMPARE(control.getLineInput()->text(), QString());
    QCOMPARE(control.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(control.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    for (const char *name : { "nudgeTimer", "feedbackTimer" }) {
        const QTimer *const timer = control.findChild<QTimer *>(QLatin1String(name));
        QVERIFY(timer->isSingleShot());
        QCOMPARE(timer->interval(), 250);
    }
    control.setPrecision(4); // does nothing, and must be there
}

void tst_ComboSlider::laysItsFieldsOut()
{
    Control control(12);

    const auto *column = qobject_cast<QVBoxLayout *>(control.layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 4, 0, 4));
    QCOMPARE(column->spacing(), 4);
    QCOMPARE(column->count(), 5);
    const auto *row = qobject_cast<QHBoxLayout *>(column->itemAt(1)->layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(12, 0, 12, 0));
    QCOMPARE(row->spacing(), 4);
    QCOMPARE(row->itemAt(0)->widget(), &control.scales());
    QCOMPARE(row->stretch(1), 25);
    QCOMPARE(row->itemAt(2)->widget(), &control.field());
    QCOMPARE(row->itemAt(3)->widget(), &control.units());
    QCOMPARE(column->itemAt(3)->widget(), &control.slider());
    QCOMPARE(control.field().property("flat").toBool(), true);
    QCOMPARE(control.field().property("type").toString(), QStringLiteral("label"));
    QCOMPARE(control.scales().property("type").toString(), QStringLiteral("label"));
    QCOMPARE(control.units().property("type").toString(), QStringLiteral("label"));
    control.slider().setCurrentValue(0.0);
    QCOMPARE(HandleProbe::handleLeft(control.slider()), 12);
}

void tst_ComboSlider::picksAGround_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<QString>("field");

    QTest::newRow("dark") << true << "light-grey"
                          << "white";
    QTest::newRow("light") << false << "white"
                           << "dark";
}

void tst_ComboSlider::picksAGround()
{
    QFETCH(bool, dark);
    Control control;
    QCOMPARE(control.property("widget-color").toString(), QStringLiteral("light-grey"));

    control.setDarkBackground(dark);

    QTEST(control.property("widget-color").toString(), "ground");
    QTEST(control.field().property("background").toString(), "field");
}

void tst_ComboSlider::paintsTheGroundOfTheSheet()
{
    Control control;

    control.setStyleSheet(QStringLiteral("ComboSlider { background-color: #123456; }"));

    QCOMPARE(control.grab().toImage().pixel(2, 2), 0xFF123456);
}

void tst_ComboSlider::adoptsAScaleAndShowsItsUnits()
{
    QWidget holder;
    auto *control = new ComboSlider(0, &holder);
    auto *power = new ComboSliderScale(QStringLiteral("Power"), &holder);
    power->addUnit(new ComboSliderUnit(QStringLiteral("mW"), 0.0, 40.0, 1));
    SignalRecorder recorder(control);

    control->addScale(power);

    QCOMPARE(power->parent(), control);
    QCOMPARE(recorder.taken(), list({ "selectionChanged(0, 0)", "selectionChanged(0, 0)" }));
    QCOMPARE(control->scaleIndex(), 0);
    QCOMPARE(control->unitIndex(), 0);
    QCOMPARE(control->value(), 40.0); // pulled into the unit
    QCOMPARE(control->getLineInput()->text(), QStringLiteral("40.0"));
}

void tst_ComboSlider::refillsTheUnitsWithEachScaleAdded()
{
    Control control;
    control.setCurrentUnitIndex(1);
    SignalRecorder recorder(&control);

    control.addScale(new ComboSliderScale(QStringLiteral("Empty")));

    QCOMPARE(recorder.taken(), list({ "selectionChanged(0, 0)" }));
    QCOMPARE(control.scales().count(), 3);
}

void tst_ComboSlider::sharesTheWidthBetweenNumberAndUnit()
{
    Control control;

    const int expected = 150 - control.units().sizeHint().width();

    QVERIFY(expected > 0);
    QCOMPARE(control.field().minimumWidth(), expected);
    QCOMPARE(control.field().maximumWidth(), expected);

    auto *wide = new ComboSliderScale(QStringLiteral("Wide"), &control);
    wide->addUnit(new ComboSliderUnit(QString(60, QLatin1Char('W')), 0.0, 1.0, 0));
    control.addScale(wide);
    control.setCurrentScaleIndex(2);
    QCOMPARE(control.field().maximumWidth(), 0); // and no warning about a negative width
}

void tst_ComboSlider::looksLikeALabelWithOneScale()
{
    ComboSlider control(0);
    control.addScale(new ComboSliderScale(QStringLiteral("Power")));
    ComboBox *const scales = control.findChild<ComboBox *>();
    QCOMPARE(scales->property("single-mode").toBool(), true);

    control.addScale(new ComboSliderScale(QStringLiteral("Rate")));
    QCOMPARE(scales->property("single-mode").toBool(), false);
}

void tst_ComboSlider::choosesAScaleByIndex()
{
    Control control;
    control.setCurrentUnitIndex(1);
    SignalRecorder recorder(&control);

    control.setCurrentScaleIndex(1);

    QCOMPARE(recorder.taken(), list({ "selectionChanged(1, 0)" }));
    QCOMPARE(control.units().currentText(), QStringLiteral("kHz"));
    QCOMPARE(control.units().count(), 2);
}

void tst_ComboSlider::choosesAUnitByIndex()
{
    Control control;
    SignalRecorder recorder(&control);

    control.setCurrentUnitIndex(1);

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(control.unitIndex(), 1);
    QCOMPARE(PaintRecorder(control.slider()).textList().first(), QStringLiteral("10"));
}

void tst_ComboSlider::reportsAScaleThatIsChosen()
{
    Control control;
    SignalRecorder recorder(&control);

    control.scales().checkCurrentIndex(1);

    QCOMPARE(recorder.taken(), list({ "selectionChanged(1, 0)", "scaleIndexChanged(1)" }));
    QCOMPARE(control.units().currentText(), QStringLiteral("kHz"));
}

void tst_ComboSlider::reportsAUnitThatIsChosen()
{
    Control control;
    control.setValue(5.0);
    SignalRecorder recorder(&control);
    double valueThen = 0.0;
    connect(&control, &ComboSlider::selectionChanged, this, [&] { valueThen = control.value(); });

    control.units().checkCurrentIndex(1);

    QCOMPARE(recorder.taken(), list({ "selectionChanged(0, 1)", "unitIndexChanged(1)" }));
    QCOMPARE(valueThen, 10.0); // the slider is on the unit already
}

void tst_ComboSlider::handsTheUnitToTheSlider()
{
    Control control;
    auto *scale = new ComboSliderScale(QStringLiteral("Energy"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("nJ"), 1.0, 5000.0, 2);
    unit->setScaleType(ScaleSlider::LogarithmicScale);
    unit->setTraditionalLogarithmicScale(true);
    scale->addUnit(unit);
    auto *few = new ComboSliderUnit(QStringLiteral("pJ"), 0.0, 1.0, 2);
    few->setScaleType(ScaleSlider::StepScale);
    few->setStepList({ 0.0, 1.0, 2.0, 3.0, 4.0, 5.0 });
    few->setMaxStepTicks(-3);
    scale->addUnit(few);
    control.addScale(scale);

    control.setCurrentScaleIndex(2);
    control.slider().resize(335, control.slider().height()); // decades count from the next range
    QCOMPARE(PaintRecorder(control.slider()).textList(),
             list({ "1", "10", "100", "1000", "5000" }));

    control.setCurrentUnitIndex(1);
    QCOMPARE(PaintRecorder(control.slider()).textList(), list({ "0", "5" }));

    control.setCurrentScaleIndex(0);
    QVERIFY(PaintRecorder(control.slider()).textList().contains(QStringLiteral("250.0")));
}

void tst_ComboSlider::pullsTheValueIntoANarrowerUnit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");

    QTest::newRow("above") << 180.0 << "100";
    QTest::newRow("below") << 3.0 << "10";
}

void tst_ComboSlider::pullsTheValueIntoANarrowerUnit()
{
    QFETCH(double, value);
    QFETCH(QString, shown);
    Control control;
    control.setValue(value);
    SignalRecorder recorder(&control);

    control.setCurrentUnitIndex(1); // 10 to 100

    QCOMPARE(control.value(), shown.toDouble());
    QCOMPARE(control.number(), shown);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboSlider::pullsTheValueIntoARangeThatIsSet()
{
    Control control;
    control.setValue(200.0);

    control.setUnitRange(0, 1, 0.0, 90.0); // not the current unit
    QCOMPARE(control.value(), 200.0);

    control.setUnitRange(0, 0, 0.0, 150.0);
    QCOMPARE(control.value(), 150.0);
    QCOMPARE(control.number(), QStringLiteral("150.0"));

    control.setCurrentUnitIndex(1);
    QCOMPARE(control.value(), 90.0);
}

void tst_ComboSlider::renamesAndHidesScales()
{
    Control control;

    control.setScaleTitle(0, QStringLiteral("Output"));
    control.setScaleTitle(1, QStringLiteral("Pulses"));
    QCOMPARE(control.scales().text(), QStringLiteral("Output"));
    QCOMPARE(control.scales().itemText(1), QStringLiteral("Pulses"));

    QVERIFY(control.isScaleVisible(1));
    control.setScaleVisible(1, false);
    QVERIFY(!control.isScaleVisible(1));
    QVERIFY(control.isScaleVisible(0));
    QVERIFY(!control.isScaleVisible(2));
    QVERIFY(!control.isScaleVisible(-1));

    control.updateScaleCombo(); // the new titles are the scales' own
    QCOMPARE(control.scales().itemText(1), QStringLiteral("Pulses"));
}

void tst_ComboSlider::hidesUnits()
{
    Control control;

    control.setUnitVisibility(1, false);

    QVERIFY(control.units().hasItemVisibility(0));
    QVERIFY(!control.units().hasItemVisibility(1));
}

void tst_ComboSlider::refillsTheScales()
{
    Control control;
    control.setCurrentScaleIndex(1);
    SignalRecorder recorder(&control);

    control.updateScaleCombo();

    QCOMPARE(control.scales().count(), 2);
    QCOMPARE(control.scaleIndex(), 1);
    QCOMPARE(control.scales().text(), QStringLiteral("Rate"));
    QCOMPARE(recorder.taken(), list({ "selectionChanged(1, 0)" }));
}

void tst_ComboSlider::enablesAllItsParts()
{
    Control control;

    control.setEnabled(false);
    QVERIFY(!control.isEnabled());
    QVERIFY(!control.slider().isEnabled());
    QVERIFY(!control.field().isEnabled());

    control.setEnabled(true);
    control.slider().setEnabled(false); // by whoever it was
    control.setEnabled(true);
    QVERIFY(control.slider().isEnabled());
}

void tst_ComboSlider::showsAReadingInSilence()
{
    Control control;
    SignalRecorder recorder(&control);

    control.setValue(12.34);

    QCOMPARE(control.value(), 12.34);
    QCOMPARE(control.number(), QStringLiteral("12.3"));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboSlider::showsTheReadingAsTheSliderHasIt()
{
    Control control;
    control.setValue(1000.0);
    QCOMPARE(control.number(), QStringLiteral("250.0"));

    control.setCurrentScaleIndex(1);
    control.setValue(6.5);
    QCOMPARE(control.number(), QStringLiteral("5"));
    QCOMPARE(control.value(), 5.0);

    control.setCurrentUnitIndex(1);
    control.setValue(123.4);
    QVERIFY(qAbs(control.value() - 123.4) < 1e-9);
    QCOMPARE(control.number(), QStringLiteral("123"));

    control.setValue(qQNaN());
    QCOMPARE(control.number(), QStringLiteral("123"));
}

void tst_ComboSlider::reportsADrag()
{
    Control control;
    control.setValue(0.0);
    SignalRecorder recorder(&control);
    MouseHand hand(control.slider());
    const double pixel = control.slider().accordingValue(1) - control.slider().accordingValue(0);
    const QPoint handle = control.handle();

    hand.press(handle);
    QCOMPARE(recorder.taken(), QStringList());

    hand.move(handle + QPoint(100, 0));
    QCOMPARE(recorder.taken(),
             QStringList(QStringLiteral("valueChanging(%1)").arg(100 * pixel, 0, 'g', 12)));
    QCOMPARE(control.number(), QString::number(100 * pixel, 'f', 1));

    hand.release(handle + QPoint(100, 0));
    // What is set is what the field shows.
    const QString shown = QString::number(control.number().toDouble());
    QCOMPARE(recorder.taken(), (QStringList{ QStringLiteral("valueEntered(%1)").arg(shown),
                                             QStringLiteral("valueChanged(%1)").arg(shown) }));
    QCOMPARE(control.value(), control.number().toDouble());
}

void tst_ComboSlider::reportsANumberThatIsTyped_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QStringList>("signalList");
    QTest::addColumn<QString>("shown");

    QTest::newRow("inside") << 0 << 0 << QByteArray("20")
                            << list({ "valueEntered(20)", "valueChanged(20)" }) << "20.0";
    QTest::newRow("above the unit")
        << 0 << 0 << QByteArray("300") << list({ "valueEntered(300)", "valueChanged(250)" })
        << "250.0";
    QTest::newRow("below the unit")
        << 0 << 1 << QByteArray("3") << list({ "valueEntered(3)", "valueChanged(10)" }) << "10";
    QTest::newRow("between steps")
        << 1 << 0 << QByteArray("3") << list({ "valueEntered(2)", "valueChanged(2)" }) << "2";
    QTest::newRow("on a step above the unit")
        << 1 << 0 << QByteArray("44") << list({ "valueEntered(50)", "valueChanged(20)" }) << "20";
    QTest::newRow("nothing") << 0 << 0 << QByteArray("-")
                             << list({ "valueEntered(0)", "valueChanged(0)" }) << "0.0";
}

void tst_ComboSlider::reportsANumberThatIsTyped()
{
    QFETCH(int, scale);
    QFETCH(int, unit);
    QFETCH(QByteArray, typed);
    Control control;
    control.setCurrentScaleIndex(scale);
    control.setCurrentUnitIndex(unit);
    SignalRecorder recorder(&control);

    control.type(typed.constData());
    QCOMPARE(recorder.taken(), QStringList());
    control.key(Qt::Key_Return);

    QTEST(recorder.taken(), "signalList");
    QTEST(control.number(), "shown");
    QCOMPARE(control.value(), control.number().toDouble());
}

void tst_ComboSlider::reportsAnEditThatLosesTheFocus()
{
    Control control;
    control.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&control));
    control.field().setFocus();
    control.type("20");
    SignalRecorder recorder(&control);

    control.field().clearFocus();

    QCOMPARE(recorder.taken(), list({ "valueEntered(20)", "valueChanged(20)" }));
}

void tst_ComboSlider::bringsTheValueBackWhenAnEditIsGivenUp()
{
    Control control;
    control.setValue(30.0);
    control.type("20");
    control.slider().setCurrentValue(77.0); // whatever came meanwhile
    SignalRecorder recorder(&control);
    tolerateMessages(QtDebugMsg, QStringLiteral("Reset: "));

    control.field().resetText();

    QCOMPARE(control.value(), 30.0);
    QCOMPARE(control.number(), QStringLiteral("30.0"));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboSlider::endsAnEditWhenTheValueIsTaken()
{
    Control control;
    control.setValue(30.0);
    control.type("20");
    control.key(Qt::Key_Return);
    control.type("40"); // a new edit remembers the new value
    tolerateMessages(QtDebugMsg, QStringLiteral("Reset: "));

    control.field().resetText();

    QCOMPARE(control.value(), 20.0);
    QCOMPARE(control.number(), QStringLiteral("20.0"));
}

void tst_ComboSlider::findsTheWeightOfADigit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("digits");
    QTest::addColumn<double>("step");

    QTest::newRow("behind the point") << "3.45" << 3 << 0.01;
    QTest::newRow("before the end") << "1250" << 3 << 10.0;
    QTest::newRow("leading zeros") << "0.0340" << 3 << 0.0001;
    QTest::newRow("digits beyond stay") << "12.345" << 3 << 0.145;
    QTest::newRow("too few digits") << "5" << 3 << 0.0;
    QTest::newRow("one digit") << "3.45" << 1 << 3.45;
    QTest::newRow("no digits") << "3.45" << 0 << 3.45;
    QTest::newRow("minus") << "-3.45" << 2 << -0.15;
    QTest::newRow("zero") << "0.00" << 3 << 0.0;
    QTest::newRow("empty") << "" << 3 << 0.0;
}

void tst_ComboSlider::findsTheWeightOfADigit()
{
    QFETCH(QString, text);
    QFETCH(int, digits);

    QTEST(digitStep(text, digits), "step");
}

void tst_ComboSlider::nudgesByTheLastDigit_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<bool>("significant");
    QTest::addColumn<double>("before");
    QTest::addColumn<int>("direction");
    QTest::addColumn<double>("after");

    QTest::newRow("a decimal up") << 1 << false << 12.5 << 1 << 12.6;
    QTest::newRow("a decimal down") << 1 << false << 12.5 << -1 << 12.4;
    QTest::newRow("five of them") << 1 << false << 12.5 << 5 << 13.0;
    QTest::newRow("whole numbers") << 0 << false << 12.0 << -1 << 11.0;
    QTest::newRow("tens") << -1 << false << 12.0 << 1 << 22.0;
    QTest::newRow("third digit") << 3 << true << 3.45 << 1 << 3.46;
    QTest::newRow("third digit of four") << 3 << true << 125.0 << 2 << 127.0;
    QTest::newRow("the number itself") << 1 << true << 20.0 << 1 << 40.0;
}

void tst_ComboSlider::nudgesByTheLastDigit()
{
    QFETCH(int, precision);
    QFETCH(bool, significant);
    QFETCH(double, before);
    QFETCH(int, direction);
    QFETCH(double, after);
    ComboSlider control(0);
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("mW"), 0.0, 250.0, precision);
    unit->setSignificantDigits(significant);
    scale->addUnit(unit);
    control.addScale(scale);
    control.setValue(before);
    QList<double> values;
    connect(&control, &ComboSlider::valueChanged, this, [&](double value) { values << value; });
    SignalRecorder recorder(&control);

    control.nudge(direction);

    QCOMPARE(recorder.taken().size(), 1);
    QCOMPARE(values, QList<double>{ after });
    QCOMPARE(control.value(), after);
}

void tst_ComboSlider::nudgesToTheNextStep_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<int>("direction");
    QTest::addColumn<double>("after");

    QTest::newRow("up") << 2.0 << 1 << 5.0;
    QTest::newRow("down") << 2.0 << -1 << 1.0;
    QTest::newRow("zero is down") << 2.0 << 0 << 1.0;
    QTest::newRow("the size does not matter, up") << 1.0 << 3 << 2.0;
    QTest::newRow("the size does not matter, down") << 5.0 << -7 << 2.0;
    QTest::newRow("at the upper end") << 5.0 << 1 << 5.0;
    QTest::newRow("at the lower end") << 1.0 << -1 << 1.0;
}

void tst_ComboSlider::nudgesToTheNextStep()
{
    QFETCH(double, before);
    QFETCH(int, direction);
    QFETCH(double, after);
    ComboSlider control(0);
    auto *scale = new ComboSliderScale(QStringLiteral("Rate"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("kHz"), 1.0, 5.0, 0);
    unit->setScaleType(ScaleSlider::StepScale);
    unit->setStepList({ 1.0, 2.0, 5.0 });
    scale->addUnit(unit);
    control.addScale(scale);
    control.setValue(before);
    SignalRecorder recorder(&control);

    control.nudge(direction);

    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("valueChanged(%1)").arg(after)));
    QCOMPARE(control.getLineInput()->text(), QString::number(after));
}

void tst_ComboSlider::nudgesALogarithmicUnitWithoutStepsToAPower()
{
    ComboSlider control(0);
    auto *scale = new ComboSliderScale(QStringLiteral("Rate"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("Hz"), 1.0, 1.0e6, 0);
    unit->setScaleType(ScaleSlider::LogarithmicScale);
    scale->addUnit(unit);
    control.addScale(scale);
    control.setValue(2.0);
    SignalRecorder recorder(&control);

    control.nudge(1);

    QCOMPARE(recorder.taken(), list({ "valueChanged(1000)" })); // ten to the power of 2 + 1
}

void tst_ComboSlider::walksAllLogarithmicStepsUpAndDown()
{
    const QList<double> steps{ 1.0, 2.0, 3.0, 5.0, 7.0, 20.0, 30.0, 70.0, 300.0, 700.0, 1000.0 };
    ComboSlider control(0);
    auto *scale = new ComboSliderScale(QStringLiteral("Rate"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("Hz"), 1.0, 1000.0, 0);
    unit->setScaleType(ScaleSlider::LogarithmicScale);
    unit->setStepList(steps);
    scale->addUnit(unit);
    control.addScale(scale);
    control.setValue(1.0);

    QStringList expected;
    QStringList seen;
    for (int i = 1; i < steps.size(); ++i) {
        control.nudge(1);
        seen << control.getLineInput()->text();
        expected << QString::number(steps.at(i));
    }
    for (int i = steps.size() - 2; i >= 0; --i) {
        control.nudge(-1);
        seen << control.getLineInput()->text();
        expected << QString::number(steps.at(i));
    }

    QCOMPARE(seen, expected);
}

void tst_ComboSlider::neverNudgesOutOfTheUnit()
{
    Control control;
    control.setCurrentScaleIndex(1); // steps to 50, range to 20
    control.setValue(20.0);
    SignalRecorder recorder(&control);

    control.nudge(1);
    QCOMPARE(recorder.taken(), list({ "valueChanged(20)" }));

    control.setCurrentScaleIndex(0);
    control.field().setText(QStringLiteral("249.95"));
    recorder.taken();
    control.nudge(1);
    QCOMPARE(recorder.taken(), list({ "valueChanged(250)" }));
    control.nudge(-9999);
    QCOMPARE(recorder.taken(), list({ "valueChanged(0)" }));
}

void tst_ComboSlider::nudgesByTheArrowKeys()
{
    Control control;
    control.setValue(12.5);
    SignalRecorder recorder(&control);

    control.key(Qt::Key_Up);
    QCOMPARE(recorder.taken(), list({ "valueChanged(12.6)" }));

    control.key(Qt::Key_Down);
    control.key(Qt::Key_Down);
    QCOMPARE(recorder.taken(), list({ "valueChanged(12.5)", "valueChanged(12.4)" }));
    QCOMPARE(control.number(), QStringLiteral("12.4"));
}

void tst_ComboSlider::takesAReadingInsideOfANudgeAtOnce()
{
    Control control;
    control.setValue(12.5);
    connect(&control, &ComboSlider::valueChanged, this, [&] { control.setValue(99.0); });

    control.nudge(1);

    QCOMPARE(control.value(), 99.0);
    QVERIFY(!control.isWaiting("feedbackTimer"));
}

void tst_ComboSlider::holdsReadingsBackAfterANudge()
{
    Control control;
    control.setValue(12.5);
    control.nudge(1);

    control.setValue(40.0);
    control.setValue(41.0);
    QCOMPARE(control.value(), 12.6);
    QCOMPARE(control.number(), QStringLiteral("12.6"));

    control.runOut("nudgeTimer");
    QCOMPARE(control.value(), 12.6); // the reading has a wait of its own
    control.runOut("feedbackTimer");
    QCOMPARE(control.value(), 41.0);
    QCOMPARE(control.number(), QStringLiteral("41.0"));
}

void tst_ComboSlider::holdsAReadingBackOnceMore()
{
    Control control;
    control.setValue(12.5);
    control.nudge(1);
    control.setValue(40.0);

    control.updateFeedbackValue(); // its wait is over, the other is not
    QCOMPARE(control.value(), 12.6);
    QVERIFY(control.isWaiting("feedbackTimer"));

    control.runOut("nudgeTimer");
    control.updateFeedbackValue();
    QCOMPARE(control.value(), 40.0);
}

void tst_ComboSlider::ignoresTheWheel()
{
    Control control;
    control.setValue(12.5);
    SignalRecorder recorder(&control);
    QWheelEvent event(QPointF(10, 10), control.slider().mapToGlobal(QPoint(10, 10)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QApplication::sendEvent(&control.slider(), &event);
    QCOMPARE(recorder.taken(), QStringList());

    Q_EMIT control.slider().wheelMoved(1); // a slider that did emit would be listened to
    QCOMPARE(recorder.taken(), list({ "valueChanged(12.6)" }));
}

void tst_ComboSlider::ignoresBadIndices_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("minus one") << -1;
    QTest::newRow("one past the end") << 2;
    QTest::newRow("far out") << 99999;
}

void tst_ComboSlider::ignoresBadIndices()
{
    QFETCH(int, index);
    Control control;
    control.setValue(200.0);
    SignalRecorder recorder(&control);

    control.setScaleTitle(index, QStringLiteral("None"));
    control.setScaleVisible(index, false);
    control.setUnitVisibility(index, false);
    control.setUnitRange(index, 0, 0.0, 1.0);
    control.setUnitRange(0, index, 0.0, 1.0);
    control.addScale(nullptr);

    QCOMPARE(control.value(), 200.0);
    QCOMPARE(control.scales().count(), 2);
    QVERIFY(control.isScaleVisible(0) && control.isScaleVisible(1));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboSlider::doesNothingWithoutUnits()
{
    ComboSlider control(0);
    SignalRecorder recorder(&control);

    control.nudge(1);
    control.setInputValue(5.0);
    control.updateUnitCombo();
    control.updateSlider();
    control.setValue(30.0);
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(control.value(), 30.0); // the slider has a range of its own
    QCOMPARE(control.getLineInput()->text(), QString());

    control.acceptInputValue();
    QCOMPARE(recorder.taken(), list({ "valueEntered(0)" }));

    control.addScale(new ComboSliderScale(QStringLiteral("Empty")));
    control.setCurrentUnitIndex(0);
    control.nudge(1);
    QCOMPARE(control.value(), 30.0);
}

void tst_ComboSlider::livesWithUnitsAndScalesThatAreDeleted()
{
    Control control;
    auto *extra = new ComboSliderScale(QStringLiteral("Extra"), &control);
    auto *unit = new ComboSliderUnit(QStringLiteral("V"), 0.0, 1.0, 0);
    extra->addUnit(unit);
    control.addScale(extra);
    control.setCurrentScaleIndex(2);

    delete unit;
    control.nudge(1);
    control.updateSlider();
    control.acceptInputValue();
    QCOMPARE(extra->unit(0), nullptr);
    QCOMPARE(extra->unitTexts(), QStringList(QString()));

    delete extra;
    control.updateUnitCombo();
    control.setScaleTitle(2, QStringLiteral("Gone"));
    control.updateScaleCombo();
    control.setCurrentScaleIndex(0);
    control.nudge(1);
    QCOMPARE(control.units().count(), 2);
}

void tst_ComboSlider::takesNoNumberAsZero()
{
    Control control;
    control.setValue(30.0);
    SignalRecorder recorder(&control);
    control.field().QLineEdit::setText(QStringLiteral("nan")); // as by a paste

    control.key(Qt::Key_Return);

    QCOMPARE(recorder.taken(), list({ "valueEntered(0)", "valueChanged(0)" }));
}

void tst_ComboSlider::livesWithLimitsThatAreNoNumbers()
{
    ComboSlider control(0);
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &control);
    scale->addUnit(new ComboSliderUnit(QStringLiteral("mW"), qQNaN(), qQNaN(), 1));
    scale->addUnit(new ComboSliderUnit(QStringLiteral("W"), 5.0, 5.0, 1));
    scale->addUnit(new ComboSliderUnit(QStringLiteral("kW"), 9.0, 5.0, 1));
    control.addScale(scale);
    control.setValue(20.0);

    control.nudge(1);
    QCOMPARE(control.value(), 20.1);

    control.setCurrentUnitIndex(1);
    control.nudge(1);
    QVERIFY(qIsFinite(control.value()));

    control.setCurrentUnitIndex(2);
    control.nudge(-1);
    control.acceptInputValue();
    QVERIFY(qIsFinite(control.value()));
}

void tst_ComboSlider::mayBeDeletedWhileItReports_data()
{
    QTest::addColumn<bool>("entered");

    QTest::newRow("valueEntered") << true;
    QTest::newRow("valueChanged of a nudge") << false;
}

void tst_ComboSlider::mayBeDeletedWhileItReports()
{
    QFETCH(bool, entered);
    QPointer<Control> control = new Control;
    const auto vanish = [control] { delete control; };

    if (entered) {
        connect(control.data(), &ComboSlider::valueEntered, this, vanish);
        control->acceptInputValue();
    } else {
        connect(control.data(), &ComboSlider::valueChanged, this, vanish);
        control->nudge(1);
    }

    QVERIFY(control.isNull());
}

PELORIN_TEST_MAIN(tst_ComboSlider)
#include "tst_comboslider.moc"
