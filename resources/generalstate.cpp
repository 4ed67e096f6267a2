// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/generalstate.h"

#include "fs/sizetostr.h"

#include <glibtop.h>
#include <glibtop/mem.h>

namespace {

/// Intentional: truncated to a whole percent before it reaches the gauge, not rounded.
double wholePercent(quint64 part, quint64 whole)
{
    const quint64 percent = whole == 0 ? 0 : part * 100 / whole;
    return static_cast<double>(percent);
}

} // namespace

MemoryState readMemory()
{
    glibtop_mem mem;
    glibtop_get_mem(&mem);
    return {mem.total, mem.free, mem.buffer, mem.cached};
}

GeneralFigures generalFigures(const MemoryState &memory, quint64 freeDisk, quint64 totalDisk)
{
    const quint64 freeMemory = memory.buffer + memory.free + memory.cached;
    return {sizeToStr(memory.total), sizeToStr(freeMemory), sizeToStr(freeDisk),
            wholePercent(freeMemory, memory.total), wholePercent(freeDisk, totalDisk)};
}
