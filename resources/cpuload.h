// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_CPULOAD_H
#define RESOURCES_CPULOAD_H

#include <QString>

#include <vector>

class QLabel;
class QProg;

/// One CPU: its counters in jiffies and the widgets of its row, which are owned by their parent widget.
struct CpuRec
{
    quint64 idleDelta = 0;  ///< since the previous sample
    quint64 totalDelta = 0; ///< since the previous sample
    quint64 idleLast = 0;   ///< counter at the latest sample
    quint64 totalLast = 0;  ///< counter at the latest sample
    QProg *gauge = nullptr;
    QLabel *percentLabel = nullptr;
    QLabel *captionLabel = nullptr;
};

/// Raw counters of one CPU, in jiffies since boot.
struct CpuCounters
{
    quint64 idle = 0;
    quint64 total = 0;
};

/// Number of CPUs that libgtop counts, 1 to GLIBTOP_NCPU (1024), the length of its per-CPU arrays.
int cpuCount();

/// Converts the index of the last CPU (`ncpu` of libgtop's server) to a count, clamped to 1 to 1024.
int cpuCountFromLastIndex(int lastIndex);

/// Jiffies of all CPUs together since boot (`total` of glibtop_cpu).
quint64 totalCpuTime();

/// Seconds that passed while all CPUs together counted so many jiffies.
double machineSeconds(quint64 jiffies, int cpuCount);

/// Counters of the first `count` CPUs, at most 1024, from glibtop_get_cpu. An offline CPU reads as 0.
std::vector<CpuCounters> readCpuCounters(std::size_t count);

/// Updates the deltas and latest counters of `records` from `read`; records without a reading stay unchanged.
/// Returns the sum of the total deltas.
/// Unsigned throughout: a counter that decreased yields a huge delta.
quint64 updateCpuDeltas(const std::vector<CpuCounters> &read, std::vector<CpuRec> &records);

/// Samples as many CPUs as there are records: readCpuCounters(), then updateCpuDeltas().
quint64 sampleCpus(std::vector<CpuRec> &records);

/// 100 minus the idle share, truncated to a whole percent; -100 to 100. Yields 100 if no time has passed or
/// if the result would be below -100.
int cpuLoadPercent(quint64 idleDelta, quint64 totalDelta);

/// The label text for a load: "42 %".
QString cpuLoadText(int percent);

#endif
