// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/snapshotcache.h"

#include <algorithm>
#include <utility>

namespace gtop_wrappers {

namespace {

/// Whether the column's value is left to be read when a cell asks for it.
bool isOnDemand(const Column &column, const ProcessRecord &record)
{
    return column.makeOnDemand && (column.reads & record.unread) != 0;
}

} // namespace

SnapshotCache::SnapshotCache()
{
    eager.fill(true);
}

void SnapshotCache::setEagerColumns(const std::vector<bool> &columns)
{
    eager.fill(true);
    std::copy_n(columns.begin(), std::min(columns.size(), eager.size()), eager.begin());
}

unsigned SnapshotCache::eagerReads() const
{
    unsigned reads = 0;
    for (std::size_t i = 0; i < eager.size(); ++i) {
        if (eager[i] || !columns()[i].makeOnDemand) {
            reads |= columns()[i].reads;
        }
    }
    return reads;
}

std::map<int, Process> SnapshotCache::snapshot(std::vector<ProcessRecord> records)
{
    shared.updateUsers(std::chrono::steady_clock::now());
    std::map<int, Process> processes;
    std::vector<Entry> entries;
    entries.reserve(records.size());
    auto before = last.begin();
    for (ProcessRecord &record : records) {
        const int pid = record.pid;
        before =
            std::find_if(before, last.end(), [pid](const Entry &entry) { return entry.record.pid >= pid; });
        if (before != last.end() && before->record.pid == pid) {
            entries.push_back(std::move(*before++));
        } else {
            entries.push_back({ProcessRecord(), Process(pid), OnDemandPtr()});
        }
        update(entries.back(), std::move(record));
        processes.emplace_hint(processes.end(), pid, entries.back().process);
    }
    last = std::move(entries);
    shared.dropUnused();
    return processes;
}

/// Brings the entry to the record: makes the values that changed, keeps the others.
void SnapshotCache::update(Entry &entry, ProcessRecord &&record)
{
    const OnDemandPtr onDemand = onDemandValues(entry, record);
    std::vector<ParamPtr> &params = entry.process.params;
    params.resize(ColumnCount);
    for (std::size_t i = 0; i < ColumnCount; ++i) {
        const Column &column = columns()[i];
        const bool wasOnDemand = isOnDemand(column, entry.record);
        if (isOnDemand(column, record)) {
            if (!params[i] || !wasOnDemand || onDemand != entry.onDemand) {
                params[i] = column.makeOnDemand(onDemand);
            }
        } else if (!params[i] || wasOnDemand || !column.same(entry.record, record)) {
            params[i] = column.make(record, shared);
        }
    }
    entry.onDemand = onDemand;
    entry.record = std::move(record);
}

/// The values to be read on demand: those of the last snapshot if the process is the same, so that what was
/// read before can stand in once the process has exited.
OnDemandPtr SnapshotCache::onDemandValues(const Entry &before, const ProcessRecord &now)
{
    if (now.unread == 0) {
        return OnDemandPtr();
    }
    if (before.onDemand && before.record.started == now.started) {
        before.onDemand->startSnapshot(now);
        return before.onDemand;
    }
    return OnDemandPtr(new OnDemandValues(now));
}

} // namespace gtop_wrappers
