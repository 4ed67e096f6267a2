// SPDX-License-Identifier: GPL-3.0-or-later
// The complete tree, operated by real keys and clicks.
#include "tests/desktop/madeupprocess.h"
#include "tests/desktop/programtest.h"

namespace {

const int manager = madeUpPid(1);
const int shell = madeUpPid(2);
const int make = madeUpPid(3);
const int compiler = madeUpPid(4);
const int linker = madeUpPid(5);
const int editor = madeUpPid(6);
const int server = madeUpPid(7);

/// Siblings, of which the required tree shows only the last.
standin::Machine machineWithSiblings()
{
    standin::Machine machine;
    machine.processes = {
        {manager, madeUpProcess("manager")},       {shell, madeUpProcess("shell", manager)},
        {make, madeUpProcess("make", shell)},      {compiler, madeUpProcess("compiler", make)},
        {linker, madeUpProcess("linker", make)},   {editor, madeUpProcess("editor", shell)},
        {server, madeUpProcess("server", manager)}};
    return machine;
}

} // namespace

class TestTreeModes : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        machine = machineWithSiblings();
        SessionOptions options;
        options.settings = "[interval]\nprocs=1\n[General]\nproc_sort_column=2\n";
        options.machine = machine;
        startProgram(options);
    }

    void cleanup() { closeAllAndQuit(); }

    void theActionIsFoundInTreeModeOnlyAndIsRemembered()
    {
        QVERIFY(page->openProcessMenu());
        QVERIFY(!session->menuTexts().contains("Complete tree"));
        QVERIFY(page->closeMenus());
        QVERIFY(page->select(server));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForShown("1(7)"));
        QVERIFY(page->openProcessMenu());
        QCOMPARE(session->menuTexts().mid(2, 2), QStringList({"Collapse all", "Complete tree"}));
        QVERIFY(!isChecked("Complete tree"));
        QVERIFY(session->clickMenu("Complete tree"));
        QVERIFY(waitForShown(everyProcess));
        QVERIFY(page->isSelected(server));
        QVERIFY(session->savePicture("complete-tree"));

        restart();
        QVERIFY(session->settings().contains("complete_tree=true"));
        QVERIFY(waitForShown("1 2 3 4 5 6 7"));
        QVERIFY(page->select(server));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForShown(everyProcess));
        QVERIFY(session->key("Menu"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Complete tree"); }));
        QVERIFY(isChecked("Complete tree"));
        for (int entry = 0; entry < 4; ++entry) {
            QVERIFY(session->key("Down"));
        }
        QVERIFY(session->key("Return"));
        QVERIFY(waitForShown("1(7)"));

        restart();
        QVERIFY(!session->settings().contains("complete_tree"));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForShown("1(7)"));
    }

    void rowsStayExpandedAndSelectedWhereverTheyMove()
    {
        showCompleteTree();
        QVERIFY(page->select(make));
        QVERIFY(session->key("minus"));
        QVERIFY(waitForShown("1(2(3 6) 7)"));
        machine.processes->erase(shell); // its children go to the manager
        machine.processes->at(make).parent = manager;
        machine.processes->at(editor).parent = manager;
        session->setMachine(machine);
        QVERIFY(waitForShown("1(3 6 7)"));
        QVERIFY(page->isSelected(make));
        machine.processes->at(make).name = "ninja";
        session->setMachine(machine);
        QVERIFY(page->waitForText(make, "Name", "ninja"));
        QVERIFY(waitForShown("1(3 6 7)"));
        QVERIFY(page->isSelected(make));
        QVERIFY(session->key("plus"));
        QVERIFY(waitForShown("1(3(4 5) 6 7)"));
        machine.processes->erase(manager);
        for (const int orphan : {make, editor, server}) {
            machine.processes->at(orphan).parent = 1;
        }
        session->setMachine(machine);
        QVERIFY(waitForShown("3(4 5) 6 7"));
        QVERIFY(page->isSelected(make));
    }

    void theFilterLeavesTheWayToAMatch()
    {
        showCompleteTree();
        QVERIFY(page->select(linker));
        QVERIFY(session->type("link"));
        QVERIFY(waitForShown("1(2(3(5)))"));
        QVERIFY(page->isSelected(linker));
        QVERIFY(session->waitFor([&] { return session->text("filterCount") == "1 of 7"; }));
        machine.processes->erase(make); // the way changes
        machine.processes->at(compiler).parent = server;
        machine.processes->at(linker).parent = server;
        session->setMachine(machine);
        QVERIFY(waitForShown("1(7(5))"));
        QVERIFY(page->isSelected(linker));
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForShown("1(2(6) 7(4 5))"));
        QVERIFY(page->isSelected(linker));
    }

private:
    void showCompleteTree()
    {
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForShown("1(7)"));
        QVERIFY(page->openProcessMenu());
        QVERIFY(session->clickMenu("Complete tree"));
        QVERIFY(waitForShown(everyProcess));
    }

    void restart()
    {
        QVERIFY(page->quit());
        QVERIFY2(session->start({"processes"}), qPrintable(session->error()));
    }

    bool waitForShown(const QString &expected)
    {
        return session->waitFor([&] { return shown(page->list(), -1) == expected; });
    }

    /// The numbers of the pids as the view shows them, without what is in collapsed rows: "1(2 3)".
    static QString shown(const Table &table, int parent)
    {
        QStringList texts;
        for (int row = 0; row < table.rows.size(); ++row) {
            if (qMax(table.parentOf(row), -1) != parent) {
                continue;
            }
            const QString below = table.rows.at(row).expanded ? shown(table, row) : QString();
            const int number = table.text(row, "PID").toInt() - madeUpPid(0);
            texts.append(QString::number(number) + (below.isEmpty() ? below : '(' + below + ')'));
        }
        return texts.join(' ');
    }

    const QString everyProcess = "1(2(3(4 5) 6) 7)";
    standin::Machine machine;
};

QTEST_GUILESS_MAIN(TestTreeModes)
#include "test_treemodes.moc"
