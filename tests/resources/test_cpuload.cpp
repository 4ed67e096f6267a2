// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "resources/cpuload.h"

#include <QtTest>

#include <glibtop.h>
#include <glibtop/cpu.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <iterator>
#include <limits>

namespace {

constexpr quint64 largest = std::numeric_limits<quint64>::max();

using Counters = QVector<quint64>;

/// idleDelta, totalDelta, idleLast and totalLast.
Counters countersOf(const CpuRec &rec)
{
    return {rec.idleDelta, rec.totalDelta, rec.idleLast, rec.totalLast};
}

using Samples = QVector<std::vector<CpuCounters>>;

} // namespace

Q_DECLARE_METATYPE(Samples)

class TestCpuLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cpuCountStaysWithinLibgtopsArrays_data()
    {
        const Rows<int, int> row("lastIndex", "count");

        row("one", 0, 1);
        row("two", 1, 2);
        row("as many as fit", 1023, 1024);
        row("one more than fits", 1024, 1024);
        row("the largest number", INT_MAX, 1024);
        row("none", -1, 1);
        row("the smallest number", INT_MIN, 1);
    }

    void cpuCountStaysWithinLibgtopsArrays()
    {
        QFETCH(int, lastIndex);
        QTEST(cpuCountFromLastIndex(lastIndex), "count");
        QCOMPARE(GLIBTOP_NCPU, 1024);
    }

    void recordFieldsAreInOrderAndStartAtZero()
    {
        QCOMPARE(countersOf({1, 2, 3, 4, nullptr, nullptr, nullptr}), (Counters{1, 2, 3, 4}));
        QVERIFY(offsetof(CpuRec, gauge) < offsetof(CpuRec, percentLabel));
        QVERIFY(offsetof(CpuRec, percentLabel) < offsetof(CpuRec, captionLabel));

        std::vector<CpuRec> records;
        records.resize(1);
        QCOMPARE(countersOf(records[0]), (Counters{0, 0, 0, 0}));
        QVERIFY(!records[0].gauge && !records[0].percentLabel && !records[0].captionLabel);
    }

    void deltasAreSinceThePreviousSample_data()
    {
        const Rows<Samples, Counters, QVector<Counters>> row("samples", "sums",
                                                             "records"); // a sum per sample
        row("first sample: since zero", {{{1000, 3000}, {50, 60}}}, {3060},
            {{1000, 3000, 1000, 3000}, {50, 60, 50, 60}});
        row("second sample", {{{1000, 3000}, {50, 60}}, {{1010, 3040}, {50, 61}}}, {3060, 41},
            {{10, 40, 1010, 3040}, {0, 1, 50, 61}});
        row("the sum is of the latest deltas only",
            {{{0, 300}, {0, 60}}, {{0, 310}, {0, 65}}, {{0, 310}, {0, 65}}}, {360, 15, 0},
            {{0, 0, 0, 310}, {0, 0, 0, 65}});
        row("falling counters wrap", {{{500, 900}}, {{499, 898}}}, {900, largest - 1},
            {{largest, largest - 1, 499, 898}});
        row("a record without a reading stays unchanged", {{{1, 2}, {3, 4}}, {{2, 4}}}, {6, 2},
            {{1, 2, 2, 4}, {3, 4, 3, 4}});
        row("a reading without a record is dropped", {{{1, 2}, {3, 4}}}, {2}, {{1, 2, 1, 2}});
    }

    void deltasAreSinceThePreviousSample()
    {
        QFETCH(Samples, samples);
        QFETCH(QVector<Counters>, records);
        std::vector<CpuRec> sampled(static_cast<std::size_t>(records.size()));
        Counters sums;
        for (const std::vector<CpuCounters> &sample : qAsConst(samples)) {
            sums << updateCpuDeltas(sample, sampled);
        }
        QTEST(sums, "sums");
        QVector<Counters> counters;
        std::transform(sampled.begin(), sampled.end(), std::back_inserter(counters), countersOf);
        QCOMPARE(counters, records);
    }

    void noneOrAThousandCpusAreSampled()
    {
        std::vector<CpuRec> none;
        QCOMPARE(updateCpuDeltas({}, none), quint64(0));
        QCOMPARE(sampleCpus(none), quint64(0));
        std::vector<CpuRec> records(1024);
        std::vector<CpuCounters> read(1024);
        updateCpuDeltas(read, records);
        for (std::size_t i = 0; i < read.size(); ++i) {
            read[i] = {i, 2 * i};
        }
        QCOMPARE(updateCpuDeltas(read, records), quint64(1023 * 1024));
        QCOMPARE(records[1023].idleDelta, quint64(1023));
        QCOMPARE(records[1023].totalLast, quint64(2046));
    }

    void aZeroedReadingIsHandled()
    {
        std::vector<CpuRec> records(2);
        updateCpuDeltas({{0, 0}, {0, 0}}, records);
        QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 100);
        updateCpuDeltas({{400, 900}, {0, 0}}, records);
        updateCpuDeltas({{0, 0}, {0, 0}}, records);
        // Both differences wrap to nearly 2^64, which gives an idle share of nearly 100 %.
        QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 0);
        updateCpuDeltas({{5, 10}, {0, 0}}, records);
        QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 50);
    }

    void loadIsComputed_data()
    {
        const Rows<quint64, quint64, int> row("idle", "total", "load");

        row("idle", 300, 300, 0);
        row("busy", 0, 300, 100);
        row("half", 150, 300, 50);
        row("a third", 100, 300, 67); // the share is truncated, so the load is rounded up
        row("an idle share of 99.7 makes 1, not 0", 997, 1000, 1);
        row("an idle share of 0.9 makes 100", 9, 1000, 100);
        row("no time, idle or not", 0, 0, 100);
        row("no time, but idle", 7, 0, 100);
        row("no time, but largest idle delta", largest, 0, 100);
        row("more idle than total time: negative", 150, 100, -50);
        row("the lowest load", 2009, 1000, -100);
        row("a load of -101", 201, 100, 100);
        row("a load far below -101", 100000, 100, 100);
        row("a share beyond 32 bits", 1ULL << 40, 1, 100);
        row("a share beyond 64 bits", largest, 1, 100);
        row("idle counter fell", largest - 2, 300, 100);
        row("total counter fell", 300, largest - 2, 100);
        row("both fell", largest - 1, largest, 0);
        row("2^63 is a large number, not a negative one", 1ULL << 62, 1ULL << 63, 50);
    }

    void loadIsComputed()
    {
        QFETCH(quint64, idle);
        QFETCH(quint64, total);
        QTEST(cpuLoadPercent(idle, total), "load");
    }

    void loadNeverLeavesPlusMinusAHundred()
    {
        for (quint64 total = 0; total < 64; ++total) {
            for (quint64 idle = 0; idle < 256; ++idle) {
                const int load = cpuLoadPercent(idle, total);
                QVERIFY(load >= -100 && load <= 100);
            }
        }
    }

    void loadTextHasABlankBeforeTheSign()
    {
        QCOMPARE(cpuLoadText(0), QString("0 %"));
        QCOMPARE(cpuLoadText(100), QString("100 %"));
        QCOMPARE(cpuLoadText(-50), QString("-50 %"));
    }

    void machineSecondsAreTheJiffiesPerCpu()
    {
        const auto perSecond = static_cast<quint64>(sysconf(_SC_CLK_TCK));
        QCOMPARE(machineSeconds(0, 4), 0.0);
        QCOMPARE(machineSeconds(perSecond, 1), 1.0);
        QCOMPARE(machineSeconds(perSecond, 4), 0.25);
        QCOMPARE(machineSeconds(perSecond * 8, 4), 2.0);
        QVERIFY(machineSeconds(largest, 1024) > 1e9); // a counter fell
    }

    void liveReadingHasTheRequestedLengthAndTheLastIndexPlusOneByDefault()
    {
        const int count = cpuCount(); // libgtop sets ncpu on the first read
        QCOMPARE(count, cpuCountFromLastIndex(glibtop_global_server->ncpu));
        QCOMPARE(readCpuCounters(0).size(), std::size_t(0));
        QCOMPARE(readCpuCounters(1).size(), std::size_t(1));
        QCOMPARE(readCpuCounters(1024).size(), std::size_t(1024));
        QCOMPARE(readCpuCounters(1000000).size(), std::size_t(1024));
    }

    void liveCountersAreSane()
    {
        const CpuCounters first = readCpuCounters(1).front();
        QVERIFY(first.total > 0);
        QVERIFY(first.idle <= first.total);

        std::vector<CpuRec> records(static_cast<std::size_t>(cpuCount()));
        const quint64 sum = sampleCpus(records);
        QVERIFY(records[0].totalDelta > 0);
        QCOMPARE(records[0].totalDelta, records[0].totalLast);
        QVERIFY(sum >= records[0].totalDelta);

        const quint64 before = totalCpuTime();
        QVERIFY(before > 0);
        QVERIFY(totalCpuTime() >= before);
    }
};

QTEST_GUILESS_MAIN(TestCpuLoad)
#include "test_cpuload.moc"
