// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/process.h"

namespace gtop_wrappers {

Process::Process(int pid) : id(pid)
{}

int Process::pid() const
{
    return id;
}

// These come from the column values because callers copy only `id` and `params` when they keep a process.

int Process::getPPid() const
{
    return sortValue(ParentPidColumn).toInt();
}

QString Process::getName() const
{
    return params.size() > NameColumn && params[NameColumn] ? params[NameColumn]->displayValue().toString()
                                                            : QString();
}

int Process::getCpuLoad() const
{
    // One more than the time, and so never 0 for a process that has used none: the process model takes 0 for
    // "no previous counter" and would show a share for an idle process on every refresh.
    const QVariant time = sortValue(CpuTimeColumn);
    return time.isValid() ? static_cast<int>(static_cast<unsigned>(time.toULongLong() + 1)) : 0;
}

quint64 Process::startTime() const
{
    return sortValue(StartedColumn).toULongLong();
}

ParamPtr Process::getParam(unsigned long i) const
{
    return i < params.size() ? params[i] : ParamPtr();
}

QVariant Process::sortValue(ProcessColumn column) const
{
    return params.size() > column && params[column] ? params[column]->sortValue() : QVariant();
}

} // namespace gtop_wrappers
