// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QJsonArray>
#include <QtTest>

#include <csignal>
#include <sys/time.h>

namespace {

volatile std::sig_atomic_t interruptions = 0;
volatile pid_t stoppedProgram = 0;

extern "C" void countInterruption(int)
{
    const int enough = 10;
    interruptions = interruptions + 1;
    if (interruptions == enough)
        kill(stoppedProgram, SIGCONT);
}

} // namespace

class TestProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void windowsAreTold();
    void widgetsAreFoundByNameAndByClass();
    void anUnknownNameOrCommandGivesAnError();
    void aSignalToTheTestCostsNoAnswer();
    void tabsChangeByRealClicks();
    void aTableTellsHeadersAndRows();
    void aClickOnAHeaderSorts();
    void aRowFarDownIsScrolledToAndClicked();
    void aContextMenuIsReadAndUsed();
    void theMenuBarIsReadAndUsed();
    void aDialogIsReadAndAnsweredByMouse();
    void aDialogIsAnsweredByKeyboard();
    void keysReachTheWidgetThatHasTheFocus();
    void theStandinAnswersAndChangesWhileTheProgramRuns();
    void theWindowIsResized();
    void theWindowIsMaximised();
    void theStateIsToldInShort();
    void keysDoNotOvertakeClicks();
    void theSelectedRowIsTold();
    void paletteAndFontChange();
    void theScreenIsPhotographed();
    void theProgramReadsTheRealMachineWithoutStandin();
    void theResolutionOfTheScreenIsChosen();
    void ctrlQEndsTheProgramAndItStartsAgain();
    void closingTheWindowEndsTheProgram();
    void aProgramWithoutWindowFailsWithAWord();

private:
    static SessionOptions sampleOptions();
    std::unique_ptr<DesktopSession> m_session;
};

