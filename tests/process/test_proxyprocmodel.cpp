// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "tests/process/support/synthetic.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <stdexcept>

using namespace gtop_wrappers;

namespace {

const int cpuColumn = 1;
const int pidColumn = 2;

class View : public QTreeView
{
public:
    int columnHint(int column) const { return sizeHintForColumn(column); }
};

/// A proxy with the view that it fills.
struct List
{
    List() : proxy(new ProxyProcModel(&owner))
    {
        view.setSortingEnabled(true);
        view.setUniformRowHeights(true);
        proxy->setView(&view);
    }
    QList<int> pids() const
    {
        QList<int> all;
        for (int row = 0; row < proxy->rowCount(); ++row) {
            all.append(proxy->processAt(proxy->index(row, 0)).pid());
        }
        return all;
    }
    QModelIndex find(int pid) const
    {
        const QVariant wanted(pid);
        for (int row = 0; row < proxy->rowCount(); ++row) {
            if (proxy->index(row, pidColumn).data() == wanted) {
                return proxy->index(row, 0);
            }
        }
        return QModelIndex();
    }

    QObject owner;
    View view;
    ProxyProcModel *proxy;
};

ProcModel::Snapshot withCounters(std::initializer_list<std::pair<int, int>> pidsAndCounters)
{
    FactsByPid facts;
    for (const auto &entry : pidsAndCounters) {
        facts[entry.first].pid = entry.first;
        facts[entry.first].cpuCounter = entry.second;
    }
    return makeSnapshot(facts);
}

} // namespace

/// Refreshes the list on every reset, as the controller does.
class Refresher : public QObject
{
    Q_OBJECT
public:
    explicit Refresher(ProxyProcModel *refreshed) : proxy(refreshed)
    {
        connect(proxy, SIGNAL(modelReset()), this, SLOT(refresh()));
    }
    ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {2, 1}, {3, 2}});
    int count = 0;

public Q_SLOTS:
    void refresh()
    {
        ++count;
        proxy->setTotalCpuTime(static_cast<unsigned long>(count) * 100);
        proxy->refresh(snapshot);
    }

private:
    ProxyProcModel *proxy;
};

class TestProxyProcModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsWithMyProcessesFlatSortedByTheSortValues();
    void theSourceModelHasTheProxysParent();
    void theFirstBaseIsTheTotalLessOne();
    void laterBasesAreDifferences();
    void aTotalThatDoesNotGrowIsShownAsItComes();
    void withoutAViewNothingHappensToIt();
    void aViewThatIsGoneIsForgotten();
    void theCpuColumnSortsByItsPercentage();
    void nanAndInfSortWithoutHarm();
    void theOrderFollowsEveryRefresh();
    void processAtMapsToTheSource();
    void columnFlagsAreTheSourcesOwn();
    void aColumnPastTheEndThrows();

    void setFlatResetsThreeTimesOnAChangeAndTwiceWithout();
    void otherSettersResetTwice();
    void theFirstResetOfAModeChangeComesBeforeTheFlagIsStored();
    void everyResetIsFollowedByARefreshThatRebuildsTheList();
    void hidingAColumnTakesItFromTheViewAndRefillsTheList();
    void columnsAreFittedAndRowsExpandedOnceAfterAReset();
    void whatTheUserArrangedStaysBetweenResets();
    void expandAllAndCollapseAllReachTheView();
    void theViewIsLaidOutWhenRefreshReturns();
    void selectionStaysOnItsProcessWhileOthersAreReplaced();
    void aFilledProxyKeepsTheProtocolThroughResets();
};

void TestProxyProcModel::startsWithMyProcessesFlatSortedByTheSortValues()
{
    const List list;
    QCOMPARE(list.proxy->processTypes(), 1);
    QVERIFY(list.proxy->isFlat());
    QCOMPARE(list.proxy->sortRole(), 256);
    QVERIFY(list.proxy->dynamicSortFilter());
    QCOMPARE(list.view.model(), list.proxy);
}

void TestProxyProcModel::theSourceModelHasTheProxysParent()
{
    const List list;
    QVERIFY(qobject_cast<ProcModel *>(list.proxy->sourceModel()));
    QCOMPARE(list.proxy->sourceModel()->parent(), &list.owner);
    QCOMPARE(static_cast<QObject *>(list.proxy)->parent(), &list.owner);
}

void TestProxyProcModel::theFirstBaseIsTheTotalLessOne()
{
    List list;
    list.proxy->setTotalCpuTime(100001);
    list.proxy->refresh(withCounters({{5, 40}}));
    QCOMPARE(list.proxy->index(0, cpuColumn).data(Qt::UserRole).toDouble(), 0.001); // 100.0 / 100000
}

void TestProxyProcModel::laterBasesAreDifferences()
{
    List list;
    list.proxy->setTotalCpuTime(5000);
    list.proxy->refresh(withCounters({{5, 40}}));
    list.proxy->setTotalCpuTime(5400);
    list.proxy->refresh(withCounters({{5, 90}}));
    QCOMPARE(list.proxy->index(0, cpuColumn).data().toString(), QStringLiteral("12.5 %"));
}

