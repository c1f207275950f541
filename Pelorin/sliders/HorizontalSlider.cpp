#include "Pelorin/sliders/HorizontalSlider.h"

#include "Pelorin/theme/StyleProperty_p.h"

#include <QHBoxLayout>
#include <QLabel>

HorizontalSlider::HorizontalSlider(int sideMargin, ScaleSliderNG::ScaleType type, QWidget *parent)
    : SliderAssembly(Qt::Horizontal, type, parent)
    , titleLabel(new QLabel(QStringLiteral("Title")))
{
    titleLabel->setProperty(StyleProperty::type, StyleType::label);
    slider->setSideMargins(sideMargin);
    wire(this);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->setSpacing(4);
    row->addWidget(titleLabel);
    row->addStretch(25);
    row->addWidget(lineEdit);
    row->addWidget(unitLabel);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 6, 0, 6);
    column->setSpacing(6);
    column->addLayout(row);
    column->addWidget(slider);
    placeOnPanel(column, false);
    setRange(0.0, 100.0, true);
}
