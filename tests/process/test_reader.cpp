// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/reader.h"

#include "../support/rows.h"
#include "madeupprocesses.h"

#include <QtTest>

#include <unistd.h>

using namespace gtop_wrappers;

namespace {

constexpr unsigned required = ReadState | ReadTime | ReadParent;

} // namespace

class TestReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        madeup::setUp();
        reader = ProcessReader();
    }

    void onlyYoungProcessesAreReadEntirely()
    {
        const unsigned rest = ReadUid | ReadMemory | ReadArguments;
        QCOMPARE(unread(), (QMap<int, unsigned>{{1, rest}, {10, rest}, {11, rest}, {99, 0}}));
        standin::resetCalls();
        madeup::at(99).resident = 4096;
        madeup::at(99).parent = 10;
        const ProcessRecord young = reader.read(std::nullopt, required).back();
        QCOMPARE(young.resident, quint64(4096));
        QCOMPARE(young.arguments, QByteArray("some\0", 5));
        QCOMPARE(young.parent, 10);
        // State and time of four; three more reads of 99, and its start again.
        QCOMPARE(standin::calls().processData, 4U * 2 + 4);
        standin::machine().processes->insert({100, madeup::process(1, madeup::now + 1)});
        QCOMPARE(unread(), (QMap<int, unsigned>{{1, rest}, {10, rest}, {11, rest}, {99, rest}, {100, 0}}));
    }

    void firstSnapshotReadsParentsWithTheRest()
    {
        const int self = getpid();
        standin::machine().processes->insert({self, madeup::process(1, madeup::now - 1)});
        standin::resetCalls();
        const unsigned rest = ReadUid | ReadMemory | ReadArguments;
        QMap<int, int> parents;
        for (const ProcessRecord &record : reader.read(std::nullopt, required)) {
            parents[record.pid] = record.parent;
            QCOMPARE(record.unread, record.pid == 99 ? 0U : rest);
        }
        QCOMPARE(parents, (QMap<int, int>{{1, 0}, {10, 1}, {11, 10}, {99, 1}, {self, 1}}));
        // The start of this program; state, parent and time of five; with its start, the parent of this
        // program, before which nothing is certain; the rest and the start of the young 99.
        QCOMPARE(standin::calls().processData, 1U + 5 * 3 + 2 + 4);
    }

    void firstSnapshotCanLeaveTheParents()
    {
        standin::resetCalls();
        const unsigned rest = ReadUid | ReadMemory | ReadArguments;
        for (const ProcessRecord &record : reader.read(std::nullopt, ReadState | ReadTime)) {
            QCOMPARE(record.unread, record.pid == 99 ? 0U : rest | ReadParent);
            QCOMPARE(record.parent, record.pid == 99 ? 1 : 0);
        }
        // State and time of four; the rest and the start of the young 99.
        QCOMPARE(standin::calls().processData, 4U * 2 + 4);
    }

    void parentsThatWereLeftAreReadInTheSecondSnapshot()
    {
        standin::machine().processes->insert({getpid(), madeup::process(1, madeup::now - 1)});
        reader.read(std::nullopt, ReadState | ReadTime);
        standin::resetCalls();
        QCOMPARE(reader.read(std::nullopt, ReadState | ReadTime).at(2).parent, 10);
        // As in a first snapshot with parents.
        QCOMPARE(standin::calls().processData, 1U + 5 * 3 + 2 + 4);
        standin::resetCalls();
        for (const ProcessRecord &record : reader.read(std::nullopt, ReadState | ReadTime)) {
            QVERIFY((record.unread & ReadParent) == 0);
        }
        QCOMPARE(standin::calls().processData, 5U * 2 + 4);
    }

    void firstSnapshotTakesTheParentThatComesWithTheNiceValue()
    {
        const std::vector<ProcessRecord> records = reader.read(std::nullopt, ReadState | ReadTime | ReadUid);
        QCOMPARE(records.at(2).parent, 10);
        QCOMPARE(records.at(2).unread, unsigned(ReadMemory | ReadArguments));
    }

    void memoryCanBeReadWithTheRest()
    {
        unread();
        madeup::at(10).memoryFails = true;
        standin::resetCalls();
        QMap<int, unsigned> ahead;
        QMap<int, quint64> memory;
        for (const ProcessRecord &record : reader.read(std::nullopt, required, {10, 11, 12})) {
            ahead[record.pid] = record.ahead;
            memory[record.pid] = record.resident;
            QCOMPARE(record.unread, record.pid == 99 ? 0U : unsigned(ReadUid | ReadMemory | ReadArguments));
        }
        QCOMPARE(ahead, (QMap<int, unsigned>{{1, 0}, {10, 0}, {11, ReadMemory}, {99, 0}}));
        QCOMPARE(memory, (QMap<int, quint64>{{1, 0}, {10, 0}, {11, 1024}, {99, 1024}}));
        // State and time of four; the memory of two; three more reads of the young 99, and its start.
        QCOMPARE(standin::calls().processData, 4U * 2 + 2 + 4);
    }

    void memoryIsReadAheadBeforeTheStart()
    {
        unread();
        madeup::at(11).answersBeforeEnd = 2; // its state and memory
        QCOMPARE(reader.read(std::nullopt, required, {11}).size(), std::size_t(3));
    }

    void aKnownParentThatIsDueIsReadWithTheRest()
    {
        auto &processes = *standin::machine().processes;
        processes = {{1, madeup::process(0, madeup::now - 100)}, {2, madeup::process(2, madeup::now)}};
        for (int pid = 100; pid < 300; ++pid) {
            processes[pid] = madeup::process(1, madeup::now - 50);
        }
        reader.read(std::nullopt, ReadEverything);
        unread();
        unread();
        for (int i = 0; i < 80; ++i) {
            standin::resetCalls();
            QCOMPARE(unread().value(100 + i), unsigned(ReadUid | ReadMemory | ReadArguments));
            // State and time of all; the parent of one of 200; three more reads of the young 2, and its
            // start.
            const unsigned due = standin::calls().processData - 202 * 2 - 4;
            QVERIFY2(due == 1 || due == 2, qPrintable(QString::number(due)));
        }
    }

    void aParentThatChangedIsSeenWhenItIsDue()
    {
        for (int i = 0; i < 3; ++i) {
            reader.read(std::nullopt, required);
        }
        madeup::at(11).parent = 1; // while 10 goes on running
        for (int i = 0; i < 200; ++i) {
            unread();
        }
        QCOMPARE(reader.read(std::nullopt, required).at(2).parent, 1);
    }

    void processThatExitsWhileBeingReadIsLeftOut_data()
    {
        const Rows<int, int, unsigned> row("pid", "answers", "eager");
        row("before its state", 11, 0, 0U);
        row("before its times", 11, 1, 0U);
        row("before its parent", 11, 2, 0U);
        row("before its start is read again", 11, 3, 0U);
        row("young, before its parent", 99, 2, 0U);
        row("young, before its memory", 99, 3, 0U);
        row("young, before its memory, parent eager", 99, 3, unsigned(ReadUid));
        row("young, before its start is read again", 99, 5, 0U);
    }

    void processThatExitsWhileBeingReadIsLeftOut()
    {
        QFETCH(int, pid);
        QFETCH(int, answers);
        QFETCH(unsigned, eager);
        madeup::at(pid).answersBeforeEnd = answers;
        QList<int> expected = {1, 10, 11, 99};
        expected.removeOne(pid);
        QCOMPARE(unread(eager).keys(), expected);
    }

private:
    /// What is left unread of each process.
    QMap<int, unsigned> unread(unsigned eager = 0)
    {
        QMap<int, unsigned> left;
        for (const ProcessRecord &record : reader.read(std::nullopt, required | eager)) {
            left[record.pid] = record.unread;
        }
        return left;
    }

    ProcessReader reader;
};

QTEST_GUILESS_MAIN(TestReader)
#include "test_reader.moc"
