// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_STARTTIME_H
#define GTOP_WRAPPERS_STARTTIME_H

#include <QtGlobal>

#include <optional>

namespace gtop_wrappers {

/// When the process that has this pid now started, in the unit of Process::startTime(). Nothing if there is
/// none, or if it cannot be read.
std::optional<quint64> readStartTime(int pid);

} // namespace gtop_wrappers

#endif
