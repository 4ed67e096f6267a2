// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"

#include "process/gtop_wrappers/filler.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

using gtop_wrappers::Process;
using gtop_wrappers::ProcessFiller;

namespace {

/// Shortcut for isSameProcess(): unchanged values are mostly the same objects in successive snapshots.
bool sharesIdentity(const Process &known, const Process &fresh)
{
    using namespace gtop_wrappers;
    return known.params.size() == ColumnCount && fresh.params.size() == ColumnCount &&
           known.params[NameColumn] == fresh.params[NameColumn] &&
           known.params[ParentPidColumn] == fresh.params[ParentPidColumn];
}

/// False if the pid was reused by another program or the process was reparented.
bool isSameProcess(const Process &known, const Process &fresh)
{
    if (sharesIdentity(known, fresh)) {
        return true;
    }
    return known.getPPid() == fresh.getPPid() && known.getName() == fresh.getName();
}

} // namespace

ProcModel::ProcModel(QObject *parent)
    : QAbstractItemModel(parent), root(new ProcItem(QList<QVariant>(), nullptr)), flat(true),
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

void ProcModel::update(const Snapshot &snapshot, unsigned long totalDelta, int)
{
    // QSortFilterProxyModel and QTreeView keep stale mappings if rows are inserted or removed between the two
    // layout signals, so mismatched rows are removed before them.
    const Matches matches = matchSnapshot(snapshot);
    Q_EMIT layoutAboutToBeChanged();
    updateKnown(matches.known, totalDelta);
    Q_EMIT layoutChanged(); // also replaces dataChanged(): proxy and view re-read everything

    for (const Process *process : matches.fresh) {
        insertWithAncestors(*process, snapshot, totalDelta);
    }
    // Intentional: a mismatched process, removed and reinserted above, is still stale, so it is removed again
    // here and comes back with the next refresh.
    for (const int pid : matches.stale) {
        if (ProcItem *item = itemByPid(pid)) {
            removeSubtree(item);
        }
    }
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

/// Compares the snapshot with the items, and removes the items whose pid now means another process.
ProcModel::Matches ProcModel::matchSnapshot(const Snapshot &snapshot)
{
    std::vector<int> before;
    before.reserve(items.size());
    for (const auto &entry : items) {
        before.push_back(entry.first);
        entry.second->startPass();
    }

    Matches matches;
    matches.known.reserve(snapshot.size());
    std::vector<int> knownPids;
    knownPids.reserve(snapshot.size());
    for (const auto &entry : snapshot) {
        ProcItem *item = itemByPid(entry.first);
        if (item && isSameProcess(item->process(), entry.second)) {
            matches.known.push_back(&entry.second);
            knownPids.push_back(entry.first);
            continue;
        }
        if (item) {
            removeSubtree(item);
        }
        matches.fresh.push_back(&entry.second);
    }
    std::set_difference(before.begin(), before.end(), knownPids.begin(), knownPids.end(),
                        std::back_inserter(matches.stale));
    return matches;
}

void ProcModel::updateKnown(const ProcessList &known, quint64 totalDelta)
{
    for (const Process *process : known) {
        // Null if it was removed together with an ancestor; the next refresh then inserts it.
        if (ProcItem *item = itemByPid(process->pid())) {
            item->update(*process, totalDelta);
        }
    }
}

/// The process and its ancestors in the snapshot, from the process upward. Parent pids can form a ring: an
/// ancestor that is already in the line counts as not in the snapshot.
ProcModel::ProcessList ProcModel::lineage(const Process &process, const Snapshot &snapshot) const
{
    ProcessList line{&process};
    std::unordered_set<int> pids{process.pid()};
    auto above = snapshot.find(process.getPPid());
    while (above != snapshot.end() && pids.insert(above->first).second) {
        line.push_back(&above->second);
        above = snapshot.find(above->second.getPPid());
    }
    return line;
}

/// Intentional: in tree mode every ancestor gets a new item even if it has one already. The old item is
/// destroyed, and its children stay in the model without a parent, where no view sees them.
void ProcModel::insertWithAncestors(const Process &process, const Snapshot &snapshot, quint64 totalDelta)
{
    const ProcessList line = flat ? ProcessList{&process} : lineage(process, snapshot);
    ProcItem *parent = root.get();
    for (auto it = line.rbegin(); it != line.rend(); ++it) {
        parent = insert(**it, parent, totalDelta);
    }
}

ProcItem *ProcModel::insert(const Process &process, ProcItem *parent, quint64 totalDelta)
{
    if (ProcItem *replaced = itemByPid(process.pid())) {
        detach(replaced);
    }
    const int row = parent->childCount();
    beginInsertRows(indexOf(parent), row, row);
    const ItemPtr item(new ProcItem(QList<QVariant>(), parent));
    item->update(process, totalDelta);
    items[process.pid()] = item;
    parent->append(item.get());
    endInsertRows();
    return item.get();
}

/// Removes the row of an item that is about to be replaced: views would keep stale mappings if the item just
/// disappeared.
void ProcModel::detach(ProcItem *item)
{
    if (!item->isDescendantOf(root.get())) {
        return;
    }
    const int row = item->row();
    beginRemoveRows(indexOf(item->parent()), row, row);
    item->leaveParent();
    endRemoveRows();
}

/// Removes the item and its descendants, last child first. Iterative, since a line of ancestors can be as
/// long as the process table. Emits no signals for items that are not below the root, as no view sees them.
void ProcModel::removeSubtree(ProcItem *top)
{
    const bool shown = top->isDescendantOf(root.get());
    ProcItem *item = top;
    bool done = false;
    while (!done) {
        while (item->childCount() > 0) {
            item = item->child(item->childCount() - 1);
        }
        done = item == top;
        ProcItem *above = item->parent();
        removeChildless(item, shown);
        item = above;
    }
}

void ProcModel::removeChildless(ProcItem *item, bool shown)
{
    const int row = item->row();
    if (shown) {
        beginRemoveRows(indexOf(item->parent()), row, row);
    }
    item->leaveParent();
    items.erase(item->pid());
    if (shown) {
        endRemoveRows();
    }
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
