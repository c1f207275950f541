#ifndef PELORIN_REMOTE_PANELPARTS_P_H
#define PELORIN_REMOTE_PANELPARTS_P_H

#include "Pelorin/controls/IndicatorButton.h"

#include <QBoxLayout>

#include <initializer_list>

/// The parts that all remote control panels are made of.
namespace PanelParts {

constexpr int blinkMs = 500;

/// A dark grey button with its lamp at the left, grey while it is off.
inline IndicatorButton *makeButton(const QString &text, Indicator::Color on, QWidget *panel)
{
    auto *button = new IndicatorButton(text, IndicatorButton::Left, panel);
    button->setColors(on, Indicator::Grey);
    button->setButtonColor(Button::DarkGrey);
    return button;
}

/// The one button of a panel that lets light out, with the shortcut of its kind.
inline IndicatorButton *makeEmissionButton(const QString &text, const QString &toolTip,
                                           QWidget *panel)
{
    IndicatorButton *button = makeButton(text, Indicator::Red, panel);
    button->setEmissionButtonStatus(true);
    button->button()->setToolTip(toolTip);
    return button;
}

/// A row over the whole panel that keeps what is added to it at the right.
inline QHBoxLayout *makeRow(QWidget *panel)
{
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    return row;
}

/// The buttons from top to bottom at the right of the panel.
inline void layOutColumn(QWidget *panel, std::initializer_list<QWidget *> buttons)
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget *button : buttons)
        column->addWidget(button);
    makeRow(panel)->addLayout(column);
}

} // namespace PanelParts

#endif
