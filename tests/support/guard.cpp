// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded into the real program by tests that pick random rows of its process list: the program can't
// signal itself or change its own priority, nor those of any process if ZSM_GUARD is "all". The refusal looks
// like the kernel's. A signal to several processes at once is always a mistake: it is refused and reported.
#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

bool isRefused(pid_t pid)
{
    static const char *guarded = std::getenv("ZSM_GUARD");
    return pid == getpid() || (guarded && std::string(guarded) == "all");
}

int refuse(int error)
{
    errno = error;
    return -1;
}

} // namespace

extern "C" int kill(pid_t pid, int signal) noexcept
{
    static const auto real = reinterpret_cast<decltype(&::kill)>(dlsym(RTLD_NEXT, "kill"));
    if (pid <= 0) {
        std::fprintf(stderr, "guard: kill(%d, %d)\n", pid, signal);
        return refuse(EPERM);
    }
    return isRefused(pid) ? refuse(EPERM) : real(pid, signal);
}

extern "C" int setpriority(__priority_which_t which, id_t who, int priority) noexcept
{
    static const auto real = reinterpret_cast<decltype(&::setpriority)>(dlsym(RTLD_NEXT, "setpriority"));
    return isRefused(static_cast<pid_t>(who)) ? refuse(EACCES) : real(which, who, priority);
}
