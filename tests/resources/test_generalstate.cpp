// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "resources/generalstate.h"

#include <QtTest>

#include <limits>

namespace {

constexpr quint64 largest = std::numeric_limits<quint64>::max();

} // namespace

class TestGeneralState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreSizeTextsAndWholePercents()
    {
        const auto texts = [](const MemoryState &memory, quint64 freeDisk) {
            const GeneralFigures figures = generalFigures(memory, freeDisk, freeDisk);
            const QString memPercent = QString::number(figures.memPercent) + '%';
            return QStringList{figures.memTotal, figures.memFree, memPercent, figures.diskFree}.join(", ");
        };
        // The memory is total, free, buffers and cache.
        QCOMPARE(texts({16ULL << 30, 3ULL << 20, 0, 0}, 5ULL << 40),
                 QString("16.00 GB, 3.00 MB, 0%, 5120.00 GB"));
        QCOMPARE(texts({}, 0), QString("0.00 B, 0.00 B, 0%, 0.00 B"));
        // Buffers and cache count as free.
        QCOMPARE(texts({8192, 1024, 512, 512}, 0), QString("8.00 KB, 2.00 KB, 25%, 0.00 B"));
        QCOMPARE(texts({8192, 1024, 0, 0}, 0), QString("8.00 KB, 1.00 KB, 12%, 0.00 B"));
        QCOMPARE(texts({8192, 0, 1024, 0}, 0), QString("8.00 KB, 1.00 KB, 12%, 0.00 B"));
        QCOMPARE(texts({8192, 0, 0, 1024}, 0), QString("8.00 KB, 1.00 KB, 12%, 0.00 B"));
        // The sum wraps at 64 bits.
        QCOMPARE(texts({100, largest, 1, 50}, 0), QString("100.00 B, 50.00 B, 50%, 0.00 B"));
        QCOMPARE(texts({}, largest), QString("0.00 B, 0.00 B, 0%, 17179869184.00 GB"));
    }

    void sharesAreTruncated_data()
    {
        const Rows<quint64, quint64, double> row("free", "total", "percent");

        row("5 of 300 is 1, not 2", 5, 300, 1.0);
        row("nothing of nothing", 0, 0, 0.0);
        row("something of nothing", 5, 0, 0.0);
        row("nothing free", 0, 300, 0.0);
        row("all free", 300, 300, 100.0);
        row("nearly all free", 299, 300, 99.0);
        row("more free than there is", 600, 300, 200.0);
        row("a petabyte", 1ULL << 49, 1ULL << 50, 50.0);
        row("100 * (2^63 + 1) wraps to 100", (1ULL << 63) + 1, 10, 10.0);
    }

    void sharesAreTruncated()
    {
        QFETCH(quint64, free);
        QFETCH(quint64, total);
        QTEST(generalFigures({total, free, 0, 0}, 0, 0).memPercent, "percent");
        QTEST(generalFigures({total, 0, free, 0}, 0, 0).memPercent, "percent");
        QTEST(generalFigures({total, 0, 0, free}, 0, 0).memPercent, "percent");
        QTEST(generalFigures(MemoryState(), free, total).diskPercent, "percent");
    }

    void liveMemoryIsSane()
    {
        const MemoryState state = readMemory();
        QVERIFY(state.total > 0);
        QVERIFY(state.free <= state.total);
        QVERIFY(state.buffer <= state.total);
        QVERIFY(state.cached <= state.total);
    }
};

QTEST_GUILESS_MAIN(TestGeneralState)
#include "test_generalstate.moc"
