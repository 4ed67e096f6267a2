// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_PROCESSTABLE_H
#define GTOP_WRAPPERS_PROCESSTABLE_H

#include "process/gtop_wrappers/columns.h"
#include "process/gtop_wrappers/startclock.h"

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
    /// What must be read of every process (Reads, or-ed).
    unsigned reads() const;
    /// Reads what single records need beside: the parent, unless it is the one of the last snapshot; and
    /// all of a process that is too young to be known again by its start. Leaves out those that ended.
    void complete(std::vector<ProcessRecord> &records);
    /// The snapshot of these records, which are ascending by pid.
    std::map<int, Process> update(std::vector<ProcessRecord> records);

private:
    struct Entry
    {
        ProcessRecord record;
        Process process;
        LatePtr late; ///< null if nothing was left to be read late
    };

    const Entry *find(int pid) const;
    bool completeRecord(const std::vector<ProcessRecord> &all, ProcessRecord &record,
                        StartClock::Time now) const;
    bool keepsParent(const Entry &before, const std::vector<ProcessRecord> &all) const;
    void renew(Entry &entry, ProcessRecord &&record);
    static LatePtr lateValues(const ProcessRecord &record, const Entry &before);

    std::array<bool, ColumnCount> wantedAtOnce;
    std::vector<Entry> last; ///< ascending by pid
    SharedParams shared;
    StartClock clock;
};

} // namespace gtop_wrappers

#endif
