// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <glib.h>
#include <glibtop.h>
#include <glibtop/union.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

using Counters = QVector<guint64>;

/// The record that a libgtop call fills in over garbage.
template <typename Record, typename... Parameters, typename... Arguments>
Record answer(void (*call)(Record *, Parameters...), Arguments... arguments)
{
    Record record;
    std::memset(&record, 0xff, sizeof record);
    call(&record, arguments...);
    return record;
}

std::vector<pid_t> listedPids(gint64 which = GLIBTOP_KERN_PROC_ALL, gint64 arg = 0)
{
    glibtop_proclist list;
    pid_t *pids = glibtop_get_proclist(&list, which, arg);
    const std::vector<pid_t> result(pids, pids + list.number);
    g_free(pids);
    return result;
}

standin::Machine fullMachine()
{
    standin::Machine machine;
    machine.cpus = {{1, 2, 50}, {3, ~std::uint64_t(0)}};
    machine.memory = standin::Memory{100, 20, 3, 4};
    machine.mounts = {{"/dev/sd a", "/mnt/\xff%\n", "", 5, 4, 3, 2, 512, true, 7}, standin::Mount{}};
    machine.mountListFails = true;
    machine.interfaces = {{"eth0", 0x0100007f, 0xff, 11, 12, 13, true}};
    machine.interfaceListFails = true;
    const standin::Process process{-2, "a b", 1000, 16, -20, 1, 2, 3, 4, 5, 6, std::string("a\0b\0", 4),
                                   2,  true};
    machine.processes = {{42, process}, {43, standin::Process{}}};
    machine.mostOfOthers = 8;
    return machine;
}

bool isListed(qint64 pid)
{
    const std::vector<pid_t> pids = listedPids();
    return std::find(pids.begin(), pids.end(), pid) != pids.end();
}

} // namespace

