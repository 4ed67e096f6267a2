// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"

#include "process/gtop_wrappers/filler.h"

ProxyProcModel::ProxyProcModel(QObject *parent)
    : QSortFilterProxyModel(parent), source(new ProcModel(parent)), pendingLayout(true), layoutHeld(false),
      layoutOwed(false), types(gtop_wrappers::MyProcesses), currentCpuTotal(1), previousCpuTotal(0)
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
    layoutOwed = true;
    payLayout();
}

void ProxyProcModel::setLayoutHeld(bool held)
{
    layoutHeld = held;
    payLayout();
}

void ProxyProcModel::payLayout()
{
    if (layoutOwed && !layoutHeld && view) {
        layOutView();
        layoutOwed = false;
    }
}

void ProxyProcModel::layOutView()
{
    if (pendingLayout) {
        expandAll();
        for (int column = 0; column < columnCount(); ++column) {
            view->resizeColumnToContents(column);
        }
        pendingLayout = false;
    }
    // At once: the view would lay out on a timer, and a scroll that comes first would read rows that are
    // gone.
    view->doItemsLayout();
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

/// Without it the view would keep, for each row that is expanded together with all, an index that has to be
/// followed through every refresh.
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

/// modelReset() comes twice from here, once for the source's reset and once for this one, and a third time
/// before when the mode changes: each is meant to make the controller refresh.
void ProxyProcModel::reset()
{
    beginResetModel();
    source->clear();
    pendingLayout = true;
    layoutOwed = false;
    endResetModel();
}
