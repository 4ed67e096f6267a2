// SPDX-License-Identifier: GPL-3.0-or-later
// Real processes that are old enough for the shortcuts of reading, which are taken as the program takes them:
// whatever such a process changes, the next snapshot shows it.
#include "scriptedchild.h"

#include <QtTest>

#include <glibtop/procstate.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

using namespace gtop_wrappers;

namespace {

constexpr int deadline = 20000; // milliseconds; only a failure takes that long

char *programTitle = nullptr; // where the arguments of this program begin

/// Until the second in which the process started is certainly over: a later one has started.
void growOld(int pid)
{
    bool isOld = false;
    while (!isOld) {
        const ScriptedChild younger([](const Gate &) {});
        isOld = sorted(younger.pid(), StartedColumn).toULongLong() > sorted(pid, StartedColumn).toULongLong();
    }
    shown(pid, NameColumn);
    shown(pid, NameColumn); // now a snapshot has taken over what it could from the one before
}

/// A process and its child; the child's pid comes through a pipe.
class Family
{
public:
    Family()
        : ends{-1, -1}, parent([this](const Gate &) {
              const int pid = fork();
              if (pid == 0) {
                  alarm(60); // the test ends it earlier, unless it fails
                  for (;;) {
                      pause();
                  }
              }
              if (write(ends[1], &pid, sizeof pid) != sizeof pid) {
                  _exit(1);
              }
          })
    {
        if (read(ends[0], &childPid, sizeof childPid) != sizeof childPid) {
            qFatal("the parent is gone");
        }
    }
    ~Family()
    {
        kill(childPid, SIGKILL);
        waitpid(childPid, nullptr, WNOHANG);
        close(ends[0]);
        close(ends[1]);
    }
    Q_DISABLE_COPY(Family)

    int child() const { return childPid; }

private:
    struct Pipe
    {
        explicit Pipe(int *into)
        {
            if (pipe(into) != 0) {
                qFatal("no pipe");
            }
        }
    };
    int ends[2];
    Pipe opened{ends};

public:
    ScriptedChild parent;

private:
    int childPid = 0;
};

} // namespace

class TestLateProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exec();
    void rewrittenTitle();
    void reniced();
    void grownMemory();
    void changedUser();
    void stopped();
    void parentThatEnded();
    void parentThatIsAZombie();
    void orphanOfASubreaper();
    void pidTakenByAnotherProcess();
};

void TestLateProcesses::init()
{
    ProcessFiller::instance()->setEagerColumns(std::vector<bool>(ColumnCount, false));
}

void TestLateProcesses::exec()
{
    const QByteArray sleeper = QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("sleep")));
    const ScriptedChild child([&sleeper](const Gate &gate) {
        prctl(PR_SET_NAME, "before exec");
        gate.wait();
        execl(sleeper.constData(), "sleeping for long", "1000", nullptr);
        _exit(1);
    });
    growOld(child.pid());
    QCOMPARE(shown(child.pid(), NameColumn), QStringLiteral("before exec"));
    QVERIFY(shown(child.pid(), CommandLineColumn).contains(QLatin1String("test_lateprocesses")));
    child.go();
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("sleep"), deadline);
    QCOMPARE(shown(child.pid(), CommandLineColumn), QStringLiteral("sleeping for long 1000"));
}

void TestLateProcesses::rewrittenTitle()
{
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        std::memset(programTitle, 'Z', std::strlen(programTitle));
    });
    growOld(child.pid());
    const QString title = QString::fromLocal8Bit(programTitle);
    QVERIFY(shown(child.pid(), CommandLineColumn).startsWith(title));
    child.go();
    const QString rewritten(title.size(), QLatin1Char('Z'));
    QTRY_VERIFY_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn).startsWith(rewritten), deadline);
}

void TestLateProcesses::reniced()
{
    const ScriptedChild child([](const Gate &) {});
    growOld(child.pid());
    const int nice = sorted(child.pid(), NiceColumn).toInt();
    QCOMPARE(setpriority(PRIO_PROCESS, id_t(child.pid()), nice + 1), 0);
    QCOMPARE(sorted(child.pid(), NiceColumn), QVariant(nice + 1));
    QCOMPARE(shown(child.pid(), NiceColumn), QString::number(nice + 1));
}

