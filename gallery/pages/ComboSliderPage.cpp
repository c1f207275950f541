#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ComboSlider>
#include <Pelorin/ComboSliderScale>
#include <Pelorin/ComboSliderUnit>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int sideMargin = 16;

ComboSliderScale *makePower(ComboSlider *owner)
{
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), owner);
    scale->addUnit(new ComboSliderUnit(QStringLiteral("mW"), 0.0, 250.0, 1));
    scale->addUnit(new ComboSliderUnit(QStringLiteral("%"), 0.0, 100.0, 0));
    auto *small = new ComboSliderUnit(QString(QChar(0xB5)) + QStringLiteral("W"), 1.0, 5000.0, 3);
    small->setSignificantDigits(true);
    small->setScaleType(ScaleSlider::LogarithmicScale);
    small->setStepList({ 1, 2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000 });
    small->setTraditionalLogarithmicScale(true);
    scale->addUnit(small);
    return scale;
}

ComboSliderScale *makeRate(ComboSlider *owner)
{
    auto *scale = new ComboSliderScale(QStringLiteral("Repetition rate"), owner);
    auto *slow = new ComboSliderUnit(QStringLiteral("kHz"), 1.0, 500.0, 0);
    slow->setScaleType(ScaleSlider::StepScale);
    slow->setStepList({ 1, 2, 5, 10, 20, 50, 100, 200, 500 });
    scale->addUnit(slow);
    auto *fast = new ComboSliderUnit(QStringLiteral("MHz"), 10.0, 80.0, 0);
    fast->setScaleType(ScaleSlider::StepScaleInterpolated);
    fast->setStepList({ 10, 20, 30, 40, 50, 60, 70, 80 });
    scale->addUnit(fast);
    return scale;
}

ComboSliderScale *makeWavelength(ComboSlider *owner)
{
    auto *scale = new ComboSliderScale(QStringLiteral("Wavelength"), owner);
    scale->addUnit(new ComboSliderUnit(QStringLiteral("nm"), 400.0, 900.0, 1));
    scale->addUnit(new ComboSliderUnit(QStringLiteral("THz"), 333.0, 750.0, 2));
    return scale;
}

/// All three scales, with the scale at \a scale and the unit at \a unit chosen.
ComboSlider *makeControl(int scale, int unit, double value)
{
    auto *control = new ComboSlider(sideMargin);
    control->setFixedHeight(control->sizeHint().height() + 12);
    control->addScale(makePower(control));
    control->addScale(makeRate(control));
    control->addScale(makeWavelength(control));
    control->setCurrentScaleIndex(scale);
    control->setCurrentUnitIndex(unit);
    control->setValue(value);
    return control;
}

/// A control under its caption, and beside the caption the value that its signals tell.
QFrame *controlCard(const QString &caption, ComboSlider *control, SignalLog *log)
{
    QLabel *readout = PageParts::label(QString::number(control->value(), 'g', 5), "label");
    const auto follow = [caption, readout, log](const char *signal) {
        return [caption, readout, log, signal](double value) {
            readout->setText(QString::number(value, 'g', 5));
            log->note(caption, QLatin1String(signal), QString::number(value, 'g', 6));
        };
    };
    QObject::connect(control, &ComboSlider::valueChanging, readout, follow("valueChanging"));
    QObject::connect(control, &ComboSlider::valueEntered, readout, follow("valueEntered"));
    QObject::connect(control, &ComboSlider::valueChanged, readout, follow("valueChanged"));
    QObject::connect(control, &ComboSlider::selectionChanged, readout,
                     [caption, log](int scale, int unit) {
                         log->note(caption, QStringLiteral("selectionChanged"),
                                   QStringLiteral("%1, %2").arg(scale).arg(unit));
                     });
    return PageParts::readoutCard(caption, readout, control);
}

ComboSlider *makeSingle()
{
    auto *control = new ComboSlider(sideMargin);
    control->setFixedHeight(control->sizeHint().height() + 12);
    auto *scale = new ComboSliderScale(QStringLiteral("Gain"), control);
    scale->addUnit(new ComboSliderUnit(QStringLiteral("dB"), -20.0, 20.0, 1));
    control->addScale(scale);
    control->setValue(3.0);
    return control;
}

} // namespace

QWidget *buildComboSliderPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;

    ComboSlider *light = makeControl(2, 0, 488.0);
    light->setDarkBackground(false);
    ComboSlider *disabled = makeControl(0, 1, 40.0);
    disabled->setEnabled(false);

    const QVector<QFrame *> all{
        controlCard(QStringLiteral("Linear"), makeControl(0, 0, 90.0), log),
        controlCard(QStringLiteral("Logarithmic, decades"), makeControl(0, 2, 50.0), log),
        controlCard(QStringLiteral("Steps"), makeControl(1, 0, 20.0), log),
        controlCard(QStringLiteral("Steps, interpolated labels"), makeControl(1, 1, 20.0), log),
        controlCard(QStringLiteral("On white"), light, log),
        controlCard(QStringLiteral("One scale, one unit"), makeSingle(), log),
        controlCard(QStringLiteral("Disabled"), disabled, log),
    };
    for (int i = 0; i < all.size(); ++i)
        grid->addWidget(all.at(i), i / 2, i % 2);
    const int last = all.size() / 2; // the free cell beside the last control
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), last, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(last + 1, 1);
    return page;
}
