// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_READER_H
#define GTOP_WRAPPERS_READER_H

#include "process/gtop_wrappers/parents.h"
#include "process/gtop_wrappers/record.h"
#include "process/gtop_wrappers/startclock.h"

#include <optional>
#include <vector>

namespace gtop_wrappers {

/// Reads the processes for one snapshot after another, with no more calls than each needs.
class ProcessReader
{
public:
    /// The processes, ascending by pid, with these reads (Reads, or-ed; ReadState and ReadTime at least).
    /// From the second time on they have their parent even without ReadParent: it costs little once it is
    /// known. The rest is left unread, except of processes that are too young to be identified by their start
    /// (see StartClock): reading those later could return values of another process. user: as for
    /// readProcesses(). memoryOf: processes, ascending, whose memory is read ahead.
    std::vector<ProcessRecord> read(std::optional<uid_t> user, unsigned reads,
                                    const std::vector<int> &memoryOf = {});

private:
    std::vector<ProcessRecord> readFirstParents(std::optional<uid_t> user, unsigned reads);
    void readRestOfYoung(std::vector<ProcessRecord> &records, StartClock::Time now) const;

    StartClock clock;
    Parents parents;
    bool hasRead = false;
    bool hasReadParents = false;
};

} // namespace gtop_wrappers

#endif
