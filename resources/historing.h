// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_HISTORING_H
#define RESOURCES_HISTORING_H

#include <QtGlobal>

#include <vector>

/// Ring buffer of the last 100 samples of one series, in bytes per update interval.
struct HistoRing
{
    /// Adds the newest sample; a full ring drops its oldest.
    void append(quint32 value);

    /// Empties the ring. The old entries stay in `values` but are unreachable.
    void clear();

    /// Number of stored samples, 1 to 100. Intentional: an empty ring counts 1, as its head and tail are
    /// those of a ring with one sample; only `hasData` tells the two apart.
    quint64 count() const;

    /// The sample `age` steps before the newest, which has age 0; `age` must be below count().
    quint32 at(quint64 age) const;

    /// The largest stored sample. Intentional: compared as signed 32-bit, so 2^31 and above count as
    /// negative. Requires `hasData`.
    qint32 largest() const;

    const quint64 capacity = 100;
    std::vector<quint32> values = std::vector<quint32>(capacity);
    quint64 head = 0; ///< index of the oldest sample
    quint64 tail = 0; ///< index of the newest sample
    bool hasData = false;
};

#endif
