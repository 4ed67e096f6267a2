// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"
#include "tests/desktop/sessionmanager.h"

#include <csignal>

/// The end of the desktop's session, as an X session manager announces it.
class TestSessionEnd : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        manager = std::make_unique<SessionManager>();
        QVERIFY(manager->listen());
        SessionOptions options;
        options.environment["SESSION_MANAGER"] = manager->address();
        createSession(asTestUser(options));
        QVERIFY2(session->launch({"processes"}), qPrintable(session->error()));
        QVERIFY2(session->waitFor([&] { return manager->hasClient(); }), qPrintable(session->error()));
        QVERIFY2(session->waitForWindow(), qPrintable(session->error()));
        QVERIFY(session->clickHeader("treeView", "User"));
        QVERIFY(session->waitFor([&] { return page->list().sortSection > 0; }));
        QCOMPARE(session->settings(), QByteArray());
        manager->askToSave();
        QVERIFY(session->waitFor([&] { return manager->hasSaved(); }));
    }

    void cleanup()
    {
        reportFailure();
        session.reset();
        manager.reset();
    }

    void theSettingsAreSavedEvenIfTheProgramIsKilledThen()
    {
        verifySortingSaved();
        kill(static_cast<pid_t>(session->pid()), SIGKILL);
        QVERIFY(session->waitForExit());
        verifySortingSaved();
    }

    void theProgramEndsWithTheSession()
    {
        manager->end();
        QVERIFY(session->waitFor([&] { return manager->hasSaved() && !session->isRunning(); }));
        QVERIFY(session->exitsCleanly());
        verifySortingSaved();
    }

    void anEndThatIsCancelledLeavesTheWindow()
    {
        manager->cancel();
        QVERIFY2(waitForRefresh(), qPrintable(session->error()));
        QVERIFY(page->showPage("System"));
        verifyQuitsCleanly();
        verifySortingSaved();
    }

private:
    std::unique_ptr<SessionManager> manager;
};

QTEST_GUILESS_MAIN(TestSessionEnd)
#include "test_sessionend.moc"
