// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"
#include "tests/support/rows.h"

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
    if (interruptions == enough) {
        kill(stoppedProgram, SIGCONT);
    }
}

SessionOptions sampleOptions()
{
    SessionOptions options;
    options.program = SAMPLE_WINDOW;
    options.environment.insert("QT_XCB_GL_INTEGRATION", "none");
    return options;
}

/// Of a label, in pixels: grows with the font and the resolution.
int textHeight(DesktopSession &session)
{
    return rectOf(session.widget("memory").value("sizeHint")).height();
}

} // namespace

class TestProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// One window for all test functions; it is left open with no dialog or menu.
    void init()
    {
        if (session) {
            return;
        }
        SessionOptions options = sampleOptions();
        options.machine = standin::Machine{};
        options.machine->memory = standin::Memory{4711, 0, 0, 0};
        session = std::make_unique<DesktopSession>(options);
        QVERIFY2(session->start({"one", "two"}), qPrintable(session->error()));
    }

    void windowIsDescribedAndOnTheScreen()
    {
        const QJsonObject window = session->mainWindow();
        QCOMPARE(window.value("title").toString(), QString("Sample"));
        QCOMPARE(window.value("class").toString(), QString("SampleWindow"));
        QVERIFY(!window.value("modal").toBool());
        QCOMPARE(session->standardOutput(), QByteArray("one\ntwo\n"));
        QCOMPARE(session->exitCode(), -1);
        const QImage screen = session->screenshot();
        QCOMPARE(screen.size(), QSize(1280, 1024));
        QVERIFY(screen.pixel(session->windowRect().center()) != screen.pixel(1279, 1023));
    }

    void widgetsAreFoundByNameAndByClass()
    {
        const QJsonObject button = session->widget("ask");
        QCOMPARE(button.value("class").toString(), QString("QPushButton"));
        QCOMPARE(button.value("text").toString(), QString("&Ask"));
        QVERIFY(button.value("enabled").toBool());
        QVERIFY(button.value("visible").toBool());
        QVERIFY(!rectOf(button.value("rect")).isEmpty());
        QCOMPARE(button.value("accessibleName").toString(), QString("Ask"));
        const QJsonArray tabs = session->widget("QTabWidget").value("tabs").toArray();
        QCOMPARE(tabs.size(), 2);
        QCOMPARE(tabs[1]["text"].toString(), QString("&Second"));
        QVERIFY(session->probe("widgets QLabel").value("widgets").toArray().size() >= 2);
    }

    void badCommandGivesAnError_data()
    {
        addTextRows("command",
                    {"widget nobody", "table ask", "selected ask", "palette none", "font none", "dance"});
    }

    void badCommandGivesAnError()
    {
        QFETCH(QString, command);
        QVERIFY(session->probe(command).contains("error"));
    }

    /// The stopped program can answer only after signals have interrupted the wait for it.
    void signalToTheTestLosesNoAnswer()
    {
        interruptions = 0;
        stoppedProgram = pid_t(session->pid());
        QCOMPARE(kill(stoppedProgram, SIGSTOP), 0);
        std::signal(SIGALRM, countInterruption);
        const itimerval often = {{0, 10000}, {0, 10000}};
        const itimerval never = {};
        QCOMPARE(setitimer(ITIMER_REAL, &often, nullptr), 0);
        const QJsonObject window = session->mainWindow();
        QCOMPARE(setitimer(ITIMER_REAL, &never, nullptr), 0);
        std::signal(SIGALRM, SIG_DFL);
        QVERIFY(kill(stoppedProgram, SIGCONT) == 0 && interruptions > 0);
        QCOMPARE(window.value("title").toString(), QString("Sample"));
        QCOMPARE(session->widget("ask").value("name").toString(), QString("ask"));
    }

    void tableHasHeadersAndRows()
    {
        QVERIFY2(showTree(), qPrintable(session->error()));
        const Table table = session->table("tree");
        QCOMPARE(table.visibleHeaders(), (QStringList{"Name", "Size"}));
        QCOMPARE(table.headers.size(), 3);
        QCOMPARE(table.rows.size(), 201);
        QCOMPARE(table.text(0, "Name"), QString("row 000"));
        QCOMPARE(table.rows.at(1).depth, 1);
        QCOMPARE(table.text(1, "Name"), QString("child"));
        QCOMPARE(table.parentOf(1), 0);
        QCOMPARE(table.parentOf(2), -1);
        QCOMPARE(table.find("Size", "10000"), 101);
        QCOMPARE(table.find("Size", "10001"), -1);
        QCOMPARE(table.sortSection, 0);
        QVERIFY(!table.sortDescending);
        QVERIFY(!table.rowRect(0).isEmpty());
        QVERIFY2(table.rowRect(1).isEmpty(), "a child of a collapsed row is not on the screen");
        QVERIFY(table.rowRect(200).isEmpty());
    }

    void clickOnAHeaderSorts()
    {
        QVERIFY2(showTree(), qPrintable(session->error()));
        QVERIFY(session->clickHeader("tree", "Name"));
        QVERIFY(session->waitFor([&] {
            const Table table = session->table("tree");
            return table.sortDescending && table.text(0, "Name") == "row 199";
        }));
        QVERIFY(session->clickHeader("tree", "Name"));
        QVERIFY(session->waitFor([&] { return !session->table("tree").sortDescending; }));
    }

    void rowFarDownIsScrolledToAndClickedAndHasItsId()
    {
        QVERIFY2(showTree(), qPrintable(session->error()));
        for (const char *name : {"row 150", "row 005"}) {
            QVERIFY(session->clickRow("tree", "Name", name));
            const auto isClicked = [&] {
                const Table table = session->table("tree");
                const Table::Row row = table.rows.at(table.find("Name", name));
                return row.selected && row.current;
            };
            QVERIFY2(session->waitFor(isClicked), name);
            QVERIFY(session->probe("selected tree").contains("id"));
        }
    }

    void contextMenuIsReadAndUsed()
    {
        QVERIFY2(showTree(), qPrintable(session->error()));
        QVERIFY(session->clickRow("tree", "Name", "row 003", 3));
        QVERIFY(session->waitFor([&] { return session->menuTexts() == QStringList{"Inspect", "Never"}; }));
        QVERIFY(session->menuEntry("Inspect").value("checkable").toBool());
        QVERIFY(!session->menuEntry("Never").value("enabled").toBool());
        QVERIFY2(session->clickMenu("Inspect"), qPrintable(session->error()));
        QVERIFY(waitForText("answer", "&Inspect"));
        QCOMPARE(session->menuTexts(), QStringList());
    }

    void menuBarIsReadAndUsed()
    {
        QVERIFY(session->clickMenu("File"));
        QVERIFY(session->waitFor([&] { return session->menuTexts() == QStringList{"Exit"}; }));
        QCOMPARE(session->menuEntry("Exit").value("shortcut").toString(), QString("Ctrl+Q"));
        QVERIFY(session->key("Escape"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().isEmpty(); }));
    }

    void dialogIsReadAndAnsweredByMouseAndByKeyboard()
    {
        QVERIFY(waitForQuestion());
        const QJsonObject dialog = session->dialog();
        QCOMPARE(dialog.value("title").toString(), QString("Question"));
        QCOMPARE(dialog.value("text").toString(), QString("Go on?"));
        QVERIFY(dialog.value("modal").toBool());
        const QJsonArray buttons = dialog.value("buttons").toArray();
        QCOMPARE(buttons.size(), 2);
        for (const QJsonValue &button : buttons) {
            QCOMPARE(button["default"].toBool(), button["text"].toString().contains("Cancel"));
        }
        QVERIFY2(session->clickButton("OK"), qPrintable(session->error()));
        QVERIFY(waitForText("answer", "ok"));
        QVERIFY(session->dialog().isEmpty());
        QVERIFY(waitForQuestion());
        QVERIFY(session->key("Return"));
        QVERIFY(waitForText("answer", "cancelled"));
    }

    void keysReachTheWidgetWithTheFocus()
    {
        QVERIFY(session->clickTab("First"));
        QVERIFY(session->clickWidget("edit"));
        QVERIFY(session->waitFor([&] { return session->widget("edit").value("focus").toBool(); }));
        QVERIFY(session->type("Ab 1_%x"));
        QVERIFY(session->key("BackSpace"));
        QVERIFY(waitForText("edit", "Ab 1_%"));
        QVERIFY(!session->key("NoSuchKey"));
        QVERIFY(!session->key("hyper+q"));
    }

    void standinChangesWhileTheProgramRuns()
    {
        QVERIFY(waitForText("memory", "4711"));
        standin::Machine machine;
        for (const std::uint64_t total : {std::uint64_t(4712), ~std::uint64_t(0)}) {
            machine.memory = standin::Memory{total, 0, 0, 0};
            session->setMachine(machine);
            QVERIFY2(waitForText("memory", QString::number(total)), qPrintable(session->text("memory")));
        }
    }

    void windowIsResizedAndMaximised()
    {
        QVERIFY(session->resizeMainWindow({777, 555}));
        QCOMPARE(session->windowRect().size(), QSize(777, 555));
        QVERIFY(session->resizeMainWindow({1, 1}));
        const auto toggle = [&] {
            const QRect before = session->windowRect();
            session->x().toggleMaximized(session->windowId());
            return session->waitFor([&] { return session->windowRect() != before; });
        };
        const QRect normal = session->windowRect();
        QVERIFY(toggle());
        QCOMPARE(session->windowRect().right(), 1279);
        QVERIFY(toggle());
        QCOMPARE(session->windowRect(), normal);
    }

    void stateIsASummary()
    {
        QVERIFY(session->clickTab("First"));
        QVERIFY(waitForState("tab", 0));
        QCOMPARE(state().value("popup").toString(), QString());
        QCOMPARE(state().value("modal").toBool(), false);
        QCOMPARE(state().value("window"), session->mainWindow().value("rect"));
        QCOMPARE(state().value("id"), session->mainWindow().value("id"));
        QVERIFY(session->clickMenu("File"));
        QVERIFY(waitForState("popup", "QMenu"));
        QCOMPARE(state().value("menus").toArray(), QJsonArray{"&File"});
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForState("popup", ""));
        QVERIFY(waitForQuestion());
        QCOMPARE(state().value("title").toString(), QString("Question"));
        QVERIFY(state().value("modal").toBool());
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForState("modal", false));
    }

    void keysDoNotOvertakeClicks()
    {
        const QJsonArray tabs = session->widget("QTabWidget").value("tabs").toArray();
        // A dialog before may have had the focus. Clicks don't need it, keys do.
        QVERIFY(session->waitFor([&] { return session->mainWindow().value("active").toBool(); }));
        for (int round = 0; round < 20; ++round) {
            session->x().moveTo(rectOf(tabs.at(round % 2)["rect"]).center());
            session->x().click();
            QCOMPARE(tabAfterInput(), round % 2);
            session->x().click();
            QVERIFY(session->key("ctrl+Tab"));
            QCOMPARE(tabAfterInput(), (round + 1) % 2);
        }
    }

    void paletteAndFontChange()
    {
        QVERIFY(session->clickTab("First"));
        QCOMPARE(tabAfterInput(), 0); // a larger font would move the tab bar away from a click under way
        const int before = textHeight(*session);
        QCOMPARE(session->probe("font 30"), QJsonObject());
        QVERIFY(session->waitFor([&] { return textHeight(*session) > before; }));
        QCOMPARE(session->probe("font 9"), QJsonObject());
        QCOMPARE(session->probe("palette #102040"), QJsonObject());
        QVERIFY(session->waitFor([&] {
            const QPoint inCorner = session->windowRect().bottomRight() - QPoint(3, 3);
            return session->screenshot().pixel(inCorner) == qRgb(0x10, 0x20, 0x40);
        }));
        QCOMPARE(session->probe("palette #efefef"), QJsonObject());
    }

    void anotherSessionHasItsOwnScreenAndTheRealMachine()
    {
        SessionOptions options = sampleOptions();
        options.screen = QSize(800, 500);
        options.dpi = 192;
        DesktopSession other(options);
        QVERIFY2(other.start(), qPrintable(other.error()));
        QVERIFY(other.text("memory").toULongLong() > 1024 * 1024);
        QCOMPARE(other.screenshot().size(), QSize(800, 500));
        QVERIFY(textHeight(other) > textHeight(*session) * 3 / 2);
        QVERIFY2(session->mainWindow().contains("title"), "the first session is gone");
    }

    void ctrlQAndTheCloseButtonEndTheProgram()
    {
        QVERIFY(session->key("ctrl+q"));
        QVERIFY2(session->waitForExit(), qPrintable(session->error()));
        QCOMPARE(session->standardError(), QByteArray());
        QCOMPARE(session->exitCode(), 0);
        QVERIFY(session->probe("windows").contains("error"));
        QVERIFY2(session->start(), qPrintable(session->error()));
        QCOMPARE(session->standardOutput(), QByteArray());
        session->closeMainWindow();
        QVERIFY2(session->waitForExit(), qPrintable(session->error()));
        QCOMPARE(session->exitCode(), 0);
    }

    void programWithoutWindowFailsWithAMessage()
    {
        SessionOptions options;
        options.program = "/bin/false";
        DesktopSession other(options);
        QVERIFY(!other.start());
        QVERIFY2(other.error().contains("ended"), qPrintable(other.error()));
        QCOMPARE(other.exitCode(), 1);
    }

private:
    bool waitForText(const QString &widget, const QString &text)
    {
        return session->waitFor([&] { return session->text(widget) == text; });
    }

    bool waitForState(const QString &key, const QJsonValue &value)
    {
        return session->waitFor([&] { return state().value(key) == value; });
    }

    /// Asks, and waits until the dialog has the focus.
    bool waitForQuestion()
    {
        return session->clickTab("First") && session->clickWidget("ask") &&
               session->waitFor([&] { return session->dialog().value("active").toBool(); });
    }

    bool showTree()
    {
        return session->clickTab("Second") &&
               session->waitFor([&] { return session->widget("tree").value("visible").toBool(); });
    }

    QJsonObject state() { return session->probe("state"); }
    int tabAfterInput() { return session->stateAfterInput().value("tab").toInt(-1); }

    std::unique_ptr<DesktopSession> session;
};

QTEST_GUILESS_MAIN(TestProbe)
#include "test_probe.moc"
