// SPDX-License-Identifier: GPL-3.0-or-later
// Costly values are read only when something shows them, and what the window shows still follows the machine.
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

using namespace gtop_wrappers;

class TestProcessReading : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fixture = std::make_unique<Fixture>();
        made(200).startTime = made(300).startTime = 1600000000;
        made(100).startTime = made(400).startTime = 1500000000;
        standin::Process newest = made(100);
        newest.startTime = 1700000000;
        standin::machine().processes->emplace(500, newest);
        fixture->start(GeneralPage); // the list is filled but not painted
        Fixture::processes()->setProcessTypes(AllProcesses);
        fixture->updater().update(true);
    }

    void costlyValuesAreNotReadUntilLookedAt()
    {
        // State and time of five. The parent of 100 is not listed, so it is read as well, with the time; 500
        // is too young to be recognized, so it is read completely. To measure the row height, the view asks
        // for the memory and the command line of its first row, each read with the time.
        QCOMPARE(callsOfRefresh(), 5U * 2 + 2 + 4 + 4);
        standin::resetCalls();
        shown(300, MemoryColumn);
        QCOMPARE(standin::calls().processData, 2U);
        shown(300, MemoryColumn);
        QCOMPARE(standin::calls().processData, 2U);
    }

    void shownValuesFollowTheMachine()
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
        fixture->updater().update(true); // removes the reparented process
        fixture->updater().update(true); // and inserts it again
        QCOMPARE(shown(300, ParentPidColumn), QStringLiteral("1"));
    }

    void sortedMemoryIsReadWithEachRefresh()
    {
        const int memory = MemoryColumn; // no earlier column is hidden
        Fixture::find<QTreeView>("treeView")->sortByColumn(memory, Qt::DescendingOrder);
        QCOMPARE(Fixture::processes()->sortedProcessColumn(), int(MemoryColumn));
        QCOMPARE(callsOfRefresh(), 5U * 3 + 2 + 3 + 2); // and the first row's command line
        made(200).resident = std::uint64_t(1) << 40;
        fixture->updater().update(true);
        QCOMPARE(Fixture::processes()->processAt(Fixture::processes()->index(0, 0)).pid(), 200);
    }

    void myProcessesFollowTheUserColumn()
    {
        Fixture::processes()->setProcessTypes(MyProcesses);
        fixture->updater().update(true);
        QCOMPARE(Fixture::processes()->processByPid(300).pid(), 300);
        made(300).uid = 65534;
        fixture->updater().update(true);
        QCOMPARE(Fixture::processes()->processByPid(300).pid(), -1);
    }

private:
    standin::Process &made(int pid) { return standin::machine().processes->at(pid); }
    QString shown(int pid, ProcessColumn column)
    {
        const ParamPtr value = Fixture::processes()->processByPid(pid).getParam(column);
        return value ? value->displayValue().toString() : QStringLiteral("none");
    }

    /// Number of calls for process data in a full refresh.
    unsigned callsOfRefresh()
    {
        standin::resetCalls();
        fixture->updater().update(true);
        return standin::calls().processData;
    }
};

QTEST_MAIN(TestProcessReading)
#include "test_processreading.moc"
