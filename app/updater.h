// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_UPDATER_H
#define APP_UPDATER_H

#include "app/deferredrefreshes.h"
#include "app/descriptorreserve.h"
#include "app/page.h"
#include "process/listplace.h"
#include "process/procmodel.h"
#include "resources/cpuload.h"
#include "resources/netdevices.h"
#include "ui_mainwindow.h"

#include <QMainWindow>
#include <QModelIndex>
#include <QObject>

#include <optional>
#include <vector>

class Chart;
class FollowUp;
class ListMenuTrigger;
class PageIntervals;
class ProcessFinder;
class ProcessMenu;
class ProxyFsModel;
class ProxyProcModel;
class QProg;
class QTimer;
class TimeHisto;

/// The controller: owns the main window, the models and the one-second tick, and decides on each tick which
/// pages are refreshed. It is implemented in several files: updater.cpp (construction and tick),
/// updater_window.cpp, updater_menus.cpp, updater_settings.cpp and one file per page.
class Updater : public QObject
{
    Q_OBJECT

public:
    /// Builds and shows the main window. Start page 0 to 3; -1 leaves the choice to the form.
    explicit Updater(int startPage);
    /// Saves the settings, then closes libgtop.
    ~Updater() override;

    /// Can be called at any time after the construction, even without a connection to the display.
    void saveSettings();

public Q_SLOTS:
    // The order of the slots is fixed: callers may address them by their meta-object index.
    /// One tick: refreshes the page that is shown and due, and the network if due; with _updateAll General,
    /// Processes and File systems in any case. Short of file descriptors and without /proc, a tick refreshes
    /// nothing.
    void update(bool _updateAll);
    void update();
    /// Makes the interface at this position of the chooser the current one and samples it; no-op for a
    /// position that does not exist.
    void setNetDevice(int index);
    /// Runs the context menu of the process list.
    void popup();
    void updateMainMenu();
    void updateProcessActions();
    /// A new menu with one checkable entry per process column; the caller owns it.
    QMenu *menuVisibleColumns();
    /// Shows the details and the chart of a row of the file system table.
    void slotSelectFs(QModelIndex index);
    void slotTabChanged(int);
    /// Shows or hides the column of the action that sent the signal.
    void slotToggleColumn();
    void slotIntervalGeneral();
    void slotIntervalProcs();
    void slotIntervalFs();
    void slotIntervalNet();
    // Intentionally empty: the Help menu serves both, but the slots hold the last two of the fixed indexes.
    void slotAbout();
    void slotHelp();

private Q_SLOTS:
    /// One more refresh of a page, if it is still shown. Not a tick.
    void refreshAgain(int page);
    /// Before and after the list of processes is emptied by a change of types, mode or columns.
    void deferRefreshes();
    void refillProcesses();
    /// Runs "Visible columns" at the pointer.
    void popupColumns();
    /// The filter may have hidden the selected process.
    void processesFiltered();

private:
    // updater_window.cpp
    void buildWindow();
    void addStateGauges();
    QProg *addStateGauge(const QColor &color, int row, QLabel *caption);
    void addChart();
    void paintColorKeys();
    void connectWindow();
    void followProcessSelection();
    void finishLabels();
    // updater_menus.cpp
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    // updater_general.cpp
    void buildCpuRows();
    void fillGeneralPage();
    void sampleCpuLoad();
    void refreshGeneral();
    // updater_processes.cpp
    void refreshProcesses();
    void restoreSelection(const ListPlace &place);
    double sampleTotalCpuTime();
    void readProcesses();
    void endReading();
    // updater_filesystems.cpp
    void refreshFileSystems();
    // updater_network.cpp
    void buildNetworkPage();
    void refreshNetwork();
    void showNetDevice(const NetRec &device);
    // updater.cpp, updater_settings.cpp
    void startTimer();
    Pages duePages(bool _updateAll) const;
    void refresh(const Pages &pages);
    bool isShown(Page page) const;
    void showWindow();
    void loadSettings();

    // The models and the process menu are QObject children, so they outlive the members: the window and its
    // views are destroyed first, and no view is left with a deleted model.
    ProxyFsModel *fsModel;
    ProxyProcModel *procModel;
    std::vector<NetRec> netDevices;
    int currentNetDevice; ///< position in netDevices; -1 before the first choice
    int cpuCount;
    int cpuFirstSample; ///< 1 until the first CPU sample, then 0; required, though nothing reads it
    std::vector<CpuRec> cpuRecords;
    QTimer *timer; ///< child of mainWindow
    // Must precede `intervals`, whose parent mainWindow is; the window deletes it and the timer.
    QMainWindow mainWindow;
    Ui_MainWindow ui;
    QMenu *fileMenu;
    QMenu *editMenu;
    QMenu *menuProcess;
    ProcessMenu *processMenu;
    PageIntervals *intervals;
    int tick;

    Chart *chart;
    TimeHisto *timeHisto;
    QProg *diskGauge;
    QProg *memoryGauge;
    quint64 cpuTotalDelta; ///< jiffies of all CPUs between the last two samples
    quint64 lastCpuTotal;  ///< jiffies of all CPUs at the last refresh of the processes
    FollowUp *followUp;
    ListMenuTrigger *listMenuTrigger;
    ProcessFinder *finder;
    DeferredRefreshes deferred;
    /// How far the start is. The list of processes is read and filled once the settings are loaded, since
    /// that empties it, and only if its page is shown.
    enum class Stage { Building, SettingsLoaded, WindowShown } stage;
    ProcModel::Snapshot reading;               ///< serves all refreshes until the window is shown; then empty
    std::optional<ListPlace> placeBeforeReset; ///< until the emptied list is refilled
    std::optional<ListPlace> rowlessSelection; ///< until the process has a row again, or another is selected
    quint64 lastBytesIn;
    quint64 lastBytesOut;
    DescriptorReserve descriptors;
};

#endif
