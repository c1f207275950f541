#ifndef PELORIN_THEME_PANELGROUND_P_H
#define PELORIN_THEME_PANELGROUND_P_H

#include "Pelorin/theme/StyleProperty_p.h"

#include <QVariant>
#include <QWidget>

#include <initializer_list>

/// Gives \a panel the grey or the white ground of the sheet, and its entry fields the one that is set
/// off from it. Who does it after the first show repolishes by himself.
inline void setPanelGround(QWidget &panel, bool dark, std::initializer_list<QWidget *> fields = {})
{
    panel.setProperty(StyleProperty::widgetColor,
                      dark ? WidgetColor::lightGrey : WidgetColor::white);
    for (QWidget *field : fields)
        field->setProperty(StyleProperty::background,
                           dark ? FieldBackground::white : FieldBackground::dark);
}

#endif
