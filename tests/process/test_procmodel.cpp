// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "process/gtop_wrappers/textondemand.h"
#include "process/procmodel.h"
#include "tests/process/support/synthetic.h"

#include <QtTest>

#include <limits>
#include <stdexcept>
#include <utility>

using namespace gtop_wrappers;

namespace {

/// A model of one process, which lets a test create the stale indexes that a view may keep.
class OneProcess : public ProcModel
{
public:
    OneProcess() { update(makeCpuSnapshot({{7, 4711}}), 1); }
    using ProcModel::createIndex;
};

const int lowest = std::numeric_limits<int>::min();
const int highest = std::numeric_limits<int>::max();
const unsigned long highestTotal = std::numeric_limits<unsigned long>::max();

/// A value that is not read until it is asked for, and counts how often it is.
class UnreadParam : public IProcessParam
{
public:
    explicit UnreadParam(int *count) : readings(count) {}
    QVariant displayValue() const override { return ++*readings; }
    bool isRead() const override { return false; }

private:
    int *readings;
};

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
    auto *time = new CpuTimeProcessParam(jiffies, 100);
    snapshot.at(7).params[CpuTimeColumn].reset(time);
    return snapshot;
}

} // namespace

Q_DECLARE_METATYPE(Refreshes)
Q_DECLARE_METATYPE(TimesAndLoads)

class TestProcModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsEmptyFlatAndWithColumns6To9Hidden()
    {
        const ProcModel model;
        QVERIFY(model.isFlat());
        QCOMPARE(model.rowCount(), 0);
        const unsigned long size = ProcessFiller::instance()->size();
        QCOMPARE(model.columnCount(), static_cast<int>(size) - 4);
        for (unsigned long i = 0; i < size; ++i) {
            QCOMPARE(model.isColumnVisible(i), i < 6 || i > 9);
        }
    }

    void aHiddenColumnComesBackInItsPlace()
    {
        OneProcess model;
        const int before = model.columnCount();
        model.setColumnVisible(0, false);
        QVERIFY(!model.isColumnVisible(0));
        QCOMPARE(model.columnCount(), before - 1);
        QCOMPARE(model.index(0, 1).data().toInt(), 7); // the pid moved up
        model.setColumnVisible(0, true);
        QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("p7"));
        model.setColumnVisible(8, true);
        QCOMPARE(model.headerData(6, Qt::Horizontal).toString(), title(8));
    }

    void aColumnPastTheEndThrows()
    {
        ProcModel model;
        for (const unsigned long past :
             {ProcessFiller::instance()->size(), std::numeric_limits<unsigned long>::max()}) {
            QVERIFY_EXCEPTION_THROWN(model.isColumnVisible(past), std::out_of_range);
            QVERIFY_EXCEPTION_THROWN(model.setColumnVisible(past, true), std::out_of_range);
        }
    }

    void headersAreTheTitlesOfTheVisibleColumns()
    {
        const ProcModel model;
        int section = 0;
        for (unsigned long i = 0; i < ProcessFiller::instance()->size(); ++i) {
            if (model.isColumnVisible(i)) {
                QCOMPARE(model.headerData(section++, Qt::Horizontal).toString(), title(i));
            }
        }
        QCOMPARE(section, model.columnCount());
        QCOMPARE(model.headerData(6, Qt::Horizontal).toString(), title(10));
        // Elsewhere they are the toolkit's own.
        QCOMPARE(model.headerData(-1, Qt::Horizontal), QVariant(0));
        QCOMPARE(model.headerData(model.columnCount(), Qt::Horizontal), QVariant(model.columnCount() + 1));
        QCOMPARE(model.headerData(0, Qt::Vertical), QVariant(1));
        QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::DecorationRole), QVariant());
    }

    void displayAndSortValuesAreTheParametersOwn()
    {
        ProcModel model;
        model.update(makeSnapshot({{12, {12, 0, QStringLiteral("twelve"), 4711, 16}}}), 1);
        QCOMPARE(model.index(0, 0).data(), QVariant(QStringLiteral("twelve")));
        QCOMPARE(model.index(0, 2).data(Qt::UserRole), QVariant(12));
        QCOMPARE(model.index(0, 5).data(), QVariant(QStringLiteral("state")));
        QCOMPARE(model.index(0, 5).data(Qt::UserRole), QVariant(16));
        // Process column 10, one less than the counter.
        QCOMPARE(model.index(0, 6).data(Qt::UserRole), QVariant(4710));
    }

    void otherRolesAndMissingParametersGiveNothing()
    {
        const OneProcess model;
        for (const int role :
             {int(Qt::DecorationRole), int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::UserRole) + 1}) {
            QVERIFY(!model.index(0, 0).data(role).isValid());
        }
        QVERIFY(!model.index(0, 3).data().isValid()); // a synthetic process has no user
        QVERIFY(!model.index(0, 3).data(Qt::UserRole).isValid());
        QVERIFY(!model.data(QModelIndex()).isValid());
    }

    void anIndexIsCheckedAndCarriesThePid()
    {
        const OneProcess model;
        QVERIFY(model.index(0, 0).isValid());
        QVERIFY(model.index(0, model.columnCount() - 1).isValid());
        QCOMPARE(model.index(0, 3).internalId(), quintptr(7));
        QVERIFY(!model.index(0, 3).parent().isValid());
        const int columns = model.columnCount();
        for (const QModelIndex &index : {model.index(-1, 0), model.index(1, 0), model.index(0, -1),
                                         model.index(0, columns), model.index(0, 0, model.index(0, 0))}) {
            QVERIFY(!index.isValid());
        }
        QVERIFY(!model.parent(QModelIndex()).isValid());
    }

    void everyColumnOfAParentHasItsRows()
    {
        ProcModel model;
        model.setFlat(false);
        model.update(makeSnapshot({{1, 0}, {2, 1}}), 1);
        QCOMPARE(model.rowCount(model.index(0, 0)), 1);
        QCOMPARE(model.rowCount(model.index(0, 4)), 1);
        QCOMPARE(model.index(0, 3, model.index(0, 4)).internalId(), quintptr(2));
        QCOMPARE(model.index(0, 3, model.index(0, 0)).parent(), model.index(0, 0));
    }

    void itemsAreSelectableAndEnabledOnly()
    {
        const OneProcess model;
        QCOMPARE(static_cast<int>(model.flags(model.index(0, 0))), 33);
        QCOMPARE(static_cast<int>(model.flags(QModelIndex())), 0);
    }

    void aStaleIndexIsHarmless()
    {
        const OneProcess model;
        const QModelIndex stale = model.createIndex(0, 0, quintptr(4711));
        QVERIFY(!model.data(stale).isValid());
        QCOMPARE(model.rowCount(stale), 0);
        QVERIFY(!model.parent(stale).isValid());
        QVERIFY(!model.index(0, 0, stale).isValid());
        QCOMPARE(model.processAt(stale).pid(), -1);
        QVERIFY(!model.data(model.createIndex(0, 4711, quintptr(7))).isValid()); // a column hidden since
    }

    void processAtAndProcessByPidCopyTheProcess()
    {
        OneProcess model;
        QCOMPARE(model.processByPid(7).getName(), QStringLiteral("p7"));
        QCOMPARE(model.processByPid(8).pid(), -1);
        QCOMPARE(model.processByPid(-1).pid(), -1);
        QCOMPARE(model.processAt(model.index(0, 2)).pid(), 7);
        QCOMPARE(model.processAt(QModelIndex()).pid(), -1);
        const Process kept = model.processByPid(7);
        model.clear();
        QCOMPARE(kept.getName(), QStringLiteral("p7"));
    }

    void setFlatClearsOnlyOnAChange()
    {
        OneProcess model;
        const QSignalSpy resets(&model, SIGNAL(modelReset()));
        model.setFlat(true);
        QCOMPARE(resets.count(), 0);
        QCOMPARE(model.rowCount(), 1);
        model.setFlat(false);
        QCOMPARE(resets.count(), 1);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.isFlat());
    }

    void clearEmptiesWithOneReset()
    {
        ProcModel model;
        model.setFlat(false);
        model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 0}}), 1);
        const QSignalSpy begins(&model, SIGNAL(modelAboutToBeReset()));
        const QSignalSpy ends(&model, SIGNAL(modelReset()));
        const QSignalSpy removals(&model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
        model.clear();
        QCOMPARE(begins.count(), 1);
        QCOMPARE(ends.count(), 1);
        QCOMPARE(removals.count(), 0);
        QCOMPARE(shapeOf(model), QString());
        QCOMPARE(model.processByPid(2).pid(), -1);
        model.update(makeSnapshot({{1, 0}, {4, 0}}), 1);
        QCOMPARE(shapeOf(model), QStringLiteral("1 4"));
    }

    void aChangedNameLeavesForOneRefresh()
    {
        ProcModel model;
        model.update(makeSnapshot({{1, 0}, {2, 0}, {3, 0}}), 1);
        ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {3, 0}});
        snapshot.emplace(2, makeProcess({2, 0, QStringLiteral("other")}));

        const QSignalSpy insertions(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
        const QSignalSpy removals(&model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
        model.update(snapshot, 1);
        QCOMPARE(shapeOf(model), QStringLiteral("1 3"));
        QCOMPARE(insertions.count(), 1); // removed, inserted, and removed again
        QCOMPARE(removals.count(), 2);
        model.update(snapshot, 1);
        QCOMPARE(shapeOf(model), QStringLiteral("1 3 2"));
        QCOMPARE(model.processByPid(2).getName(), QStringLiteral("other"));
    }

    void aParentThatIsNotReadCountsAsUnchanged_data()
    {
        const Rows<bool, bool, QString> row("wasRead", "isRead", "shape");
        row("read now", false, true, "1 2");
        row("never read", false, false, "1 2");
        row("not read any more", true, false, "1 2");
        row("read both times", true, true, "1");
    }

    void aParentThatIsNotReadCountsAsUnchanged()
    {
        QFETCH(bool, wasRead);
        QFETCH(bool, isRead);
        int readings = 0;
        ProcModel model;
        const auto update = [&](int parent, bool read) {
            ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {2, parent}});
            if (!read) {
                snapshot.at(2).params[ParentPidColumn].reset(new UnreadParam(&readings));
            }
            model.update(snapshot, 1);
        };
        update(1, wasRead);
        update(0, isRead);
        QTEST(shapeOf(model), "shape");
        QCOMPARE(readings, 0);
    }

    void aChangedNameIsSeenWithoutParents()
    {
        int readings = 0;
        ProcModel model;
        for (const char *name : {"first", "second"}) {
            ProcModel::Snapshot snapshot;
            snapshot.emplace(2, makeProcess({2, 0, QLatin1String(name)}));
            snapshot.at(2).params[ParentPidColumn].reset(new UnreadParam(&readings));
            model.update(snapshot, 1);
        }
        QCOMPARE(shapeOf(model), QString());
        QCOMPARE(readings, 0);
    }

    void shapesOfTheFlatList_data()
    {
        const Rows<Steps> row("steps");
        row("a changed parent leaves for one refresh", {{makeSnapshot({{1, 0}, {2, 1}}), "1 2"},
                                                        {makeSnapshot({{1, 0}, {2, 0}}), "1"},
                                                        {makeSnapshot({{1, 0}, {2, 0}}), "1 2"}});
        row("a vanished process leaves", {{makeSnapshot({{1, 0}, {2, 0}, {3, 0}}), "1 2 3"},
                                          {makeSnapshot({{1, 0}, {3, 0}}), "1 3"},
                                          {{}, ""}});
        row("new processes are appended in ascending pid order, whatever their parents",
            {{makeSnapshot({{5, 0}, {3, 5}}), "3 5"},
             {makeSnapshot({{1, 0}, {3, 5}, {5, 0}, {4, 0}}), "3 5 1 4"}});
    }

    void shapesOfTheFlatList()
    {
        QFETCH(Steps, steps);
        ProcModel model;
        verifySteps(&model, steps);
    }

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
            QCOMPARE(model.index(0, CpuColumn).data(Qt::UserRole).toDouble(), refresh.load);
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
            const QModelIndex cell = model.index(0, CpuColumn);
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
            return model.index(0, CpuColumn).data().toString();
        };
        QCOMPARE(refresh(100, 3000), QStringLiteral("0.0 %")); // one unit
        QTEST(refresh(counter, total), "text");
        QCOMPARE(refresh(counter + 1, 100), QStringLiteral("1.0 %"));
    }

    void aLoadThatIsNoNumberHasASortValueThatIsOne()
    {
        ProcModel model;
        const auto sortValue = [&] { return model.index(0, CpuColumn).data(Qt::UserRole).toDouble(); };
        model.update(makeCpuSnapshot({{7, 100}}), 0);
        QVERIFY(qIsInf(sortValue()));
        model.update(makeCpuSnapshot({{7, 100}}), 0);
        QCOMPARE(model.index(0, CpuColumn).data().toString(), QStringLiteral("nan %"));
        QVERIFY(!qIsNaN(sortValue()));
    }

    void aProcessWithoutCpuParameterIsTaken()
    {
        ProcModel model;
        const ProcModel::Snapshot bare{{3, Process(3)}};
        model.update(bare, 10);
        model.update(bare, 10);
        QCOMPARE(shapeOf(model), QStringLiteral("3"));
        QVERIFY(!model.index(0, CpuColumn).data().isValid());
    }

private:
    static QString title(unsigned long column) { return ProcessFiller::instance()->title(column); }
};

QTEST_MAIN(TestProcModel)
#include "test_procmodel.moc"
