// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_FILLER_H
#define GTOP_WRAPPERS_FILLER_H

#include "process/gtop_wrappers/process.h"

#include <map>
#include <memory>
#include <vector>

namespace gtop_wrappers {

class ProcessTable;

/// Which processes are listed.
enum ProcessTypes {
    AllProcesses = 0, ///< every process of the machine
    MyProcesses = 1   ///< those whose User column names the program's real user
};

/// Reads the processes of the machine through libgtop.
class ProcessFiller
{
public:
    static ProcessFiller *instance();

    /// Number of process columns.
    unsigned long size() const;
    /// Name of column i, the same in every language: settings keys are made from it. Empty past the end.
    QString name(unsigned long i) const;
    /// Name of column i in the language of the user interface, for headers and menus. Empty past the end.
    QString title(unsigned long i) const;
    /// A snapshot keyed by pid; a process that ends while it is read is left out. Values that did not change
    /// since the last snapshot are the same objects as in it, except those of the CPU column.
    std::map<int, Process> getProcesses(ProcessTypes types);

    /// Tells which columns are to be read with the next snapshots because all rows of them will be asked for,
    /// as for sorting; an empty list (as at the start) or a missing entry means yes. The costly values among
    /// the others are read when they are first asked for, again after each snapshot. That may be after the
    /// process has ended: then they stay as last known, or are empty.
    void setWanted(const std::vector<bool> &columns);

private:
    ProcessFiller();
    ~ProcessFiller();

    std::unique_ptr<ProcessTable> table;
};

} // namespace gtop_wrappers

#endif
