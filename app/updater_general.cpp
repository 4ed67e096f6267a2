// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/followup.h"
#include "app/updater.h"
#include "fs/mountlist.h"
#include "fs/proxyfsmodel.h"
#include "resources/cpurows.h"
#include "resources/generalstate.h"
#include "resources/qprog.h"
#include "resources/systeminfo.h"

void Updater::buildCpuRows()
{
    cpuCount = ::cpuCount();
    cpuRecords.resize(static_cast<std::size_t>(cpuCount));
    sampleCpuLoad();
    createCpuRows(ui.glState, cpuRecords);
}

void Updater::sampleCpuLoad()
{
    cpuTotalDelta = sampleCpus(cpuRecords);
    cpuFirstSample = 0;
}

void Updater::fillGeneralPage()
{
    const KernelFacts kernel = kernelFacts();
    ui.lblSystem->setText(osDescription());
    ui.lblKernel->setText(kernel.release);
    ui.lblArch->setText(kernel.machine);
    ui.lblHost->setText(hostName());
    addCpuModelRows(ui.glGeneral, cpuCount, cpuModel());
}

void Updater::refreshGeneral()
{
    fsModel->update(collectMountList());
    const GeneralFigures figures =
        generalFigures(readMemory(), static_cast<quint64>(fsModel->availableDevSpace()),
                       static_cast<quint64>(fsModel->totalDevSpace()));
    ui.lblMemTotal->setText(figures.memTotal);
    ui.lblMemFree->setText(figures.memFree);
    ui.lblDiskFree->setText(figures.diskFree);
    diskGauge->setValue(figures.diskPercent);
    memoryGauge->setValue(figures.memPercent);
    sampleCpuLoad();
    showCpuLoad(cpuRecords);
    if (isShown(GeneralPage)) {
        followUp->sampled(GeneralPage, machineSeconds(cpuTotalDelta, cpuCount));
    }
}
