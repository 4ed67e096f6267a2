// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/textondemand.h"
#include "process/procmodel.h"
#include "tests/process/support/synthetic.h"

#include <QtTest>

#include <limits>
#include <utility>

using gtop_wrappers::Process;

namespace {

const int cpuColumn = 1;
const int lowest = std::numeric_limits<int>::min();
const int highest = std::numeric_limits<int>::max();
const unsigned long highestTotal = std::numeric_limits<unsigned long>::max();

/// A refresh of one process, and the load that is sorted by after it.
struct Refresh
{
    int counter;
    unsigned long total;
    double load;
};
using Refreshes = std::vector<Refresh>;

/// The CPU time of a process, in jiffies, and the load that is sorted by after a refresh.
using TimesAndLoads = std::vector<std::pair<quint64, double>>;

ProcModel::Snapshot snapshotWithCpuTime(quint64 jiffies)
{
    ProcModel::Snapshot snapshot = makeCpuSnapshot({{7, 1}});
    auto *time = new gtop_wrappers::CpuTimeProcessParam(jiffies, 100);
    snapshot.at(7).params[gtop_wrappers::CpuTimeColumn].reset(time);
    return snapshot;
}

} // namespace

Q_DECLARE_METATYPE(Refreshes)
Q_DECLARE_METATYPE(TimesAndLoads)

class TestProcModelCpu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theLoadIsTheShareSinceTheLastRefresh_data()
    {
        const Rows<Refreshes> row("refreshes");
        row("the first load is one unit, then the real share",
            {{5000, 400, 0.25}, {5050, 400, 12.5}, {5050, 400, 0.0}});
        row("a counter of 0 shows one unit every time, also when it starts to grow",
            {{0, 1000, 0.1}, {0, 1000, 0.1}, {0, 1000, 0.1}, {10, 1000, 0.1}, {20, 1000, 1.0}});
        row("a counter that fell wraps to 2^64 - 10, and the next share is right",
            {{1000, 100, 1.0}, {990, 100, 18446744073709551606.0}, {1000, 100, 10.0}});
        row("from the highest counter to the lowest",
            {{highest, 100, 1.0}, {lowest, 100, 18446744069414584321.0}});
        // The lowest counter less one is the highest as a 32-bit value: a huge first load.
        row("the lowest counter first",
            {{lowest, 100, 18446744069414584321.0}, {lowest + 1, highestTotal, 100.0 / 0x1p64}});
    }

    void theLoadIsTheShareSinceTheLastRefresh()
    {
        QFETCH(Refreshes, refreshes);
        ProcModel model;
        for (const Refresh &refresh : refreshes) {
            model.update(makeCpuSnapshot({{7, refresh.counter}}), refresh.total);
            QCOMPARE(model.index(0, cpuColumn).data(Qt::UserRole).toDouble(), refresh.load);
        }
    }

    void theLoadFollowsTheCpuTime_data()
    {
        const Rows<TimesAndLoads> row("refreshes");
        row("nothing from the second refresh on if it never ran", {{0, 0.1}, {0, 0.0}, {0, 0.0}, {10, 1.0}});
        row("one unit while the counter has wrapped to 0", {{0xfffffffe, 0.1},
                                                            {0xfffffffe, 0.0},
                                                            {0xffffffff, 0.1},
                                                            {0xffffffff, 0.1},
                                                            {0x100000000, 0.1},
                                                            {0x100000000, 0.0}});
    }

    void theLoadFollowsTheCpuTime()
    {
        QFETCH(TimesAndLoads, refreshes);
        ProcModel model;
        for (const auto &[jiffies, load] : refreshes) {
            model.update(snapshotWithCpuTime(jiffies), 1000);
            const QModelIndex cell = model.index(0, cpuColumn);
            QCOMPARE(cell.data(Qt::UserRole).toDouble(), load);
            QCOMPARE(cell.data().toString(), QString::number(load, 'f', 1) + QStringLiteral(" %"));
        }
    }

    void theLoadIsShownWithOneDecimal_data()
    {
        const Rows<int, int, QString> row("counter", "total", "text");
        row("nothing", 100, 3000, "0.0 %");
        row("a third", 1100, 3000, "33.3 %");
        row("an eighth", 150, 400, "12.5 %");
        row("everything", 3100, 3000, "100.0 %");
        row("something in no time", 101, 0, "inf %");
        row("nothing in no time", 100, 0, "nan %");
    }

    void theLoadIsShownWithOneDecimal()
    {
        QFETCH(int, counter);
        QFETCH(int, total);
        ProcModel model;
        const auto refresh = [&](int nextCounter, int nextTotal) {
            model.update(makeCpuSnapshot({{7, nextCounter}}), static_cast<unsigned long>(nextTotal));
            return model.index(0, cpuColumn).data().toString();
        };
        QCOMPARE(refresh(100, 3000), QStringLiteral("0.0 %")); // one unit
        QTEST(refresh(counter, total), "text");
        QCOMPARE(refresh(counter + 1, 100), QStringLiteral("1.0 %"));
    }

    void aLoadThatIsNoNumberHasASortValueThatIsOne()
    {
        ProcModel model;
        const auto sortValue = [&] { return model.index(0, cpuColumn).data(Qt::UserRole).toDouble(); };
        model.update(makeCpuSnapshot({{7, 100}}), 0);
        QVERIFY(qIsInf(sortValue()));
        model.update(makeCpuSnapshot({{7, 100}}), 0);
        QCOMPARE(model.index(0, cpuColumn).data().toString(), QStringLiteral("nan %"));
        QVERIFY(!qIsNaN(sortValue()));
    }

    void aProcessWithoutCpuParameterIsTaken()
    {
        ProcModel model;
        const ProcModel::Snapshot bare{{3, Process(3)}};
        model.update(bare, 10);
        model.update(bare, 10);
        QCOMPARE(shapeOf(model), QStringLiteral("3"));
        QVERIFY(!model.index(0, cpuColumn).data().isValid());
    }
};

QTEST_MAIN(TestProcModelCpu)
#include "test_procmodel_cpu.moc"
