#include "Pelorin/sliders/ComboSliderUnit.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"

class tst_ComboSliderUnit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheDefaults();
    void keepsWhatIsSet();
    void keepsStepsInTheNumbersOfTheScale_data();
    void keepsStepsInTheNumbersOfTheScale();
    void replacesItsSteps();
};

void tst_ComboSliderUnit::startsWithTheDefaults()
{
    QObject parent;
    const auto *unit = new ComboSliderUnit(QStringLiteral("mW"), 1.5, 200.0, 2, &parent);

    QCOMPARE(unit->parent(), &parent);
    QCOMPARE(unit->text(), QStringLiteral("mW"));
    QCOMPARE(unit->minValue(), 1.5);
    QCOMPARE(unit->maxValue(), 200.0);
    QCOMPARE(unit->precision(), 2);
    QCOMPARE(unit->significantDigits(), false);
    QCOMPARE(unit->maxLabelIntervals(), -1);
    QCOMPARE(unit->maxStepTicks(), -10);
    QCOMPARE(unit->traditionalLogarithmicScale(), false);
    QCOMPARE(unit->scaleType(), ScaleSlider::LinearScale);
    QCOMPARE(unit->stepList(), QList<double>());
    QCOMPARE(unit->metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(*unit->metaObject()), QStringList());
}

void tst_ComboSliderUnit::keepsWhatIsSet()
{
    ComboSliderUnit unit(QStringLiteral("mW"), 0.0, 1.0, 0, nullptr);

    unit.setText(QStringLiteral("W"));
    unit.setRange(-3.0, 4.0);
    unit.setPrecision(5);
    unit.setSignificantDigits(true);
    unit.setMaxLabelIntervals(7);
    unit.setMaxStepTicks(-4);
    unit.setTraditionalLogarithmicScale(true);
    unit.setScaleType(ScaleSlider::StepScaleInterpolated);

    QCOMPARE(unit.text(), QStringLiteral("W"));
    QCOMPARE(unit.minValue(), -3.0);
    QCOMPARE(unit.maxValue(), 4.0);
    QCOMPARE(unit.precision(), 5);
    QCOMPARE(unit.significantDigits(), true);
    QCOMPARE(unit.maxLabelIntervals(), 7);
    QCOMPARE(unit.maxStepTicks(), -4);
    QCOMPARE(unit.traditionalLogarithmicScale(), true);
    QCOMPARE(unit.scaleType(), ScaleSlider::StepScaleInterpolated);
}

void tst_ComboSliderUnit::keepsStepsInTheNumbersOfTheScale_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QList<double>>("given");
    QTest::addColumn<QList<double>>("kept");

    const QList<double> decades{ 1.0, 10.0, 1000.0 };
    QTest::newRow("linear") << 0 << decades << decades;
    QTest::newRow("logarithmic") << 1 << decades << QList<double>{ 0.0, 1.0, 3.0 };
    QTest::newRow("steps") << 2 << decades << decades;
    QTest::newRow("no exponent") << 1 << QList<double>{ -1.0, 0.0, 100.0 } << QList<double>{ 2.0 };
    QTest::newRow("not finite") << 2 << QList<double>{ qQNaN(), 3.0, qInf() }
                                << QList<double>{ 3.0 };
}

void tst_ComboSliderUnit::keepsStepsInTheNumbersOfTheScale()
{
    QFETCH(int, type);
    QFETCH(QList<double>, given);
    ComboSliderUnit unit(QStringLiteral("Hz"), 0.0, 1.0, 0, nullptr);
    unit.setScaleType(ScaleSlider::ScaleType(type));

    unit.setStepList(given);

    QTEST(unit.stepList(), "kept");
}

void tst_ComboSliderUnit::replacesItsSteps()
{
    ComboSliderUnit unit(QStringLiteral("Hz"), 0.0, 1.0, 0, nullptr);
    unit.setStepList({ 1.0, 2.0 });
    unit.setScaleType(ScaleSlider::LogarithmicScale);
    QCOMPARE(unit.stepList(), (QList<double>{ 1.0, 2.0 })); // the type is to be set first

    unit.setStepList({ 100.0 });

    QCOMPARE(unit.stepList(), QList<double>{ 2.0 });
}

PELORIN_TEST_MAIN(tst_ComboSliderUnit)
#include "tst_combosliderunit.moc"
