// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_STARTCLOCK_H
#define GTOP_WRAPPERS_STARTCLOCK_H

#include <QtGlobal>

#include <chrono>

namespace gtop_wrappers {

/// Tells whether the second in which a process started is over. While it is not, pid and start do not name a
/// process: it may end, and another take its pid with the same start. Reckons from the starts it is told
/// alone, since the wall clock may be set.
class StartClock
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// At `now` a process that started then (seconds since the epoch) is known to exist.
    void see(quint64 started, Time now);
    /// Whether that second was over at `now`; false if in doubt.
    bool isOver(quint64 started, Time now) const;

private:
    quint64 secondAt(Time now) const;

    quint64 newest = 0;
    Time seenAt;
};

} // namespace gtop_wrappers

#endif
