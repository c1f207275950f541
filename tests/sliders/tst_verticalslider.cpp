#include "Pelorin/controls/VerticalLabel.h"
#include "Pelorin/sliders/VerticalSlider.h"
#include "tests/sliders/AssemblyWiring.h"

#include <QGridLayout>

class tst_VerticalSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsParts();
    void declaresSignalsAndSlotsInOrder();
    void setsInSilence();
    void reportsAChangeAlways();
    void followsADrag();
    void takesATypedNumber();
    void forwardsItsDigits();
    void putsTheTitleOnEitherSide_data();
    void putsTheTitleOnEitherSide();
    void standsInTheMiddle();
};

void tst_VerticalSlider::startsWithItsParts()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).startsWithItsParts(ScaleSliderNG::ScaleLinear);
}

void tst_VerticalSlider::declaresSignalsAndSlotsInOrder()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).declaresInOrder(
        { QStringLiteral("setMaxLabels(int)") });
}

void tst_VerticalSlider::setsInSilence()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).setsInSilence();
}

void tst_VerticalSlider::reportsAChangeAlways()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).reportsAChangeAlways();
}

void tst_VerticalSlider::followsADrag()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).followsADrag();
}

void tst_VerticalSlider::takesATypedNumber()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).takesATypedNumber();
}

void tst_VerticalSlider::forwardsItsDigits()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalSlider>(&assembly).forwardsItsDigits();
}

void tst_VerticalSlider::putsTheTitleOnEitherSide_data()
{
    QTest::addColumn<bool>("sliderFirst");

    QTest::newRow("slider first") << true;
    QTest::newRow("title first") << false;
}

void tst_VerticalSlider::putsTheTitleOnEitherSide()
{
    QFETCH(bool, sliderFirst);
    VerticalSlider assembly(ScaleSliderNG::ScaleSqrtSteps, sliderFirst, nullptr);
    const auto *grid = qobject_cast<QGridLayout *>(assembly.slider->parentWidget()->layout());
    QVERIFY(grid);

    QCOMPARE(grid->itemAtPosition(1, sliderFirst ? 0 : 1)->widget(), assembly.slider);
    QCOMPARE(grid->itemAtPosition(1, sliderFirst ? 1 : 0)->widget(), assembly.titleLabel);
    QCOMPARE(grid->itemAtPosition(1, 0)->alignment(), Qt::AlignTop);
    QCOMPARE(grid->itemAtPosition(1, 1)->alignment(), Qt::AlignTop);
    QCOMPARE(grid->contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(grid->spacing(), 2);
    const QLayout *row = grid->itemAtPosition(0, 0)->layout();
    QCOMPARE(grid->itemAtPosition(0, 1)->layout(), row);
    QCOMPARE(row->itemAt(0)->widget(), assembly.lineEdit);
    QCOMPARE(row->itemAt(1)->widget(), assembly.unitLabel);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), 2);
    QCOMPARE(assembly.titleLabel->alignment(), Qt::AlignCenter);
    QCOMPARE(assembly.slider->orientation(), Qt::Vertical);
    QCOMPARE(assembly.slider->maximum(), 100.0); // their own defaults, which differ
    QCOMPARE(assembly.lineEdit->maximum(), 2000.0);
}

void tst_VerticalSlider::standsInTheMiddle()
{
    VerticalSlider assembly(ScaleSliderNG::ScaleLinear, true, nullptr);
    assembly.resize(900, 500);
    assembly.show();
    const QRect panel = assembly.slider->parentWidget()->geometry();

    QVERIFY(panel.width() < 400);
    QVERIFY(qAbs(panel.center().x() - assembly.rect().center().x()) <= 1);
    QCOMPARE(assembly.layout()->contentsMargins(), QMargins());
    QCOMPARE(assembly.layout()->spacing(), 0);
    for (const int place : { 0, 2 }) {
        const QSpacerItem *spacer = assembly.layout()->itemAt(place)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(0, 1));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
    }
}

PELORIN_TEST_MAIN(tst_VerticalSlider)
#include "tst_verticalslider.moc"
