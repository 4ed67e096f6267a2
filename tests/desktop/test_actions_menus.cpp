// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"

#include <QJsonArray>
#include <QtTest>

#include <algorithm>
#include <csignal>

class TestActionsMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void theMenuBarHasItsEntries();
    void theProcessMenuIsThereOnItsPageAlone();
    void theProcessMenuShowsItsActionsAndShortcuts();
    void aStoppedProcessCanBeContinuedAndNoOther();
    void onEmptySpaceTheContextMenuHasNoProcess();
    void ctrlFSwitchesTheTreeAndItsActions();
    void theTreeIsExpandedAndCollapsed();
    void ownAndAllProcessesExcludeOneAnother();
    void helpAboutTellsVersionAndPurpose();

private:
    bool isChecked(const char *entry);
    bool isTree();
    QString shortcut(const char *entry);

    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestActionsMenus::initTestCase()
{
    SessionOptions options;
    options.settings = "[interval]\nprocs=1\n";
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
}

void TestActionsMenus::cleanup()
{
    if (QTest::currentTestFailed()) {
        qWarning("%s", qPrintable(m_session->error()));
        m_session->savePicture(QLatin1String("failed-") + QLatin1String(QTest::currentTestFunction()));
    }
    QVERIFY(m_page->dismissAll());
}

