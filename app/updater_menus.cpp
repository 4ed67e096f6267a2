// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/listmenutrigger.h"
#include "app/pageintervals.h"
#include "app/updater.h"
#include "images/icons.h"
#include "integration/helpmenu.h"
#include "process/processmenu.h"
#include "process/proxyprocmodel.h"
#include "resources/timehisto.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <memory>

void Updater::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    ui.menubar->addMenu(new ZarnHelpMenu(&mainWindow));
}

void Updater::buildFileMenu()
{
    fileMenu = ui.menubar->addMenu(tr("&File"));
    const QIcon icon = themedIcon(QStringLiteral("application-exit"), QStringLiteral(":/images/exit"));
    fileMenu->addAction(icon, tr("Exit"), qApp, SLOT(quit()), QKeySequence(QStringLiteral("Ctrl+Q")));
}

void Updater::buildEditMenu()
{
    editMenu = ui.menubar->addMenu(tr("&Edit"));
    QMenu *update = editMenu->addMenu(tr("Update interval"));
    update->addAction(tr("General interval"), this, SLOT(slotIntervalGeneral()));
    update->addAction(tr("Process interval"), this, SLOT(slotIntervalProcs()));
    update->addAction(tr("Filesystem interval"), this, SLOT(slotIntervalFs()));
    update->addAction(tr("Network interval"), this, SLOT(slotIntervalNet()));
    menuProcess = editMenu->addMenu(tr("Process"));
    processMenu->fillMenu(menuProcess);
    connect(editMenu, SIGNAL(aboutToShow()), this, SLOT(updateMainMenu()));
    connect(menuProcess, SIGNAL(aboutToShow()), this, SLOT(updateProcessActions()));
}

void Updater::updateMainMenu()
{
    const bool onProcesses = ui.tabWidget->currentIndex() == ProcessesPage;
    processMenu->setActionsEnabled(onProcesses);
    if (onProcesses) {
        updateProcessActions();
    }
    menuProcess->setEnabled(onProcesses);
    menuProcess->menuAction()->setVisible(onProcesses);
}

void Updater::updateProcessActions()
{
    processMenu->setProcess(procModel->processAt(selectedRow(*ui.treeView)));
}

void Updater::popup()
{
    rowlessSelection.reset(); // what the menu offers must stay as it was when the menu opened
    QMenu menu(ui.centralwidget);
    processMenu->fillMenu(&menu);
    updateMainMenu();
    updateProcessActions();
    const std::unique_ptr<QMenu> columns(menuVisibleColumns());
    menu.addMenu(columns.get());
    menu.exec(listMenuTrigger->position());
    update(false);
}

void Updater::popupColumns()
{
    const std::unique_ptr<QMenu> columns(menuVisibleColumns());
    columns->setParent(ui.centralwidget, columns->windowFlags());
    columns->exec(QCursor::pos());
}

void Updater::slotIntervalGeneral()
{
    intervals->exec(GeneralPage, tr("General page"));
}

void Updater::slotIntervalProcs()
{
    intervals->exec(ProcessesPage, tr("Processes page"));
}

void Updater::slotIntervalFs()
{
    intervals->exec(FileSystemsPage, tr("Filesystems page"));
}

void Updater::slotIntervalNet()
{
    intervals->exec(NetworkPage, tr("Network page"));
    timeHisto->setInterval(intervals->interval(NetworkPage));
}
