// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "tests/process/support/listview.h"

#include <QtTest>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace gtop_wrappers;

namespace {

const int cpuColumn = 1;
const int pidColumn = 2;

void refreshAt(const List &list, unsigned long total, const ProcModel::Snapshot &snapshot)
{
    list.proxy->setTotalCpuTime(total);
    list.proxy->refresh(snapshot);
}

using Change = std::function<void(List &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class TestProxyProcModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsWithMyProcessesInAFlatListSortedByTheSortValues()
    {
        const List list;
        QCOMPARE(list.proxy->processTypes(), 1);
        QVERIFY(list.proxy->isFlat());
        QCOMPARE(list.proxy->sortRole(), 256);
        QVERIFY(list.proxy->dynamicSortFilter());
        QCOMPARE(list.view.model(), list.proxy);
    }

    void allRowsNeedWhatTheyAreSortedByAndParentsThatMakeTheTreeOrAreShown_data()
    {
        const Rows<Change, QList<int>> row("change", "columns");
        row(
            "from the start", [](List &) {}, QList<int>{NameColumn});
        row(
            "sorted by memory", [](List &list) { list.view.sortByColumn(MemoryColumn, Qt::AscendingOrder); },
            QList<int>{MemoryColumn});
        row(
            "tree", [](List &list) { list.proxy->setFlat(false); }, QList<int>{NameColumn, ParentPidColumn});
        row(
            "parents shown", [](List &list) { list.proxy->setColumnVisible(ParentPidColumn, true); },
            QList<int>{NameColumn, ParentPidColumn});
        row(
            "sorted by parents",
            [](List &list) {
                list.proxy->setColumnVisible(ParentPidColumn, true);
                list.proxy->sortBy(ParentPidColumn, Qt::AscendingOrder);
            },
            QList<int>{ParentPidColumn});
    }

    void allRowsNeedWhatTheyAreSortedByAndParentsThatMakeTheTreeOrAreShown()
    {
        QFETCH(Change, change);
        List list;
        change(list);
        QList<int> needed;
        const std::vector<bool> columns = list.proxy->columnsForAllRows();
        QCOMPARE(columns.size(), std::size_t(ColumnCount));
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (columns[column]) {
                needed.append(static_cast<int>(column));
            }
        }
        QTEST(needed, "columns");
    }

    void theSourceModelHasTheProxysParent()
    {
        const List list;
        QVERIFY(qobject_cast<ProcModel *>(list.proxy->sourceModel()));
        QCOMPARE(list.proxy->sourceModel()->parent(), &list.owner);
        QCOMPARE(static_cast<QObject *>(list.proxy)->parent(), &list.owner);
    }

    void theLoadIsRelativeToTheTotalSinceTheLastRefresh_data()
    {
        // One process uses one unit in each refresh.
        const Rows<QList<int>, QString> row("totals", "text");
        row("the first total less one", {3}, "50.0 %");
        row("then the difference", {5000, 5008}, "12.5 %");
        row("no difference", {5000, 5000}, "inf %");
        row("a total that fell, by 2^64 - 1", {5000, 5000, 4999}, "0.0 %");
    }

    void theLoadIsRelativeToTheTotalSinceTheLastRefresh()
    {
        QFETCH(QList<int>, totals);
        const List list;
        int counter = 40;
        for (const int total : totals) {
            refreshAt(list, static_cast<unsigned long>(total), makeCpuSnapshot({{5, counter++}}));
        }
        QTEST(list.proxy->index(0, cpuColumn).data().toString(), "text");
    }

    void worksWithoutAView()
    {
        QObject owner;
        auto *proxy = new ProxyProcModel(&owner);
        proxy->setView(nullptr);
        proxy->refresh(makeSnapshot({{1, 0}}));
        proxy->expandAll();
        proxy->collapseAll();
        proxy->setFlat(false);
        proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
        QCOMPARE(proxy->rowCount(), 1);
    }

    void survivesItsView()
    {
        QObject owner;
        auto *proxy = new ProxyProcModel(&owner);
        auto view = std::make_unique<QTreeView>();
        proxy->setView(view.get());
        proxy->refresh(makeSnapshot({{1, 0}}));
        view.reset();
        proxy->expandAll();
        proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
        QCOMPARE(proxy->rowCount(), 2);
    }

    void theCpuColumnSortsByItsPercentage()
    {
        List list;
        refreshAt(list, 1001, makeCpuSnapshot({{1, 10}, {2, 10}, {3, 10}}));
        refreshAt(list, 2001,
                  makeCpuSnapshot({{1, 100}, {2, 110}, {3, 60}})); // 9.0, 10.0, 5.0: as texts 10 5 9
        list.view.sortByColumn(cpuColumn, Qt::AscendingOrder);
        QCOMPARE(list.pids(), (QList<int>{3, 1, 2}));
        list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
        QCOMPARE(list.pids(), (QList<int>{2, 1, 3}));
    }

    void nanAndInfSortWithoutHarm()
    {
        List list;
        list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
        FactsByPid facts = factsUpTo(200);
        refreshAt(list, 1000, makeSnapshot(facts));
        for (int pid = 1; pid <= 200; pid += 3) {
            ++facts[pid].cpuCounter; // infinite where it grew, not a number elsewhere
        }
        refreshAt(list, 1000, makeSnapshot(facts));
        QCOMPARE(list.proxy->rowCount(), 200);
        for (int row = 0; row < 200; ++row) {
            const QString text = list.proxy->index(row, cpuColumn).data().toString();
            QCOMPARE(text, row < 67 ? QStringLiteral("inf %") : QStringLiteral("nan %"));
        }
    }

    void theOrderFollowsEveryRefresh()
    {
        List list;
        list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
        refreshAt(list, 1001, makeCpuSnapshot({{1, 10}, {2, 10}, {3, 10}}));
        refreshAt(list, 2001, makeCpuSnapshot({{1, 20}, {2, 30}, {3, 40}}));
        QCOMPARE(list.pids(), (QList<int>{3, 2, 1}));
        refreshAt(list, 3001, makeCpuSnapshot({{1, 120}, {2, 31}, {3, 42}}));
        QCOMPARE(list.pids(), (QList<int>{1, 3, 2}));
    }

    void processAtMapsToTheSource()
    {
        List list;
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}, {3, 0}}));
        list.view.sortByColumn(pidColumn, Qt::DescendingOrder);
        QCOMPARE(list.pids(), (QList<int>{3, 2, 1}));
        QCOMPARE(list.proxy->processAt(list.proxy->index(0, 4)).getName(), QStringLiteral("p3"));
        QCOMPARE(list.proxy->processAt(QModelIndex()).pid(), -1);
        QCOMPARE(list.proxy->processByPid(2).getName(), QStringLiteral("p2"));
        QCOMPARE(list.proxy->processByPid(4).pid(), -1);
    }

    void columnFlagsAreTheSourcesOwn()
    {
        const List list;
        QVERIFY(!list.proxy->isColumnVisible(7));
        list.proxy->setColumnVisible(7, true);
        QVERIFY(list.proxy->isColumnVisible(7));
        QVERIFY(qobject_cast<ProcModel *>(list.proxy->sourceModel())->isColumnVisible(7));
        QVERIFY_EXCEPTION_THROWN(list.proxy->isColumnVisible(ProcessFiller::instance()->size()),
                                 std::out_of_range);
    }
};

QTEST_MAIN(TestProxyProcModel)
#include "test_proxyprocmodel.moc"
