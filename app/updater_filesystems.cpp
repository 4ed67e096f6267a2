// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "fs/chart.h"
#include "fs/fsdetails.h"
#include "fs/mountlist.h"
#include "fs/proxyfsmodel.h"

void Updater::refreshFileSystems()
{
    fsModel->update(collectMountList());
    // The model's dataChanged() names no valid end, so the view doesn't learn from it what to paint again.
    ui.tableFS->viewport()->update();
    if (!ui.tableFS->selectionModel()->hasSelection()) {
        ui.tableFS->setCurrentIndex(fsModel->index(0, 0));
    }
    slotSelectFs(ui.tableFS->currentIndex());
}

void Updater::slotSelectFs(QModelIndex index)
{
    const QString mountDir = fsModel->data(index, Qt::UserRole).toString();
    const FsDetails details = fsDetails(fsModel->itemByMountDir(mountDir));
    chart->setValue(details.percentAvailable);
    ui.lblTotal->setText(details.total);
    ui.lblUsed->setText(details.used);
    ui.lblAvail->setText(details.avail);
    // Meant: this label keeps its name although it shows the device; the caption beside it says so.
    ui.lblMountPoint->setText(details.device);
    ui.lblFsType->setText(details.type);
}
