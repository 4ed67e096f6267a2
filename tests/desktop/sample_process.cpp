// SPDX-License-Identifier: GPL-3.0-or-later
// A process that the desktop tests look for in the process list:
//   sample_process <name> <what> [<user id>]
// takes that name (15 bytes of it) and user and then, by <what>, sleeps ("sleep"), computes ("busy"), starts
// a child called "<name>c" fifty times a second, each of which lives for 0.4 seconds ("parent"), or starts a
// child five times a second whose own child is left to this one after 0.4 seconds and ends 0.4 seconds later
// ("heir"). It writes a line as soon as it does, with the first child there if it has some. Every one calls
// itself "<name>n" when it gets SIGUSR1. It ends with the process that started it.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

std::string nextName;

void takeName(const std::string &name)
{
    prctl(PR_SET_NAME, name.c_str());
}

void takeNextName(int)
{
    prctl(PR_SET_NAME, nextName.c_str());
}

void endWithStarter()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // forgotten by the kernel at a change of user
}

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

[[noreturn]] void sleepOn()
{
    announce();
    for (;;)
        pause();
}

[[noreturn]] void compute()
{
    announce();
    for (volatile unsigned turn = 0;; turn = turn + 1) {
    }
}

void sleepFor(long milliseconds)
{
    const timespec time = {0, milliseconds * 1000000};
    nanosleep(&time, nullptr);
}

[[noreturn]] void startChildren(const std::string &name)
{
    std::signal(SIGCHLD, SIG_IGN); // the kernel clears them away
    for (bool isFirst = true;; isFirst = false) {
        if (fork() == 0) {
            endWithStarter();
            takeName(name);
            sleepFor(400);
            _exit(0);
        }
        if (isFirst)
            announce();
        sleepFor(20);
    }
}

// What its child leaves behind comes to this process, not to the first of the system.
[[noreturn]] void inherit(const std::string &name)
{
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    std::signal(SIGCHLD, SIG_IGN);
    for (bool isFirst = true;; isFirst = false) {
        if (fork() == 0) {
            endWithStarter();
            takeName(name);
            if (fork() == 0) {
                sleepFor(800);
                _exit(0);
            }
            sleepFor(400);
            _exit(0);
        }
        if (isFirst)
            announce();
        sleepFor(200);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3)
        return 2;
    const std::string name = argv[1];
    const std::string what = argv[2];
    nextName = name + 'n';
    if (argc > 3 && !takeUser(argv[3]))
        return 3;
    endWithStarter();
    std::signal(SIGUSR1, takeNextName);
    takeName(name);
    if (what == "parent")
        startChildren(name + 'c');
    if (what == "heir")
        inherit(name + 'c');
    if (what == "busy")
        compute();
    sleepOn();
}
