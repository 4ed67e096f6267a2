// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_PROCESSESPAGE_H
#define TESTS_DESKTOP_PROCESSESPAGE_H

#include "tests/desktop/session.h"

/// The id of a user who owns only the processes that the test starts as this user; -1 if the test may not
/// change users.
int testUser();

/// Makes the program run as testUser() if there is one: its own processes are then only those of the test,
/// and a stray signal reaches nobody else.
SessionOptions asTestUser(SessionOptions options = {});

/// The row of a process in the process list; -1 if there is none.
int rowOf(const Table &table, int pid);

/// The process list and its menus in a session's program. Functions that return bool give false after
/// desktopDeadline.
class ProcessesPage
{
public:
    explicit ProcessesPage(DesktopSession &session) : desktop(session) {}

    Table list() { return desktop.table("treeView"); }
    QString text(int pid, const char *header);
    bool isSelected(int pid);
    bool waitForText(int pid, const char *header, const QString &expected)
    {
        return desktop.waitFor([&] { return text(pid, header) == expected; });
    }
    bool waitForRow(int pid)
    {
        return desktop.waitFor([&] { return rowOf(list(), pid) >= 0; });
    }
    bool waitForNoRow(int pid);
    bool select(int pid);
    bool openContextMenu(int pid);
    bool openContextMenuOnEmptySpace(); ///< below the last row
    /// "Process" in the "Edit" menu.
    bool openProcessMenu()
    {
        return desktop.clickMenu("Edit") && desktop.clickMenu("Process") && waitForMenu("Tree view");
    }
    bool showPage(const QString &tab); ///< by the text of its tab
    bool closeMenus()
    {
        return desktop.waitFor(
            [&] { return desktop.menuTexts().isEmpty() || (desktop.key("Escape") && false); });
    }
    /// Until it has the focus. A " - " and the name of a process may follow the title.
    bool waitForDialog(const QString &title);
    bool waitForNoDialog(); ///< until the main window has the focus
    bool dismissAll();      ///< closes open menus and dialogs with Escape
    /// With Ctrl+Q.
    bool quit() { return dismissAll() && desktop.key("ctrl+q") && desktop.waitForExit(); }

private:
    bool clickProcess(int pid, int button = 1)
    {
        return desktop.clickRow("treeView", "PID", QString::number(pid), button);
    }
    bool waitForMenu(const QString &entry)
    {
        return desktop.waitFor([&] { return !rectOf(desktop.menuEntry(entry).value("rect")).isEmpty(); });
    }

    DesktopSession &desktop;
};

#endif
