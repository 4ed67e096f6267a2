// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_ONDEMAND_H
#define GTOP_WRAPPERS_ONDEMAND_H

#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/record.h"

#include <tr1/memory>

namespace gtop_wrappers {

/// The expensive values of one process, read when a cell first asks for them and at most once per snapshot:
/// most rows of a long list are never shown. A process that reuses the pid is recognized by its start, and
/// its values are never returned.
class OnDemandValues
{
public:
    /// record: the process as the snapshot read it.
    explicit OnDemandValues(const ProcessRecord &record);

    /// A new snapshot has the same process: values are read again when they are next asked for, but for the
    /// memory if it was read ahead.
    void startSnapshot(const ProcessRecord &now);
    /// A record in which the fields of `read`, a single one of Reads, are valid. If the process has exited,
    /// they hold what was last read on demand; null if they were never read.
    const ProcessRecord *record(Reads read);
    /// Whether record() would answer without reading.
    bool isRead(Reads read) const { return (tried & read) != 0; }
    /// Whether record() was called for it since the last snapshot.
    bool isAsked(Reads read) const { return (asked & read) != 0; }

private:
    ProcessRecord values;
    unsigned asked = 0; ///< Reads, or-ed, that cells asked for since the last snapshot
    unsigned tried = 0; ///< Reads, or-ed, that were made or failed since the last snapshot
    unsigned valid = 0; ///< Reads, or-ed, that succeeded at some time
};

using OnDemandPtr = std::tr1::shared_ptr<OnDemandValues>;

/// An amount of memory in bytes, the `Member` of a record, read on demand.
template <quint64 ProcessRecord::*Member>
class OnDemandSizeParam : public IProcessParam
{
public:
    explicit OnDemandSizeParam(const OnDemandPtr &onDemand);
    QVariant displayValue() const override;
    QVariant sortValue() const override;

private:
    OnDemandPtr values;
};

extern template class OnDemandSizeParam<&ProcessRecord::resident>;
extern template class OnDemandSizeParam<&ProcessRecord::virtualSize>;
extern template class OnDemandSizeParam<&ProcessRecord::shared>;

/// A number, the `Member` of a record that `Read` brings, read on demand.
template <Reads Read, int ProcessRecord::*Member>
class OnDemandIntParam : public IProcessParam
{
public:
    explicit OnDemandIntParam(const OnDemandPtr &onDemand);
    QVariant displayValue() const override;
    bool isRead() const override { return values->isRead(Read); }

private:
    OnDemandPtr values;
};

extern template class OnDemandIntParam<ReadUid, &ProcessRecord::nice>;
extern template class OnDemandIntParam<ReadParent, &ProcessRecord::parent>;

/// The command line, read on demand.
class OnDemandCommandLineParam : public IProcessParam
{
public:
    explicit OnDemandCommandLineParam(const OnDemandPtr &onDemand);
    QVariant displayValue() const override;
    bool isRead() const override { return values->isRead(ReadArguments); }

private:
    OnDemandPtr values;
    // What the text was made from: sorting asks for the same text many times.
    mutable QByteArray arguments;
    mutable QByteArray name;
};

} // namespace gtop_wrappers

#endif
