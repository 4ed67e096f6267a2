// SPDX-License-Identifier: GPL-3.0-or-later
// A process that the desktop tests look for in the process list:
//   sample_process <name> <what> [<user id>]
// takes that name (15 bytes of it) and user, writes the pid of its child or 0, and then, by <what>, sleeps
// ("sleep"), computes ("busy") or sleeps beside a child called "<name>c" ("parent"). Every one calls itself
// "<name>n" when it gets SIGUSR1. It ends with the process that started it.
#include <csignal>
#include <cstdio>
#include <cstdlib>
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

[[noreturn]] void sleepOn()
{
    for (;;)
        pause();
}

[[noreturn]] void compute()
{
    for (volatile unsigned turn = 0;; turn = turn + 1) {
    }
}

int startChild(const std::string &name)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    endWithStarter();
    takeName(name);
    sleepOn();
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
    std::printf("%d\n", what == "parent" ? startChild(name + 'c') : 0);
    std::fflush(stdout);
    if (what == "busy")
        compute();
    sleepOn();
}
