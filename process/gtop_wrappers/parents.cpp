// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/parents.h"

#include <glibtop/procstate.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace gtop_wrappers {

namespace {

/// Element of a list that is ascending by pid; null if there is none.
template <typename Element>
const Element *findByPid(const std::vector<Element> &list, int pid)
{
    const auto found = std::lower_bound(list.begin(), list.end(), pid,
                                        [](const Element &element, int key) { return element.pid < key; });
    return found != list.end() && found->pid == pid ? &*found : nullptr;
}

/// Start of the record's parent, 0 if it has none; nothing if the parent is not listed.
std::optional<quint64> parentStart(const ProcessRecord &record, const std::vector<ProcessRecord> &records)
{
    if (record.parent == 0) {
        return 0;
    }
    const ProcessRecord *parent = findByPid(records, record.parent);
    return parent ? std::optional<quint64>(parent->started) : std::nullopt;
}

/// A process that may no longer have its children though it is still in the list: it is dead, or hangs in its
/// exit, which only shows as an uninterruptible state.
bool canHaveExited(const ProcessRecord &record)
{
    return (record.state &
            (GLIBTOP_PROCESS_ZOMBIE | GLIBTOP_PROCESS_DEAD | GLIBTOP_PROCESS_UNINTERRUPTIBLE)) != 0;
}

} // namespace

void Parents::learn(const std::vector<ProcessRecord> &records, quint64 started)
{
    last.clear();
    for (const ProcessRecord &record : records) {
        const std::optional<quint64> parent = parentStart(record, records);
        if (parent && record.started < started && *parent < started) {
            last.push_back({record.pid, record.started, record.parent, *parent});
        }
    }
}

unsigned Parents::dueReads(int pid) const
{
    return isDueForReading(pid, snapshots + 1) && findByPid(last, pid) ? unsigned(ReadParent) : 0U;
}

void Parents::resolve(std::vector<ProcessRecord> &records, const StartClock &clock, StartClock::Time now,
                      bool withDueReads)
{
    ++snapshots;
    std::vector<Known> known;
    known.reserve(records.size());
    std::vector<int> exited;
    for (ProcessRecord &record : records) {
        const bool wasRead = (record.unread & ReadParent) == 0;
        if (!wasRead && !keepParent(record, records, withDueReads) && !readMissing(ReadParent, record)) {
            exited.push_back(record.pid);
            continue;
        }
        // What came with the record may be of another process that had the pid when it was read.
        const std::optional<quint64> parent = wasRead ? std::nullopt : parentStart(record, records);
        if (parent && clock.secondIsOver(record.started, now) && clock.secondIsOver(*parent, now)) {
            known.push_back({record.pid, record.started, record.parent, *parent});
        }
    }
    last = std::move(known);
    dropRecords(exited, records); // only now: until here the list is searched for parents
}

/// True for one of 200 pids in each snapshot but the first, and for each pid in one of 200.
bool Parents::isDueForReading(int pid, unsigned snapshot)
{
    constexpr unsigned period = 200;
    return snapshot > 1 && (snapshot + static_cast<unsigned>(pid)) % period == 0;
}

/// Sets the parent of the last snapshot if it is certain to be the same; false otherwise.
bool Parents::keepParent(ProcessRecord &record, const std::vector<ProcessRecord> &records,
                         bool withDueReads) const
{
    const Known *known = findByPid(last, record.pid);
    if (!known || known->started != record.started) {
        return false;
    }
    // What came with the record was read before the start, which is still the same, and so of this process.
    const bool isConfirmed = withDueReads && record.parent == known->parent;
    if (isDueForReading(record.pid, snapshots) && !isConfirmed) {
        return false;
    }
    const ProcessRecord *parent = findByPid(records, known->parent);
    const bool isStillThere = parent && parent->started == known->parentStarted && !canHaveExited(*parent);
    if (known->parent != 0 && !isStillThere) {
        return false;
    }
    record.parent = known->parent;
    record.unread &= ~ReadParent;
    return true;
}

} // namespace gtop_wrappers