SessionOptions TestProbe::sampleOptions()
{
    SessionOptions options;
    options.program = QStringLiteral(SAMPLE_WINDOW);
    options.environment.insert(QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none"));
    return options;
}

void TestProbe::init()
{
    if (!m_session) {
        SessionOptions options = sampleOptions();
        options.machine = standin::Machine{};
        options.machine->memory = standin::Memory{4711, 0, 0, 0};
        m_session = std::make_unique<DesktopSession>(options);
        QVERIFY2(m_session->start({QStringLiteral("one"), QStringLiteral("two")}),
                 qPrintable(m_session->error()));
    }
}

void TestProbe::windowsAreTold()
{
    const QJsonObject window = m_session->mainWindow();
    QCOMPARE(window.value(QLatin1String("title")).toString(), QStringLiteral("Sample"));
    QCOMPARE(window.value(QLatin1String("class")).toString(), QStringLiteral("SampleWindow"));
    QVERIFY(!window.value(QLatin1String("modal")).toBool());
    QCOMPARE(m_session->standardOutput(), QByteArray("one\ntwo\n"));
    QCOMPARE(m_session->exitCode(), -1);
}

void TestProbe::widgetsAreFoundByNameAndByClass()
{
    const QJsonObject button = m_session->widget(QStringLiteral("ask"));
    QCOMPARE(button.value(QLatin1String("class")).toString(), QStringLiteral("QPushButton"));
    QCOMPARE(button.value(QLatin1String("text")).toString(), QStringLiteral("&Ask"));
    QVERIFY(button.value(QLatin1String("enabled")).toBool());
    QVERIFY(button.value(QLatin1String("visible")).toBool());
    QVERIFY(!rectOf(button.value(QLatin1String("rect"))).isEmpty());
    QCOMPARE(button.value(QLatin1String("accessibleName")).toString(), QStringLiteral("Ask"));
    const QJsonArray tabs =
        m_session->widget(QStringLiteral("QTabWidget")).value(QLatin1String("tabs")).toArray();
    QCOMPARE(tabs.size(), 2);
    QCOMPARE(tabs[1][QLatin1String("text")].toString(), QStringLiteral("&Second"));
    const QJsonObject labels = m_session->probe(QStringLiteral("widgets QLabel"));
    QVERIFY(labels.value(QLatin1String("widgets")).toArray().size() >= 2);
    const QJsonArray named =
        m_session->probe(QStringLiteral("tree")).value(QLatin1String("widgets")).toArray();
    QVERIFY(std::any_of(named.begin(), named.end(), [](const QJsonValue &each) {
        return each[QLatin1String("name")] == QLatin1String("memory");
    }));
}

void TestProbe::anUnknownNameOrCommandGivesAnError()
{
    QVERIFY(m_session->widget(QStringLiteral("nobody")).contains(QLatin1String("error")));
    QVERIFY(m_session->probe(QStringLiteral("table ask")).contains(QLatin1String("error")));
    QVERIFY(m_session->probe(QStringLiteral("dance")).contains(QLatin1String("error")));
}

// The program can't answer before the waiting for it has been interrupted.
void TestProbe::aSignalToTheTestCostsNoAnswer()
{
    interruptions = 0;
    stoppedProgram = pid_t(m_session->pid());
    QCOMPARE(kill(stoppedProgram, SIGSTOP), 0);
    std::signal(SIGALRM, countInterruption);
    const itimerval often = {{0, 10000}, {0, 10000}};
    const itimerval never = {};
    QCOMPARE(setitimer(ITIMER_REAL, &often, nullptr), 0);
    const QJsonObject window = m_session->mainWindow();
    QCOMPARE(setitimer(ITIMER_REAL, &never, nullptr), 0);
    std::signal(SIGALRM, SIG_DFL);
    QVERIFY(kill(stoppedProgram, SIGCONT) == 0 && interruptions > 0);
    QCOMPARE(window.value(QLatin1String("title")).toString(), QStringLiteral("Sample"));
    QCOMPARE(m_session->widget(QStringLiteral("ask")).value(QLatin1String("name")).toString(),
             QStringLiteral("ask"));
}

void TestProbe::tabsChangeByRealClicks()
{
    QVERIFY2(m_session->clickTab(QStringLiteral("Second")), qPrintable(m_session->error()));
    QVERIFY(m_session->waitFor(
        [&] { return m_session->widget(QStringLiteral("tree")).value(QLatin1String("visible")).toBool(); }));
}

void TestProbe::aTableTellsHeadersAndRows()
{
    QVERIFY(m_session->clickTab(QStringLiteral("Second")));
    const Table table = m_session->table(QStringLiteral("tree"));
    QCOMPARE(table.visibleHeaders(), (QStringList{QStringLiteral("Name"), QStringLiteral("Size")}));
    QCOMPARE(table.headers.size(), 3);
    QCOMPARE(table.rows.size(), 201);
    QCOMPARE(table.text(0, QStringLiteral("Name")), QStringLiteral("row 000"));
    QCOMPARE(table.rows.at(1).depth, 1);
    QCOMPARE(table.text(1, QStringLiteral("Name")), QStringLiteral("child"));
    QCOMPARE(table.parentOf(1), 0);
    QCOMPARE(table.parentOf(2), -1);
    QCOMPARE(table.find(QStringLiteral("Size"), QStringLiteral("10000")), 101);
    QCOMPARE(table.find(QStringLiteral("Size"), QStringLiteral("10001")), -1);
    QCOMPARE(table.sortSection, 0);
    QVERIFY(!table.sortDescending);
    QVERIFY(!table.rowRect(0).isEmpty());
    QVERIFY2(table.rowRect(1).isEmpty(), "a child of a closed row is not on the screen");
    QVERIFY(table.rowRect(200).isEmpty());
}

void TestProbe::aClickOnAHeaderSorts()
{
    QVERIFY(m_session->clickTab(QStringLiteral("Second")));
    QVERIFY(m_session->clickHeader(QStringLiteral("tree"), QStringLiteral("Name")));
    QVERIFY(m_session->waitFor([&] {
        const Table table = m_session->table(QStringLiteral("tree"));
        return table.sortDescending && table.text(0, QStringLiteral("Name")) == QLatin1String("row 199");
    }));
    QVERIFY(m_session->clickHeader(QStringLiteral("tree"), QStringLiteral("Name")));
    QVERIFY(m_session->waitFor([&] { return !m_session->table(QStringLiteral("tree")).sortDescending; }));
}

void TestProbe::aRowFarDownIsScrolledToAndClicked()
{
    QVERIFY(m_session->clickTab(QStringLiteral("Second")));
    for (const char *name : {"row 150", "row 005"}) {
        QVERIFY(m_session->clickRow(QStringLiteral("tree"), QStringLiteral("Name"), QLatin1String(name)));
        QVERIFY(m_session->waitFor([&] {
            const Table table = m_session->table(QStringLiteral("tree"));
            const Table::Row row = table.rows.at(table.find(QStringLiteral("Name"), QLatin1String(name)));
            return row.selected && row.current;
        }));
    }
}

void TestProbe::aContextMenuIsReadAndUsed()
{
    QVERIFY(m_session->clickTab(QStringLiteral("Second")));
    QVERIFY(
        m_session->clickRow(QStringLiteral("tree"), QStringLiteral("Name"), QStringLiteral("row 003"), 3));
    QVERIFY(m_session->waitFor([&] {
        return m_session->menuTexts() == QStringList{QStringLiteral("Inspect"), QStringLiteral("Never")};
    }));
    QVERIFY(m_session->menuEntry(QStringLiteral("Inspect")).value(QLatin1String("checkable")).toBool());
    QVERIFY(!m_session->menuEntry(QStringLiteral("Never")).value(QLatin1String("enabled")).toBool());
    QVERIFY2(m_session->clickMenu(QStringLiteral("Inspect")), qPrintable(m_session->error()));
    QVERIFY(m_session->waitFor(
        [&] { return m_session->text(QStringLiteral("answer")) == QLatin1String("&Inspect"); }));
    QCOMPARE(m_session->menuTexts(), QStringList());
}

void TestProbe::theMenuBarIsReadAndUsed()
{
    QVERIFY(m_session->clickMenu(QStringLiteral("File")));
    QVERIFY(
        m_session->waitFor([&] { return m_session->menuTexts() == QStringList{QStringLiteral("Exit")}; }));
    QCOMPARE(m_session->menuEntry(QStringLiteral("Exit")).value(QLatin1String("shortcut")).toString(),
             QStringLiteral("Ctrl+Q"));
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(m_session->waitFor([&] { return m_session->menuTexts().isEmpty(); }));
}

void TestProbe::aDialogIsReadAndAnsweredByMouse()
{
    QVERIFY(m_session->clickTab(QStringLiteral("First")));
    QVERIFY(m_session->clickWidget(QStringLiteral("ask")));
    QVERIFY(m_session->waitFor([&] { return !m_session->dialog().isEmpty(); }));
    const QJsonObject dialog = m_session->dialog();
    QCOMPARE(dialog.value(QLatin1String("title")).toString(), QStringLiteral("Question"));
    QCOMPARE(dialog.value(QLatin1String("text")).toString(), QStringLiteral("Go on?"));
    QVERIFY(dialog.value(QLatin1String("modal")).toBool());
    const QJsonArray buttons = dialog.value(QLatin1String("buttons")).toArray();
    QCOMPARE(buttons.size(), 2);
    for (const QJsonValue &button : buttons)
        QCOMPARE(button[QLatin1String("default")].toBool(),
                 button[QLatin1String("text")].toString().contains(QLatin1String("Cancel")));
    QVERIFY2(m_session->clickButton(QStringLiteral("OK")), qPrintable(m_session->error()));
    QVERIFY(
        m_session->waitFor([&] { return m_session->text(QStringLiteral("answer")) == QLatin1String("ok"); }));
    QVERIFY(m_session->dialog().isEmpty());
}

void TestProbe::aDialogIsAnsweredByKeyboard()
{
    QVERIFY(m_session->clickTab(QStringLiteral("First")));
    QVERIFY(m_session->clickWidget(QStringLiteral("ask")));
    QVERIFY(m_session->waitFor([&] { return m_session->dialog().value(QLatin1String("active")).toBool(); }));
    QVERIFY(m_session->key(QStringLiteral("Return")));
    QVERIFY(m_session->waitFor(
        [&] { return m_session->text(QStringLiteral("answer")) == QLatin1String("cancelled"); }));
}

void TestProbe::keysReachTheWidgetThatHasTheFocus()
{
    QVERIFY(m_session->clickTab(QStringLiteral("First")));
    QVERIFY(m_session->clickWidget(QStringLiteral("edit")));
    QVERIFY(m_session->waitFor([&] {
        return m_session->probe(QStringLiteral("focus")).value(QLatin1String("name")) ==
               QLatin1String("edit");
    }));
    QVERIFY(m_session->type(QStringLiteral("Ab 1_%x")));
    QVERIFY(m_session->key(QStringLiteral("BackSpace")));
    QVERIFY(m_session->waitFor(
        [&] { return m_session->text(QStringLiteral("edit")) == QLatin1String("Ab 1_%"); }));
    QVERIFY(!m_session->key(QStringLiteral("NoSuchKey")));
    QVERIFY(!m_session->key(QStringLiteral("hyper+q")));
}

void TestProbe::theStandinAnswersAndChangesWhileTheProgramRuns()
{
    const auto shows = [&](const char *text) {
        return m_session->waitFor(
            [&] { return m_session->text(QStringLiteral("memory")) == QLatin1String(text); });
    };
    QVERIFY(shows("4711"));
    standin::Machine machine;
    machine.memory = standin::Memory{4712, 0, 0, 0};
    m_session->setMachine(machine);
    QVERIFY(shows("4712"));
    machine.memory->total = ~std::uint64_t(0);
    m_session->setMachine(machine);
    QVERIFY(shows("18446744073709551615"));
}

void TestProbe::theWindowIsResized()
{
    QVERIFY(m_session->resizeMainWindow({777, 555}));
    QCOMPARE(rectOf(m_session->mainWindow().value(QLatin1String("rect"))).size(), QSize(777, 555));
    QVERIFY(m_session->resizeMainWindow({1, 1}));
}

void TestProbe::theWindowIsMaximised()
{
    const auto toggle = [&] {
        const QJsonObject before = m_session->mainWindow();
        m_session->x().toggleMaximized(
            static_cast<unsigned long>(before.value(QLatin1String("id")).toDouble()));
        return m_session->waitFor([&] {
            return m_session->mainWindow().value(QLatin1String("rect")) !=
                   before.value(QLatin1String("rect"));
        });
    };
    const QJsonValue normal = m_session->mainWindow().value(QLatin1String("rect"));
    QVERIFY(toggle());
    QCOMPARE(rectOf(m_session->mainWindow().value(QLatin1String("rect"))).right(), 1279);
    QVERIFY(toggle());
    QCOMPARE(m_session->mainWindow().value(QLatin1String("rect")), normal);
}

void TestProbe::theStateIsToldInShort()
{
    const auto state = [&] { return m_session->probe(QStringLiteral("state")); };
    const auto becomes = [&](const char *key, const QJsonValue &value) {
        return m_session->waitFor([&] { return state().value(QLatin1String(key)) == value; });
    };
    QVERIFY(m_session->clickTab(QStringLiteral("First")));
    QVERIFY(becomes("tab", 0));
    QCOMPARE(state().value(QLatin1String("popup")).toString(), QString());
    QCOMPARE(state().value(QLatin1String("modal")).toBool(), false);
    QCOMPARE(state().value(QLatin1String("window")), m_session->mainWindow().value(QLatin1String("rect")));
    QCOMPARE(state().value(QLatin1String("id")), m_session->mainWindow().value(QLatin1String("id")));
    QVERIFY(m_session->clickMenu(QStringLiteral("File")));
    QVERIFY(becomes("popup", QStringLiteral("QMenu")));
    QCOMPARE(state().value(QLatin1String("menus")).toArray(), QJsonArray{QStringLiteral("&File")});
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(becomes("popup", QString()));
    QVERIFY(m_session->clickWidget(QStringLiteral("ask")));
    QVERIFY(becomes("title", QStringLiteral("Question")));
    QVERIFY(state().value(QLatin1String("modal")).toBool());
    QVERIFY(m_session->waitFor([&] { return m_session->dialog().value(QLatin1String("active")).toBool(); }));
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(becomes("modal", false));
}

void TestProbe::keysDoNotOvertakeClicks()
{
    const QJsonArray tabs =
        m_session->probe(QStringLiteral("widget QTabWidget")).value(QLatin1String("tabs")).toArray();
    for (int round = 0; round < 20; ++round) {
        m_session->x().moveTo(rectOf(tabs.at(round % 2)[QLatin1String("rect")]).center());
        m_session->x().click();
        QCOMPARE(m_session->stateAfterInput().value(QLatin1String("tab")).toInt(-1), round % 2);
        m_session->x().click();
        QVERIFY(m_session->key(QStringLiteral("ctrl+Tab")));
        QCOMPARE(m_session->stateAfterInput().value(QLatin1String("tab")).toInt(-1), (round + 1) % 2);
    }
}

void TestProbe::theSelectedRowIsTold()
{
    const auto selected = [&] { return m_session->probe(QStringLiteral("selected tree")); };
    QVERIFY(m_session->clickTab(QStringLiteral("Second")));
    QVERIFY(m_session->clickRow(QStringLiteral("tree"), QStringLiteral("Name"), QStringLiteral("row 003")));
    QVERIFY(m_session->waitFor([&] { return selected().contains(QLatin1String("id")); }));
    QVERIFY(m_session->probe(QStringLiteral("selected ask")).contains(QLatin1String("error")));
}

void TestProbe::paletteAndFontChange()
{
    const auto height = [&] {
        return rectOf(m_session->widget(QStringLiteral("memory")).value(QLatin1String("sizeHint"))).height();
    };
    QVERIFY(m_session->clickTab(QStringLiteral("First")));
    // Or the larger menu bar would be under the click when it arrives.
    QCOMPARE(m_session->stateAfterInput().value(QLatin1String("tab")).toInt(-1), 0);
    const int before = height();
    QCOMPARE(m_session->probe(QStringLiteral("font 30")), QJsonObject());
    QVERIFY(m_session->waitFor([&] { return height() > before; }));
    QCOMPARE(m_session->probe(QStringLiteral("font 9")), QJsonObject());
    QCOMPARE(m_session->probe(QStringLiteral("palette #102040")), QJsonObject());
    QVERIFY(m_session->waitFor([&] {
        const QRect window = rectOf(m_session->mainWindow().value(QLatin1String("rect")));
        return m_session->screenshot().pixel(window.bottomRight() - QPoint(3, 3)) == qRgb(0x10, 0x20, 0x40);
    }));
    QCOMPARE(m_session->probe(QStringLiteral("palette #efefef")), QJsonObject());
    QVERIFY(m_session->probe(QStringLiteral("palette none")).contains(QLatin1String("error")));
    QVERIFY(m_session->probe(QStringLiteral("font none")).contains(QLatin1String("error")));
}

void TestProbe::theScreenIsPhotographed()
{
    const QImage picture = m_session->screenshot();
    QCOMPARE(picture.size(), QSize(1280, 1024));
    const QRect window = rectOf(m_session->mainWindow().value(QLatin1String("rect")));
    QVERIFY(picture.pixel(window.center()) != picture.pixel(1279, 1023));
}

void TestProbe::theProgramReadsTheRealMachineWithoutStandin()
{
    DesktopSession session(sampleOptions());
    QVERIFY2(session.start(), qPrintable(session.error()));
    QVERIFY(session.text(QStringLiteral("memory")).toULongLong() > 1024 * 1024);
    QVERIFY2(m_session->mainWindow().contains(QLatin1String("title")), "the other desktop is untouched");
}

void TestProbe::theResolutionOfTheScreenIsChosen()
{
    SessionOptions options = sampleOptions();
    options.screen = QSize(800, 500);
    options.dpi = 192;
    DesktopSession session(options);
    QVERIFY2(session.start(), qPrintable(session.error()));
    QCOMPARE(session.screenshot().size(), QSize(800, 500));
    const auto height = [](DesktopSession &each) {
        return rectOf(each.widget(QStringLiteral("memory")).value(QLatin1String("sizeHint"))).height();
    };
    QVERIFY(height(session) > height(*m_session) * 3 / 2);
}

void TestProbe::ctrlQEndsTheProgramAndItStartsAgain()
{
    QVERIFY(m_session->key(QStringLiteral("ctrl+q")));
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
    QVERIFY(m_session->probe(QStringLiteral("windows")).contains(QLatin1String("error")));
    QVERIFY2(m_session->start(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardOutput(), QByteArray());
}

void TestProbe::closingTheWindowEndsTheProgram()
{
    m_session->closeMainWindow();
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
}

void TestProbe::aProgramWithoutWindowFailsWithAWord()
{
    SessionOptions options;
    options.program = QStringLiteral("/bin/false");
    DesktopSession session(options);
    QVERIFY(!session.start());
    QVERIFY2(session.error().contains(QLatin1String("ended")), qPrintable(session.error()));
    QCOMPARE(session.exitCode(), 1);
}

QTEST_GUILESS_MAIN(TestProbe)
#include "test_probe.moc"
