// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_SESSION_H
#define TESTS_DESKTOP_SESSION_H

#include "tests/desktop/table.h"
#include "tests/desktop/xclient.h"
#include "tests/support/gtopstandin.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QLocalSocket>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// How long a condition may take on a loaded machine, in milliseconds.
constexpr int desktopDeadline = 30000;

struct SessionOptions
{
    QString program;                         ///< the built program unless set
    QSize screen = {1280, 1024};             ///< of the virtual screen, in pixels
    int dpi = 96;                            ///< of the virtual screen
    QMap<QString, QString> environment;      ///< additional variables; an empty value removes one
    QByteArray settings;                     ///< contents of the program's settings file at the first start
    QStringList preload;                     ///< additional objects to preload
    std::optional<standin::Machine> machine; ///< what libgtop reports; the real machine unless set
};

/// A desktop of its own (X server, window manager, home directory) and a program running in it, driven by
/// real key and mouse events and read through the probe. Several can run at the same time.
///
/// Functions that return bool give false after desktopDeadline, with the reason in error(). The destructor
/// ends the processes of the session, and so does the end of the test program, however it happens.
class DesktopSession
{
public:
    explicit DesktopSession(SessionOptions options = {});
    ~DesktopSession();
    DesktopSession(const DesktopSession &) = delete;
    DesktopSession &operator=(const DesktopSession &) = delete;

    /// Starts the program, and the desktop before the first time; returns once its window is drawn and has
    /// the focus. After the program has exited it can be started again in the same home.
    bool start(const QStringList &arguments = {});
    /// The same, but does not wait for a window.
    bool launch(const QStringList &arguments = {});
    bool waitForWindow(); ///< after launch()
    QString error() const { return lastError; }

    /// Kills the X server; nothing that concerns windows may be called afterwards.
    void killServer();

    /// Waits for the program to exit on its own.
    bool waitForExit();
    /// waitForExit(), and whether the exit code is 0 and standard error is empty; warns if not.
    bool exitsCleanly();
    /// Closes the window, then exitsCleanly(). For cleanup(): if the current test has failed, it warns of
    /// error() and closes a menu or list that is still open.
    bool endsCleanly();
    int exitCode() const;     ///< -1 while it runs, and if a signal ended it
    int endingSignal() const; ///< 0 while it runs, and if no signal ended it
    bool isRunning() const { return program && program->state() != QProcess::NotRunning; }
    qint64 pid() const { return program ? program->processId() : 0; } ///< 0 if it doesn't run
    QByteArray standardOutput();
    QByteArray standardError(); ///< without what toolkit and libgtop say about the environment

    QString home() const { return directory.filePath("home"); }
    QString settingsFile() const { return home() + "/.config/Telmorra/zarn-system-monitor.conf"; }

    QByteArray settings() const; ///< content of the settings file; empty if there is none

    /// Changes what libgtop reports from the program's next refresh on; only with a machine in the options.
    void setMachine(const standin::Machine &machine);

    /// One answer of the probe (see tests/support/probe/answers.h); {"error": ...} if none came.
    QJsonObject probe(const QString &command);
    /// The probe's "state" after all effects of the input sent so far; empty if the program exits on it.
    QJsonObject stateAfterInput();
    QJsonObject widget(const QString &name) { return probe("widget " + name); }
    QRect widgetRect(const QString &name) { return rectOf(widget(name).value("rect")); }
    QString text(const QString &widgetName) { return widget(widgetName).value("text").toString(); }
    Table table(const QString &name) { return Table(probe("table " + name)); }
    QJsonObject dialog(); ///< the active modal dialog; empty if there is none
    /// Texts of the visible entries of the innermost menu, without "&". Waits for a menu that is opening.
    QStringList menuTexts();
    QJsonObject menuEntry(const QString &text); ///< in an open menu or the menu bar; empty if there is none
    QJsonObject mainWindow();
    /// Of the main window; its rectangle is without the frame.
    unsigned long windowId() { return static_cast<unsigned long>(mainWindow().value("id").toDouble()); }
    QRect windowRect() { return rectOf(mainWindow().value("rect")); }

    /// Polls a condition. Gives up at once when the program has exited.
    bool waitFor(const std::function<bool()> &condition, int deadlineMs = desktopDeadline);
    /// Counts wake-ups of the program: unless probed, it wakes up only for its tick.
    bool waitForTicks(int count = 3);

    /// Input. Functions that look for something wait until it stands still. Texts are compared without "&".
    bool click(const std::function<QRect()> &findRect, int button = 1);
    bool clickWidget(const QString &name, int button = 1);
    bool clickTab(const QString &text);
    bool clickMenu(const QString &text)
    {
        return click([&] { return rectOf(menuEntry(text).value("rect")); });
    }
    bool clickButton(const QString &text); ///< of the active dialog
    bool clickHeader(const QString &tableName, const QString &header)
    {
        return click([&] { return table(tableName).headerRect(header); });
    }
    /// Scrolls with the wheel until the row is on the screen, then clicks it.
    bool clickRow(const QString &table, const QString &header, const QString &text, int button = 1);
    void drag(const QPoint &from, const QPoint &to);
    bool key(const QString &combination) { return client.key(combination); }
    bool type(const QString &text) { return client.type(text); }
    bool resizeMainWindow(const QSize &size); ///< waits until it has the size, at least its minimum
    /// As the close button of its frame does.
    void closeMainWindow() { client.closeWindow(windowId()); }

    QImage screenshot() { return client.screenshot(); } ///< the whole screen
    /// Waits until the screen stands still and writes it as "pictures/NAME.png" in the build directory.
    bool savePicture(const QString &name);
    XClient &x() { return client; }

private:
    bool startDesktop();
    bool writeSettings();
    bool startServer();
    bool startWindowManager();
    QProcessEnvironment programEnvironment() const;
    QString probePath() const { return directory.filePath(QString("probe%1").arg(runs)); }
    bool scrollToRow(const QString &table, const QString &header, const QString &text);
    bool fail(const QString &error);
    void collectOutput();

    SessionOptions setup;
    QTemporaryDir directory;
    QString display;
    QString lastError;
    std::unique_ptr<QProcess> server;
    std::unique_ptr<QProcess> windowManager;
    std::unique_ptr<QProcess> program;
    XClient client;
    QElapsedTimer sinceClick;
    QLocalSocket probeSocket;
    int runs = 0;
    int marks = 0;
    QByteArray output;
    QByteArray errors;
};

#endif
