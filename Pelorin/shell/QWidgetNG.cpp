#include "Pelorin/shell/QWidgetNG.h"

QWidgetNG::QWidgetNG(QWidget *parent)
    : QWidget(parent)
{
    // Qt does this by itself for QWidget alone, not for its subclasses.
    setAttribute(Qt::WA_StyledBackground);
}
