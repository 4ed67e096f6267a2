// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"
#include "tests/process/support/listview.h"

#include <QtTest>

#include <memory>
#include <stdexcept>

using namespace gtop_wrappers;

namespace {

const int cpuColumn = 1;
const int pidColumn = 2;

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

QTEST_MAIN(TestProxyProcModel)
#include "test_proxyprocmodel.moc"
