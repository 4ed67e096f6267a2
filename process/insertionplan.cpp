// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/insertionplan.h"

#include <algorithm>
#include <unordered_map>

using gtop_wrappers::Process;

std::vector<InsertedLine> planInsertions(const std::vector<const Process *> &fresh,
                                         const std::map<int, Process> &snapshot)
{
    // The last copy of a process is the one that stays. An ancestor of a process comes with all of its own
    // ancestors, so what a later line leaves of an earlier one is its lower end.
    std::unordered_map<int, const Process *> lastBroughtBy;
    std::vector<InsertedLine> lines;
    for (auto it = fresh.rbegin(); it != fresh.rend(); ++it) {
        InsertedLine line{{}, true};
        const Process *process = *it;
        while (process) {
            const auto [owner, isOurs] = lastBroughtBy.emplace(process->pid(), *it);
            if (!isOurs) {
                line.isUnderRoot = owner->second == *it; // a ring that ends here
                break;
            }
            line.processes.push_back(process);
            const auto above = snapshot.find(process->getPPid());
            process = above != snapshot.end() ? &above->second : nullptr;
        }
        if (!line.processes.empty()) {
            std::reverse(line.processes.begin(), line.processes.end());
            lines.push_back(std::move(line));
        }
    }
    std::reverse(lines.begin(), lines.end());
    return lines;
}
