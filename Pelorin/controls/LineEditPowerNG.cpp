#include "Pelorin/controls/LineEditPowerNG.h"

LineEditPowerNG::LineEditPowerNG(QWidget *parent)
    : LineEditNumberBase(parent)
{}
