#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ChannelGroup>
#include <Pelorin/ChannelSliders>
#include <Pelorin/WavelengthSelector>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>

namespace {

constexpr int channelCount = 8;
constexpr int minNm = 400;
constexpr int maxNm = 750;

/// The eight channels in three views. Whatever the operator does in one of them is shown in all; the
/// setters are silent, so that nothing comes back.
class ChannelPage : public QWidget
{
public:
    ChannelPage()
    {
        m_selector->setWavelengthRange(minNm, maxNm);
        m_selector->setPowerRange(0, 100);
        m_selector->setMinimumHeight(250);
        for (int i = 0; i < channelCount; ++i)
            addPanel(i);
        wire();
        layOut();
        for (int i = 0; i < channelCount; ++i) {
            showChannel(i, 425.0 + 42.0 * i, 20 + 23 * i % 70);
            enable(i, i % 3 != 1);
        }
        m_panels->setCurrentIndex(2);
    }

private:
    void addPanel(int channel)
    {
        auto *panel = new ChannelSliders(channel);
        panel->setWavelengthRange(minNm, maxNm);
        m_panels->addWidget(panel);
        connect(panel, &ChannelSliders::channelChanged, this, [this](int c, double nm, int power) {
            note("sliders", "channelChanged", c, nm, power);
            showChannel(c, nm, power);
        });
        connect(panel, &ChannelSliders::enableChanged, this, [this](int c, bool on) {
            note("sliders", "enableChanged", c, on);
            enable(c, on);
        });
        connect(panel, qOverload<int, bool>(&ChannelSliders::closeClicked), this,
                [this](int c, bool on) {
                    note("sliders", "closeClicked", c, on);
                    m_panels->setCurrentWidget(m_noPanel);
                });
    }

    void wire()
    {
        m_noPanel->setAlignment(Qt::AlignCenter);
        m_panels->addWidget(m_noPanel);
        const auto moved = [this](const char *signal) {
            return [this, signal](int channel, double nm, int power) {
                note("selector", signal, channel, nm, power);
                showChannel(channel, nm, power);
                m_panels->setCurrentIndex(channel);
            };
        };
        connect(m_selector, &WavelengthSelector::channelChanged, this, moved("channelChanged"));
        connect(m_selector, &WavelengthSelector::channelSaved, this, moved("channelSaved"));
        connect(m_group, &ChannelGroup::channelChanged, this, [this](int c, double nm, int power) {
            note("group", "channelChanged", c, nm, power);
            showChannel(c, nm, power);
        });
        connect(m_group, &ChannelGroup::enableChanged, this, [this](int c, bool on) {
            note("group", "enableChanged", c, on);
            enable(c, on);
        });
        connect(m_group, &ChannelGroup::setClicked, this, [this](int c, bool checked) {
            note("group", "setClicked", c, checked);
            m_panels->setCurrentIndex(c);
        });
    }

    void layOut()
    {
        auto *grid = new QGridLayout(this);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(PageParts::gap);
        grid->addWidget(
            PageParts::card(QStringLiteral("WavelengthSelector"), QString(), m_selector), 0, 0);
        grid->addWidget(PageParts::card(QStringLiteral("ChannelGroup"), QString(), m_group), 1, 0);
        grid->addWidget(PageParts::card(QStringLiteral("ChannelSliders"), QString(), m_panels), 0,
                        1);
        grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), m_log), 1, 1);
        grid->setColumnStretch(0, 3);
        grid->setColumnStretch(1, 2);
        grid->setRowStretch(0, 1);
    }

    ChannelSliders *panel(int channel) const
    {
        return static_cast<ChannelSliders *>(m_panels->widget(channel));
    }

    void showChannel(int channel, double nm, int power)
    {
        m_selector->setChannel(channel, nm, power);
        m_group->setChannel(channel, nm, power);
        panel(channel)->setChannel(channel, nm, power);
    }

    void enable(int channel, bool on)
    {
        m_selector->enableChannel(channel, on);
        m_group->enableChannel(channel, on);
        panel(channel)->enableChannel(channel, on);
    }

    void note(const char *sender, const char *signal, int channel, double nm, int power)
    {
        m_log->note(QLatin1String(sender), QLatin1String(signal),
                    QStringLiteral("%1, %2, %3").arg(channel).arg(nm, 0, 'f', 1).arg(power));
    }

    void note(const char *sender, const char *signal, int channel, bool on)
    {
        m_log->note(QLatin1String(sender), QLatin1String(signal),
                    QStringLiteral("%1, %2").arg(channel).arg(QVariant(on).toString()));
    }

    WavelengthSelector *m_selector = new WavelengthSelector(12);
    ChannelGroup *m_group = new ChannelGroup;
    QStackedWidget *m_panels = new QStackedWidget;
    QLabel *m_noPanel = PageParts::label(QStringLiteral("Press \"Set\" on a channel."), "text");
    SignalLog *m_log = new SignalLog;
};

} // namespace

QWidget *buildChannelPage()
{
    return new ChannelPage;
}
