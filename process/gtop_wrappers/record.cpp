// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/record.h"

#include "text/oneline.h"

#include <glib.h>
#include <glibtop.h>
#include <glibtop/proclist.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

namespace gtop_wrappers {

namespace {

/// Enough for the longest text of a cell in any encoding, and for one byte that tells that it is truncated.
constexpr unsigned argumentBytes = 4 * longestText + 1;

constexpr guint64 flag(unsigned field)
{
    return guint64(1) << field;
}

constexpr guint64 stateFields =
    flag(GLIBTOP_PROC_STATE_CMD) | flag(GLIBTOP_PROC_STATE_STATE) | flag(GLIBTOP_PROC_STATE_UID);
constexpr guint64 uidFields =
    flag(GLIBTOP_PROC_UID_UID) | flag(GLIBTOP_PROC_UID_PPID) | flag(GLIBTOP_PROC_UID_NICE);
constexpr guint64 timeFields =
    flag(GLIBTOP_PROC_TIME_START_TIME) | flag(GLIBTOP_PROC_TIME_UTIME) | flag(GLIBTOP_PROC_TIME_STIME);
constexpr guint64 memoryFields =
    flag(GLIBTOP_PROC_MEM_SIZE) | flag(GLIBTOP_PROC_MEM_RESIDENT) | flag(GLIBTOP_PROC_MEM_SHARE);
constexpr guint64 argumentFields = flag(GLIBTOP_PROC_ARGS_SIZE);

bool has(guint64 flags, guint64 fields)
{
    return (flags & fields) == fields;
}

/// libgtop leaves out the flags of fields that it could not read.
bool hasAllFields(unsigned reads, const RawProcess &raw)
{
    return (!(reads & ReadState) || has(raw.state.flags, stateFields)) &&
           (!(reads & (ReadUid | ReadParent)) || has(raw.uid.flags, uidFields)) &&
           (!(reads & ReadTime) || has(raw.time.flags, timeFields)) &&
           (!(reads & ReadMemory) || has(raw.memory.flags, memoryFields)) &&
           (!(reads & ReadArguments) || has(raw.argumentsInfo.flags, argumentFields));
}

struct GFree
{
    void operator()(void *memory) const { g_free(memory); }
};

void readArguments(int pid, RawProcess &raw)
{
    raw.argumentsInfo = {};
    const std::unique_ptr<char, GFree> bytes(glibtop_get_proc_args(&raw.argumentsInfo, pid, argumentBytes));
    const auto size = std::min<guint64>(raw.argumentsInfo.size, argumentBytes);
    raw.arguments = bytes ? QByteArray(bytes.get(), static_cast<int>(size)) : QByteArray();
}

/// glibtop_get_proc_time() also looks for per-CPU times in a file that no kernel has had for decades, unless
/// the machine has one CPU only. Pretending that saves a tenth of a snapshot.
void readTimes(int pid, glibtop_proc_time &times)
{
    glibtop *server = glibtop_init();
    const int lastCpu = std::exchange(server->ncpu, 0);
    glibtop_get_proc_time(&times, pid);
    server->ncpu = lastCpu;
}

/// All that these reads cover.
unsigned withParent(unsigned reads)
{
    return (reads & ReadUid) ? reads | ReadParent : reads;
}

/// Copies what these reads returned.
void fillFrom(unsigned reads, const RawProcess &raw, ProcessRecord &record)
{
    if (reads & ReadState) {
        record.name =
            QByteArray(raw.state.cmd, static_cast<int>(strnlen(raw.state.cmd, sizeof raw.state.cmd)));
        record.state = static_cast<int>(raw.state.state);
        record.user = raw.state.uid;
        // libgtop has no flag for it. Counted from 1 like the cores on the System page.
        record.processor = std::clamp(raw.state.last_processor, -1, std::numeric_limits<int>::max() - 1) + 1;
    }
    if (reads & (ReadUid | ReadParent)) {
        record.parent = raw.uid.ppid;
    }
    if (reads & ReadUid) {
        record.nice = raw.uid.nice;
    }
    if (reads & ReadTime) {
        record.cpuTime = raw.time.utime + raw.time.stime;
        record.frequency = raw.time.frequency;
        record.started = raw.time.start_time;
    }
    if (reads & ReadMemory) {
        record.resident = raw.memory.resident;
        record.virtualSize = raw.memory.size; // vsize is the same, but not covered by libgtop's flags
        record.shared = raw.memory.share;
    }
    if (reads & ReadArguments) {
        record.arguments = raw.arguments;
    }
}

/// Makes further reads of the same process; false if it has exited.
bool readSame(const ProcessRecord &record, unsigned reads, RawProcess &raw)
{
    if (!canReadTimes()) {
        return false;
    }
    readRaw(record.pid, reads | ReadTime, raw);
    return hasAllFields(reads | ReadTime, raw) && raw.time.start_time == record.started;
}

bool toRecordAhead(int pid, unsigned reads, unsigned ahead, const RawProcess &raw, ProcessRecord &record)
{
    if (!toRecord(pid, reads | ahead, raw, record)) {
        return false;
    }
    record.unread |= ahead;
    record.ahead = ahead;
    return true;
}

} // namespace

bool canReadTimes()
{
    return access("/proc/stat", R_OK) == 0;
}

std::vector<int> readPids()
{
    glibtop_proclist info = {};
    const std::unique_ptr<pid_t, GFree> list(glibtop_get_proclist(&info, GLIBTOP_KERN_PROC_ALL, 0));
    std::vector<int> pids;
    if (list) {
        pids.assign(list.get(), list.get() + info.number);
    }
    std::sort(pids.begin(), pids.end());
    pids.erase(std::unique(pids.begin(), pids.end()), pids.end());
    pids.erase(pids.begin(), std::upper_bound(pids.begin(), pids.end(), 0));
    return pids;
}

void readRaw(int pid, unsigned reads, RawProcess &raw)
{
    if (reads & ReadState) {
        glibtop_get_proc_state(&raw.state, pid);
    }
    if (reads & (ReadUid | ReadParent)) {
        glibtop_get_proc_uid(&raw.uid, pid);
    }
    if (reads & ReadMemory) {
        glibtop_get_proc_mem(&raw.memory, pid);
    }
    if (reads & ReadArguments) {
        readArguments(pid, raw);
    }
    if (reads & ReadTime) {
        readTimes(pid, raw.time);
    }
}

bool toRecord(int pid, unsigned reads, const RawProcess &raw, ProcessRecord &record)
{
    if (!hasAllFields(reads, raw)) {
        return false;
    }
    record = ProcessRecord();
    record.pid = pid;
    record.unread = ReadEverything & ~withParent(reads);
    fillFrom(reads, raw, record);
    return true;
}

bool readMissing(unsigned reads, ProcessRecord &record)
{
    RawProcess raw;
    if (!readSame(record, reads, raw)) {
        return false;
    }
    fillFrom(reads, raw, record);
    record.unread &= ~withParent(reads);
    return true;
}

std::vector<ProcessRecord> readProcesses(std::optional<uid_t> user, unsigned reads,
                                         const std::function<unsigned(int)> &more)
{
    const unsigned first = user ? unsigned(ReadState) : 0U;
    const std::vector<int> pids = readPids();
    std::vector<ProcessRecord> records;
    records.reserve(user ? 0 : pids.size());
    RawProcess raw;
    ProcessRecord record;
    for (const int pid : pids) {
        readRaw(pid, first, raw);
        if (user && static_cast<uid_t>(raw.state.uid) != *user) {
            continue;
        }
        const unsigned all = reads | first;
        const unsigned ahead = more ? more(pid) & ~all : 0U;
        readRaw(pid, (all | ahead) & ~first, raw);
        if (toRecordAhead(pid, all, ahead, raw, record) || toRecord(pid, all, raw, record)) {
            records.push_back(std::move(record));
        }
    }
    return records;
}

void dropRecords(const std::vector<int> &pids, std::vector<ProcessRecord> &records)
{
    const auto isDropped = [&pids](const ProcessRecord &record) {
        return std::binary_search(pids.begin(), pids.end(), record.pid);
    };
    records.erase(std::remove_if(records.begin(), records.end(), isDropped), records.end());
}

} // namespace gtop_wrappers
