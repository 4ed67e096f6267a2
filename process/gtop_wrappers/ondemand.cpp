// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/ondemand.h"

#include "fs/sizetostr.h"
#include "process/gtop_wrappers/textondemand.h"

namespace gtop_wrappers {

OnDemandValues::OnDemandValues(const ProcessRecord &record) : values(record)
{}

void OnDemandValues::startSnapshot(const ProcessRecord &now)
{
    values.name = now.name; // stands in for an empty command line
    asked = 0;
    tried = now.ahead & ReadMemory;
    if (tried != 0) {
        values.resident = now.resident;
        values.virtualSize = now.virtualSize;
        values.shared = now.shared;
        valid |= ReadMemory;
    }
}

const ProcessRecord *OnDemandValues::record(Reads read)
{
    asked |= read;
    if ((tried & read) == 0) {
        tried |= read;
        if (readMissing(read, values)) {
            valid |= read;
        }
    }
    return (valid & read) != 0 ? &values : nullptr;
}

template <quint64 ProcessRecord::*Member>
OnDemandSizeParam<Member>::OnDemandSizeParam(const OnDemandPtr &onDemand) : values(onDemand)
{}

template <quint64 ProcessRecord::*Member>
QVariant OnDemandSizeParam<Member>::displayValue() const
{
    const ProcessRecord *record = values->record(ReadMemory);
    return record ? sizeToStr(record->*Member) : QString();
}

template <quint64 ProcessRecord::*Member>
QVariant OnDemandSizeParam<Member>::sortValue() const
{
    const ProcessRecord *record = values->record(ReadMemory);
    return record ? record->*Member : quint64(0);
}

template class OnDemandSizeParam<&ProcessRecord::resident>;
template class OnDemandSizeParam<&ProcessRecord::virtualSize>;
template class OnDemandSizeParam<&ProcessRecord::shared>;

template <Reads Read, int ProcessRecord::*Member>
OnDemandIntParam<Read, Member>::OnDemandIntParam(const OnDemandPtr &onDemand) : values(onDemand)
{}

template <Reads Read, int ProcessRecord::*Member>
QVariant OnDemandIntParam<Read, Member>::displayValue() const
{
    const ProcessRecord *record = values->record(Read);
    return record ? QVariant(record->*Member) : QVariant();
}

template class OnDemandIntParam<ReadUid, &ProcessRecord::nice>;
template class OnDemandIntParam<ReadParent, &ProcessRecord::parent>;

OnDemandCommandLineParam::OnDemandCommandLineParam(const OnDemandPtr &onDemand) : values(onDemand)
{}

QVariant OnDemandCommandLineParam::displayValue() const
{
    const ProcessRecord *record = values->record(ReadArguments);
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
