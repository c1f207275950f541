#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/PanelWiring.h"
#include "gallery/SignalLog.h"
#include "gallery/simulation/Clock.h"
#include "gallery/simulation/Laser.h"

#include <Pelorin/HorizontalSlider>
#include <Pelorin/LineEditNumberNG>
#include <Pelorin/MainView>
#include <Pelorin/MarquelRemoteControl>
#include <Pelorin/stackWidget>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>
#include <QVariant>

namespace {

using Simulation::Laser;

enum PageIndex { ControlIndex, TriggerIndex, ServiceIndex };

/// With these the pages line up with the logo above them; a slider has a margin of its own.
constexpr int margin = 16;
constexpr int sliderMargin = 4;
/// The two sliders fit.
constexpr int ordinaryHeight = 362;

QWidget *column(std::initializer_list<QWidget *> parts)
{
    auto *result = new QWidget;
    auto *layout = new QVBoxLayout(result);
    layout->setContentsMargins(sliderMargin, 0, sliderMargin, 0);
    layout->setSpacing(12);
    for (QWidget *each : parts)
        layout->addWidget(each);
    return result;
}

struct Field
{
    const char *name;
    const char *unit;
    double max;
    double value;
};

/// A name, a field and a unit in each row.
QWidget *form(std::initializer_list<Field> fields)
{
    auto *result = new QWidget;
    auto *grid = new QGridLayout(result);
    grid->setContentsMargins(margin, 0, margin, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    for (const Field &each : fields) {
        const int row = grid->rowCount();
        auto *edit = new LineEditNumberNG;
        edit->setProperty("background", QStringLiteral("dark"));
        edit->setFixedSize(140, 34);
        edit->setRange(0.0, each.max);
        edit->setValue(each.value);
        grid->addWidget(PageParts::label(QLatin1String(each.name), "label"), row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(PageParts::label(QLatin1String(each.unit), "label"), row, 2);
    }
    grid->setColumnMinimumWidth(0, 140);
    grid->setColumnStretch(3, 1);
    return result;
}

/// The ordinary page has a page of its own for each tab, which the application changes.
QWidget *controlPage(QTabBar *tabs)
{
    auto *page = new stackWidget;
    page->layout()->setContentsMargins(0, 0, 0, 0);
    tabs->addTab(QStringLiteral("Setpoints"));
    page->addWidget(column({ PageParts::slider("Power", "mW", 0.0, 250.0, 90.0, 1),
                             PageParts::slider("Wavelength", "nm", 680.0, 1080.0, 800.0, 1) }));
    tabs->addTab(QStringLiteral("Pulses"));
    page->addWidget(column({ PageParts::slider("Pulse width", "fs", 80.0, 320.0, 140.0, 1),
                             PageParts::slider("Repetition rate", "kHz", 1.0, 200.0, 80.0, 1) }));
    page->setCurrentIndex(0);
    QObject::connect(tabs, &QTabBar::currentChanged, page, &stackWidget::setCurrentIndex);
    return page;
}

MarquelRemoteControl *remotePanel(Laser &laser, SignalLog *log)
{
    return PanelWiring::makeMarquel(laser, [log](const QString &signal, const QString &value) {
        log->note(QStringLiteral("panel"), signal, value);
    });
}

void follow(MainView *view, SignalLog *log)
{
    const QString name = QStringLiteral("view");
    QObject::connect(view, &MainView::controlPageChanged, log, [name, log](int index) {
        log->note(name, QStringLiteral("controlPageChanged"), QString::number(index));
    });
    QObject::connect(view, &MainView::warningClicked, log,
                     [name, log] { log->note(name, QStringLiteral("warningClicked")); });
}

MainView *makeView(Laser &laser, SignalLog *log)
{
    auto *view = new MainView;
    view->setHeader(QStringLiteral("Marquel"));
    view->setTinyHeader(QStringLiteral("Laser 1"));
    view->addControlPage(QStringLiteral("Control"), controlPage(view->controlPageTabBar()));
    view->addControlPage(QStringLiteral("Trigger"), form({ { "Delay", "ns", 1000.0, 12.5 },
                                                           { "Gate width", "ns", 500.0, 80.0 },
                                                           { "Threshold", "mV", 5000.0, 650.0 } }));
    view->addControlPage(QStringLiteral("Service"), form({ { "Crystal", "\302\260C", 80.0, 41.3 },
                                                           { "Pump current", "A", 30.0, 18.2 } }));
    view->setSettingsPageAccess(ServiceIndex, false);
    view->setRemoteControlWidget(remotePanel(laser, log));
    view->setWarningTooltip(QStringLiteral("The crystal is 1.3 K too warm"));
    view->showWarning(true);
    follow(view, log);
    return view;
}

QFrame *viewCard(const char *caption, MainView *view)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("view"));
    frame->setStyleSheet(QStringLiteral("#view { border: 1px solid #DDD; }"));
    auto *inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(view);
    return PageParts::card(QLatin1String(caption), QString(), frame);
}

/// What the application allows and tells, in both views.
QFrame *optionCard(MainView *ordinary, MainView *settings)
{
    const auto both = [ordinary, settings](auto call) {
        return [ordinary, settings, call](bool on) {
            call(ordinary, on);
            call(settings, on);
        };
    };
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    layout->addLayout(PageParts::option(
        "Warning", true, both([](MainView *view, bool on) { view->showWarning(on); })));
    layout->addLayout(PageParts::option(
        "Settings menu", true, both([](MainView *view, bool on) { view->showSettings(on); })));
    layout->addLayout(PageParts::option(
        "Access to the service page", false,
        both([](MainView *view, bool on) { view->setSettingsPageAccess(ServiceIndex, on); })));
    return PageParts::card(QStringLiteral("Both views"), QString(), layout);
}

} // namespace

QWidget *buildMainViewPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *clock = new Simulation::Clock(page);
    auto *laser = new Laser(*clock, page);
    clock->run();
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Choose a page"));
    MainView *ordinary = makeView(*laser, log);
    ordinary->setControlPage(ControlIndex);
    ordinary->setMinimumHeight(ordinaryHeight);
    MainView *settings = makeView(*laser, log);
    settings->setControlPage(TriggerIndex);

    grid->addWidget(viewCard("Ordinary page, with the application's tabs", ordinary), 0, 0, 1, 2);
    grid->addWidget(viewCard("Settings page, with a title and the cross", settings), 1, 0, 2, 1);
    grid->addWidget(optionCard(ordinary, settings), 1, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 2, 1);
    grid->setColumnStretch(0, 8);
    grid->setColumnStretch(1, 3);
    grid->setRowStretch(2, 1);
    laser->setState(Laser::Emitting);
    return page;
}
