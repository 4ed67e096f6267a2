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

namespace standin {
namespace {

std::map<int, int> g_answers; // calls answered about each pid since the last process list

/// The process, or null if there is none of that pid (any more).
const Process *processFor(pid_t pid)
{
    const auto found = machine().processes->find(pid);
    if (found == machine().processes->end()) {
        return nullptr;
    }
    const Process &process = found->second;
    if (process.answersBeforeEnd >= 0 && g_answers[pid]++ >= process.answersBeforeEnd) {
        return nullptr;
    }
    return &process;
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

/// What a busy machine has besides would make a test slow.
void leaveOutOthers(pid_t *pids, glibtop_proclist *buf)
{
    int left = machine().mostOfOthers;
    pid_t *end = std::remove_if(pids, pids + buf->number,
                                [&](pid_t pid) { return !isOfThisUser(pid) && left-- <= 0; });
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
    g_answers.clear();
    const std::map<int, Process> &processes = *machine().processes;
    auto *pids = static_cast<pid_t *>(g_malloc0_n(processes.size() + 1, sizeof(pid_t)));
    *buf = glibtop_proclist{};
    buf->flags = allFlags;
    buf->size = sizeof(pid_t);
    for (const auto &[pid, process] : processes) {
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
    ++countedCalls().processData;
    if (!machine().processes) {
        return real(buf, pid);
    }
    *buf = glibtop_proc_state{};
    const Process *process = processFor(pid);
    if (!process) {
        return;
    }
    buf->flags = allFlags;
    copyText(buf->cmd, process->name);
    buf->state = process->state;
    buf->uid = buf->ruid = process->uid;
}

STANDIN_CALL void glibtop_get_proc_uid(glibtop_proc_uid *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_uid)>("glibtop_get_proc_uid");
    ++countedCalls().processData;
    if (!machine().processes) {
        return real(buf, pid);
    }
    *buf = glibtop_proc_uid{};
    const Process *process = processFor(pid);
    if (!process) {
        return;
    }
    buf->flags = allFlags;
    buf->uid = buf->euid = buf->suid = buf->fsuid = process->uid;
    buf->pid = pid;
    buf->ppid = process->parent;
    buf->nice = process->nice;
    buf->priority = 20 + process->nice;
}

STANDIN_CALL void glibtop_get_proc_time(glibtop_proc_time *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_time)>("glibtop_get_proc_time");
    ++countedCalls().processData;
    if (!machine().processes) {
        return real(buf, pid);
    }
    *buf = glibtop_proc_time{};
    const Process *process = processFor(pid);
    if (!process) {
        return;
    }
    buf->flags = allFlags;
    buf->start_time = process->startTime;
    buf->utime = process->userTime;
    buf->stime = process->systemTime;
    buf->rtime = process->userTime + process->systemTime;
    buf->frequency = 100;
}

STANDIN_CALL void glibtop_get_proc_mem(glibtop_proc_mem *buf, pid_t pid)
{
    static const auto real = nextCall<decltype(glibtop_get_proc_mem)>("glibtop_get_proc_mem");
    ++countedCalls().processData;
    if (!machine().processes) {
        return real(buf, pid);
    }
    *buf = glibtop_proc_mem{};
    const Process *process = processFor(pid);
    if (!process) {
        return;
    }
    buf->flags = allFlags;
    buf->size = buf->vsize = process->virtualSize;
    buf->resident = buf->rss = process->resident;
    buf->share = process->shared;
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
    const std::string &bytes = process->arguments;
    buf->flags = allFlags;
    buf->size = max_len ? std::min<std::size_t>(bytes.size(), max_len) : bytes.size();
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
