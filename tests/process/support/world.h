// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_WORLD_H
#define TESTS_PROCESS_WORLD_H

#include "tests/process/support/synthetic.h"

#include <random>

/// A simulated machine whose processes fork, exit, exec, reuse pids, get reparented and sometimes form rings
/// of parents. The same seed gives the same history.
class World
{
public:
    World(unsigned int seed, int processes);

    /// Simulates one refresh interval.
    void step();

    const FactsByPid &facts() const { return alive; }
    /// CPU time of the machine in the last interval.
    unsigned long totalDelta() const { return delta; }
    /// A random number from 0 to `end` - 1.
    int pick(int end);

private:
    void fork();
    void exit();
    void exec();
    void reusePid();
    void reparent();
    void makeRing();
    void burnCpu();
    int anyPid();

    std::mt19937 random;
    FactsByPid alive;
    int wanted;
    int lastPid;
    int execs;
    unsigned long delta;
};

#endif
