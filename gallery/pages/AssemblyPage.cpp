#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/HorizontalSlider>
#include <Pelorin/VerticalLabel>
#include <Pelorin/VerticalScaleSlider>
#include <Pelorin/VerticalSlider>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

/// As tall as the three cards beside it.
constexpr int tallest = 430;

/// An assembly with its title, unit, range and value, and beside it the value that its signals
/// tell.
template<typename Assembly>
QFrame *assemblyCard(const QString &caption, Assembly *assembly, const QString &title,
                     const QString &unit, SignalLog *log)
{
    assembly->titleLabel->setText(title);
    assembly->unitLabel->setText(unit);
    QLabel *readout =
        PageParts::label(QString::number(assembly->slider->value0(), 'f', 1), "label");
    const auto follow = [caption, readout, log](const char *signal) {
        return [caption, readout, log, signal](double value) {
            readout->setText(QString::number(value, 'f', 1));
            log->note(caption, QLatin1String(signal), QString::number(value, 'g', 6));
        };
    };
    QObject::connect(assembly, &Assembly::valueChanging, readout, follow("valueChanging"));
    QObject::connect(assembly, &Assembly::valueChanged, readout, follow("valueChanged"));
    if (assembly->slider->orientation() == Qt::Vertical)
        assembly->setFixedHeight(tallest); // its title takes all the height that it gets
    return PageParts::readoutCard(caption, readout, assembly);
}

template<typename Assembly>
Assembly *over(Assembly *assembly, double min, double max, double value)
{
    assembly->setRange(min, max, true);
    assembly->setValue(value);
    return assembly;
}

} // namespace

QWidget *buildAssemblyPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    const auto linear = ScaleSliderNG::ScaleLinear;
    const auto root = ScaleSliderNG::ScaleSqrt;

    grid->addWidget(assemblyCard(QStringLiteral("Horizontal"),
                                 over(new HorizontalSlider(12, linear, nullptr), 0.0, 250.0, 90.0),
                                 QStringLiteral("Power"), QStringLiteral("mW"), log),
                    0, 0);
    grid->addWidget(assemblyCard(QStringLiteral("Horizontal, square root"),
                                 over(new HorizontalSlider(12, root, nullptr), 0.0, 1000.0, 62.5),
                                 QStringLiteral("Pulse width"), QStringLiteral("ns"), log),
                    1, 0);
    auto *steps = new HorizontalSlider(12, ScaleSliderNG::ScaleLinearSteps, nullptr);
    steps->setValue(25.0);
    grid->addWidget(assemblyCard(QStringLiteral("Horizontal, steps"), steps,
                                 QStringLiteral("Attenuation"), QStringLiteral("%"), log),
                    2, 0);
    grid->addWidget(assemblyCard(QStringLiteral("Title first"),
                                 over(new VerticalSlider(linear, false, nullptr), 0.0, 250.0, 90.0),
                                 QStringLiteral("Power"), QStringLiteral("mW"), log),
                    0, 1, 3, 1);
    grid->addWidget(assemblyCard(QStringLiteral("Slider first"),
                                 over(new VerticalSlider(root, true, nullptr), 0.0, 100.0, 36.0),
                                 QStringLiteral("Gain"), QStringLiteral("%"), log),
                    0, 2, 3, 1);
    grid->addWidget(
        assemblyCard(QStringLiteral("With a trace"),
                     over(new VerticalScaleSlider(linear, true, nullptr), 400.0, 700.0, 488.0),
                     QStringLiteral("Wavelength"), QStringLiteral("nm"), log),
        0, 3, 3, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 3, 0, 1, 4);
    grid->setColumnStretch(0, 2);
    for (int column = 1; column <= 3; ++column)
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(3, 1);
    return page;
}
