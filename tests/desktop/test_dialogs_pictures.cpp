// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <csignal>

namespace {

/// "kde" is the toolkit's only platform theme that reads widget colors from a file.
void useDesktopColors(SessionOptions &options)
{
    options.environment["QT_QPA_PLATFORMTHEME"] = "kde";
    options.environment["XDG_CURRENT_DESKTOP"] = "KDE";
    options.environment["KDE_SESSION_VERSION"] = "5";
    options.environment["QT_STYLE_OVERRIDE"] = "fusion";
}

void writeDarkColors(const QString &home)
{
    const QByteArray background = "BackgroundNormal=40,44,52\nBackgroundAlternate=48,52,60\n";
    const QByteArray foreground = "ForegroundNormal=235,235,235\nForegroundInactive=150,150,150\n"
                                  "ForegroundLink=100,160,255\nForegroundVisited=180,140,255\n";
    QByteArray text;
    for (const char *group : {"Window", "View", "Button", "Tooltip"}) {
        text += "[Colors:" + QByteArray(group) + "]\n" + background + foreground;
    }
    text += "[Colors:Selection]\nBackgroundNormal=60,110,180\n" + foreground;
    QFile file(home + "/.config/kdeglobals");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

/// The height that wrapped text needs depends on its width.
bool hasRoom(const QJsonValue &widget)
{
    const QSize given = rectOf(widget["rect"]).size();
    const QSize wanted = rectOf(widget["sizeHint"]).size();
    const int wrapped = widget["heightForWidth"].toInt(-1);
    return wrapped >= 0 ? given.height() >= wrapped
                        : given.width() >= wanted.width() && given.height() >= wanted.height();
}

} // namespace

/// Saves a picture of every menu and dialog for inspection; checks that nothing in a dialog is cut off.
class TestDialogsPictures : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyMenuAndDialogIsDrawn_data()
    {
        const Rows<int, QSize, bool> row("dpi", "screen", "dark");
        row("96 dpi", 96, QSize(1024, 768), false);
        row("192 dpi", 192, QSize(2048, 1536), false);
        row("dark", 96, QSize(1024, 768), true);
    }

    void everyMenuAndDialogIsDrawn()
    {
        QFETCH(int, dpi);
        QFETCH(QSize, screen);
        QFETCH(bool, dark);
        SessionOptions options;
        options.dpi = dpi;
        options.screen = screen;
        suffix = dark ? "-dark" : QString("-%1dpi").arg(dpi);
        if (dark) {
            useDesktopColors(options);
        }
        startProgram(options);
        if (dark) { // the home directory exists from the first start on
            QVERIFY(page->quit());
            writeDarkColors(session->home());
            QVERIFY2(session->start({"processes"}), qPrintable(session->error()));
        }
        const SampleProcess process = sample("pic");
        QVERIFY(isListed(process));
        drawMenus(process.pid());
        drawQuestions(process);
        drawErrors();
        drawOtherDialogs(process.pid());
        verifyQuitsCleanly();
    }

private:
    bool save(const QString &name) { return session->savePicture(name + suffix); }

    /// The text of a widget that has less room than it asks for in the open dialog; empty if there is none.
    QString cutOff()
    {
        const QRect dialog = rectOf(session->dialog().value("rect"));
        for (const char *command : {"widgets QLabel", "widgets QPushButton"}) {
            for (const QJsonValue &widget : session->probe(command).value("widgets").toArray()) {
                if (dialog.contains(rectOf(widget["rect"])) && !hasRoom(widget)) {
                    return widget["text"].toString();
                }
            }
        }
        return {};
    }

    void drawMenus(int pid)
    {
        for (const QString menu : {"File", "Edit", "Help"}) {
            QVERIFY(session->clickMenu(menu));
            QVERIFY(session->waitFor([&] { return !session->menuTexts().isEmpty(); }));
            if (menu == "Edit") {
                QVERIFY(session->clickMenu("Update interval"));
            }
            QVERIFY(save("menu-" + menu.toLower()));
            QVERIFY(page->closeMenus());
        }
        QVERIFY(page->select(pid));
        QVERIFY(page->openProcessMenu());
        QVERIFY(save("menu-process"));
        QVERIFY(page->closeMenus());
        QVERIFY(page->openContextMenu(pid));
        QVERIFY(session->clickMenu("Visible columns"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().value(0) == "Name"; }));
        QVERIFY(save("menu-context"));
        QVERIFY(page->closeMenus());
    }

    void ask(int pid, const char *key, const char *title)
    {
        QVERIFY(page->select(pid));
        QVERIFY(session->key(key));
        QVERIFY(page->waitForDialog(title));
    }

    void drawBox(const char *name)
    {
        QVERIFY(save(name));
        QCOMPARE(cutOff(), QString());
        QVERIFY(page->dismissAll());
    }

    void drawQuestions(const SampleProcess &process)
    {
        ask(process.pid(), "ctrl+s", "Process stopping");
        drawBox("dialog-stop");
        ask(process.pid(), "ctrl+t", "Process terminating");
        drawBox("dialog-terminate");
        ask(process.pid(), "ctrl+k", "Process killing");
        drawBox("dialog-kill");
        QVERIFY(process.sendSignal(SIGSTOP));
        QVERIFY(page->waitForText(process.pid(), "State", "Stopped"));
        ask(process.pid(), "ctrl+c", "Process resuming");
        drawBox("dialog-continue");
        QVERIFY(process.sendSignal(SIGCONT));
    }

    void drawErrors()
    {
        std::optional<SampleProcess> process(std::in_place, "err", SampleProcess::Sleeping, testUser());
        QVERIFY(isListed(*process));
        const int pid = process->pid();

        QVERIFY(page->openContextMenu(pid));
        QVERIFY(session->clickMenu("Change priority..."));
        QVERIFY(page->waitForDialog("Change priority"));
        QVERIFY(session->key("Left")); // a higher priority, which the kernel refuses
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForDialog("Error"));
        drawBox("dialog-error-priority");

        ask(pid, "ctrl+t", "Process terminating");
        process.reset();
        QVERIFY(page->waitForNoRow(pid));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForDialog("Error"));
        drawBox("dialog-error-signal");
    }

    void drawOtherDialogs(int pid)
    {
        const std::pair<const char *, QStringList> dialogs[] = {
            {"dialog-interval", {"Edit", "Update interval", "Filesystem interval"}},
            {"dialog-priority", {"Edit", "Process", "Change priority..."}},
            {"dialog-about", {"Help", "About"}}};
        for (const auto &[name, way] : dialogs) {
            QVERIFY(page->select(pid));
            QVERIFY2(clickMenus(way), name);
            QVERIFY(session->waitFor([&] { return !session->dialog().isEmpty(); }));
            drawBox(name);
        }
    }

    QString suffix;
};

QTEST_GUILESS_MAIN(TestDialogsPictures)
#include "test_dialogs_pictures.moc"
