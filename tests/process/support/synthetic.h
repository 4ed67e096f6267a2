// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_SYNTHETIC_H
#define TESTS_PROCESS_SYNTHETIC_H

#include "process/procmodel.h"

#include <QString>

#include <map>
#include <vector>

/// The values of a process that does not exist.
struct Facts
{
    int pid = 0;
    int ppid = 0;
    QString name;
    int cpuCounter = 100;
    int state = 1;
    int nice = 0;
    quint64 start = 0; ///< seconds since the epoch
};

using FactsByPid = std::map<int, Facts>;

/// Processes 1 to `lastPid`, without names and parents.
FactsByPid factsUpTo(int lastPid);

gtop_wrappers::Process makeProcess(const Facts &facts);
ProcModel::Snapshot makeSnapshot(const FactsByPid &facts);
/// Processes named "p<pid>", given as pid and parent pid.
ProcModel::Snapshot makeSnapshot(std::initializer_list<std::pair<int, int>> pidsAndParents);
/// Processes named "p<pid>", given as pid and CPU counter.
ProcModel::Snapshot makeCpuSnapshot(std::initializer_list<std::pair<int, int>> pidsAndCounters);

/// The pids of all rows in their order, children in brackets: "1(2(3) 4) 5".
QString shapeOf(const ProcModel &model);

/// A refresh and what the model has to hold after it; the pids must be below 100.
struct Step
{
    ProcModel::Snapshot snapshot;
    const char *shape;
    const char *orphans = ""; ///< pids of the items that have no place in the tree
};
using Steps = std::vector<Step>;
Q_DECLARE_METATYPE(Steps)

void verifySteps(ProcModel *model, const Steps &steps);

#endif
