// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedchild.h"

#include "process/gtop_wrappers/filler.h"

#include <QCoreApplication>
#include <QTranslator>
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

#include <limits>
#include <set>

using namespace gtop_wrappers;

namespace {

constexpr int deadline = 20000; // milliseconds; only a failure takes that long

const char *const names[] = {"Name",           "CPU",           "PID",  "User",       "Memory",   "State",
                             "Virtual memory", "Shared memory", "Nice", "Parent PID", "CPU time", "Started",
                             "Command line",   "Processor"};

class Translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "ProcessFiller") == 0 ? QLatin1Char('<') + QString::fromLatin1(text)
                                                      : QString();
    }
};

ProcessFiller *filler()
{
    return ProcessFiller::instance();
}

void work()
{
    for (volatile unsigned i = 0;; i = i + 1) {
    }
}

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

int counterOf(int pid)
{
    const auto all = filler()->getProcesses(AllProcesses);
    const auto found = all.find(pid);
    return found == all.end() ? -1 : found->second.getCpuLoad();
}

} // namespace

class TestFiller : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneFiller();
    void columnsAreNamedUniquely();
    void namesPastTheEndAreEmpty();
    void titlesAreTranslatedAndNamesNever();
    void snapshotIsAscendingWithEveryColumnFilled();
    void valuesOfTheTestItselfAreRight();
    void columnNotWantedIsReadWhenItIsAskedFor();
    void kernelThreadsAreListedWithTheirNamesInBrackets();
    void parentIsNormallyInTheMap();
    void otherUsersProcessesAreNotMine();
    void theUserColumnTellsWhatIsMine();
    void counterGrowsInTheUnitOfTheMachinesTotal();
    void stateOfAStoppedProcessIs16();
    void stateOfAZombieIsShown();
    void stateOfAProcessThatWaitsUninterruptibly();
    void stateOfATracedProcessIsOther();
    void processesThatComeAndGoLeaveNothingHalfEmpty();
};

void TestFiller::thereIsOneFiller()
{
    QVERIFY(ProcessFiller::instance());
    QCOMPARE(ProcessFiller::instance(), ProcessFiller::instance());
}

void TestFiller::columnsAreNamedUniquely()
{
    QCOMPARE(filler()->size(), 14UL);
    std::set<QString> seen;
    for (unsigned long i = 0; i < filler()->size(); ++i) {
        QCOMPARE(filler()->name(i), QString::fromLatin1(names[i]));
        QVERIFY(seen.insert(filler()->name(i)).second);
    }
}

void TestFiller::namesPastTheEndAreEmpty()
{
    for (const unsigned long i : {14UL, std::numeric_limits<unsigned long>::max()}) {
        QCOMPARE(filler()->name(i), QString());
        QCOMPARE(filler()->title(i), QString());
    }
}

void TestFiller::titlesAreTranslatedAndNamesNever()
{
    for (unsigned long i = 0; i < filler()->size(); ++i) {
        QCOMPARE(filler()->title(i), filler()->name(i));
    }
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    for (unsigned long i = 0; i < filler()->size(); ++i) {
        QCOMPARE(filler()->name(i), QString::fromLatin1(names[i]));
        QCOMPARE(filler()->title(i), QLatin1Char('<') + QString::fromLatin1(names[i]));
    }
    QCoreApplication::removeTranslator(&translator);
}

void TestFiller::snapshotIsAscendingWithEveryColumnFilled()
{
    int last = 0;
    for (const auto &entry : filler()->getProcesses(AllProcesses)) {
        QVERIFY(entry.first > last);
        last = entry.first;
        QCOMPARE(entry.second.pid(), entry.first);
        QCOMPARE(entry.second.params.size(), std::size_t(filler()->size()));
        for (unsigned long i = 0; i < filler()->size(); ++i) {
            QVERIFY(entry.second.getParam(i));
            QVERIFY(i == 1 || entry.second.getParam(i)->displayValue().isValid());
        }
        QVERIFY(dynamic_cast<CpuProcessParam *>(entry.second.getParam(1).get()));
        QVERIFY(dynamic_cast<IntProcessParam *>(entry.second.getParam(5).get()));
    }
    QVERIFY(last >= getpid());
}

