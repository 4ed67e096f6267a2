// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"

#include "process/gtop_wrappers/processtable.h"

#include <QCoreApplication>

#include <unistd.h>

#include <optional>
#include <utility>

namespace gtop_wrappers {

ProcessFiller::ProcessFiller() : table(new ProcessTable)
{}

ProcessFiller::~ProcessFiller() = default;

ProcessFiller *ProcessFiller::instance()
{
    static ProcessFiller filler;
    return &filler;
}

unsigned long ProcessFiller::size() const
{
    return columns().size();
}

QString ProcessFiller::name(unsigned long i) const
{
    return i < size() ? QString::fromLatin1(columns()[i].name) : QString();
}

QString ProcessFiller::title(unsigned long i) const
{
    return i < size() ? QCoreApplication::translate("ProcessFiller", columns()[i].name) : QString();
}

std::map<int, Process> ProcessFiller::getProcesses(ProcessTypes types)
{
    // A value that is neither of the two lists all, as the first does.
    const auto user = types == MyProcesses ? std::optional<uid_t>(getuid()) : std::nullopt;
    std::vector<ProcessRecord> records = readProcesses(user, table->reads());
    table->complete(records);
    return table->update(std::move(records));
}

void ProcessFiller::setWanted(const std::vector<bool> &columns)
{
    table->setWanted(columns);
}

} // namespace gtop_wrappers
