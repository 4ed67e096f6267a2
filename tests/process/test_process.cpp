// SPDX-License-Identifier: GPL-3.0-or-later
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
    void holdsPidAndValuesInThisOrderOnly();
    void emptyProcessHasNothing();
    void answersComeFromTheValues();
    void counterIsTheLow32Bits_data();
    void counterIsTheLow32Bits();
    void copyOfPidAndValuesAnswersTheSame();
    void copiesShareTheirValues();
    void missingValuesAreAnswered();
    void columnNumbersAreFixed();
};

void TestProcess::holdsPidAndValuesInThisOrderOnly()
{
    QVERIFY((std::is_same_v<decltype(Process::id), qint32>));
    QVERIFY((std::is_same_v<decltype(Process::params), std::vector<std::tr1::shared_ptr<IProcessParam>>>));
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

void TestProcess::emptyProcessHasNothing()
{
    const Process none(-1);
    QCOMPARE(none.pid(), -1);
    QCOMPARE(none.getPPid(), 0);
    QCOMPARE(none.getName(), QString());
    QCOMPARE(none.getCpuLoad(), 0);
    QVERIFY(!none.getParam(0));
    QVERIFY(!none.getParam(std::numeric_limits<unsigned long>::max()));
}

void TestProcess::answersComeFromTheValues()
{
    const Process process = processWith(QStringLiteral("bash"), 7, 1234);
    QCOMPARE(process.pid(), 42);
    QCOMPARE(process.getName(), QStringLiteral("bash"));
    QCOMPARE(process.getPPid(), 7);
    QCOMPARE(process.getCpuLoad(), 1234);
}

void TestProcess::counterIsTheLow32Bits_data()
{
    QTest::addColumn<quint64>("jiffies");
    QTest::addColumn<int>("load");
    QTest::newRow("highest positive") << quint64(0x7fffffff) << 0x7fffffff;
    QTest::newRow("one more") << quint64(0x80000000) << std::numeric_limits<int>::min();
    QTest::newRow("all bits") << quint64(0xffffffff) << -1;
    QTest::newRow("wrapped") << quint64(0x100000005) << 5;
    QTest::newRow("highest") << std::numeric_limits<quint64>::max() << -1;
}

void TestProcess::counterIsTheLow32Bits()
{
    QFETCH(quint64, jiffies);
    QTEST(processWith(QString(), 0, jiffies).getCpuLoad(), "load");
}

void TestProcess::copyOfPidAndValuesAnswersTheSame()
{
    const Process process = processWith(QStringLiteral("bash"), 7, 1234);
    Process kept(-1);
    kept.id = process.id;
    kept.params = process.params;
    QCOMPARE(kept.pid(), 42);
    QCOMPARE(kept.getName(), QStringLiteral("bash"));
    QCOMPARE(kept.getPPid(), 7);
    QCOMPARE(kept.getCpuLoad(), 1234);
}

void TestProcess::copiesShareTheirValues()
{
    const Process process = processWith(QStringLiteral("bash"), 7, 1234);
    const Process copy = process; // NOLINT(performance-unnecessary-copy-initialization)
    QCOMPARE(copy.getParam(NameColumn).get(), process.getParam(NameColumn).get());
}

void TestProcess::missingValuesAreAnswered()
{
    Process process(42);
    process.params.resize(ColumnCount);
    QCOMPARE(process.getName(), QString());
    QCOMPARE(process.getPPid(), 0);
    QCOMPARE(process.getCpuLoad(), 0);
    QVERIFY(!process.getParam(NameColumn));
    QVERIFY(!process.getParam(ColumnCount));
}

void TestProcess::columnNumbersAreFixed()
{
    QCOMPARE(int(NameColumn), 0);
    QCOMPARE(int(CpuColumn), 1);
    QCOMPARE(int(PidColumn), 2);
    QCOMPARE(int(UserColumn), 3);
    QCOMPARE(int(MemoryColumn), 4);
    QCOMPARE(int(StateColumn), 5);
    QCOMPARE(int(VirtualMemoryColumn), 6);
    QCOMPARE(int(SharedMemoryColumn), 7);
    QCOMPARE(int(NiceColumn), 8);
    QCOMPARE(int(ParentPidColumn), 9);
    QCOMPARE(int(CpuTimeColumn), 10);
    QCOMPARE(int(StartedColumn), 11);
    QCOMPARE(int(CommandLineColumn), 12);
    QCOMPARE(int(ProcessorColumn), 13);
    QCOMPARE(int(ColumnCount), 14);
}

QTEST_GUILESS_MAIN(TestProcess)
#include "test_process.moc"
