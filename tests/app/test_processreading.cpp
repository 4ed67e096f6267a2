// SPDX-License-Identifier: GPL-3.0-or-later
// How the controller has processes read: what nobody looks at is left out, and what the window shows still
// follows the machine.
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

using namespace gtop_wrappers;

class TestProcessReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void costlyValuesAreNotReadUntilLookedAt();
    void shownValuesFollowTheMachine();
    void sortedMemoryIsReadWithEachRefresh();
    void myProcessesFollowTheUserColumn();

private:
    standin::Process &made(int pid) { return standin::machine().processes->at(pid); }
    ProxyProcModel *list() { return fixture->updater().findChild<ProxyProcModel *>(); }

    QString shown(int pid, ProcessColumn column)
    {
        const ParamPtr value = list()->processByPid(pid).getParam(column);
        return value ? value->displayValue().toString() : QStringLiteral("none");
    }

    /// Calls about processes that the next refresh makes.
    unsigned callsOfRefresh()
    {
        standin::resetCalls();
        fixture->updater().update(true);
        return standin::calls().processData;
    }

    std::unique_ptr<Fixture> fixture;
};

void TestProcessReading::init()
{
    fixture = std::make_unique<Fixture>();
    made(200).startTime = made(300).startTime = 1600000000;
    made(100).startTime = made(400).startTime = 1500000000;
    standin::Process newest = made(100);
    newest.startTime = 1700000000;
    standin::machine().processes->emplace(500, newest);
    fixture->start(GeneralPage); // the list is there, and nothing of it is painted
    list()->setProcessTypes(AllProcesses);
    fixture->updater().update(true);
}

void TestProcessReading::cleanup()
{
    fixture.reset();
}

void TestProcessReading::costlyValuesAreNotReadUntilLookedAt()
{
    // State and time of five; the parent of 100 is out of sight, so that is read with the time again; 500 is
    // too young to be known again, and read whole. The view asks for memory and command line of its first row
    // to measure the height of all, each with the time again.
    QCOMPARE(callsOfRefresh(), 5U * 2 + 2 + 4 + 4);
    standin::resetCalls();
    shown(300, MemoryColumn);
    QCOMPARE(standin::calls().processData, 2U);
    shown(300, MemoryColumn);
    QCOMPARE(standin::calls().processData, 2U);
}

void TestProcessReading::shownValuesFollowTheMachine()
{
    QCOMPARE(shown(300, MemoryColumn), QStringLiteral("300.00 MB"));
    made(300).resident = 1024;
    made(300).nice = 7;
    made(300).arguments = std::string("new\0line\0", 9);
    made(300).state = 16;
    made(300).uid = 65534;
    fixture->updater().update(true);
    QCOMPARE(shown(300, MemoryColumn), QStringLiteral("1.00 KB"));
    QCOMPARE(shown(300, NiceColumn), QStringLiteral("7"));
    QCOMPARE(shown(300, CommandLineColumn), QStringLiteral("new line"));
    QCOMPARE(shown(300, StateColumn), QStringLiteral("Stopped"));
    QVERIFY(shown(300, UserColumn) != shown(200, UserColumn));

    standin::machine().processes->erase(100); // the parent of 200 to 400
    made(300).parent = 1;
    fixture->updater().update(true); // takes the one with another parent out,
    fixture->updater().update(true); // and in again
    QCOMPARE(shown(300, ParentPidColumn), QStringLiteral("1"));
}

void TestProcessReading::sortedMemoryIsReadWithEachRefresh()
{
    const int memory = MemoryColumn; // no column before it is hidden
    Fixture::find<QTreeView>("treeView")->sortByColumn(memory, Qt::DescendingOrder);
    QCOMPARE(list()->sortedProcessColumn(), int(MemoryColumn));
    QCOMPARE(callsOfRefresh(), 5U * 3 + 2 + 3 + 2); // the first row's command line beside
    made(200).resident = std::uint64_t(1) << 40;
    fixture->updater().update(true);
    QCOMPARE(list()->processAt(list()->index(0, 0)).pid(), 200);
}

void TestProcessReading::myProcessesFollowTheUserColumn()
{
    list()->setProcessTypes(MyProcesses);
    fixture->updater().update(true);
    QCOMPARE(list()->processByPid(300).pid(), 300);
    made(300).uid = 65534;
    fixture->updater().update(true);
    QCOMPARE(list()->processByPid(300).pid(), -1);
}

QTEST_MAIN(TestProcessReading)
#include "test_processreading.moc"
