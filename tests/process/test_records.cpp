// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/record.h"

#include "../support/rows.h"

#include <QtTest>

#include <glibtop.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

using namespace gtop_wrappers;

namespace {

constexpr unsigned everything = ReadEverything;
constexpr guint64 allFlags = ~guint64(0);
constexpr guint64 highest = std::numeric_limits<guint64>::max();

RawProcess rawProcess()
{
    RawProcess raw = {};
    raw.state.flags = raw.uid.flags = raw.time.flags = raw.memory.flags = raw.argumentsInfo.flags = allFlags;
    std::strcpy(raw.state.cmd, "bash");
    raw.state.state = GLIBTOP_PROCESS_STOPPED;
    raw.state.uid = 1000;
    raw.uid.uid = 1001;
    raw.uid.euid = 1002;
    raw.uid.ppid = 7;
    raw.uid.nice = -5;
    raw.time.utime = 30;
    raw.time.stime = 12;
    raw.time.cutime = 1000;
    raw.time.cstime = 1000;
    raw.time.frequency = 100;
    raw.time.start_time = 1700000000;
    raw.memory.size = 3;
    raw.memory.resident = 2;
    raw.memory.share = 1;
    raw.arguments = QByteArray("bash\0-l\0", 8);
    return raw;
}

ProcessRecord recordFrom(const RawProcess &raw)
{
    ProcessRecord record;
    return toRecord(42, everything, raw, record) ? record : ProcessRecord();
}

int cpusWhileTimesAreRead = -1;

} // namespace

/// Replaces libgtop's, and calls it.
extern "C" void glibtop_get_proc_time(glibtop_proc_time *times, pid_t pid)
{
    cpusWhileTimesAreRead = glibtop_global_server->ncpu;
    glibtop_get_proc_time_l(glibtop_global_server, times, pid);
}

