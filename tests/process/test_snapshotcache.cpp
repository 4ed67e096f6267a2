// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/snapshotcache.h"

#include "../support/rows.h"
#include "cells.h"

#include <QtTest>

#include <time.h>

#include <functional>
#include <limits>

using namespace gtop_wrappers;

namespace {

constexpr unsigned everything = ReadEverything;

ProcessRecord recordOf(int pid)
{
    ProcessRecord record;
    record.pid = pid;
    record.name = "bash";
    record.state = GLIBTOP_PROCESS_INTERRUPTIBLE;
    record.user = 0;
    record.parent = 1;
    record.processor = 3;
    record.cpuTime = 100;
    record.frequency = 100;
    record.started = 1700000000;
    record.resident = 1024;
    record.virtualSize = 2048;
    record.shared = 512;
    record.arguments = QByteArray("bash\0-l\0", 8);
    return record;
}

Process made(const ProcessRecord &record)
{
    SnapshotCache cache;
    return cache.snapshot({record}).at(record.pid);
}

/// A snapshot that has been given back.
std::map<int, Process> givenBack(SnapshotCache &cache, std::vector<ProcessRecord> records)
{
    std::map<int, Process> snapshot = cache.snapshot(std::move(records));
    std::map<int, Process> copy = snapshot;
    cache.takeBack(std::move(snapshot));
    return copy;
}

} // namespace

