// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of the process list, operated by real keys and clicks.
#include "tests/desktop/programtest.h"

#include <unistd.h>

namespace {

// No process has these pids: they are beyond the kernel's limit.
const int sessionPid = 5000001;
const int browserPid = 5000300; // the last child, as the tree shows no other

/// The first 300 processes of a desktop: a session with all the others below it.
standin::Machine madeUpDesktop()
{
    standin::Machine machine;
    machine.processes.emplace();
    for (int i = 0; i < 300; ++i) {
        standin::Process process;
        const int pid = sessionPid + i;
        process.parent = pid == sessionPid ? 1 : sessionPid;
        process.name = pid == sessionPid ? "gnome-shell" : "gvfsd-" + std::to_string(i);
        process.arguments = "/usr/libexec/" + process.name + " --spawner :1.7 " + std::string(60, 'x') + '\0';
        process.uid = static_cast<int>(getuid());
        process.startTime = 1700000000;
        machine.processes->emplace(pid, process);
    }
    machine.processes->at(browserPid).name = "Firefox";
    return machine;
}

} // namespace

class TestProcessColumns : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllAndEnd(); }

    void aProcessIsFoundSeenInItsTreeAndCopiedByKeysAlone()
    {
        start();
        QVERIFY(session->key("Tab")); // from the tabs to the list
        QVERIFY(session->waitFor([&] { return isFocused("treeView"); }));
        QVERIFY(session->type("firefox"));
        QVERIFY(waitForNames({"Firefox"}));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(waitForNames({"gnome-shell", "Firefox"}));
        QCOMPARE(page->list().rows.at(1).depth, 1);
        copyByKeys();
        const QString copied = session->text("filterText");
        QVERIFY2(copied.startsWith("Firefox\t"), qPrintable(copied));
        QVERIFY2(copied.split('\t').size() == page->list().visibleHeaders().size(), qPrintable(copied));
    }

    void theListIsSortedByKeys()
    {
        start();
        QVERIFY(session->key("alt+e"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Process"); }));
        QVERIFY(session->key("Up") && session->key("Right")); // it is the last entry
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Sort by"); }));
        QVERIFY(session->key("b"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Descending"); }));
        QVERIFY(session->menuEntry("Name").value("checked").toBool());
        QVERIFY(session->key("g"));
        QVERIFY(session->waitFor([&] { return page->list().sortDescending; }));
        QVERIFY(session->waitFor([&] { return page->list().rows.first().texts.first() == "gvfsd-99"; }));
    }

    void aRightClickOnTheHeaderShowsAndHidesColumns()
    {
        start();
        QVERIFY(session->click([&] { return page->list().headerRect("PID"); }, 3));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Parent PID"); }));
        QVERIFY(session->clickMenu("PID"));
        QVERIFY(session->waitFor([&] { return !page->list().visibleHeaders().contains("PID"); }));
    }

    void theColumnsFitTheView_data()
    {
        const Rows<int, QString, QString> row("dpi", "background", "language");
        row("96-light", 96, "#efefef", "C");
        row("96-dark-german", 96, "#303030", "de_DE");
        row("192-dark", 192, "#303030", "C");
        row("192-light-german", 192, "#efefef", "de_DE");
    }

    void theColumnsFitTheView()
    {
        QFETCH(int, dpi);
        QFETCH(QString, background);
        QFETCH(QString, language);
        SessionOptions options;
        options.settings = "[General]\ncomplete_tree=true\n";
        options.dpi = dpi;
        options.screen = QSize(1280, 1024) * (dpi / 96);
        options.environment["LC_ALL"] = language + ".UTF-8";
        start(options);
        QVERIFY(session->resizeMainWindow(QSize(1200, 600) * (dpi / 96)));
        session->probe("palette " + background);
        QVERIFY(session->savePicture(QString("columns-") + QTest::currentDataTag()));
        const Table list = page->list();
        QCOMPARE(list.headers.last().rect.right(), list.viewport.right());
        for (const Table::Header &header : list.headers) {
            const bool isCommandLine = header.section == list.headers.last().section - 1;
            QCOMPARE(header.rect.width() < header.contentWidth, isCommandLine);
        }
        verifyToolTip(list);
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(session->waitFor([&] { return page->list().rows.value(1).depth == 1; }));
        QCOMPARE(page->list().rows.size(), 300);
        QVERIFY(session->savePicture(QString("complete-tree-") + QTest::currentDataTag()));
    }

private:
    void start(SessionOptions options = {})
    {
        options.machine = madeUpDesktop();
        startAsOwnUser(options);
        QVERIFY(session->waitFor([&] { return page->list().rows.size() == 300; }));
    }

    bool waitForNames(const QStringList &names)
    {
        return session->waitFor([&] {
            QStringList shown;
            for (const Table::Row &row : page->list().rows) {
                shown.append(row.texts.first());
            }
            return shown == names;
        });
    }

    /// The mouse rests on a text that is cut, then on one that is not.
    void verifyToolTip(const Table &list)
    {
        const int commandLine = list.headers.last().section - 1;
        session->x().moveTo(list.rows.first().rects.at(commandLine).center());
        QVERIFY(session->waitFor([&] { return session->text("QTipLabel").contains("--spawner"); }));
        session->x().moveTo(list.rows.first().rects.first().center());
        QVERIFY(session->waitFor([&] { return session->text("QTipLabel").isEmpty(); }));
    }

    /// Selects what is found, copies its row and pastes it into the line.
    void copyByKeys()
    {
        QVERIFY(session->key("Return"));
        QVERIFY(session->waitFor([&] { return page->isSelected(browserPid); }));
        QVERIFY(session->key("Menu"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Copy row"); }));
        // The number of keys depends on where the mouse happens to be.
        QVERIFY(session->waitFor([&] {
            session->stateAfterInput();
            return session->menuEntry("Copy row").value("active").toBool() || (session->key("Up") && false);
        }));
        QVERIFY(session->key("Return") && session->waitFor([&] { return session->menuTexts().isEmpty(); }));
        QVERIFY(session->key("slash") && session->key("ctrl+v"));
        const QString pid = QString::number(browserPid);
        QVERIFY(session->waitFor([&] { return session->text("filterText").contains(pid); }));
    }
};

QTEST_GUILESS_MAIN(TestProcessColumns)
#include "test_process_columns.moc"
