// SPDX-License-Identifier: GPL-3.0-or-later
// What is left to be read late, or taken over from the last snapshot, on a made-up machine: nothing is ever
// shown of another process, and what may have changed is read again.
#include "process/gtop_wrappers/filler.h"
#include "process/gtop_wrappers/startclock.h"
#include "tests/support/gtopstandin.h"

#include <QtTest>

#include <glibtop/procstate.h>

#include <limits>

using namespace gtop_wrappers;
using standin::machine;

namespace {

constexpr std::uint64_t now = 1700000000; // the newest process of the made-up machine started then

std::map<int, Process> snapshot()
{
    return ProcessFiller::instance()->getProcesses(AllProcesses);
}

standin::Process processOf(int parent, std::uint64_t started)
{
    standin::Process process;
    process.parent = parent;
    process.name = "some";
    process.startTime = started;
    process.resident = 1024;
    process.arguments = std::string("some\0", 5);
    return process;
}

standin::Process &made(int pid)
{
    return machine().processes->at(pid);
}

QString shown(const Process &process, ProcessColumn column)
{
    return process.getParam(column)->displayValue().toString();
}

QVariant sorted(const Process &process, ProcessColumn column)
{
    return process.getParam(column)->sortValue();
}

} // namespace

class TestLateValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsReadUntilItIsAskedFor();
    void isReadOnceForEachSnapshot();
    void unchangedProcessKeepsItsObjects();
    void endedProcessShowsWhatIsLastKnownOrNothing();
    void valuesOfAProcessThatTookThePidAreNotShown();
    void youngProcessIsReadAtOnce();
    void parentIsNotReadAgainWhileItRuns();
    void parentIsReadAgainWhenItMayHaveChanged_data();
    void parentIsReadAgainWhenItMayHaveChanged();
    void unknownParentIsAlwaysReadAgain();
    void processThatTookAPidHasItsOwnParent();
    void processThatEndsWhileItIsCompletedIsLeftOut();
    void wantedColumnsAreReadWithTheSnapshot();
    void secondIsOverOnlyWhenThatIsCertain();
};

void TestLateValues::init()
{
    ProcessFiller::instance()->setEagerColumns(std::vector<bool>(ColumnCount, false));
    machine().processes.emplace();
    snapshot(); // forgets the processes of the test before
    machine().processes = {{1, processOf(0, now - 100)},
                           {10, processOf(1, now - 50)},
                           {11, processOf(10, now - 40)},
                           {99, processOf(1, now)}};
}

void TestLateValues::cleanup()
{
    machine() = {};
}

void TestLateValues::nothingIsReadUntilItIsAskedFor()
{
    const Process process = snapshot().at(11);
    made(11).resident = 2048;
    made(11).arguments = std::string("later\0", 6);
    made(11).nice = 5;
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("2.00 KB"));
    QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(2048)));
    QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("later"));
    QCOMPARE(sorted(process, NiceColumn), QVariant(5));
    QCOMPARE(sorted(process, NiceColumn).type(), QVariant::Int);
}

void TestLateValues::isReadOnceForEachSnapshot()
{
    const Process process = snapshot().at(11);
    QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(1024)));
    made(11).resident = 2048;
    QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(1024)));
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    QCOMPARE(sorted(snapshot().at(11), MemoryColumn), QVariant(quint64(2048)));
}

void TestLateValues::unchangedProcessKeepsItsObjects()
{
    const Process before = snapshot().at(11);
    const Process process = snapshot().at(11);
    for (unsigned long i = 0; i < ColumnCount; ++i) {
        QCOMPARE(process.getParam(i) == before.getParam(i), i != CpuColumn);
    }
}

void TestLateValues::endedProcessShowsWhatIsLastKnownOrNothing()
{
    const Process process = snapshot().at(11);
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    machine().processes->erase(11);
    snapshot();
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    QCOMPARE(shown(process, CommandLineColumn), QString());
    QCOMPARE(shown(process, NiceColumn), QString());
    const Process other = snapshot().at(10);
    machine().processes->erase(10);
    QCOMPARE(shown(other, VirtualMemoryColumn), QString());
    QCOMPARE(sorted(other, VirtualMemoryColumn), QVariant(quint64(0)));
}

void TestLateValues::valuesOfAProcessThatTookThePidAreNotShown()
{
    const Process process = snapshot().at(11);
    made(11).startTime = now;
    made(11).resident = 4096;
    QCOMPARE(shown(process, MemoryColumn), QString());
    QCOMPARE(shown(snapshot().at(11), MemoryColumn), QStringLiteral("4.00 KB"));
}

