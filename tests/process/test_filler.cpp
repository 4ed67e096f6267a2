// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/brackettranslator.h"
#include "../support/rows.h"
#include "cells.h"
#include "scriptedchild.h"

#include <QtTest>

#include <glibtop.h>
#include <glibtop/cpu.h>
#include <glibtop/procstate.h>
#include <glibtop/procuid.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

using namespace gtop_wrappers;

namespace {

constexpr int deadline = 20000; // milliseconds; only a failure takes that long

/// CPU time of a process by another interface of the system, in seconds.
double cpuSeconds(int pid)
{
    clockid_t clock = 0;
    timespec time = {};
    if (clock_getcpuclockid(pid, &clock) != 0 || clock_gettime(clock, &time) != 0) {
        return -1;
    }
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

uid_t realUserOf(int pid)
{
    glibtop_proc_uid ids = {};
    glibtop_get_proc_uid(&ids, pid);
    return static_cast<uid_t>(ids.uid);
}

/// Replaces a child by a program that sleeps, under this name in its command line.
void execSleep(const char *title)
{
    execlp("sleep", title, "1000", nullptr);
    _exit(1);
}

void becomeZombie(const Gate &)
{
    prctl(PR_SET_NAME, "gone soon");
    _exit(0);
}

/// A process waits, and takes no signal but SIGKILL, for as long as its vforked child lives in its memory.
void waitUninterruptibly(const Gate &)
{
    if (vfork() == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        pause();
        _exit(0);
    }
}

void beTraced(const Gate &)
{
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
        _exit(1);
    }
    raise(SIGSTOP);
}

} // namespace

using Body = std::function<void(const Gate &)>;
Q_DECLARE_METATYPE(Body)

