// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_SNAPSHOTCACHE_H
#define GTOP_WRAPPERS_SNAPSHOTCACHE_H

#include "process/gtop_wrappers/columns.h"
#include "process/gtop_wrappers/ondemand.h"
#include "process/gtop_wrappers/process.h"
#include "process/gtop_wrappers/record.h"
#include "process/gtop_wrappers/sharedparams.h"

#include <array>
#include <map>
#include <utility>
#include <vector>

namespace gtop_wrappers {

/// Turns the records of one snapshot after another into column values, and keeps the values that did not
/// change: most don't from one snapshot to the next. Whether one did is decided by comparing records, never
/// by the pid alone, so a process that reuses a pid shows nothing of its predecessor.
///
/// The values are kept in the snapshot itself, if it is given back: a copy of it would write to the reference
/// counter of each value, in memory that is cold by then, which costs more than all the rest.
class SnapshotCache
{
public:
    SnapshotCache();

    /// As ProcessFiller::setEagerColumns().
    void setEagerColumns(const std::vector<bool> &columns);
    /// What must be read of every process (Reads, or-ed) for the next snapshot.
    unsigned eagerReads() const;
    /// The processes, ascending, whose memory was asked for since the last snapshot: mostly those in view,
    /// which will be asked for it again. Read with the rest it takes half of the calls that it takes alone.
    std::vector<int> askedForMemory() const;
    /// The snapshot of these records, which are ascending by pid.
    std::map<int, Process> snapshot(std::vector<ProcessRecord> records);
    /// As ProcessFiller::giveBack().
    void takeBack(std::map<int, Process> &&snapshot) { values = std::move(snapshot); }

private:
    /// What is remembered of a process until the next snapshot.
    struct Entry
    {
        ProcessRecord record;
        OnDemandPtr onDemand; ///< null if everything was read
    };

    void makeValues(const Entry &before, const Entry &now, std::vector<ParamPtr> &params);
    static OnDemandPtr onDemandValues(const Entry &before, const ProcessRecord &now);

    std::array<bool, ColumnCount> eager;
    std::vector<Entry> last;       ///< ascending by pid
    std::map<int, Process> values; ///< of the last snapshot; empty if it was not given back
    SharedParams shared;
};

} // namespace gtop_wrappers

#endif
