// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/cpuload.h"

#include <QtTest>

#include <glibtop.h>
#include <glibtop/cpu.h>

#include <climits>
#include <cstddef>
#include <limits>

namespace {

constexpr quint64 largest = std::numeric_limits<quint64>::max();

} // namespace

class TestCpuLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cpuCountStaysWithinLibgtopsArrays_data();
    void cpuCountStaysWithinLibgtopsArrays();
    void liveCountIsTheLastIndexPlusOne();

    void recordFieldsAreInOrder();
    void newRecordsAreZero();
    void deltasAreSinceThePreviousSample();
    void theSumIsOfTheLatestDeltasOnly();
    void aThousandCpusAreSampled();
    void fallingCountersWrap();
    void aZeroedReadingIsSurvived();
    void recordsBeyondTheReadingStayAsTheyAre();
    void readingsBeyondTheRecordsAreDropped();
    void noCpuAtAllIsSurvived();

    void loadIsComputed_data();
    void loadIsComputed();
    void loadNeverLeavesPlusMinusAHundred();
    void loadTextHasABlankBeforeTheSign();

    void liveReadingIsBoundedByTheCountAskedFor();
    void liveCountersOfTheFirstCpuAreSane();
    void liveSampleFillsTheRecords();
    void liveTotalTimeNeverFalls();
};

void TestCpuLoad::cpuCountStaysWithinLibgtopsArrays_data()
{
    QTest::addColumn<int>("lastIndex");
    QTest::addColumn<int>("count");

    QTest::newRow("one") << 0 << 1;
    QTest::newRow("two") << 1 << 2;
    QTest::newRow("as many as fit") << 1023 << 1024;
    QTest::newRow("one more than fits") << 1024 << 1024;
    QTest::newRow("the largest number") << INT_MAX << 1024;
    QTest::newRow("none") << -1 << 1;
    QTest::newRow("the smallest number") << INT_MIN << 1;
}

void TestCpuLoad::cpuCountStaysWithinLibgtopsArrays()
{
    QFETCH(int, lastIndex);
    QTEST(cpuCountFromLastIndex(lastIndex), "count");
    QCOMPARE(GLIBTOP_NCPU, 1024);
}

void TestCpuLoad::liveCountIsTheLastIndexPlusOne()
{
    const int count = cpuCount(); // libgtop knows its CPUs only once it has been asked
    QCOMPARE(count, cpuCountFromLastIndex(glibtop_global_server->ncpu));
}

void TestCpuLoad::recordFieldsAreInOrder()
{
    const CpuRec rec{1, 2, 3, 4, nullptr, nullptr, nullptr};
    QCOMPARE(rec.idleDelta, quint64(1));
    QCOMPARE(rec.totalDelta, quint64(2));
    QCOMPARE(rec.idleLast, quint64(3));
    QCOMPARE(rec.totalLast, quint64(4));
    QVERIFY(offsetof(CpuRec, gauge) < offsetof(CpuRec, percentLabel));
    QVERIFY(offsetof(CpuRec, percentLabel) < offsetof(CpuRec, captionLabel));
}

void TestCpuLoad::newRecordsAreZero()
{
    std::vector<CpuRec> records;
    records.resize(1);
    QCOMPARE(records[0].idleDelta, quint64(0));
    QCOMPARE(records[0].totalDelta, quint64(0));
    QCOMPARE(records[0].idleLast, quint64(0));
    QCOMPARE(records[0].totalLast, quint64(0));
    QVERIFY(!records[0].gauge && !records[0].percentLabel && !records[0].captionLabel);
}

void TestCpuLoad::deltasAreSinceThePreviousSample()
{
    std::vector<CpuRec> records(2);
    updateCpuDeltas({{1000, 3000}, {50, 60}}, records);
    QCOMPARE(records[0].idleDelta, quint64(1000)); // the first sample's previous one is zero
    QCOMPARE(records[0].totalDelta, quint64(3000));
    updateCpuDeltas({{1010, 3040}, {50, 61}}, records);
    QCOMPARE(records[0].idleDelta, quint64(10));
    QCOMPARE(records[0].totalDelta, quint64(40));
    QCOMPARE(records[0].idleLast, quint64(1010));
    QCOMPARE(records[0].totalLast, quint64(3040));
    QCOMPARE(records[1].idleDelta, quint64(0));
    QCOMPARE(records[1].totalDelta, quint64(1));
}

void TestCpuLoad::theSumIsOfTheLatestDeltasOnly()
{
    std::vector<CpuRec> records(2);
    QCOMPARE(updateCpuDeltas({{0, 300}, {0, 60}}, records), quint64(360));
    QCOMPARE(updateCpuDeltas({{0, 310}, {0, 65}}, records), quint64(15));
    QCOMPARE(updateCpuDeltas({{0, 310}, {0, 65}}, records), quint64(0));
}

void TestCpuLoad::aThousandCpusAreSampled()
{
    std::vector<CpuRec> records(1024);
    std::vector<CpuCounters> read(1024);
    updateCpuDeltas(read, records);
    for (std::size_t i = 0; i < read.size(); ++i)
        read[i] = {i, 2 * i};
    QCOMPARE(updateCpuDeltas(read, records), quint64(1023 * 1024));
    QCOMPARE(records[1023].idleDelta, quint64(1023));
    QCOMPARE(records[1023].totalLast, quint64(2046));
}

