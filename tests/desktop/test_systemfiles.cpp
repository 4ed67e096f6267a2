// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <signal.h>
#include <unistd.h>

namespace {

const char coverByNothing[] = "mount -t tmpfs none /proc";
const char showProcessesOnly[] = "mount -t proc -o subset=pid none /proc";
const char settings[] = "[interval]\nprocs=1\n";

} // namespace

/// The program without /proc, in a mount namespace of its own.
class TestSystemFiles : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QProcess::execute("unshare", {"--mount", "sh", "-c", showProcessesOnly}) != 0) {
            QSKIP("mount namespaces or the option subset=pid are not allowed here");
        }
    }

    void cleanup() { reportFailure(); }

    void withoutProcItSaysSoAndExits_data() { addMounts(); }

    void withoutProcItSaysSoAndExits()
    {
        QFETCH(QString, mount);
        createSession(mount);
        QVERIFY(session->launch({"processes"}) && session->waitForExit());
        QCOMPARE(session->exitCode(), 1);
        const QByteArray message = session->standardError();
        QVERIFY2(message.startsWith("zarn-system-monitor: ") && message.contains("/proc/stat"), message);
        QCOMPARE(message.count('\n'), 1);
        QCOMPARE(session->settings(), QByteArray(settings));
    }

    void aBoxSaysSoIfNobodySeesStandardError()
    {
        createSession(showProcessesOnly, "2>/dev/null");
        QVERIFY(session->launch());
        QVERIFY(session->waitFor([&] { return !session->dialog().isEmpty(); }));
        QVERIFY(session->dialog().value("text").toString().contains("/proc/stat"));
        QVERIFY(session->savePicture("box-without-proc"));
        QVERIFY(session->key("Escape") && session->waitForExit());
        QCOMPARE(session->exitCode(), 1);
    }

    void withoutProcWhileRunningItKeepsItsFiguresAndSaves_data() { addMounts(); }

    void withoutProcWhileRunningItKeepsItsFiguresAndSaves()
    {
        QFETCH(QString, mount);
        createSession("true");
        QVERIFY2(session->start({"processes"}), qPrintable(session->error()));
        const SampleProcess survivor("surv");
        QVERIFY(isListed(survivor) && page->waitForRow(getpid()) && page->select(survivor.pid()));
        QVERIFY(inNamespace(mount));
        for (const char *tab : {"System", "File systems", "Network", "Processes"}) {
            QVERIFY2(page->showPage(tab), qPrintable(session->error()));
        }
        QVERIFY2(session->waitForTicks(), qPrintable(session->error()));
        QVERIFY(rowOf(page->list(), getpid()) >= 0);
        QVERIFY(session->clickHeader("treeView", "Memory")); // reads what was not read yet
        QVERIFY(session->key("ctrl+k") && page->waitForDialog("Process killing"));
        QVERIFY(session->clickButton("OK") && page->waitForDialog("Error") && page->dismissAll());
        QCOMPARE(kill(survivor.pid(), 0), 0);
        QVERIFY(inNamespace("umount /proc"));
        const SampleProcess newcomer("proc");
        QVERIFY2(isListed(newcomer), qPrintable(session->error()));
        QVERIFY(inNamespace(mount));
        session->closeMainWindow();
        QVERIFY(session->waitForExit());
        QCOMPARE(session->exitCode(), 0);
        QVERIFY(session->settings().contains("nwt=3"));
    }

private:
    static void addMounts()
    {
        QTest::addColumn<QString>("mount");
        QTest::newRow("only processes") << QString(showProcessesOnly);
#ifndef __SANITIZE_ADDRESS__ // the sanitizer reads /proc/self
        QTest::newRow("nothing") << QString(coverByNothing);
#endif
    }

    void createSession(const QString &mount, const QString &redirections = {})
    {
        SessionOptions options;
        options.settings = settings;
        options.environment["ZSM_TEST_PROGRAM"] = ZSM_PROGRAM;
        options.environment["ZSM_TEST_MOUNT"] = mount;
        options.environment["ZSM_TEST_REDIRECTIONS"] = redirections;
        options.program = ZSM_IN_NAMESPACE;
        session = std::make_unique<DesktopSession>(options);
        page = std::make_unique<ProcessesPage>(*session);
    }

    bool inNamespace(const QString &command)
    {
        return QProcess::execute("nsenter", {"--mount", "--target", QString::number(session->pid()), "sh",
                                             "-c", command}) == 0;
    }
};

QTEST_GUILESS_MAIN(TestSystemFiles)
#include "test_systemfiles.moc"
