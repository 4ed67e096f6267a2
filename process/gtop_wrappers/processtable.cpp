// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/processtable.h"

#include <algorithm>
#include <utility>

namespace gtop_wrappers {

ProcessTable::ProcessTable()
{
    used.fill(true);
}

void ProcessTable::setWanted(const std::vector<bool> &wanted)
{
    used.fill(true);
    std::copy_n(wanted.begin(), std::min(wanted.size(), used.size()), used.begin());
    for (const ProcessColumn column : {NameColumn, ParentPidColumn, CpuTimeColumn}) {
        used[column] = true; // getName(), getPPid() and getCpuLoad() come from these
    }
}

unsigned ProcessTable::reads() const
{
    unsigned all = 0;
    for (std::size_t i = 0; i < used.size(); ++i) {
        all |= used[i] ? columns()[i].reads : 0U;
    }
    return all;
}

std::map<int, Process> ProcessTable::update(std::vector<ProcessRecord> records)
{
    std::map<int, Process> snapshot;
    std::vector<Entry> entries;
    entries.reserve(records.size());
    auto before = last.cbegin();
    for (ProcessRecord &record : records) {
        before = std::find_if(before, last.cend(),
                              [&record](const Entry &entry) { return entry.record.pid >= record.pid; });
        const bool known = before != last.cend() && before->record.pid == record.pid;
        Process process = make(record, known ? &*before : nullptr);
        snapshot.emplace_hint(snapshot.end(), record.pid, process);
        entries.push_back({std::move(record), std::move(process)});
    }
    last = std::move(entries);
    shared.dropUnused();
    return snapshot;
}

Process ProcessTable::make(const ProcessRecord &record, const Entry *before)
{
    Process process(record.pid);
    process.params.resize(ColumnCount);
    for (std::size_t i = 0; i < used.size(); ++i) {
        const Column &column = columns()[i];
        if (!used[i]) {
            continue;
        }
        const ParamPtr old = before ? before->process.params[i] : ParamPtr();
        process.params[i] = old && column.same(before->record, record) ? old : column.make(record, shared);
    }
    return process;
}

} // namespace gtop_wrappers
