// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/parents.h"

#include "../support/rows.h"
#include "madeupprocesses.h"

#include <QtTest>

#include <algorithm>
#include <functional>

using namespace gtop_wrappers;
using madeup::at;
using madeup::now;

using Change = std::function<void()>;
Q_DECLARE_METATYPE(Change)

class TestParents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        madeup::setUp();
        parents = Parents();
        clock = StartClock();
        time = StartClock::Time();
        eager = 0;
    }

    void isReadOnlyOnceAndAlone()
    {
        resolved();
        at(11).nice = 5;
        standin::resetCalls();
        const ProcessRecord record = resolved();
        // State and time of four; the parent of the young 99, with its start.
        QCOMPARE(standin::calls().processData, 4U * 2 + 2);
        QCOMPARE(record.parent, 10);
        QCOMPARE(record.nice, 0);
        QCOMPARE(record.unread, unsigned(ReadUid | ReadMemory | ReadArguments));
    }

    void isReadAgain_data()
    {
        const Rows<Change, Change, int> rows("prepare", "change", "parent");
        const auto row = [&](const char *name, const Change &prepare, const Change &change, int parent = 1) {
            rows(name, prepare, change, parent);
        };
        const Change nothing = [] {};
        const Change passASecond = [this] { time += std::chrono::seconds(1); };
        row("not while both run", nothing, nothing, 10);
        row("parent exited", nothing, [] { madeup::remove(10); });
        row("parent is a zombie", nothing, [] { at(10).state = GLIBTOP_PROCESS_ZOMBIE; });
        row("parent is dead", nothing, [] { at(10).state = GLIBTOP_PROCESS_DEAD; });
        row("parent may hang in its exit", nothing, [] { at(10).state = GLIBTOP_PROCESS_UNINTERRUPTIBLE; });
        row("parent's pid was reused", nothing, [] { at(10).startTime = now; });
        row("pid was reused", nothing, [] { at(11).startTime = now - 39; });
        const Change hadNoParent = [] { at(11).parent = 0; };
        row("not without a parent, which it never gets", hadNoParent, nothing, 0);
        const Change wasNotListed = [] { at(11).parent = 77; };
        row("parent was not listed", wasNotListed, nothing);
        const Change comeBack = [this] {
            const auto process = at(11);
            madeup::remove(11);
            resolved();
            standin::machine().processes->insert({11, process});
        };
        row("process was not listed for a while", nothing, comeBack);
        const Change childIsYoung = [] { at(11).startTime = now; };
        row("process was young", childIsYoung, passASecond);
        const Change parentIsYoung = [] { at(10).startTime = now; };
        row("parent was young", parentIsYoung, passASecond);
        const Change readYoungEntirely = [this] {
            at(11).startTime = now;
            eager = ReadUid;
        };
        const Change growOld = [this] {
            time += std::chrono::seconds(1);
            eager = 0;
        };
        row("process was young and its nice value eager", readYoungEntirely, growOld);
        row("nice value became eager", nothing, [this] { eager = ReadUid; });
    }

    void isReadAgain()
    {
        QFETCH(Change, prepare);
        QFETCH(Change, change);
        prepare();
        const int before = at(11).parent;
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(resolved().parent, before);
        }
        change();
        at(11).parent = 1;
        QTEST(resolved().parent, "parent");
    }

    void isLearntOfProcessesThatWereThereBefore_data()
    {
        const Rows<Change, quint64, int> row("prepare", "started", "parent");
        const Change nothing = [] {};
        row("both were", nothing, now - 39, 10);
        row("process may not have been", nothing, now - 40, 1);
        const Change parentIsYounger = [] { at(10).startTime = now - 39; };
        row("parent may not have been", parentIsYounger, now - 39, 1);
        const Change parentIsZombie = [] { at(10).state = GLIBTOP_PROCESS_ZOMBIE; };
        row("parent is a zombie", parentIsZombie, now - 39, 1);
    }

    void isLearntOfProcessesThatWereThereBefore()
    {
        QFETCH(Change, prepare);
        QFETCH(quint64, started);
        prepare();
        std::vector<ProcessRecord> records = learnt(started);
        at(11).parent = 1;
        parents.resolve(records, clock, time);
        QTEST(records.at(2).parent, "parent");
    }

    void noneThatWasLearntIsReadInTheFirstSnapshot()
    {
        auto &processes = *standin::machine().processes;
        for (int pid = 100; pid < 110; ++pid) {
            processes[pid] = madeup::process(1, now - 50);
        }
        std::vector<ProcessRecord> records = learnt(now + 1);
        standin::resetCalls();
        parents.resolve(records, clock, time);
        QCOMPARE(standin::calls().processData, 0U);
    }

    void oneOfTwoHundredIsReadAgainInEachSnapshot()
    {
        auto &processes = *standin::machine().processes;
        processes = {{1, madeup::process(0, now - 100)}, {2, madeup::process(0, now)}};
        for (int pid = 100; pid < 300; ++pid) {
            processes[pid] = madeup::process(1, now - 50);
        }
        resolved();
        for (int i = 0; i < 80; ++i) {
            standin::resetCalls();
            resolved();
            // State and time of all; the parents of the young 2, of one of 200 and, when due, of 1, with
            // their start.
            const unsigned due = (standin::calls().processData - 202 * 2 - 2) / 2;
            QVERIFY2(due == 1 || due == 2, qPrintable(QString::number(due)));
        }
    }

    void isRightWithin200SnapshotsOfAnUnseenChange_data()
    {
        addNumberRows("before", {1, 2, 39, 40, 100, 188, 189, 190, 199, 200}, "after %1");
    }

    void isRightWithin200SnapshotsOfAnUnseenChange()
    {
        QFETCH(int, before);
        for (int i = 0; i < before; ++i) {
            QCOMPARE(resolved().parent, 10);
        }
        at(11).parent = 1; // while 10 goes on running
        for (int i = 0; i < 199; ++i) {
            resolved();
        }
        for (int i = 0; i < 201; ++i) {
            QCOMPARE(resolved().parent, 1);
        }
    }

private:
    /// Records of all processes whose parents have been learnt and are to be resolved.
    std::vector<ProcessRecord> learnt(quint64 started)
    {
        std::vector<ProcessRecord> records = readProcesses(std::nullopt, ReadState | ReadTime | ReadUid);
        parents.learn(records, started);
        for (ProcessRecord &record : records) {
            record.unread |= ReadParent;
        }
        return records;
    }
    /// Reads and resolves all processes; the record of 11.
    ProcessRecord resolved()
    {
        std::vector<ProcessRecord> records = readProcesses(std::nullopt, ReadState | ReadTime | eager);
        for (const ProcessRecord &record : records) {
            clock.see(record.started, time);
        }
        parents.resolve(records, clock, time);
        const auto found = std::find_if(records.begin(), records.end(),
                                        [](const ProcessRecord &record) { return record.pid == 11; });
        return found == records.end() ? ProcessRecord() : *found;
    }

    Parents parents;
    StartClock clock;
    StartClock::Time time;
    unsigned eager = 0; ///< read of all processes besides state and time
};

QTEST_GUILESS_MAIN(TestParents)
#include "test_parents.moc"
