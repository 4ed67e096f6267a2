// SPDX-License-Identifier: GPL-3.0-or-later
// The line that filters the process list, operated by real keys.
#include "tests/desktop/programtest.h"

#include <QJsonArray>

#include <unistd.h>

namespace {

// No process has these pids: they are beyond the kernel's limit.
const int systemPid = 5000001;
const int sessionPid = 5000002;
const int browserPid = 5000003;
const int editorPid = 5000104;
const int shellPid = 5000105;

/// Processes of the test's user, in a tree that the list shows completely.
standin::Machine madeUpMachine()
{
    standin::Machine machine;
    machine.processes.emplace();
    const auto add = [&](int pid, int parent, const char *name, const char *arguments) {
        standin::Process process;
        process.parent = parent;
        process.name = name;
        process.uid = static_cast<int>(getuid());
        process.startTime = 1700000000;
        process.resident = static_cast<std::uint64_t>(pid % 100) << 22;
        process.arguments = std::string(arguments) + '\0';
        machine.processes->emplace(pid, process);
    };
    add(systemPid, 1, "systemd", "/usr/lib/systemd/systemd --user");
    add(sessionPid, systemPid, "gnome-shell", "/usr/bin/gnome-shell");
    add(browserPid, sessionPid, "firefox-esr", "/usr/lib/firefox-esr/firefox-esr --private-window");
    add(editorPid, 1, "kate", "/usr/bin/kate --new notes.txt");
    add(shellPid, 1, "bash", "-bash");
    return machine;
}

} // namespace

