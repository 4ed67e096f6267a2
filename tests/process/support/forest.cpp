// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/forest.h"

#include <iterator>

Forest::Forest(Shape parents, int processes, unsigned int seed)
    : random(seed), shape(parents), size(processes), births(0)
{
    for (int i = 0; i < size; ++i) {
        change(shape == ChainsUp ? 2 * (size - i) : 2 * i + 1);
    }
}

void Forest::step()
{
    for (int changes = pick(pick(4) == 0 ? size : 4); changes > 0; --changes) {
        change(1 + pick(2 * size));
    }
    for (auto &entry : alive) {
        entry.second.cpuCounter += pick(3);
    }
}

void Forest::change(int pid)
{
    const auto found = alive.find(pid);
    if (found == alive.end() && static_cast<int>(alive.size()) < size) {
        alive[pid] = Facts{pid, parentFor(pid), QString::number(pick(3)), pick(100)};
        alive[pid].start = ++births;
    } else if (found == alive.end()) {
        return;
    } else if (const int what = pick(8); what == 0) {
        found->second.ppid = parentFor(pid);
    } else if (what == 1) {
        found->second.name = QString::number(pick(3));
    } else if (what == 2) { // children notice that their parent is gone, or are read too early
        alive.erase(found);
        for (auto &entry : alive) {
            entry.second.ppid = entry.second.ppid == pid && pick(2) == 0 ? 0 : entry.second.ppid;
        }
    }
}

int Forest::parentFor(int pid)
{
    const auto self = alive.lower_bound(pid);
    if (alive.empty() || pick(20) == 0) {
        return pick(3) * pid; // none, itself, or somewhere beyond
    }
    if (shape == ChainsDown && pick(20) != 0) {
        return self != alive.begin() ? std::prev(self)->first : 0;
    }
    if (shape == ChainsUp && pick(20) != 0) {
        return self != alive.end() ? self->first : 0;
    }
    const auto any = std::next(alive.begin(), pick(static_cast<int>(alive.size())));
    if (shape == Rings && pick(3) == 0) {
        any->second.ppid = pid;
    }
    return any->first;
}
