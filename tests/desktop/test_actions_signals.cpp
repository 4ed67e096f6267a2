// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"

#include <QJsonArray>
#include <QtTest>

#include <algorithm>
#include <csignal>

namespace {

struct Command
{
    const char *entry;
    const char *shortcut;
    const char *title;
    const char *text;
};

const Command stopCommand = {"Stop process", "ctrl+s", "Process stopping",
                             "Are you really want to stop process?\nYou would be able to resume it later."};
const Command continueCommand = {"Continue process", "ctrl+c", "Process resuming",
                                 "Are you really want to resume process?"};
const Command terminateCommand = {
    "Terminate process", "ctrl+t", "Process terminating",
    "Are you really want to terminate process?\nProcess will have ability to finish normally."};
const Command killCommand = {"Kill process", "ctrl+k", "Process killing",
                             "Are you really want to kill process?\nProcess will no have ability to finish "
                             "normally.\nAll process data can be lost."};

/// The ways of a user to a command.
enum Way { MenuBar, ContextMenu, Shortcut };

} // namespace

class TestActionsSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void everyWayAsksAndSendsTheSignal_data();
    void everyWayAsksAndSendsTheSignal();
    void onlyOkSendsASignal_data();
    void onlyOkSendsASignal();
    void aStoppedProcessStaysStoppedWhenOnlyCancelIsPressed();
    void aShortcutActsOnTheRowThatIsHighlighted();
    void whatTheBoxAskedAboutGetsTheSignal();
    void whenItHasGoneTheBoxSaysSo();
    void onOtherPagesTheShortcutsDoNothing();

private:
    bool trigger(Way way, const Command &command, int pid);
    bool ask(Way way, const Command &command, int pid);
    bool confirm(Way way, const Command &command, int pid);
    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

Q_DECLARE_METATYPE(Command)

void TestActionsSignals::initTestCase()
{
    SessionOptions options;
    options.settings = "[interval]\nprocs=1\n";
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
}

void TestActionsSignals::cleanup()
{
    if (QTest::currentTestFailed()) {
        qWarning("%s", qPrintable(m_session->error()));
        m_session->savePicture(QLatin1String("failed-") + QLatin1String(QTest::currentTestFunction()));
    }
    QVERIFY(m_page->dismissAll());
}

void TestActionsSignals::cleanupTestCase()
{
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

bool TestActionsSignals::trigger(Way way, const Command &command, int pid)
{
    const QString entry = QLatin1String(command.entry);
    switch (way) {
    case MenuBar:
        return m_page->select(pid) && m_page->openProcessMenu() && m_session->clickMenu(entry);
    case ContextMenu:
        return m_page->openContextMenu(pid) && m_session->clickMenu(entry);
    case Shortcut:
        break;
    }
    return m_page->select(pid) && m_session->key(QLatin1String(command.shortcut));
}

// The box is the required one, and Cancel its default.
bool TestActionsSignals::ask(Way way, const Command &command, int pid)
{
    if (!trigger(way, command, pid) || !m_page->waitForDialog(QLatin1String(command.title)))
        return false;
    const QJsonObject box = m_session->dialog();
    QMap<QString, bool> isDefault;
    for (const QJsonValue &button : box.value(QLatin1String("buttons")).toArray())
        isDefault[button[QLatin1String("text")].toString().remove(QLatin1Char('&'))] =
            button[QLatin1String("default")].toBool();
    return box.value(QLatin1String("text")).toString() == QLatin1String(command.text) &&
           isDefault == QMap<QString, bool>{{QStringLiteral("Cancel"), true}, {QStringLiteral("OK"), false}};
}

bool TestActionsSignals::confirm(Way way, const Command &command, int pid)
{
    return ask(way, command, pid) && m_session->clickButton(QStringLiteral("OK")) &&
           m_page->waitForNoDialog();
}

void TestActionsSignals::everyWayAsksAndSendsTheSignal_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("menu bar") << int(MenuBar);
    QTest::newRow("context menu") << int(ContextMenu);
    QTest::newRow("shortcut") << int(Shortcut);
}

