// SPDX-License-Identifier: GPL-3.0-or-later
// bench_spawner <n>: keeps n sleeping processes until the end of its standard input; prints "ready" when all
// are started.
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    for (int i = 0; i < count; ++i) {
        const int pid = fork();
        if (pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL); // leaves no process behind, even if this one is killed
            for (;;) {
                pause();
            }
        }
        if (pid < 0) {
            std::perror("bench_spawner");
            return 1;
        }
    }
    std::puts("ready");
    std::fflush(stdout);
    char byte = 0;
    while (read(0, &byte, 1) > 0) {
    }
    return 0;
}
