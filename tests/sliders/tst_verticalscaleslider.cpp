#include "Pelorin/controls/VerticalLabel.h"
#include "Pelorin/sliders/VerticalScaleSlider.h"
#include "tests/sliders/AssemblyWiring.h"

#include <QGridLayout>

class tst_VerticalScaleSlider : public TestCase
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
    void tracesBeforeItReports();

private:
    static void expectTrace(const QVector<double> &values);
};

void tst_VerticalScaleSlider::startsWithItsParts()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalScaleSlider>(&assembly).startsWithItsParts(ScaleSliderNG::ScaleLinear);
}

void tst_VerticalScaleSlider::declaresSignalsAndSlotsInOrder()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalScaleSlider>(&assembly).declaresInOrder(
        { QStringLiteral("setMaxLabels(int)"), QStringLiteral("priValueChanging(double)") });
}

void tst_VerticalScaleSlider::setsInSilence()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalScaleSlider>(&assembly).setsInSilence();
}

void tst_VerticalScaleSlider::reportsAChangeAlways()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    expectTrace({ 60, 60 });
    AssemblyWiring<VerticalScaleSlider>(&assembly).reportsAChangeAlways();
}

void tst_VerticalScaleSlider::followsADrag()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    tolerateMessages(QtDebugMsg, QStringLiteral("VerticalScaleSlider::priValueChanging "));
    AssemblyWiring<VerticalScaleSlider>(&assembly).followsADrag();
}

void tst_VerticalScaleSlider::takesATypedNumber()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    expectTrace({ 62.5, 100 });
    AssemblyWiring<VerticalScaleSlider>(&assembly).takesATypedNumber();
}

void tst_VerticalScaleSlider::forwardsItsDigits()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, false, nullptr);
    AssemblyWiring<VerticalScaleSlider>(&assembly).forwardsItsDigits();
}

void tst_VerticalScaleSlider::tracesBeforeItReports()
{
    VerticalScaleSlider assembly(ScaleSliderNG::ScaleLinear, true, nullptr);
    int tracesLeft = -1;
    connect(&assembly, &VerticalScaleSlider::valueChanging, this,
            [&tracesLeft] { tracesLeft = pendingMessages(); });
    expectTrace({ 30 });

    assembly.changeValue(30.0);
    assembly.setValue(40.0); // silent, and without a trace

    QCOMPARE(tracesLeft, 0);
}

void tst_VerticalScaleSlider::expectTrace(const QVector<double> &values)
{
    for (const double value : values)
        expectMessage(QtDebugMsg,
                      QStringLiteral("VerticalScaleSlider::priValueChanging %1").arg(value));
}

PELORIN_TEST_MAIN(tst_VerticalScaleSlider)
#include "tst_verticalscaleslider.moc"
