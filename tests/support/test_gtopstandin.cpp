// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"

#include <QProcess>
#include <QtTest>

#include <glib.h>
#include <glibtop.h>
#include <glibtop/cpu.h>
#include <glibtop/fsusage.h>
#include <glibtop/mem.h>
#include <glibtop/mountlist.h>
#include <glibtop/netlist.h>
#include <glibtop/netload.h>
#include <glibtop/procargs.h>
#include <glibtop/proclist.h>
#include <glibtop/procmem.h>
#include <glibtop/procstate.h>
#include <glibtop/proctime.h>
#include <glibtop/procuid.h>
#include <unistd.h>

class TestGtopStandin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsNotSetComesFromTheRealMachine();
    void cpusGiveTheirCountersAndTheIndexOfTheLastOne();
    void moreCpusThanLibgtopHoldsAreCut();
    void theRealCpuCountComesBack();
    void memoryIsGivenInBytes();
    void mountsComeInOrderWithTheirUsage();
    void aFailingUsageQueryGivesAZeroedRecord();
    void aFailingMountListIsNull();
    void anEmptyMountListIsNoNullArray();
    void namesLongerThanTheFieldAreCut();
    void interfacesComeInOrderWithTheirLoads();
    void anUnknownInterfaceGivesAZeroedRecord();
    void processesAreListedByPidAndByUser();
    void realProcessesOfOthersAreLeftOut();
    void aProcessGivesItsData();
    void aProcessCanEndWhileItIsRead();
    void callsAreCounted();
};

namespace {

std::vector<pid_t> listedPids(gint64 which = GLIBTOP_KERN_PROC_ALL, gint64 arg = 0)
{
    glibtop_proclist list;
    pid_t *const pids = glibtop_get_proclist(&list, which, arg);
    const std::vector<pid_t> result(pids, pids + list.number);
    g_free(pids);
    return result;
}

} // namespace

void TestGtopStandin::init()
{
    standin::machine() = {};
}

void TestGtopStandin::whatIsNotSetComesFromTheRealMachine()
{
    glibtop_mem memory;
    glibtop_get_mem(&memory);
    QVERIFY(memory.total > 1024 * 1024);
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    QVERIFY(cpu.total > 0);
    const std::vector<pid_t> pids = listedPids();
    QVERIFY(std::find(pids.begin(), pids.end(), getpid()) != pids.end());
    glibtop_proc_uid uid;
    glibtop_get_proc_uid(&uid, getpid());
    QCOMPARE(uid.ppid, getppid());
}

void TestGtopStandin::cpusGiveTheirCountersAndTheIndexOfTheLastOne()
{
    standin::machine().cpus = {{10, 100}, {20, 300}};
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    QCOMPARE(glibtop_global_server->ncpu, 1);
    QCOMPARE(cpu.total, guint64(400));
    QCOMPARE(cpu.xcpu_idle[0], guint64(10));
    QCOMPARE(cpu.xcpu_total[0], guint64(100));
    QCOMPARE(cpu.xcpu_idle[1], guint64(20));
    QCOMPARE(cpu.xcpu_total[1], guint64(300));
    QCOMPARE(cpu.xcpu_total[2], guint64(0));
}

void TestGtopStandin::moreCpusThanLibgtopHoldsAreCut()
{
    standin::machine().cpus = std::vector<standin::Cpu>(GLIBTOP_NCPU + 5, {1, 2});
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    QCOMPARE(glibtop_global_server->ncpu, GLIBTOP_NCPU - 1);
    QCOMPARE(cpu.xcpu_total[GLIBTOP_NCPU - 1], guint64(2));
}

void TestGtopStandin::theRealCpuCountComesBack()
{
    glibtop_cpu cpu;
    glibtop_get_cpu(&cpu);
    const int real = glibtop_global_server->ncpu;
    standin::machine().cpus = std::vector<standin::Cpu>(static_cast<std::size_t>(real + 8));
    glibtop_get_cpu(&cpu);
    QCOMPARE(glibtop_global_server->ncpu, real + 7);
    standin::machine().cpus.reset();
    glibtop_get_cpu(&cpu);
    QCOMPARE(glibtop_global_server->ncpu, real);
}

void TestGtopStandin::memoryIsGivenInBytes()
{
    standin::machine().memory = standin::Memory{300, 3, 1, 1};
    glibtop_mem memory;
    glibtop_get_mem(&memory);
    QCOMPARE(memory.total, guint64(300));
    QCOMPARE(memory.free, guint64(3));
    QCOMPARE(memory.buffer, guint64(1));
    QCOMPARE(memory.cached, guint64(1));
}

