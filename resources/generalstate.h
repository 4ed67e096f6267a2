// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_GENERALSTATE_H
#define RESOURCES_GENERALSTATE_H

#include <QString>

/// Physical memory in bytes, from glibtop_get_mem.
struct MemoryState
{
    quint64 total = 0;
    quint64 free = 0;
    quint64 buffer = 0;
    quint64 cached = 0;
};
MemoryState readMemory();

/// Memory and disk figures of the General page: size texts, and free shares in whole percent, rounded down.
struct GeneralFigures
{
    QString memTotal;
    QString memFree; ///< buffers and cache count as free
    QString diskFree;
    double memPercent = 0.0;
    double diskPercent = 0.0;
};

/// Disk sizes are in bytes. The arithmetic is unsigned 64-bit and may wrap; a share of a zero total is 0.
GeneralFigures generalFigures(const MemoryState &memory, quint64 freeDisk, quint64 totalDisk);

#endif