void TestLateProcesses::grownMemory()
{
    constexpr std::size_t size = 33554432;
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        void *memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        std::memset(memory, 1, size);
    });
    growOld(child.pid());
    const quint64 resident = sorted(child.pid(), MemoryColumn).toULongLong();
    QVERIFY(resident > 0);
    child.go();
    // The kernel counts resident pages in batches, so that it may be off by some.
    QTRY_VERIFY_WITH_TIMEOUT(sorted(child.pid(), MemoryColumn).toULongLong() > resident + size * 9 / 10,
                             deadline);
}

void TestLateProcesses::changedUser()
{
    if (geteuid() != 0) {
        QSKIP("only root can become another user");
    }
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        if (seteuid(65534) != 0) {
            _exit(1);
        }
    });
    growOld(child.pid());
    QVERIFY(listed(child.pid(), MyProcesses));
    const QString root = shown(child.pid(), UserColumn);
    child.go();
    QTRY_VERIFY_WITH_TIMEOUT(!listed(child.pid(), MyProcesses), deadline);
    QVERIFY(shown(child.pid(), UserColumn) != root);
}

void TestLateProcesses::stopped()
{
    const ScriptedChild child([](const Gate &) {});
    growOld(child.pid());
    kill(child.pid(), SIGSTOP);
    QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_STOPPED), deadline);
    kill(child.pid(), SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Sleeping"), deadline);
}

void TestLateProcesses::parentThatEnded()
{
    Family family;
    growOld(family.child());
    const int parent = family.parent.pid();
    QCOMPARE(sorted(family.child(), ParentPidColumn), QVariant(parent));
    family.parent.end();
    QVERIFY(sorted(family.child(), ParentPidColumn).toInt() != parent);
}

void TestLateProcesses::parentThatIsAZombie()
{
    Family family;
    growOld(family.child());
    const int parent = family.parent.pid();
    QCOMPARE(sorted(family.child(), ParentPidColumn), QVariant(parent));
    kill(parent, SIGKILL); // and nobody waits for it
    QTRY_VERIFY_WITH_TIMEOUT(sorted(family.child(), ParentPidColumn).toInt() != parent, deadline);
    QCOMPARE(shown(parent, StateColumn), QStringLiteral("Zombie"));
}

void TestLateProcesses::orphanOfASubreaper()
{
    QCOMPARE(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    Family family;
    growOld(family.child());
    family.parent.end();
    const int newParent = sorted(family.child(), ParentPidColumn).toInt();
    prctl(PR_SET_CHILD_SUBREAPER, 0);
    QCOMPARE(newParent, int(getpid()));
}

void TestLateProcesses::pidTakenByAnotherProcess()
{
    QFile lastPid(QStringLiteral("/proc/sys/kernel/ns_last_pid"));
    if (!lastPid.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        QSKIP("pids can't be chosen here");
    }
    ScriptedChild first([](const Gate &) { prctl(PR_SET_NAME, "taken"); });
    const int pid = first.pid();
    growOld(pid);
    const QVariant started = sorted(pid, StartedColumn);
    const Process before = ProcessFiller::instance()->getProcesses(AllProcesses).at(pid);
    first.end();
    for (int i = 0; i < 100; ++i) {
        lastPid.write(QByteArray::number(pid - 1));
        const ScriptedChild second([](const Gate &) { prctl(PR_SET_NAME, "taken"); });
        if (second.pid() == pid) {
            // Asked for only now: it must not be the memory of the process that has the pid now.
            QCOMPARE(before.getParam(MemoryColumn)->displayValue().toString(), QString());
            QVERIFY(sorted(pid, StartedColumn).toULongLong() > started.toULongLong());
            QVERIFY(sorted(pid, MemoryColumn).toULongLong() > 0);
            return;
        }
    }
    QSKIP("others were always quicker to take the pid");
}

int main(int argc, char *argv[])
{
    programTitle = argv[0];
    QCoreApplication app(argc, argv);
    TestLateProcesses test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_lateprocesses.moc"
