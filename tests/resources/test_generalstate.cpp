// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/generalstate.h"

#include <QtTest>

#include <limits>

namespace {

constexpr quint64 largest = std::numeric_limits<quint64>::max();

MemoryState memory(quint64 total, quint64 free, quint64 buffer, quint64 cached)
{
    return {total, free, buffer, cached};
}

} // namespace

class TestGeneralState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buffersAndCacheCountAsFree();
    void sizesAreTexts();
    void sharesAreTruncated_data();
    void sharesAreTruncated();
    void aMachineOfZeroesShowsZeroes();
    void sumsAndProductsWrap();
    void liveMemoryIsSane();
};

void TestGeneralState::buffersAndCacheCountAsFree()
{
    const GeneralFigures figures = generalFigures(memory(8192, 1024, 512, 512), 0, 0);
    QCOMPARE(figures.memFree, QString("2.00 KB"));
    QCOMPARE(figures.memPercent, 25.0);
    QCOMPARE(generalFigures(memory(8192, 1024, 0, 0), 0, 0).memFree, QString("1.00 KB"));
    QCOMPARE(generalFigures(memory(8192, 0, 1024, 0), 0, 0).memFree, QString("1.00 KB"));
    QCOMPARE(generalFigures(memory(8192, 0, 0, 1024), 0, 0).memFree, QString("1.00 KB"));
}

void TestGeneralState::sizesAreTexts()
{
    const GeneralFigures figures =
        generalFigures(memory(16ULL << 30, 3ULL << 20, 0, 0), 5ULL << 40, 10ULL << 40);
    QCOMPARE(figures.memTotal, QString("16.00 GB"));
    QCOMPARE(figures.memFree, QString("3.00 MB"));
    QCOMPARE(figures.diskFree, QString("5120.00 GB"));
    QCOMPARE(figures.diskPercent, 50.0);
}

void TestGeneralState::sharesAreTruncated_data()
{
    QTest::addColumn<quint64>("free");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<double>("percent");

    const auto row = [](const char *name, quint64 free, quint64 total, double percent) {
        QTest::newRow(name) << free << total << percent;
    };
    row("5 of 300 is 1, not 2", 5, 300, 1.0);
    row("nothing of nothing", 0, 0, 0.0);
    row("something of nothing", 5, 0, 0.0);
    row("nothing free", 0, 300, 0.0);
    row("all free", 300, 300, 100.0);
    row("nearly all free", 299, 300, 99.0);
    row("more free than there is", 600, 300, 200.0);
    row("a petabyte", 1ULL << 49, 1ULL << 50, 50.0);
}

void TestGeneralState::sharesAreTruncated()
{
    QFETCH(quint64, free);
    QFETCH(quint64, total);
    QTEST(generalFigures(memory(total, free, 0, 0), 0, 0).memPercent, "percent");
    QTEST(generalFigures(MemoryState(), free, total).diskPercent, "percent");
}

void TestGeneralState::aMachineOfZeroesShowsZeroes()
{
    const GeneralFigures figures = generalFigures(MemoryState(), 0, 0);
    QCOMPARE(figures.memTotal, QString("0.00 B"));
    QCOMPARE(figures.memFree, QString("0.00 B"));
    QCOMPARE(figures.diskFree, QString("0.00 B"));
    QCOMPARE(figures.memPercent, 0.0);
    QCOMPARE(figures.diskPercent, 0.0);
}

void TestGeneralState::sumsAndProductsWrap()
{
    QCOMPARE(generalFigures(memory(100, largest, 1, 50), 0, 0).memFree, QString("50.00 B"));
    // 100 * (2^63 + 1) is 100 in 64 bits.
    QCOMPARE(generalFigures(MemoryState(), (1ULL << 63) + 1, 10).diskPercent, 10.0);
    QCOMPARE(generalFigures(MemoryState(), largest, largest).diskFree, QString("17179869184.00 GB"));
}

void TestGeneralState::liveMemoryIsSane()
{
    const MemoryState state = readMemory();
    QVERIFY(state.total > 0);
    QVERIFY(state.free <= state.total);
    QVERIFY(state.buffer <= state.total);
    QVERIFY(state.cached <= state.total);
}

QTEST_GUILESS_MAIN(TestGeneralState)
#include "test_generalstate.moc"
