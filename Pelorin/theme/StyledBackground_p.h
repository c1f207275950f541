#ifndef PELORIN_THEME_STYLEDBACKGROUND_P_H
#define PELORIN_THEME_STYLEDBACKGROUND_P_H

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

/// Draws what the style sheet gives to \a widget as background and border. Qt does this by itself
/// for its own classes only; a painted subclass of QWidget has to ask for it.
inline void drawStyledBackground(QPainter &painter, const QWidget &widget)
{
    QStyleOption option;
    option.initFrom(&widget);
    widget.style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, &widget);
}

#endif
