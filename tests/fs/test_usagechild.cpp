// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/usagechild.h"

#include <QtTest>

#include <fcntl.h>
#include <glibtop/fsusage.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

/// Replaces libgtop's function. The mount point says what to do; the answer tells about the process.
extern "C" void glibtop_get_fsusage(glibtop_fsusage *usage, const char *mountDir)
{
    *usage = glibtop_fsusage{};
    if (std::strcmp(mountDir, "never") == 0) {
        pause();
    } else if (std::strcmp(mountDir, "after 1.2 s") == 0) {
        usleep(1200 * 1000);
    } else if (std::strcmp(mountDir, "crash") == 0) {
        raise(SIGKILL);
    }
    usage->blocks = static_cast<guint64>(getpid());
    usage->bfree = strlen(mountDir);
    for (int descriptor = 3; descriptor < 1024; ++descriptor) {
        usage->bavail += fcntl(descriptor, F_GETFD) >= 0 ? 1U : 0U;
    }
    struct sigaction action = {};
    sigaction(SIGUSR1, nullptr, &action);
    usage->files = action.sa_handler == SIG_DFL ? 1 : 0;
    usage->block_size = static_cast<guint32>(~0U);
}

class TestUsageChild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        descriptorsBefore = openDescriptors();
        child = UsageChild::start();
        QVERIFY(child);
    }

    void cleanup()
    {
        child.reset();
        QCOMPARE(openDescriptors(), descriptorsBefore);
        QVERIFY(waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD); // no zombie is left
    }

    void answersComeInTheOrderOfTheRequests()
    {
        const std::string longest(4095, 'x');
        QVERIFY(child->ask(7, "/a b\n\xff"));
        QVERIFY(child->ask(8, ""));
        QVERIFY(child->ask(9, longest));
        UsageAnswer answer = next();
        QCOMPARE(answer.request, quint64{7});
        QCOMPARE(answer.usage.bfree, quint64{6});
        QCOMPARE(answer.usage.blockSize, ~quint32{0});
        QVERIFY(answer.usage.blocks != static_cast<quint64>(getpid()));
        QVERIFY(answer.nanoseconds > 0);
        QCOMPARE(next().request, quint64{8});
        answer = next();
        QCOMPARE(answer.request, quint64{9});
        QCOMPARE(answer.usage.bfree, quint64{longest.size()});
        QVERIFY(!child->answer());
    }

    void itHoldsNothingOfTheProgramButItsSocket()
    {
        const int file = open("/dev/null", O_RDONLY);
        signal(SIGUSR1, SIG_IGN);
        child = UsageChild::start();
        signal(SIGUSR1, SIG_DFL);
        close(file);
        QVERIFY(child->ask(1, "/"));
        const UsageAnswer answer = next();
        QCOMPARE(answer.usage.bavail, quint64{1});
        QCOMPARE(answer.usage.files, quint64{1});
        QFile name(QString("/proc/%1/comm").arg(answer.usage.blocks));
        QVERIFY(name.open(QIODevice::ReadOnly));
        QCOMPARE(name.readAll(), QByteArray("zsm-filesystems\n"));
        QCOMPARE(QFile::symLinkTarget(QString("/proc/%1/fd/2").arg(answer.usage.blocks)),
                 QString("/dev/null"));
    }

    void afterALongQueryTheOtherRequestsAreDropped()
    {
        QVERIFY(child->ask(1, "after 1.2 s"));
        QVERIFY(child->ask(2, "/"));
        const UsageAnswer answer = next();
        QCOMPARE(answer.request, quint64{1});
        QVERIFY(answer.nanoseconds > std::chrono::nanoseconds(heldUpAfter).count());
        QVERIFY(child->ask(3, "/"));
        QCOMPARE(next().request, quint64{3});
    }

    void aHungOneCanBeLeft()
    {
        QVERIFY(child->ask(1, "never"));
        QVERIFY(!child->answer());
        QVERIFY(child->state() == UsageWorker::State::Running);
        child->kill();
        QTRY_VERIFY(child->state() == UsageWorker::State::Ended);
    }

    void aDeadOneIsReapedAndTakesNoRequest()
    {
        QVERIFY(child->ask(1, "crash"));
        QTRY_VERIFY(child->state() == UsageWorker::State::Ended);
        QVERIFY(!child->answer());
        QVERIFY(!child->ask(2, "/")); // and no signal ends the program
    }

    void moreRequestsThanFitAreRefused()
    {
        int accepted = 0;
        QVERIFY(child->ask(1, "never"));
        while (accepted < 100000 && child->ask(2, "/")) {
            ++accepted;
        }
        QVERIFY(accepted > 10 && accepted < 100000);
    }

    void withoutDescriptorsToSpareNoneIsStarted()
    {
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit lowered{static_cast<rlim_t>(openDescriptors()) + 8, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &lowered);
        const std::unique_ptr<UsageWorker> other = UsageChild::start();
        setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY(!other);
    }

    void itEndsWithTheProgram()
    {
        int pipeEnds[2];
        QCOMPARE(pipe(pipeEnds), 0);
        const pid_t program = fork();
        if (program == 0) {
            const std::unique_ptr<UsageWorker> grandchild = UsageChild::start();
            grandchild->ask(1, "/");
            UsageAnswer answer = *waitFor(*grandchild);
            grandchild->ask(2, "never");
            const bool isSent = write(pipeEnds[1], &answer.usage.blocks, sizeof(answer.usage.blocks)) > 0;
            raise(isSent ? SIGKILL : SIGABRT);
        }
        quint64 pid = 0;
        QCOMPARE(read(pipeEnds[0], &pid, sizeof(pid)), ssize_t{sizeof(pid)});
        close(pipeEnds[0]);
        close(pipeEnds[1]);
        QCOMPARE(waitpid(program, nullptr, 0), program);
        QTRY_VERIFY(!QFile::exists(QString("/proc/%1/fd/3").arg(pid)));
    }

private:
    static int openDescriptors()
    {
        return static_cast<int>(QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size());
    }

    static std::optional<UsageAnswer> waitFor(UsageWorker &worker)
    {
        for (int attempt = 0; attempt < 100; ++attempt) {
            if (auto answer = worker.answer()) {
                return answer;
            }
            waitForWorkers({&worker}, std::chrono::milliseconds(100));
        }
        return std::nullopt;
    }

    UsageAnswer next() { return waitFor(*child).value_or(UsageAnswer{}); }

    std::unique_ptr<UsageWorker> child;
    int descriptorsBefore = 0;
};

QTEST_APPLESS_MAIN(TestUsageChild)
#include "test_usagechild.moc"
