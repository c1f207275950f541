#include "Pelorin/shell/ContainerWidget.h"

#include "Pelorin/theme/StyleProperty_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

ContainerWidget::ContainerWidget(QWidget *parent)
    : QWidget(parent)
{}

void ContainerWidget::setDarkBackground(bool dark)
{
    setProperty(StyleProperty::widgetColor, dark ? WidgetColor::lightGrey : WidgetColor::white);
}

void ContainerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}
