// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/snapshotcache.h"

#include <QCoreApplication>
#include <QtTest>

#include <pwd.h>
#include <unistd.h>

#include <functional>
#include <limits>

using namespace gtop_wrappers;

namespace {

constexpr unsigned everything = ReadState | ReadUid | ReadTime | ReadMemory | ReadArguments;

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
    SnapshotCache table;
    return table.snapshot({record}).at(record.pid);
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

Q_DECLARE_METATYPE(std::function<void(ProcessRecord &)>)
Q_DECLARE_METATYPE(std::vector<bool>)

class TestProcessTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyColumnIsFilled();
    void numbersSortAsNumbers_data();
    void numbersSortAsNumbers();
    void cpuColumnIsACpuParam();
    void stateColumnCarriesLibgtopsCode_data();
    void stateColumnCarriesLibgtopsCode();
    void userIsNamedOrNumbered();
    void unchangedValuesAreTheSameObjects();
    void changedValuesAreMadeAnew_data();
    void changedValuesAreMadeAnew();
    void reusedPidShowsNothingOfTheProcessBefore();
    void vanishedProcessesAreForgotten();
    void processesShareUserStateAndSmallNumbers();
    void snapshotHasThePidsOfTheRecords();
    void extremeRecordsAreShown();
    void zeroedRecordIsShown();
    void onlyCostlyReadsAreLeftOut_data();
    void onlyCostlyReadsAreLeftOut();
    void everyColumnIsFilledWhateverWasLeftOut();
    void changeBetweenAtOnceAndLate();
};

void TestProcessTable::everyColumnIsFilled()
{
    const Process process = made(recordOf(42));
    QCOMPARE(process.params.size(), std::size_t(ColumnCount));
    QCOMPARE(process.pid(), 42);
    QCOMPARE(process.getName(), QStringLiteral("bash"));
    QCOMPARE(process.getPPid(), 1);
    QCOMPARE(process.getCpuLoad(), 100);
    QVERIFY(process.getParam(CpuColumn));
    QCOMPARE(shown(process, NameColumn), QStringLiteral("bash"));
    QCOMPARE(shown(process, PidColumn), QStringLiteral("42"));
    QCOMPARE(shown(process, UserColumn), QStringLiteral("root"));
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("1.00 KB"));
    QCOMPARE(shown(process, StateColumn), QStringLiteral("Sleeping"));
    QCOMPARE(shown(process, VirtualMemoryColumn), QStringLiteral("2.00 KB"));
    QCOMPARE(shown(process, SharedMemoryColumn), QStringLiteral("512.00 B"));
    QCOMPARE(shown(process, NiceColumn), QStringLiteral("0"));
    QCOMPARE(shown(process, ParentPidColumn), QStringLiteral("1"));
    QCOMPARE(shown(process, CpuTimeColumn), QStringLiteral("0:00:01"));
    QVERIFY(shown(process, StartedColumn).startsWith(QLatin1String("2023-11-1")));
    QCOMPARE(shown(process, CommandLineColumn), QStringLiteral("bash -l"));
    QCOMPARE(shown(process, ProcessorColumn), QStringLiteral("3"));
}

void TestProcessTable::numbersSortAsNumbers_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("CPU") << int(CpuColumn) << QVariant(0.0);
    QTest::newRow("PID") << int(PidColumn) << QVariant(42);
    QTest::newRow("memory") << int(MemoryColumn) << QVariant(quint64(1024));
    QTest::newRow("state") << int(StateColumn) << QVariant(2);
    QTest::newRow("virtual") << int(VirtualMemoryColumn) << QVariant(quint64(2048));
    QTest::newRow("shared") << int(SharedMemoryColumn) << QVariant(quint64(512));
    QTest::newRow("nice") << int(NiceColumn) << QVariant(0);
    QTest::newRow("parent") << int(ParentPidColumn) << QVariant(1);
    QTest::newRow("processor") << int(ProcessorColumn) << QVariant(3);
    QTest::newRow("CPU time") << int(CpuTimeColumn) << QVariant(quint64(100));
    QTest::newRow("started") << int(StartedColumn) << QVariant(quint64(1700000000));
}

void TestProcessTable::numbersSortAsNumbers()
{
    QFETCH(int, column);
    QFETCH(QVariant, value);
    const QVariant actual = sorted(made(recordOf(42)), ProcessColumn(column));
    QCOMPARE(actual, value);
    QCOMPARE(actual.type(), value.type());
}

void TestProcessTable::cpuColumnIsACpuParam()
{
    const Process process = made(recordOf(42));
    QVERIFY(dynamic_cast<CpuProcessParam *>(process.getParam(1).get()));
}

