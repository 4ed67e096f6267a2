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
    bool waitForText(int pid, const char *header, const QString &text);
    bool waitForRow(int pid);
    bool waitForNoRow(int pid);
    bool select(int pid);
    bool openContextMenu(int pid);
    bool openContextMenuOnEmptySpace(); ///< below the last row
    bool openProcessMenu();             ///< "Process" in the "Edit" menu
    bool showPage(const QString &tab);  ///< by the text of its tab
    bool closeMenus();
    bool waitForDialog(const QString &title); ///< until it has the focus
    bool waitForNoDialog();                   ///< until the main window has the focus
    bool dismissAll();                        ///< closes open menus and dialogs with Escape
    bool quit();                              ///< with Ctrl+Q

private:
    bool clickProcess(int pid, int button = 1);
    bool waitForMenu(const QString &entry);

    DesktopSession &desktop;
};

#endif
