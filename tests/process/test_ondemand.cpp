// SPDX-License-Identifier: GPL-3.0-or-later
// What is left to be read on demand is read at most once per snapshot, and never of another process.
#include "process/gtop_wrappers/filler.h"
#include "process/gtop_wrappers/snapshotcache.h"

#include "cells.h"
#include "madeupprocesses.h"

#include <QtTest>

using namespace gtop_wrappers;
using madeup::at;

class TestOnDemand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ProcessFiller::instance()->setEagerColumns(std::vector<bool>(ColumnCount, false));
        standin::machine().processes.emplace();
        snapshot(); // forgets the processes of the test before
        madeup::setUp();
    }

    void nothingIsReadBeforeACellAsks()
    {
        const Process process = snapshot().at(11);
        at(11).resident = 2048;
        at(11).arguments = std::string("later\0", 6);
        at(11).nice = 5;
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("2.00 KB"));
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(2048)));
        QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("later"));
        QCOMPARE(sorted(process, NiceColumn), QVariant(5));
        QCOMPARE(sorted(process, NiceColumn).type(), QVariant::Int);
    }

    void asksForAParentThatIsNotRead()
    {
        SnapshotCache cache;
        cache.setEagerColumns(std::vector<bool>(ColumnCount, false));
        const unsigned reads = ReadState | ReadTime;
        const Process process = cache.snapshot(readProcesses(std::nullopt, reads)).at(11);
        const ParamPtr parent = process.getParam(ParentPidColumn);
        standin::resetCalls();
        QVERIFY(!parent->isRead());
        QCOMPARE(standin::calls().processData, 0U);
        QCOMPARE(sorted(process, ParentPidColumn), QVariant(10));
        QCOMPARE(sorted(process, ParentPidColumn).type(), QVariant::Int);
        QCOMPARE(process.getPPid(), 10);
        QVERIFY(parent->isRead());
        QCOMPARE(standin::calls().processData, 2U);
        const Process known = cache.snapshot(readProcesses(std::nullopt, reads | ReadParent)).at(11);
        QVERIFY(known.getParam(ParentPidColumn) != parent);
        QVERIFY(known.getParam(ParentPidColumn)->isRead());
        QVERIFY(!parent->isRead());
        QCOMPARE(known.getPPid(), 10);
    }

    void isReadOncePerSnapshot()
    {
        const Process process = snapshot().at(11);
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(1024)));
        at(11).resident = 2048;
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(1024)));
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
        QCOMPARE(sorted(snapshot().at(11), MemoryColumn), QVariant(quint64(2048)));
    }

    void memoryThatWasAskedForIsReadWithTheNextSnapshot()
    {
        for (const quint64 resident : {1024U, 2048U, 4096U}) {
            at(11).resident = resident;
            at(11).virtualSize = resident * 2;
            at(11).shared = resident / 2;
            const Process process = snapshot().at(11);
            if (resident > 1024) {
                at(11).resident = at(11).virtualSize = at(11).shared = 1;
            }
            QCOMPARE(sorted(process, MemoryColumn), QVariant(resident));
            QCOMPARE(sorted(process, VirtualMemoryColumn), QVariant(resident * 2));
            QCOMPARE(sorted(process, SharedMemoryColumn), QVariant(resident / 2));
        }
        at(11).resident = 8192;
        snapshot();
        const Process process = snapshot().at(11); // nothing asked in the last one
        at(11).resident = 16384;
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(16384)));
    }

    void whatIsReadWithTheSnapshotIsKeptAfterTheExit()
    {
        sorted(snapshot().at(11), MemoryColumn);
        at(11).resident = 2048;
        const Process process = snapshot().at(11);
        madeup::remove(11);
        snapshot();
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(2048)));
    }

    void whatFailsOnDemandCanSucceedWithTheNextSnapshot()
    {
        at(11).memoryFails = true;
        QCOMPARE(shown(snapshot().at(11), MemoryColumn), QString());
        at(11).memoryFails = false;
        QCOMPARE(shown(snapshot().at(11), MemoryColumn), QStringLiteral("1.00 KB"));
    }

    void nothingReadAheadIsShownOfAProcessThatReusesThePid()
    {
        sorted(snapshot().at(11), MemoryColumn);
        at(11).startTime = madeup::now - 30;
        const Process process = snapshot().at(11);
        at(11).resident = 4096;
        QCOMPARE(sorted(process, MemoryColumn), QVariant(quint64(4096)));
    }

    void unchangedProcessKeepsItsObjects()
    {
        std::map<int, Process> all = snapshot();
        const Process before = all.at(11);
        ProcessFiller::instance()->giveBack(std::move(all));
        const Process process = snapshot().at(11);
        for (unsigned long i = 0; i < ColumnCount; ++i) {
            QVERIFY(process.getParam(i));
            QCOMPARE(process.getParam(i), before.getParam(i));
        }
    }

    void emptyCommandLineFollowsTheName()
    {
        at(11).arguments.clear();
        const Process process = snapshot().at(11);
        QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("[some]"));
        at(11).name = "renamed";
        QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("[some]"));
        QCOMPARE(shown(snapshot().at(11), CommandLineColumn), QStringLiteral("[renamed]"));
    }

    void exitedProcessKeepsWhatWasLastReadOrIsEmpty()
    {
        const Process process = snapshot().at(11);
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
        madeup::remove(11);
        snapshot();
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
        QCOMPARE(shown(process, CommandLineColumn), QString());
        QCOMPARE(shown(process, NiceColumn), QString());
        const Process other = snapshot().at(10);
        madeup::remove(10);
        QCOMPARE(shown(other, VirtualMemoryColumn), QString());
        QCOMPARE(sorted(other, VirtualMemoryColumn), QVariant(quint64(0)));
    }

    void valuesOfAProcessThatReusesThePidAreNotShown()
    {
        const Process process = snapshot().at(11);
        at(11).startTime = madeup::now;
        at(11).resident = 4096;
        QCOMPARE(shown(process, MemoryColumn), QString());
        QCOMPARE(shown(snapshot().at(11), MemoryColumn), QStringLiteral("4.00 KB"));
    }

    void eagerColumnsAreReadWithTheSnapshot()
    {
        std::vector<bool> eager(ColumnCount, false);
        eager[MemoryColumn] = true;
        ProcessFiller::instance()->setEagerColumns(eager);
        const Process process = snapshot().at(11);
        at(11).resident = 2048;
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    }

private:
    static std::map<int, Process> snapshot() { return ProcessFiller::instance()->getProcesses(AllProcesses); }
};

QTEST_GUILESS_MAIN(TestOnDemand)
#include "test_ondemand.moc"
