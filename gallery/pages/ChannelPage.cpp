#include "gallery/ChannelDesk.h"
#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ChannelGroup>
#include <Pelorin/WavelengthSelector>

#include <QFrame>
#include <QGridLayout>
#include <QStackedWidget>

namespace {

constexpr int channelCount = 8;
constexpr int minNm = 400;
constexpr int maxNm = 750;

QGridLayout *layOut(const ChannelDesk &desk, SignalLog *log)
{
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(
        PageParts::card(QStringLiteral("WavelengthSelector"), QString(), desk.selector()), 0, 0);
    grid->addWidget(PageParts::card(QStringLiteral("ChannelGroup"), QString(), desk.group()), 1, 0);
    grid->addWidget(PageParts::card(QStringLiteral("ChannelSliders"), QString(), desk.details()), 0,
                    1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 1, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->setRowStretch(0, 1);
    return grid;
}

} // namespace

QWidget *buildChannelPage()
{
    auto *page = new QWidget;
    auto *desk = new ChannelDesk(minNm, maxNm, page);
    auto *log = new SignalLog;
    page->setLayout(layOut(*desk, log));

    // No instrument stands behind this page: every request is granted at once.
    QObject::connect(desk, &ChannelDesk::channelRequested, desk, &ChannelDesk::showChannel);
    QObject::connect(desk, &ChannelDesk::enableRequested, desk, &ChannelDesk::showEnabled);
    QObject::connect(desk, &ChannelDesk::noted, log, &SignalLog::note);
    for (int i = 0; i < channelCount; ++i) {
        desk->showChannel(i, 425.0 + 42.0 * i, 20 + 23 * i % 70);
        desk->showEnabled(i, i % 3 != 1);
    }
    desk->open(2);
    return page;
}
