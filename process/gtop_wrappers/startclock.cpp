// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/startclock.h"

#include <algorithm>
#include <limits>

namespace gtop_wrappers {

void StartClock::see(quint64 started, Time now)
{
    if (started > secondAt(now)) {
        newest = started;
        seenAt = now;
    }
}

bool StartClock::isOver(quint64 started, Time now) const
{
    return started < secondAt(now);
}

/// The earliest second that `now` can be in.
quint64 StartClock::secondAt(Time now) const
{
    if (newest == 0 || now < seenAt) {
        return newest;
    }
    const auto elapsed =
        static_cast<quint64>(std::chrono::duration_cast<std::chrono::seconds>(now - seenAt).count());
    return newest + std::min(elapsed, std::numeric_limits<quint64>::max() - newest);
}

} // namespace gtop_wrappers
