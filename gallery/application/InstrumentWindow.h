#ifndef PELORIN_GALLERY_INSTRUMENTWINDOW_H
#define PELORIN_GALLERY_INSTRUMENTWINDOW_H

#include "gallery/application/Devices.h"
#include "gallery/application/StateStore.h"

#include <Pelorin/TavrinMainWindow>

#include <memory>
#include <vector>

class DeviceList;
class MainControlPanel;
class MainView;
class QTabWidget;
class SignalLog;

/// The control application of a lab with simulated instruments: the devices stand in a dock, each
/// opens its view in a tab when it is first chosen, the readings of the chosen one stand in a
/// column, and the requests in a dock below.
class InstrumentWindow : public TavrinMainWindow
{
    Q_OBJECT

public:
    /// As it was left, by what the settings \a file tells; an empty one keeps nothing. Time stands
    /// still in the instruments until run().
    explicit InstrumentWindow(const QString &file = QString(), QWidget *parent = nullptr);
    ~InstrumentWindow() override;

    /// Opens the device called \a name, or comes back to it; false if there is none.
    bool showDevice(const QString &name);

    /// Lets time pass in all instruments as it does in the room.
    void run();
    /// Lets \a ms pass in all instruments at once.
    void advance(int ms);

    Simulation::Instrument &instrument(int row)
    {
        return *m_stations.at(std::size_t(row)).instrument;
    }

public Q_SLOTS:
    /// Docks and dividers go back to where they were at the first start, and what was kept of them
    /// is forgotten.
    void resetLayout();

Q_SIGNALS:
    /// The operator asks for the reference of all widgets.
    void referenceRequested();

protected:
    void showEvent(QShowEvent *event) override;
    /// Keeps the state of the window.
    void closeEvent(QCloseEvent *event) override;

private:
    /// A device with all that the window has of it.
    struct Station
    {
        std::unique_ptr<Simulation::Instrument> instrument;
        MainView *view = nullptr; ///< null until it is first shown
        QWidget *readings = nullptr;
        QWidget *photodiode = nullptr;
    };

    void makeStations();
    QWidget *makeSidebar();
    QWidget *makeReadingsColumn();
    void makeDocks();
    void open(int row);
    void build(int row);
    void keepChartFolder(MainView *view);
    void followTab(int index);
    int currentRow() const;
    void restore();
    void keep();

    std::unique_ptr<StateStore> m_store; ///< null if nothing is kept
    std::vector<Station> m_stations;
    DeviceList *m_devices = nullptr;
    MainControlPanel *m_readings = nullptr;
    SignalLog *m_log = nullptr;
    QTabWidget *m_tabs;
    QByteArray m_firstDivider;
    bool m_shown = false;
};

#endif
