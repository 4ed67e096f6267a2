// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/followup.h"
#include "app/updater.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QItemSelectionModel>
#include <QMenu>
#include <QtDebug>

#include <utility>

void Updater::refreshProcesses()
{
    const double seconds = sampleTotalCpuTime();
    if (stage == Stage::Building) {
        return;
    }
    readProcesses();
    if (reading.empty()) {
        return; // It has failed, since this program is in every list. The last list stays.
    }
    const bool wasEmptied = placeBeforeReset.has_value();
    const ListPlace place = wasEmptied ? *placeBeforeReset : ListPlace(*procModel, *ui.treeView);
    placeBeforeReset.reset();
    procModel->refresh(reading, 0);
    restoreSelection(place);
    if (stage == Stage::WindowShown) {
        endReading();
    }
    if (wasEmptied) {
        place.restoreView(*procModel, *ui.treeView);
    }
    readCellsInView(*ui.treeView);
    if (isShown(ProcessesPage)) {
        followUp->sampled(ProcessesPage, seconds);
        // The state of the selected process, which decides which shortcuts are enabled, may have changed.
        updateProcessActions();
    }
}

/// Selects the process of `place` again or, if there was none, the one that had no row in the last refresh.
void Updater::restoreSelection(const ListPlace &place)
{
    const ListPlace wanted = place.hasSelection() ? place : rowlessSelection.value_or(place);
    wanted.restoreSelection(*procModel, *ui.treeView);
    rowlessSelection.reset();
    if (wanted.isRowless(*procModel, reading)) {
        rowlessSelection = wanted;
    }
}

/// Reads the machine's CPU time to compute the load of the processes from. Returns the seconds between this
/// sample and the one before. Until the window is shown, one sample stands for all that follow.
double Updater::sampleTotalCpuTime()
{
    if (stage == Stage::SettingsLoaded && lastCpuTotal != 0) {
        return 0.0;
    }
    const quint64 total = totalCpuTime();
    procModel->setTotalCpuTime(total);
    return machineSeconds(total - std::exchange(lastCpuTotal, total), cpuCount);
}

/// Until the window is shown, one reading stands for all that follow.
void Updater::readProcesses()
{
    static auto *filler = gtop_wrappers::ProcessFiller::instance();
    if (stage != Stage::WindowShown && !reading.empty()) {
        return;
    }
    filler->setEagerColumns(procModel->columnsForAllRows());
    reading = filler->getProcesses(static_cast<gtop_wrappers::ProcessTypes>(procModel->processTypes()));
}

/// The next reading is made from this one, which is therefore not destroyed.
void Updater::endReading()
{
    static auto *filler = gtop_wrappers::ProcessFiller::instance();
    filler->giveBack(std::exchange(reading, {}));
}

void Updater::deferRefreshes()
{
    deferred.begin();
    if (!placeBeforeReset) {
        placeBeforeReset.emplace(*procModel, *ui.treeView);
    }
}

void Updater::refillProcesses()
{
    deferred.add(Pages().set(ProcessesPage, isShown(ProcessesPage)));
    refresh(deferred.end());
}

void Updater::processesFiltered()
{
    rowlessSelection.reset(); // a process that a filter has hidden does not come back selected
    updateProcessActions();
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
