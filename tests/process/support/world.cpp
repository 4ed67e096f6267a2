// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/world.h"

World::World(unsigned int seed, int processes)
    : random(seed), wanted(processes), lastPid(0), execs(0), delta(1)
{
    while (static_cast<int>(alive.size()) < wanted) {
        fork();
    }
}

int World::pick(int end)
{
    return static_cast<int>(random() % static_cast<unsigned int>(end));
}

void World::step()
{
    using Event = void (World::*)();
    static const Event events[] = {&World::fork,     &World::exit,     &World::exec,
                                   &World::reusePid, &World::reparent, &World::makeRing};
    for (int i = pick(12); i > 0; --i) {
        (this->*events[pick(6)])();
    }
    while (static_cast<int>(alive.size()) < wanted - wanted / 10) {
        fork();
    }
    while (static_cast<int>(alive.size()) > wanted + wanted / 10) {
        exit();
    }
    burnCpu();
}

int World::anyPid()
{
    auto found = alive.lower_bound(pick(lastPid + 1));
    return found != alive.end() ? found->first : alive.begin()->first;
}

void World::fork()
{
    Facts child;
    child.pid = lastPid += 1 + pick(3);
    child.ppid = alive.empty() || pick(10) == 0 ? 0 : anyPid();
    child.name = QStringLiteral("process %1").arg(pick(50));
    child.cpuCounter = pick(4) == 0 ? 0 : pick(100000);
    alive[child.pid] = child;
}

void World::exit()
{
    if (alive.size() < 2) {
        return;
    }
    const int pid = anyPid();
    alive.erase(pid);
    const int heir = pick(2) == 0 ? 0 : alive.begin()->first;
    for (auto &entry : alive) {
        if (entry.second.ppid == pid && pick(4) != 0) { // 0: read before the kernel reparented it
            entry.second.ppid = heir;
        }
    }
}

void World::exec()
{
    alive.at(anyPid()).name = QStringLiteral("exec %1").arg(++execs);
}

void World::reusePid()
{
    Facts &reused = alive.at(anyPid());
    reused.ppid = pick(3) == 0 ? reused.ppid : anyPid();
    reused.name = QStringLiteral("reused %1").arg(++execs);
    reused.cpuCounter = pick(3);
    ++reused.start;
}

void World::reparent()
{
    alive.at(anyPid()).ppid = pick(5) == 0 ? 0 : anyPid();
}

void World::makeRing()
{
    const int first = anyPid();
    const int second = anyPid(); // if it is the same, it becomes its own parent
    alive.at(first).ppid = second;
    alive.at(second).ppid = first;
}

void World::burnCpu()
{
    delta = 200 + static_cast<unsigned long>(pick(800));
    for (auto &entry : alive) {
        if (pick(3) == 0) {
            entry.second.cpuCounter += pick(50) - pick(5); // sometimes the counter falls
        }
    }
}
