// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QJsonArray>
#include <QtTest>

class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anArgumentChoosesThePageAndPrintsNothing_data();
    void anArgumentChoosesThePageAndPrintsNothing();
    void anUnknownArgumentPrintsTheUsageAndOpensGeneral_data();
    void anUnknownArgumentPrintsTheUsageAndOpensGeneral();
    void onlyTheFirstArgumentCounts();
    void theWindowAndItsTabsHaveTheirTexts();
    void aClickOnATabShowsItsPage();
    void theNameOfTheMachineIsShown();
    void ctrlQQuitsFromEveryPage_data();
    void ctrlQQuitsFromEveryPage();
    void exitInTheFileMenuQuits();
    void closingTheWindowQuits();
    void atTheFirstStartTheWindowIsWhollyOnTheScreen_data();
    void atTheFirstStartTheWindowIsWhollyOnTheScreen();
    void everyPageIsDrawnAtEachResolution_data();
    void everyPageIsDrawnAtEachResolution();

private:
    bool start(const QStringList &arguments);
    int currentTab();
    std::unique_ptr<DesktopSession> m_session;
};

namespace {

const char *const tabTexts[] = {"System", "Processes", "File systems", "Network"};
const char *const shownWidgets[] = {"lblHost", "treeView", "tableFS", "comboNet"};

const QByteArray usage = "Usage: zarn-system-monitor [tab]\n"
                         "tab can be specified as:\n"
                         "  general or -tab=1 - first page with general system info\n"
                         "  processes or -tab=2 - second page with process list\n"
                         "  filesystems or -tab=3 - third page with filesystem list\n"
                         "  network or -tab=4 - fourth page with network info\n";

} // namespace

void TestShell::init()
{
    if (!m_session)
        m_session = std::make_unique<DesktopSession>();
}

// Ends what the test before has left running, so that each starts the program as it wants it.
bool TestShell::start(const QStringList &arguments)
{
    if (m_session->isRunning()) {
        m_session->closeMainWindow();
        m_session->waitForExit();
    }
    return m_session->start(arguments);
}

int TestShell::currentTab()
{
    return m_session->widget(QStringLiteral("tabWidget")).value(QLatin1String("currentIndex")).toInt(-1);
}

void TestShell::anArgumentChoosesThePageAndPrintsNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("page");
    QTest::newRow("none") << QStringList() << 0;
    const char *const words[] = {"general", "processes", "filesystems", "network"};
    for (int page = 0; page < 4; ++page) {
        QTest::newRow(words[page]) << QStringList{QLatin1String(words[page])} << page;
        const QString number = QStringLiteral("-tab=%1").arg(page + 1);
        QTest::newRow(qPrintable(number)) << QStringList{number} << page;
    }
}

void TestShell::anArgumentChoosesThePageAndPrintsNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, page);
    QVERIFY2(start(arguments), qPrintable(m_session->error()));
    QCOMPARE(currentTab(), page);
    QCOMPARE(m_session->standardOutput(), QByteArray());
    QCOMPARE(m_session->standardError(), QByteArray());
}

void TestShell::anUnknownArgumentPrintsTheUsageAndOpensGeneral_data()
{
    QTest::addColumn<QString>("argument");
    for (const char *word : {"Network", "-tab=5", "-tab=0", "--help", "general ", ""})
        QTest::newRow(word) << QString::fromLatin1(word);
}

void TestShell::anUnknownArgumentPrintsTheUsageAndOpensGeneral()
{
    QFETCH(QString, argument);
    QVERIFY2(start({argument}), qPrintable(m_session->error()));
    QCOMPARE(currentTab(), 0);
    QCOMPARE(m_session->standardOutput(), usage);
    QCOMPARE(m_session->exitCode(), -1);
}

void TestShell::onlyTheFirstArgumentCounts()
{
    QVERIFY2(start({QStringLiteral("general"), QStringLiteral("foo")}), qPrintable(m_session->error()));
    QCOMPARE(currentTab(), 0);
    QCOMPARE(m_session->standardOutput(), QByteArray());
    QVERIFY2(start({QStringLiteral("foo"), QStringLiteral("network")}), qPrintable(m_session->error()));
    QCOMPARE(currentTab(), 0);
    QCOMPARE(m_session->standardOutput(), usage);
}

