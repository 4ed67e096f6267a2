// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"

#include "process/deeprows.h"
#include "process/fittedcolumns.h"
#include "process/gtop_wrappers/filler.h"
#include "process/paintedrows.h"
#include "process/processdelegate.h"
#include "process/treeexpansion.h"

namespace {

/// What views give to their delegates.
QLocale localeOfCells(const QTreeView &view)
{
    QLocale locale = view.locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

} // namespace

ProxyProcModel::ProxyProcModel(QObject *parent)
    : QSortFilterProxyModel(parent), source(new ProcModel(parent)), delegate(new ProcessDelegate(this)),
      deepRows(nullptr), fittedColumns(nullptr), paintedRows(nullptr), expandAndFit(true),
      types(gtop_wrappers::MyProcesses), currentCpuTotal(1), previousCpuTotal(0),
      expansion(new TreeExpansion(this)), fitUnfiltered(false)
{
    // Before the base class makes its own connections: it sorts when the same signals reach it.
    connect(source, SIGNAL(layoutAboutToBeChanged()), this, SLOT(forgetRanks()));
    connect(source, SIGNAL(layoutChanged()), this, SLOT(rankRows()));
    connect(source, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(forgetRanks()));
    connect(source, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(forgetRanks()));
    connect(source, SIGNAL(modelAboutToBeReset()), this, SLOT(forgetRanks()));
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
        view->setItemDelegate(delegate);
        deepRows = new DeepRows(this, view);
        fittedColumns = new FittedColumns(view);
        expansion->follow(view);
        paintedRows = new PaintedRows(this, view, [this](const QModelIndex &cell) {
            return delegate->textOf(cell, localeOfCells(*view));
        });
        delegate->setPaintedRows(paintedRows);
    }
}

void ProxyProcModel::setTotalCpuTime(unsigned long total)
{
    previousCpuTotal = currentCpuTotal;
    currentCpuTotal = total;
}

void ProxyProcModel::refresh(const ProcModel::Snapshot &snapshot, int)
{
    if (view && !expandAndFit) {
        paintedRows->repaintChanges([&] { update(snapshot); });
    } else {
        update(snapshot);
    }
    Q_EMIT filtered();
}

void ProxyProcModel::update(const ProcModel::Snapshot &snapshot)
{
    if (isFiltered()) {
        // In the complete tree rows move, so what is above them in the snapshot counts.
        const bool isRequiredTree = !isFlat() && !isComplete();
        filter.decideBefore(snapshot, isFlat(),
                            isRequiredTree ? source->rows() : std::vector<ProcModel::Row>());
    }
    source->update(snapshot, currentCpuTotal - previousCpuTotal, 0);
    if (isFiltered()) {
        settleFilter();
    }
    if (view) {
        deepRows->restore();
        layOutView();
    }
}

void ProxyProcModel::layOutView()
{
    if (expandAndFit) {
        expandAndFitView();
        expandAndFit = false;
    }
    delegate->startRefresh();
    // The view on its own would lay out on a zero timer, and a scroll before that would read freed mappings.
    view->doItemsLayout();
}

void ProxyProcModel::expandAndFitView()
{
    view->setRootIsDecorated(!isFlat()); // no space for an expander that never comes
    expandAll();
    fitColumns();
    fitUnfiltered = isFiltered();
}

void ProxyProcModel::setProcessTypes(int processTypes)
{
    Q_EMIT aboutToEmptyList();
    types = processTypes;
    reset();
    Q_EMIT listEmptied();
}

bool ProxyProcModel::isFlat() const
{
    return source->isFlat();
}

void ProxyProcModel::setFlat(bool on)
{
    Q_EMIT aboutToEmptyList();
    source->setFlat(on);
    reset();
    Q_EMIT listEmptied();
}

bool ProxyProcModel::isComplete() const
{
    return source->isComplete();
}

void ProxyProcModel::setComplete(bool on)
{
    if (isFlat()) {
        source->setComplete(on);
        return;
    }
    Q_EMIT aboutToEmptyList();
    source->setComplete(on);
    reset();
    Q_EMIT listEmptied();
}

bool ProxyProcModel::isColumnVisible(unsigned long i) const
{
    return source->isColumnVisible(i);
}

void ProxyProcModel::setColumnVisible(unsigned long i, bool on)
{
    const int sortedBy = sortedProcessColumn();
    source->isColumnVisible(i); // throws before anything has changed
    Q_EMIT aboutToEmptyList();
    source->setColumnVisible(i, on);
    reset();
    sortByProcessColumn(sortedBy);
    Q_EMIT listEmptied();
}

/// Sorting goes by column number, which names another column once one before it is hidden or shown.
void ProxyProcModel::sortByProcessColumn(int processColumn)
{
    if (processColumn < 0) {
        return;
    }
    const int column = source->columnOf(static_cast<unsigned long>(processColumn));
    if (column == sortColumn()) {
        return;
    }
    const int byName = qMax(source->columnOf(gtop_wrappers::NameColumn), 0);
    sortInView(column >= 0 ? column : byName, column >= 0 ? sortOrder() : Qt::AscendingOrder);
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

void ProxyProcModel::sendSignal(const HeldProcess &process, int signal)
{
    source->sendSignal(process, signal);
}

void ProxyProcModel::setPriority(int pid, int priority)
{
    source->setPriority(pid, priority);
}

void ProxyProcModel::setPriority(const HeldProcess &process, int priority)
{
    source->setPriority(process, priority);
}

void ProxyProcModel::expandAll()
{
    if (view) {
        view->expandAll();
        expansion->setAll(true);
    }
}

void ProxyProcModel::collapseAll()
{
    if (view) {
        view->collapseAll();
        expansion->setAll(false);
    }
}

/// Intentional: modelReset() is emitted twice here, once for the reset of the source and once for this one,
/// and once more before if the mode changes. The controller refreshes on each.
void ProxyProcModel::reset()
{
    beginResetModel();
    source->clear();
    expandAndFit = true;
    endResetModel();
}
