#include "Pelorin/spectral/Channel.h"

#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/spectral/ChannelButtons_p.h"
#include "Pelorin/theme/PartsEnd_p.h"
#include "Pelorin/theme/Rounding_p.h"
#include "Pelorin/theme/StyleProperty_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVariant>

namespace {

QLabel *makeUnit(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty(StyleProperty::type, StyleType::text);
    return label;
}

} // namespace

Channel::Channel(int number, QWidget *parent)
    : QWidget(parent)
    , m_enableButton(new Button(QString::number(qint64(number) + 1)))
    , m_setButton(ChannelButtons::makeSmall(QStringLiteral("Set")))
    , m_powerEdit(makeEdit(1.0))
    , m_wavelengthEdit(makeEdit(0.1))
{
    m_enableButton->setSize(Button::Square30);
    ChannelButtons::makeSwitch(m_enableButton);
    connect(m_enableButton, &QAbstractButton::clicked, this, &Channel::emitEnableChanged);
    connect(m_setButton, &QAbstractButton::clicked, this, &Channel::emitSetClicked);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 5, 0);
    grid->addWidget(m_enableButton, 0, 0);
    grid->addWidget(m_powerEdit, 0, 1);
    grid->addWidget(makeUnit(tr("%")), 0, 2);
    grid->addWidget(m_setButton, 1, 0);
    grid->addWidget(m_wavelengthEdit, 1, 1);
    grid->addWidget(makeUnit(tr("nm")), 1, 2);
}

Channel::~Channel()
{
    stopListeningToParts(this);
}

LineEditNumber *Channel::makeEdit(double step)
{
    auto *edit = new LineEditNumber;
    edit->setProperty(StyleProperty::flat, true);
    edit->setProperty(StyleProperty::type, StyleType::text);
    edit->allowNudge(step);
    edit->enableTimeout(true);
    connect(edit, &LineEditNumber::numberSaved, this, &Channel::emitChannelChanged);
    connect(edit, &LineEditNumber::arrowPressed, edit, &LineEditNumber::nudge);
    return edit;
}

bool Channel::enabled() const
{
    return m_enableButton->isChecked();
}

double Channel::wavelength() const
{
    return m_wavelengthEdit->number();
}

int Channel::power() const
{
    return saturatedTruncation(m_powerEdit->number());
}

void Channel::enableChannel(bool enable)
{
    m_enableButton->setChecked(enable);
}

void Channel::setChannelChecked(bool checked)
{
    m_setButton->setChecked(checked);
}

void Channel::setChannel(double wavelength, int power)
{
    setChannelWavelength(wavelength);
    setChannelPower(power);
}

void Channel::setChannelPower(int power)
{
    m_powerEdit->setText(QString::number(power));
}

void Channel::setChannelWavelength(double wavelength)
{
    m_wavelengthEdit->setText(QString::number(wavelength, 'f', 1));
}

void Channel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}

void Channel::emitEnableChanged(bool enabled)
{
    Q_EMIT enableChanged(number(), enabled);
}

void Channel::emitChannelChanged()
{
    Q_EMIT channelChanged(number(), wavelength(), power());
}

void Channel::emitSetClicked(bool checked)
{
    Q_EMIT setClicked(number(), checked);
}

int Channel::number() const
{
    return m_enableButton->text().toInt() - 1;
}
