// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_FILLER_H
#define GTOP_WRAPPERS_FILLER_H

#include "process/gtop_wrappers/process.h"

#include <map>
#include <memory>
#include <vector>

namespace gtop_wrappers {

class ProcessReader;
class SnapshotCache;

/// Which processes are listed.
enum ProcessTypes {
    AllProcesses = 0, ///< every process of the machine
    MyProcesses = 1   ///< those whose effective user, shown in the User column, is the program's real user
};

/// Reads the processes of the machine through libgtop.
class ProcessFiller
{
public:
    static ProcessFiller *instance();

    /// Number of process columns.
    unsigned long size() const;
    /// Untranslated name of column i, which settings keys are made from. Empty past the end.
    QString name(unsigned long i) const;
    /// Translated name of column i, for headers and menus. Empty past the end.
    QString title(unsigned long i) const;
    /// Whether column i is shown until the user chooses otherwise. False past the end.
    bool isShownByDefault(unsigned long i) const;
    /// Whether column i holds numbers, which are aligned right. False past the end.
    bool isNumeric(unsigned long i) const;
    /// Whether each value of column i is expensive and can be read on demand. False past the end.
    bool isExpensive(unsigned long i) const;
    /// A snapshot keyed by pid, without processes that exit while being read. If the last one was given back,
    /// values that did not change are the same objects as before. That of the CPU column, which others write,
    /// is the same for as long as the process runs.
    std::map<int, Process> getProcesses(ProcessTypes types);
    /// Instead of destroying the last snapshot, and no other: the next one is made from it.
    void giveBack(std::map<int, Process> &&lastSnapshot);

    /// Chooses the columns that the next snapshots read for all rows, for instance the one that is sorted by.
    /// Missing entries count as chosen, so an empty list (the initial state) chooses all. The expensive
    /// values of the others are read on demand, when a cell asks for them, at most once per snapshot. If the
    /// process has exited by then, they keep what was last read on demand, or are empty. The parents are
    /// expensive in the first snapshot only.
    void setEagerColumns(const std::vector<bool> &columns);

private:
    ProcessFiller();
    ~ProcessFiller();

    std::unique_ptr<ProcessReader> reader;
    std::unique_ptr<SnapshotCache> cache;
};

} // namespace gtop_wrappers

#endif
