// SPDX-License-Identifier: GPL-3.0-or-later
// Load for the process list: forker <processes a second>
// Forks at that rate until its input ends. Each process is called "forked" and lives up to half a second;
// every fourth leaves a child behind. At the end all of them are reaped and the number of forks is printed.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr long perSecond = 1000000000;

[[noreturn]] void live(int number)
{
    prctl(PR_SET_NAME, "forked");
    const bool isOrphan = number % 4 == 0 && fork() == 0;
    const timespec lifetime = {0, number % 50 * (perSecond / 100) / (isOrphan ? 1 : 2)};
    nanosleep(&lifetime, nullptr);
    _exit(0);
}

bool inputHasEnded()
{
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    char byte = 0;
    return poll(&input, 1, 0) > 0 && read(STDIN_FILENO, &byte, 1) <= 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const long rate = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 0;
    if (rate < 1) {
        return 2;
    }
    prctl(PR_SET_CHILD_SUBREAPER, 1); // orphans are reparented to this process
    int number = 0;
    timespec due = {};
    clock_gettime(CLOCK_MONOTONIC, &due);
    while (!inputHasEnded()) {
        const pid_t child = fork();
        if (child == 0) {
            live(number);
        }
        number += child > 0;
        while (waitpid(-1, nullptr, WNOHANG) > 0) {
        }
        due.tv_nsec += perSecond / rate;
        due.tv_sec += due.tv_nsec / perSecond;
        due.tv_nsec %= perSecond;
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &due, nullptr);
    }
    while (waitpid(-1, nullptr, 0) > 0) {
    }
    std::printf("%d\n", number);
}
