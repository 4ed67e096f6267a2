// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

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

/// How a user triggers a command.
enum Way { MenuBar, ContextMenu, Shortcut };

} // namespace

Q_DECLARE_METATYPE(Command)
Q_DECLARE_METATYPE(Way)

class TestActionsSignals : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWithProcessInterval(1); }
    void cleanup() { reportFailureAndCloseAll(); }
    void cleanupTestCase() { verifyQuitsCleanly(); }
    void everyWayAsksAndSendsTheSignal_data()
    {
        const Rows<Way> row("way");
        row("menu bar", MenuBar);
        row("context menu", ContextMenu);
        row("shortcut", Shortcut);
    }

    /// The state is read back from the kernel and from the table.
    void everyWayAsksAndSendsTheSignal()
    {
        QFETCH(Way, way);
        const SampleProcess process = sample("sig");
        const SampleProcess other = sample("oth");
        QVERIFY(process.isReady() && other.isReady());
        const int pid = process.pid();
        const int otherPid = other.pid();
        QVERIFY(page->waitForText(pid, "State", "Sleeping"));

        QVERIFY(confirm(way, stopCommand, pid));
        QVERIFY(page->waitForText(pid, "State", "Stopped"));
        QCOMPARE(process.state(), 'T');

        QVERIFY(confirm(way, continueCommand, pid));
        QVERIFY(page->waitForText(pid, "State", "Sleeping"));
        QCOMPARE(process.state(), 'S');

        QVERIFY(confirm(way, terminateCommand, pid));
        QVERIFY(session->waitFor([&] { return process.endedBy() == SIGTERM; }));
        QVERIFY(page->waitForNoRow(pid));
        QCOMPARE(other.state(), 'S');

        QVERIFY(confirm(way, killCommand, otherPid));
        QVERIFY(session->waitFor([&] { return other.endedBy() == SIGKILL; }));
    }

    void onlyOkSendsASignal_data()
    {
        const Rows<Command> row("command");
        for (const Command &command : {stopCommand, terminateCommand, killCommand}) {
            row(command.entry, command);
        }
    }

    /// A process that had been stopped or ended could not rename itself afterwards.
    void onlyOkSendsASignal()
    {
        QFETCH(Command, command);
        const SampleProcess process = sample("no");
        QVERIFY(isListed(process));
        const std::pair<const char *, std::function<bool()>> refusals[] = {
            {"Return", [&] { return session->key("Return"); }},
            {"Escape", [&] { return session->key("Escape"); }},
            {"space", [&] { return session->key("space"); }},
            {"Cancel", [&] { return session->clickButton("Cancel"); }},
            {"close button", [&] { return closeDialogByFrame(); }}};
        for (const auto &[name, refuse] : refusals) {
            QVERIFY2(ask(Shortcut, command, process.pid()), name);
            QVERIFY2(refuse(), name);
            QVERIFY2(page->waitForNoDialog(), name);
        }
        QVERIFY(process.sendSignal(SIGUSR1));
        QVERIFY(page->waitForText(process.pid(), "Name", process.renamed()));
        QVERIFY(page->waitForText(process.pid(), "State", "Sleeping"));
    }

    void enterLeavesAStoppedProcessStopped()
    {
        const SampleProcess process = sample("stp");
        QVERIFY(process.isReady() && process.sendSignal(SIGSTOP));
        QVERIFY(page->waitForText(process.pid(), "State", "Stopped"));
        QVERIFY(ask(Shortcut, continueCommand, process.pid()));
        QVERIFY(session->key("Return"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY(waitForRefresh());
        QCOMPARE(process.state(), 'T');
        QCOMPARE(page->text(process.pid(), "State"), QString("Stopped"));
    }

    void shortcutActsOnTheSelectedRow()
    {
        const SampleProcess first = sample("one");
        const SampleProcess second = sample("two");
        QVERIFY(first.isReady() && second.isReady());
        QVERIFY(page->select(first.pid()));
        QVERIFY(page->openProcessMenu()); // the menu must not keep its process for later shortcuts
        QVERIFY(page->closeMenus());
        QVERIFY(page->select(second.pid()));
        QVERIFY(session->key("ctrl+k"));
        QVERIFY(page->waitForDialog("Process killing"));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(session->waitFor([&] { return second.endedBy() == SIGKILL; }));
        QCOMPARE(first.state(), 'S');
    }

    /// While the box is open, the process renames itself, and its row is replaced.
    void signalGoesToTheProcessThatTheBoxNamed()
    {
        const SampleProcess process = sample("ask");
        const SampleProcess bystander = sample("by");
        QVERIFY(bystander.isReady() && isListed(process));
        QVERIFY(ask(Shortcut, killCommand, process.pid()));
        QVERIFY(process.sendSignal(SIGUSR1));
        QVERIFY(page->waitForText(process.pid(), "Name", process.renamed()));
        QCOMPARE(session->dialog().value("informativeText").toString(),
                 QString("%1 (%2)").arg(process.name()).arg(process.pid()));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(session->waitFor([&] { return process.endedBy() == SIGKILL; }));
        QCOMPARE(bystander.state(), 'S');
    }

    void exitOfTheProcessIsReported()
    {
        const SampleProcess bystander = sample("by");
        std::optional<SampleProcess> process(std::in_place, "gon", SampleProcess::Sleeping, testUser());
        QVERIFY(bystander.isReady() && isListed(*process));
        const int pid = process->pid();
        QVERIFY(ask(Shortcut, terminateCommand, pid));
        process.reset();
        QVERIFY(page->waitForNoRow(pid));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForDialog("Error"));
        QCOMPARE(session->dialog().value("text").toString(),
                 QString("Unable send signal to process. Reason - No such process"));
        QVERIFY(clickOk());
        QCOMPARE(bystander.state(), 'S');
    }

    /// Ctrl+F and Ctrl+A would change the list, the others would ask.
    void shortcutsDoNothingOnOtherPages()
    {
        const SampleProcess process = sample("pag");
        QVERIFY(isListed(process));
        QVERIFY(page->select(process.pid()));
        for (const char *tab : {"System", "File systems", "Network"}) {
            QVERIFY(page->showPage(tab));
            for (const char *key : {"ctrl+s", "ctrl+c", "ctrl+t", "ctrl+k", "ctrl+f", "ctrl+a"}) {
                QVERIFY(session->key(key));
                QVERIFY2(session->dialog().isEmpty(), key);
            }
        }
        QVERIFY(page->showPage("Processes"));
        QVERIFY(session->waitFor([&] { return page->isSelected(process.pid()); }));
        QVERIFY(session->dialog().isEmpty());
        QVERIFY2(ask(MenuBar, killCommand, process.pid()), "the list is a tree or shows all processes");
        QVERIFY(session->key("Escape"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY(page->openProcessMenu());
        QVERIFY(!isChecked("Tree view"));
        QVERIFY(isChecked("My processes"));
    }

private:
    bool trigger(Way way, const Command &command, int pid)
    {
        switch (way) {
        case MenuBar:
            return page->select(pid) && page->openProcessMenu() && session->clickMenu(command.entry);
        case ContextMenu:
            return page->openContextMenu(pid) && session->clickMenu(command.entry);
        case Shortcut:
            break;
        }
        return page->select(pid) && session->key(command.shortcut);
    }

    /// Triggers the command and checks the question: its title, its text, and that Cancel is the default.
    bool ask(Way way, const Command &command, int pid)
    {
        if (!trigger(way, command, pid) || !page->waitForDialog(command.title)) {
            return false;
        }
        const QJsonObject box = session->dialog();
        QMap<QString, bool> isDefault;
        for (const QJsonValue &button : box.value("buttons").toArray()) {
            isDefault[button["text"].toString().remove('&')] = button["default"].toBool();
        }
        return box.value("text").toString() == command.text &&
               isDefault == QMap<QString, bool>{{"Cancel", true}, {"OK", false}};
    }

    bool confirm(Way way, const Command &command, int pid) { return ask(way, command, pid) && clickOk(); }
};

QTEST_GUILESS_MAIN(TestActionsSignals)
#include "test_actions_signals.moc"