class TestGtopStandin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { standin::machine() = {}; }
    void unsetDataComesFromTheRealMachine()
    {
        QVERIFY(answer(glibtop_get_mem).total > 1024 * 1024);
        QVERIFY(answer(glibtop_get_cpu).total > 0);
        QVERIFY(isListed(getpid()));
        QCOMPARE(answer(glibtop_get_proc_uid, getpid()).ppid, getppid());
    }

    void cpusGiveTheirCountersAndTheIndexOfTheLastOne()
    {
        standin::machine().cpus = {{10, 100}, {20, 300}};
        const glibtop_cpu cpu = answer(glibtop_get_cpu);
        QCOMPARE(glibtop_global_server->ncpu, 1);
        QCOMPARE(cpu.total, guint64(400));
        QCOMPARE((Counters{cpu.xcpu_idle[0], cpu.xcpu_idle[1]}), (Counters{10, 20}));
        QCOMPARE((Counters{cpu.xcpu_total[0], cpu.xcpu_total[1], cpu.xcpu_total[2]}),
                 (Counters{100, 300, 0}));

        standin::machine().cpus = std::vector<standin::Cpu>(GLIBTOP_NCPU + 5, {1, 2});
        const glibtop_cpu most = answer(glibtop_get_cpu); // those beyond libgtop's limit are dropped
        QCOMPARE(glibtop_global_server->ncpu, GLIBTOP_NCPU - 1);
        QCOMPARE(most.xcpu_total[GLIBTOP_NCPU - 1], guint64(2));
    }

    void cpusWithALoadAdvanceWithTheClock()
    {
        standin::machine().cpus = {{10, 100, 0}, {10, 100, 100}, {10, 100, 25}, {10, 100}};
        const glibtop_cpu before = answer(glibtop_get_cpu);
        QTest::qWait(200);
        const glibtop_cpu now = answer(glibtop_get_cpu);
        const auto passed = [&](int cpu) { return now.xcpu_total[cpu] - before.xcpu_total[cpu]; };
        const auto idle = [&](int cpu) { return now.xcpu_idle[cpu] - before.xcpu_idle[cpu]; };
        QVERIFY(passed(0) >= 20);
        QCOMPARE(idle(0), passed(0));
        QCOMPARE(idle(1), guint64(0));
        QVERIFY(qAbs(qint64(idle(2)) * 4 - qint64(passed(2)) * 3) < 4);
        QCOMPARE(passed(3), guint64(0));
    }

    void realCpuCountIsRestored()
    {
        answer(glibtop_get_cpu);
        const int real = glibtop_global_server->ncpu;
        standin::machine().cpus = std::vector<standin::Cpu>(static_cast<std::size_t>(real + 8));
        answer(glibtop_get_cpu);
        QCOMPARE(glibtop_global_server->ncpu, real + 7);
        standin::machine().cpus.reset();
        answer(glibtop_get_cpu);
        QCOMPARE(glibtop_global_server->ncpu, real);
    }

    void memoryIsInBytes()
    {
        standin::machine().memory = standin::Memory{300, 3, 1, 1};
        const glibtop_mem memory = answer(glibtop_get_mem);
        QCOMPARE((Counters{memory.total, memory.free, memory.buffer, memory.cached}),
                 (Counters{300, 3, 1, 1}));
    }

    void mountsKeepTheirOrderAndGiveTheirUsage()
    {
        standin::machine().mounts = {{"/dev/b", "/b", "ext4", 1000, 500, 400, 30, 4096, false, 0},
                                     {"/dev/a", "/a", "xfs", 1ULL << 32, 0, 0, 0, 512, false, 0}};
        glibtop_mountlist list;
        glibtop_mountentry *entries = glibtop_get_mountlist(&list, 1);
        QCOMPARE(list.number, guint64(2));
        QCOMPARE(entries[0].devname, "/dev/b");
        QCOMPARE(entries[0].mountdir, "/b");
        QCOMPARE(entries[0].type, "ext4");
        QCOMPARE(entries[1].devname, "/dev/a");
        const glibtop_fsusage usage = answer(glibtop_get_fsusage, entries[0].mountdir);
        QCOMPARE((Counters{usage.blocks, usage.bfree, usage.bavail, usage.files, usage.block_size}),
                 (Counters{1000, 500, 400, 30, 4096}));
        QCOMPARE(answer(glibtop_get_fsusage, entries[1].mountdir).blocks, guint64(1) << 32);
        g_free(entries);
    }

    void failingQueryGivesAZeroedRecord()
    {
        standin::machine().mounts = {{"/dev/a", "/a", "ext4", 1000, 500, 400, 30, 4096, true, 0}};
        standin::machine().interfaces = {{"lo", 1, 2, 5, 6, 7, true}};
        for (const char *directory : {"/a", "/unknown"}) {
            const glibtop_fsusage usage = answer(glibtop_get_fsusage, directory);
            QVERIFY2(usage.flags == 0 && usage.blocks == 0, directory);
        }
        for (const char *interface : {"lo", "unknown"}) {
            const glibtop_netload load = answer(glibtop_get_netload, interface);
            QVERIFY2(load.flags == 0 && load.bytes_in == 0, interface);
        }
    }

    void emptyMountListIsAnArrayAndAFailingOneIsNull()
    {
        standin::machine().mounts.emplace();
        for (const bool fails : {false, true}) {
            standin::machine().mountListFails = fails;
            glibtop_mountlist list;
            glibtop_mountentry *entries = glibtop_get_mountlist(&list, 1);
            QCOMPARE(!entries, fails);
            QCOMPARE(list.number, guint64(0));
            g_free(entries);
        }
    }

    void longNamesAreTruncated()
    {
        standin::machine().mounts = {
            {std::string(200, 'd'), std::string(200, 'm'), "ext4", 9, 0, 0, 0, 1, false, 0}};
        glibtop_mountlist list;
        glibtop_mountentry *entries = glibtop_get_mountlist(&list, 1);
        QCOMPARE(qstrlen(entries[0].devname), uint(GLIBTOP_MOUNTENTRY_LEN));
        QCOMPARE(answer(glibtop_get_fsusage, entries[0].mountdir).blocks, guint64(9));
        g_free(entries);
    }

    void interfacesKeepTheirOrderAndGiveTheirLoads()
    {
        standin::machine().interfaces = {{"lo", 0x0100007f, 0x000000ff, 5, 6, 7, false},
                                         {"et\xc3\xa9", 0, 0, 0, 0, 0, false}};
        glibtop_netlist list;
        char **names = glibtop_get_netlist(&list);
        QCOMPARE(list.number, guint32(2));
        QCOMPARE(names[0], "lo");
        QCOMPARE(names[1], "et\xc3\xa9");
        QVERIFY(!names[2]);
        g_strfreev(names);
        const glibtop_netload load = answer(glibtop_get_netload, "lo");
        QCOMPARE((Counters{load.address, load.subnet, load.bytes_in, load.bytes_out, load.errors_total}),
                 (Counters{0x0100007f, 0x000000ff, 5, 6, 7}));
    }

    void processesAreListedByPidAndByUser()
    {
        standin::Process other;
        other.uid = 1000;
        standin::machine().processes = {{7, other}, {1, {}}, {300, {}}};
        QCOMPARE(listedPids(), (std::vector<pid_t>{1, 7, 300}));
        QCOMPARE(listedPids(GLIBTOP_KERN_PROC_UID, 1000), std::vector<pid_t>{7});
        QCOMPARE(listedPids(GLIBTOP_KERN_PROC_RUID, 0), (std::vector<pid_t>{1, 300}));
    }

    void realProcessesOfOtherUsersAndOtherTestsCanBeLeftOut()
    {
        if (getuid() != 0) {
            QSKIP("only root can start a process of another user");
        }
        QProcess other;
        other.start("setpriv", {"--reuid", "65534", "sh", "-c", "echo; read line"});
        QVERIFY(other.waitForReadyRead());
        QVERIFY(isListed(other.processId()));
        standin::machine().mostOfOthers = 0;
        QVERIFY(!isListed(other.processId()));
        QVERIFY(isListed(getpid()));
        QCOMPARE(isListed(1), getppid() == 1);
        standin::machine().mostOfOthers = 1000000;
        QVERIFY(isListed(other.processId()));
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
    }

    void processGivesItsData()
    {
        const QByteArray arguments("a\0b\0", 4);
        const standin::Process process{-2, "a b", 1000, 16, -20, 1, 2, 3, 4, 5, 6, arguments.toStdString(),
                                       -1};
        standin::machine().processes = {{42, process}};
        const glibtop_proc_state state = answer(glibtop_get_proc_state, 42);
        QCOMPARE(state.cmd, "a b");
        QCOMPARE(state.state, 16u);
        const glibtop_proc_uid uid = answer(glibtop_get_proc_uid, 42);
        QCOMPARE((QVector<int>{uid.ppid, uid.uid, uid.nice}), (QVector<int>{-2, 1000, -20}));
        const glibtop_proc_time time = answer(glibtop_get_proc_time, 42);
        QCOMPARE((Counters{time.utime, time.stime, time.start_time}), (Counters{1, 2, 3}));
        const glibtop_proc_mem memory = answer(glibtop_get_proc_mem, 42);
        QCOMPARE((Counters{memory.vsize, memory.resident, memory.share}), (Counters{4, 5, 6}));
        glibtop_proc_args args;
        char *bytes = glibtop_get_proc_args(&args, 42, 0);
        QCOMPARE(QByteArray(bytes, int(args.size)), arguments);
        g_free(bytes);
        char **list = glibtop_get_proc_argv(&args, 42, 0);
        QCOMPARE(list[0], "a");
        QCOMPARE(list[1], "b");
        QVERIFY(!list[2]);
        g_strfreev(list);
    }

    void processCanExitWhileItIsRead()
    {
        standin::Process process;
        process.name = "brief";
        process.answersBeforeEnd = 1;
        standin::machine().processes = {{42, process}};
        for (int refresh = 0; refresh < 2; ++refresh) {
            QCOMPARE(listedPids(), std::vector<pid_t>{42});
            QCOMPARE(answer(glibtop_get_proc_state, 42).cmd, "brief");
            glibtop_proc_args args;
            QVERIFY(!glibtop_get_proc_args(&args, 42, 0));
            QCOMPARE(answer(glibtop_get_proc_state, 42).cmd, "");
        }
    }

    void callsAreCounted()
    {
        standin::machine().processes.emplace();
        standin::resetCalls();
        answer(glibtop_get_mem);
        answer(glibtop_get_mem);
        answer(glibtop_get_proc_mem, 42);
        QCOMPARE(standin::calls().memory, 2u);
        QCOMPARE(standin::calls().processData, 1u);
        QCOMPARE(standin::calls().mountList, 0u);
    }

    void textKeepsEveryField()
    {
        const std::string text = standin::toText(fullMachine());
        const standin::Machine read = standin::fromText(text);
        QCOMPARE(standin::toText(read), text);
        QCOMPARE(read.mounts->at(0).directory, std::string("/mnt/\xff%\n"));
        QCOMPARE(read.mounts->at(0).type, std::string());
        QVERIFY(read.mounts->at(0).fails);
        QVERIFY(read.mountListFails);
        QVERIFY(read.interfaceListFails);
        QVERIFY(read.interfaces->at(0).fails);
        QCOMPARE(read.cpus->at(0).load, 50);
        QCOMPARE(read.cpus->at(1).load, -1);
        QCOMPARE(read.cpus->at(1).total, ~std::uint64_t(0));
        QCOMPARE(read.processes->at(42).arguments, std::string("a\0b\0", 4));
        QCOMPARE(read.processes->at(42).nice, -20);
        QCOMPARE(read.processes->at(42).answersBeforeEnd, 2);
        QVERIFY(read.processes->at(42).memoryFails);
        QVERIFY(!read.processes->at(43).memoryFails);
        QCOMPARE(read.processes->at(43).answersBeforeEnd, -1);
        QCOMPARE(read.mostOfOthers, 8);
    }

    void emptyListIsNotUnset()
    {
        QCOMPARE(standin::toText({}), std::string());
        QVERIFY(!standin::fromText("# nothing\n\n").mounts);
        standin::Machine machine;
        machine.mounts.emplace();
        machine.interfaces.emplace();
        machine.processes.emplace();
        machine.cpus.emplace();
        const standin::Machine read = standin::fromText(standin::toText(machine));
        QVERIFY(read.mounts && read.mounts->empty());
        QVERIFY(read.interfaces && read.interfaces->empty());
        QVERIFY(read.processes && read.processes->empty());
        QVERIFY(read.cpus && read.cpus->empty());
        QVERIFY(!read.memory);
    }

    void badLineIsQuoted_data()
    {
        addTextRows("line", {"unknown kind", "cpu 5 too-few", "cpu 5 6 7 too-many", "cpu not-a-number 6 7",
                             "others 4294967296", "net cut-escape% 0 0 0 0 0 0"});
    }

    void badLineIsQuoted()
    {
        QFETCH(QString, line);
        QString message;
        try {
            standin::fromText(line.toStdString());
        } catch (const std::runtime_error &error) {
            message = error.what();
        }
        QVERIFY2(message.contains('"' + line + '"'), qPrintable(message));
    }

    void savingReplacesTheFileAtomically()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("machine");
        standin::save(fullMachine(), path.toStdString());
        QFile opened(path);
        QVERIFY(opened.open(QIODevice::ReadOnly));
        standin::save({}, path.toStdString());
        QCOMPARE(opened.readAll().toStdString(), standin::toText(fullMachine()));
        QCOMPARE(QFileInfo(path).size(), 0);
        const std::string unwritable = directory.filePath("no/such").toStdString();
        QVERIFY_EXCEPTION_THROWN(standin::save({}, unwritable), std::runtime_error);
    }
};

QTEST_GUILESS_MAIN(TestGtopStandin)
#include "test_gtopstandin.moc"
