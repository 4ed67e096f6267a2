// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_RECORD_H
#define GTOP_WRAPPERS_RECORD_H

#include <QByteArray>

#include <glibtop/procargs.h>
#include <glibtop/procmem.h>
#include <glibtop/procstate.h>
#include <glibtop/proctime.h>
#include <glibtop/procuid.h>
#include <sys/types.h>

#include <optional>
#include <vector>

namespace gtop_wrappers {

/// The libgtop calls that reading a process can take; they are what a refresh costs, so none is made in vain.
enum Reads : unsigned {
    ReadState = 1, ///< name, state, effective user, processor
    ReadUid = 2,   ///< parent, nice value
    ReadTime = 4,  ///< CPU time, start
    ReadMemory = 8,
    ReadArguments = 16,
    ReadEverything = 31
};

/// libgtop's answers about one process; only those of the calls that were made mean anything.
struct RawProcess
{
    glibtop_proc_state state;
    glibtop_proc_uid uid;
    glibtop_proc_time time;
    glibtop_proc_mem memory;
    glibtop_proc_args argumentsInfo;
    QByteArray arguments;
};

/// What the columns are made from; what was not read has the value given here.
struct ProcessRecord
{
    int pid = -1;
    QByteArray name; ///< as the kernel has it: at most 15 bytes of any kind
    int state = 0;   ///< libgtop's code
    int user = -1;   ///< effective user id
    int parent = 0;
    int nice = 0;
    int processor = 0;     ///< that it last ran on, counted from 1; 0 if unknown
    quint64 cpuTime = 0;   ///< user and system time in jiffies
    quint64 frequency = 0; ///< jiffies per second
    quint64 started = 0;   ///< seconds since the epoch
    quint64 resident = 0;  ///< this and the next two in bytes
    quint64 virtualSize = 0;
    quint64 shared = 0;
    QByteArray arguments;     ///< the beginning of them, a null character behind each
    bool parentHolds = false; ///< the parent can't change before it ends in sight
    unsigned late = 0; ///< reads (Reads, or-ed) that were not made, and are left for when they are asked for
};

/// The pids that libgtop lists, ascending, each once.
std::vector<int> readPids();

/// Makes the calls in `reads` (Reads, or-ed) for one process.
void readRaw(int pid, unsigned reads, RawProcess &raw);

/// What was read in short; false if the process ended before all of it was there, which libgtop shows by a
/// record without the flags of its fields.
bool reduce(int pid, unsigned reads, const RawProcess &raw, ProcessRecord &record);

/// Makes further reads (Reads, or-ed) for a process whose start has been read. False, and nothing changed, if
/// it has ended meanwhile, also if its pid has gone to a process with another start.
bool readAlso(unsigned reads, ProcessRecord &record);

/// Reads the processes, ascending by pid, without those that end meanwhile.
/// user: only those of this effective user id, which costs less than asking each for its real one; none for
/// all.
std::vector<ProcessRecord> readProcesses(std::optional<uid_t> user, unsigned reads);

} // namespace gtop_wrappers

#endif
