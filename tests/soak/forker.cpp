// SPDX-License-Identifier: GPL-3.0-or-later
// Load of the process list:
//   forker <processes a second>
// forks that many until its input ends. Each is called "forked" and lives up to half a second; every fourth
// has a child, which it leaves behind. At the end it waits for its own and writes how many there were.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr long perSecond = 1000000000;

void liveFor(long nanoseconds)
{
    const timespec time = {0, nanoseconds};
    nanosleep(&time, nullptr);
}

[[noreturn]] void live(int number)
{
    prctl(PR_SET_NAME, "forked");
    const bool inherits = number % 4 == 0 && fork() == 0;
    liveFor(number % 50 * (perSecond / 100) / (inherits ? 1 : 2));
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
    if (rate < 1)
        return 2;
    prctl(PR_SET_CHILD_SUBREAPER, 1); // what is left behind is waited for here
    int number = 0;
    timespec due = {};
    clock_gettime(CLOCK_MONOTONIC, &due);
    while (!inputHasEnded()) {
        const pid_t child = fork();
        if (child == 0)
            live(number);
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
