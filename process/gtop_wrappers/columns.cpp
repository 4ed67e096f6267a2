// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/columns.h"

#include "process/gtop_wrappers/oneline.h"
#include "process/gtop_wrappers/textondemand.h"

#include <QtGlobal>

namespace gtop_wrappers {

static_assert(stoppedState == GLIBTOP_PROCESS_STOPPED && stoppedState == 16,
              "the process menu takes this state for stopped");

namespace {

template <auto... Members>
bool same(const ProcessRecord &before, const ProcessRecord &now)
{
    return ((before.*Members == now.*Members) && ...);
}

/// The process model writes into the CPU value, so each snapshot has its own.
bool neverSame(const ProcessRecord &, const ProcessRecord &)
{
    return false;
}

template <auto Member>
ParamPtr makeSharedInt(const ProcessRecord &record, SharedParams &shared)
{
    return shared.number(record.*Member);
}

template <auto Member>
ParamPtr makeSize(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new SizeProcessParam(record.*Member));
}

ParamPtr makeName(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new SimpleProcessParam(oneLine(record.name)));
}

ParamPtr makeCpu(const ProcessRecord &, SharedParams &)
{
    return ParamPtr(new CpuProcessParam);
}

ParamPtr makePid(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new IntProcessParam(record.pid));
}

ParamPtr makeUser(const ProcessRecord &record, SharedParams &shared)
{
    return shared.user(record.user);
}

ParamPtr makeState(const ProcessRecord &record, SharedParams &shared)
{
    return shared.state(record.state);
}

ParamPtr makeCpuTime(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new CpuTimeProcessParam(record.cpuTime, record.frequency));
}

ParamPtr makeStarted(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new StartedProcessParam(record.started));
}

ParamPtr makeCommandLine(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new CommandLineProcessParam(record.arguments, record.name));
}

template <class Param>
ParamPtr makeOnDemand(const OnDemandPtr &values)
{
    return ParamPtr(new Param(values));
}

/// Parent PID: the parent is read by Parents, which does without reading it most of the time.
constexpr unsigned readByParents = 0;

using Record = ProcessRecord;

// clang-format off
const std::array<Column, ColumnCount> table = {{
    {QT_TRANSLATE_NOOP("ProcessFiller", "Name"), Shown,
     ReadState, makeName, same<&Record::name>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU"), Shown,
     ReadTime, makeCpu, neverSame, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "PID"), Shown,
     0, makePid, same<&Record::pid>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "User"), Shown,
     ReadState, makeUser, same<&Record::user>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Memory"), Shown,
     ReadMemory, makeSize<&Record::resident>, same<&Record::resident>,
     makeOnDemand<OnDemandSizeParam<&Record::resident>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "State"), Shown,
     ReadState, makeState, same<&Record::state>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Virtual memory"), Hidden,
     ReadMemory, makeSize<&Record::virtualSize>, same<&Record::virtualSize>,
     makeOnDemand<OnDemandSizeParam<&Record::virtualSize>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Shared memory"), Hidden,
     ReadMemory, makeSize<&Record::shared>, same<&Record::shared>,
     makeOnDemand<OnDemandSizeParam<&Record::shared>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Nice"), Hidden,
     ReadUid, makeSharedInt<&Record::nice>, same<&Record::nice>, makeOnDemand<OnDemandNiceParam>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Parent PID"), Hidden,
     readByParents, makeSharedInt<&Record::parent>, same<&Record::parent>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU time"), Shown,
     ReadTime, makeCpuTime, same<&Record::cpuTime, &Record::frequency>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Started"), Shown,
     ReadTime, makeStarted, same<&Record::started>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Command line"), Shown,
     ReadArguments | ReadState, makeCommandLine, same<&Record::arguments, &Record::name>,
     makeOnDemand<OnDemandCommandLineParam>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Processor"), Shown,
     ReadState, makeSharedInt<&Record::processor>, same<&Record::processor>, nullptr},
}};
// clang-format on

} // namespace

const std::array<Column, ColumnCount> &columns()
{
    return table;
}

} // namespace gtop_wrappers
