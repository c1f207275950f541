#include "Pelorin/containers/TabWidget.h"

TabWidget::TabWidget(QWidget *parent)
    : QTabWidget(parent)
{}

TabWidget::~TabWidget() = default;
