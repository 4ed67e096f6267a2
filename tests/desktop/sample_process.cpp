// SPDX-License-Identifier: GPL-3.0-or-later
// A process that the desktop tests look for in the process list:
//   sample_process <name> <what> [<user id>]
// It takes that name (the first 15 bytes) and user and then, depending on <what>,
//   sleep   sleeps,
//   busy    computes,
//   parent  starts a child "<name>c" fifty times a second, each of which exits after 0.4 seconds,
//   heir    starts a child "<name>c" five times a second, which exits after 0.4 seconds and leaves a child of
//           its own that is reparented to this process and exits 0.4 seconds later.
// Once it does so, with its first child running, it prints a line. On SIGUSR1 each of these processes renames
// itself to "<name>n". It ends with the process that started it.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

std::string nextName;

bool takeUser(const char *id)
{
    const auto user = static_cast<unsigned>(std::strtoul(id, nullptr, 10));
    return setgid(user) == 0 && setuid(user) == 0;
}

void announce()
{
    std::puts("ready");
    std::fflush(stdout);
}

void sleepFor(long milliseconds)
{
    const timespec time = {0, milliseconds * 1000000};
    nanosleep(&time, nullptr);
}

[[noreturn]] void startChildren(const std::string &name, void (*run)(), long interval)
{
    std::signal(SIGCHLD, SIG_IGN); // the kernel reaps them
    for (bool isFirst = true;; isFirst = false) {
        if (fork() == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            prctl(PR_SET_NAME, name.c_str());
            run();
            _exit(0);
        }
        if (isFirst) {
            announce();
        }
        sleepFor(interval);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3) {
        return 2;
    }
    const std::string name = argv[1];
    const std::string what = argv[2];
    nextName = name + 'n';
    if (argc > 3 && !takeUser(argv[3])) {
        return 3;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL); // cleared by the kernel at a change of user
    std::signal(SIGUSR1, [](int) { prctl(PR_SET_NAME, nextName.c_str()); });
    prctl(PR_SET_NAME, name.c_str());
    if (what == "parent") {
        startChildren(
            name + 'c', [] { sleepFor(400); }, 20);
    }
    if (what == "heir") {
        prctl(PR_SET_CHILD_SUBREAPER, 1);
        const auto liveAndLeaveAChild = [] { sleepFor(fork() == 0 ? 800 : 400); };
        startChildren(name + 'c', liveAndLeaveAChild, 200);
    }
    announce();
    volatile bool isBusy = what == "busy";
    while (isBusy) {
    }
    for (;;) {
        pause();
    }
}
