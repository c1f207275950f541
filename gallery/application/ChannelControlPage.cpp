#include "gallery/ChannelDesk.h"
#include "gallery/PageParts.h"
#include "gallery/application/Join.h"

#include <Pelorin/ChannelGroup>
#include <Pelorin/GUIWidget>
#include <Pelorin/WavelengthSelector>

#include <QGridLayout>
#include <QStackedWidget>

using Simulation::ChannelSettings;
using Simulation::Instrument;

QWidget *Controls::makeChannelPage(const Desk &desk)
{
    auto *page = new GUIWidget;
    Instrument *const instrument = &desk.instrument;
    auto *views = new ChannelDesk(qRound(desk.device.wavelengths.min),
                                  qRound(desk.device.wavelengths.max), page);
    QObject::connect(views, &ChannelDesk::channelRequested, instrument,
                     &Instrument::requestChannel);
    QObject::connect(views, &ChannelDesk::enableRequested, instrument,
                     &Instrument::requestChannelEnabled);
    QObject::connect(
        views, &ChannelDesk::noted, page,
        [note = desk.note](const QString &sender, const QString &signal, const QString &values) {
            note(sender + QLatin1Char(' ') + signal, values);
        });
    QObject::connect(instrument, &Instrument::channelChanged, views, &ChannelDesk::showChannel);
    QObject::connect(instrument, &Instrument::channelEnabledChanged, views,
                     &ChannelDesk::showEnabled);
    QObject::connect(instrument, &Instrument::faultChanged, page, &GUIWidget::setOverlayMessage);
    for (int i = 0; i < Instrument::channelCount; ++i) {
        const ChannelSettings settings = instrument->channel(i);
        views->showChannel(i, settings.nm, settings.percent);
        views->showEnabled(i, settings.enabled);
    }
    views->open(2);

    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(PageParts::gap, PageParts::gap, PageParts::gap, PageParts::gap);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(views->selector(), 0, 0);
    grid->addWidget(views->details(), 0, 1);
    grid->addWidget(views->group(), 1, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return page;
}