void TestGtopStandin::mountsComeInOrderWithTheirUsage()
{
    standin::machine().mounts = {{"/dev/b", "/b", "ext4", 1000, 500, 400, 30, 4096, false, 0},
                                 {"/dev/a", "/a", "xfs", 1ULL << 32, 0, 0, 0, 512, false, 0}};
    glibtop_mountlist list;
    glibtop_mountentry *const entries = glibtop_get_mountlist(&list, 1);
    QCOMPARE(list.number, guint64(2));
    QCOMPARE(entries[0].devname, "/dev/b");
    QCOMPARE(entries[0].mountdir, "/b");
    QCOMPARE(entries[0].type, "ext4");
    QCOMPARE(entries[1].devname, "/dev/a");
    glibtop_fsusage usage;
    glibtop_get_fsusage(&usage, entries[0].mountdir);
    QCOMPARE(usage.blocks, guint64(1000));
    QCOMPARE(usage.bfree, guint64(500));
    QCOMPARE(usage.bavail, guint64(400));
    QCOMPARE(usage.files, guint64(30));
    QCOMPARE(usage.block_size, guint32(4096));
    glibtop_get_fsusage(&usage, entries[1].mountdir);
    QCOMPARE(usage.blocks, guint64(1) << 32);
    g_free(entries);
}

void TestGtopStandin::aFailingUsageQueryGivesAZeroedRecord()
{
    standin::Mount mount{"/dev/a", "/a", "ext4", 1000, 500, 400, 30, 4096, true, 0};
    standin::machine().mounts = {mount};
    glibtop_fsusage usage;
    glibtop_get_fsusage(&usage, "/a");
    QCOMPARE(usage.flags, guint64(0));
    QCOMPARE(usage.blocks, guint64(0));
    glibtop_get_fsusage(&usage, "/gone");
    QCOMPARE(usage.blocks, guint64(0));
}

void TestGtopStandin::aFailingMountListIsNull()
{
    standin::machine().mounts.emplace();
    standin::machine().mountListFails = true;
    glibtop_mountlist list;
    QVERIFY(!glibtop_get_mountlist(&list, 1));
    QCOMPARE(list.number, guint64(0));
}

void TestGtopStandin::anEmptyMountListIsNoNullArray()
{
    standin::machine().mounts.emplace();
    glibtop_mountlist list;
    glibtop_mountentry *const entries = glibtop_get_mountlist(&list, 1);
    QVERIFY(entries);
    QCOMPARE(list.number, guint64(0));
    g_free(entries);
}

void TestGtopStandin::namesLongerThanTheFieldAreCut()
{
    standin::machine().mounts = {
        {std::string(200, 'd'), std::string(200, 'm'), "ext4", 9, 0, 0, 0, 1, false, 0}};
    glibtop_mountlist list;
    glibtop_mountentry *const entries = glibtop_get_mountlist(&list, 1);
    QCOMPARE(qstrlen(entries[0].devname), uint(GLIBTOP_MOUNTENTRY_LEN));
    glibtop_fsusage usage;
    glibtop_get_fsusage(&usage, entries[0].mountdir);
    QCOMPARE(usage.blocks, guint64(9));
    g_free(entries);
}

void TestGtopStandin::interfacesComeInOrderWithTheirLoads()
{
    standin::machine().interfaces = {{"lo", 0x0100007f, 0x000000ff, 5, 6, 7, false},
                                     {"et\xc3\xa9", 0, 0, 0, 0, 0, false}};
    glibtop_netlist list;
    char **const names = glibtop_get_netlist(&list);
    QCOMPARE(list.number, guint32(2));
    QCOMPARE(names[0], "lo");
    QCOMPARE(names[1], "et\xc3\xa9");
    QVERIFY(!names[2]);
    g_strfreev(names);
    glibtop_netload load;
    glibtop_get_netload(&load, "lo");
    QCOMPARE(load.address, guint32(0x0100007f));
    QCOMPARE(load.subnet, guint32(0x000000ff));
    QCOMPARE(load.bytes_in, guint64(5));
    QCOMPARE(load.bytes_out, guint64(6));
    QCOMPARE(load.errors_total, guint64(7));
}

void TestGtopStandin::anUnknownInterfaceGivesAZeroedRecord()
{
    standin::machine().interfaces = {{"lo", 1, 2, 5, 6, 7, true}};
    glibtop_netload load;
    glibtop_get_netload(&load, "lo");
    QCOMPARE(load.bytes_in, guint64(0));
    QCOMPARE(load.flags, guint64(0));
    glibtop_get_netload(&load, "eth7");
    QCOMPARE(load.bytes_in, guint64(0));
}

