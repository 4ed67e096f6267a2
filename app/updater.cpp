// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"

#include "app/pageintervals.h"
#include "app/settingskeys.h"
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
      timeHisto(nullptr), diskGauge(nullptr), memoryGauge(nullptr), cpuTotalDelta(0), lastBytesIn(0),
      lastBytesOut(0)
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
    ui.tabWidget->setCurrentIndex(startPage);
    startTimer();
    loadSettings();
    updateMainMenu();
    mainWindow.show();
}

Updater::~Updater()
{
    // Writing the settings file needs descriptors, so even an incomplete reserve helps.
    const ReleasedDescriptors released(descriptors);
    saveSettings();
    glibtop_close();
}

void Updater::startTimer()
{
    timer = new QTimer(&mainWindow);
    connect(timer, SIGNAL(timeout()), this, SLOT(update()));
    timer->start(tickMilliseconds);
}

void Updater::update(bool _updateAll)
{
    const ReleasedDescriptors released(descriptors);
    if (released.enough()) {
        refreshDuePages(_updateAll);
    }
    ++tick;
}

void Updater::refreshDuePages(bool _updateAll)
{
    const int shown = ui.tabWidget->currentIndex();
    const auto wanted = [&](Page page) {
        return _updateAll || (shown == page && intervals->isDue(page, tick));
    };
    if (wanted(GeneralPage)) {
        refreshGeneral();
    }
    if (wanted(ProcessesPage)) {
        refreshProcesses();
    }
    if (wanted(FileSystemsPage)) {
        refreshFileSystems();
    }
    // Intentional: the network is sampled on its own interval, shown or not, so that its graph has no gaps,
    // and a full refresh does not force it.
    if (intervals->isDue(NetworkPage, tick)) {
        refreshNetwork();
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