using Change = std::function<void(ProcessRecord &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(ProcessColumn)
Q_DECLARE_METATYPE(std::vector<bool>)

class TestSnapshotCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void processAnswersFromItsRecord()
    {
        const Process process = made(recordOf(42));
        QCOMPARE(process.params.size(), std::size_t(ColumnCount));
        QCOMPARE(process.pid(), 42);
        QCOMPARE(process.getName(), QStringLiteral("bash"));
        QCOMPARE(process.getPPid(), 1);
        QCOMPARE(process.getCpuLoad(), 101); // jiffies plus one
        QCOMPARE(process.startTime(), quint64(1700000000));
        QVERIFY(dynamic_cast<CpuProcessParam *>(process.getParam(1).get()));
    }

    void column_data()
    {
        const Rows<ProcessColumn, QString, QVariant> row("column", "text", "sortValue");
        row("name", NameColumn, "bash", "bash");
        row("CPU", CpuColumn, "", 0.0);
        row("PID", PidColumn, "42", 42);
        row("user", UserColumn, "root", "root");
        row("memory", MemoryColumn, "1.00 KB", quint64(1024));
        row("state", StateColumn, "Sleeping", 2);
        row("virtual", VirtualMemoryColumn, "2.00 KB", quint64(2048));
        row("shared", SharedMemoryColumn, "512.00 B", quint64(512));
        row("nice", NiceColumn, "0", 0);
        row("parent", ParentPidColumn, "1", 1);
        row("CPU time", CpuTimeColumn, "0:00:01", quint64(100));
        row("started", StartedColumn, "2023-11-14 22:13:20", quint64(1700000000));
        row("command line", CommandLineColumn, "bash -l", "bash -l");
        row("processor", ProcessorColumn, "3", 3);
    }

    void column()
    {
        QFETCH(ProcessColumn, column);
        QFETCH(QVariant, sortValue);
        const Process process = made(recordOf(42));
        QTEST(shown(process, column), "text");
        const QVariant actual = sorted(process, column);
        QCOMPARE(actual, sortValue);
        QCOMPARE(actual.type(), sortValue.type());
    }

    void stateColumnCarriesLibgtopsCode_data()
    {
        const Rows<int, QString> row("code", "text");
        row("running", GLIBTOP_PROCESS_RUNNING, "Running");
        row("interruptible", GLIBTOP_PROCESS_INTERRUPTIBLE, "Sleeping");
        row("uninterruptible", GLIBTOP_PROCESS_UNINTERRUPTIBLE, "Uninterruptible");
        row("zombie", GLIBTOP_PROCESS_ZOMBIE, "Zombie");
        row("stopped", GLIBTOP_PROCESS_STOPPED, "Stopped");
        row("swapping", GLIBTOP_PROCESS_SWAPPING, "Swapping");
        row("dead", GLIBTOP_PROCESS_DEAD, "Dead");
        row("no code of libgtop's", 0, "Other");
        row("two at once", 3, "Other");
        row("lowest", std::numeric_limits<int>::min(), "Other");
        row("highest", std::numeric_limits<int>::max(), "Other");
    }

    void stateColumnCarriesLibgtopsCode()
    {
        QFETCH(int, code);
        ProcessRecord record = recordOf(42);
        record.state = code;
        const Process process = made(record);
        const auto *param = dynamic_cast<const IntProcessParam *>(process.getParam(5).get());
        QVERIFY(param);
        QCOMPARE(param->value(), code);
        QTEST(shown(process, StateColumn), "text");
    }

    void onlyChangedValuesAreNewObjects_data()
    {
        const Rows<Change, QVector<int>> row("change", "columns");
        row("nothing", [](ProcessRecord &) {}, {});
        row("name", [](ProcessRecord &r) { r.name = "sh"; }, {NameColumn, CommandLineColumn});
        row("user", [](ProcessRecord &r) { r.user = 65534; }, {UserColumn});
        row("resident", [](ProcessRecord &r) { r.resident = 1; }, {MemoryColumn});
        row("state", [](ProcessRecord &r) { r.state = 16; }, {StateColumn});
        row("virtual", [](ProcessRecord &r) { r.virtualSize = 1; }, {VirtualMemoryColumn});
        row("shared", [](ProcessRecord &r) { r.shared = 1; }, {SharedMemoryColumn});
        row("nice", [](ProcessRecord &r) { r.nice = 19; }, {NiceColumn});
        row("parent", [](ProcessRecord &r) { r.parent = 2; }, {ParentPidColumn});
        row("CPU time", [](ProcessRecord &r) { r.cpuTime = 101; }, {CpuTimeColumn});
        row("start", [](ProcessRecord &r) { r.started = 1700000001; }, {CpuColumn, StartedColumn});
        row("processor", [](ProcessRecord &r) { r.processor = 1; }, {ProcessorColumn});
        row("arguments", [](ProcessRecord &r) { r.arguments = "x"; }, {CommandLineColumn});
        const auto reusePid = [](ProcessRecord &r) {
            r.name = "sh";
            r.cpuTime = 1;
            r.started += 5;
            r.arguments.clear();
        };
        row("pid reused", reusePid, {NameColumn, CpuColumn, CpuTimeColumn, StartedColumn, CommandLineColumn});
    }

    void onlyChangedValuesAreNewObjects()
    {
        QFETCH(Change, change);
        QFETCH(QVector<int>, columns);
        SnapshotCache cache;
        const Process before = givenBack(cache, {recordOf(42)}).at(42);
        ProcessRecord record = recordOf(42);
        change(record);
        const Process now = cache.snapshot({record}).at(42);
        const Process alone = made(record);
        for (unsigned long i = 0; i < ColumnCount; ++i) {
            QCOMPARE(now.getParam(i) != before.getParam(i), columns.contains(int(i)));
            QCOMPARE(now.getParam(i)->displayValue(), alone.getParam(i)->displayValue());
            QCOMPARE(now.getParam(i)->sortValue(), alone.getParam(i)->sortValue());
        }
    }

    void withoutTheLastSnapshotAllValuesAreNew()
    {
        SnapshotCache cache;
        const Process before = cache.snapshot({recordOf(42)}).at(42);
        ProcessRecord record = recordOf(42);
        record.cpuTime = 200;
        const Process now = cache.snapshot({record}).at(42);
        QVERIFY(now.getParam(CpuColumn) != before.getParam(CpuColumn));
        QCOMPARE(shown(now, CpuTimeColumn), QStringLiteral("0:00:02"));
        QCOMPARE(shown(now, StartedColumn), shown(before, StartedColumn));
    }

    void exitedProcessesAreForgotten()
    {
        SnapshotCache cache;
        std::vector<std::tr1::weak_ptr<IProcessParam>> values;
        {
            const auto snapshot = givenBack(cache, {recordOf(42), recordOf(43)});
            for (const ParamPtr &param : snapshot.at(42).params) {
                values.emplace_back(param);
            }
        }
        ProcessRecord left = recordOf(43); // with none of the values that processes share
        left.name = "sh";
        left.user = 65534;
        left.state = 16;
        left.parent = 20;
        left.nice = 10;
        left.processor = 30;
        QCOMPARE(givenBack(cache, {left}).size(), std::size_t(1));
        for (const auto &value : values) {
            QVERIFY(value.expired());
        }
    }

    void processesShareNameUserStateAndSmallNumbers()
    {
        SnapshotCache cache;
        const auto snapshot = cache.snapshot({recordOf(42), recordOf(43)});
        for (const ProcessColumn column :
             {NameColumn, UserColumn, StateColumn, NiceColumn, ParentPidColumn, ProcessorColumn}) {
            QCOMPARE(snapshot.at(42).getParam(column).get(), snapshot.at(43).getParam(column).get());
        }
    }

    void snapshotHasThePidsOfTheRecords()
    {
        SnapshotCache cache;
        const auto pids = [&cache](std::vector<ProcessRecord> records) {
            QVector<int> keys;
            for (const auto &entry : givenBack(cache, std::move(records))) {
                keys.append(entry.first == entry.second.pid() ? entry.first : -1);
            }
            return keys;
        };
        QCOMPARE(pids({recordOf(2), recordOf(5), recordOf(9)}), (QVector<int>{2, 5, 9}));
        QCOMPARE(pids({recordOf(1), recordOf(5), recordOf(7), recordOf(10)}), (QVector<int>{1, 5, 7, 10}));
        QCOMPARE(pids({recordOf(5)}), (QVector<int>{5}));
        QCOMPARE(pids({}), QVector<int>());
        QCOMPARE(pids({recordOf(3)}), (QVector<int>{3}));
    }

    void extremeRecord()
    {
        ProcessRecord record = recordOf(std::numeric_limits<int>::max());
        record.name = QByteArray("\xff\n\x1b", 3);
        record.state = std::numeric_limits<int>::max();
        record.user = -1;
        record.parent = std::numeric_limits<int>::max();
        record.nice = std::numeric_limits<int>::min();
        record.cpuTime = record.frequency = record.started = std::numeric_limits<quint64>::max();
        record.resident = record.virtualSize = record.shared = std::numeric_limits<quint64>::max();
        record.arguments = QByteArray(100 * 1024, '\n') + 'x';
        const Process process = made(record);
        const QString broken(QChar::ReplacementCharacter);
        QCOMPARE(process.getName(), QString(broken + QLatin1Char(' ') + broken));
        QCOMPARE(process.getCpuLoad(), 0);
        QCOMPARE(process.getPPid(), std::numeric_limits<int>::max());
        QCOMPARE(shown(process, NiceColumn), QStringLiteral("-2147483648"));
        QCOMPARE(shown(process, UserColumn), QStringLiteral("4294967295"));
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("17179869184.00 GB"));
        QCOMPARE(shown(process, CpuTimeColumn), QStringLiteral("0:00:01"));
        QCOMPARE(shown(process, StartedColumn), QStringLiteral("Unknown"));
        QCOMPARE(shown(process, CommandLineColumn).size(), 1024);
    }

    void emptyRecord()
    {
        const Process process = made(ProcessRecord());
        QCOMPARE(process.pid(), -1);
        QCOMPARE(process.getName(), QString());
        QCOMPARE(shown(process, StateColumn), QStringLiteral("Other"));
        QCOMPARE(shown(process, MemoryColumn), QStringLiteral("0.00 B"));
        QCOMPARE(shown(process, CpuTimeColumn), QString());
        QCOMPARE(shown(process, StartedColumn), QStringLiteral("Unknown"));
        QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("[]"));
    }

    void onlyExpensiveReadsAreLeftOut_data()
    {
        const Rows<std::vector<bool>, unsigned> row("eager", "reads");
        std::vector<bool> eager;
        row("not set", eager, everything);
        eager.assign(ColumnCount, true);
        row("all", eager, everything);
        eager[CommandLineColumn] = false;
        row("all but the command line", eager, (everything & ~ReadArguments));
        eager.assign(100, false);
        // Name, user, state, CPU counter and start are read of every process, eager or not.
        row("none", eager, unsigned(ReadState | ReadTime));
        eager[MemoryColumn] = true;
        row("memory", eager, unsigned(ReadState | ReadTime | ReadMemory));
        eager[MemoryColumn] = false;
        eager[NiceColumn] = true;
        row("nice", eager, unsigned(ReadState | ReadTime | ReadUid));
        eager[NiceColumn] = false;
        eager[ParentPidColumn] = true;
        row("parent", eager, unsigned(ReadState | ReadTime | ReadParent));
        row("short list", std::vector<bool>{true, false}, everything);
    }

    void onlyExpensiveReadsAreLeftOut()
    {
        QFETCH(std::vector<bool>, eager);
        SnapshotCache cache;
        cache.setEagerColumns(eager);
        QTEST(cache.eagerReads(), "reads");
    }

    void memoryThatCellsAskedForIsNamed()
    {
        SnapshotCache cache;
        std::vector<ProcessRecord> records;
        for (const int pid : {2, 3, 5, 7}) {
            records.push_back(recordOf(pid));
            records.back().unread = pid == 7 ? 0 : ReadMemory | ReadArguments;
        }
        const std::map<int, Process> processes = cache.snapshot(records);
        QVERIFY(cache.askedForMemory().empty());
        processes.at(5).getParam(MemoryColumn)->displayValue();
        processes.at(2).getParam(VirtualMemoryColumn)->sortValue();
        processes.at(3).getParam(CommandLineColumn)->displayValue();
        processes.at(7).getParam(MemoryColumn)->displayValue();
        QCOMPARE(cache.askedForMemory(), (std::vector<int>{2, 5}));
        cache.snapshot(records);
        QVERIFY(cache.askedForMemory().empty());
    }

    void columnsThatBecomeOnDemandOrEager()
    {
        SnapshotCache cache;
        const Process first = givenBack(cache, {recordOf(42)}).at(42);
        ProcessRecord partly = recordOf(42);
        partly.unread = ReadMemory;
        const Process onDemand = givenBack(cache, {partly}).at(42);
        QVERIFY(onDemand.getParam(MemoryColumn) != first.getParam(MemoryColumn));
        QCOMPARE(onDemand.getParam(CommandLineColumn), first.getParam(CommandLineColumn));
        const Process again = cache.snapshot({recordOf(42)}).at(42);
        QCOMPARE(shown(again, MemoryColumn), QStringLiteral("1.00 KB"));
        QCOMPARE(shown(first, MemoryColumn), QStringLiteral("1.00 KB"));
    }
};

QTEST_GUILESS_MAIN(TestSnapshotCache)
#include "test_snapshotcache.moc"