void TestProxyProcModel::aTotalThatDoesNotGrowIsShownAsItComes()
{
    List list;
    list.proxy->setTotalCpuTime(5000);
    list.proxy->refresh(withCounters({{5, 40}}));
    list.proxy->setTotalCpuTime(5000);
    list.proxy->refresh(withCounters({{5, 41}}));
    QCOMPARE(list.proxy->index(0, cpuColumn).data().toString(), QStringLiteral("inf %"));
    list.proxy->setTotalCpuTime(4999); // a difference of 2^64 - 1
    list.proxy->refresh(withCounters({{5, 42}}));
    QCOMPARE(list.proxy->index(0, cpuColumn).data().toString(), QStringLiteral("0.0 %"));
}

void TestProxyProcModel::withoutAViewNothingHappensToIt()
{
    QObject owner;
    auto *const proxy = new ProxyProcModel(&owner);
    proxy->setView(nullptr);
    proxy->refresh(makeSnapshot({{1, 0}}));
    proxy->expandAll();
    proxy->collapseAll();
    proxy->setFlat(false);
    proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    QCOMPARE(proxy->rowCount(), 1);
}

void TestProxyProcModel::aViewThatIsGoneIsForgotten()
{
    QObject owner;
    auto *const proxy = new ProxyProcModel(&owner);
    auto view = std::make_unique<QTreeView>();
    proxy->setView(view.get());
    proxy->refresh(makeSnapshot({{1, 0}}));
    view.reset();
    proxy->expandAll();
    proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
    QCOMPARE(proxy->rowCount(), 2);
}

void TestProxyProcModel::theCpuColumnSortsByItsPercentage()
{
    List list;
    list.proxy->setTotalCpuTime(1001);
    list.proxy->refresh(withCounters({{1, 10}, {2, 10}, {3, 10}}));
    list.proxy->setTotalCpuTime(2001);
    list.proxy->refresh(withCounters({{1, 100}, {2, 110}, {3, 60}})); // 9.0, 10.0, 5.0: as texts 10 5 9
    list.view.sortByColumn(cpuColumn, Qt::AscendingOrder);
    QCOMPARE(list.pids(), (QList<int>{3, 1, 2}));
    list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
    QCOMPARE(list.pids(), (QList<int>{2, 1, 3}));
}

void TestProxyProcModel::nanAndInfSortWithoutHarm()
{
    List list;
    list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
    list.proxy->setTotalCpuTime(1000);
    FactsByPid facts;
    for (int pid = 1; pid <= 200; ++pid) {
        facts[pid].pid = pid;
        facts[pid].cpuCounter = 100 + pid;
    }
    list.proxy->refresh(makeSnapshot(facts));
    list.proxy->setTotalCpuTime(1000);
    for (int pid = 1; pid <= 200; pid += 3) {
        ++facts[pid].cpuCounter; // infinite where it grew, not a number elsewhere
    }
    list.proxy->refresh(makeSnapshot(facts));
    QCOMPARE(list.proxy->rowCount(), 200);
    for (int row = 0; row < 200; ++row) {
        const QString text = list.proxy->index(row, cpuColumn).data().toString();
        QCOMPARE(text, row < 67 ? QStringLiteral("inf %") : QStringLiteral("nan %"));
    }
}

void TestProxyProcModel::theOrderFollowsEveryRefresh()
{
    List list;
    list.view.sortByColumn(cpuColumn, Qt::DescendingOrder);
    list.proxy->setTotalCpuTime(1001);
    list.proxy->refresh(withCounters({{1, 10}, {2, 10}, {3, 10}}));
    list.proxy->setTotalCpuTime(2001);
    list.proxy->refresh(withCounters({{1, 20}, {2, 30}, {3, 40}}));
    QCOMPARE(list.pids(), (QList<int>{3, 2, 1}));
    list.proxy->setTotalCpuTime(3001);
    list.proxy->refresh(withCounters({{1, 120}, {2, 31}, {3, 42}}));
    QCOMPARE(list.pids(), (QList<int>{1, 3, 2}));
}

void TestProxyProcModel::processAtMapsToTheSource()
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

void TestProxyProcModel::columnFlagsAreTheSourcesOwn()
{
    List list;
    QVERIFY(!list.proxy->isColumnVisible(7));
    list.proxy->setColumnVisible(7, true);
    QVERIFY(list.proxy->isColumnVisible(7));
    QVERIFY(qobject_cast<ProcModel *>(list.proxy->sourceModel())->isColumnVisible(7));
}

void TestProxyProcModel::aColumnPastTheEndThrows()
{
    const List list;
    QVERIFY_EXCEPTION_THROWN(list.proxy->isColumnVisible(ProcessFiller::instance()->size()),
                             std::out_of_range);
}

