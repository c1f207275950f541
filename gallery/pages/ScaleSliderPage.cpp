#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ScaleSlider>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

/// Room for the ends of wide labels.
constexpr int sideMargin = 16;

QString valueText(double value)
{
    return QString::number(value, 'g', 4);
}

/// A slider under its caption, and beside the caption the value that its signals tell.
QFrame *sliderCard(const QString &caption, ScaleSlider *slider, SignalLog *log)
{
    slider->setSideMargins(sideMargin);
    QLabel *readout = PageParts::label(valueText(slider->currentValue()), "label");
    const auto follow = [caption, readout, log](const char *signal) {
        return [caption, readout, log, signal](double value) {
            readout->setText(valueText(value));
            log->note(caption, QLatin1String(signal), valueText(value));
        };
    };
    QObject::connect(slider, &ScaleSlider::handleMoved, readout, follow("handleMoved"));
    QObject::connect(slider, &ScaleSlider::handleFinishedMoving, readout,
                     follow("handleFinishedMoving"));
    QObject::connect(slider, &ScaleSlider::handleGrapped, readout,
                     [caption, log] { log->note(caption, QStringLiteral("handleGrapped")); });
    return PageParts::readoutCard(caption, readout, slider);
}

ScaleSlider *makeRange(ScaleSlider::ScaleType type, double min, double max, double value,
                       int precision = 1)
{
    auto *slider = new ScaleSlider;
    slider->setPrecision(precision);
    slider->setScaleType(type);
    slider->setAll(min, max, value);
    return slider;
}

ScaleSlider *makeDecades(double min, double max, double value)
{
    ScaleSlider *slider = makeRange(ScaleSlider::LogarithmicScale, min, max, value);
    slider->setTraditionalLogarithmicScale(true);
    return slider;
}

ScaleSlider *makeSteps(ScaleSlider::ScaleType type, const QList<double> &steps, double value,
                       int maxTicks)
{
    auto *slider = new ScaleSlider;
    slider->setScaleType(type);
    slider->setMaxStepTicks(maxTicks);
    slider->setStepList(steps);
    slider->setCurrentValue(value);
    return slider;
}

ScaleSlider *limited(ScaleSlider *slider, double min, double max)
{
    slider->setMaxLabelIntervals(5);
    slider->setRange(min, max);
    return slider;
}

QVector<QFrame *> cards(SignalLog *log)
{
    const auto linear = ScaleSlider::LinearScale;
    const auto steps = ScaleSlider::StepScale;
    const QList<double> rates{ 1, 2, 5, 10, 20, 50, 100, 200, 500, 1000 };
    const QList<double> many{ 1, 2, 3, 5, 7, 10, 20, 30, 50, 70, 100, 200 };

    ScaleSlider *disabled = makeRange(linear, 0.0, 100.0, 30.0, 0);
    disabled->setEnabled(false);

    return {
        sliderCard(QStringLiteral("Linear"), makeRange(linear, 0.0, 250.0, 90.0), log),
        sliderCard(QStringLiteral("Linear, at most five parts"),
                   limited(makeRange(linear, 0.0, 100.0, 40.0, 0), 0.0, 100.0), log),
        sliderCard(QStringLiteral("Logarithmic"),
                   makeRange(ScaleSlider::LogarithmicScale, 1.0, 1000.0, 50.0), log),
        sliderCard(QStringLiteral("Logarithmic, decades"), makeDecades(1.0, 5000.0, 100.0), log),
        sliderCard(QStringLiteral("Steps, each labelled"), makeSteps(steps, rates, 20.0, 10), log),
        sliderCard(QStringLiteral("Twelve steps, ends labelled"), makeSteps(steps, many, 7.0, -10),
                   log),
        sliderCard(QStringLiteral("Twelve steps, each third labelled"),
                   makeSteps(steps, many, 30.0, 4), log),
        sliderCard(
            QStringLiteral("Steps, interpolated labels"),
            makeSteps(ScaleSlider::StepScaleInterpolated, { 0, 20, 40, 60, 80, 100 }, 60.0, -10),
            log),
        sliderCard(QStringLiteral("Disabled"), disabled, log),
        sliderCard(QStringLiteral("Off its round numbers"),
                   makeRange(linear, 410.0, 695.0, 488.0, 0), log),
    };
}

} // namespace

QWidget *buildScaleSliderPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(PageParts::gap);
    grid->setVerticalSpacing(PageParts::gap - 4); // six rows in a window of usual size
    auto *log = new SignalLog;
    const QVector<QFrame *> all = cards(log);
    for (int i = 0; i < all.size(); ++i)
        grid->addWidget(all.at(i), i / 2, i % 2);
    const int last = (all.size() + 1) / 2;
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), last, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(last, 1);
    return page;
}
