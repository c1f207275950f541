#include "Pelorin/containers/ScrollAreaNGItem.h"

ScrollAreaNGItem::ScrollAreaNGItem(QWidget *parent)
    : QWidgetNG(parent)
{}
