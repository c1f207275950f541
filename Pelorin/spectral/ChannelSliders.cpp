#include "Pelorin/spectral/ChannelSliders.h"

#include "Pelorin/sliders/ComboSlider.h"
#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "Pelorin/spectral/ChannelButtons_p.h"
#include "Pelorin/theme/PartsEnd_p.h"
#include "Pelorin/theme/Rounding_p.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace {

constexpr int sideMargin = 0;

} // namespace

ChannelSliders::ChannelSliders(int channel, QWidget *parent)
    : QWidget(parent)
    , m_channel(channel)
    , m_enableButton(ChannelButtons::makeSmall(QStringLiteral("ON")))
    , m_powerUnit(new ComboSliderUnit(QStringLiteral("%"), 0.0, 100.0, 0))
    , m_wavelengthUnit(new ComboSliderUnit(QStringLiteral("nm"), 400.0, 750.0, 1))
{
    auto *closeButton = new QPushButton;
    closeButton->setProperty(StyleProperty::style, ButtonStyle::close);
    connect(closeButton, &QPushButton::clicked, this, qOverload<>(&ChannelSliders::closeClicked));
    auto *title = new QLabel(QStringLiteral("Channel %1").arg(qint64(channel) + 1));
    title->setProperty(StyleProperty::type, StyleType::title);
    ChannelButtons::makeSwitch(m_enableButton);
    connect(m_enableButton, &QAbstractButton::clicked, this, &ChannelSliders::emitEnabledChanged);
    m_powerSlider = makeSlider(tr("Channel power"), m_powerScale, m_powerUnit);
    m_wavelengthSlider = makeSlider(tr("Center wavelength"), m_wavelengthScale, m_wavelengthUnit);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(closeButton, 0, 0, 1, 2, Qt::AlignRight);
    grid->addWidget(title, 1, 0, 1, 2);
    grid->addWidget(m_enableButton, 1, 1, Qt::AlignRight);
    grid->addWidget(m_powerSlider, 2, 0, 1, 2);
    grid->addWidget(m_wavelengthSlider, 3, 0, 1, 2);
}

ChannelSliders::~ChannelSliders()
{
    stopListeningToParts(this);
}

ComboSlider *ChannelSliders::makeSlider(const QString &title, ComboSliderScale *&scale,
                                        ComboSliderUnit *unit)
{
    auto *slider = new ComboSlider(sideMargin);
    slider->setDarkBackground(false);
    scale = new ComboSliderScale(title, slider);
    scale->addUnit(unit);
    slider->addScale(scale);
    connect(slider, &ComboSlider::valueChanged, this, &ChannelSliders::emitChannelChanged);
    return slider;
}

void ChannelSliders::setChannel(int channel, double wavelength, int power)
{
    if (channel != m_channel)
        return;
    m_wavelengthSlider->setValue(wavelength);
    m_powerSlider->setValue(power);
}

void ChannelSliders::enableChannel(int channel, bool enabled)
{
    if (channel == m_channel)
        m_enableButton->setChecked(enabled);
}

void ChannelSliders::emitEnabledChanged(bool enabled)
{
    Q_EMIT enableChanged(m_channel, enabled);
}

void ChannelSliders::emitChannelChanged(double)
{
    Q_EMIT channelChanged(m_channel, m_wavelengthSlider->value(),
                          saturatedTruncation(m_powerSlider->value()));
}

void ChannelSliders::setWavelengthRange(double min, double max)
{
    m_wavelengthUnit->setRange(min, max);
    m_wavelengthSlider->updateSlider();
}

void ChannelSliders::setPowerRange(double min, double max)
{
    m_powerUnit->setRange(min, max);
    m_powerSlider->updateSlider();
}

void ChannelSliders::closeClicked()
{
    Q_EMIT closeClicked(m_channel, false);
}
