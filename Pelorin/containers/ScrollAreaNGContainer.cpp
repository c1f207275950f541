#include "Pelorin/containers/ScrollAreaNGContainer.h"

ScrollAreaNGContainer::ScrollAreaNGContainer(QWidget *parent)
    : QWidgetNG(parent)
{}