void TestFiller::valuesOfTheTestItselfAreRight()
{
    const Process self = filler()->getProcesses(MyProcesses).at(getpid());
    QCOMPARE(self.getName(), QStringLiteral("test_filler"));
    QCOMPARE(self.getPPid(), int(getppid()));
    QCOMPARE(self.getParam(PidColumn)->sortValue(), QVariant(int(getpid())));
    QCOMPARE(self.getParam(UserColumn)->displayValue().toString(),
             QString::fromLocal8Bit(getpwuid(geteuid())->pw_name));
    const auto resident = self.getParam(MemoryColumn)->sortValue().toULongLong();
    const auto shared = self.getParam(SharedMemoryColumn)->sortValue().toULongLong();
    const auto virtualSize = self.getParam(VirtualMemoryColumn)->sortValue().toULongLong();
    QVERIFY(resident > 1048576); // bytes, not pages
    QVERIFY(shared > 0 && shared < resident && resident < virtualSize);
    const auto started = self.getParam(StartedColumn)->sortValue().toLongLong();
    const auto now = QDateTime::currentSecsSinceEpoch();
    QVERIFY(started <= now + 5 && started > now - 86400);
    QVERIFY(
        self.getParam(CommandLineColumn)->displayValue().toString().contains(QLatin1String("test_filler")));
}

void TestFiller::columnNotWantedIsReadWhenItIsAskedFor()
{
    std::vector<bool> wanted(filler()->size(), true);
    wanted[CommandLineColumn] = false;
    filler()->setEagerColumns(wanted);
    const Process without = filler()->getProcesses(MyProcesses).at(getpid());
    filler()->setEagerColumns({});
    QVERIFY(without.getParam(CommandLineColumn)
                ->displayValue()
                .toString()
                .contains(QLatin1String("test_filler")));
    QVERIFY(shown(getpid(), CommandLineColumn).contains(QLatin1String("test_filler")));
}

void TestFiller::kernelThreadsAreListedWithTheirNamesInBrackets()
{
    if (shown(2, NameColumn) != QLatin1String("kthreadd")) {
        QSKIP("no kernel threads are visible here");
    }
    QCOMPARE(shown(2, CommandLineColumn), QStringLiteral("[kthreadd]"));
    QCOMPARE(sorted(2, MemoryColumn).toULongLong(), 0ULL);
    QCOMPARE(sorted(2, ParentPidColumn), QVariant(0));
}

void TestFiller::parentIsNormallyInTheMap()
{
    const ScriptedChild child([](const Gate &) {});
    const auto all = filler()->getProcesses(AllProcesses);
    QCOMPARE(all.at(child.pid()).getPPid(), int(getpid()));
    QCOMPARE(all.count(getpid()), std::size_t(1));
    QCOMPARE(all.count(1), std::size_t(1));
}

void TestFiller::otherUsersProcessesAreNotMine()
{
    if (geteuid() != 0) {
        QSKIP("only root can start a process of another user");
    }
    const ScriptedChild child([](const Gate &) {
        if (setuid(65534) != 0) {
            _exit(1);
        }
    });
    QTRY_VERIFY_WITH_TIMEOUT(!listed(child.pid(), MyProcesses), deadline);
    QVERIFY(listed(child.pid(), AllProcesses));
    QVERIFY(listed(getpid(), MyProcesses));
    QVERIFY(listed(getpid(), AllProcesses));
    const auto mine = filler()->getProcesses(MyProcesses);
    QVERIFY(mine.at(getpid()).getParam(CommandLineColumn));
}

void TestFiller::theUserColumnTellsWhatIsMine()
{
    if (geteuid() != 0) {
        QSKIP("only root can start a process of another user");
    }
    const QString root = QString::fromLocal8Bit(getpwuid(0)->pw_name);
    const ScriptedChild effective([](const Gate &) {
        if (seteuid(65534) != 0) {
            _exit(1);
        }
    });
    QTRY_VERIFY_WITH_TIMEOUT(shown(effective.pid(), UserColumn) != root, deadline);
    QVERIFY(!listed(effective.pid(), MyProcesses));
    const ScriptedChild real([](const Gate &) {
        if (setreuid(65534, 0) != 0) {
            _exit(1);
        }
    });
    QTRY_COMPARE_WITH_TIMEOUT(realUserOf(real.pid()), uid_t(65534), deadline);
    QVERIFY(listed(real.pid(), MyProcesses));
    QCOMPARE(shown(real.pid(), UserColumn), root);
}