class TestFindProcess : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SessionOptions options;
        options.settings = "[interval]\nprocs=1\n";
        options.machine = madeUpMachine();
        start(options);
    }

    void cleanup() { closeAllAndEnd(); }

    void typingInTheListFiltersIt()
    {
        QVERIFY(clickCell(editorPid, "Memory")); // not in the Name column
        QVERIFY(session->type("FIRE private"));
        QVERIFY(waitForShown({browserPid}));
        QVERIFY(session->waitFor([&] { return count() == "1 of 5"; }));
        QCOMPARE(session->text("filterText"), QString("FIRE private"));
        QVERIFY(!session->widgetRect("filterLine").intersects(session->widgetRect("treeView")));
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForClosed());
        QVERIFY(waitForShown({systemPid, sessionPid, browserPid, editorPid, shellPid}));
    }

    void aNumberFindsThePidAndWhatContainsIt()
    {
        QVERIFY(session->type("/50001"));
        QVERIFY(waitForShown({editorPid, shellPid}));
        QVERIFY(session->type("05"));
        QVERIFY(waitForShown({shellPid}));
    }

    void theLineOpens_data()
    {
        addTextRows("way", {"slash", "context menu", "context menu by keys", "Process menu"});
    }

    void theLineOpens()
    {
        QFETCH(QString, way);
        QVERIFY(page->select(editorPid));
        if (way == "slash") {
            QVERIFY(session->key("slash"));
        } else if (way == "context menu by keys") {
            QVERIFY(session->key("Menu"));
            QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Find process..."); }));
            QVERIFY(session->key("Up") && session->key("Up") && session->key("Return"));
        } else if (way == "context menu") {
            QVERIFY(page->openContextMenu(editorPid));
            const QStringList texts = session->menuTexts();
            QCOMPARE(texts.mid(texts.size() - 2), QStringList({"Find process...", "Visible columns"}));
            QVERIFY(session->clickMenu("Find process..."));
        } else {
            QVERIFY(page->openProcessMenu());
            QCOMPARE(session->menuTexts().last(), QString("Find process..."));
            QVERIFY(session->clickMenu("Find process..."));
        }
        QVERIFY(session->waitFor([&] { return isFocused("filterText"); }));
        QVERIFY(session->type("kate"));
        QVERIFY(waitForShown({editorPid}));
        QVERIFY(page->isSelected(editorPid));
    }

    void keysGoFromTheLineToTheListAndBack()
    {
        QVERIFY(session->type("/5000"));
        QVERIFY(session->waitFor([&] { return count() == "5 of 5"; }));
        QVERIFY(session->key("Down"));
        QVERIFY(session->waitFor([&] { return selected() >= 0; }));
        const int first = selected();
        QVERIFY(session->key("Down"));
        QVERIFY(session->waitFor([&] { return selected() == first + 1; }));
        QVERIFY(session->type("1"));
        QVERIFY(session->waitFor([&] { return session->text("filterText") == "50001"; }));
        QVERIFY(session->key("Return") && session->key("Page_Down"));
        QVERIFY(session->waitFor([&] { return selected() == 1; }));
        const QString pid = page->list().text(1, "PID");
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForClosed());
        QVERIFY(page->isSelected(pid.toInt()));
        QVERIFY(isFocused("treeView"));
    }

    void keysThatEditTheLineSignalNobody()
    {
        QVERIFY(page->select(editorPid));
        QVERIFY(session->type("kate"));
        QVERIFY(waitForShown({editorPid}));
        QVERIFY(page->isSelected(editorPid));
        QVERIFY(session->key("ctrl+c") && session->key("ctrl+a") && session->key("ctrl+c"));
        QVERIFY(session->key("Home") && session->key("Right") && session->key("Right"));
        QVERIFY(session->key("ctrl+k"));
        QVERIFY(session->waitFor([&] { return session->text("filterText") == "ka"; }));
        QVERIFY(session->dialog().isEmpty());
        QVERIFY(session->key("ctrl+v")); // puts back what Ctrl+K has cut
        QVERIFY(session->waitFor([&] { return session->text("filterText") == "kate"; }));
        QVERIFY(session->key("ctrl+s")); // edits nothing, so it still stops the process
        QVERIFY(page->waitForDialog("Process stopping"));
    }

    void aHiddenProcessIsNoLongerSelected()
    {
        QVERIFY(page->select(editorPid));
        QVERIFY(session->type("fire"));
        QVERIFY(waitForShown({browserPid}));
        QVERIFY(session->key("Tab") && session->key("ctrl+k")); // on the button that closes
        session->stateAfterInput();
        QVERIFY(session->dialog().isEmpty());
        QVERIFY(session->key("space"));
        QVERIFY(waitForClosed());
        QCOMPARE(selected(), -1);
    }

    void theTreeShowsTheWayToAMatch()
    {
        QVERIFY(session->type("/firefox"));
        QVERIFY(waitForShown({browserPid}));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForShown({systemPid, sessionPid, browserPid}));
        QVERIFY(session->waitFor([&] { return count() == "1 of 5"; }));
        QCOMPARE(page->list().rows.at(2).depth, 2);
        QVERIFY(session->savePicture("find-tree"));
        QVERIFY(session->key("Return"));
        QVERIFY(session->waitFor([&] { return page->isSelected(browserPid); }));
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForShown({systemPid, sessionPid, browserPid, editorPid, shellPid}));
        QVERIFY(page->isSelected(browserPid));
    }

    void nothingFoundIsSaidInTheList()
    {
        QVERIFY(session->type("xyzzy"));
        QVERIFY(waitForShown({}));
        QVERIFY(session->waitFor([&] { return session->text("listNote") == "No process found"; }));
        QCOMPARE(count(), QString("0 of 5"));
        QVERIFY(session->savePicture("find-nothing"));
        standin::Machine machine = madeUpMachine();
        machine.processes->at(shellPid).name = "xyzzy";
        session->setMachine(machine);
        QVERIFY(waitForShown({shellPid}));
    }

    void theLineFitsThePage_data()
    {
        const Rows<int, QString, QString> row("dpi", "background", "language");
        row("96-dark", 96, "#303030", "C");
        row("96-light-german", 96, "#efefef", "de_DE");
        row("192-light", 192, "#efefef", "C");
        row("192-dark-german", 192, "#303030", "de_DE");
    }

    void theLineFitsThePage()
    {
        QFETCH(int, dpi);
        QFETCH(QString, background);
        QFETCH(QString, language);
        QVERIFY(session->endsCleanly());
        SessionOptions options;
        options.machine = madeUpMachine();
        options.dpi = dpi;
        options.screen = QSize(1280, 1024) * (dpi / 96);
        options.environment["LC_ALL"] = language + ".UTF-8";
        startAsOwnUser(options);
        QVERIFY(session->clickWidget("treeView")); // below its rows
        QVERIFY(session->waitFor([&] { return isFocused("treeView"); }));
        QVERIFY(session->key("ctrl+f") && session->key("slash"));
        session->probe("palette " + background);
        QVERIFY(session->waitFor([&] { return isFocused("filterText"); }));
        const QString name = QString("find-") + QTest::currentDataTag();
        QVERIFY(session->savePicture(name + "-empty"));
        QVERIFY(session->type("firefox"));
        QVERIFY(session->waitFor([&] { return page->list().rows.size() == 3; }));
        QVERIFY(session->waitFor([&] { return count().startsWith("1 ") && count().endsWith(" 5"); }));
        const QRect line = session->widgetRect("filterLine");
        QVERIFY(session->windowRect().contains(line));
        for (const char *part : {"filterText", "filterCount", "filterClose"}) {
            const QJsonObject widget = session->widget(part);
            const QJsonArray wanted = widget.value("sizeHint").toArray();
            const QRect rect = rectOf(widget.value("rect"));
            QVERIFY2(line.contains(rect), part);
            QVERIFY2(rect.height() >= wanted.at(1).toInt(), part);
        }
        QVERIFY(session->savePicture(name));
    }

    void theLineIsEmptyAtEveryStart()
    {
        QVERIFY(session->type("fire"));
        QVERIFY(waitForShown({browserPid}));
        QVERIFY(session->key("ctrl+q") && session->exitsCleanly());
        QVERIFY(session->start({"processes"}));
        QVERIFY(waitForClosed());
        QVERIFY(waitForShown({systemPid, sessionPid, browserPid, editorPid, shellPid}));
    }

private:
    void start(const SessionOptions &options)
    {
        startAsOwnUser(options);
        QVERIFY(session->clickHeader("treeView", "PID"));
        QVERIFY(session->waitFor([&] {
            const Table now = page->list();
            return now.sortSection == now.section("PID") && !now.sortDescending;
        }));
        QVERIFY(session->waitFor([&] { return isFocused("treeView"); }));
    }

    bool clickCell(int pid, const char *header)
    {
        return session->click([&] {
            const Table now = page->list();
            return now.rows.value(rowOf(now, pid)).rects.value(now.section(header));
        });
    }

    bool waitForShown(const QList<int> &pids)
    {
        return session->waitFor([&] {
            QList<int> shown;
            for (const QString &pid : page->list().column("PID")) {
                shown.append(pid.toInt());
            }
            return shown == pids;
        });
    }

    bool waitForClosed()
    {
        return session->waitFor([&] { return !session->widget("filterLine").value("visible").toBool(); });
    }

    /// The selected row; -1 if there is none.
    int selected()
    {
        const Table now = page->list();
        for (int row = 0; row < now.rows.size(); ++row) {
            if (now.rows.at(row).selected) {
                return row;
            }
        }
        return -1;
    }

    QString count() { return session->text("filterCount"); }
};

QTEST_GUILESS_MAIN(TestFindProcess)
#include "test_find_process.moc"
