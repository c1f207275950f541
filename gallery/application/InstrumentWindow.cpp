#include "gallery/application/InstrumentWindow.h"

#include "gallery/Appearance.h"
#include "gallery/PageParts.h"
#include "gallery/SignalLog.h"
#include "gallery/application/DeviceList.h"
#include "gallery/application/DeviceView.h"

#include <Pelorin/Button>
#include <Pelorin/CenterTabWidget>
#include <Pelorin/ColHeader>
#include <Pelorin/DockWidget>
#include <Pelorin/MainControlPanel>
#include <Pelorin/MainView>
#include <Pelorin/WavelengthChart>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTabWidget>
#include <QTextDocument>
#include <QVBoxLayout>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

const QSize preferredSize(1600, 900);
constexpr int readingsWidth = 264;
constexpr int logHeight = 96;
constexpr int logMargin = 12;
constexpr quint32 firstSeed = 20;

const QString headerSheet =
    QStringLiteral("font-family: Calibri; font-size: 20px; color: #444; padding-left: 12px");

// What is kept, and under which names.
const QString geometryKey = QStringLiteral("geometry");
const QString docksKey = QStringLiteral("docks");
const QString dividerKey = QStringLiteral("divider");
const QString deviceKey = QStringLiteral("device");
const QString folderKey = QStringLiteral("chart-folder");
const QString filterKey = QStringLiteral("chart-filter");

/// The window itself builds the welcome page, so the picture has to be there before it.
QWidget *withResources(QWidget *parent)
{
    Appearance::loadResources();
    return parent;
}

Button *makeButton(const char *text)
{
    auto *button = new Button(QLatin1String(text));
    button->setObjectName(QLatin1String(text));
    button->setSize(Button::LongSmall);
    button->setColor(Button::DarkGrey);
    return button;
}

} // namespace

InstrumentWindow::InstrumentWindow(const QString &file, QWidget *parent)
    : TavrinMainWindow(withResources(parent))
    , m_store(file.isEmpty() ? nullptr : std::make_unique<StateStore>(file))
    , m_tabs(centerTabWidget()->findChild<QTabWidget *>())
{
    setWindowTitle(QStringLiteral("Pelorin"));
    setStyleSheet(Appearance::windowSheet());
    resize(preferredSize);
    m_tabs->setDocumentMode(true);
    makeDocks();
    makeStations();
    connect(m_devices, &ScrollAreaNG::currentIndexChanged, this, &InstrumentWindow::open);
    connect(m_tabs, &QTabWidget::currentChanged, this, &InstrumentWindow::followTab);
    restore();
}

/// The views speak to the instruments as long as they live, so they go first.
InstrumentWindow::~InstrumentWindow()
{
    m_tabs->disconnect(this);
    for (const Station &station : m_stations) {
        delete station.view;
        delete station.readings;
        delete station.photodiode;
    }
    Appearance::withdraw(this);
}

bool InstrumentWindow::showDevice(const QString &name)
{
    const int row = findDevice(name);
    if (row < 0)
        return false;
    m_devices->listItemSetCurrentIndex(row, true);
    return true;
}

void InstrumentWindow::run()
{
    for (const Station &station : m_stations)
        station.instrument->clock().run();
}

void InstrumentWindow::advance(int ms)
{
    for (const Station &station : m_stations)
        station.instrument->clock().advance(ms);
}

void InstrumentWindow::resetLayout()
{
    resetAllGenericDocks();
    m_readings->setSplitterState(m_firstDivider);
    if (!m_store)
        return;
    for (const QString &key : { geometryKey, docksKey, dividerKey })
        m_store->forget(key);
}

void InstrumentWindow::showEvent(QShowEvent *event)
{
    TavrinMainWindow::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    m_firstDivider = m_readings->findChild<QSplitter *>()->saveState();
    if (m_store)
        m_readings->setSplitterState(m_store->state(dividerKey));
}

void InstrumentWindow::closeEvent(QCloseEvent *event)
{
    keep();
    TavrinMainWindow::closeEvent(event);
}

void InstrumentWindow::makeStations()
{
    for (int row = 0; row < devices().size(); ++row) {
        const Device &device = devices().at(row);
        auto instrument = std::make_unique<Instrument>(firstSeed + quint32(row), device.wavelengths,
                                                       device.firstWavelength, device.powers);
        m_devices->add(device.title);
        const auto show = [this, row, instrument = instrument.get()] {
            m_devices->showState(row, instrument->laser().state(), instrument->fault());
        };
        connect(&instrument->laser(), &Laser::stateChanged, m_devices, show);
        connect(instrument.get(), &Instrument::faultChanged, m_devices, show);
        show();
        m_stations.push_back({ std::move(instrument), nullptr, nullptr, nullptr });
    }
}

