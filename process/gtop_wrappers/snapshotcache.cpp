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

/// The element of a process, which is made if it is missing. Those before it, from `from` on, have exited.
std::map<int, Process>::iterator elementOf(int pid, std::map<int, Process>::iterator from,
                                           std::map<int, Process> &processes)
{
    while (from != processes.end() && from->first < pid) {
        from = processes.erase(from);
    }
    const bool isThere = from != processes.end() && from->first == pid;
    return isThere ? from : processes.emplace_hint(from, pid, Process(pid));
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

std::vector<int> SnapshotCache::askedForMemory() const
{
    std::vector<int> pids;
    for (const Entry &entry : last) {
        if (entry.onDemand && entry.onDemand->isAsked(ReadMemory)) {
            pids.push_back(entry.record.pid);
        }
    }
    return pids;
}

std::map<int, Process> SnapshotCache::snapshot(std::vector<ProcessRecord> records)
{
    shared.updateUsers(std::chrono::steady_clock::now());
    std::map<int, Process> processes = std::exchange(values, {});
    std::vector<Entry> entries;
    entries.reserve(records.size());
    const Entry unknown;
    auto before = last.cbegin();
    auto process = processes.begin();
    for (ProcessRecord &record : records) {
        const int pid = record.pid;
        before =
            std::find_if(before, last.cend(), [pid](const Entry &entry) { return entry.record.pid >= pid; });
        const Entry &known = before != last.cend() && before->record.pid == pid ? *before : unknown;
        OnDemandPtr onDemand = onDemandValues(known, record);
        entries.push_back({std::move(record), std::move(onDemand)});
        process = elementOf(pid, process, processes);
        makeValues(known, entries.back(), process->second.params);
        ++process;
    }
    processes.erase(process, processes.end());
    last = std::move(entries);
    shared.dropUnused();
    return processes;
}

/// Makes the values that changed, keeps the others.
void SnapshotCache::makeValues(const Entry &before, const Entry &now, std::vector<ParamPtr> &params)
{
    params.resize(ColumnCount);
    for (std::size_t i = 0; i < ColumnCount; ++i) {
        const Column &column = columns()[i];
        const bool wasOnDemand = isOnDemand(column, before.record);
        if (isOnDemand(column, now.record)) {
            if (!params[i] || !wasOnDemand || now.onDemand != before.onDemand) {
                params[i] = column.makeOnDemand(now.onDemand);
            }
        } else if (!params[i] || wasOnDemand || !column.same(before.record, now.record)) {
            params[i] = column.make(now.record, shared);
        }
    }
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
