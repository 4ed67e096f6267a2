// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_SESSION_H
#define TESTS_DESKTOP_SESSION_H

#include "tests/desktop/table.h"
#include "tests/desktop/xclient.h"
#include "tests/support/gtopstandin.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// How long a condition may take on a loaded machine, in milliseconds.
constexpr int desktopDeadline = 30000;

struct SessionOptions
{
    QString program;                    ///< the built program unless set
    QSize screen = {1280, 1024};        ///< of the virtual screen, in pixels
    int dpi = 96;                       ///< of the virtual screen
    QMap<QString, QString> environment; ///< added to the program's own; an empty value takes a variable away
    QByteArray settings;                ///< contents of the program's settings file at the first start
    QStringList preload;                ///< objects that the program is to run with, beside the session's own
    std::optional<standin::Machine> machine; ///< what libgtop tells the program; the real machine unless set
};

/// A desktop of its own - X server, window manager, home directory - and a program running in it that is
/// worked by real key and mouse events and read through the probe. Several can run at the same time.
///
/// Functions that return bool give false after desktopDeadline, with the reason in error(). The destructor
/// ends what the session has started, and so does the end of the test program in any way.
class DesktopSession
{
public:
    explicit DesktopSession(SessionOptions options = {});
    ~DesktopSession();
    DesktopSession(const DesktopSession &) = delete;
    DesktopSession &operator=(const DesktopSession &) = delete;

    /// Starts the desktop, if it isn't there yet, and the program in it; returns when its window is drawn
    /// and has the focus. After the program has ended it can be started again in the same home.
    bool start(const QStringList &arguments = {});
    QString error() const { return m_error; }

    /// Waits for the program to end by itself.
    bool waitForExit();
    int exitCode() const; ///< -1 if it runs or was ended by a signal
    bool isRunning() const;
    qint64 pid() const; ///< 0 if it doesn't run
    QByteArray standardOutput();
    QByteArray standardError(); ///< without what toolkit and libgtop say of the machine around

    QString home() const;
    QString settingsFile() const; ///< where the program keeps its settings, there or not

    /// Changes what libgtop tells the program from its next refresh on; only with a machine in the options.
    void setMachine(const standin::Machine &machine);

    /// One answer of the probe (see tests/support/probe/answers.h); {"error": ...} if none came.
    QJsonObject probe(const QString &command);
    /// The probe's "state", with everything done that came of the input sent so far; empty if it ends of it.
    QJsonObject stateAfterInput();
    QJsonObject widget(const QString &name);
    QString text(const QString &widgetName); ///< its text
    Table table(const QString &name);
    QJsonObject dialog(); ///< the active modal dialog; empty if there is none
    /// Of the visible entries of the innermost open menu, without "&". A menu that opens is waited for.
    QStringList menuTexts();
    QJsonObject menuEntry(const QString &text); ///< in an open menu or the menu bar; empty if there is none
    QJsonObject mainWindow();

    /// Asks again and again. Gives up at once when the program has ended.
    bool waitFor(const std::function<bool()> &condition, int deadlineMs = desktopDeadline);

    /// Input. The ones that look for something wait until it is there and stands still; texts are compared
    /// without "&".
    bool click(const std::function<QRect()> &findRect, int button = 1);
    bool clickWidget(const QString &name, int button = 1);
    bool clickTab(const QString &text);
    bool clickMenu(const QString &text);
    bool clickButton(const QString &text); ///< of the active dialog
    bool clickHeader(const QString &table, const QString &header);
    /// Scrolls with the wheel until the row is on the screen, then clicks it.
    bool clickRow(const QString &table, const QString &header, const QString &text, int button = 1);
    bool doubleClick(const std::function<QRect()> &findRect);
    void drag(const QPoint &from, const QPoint &to);
    bool key(const QString &combination) { return m_x.key(combination); }
    bool type(const QString &text) { return m_x.type(text); }
    bool resizeMainWindow(const QSize &size); ///< returns when the window has it, as near as it goes
    void closeMainWindow();                   ///< as the close button of its frame does

    /// The whole screen. savePicture writes it as "pictures/NAME.png" in the build folder.
    QImage screenshot() { return m_x.screenshot(); }
    bool savePicture(const QString &name);
    XClient &x() { return m_x; }

private:
    bool startDesktop();
    bool writeSettings();
    bool startServer();
    bool startWindowManager();
    QProcessEnvironment programEnvironment() const;
    bool waitForWindow();
    bool connectProbe();
    void disconnectProbe();
    QByteArray readLine();
    void leaveDoubleClickInterval();
    QRect stableRect(const std::function<QRect()> &findRect);
    bool bringIntoView(const QString &table, const QString &header, const QString &text);
    bool fail(const QString &error);
    void collectOutput();
    static void end(QProcess *process);

    SessionOptions m_options;
    QTemporaryDir m_directory;
    QString m_display;
    QString m_error;
    std::unique_ptr<QProcess> m_server;
    std::unique_ptr<QProcess> m_windowManager;
    std::unique_ptr<QProcess> m_program;
    XClient m_x;
    QElapsedTimer m_sinceClick;
    int m_probe = -1;
    int m_runs = 0;
    int m_marks = 0;
    QByteArray m_received;
    QByteArray m_output;
    QByteArray m_errors;
};

#endif
