// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_UPDATER_H
#define APP_UPDATER_H

#include "app/descriptorreserve.h"
#include "resources/cpuload.h"
#include "resources/netdevices.h"
#include "ui_mainwindow.h"

#include <QMainWindow>
#include <QModelIndex>
#include <QObject>

#include <vector>

class Chart;
class PageIntervals;
class ProcessMenu;
class ProxyFsModel;
class ProxyProcModel;
class QProg;
class QTimer;
class TimeHisto;

/// Pages in the order of the tabs; the numbering serves the start page, the tabs and the intervals.
enum Page { GeneralPage = 0, ProcessesPage = 1, FileSystemsPage = 2, NetworkPage = 3 };

/// The controller: owns the main window, the models and the tick of one second, and decides on each tick
/// which page is refreshed. Its bodies stand in several files, grouped by what they serve: updater.cpp (life
/// and tick), updater_window.cpp, updater_menus.cpp, updater_settings.cpp and one file per page.
class Updater : public QObject
{
    Q_OBJECT

public:
    /// Builds and shows the main window. Start page 0 to 3; -1 leaves the choice to the form.
    explicit Updater(int startPage);
    /// Saves the settings, then closes libgtop.
    ~Updater() override;

public Q_SLOTS:
    // The order of the slots is fixed: callers may know them by their meta-object index.
    /// One tick: refreshes what is due and shown; with _updateAll General, Processes and File systems in any
    /// case. A tick on which no file could be opened shows nothing new.
    void update(bool _updateAll);
    void update();
    /// Shows the interface at this position of the chooser and samples it; ignores a position that isn't
    /// there.
    void setNetDevice(int index);
    /// Context menu of the process list.
    void popup();
    void updateMainMenu();
    void updateProcessActions();
    /// A new menu with one checkable entry per process column; the caller owns it.
    QMenu *menuVisibleColumns();
    /// Details and chart of a row of the file system table.
    void slotSelectFs(QModelIndex index);
    void slotTabChanged(int);
    /// Shows or hides the column of the action that sent the signal.
    void slotToggleColumn();
    void slotIntervalGeneral();
    void slotIntervalProcs();
    void slotIntervalFs();
    void slotIntervalNet();
    void slotAbout();
    void slotHelp();

private:
    // updater_window.cpp
    void buildWindow();
    void addStateGauges();
    QProg *addStateGauge(const QColor &color, int row, QLabel *caption);
    void prepareNetworkPage();
    void addChart();
    void paintColorKeys();
    void connectWindow();
    void followProcessSelection();
    // updater_menus.cpp
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    // updater_general.cpp
    void buildCpuRows();
    void fillGeneralPage();
    void scrollGeneralPageIfTooHigh();
    void forgetWindowSizes();
    void sampleCpuLoad();
    void refreshGeneral();
    // updater_processes.cpp, updater_filesystems.cpp, updater_network.cpp
    void refreshProcesses();
    int selectedPid() const; // -1 without a selection
    void refreshFileSystems();
    void refreshNetwork();
    void showNetDevice(const NetRec &device);
    // updater.cpp, updater_settings.cpp
    void startTimer();
    void refreshWhatIsDue(bool _updateAll);
    void loadSettings();
    void saveSettings() const;

    ProxyFsModel *fsModel;
    ProxyProcModel *procModel;
    std::vector<NetRec> netDevices;
    int currentNetDevice;
    int cpuCount;
    int cpuFirstSample;
    std::vector<CpuRec> cpuRecords;
    QTimer *timer;
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
    quint64 cpuTotalDelta; ///< jiffies of all CPUs between the last two samples; kept, not shown
    quint64 lastBytesIn;
    quint64 lastBytesOut;
    DescriptorReserve descriptors;
};

#endif
