// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/reader.h"

namespace gtop_wrappers {

std::vector<ProcessRecord> ProcessReader::read(std::optional<uid_t> user, unsigned reads)
{
    std::vector<ProcessRecord> records = readProcesses(user, reads);
    const StartClock::Time now = std::chrono::steady_clock::now();
    for (const ProcessRecord &record : records) {
        clock.see(record.started, now);
    }
    readRestOfYoung(records, now);
    parents.resolve(records, clock, now);
    return records;
}

void ProcessReader::readRestOfYoung(std::vector<ProcessRecord> &records, StartClock::Time now) const
{
    std::vector<int> exited;
    for (ProcessRecord &record : records) {
        if (record.unread != 0 && !clock.secondIsOver(record.started, now) &&
            !readMissing(record.unread, record)) {
            exited.push_back(record.pid);
        }
    }
    dropRecords(exited, records);
}

} // namespace gtop_wrappers
