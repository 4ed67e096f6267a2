// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a real process changes, the next snapshot shows it, with and without the shortcuts of reading.
#include "../support/rows.h"
#include "cells.h"
#include "scriptedchild.h"

#include <QtTest>

#include <glibtop/procstate.h>
#include <pwd.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

using namespace gtop_wrappers;

namespace {

constexpr int deadline = 20000; // milliseconds; only a failure takes that long

char *programTitle = nullptr; ///< where the arguments of this program begin

std::map<int, Process> snapshot()
{
    return ProcessFiller::instance()->getProcesses(AllProcesses);
}

int childOf(int parent)
{
    const auto all = snapshot();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [parent](const auto &entry) { return entry.second.getPPid() == parent; });
    return found == all.end() ? 0 : found->first;
}

} // namespace

class TestProcessChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        const Rows<bool> row("shortcuts");
        row("young, read entirely", false);
        row("old, with shortcuts", true);
    }

    void init()
    {
        QFETCH_GLOBAL(bool, shortcuts);
        ProcessFiller::instance()->setEagerColumns(std::vector<bool>(ColumnCount, !shortcuts));
    }

    void renamedThenExec()
    {
        const QByteArray sleeper = QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("sleep")));
        const ScriptedChild child([&sleeper](const Gate &gate) {
            gate.wait();
            prctl(PR_SET_NAME, "renamed");
            gate.wait();
            execl(sleeper.constData(), "sleeping for long", "1000", nullptr);
            _exit(1);
        });
        QVERIFY(isReady(child.pid()));
        QCOMPARE(shown(child.pid(), NameColumn), shown(getpid(), NameColumn));
        child.go();
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("renamed"), deadline);
        QCOMPARE(shown(child.pid(), CommandLineColumn), shown(getpid(), CommandLineColumn));
        child.go();
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("sleep"), deadline);
        QCOMPARE(shown(child.pid(), CommandLineColumn), QStringLiteral("sleeping for long 1000"));
    }

    void rewrittenTitle()
    {
        const ScriptedChild child([](const Gate &gate) {
            gate.wait();
            std::memset(programTitle, 'Z', std::strlen(programTitle));
        });
        QVERIFY(isReady(child.pid()));
        const QString title = QString::fromLocal8Bit(programTitle);
        QVERIFY(shown(child.pid(), CommandLineColumn).startsWith(title));
        child.go();
        const QString rewritten(title.size(), QLatin1Char('Z'));
        QTRY_VERIFY_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn).startsWith(rewritten), deadline);
    }

    void reniced()
    {
        const ScriptedChild child([](const Gate &) {});
        QVERIFY(isReady(child.pid()));
        const int nice = sorted(child.pid(), NiceColumn).toInt();
        QCOMPARE(setpriority(PRIO_PROCESS, id_t(child.pid()), nice + 1), 0);
        QCOMPARE(sorted(child.pid(), NiceColumn), QVariant(nice + 1));
        QCOMPARE(shown(child.pid(), NiceColumn), QString::number(nice + 1));
    }

    void grownMemory()
    {
        constexpr std::size_t size = 33554432;
        const ScriptedChild child([](const Gate &gate) {
            gate.wait();
            void *memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
            std::memset(memory, 1, size);
        });
        QVERIFY(isReady(child.pid()));
        const quint64 resident = sorted(child.pid(), MemoryColumn).toULongLong();
        const quint64 virtualSize = sorted(child.pid(), VirtualMemoryColumn).toULongLong();
        QVERIFY(resident > 0);
        child.go();
        // The kernel counts resident pages in batches, so the figure lags.
        QTRY_VERIFY_WITH_TIMEOUT(sorted(child.pid(), MemoryColumn).toULongLong() > resident + size * 9 / 10,
                                 deadline);
        QVERIFY(sorted(child.pid(), VirtualMemoryColumn).toULongLong() >= virtualSize + size);
    }

    void changedUser()
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
        QVERIFY(isReady(child.pid()));
        QCOMPARE(shown(child.pid(), UserColumn), QString::fromLocal8Bit(getpwuid(0)->pw_name));
        QVERIFY(listed(child.pid(), MyProcesses));
        child.go();
        const passwd *entry = getpwuid(65534);
        const QString other = entry ? QString::fromLocal8Bit(entry->pw_name) : QStringLiteral("65534");
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), UserColumn), other, deadline);
        QVERIFY(!listed(child.pid(), MyProcesses));
    }

    void stoppedAndContinued()
    {
        const ScriptedChild child([](const Gate &) {});
        QVERIFY(isReady(child.pid()));
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Sleeping"), deadline);
        kill(child.pid(), SIGSTOP);
        QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_STOPPED),
                                  deadline);
        QCOMPARE(shown(child.pid(), StateColumn), QStringLiteral("Stopped"));
        kill(child.pid(), SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_INTERRUPTIBLE),
                                  deadline);
        QCOMPARE(shown(child.pid(), StateColumn), QStringLiteral("Sleeping"));
    }

    void exited()
    {
        ScriptedChild child([](const Gate &) {});
        const int pid = child.pid();
        QVERIFY(isReady(pid));
        QVERIFY(listed(pid, AllProcesses));
        child.end();
        QVERIFY(!listed(pid, AllProcesses));
    }

    void reparented_data()
    {
        const Rows<bool, bool> row("isZombie", "toSubreaper");
        row("parent exited", false, false);
        row("parent exited, the test is a subreaper", false, true);
        row("parent is a zombie", true, false);
    }

    void reparented()
    {
        QFETCH(bool, isZombie);
        QFETCH(bool, toSubreaper);
        QCOMPARE(prctl(PR_SET_CHILD_SUBREAPER, int(toSubreaper)), 0);
        ScriptedChild parent([](const Gate &) {
            if (fork() == 0) {
                alarm(60); // if the test crashes
            }
        });
        const int oldParent = parent.pid();
        int child = 0;
        const auto tidyUp = qScopeGuard([&child] {
            prctl(PR_SET_CHILD_SUBREAPER, 0);
            if (child != 0) {
                kill(child, SIGKILL);
                waitpid(child, nullptr, WNOHANG);
            }
        });
        QTRY_VERIFY_WITH_TIMEOUT((child = childOf(oldParent)) != 0, deadline);
        QVERIFY(isReady(child));
        QCOMPARE(sorted(child, ParentPidColumn), QVariant(oldParent));
        siginfo_t info;
        kill(oldParent, SIGKILL);
        QCOMPARE(waitid(P_PID, id_t(oldParent), &info, WEXITED | WNOWAIT), 0);
        if (!isZombie) {
            parent.end();
        }
        const int newParent = sorted(child, ParentPidColumn).toInt();
        QVERIFY(newParent != 0 && newParent != oldParent);
        QCOMPARE(newParent == getpid(), toSubreaper);
        QCOMPARE(shown(oldParent, StateColumn), isZombie ? QStringLiteral("Zombie") : QString());
    }

    void reusedPid()
    {
        QFile lastPid(QStringLiteral("/proc/sys/kernel/ns_last_pid"));
        if (!lastPid.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
            QSKIP("pids can't be chosen here");
        }
        QFETCH_GLOBAL(bool, shortcuts);
        ScriptedChild first([](const Gate &) { prctl(PR_SET_NAME, "taken"); });
        const int pid = first.pid();
        QVERIFY(isReady(pid));
        const QVariant started = sorted(pid, StartedColumn);
        const Process before = snapshot().at(pid);
        first.end();
        for (int i = 0; i < 100; ++i) {
            lastPid.write(QByteArray::number(pid - 1));
            const ScriptedChild second([](const Gate &) { prctl(PR_SET_NAME, "taken"); });
            if (second.pid() == pid) {
                // Read on demand, so only now: it must not be the memory of the process that has the pid now.
                QCOMPARE(shown(before, MemoryColumn).isEmpty(), shortcuts);
                QVERIFY(sorted(pid, StartedColumn).toULongLong() >=
                        started.toULongLong() + (shortcuts ? 1 : 0));
                QVERIFY(sorted(pid, MemoryColumn).toULongLong() > 0);
                return;
            }
        }
        QSKIP("others were always quicker to take the pid");
    }

private:
    /// In the rows of old processes, waits until the second in which this one started is certainly over.
    static bool isReady(int pid)
    {
        QFETCH_GLOBAL(bool, shortcuts);
        const quint64 started = sorted(pid, StartedColumn).toULongLong();
        const auto isOld = [started] {
            const ScriptedChild younger([](const Gate &) {});
            return sorted(younger.pid(), StartedColumn).toULongLong() > started;
        };
        const bool ready = !shortcuts || QTest::qWaitFor(isOld, deadline);
        snapshot();
        snapshot(); // by now, everything that can be kept has been kept once
        return ready;
    }
};

int main(int argc, char *argv[])
{
    programTitle = argv[0];
    QCoreApplication app(argc, argv);
    TestProcessChanges test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_processchanges.moc"