void TestProxyProcModel::setFlatResetsThreeTimesOnAChangeAndTwiceWithout()
{
    List list;
    const QSignalSpy resets(list.proxy, SIGNAL(modelReset()));
    list.proxy->setFlat(false);
    QCOMPARE(resets.count(), 3);
    list.proxy->setFlat(false);
    QCOMPARE(resets.count(), 5);
}

void TestProxyProcModel::otherSettersResetTwice()
{
    List list;
    const QSignalSpy resets(list.proxy, SIGNAL(modelReset()));
    list.proxy->setColumnVisible(3, false);
    QCOMPARE(resets.count(), 2);
    list.proxy->setProcessTypes(0);
    QCOMPARE(resets.count(), 4);
    list.proxy->setProcessTypes(0); // without a change too
    QCOMPARE(resets.count(), 6);
    QCOMPARE(list.proxy->processTypes(), 0);
}

void TestProxyProcModel::theFirstResetOfAModeChangeComesBeforeTheFlagIsStored()
{
    List list;
    QList<bool> seen;
    connect(list.proxy, &QAbstractItemModel::modelReset, this, [&] { seen.append(list.proxy->isFlat()); });
    list.proxy->setFlat(false);
    QCOMPARE(seen, (QList<bool>{true, false, false}));
}

void TestProxyProcModel::everyResetIsFollowedByARefreshThatRebuildsTheList()
{
    List list;
    list.view.sortByColumn(pidColumn, Qt::AscendingOrder);
    Refresher refresher(list.proxy);
    refresher.refresh();
    QCOMPARE(list.pids(), (QList<int>{1, 2, 3}));
    list.proxy->setFlat(false);
    QCOMPARE(refresher.count, 4);
    QCOMPARE(list.pids(), (QList<int>{1}));
    QCOMPARE(list.proxy->rowCount(list.proxy->index(0, 0)), 1);
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
    list.proxy->setFlat(true);
    QCOMPARE(list.pids(), (QList<int>{1, 2, 3}));
    refresher.snapshot = makeSnapshot({{1, 0}, {9, 1}});
    list.proxy->setProcessTypes(0);
    QCOMPARE(list.pids(), (QList<int>{1, 9}));
}

void TestProxyProcModel::hidingAColumnTakesItFromTheViewAndRefillsTheList()
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

void TestProxyProcModel::columnsAreFittedAndRowsExpandedOnceAfterAReset()
{
    List list;
    list.proxy->setFlat(false);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
    list.view.collapseAll();
    list.view.setColumnWidth(0, 777);
    list.proxy->setProcessTypes(0);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
    QVERIFY(list.view.columnWidth(0) != 777);
    for (int column = 0; column < list.proxy->columnCount(); ++column) {
        QCOMPARE(list.view.columnWidth(column),
                 qMax(list.view.columnHint(column), list.view.header()->sectionSizeHint(column)));
    }
}

void TestProxyProcModel::whatTheUserArrangedStaysBetweenResets()
{
    List list;
    list.proxy->setFlat(false);
    const ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {2, 1}});
    list.proxy->refresh(snapshot);
    list.view.collapse(list.proxy->index(0, 0));
    list.view.setColumnWidth(0, 777);
    list.proxy->refresh(snapshot);
    QVERIFY(!list.view.isExpanded(list.proxy->index(0, 0)));
    QCOMPARE(list.view.columnWidth(0), 777);
}

void TestProxyProcModel::expandAllAndCollapseAllReachTheView()
{
    List list;
    list.proxy->setFlat(false);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    list.proxy->collapseAll();
    QVERIFY(!list.view.isExpanded(list.proxy->index(0, 0)));
    list.proxy->expandAll();
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
}

void TestProxyProcModel::theViewIsLaidOutWhenRefreshReturns()
{
    List list;
    list.view.resize(300, 100);
    list.view.show();
    FactsByPid facts;
    for (int pid = 1; pid <= 100; ++pid) {
        facts[pid].pid = pid;
    }
    list.proxy->refresh(makeSnapshot(facts));
    list.view.verticalScrollBar()->setValue(list.view.verticalScrollBar()->maximum());
    facts.erase(facts.begin(), facts.find(91));
    list.proxy->refresh(makeSnapshot(facts));
    // Ten rows are left. The scroll bar knows at once, not only after the event loop has run.
    QVERIFY(list.view.verticalScrollBar()->maximum() < 10);
}

void TestProxyProcModel::selectionStaysOnItsProcessWhileOthersAreReplaced()
{
    List list;
    list.view.show();
    FactsByPid facts;
    for (int pid = 1; pid <= 80; ++pid) {
        facts[pid].pid = pid;
        facts[pid].cpuCounter = pid * 17 % 31;
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

void TestProxyProcModel::aFilledProxyKeepsTheProtocolThroughResets()
{
    List list;
    const QAbstractItemModelTester tester(list.proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    FactsByPid facts;
    for (int pid = 1; pid <= 30; ++pid) {
        facts[pid].pid = pid;
    }
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

QTEST_MAIN(TestProxyProcModel)
#include "test_proxyprocmodel.moc"
