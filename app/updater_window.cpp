// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/decorative.h"
#include "app/followup.h"
#include "app/listmenutrigger.h"
#include "app/processfinder.h"
#include "app/selectablevalues.h"
#include "app/updater.h"
#include "fs/chart.h"
#include "fs/proxyfsmodel.h"
#include "images/logo.h"
#include "process/processmenu.h"
#include "process/proxyprocmodel.h"
#include "resources/qprog.h"

#include <QHeaderView>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

/// At global scope, because the macro declares a function there.
static void initImages()
{
    Q_INIT_RESOURCE(images);
}

namespace {

/// Paints the key over what the pixmap holds and returns a copy.
QPixmap colorKey(QPixmap &pixmap, const QColor &color)
{
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.drawRect(0, 0, 14, 14);
    return pixmap;
}

/// A label aligns its text by the text's direction. In a mirrored window a Latin text would stand at the far
/// end of its cell.
void alignByWindow(QLabel *label)
{
    if (label->isRightToLeft() && label->pixmap(Qt::ReturnByValue).isNull()) {
        label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
}

/// The Tab key stops at the values of the form, but not at those of the cores, which can be thousands.
Qt::FocusPolicy focusPolicyOf(const QLabel *value)
{
    return value->objectName().isEmpty() ? Qt::ClickFocus : Qt::StrongFocus;
}

} // namespace

void Updater::buildWindow()
{
    initImages();
    ui.setupUi(&mainWindow);
    ui.label_27->setPixmap(logo());
    ui.generalScroll->makeTransparent();
    addStateGauges();
    buildNetworkPage();
    addChart();
    paintColorKeys();
    connectWindow();
    followProcessSelection();
}

void Updater::addStateGauges()
{
    memoryGauge = addStateGauge(Qt::blue, 2, ui.label_10);
    diskGauge = addStateGauge(Qt::red, 1, ui.label_9);
}

QProg *Updater::addStateGauge(const QColor &color, int row, QLabel *caption)
{
    auto *gauge = new QProg(ui.centralwidget);
    gauge->setMaxValue(100.0);
    gauge->setBarColor(color);
    gauge->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    gauge->setAccessibleName(caption->text());
    ui.glState->addWidget(gauge, row, 3);
    return gauge;
}

void Updater::addChart()
{
    auto *layout = new QVBoxLayout(ui.frmDisk);
    layout->setObjectName(QStringLiteral("verticalLayout"));
    chart = new Chart(ui.frmDisk);
    layout->addWidget(chart);
}

void Updater::paintColorKeys()
{
    QPixmap pixmap(15, 15);
    pixmap.fill(Qt::transparent);
    ui.lblUsedColor->setPixmap(colorKey(pixmap, Chart::usedColor()));
    ui.lblAvailColor->setPixmap(colorKey(pixmap, Chart::availColor()));
}

/// For the labels of the form and those of the cores: a value is the buddy of its caption.
void Updater::finishLabels()
{
    for (QLabel *silent : {ui.label_13, ui.label_14, ui.label_15, ui.label_27, ui.lblUsedColor,
                           ui.lblAvailColor}) { // spacers and pictures
        hideFromAssistiveTechnology(silent);
    }
    auto *selectable = new SelectableValues(this);
    selectable->add(ui.lblHost, Qt::StrongFocus);
    for (QLabel *label : mainWindow.findChildren<QLabel *>()) {
        alignByWindow(label);
        if (auto *value = qobject_cast<QLabel *>(label->buddy())) {
            selectable->add(value, focusPolicyOf(value));
        }
    }
}

void Updater::connectWindow()
{
    // Intentional: choosing an interface calls setNetDevice() twice, and a tab change refreshes twice, first
    // with the running tick and then from tick 0. The order of the connections matters for this.
    connect(ui.comboNet, SIGNAL(activated(int)), this, SLOT(setNetDevice(int)));
    connect(ui.tabWidget, SIGNAL(currentChanged(int)), this, SLOT(update()));
    fsModel->setView(ui.tableFS);
    procModel->setView(ui.treeView);
    connect(procModel, SIGNAL(modelReset()), this, SLOT(update()));
    connect(ui.tableFS->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
            SLOT(slotSelectFs(QModelIndex)));
    connect(ui.comboNet, SIGNAL(activated(int)), this, SLOT(setNetDevice(int)));
    connect(ui.tabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotTabChanged(int)));
}

void Updater::followProcessSelection()
{
    // A shortcut must act on the row that is highlighted now, not on the one when a menu was last opened.
    // A reset clears the selection without emitting a selection signal.
    connect(ui.treeView->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(updateProcessActions()));
    connect(ui.treeView->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
            SLOT(updateProcessActions()));
    connect(procModel, SIGNAL(modelReset()), this, SLOT(updateProcessActions()));
    connect(procModel, SIGNAL(aboutToEmptyList()), this, SLOT(deferRefreshes()));
    connect(procModel, SIGNAL(listEmptied()), this, SLOT(refillProcesses()));
    listMenuTrigger = new ListMenuTrigger(ui.treeView);
    ui.treeView->header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui.treeView->header(), SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(popupColumns()));
    finder = new ProcessFinder(ui.treeView, procModel, descriptors);
    connect(finder, SIGNAL(filterChanged()), this, SLOT(processesFiltered()));
    connect(processMenu, SIGNAL(findRequested()), finder, SLOT(open()));
    connect(followUp, SIGNAL(due(int)), this, SLOT(refreshAgain(int)));
}
