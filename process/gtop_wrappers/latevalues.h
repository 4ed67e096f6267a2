// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_LATEVALUES_H
#define GTOP_WRAPPERS_LATEVALUES_H

#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/record.h"

#include <tr1/memory>

namespace gtop_wrappers {

/// The values of one process that are read when they are first asked for after a snapshot: most rows of a
/// long list are never looked at. What is read is of this very process, told by its start, or nothing.
class LateValues
{
public:
    /// record: the process, with its `late` reads still to be made.
    explicit LateValues(const ProcessRecord &record);

    /// A new snapshot has the same process: what is asked for from now on is read anew.
    void renew(const ProcessRecord &now);
    /// The record with these late reads (Reads, or-ed) made; if the process has ended, with their last known
    /// values, or null if there are none.
    const ProcessRecord *with(unsigned reads);

private:
    ProcessRecord values;
    unsigned tried; ///< read, or found to be gone, since the last snapshot
    unsigned known; ///< read at any time
};

using LatePtr = std::tr1::shared_ptr<LateValues>;

/// An amount of memory in bytes, the `Member` of a record, read when it is first asked for.
template <quint64 ProcessRecord::*Member>
class LateSizeParam : public IProcessParam
{
public:
    explicit LateSizeParam(const LatePtr &late);
    QVariant displayValue() const override;
    QVariant sortValue() const override;

private:
    LatePtr values;
};

extern template class LateSizeParam<&ProcessRecord::resident>;
extern template class LateSizeParam<&ProcessRecord::virtualSize>;
extern template class LateSizeParam<&ProcessRecord::shared>;

/// The nice value, read when it is first asked for.
class LateNiceParam : public IProcessParam
{
public:
    explicit LateNiceParam(const LatePtr &late);
    QVariant displayValue() const override;

private:
    LatePtr values;
};

/// The command line, read when it is first asked for.
class LateCommandLineParam : public IProcessParam
{
public:
    explicit LateCommandLineParam(const LatePtr &late);
    QVariant displayValue() const override;

private:
    LatePtr values;
    // What the text was made from: a sort asks for it many times.
    mutable QByteArray arguments;
    mutable QByteArray name;
};

} // namespace gtop_wrappers

#endif
