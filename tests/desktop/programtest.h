// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_PROGRAMTEST_H
#define TESTS_DESKTOP_PROGRAMTEST_H

#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <algorithm>

/// Base of the tests that act on processes and settings: the program in a session of its own, and the steps
/// that these tests share.
class ProgramTest : public QObject
{
protected:
    void startProgram(SessionOptions options, const QStringList &arguments = {"processes"})
    {
        if (testUser() < 0 && !options.machine) {
            options.machine = standin::Machine{};
            options.machine->mostOfOthers = 1; // the first process; those of other tests would come and go
        }
        createSession(asTestUser(options));
        QVERIFY2(session->start(arguments), qPrintable(session->error()));
    }

    void createSession(const SessionOptions &options)
    {
        session = std::make_unique<DesktopSession>(options);
        page = std::make_unique<ProcessesPage>(*session);
    }

    /// As the user who runs the test, on the Processes page.
    void startAsOwnUser(const SessionOptions &options)
    {
        createSession(options);
        QVERIFY2(session->start({"processes"}), qPrintable(session->error()));
    }

    void startWithProcessInterval(int seconds)
    {
        SessionOptions options;
        options.settings = "[interval]\nprocs=" + QByteArray::number(seconds) + '\n';
        startProgram(options);
    }

    bool clickMenus(const QStringList &way)
    {
        return std::all_of(way.begin(), way.end(),
                           [&](const QString &menu) { return session->clickMenu(menu); });
    }

    /// After a failed test function: prints why and saves a picture of the screen.
    void reportFailure()
    {
        if (QTest::currentTestFailed()) {
            qWarning("%s", qPrintable(session->error()));
            session->savePicture(QString("failed-") + QTest::currentTestFunction());
        }
    }

    void reportFailureAndCloseAll()
    {
        reportFailure();
        QVERIFY(page->dismissAll());
    }

    void verifyQuitsCleanly()
    {
        QVERIFY2(page->quit(), qPrintable(session->error()));
        QCOMPARE(session->standardError(), QByteArray());
        QCOMPARE(session->exitCode(), 0);
    }

    /// For cleanup().
    void closeAllAndQuit()
    {
        reportFailureAndCloseAll();
        verifyQuitsCleanly();
    }

    /// For cleanup(); unlike closeAllAndQuit(), the program may have ended.
    void closeAllAndEnd()
    {
        reportFailure();
        page->dismissAll();
        QVERIFY(session->endsCleanly());
    }

    /// The settings file has a column to sort by, and not the first one.
    void verifySortingSaved()
    {
        const QByteArray settings = session->settings();
        QVERIFY2(settings.contains("proc_sort_column=") && !settings.contains("proc_sort_column=0"),
                 settings.constData());
    }

    /// A process of the user as whom the program runs.
    static SampleProcess sample(const char *name, SampleProcess::What what = SampleProcess::Sleeping)
    {
        return SampleProcess(name, what, testUser());
    }

    bool isListed(const SampleProcess &process)
    {
        return process.isReady() && page->waitForRow(process.pid());
    }

    /// Waits until the process list has been refreshed.
    bool waitForRefresh() { return isListed(sample("ltr")); }

    bool clickOk() { return session->clickButton("OK") && page->waitForNoDialog(); }

    /// Of the active dialog.
    bool okIsEnabled()
    {
        const QJsonArray buttons = session->dialog().value("buttons").toArray();
        return std::any_of(buttons.begin(), buttons.end(), [](const QJsonValue &button) {
            return button["text"].toString().remove('&') == "OK" && button["enabled"].toBool();
        });
    }

    /// False if there is no dialog.
    bool closeDialogByFrame()
    {
        const auto id = static_cast<unsigned long>(session->dialog().value("id").toDouble());
        session->x().closeWindow(id);
        return id != 0;
    }

    bool isFocused(const char *name) { return session->widget(name).value("focus").toBool(); }
    bool isChecked(const char *menuEntry) { return session->menuEntry(menuEntry).value("checked").toBool(); }

    std::unique_ptr<DesktopSession> session;
    std::unique_ptr<ProcessesPage> page;
};

#endif
