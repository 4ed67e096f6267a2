// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "fs/mountlist.h"
#include "fs/proxyfsmodel.h"
#include "resources/cpurows.h"
#include "resources/generalstate.h"
#include "resources/qprog.h"
#include "resources/systeminfo.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int frameHeight = 40; // what a window manager's frame may take of the screen
constexpr int leastLines = 20;  // of text, in the page that scrolls

// Frameless, vertical only, and as wide as the page needs.
QScrollArea *scrollAreaOf(QWidget *page, int screenHeight)
{
    auto *area = new QScrollArea;
    area->setObjectName(QStringLiteral("generalScroll"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    // It is this page that keeps the window from getting too flat for the others' chart and graph.
    area->setMinimumHeight(qMin(area->fontMetrics().lineSpacing() * leastLines, screenHeight / 2));
    area->setWidget(page);
    // The ground of the tab shines through, as on a page that doesn't scroll.
    page->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    return area;
}

} // namespace

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
    scrollGeneralPageIfTooHigh();
}

void Updater::scrollGeneralPageIfTooHigh()
{
    forgetWindowSizes();
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen == nullptr
        || mainWindow.minimumSizeHint().height() + frameHeight <= screen->availableGeometry().height()) {
        return;
    }
    const QString title = ui.tabWidget->tabText(GeneralPage);
    const bool signalsWereBlocked = ui.tabWidget->blockSignals(true);
    ui.tabWidget->removeTab(GeneralPage);
    ui.tabWidget->insertTab(GeneralPage, scrollAreaOf(ui.tab, screen->availableGeometry().height()), title);
    ui.tabWidget->setCurrentIndex(GeneralPage);
    ui.tabWidget->blockSignals(signalsWereBlocked);
    forgetWindowSizes();
}

// A hidden window doesn't hear from inside its tabs that a page needs another size.
void Updater::forgetWindowSizes()
{
    ui.verticalLayout_4->activate();
    ui.tabWidget->updateGeometry();
    ui.centralwidget->updateGeometry();
    mainWindow.layout()->activate();
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
}