void TestFiller::counterGrowsInTheUnitOfTheMachinesTotal()
{
    glibtop_cpu total;
    const ScriptedChild child([](const Gate &) { work(); });
    glibtop_get_cpu(&total);
    const quint64 totalBefore = total.total;
    const int before = counterOf(child.pid());
    QVERIFY(before >= 0);

    int last = before;
    const auto grown = [&child, &last] {
        const int now = counterOf(child.pid());
        const bool fell = now < last;
        last = now;
        return fell ? -1 : now;
    };
    QTRY_VERIFY_WITH_TIMEOUT(grown() >= before + 30, deadline);

    const double secondsBefore = cpuSeconds(child.pid());
    const int counter = counterOf(child.pid());
    const double secondsAfter = cpuSeconds(child.pid());
    glibtop_get_cpu(&total);
    QVERIFY(total.frequency > 0);
    // One busy process can't get more than the machine gives, nor, with all of its time, less than one CPU's
    // part.
    QVERIFY(quint64(counter - before) <= total.total - totalBefore + 2);
    const double seconds = counter / double(total.frequency);
    QVERIFY2(seconds > secondsBefore - 0.05 && seconds < secondsAfter + 0.05,
             qPrintable(QString::number(seconds)));
}

void TestFiller::stateOfAStoppedProcessIs16()
{
    const ScriptedChild child([](const Gate &) { raise(SIGSTOP); });
    QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_STOPPED), deadline);
    QCOMPARE(GLIBTOP_PROCESS_STOPPED, 16);
    QCOMPARE(shown(child.pid(), StateColumn), QStringLiteral("Stopped"));
    kill(child.pid(), SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Sleeping"), deadline);
}

void TestFiller::stateOfAZombieIsShown()
{
    const ScriptedChild child([](const Gate &) {
        prctl(PR_SET_NAME, "gone soon");
        _exit(0);
    });
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Zombie"), deadline);
    QCOMPARE(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_ZOMBIE));
    QCOMPARE(shown(child.pid(), CommandLineColumn), QStringLiteral("[gone soon]"));
}

void TestFiller::stateOfAProcessThatWaitsUninterruptibly()
{
    // As long as what it started by vfork lives in its memory, a process waits and takes no signal but the
    // last.
    const ScriptedChild child([](const Gate &) {
        if (vfork() == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            pause();
            _exit(0);
        }
    });
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Uninterruptible"), deadline);
    QCOMPARE(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_UNINTERRUPTIBLE));
}

void TestFiller::stateOfATracedProcessIsOther()
{
    const ScriptedChild child([](const Gate &) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
            _exit(1);
        }
        raise(SIGSTOP);
    });
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Other"), deadline);
    QCOMPARE(sorted(child.pid(), StateColumn), QVariant(0));
}

void TestFiller::processesThatComeAndGoLeaveNothingHalfEmpty()
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
    const auto look = [&spawner, &seen] {
        for (const auto &entry : filler()->getProcesses(AllProcesses)) {
            const Process &process = entry.second;
            if (process.getPPid() != spawner.pid()) {
                continue;
            }
            ++seen;
            for (unsigned long i = 0; i < filler()->size(); ++i) {
                if (!process.getParam(i)) {
                    return false;
                }
            }
            if (process.getName() != QLatin1String("test_filler") ||
                process.getParam(StartedColumn)->sortValue().toULongLong() == 0) {
                return false;
            }
        }
        return true;
    };
    for (int i = 0; i < 200; ++i) {
        QVERIFY(look());
    }
    QTRY_VERIFY_WITH_TIMEOUT(look() && seen > 0, deadline);
}

QTEST_GUILESS_MAIN(TestFiller)
#include "test_filler.moc"
