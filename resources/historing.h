// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_HISTORING_H
#define RESOURCES_HISTORING_H

#include <QtGlobal>

#include <vector>

/// The last 100 samples of one series, in bytes per update interval; the oldest gives way to the newest.
struct HistoRing
{
    /// Adds the newest sample.
    void append(quint32 value);

    /// Empties the ring. The old entries stay in `values`, out of reach.
    void clear();

    /// Number of stored samples, 1 to 100. Meaningful only while `hasData`: an empty ring counts 1,
    /// as its head and tail stand where those of a single sample would.
    quint64 count() const;

    /// The sample `age` steps back from the newest, which has age 0; `age` is below count().
    quint32 at(quint64 age) const;

    /// The largest stored sample, compared as signed 32-bit: one of 2^31 or more counts as negative.
    /// Call it only while `hasData`.
    qint32 largest() const;

    const quint64 capacity = 100;
    std::vector<quint32> values = std::vector<quint32>(capacity);
    quint64 head = 0; ///< index of the oldest sample
    quint64 tail = 0; ///< index of the newest sample
    bool hasData = false;
};

#endif