void TestActionsMenus::cleanupTestCase()
{
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

bool TestActionsMenus::isChecked(const char *entry)
{
    return m_session->menuEntry(QLatin1String(entry)).value(QLatin1String("checked")).toBool();
}

QString TestActionsMenus::shortcut(const char *entry)
{
    return m_session->menuEntry(QLatin1String(entry)).value(QLatin1String("shortcut")).toString();
}

bool TestActionsMenus::isTree()
{
    const Table now = m_page->list();
    return std::any_of(now.rows.begin(), now.rows.end(), [](const Table::Row &row) { return row.depth > 0; });
}

void TestActionsMenus::theMenuBarHasItsEntries()
{
    const struct
    {
        const char *menu;
        QStringList entries;
    } menus[] = {{"File", {QStringLiteral("Exit")}},
                 {"Edit", {QStringLiteral("Update interval"), QStringLiteral("Process")}},
                 {"Help", {QStringLiteral("About"), QStringLiteral("About Qt")}}};
    for (const auto &menu : menus) {
        QVERIFY(m_session->clickMenu(QLatin1String(menu.menu)));
        QVERIFY2(m_session->waitFor([&] { return m_session->menuTexts() == menu.entries; }), menu.menu);
        if (menu.entries.contains(QStringLiteral("Exit")))
            QCOMPARE(shortcut("Exit"), QStringLiteral("Ctrl+Q"));
        QVERIFY(m_page->closeMenus());
    }
    QVERIFY(m_session->clickMenu(QStringLiteral("Edit")));
    QVERIFY(m_session->clickMenu(QStringLiteral("Update interval")));
    QVERIFY(m_session->waitFor([&] {
        return m_session->menuTexts() ==
               QStringList{QStringLiteral("General interval"), QStringLiteral("Process interval"),
                           QStringLiteral("Filesystem interval"), QStringLiteral("Network interval")};
    }));
}

void TestActionsMenus::theProcessMenuIsThereOnItsPageAlone()
{
    const QString update = QStringLiteral("Update interval");
    for (const char *tab : {"System", "File systems", "Network", "Processes"}) {
        QVERIFY(m_page->showPage(QLatin1String(tab)));
        QVERIFY(m_session->clickMenu(QStringLiteral("Edit")));
        const bool onPage = QLatin1String(tab) == QLatin1String("Processes");
        const QStringList expected =
            onPage ? QStringList{update, QStringLiteral("Process")} : QStringList{update};
        QVERIFY2(m_session->waitFor([&] { return m_session->menuTexts() == expected; }), tab);
        QVERIFY(m_page->closeMenus());
    }
}

void TestActionsMenus::theProcessMenuShowsItsActionsAndShortcuts()
{
    const SampleProcess sample(QStringLiteral("mnu"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(m_page->waitForRow(sample.pid()));
    QVERIFY(m_page->select(sample.pid()));
    QVERIFY(m_page->openProcessMenu());
    const std::pair<const char *, const char *> expected[] = {
        {"Tree view", "Ctrl+F"},    {"My processes", "Ctrl+M"},     {"All processes", "Ctrl+A"},
        {"Stop process", "Ctrl+S"}, {"Continue process", "Ctrl+C"}, {"Terminate process", "Ctrl+T"},
        {"Kill process", "Ctrl+K"}, {"Change priority...", ""}};
    QStringList entries;
    for (const auto &each : expected) {
        entries.append(QLatin1String(each.first));
        QCOMPARE(shortcut(each.first), QLatin1String(each.second));
    }
    QCOMPARE(m_session->menuTexts(), entries);
    QVERIFY(m_session->menuEntry(QStringLiteral("Stop process")).value(QLatin1String("icon")).toBool());
    QVERIFY(m_session->menuEntry(QStringLiteral("Continue process")).value(QLatin1String("icon")).toBool());
}

void TestActionsMenus::aStoppedProcessCanBeContinuedAndNoOther()
{
    const SampleProcess sample(QStringLiteral("ena"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    const auto isEnabled = [&](const char *entry) {
        return m_session->menuEntry(QLatin1String(entry)).value(QLatin1String("enabled")).toBool();
    };
    for (const bool stopped : {false, true}) {
        QVERIFY(sample.sendSignal(stopped ? SIGSTOP : SIGCONT));
        QVERIFY(m_page->waitForText(sample.pid(), "State",
                                    stopped ? QStringLiteral("Stopped") : QStringLiteral("Sleeping")));
        QVERIFY(m_page->openContextMenu(sample.pid()));
        QCOMPARE(isEnabled("Stop process"), !stopped);
        QCOMPARE(isEnabled("Continue process"), stopped);
        QVERIFY(isEnabled("Terminate process") && isEnabled("Kill process"));
        QVERIFY(m_page->closeMenus());
    }
}

// Ctrl with a click takes the selection away; the right button on no row selects none.
void TestActionsMenus::onEmptySpaceTheContextMenuHasNoProcess()
{
    QVERIFY(m_session->key(QStringLiteral("ctrl+m"))); // a list made anew has no selection
    QVERIFY(m_session->waitFor([&] {
        const Table now = m_page->list();
        return !now.rows.isEmpty() && std::none_of(now.rows.begin(), now.rows.end(),
                                                   [](const Table::Row &row) { return row.selected; });
    }));
    if (!m_page->list().rowRect(m_page->list().rows.size() - 1).isEmpty()) { // otherwise no space is empty
        QVERIFY(m_page->openContextMenuOnEmptySpace());
        QCOMPARE(m_session->menuTexts(),
                 (QStringList{QStringLiteral("Tree view"), QStringLiteral("My processes"),
                              QStringLiteral("All processes"), QStringLiteral("Visible columns")}));
    }
}

void TestActionsMenus::ctrlFSwitchesTheTreeAndItsActions()
{
    const SampleProcess sample(QStringLiteral("tre"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(m_page->waitForRow(sample.pid()));
    for (const bool tree : {true, false}) {
        QVERIFY(m_session->key(QStringLiteral("ctrl+f")));
        QVERIFY(m_page->waitForRow(sample.pid()));
        QVERIFY(m_page->openProcessMenu());
        QCOMPARE(isChecked("Tree view"), tree);
        QCOMPARE(m_session->menuTexts().contains(QStringLiteral("Expand all")), tree);
        QCOMPARE(m_session->menuTexts().contains(QStringLiteral("Collapse all")), tree);
        QVERIFY(m_page->closeMenus());
    }
    QVERIFY(!isTree());
}

// The parent's children come and go; whether the parent is open is up to the user. Ends in the flat list.
void TestActionsMenus::theTreeIsExpandedAndCollapsed()
{
    const SampleProcess parent(QStringLiteral("par"), SampleProcess::Parent, testUser());
    QVERIFY(parent.isReady());
    QVERIFY(m_session->key(QStringLiteral("ctrl+f")));
    const auto isExpanded = [&] {
        const Table now = m_page->list();
        const int row = now.find(QStringLiteral("PID"), QString::number(parent.pid()));
        return now.rows.value(row).expanded;
    };
    QVERIFY(m_session->waitFor([&] { return isTree() && isExpanded(); }));
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(m_session->clickMenu(QStringLiteral("Collapse all")));
    QVERIFY(m_session->waitFor([&] { return isTree() && !isExpanded(); }));
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(m_session->clickMenu(QStringLiteral("Expand all")));
    QVERIFY(m_session->waitFor([&] { return isExpanded(); }));
    QVERIFY(m_session->key(QStringLiteral("ctrl+f")));
    QVERIFY(m_session->waitFor([&] { return !m_page->list().rows.isEmpty() && !isTree(); }));
}

void TestActionsMenus::ownAndAllProcessesExcludeOneAnother()
{
    const int initPid = 1;
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(isChecked("My processes") && !isChecked("All processes"));
    QVERIFY(m_session->clickMenu(QStringLiteral("All processes")));
    QVERIFY(m_page->waitForRow(initPid));
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(!isChecked("My processes") && isChecked("All processes"));
    QVERIFY(m_session->clickMenu(QStringLiteral("My processes")));
    if (testUser() >= 0)
        QVERIFY(m_page->waitForNoRow(initPid));
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(isChecked("My processes") && !isChecked("All processes"));
}

void TestActionsMenus::helpAboutTellsVersionAndPurpose()
{
    QVERIFY(m_session->clickMenu(QStringLiteral("Help")));
    QVERIFY(m_session->clickMenu(QStringLiteral("About")));
    QVERIFY(m_session->waitFor([&] { return !m_session->dialog().isEmpty(); }));
    const QString text = m_session->dialog().value(QLatin1String("text")).toString();
    QVERIFY2(QRegularExpression(QStringLiteral("\\d+\\.\\d+")).match(text).hasMatch(), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("ystem monitor")), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestActionsMenus)
#include "test_actions_menus.moc"
