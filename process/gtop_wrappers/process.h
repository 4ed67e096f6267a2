// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_PROCESS_H
#define GTOP_WRAPPERS_PROCESS_H

#include "process/gtop_wrappers/param.h"

#include <vector>

namespace gtop_wrappers {

/// The process columns; the numbers are fixed.
enum ProcessColumn : unsigned long {
    NameColumn,
    CpuColumn, ///< always a CpuProcessParam
    PidColumn,
    UserColumn,
    MemoryColumn,
    StateColumn, ///< always an IntProcessParam with libgtop's state code
    VirtualMemoryColumn,
    SharedMemoryColumn,
    NiceColumn,
    ParentPidColumn,
    CpuTimeColumn, ///< sorts by jiffies
    StartedColumn,
    CommandLineColumn,
    ProcessorColumn,
    ColumnCount
};

/// libgtop's GLIBTOP_PROCESS_STOPPED: the value of the State column for a stopped process.
constexpr int stoppedState = 16;

/// One process as it was read: its pid and one value per column. Copied freely; the values are shared.
class Process
{
public:
    /// A process without values; Process(-1) stands for "none".
    explicit Process(int pid);

    int pid() const;
    /// Parent pid, from the values; 0 without them.
    int getPPid() const;
    /// Name as the Name column shows it; empty without values.
    QString getName() const;
    /// CPU time counter: user plus system time plus one in the unit of libgtop's total CPU time, truncated to
    /// 32 bits, so the sign is meaningless. From the CPU time column; 0 without values.
    int getCpuLoad() const;
    /// When it started, in seconds since the epoch, from the Started column; 0 without values. Together with
    /// the pid it identifies a process.
    quint64 startTime() const;
    /// Value of column i; an empty pointer where there is none.
    ParamPtr getParam(unsigned long i) const;

    // Public and in this order, because callers that keep a process copy them directly.
    int id;
    std::vector<ParamPtr> params;

private:
    QVariant sortValue(ProcessColumn column) const;
};

} // namespace gtop_wrappers

#endif
