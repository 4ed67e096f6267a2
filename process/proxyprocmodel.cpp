// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"

#include "process/gtop_wrappers/filler.h"

ProxyProcModel::ProxyProcModel(QObject *parent)
    : QSortFilterProxyModel(parent), source(new ProcModel(parent)), expandAndFit(true), layoutDeferred(false),
      layoutPending(false), types(gtop_wrappers::MyProcesses), currentCpuTotal(1), previousCpuTotal(0)
{
    setSortRole(Qt::UserRole);
    setDynamicSortFilter(true);
}

ProxyProcModel::~ProxyProcModel() = default;

void ProxyProcModel::setView(QTreeView *treeView)
{
    setSourceModel(source);
    view = treeView;
    if (view) {
        view->setModel(this);
    }
}

void ProxyProcModel::setTotalCpuTime(unsigned long total)
{
    previousCpuTotal = currentCpuTotal;
    currentCpuTotal = total;
}

void ProxyProcModel::refresh(const ProcModel::Snapshot &snapshot, int)
{
    source->update(snapshot, currentCpuTotal - previousCpuTotal, 0);
    layoutPending = true;
    layOutUnlessDeferred();
}

void ProxyProcModel::setLayoutDeferred(bool deferred)
{
    layoutDeferred = deferred;
    layOutUnlessDeferred();
}

void ProxyProcModel::layOutUnlessDeferred()
{
    if (!layoutPending || layoutDeferred || !view) {
        return;
    }
    if (expandAndFit) {
        expandAndFitView();
        expandAndFit = false;
    }
    // The view on its own would lay out on a zero timer, and a scroll before that would read freed mappings.
    view->doItemsLayout();
    layoutPending = false;
}

void ProxyProcModel::expandAndFitView()
{
    expandAll();
    for (int column = 0; column < columnCount(); ++column) {
        view->resizeColumnToContents(column);
    }
}

void ProxyProcModel::setProcessTypes(int processTypes)
{
    types = processTypes;
    reset();
}

bool ProxyProcModel::isFlat() const
{
    return source->isFlat();
}

void ProxyProcModel::setFlat(bool on)
{
    source->setFlat(on);
    reset();
}

bool ProxyProcModel::isColumnVisible(unsigned long i) const
{
    return source->isColumnVisible(i);
}

void ProxyProcModel::setColumnVisible(unsigned long i, bool on)
{
    source->setColumnVisible(i, on);
    reset();
}

/// Qt::ItemNeverHasChildren keeps expandAll() from storing a persistent index for every row of a flat list;
/// removing thousands of such rows is quadratic.
Qt::ItemFlags ProxyProcModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
    return index.isValid() && isFlat() ? flags | Qt::ItemNeverHasChildren : flags;
}

gtop_wrappers::Process ProxyProcModel::processAt(const QModelIndex &index) const
{
    return source->processAt(mapToSource(index));
}

gtop_wrappers::Process ProxyProcModel::processByPid(int pid) const
{
    return source->processByPid(pid);
}

void ProxyProcModel::sendSignal(int pid, int signal)
{
    source->sendSignal(pid, signal);
}

void ProxyProcModel::setPriority(int pid, int priority)
{
    source->setPriority(pid, priority);
}

void ProxyProcModel::expandAll()
{
    if (view) {
        view->expandAll();
    }
}

void ProxyProcModel::collapseAll()
{
    if (view) {
        view->collapseAll();
    }
}

/// Intentional: modelReset() is emitted twice here, once for the reset of the source and once for this one,
/// and once more before if the mode changes. The controller refreshes on each.
void ProxyProcModel::reset()
{
    beginResetModel();
    source->clear();
    expandAndFit = true;
    layoutPending = false;
    endResetModel();
}
