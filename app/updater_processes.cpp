// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QItemSelectionModel>
#include <QMenu>
#include <QtDebug>

void Updater::refreshProcesses()
{
    static auto *filler = gtop_wrappers::ProcessFiller::instance();
    procModel->setTotalCpuTime(totalCpuTime());
    std::vector<bool> eager(filler->size(), false);
    const int sortedBy = procModel->sortedProcessColumn();
    if (sortedBy >= 0) {
        eager[static_cast<std::size_t>(sortedBy)] = true;
    }
    filler->setEagerColumns(eager);
    const auto types = static_cast<gtop_wrappers::ProcessTypes>(procModel->processTypes());
    const int selected = selectedPid();
    procModel->refresh(filler->getProcesses(types), 0);
    // When the selected row is removed, the view selects its neighbour, and the next signal would be sent to
    // a process the user did not choose.
    if (selectedPid() != selected) {
        ui.treeView->selectionModel()->clear();
    }
    // The state of the selected process, which decides which shortcuts are enabled, may have changed.
    if (ui.tabWidget->currentIndex() == ProcessesPage) {
        updateProcessActions();
    }
}

int Updater::selectedPid() const
{
    const bool any = ui.treeView->selectionModel()->hasSelection();
    return procModel->processAt(any ? ui.treeView->currentIndex() : QModelIndex()).pid();
}

QMenu *Updater::menuVisibleColumns()
{
    static const auto *filler = gtop_wrappers::ProcessFiller::instance();
    auto *menu = new QMenu(tr("Visible columns"));
    for (unsigned long i = 0; i < filler->size(); ++i) {
        auto *action = new QAction(filler->title(i), menu);
        action->setData(QVariant(static_cast<int>(i)));
        menu->addAction(action);
        action->setCheckable(true);
        action->setChecked(procModel->isColumnVisible(i));
        connect(action, SIGNAL(triggered(bool)), this, SLOT(slotToggleColumn()));
    }
    return menu;
}

void Updater::slotToggleColumn()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action) {
        qCritical() << "void Updater::slotToggleColumn()"
                    << "call not by signal";
        return;
    }
    const auto column = static_cast<unsigned long>(action->data().toInt());
    procModel->setColumnVisible(column, !procModel->isColumnVisible(column));
}
