#include "Pelorin/containers/TabBar.h"

TabBar::TabBar(QWidget *parent)
    : QTabBar(parent)
{}

TabBar::~TabBar() = default;
