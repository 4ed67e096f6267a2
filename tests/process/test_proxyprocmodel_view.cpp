// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"
#include "tests/process/support/listview.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using gtop_wrappers::ProcessFiller;

namespace {

const int cpuColumn = 1;
const int pidColumn = 2;

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

/// What resets and refreshes do to a view.
class TestProxyProcModelView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setFlatResetsThreeTimesOnAChangeAndTwiceWithout();
    void otherSettersResetTwice();
    void theFirstResetOfAModeChangeComesBeforeTheFlagIsStored();
    void everyResetIsFollowedByARefreshThatRebuildsTheList();
    void hidingAColumnTakesItFromTheViewAndRefillsTheList();
    void columnsAreFittedAndRowsExpandedOnceAfterAReset();
    void whatTheUserArrangedStaysBetweenResets();
    void expandAllAndCollapseAllReachTheView();
    void theViewIsLaidOutWhenRefreshReturns();
    void aHeldLayoutComesWhenItIsLetGo();
    void aResetTakesTheLayoutThatIsHeld();
    void onlyRowsOfATreeCanHaveChildren();
    void selectionStaysOnItsProcessWhileOthersAreReplaced();
    void aFilledProxyKeepsTheProtocolThroughResets();
};

void TestProxyProcModelView::setFlatResetsThreeTimesOnAChangeAndTwiceWithout()
{
    List list;
    const QSignalSpy resets(list.proxy, SIGNAL(modelReset()));
    list.proxy->setFlat(false);
    QCOMPARE(resets.count(), 3);
    list.proxy->setFlat(false);
    QCOMPARE(resets.count(), 5);
}

void TestProxyProcModelView::otherSettersResetTwice()
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

void TestProxyProcModelView::theFirstResetOfAModeChangeComesBeforeTheFlagIsStored()
{
    List list;
    QList<bool> seen;
    connect(list.proxy, &QAbstractItemModel::modelReset, this, [&] { seen.append(list.proxy->isFlat()); });
    list.proxy->setFlat(false);
    QCOMPARE(seen, (QList<bool>{true, false, false}));
}

void TestProxyProcModelView::everyResetIsFollowedByARefreshThatRebuildsTheList()
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

void TestProxyProcModelView::hidingAColumnTakesItFromTheViewAndRefillsTheList()
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

void TestProxyProcModelView::columnsAreFittedAndRowsExpandedOnceAfterAReset()
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

void TestProxyProcModelView::whatTheUserArrangedStaysBetweenResets()
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

void TestProxyProcModelView::expandAllAndCollapseAllReachTheView()
{
    List list;
    list.proxy->setFlat(false);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    list.proxy->collapseAll();
    QVERIFY(!list.view.isExpanded(list.proxy->index(0, 0)));
    list.proxy->expandAll();
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
}

void TestProxyProcModelView::theViewIsLaidOutWhenRefreshReturns()
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

void TestProxyProcModelView::aHeldLayoutComesWhenItIsLetGo()
{
    List list;
    list.proxy->setFlat(false);
    list.proxy->setLayoutDeferred(true);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    list.view.setColumnWidth(0, 777);
    QCOMPARE(list.proxy->rowCount(), 1);
    QVERIFY(!list.view.isExpanded(list.proxy->index(0, 0)));
    list.proxy->setLayoutDeferred(false);
    QVERIFY(list.view.isExpanded(list.proxy->index(0, 0)));
    QVERIFY(list.view.columnWidth(0) != 777);
    list.view.setColumnWidth(0, 777);
    list.proxy->setLayoutDeferred(true);
    list.proxy->setLayoutDeferred(false);
    QCOMPARE(list.view.columnWidth(0), 777);
}

void TestProxyProcModelView::aResetTakesTheLayoutThatIsHeld()
{
    List list;
    list.proxy->setLayoutDeferred(true);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
    list.proxy->setProcessTypes(0);
    list.view.setColumnWidth(0, 777);
    list.proxy->setLayoutDeferred(false);
    QCOMPARE(list.view.columnWidth(0), 777); // until a refresh fills the list
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
    QVERIFY(list.view.columnWidth(0) != 777);
}

void TestProxyProcModelView::onlyRowsOfATreeCanHaveChildren()
{
    List list;
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    const Qt::ItemFlags ofTheSource = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(list.proxy->flags(list.proxy->index(0, 0)), ofTheSource | Qt::ItemNeverHasChildren);
    QCOMPARE(list.proxy->flags(QModelIndex()), Qt::NoItemFlags);
    list.proxy->setFlat(false);
    list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    QCOMPARE(list.proxy->flags(list.proxy->index(0, 0)), ofTheSource);
}

void TestProxyProcModelView::selectionStaysOnItsProcessWhileOthersAreReplaced()
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

void TestProxyProcModelView::aFilledProxyKeepsTheProtocolThroughResets()
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

QTEST_MAIN(TestProxyProcModelView)
#include "test_proxyprocmodel_view.moc"
