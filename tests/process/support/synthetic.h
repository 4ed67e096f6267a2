// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_SYNTHETIC_H
#define TESTS_PROCESS_SYNTHETIC_H

#include "process/procmodel.h"

#include <QString>

#include <map>

/// What a test says of a process that does not exist.
struct Facts
{
    int pid = 0;
    int ppid = 0;
    QString name;
    int cpuCounter = 100;
    int state = 1;
    int nice = 0;
};

using FactsByPid = std::map<int, Facts>;

gtop_wrappers::Process makeProcess(const Facts &facts);
ProcModel::Snapshot makeSnapshot(const FactsByPid &facts);
/// Processes named "p<pid>", given as pid and parent pid.
ProcModel::Snapshot makeSnapshot(std::initializer_list<std::pair<int, int>> pidsAndParents);

/// The pids of all rows in their order, children in brackets: "1(2(3) 4) 5".
QString shapeOf(const ProcModel &model);

#endif
