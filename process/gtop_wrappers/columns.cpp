// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/columns.h"

#include "process/gtop_wrappers/lazyparams.h"
#include "process/gtop_wrappers/oneline.h"

#include <QCoreApplication>

#include <glibtop/procstate.h>
#include <pwd.h>

#include <algorithm>
#include <iterator>

namespace gtop_wrappers {

static_assert(stoppedState == GLIBTOP_PROCESS_STOPPED && stoppedState == 16,
              "the process menu takes this state for stopped");

namespace {

struct StateText
{
    int code;
    const char *text;
};

const StateText stateTexts[] = {
    {GLIBTOP_PROCESS_RUNNING, QT_TRANSLATE_NOOP("ProcessFiller", "Running")},
    {GLIBTOP_PROCESS_INTERRUPTIBLE, QT_TRANSLATE_NOOP("ProcessFiller", "Sleeping")},
    {GLIBTOP_PROCESS_UNINTERRUPTIBLE, QT_TRANSLATE_NOOP("ProcessFiller", "Uninterruptible")},
    {GLIBTOP_PROCESS_ZOMBIE, QT_TRANSLATE_NOOP("ProcessFiller", "Zombie")},
    {GLIBTOP_PROCESS_STOPPED, QT_TRANSLATE_NOOP("ProcessFiller", "Stopped")},
    {GLIBTOP_PROCESS_SWAPPING, QT_TRANSLATE_NOOP("ProcessFiller", "Swapping")},
    {GLIBTOP_PROCESS_DEAD, QT_TRANSLATE_NOOP("ProcessFiller", "Dead")},
};

QString stateText(int code)
{
    const auto found = std::find_if(std::begin(stateTexts), std::end(stateTexts),
                                    [code](const StateText &row) { return row.code == code; });
    // libgtop gives 0 for the states it has no code for: idle kernel threads, traced processes.
    return QCoreApplication::translate("ProcessFiller", found != std::end(stateTexts)
                                                            ? found->text
                                                            : QT_TRANSLATE_NOOP("ProcessFiller", "Other"));
}

QString userText(int uid)
{
    const passwd *entry = getpwuid(static_cast<uid_t>(uid));
    return entry ? oneLine(entry->pw_name) : QString::number(static_cast<uid_t>(uid));
}

void dropUnusedOf(std::map<int, ParamPtr> &params)
{
    for (auto it = params.begin(); it != params.end();) {
        it = it->second.unique() ? params.erase(it) : std::next(it);
    }
}

template <auto... Members>
bool same(const ProcessRecord &before, const ProcessRecord &now)
{
    return ((before.*Members == now.*Members) && ...);
}

template <auto Member>
ParamPtr makeInt(const ProcessRecord &record, SharedParams &shared)
{
    return shared.number(record.*Member);
}

ParamPtr makePid(const ProcessRecord &record, SharedParams &)
{
    return ParamPtr(new IntProcessParam(record.pid)); // no other process has it
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

bool neverSame(const ProcessRecord &, const ProcessRecord &)
{
    return false; // the process model writes into the value, so each snapshot has its own
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

template <auto Member>
ParamPtr makeLateSize(const LatePtr &values)
{
    return ParamPtr(new LateSizeParam<Member>(values));
}

ParamPtr makeLateNice(const LatePtr &values)
{
    return ParamPtr(new LateNiceParam(values));
}

ParamPtr makeLateCommandLine(const LatePtr &values)
{
    return ParamPtr(new LateCommandLineParam(values));
}

template <auto Member>
constexpr Column intColumn(const char *name, unsigned reads, decltype(Column::makeLate) late = nullptr)
{
    return {name, reads, makeInt<Member>, same<Member>, late};
}

template <auto Member>
constexpr Column sizeColumn(const char *name)
{
    return {name, ReadMemory, makeSize<Member>, same<Member>, makeLateSize<Member>};
}

using Record = ProcessRecord;

const std::array<Column, ColumnCount> table = {{
    {QT_TRANSLATE_NOOP("ProcessFiller", "Name"), ReadState, makeName, same<&Record::name>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU"), ReadTime, makeCpu, neverSame, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "PID"), 0, makePid, same<&Record::pid>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "User"), ReadState, makeUser, same<&Record::user>, nullptr},
    sizeColumn<&Record::resident>(QT_TRANSLATE_NOOP("ProcessFiller", "Memory")),
    {QT_TRANSLATE_NOOP("ProcessFiller", "State"), ReadState, makeState, same<&Record::state>, nullptr},
    sizeColumn<&Record::virtualSize>(QT_TRANSLATE_NOOP("ProcessFiller", "Virtual memory")),
    sizeColumn<&Record::shared>(QT_TRANSLATE_NOOP("ProcessFiller", "Shared memory")),
    intColumn<&Record::nice>(QT_TRANSLATE_NOOP("ProcessFiller", "Nice"), ReadUid, makeLateNice),
    intColumn<&Record::parent>(QT_TRANSLATE_NOOP("ProcessFiller", "Parent PID"), ReadUid),
    {QT_TRANSLATE_NOOP("ProcessFiller", "CPU time"), ReadTime, makeCpuTime,
     same<&Record::cpuTime, &Record::frequency>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Started"), ReadTime, makeStarted, same<&Record::started>, nullptr},
    {QT_TRANSLATE_NOOP("ProcessFiller", "Command line"), ReadArguments | ReadState, makeCommandLine,
     same<&Record::arguments, &Record::name>, makeLateCommandLine},
    intColumn<&Record::processor>(QT_TRANSLATE_NOOP("ProcessFiller", "Processor"), ReadState),
}};

} // namespace

ParamPtr SharedParams::user(int uid)
{
    ParamPtr &param = users[uid];
    if (!param) {
        param.reset(new SimpleProcessParam(userText(uid)));
    }
    return param;
}

ParamPtr SharedParams::state(int code)
{
    ParamPtr &param = states[code];
    if (!param) {
        param.reset(new IntProcessParam(code, stateText(code)));
    }
    return param;
}

ParamPtr SharedParams::number(int value)
{
    ParamPtr &param = numbers[value];
    if (!param) {
        param.reset(new IntProcessParam(value));
    }
    return param;
}

void SharedParams::dropUnused()
{
    dropUnusedOf(users);
    dropUnusedOf(states);
    dropUnusedOf(numbers);
}

const std::array<Column, ColumnCount> &columns()
{
    return table;
}

} // namespace gtop_wrappers
