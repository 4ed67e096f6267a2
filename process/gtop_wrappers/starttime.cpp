// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/starttime.h"

#include "process/gtop_wrappers/record.h"

namespace gtop_wrappers {

std::optional<quint64> readStartTime(int pid)
{
    RawProcess raw;
    ProcessRecord record;
    if (!canReadTimes()) {
        return std::nullopt;
    }
    readRaw(pid, ReadTime, raw);
    return toRecord(pid, ReadTime, raw, record) ? std::optional<quint64>(record.started) : std::nullopt;
}

} // namespace gtop_wrappers
