// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <sys/resource.h>
#include <unistd.h>

/// Lowers the limit on the file descriptors of the running program from outside.
class TestDescriptorsTaken : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SessionOptions options;
        options.settings = "[interval]\nprocs=1\n";
        startAsOwnUser(options);
        QVERIFY2(page->waitForRow(getpid()), qPrintable(session->error()));
    }

    void withNoneLeftItGoesOnAndSavesItsSettings()
    {
        QVERIFY(limitDescriptors(lowestUsefulLimit()));
        QVERIFY(!session->probe("hoard").contains("error"));
        const SampleProcess process("desc");
        QVERIFY2(isListed(process), qPrintable(session->error()));
        for (const char *tab : {"System", "File systems", "Network", "Processes"}) {
            QVERIFY2(page->showPage(tab), qPrintable(session->error()));
        }
        verifyQuitsAndSaves();
    }

    void withTooFewItKeepsItsListUntilThereAreMore()
    {
        const rlim_t enough = lowestUsefulLimit();
        QStringList before;
        // Again if the limit has fallen in the middle of a refresh, which then finds only some processes.
        QVERIFY(session->waitFor([&] {
            limitDescriptors(8); // all below are open, but poll(2) fails on more of them than the limit
            before = page->list().column("PID");
            return before.contains(QString::number(getpid())) ||
                   (limitDescriptors(enough) && page->waitForRow(getpid()) && false);
        }));
        const SampleProcess process("desc");
        QVERIFY(process.isReady());
        QVERIFY2(session->waitForTicks(), qPrintable(session->error()));
        QCOMPARE(page->list().column("PID"), before);
        QVERIFY(limitDescriptors(enough));
        QVERIFY2(page->waitForRow(process.pid()), qPrintable(session->error()));
        verifyQuitsAndSaves();
    }

private:
    bool limitDescriptors(rlim_t limit)
    {
        rlimit limits = {};
        const auto pid = static_cast<pid_t>(session->pid());
        if (prlimit(pid, RLIMIT_NOFILE, nullptr, &limits) != 0) {
            return false;
        }
        limits.rlim_cur = limit;
        return prlimit(pid, RLIMIT_NOFILE, &limits, nullptr) == 0;
    }

    /// Just above the highest open descriptor, those that the program holds in reserve included.
    rlim_t lowestUsefulLimit()
    {
        const QDir folder(QString("/proc/%1/fd").arg(session->pid()));
        int highest = 0;
        for (const QString &descriptor : folder.entryList(QDir::Files | QDir::System)) {
            highest = std::max(highest, descriptor.toInt());
        }
        return static_cast<rlim_t>(highest) + 1;
    }

    void verifyQuitsAndSaves()
    {
        QVERIFY2(page->quit(), qPrintable(session->error()));
        QCOMPARE(session->exitCode(), 0);
        QFile file(session->settingsFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray settings = file.readAll();
        QVERIFY2(settings.contains("procs=1") && settings.contains("nwt=3"), settings.constData());
    }
};

QTEST_GUILESS_MAIN(TestDescriptorsTaken)
#include "test_descriptors_taken.moc"
