// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"

#include "process/gtop_wrappers/columns.h"
#include "process/gtop_wrappers/reader.h"
#include "process/gtop_wrappers/snapshotcache.h"

#include <QCoreApplication>

#include <unistd.h>

#include <optional>
#include <utility>

namespace gtop_wrappers {

ProcessFiller::ProcessFiller() : reader(new ProcessReader), cache(new SnapshotCache)
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

bool ProcessFiller::isShownByDefault(unsigned long i) const
{
    return i < size() && columns()[i].visibility == ShownByDefault;
}

bool ProcessFiller::isNumeric(unsigned long i) const
{
    return i < size() && columns()[i].content == Number;
}

bool ProcessFiller::isExpensive(unsigned long i) const
{
    return i < size() && columns()[i].makeOnDemand && i != ParentPidColumn;
}

std::map<int, Process> ProcessFiller::getProcesses(ProcessTypes types)
{
    // Any value but MyProcesses lists all processes.
    const auto user = types == MyProcesses ? std::optional<uid_t>(getuid()) : std::nullopt;
    return cache->snapshot(reader->read(user, cache->eagerReads(), cache->askedForMemory()));
}

void ProcessFiller::giveBack(std::map<int, Process> &&lastSnapshot)
{
    cache->takeBack(std::move(lastSnapshot));
}

void ProcessFiller::setEagerColumns(const std::vector<bool> &columns)
{
    cache->setEagerColumns(columns);
}

} // namespace gtop_wrappers
