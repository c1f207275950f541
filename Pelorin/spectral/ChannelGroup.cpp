#include "Pelorin/spectral/ChannelGroup.h"

#include "Pelorin/spectral/Channel.h"
#include "Pelorin/theme/PartsEnd_p.h"

#include <QGridLayout>

namespace {

constexpr int channelCount = 8;
constexpr int columns = 4;

} // namespace

ChannelGroup::ChannelGroup(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(15);
    for (int i = 0; i < channelCount; ++i) {
        auto *channel = new Channel(i);
        connect(channel, &Channel::enableChanged, this, &ChannelGroup::enableChanged);
        connect(channel, &Channel::setClicked, this, &ChannelGroup::setClicked);
        connect(channel, &Channel::channelChanged, this, &ChannelGroup::channelChanged);
        grid->addWidget(channel, i / columns, i % columns);
        m_channels.append(channel);
    }
}

ChannelGroup::~ChannelGroup()
{
    stopListeningToParts(this);
}

bool ChannelGroup::channelEnabled(int channel) const
{
    const Channel *const cell = m_channels.value(channel);
    return cell && cell->enabled();
}

double ChannelGroup::channelWavelength(int channel) const
{
    const Channel *const cell = m_channels.value(channel);
    return cell ? cell->wavelength() : 0.0;
}

int ChannelGroup::channelPower(int channel) const
{
    const Channel *const cell = m_channels.value(channel);
    return cell ? cell->power() : 0;
}

void ChannelGroup::setChannel(int channel, double channelWavelength, int channelPower)
{
    if (Channel *const cell = m_channels.value(channel))
        cell->setChannel(channelWavelength, channelPower);
}

void ChannelGroup::enableChannel(int channel, bool enable)
{
    if (Channel *const cell = m_channels.value(channel))
        cell->enableChannel(enable);
}

void ChannelGroup::setChannelChecked(int channel, bool checked)
{
    if (Channel *const cell = m_channels.value(channel))
        cell->setChannelChecked(checked);
}

void ChannelGroup::setChannelPower(int channel, int channelPower)
{
    if (Channel *const cell = m_channels.value(channel))
        cell->setChannelPower(channelPower);
}

void ChannelGroup::setChannelWavelength(int channel, double channelWavelength)
{
    if (Channel *const cell = m_channels.value(channel))
        cell->setChannelWavelength(channelWavelength);
}