void TestCpuLoad::fallingCountersWrap()
{
    std::vector<CpuRec> records(1);
    updateCpuDeltas({{500, 900}}, records);
    QCOMPARE(updateCpuDeltas({{499, 898}}, records), largest - 1);
    QCOMPARE(records[0].idleDelta, largest);
    QCOMPARE(records[0].totalDelta, largest - 1);
    QCOMPARE(records[0].idleLast, quint64(499));
}

void TestCpuLoad::aZeroedReadingIsSurvived()
{
    std::vector<CpuRec> records(2);
    updateCpuDeltas({{0, 0}, {0, 0}}, records);
    QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 100);
    updateCpuDeltas({{400, 900}, {0, 0}}, records);
    updateCpuDeltas({{0, 0}, {0, 0}}, records);
    // Both differences have wrapped to nearly 2^64, which makes it nearly all idle.
    QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 0);
    updateCpuDeltas({{5, 10}, {0, 0}}, records);
    QCOMPARE(cpuLoadPercent(records[0].idleDelta, records[0].totalDelta), 50);
}

void TestCpuLoad::recordsBeyondTheReadingStayAsTheyAre()
{
    std::vector<CpuRec> records(2);
    updateCpuDeltas({{1, 2}, {3, 4}}, records);
    QCOMPARE(updateCpuDeltas({{2, 4}}, records), quint64(2));
    QCOMPARE(records[1].totalDelta, quint64(4));
    QCOMPARE(records[1].totalLast, quint64(4));
}

void TestCpuLoad::readingsBeyondTheRecordsAreDropped()
{
    std::vector<CpuRec> records(1);
    QCOMPARE(updateCpuDeltas({{1, 2}, {3, 4}}, records), quint64(2));
    QCOMPARE(records.size(), std::size_t(1));
}

void TestCpuLoad::noCpuAtAllIsSurvived()
{
    std::vector<CpuRec> none;
    QCOMPARE(updateCpuDeltas({}, none), quint64(0));
    QCOMPARE(sampleCpus(none), quint64(0));
}

void TestCpuLoad::loadIsComputed_data()
{
    QTest::addColumn<quint64>("idle");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<int>("load");

    const auto row = [](const char *name, quint64 idle, quint64 total, int load) {
        QTest::newRow(name) << idle << total << load;
    };
    row("idle", 300, 300, 0);
    row("busy", 0, 300, 100);
    row("half", 150, 300, 50);
    row("a third", 100, 300, 67); // the share is truncated, so the load is rounded up
    row("an idle share of 99.7 makes 1, not 0", 997, 1000, 1);
    row("an idle share of 0.9 makes 100", 9, 1000, 100);
    row("no time, idle or not", 0, 0, 100);
    row("no time, but idle", 7, 0, 100);
    row("no time, but idle without bounds", largest, 0, 100);
    row("more idle than there was time: below zero", 150, 100, -50);
    row("just not 101 below zero", 2009, 1000, -100);
    row("101 below zero", 201, 100, 100);
    row("far below zero", 100000, 100, 100);
    row("a share beyond 32 bits", 1ULL << 40, 1, 100);
    row("a share beyond 64 bits", largest, 1, 100);
    row("idle counter fell", largest - 2, 300, 100);
    row("total counter fell", 300, largest - 2, 100);
    row("both fell", largest - 1, largest, 0);
    row("2^63 is a large number, not a negative one", 1ULL << 62, 1ULL << 63, 50);
}

void TestCpuLoad::loadIsComputed()
{
    QFETCH(quint64, idle);
    QFETCH(quint64, total);
    QTEST(cpuLoadPercent(idle, total), "load");
}

void TestCpuLoad::loadNeverLeavesPlusMinusAHundred()
{
    for (quint64 total = 0; total < 64; ++total) {
        for (quint64 idle = 0; idle < 256; ++idle) {
            const int load = cpuLoadPercent(idle, total);
            QVERIFY(load >= -100 && load <= 100);
        }
    }
}

void TestCpuLoad::loadTextHasABlankBeforeTheSign()
{
    QCOMPARE(cpuLoadText(0), QString("0 %"));
    QCOMPARE(cpuLoadText(100), QString("100 %"));
    QCOMPARE(cpuLoadText(-50), QString("-50 %"));
}

void TestCpuLoad::liveReadingIsBoundedByTheCountAskedFor()
{
    QCOMPARE(readCpuCounters(0).size(), std::size_t(0));
    QCOMPARE(readCpuCounters(1).size(), std::size_t(1));
    QCOMPARE(readCpuCounters(1024).size(), std::size_t(1024));
    QCOMPARE(readCpuCounters(1000000).size(), std::size_t(1024));
}

void TestCpuLoad::liveCountersOfTheFirstCpuAreSane()
{
    const CpuCounters first = readCpuCounters(1).front();
    QVERIFY(first.total > 0);
    QVERIFY(first.idle <= first.total);
}

void TestCpuLoad::liveSampleFillsTheRecords()
{
    std::vector<CpuRec> records(static_cast<std::size_t>(cpuCount()));
    const quint64 sum = sampleCpus(records);
    QVERIFY(records[0].totalDelta > 0);
    QCOMPARE(records[0].totalDelta, records[0].totalLast);
    QVERIFY(sum >= records[0].totalDelta);
}

void TestCpuLoad::liveTotalTimeNeverFalls()
{
    const quint64 before = totalCpuTime();
    QVERIFY(before > 0);
    QVERIFY(totalCpuTime() >= before);
}

QTEST_GUILESS_MAIN(TestCpuLoad)
#include "test_cpuload.moc"
