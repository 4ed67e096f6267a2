// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the process list. QSortFilterProxyModel sorts all rows anew in each refresh, beginning from
// the order of the source; comparing the ranks of two rows costs next to nothing.
#include "process/proxyprocmodel.h"

void ProxyProcModel::sortBy(unsigned long processColumn, Qt::SortOrder order)
{
    sortInView(source->columnOf(processColumn), order);
}

/// Through the view, whose header shows what the list is sorted by.
void ProxyProcModel::sortInView(int column, Qt::SortOrder order)
{
    if (view) {
        view->sortByColumn(column, order);
    } else {
        sort(column, order);
    }
}

void ProxyProcModel::sort(int column, Qt::SortOrder order)
{
    rankRows(column);
    QSortFilterProxyModel::sort(column, order);
}

bool ProxyProcModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (!ranks.isEmpty() && left.column() == rankedColumn) {
        return ranks.of(left.row()) < ranks.of(right.row());
    }
    const SortKey leftKey = sortKeys.of(source->data(left, sortRole()));
    return leftKey < sortKeys.of(source->data(right, sortRole()));
}

/// Before the list is sorted as a whole. In a tree the siblings are compared by their keys.
void ProxyProcModel::rankRows(int column)
{
    forgetRanks();
    const int rows = source->rowCount();
    sortKeys.forget(2 * qMax(rows, 1000));
    if (!isFlat() || column < 0 || rows == 0) {
        return;
    }
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        keys.push_back(sortKeys.of(source->data(source->index(row, column), sortRole())));
    }
    ranks.rank(keys);
    rankedColumn = column;
}
