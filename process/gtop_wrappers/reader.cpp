// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/reader.h"

#include <unistd.h>

#include <algorithm>
#include <utility>

namespace gtop_wrappers {

std::vector<ProcessRecord> ProcessReader::read(std::optional<uid_t> user, unsigned reads,
                                               const std::vector<int> &memoryOf)
{
    const auto readsAhead = [&](int pid) {
        const bool isWanted = std::binary_search(memoryOf.begin(), memoryOf.end(), pid);
        return parents.dueReads(pid) | (isWanted ? unsigned(ReadMemory) : 0U);
    };
    const bool withParents = std::exchange(hasRead, true) || (reads & ReadParent) != 0;
    reads &= ~ReadParent; // resolved below
    std::vector<ProcessRecord> records = withParents && !std::exchange(hasReadParents, true)
                                             ? readFirstParents(user, reads)
                                             : readProcesses(user, reads, readsAhead);
    const StartClock::Time now = std::chrono::steady_clock::now();
    for (const ProcessRecord &record : records) {
        clock.see(record.started, now);
    }
    readRestOfYoung(records, now);
    if (withParents) {
        parents.resolve(records, clock, now, true);
    }
    return records;
}

/// No parent is known yet, and one by one they would take two calls each. Reading them with the rest takes
/// one, and the parents of all processes that are older than this program are certain.
std::vector<ProcessRecord> ProcessReader::readFirstParents(std::optional<uid_t> user, unsigned reads)
{
    RawProcess self;
    readRaw(getpid(), ReadTime, self);
    std::vector<ProcessRecord> records = readProcesses(user, reads | ReadParent);
    parents.learn(records, self.time.start_time);
    for (ProcessRecord &record : records) {
        record.unread |= ReadParent;
    }
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