void TestGtopStandin::processesAreListedByPidAndByUser()
{
    standin::Process other;
    other.uid = 1000;
    standin::machine().processes = {{7, other}, {1, {}}, {300, {}}};
    QCOMPARE(listedPids(), (std::vector<pid_t>{1, 7, 300}));
    QCOMPARE(listedPids(GLIBTOP_KERN_PROC_UID, 1000), std::vector<pid_t>{7});
    QCOMPARE(listedPids(GLIBTOP_KERN_PROC_RUID, 0), (std::vector<pid_t>{1, 300}));
}

// A process of another user is needed, and only the superuser can make one.
void TestGtopStandin::realProcessesOfOthersAreLeftOut()
{
    if (getuid() != 0)
        QSKIP("needs to be root");
    QProcess other;
    other.start(QStringLiteral("setpriv"),
                {QStringLiteral("--reuid"), QStringLiteral("65534"), QStringLiteral("sh"),
                 QStringLiteral("-c"), QStringLiteral("echo; read line")});
    QVERIFY(other.waitForReadyRead());
    const auto lists = [](qint64 pid) {
        const std::vector<pid_t> pids = listedPids();
        return std::find(pids.begin(), pids.end(), pid) != pids.end();
    };
    QVERIFY(lists(other.processId()));
    standin::machine().mostOfOthers = 0;
    QVERIFY(!lists(other.processId()));
    QVERIFY(lists(getpid()));
    standin::machine().mostOfOthers = 1000000;
    QVERIFY(lists(other.processId()));
    other.closeWriteChannel();
    QVERIFY(other.waitForFinished());
}

void TestGtopStandin::aProcessGivesItsData()
{
    standin::Process process;
    process.parent = -2;
    process.name = "a b";
    process.uid = 1000;
    process.state = 16;
    process.nice = -20;
    process.userTime = 1;
    process.systemTime = 2;
    process.startTime = 3;
    process.virtualSize = 4;
    process.resident = 5;
    process.shared = 6;
    process.arguments = std::string("a\0b\0", 4);
    standin::machine().processes = {{42, process}};
    glibtop_proc_state state;
    glibtop_get_proc_state(&state, 42);
    QCOMPARE(state.cmd, "a b");
    QCOMPARE(state.state, 16u);
    glibtop_proc_uid uid;
    glibtop_get_proc_uid(&uid, 42);
    QCOMPARE(uid.ppid, -2);
    QCOMPARE(uid.uid, 1000);
    QCOMPARE(uid.nice, -20);
    glibtop_proc_time time;
    glibtop_get_proc_time(&time, 42);
    QCOMPARE(time.utime, guint64(1));
    QCOMPARE(time.stime, guint64(2));
    QCOMPARE(time.start_time, guint64(3));
    glibtop_proc_mem memory;
    glibtop_get_proc_mem(&memory, 42);
    QCOMPARE(memory.vsize, guint64(4));
    QCOMPARE(memory.resident, guint64(5));
    QCOMPARE(memory.share, guint64(6));
    glibtop_proc_args args;
    char *const bytes = glibtop_get_proc_args(&args, 42, 0);
    QCOMPARE(QByteArray(bytes, int(args.size)), QByteArray("a\0b\0", 4));
    g_free(bytes);
    char **const list = glibtop_get_proc_argv(&args, 42, 0);
    QCOMPARE(list[0], "a");
    QCOMPARE(list[1], "b");
    QVERIFY(!list[2]);
    g_strfreev(list);
}

void TestGtopStandin::aProcessCanEndWhileItIsRead()
{
    standin::Process process;
    process.name = "brief";
    process.answersBeforeEnd = 1;
    standin::machine().processes = {{42, process}};
    for (int refresh = 0; refresh < 2; ++refresh) {
        QCOMPARE(listedPids(), std::vector<pid_t>{42});
        glibtop_proc_state state;
        glibtop_get_proc_state(&state, 42);
        QCOMPARE(state.cmd, "brief");
        glibtop_proc_args args;
        QVERIFY(!glibtop_get_proc_args(&args, 42, 0));
        glibtop_get_proc_state(&state, 42);
        QCOMPARE(state.cmd, "");
    }
}

void TestGtopStandin::callsAreCounted()
{
    standin::machine().processes.emplace();
    standin::resetCalls();
    glibtop_mem memory;
    glibtop_get_mem(&memory);
    glibtop_get_mem(&memory);
    glibtop_proc_mem processMemory;
    glibtop_get_proc_mem(&processMemory, 42);
    QCOMPARE(standin::calls().memory, 2u);
    QCOMPARE(standin::calls().processData, 1u);
    QCOMPARE(standin::calls().mountList, 0u);
}

QTEST_GUILESS_MAIN(TestGtopStandin)
#include "test_gtopstandin.moc"
