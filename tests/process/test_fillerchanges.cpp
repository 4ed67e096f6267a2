// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a process can change, the next snapshot shows it: values shared between snapshots are never stale.
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

#include <cstring>

using namespace gtop_wrappers;

namespace {

constexpr int deadline = 20000; // milliseconds; only a failure takes that long

char *programTitle = nullptr; // where the arguments of this program begin

/// Starts a copy of this program's helper that sleeps, under any name and arguments.
void execSleep(const QByteArray &path, const QByteArray &title)
{
    execl(path.constData(), title.constData(), "1000", nullptr);
    _exit(1);
}

} // namespace

class TestFillerChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void renamedProcess();
    void nameThatIsNotUtf8IsShown();
    void execChangesNameAndCommandLine();
    void rewrittenTitle();
    void lineBreaksInArgumentsGiveOneLine();
    void hugeArgumentsAreShownShortened();
    void reniced();
    void grownMemory();
    void changedUser();
    void parentThatEnded();
    void stoppedAndContinued();
    void endedProcessIsLeftOut();
    void startStaysTheSame();
    void counterOnlyGrows();

private:
    QTemporaryDir folder;
    QByteArray sleeper; ///< a program of a known name
};

void TestFillerChanges::initTestCase()
{
    QVERIFY(folder.isValid());
    const QString path = folder.filePath(QStringLiteral("zsm-sleeper"));
    QVERIFY(QFile::copy(QStandardPaths::findExecutable(QStringLiteral("sleep")), path));
    sleeper = QFile::encodeName(path);
}

void TestFillerChanges::renamedProcess()
{
    const ScriptedChild child([](const Gate &gate) {
        prctl(PR_SET_NAME, "first name");
        gate.wait();
        prctl(PR_SET_NAME, "second name");
    });
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("first name"), deadline);
    child.go();
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("second name"), deadline);
}

void TestFillerChanges::nameThatIsNotUtf8IsShown()
{
    const ScriptedChild child([](const Gate &) { prctl(PR_SET_NAME, "\xff) S 1\n("); });
    const QString name = QString(QChar::ReplacementCharacter) + QStringLiteral(") S 1 (");
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), name, deadline);
    QCOMPARE(sorted(child.pid(), ParentPidColumn), QVariant(int(getpid())));
}

void TestFillerChanges::execChangesNameAndCommandLine()
{
    const ScriptedChild child([this](const Gate &gate) {
        prctl(PR_SET_NAME, "before exec");
        gate.wait();
        execSleep(sleeper, "sleeping for long");
    });
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("before exec"), deadline);
    child.go();
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), NameColumn), QStringLiteral("zsm-sleeper"), deadline);
    QCOMPARE(shown(child.pid(), CommandLineColumn), QStringLiteral("sleeping for long 1000"));
}

void TestFillerChanges::rewrittenTitle()
{
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        std::memset(programTitle, 'Z', std::strlen(programTitle));
    });
    const QString title = QString::fromLocal8Bit(programTitle);
    QTRY_VERIFY_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn).startsWith(title), deadline);
    child.go();
    const QString rewritten(title.size(), QLatin1Char('Z'));
    QTRY_VERIFY_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn).startsWith(rewritten), deadline);
}

void TestFillerChanges::lineBreaksInArgumentsGiveOneLine()
{
    const ScriptedChild child(
        [this](const Gate &) { execSleep(sleeper, "two\nlines\tand \xff\xe2\x80\xae"); });
    const QString broken(QChar::ReplacementCharacter);
    const QString line = QStringLiteral("two lines and ") + broken + broken + QStringLiteral(" 1000");
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn), line, deadline);
}

void TestFillerChanges::hugeArgumentsAreShownShortened()
{
    const QByteArray title(100 * 1024, 'x');
    const ScriptedChild child([this, &title](const Gate &) { execSleep(sleeper, title); });
    const QString line = QString(1023, QLatin1Char('x')) + QChar(0x2026);
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), CommandLineColumn), line, deadline);
}

void TestFillerChanges::reniced()
{
    const ScriptedChild child([](const Gate &) {});
    const int nice = sorted(child.pid(), NiceColumn).toInt();
    QCOMPARE(setpriority(PRIO_PROCESS, id_t(child.pid()), nice + 1), 0);
    QCOMPARE(sorted(child.pid(), NiceColumn), QVariant(nice + 1));
    QCOMPARE(shown(child.pid(), NiceColumn), QString::number(nice + 1));
}

