// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/startclock.h"

#include <algorithm>
#include <limits>

namespace gtop_wrappers {

void StartClock::see(quint64 started, Time now)
{
    if (started > earliestSecondAt(now)) {
        latestStart = started;
        seenAt = now;
    }
}

bool StartClock::secondIsOver(quint64 started, Time now) const
{
    return started < earliestSecondAt(now);
}

quint64 StartClock::earliestSecondAt(Time now) const
{
    if (latestStart == 0 || now < seenAt) {
        return latestStart;
    }
    const auto elapsed =
        static_cast<quint64>(std::chrono::duration_cast<std::chrono::seconds>(now - seenAt).count());
    return latestStart + std::min(elapsed, std::numeric_limits<quint64>::max() - latestStart);
}

} // namespace gtop_wrappers
