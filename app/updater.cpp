// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"

#include "app/followup.h"
#include "app/pageintervals.h"
#include "app/settingskeys.h"
#include "app/systemfiles.h"
#include "fs/proxyfsmodel.h"
#include "process/processmenu.h"
#include "process/proxyprocmodel.h"

#include <QTimer>

#include <glibtop.h>
#include <glibtop/close.h>
#include <glibtop/open.h>

namespace {

constexpr int tickMilliseconds = 1000;

} // namespace

Updater::Updater(int startPage)
    : fsModel(nullptr), procModel(nullptr), currentNetDevice(-1), cpuCount(0), cpuFirstSample(1),
      timer(nullptr), fileMenu(nullptr), editMenu(nullptr), menuProcess(nullptr), processMenu(nullptr),
      intervals(new PageIntervals(&mainWindow, settings::pageCount)), tick(0), chart(nullptr),
      timeHisto(nullptr), diskGauge(nullptr), memoryGauge(nullptr), cpuTotalDelta(0), lastCpuTotal(0),
      followUp(new FollowUp(this)), listMenuTrigger(nullptr), finder(nullptr), stage(Stage::Building),
      lastBytesIn(0), lastBytesOut(0)
{
    glibtop_init_r(&glibtop_global_server, 0, 0);
    fsModel = new ProxyFsModel(this);
    procModel = new ProxyProcModel(this);
    processMenu = new ProcessMenu(this, procModel);
    buildWindow();
    buildMenus();
    buildCpuRows();
    connect(ui.treeView, SIGNAL(customContextMenuRequested(const QPoint &)), this, SLOT(popup()));
    update(true);
    fillGeneralPage();
    setNetDevice(0);
    // The start page and each stored column make ticks; what falls due in them is refreshed once.
    deferred.begin();
    ui.tabWidget->setCurrentIndex(startPage);
    startTimer();
    loadSettings();
    stage = Stage::SettingsLoaded;
    deferred.add(Pages().set(static_cast<std::size_t>(ui.tabWidget->currentIndex())));
    refresh(deferred.end());
    updateMainMenu();
    showWindow();
}

Updater::~Updater()
{
    saveSettings();
    glibtop_close();
}

void Updater::startTimer()
{
    timer = new QTimer(&mainWindow);
    connect(timer, SIGNAL(timeout()), this, SLOT(update()));
    timer->start(tickMilliseconds);
}

void Updater::showWindow()
{
    finishLabels();
    stage = Stage::WindowShown;
    endReading();
    mainWindow.show();
}

void Updater::update(bool _updateAll)
{
    const Pages due = duePages(_updateAll);
    if (deferred.areDeferred()) {
        deferred.add(due);
    } else {
        refresh(due);
    }
    ++tick;
}

Pages Updater::duePages(bool _updateAll) const
{
    Pages due;
    for (const Page page : {GeneralPage, ProcessesPage, FileSystemsPage}) {
        due[page] = _updateAll || (isShown(page) && intervals->isDue(page, tick));
    }
    // Intentional: the network is sampled on its own interval, shown or not, so that its graph has no gaps,
    // and a full refresh does not force it.
    due[NetworkPage] = intervals->isDue(NetworkPage, tick);
    return due;
}

void Updater::refresh(const Pages &pages)
{
    if (pages.none()) {
        return; // most ticks: renewing the descriptors would be all they cost
    }
    const ReleasedDescriptors released(descriptors);
    if (!released.enough() || fileMissingForRefresh()) {
        return;
    }
    if (pages[GeneralPage]) {
        refreshGeneral();
    }
    if (pages[ProcessesPage]) {
        refreshProcesses();
    }
    if (pages[FileSystemsPage]) {
        refreshFileSystems();
    }
    if (pages[NetworkPage]) {
        refreshNetwork();
    }
}

bool Updater::isShown(Page page) const
{
    return ui.tabWidget->currentIndex() == page;
}

void Updater::refreshAgain(int page)
{
    if (isShown(static_cast<Page>(page))) {
        refresh(Pages().set(static_cast<std::size_t>(page)));
    }
}

void Updater::update()
{
    update(false);
}

void Updater::slotTabChanged(int)
{
    tick = 0;
    update(false);
    updateMainMenu();
}

void Updater::slotAbout()
{}

void Updater::slotHelp()
{}
