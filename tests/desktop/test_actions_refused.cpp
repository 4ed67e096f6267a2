// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"

#include <QJsonArray>
#include <QtTest>

#include <sys/resource.h>
#include <unistd.h>

// What the kernel refuses a user, and what it grants him: the priority of his own processes.
class TestActionsRefused : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void aSignalToAProcessOfAnotherUserIsReported_data();
    void aSignalToAProcessOfAnotherUserIsReported();
    void aPriorityCanBeLowered();
    void aRefusedPriorityIsReported();
    void anUnchangedPriorityIsNotSet();
    void aPriorityThatIsCancelledIsNotSet();

private:
    bool openPriorityDialog(int pid);
    bool okIsEnabled();
    bool acceptError(const QString &text);
    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

namespace {

int niceOf(int pid)
{
    return getpriority(PRIO_PROCESS, static_cast<id_t>(pid));
}

} // namespace

void TestActionsRefused::initTestCase()
{
    if (testUser() < 0)
        QSKIP("only root can start processes of two users");
    SessionOptions options;
    // By user: ids without a name come first, where the list of all processes stands still.
    options.settings = "[General]\nproc_sort_column=3\n[interval]\nprocs=1\n[column]\nNice=true\n";
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
}

void TestActionsRefused::cleanup()
{
    if (QTest::currentTestFailed()) {
        qWarning("%s", qPrintable(m_session->error()));
        m_session->savePicture(QLatin1String("failed-") + QLatin1String(QTest::currentTestFunction()));
    }
    QVERIFY(m_page->dismissAll());
}

void TestActionsRefused::cleanupTestCase()
{
    if (!m_session)
        return;
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

// Accepts the error box after a look at it; nothing comes after it.
bool TestActionsRefused::acceptError(const QString &text)
{
    const int warningIcon = 2;
    if (!m_page->waitForDialog(QStringLiteral("Error")))
        return false;
    const QJsonObject box = m_session->dialog();
    return box.value(QLatin1String("text")).toString() == text &&
           box.value(QLatin1String("icon")).toInt() == warningIcon &&
           m_session->clickButton(QStringLiteral("OK")) && m_page->waitForNoDialog();
}

void TestActionsRefused::aSignalToAProcessOfAnotherUserIsReported_data()
{
    QTest::addColumn<QString>("shortcut");
    for (const char *shortcut : {"ctrl+s", "ctrl+t", "ctrl+k"})
        QTest::newRow(shortcut) << QString::fromLatin1(shortcut);
}

void TestActionsRefused::aSignalToAProcessOfAnotherUserIsReported()
{
    QFETCH(QString, shortcut);
    const int another = testUser() + 40000;
    const SampleProcess foreign(QStringLiteral("for"), SampleProcess::Sleeping, another);
    QVERIFY(foreign.isReady());
    QVERIFY(m_session->key(QStringLiteral("ctrl+a")));
    QVERIFY(m_page->waitForRow(foreign.pid()));
    QVERIFY(m_page->select(foreign.pid()));
    QVERIFY(m_session->key(shortcut));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(acceptError(QStringLiteral("Unable send signal to process. Reason - Operation not permitted")));
    QCOMPARE(foreign.state(), 'S');
    QVERIFY(m_session->key(QStringLiteral("ctrl+m")));
    QVERIFY(m_page->waitForNoRow(foreign.pid()));
}

bool TestActionsRefused::openPriorityDialog(int pid)
{
    return m_page->waitForRow(pid) && m_page->openContextMenu(pid) &&
           m_session->clickMenu(QStringLiteral("Change priority...")) &&
           m_page->waitForDialog(QStringLiteral("Change priority")) && !okIsEnabled();
}

bool TestActionsRefused::okIsEnabled()
{
    const QJsonObject buttons = m_session->probe(QStringLiteral("widgets QPushButton"));
    for (const QJsonValue &button : buttons.value(QLatin1String("widgets")).toArray()) {
        if (button[QLatin1String("text")].toString().remove(QLatin1Char('&')) == QLatin1String("OK"))
            return button[QLatin1String("enabled")].toBool();
    }
    return false;
}

// The keyboard reaches the slider as soon as the dialog is open.
void TestActionsRefused::aPriorityCanBeLowered()
{
    const SampleProcess sample(QStringLiteral("nic"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QCOMPARE(niceOf(sample.pid()), 0);
    QVERIFY(openPriorityDialog(sample.pid()));
    for (int step = 0; step < 3; ++step)
        QVERIFY(m_session->key(QStringLiteral("Right")));
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(m_session->waitFor([&] { return niceOf(sample.pid()) == 3; }));
    QVERIFY(m_page->waitForText(sample.pid(), "Nice", QStringLiteral("3")));
}

void TestActionsRefused::aRefusedPriorityIsReported()
{
    const SampleProcess sample(QStringLiteral("ref"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(openPriorityDialog(sample.pid()));
    QVERIFY(m_session->key(QStringLiteral("Left")));
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(acceptError(QStringLiteral("Unable change priority. Reason - Permission denied")));
    QCOMPARE(niceOf(sample.pid()), 0);
}

// The process has gone: a call for it would be reported.
void TestActionsRefused::anUnchangedPriorityIsNotSet()
{
    auto sample = std::make_unique<SampleProcess>(QStringLiteral("sam"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample->isReady());
    QVERIFY(openPriorityDialog(sample->pid()));
    QVERIFY(m_session->key(QStringLiteral("Right")));
    QVERIFY(m_session->key(QStringLiteral("Left")));
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    const int pid = sample->pid();
    sample.reset();
    QVERIFY(m_page->waitForNoRow(pid));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForNoDialog());
    const SampleProcess later(QStringLiteral("ltr"), SampleProcess::Sleeping, testUser());
    QVERIFY(later.isReady());
    QVERIFY(m_page->waitForRow(later.pid()));
    QVERIFY(m_session->dialog().isEmpty());
}

void TestActionsRefused::aPriorityThatIsCancelledIsNotSet()
{
    const SampleProcess sample(QStringLiteral("can"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(openPriorityDialog(sample.pid()));
    QVERIFY(m_session->key(QStringLiteral("Right")));
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(m_page->waitForNoDialog());
    const SampleProcess later(QStringLiteral("ltr"), SampleProcess::Sleeping, testUser());
    QVERIFY(later.isReady());
    QVERIFY(m_page->waitForRow(later.pid()));
    QCOMPARE(niceOf(sample.pid()), 0);
}

QTEST_GUILESS_MAIN(TestActionsRefused)
#include "test_actions_refused.moc"
