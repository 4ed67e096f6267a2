// SPDX-License-Identifier: GPL-3.0-or-later
#include "pidnamespace.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace {

constexpr int refused = 125; ///< exit status

bool writeTo(const char *path, const std::string &text)
{
    const int file = open(path, O_WRONLY | O_CLOEXEC);
    const bool isWritten = write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    close(file);
    return isWritten;
}

std::string sameId(id_t id)
{
    const std::string text = std::to_string(id);
    return text + ' ' + text + " 1";
}

/// For those who are not root: with a user namespace, in which the test keeps its user.
bool unshareAsUser()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    return unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNS) == 0 &&
           writeTo("/proc/self/setgroups", "deny") && writeTo("/proc/self/uid_map", sameId(user)) &&
           writeTo("/proc/self/gid_map", sameId(group));
}

int statusOf(pid_t child)
{
    int status = 0;
    pid_t ended = -1;
    do {
        ended = wait(&status);
    } while (ended != child && (ended != -1 || errno == EINTR));
    return ended == child && WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}

/// Runs in a child, which does not outlive the caller, and returns its exit status.
int inChild(const std::function<int()> &run)
{
    const pid_t child = fork();
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        exit(run()); // not _exit(), for the leak check
    }
    return child > 0 ? statusOf(child) : EXIT_FAILURE;
}

} // namespace

int runInPidNamespace(const std::function<int(bool)> &test)
{
    const auto asInit = [&test] {
        const bool hasProc = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                             mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC, nullptr) == 0;
        return hasProc && choosePid(2) ? inChild([&test] { return test(true); }) : refused;
    };
    const int status = inChild([&asInit] {
        const bool isUnshared = unshare(CLONE_NEWPID | CLONE_NEWNS) == 0 || unshareAsUser();
        return isUnshared ? inChild(asInit) : refused;
    });
    return status == refused ? test(false) : status;
}

bool choosePid(pid_t pid)
{
    return writeTo("/proc/sys/kernel/ns_last_pid", std::to_string(pid - 1));
}

bool forbidPidfds()
{
#ifdef SYS_pidfd_open
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {sizeof rules / sizeof *rules, rules};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
#else
    return true;
#endif
}
