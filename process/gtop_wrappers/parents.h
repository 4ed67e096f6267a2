// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_PARENTS_H
#define GTOP_WRAPPERS_PARENTS_H

#include "process/gtop_wrappers/record.h"
#include "process/gtop_wrappers/startclock.h"

#include <vector>

namespace gtop_wrappers {

/// The parent of every process, read as seldom as possible.
///
/// Reading a parent is the most expensive call of a snapshot. A process is reparented only when its parent
/// exits, so a parent is kept for as long as both are seen running, but for no more than 200 snapshots:
/// some changes cannot be seen, as when the thread that forked the child ends in a process whose leader hangs
/// in its exit. Mostly the state of such a leader is uninterruptible, and then parents are read again too. A
/// parent that is not in the list (a process of another user) can exit unseen and is read again each time. A
/// process without a parent in its pid namespace (0) never gets one.
class Parents
{
public:
    /// Takes over parents that came with the records, so that resolve() need not read them one by one. Only
    /// processes that started before `started`, a second before anything was read, are certain: what came
    /// with the record of another may be of its predecessor with the same pid.
    void learn(const std::vector<ProcessRecord> &records, quint64 started);
    /// What to read with the record of a process in the next snapshot (Reads, or-ed), since it is due: there
    /// it takes one call, later two.
    unsigned dueReads(int pid) const;
    /// Sets the parent of all records, which are ascending by pid, and reads those that are not known.
    /// Drops the records of processes that exited in the meantime. withDueReads: whether dueReads() were
    /// made.
    void resolve(std::vector<ProcessRecord> &records, const StartClock &clock, StartClock::Time now,
                 bool withDueReads = false);

private:
    /// A parent that can be kept: pid and start identify both processes.
    struct Known
    {
        int pid;
        quint64 started;
        int parent;
        quint64 parentStarted; ///< 0 without a parent
    };

    static bool isDueForReading(int pid, unsigned snapshot);
    bool keepParent(ProcessRecord &record, const std::vector<ProcessRecord> &records,
                    bool withDueReads) const;

    std::vector<Known> last; ///< of the last snapshot, ascending by pid
    unsigned snapshots = 0;
};

} // namespace gtop_wrappers

#endif
