#ifndef PELORIN_GALLERY_SPECIMENS_SPECIMENS_P_H
#define PELORIN_GALLERY_SPECIMENS_SPECIMENS_P_H

#include "gallery/Specimens.h"

/// The specimens of each file, and what their makers share.
namespace Specimens {

QVector<Specimen> sliders();
QVector<Specimen> controls();
QVector<Specimen> views();
QVector<Specimen> panels();
QVector<Specimen> shell();

/// \a widget, which would take any size, at this one.
template<class Widget>
Widget *sized(Widget *widget, int width, int height)
{
    widget->setFixedSize(width, height);
    return widget;
}

} // namespace Specimens

#endif
