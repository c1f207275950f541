#include "Pelorin/shell/ContainerWidget.h"

#include "Pelorin/theme/PanelGround_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

ContainerWidget::ContainerWidget(QWidget *parent)
    : QWidget(parent)
{}

void ContainerWidget::setDarkBackground(bool dark)
{
    setPanelGround(*this, dark);
}

void ContainerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}
