// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin_calls.h"

#include <glib.h>
#include <glibtop.h>
#include <glibtop/procargs.h>
#include <glibtop/proclist.h>
#include <glibtop/procmem.h>
#include <glibtop/procstate.h>
#include <glibtop/proctime.h>
#include <glibtop/procuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace standin {
namespace {

std::map<int, int> answers; ///< calls answered about each pid since the last process list

/// Null if the process does not exist or has exited meanwhile.
const Process *processFor(pid_t pid)
{
    const auto found = machine().processes->find(pid);
    if (found == machine().processes->end()) {
        return nullptr;
    }
    const Process &process = found->second;
    const bool hasExited = process.answersBeforeEnd >= 0 && answers[pid]++ >= process.answersBeforeEnd;
    return hasExited ? nullptr : &process;
}

/// Answers a call about one process: by libgtop, or with a record that is zeroed and, if the process exists,
/// filled.
template <typename Record, typename Fill>
void answer(void (*real)(Record *, pid_t), Record *buf, pid_t pid, Fill fill)
{
    ++countedCalls().processData;
    if (!machine().processes) {
        real(buf, pid);
        return;
    }
    *buf = Record{};
    if (const Process *process = processFor(pid)) {
        buf->flags = allFlags;
        fill(*process);
    }
}

bool isListed(const Process &process, gint64 which, gint64 arg)
{
    const gint64 kind = which & GLIBTOP_KERN_PROC_MASK;
    return (kind != GLIBTOP_KERN_PROC_UID && kind != GLIBTOP_KERN_PROC_RUID) || process.uid == arg;
}

bool isOfThisUser(pid_t pid)
{
    struct stat status;
    return stat(("/proc/" + std::to_string(pid)).c_str(), &status) == 0 && status.st_uid == getuid();
}

/// 0 if the process does not exist.
pid_t parentOf(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    std::getline(file, line, '\0'); // not by an iterator, which throws if the process exits meanwhile
    const std::size_t afterName = line.rfind(')');
    return afterName == std::string::npos ? 0 : std::atoi(line.c_str() + afterName + 4);
}

bool isOfThisTest(pid_t pid)
{
    const pid_t test = getppid();
    while (pid > 1 && pid != test) {
        pid = parentOf(pid);
    }
    return pid == test;
}

/// The other processes of a busy machine would make a test slow, and those of the user's other tests would
/// move the rows and take branches of the tree away.
void leaveOutOthers(pid_t *pids, glibtop_proclist *buf)
{
    int left = machine().mostOfOthers;
    const auto isLeftOut = [&](pid_t pid) {
        return !(isOfThisUser(pid) && isOfThisTest(pid)) && left-- <= 0;
    };
    pid_t *end = std::remove_if(pids, pids + buf->number, isLeftOut);
    buf->number = static_cast<guint64>(end - pids);
    buf->total = buf->number * buf->size;
}

} // namespace
} // namespace standin

using namespace standin;

STANDIN_CALL pid_t *glibtop_get_proclist(glibtop_proclist *buf, gint64 which, gint64 arg)
{
    static const auto real = nextCall<decltype(glibtop_get_proclist)>("glibtop_get_proclist");
    ++countedCalls().processList;
    readFileIfChanged();
    if (!machine().processes) {
        pid_t *pids = real(buf, which, arg);
        if (machine().mostOfOthers >= 0) {
            leaveOutOthers(pids, buf);
        }
        return pids;
    }
    answers.clear();
    auto *pids = static_cast<pid_t *>(g_malloc0_n(machine().processes->size() + 1, sizeof(pid_t)));
    *buf = glibtop_proclist{};
    buf->flags = allFlags;
    buf->size = sizeof(pid_t);
    for (const auto &[pid, process] : *machine().processes) {
        if (isListed(process, which, arg)) {
            pids[buf->number++] = pid;
        }
    }
    buf->total = buf->number * buf->size;
    return pids;
}

STANDIN_CALL void glibtop_get_proc_state(glibtop_proc_state *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_state)>("glibtop_get_proc_state");
    answer(real, buf, pid, [buf](const Process &process) {
        copyText(buf->cmd, process.name);
        buf->state = process.state;
        buf->uid = buf->ruid = process.uid;
    });
}

STANDIN_CALL void glibtop_get_proc_uid(glibtop_proc_uid *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_uid)>("glibtop_get_proc_uid");
    answer(real, buf, pid, [=](const Process &process) {
        buf->uid = buf->euid = buf->suid = buf->fsuid = process.uid;
        buf->pid = pid;
        buf->ppid = process.parent;
        buf->nice = process.nice;
        buf->priority = 20 + process.nice;
    });
}

STANDIN_CALL void glibtop_get_proc_time(glibtop_proc_time *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_time)>("glibtop_get_proc_time");
    answer(real, buf, pid, [buf](const Process &process) {
        buf->start_time = process.startTime;
        buf->utime = process.userTime;
        buf->stime = process.systemTime;
        buf->rtime = process.userTime + process.systemTime;
        buf->frequency = 100;
    });
}

STANDIN_CALL void glibtop_get_proc_mem(glibtop_proc_mem *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_mem)>("glibtop_get_proc_mem");
    answer(real, buf, pid, [buf](const Process &process) {
        buf->size = buf->vsize = process.virtualSize;
        buf->resident = buf->rss = process.resident;
        buf->share = process.shared;
        buf->flags = process.memoryFails ? 0 : allFlags;
    });
}

STANDIN_CALL char *glibtop_get_proc_args(glibtop_proc_args *buf, pid_t pid, unsigned max_len)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_args)>("glibtop_get_proc_args");
    ++countedCalls().processData;
    if (!machine().processes) {
        return real(buf, pid, max_len);
    }
    *buf = glibtop_proc_args{};
    const Process *process = processFor(pid);
    if (!process) {
        return nullptr;
    }
    const std::string bytes = process->arguments.substr(0, max_len ? max_len : std::string::npos);
    buf->flags = allFlags;
    buf->size = bytes.size();
    auto *copy = static_cast<char *>(g_malloc0(buf->size + 1));
    std::memcpy(copy, bytes.data(), buf->size);
    return copy;
}

STANDIN_CALL char **glibtop_get_proc_argv(glibtop_proc_args *buf, pid_t pid, unsigned max_len)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_argv)>("glibtop_get_proc_argv");
    if (!machine().processes) {
        return real(buf, pid, max_len);
    }
    char *bytes = glibtop_get_proc_args(buf, pid, max_len);
    std::vector<const char *> starts;
    for (const char *each = bytes; bytes && each < bytes + buf->size; each += std::strlen(each) + 1) {
        starts.push_back(each);
    }
    auto *list = static_cast<char **>(g_malloc0_n(starts.size() + 1, sizeof(char *)));
    std::transform(starts.begin(), starts.end(), list, g_strdup);
    g_free(bytes);
    return list;
}
