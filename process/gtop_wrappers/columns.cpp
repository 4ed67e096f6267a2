// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/columns.h"

#include "process/gtop_wrappers/textondemand.h"

#include <QtGlobal>

namespace gtop_wrappers {

static_assert(stoppedState == GLIBTOP_PROCESS_STOPPED, "it stands for libgtop's code");
static_assert(stoppedState == 16, "the process menu is required to go by this number");

namespace {

template <auto... Members>
bool same(const ProcessRecord &before, const ProcessRecord &now)
{
    return ((before.*Members == now.*Members) && ...);
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

ParamPtr makeName(const ProcessRecord &record, SharedParams &shared)
{
    return shared.name(record.name);
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

/// For the pid, which is known.
constexpr unsigned noReads = 0;

using Record = ProcessRecord;

// clang-format off
const std::array<Column, ColumnCount> table = {{
    {QT_TRANSLATE_NOOP("ProcessFiller", "Name"), ShownByDefault, Text,
     ReadState, makeName, same<&Record::name>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU"), ShownByDefault, Number,
     ReadTime, makeCpu, same<&Record::started>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "PID"), ShownByDefault, Number,
     noReads, makePid, same<&Record::pid>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "User"), ShownByDefault, Text,
     ReadState, makeUser, same<&Record::user>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Memory"), ShownByDefault, Number,
     ReadMemory, makeSize<&Record::resident>, same<&Record::resident>,
     makeOnDemand<OnDemandSizeParam<&Record::resident>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "State"), ShownByDefault, Text,
     ReadState, makeState, same<&Record::state>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Virtual memory"), HiddenByDefault, Number,
     ReadMemory, makeSize<&Record::virtualSize>, same<&Record::virtualSize>,
     makeOnDemand<OnDemandSizeParam<&Record::virtualSize>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Shared memory"), HiddenByDefault, Number,
     ReadMemory, makeSize<&Record::shared>, same<&Record::shared>,
     makeOnDemand<OnDemandSizeParam<&Record::shared>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Nice"), HiddenByDefault, Number,
     ReadUid, makeSharedInt<&Record::nice>, same<&Record::nice>,
     makeOnDemand<OnDemandIntParam<ReadUid, &Record::nice>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Parent PID"), HiddenByDefault, Number,
     ReadParent, makeSharedInt<&Record::parent>, same<&Record::parent>,
     makeOnDemand<OnDemandIntParam<ReadParent, &Record::parent>>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU time"), ShownByDefault, Number,
     ReadTime, makeCpuTime, same<&Record::cpuTime, &Record::frequency>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Started"), ShownByDefault, Number,
     ReadTime, makeStarted, same<&Record::started>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Command line"), ShownByDefault, Text,
     ReadArguments | ReadState, makeCommandLine, same<&Record::arguments, &Record::name>,
     makeOnDemand<OnDemandCommandLineParam>},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Processor"), ShownByDefault, Number,
     ReadState, makeSharedInt<&Record::processor>, same<&Record::processor>, nullptr},
}};
// clang-format on

} // namespace

const std::array<Column, ColumnCount> &columns()
{
    return table;
}

} // namespace gtop_wrappers