void TestFillerChanges::grownMemory()
{
    constexpr std::size_t size = 33554432;
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        void *memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        std::memset(memory, 1, size);
    });
    const quint64 resident = sorted(child.pid(), MemoryColumn).toULongLong();
    const quint64 virtualSize = sorted(child.pid(), VirtualMemoryColumn).toULongLong();
    child.go();
    // The kernel counts resident pages in batches, so that it may be off by some.
    QTRY_VERIFY_WITH_TIMEOUT(sorted(child.pid(), MemoryColumn).toULongLong() > resident + size * 9 / 10,
                             deadline);
    QVERIFY(sorted(child.pid(), VirtualMemoryColumn).toULongLong() >= virtualSize + size);
}

void TestFillerChanges::changedUser()
{
    if (geteuid() != 0) {
        QSKIP("only root can become another user");
    }
    const ScriptedChild child([](const Gate &gate) {
        gate.wait();
        if (setuid(65534) != 0) {
            _exit(1);
        }
    });
    QCOMPARE(shown(child.pid(), UserColumn), QString::fromLocal8Bit(getpwuid(0)->pw_name));
    QVERIFY(listed(child.pid(), MyProcesses));
    child.go();
    const passwd *entry = getpwuid(65534);
    const QString other = entry ? QString::fromLocal8Bit(entry->pw_name) : QStringLiteral("65534");
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), UserColumn), other, deadline);
    QVERIFY(!listed(child.pid(), MyProcesses));
}

void TestFillerChanges::parentThatEnded()
{
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    ScriptedChild parent([&ends](const Gate &) {
        const int pid = fork();
        if (pid == 0) {
            alarm(60); // the test ends it earlier, unless it fails
        }
        if (pid != 0 && write(ends[1], &pid, sizeof pid) != sizeof pid) {
            _exit(1);
        }
    });
    int orphan = 0;
    QCOMPARE(read(ends[0], &orphan, sizeof orphan), ssize_t(sizeof orphan));
    close(ends[0]);
    close(ends[1]);
    const int oldParent = parent.pid();
    QCOMPARE(sorted(orphan, ParentPidColumn), QVariant(oldParent));
    parent.end();
    const int newParent = sorted(orphan, ParentPidColumn).toInt();
    kill(orphan, SIGKILL);
    QVERIFY(newParent != 0 && newParent != oldParent);
}

void TestFillerChanges::stoppedAndContinued()
{
    const ScriptedChild child([](const Gate &) {});
    QTRY_COMPARE_WITH_TIMEOUT(shown(child.pid(), StateColumn), QStringLiteral("Sleeping"), deadline);
    kill(child.pid(), SIGSTOP);
    QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_STOPPED), deadline);
    kill(child.pid(), SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(sorted(child.pid(), StateColumn), QVariant(GLIBTOP_PROCESS_INTERRUPTIBLE),
                              deadline);
}

void TestFillerChanges::endedProcessIsLeftOut()
{
    ScriptedChild child([](const Gate &) {});
    const int pid = child.pid();
    QVERIFY(listed(pid, AllProcesses));
    child.end();
    QVERIFY(!listed(pid, AllProcesses));
}

void TestFillerChanges::startStaysTheSame()
{
    const ScriptedChild child([](const Gate &) {});
    const QVariant start = sorted(child.pid(), StartedColumn);
    const QString text = shown(child.pid(), StartedColumn);
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(sorted(child.pid(), StartedColumn), start);
    }
    QCOMPARE(
        text,
        QDateTime::fromSecsSinceEpoch(start.toLongLong()).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

void TestFillerChanges::counterOnlyGrows()
{
    const ScriptedChild child([](const Gate &) {
        for (volatile unsigned i = 0;; i = i + 1) {
        }
    });
    quint64 last = 0;
    bool fell = false;
    const auto next = [&] {
        const quint64 now = sorted(child.pid(), CpuTimeColumn).toULongLong();
        fell = fell || now < last;
        last = now;
        return now;
    };
    QTRY_VERIFY_WITH_TIMEOUT(next() >= 20, deadline);
    QVERIFY(!fell);
    QCOMPARE(shown(child.pid(), CpuTimeColumn).count(QLatin1Char(':')), 2);
}

int main(int argc, char *argv[])
{
    programTitle = argv[0];
    QCoreApplication app(argc, argv);
    TestFillerChanges test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_fillerchanges.moc"
