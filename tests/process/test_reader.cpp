// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/reader.h"

#include "madeupprocesses.h"

#include <QtTest>

using namespace gtop_wrappers;

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
        const ProcessRecord young = reader.read(std::nullopt, ReadState | ReadTime).back();
        QCOMPARE(young.resident, quint64(4096));
        QCOMPARE(young.arguments, QByteArray("some\0", 5));
        QCOMPARE(young.parent, 10);
        // State and time of four; the parent of 1, which has none; five reads of 99; the start of both once
        // more.
        QCOMPARE(standin::calls().processData, 4U * 2 + 2 + 4);
        standin::machine().processes->insert({100, madeup::process(1, madeup::now + 1)});
        QCOMPARE(unread(), (QMap<int, unsigned>{{1, rest}, {10, rest}, {11, rest}, {99, rest}, {100, 0}}));
    }

    void processThatExitsWhileBeingReadIsLeftOut_data()
    {
        QTest::addColumn<int>("pid");
        QTest::addColumn<int>("answers");
        QTest::addColumn<unsigned>("eager");
        QTest::newRow("before its state") << 11 << 0 << 0U;
        QTest::newRow("before its times") << 11 << 1 << 0U;
        QTest::newRow("before its parent") << 11 << 2 << 0U;
        QTest::newRow("before its start is read again") << 11 << 3 << 0U;
        QTest::newRow("young, before its parent") << 99 << 2 << 0U;
        QTest::newRow("young, before its memory") << 99 << 3 << 0U;
        QTest::newRow("young, before its memory, parent eager") << 99 << 3 << unsigned(ReadUid);
        QTest::newRow("young, before its start is read again") << 99 << 5 << 0U;
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
        for (const ProcessRecord &record : reader.read(std::nullopt, ReadState | ReadTime | eager)) {
            left[record.pid] = record.unread;
        }
        return left;
    }

    ProcessReader reader;
};

QTEST_GUILESS_MAIN(TestReader)
#include "test_reader.moc"
