#include "gallery/ChannelDesk.h"

#include "gallery/PageParts.h"

#include <Pelorin/ChannelGroup>
#include <Pelorin/ChannelSliders>
#include <Pelorin/WavelengthSelector>

#include <QLabel>
#include <QStackedWidget>
#include <QVariant>

namespace {

constexpr int channelCount = 8;
constexpr int selectorMargin = 12;
constexpr int selectorHeight = 250;

} // namespace

ChannelDesk::ChannelDesk(int minNm, int maxNm, QObject *parent)
    : QObject(parent)
    , m_selector(new WavelengthSelector(selectorMargin))
    , m_group(new ChannelGroup)
    , m_details(new QStackedWidget)
{
    m_selector->setWavelengthRange(minNm, maxNm);
    m_selector->setPowerRange(0, 100);
    m_selector->setMinimumHeight(selectorHeight);
    for (int channel = 0; channel < channelCount; ++channel) {
        addDetail(channel);
        static_cast<ChannelSliders *>(m_details->widget(channel))->setWavelengthRange(minNm, maxNm);
    }
    QLabel *hint = PageParts::label(QStringLiteral("Press \"Set\" on a channel."), "text");
    hint->setAlignment(Qt::AlignCenter);
    m_details->addWidget(hint);
    m_details->setCurrentWidget(hint);
    wireSelector();
    wireGroup();
}

void ChannelDesk::open(int channel)
{
    m_details->setCurrentIndex(channel);
}

void ChannelDesk::showChannel(int channel, double nm, int percent)
{
    // The bar itself would follow any report: a marker in the hand has to be kept from it.
    if (channel != m_held)
        m_selector->setChannel(channel, nm, percent);
    m_group->setChannel(channel, nm, percent);
    if (auto *panel = qobject_cast<ChannelSliders *>(m_details->widget(channel)))
        panel->setChannel(channel, nm, percent);
}

void ChannelDesk::showEnabled(int channel, bool enabled)
{
    m_selector->enableChannel(channel, enabled);
    m_group->enableChannel(channel, enabled);
    if (auto *panel = qobject_cast<ChannelSliders *>(m_details->widget(channel)))
        panel->enableChannel(channel, enabled);
}

void ChannelDesk::addDetail(int channel)
{
    auto *panel = new ChannelSliders(channel);
    m_details->addWidget(panel);
    connect(panel, &ChannelSliders::channelChanged, this, [this](int c, double nm, int percent) {
        note("sliders", "channelChanged", c, nm, percent);
        Q_EMIT channelRequested(c, nm, percent);
    });
    connect(panel, &ChannelSliders::enableChanged, this, [this](int c, bool on) {
        note("sliders", "enableChanged", c, on);
        Q_EMIT enableRequested(c, on);
    });
    connect(panel, qOverload<int, bool>(&ChannelSliders::closeClicked), this,
            [this](int c, bool on) {
                note("sliders", "closeClicked", c, on);
                m_details->setCurrentIndex(channelCount);
            });
}

void ChannelDesk::wireSelector()
{
    connect(m_selector, &WavelengthSelector::channelChanged, this,
            [this](int channel, double nm, int percent) {
                note("selector", "channelChanged", channel, nm, percent);
                m_held = channel;
                open(channel);
                showChannel(channel, nm, percent); // the other views go with the hand
            });
    connect(m_selector, &WavelengthSelector::channelSaved, this,
            [this](int channel, double nm, int percent) {
                note("selector", "channelSaved", channel, nm, percent);
                m_held = -1;
                open(channel);
                Q_EMIT channelRequested(channel, nm, percent);
            });
}

void ChannelDesk::wireGroup()
{
    connect(m_group, &ChannelGroup::channelChanged, this,
            [this](int channel, double nm, int percent) {
                note("group", "channelChanged", channel, nm, percent);
                Q_EMIT channelRequested(channel, nm, percent);
            });
    connect(m_group, &ChannelGroup::enableChanged, this, [this](int channel, bool on) {
        note("group", "enableChanged", channel, on);
        Q_EMIT enableRequested(channel, on);
    });
    connect(m_group, &ChannelGroup::setClicked, this, [this](int channel, bool checked) {
        note("group", "setClicked", channel, checked);
        open(channel);
    });
}

void ChannelDesk::note(const char *sender, const char *signal, int channel, double nm, int percent)
{
    Q_EMIT noted(QLatin1String(sender), QLatin1String(signal),
                 QStringLiteral("%1, %2, %3").arg(channel).arg(nm, 0, 'f', 1).arg(percent));
}

void ChannelDesk::note(const char *sender, const char *signal, int channel, bool on)
{
    Q_EMIT noted(QLatin1String(sender), QLatin1String(signal),
                 QStringLiteral("%1, %2").arg(channel).arg(QVariant(on).toString()));
}
