// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "tests/process/support/listview.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <stdexcept>

Q_DECLARE_METATYPE(std::function<void(ProxyProcModel *)>)

using gtop_wrappers::ProcessFiller;

namespace {

const int cpuColumn = 1;
const int pidColumn = 2;
const int userWidth = 777; ///< that a user has given to the first column

/// A tree of two processes, the second under the first.
struct TwoLevels : List
{
    TwoLevels()
    {
        proxy->setFlat(false);
        refresh();
    }
    void refresh() { proxy->refresh(makeSnapshot({{1, 0}, {2, 1}})); }
    bool isExpanded() const { return view.isExpanded(proxy->index(0, 0)); }
};

} // namespace

class TestProxyProcModelView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aModeChangeResetsThreeTimesFirstBeforeTheFlagIsStored()
    {
        List list;
        QList<bool> flat; // at each reset
        connect(list.proxy, &QAbstractItemModel::modelReset, this,
                [&] { flat.append(list.proxy->isFlat()); });
        list.proxy->setFlat(false);
        QCOMPARE(flat, (QList<bool>{true, false, false}));
    }

    void everyResetIsFollowedByARefreshThatRebuildsTheList()
    {
        List list;
        list.view.sortByColumn(pidColumn, Qt::AscendingOrder);
        ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {2, 1}, {3, 2}});
        unsigned long refreshes = 0;
        const auto refresh = [&] { // as the controller does
            list.proxy->setTotalCpuTime(++refreshes * 100);
            list.proxy->refresh(snapshot);
        };
        connect(list.proxy, &QAbstractItemModel::modelReset, this, refresh);
        refresh();
        QCOMPARE(list.pids(), (QList<int>{1, 2, 3}));
        list.proxy->setFlat(false);
        QCOMPARE(refreshes, 4UL);
        QCOMPARE(list.pids(), (QList<int>{1}));
        QCOMPARE(list.proxy->rowCount(list.proxy->index(0, 0)), 1);
        QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
        list.proxy->setFlat(true);
        QCOMPARE(list.pids(), (QList<int>{1, 2, 3}));
        snapshot = makeSnapshot({{1, 0}, {9, 1}});
        list.proxy->setProcessTypes(0);
        QCOMPARE(list.pids(), (QList<int>{1, 9}));
    }

    void hidingAColumnTakesItFromTheViewAndRefillsTheList()
    {
        List list;
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
        const int sections = list.view.header()->count();
        list.proxy->setColumnVisible(0, false);
        QCOMPARE(list.view.header()->count(), sections - 1);
        QCOMPARE(list.proxy->rowCount(), 0);
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
        QCOMPARE(list.proxy->rowCount(), 2);
        QCOMPARE(list.proxy->headerData(0, Qt::Horizontal).toString(), ProcessFiller::instance()->title(1));
    }

    void everyChangeIsFramedByItsSignals_data()
    {
        const Rows<int, std::function<void(ProxyProcModel *)>> row("resets", "change");
        const auto changeTypes = [](ProxyProcModel *proxy) {
            proxy->setProcessTypes(0);
            QCOMPARE(proxy->processTypes(), 0);
        };
        row("types", 2, changeTypes);
        row("same types", 2, [](ProxyProcModel *proxy) { proxy->setProcessTypes(1); });
        row("mode", 3, [](ProxyProcModel *proxy) { proxy->setFlat(false); });
        row("same mode", 2, [](ProxyProcModel *proxy) { proxy->setFlat(true); });
        row("column", 2, [](ProxyProcModel *proxy) { proxy->setColumnVisible(3, false); });
        row("sorted column", 2, [](ProxyProcModel *proxy) { proxy->setColumnVisible(0, false); });
        row("no such column", 0, [](ProxyProcModel *proxy) {
            QVERIFY_EXCEPTION_THROWN(proxy->setColumnVisible(99, false), std::out_of_range);
        });
    }

    void everyChangeIsFramedByItsSignals()
    {
        QFETCH(std::function<void(ProxyProcModel *)>, change);
        QFETCH(int, resets);
        List list;
        list.view.sortByColumn(0, Qt::AscendingOrder);
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
        QStringList seen;
        connect(list.proxy, &ProxyProcModel::aboutToEmptyList, this, [&] {
            QCOMPARE(list.proxy->rowCount(), 2);
            seen << QStringLiteral("before");
        });
        connect(list.proxy, &QAbstractItemModel::modelReset, this, [&] { seen << QStringLiteral("reset"); });
        connect(list.proxy, &ProxyProcModel::listEmptied, this, [&] {
            QCOMPARE(list.proxy->rowCount(), 0);
            seen << QStringLiteral("after");
        });
        change(list.proxy);
        QStringList expected = QVector<QString>(resets, QStringLiteral("reset")).toList();
        if (resets > 0) {
            expected.prepend(QStringLiteral("before"));
            expected.append(QStringLiteral("after"));
        }
        QCOMPARE(seen, expected);
    }

    void sortingFollowsItsProcessColumn_data()
    {
        // Process columns are hidden one after the other; `column` is of the view.
        const Rows<QList<int>, int, int, bool> row("hidden", "sortedBy", "column", "descending");
        using namespace gtop_wrappers;
        row("none hidden", {}, StateColumn, 5, true);
        row("one before", {CpuColumn}, StateColumn, 4, true);
        row("two before", {CpuColumn, NameColumn}, StateColumn, 3, true);
        row("one after", {StartedColumn}, StateColumn, 5, true);
        row("itself", {StateColumn}, NameColumn, 0, false);
        row("one before, then itself", {CpuColumn, StateColumn}, NameColumn, 0, false);
        // Without the Name column there is nothing better than the first one.
        row("the name, then itself", {NameColumn, StateColumn}, CpuColumn, 0, false);
    }

    void sortingFollowsItsProcessColumn()
    {
        QFETCH(QList<int>, hidden);
        QFETCH(int, sortedBy);
        List list;
        list.view.sortByColumn(gtop_wrappers::StateColumn, Qt::DescendingOrder);
        const auto verify = [&](int processColumn, int column, bool descending) {
            const Qt::SortOrder order = descending ? Qt::DescendingOrder : Qt::AscendingOrder;
            QCOMPARE(list.proxy->sortedProcessColumn(), processColumn);
            QCOMPARE(list.proxy->sortColumn(), column);
            QCOMPARE(list.proxy->sortOrder(), order);
            QCOMPARE(list.view.header()->sortIndicatorSection(), column);
            QCOMPARE(list.view.header()->sortIndicatorOrder(), order);
        };
        for (const int column : hidden) {
            list.proxy->setColumnVisible(static_cast<unsigned long>(column), false);
        }
        QFETCH(int, column);
        QFETCH(bool, descending);
        verify(sortedBy, column, descending);
        for (const int shown : hidden) { // and back
            list.proxy->setColumnVisible(static_cast<unsigned long>(shown), true);
        }
        verify(sortedBy, sortedBy, descending);
    }

    void sortingFollowsItsColumnWithoutAView()
    {
        QObject owner;
        auto *proxy = new ProxyProcModel(&owner);
        proxy->setView(nullptr);
        proxy->setColumnVisible(0, false);
        QCOMPARE(proxy->sortColumn(), -1); // not sorted, and it stays so
        proxy->setColumnVisible(0, true);
        proxy->sort(pidColumn, Qt::DescendingOrder);
        proxy->setColumnVisible(0, false);
        QCOMPARE(proxy->sortedProcessColumn(), pidColumn);
        QCOMPARE(proxy->sortColumn(), pidColumn - 1);
        QCOMPARE(proxy->sortOrder(), Qt::DescendingOrder);
    }

    void whatTheUserArrangedStaysUntilAReset()
    {
        TwoLevels list;
        QVERIFY(list.isExpanded());
        list.view.collapse(list.proxy->index(0, 0));
        list.view.setColumnWidth(0, userWidth);
        list.refresh();
        QVERIFY(!list.isExpanded());
        QCOMPARE(list.view.columnWidth(0), userWidth);
        list.proxy->setProcessTypes(0);
        list.refresh();
        QVERIFY(list.isExpanded());
        QVERIFY(list.view.columnWidth(0) != userWidth);
        for (int column = 0; column < list.proxy->columnCount(); ++column) {
            QCOMPARE(list.view.columnWidth(column),
                     qMax(list.view.columnHint(column), list.view.header()->sectionSizeHint(column)));
        }
    }

    void expandAllAndCollapseAllReachTheView()
    {
        TwoLevels list;
        list.proxy->collapseAll();
        QVERIFY(!list.isExpanded());
        list.proxy->expandAll();
        QVERIFY(list.isExpanded());
    }

    void theViewIsLaidOutWhenRefreshReturns()
    {
        List list;
        list.view.resize(300, 100);
        list.view.show();
        FactsByPid facts = factsUpTo(100);
        list.proxy->refresh(makeSnapshot(facts));
        list.view.verticalScrollBar()->setValue(list.view.verticalScrollBar()->maximum());
        facts.erase(facts.begin(), facts.find(91));
        list.proxy->refresh(makeSnapshot(facts));
        // Ten rows are left. The scroll bar knows without a run of the event loop.
        QVERIFY(list.view.verticalScrollBar()->maximum() < 10);
    }

    void onlyRowsOfATreeCanHaveChildren()
    {
        TwoLevels list;
        const Qt::ItemFlags ofTheSource = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        QCOMPARE(list.proxy->flags(list.proxy->index(0, 0)), ofTheSource);
        list.proxy->setFlat(true);
        list.refresh();
        QCOMPARE(list.proxy->flags(list.proxy->index(0, 0)), ofTheSource | Qt::ItemNeverHasChildren);
        QCOMPARE(list.proxy->flags(QModelIndex()), Qt::NoItemFlags);
    }

    void selectionStaysOnItsProcessWhileOthersAreReplaced()
    {
        List list;
        list.view.show();
        FactsByPid facts = factsUpTo(80);
        for (auto &entry : facts) {
            entry.second.cpuCounter = entry.first * 17 % 31;
        }
        list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
        list.proxy->setTotalCpuTime(1000);
        list.proxy->refresh(makeSnapshot(facts));
        const int chosen = 40;
        list.view.setCurrentIndex(list.find(chosen));
        for (int round = 0; round < 80; ++round) {
            const int replaced = 1 + round % 39 + (round % 2) * 40;
            facts[replaced].name = QStringLiteral("exec %1").arg(round);
            for (auto &entry : facts) {
                entry.second.cpuCounter += (entry.first * 7 + round) % 5;
            }
            list.proxy->setTotalCpuTime(static_cast<unsigned long>(2000 + round * 1000));
            list.proxy->refresh(makeSnapshot(facts));
            QCOMPARE(list.proxy->processAt(list.view.currentIndex()).pid(), chosen);
            QCOMPARE(list.view.selectionModel()->selectedRows().size(), 1);
            QCOMPARE(list.proxy->processAt(list.view.selectionModel()->selectedRows().first()).pid(), chosen);
        }
    }

    void aFilledProxyKeepsTheProtocolThroughResets()
    {
        List list;
        const QAbstractItemModelTester tester(list.proxy,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        FactsByPid facts = factsUpTo(30);
        list.view.sortByColumn(pidColumn, Qt::DescendingOrder);
        for (int round = 0; round < 20; ++round) {
            facts[1 + round].name = QStringLiteral("exec %1").arg(round);
            facts.erase(25);
            facts[26 + round].pid = 26 + round;
            list.proxy->refresh(makeSnapshot(facts));
            if (round % 5 == 0) {
                list.proxy->setColumnVisible(3, !list.proxy->isColumnVisible(3));
                list.proxy->refresh(makeSnapshot(facts));
            }
        }
        list.proxy->refresh(makeSnapshot(facts));
        QCOMPARE(list.proxy->rowCount(), 44);
    }
};

QTEST_MAIN(TestProxyProcModelView)
#include "test_proxyprocmodel_view.moc"
