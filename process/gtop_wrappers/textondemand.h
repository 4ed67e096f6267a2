// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_TEXTONDEMAND_H
#define GTOP_WRAPPERS_TEXTONDEMAND_H

#include "process/gtop_wrappers/param.h"

#include <QByteArray>

namespace gtop_wrappers {

/// A column value whose text is made when it is first shown: most cells of a long list never are. The value
/// itself was read with the snapshot (for those read later, see ondemand.h).
class TextOnDemandParam : public IProcessParam
{
public:
    QVariant displayValue() const override;

protected:
    virtual QString text() const = 0;
};

/// A number that sorts as an unsigned 64-bit integer.
class NumberProcessParam : public TextOnDemandParam
{
public:
    explicit NumberProcessParam(quint64 value);
    QVariant sortValue() const override;

protected:
    quint64 number;
};

/// An amount of memory in bytes.
class SizeProcessParam : public NumberProcessParam
{
public:
    using NumberProcessParam::NumberProcessParam;

protected:
    QString text() const override;
};

/// CPU time in jiffies, shown as hours, minutes and seconds.
class CpuTimeProcessParam : public NumberProcessParam
{
public:
    /// frequency: jiffies per second; with 0 no time is shown.
    CpuTimeProcessParam(quint64 jiffies, quint64 frequency);

protected:
    QString text() const override;

private:
    quint64 perSecond;
};

/// A time in seconds since the epoch, shown as local date and time, or as "Unknown" if it is 0 or after 9999.
class StartedProcessParam : public NumberProcessParam
{
public:
    using NumberProcessParam::NumberProcessParam;

protected:
    QString text() const override;
};

/// The arguments of a process, or its name in brackets if it has none (kernel threads, zombies).
class CommandLineProcessParam : public TextOnDemandParam
{
public:
    /// arguments: as the kernel returns them; each ends with a null character.
    CommandLineProcessParam(const QByteArray &arguments, const QByteArray &name);

protected:
    QString text() const override;

private:
    QByteArray bytes;
    QByteArray processName;
};

} // namespace gtop_wrappers

#endif