void TestProcessTable::stateColumnCarriesLibgtopsCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("running") << GLIBTOP_PROCESS_RUNNING << "Running";
    QTest::newRow("interruptible") << GLIBTOP_PROCESS_INTERRUPTIBLE << "Sleeping";
    QTest::newRow("uninterruptible") << GLIBTOP_PROCESS_UNINTERRUPTIBLE << "Uninterruptible";
    QTest::newRow("zombie") << GLIBTOP_PROCESS_ZOMBIE << "Zombie";
    QTest::newRow("stopped") << GLIBTOP_PROCESS_STOPPED << "Stopped";
    QTest::newRow("swapping") << GLIBTOP_PROCESS_SWAPPING << "Swapping";
    QTest::newRow("dead") << GLIBTOP_PROCESS_DEAD << "Dead";
    QTest::newRow("no code of libgtop's") << 0 << "Other";
    QTest::newRow("two at once") << 3 << "Other";
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << "Other";
    QTest::newRow("highest") << std::numeric_limits<int>::max() << "Other";
}

void TestProcessTable::stateColumnCarriesLibgtopsCode()
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

void TestProcessTable::userIsNamedOrNumbered()
{
    ProcessRecord record = recordOf(42);
    QCOMPARE(shown(made(record), UserColumn), QString::fromUtf8(getpwuid(0)->pw_name));
    record.user = std::numeric_limits<int>::max() - 1;
    QVERIFY(!getpwuid(static_cast<uid_t>(record.user)));
    QCOMPARE(shown(made(record), UserColumn), QStringLiteral("2147483646"));
    record.user = -2; // ids are unsigned, libgtop's fields are not
    QCOMPARE(shown(made(record), UserColumn), QStringLiteral("4294967294"));
}

void TestProcessTable::unchangedValuesAreTheSameObjects()
{
    SnapshotCache table;
    const Process before = table.snapshot({recordOf(42)}).at(42);
    const Process now = table.snapshot({recordOf(42)}).at(42);
    for (unsigned long i = 0; i < ColumnCount; ++i) {
        // The process model writes into the CPU value, so that one must not be shared between snapshots.
        QCOMPARE(now.getParam(i) == before.getParam(i), i != CpuColumn);
    }
}

