// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_COMPLETETREE_H
#define PROCESS_COMPLETETREE_H

#include <vector>

/// The tree in which every process stands exactly once, and the way from one such tree to the next.

/// A process and the one that it stands under.
struct TreePlace
{
    static constexpr int AtRoot = -1;

    int pid;
    int parent; ///< pid, or AtRoot
};

/// Ascending by pid, each pid once.
using TreePlaces = std::vector<TreePlace>;

/// Where processes stand that were read with these parents: at the root if the parent is none of them, if it
/// is the process itself, or if the process has the smallest pid in a ring of parents.
TreePlaces placesOf(TreePlaces asRead);

/// What makes one tree out of another. No process is in two of the lists.
struct TreeChanges
{
    TreePlaces inserted;      ///< in another order: parents before their children
    TreePlaces moved;         ///< to these places
    std::vector<int> removed; ///< pids, ascending; what remains below them is among the moved
};

/// Takes time in proportion to the trees, however deep they are. `wanted` must be free of rings.
TreeChanges changesBetween(const TreePlaces &current, const TreePlaces &wanted);

#endif