void TestLateValues::youngProcessIsReadAtOnce()
{
    made(11).startTime = now; // its pid could go to another process that starts in the same second
    const Process process = snapshot().at(11);
    made(11).resident = 4096;
    made(11).parent = 1;
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    const Process next = snapshot().at(11);
    QCOMPARE(next.getPPid(), 1);
    QCOMPARE(shown(next, MemoryColumn), QStringLiteral("4.00 KB"));
}

void TestLateValues::parentIsNotReadAgainWhileItRuns()
{
    snapshot();
    standin::resetCalls();
    const Process process = snapshot().at(11);
    QCOMPARE(process.getPPid(), 10);
    // State and time of four; process 1 has no parent, and 99 is young: five reads and the start once more.
    QCOMPARE(standin::calls().processData, 4U * 2 + 2 + 4);
}

void TestLateValues::parentIsReadAgainWhenItMayHaveChanged_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("it ended") << "ended";
    QTest::newRow("it is a zombie") << "zombie";
    QTest::newRow("its pid was taken") << "taken";
}

void TestLateValues::parentIsReadAgainWhenItMayHaveChanged()
{
    QFETCH(QString, change);
    snapshot();
    QCOMPARE(snapshot().at(11).getPPid(), 10);
    if (change == QLatin1String("ended")) {
        machine().processes->erase(10);
    } else if (change == QLatin1String("zombie")) {
        made(10).state = GLIBTOP_PROCESS_ZOMBIE;
    } else {
        made(10).startTime = now;
    }
    made(11).parent = 1;
    QCOMPARE(snapshot().at(11).getPPid(), 1);
    QCOMPARE(sorted(snapshot().at(11), ParentPidColumn), QVariant(1));
}

void TestLateValues::unknownParentIsAlwaysReadAgain()
{
    made(10).parent = 0; // a process outside of what can be seen, whose end can't be seen either
    snapshot();
    snapshot();
    made(10).parent = 1;
    QCOMPARE(snapshot().at(10).getPPid(), 1);
    made(11).parent = 77; // not in the list
    made(10).startTime = now - 49;
    machine().processes->erase(10);
    QCOMPARE(snapshot().at(11).getPPid(), 77);
    made(11).parent = 1;
    QCOMPARE(snapshot().at(11).getPPid(), 1);
}

void TestLateValues::processThatTookAPidHasItsOwnParent()
{
    snapshot();
    snapshot();
    made(11) = processOf(1, now - 39);
    QCOMPARE(snapshot().at(11).getPPid(), 1);
}

void TestLateValues::processThatEndsWhileItIsCompletedIsLeftOut()
{
    made(11).answersBeforeEnd = 2; // state and time, not the parent
    made(99).answersBeforeEnd = 3;
    const auto processes = snapshot();
    QCOMPARE(processes.count(11), std::size_t(0));
    QCOMPARE(processes.count(99), std::size_t(0));
    QCOMPARE(processes.size(), std::size_t(2));
}

void TestLateValues::wantedColumnsAreReadWithTheSnapshot()
{
    std::vector<bool> wanted(ColumnCount, false);
    wanted[MemoryColumn] = true;
    ProcessFiller::instance()->setEagerColumns(wanted);
    const Process process = snapshot().at(11);
    made(11).resident = 2048;
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
}

void TestLateValues::secondIsOverOnlyWhenThatIsCertain()
{
    using std::chrono::milliseconds;
    const StartClock::Time start{};
    StartClock clock;
    QVERIFY(!clock.secondIsOver(0, start));
    clock.see(100, start);
    QVERIFY(clock.secondIsOver(99, start));
    QVERIFY(!clock.secondIsOver(100, start));
    QVERIFY(!clock.secondIsOver(100, start + milliseconds(999)));
    QVERIFY(clock.secondIsOver(100, start + milliseconds(1000)));
    QVERIFY(!clock.secondIsOver(101, start + milliseconds(1000)));
    clock.see(101, start + milliseconds(1500)); // no news: the second at hand is at least 101
    QVERIFY(clock.secondIsOver(101, start + milliseconds(2000)));
    clock.see(110, start + milliseconds(2000));
    QVERIFY(!clock.secondIsOver(110, start + milliseconds(2999)));
    clock.see(std::numeric_limits<quint64>::max(), start + milliseconds(3000));
    QVERIFY(!clock.secondIsOver(std::numeric_limits<quint64>::max(), start + milliseconds(9000)));
}

QTEST_GUILESS_MAIN(TestLateValues)
#include "test_latevalues.moc"
