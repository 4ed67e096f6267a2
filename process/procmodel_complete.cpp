// SPDX-License-Identifier: GPL-3.0-or-later
// The refresh of ProcModel while it is a complete tree.
#include "process/procmodel.h"

#include <algorithm>
#include <unordered_map>

using gtop_wrappers::Process;

/// Rows come before the layout change and leave after it, so that the new parents of moved rows are there by
/// then and the old ones still. The moves are part of it: announced one by one, each would cost the proxy as
/// much as all of them.
void ProcModel::updateComplete(const Snapshot &snapshot, quint64 totalDelta)
{
    TreePlaces asRead;
    asRead.reserve(snapshot.size());
    for (const auto &entry : snapshot) {
        asRead.push_back({entry.first, entry.second.getPPid()});
    }
    const TreeChanges changes = changesBetween(currentPlaces(), placesOf(std::move(asRead)));
    for (const auto &entry : items) {
        entry.second->startPass();
    }
    insertAt(changes.inserted, snapshot, totalDelta);
    Q_EMIT layoutAboutToBeChanged();
    updateAll(snapshot, totalDelta);
    moveTo(changes.moved);
    Q_EMIT layoutChanged(); // also replaces dataChanged()
    removeItems(changes.removed);
}

TreePlaces ProcModel::currentPlaces() const
{
    TreePlaces places;
    places.reserve(items.size());
    for (const auto &entry : items) {
        const ProcItem *parent = entry.second->parent();
        places.push_back({entry.first, parent == root.get() ? TreePlace::AtRoot : parent->pid()});
    }
    return places;
}

ProcItem *ProcModel::parentAt(const TreePlace &place) const
{
    return place.parent == TreePlace::AtRoot ? root.get() : itemByPid(place.parent);
}

/// To views, a new branch comes with its top, and those with the same parent come at once.
void ProcModel::insertAt(const TreePlaces &places, const Snapshot &snapshot, quint64 totalDelta)
{
    std::unordered_set<const ProcItem *> fresh;
    std::vector<ProcItem *> tops;
    for (const TreePlace &place : places) {
        ProcItem *parent = parentAt(place);
        const ItemPtr item(new ProcItem(QList<QVariant>(), parent));
        item->update(snapshot.at(place.pid), totalDelta);
        items[place.pid] = item;
        fresh.insert(item.get());
        if (fresh.count(parent) != 0) {
            parent->append(item.get());
        } else {
            tops.push_back(item.get());
        }
    }
    std::stable_sort(tops.begin(), tops.end(), [](const ProcItem *one, const ProcItem *other) {
        return one->parent()->pid() < other->parent()->pid();
    });
    for (auto first = tops.begin(); first != tops.end();) {
        ProcItem *parent = (*first)->parent();
        const auto end =
            std::find_if(first, tops.end(), [&](const ProcItem *top) { return top->parent() != parent; });
        const int row = parent->childCount();
        beginInsertRows(indexOf(parent), row, row + static_cast<int>(end - first) - 1);
        for (; first != end; ++first) {
            parent->append(*first);
        }
        endInsertRows();
    }
}

/// All processes of the snapshot have their items by now.
void ProcModel::updateAll(const Snapshot &snapshot, quint64 totalDelta)
{
    auto known = items.begin();
    for (const auto &entry : snapshot) {
        while (known->first != entry.first) {
            ++known;
        }
        ProcItem &item = *known->second;
        if (item.process().startTime() != entry.second.startTime()) {
            item.restart();
        }
        item.update(entry.second, totalDelta);
    }
}

/// To be called between the two layout signals.
void ProcModel::moveTo(const TreePlaces &places)
{
    std::unordered_set<ProcItem *> parents;
    for (const TreePlace &place : places) {
        ProcItem *item = itemByPid(place.pid);
        parents.insert(item->parent());
        item->moveTo(parentAt(place));
        parents.insert(item->parent());
    }
    for (ProcItem *parent : parents) {
        parent->forgetMovedChildren();
    }
    followMoved({parents.begin(), parents.end()});
}

/// Changes the persistent indexes of the children of these parents to their new rows.
void ProcModel::followMoved(const std::vector<const ProcItem *> &parents)
{
    std::unordered_map<quintptr, int> rows; // by pid
    for (const ProcItem *parent : parents) {
        for (int row = 0; row < parent->childCount(); ++row) {
            rows[static_cast<quintptr>(parent->child(row)->pid())] = row;
        }
    }
    if (rows.empty()) {
        return;
    }
    QModelIndexList from;
    QModelIndexList to;
    for (const QModelIndex &index : persistentIndexList()) {
        const auto found = rows.find(index.internalId());
        if (found != rows.end() && found->second != index.row()) {
            from.append(index);
            to.append(createIndex(found->second, index.column(), index.internalId()));
        }
    }
    changePersistentIndexList(from, to);
}

/// Removes these items. What remains has moved away from below them.
void ProcModel::removeItems(const std::vector<int> &pids)
{
    std::unordered_set<const ProcItem *> leaving;
    for (const int pid : pids) {
        leaving.insert(itemByPid(pid));
    }
    std::vector<ProcItem *> parents;
    for (const int pid : pids) {
        ProcItem *parent = itemByPid(pid)->parent();
        if (leaving.count(parent) == 0) {
            parents.push_back(parent);
        }
    }
    std::sort(parents.begin(), parents.end(),
              [](const ProcItem *one, const ProcItem *other) { return one->pid() < other->pid(); });
    parents.erase(std::unique(parents.begin(), parents.end()), parents.end());
    for (ProcItem *parent : parents) {
        removeChildren(parent, leaving);
    }
    for (const int pid : pids) {
        items.erase(pid);
    }
}

/// To views, a child leaves with all that is below it.
void ProcModel::removeChildren(ProcItem *parent, const std::unordered_set<const ProcItem *> &leaving)
{
    for (int last = parent->childCount() - 1; last >= 0; --last) {
        if (leaving.count(parent->child(last)) == 0) {
            continue;
        }
        int first = last;
        while (first > 0 && leaving.count(parent->child(first - 1)) != 0) {
            --first;
        }
        beginRemoveRows(indexOf(parent), first, last);
        for (int row = first; row <= last; ++row) {
            parent->child(row)->moveTo(nullptr);
        }
        parent->forgetMovedChildren();
        endRemoveRows();
        last = first;
    }
}