QWidget *InstrumentWindow::makeSidebar()
{
    QVBoxLayout *layout = nullptr;
    QFrame *sidebar = Appearance::sidebar(layout);
    m_devices = new DeviceList;
    m_devices->setObjectName(QStringLiteral("devices"));
    layout->addWidget(m_devices, 1);

    Button *reference = makeButton("Widgets");
    Button *reset = makeButton("Reset layout");
    const auto clicked = qOverload<bool, QString>(&Button::clicked);
    connect(reference, clicked, this, &InstrumentWindow::referenceRequested);
    connect(reset, clicked, this, &InstrumentWindow::resetLayout);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(16, 0, 16, 0);
    row->addWidget(reference);
    row->addStretch(1);
    row->addWidget(reset);
    layout->addLayout(row);
    return sidebar;
}

QWidget *InstrumentWindow::makeReadingsColumn()
{
    auto *column = new QWidget;
    column->setMinimumWidth(readingsWidth);
    column->setProperty("widget-color", QStringLiteral("light-grey"));
    auto *header = new ColHeader;
    header->setText(QStringLiteral("Readings"));
    header->setTextStyleSheet(headerSheet);
    m_readings = new MainControlPanel;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addWidget(m_readings, 1);
    layout->addStretch(0);
    connect(header, &ColHeader::sigShowStateChanged, m_readings, &QWidget::setVisible);
    connect(m_readings, &MainControlPanel::splitterStateChanged, this,
            [this](const QByteArray &state) {
                if (m_store)
                    m_store->setState(dividerKey, state);
            });
    return column;
}

void InstrumentWindow::makeDocks()
{
    m_log = new SignalLog;
    m_log->setMinimumHeight(logHeight);
    m_log->document()->setDocumentMargin(logMargin);
    m_log->setPlaceholderText(QStringLiteral("What you ask of an instrument stands here"));
    createGenericDockWidget(makeSidebar(), QStringLiteral("Devices"), Qt::LeftDockWidgetArea, true);
    createGenericDockWidget(makeReadingsColumn(), QStringLiteral("Instrument"),
                            Qt::RightDockWidgetArea, true);
    createGenericDockWidget(m_log, QStringLiteral("Requests"), Qt::BottomDockWidgetArea, true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
}

/// A click on a device, also on the one that is chosen already: the welcome page may stand in front.
void InstrumentWindow::open(int row)
{
    if (row < 0)
        return;
    Station &station = m_stations.at(std::size_t(row));
    if (!station.view)
        build(row);
    centerTabWidget()->selectCenterWidget(station.view);
    m_readings->showMainControl(station.readings, true);
    m_readings->showChildControl(station.photodiode, true);
}

void InstrumentWindow::build(int row)
{
    const Device &device = devices().at(row);
    Station &station = m_stations.at(std::size_t(row));
    Appearance::announce(this);
    const Controls::Desk desk{ device, *station.instrument,
                               [this, title = device.title](const QString &what,
                                                            const QString &value) {
                                   m_log->note(title, what, value);
                               } };
    station.view = makeDeviceView(desk);
    station.readings = Controls::makeReadings(desk);
    station.photodiode = Controls::makePhotodiode(desk);
    m_readings->showMainControl(station.readings, false);
    m_readings->showChildControl(station.photodiode, false);
    keepChartFolder(station.view);
    createSystemWidget(station.view, device.title, false, true);
}

void InstrumentWindow::keepChartFolder(MainView *view)
{
    auto *chart = view->findChild<WavelengthChart *>();
    if (!m_store)
        return;
    const QString folder = m_store->text(folderKey);
    const QString filter = m_store->text(filterKey);
    if (!folder.isEmpty())
        chart->setChartSaveFoldername(folder);
    if (!filter.isEmpty())
        chart->setChartSaveFilterType(filter);
    connect(chart, &WavelengthChart::sigChartSaveFoldernameChanged, this,
            [this](const QString &chosen) { m_store->setText(folderKey, chosen); });
    connect(chart, &WavelengthChart::sigChartSaveFilterTypeChanged, this,
            [this](const QString &chosen) { m_store->setText(filterKey, chosen); });
}

/// The device of the tab in front is the chosen one; the welcome page has none.
void InstrumentWindow::followTab(int)
{
    const int row = currentRow();
    if (row != m_devices->listItemCurrentIndex())
        m_devices->listItemSetCurrentIndex(row);
}

int InstrumentWindow::currentRow() const
{
    for (std::size_t row = 0; row < m_stations.size(); ++row) {
        if (m_stations[row].view && m_stations[row].view == m_tabs->currentWidget())
            return int(row);
    }
    return -1;
}

void InstrumentWindow::restore()
{
    if (!m_store)
        return;
    restoreGeometry(m_store->state(geometryKey));
    restoreState(m_store->state(docksKey));
    showDevice(m_store->text(deviceKey));
}

void InstrumentWindow::keep()
{
    if (!m_store)
        return;
    m_store->setState(geometryKey, saveGeometry());
    m_store->setState(docksKey, saveState());
    const int row = currentRow();
    m_store->setText(deviceKey, row < 0 ? QString() : devices().at(row).name);
    m_store->sync();
}
