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

#include <functional>
#include <optional>
#include <vector>

namespace gtop_wrappers {

/// The libgtop calls that read a process. They are most of what a refresh costs, so none is made in vain.
enum Reads : unsigned {
    ReadState = 1, ///< name, state, effective user, processor
    ReadUid = 2,   ///< parent, nice value
    ReadTime = 4,  ///< CPU time, start
    ReadMemory = 8,
    ReadArguments = 16,
    ReadParent = 32, ///< parent only: the same call as ReadUid, which includes it
    ReadEverything = 63
};

/// libgtop's answers about one process; only those of the calls that were made are meaningful.
struct RawProcess
{
    glibtop_proc_state state;
    glibtop_proc_uid uid;
    glibtop_proc_time time;
    glibtop_proc_mem memory;
    glibtop_proc_args argumentsInfo;
    QByteArray arguments;
};

/// What was read of one process in one snapshot. Fields that were not read have the values given here.
struct ProcessRecord
{
    int pid = -1;
    QByteArray name; ///< arbitrary bytes: at most 15 of a program, 39 of a kernel worker
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
    QByteArray arguments; ///< truncated; each argument ends with a null character
    unsigned unread = 0;  ///< Reads, or-ed, that were not made
    unsigned ahead = 0;   ///< of those, the ones that were made of this process only
};

/// The pids that libgtop lists, ascending and without duplicates.
std::vector<int> readPids();

/// Whether libgtop can read the times of processes: without /proc/stat it ends the program. To be asked
/// before single reads; snapshots are only taken where it is there.
bool canReadTimes();

/// Makes the calls in `reads` (Reads, or-ed) for one process. The start is read last: if it is the expected
/// one, so is the process that everything before was read from.
void readRaw(int pid, unsigned reads, RawProcess &raw);

/// Condenses the raw answers into `record`; false if required fields are missing, that is, the process exited
/// while being read.
bool toRecord(int pid, unsigned reads, const RawProcess &raw, ProcessRecord &record);

/// Makes further reads (Reads, or-ed) for a process whose start is known. False, with the record unchanged,
/// if it has exited, even if its pid has been reused.
bool readMissing(unsigned reads, ProcessRecord &record);

/// Reads the processes, ascending by pid, without those that exit in the meantime.
/// user: only the processes of this effective user id, which is cheaper to read than the real one; none for
/// all processes.
/// more: further reads (Reads, or-ed) of single processes, by pid. They still count as unread; if one fails,
/// none was made ahead.
std::vector<ProcessRecord> readProcesses(std::optional<uid_t> user, unsigned reads,
                                         const std::function<unsigned(int)> &more = {});

/// Removes the records of these pids, which are ascending.
void dropRecords(const std::vector<int> &pids, std::vector<ProcessRecord> &records);

} // namespace gtop_wrappers

#endif