// The state is read back from the kernel and from the table.
void TestActionsSignals::everyWayAsksAndSendsTheSignal()
{
    QFETCH(int, way);
    const Way by = Way(way);
    const SampleProcess sample(QStringLiteral("sig"), SampleProcess::Sleeping, testUser());
    const SampleProcess other(QStringLiteral("oth"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady() && other.isReady());
    const int pid = sample.pid();
    const int otherPid = other.pid();
    QVERIFY(m_page->waitForText(pid, "State", QStringLiteral("Sleeping")));

    QVERIFY(confirm(by, stopCommand, pid));
    QVERIFY(m_page->waitForText(pid, "State", QStringLiteral("Stopped")));
    QCOMPARE(sample.state(), 'T');

    QVERIFY(confirm(by, continueCommand, pid));
    QVERIFY(m_page->waitForText(pid, "State", QStringLiteral("Sleeping")));
    QCOMPARE(sample.state(), 'S');

    QVERIFY(confirm(by, terminateCommand, pid));
    QVERIFY(m_session->waitFor([&] { return sample.endedBy() == SIGTERM; }));
    QVERIFY(m_page->waitForNoRow(pid));
    QCOMPARE(other.state(), 'S');

    QVERIFY(confirm(by, killCommand, otherPid));
    QVERIFY(m_session->waitFor([&] { return other.endedBy() == SIGKILL; }));
}

void TestActionsSignals::onlyOkSendsASignal_data()
{
    QTest::addColumn<Command>("command");
    for (const Command &command : {stopCommand, terminateCommand, killCommand})
        QTest::newRow(command.entry) << command;
}

// A process that was stopped or ended could not take another name afterwards.
void TestActionsSignals::onlyOkSendsASignal()
{
    QFETCH(Command, command);
    const SampleProcess sample(QStringLiteral("no"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(m_page->waitForRow(sample.pid()));
    for (const char *key : {"Return", "Escape", "space"}) {
        QVERIFY2(ask(Shortcut, command, sample.pid()), key);
        QVERIFY(m_session->key(QLatin1String(key)));
        QVERIFY2(m_page->waitForNoDialog(), key);
    }
    QVERIFY(ask(Shortcut, command, sample.pid()));
    QVERIFY(m_session->clickButton(QStringLiteral("Cancel")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(ask(Shortcut, command, sample.pid()));
    m_session->x().closeWindow(
        static_cast<unsigned long>(m_session->dialog().value(QLatin1String("id")).toDouble()));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(sample.sendSignal(SIGUSR1));
    QVERIFY(m_page->waitForText(sample.pid(), "Name", sample.renamed()));
    QVERIFY(m_page->waitForText(sample.pid(), "State", QStringLiteral("Sleeping")));
}

void TestActionsSignals::aStoppedProcessStaysStoppedWhenOnlyCancelIsPressed()
{
    const SampleProcess sample(QStringLiteral("stp"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady() && sample.sendSignal(SIGSTOP));
    QVERIFY(m_page->waitForText(sample.pid(), "State", QStringLiteral("Stopped")));
    QVERIFY(ask(Shortcut, continueCommand, sample.pid()));
    QVERIFY(m_session->key(QStringLiteral("Return")));
    QVERIFY(m_page->waitForNoDialog());
    const SampleProcess later(QStringLiteral("ltr"), SampleProcess::Sleeping, testUser());
    QVERIFY(later.isReady());
    QVERIFY(m_page->waitForRow(later.pid())); // a refresh has come
    QCOMPARE(sample.state(), 'T');
    QCOMPARE(m_page->text(sample.pid(), "State"), QStringLiteral("Stopped"));
}

void TestActionsSignals::aShortcutActsOnTheRowThatIsHighlighted()
{
    const SampleProcess first(QStringLiteral("one"), SampleProcess::Sleeping, testUser());
    const SampleProcess second(QStringLiteral("two"), SampleProcess::Sleeping, testUser());
    QVERIFY(first.isReady() && second.isReady());
    QVERIFY(m_page->select(first.pid()));
    QVERIFY(m_page->openProcessMenu()); // the process of the last menu
    QVERIFY(m_page->closeMenus());
    QVERIFY(m_page->select(second.pid()));
    QVERIFY(m_session->key(QStringLiteral("ctrl+k")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Process killing")));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_session->waitFor([&] { return second.endedBy() == SIGKILL; }));
    QCOMPARE(first.state(), 'S');
}

// While the box is open the process asked about takes another name: its row is made anew, and with the old
// one the selection has gone.
void TestActionsSignals::whatTheBoxAskedAboutGetsTheSignal()
{
    const SampleProcess sample(QStringLiteral("ask"), SampleProcess::Sleeping, testUser());
    const SampleProcess bystander(QStringLiteral("by"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady() && bystander.isReady());
    const int pid = sample.pid();
    QVERIFY(m_page->waitForRow(pid));
    QVERIFY(ask(Shortcut, killCommand, pid));
    QVERIFY(sample.sendSignal(SIGUSR1));
    QVERIFY(m_page->waitForText(pid, "Name", sample.renamed()));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_session->waitFor([&] { return sample.endedBy() == SIGKILL; }));
    QCOMPARE(bystander.state(), 'S');
}

void TestActionsSignals::whenItHasGoneTheBoxSaysSo()
{
    const SampleProcess bystander(QStringLiteral("by"), SampleProcess::Sleeping, testUser());
    auto sample = std::make_unique<SampleProcess>(QStringLiteral("gon"), SampleProcess::Sleeping, testUser());
    QVERIFY(bystander.isReady() && sample->isReady());
    const int pid = sample->pid();
    QVERIFY(m_page->waitForRow(pid));
    QVERIFY(ask(Shortcut, terminateCommand, pid));
    sample.reset();
    QVERIFY(m_page->waitForNoRow(pid));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Error")));
    QCOMPARE(m_session->dialog().value(QLatin1String("text")).toString(),
             QStringLiteral("Unable send signal to process. Reason - No such process"));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForNoDialog());
    QCOMPARE(bystander.state(), 'S');
}

// Ctrl+F would change the list, the other keys would ask. Back on the page the last key does ask.
void TestActionsSignals::onOtherPagesTheShortcutsDoNothing()
{
    const SampleProcess sample(QStringLiteral("pag"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(m_page->waitForRow(sample.pid()));
    QVERIFY(m_page->select(sample.pid()));
    for (const char *tab : {"System", "File systems", "Network"}) {
        QVERIFY(m_page->showPage(QLatin1String(tab)));
        for (const char *key : {"ctrl+s", "ctrl+c", "ctrl+t", "ctrl+k", "ctrl+f", "ctrl+a"}) {
            QVERIFY(m_session->key(QLatin1String(key)));
            QVERIFY2(m_session->dialog().isEmpty(), key);
        }
    }
    QVERIFY(m_page->showPage(QStringLiteral("Processes")));
    QVERIFY(m_session->waitFor([&] { return m_page->isSelected(sample.pid()); }));
    QVERIFY(m_session->dialog().isEmpty());
    QVERIFY2(ask(MenuBar, killCommand, sample.pid()), "a tree or all processes would be shown otherwise");
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(!m_session->menuEntry(QStringLiteral("Tree view")).value(QLatin1String("checked")).toBool());
    QVERIFY(m_session->menuEntry(QStringLiteral("My processes")).value(QLatin1String("checked")).toBool());
}

QTEST_GUILESS_MAIN(TestActionsSignals)
#include "test_actions_signals.moc"
