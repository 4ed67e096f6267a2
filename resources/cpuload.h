// SPDX-License-Identifier: GPL-3.0-or-later
// CPU times of the machine, and the load between two samples of them.
#ifndef RESOURCES_CPULOAD_H
#define RESOURCES_CPULOAD_H

#include <QString>

#include <vector>

class QLabel;
class QProg;

// One CPU: its counters in jiffies, and the widgets of its row, which belong to their parent widget.
struct CpuRec
{
    quint64 idleDelta = 0;  // since the previous sample
    quint64 totalDelta = 0; // since the previous sample
    quint64 idleLast = 0;
    quint64 totalLast = 0;
    QProg *gauge = nullptr;
    QLabel *percentLabel = nullptr;
    QLabel *captionLabel = nullptr;
};

// What was read of one CPU: jiffies since boot.
struct CpuCounters
{
    quint64 idle = 0;
    quint64 total = 0;
};

// Number of CPUs that libgtop counts, 1 to 1024 (GLIBTOP_NCPU, where its per-CPU arrays end).
int cpuCount();

// That number from the index of the last CPU, whatever the index is.
int cpuCountFromLastIndex(int lastIndex);

// Jiffies of all CPUs together since boot (`total` of glibtop_cpu).
quint64 totalCpuTime();

// Counters of the first `count` CPUs from glibtop_get_cpu; at most 1024. A CPU that is offline reads as 0.
std::vector<CpuCounters> readCpuCounters(std::size_t count);

// Sets each record's deltas and latest counters from what was read; records beyond it stay as they are.
// Returns the sum of the total deltas. Unsigned throughout: a counter that fell gives a huge delta.
quint64 updateCpuDeltas(const std::vector<CpuCounters> &read, std::vector<CpuRec> &records);

// Both of the above: one sample of as many CPUs as there are records.
quint64 sampleCpus(std::vector<CpuRec> &records);

// 100 minus the idle share, truncated to a whole percent. 100 when there is no share to speak of (no time
// has passed) or it leaves the load at a distance of more than 100 from 0; otherwise from -100 to 100.
int cpuLoadPercent(quint64 idleDelta, quint64 totalDelta);

// "42 %".
QString cpuLoadText(int percent);

#endif
