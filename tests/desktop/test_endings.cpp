// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <sys/resource.h>

#include <csignal>

/// Ends of the program without its window being closed: what the user has changed is saved all the same.
class TestEndings : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalSavesTheSettings_data()
    {
        const Rows<QVector<int>> row("signalNumbers");
        row("SIGTERM", {SIGTERM});
        row("SIGINT", {SIGINT});
        row("SIGHUP", {SIGHUP});
        row("those of a terminal that is closed", {SIGHUP, SIGHUP, SIGTERM, SIGHUP});
    }

    void aSignalSavesTheSettings()
    {
        QFETCH(QVector<int>, signalNumbers);
        startAndChangeSettings();
        for (const int number : signalNumbers) {
            sendSignal(number);
        }
        QVERIFY(session->exitsCleanly());
        verifySaved();
    }

    void aSignalClosesOpenBoxesAndMenus_data()
    {
        addTextRows("opened", {"question", "priority", "context menu", "menu bar"});
    }

    /// The process that a question is about gets nothing.
    void aSignalClosesOpenBoxesAndMenus()
    {
        QFETCH(QString, opened);
        startAndChangeSettings();
        const SampleProcess process = sample("ends");
        QVERIFY(isListed(process) && page->select(process.pid()));
        if (opened == "question") {
            QVERIFY(session->key("ctrl+k") && page->waitForDialog("Process killing"));
        } else if (opened == "priority") {
            QVERIFY(page->openContextMenu(process.pid()) && session->clickMenu("Change priority..."));
            QVERIFY(page->waitForDialog("Change priority") && session->key("Right"));
            QVERIFY(session->waitFor([&] { return okIsEnabled(); }));
        } else if (opened == "context menu") {
            QVERIFY(page->openContextMenu(process.pid()));
        } else {
            QVERIFY(page->openProcessMenu());
        }
        sendSignal(SIGTERM);
        QVERIFY(session->exitsCleanly());
        verifySaved();
        QCOMPARE(process.endedBy(), 0);
        QCOMPARE(process.state(), 'S');
        QCOMPARE(getpriority(PRIO_PROCESS, static_cast<id_t>(process.pid())),
                 getpriority(PRIO_PROCESS, 0)); // inherited
    }

    /// While the program hangs in a file system that does not answer.
    void aSecondSignalEndsTheProgramAtOnce()
    {
        SessionOptions options;
        options.machine = standin::Machine{};
        startProgram(options, {"filesystems"});
        options.machine->mounts = {{"/dev/sda1", "/", "ext4", 1000, 300, 250, 64, 4096, false, 300000}};
        session->setMachine(*options.machine);
        QVERIFY(session->waitFor([&] { return waitsIn("nanosleep"); }));
        sendSignal(SIGINT);
        QVERIFY(!session->waitFor([&] { return false; }, 1000) && session->isRunning());
        sendSignal(SIGTERM);
        QVERIFY(session->waitForExit());
        QCOMPARE(session->endingSignal(), SIGTERM);
    }

    void aHangupThatIsIgnoredStaysIgnored()
    {
        const auto before = std::signal(SIGHUP, SIG_IGN); // inherited, as under nohup
        startAndChangeSettings();
        std::signal(SIGHUP, before);
        sendSignal(SIGHUP);
        QVERIFY2(waitForRefresh(), qPrintable(session->error()));
        sendSignal(SIGTERM);
        QVERIFY(session->exitsCleanly());
        verifySaved();
    }

    void theLossOfTheServerSavesTheSettings_data()
    {
        const Rows<bool> row("withBox");
        row("main window", false);
        row("with a box open", true);
    }

    void theLossOfTheServerSavesTheSettings()
    {
        QFETCH(bool, withBox);
        startAndChangeSettings();
        const SampleProcess process = sample("ends");
        if (withBox) {
            QVERIFY(isListed(process) && page->select(process.pid()));
            QVERIFY(session->key("ctrl+k") && page->waitForDialog("Process killing"));
        }
        session->killServer();
        QVERIFY(session->waitForExit());
        QCOMPARE(session->exitCode(), 1);
        verifySaved();
        QCOMPARE(process.endedBy(), 0);
    }

private:
    void startAndChangeSettings()
    {
        startWithProcessInterval(1);
        QVERIFY(session->resizeMainWindow(size));
        QVERIFY(session->waitFor([&] { return !page->list().rows.isEmpty(); }));
        QVERIFY(session->clickHeader("treeView", "User"));
        QVERIFY(session->waitFor([&] { return page->list().sortSection > 0; }));
    }

    void verifySaved()
    {
        verifySortingSaved();
        const QByteArray settings = session->settings();
        QVERIFY2(settings.contains(QString(", %1, %2, ").arg(size.width()).arg(size.height()).toLatin1()),
                 settings.constData());
        QVERIFY2(settings.contains("procs=1") && settings.contains("nwt=3"), settings.constData());
    }

    void sendSignal(int number) { QCOMPARE(kill(static_cast<pid_t>(session->pid()), number), 0); }

    bool waitsIn(const char *function)
    {
        QFile file(QString("/proc/%1/wchan").arg(session->pid()));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(function);
    }

    const QSize size{800, 620};
};

QTEST_GUILESS_MAIN(TestEndings)
#include "test_endings.moc"
