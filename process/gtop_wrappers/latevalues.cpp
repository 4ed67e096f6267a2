// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/latevalues.h"

#include "fs/sizetostr.h"
#include "process/gtop_wrappers/lazyparams.h"

namespace gtop_wrappers {

LateValues::LateValues(const ProcessRecord &record) : values(record), tried(0), known(0)
{}

void LateValues::renew(const ProcessRecord &now)
{
    values.name = now.name;
    tried = 0;
}

const ProcessRecord *LateValues::with(unsigned reads)
{
    const unsigned missing = reads & ~tried;
    if (missing != 0) {
        tried |= missing;
        known |= readAlso(missing, values) ? missing : 0U;
    }
    return (reads & ~known) == 0 ? &values : nullptr;
}

template <quint64 ProcessRecord::*Member>
LateSizeParam<Member>::LateSizeParam(const LatePtr &late) : values(late)
{}

template <quint64 ProcessRecord::*Member>
QVariant LateSizeParam<Member>::displayValue() const
{
    const ProcessRecord *const record = values->with(ReadMemory);
    return record ? sizeToStr(record->*Member) : QString();
}

template <quint64 ProcessRecord::*Member>
QVariant LateSizeParam<Member>::sortValue() const
{
    const ProcessRecord *const record = values->with(ReadMemory);
    return record ? record->*Member : quint64(0);
}

template class LateSizeParam<&ProcessRecord::resident>;
template class LateSizeParam<&ProcessRecord::virtualSize>;
template class LateSizeParam<&ProcessRecord::shared>;

LateNiceParam::LateNiceParam(const LatePtr &late) : values(late)
{}

QVariant LateNiceParam::displayValue() const
{
    const ProcessRecord *const record = values->with(ReadUid);
    return record ? QVariant(record->nice) : QVariant();
}

LateCommandLineParam::LateCommandLineParam(const LatePtr &late) : values(late)
{}

QVariant LateCommandLineParam::displayValue() const
{
    const ProcessRecord *const record = values->with(ReadArguments);
    if (!record) {
        return QString();
    }
    if (!display.isValid() || arguments != record->arguments || name != record->name) {
        arguments = record->arguments;
        name = record->name;
        display = CommandLineProcessParam(arguments, name).displayValue();
    }
    return display;
}

} // namespace gtop_wrappers
