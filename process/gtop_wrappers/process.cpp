// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/process.h"

namespace gtop_wrappers {

Process::Process(int pid) : id(pid)
{}

int Process::pid() const
{
    return id;
}

// Whoever keeps a process keeps pid and values only, so these three must be found in the values.

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
    return static_cast<int>(static_cast<unsigned>(sortValue(CpuTimeColumn).toULongLong()));
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
