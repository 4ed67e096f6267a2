// SPDX-License-Identifier: GPL-3.0-or-later
// bench_calls <rounds>: the reference. CPU time in microseconds per process of the four libgtop calls that an
// ordinary set of columns needs, made in turn for every process; one line per round.
// bench_calls <rounds> least: that of the list of processes and the two calls without which no refresh can
// do, once a second as in the program; what any monitor over libgtop takes at least.
#include <glibtop.h>
#include <glibtop/open.h>
#include <glibtop/proclist.h>
#include <glibtop/procmem.h>
#include <glibtop/procstate.h>
#include <glibtop/proctime.h>
#include <glibtop/procuid.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

double cpuMicroseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

std::vector<pid_t> listPids()
{
    glibtop_proclist info = {};
    pid_t *list = glibtop_get_proclist(&info, GLIBTOP_KERN_PROC_ALL, 0);
    const std::vector<pid_t> pids(list, list + info.number);
    g_free(list);
    return pids;
}

void readAll(const std::vector<pid_t> &pids)
{
    glibtop_proc_state state;
    glibtop_proc_uid uid;
    glibtop_proc_time time;
    glibtop_proc_mem memory;
    for (const pid_t pid : pids) {
        glibtop_get_proc_state(&state, pid);
        glibtop_get_proc_uid(&uid, pid);
        glibtop_get_proc_time(&time, pid);
        glibtop_get_proc_mem(&memory, pid);
    }
}

void readLeast(const std::vector<pid_t> &pids)
{
    glibtop_proc_state state;
    glibtop_proc_time time;
    for (const pid_t pid : pids) {
        glibtop_get_proc_state(&state, pid);
        glibtop_get_proc_time(&time, pid);
    }
}

double measureCalls()
{
    const std::vector<pid_t> pids = listPids();
    const double start = cpuMicroseconds();
    readAll(pids);
    return (cpuMicroseconds() - start) / static_cast<double>(pids.size());
}

double measureLeast()
{
    sleep(1);
    const double start = cpuMicroseconds();
    const std::vector<pid_t> pids = listPids();
    readLeast(pids);
    return (cpuMicroseconds() - start) / static_cast<double>(pids.size());
}

} // namespace

int main(int argc, char **argv)
{
    glibtop *server = glibtop_init();
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
    const bool least = argc > 2;
    if (least) {
        server->ncpu = 0; // no search for CPU times per core, which the program leaves out too
    }
    for (int i = 0; i < rounds; ++i) {
        std::printf("%.2f\n", least ? measureLeast() : measureCalls());
    }
    return 0;
}
