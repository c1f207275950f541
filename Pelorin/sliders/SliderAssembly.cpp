#include "Pelorin/sliders/SliderAssembly.h"

#include "Pelorin/controls/VerticalLabel.h"
#include "Pelorin/shell/ContainerWidget.h"
#include "Pelorin/theme/PartsEnd_p.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

SliderAssembly::SliderAssembly(Qt::Orientation orientation, ScaleSliderNG::ScaleType type,
                               QWidget *parent)
    : QWidget(parent)
    , lineEdit(new LineEditNumberNG)
    , unitLabel(new QLabel(QStringLiteral("?")))
    , slider(new ScaleSliderNG(orientation, type, nullptr))
{
    unitLabel->setProperty(StyleProperty::type, StyleType::label);
    slider->setLabelDigits(5);
    slider->setLabelDecimalDigits(0);
}

SliderAssembly::~SliderAssembly()
{
    stopListeningToParts(this);
}

void SliderAssembly::setValuePrecision(int decimals)
{
    slider->setValuePrecision(decimals);
    lineEdit->setValuePrecision(decimals);
}

void SliderAssembly::placeOnPanel(QLayout *content, bool centered)
{
    auto *panel = new ContainerWidget;
    panel->setDarkBackground(true);
    panel->setLayout(content);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto addSpacer = [layout, centered] {
        const auto policy = QSizePolicy::MinimumExpanding;
        if (centered)
            layout->addSpacerItem(new QSpacerItem(0, 1, policy, policy));
    };
    addSpacer();
    layout->addWidget(panel);
    addSpacer();
}

void SliderAssembly::setValue(double value)
{
    slider->setValue0(value);
    lineEdit->setValue(value);
}

void SliderAssembly::changeValue(double value)
{
    const QPointer<SliderAssembly> self(this); // who hears of the change may delete the assembly
    slider->changeValue0(value);
    if (self)
        lineEdit->setValue(value);
}

void SliderAssembly::setRange(double min, double max, bool ignoreValueChanges)
{
    const QPointer<SliderAssembly> self(this);
    slider->setRange(min, max, ignoreValueChanges);
    if (self)
        lineEdit->setRange(min, max, ignoreValueChanges);
}

VerticalSliderAssembly::VerticalSliderAssembly(ScaleSliderNG::ScaleType type, QWidget *parent)
    : SliderAssembly(Qt::Vertical, type, parent)
    , titleLabel(new VerticalLabel(QStringLiteral("Title")))
{
    titleLabel->setAlignment(Qt::AlignCenter);
}

void VerticalSliderAssembly::layOut(bool sliderFirst)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(lineEdit);
    row->addWidget(unitLabel);

    auto *grid = new QGridLayout;
    grid->setContentsMargins(5, 5, 5, 5);
    grid->setSpacing(2);
    grid->addLayout(row, 0, 0, 1, 2);
    grid->addWidget(titleLabel, 1, sliderFirst ? 1 : 0, Qt::AlignTop);
    grid->addWidget(slider, 1, sliderFirst ? 0 : 1, Qt::AlignTop);
    placeOnPanel(grid, true);
}