void TestShell::theWindowAndItsTabsHaveTheirTexts()
{
    QVERIFY2(start({}), qPrintable(m_session->error()));
    QCOMPARE(m_session->mainWindow().value(QLatin1String("title")).toString(),
             QStringLiteral("System monitor"));
    const QJsonArray tabs =
        m_session->widget(QStringLiteral("tabWidget")).value(QLatin1String("tabs")).toArray();
    QCOMPARE(tabs.size(), 4);
    for (int page = 0; page < 4; ++page)
        QCOMPARE(tabs[page][QLatin1String("text")].toString(), QLatin1String(tabTexts[page]));
}

void TestShell::aClickOnATabShowsItsPage()
{
    QVERIFY2(start({}), qPrintable(m_session->error()));
    for (const int page : {3, 1, 2, 0}) {
        QVERIFY2(m_session->clickTab(QLatin1String(tabTexts[page])), qPrintable(m_session->error()));
        QVERIFY(m_session->waitFor([&] {
            return currentTab() == page && m_session->widget(QLatin1String(shownWidgets[page]))
                                               .value(QLatin1String("visible"))
                                               .toBool();
        }));
    }
}

void TestShell::theNameOfTheMachineIsShown()
{
    QVERIFY2(start({}), qPrintable(m_session->error()));
    QVERIFY2(m_session->text(QStringLiteral("lblHost")).startsWith(QSysInfo::machineHostName()),
             qPrintable(m_session->text(QStringLiteral("lblHost"))));
}

void TestShell::ctrlQQuitsFromEveryPage_data()
{
    QTest::addColumn<QString>("page");
    for (const char *word : {"general", "processes", "filesystems", "network"})
        QTest::newRow(word) << QString::fromLatin1(word);
}

void TestShell::ctrlQQuitsFromEveryPage()
{
    QFETCH(QString, page);
    QVERIFY2(start({page}), qPrintable(m_session->error()));
    QVERIFY(m_session->key(QStringLiteral("ctrl+q")));
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

void TestShell::exitInTheFileMenuQuits()
{
    QVERIFY2(start({}), qPrintable(m_session->error()));
    QVERIFY2(m_session->clickMenu(QStringLiteral("File")), qPrintable(m_session->error()));
    QVERIFY2(m_session->clickMenu(QStringLiteral("Exit")), qPrintable(m_session->error()));
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
}

void TestShell::closingTheWindowQuits()
{
    QVERIFY2(start({}), qPrintable(m_session->error()));
    m_session->closeMainWindow();
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

void TestShell::everyPageIsDrawnAtEachResolution_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QSize>("screen");
    QTest::newRow("96") << 96 << QSize(1280, 1024);
    QTest::newRow("192") << 192 << QSize(2560, 2048);
}

void TestShell::everyPageIsDrawnAtEachResolution()
{
    QFETCH(int, dpi);
    QFETCH(QSize, screen);
    SessionOptions options;
    options.dpi = dpi;
    options.screen = screen;
    DesktopSession session(options);
    QVERIFY2(session.start(), qPrintable(session.error()));
    for (int page = 0; page < 4; ++page) {
        QVERIFY(session.clickTab(QLatin1String(tabTexts[page])));
        QVERIFY(session.waitFor([&] {
            return session.widget(QLatin1String(shownWidgets[page])).value(QLatin1String("visible")).toBool();
        }));
        QVERIFY2(session.savePicture(QStringLiteral("page%1-%2dpi").arg(page + 1).arg(dpi)),
                 qPrintable(session.error()));
    }
    QCOMPARE(session.standardError(), QByteArray());
}

void TestShell::atTheFirstStartTheWindowIsWhollyOnTheScreen_data()
{
    QTest::addColumn<int>("cpus");
    for (const int cpus : {1, 8, 16, 64})
        QTest::newRow(qPrintable(QString::number(cpus))) << cpus;
}

// The rows of the CPUs make the page higher than the default size from some number on.
void TestShell::atTheFirstStartTheWindowIsWhollyOnTheScreen()
{
    QFETCH(int, cpus);
    SessionOptions options;
    options.machine = standin::Machine{};
    options.machine->cpus = std::vector<standin::Cpu>(std::size_t(cpus));
    DesktopSession session(options);
    QVERIFY2(session.start(), qPrintable(session.error()));
    const QRect frame = rectOf(session.mainWindow().value(QLatin1String("frame")));
    const QRect client = rectOf(session.mainWindow().value(QLatin1String("rect")));
    QVERIFY2(frame.top() < client.top(), "the window manager draws a title bar");
    QVERIFY2(QRect(QPoint(), options.screen).contains(frame), "title bar and all");
}

QTEST_GUILESS_MAIN(TestShell)
#include "test_shell.moc"
