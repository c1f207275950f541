#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/PanelWiring.h"
#include "gallery/SignalLog.h"
#include "gallery/simulation/Clock.h"
#include "gallery/simulation/Laser.h"

#include <Pelorin/Button>
#include <Pelorin/MarquelRemoteControl>
#include <Pelorin/MarquelXRemoteControl>
#include <Pelorin/OstrelRemoteControl>
#include <Pelorin/RemoteControl>

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

using Simulation::Laser;

/// Writes every request of the panel of that name.
PanelWiring::Note noteFor(const char *panel, SignalLog *log)
{
    const QString name = QLatin1String(panel);
    return [name, log](const QString &signal, const QString &value) {
        log->note(name, signal, value);
    };
}

QFrame *panelCard(const char *caption, const char *note, QWidget *panel,
                  std::initializer_list<QHBoxLayout *> options = {})
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(panel, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    layout->addSpacing(12);
    for (QHBoxLayout *each : options)
        layout->addLayout(each);
    return PageParts::card(QLatin1String(caption), QLatin1String(note), layout);
}

QFrame *plainCard(Laser &laser, SignalLog *log)
{
    return panelCard("RemoteControl", "Blinks in state 4, while the emission is about to come.",
                     PanelWiring::makePlain(laser, noteFor("RemoteControl", log)));
}

QFrame *marquelCard(Laser &laser, SignalLog *log)
{
    auto *panel = PanelWiring::makeMarquel(laser, noteFor("MarquelRemoteControl", log));
    return panelCard("MarquelRemoteControl", "Asks before it switches on without a wavelength.",
                     panel, { PageParts::option("No wavelength selected", false, [panel](bool on) {
                         panel->slotSetNoHarmonicWavelengthWarning(on);
                     }) });
}

QFrame *ostrelCard(Laser &laser, SignalLog *log)
{
    auto *panel = PanelWiring::makeOstrel(laser, noteFor("OstrelRemoteControl", log));
    return panelCard("OstrelRemoteControl",
                     "Keeps its lamps above state 6, which it does not know.", panel,
                     { PageParts::option("Output enable", true,
                                         [panel](bool on) { panel->enableOutEnableButton(on); }) });
}

QFrame *marquelXCard(Laser &laser, SignalLog *log)
{
    auto *panel = PanelWiring::makeMarquelX(laser, noteFor("MarquelXRemoteControl", log));
    return panelCard("MarquelXRemoteControl",
                     "Freezes in state 7; tunes its pulse stretcher in state 8.", panel,
                     { PageParts::option("Pulse stretcher", true,
                                         [panel](bool on) { panel->slotTPSRbuttonView(on); }),
                       PageParts::option("Output enable", true,
                                         [panel](bool on) { panel->enableOutEnableButton(on); }) });
}

/// A button for each state, of which the present one is green.
QFrame *laserCard(Laser *laser)
{
    struct Choice
    {
        uchar state;
        const char *name;
    };
    static const Choice choices[] = { { Laser::Off, "Off" },
                                      { Laser::Listening, "Listening" },
                                      { Laser::WarmingUp, "Warming up" },
                                      { Laser::StandingBy, "Standby" },
                                      { Laser::Starting, "Starting" },
                                      { Laser::Ready, "Ready" },
                                      { Laser::Emitting, "Emitting" },
                                      { Laser::Frozen, "Frozen" },
                                      { Laser::Tuning, "Tuning" },
                                      { 200, "Unknown" } };
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *group = new QButtonGroup(row);
    for (const Choice &each : choices) {
        auto *button =
            new Button(QStringLiteral("%1\n%2").arg(each.state).arg(QLatin1String(each.name)));
        button->setSize(Button::LongSmall);
        button->setColor(Button::DarkGrey);
        button->setCheckedColor(Button::Green);
        button->setCheckable(true);
        group->addButton(button, each.state);
        row->addWidget(button);
    }
    row->addStretch(1);
    auto *start = new Button(QStringLiteral("Start up"));
    start->setSize(Button::LongSmall);
    row->addWidget(start);
    QObject::connect(group, &QButtonGroup::idClicked, laser,
                     [laser](int state) { laser->setState(uchar(state)); });
    QObject::connect(start, &Button::clicked, laser, [laser] { laser->startUp(); });
    QObject::connect(laser, &Laser::stateChanged, group,
                     [group](uchar state) { group->button(state)->setChecked(true); });
    return PageParts::card(QStringLiteral("The laser's state byte"),
                           QStringLiteral("It drives all four panels. What a panel asks for takes "
                                          "the laser there, one state after the other."),
                           row);
}

} // namespace

QWidget *buildRemotePage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *clock = new Simulation::Clock(page);
    auto *laser = new Laser(*clock, page);
    clock->run();
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Press a button of a panel"));
    grid->addWidget(laserCard(laser), 0, 0, 1, 4);
    const auto cards = { plainCard(*laser, log), marquelCard(*laser, log), ostrelCard(*laser, log),
                         marquelXCard(*laser, log) };
    int column = 0;
    for (QFrame *each : cards) {
        each->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        grid->setColumnStretch(column, 1);
        grid->addWidget(each, 1, column++);
    }
    grid->addWidget(PageParts::card(QStringLiteral("Requests"), QString(), log), 2, 0, 1, 4);
    grid->setRowStretch(2, 1);
    laser->setState(Laser::Starting);
    return page;
}
