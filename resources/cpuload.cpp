// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/cpuload.h"

#include <glibtop.h>
#include <glibtop/cpu.h>
#include <unistd.h>

#include <algorithm>

int cpuCount()
{
    // libgtop sets ncpu on the first read; the values are discarded.
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    return cpuCountFromLastIndex(glibtop_global_server->ncpu);
}

int cpuCountFromLastIndex(int lastIndex)
{
    return std::clamp(lastIndex, 0, GLIBTOP_NCPU - 1) + 1;
}

quint64 totalCpuTime()
{
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    return cpu.total;
}

double machineSeconds(quint64 jiffies, int cpuCount)
{
    const double perSecond = static_cast<double>(sysconf(_SC_CLK_TCK)) * cpuCount;
    return static_cast<double>(jiffies) / perSecond;
}

std::vector<CpuCounters> readCpuCounters(std::size_t count)
{
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    std::vector<CpuCounters> read(std::min<std::size_t>(count, GLIBTOP_NCPU));
    for (std::size_t i = 0; i < read.size(); ++i) {
        read[i] = {cpu.xcpu_idle[i], cpu.xcpu_total[i]};
    }
    return read;
}

quint64 updateCpuDeltas(const std::vector<CpuCounters> &read, std::vector<CpuRec> &records)
{
    quint64 sum = 0;
    for (std::size_t i = 0; i < std::min(read.size(), records.size()); ++i) {
        CpuRec &rec = records[i];
        rec.idleDelta = read[i].idle - rec.idleLast;
        rec.idleLast = read[i].idle;
        rec.totalDelta = read[i].total - rec.totalLast;
        rec.totalLast = read[i].total;
        sum += rec.totalDelta;
    }
    return sum;
}

quint64 sampleCpus(std::vector<CpuRec> &records)
{
    return updateCpuDeltas(readCpuCounters(records.size()), records);
}

int cpuLoadPercent(quint64 idleDelta, quint64 totalDelta)
{
    // Intentional: a tick in which no time passed shows full load, and so does an idle share that would give
    // -101 or less. Both are decided before the division and the conversion, which would be undefined.
    if (totalDelta == 0) {
        return 100;
    }
    const double idleShare = 100.0 * static_cast<double>(idleDelta) / static_cast<double>(totalDelta);
    return idleShare < 201.0 ? 100 - static_cast<int>(idleShare) : 100;
}

QString cpuLoadText(int percent)
{
    return QString::number(percent) + QLatin1String(" %");
}