void TestProcessTable::changedValuesAreMadeAnew_data()
{
    using Change = std::function<void(ProcessRecord &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QVector<int>>("columns");
    const auto row = [](const char *name, const Change &change, const QVector<int> &changed) {
        QTest::newRow(name) << change << changed;
    };
    row("name", [](ProcessRecord &r) { r.name = "sh"; }, {NameColumn, CommandLineColumn});
    row("user", [](ProcessRecord &r) { r.user = 65534; }, {UserColumn});
    row("resident", [](ProcessRecord &r) { r.resident = 1; }, {MemoryColumn});
    row("state", [](ProcessRecord &r) { r.state = 16; }, {StateColumn});
    row("virtual", [](ProcessRecord &r) { r.virtualSize = 1; }, {VirtualMemoryColumn});
    row("shared", [](ProcessRecord &r) { r.shared = 1; }, {SharedMemoryColumn});
    row("nice", [](ProcessRecord &r) { r.nice = 19; }, {NiceColumn});
    row("parent", [](ProcessRecord &r) { r.parent = 2; }, {ParentPidColumn});
    row("CPU time", [](ProcessRecord &r) { r.cpuTime = 101; }, {CpuTimeColumn});
    row("start", [](ProcessRecord &r) { r.started = 1700000001; }, {StartedColumn});
    row("processor", [](ProcessRecord &r) { r.processor = 1; }, {ProcessorColumn});
    row("arguments", [](ProcessRecord &r) { r.arguments = "x"; }, {CommandLineColumn});
}

void TestProcessTable::changedValuesAreMadeAnew()
{
    QFETCH(std::function<void(ProcessRecord &)>, change);
    QFETCH(QVector<int>, columns);
    SnapshotCache table;
    const Process before = table.snapshot({recordOf(42)}).at(42);
    ProcessRecord record = recordOf(42);
    change(record);
    const Process now = table.snapshot({record}).at(42);
    const Process alone = made(record);
    for (unsigned long i = 0; i < ColumnCount; ++i) {
        const bool changed = i == CpuColumn || columns.contains(int(i));
        QCOMPARE(now.getParam(i) != before.getParam(i), changed);
        QCOMPARE(now.getParam(i)->displayValue(), alone.getParam(i)->displayValue());
        QCOMPARE(now.getParam(i)->sortValue(), alone.getParam(i)->sortValue());
    }
}

void TestProcessTable::reusedPidShowsNothingOfTheProcessBefore()
{
    SnapshotCache table;
    table.snapshot({recordOf(42)});
    ProcessRecord other = recordOf(42);
    other.name = "sh";
    other.cpuTime = 1;
    other.started += 5;
    other.arguments.clear();
    const Process now = table.snapshot({other}).at(42);
    QCOMPARE(now.getName(), QStringLiteral("sh"));
    QCOMPARE(now.getCpuLoad(), 1);
    QCOMPARE(sorted(now, StartedColumn), QVariant(quint64(1700000005)));
    QCOMPARE(shown(now, CommandLineColumn), QStringLiteral("[sh]"));
}

void TestProcessTable::vanishedProcessesAreForgotten()
{
    SnapshotCache table;
    std::vector<std::tr1::weak_ptr<IProcessParam>> values;
    {
        const auto snapshot = table.snapshot({recordOf(42), recordOf(43)});
        for (const ParamPtr &param : snapshot.at(42).params) {
            values.emplace_back(param);
        }
    }
    ProcessRecord left = recordOf(43); // with none of the values that processes share
    left.user = 65534;
    left.state = 16;
    left.parent = 20;
    left.nice = 10;
    left.processor = 30;
    QCOMPARE(table.snapshot({left}).size(), std::size_t(1));
    for (const auto &value : values) {
        QVERIFY(value.expired());
    }
}

void TestProcessTable::processesShareUserStateAndSmallNumbers()
{
    SnapshotCache table;
    const auto snapshot = table.snapshot({recordOf(42), recordOf(43)});
    for (const ProcessColumn column :
         {UserColumn, StateColumn, NiceColumn, ParentPidColumn, ProcessorColumn}) {
        QCOMPARE(snapshot.at(42).getParam(column).get(), snapshot.at(43).getParam(column).get());
    }
}

void TestProcessTable::snapshotHasThePidsOfTheRecords()
{
    SnapshotCache table;
    const auto pids = [&table](std::vector<ProcessRecord> records) {
        QVector<int> keys;
        for (const auto &entry : table.snapshot(std::move(records))) {
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

void TestProcessTable::extremeRecordsAreShown()
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
    QCOMPARE(process.getCpuLoad(), -1);
    QCOMPARE(process.getPPid(), std::numeric_limits<int>::max());
    QCOMPARE(shown(process, NiceColumn), QStringLiteral("-2147483648"));
    QCOMPARE(shown(process, UserColumn), QStringLiteral("4294967295"));
    QCOMPARE(shown(process, MemoryColumn), QStringLiteral("17179869184.00 GB"));
    QCOMPARE(shown(process, CpuTimeColumn), QStringLiteral("0:00:01"));
    QCOMPARE(shown(process, StartedColumn), QStringLiteral("Unknown"));
    QCOMPARE(shown(process, CommandLineColumn).size(), 1024);
}

void TestProcessTable::zeroedRecordIsShown()
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

void TestProcessTable::onlyCostlyReadsAreLeftOut_data()
{
    QTest::addColumn<std::vector<bool>>("wanted");
    QTest::addColumn<unsigned>("reads");
    std::vector<bool> wanted;
    QTest::newRow("nothing said") << wanted << everything;
    wanted.assign(ColumnCount, true);
    QTest::newRow("all") << wanted << everything;
    wanted[CommandLineColumn] = false;
    QTest::newRow("all but the command line") << wanted << (everything & ~ReadArguments);
    wanted.assign(100, false);
    // Name, user, state, CPU counter and start are read of every process, wanted or not.
    QTest::newRow("none") << wanted << unsigned(ReadState | ReadTime);
    wanted[MemoryColumn] = true;
    QTest::newRow("memory") << wanted << unsigned(ReadState | ReadTime | ReadMemory);
    wanted[MemoryColumn] = false;
    wanted[NiceColumn] = true;
    QTest::newRow("nice") << wanted << unsigned(ReadState | ReadTime | ReadUid);
    QTest::newRow("short list") << std::vector<bool>{true, false} << everything;
}

void TestProcessTable::onlyCostlyReadsAreLeftOut()
{
    QFETCH(std::vector<bool>, wanted);
    SnapshotCache table;
    table.setEagerColumns(wanted);
    QTEST(table.eagerReads(), "reads");
}

void TestProcessTable::everyColumnIsFilledWhateverWasLeftOut()
{
    SnapshotCache table;
    ProcessRecord partly = recordOf(42);
    partly.unread = ReadMemory | ReadArguments | ReadUid;
    const Process process = table.snapshot({partly}).at(42);
    for (unsigned long i = 0; i < ColumnCount; ++i) {
        QVERIFY(process.getParam(i));
    }
    QCOMPARE(process.getName(), QStringLiteral("bash"));
    QCOMPARE(process.getPPid(), 1);
    QCOMPARE(process.getCpuLoad(), 100);
}

void TestProcessTable::changeBetweenAtOnceAndLate()
{
    SnapshotCache table;
    const Process first = table.snapshot({recordOf(42)}).at(42);
    ProcessRecord partly = recordOf(42);
    partly.unread = ReadMemory;
    const Process late = table.snapshot({partly}).at(42);
    QVERIFY(late.getParam(MemoryColumn) != first.getParam(MemoryColumn));
    QCOMPARE(late.getParam(CommandLineColumn), first.getParam(CommandLineColumn));
    const Process again = table.snapshot({recordOf(42)}).at(42);
    QCOMPARE(shown(again, MemoryColumn), QStringLiteral("1.00 KB"));
    QCOMPARE(shown(first, MemoryColumn), QStringLiteral("1.00 KB"));
}

QTEST_GUILESS_MAIN(TestProcessTable)
#include "test_processtable.moc"
