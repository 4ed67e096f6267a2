// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_PROCESSTABLE_H
#define GTOP_WRAPPERS_PROCESSTABLE_H

#include "process/gtop_wrappers/columns.h"

#include <array>
#include <map>
#include <vector>

namespace gtop_wrappers {

/// Makes snapshots out of records and remembers the last one, so that what did not change is not made anew.
/// Whether it changed is told from the records, never guessed from the pid: no value is shown stale, also if
/// the pid has gone to another process.
class ProcessTable
{
public:
    ProcessTable();

    /// As ProcessFiller::setWanted().
    void setWanted(const std::vector<bool> &columns);
    /// What must be read for the columns in use (Reads, or-ed).
    unsigned reads() const;
    /// The snapshot of these records, which are ascending by pid.
    std::map<int, Process> update(std::vector<ProcessRecord> records);

private:
    struct Entry
    {
        ProcessRecord record;
        Process process;
    };

    Process make(const ProcessRecord &record, const Entry *before);

    std::array<bool, ColumnCount> used;
    std::vector<Entry> last; ///< ascending by pid
    SharedParams shared;
};

} // namespace gtop_wrappers

#endif
