// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/processtable.h"

#include <glibtop/procstate.h>

#include <algorithm>
#include <utility>

namespace gtop_wrappers {

namespace {

bool isLate(const Column &column, const ProcessRecord &record)
{
    return column.makeLate && (column.reads & record.late) != 0;
}

const ProcessRecord *findRecord(const std::vector<ProcessRecord> &records, int pid)
{
    const auto found =
        std::lower_bound(records.begin(), records.end(), pid,
                         [](const ProcessRecord &record, int wanted) { return record.pid < wanted; });
    return found != records.end() && found->pid == pid ? &*found : nullptr;
}

bool hasEnded(const ProcessRecord &record)
{
    return (record.state & (GLIBTOP_PROCESS_ZOMBIE | GLIBTOP_PROCESS_DEAD)) != 0;
}

} // namespace

ProcessTable::ProcessTable()
{
    wantedAtOnce.fill(true);
}

void ProcessTable::setWanted(const std::vector<bool> &wanted)
{
    wantedAtOnce.fill(true);
    std::copy_n(wanted.begin(), std::min(wanted.size(), wantedAtOnce.size()), wantedAtOnce.begin());
}

unsigned ProcessTable::reads() const
{
    unsigned together = 0;
    for (std::size_t i = 0; i < wantedAtOnce.size(); ++i) {
        // complete() sees to the parents, which would take the costliest read.
        if (i != ParentPidColumn && (wantedAtOnce[i] || !columns()[i].makeLate)) {
            together |= columns()[i].reads;
        }
    }
    return together;
}

void ProcessTable::complete(std::vector<ProcessRecord> &records)
{
    for (const ProcessRecord &record : records) {
        clock.see(record.started, std::chrono::steady_clock::now());
    }
    const StartClock::Time now = std::chrono::steady_clock::now();
    const auto gone = [&](ProcessRecord &record) { return !completeRecord(records, record, now); };
    // Looked through before any is moved: each record looks for its parent among the others.
    std::vector<bool> ended(records.size());
    std::transform(records.begin(), records.end(), ended.begin(), gone);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!ended[i] && kept++ != i) {
            records[kept - 1] = std::move(records[i]);
        }
    }
    records.resize(kept);
}

bool ProcessTable::completeRecord(const std::vector<ProcessRecord> &all, ProcessRecord &record,
                                  StartClock::Time now) const
{
    if (record.late == 0) {
        return true;
    }
    if (!clock.isOver(record.started, now)) {
        return readAlso(record.late, record);
    }
    if (!(record.late & ReadUid)) {
        return true;
    }
    const Entry *const before = find(record.pid);
    if (before && before->record.started == record.started && keepsParent(*before, all)) {
        record.parent = before->record.parent;
        record.parentHolds = true;
        return true;
    }
    const bool left = readAlso(ReadUid, record);
    record.late |= ReadUid; // the nice value is still asked for later
    const ProcessRecord *const parent = findRecord(all, record.parent);
    record.parentHolds = parent && clock.isOver(parent->started, now);
    return left;
}

/// A process gets another parent only when its parent ends. One that is not a process of this list (0: none,
/// or one that is out of sight) can end unseen.
bool ProcessTable::keepsParent(const Entry &before, const std::vector<ProcessRecord> &all) const
{
    if (!before.record.parentHolds) {
        return false;
    }
    const Entry *const parentBefore = find(before.record.parent);
    const ProcessRecord *const parent = findRecord(all, before.record.parent);
    return parentBefore && parent && parent->started == parentBefore->record.started && !hasEnded(*parent);
}

std::map<int, Process> ProcessTable::update(std::vector<ProcessRecord> records)
{
    std::map<int, Process> snapshot;
    std::vector<Entry> entries;
    entries.reserve(records.size());
    auto before = last.begin();
    for (ProcessRecord &record : records) {
        before = std::find_if(before, last.end(),
                              [&record](const Entry &entry) { return entry.record.pid >= record.pid; });
        const bool known = before != last.end() && before->record.pid == record.pid;
        entries.push_back(known ? std::move(*before)
                                : Entry{ProcessRecord(), Process(record.pid), LatePtr()});
        renew(entries.back(), std::move(record));
        snapshot.emplace_hint(snapshot.end(), entries.back().process.id, entries.back().process);
    }
    last = std::move(entries);
    shared.dropUnused();
    return snapshot;
}

const ProcessTable::Entry *ProcessTable::find(int pid) const
{
    const auto found = std::lower_bound(last.begin(), last.end(), pid, [](const Entry &entry, int wanted) {
        return entry.record.pid < wanted;
    });
    return found != last.end() && found->record.pid == pid ? &*found : nullptr;
}

/// Makes the values that the record changes; the others stay the same objects.
void ProcessTable::renew(Entry &entry, ProcessRecord &&record)
{
    LatePtr late = lateValues(record, entry);
    std::vector<ParamPtr> &params = entry.process.params;
    params.resize(ColumnCount);
    for (std::size_t i = 0; i < ColumnCount; ++i) {
        const Column &column = columns()[i];
        const bool isLateNow = isLate(column, record);
        const bool same = params[i] && isLateNow == isLate(column, entry.record) &&
                          (isLateNow ? late == entry.late : column.same(entry.record, record));
        if (!same) {
            params[i] = isLateNow ? column.makeLate(late) : column.make(record, shared);
        }
    }
    entry.late = std::move(late);
    entry.record = std::move(record);
}

/// Those of the last snapshot, to be read anew, if it had the same process.
LatePtr ProcessTable::lateValues(const ProcessRecord &record, const Entry &before)
{
    if (record.late == 0) {
        return LatePtr();
    }
    if (before.late && before.record.started == record.started) {
        before.late->renew(record);
        return before.late;
    }
    return LatePtr(new LateValues(record));
}

} // namespace gtop_wrappers
