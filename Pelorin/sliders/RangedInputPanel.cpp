#include "Pelorin/sliders/RangedInputPanel.h"

#include "Pelorin/theme/PanelGround_p.h"
#include "Pelorin/theme/PartsEnd_p.h"
#include "Pelorin/theme/StyleProperty_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

RangedInputPanel::RangedInputPanel(QWidget *parent)
    : QWidget(parent)
    , m_start(QStringLiteral("Start"))
    , m_stop(QStringLiteral("Stop"))
{}

RangedInputPanel::~RangedInputPanel()
{
    stopListeningToParts(this);
}

void RangedInputPanel::setStartText(const QString &text)
{
    m_start.label->setText(text);
}

void RangedInputPanel::setStopText(const QString &text)
{
    m_stop.label->setText(text);
}

void RangedInputPanel::setUnitText(const QString &text)
{
    m_start.unit->setText(text);
    m_stop.unit->setText(text);
}

void RangedInputPanel::setDarkBackground(bool dark)
{
    setPanelGround(*this, dark, { m_start.input, m_stop.input });
}

void RangedInputPanel::layOut(int sideMargin, QLineEdit *startInput, QLineEdit *stopInput,
                              QWidget *slider)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 6, 0, 6);
    column->addLayout(m_start.layOut(sideMargin, startInput));
    column->addLayout(m_stop.layOut(sideMargin, stopInput));
    column->addWidget(slider);
    setDarkBackground(true);
}

void RangedInputPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}

RangedInputPanel::Row::Row(const QString &title)
    : label(new QLabel(title))
    , unit(new QLabel)
{
    label->setProperty(StyleProperty::type, StyleType::label);
    unit->setProperty(StyleProperty::type, StyleType::label);
}

QHBoxLayout *RangedInputPanel::Row::layOut(int sideMargin, QLineEdit *field)
{
    constexpr int widestField = 120;
    input = field;
    input->setProperty(StyleProperty::flat, true);
    input->setProperty(StyleProperty::type, StyleType::label);
    input->setMaximumWidth(widestField);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->setSpacing(4);
    row->addWidget(label);
    row->addStretch(25);
    row->addWidget(input);
    row->addWidget(unit);
    return row;
}
