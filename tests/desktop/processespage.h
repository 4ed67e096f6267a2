// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_PROCESSESPAGE_H
#define TESTS_DESKTOP_PROCESSESPAGE_H

#include "tests/desktop/session.h"

/// The id of a user who owns nothing but what the test gives him; -1 if the test may not change users.
int testUser();

/// Lets the program run as testUser(), where there is one: its own processes are then those of the test
/// alone, and a signal that goes astray reaches nobody else.
SessionOptions asTestUser(SessionOptions options = {});

/// The process list and its menus in a session's program. Functions that return bool give false after
/// desktopDeadline.
class ProcessesPage
{
public:
    explicit ProcessesPage(DesktopSession &session) : m_session(session) {}

    Table list() { return m_session.table(QStringLiteral("treeView")); }
    QString text(int pid, const char *header);
    bool isSelected(int pid);
    bool waitForText(int pid, const char *header, const QString &text);
    bool waitForRow(int pid);
    bool waitForNoRow(int pid);
    bool select(int pid);
    bool openContextMenu(int pid);
    /// A right click below the last row.
    bool openContextMenuOnEmptySpace();
    /// "Process" in the "Edit" menu.
    bool openProcessMenu();
    /// The page of that tab.
    bool showPage(const QString &tab);
    bool closeMenus();
    /// And for it to be where the keys go.
    bool waitForDialog(const QString &title);
    /// And for the main window to be where the keys go.
    bool waitForNoDialog();
    /// Closes open menus and dialogs with Escape.
    bool dismissAll();
    /// With Ctrl+Q.
    bool quit();

private:
    bool waitForMenu(const QString &entry);
    DesktopSession &m_session;
};

#endif
