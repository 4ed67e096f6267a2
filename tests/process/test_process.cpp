// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/process.h"
#include "process/gtop_wrappers/textondemand.h"

#include <QtTest>

#include <cstddef>
#include <limits>
#include <type_traits>

using namespace gtop_wrappers;

namespace {

Process processWith(const QString &name, int parent, quint64 jiffies)
{
    Process process(42);
    process.params.resize(ColumnCount);
    process.params[NameColumn].reset(new SimpleProcessParam(name));
    process.params[ParentPidColumn].reset(new IntProcessParam(parent));
    process.params[CpuTimeColumn].reset(new CpuTimeProcessParam(jiffies, 100));
    return process;
}

} // namespace

class TestProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutIsPidAndValues()
    {
        QVERIFY((std::is_same_v<decltype(Process::id), qint32>));
        QVERIFY(
            (std::is_same_v<decltype(Process::params), std::vector<std::tr1::shared_ptr<IProcessParam>>>));
        QVERIFY(std::is_standard_layout_v<Process>);
        struct Layout
        {
            qint32 pid;
            std::vector<std::tr1::shared_ptr<IProcessParam>> params;
        };
        QCOMPARE(offsetof(Process, id), offsetof(Layout, pid));
        QCOMPARE(offsetof(Process, params), offsetof(Layout, params));
        QCOMPARE(sizeof(Process), sizeof(Layout));
    }

    void withoutValuesEverythingIsEmpty_data()
    {
        const Rows<unsigned long> row("pointers");
        row("no values", 0);
        row("null pointers", ColumnCount);
    }

    void withoutValuesEverythingIsEmpty()
    {
        QFETCH(unsigned long, pointers);
        Process process(-1);
        process.params.resize(pointers);
        QCOMPARE(process.pid(), -1);
        QCOMPARE(process.getPPid(), 0);
        QCOMPARE(process.getName(), QString());
        QCOMPARE(process.getCpuLoad(), 0);
        QCOMPARE(process.startTime(), quint64(0));
        QVERIFY(!process.getParam(NameColumn));
        QVERIFY(!process.getParam(ColumnCount));
        QVERIFY(!process.getParam(std::numeric_limits<unsigned long>::max()));
    }

    void copyOfPidAndValuesAnswersTheSame()
    {
        const Process process = processWith(QStringLiteral("bash"), 7, 1234);
        Process kept(-1);
        kept.id = process.id;
        kept.params = process.params;
        QCOMPARE(kept.pid(), 42);
        QCOMPARE(kept.getName(), QStringLiteral("bash"));
        QCOMPARE(kept.getPPid(), 7);
        QCOMPARE(kept.getCpuLoad(), 1235);
        QCOMPARE(kept.getParam(NameColumn).get(), process.getParam(NameColumn).get());
    }

    void counterIsTheLow32BitsOfTheTimePlusOne_data()
    {
        const Rows<quint64, int> row("jiffies", "load");
        row("no time", 0, 1);
        row("highest positive", 0x7ffffffe, 0x7fffffff);
        row("one more", 0x7fffffff, std::numeric_limits<int>::min());
        row("all bits", 0xfffffffe, -1);
        row("wraps to 0", 0xffffffff, 0);
        row("wrapped", 0x100000005, 6);
        row("highest", std::numeric_limits<quint64>::max(), 0);
    }

    void counterIsTheLow32BitsOfTheTimePlusOne()
    {
        QFETCH(quint64, jiffies);
        QTEST(processWith(QString(), 0, jiffies).getCpuLoad(), "load");
    }

    void startComesFromTheStartedColumn()
    {
        Process process = processWith(QStringLiteral("bash"), 7, 0);
        QCOMPARE(process.startTime(), quint64(0));
        process.params[StartedColumn].reset(new StartedProcessParam(1700000000));
        QCOMPARE(process.startTime(), quint64(1700000000));
    }

    void columnNumbersAreFixed()
    {
        const int columns[] = {NameColumn,        CpuColumn,       PidColumn,           UserColumn,
                               MemoryColumn,      StateColumn,     VirtualMemoryColumn, SharedMemoryColumn,
                               NiceColumn,        ParentPidColumn, CpuTimeColumn,       StartedColumn,
                               CommandLineColumn, ProcessorColumn, ColumnCount};
        int expected = 0;
        for (const int column : columns) {
            QCOMPARE(column, expected++);
        }
        QCOMPARE(expected, 15);
    }
};

QTEST_GUILESS_MAIN(TestProcess)
#include "test_process.moc"
