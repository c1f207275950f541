#include "gallery/application/DeviceView.h"

#include "gallery/PanelWiring.h"
#include "gallery/application/Controls.h"

#include <Pelorin/DropDownNG>
#include <Pelorin/MainView>
#include <Pelorin/MarquelRemoteControl>
#include <Pelorin/MarquelXRemoteControl>
#include <Pelorin/OstrelRemoteControl>
#include <Pelorin/RemoteControl>
#include <Pelorin/WavelengthChart>
#include <Pelorin/stackWidget>

#include <QLayout>
#include <QTabBar>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

/// The ordinary page: what the tab bar of the view chooses from.
QWidget *makeControlPage(const Controls::Desk &desk, QTabBar *tabs)
{
    auto *page = new stackWidget(nullptr);
    page->layout()->setContentsMargins(0, 0, 0, 0);
    const auto add = [page, tabs](const char *title, QWidget *content) {
        content->hide();
        page->addWidget(content);
        tabs->addTab(QLatin1String(title));
    };
    add("Spectrum", Controls::makeSpectrumPage(desk));
    if (desk.device.family == Device::Family::Plain)
        add("Channels", Controls::makeChannelPage(desk));
    else
        add("Pulses", Controls::makePulsePage(desk));
    QObject::connect(tabs, &QTabBar::currentChanged, page, &stackWidget::setCurrentIndex);
    page->setCurrentIndex(0);
    return page;
}

/// The panel of a laser that has its lines only asks before it is switched on without one.
MarquelRemoteControl *makeMarquelPanel(MainView *view, Laser &laser, const PanelWiring::Note &note)
{
    MarquelRemoteControl *panel = PanelWiring::makeMarquel(laser, note);
    const auto *harmonic = view->findChild<DropDownNG *>(QStringLiteral("harmonic"));
    QObject::connect(harmonic, qOverload<int>(&DropDownNG::sigActivated), panel,
                     [panel](int index) { panel->slotSetNoHarmonicWavelengthWarning(index == 0); });
    return panel;
}

QWidget *makePanel(MainView *view, const Controls::Desk &desk)
{
    Laser &laser = desk.instrument.laser();
    switch (desk.device.family) {
    case Device::Family::Ostrel:
        return PanelWiring::makeOstrel(laser, desk.note);
    case Device::Family::Marquel:
        return makeMarquelPanel(view, laser, desk.note);
    case Device::Family::MarquelX:
        return PanelWiring::makeMarquelX(laser, desk.note);
    case Device::Family::Plain:
        break;
    }
    return PanelWiring::makePlain(laser, desk.note);
}

void showFaults(MainView *view, Instrument &instrument, int servicePage)
{
    const auto show = [view](const QString &fault) {
        view->showWarning(!fault.isEmpty());
        view->setWarningTooltip(fault);
    };
    QObject::connect(&instrument, &Instrument::faultChanged, view, show);
    QObject::connect(view, &MainView::warningClicked, view,
                     [view, servicePage] { view->setControlPage(servicePage); });
    show(instrument.fault());
}

} // namespace

MainView *makeDeviceView(const Controls::Desk &desk)
{
    auto *view = new MainView;
    view->setObjectName(desk.device.name);
    view->setHeader(desk.device.title);
    view->setTinyHeader(desk.device.summary);
    view->addControlPage(QStringLiteral("Control"),
                         makeControlPage(desk, view->controlPageTabBar()));
    if (desk.device.family == Device::Family::Ostrel || desk.device.family == Device::Family::Plain)
        view->addControlPage(QStringLiteral("Dyes"),
                             Controls::makeDyePage(view->findChild<WavelengthChart *>()));
    view->addControlPage(QStringLiteral("Limits"), Controls::makeLimitPage(desk));
    const int service =
        view->addControlPage(QStringLiteral("Service"), Controls::makeServicePage(desk));
    view->setRemoteControlWidget(makePanel(view, desk));
    showFaults(view, desk.instrument, service);
    view->setControlPage(0);
    return view;
}
