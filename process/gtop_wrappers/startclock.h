// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_STARTCLOCK_H
#define GTOP_WRAPPERS_STARTCLOCK_H

#include <QtGlobal>

#include <chrono>

namespace gtop_wrappers {

/// Tells whether the second in which a process started is over.
///
/// Start times are whole seconds. Until that second is over, pid and start do not identify a process: it may
/// exit and its pid be reused within the same second. The wall clock can be set and is no help, so the
/// current second is estimated from below: the latest start seen so far, plus the time that has passed since.
class StartClock
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Notes that a process seen at `now` started at `started` (seconds since the epoch).
    void see(quint64 started, Time now);
    /// Whether the second `started` was certainly over at `now`.
    bool secondIsOver(quint64 started, Time now) const;

private:
    quint64 earliestSecondAt(Time now) const;

    quint64 latestStart = 0;
    Time seenAt;
};

} // namespace gtop_wrappers

#endif
