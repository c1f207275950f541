#include "Pelorin/shell/ContainerWidget.h"

#include "Pelorin/theme/StyledBackground_p.h"

ContainerWidget::ContainerWidget(QWidget *parent)
    : QWidget(parent)
{}

void ContainerWidget::setDarkBackground(bool dark)
{
    setProperty("widget-color", dark ? QStringLiteral("light-grey") : QStringLiteral("white"));
}

void ContainerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}
