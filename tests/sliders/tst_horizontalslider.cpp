#include "Pelorin/controls/VerticalLabel.h"
#include "Pelorin/sliders/HorizontalSlider.h"
#include "tests/sliders/AssemblyWiring.h"

#include <QGridLayout>

class tst_HorizontalSlider : public TestCase
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
    void linesTitleAndNumberUpWithTheTrack();
    void startsOnZeroToHundred();
};

void tst_HorizontalSlider::startsWithItsParts()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).startsWithItsParts(ScaleSliderNG::ScaleLinear);
}

void tst_HorizontalSlider::declaresSignalsAndSlotsInOrder()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).declaresInOrder(QStringList());
}

void tst_HorizontalSlider::setsInSilence()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).setsInSilence();
}

void tst_HorizontalSlider::reportsAChangeAlways()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).reportsAChangeAlways();
}

void tst_HorizontalSlider::followsADrag()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).followsADrag();
}

void tst_HorizontalSlider::takesATypedNumber()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).takesATypedNumber();
}

void tst_HorizontalSlider::forwardsItsDigits()
{
    HorizontalSlider assembly(12, ScaleSliderNG::ScaleLinear, nullptr);
    AssemblyWiring<HorizontalSlider>(&assembly).forwardsItsDigits();
}

void tst_HorizontalSlider::linesTitleAndNumberUpWithTheTrack()
{
    HorizontalSlider assembly(30, ScaleSliderNG::ScaleSqrt, nullptr);
    assembly.resize(600, 160);
    assembly.show();
    const auto x = [&assembly](const QWidget *widget) {
        return widget->mapTo(&assembly, QPoint(0, 0)).x();
    };
    const QLayout *column = assembly.slider->parentWidget()->layout();
    const QLayout *row = column->itemAt(0)->layout();

    QCOMPARE(x(assembly.titleLabel), 30);
    QCOMPARE(x(assembly.unitLabel) + assembly.unitLabel->width(), 570);
    QCOMPARE(x(assembly.slider), 0);
    QCOMPARE(assembly.slider->width(), 600);
    QCOMPARE(assembly.slider->sideMargins(), 30);
    QCOMPARE(column->contentsMargins(), QMargins(0, 6, 0, 6));
    QCOMPARE(column->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins(30, 0, 30, 0));
    QCOMPARE(row->spacing(), 4);
    QCOMPARE(qobject_cast<const QBoxLayout *>(row)->stretch(1), 25);
    QCOMPARE(assembly.layout()->count(), 1);
    QCOMPARE(assembly.titleLabel->property("type").toString(), QStringLiteral("label"));
}

void tst_HorizontalSlider::startsOnZeroToHundred()
{
    const HorizontalSlider assembly(0, ScaleSliderNG::ScaleLinear, nullptr);

    QCOMPARE(assembly.slider->maximum(), 100.0);
    QCOMPARE(assembly.lineEdit->minimum(), 0.0);
    QCOMPARE(assembly.lineEdit->maximum(), 100.0);
}

PELORIN_TEST_MAIN(tst_HorizontalSlider)
#include "tst_horizontalslider.moc"
