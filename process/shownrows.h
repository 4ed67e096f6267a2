// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_SHOWNROWS_H
#define PROCESS_SHOWNROWS_H

#include "process/procmodel.h"

#include <functional>
#include <unordered_map>

/// Which processes a filtered list shows: those that match and, in tree mode, their ancestors.
struct ShownRows
{
    enum Reason {
        IsAncestor, ///< matches only through a descendant
        IsMatch,
        IsMatchAndAncestor
    };

    std::unordered_map<int, Reason> reasons; ///< by pid
    int matches = 0;                         ///< rows that match
    int rows = 0;                            ///< in the unfiltered list

    bool contains(int pid) const { return reasons.count(pid) != 0; }
    bool isAncestorOnly(int pid) const;
    /// Whether one of its descendants matches.
    bool isAncestor(int pid) const;
};

using Matches = std::function<bool(int pid)>;

/// Before the rows are there: of each matching process all ancestors in the snapshot count.
ShownRows shownRows(const ProcModel::Snapshot &snapshot, bool isFlat, const Matches &matches);
/// Adds what is above the shown ones of these rows.
void addAncestors(ShownRows &shown, const std::vector<ProcModel::Row> &rows);
/// Of the rows that there are. In tree mode not every process has one.
ShownRows shownRows(const std::vector<ProcModel::Row> &rows, const Matches &matches);

#endif
