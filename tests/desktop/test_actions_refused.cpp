// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <sys/resource.h>

/// What the kernel refuses a user, and what it grants: lowering the priority of the user's own processes.
class TestActionsRefused : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (testUser() < 0) {
            QSKIP("only root can start processes of two users");
        }
        SessionOptions options;
        // Sorted by user: ids without a name come first, in the part of the full list that does not move.
        options.settings = "[General]\nproc_sort_column=3\n[interval]\nprocs=1\n[column]\nNice=true\n";
        startProgram(options);
    }

    void cleanup() { reportFailureAndCloseAll(); }
    void cleanupTestCase()
    {
        if (session) {
            verifyQuitsCleanly();
        }
    }

    void signalToAProcessOfAnotherUserIsReported_data()
    {
        addTextRows("shortcut", {"ctrl+s", "ctrl+t", "ctrl+k"});
    }

    void signalToAProcessOfAnotherUserIsReported()
    {
        QFETCH(QString, shortcut);
        const int anotherUser = testUser() + 40000;
        const SampleProcess foreign("for", SampleProcess::Sleeping, anotherUser);
        QVERIFY(foreign.isReady());
        QVERIFY(session->key("ctrl+a"));
        QVERIFY(page->waitForRow(foreign.pid()));
        QVERIFY(page->select(foreign.pid()));
        QVERIFY(session->key(shortcut));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(acceptError("Unable send signal to process. Reason - Operation not permitted"));
        QCOMPARE(foreign.state(), 'S');
        QVERIFY(session->key("ctrl+m"));
        QVERIFY(page->waitForNoRow(foreign.pid()));
    }

    void priorityCanBeLowered()
    {
        const SampleProcess process = sample("nic");
        QCOMPARE(niceOf(process), ownNice());
        QVERIFY(openPriorityDialog(process));
        QVERIFY(pressInPriorityDialog({"Right", "Right", "Right"}));
        QVERIFY(clickOk());
        QVERIFY(session->waitFor([&] { return niceOf(process) == ownNice() + 3; }));
        QVERIFY(page->waitForText(process.pid(), "Nice", QString::number(ownNice() + 3)));
    }

    void refusedPriorityIsReported()
    {
        const SampleProcess process = sample("ref");
        QVERIFY(openPriorityDialog(process));
        QVERIFY(pressInPriorityDialog({"Left"}));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(acceptError("Unable change priority. Reason - Permission denied"));
        QCOMPARE(niceOf(process), ownNice());
    }

    /// The process has exited: setting its priority would be reported as an error.
    void unchangedPriorityIsNotSet()
    {
        std::optional<SampleProcess> process(std::in_place, "sam", SampleProcess::Sleeping, testUser());
        QVERIFY(openPriorityDialog(*process));
        QVERIFY(pressInPriorityDialog({"Right", "Left"}));
        const int pid = process->pid();
        process.reset();
        QVERIFY(page->waitForNoRow(pid));
        QVERIFY(clickOk());
        QVERIFY(waitForRefresh());
        QVERIFY(session->dialog().isEmpty());
    }

    void cancelledPriorityIsNotSet()
    {
        const SampleProcess process = sample("can");
        QVERIFY(openPriorityDialog(process));
        QVERIFY(pressInPriorityDialog({"Right"}));
        QVERIFY(session->key("Escape"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY(waitForRefresh());
        QCOMPARE(niceOf(process), ownNice());
    }

private:
    /// What the processes inherit: the tests may run with a lowered priority.
    static int ownNice() { return getpriority(PRIO_PROCESS, 0); }
    static int niceOf(const SampleProcess &process) { return getpriority(PRIO_PROCESS, id_t(process.pid())); }
    bool openPriorityDialog(const SampleProcess &process)
    {
        return isListed(process) && page->openContextMenu(process.pid()) &&
               session->clickMenu("Change priority...") && page->waitForDialog("Change priority") &&
               !okIsEnabled();
    }

    /// The slider has the focus as soon as the dialog is open; moving it enables OK.
    bool pressInPriorityDialog(const QStringList &keys)
    {
        const auto press = [&](const QString &key) { return session->key(key); };
        return std::all_of(keys.begin(), keys.end(), press) &&
               session->waitFor([&] { return okIsEnabled(); });
    }

    /// Accepts the error box if it is the expected one and nothing follows it.
    bool acceptError(const QString &text)
    {
        const int warningIcon = 2;
        if (!page->waitForDialog("Error")) {
            return false;
        }
        const QJsonObject box = session->dialog();
        return box.value("text").toString() == text && box.value("icon").toInt() == warningIcon && clickOk();
    }
};

QTEST_GUILESS_MAIN(TestActionsRefused)
#include "test_actions_refused.moc"
