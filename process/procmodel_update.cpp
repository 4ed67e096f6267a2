// SPDX-License-Identifier: GPL-3.0-or-later
// The refresh of ProcModel.
#include "process/insertionplan.h"
#include "process/procmodel.h"

#include <algorithm>
#include <unordered_set>

using gtop_wrappers::Process;

namespace {

/// Shortcut for isSameProcess(): unchanged values are mostly the same objects in successive snapshots.
bool sharesIdentity(const Process &known, const Process &fresh)
{
    using namespace gtop_wrappers;
    return known.params.size() == ColumnCount && fresh.params.size() == ColumnCount &&
           known.params[NameColumn] == fresh.params[NameColumn] &&
           known.params[ParentPidColumn] == fresh.params[ParentPidColumn];
}

/// Intentional: parents that were not read yet count as unchanged. A flat list that does not show them starts
/// without, and mostly has them with the follow-up of its first reading.
bool wasReparented(const Process &known, const Process &fresh)
{
    const auto isParentRead = [](const Process &process) {
        const gtop_wrappers::ParamPtr parent = process.getParam(gtop_wrappers::ParentPidColumn);
        return !parent || parent->isRead();
    };
    return isParentRead(known) && isParentRead(fresh) && known.getPPid() != fresh.getPPid();
}

/// False if the pid was reused by another program or the process was reparented.
bool isSameProcess(const Process &known, const Process &fresh)
{
    if (sharesIdentity(known, fresh)) {
        return true;
    }
    return !wasReparented(known, fresh) && known.getName() == fresh.getName();
}

using ItemSet = std::unordered_set<const ProcItem *>;

bool hasAncestorIn(const ProcItem &item, const ItemSet &items)
{
    const ProcItem *ancestor = item.parent();
    while (ancestor && items.count(ancestor) == 0) {
        ancestor = ancestor->parent();
    }
    return ancestor != nullptr;
}

/// The item and its descendants, parents first, without the branches in `excluded`. Iterative, since a branch
/// can be as deep as the process table.
std::vector<ProcItem *> branchOf(ProcItem *top, const ItemSet &excluded = {})
{
    std::vector<ProcItem *> branch{top};
    for (std::size_t i = 0; i < branch.size(); ++i) {
        const ProcItem *item = branch[i];
        for (int row = 0; row < item->childCount(); ++row) {
            if (excluded.count(item->child(row)) == 0) {
                branch.push_back(item->child(row));
            }
        }
    }
    return branch;
}

} // namespace

void ProcModel::update(const Snapshot &snapshot, unsigned long totalDelta, int)
{
    if (!flat && complete) {
        updateComplete(snapshot, totalDelta);
        return;
    }
    // QSortFilterProxyModel and QTreeView keep stale mappings if rows are inserted or removed between the two
    // layout signals, so mismatched rows are removed before them.
    const Matches matches = matchSnapshot(snapshot);
    Q_EMIT layoutAboutToBeChanged();
    updateKnown(matches.known, totalDelta);
    Q_EMIT layoutChanged(); // also replaces dataChanged(): proxy and view re-read everything

    insertFresh(matches.fresh, snapshot, totalDelta);
    // Intentional: a mismatched process, removed and reinserted above, is still stale, so it is removed again
    // here and comes back with the next refresh.
    removeSubtrees(matches.stale);
}

/// Compares the snapshot with the items, and removes the items whose pid now means another process. An item
/// below one of a smaller pid that leaves does not match any more.
ProcModel::Matches ProcModel::matchSnapshot(const Snapshot &snapshot)
{
    std::vector<int> before;
    before.reserve(items.size());
    for (const auto &entry : items) {
        before.push_back(entry.first);
        entry.second->startPass();
    }

    Matches matches;
    ItemSet leaving;
    std::vector<int> mismatched;
    matches.known.reserve(snapshot.size());
    std::vector<int> knownPids;
    knownPids.reserve(snapshot.size());
    for (const auto &entry : snapshot) {
        ProcItem *item = itemByPid(entry.first);
        const bool isListed = item && leaving.count(item) == 0;
        if (isListed && isSameProcess(item->process(), entry.second)) {
            matches.known.push_back(&entry.second);
            knownPids.push_back(entry.first);
            continue;
        }
        if (isListed) {
            mismatched.push_back(entry.first);
            const std::vector<ProcItem *> branch = branchOf(item, leaving);
            leaving.insert(branch.begin(), branch.end());
        }
        matches.fresh.push_back(&entry.second);
    }
    removeSubtrees(mismatched);
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

/// Intentional: in tree mode a new process brings a new item for every ancestor even if it has one already.
/// The old item is destroyed, and its children stay in the model without a parent, where no view sees them.
void ProcModel::insertFresh(const ProcessList &fresh, const Snapshot &snapshot, quint64 totalDelta)
{
    if (flat) {
        for (const Process *process : fresh) {
            insert({{process}, true}, totalDelta);
        }
        return;
    }
    const std::vector<InsertedLine> lines = planInsertions(fresh, snapshot);
    // No item before its ancestors, which are in the same line or in a later one.
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        for (const Process *process : line->processes) {
            removeReplaced(process->pid());
        }
    }
    for (const InsertedLine &line : lines) {
        insert(line, totalDelta);
    }
}

/// Inserts a line at once: to views, its top comes with all of its descendants.
void ProcModel::insert(const InsertedLine &line, quint64 totalDelta)
{
    ProcItem *parent = line.isUnderRoot ? root.get() : nullptr;
    if (parent) {
        beginInsertRows(QModelIndex(), parent->childCount(), parent->childCount());
    }
    for (const Process *process : line.processes) {
        const ItemPtr item(new ProcItem(QList<QVariant>(), parent));
        item->update(*process, totalDelta);
        items[process->pid()] = item;
        if (parent) {
            parent->append(item.get());
        }
        parent = item.get();
    }
    if (line.isUnderRoot) {
        endInsertRows();
    }
}

/// Removes an item that is about to be replaced, but not its children. Its row is removed first, as views
/// would keep stale mappings if the item just disappeared.
void ProcModel::removeReplaced(int pid)
{
    ProcItem *item = itemByPid(pid);
    if (!item) {
        return;
    }
    const bool shown = item->isDescendantOf(root.get());
    if (shown) {
        const int row = item->row();
        beginRemoveRows(indexOf(item->parent()), row, row);
        item->leaveParent();
    }
    items.erase(pid);
    if (shown) {
        endRemoveRows();
    }
}

/// Removes the items of these processes and their descendants: no item before its ancestors, so that a whole
/// branch leaves at once, whatever the order of the pids.
void ProcModel::removeSubtrees(const std::vector<int> &pids)
{
    ItemSet leaving;
    for (const int pid : pids) {
        leaving.insert(itemByPid(pid));
    }
    for (const int pid : pids) {
        ProcItem *item = itemByPid(pid);
        if (item && !hasAncestorIn(*item, leaving)) {
            removeSubtree(item);
        }
    }
}

/// Removes the item and its descendants. To views, the top leaves with all of them. Emits no signals for
/// items that are not below the root, as no view sees them.
void ProcModel::removeSubtree(ProcItem *top)
{
    const bool shown = top->isDescendantOf(root.get());
    if (shown) {
        const int row = top->row();
        beginRemoveRows(indexOf(top->parent()), row, row);
    }
    top->leaveParent();
    for (const ProcItem *item : branchOf(top)) {
        items.erase(item->pid());
    }
    if (shown) {
        endRemoveRows();
    }
}