class TestFiller : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneFillerWith14Columns()
    {
        QVERIFY(ProcessFiller::instance());
        QCOMPARE(ProcessFiller::instance(), ProcessFiller::instance());
        QCOMPARE(filler()->size(), 14UL);
    }

    void column_data()
    {
        const Rows<qulonglong, QString, bool> row("number", "name", "isShown");
        const char *const names[] = {
            "Name",          "CPU",  "PID",        "User",     "Memory",  "State",        "Virtual memory",
            "Shared memory", "Nice", "Parent PID", "CPU time", "Started", "Command line", "Processor"};
        qulonglong number = 0;
        for (const char *name : names) {
            const bool isHidden = number >= VirtualMemoryColumn && number <= ParentPidColumn;
            row(name, number++, name, !isHidden);
        }
        row("past the end", 14ULL, QString(), false);
        row("far past the end", std::numeric_limits<qulonglong>::max(), QString(), false);
    }

    void column()
    {
        QFETCH(qulonglong, number);
        QFETCH(QString, name);
        QTEST(filler()->isShownByDefault(number), "isShown");
        QCOMPARE(filler()->name(number), name);
        QCOMPARE(filler()->title(number), name);
        const BracketTranslator translator("ProcessFiller");
        QCOMPARE(filler()->name(number), name); // settings keys are made from it
        QCOMPARE(filler()->title(number), name.isEmpty() ? name : '<' + name + '>');
    }

    void valuesThatAreReadOneByOneAreExpensive()
    {
        QList<unsigned long> expensive;
        for (unsigned long i = 0; i < filler()->size() + 2; ++i) {
            if (filler()->isExpensive(i)) {
                expensive.append(i);
            }
        }
        QCOMPARE(expensive, (QList<unsigned long>{MemoryColumn, VirtualMemoryColumn, SharedMemoryColumn,
                                                  NiceColumn, CommandLineColumn}));
    }

    void snapshotIsAscendingWithEveryColumnFilled()
    {
        const ScriptedChild child([](const Gate &) {});
        const auto all = filler()->getProcesses(AllProcesses);
        int last = 0;
        for (const auto &[pid, process] : all) {
            QVERIFY(pid > last);
            last = pid;
            QCOMPARE(process.pid(), pid);
            QCOMPARE(process.params.size(), std::size_t(filler()->size()));
            for (unsigned long i = 0; i < filler()->size(); ++i) {
                QVERIFY(process.getParam(i));
                QVERIFY(i == CpuColumn || process.getParam(i)->displayValue().isValid());
            }
            QVERIFY(dynamic_cast<CpuProcessParam *>(process.getParam(CpuColumn).get()));
            QVERIFY(dynamic_cast<IntProcessParam *>(process.getParam(StateColumn).get()));
        }
        QCOMPARE(all.at(child.pid()).getPPid(), int(getpid()));
        QCOMPARE(all.count(getpid()), std::size_t(1));
        QCOMPARE(all.count(1), std::size_t(1));
    }

    void valuesOfTheTestItself()
    {
        const Process self = filler()->getProcesses(MyProcesses).at(getpid());
        QCOMPARE(self.getName(), QStringLiteral("test_filler"));
        QCOMPARE(self.getPPid(), int(getppid()));
        QCOMPARE(sorted(self, PidColumn), QVariant(int(getpid())));
        QCOMPARE(shown(self, UserColumn), QString::fromLocal8Bit(getpwuid(geteuid())->pw_name));
        const auto resident = sorted(self, MemoryColumn).toULongLong();
        const auto shared = sorted(self, SharedMemoryColumn).toULongLong();
        const auto virtualSize = sorted(self, VirtualMemoryColumn).toULongLong();
        QVERIFY(resident > 1048576); // bytes, not pages
        QVERIFY(shared > 0 && shared < resident && resident < virtualSize);
        const auto started = sorted(self, StartedColumn).toLongLong();
        const auto now = QDateTime::currentSecsSinceEpoch();
        QVERIFY(started <= now + 5 && started > now - 86400);
        QVERIFY(shown(self, CommandLineColumn).contains(QLatin1String("test_filler")));
    }

    void kernelThreadsAreListedWithTheirNamesInBrackets()
    {
        if (shown(2, NameColumn) != QLatin1String("kthreadd")) {
            QSKIP("no kernel threads are visible here");
        }
        QCOMPARE(shown(2, CommandLineColumn), QStringLiteral("[kthreadd]"));
        QCOMPARE(sorted(2, MemoryColumn).toULongLong(), 0ULL);
        QCOMPARE(sorted(2, ParentPidColumn), QVariant(0));
    }

    void theEffectiveUserDecidesWhatIsMine_data()
    {
        const Rows<uid_t, uid_t> row("real", "effective");
        row("other user", uid_t(65534), uid_t(65534));
        row("other effective user", uid_t(0), uid_t(65534));
        row("other real user", uid_t(65534), uid_t(0));
    }

    void theEffectiveUserDecidesWhatIsMine()
    {
        if (geteuid() != 0) {
            QSKIP("only root can start a process of another user");
        }
        QFETCH(uid_t, real);
        QFETCH(uid_t, effective);
        const ScriptedChild child([real, effective](const Gate &) {
            if (setreuid(real, effective) != 0) {
                _exit(1);
            }
        });
        QTRY_COMPARE_WITH_TIMEOUT(realUserOf(child.pid()), real, deadline);
        const bool isMine = effective == 0;
        const QString root = QString::fromLocal8Bit(getpwuid(0)->pw_name);
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), UserColumn) == root, isMine, deadline);
        QCOMPARE(listed(child.pid(), MyProcesses), isMine);
        QVERIFY(listed(child.pid(), AllProcesses));
        QVERIFY(listed(getpid(), MyProcesses));
        QVERIFY(listed(getpid(), AllProcesses));
    }

    void counterOnlyGrowsInTheUnitOfTheMachinesTotal()
    {
        glibtop_cpu total;
        const ScriptedChild child([](const Gate &) {
            for (volatile unsigned i = 0;; i = i + 1) {
            }
        });
        glibtop_get_cpu(&total);
        const quint64 totalBefore = total.total;
        const int before = counterOf(child.pid());
        QVERIFY(before >= 0);

        quint64 last = 0;
        bool fell = false;
        const auto next = [&] {
            const quint64 now = sorted(child.pid(), CpuTimeColumn).toULongLong();
            fell = fell || now < last;
            last = now;
            return now;
        };
        QTRY_VERIFY_WITH_TIMEOUT(next() >= quint64(before) + 30, deadline);
        QVERIFY(!fell);

        const double secondsBefore = cpuSeconds(child.pid());
        const int counter = counterOf(child.pid());
        const double secondsAfter = cpuSeconds(child.pid());
        QVERIFY(quint64(counter) >= last);
        glibtop_get_cpu(&total);
        QVERIFY(total.frequency > 0);
        // At most what the whole machine had in that time.
        QVERIFY(quint64(counter - before) <= total.total - totalBefore + 2);
        const double seconds = counter / double(total.frequency);
        QVERIFY2(seconds > secondsBefore - 0.05 && seconds < secondsAfter + 0.05,
                 qPrintable(QString::number(seconds)));
        QCOMPARE(shown(child.pid(), CpuTimeColumn).count(QLatin1Char(':')), 2);
    }

    void cellOfAChild_data()
    {
        const Rows<Body, int, QString, QVariant> row("body", "column", "text", "sortValue");
        row("zombie", &becomeZombie, StateColumn, "Zombie", GLIBTOP_PROCESS_ZOMBIE);
        row("uninterruptible", &waitUninterruptibly, StateColumn, "Uninterruptible",
            GLIBTOP_PROCESS_UNINTERRUPTIBLE);
        row("traced", &beTraced, StateColumn, "Other", 0);
        const auto text = [&](const char *name, const Body &body, ProcessColumn column,
                              const QString &shown) { row(name, body, column, shown, shown); };
        const QString broken(QChar::ReplacementCharacter);
        const QByteArray huge(100 * 1024, 'x');
        const Body rename = [](const Gate &) { prctl(PR_SET_NAME, "\xff) S 1\n("); };
        const Body breakLines = [](const Gate &) { execSleep("two\nlines\tand \xff\xe2\x80\xae"); };
        const Body takeHugeTitle = [huge](const Gate &) { execSleep(huge.constData()); };
        text("name that is not UTF-8", rename, NameColumn, broken + ") S 1 (");
        text("arguments of a zombie", &becomeZombie, CommandLineColumn, "[gone soon]");
        text("line breaks in arguments", breakLines, CommandLineColumn,
             "two lines and " + broken + broken + " 1000");
        text("huge arguments", takeHugeTitle, CommandLineColumn,
             QString(1023, QLatin1Char('x')) + QChar(0x2026));
    }

    void cellOfAChild()
    {
        QFETCH(Body, body);
        QFETCH(int, column);
        QFETCH(QString, text);
        const ScriptedChild child(body);
        QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), ProcessColumn(column)), text, deadline);
        QTEST(sorted(child.pid(), ProcessColumn(column)), "sortValue");
    }

    void startStaysTheSame()
    {
        const ScriptedChild child([](const Gate &) {});
        const QVariant start = sorted(child.pid(), StartedColumn);
        const QString text = shown(child.pid(), StartedColumn);
        for (int i = 0; i < 20; ++i) {
            QCOMPARE(sorted(child.pid(), StartedColumn), start);
        }
        const QDateTime time = QDateTime::fromSecsSinceEpoch(start.toLongLong());
        QCOMPARE(text, time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    }

    void processesThatComeAndGoAreNeverHalfRead()
    {
        const ScriptedChild spawner([](const Gate &) {
            for (;;) {
                const int pid = fork();
                if (pid == 0) {
                    _exit(0);
                }
                waitpid(pid, nullptr, 0);
            }
        });
        int seen = 0;
        const auto isWhole = [&spawner, &seen](const auto &entry) {
            const Process &process = entry.second;
            if (process.getPPid() != spawner.pid()) {
                return true;
            }
            ++seen;
            const auto &params = process.params;
            return params.size() == filler()->size() &&
                   std::count(params.begin(), params.end(), nullptr) == 0 &&
                   process.getName() == QLatin1String("test_filler") &&
                   sorted(process, StartedColumn).toULongLong() != 0;
        };
        const auto look = [&isWhole] {
            const auto all = filler()->getProcesses(AllProcesses);
            return std::all_of(all.begin(), all.end(), isWhole);
        };
        for (int i = 0; i < 200; ++i) {
            QVERIFY(look());
        }
        QTRY_VERIFY_WITH_TIMEOUT(look() && seen > 0, deadline);
    }

private:
    static ProcessFiller *filler() { return ProcessFiller::instance(); }
    static int counterOf(int pid) { return filler()->getProcesses(AllProcesses).at(pid).getCpuLoad(); }
};

QTEST_GUILESS_MAIN(TestFiller)
#include "test_filler.moc"
