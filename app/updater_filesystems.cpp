// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "fs/chart.h"
#include "fs/fsdetails.h"
#include "fs/mountlist.h"
#include "fs/proxyfsmodel.h"

void Updater::refreshFileSystems()
{
    fsModel->update(collectMountList());
    // The model's dataChanged() carries an invalid bottom right, so the view does not repaint by itself.
    ui.tableFS->viewport()->update();
    if (!ui.tableFS->selectionModel()->hasSelection()) {
        ui.tableFS->setCurrentIndex(fsModel->index(0, 0));
    }
    slotSelectFs(ui.tableFS->currentIndex());
}

void Updater::slotSelectFs(QModelIndex index)
{
    const QString mountDir = fsModel->data(index, Qt::UserRole).toString();
    const FSInfo info = fsModel->itemByMountDir(mountDir);
    const FsDetails details = fsDetails(info);
    chart->setValue(details.percentAvailable, info.answers ? QString() : details.total);
    ui.lblTotal->setText(details.total);
    ui.lblUsed->setText(details.used);
    ui.lblAvail->setText(details.avail);
    // Intentional: lblMountPoint shows the device, as its caption says; its object name is fixed.
    ui.lblMountPoint->setText(details.device);
    ui.lblFsType->setText(details.type);
}
