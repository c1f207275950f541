#include "Pelorin/controls/LineEditNumberNG.h"

LineEditNumberNG::LineEditNumberNG(QWidget *parent)
    : LineEditNumberBase(parent)
{}
