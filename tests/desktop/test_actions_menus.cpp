// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <csignal>

class TestActionsMenus : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWithProcessInterval(1); }
    void cleanup() { reportFailureAndCloseAll(); }
    void cleanupTestCase() { verifyQuitsCleanly(); }
    void menuBarHasItsEntries_data()
    {
        const Rows<QStringList, QStringList> row("way", "entries");
        row("File", QStringList{"File"}, QStringList{"Exit"});
        row("Edit", QStringList{"Edit"}, QStringList{"Update interval", "Process"});
        row("Update interval", QStringList{"Edit", "Update interval"},
            QStringList{"General interval", "Process interval", "Filesystem interval", "Network interval"});
        row("Help", QStringList{"Help"}, QStringList{"About", "About Qt"});
    }

    void menuBarHasItsEntries()
    {
        QFETCH(QStringList, way);
        QFETCH(QStringList, entries);
        QVERIFY(clickMenus(way));
        QVERIFY(waitForMenuTexts(entries));
        if (entries.contains("Exit")) {
            QCOMPARE(shortcut("Exit"), QString("Ctrl+Q"));
        }
    }

    void processMenuIsOnItsPageOnly()
    {
        for (const QString tab : {"System", "File systems", "Network", "Processes"}) {
            QVERIFY(page->showPage(tab));
            QVERIFY(session->clickMenu("Edit"));
            QStringList expected = {"Update interval"};
            if (tab == "Processes") {
                expected.append("Process");
            }
            QVERIFY2(waitForMenuTexts(expected), qPrintable(tab));
            QVERIFY(page->closeMenus());
        }
    }

    void processMenuShowsItsActionsAndShortcuts()
    {
        const SampleProcess process = sample("mnu");
        QVERIFY(isListed(process));
        QVERIFY(page->select(process.pid()));
        QVERIFY(page->openProcessMenu());
        const std::pair<const char *, const char *> expected[] = {{"Tree view", "Ctrl+F"},
                                                                  {"My processes", "Ctrl+M"},
                                                                  {"All processes", "Ctrl+A"},
                                                                  {"Stop process", "Ctrl+S"},
                                                                  {"Continue process", "Ctrl+C"},
                                                                  {"Terminate process", "Ctrl+T"},
                                                                  {"Kill process", "Ctrl+K"},
                                                                  {"Change priority...", ""},
                                                                  {"Copy row", ""},
                                                                  {"Sort by", ""},
                                                                  {"Find process...", ""}};
        QStringList entries;
        for (const auto &[entry, keys] : expected) {
            entries.append(entry);
            QCOMPARE(shortcut(entry), QString(keys));
        }
        QCOMPARE(session->menuTexts(), entries);
        QVERIFY(session->menuEntry("Stop process").value("icon").toBool());
        QVERIFY(session->menuEntry("Continue process").value("icon").toBool());
    }

    void onlyAStoppedProcessCanBeContinued()
    {
        const SampleProcess process = sample("ena");
        QVERIFY(process.isReady());
        const auto isEnabled = [&](const char *entry) {
            return session->menuEntry(entry).value("enabled").toBool();
        };
        for (const bool stopped : {false, true}) {
            QVERIFY(process.sendSignal(stopped ? SIGSTOP : SIGCONT));
            QVERIFY(page->waitForText(process.pid(), "State", stopped ? "Stopped" : "Sleeping"));
            QVERIFY(page->openContextMenu(process.pid()));
            QCOMPARE(isEnabled("Stop process"), !stopped);
            QCOMPARE(isEnabled("Continue process"), stopped);
            QVERIFY(isEnabled("Terminate process") && isEnabled("Kill process"));
            QVERIFY(page->closeMenus());
        }
    }

    void ctrlFTogglesTheTreeAndItsActions()
    {
        const SampleProcess process = sample("tre");
        QVERIFY(isListed(process));
        for (const bool tree : {true, false}) {
            QVERIFY(session->key("ctrl+f"));
            QVERIFY(page->waitForRow(process.pid()));
            QVERIFY(page->openProcessMenu());
            QCOMPARE(isChecked("Tree view"), tree);
            QCOMPARE(session->menuTexts().contains("Expand all"), tree);
            QCOMPARE(session->menuTexts().contains("Collapse all"), tree);
            QVERIFY(page->closeMenus());
        }
        QVERIFY(!isTree());
    }

    /// The children of the parent come and go; only the user expands or collapses it. Returns to the flat
    /// list.
    void treeExpandsAndCollapses()
    {
        const SampleProcess parent = sample("par", SampleProcess::Parent);
        QVERIFY(parent.isReady());
        QVERIFY(session->key("ctrl+f"));
        const auto isExpanded = [&] {
            const Table now = page->list();
            return now.rows.value(now.find("PID", QString::number(parent.pid()))).expanded;
        };
        QVERIFY(session->waitFor([&] { return isTree() && isExpanded(); }));
        QVERIFY(page->openProcessMenu());
        QVERIFY(session->clickMenu("Collapse all"));
        QVERIFY(session->waitFor([&] { return isTree() && !isExpanded(); }));
        QVERIFY(page->openProcessMenu());
        QVERIFY(session->clickMenu("Expand all"));
        QVERIFY(session->waitFor(isExpanded));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(session->waitFor([&] { return !page->list().rows.isEmpty() && !isTree(); }));
    }

    void myAndAllProcessesAreExclusive()
    {
        const int initPid = 1;
        QVERIFY(page->openProcessMenu());
        QVERIFY(isChecked("My processes") && !isChecked("All processes"));
        QVERIFY(session->clickMenu("All processes"));
        QVERIFY(page->waitForRow(initPid));
        QVERIFY(page->openProcessMenu());
        QVERIFY(!isChecked("My processes") && isChecked("All processes"));
        QVERIFY(session->clickMenu("My processes"));
        if (testUser() >= 0) {
            QVERIFY(page->waitForNoRow(initPid));
        }
        QVERIFY(page->openProcessMenu());
        QVERIFY(isChecked("My processes") && !isChecked("All processes"));
    }

    void aboutBoxTellsVersionAndPurpose()
    {
        QVERIFY(clickMenus({"Help", "About"}));
        QVERIFY(session->waitFor([&] { return !session->dialog().isEmpty(); }));
        const QString text = session->dialog().value("text").toString();
        QVERIFY2(QRegularExpression("\\d+\\.\\d+").match(text).hasMatch(), qPrintable(text));
        QVERIFY2(text.contains("ystem monitor"), qPrintable(text));
    }

private:
    bool isTree()
    {
        const Table now = page->list();
        return std::any_of(now.rows.begin(), now.rows.end(),
                           [](const Table::Row &row) { return row.depth > 0; });
    }

    bool waitForMenuTexts(const QStringList &texts)
    {
        return session->waitFor([&] { return session->menuTexts() == texts; });
    }

    QString shortcut(const char *entry) { return session->menuEntry(entry).value("shortcut").toString(); }
};

QTEST_GUILESS_MAIN(TestActionsMenus)
#include "test_actions_menus.moc"
