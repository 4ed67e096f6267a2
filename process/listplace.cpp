// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/listplace.h"

#include "process/proxyprocmodel.h"

#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

using gtop_wrappers::Process;

namespace {

bool areAncestorsExpanded(const QTreeView &view, const QModelIndex &row)
{
    QModelIndex ancestor = row.parent();
    while (ancestor.isValid() && view.isExpanded(ancestor)) {
        ancestor = ancestor.parent();
    }
    return !ancestor.isValid();
}

void expandAncestors(QTreeView &view, const QModelIndex &row)
{
    for (QModelIndex ancestor = row.parent(); ancestor.isValid(); ancestor = ancestor.parent()) {
        view.expand(ancestor);
    }
}

bool isRowInView(const QTreeView &view, const QModelIndex &row)
{
    return row.isValid() && view.viewport()->rect().intersects(view.visualRect(row));
}

std::vector<int> columnsInView(const QTreeView &view)
{
    std::vector<int> columns;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        const int left = view.columnViewportPosition(column);
        if (left < view.viewport()->width() && left + view.columnWidth(column) > 0) {
            columns.push_back(column);
        }
    }
    return columns;
}

/// Row of the same process in its current place; invalid if it is no longer listed.
QModelIndex rowOf(const ProxyProcModel &model, const Process &process)
{
    const bool isSame =
        process.pid() != -1 && model.processByPid(process.pid()).startTime() == process.startTime();
    return isSame ? model.rowOfPid(process.pid()) : QModelIndex();
}

} // namespace

ListPlace::ListPlace(const ProxyProcModel &model, const QTreeView &view)
    : selected(model.processAt(selectedRow(view))), top(model.processAt(view.indexAt(QPoint(0, 0)))),
      column(view.currentIndex().column()), isExpandedTo(areAncestorsExpanded(view, selectedRow(view))),
      isInView(isRowInView(view, selectedRow(view))), verticalValue(view.verticalScrollBar()->value()),
      horizontalValue(view.horizontalScrollBar()->value())
{}

bool ListPlace::isRowless(const ProxyProcModel &model, const ProcModel::Snapshot &snapshot) const
{
    const auto found = snapshot.find(selected.pid());
    return found != snapshot.end() && found->second.startTime() == selected.startTime() &&
           !rowOf(model, selected).isValid() && model.passesFilter(selected.pid());
}

void ListPlace::restoreSelection(const ProxyProcModel &model, QTreeView &view) const
{
    QItemSelectionModel *selection = view.selectionModel();
    const QModelIndex row = rowOf(model, selected);
    if (isExpandedTo) { // also above a row that has moved, so that no action reaches one out of sight
        expandAncestors(view, row);
    }
    if (row == selectedRow(view)) {
        return;
    }
    if (!row.isValid()) {
        selection->clear();
        return;
    }
    const bool scrollsToCurrent = view.hasAutoScroll();
    view.setAutoScroll(false);
    const QModelIndex cell = row.sibling(row.row(), column);
    selection->setCurrentIndex(cell.isValid() ? cell : row,
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view.setAutoScroll(scrollsToCurrent);
}

void ListPlace::restoreView(const ProxyProcModel &model, QTreeView &view) const
{
    view.verticalScrollBar()->setValue(verticalValue);
    const QModelIndex topRow = rowOf(model, top);
    if (verticalValue > 0 && topRow.isValid()) {
        view.scrollTo(topRow, QAbstractItemView::PositionAtTop);
    }
    const QModelIndex row = rowOf(model, selected);
    if (isInView && row.isValid()) {
        view.scrollTo(row, QAbstractItemView::EnsureVisible);
    }
    view.horizontalScrollBar()->setValue(horizontalValue);
}

QModelIndex selectedRow(const QTreeView &view)
{
    const QModelIndex current = view.currentIndex().siblingAtColumn(0);
    const QModelIndexList cells = view.selectionModel()->selectedIndexes();
    const auto isIn = [](const QModelIndex &row) {
        return [row](const QModelIndex &cell) { return cell.siblingAtColumn(0) == row; };
    };
    if (std::any_of(cells.begin(), cells.end(), isIn(current))) {
        return current;
    }
    const QModelIndex first = cells.isEmpty() ? QModelIndex() : cells.first().siblingAtColumn(0);
    return std::all_of(cells.begin(), cells.end(), isIn(first)) ? first : QModelIndex();
}

void readCellsInView(const QTreeView &view)
{
    if (!view.isVisible()) {
        return;
    }
    const std::vector<int> columns = columnsInView(view);
    for (QModelIndex row = view.indexAt(QPoint(0, 0)); isRowInView(view, row); row = view.indexBelow(row)) {
        for (const int column : columns) {
            row.siblingAtColumn(column).data(Qt::UserRole);
        }
    }
}
