#include "Pelorin/controls/IndicatorButton.h"

#include <QGridLayout>

namespace {

struct Cell
{
    int row;
    int column;
};

struct Cells
{
    Cell indicator;
    Cell button;
};

Cells cellsFor(IndicatorButton::Position position)
{
    switch (position) {
    case IndicatorButton::Above:
        return { { 0, 0 }, { 1, 0 } };
    case IndicatorButton::Below:
        return { { 1, 0 }, { 0, 0 } };
    case IndicatorButton::Right:
        return { { 0, 1 }, { 0, 0 } };
    case IndicatorButton::Left:
        break;
    }
    return { { 0, 0 }, { 0, 1 } };
}

} // namespace

IndicatorButton::IndicatorButton(IndicatorButton::Position position, QWidget *parent)
    : QWidget(parent)
{
    setup(position);
}

IndicatorButton::IndicatorButton(const QString &text, IndicatorButton::Position position,
                                 QWidget *parent)
    : QWidget(parent)
{
    setup(position);
    m_button->setText(text);
}

void IndicatorButton::setup(IndicatorButton::Position position)
{
    setSizePolicy(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum, QSizePolicy::PushButton));
    m_button = new Button(this);
    m_indicator = new Indicator(this);
    connect(m_button, &QPushButton::clicked, this, &IndicatorButton::toggleState);

    const Cells cells = cellsFor(position);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(0);
    grid->addWidget(m_indicator, cells.indicator.row, cells.indicator.column, Qt::AlignCenter);
    grid->addWidget(m_button, cells.button.row, cells.button.column);
    grid->setRowMinimumHeight(cells.indicator.row, 2 * m_indicator->height());
    grid->setColumnMinimumWidth(cells.indicator.column, 2 * m_indicator->width());
}

void IndicatorButton::setOnColor(const Indicator::Color &on)
{
    setColors(on, m_offColor);
}

void IndicatorButton::setOffColor(const Indicator::Color &off)
{
    setColors(m_onColor, off);
}

void IndicatorButton::setColors(const Indicator::Color &on, const Indicator::Color &off)
{
    m_onColor = on;
    m_offColor = off;
    showState();
}

void IndicatorButton::setBlink(bool blink, int interval, Indicator::Color color)
{
    m_indicator->setBlink(blink, interval, color);
}

void IndicatorButton::setButtonText(const QString &text)
{
    m_button->setText(text);
    if (m_button->isEmissionButton())
        m_button->setEmissionButtonStatus(true); // the new text has taken the shortcut away
}

void IndicatorButton::setButtonColor(Button::Color color)
{
    m_button->setColor(color);
}

void IndicatorButton::setButtonSize(Button::Size size)
{
    m_button->setSize(size);
}

void IndicatorButton::setButtonSize(int width, int height)
{
    m_button->setSize(width, height);
}

void IndicatorButton::setEnabled(bool enabled)
{
    m_indicator->setEnabled(enabled);
    m_button->setEnabled(enabled);
}

void IndicatorButton::setActive(bool active)
{
    m_active = active;
    showState();
}

void IndicatorButton::toggleState()
{
    m_active = !m_active;
    if (m_toggleEnabled)
        showState();
    Q_EMIT toggled(m_active);
}

void IndicatorButton::setEmissionButtonStatus(bool on)
{
    m_button->setEmissionButtonStatus(on);
}

void IndicatorButton::showState()
{
    m_indicator->setColor(m_active ? m_onColor : m_offColor);
}