class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsComeFromLibgtop()
    {
        const ProcessRecord record = recordFrom(rawProcess());
        QCOMPARE(record.pid, 42);
        QCOMPARE(record.name, QByteArray("bash"));
        QCOMPARE(record.state, 16);
        QCOMPARE(record.user, 1000);
        QCOMPARE(record.parent, 7);
        QCOMPARE(record.nice, -5);
        QCOMPARE(record.cpuTime, quint64(42)); // without its children's
        QCOMPARE(record.frequency, quint64(100));
        QCOMPARE(record.started, quint64(1700000000));
        QCOMPARE(record.virtualSize, quint64(3));
        QCOMPARE(record.resident, quint64(2));
        QCOMPARE(record.shared, quint64(1));
        QCOMPARE(record.arguments, QByteArray("bash\0-l\0", 8));
        QCOMPARE(record.unread, 0U);
    }

    void onlyTheReadsThatWereMadeCount()
    {
        ProcessRecord record = recordFrom(rawProcess());
        RawProcess raw = rawProcess();
        raw.memory = {};
        raw.argumentsInfo = {};
        QVERIFY(toRecord(43, ReadState | ReadUid | ReadTime, raw, record));
        QCOMPARE(record.pid, 43);
        QCOMPARE(record.resident, quint64(0)); // nothing is left of the process before
        QCOMPARE(record.arguments, QByteArray());
        QCOMPARE(record.unread, unsigned(ReadMemory | ReadArguments));
        QVERIFY(toRecord(44, 0, raw, record));
        QCOMPARE(record.name, QByteArray());
        QCOMPARE(record.unread, everything);
    }

    void processThatExitedIsNoRecord_data()
    {
        const Rows<unsigned> row("failed");
        row("before the state", ReadState);
        row("before the user", ReadUid);
        row("before the times", ReadTime);
        row("before the memory", ReadMemory);
        row("before the arguments", ReadArguments);
        row("before all", everything);
    }

    void processThatExitedIsNoRecord()
    {
        QFETCH(unsigned, failed);
        const int pid = fork();
        if (pid == 0) {
            _exit(0);
        }
        waitpid(pid, nullptr, 0); // not reused within the test
        RawProcess raw = rawProcess();
        ProcessRecord record;
        QVERIFY(toRecord(pid, everything, raw, record));
        readRaw(pid, failed, raw);
        QVERIFY(!toRecord(pid, everything, raw, record));
        QVERIFY(!toRecord(pid, failed, raw, record));
    }

    void extremes()
    {
        RawProcess raw = rawProcess();
        std::fill(std::begin(raw.state.cmd), std::end(raw.state.cmd), 'x');
        raw.state.state = std::numeric_limits<unsigned>::max();
        raw.state.uid = -1;
        raw.state.last_processor = std::numeric_limits<int>::max();
        raw.uid.ppid = std::numeric_limits<gint32>::max();
        raw.uid.nice = std::numeric_limits<gint32>::min();
        raw.time.utime = raw.time.stime = raw.time.start_time = raw.time.frequency = highest;
        raw.memory.size = raw.memory.resident = raw.memory.share = highest;
        const ProcessRecord record = recordFrom(raw);
        QCOMPARE(record.name, QByteArray(sizeof raw.state.cmd, 'x')); // no terminator
        QCOMPARE(record.state, -1);
        QCOMPARE(record.user, -1);
        QCOMPARE(record.parent, std::numeric_limits<int>::max());
        QCOMPARE(record.nice, std::numeric_limits<int>::min());
        QCOMPARE(record.cpuTime, quint64(highest - 1)); // wrapped, as unsigned counters do
        QCOMPARE(record.resident, quint64(highest));
        QCOMPARE(record.processor, std::numeric_limits<int>::max());
        raw.state.last_processor = -7;
        QCOMPARE(recordFrom(raw).processor, 0);
        raw.state.last_processor = 0;
        QCOMPARE(recordFrom(raw).processor, 1);
    }

    void pidsAreAscendingUniqueAndPositive()
    {
        const std::vector<int> pids = readPids();
        QVERIFY(std::adjacent_find(pids.begin(), pids.end(), std::greater_equal<int>()) == pids.end());
        QVERIFY(pids.front() > 0);
        QVERIFY(std::binary_search(pids.begin(), pids.end(), getpid()));
    }

    void onlyTheGivenUserIsRead()
    {
        const std::vector<ProcessRecord> mine = readProcesses(getuid(), ReadState);
        QVERIFY(
            std::any_of(mine.begin(), mine.end(), [](const ProcessRecord &r) { return r.pid == getpid(); }));
        // The highest id means "none" to the system, so nobody has it.
        QVERIFY(readProcesses(std::numeric_limits<uid_t>::max(), ReadState).empty());
        QVERIFY(!readProcesses(std::nullopt, ReadState).empty());
    }

    void numberOfArgumentBytesIsBounded()
    {
        const int pid = fork();
        if (pid == 0) {
            const std::string title(102400, 'x');
            execlp("sleep", title.c_str(), "1000", nullptr);
            _exit(1);
        }
        RawProcess raw;
        const auto execDone = [&raw, pid] {
            readRaw(pid, ReadArguments, raw);
            return raw.arguments.startsWith("xxx");
        };
        QTRY_VERIFY_WITH_TIMEOUT(execDone(), 10000);
        QVERIFY(raw.arguments.size() < 10000);
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }

    void libgtopDoesNotLookForTimesPerCpu()
    {
        auto *server = glibtop_init();
        const int lastCpu = std::exchange(server->ncpu, 7);
        RawProcess raw;
        readRaw(getpid(), ReadTime, raw);
        QCOMPARE(cpusWhileTimesAreRead, 0);
        QCOMPARE(server->ncpu, 7);
        QVERIFY(raw.time.start_time != 0);
        server->ncpu = lastCpu;
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "test_records.moc"
