// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_INSERTIONPLAN_H
#define PROCESS_INSERTIONPLAN_H

#include "process/gtop_wrappers/process.h"

#include <map>
#include <vector>

/// New items of the tree, each the only child of the one before.
struct InsertedLine
{
    std::vector<const gtop_wrappers::Process *> processes; ///< from the top downward, never empty
    bool isUnderRoot;                                      ///< false: an orphan, its parent was replaced
};

/// What is left of inserting the `fresh` processes one after the other, each with new copies of all its
/// ancestors in the snapshot: every copy replaces the one before, and the children of that become orphans.
/// The lines are in the order of insertion, and no process is in two of them. All other items of these
/// processes are replaced. Takes time in proportion to the lines, however deep the tree is.
///
/// Parent pids can form a ring: a parent that is already in the line of its descendant counts as not in the
/// snapshot.
std::vector<InsertedLine> planInsertions(const std::vector<const gtop_wrappers::Process *> &fresh,
                                         const std::map<int, gtop_wrappers::Process> &snapshot);

#endif
