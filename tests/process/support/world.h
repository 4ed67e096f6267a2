// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_WORLD_H
#define TESTS_PROCESS_WORLD_H

#include "tests/process/support/synthetic.h"

#include <random>

/// A made-up machine whose processes fork, exit, exec, take over pids and parents, and now and then form
/// rings. The same seed gives the same history.
class World
{
public:
    World(unsigned int seed, int processes);

    /// Lets a refresh interval pass.
    void step();

    const FactsByPid &facts() const { return alive; }
    /// CPU time that passed in the last interval.
    unsigned long totalDelta() const { return delta; }
    /// A number from 0 to below `end`.
    int pick(int end);

private:
    void fork();
    void exit();
    void exec();
    void takeOverPid();
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
