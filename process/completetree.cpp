// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/completetree.h"

#include <algorithm>

namespace {

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

/// Position of the process; nowhere if it is not there.
std::size_t positionOf(int pid, const TreePlaces &places)
{
    const auto found =
        std::lower_bound(places.begin(), places.end(), pid,
                         [](const TreePlace &place, int wanted) { return place.pid < wanted; });
    return found != places.end() && found->pid == pid ? static_cast<std::size_t>(found - places.begin())
                                                      : nowhere;
}

/// Positions of the parents.
std::vector<std::size_t> parentsOf(const TreePlaces &places)
{
    std::vector<std::size_t> parents;
    parents.reserve(places.size());
    for (const TreePlace &place : places) {
        parents.push_back(positionOf(place.parent, places));
    }
    return parents;
}

/// Takes the parent from the first process of each ring, which can be a ring of one.
void cutRings(std::vector<std::size_t> &parents)
{
    std::vector<std::size_t> walks(parents.size(), nowhere); // the one that came by first
    for (std::size_t start = 0; start < parents.size(); ++start) {
        std::size_t at = start;
        while (at != nowhere && walks[at] == nowhere) {
            walks[at] = start;
            at = parents[at];
        }
        if (at == nowhere || walks[at] != start) {
            continue;
        }
        std::size_t first = at;
        for (std::size_t next = parents[at]; next != at; next = parents[next]) {
            first = std::min(first, next);
        }
        parents[first] = nowhere;
    }
}

/// Moves the parents before their children.
TreePlaces parentsFirst(const TreePlaces &places)
{
    const std::vector<std::size_t> parents = parentsOf(places);
    TreePlaces sorted;
    sorted.reserve(places.size());
    std::vector<bool> isListed(places.size(), false);
    std::vector<std::size_t> line;
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (std::size_t at = i; at != nowhere && !isListed[at]; at = parents[at]) {
            isListed[at] = true;
            line.push_back(at);
        }
        for (; !line.empty(); line.pop_back()) {
            sorted.push_back(places[line.back()]);
        }
    }
    return sorted;
}

} // namespace

TreePlaces placesOf(TreePlaces asRead)
{
    std::vector<std::size_t> parents = parentsOf(asRead);
    cutRings(parents);
    for (std::size_t i = 0; i < asRead.size(); ++i) {
        if (parents[i] == nowhere) {
            asRead[i].parent = TreePlace::AtRoot;
        }
    }
    return asRead;
}

TreeChanges changesBetween(const TreePlaces &current, const TreePlaces &wanted)
{
    TreeChanges changes;
    auto before = current.begin();
    const auto removeUpTo = [&](auto end) {
        for (; before != end; ++before) {
            changes.removed.push_back(before->pid);
        }
    };
    for (const TreePlace &place : wanted) {
        auto known = before;
        while (known != current.end() && known->pid < place.pid) {
            ++known;
        }
        removeUpTo(known);
        if (before == current.end() || before->pid != place.pid) {
            changes.inserted.push_back(place);
            continue;
        }
        if (before->parent != place.parent) {
            changes.moved.push_back(place);
        }
        ++before;
    }
    removeUpTo(current.end());
    changes.inserted = parentsFirst(changes.inserted);
    return changes;
}
