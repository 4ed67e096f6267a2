// SPDX-License-Identifier: GPL-3.0-or-later
// The filter of the process list.
#include "process/proxyprocmodel.h"
#include "process/treeexpansion.h"

#include <algorithm>
#include <utility>

bool ProxyProcModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    return !isFiltered() ||
           filter.shown().contains(static_cast<int>(source->index(sourceRow, 0, sourceParent).internalId()));
}

QVariant ProxyProcModel::data(const QModelIndex &index, int role) const
{
    if (role == AncestorOnlyRole) {
        return isFiltered() && filter.shown().isAncestorOnly(pidAt(index)) ? QVariant(true) : QVariant();
    }
    return QSortFilterProxyModel::data(index, role);
}

int ProxyProcModel::pidAt(const QModelIndex &row) const
{
    return row.isValid() ? static_cast<int>(mapToSource(row).internalId()) : -1;
}

void ProxyProcModel::setFilter(const QString &text)
{
    const bool wasFiltered = isFiltered();
    if (wasFiltered || !ProcessFilter(text).isEmpty()) {
        const std::vector<ProcModel::Row> rows = source->rows();
        if (!wasFiltered) {
            expansion->remember();
            filter.updateTexts(rows);
        }
        showRows([&] {
            filter.setText(text);
            filter.show(filter.decide(rows));
        });
        expansion->filterChanged();
        arrangeFiltered();
    }
    Q_EMIT filtered();
}

void ProxyProcModel::closeFilter()
{
    setFilter(QString());
    filter.close();
}

int ProxyProcModel::matchCount() const
{
    if (!isFiltered()) {
        return unfilteredCount();
    }
    return isFlat() ? rowCount() : filter.shown().matches;
}

int ProxyProcModel::unfilteredCount() const
{
    return isFlat() ? source->rowCount() : static_cast<int>(source->rows().size());
}

void ProxyProcModel::readForFilter(int milliseconds)
{
    if (isFiltered() && filter.readMissing(milliseconds)) {
        const std::vector<ProcModel::Row> rows = source->rows();
        showRows([&] { filter.show(filter.decide(rows)); });
        arrangeFiltered();
    }
    Q_EMIT filtered();
}

/// After a refresh of the tree: not every process that matches has a row, and not every ancestor of one that
/// does.
void ProxyProcModel::settleFilter()
{
    if (isFlat()) {
        return;
    }
    const std::vector<ProcModel::Row> rows = source->rows();
    ShownRows decision = filter.decide(rows);
    const bool isChanged = std::any_of(rows.begin(), rows.end(), [&](const ProcModel::Row &row) {
        const int pid = row.process->pid();
        return filter.shown().contains(pid) != decision.contains(pid);
    });
    if (isChanged) {
        showRows([&] { filter.show(std::move(decision)); });
    } else {
        filter.show(std::move(decision));
    }
    expansion->showMatches(filter.shown());
}

/// Changes which rows pass. A change of the layout makes the proxy judge and sort all rows anew, as each
/// refresh does; invalidateFilter() would announce each of thousands of rows by itself, and the view would
/// select a neighbour of the selected one.
void ProxyProcModel::showRows(const std::function<void()> &change)
{
    Q_EMIT source->layoutAboutToBeChanged();
    change();
    Q_EMIT source->layoutChanged();
}

void ProxyProcModel::arrangeFiltered()
{
    if (!view) {
        return;
    }
    if (isFiltered()) {
        expansion->showMatches(filter.shown());
    } else {
        expansion->restore();
        if (std::exchange(fitUnfiltered, false)) {
            fitColumns();
        }
    }
    view->doItemsLayout();
}
