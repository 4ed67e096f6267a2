// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"

#include "process/gtop_wrappers/filler.h"

#include <algorithm>
#include <cstdlib>

using gtop_wrappers::Process;
using gtop_wrappers::ProcessFiller;

ProcModel::ProcModel(QObject *parent)
    : QAbstractItemModel(parent), root(new ProcItem(QList<QVariant>(), nullptr)), flat(true), complete(false),
      columnVisibility(ProcessFiller::instance()->size())
{
    for (unsigned long i = 0; i < columnVisibility.size(); ++i) {
        columnVisibility[i] = ProcessFiller::instance()->isShownByDefault(i);
    }
    rebuildVisibleColumns();
}

ProcModel::~ProcModel()
{
    destroyItems();
}

QModelIndex ProcModel::index(int row, int column, const QModelIndex &parent) const
{
    const ProcItem *above = itemOf(parent);
    const ProcItem *item = above ? above->child(row) : nullptr;
    if (!item || column < 0 || column >= columnCount()) {
        return QModelIndex();
    }
    return createIndex(row, column, static_cast<quintptr>(item->pid()));
}

QModelIndex ProcModel::parent(const QModelIndex &index) const
{
    const ProcItem *item = index.isValid() ? itemOf(index) : nullptr;
    return item ? indexOf(item->parent()) : QModelIndex();
}

/// Intentional: the column of `parent` is ignored, so every cell of a row has the children of the row.
int ProcModel::rowCount(const QModelIndex &parent) const
{
    const ProcItem *item = itemOf(parent);
    return item ? item->childCount() : 0;
}

int ProcModel::columnCount(const QModelIndex &) const
{
    return static_cast<int>(visibleColumns.size());
}

QVariant ProcModel::data(const QModelIndex &index, int role) const
{
    if ((role != Qt::DisplayRole && role != Qt::UserRole) || !index.isValid() ||
        index.column() >= columnCount()) {
        return QVariant();
    }
    const ProcItem *item = itemOf(index);
    if (!item) {
        return QVariant();
    }
    const unsigned long column = visibleColumns[static_cast<std::size_t>(index.column())];
    // getParam() would copy a shared pointer, which shows in the time that a sort takes.
    const std::vector<gtop_wrappers::ParamPtr> &params = item->process().params;
    const gtop_wrappers::IProcessParam *param = column < params.size() ? params[column].get() : nullptr;
    if (!param) {
        return QVariant();
    }
    return role == Qt::DisplayRole ? param->displayValue() : param->sortValue();
}

QVariant ProcModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const auto *filler = ProcessFiller::instance();
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return QAbstractItemModel::headerData(section, orientation, role);
    }
    return filler->title(visibleColumns[static_cast<std::size_t>(section)]);
}

Qt::ItemFlags ProcModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

void ProcModel::setFlat(bool on)
{
    if (on == flat) {
        return;
    }
    clear();
    flat = on;
}

void ProcModel::setComplete(bool on)
{
    if (on == complete) {
        return;
    }
    if (!flat) {
        clear();
    }
    complete = on;
}

bool ProcModel::isColumnVisible(unsigned long i) const
{
    return columnVisibility.at(i);
}

void ProcModel::setColumnVisible(unsigned long i, bool on)
{
    columnVisibility.at(i) = on;
    rebuildVisibleColumns();
}

int ProcModel::processColumn(int column) const
{
    return column >= 0 && column < columnCount()
               ? static_cast<int>(visibleColumns[static_cast<std::size_t>(column)])
               : -1;
}

int ProcModel::columnOf(unsigned long processColumn) const
{
    const auto found = std::lower_bound(visibleColumns.begin(), visibleColumns.end(), processColumn);
    return found != visibleColumns.end() && *found == processColumn
               ? static_cast<int>(found - visibleColumns.begin())
               : -1;
}

void ProcModel::clear()
{
    beginResetModel();
    destroyItems();
    endResetModel();
}

void ProcModel::sendSignal(int pid, int signal)
{
    sendSignal(itemByPid(pid) ? processByPid(pid) : Process(pid), signal);
}

void ProcModel::sendSignal(const HeldProcess &process, int signal)
{
    ::sendSignal(process, signal);
}

void ProcModel::setPriority(int pid, int priority)
{
    setPriority(itemByPid(pid) ? processByPid(pid) : Process(pid), priority);
}

void ProcModel::setPriority(const HeldProcess &process, int priority)
{
    ::setPriority(process, priority);
}

Process ProcModel::processByPid(int pid) const
{
    const auto found = items.find(pid);
    if (found == items.end()) {
        return Process(-1);
    }
    // Intentional: this consistency check is fatal, as no program is better than a signal to a wrong process.
    const ItemPtr &item = found->second;
    if (std::none_of(items.begin(), items.end(), [&](const auto &entry) { return entry.second == item; })) {
        std::exit(-1);
    }
    return item->process();
}

Process ProcModel::processAt(const QModelIndex &index) const
{
    return index.isValid() ? processByPid(static_cast<int>(index.internalId())) : Process(-1);
}

QModelIndex ProcModel::indexOfPid(int pid) const
{
    // In tree mode an item can have lost its parent, and with it its row.
    const ProcItem *item = itemByPid(pid);
    return item && item->isDescendantOf(root.get()) ? indexOf(item) : QModelIndex();
}

/// The root for an invalid index; null for a stale one.
ProcItem *ProcModel::itemOf(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return root.get();
    }
    const int pid = static_cast<int>(index.internalId());
    // Saves the lookup, which shows in the time that a sort takes: right for every current index of a flat
    // list.
    ProcItem *inThatRow = root->child(index.row());
    return inThatRow && inThatRow->pid() == pid ? inThatRow : itemByPid(pid);
}

ProcItem *ProcModel::itemByPid(int pid) const
{
    const auto found = items.find(pid);
    return found != items.end() ? found->second.get() : nullptr;
}

/// Index of the item's first cell; invalid for the root and for null.
QModelIndex ProcModel::indexOf(const ProcItem *item) const
{
    if (!item || item == root.get()) {
        return QModelIndex();
    }
    return createIndex(item->row(), 0, static_cast<quintptr>(item->pid()));
}

/// Clears the links first: each item would otherwise search its parent's children, which is quadratic.
void ProcModel::destroyItems()
{
    root->forgetRelatives();
    for (const auto &entry : items) {
        entry.second->forgetRelatives();
    }
    items.clear();
}

void ProcModel::rebuildVisibleColumns()
{
    visibleColumns.clear();
    for (unsigned long i = 0; i < columnVisibility.size(); ++i) {
        if (columnVisibility[i]) {
            visibleColumns.push_back(i);
        }
    }
}
