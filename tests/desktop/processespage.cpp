// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"

#include <QJsonArray>

#include <unistd.h>

int testUser()
{
    const int firstId = 20000;
    const int ids = 40000;
    return getuid() == 0 ? firstId + getpid() % ids : -1;
}

SessionOptions asTestUser(SessionOptions options)
{
    if (testUser() >= 0) {
        options.environment["ZSM_TEST_USER"] = QString::number(testUser());
        options.environment["ZSM_TEST_PROGRAM"] = ZSM_PROGRAM;
        options.program = ZSM_AS_USER;
    }
    return options;
}

int rowOf(const Table &table, int pid)
{
    return table.find("PID", QString::number(pid));
}

QString ProcessesPage::text(int pid, const char *header)
{
    const Table now = list();
    return now.text(rowOf(now, pid), header);
}

bool ProcessesPage::isSelected(int pid)
{
    const Table now = list();
    return now.rows.value(rowOf(now, pid)).selected;
}

bool ProcessesPage::waitForNoRow(int pid)
{
    return desktop.waitFor([&] {
        const Table now = list();
        return !now.rows.isEmpty() && rowOf(now, pid) < 0;
    });
}

// Clicks again if a refresh has moved the row away from under the mouse.
bool ProcessesPage::select(int pid)
{
    const int patience = 2000; // for the click to arrive
    return desktop.waitFor([&] {
        return isSelected(pid) ||
               (clickProcess(pid) && desktop.waitFor([&] { return isSelected(pid); }, patience));
    });
}

// The right button selects the row under the mouse, which a refresh may have changed.
bool ProcessesPage::openContextMenu(int pid)
{
    return desktop.waitFor([&] {
        return clickProcess(pid, 3) && waitForMenu("Visible columns") &&
               (isSelected(pid) || (closeMenus() && false));
    });
}

bool ProcessesPage::openContextMenuOnEmptySpace()
{
    const QRect viewport = list().viewport;
    return desktop.click([&] { return QRect(viewport.bottomLeft() + QPoint(5, -8), QSize(4, 4)); }, 3) &&
           waitForMenu("Visible columns");
}

// Waits for the page: a key sent at once might overtake the click.
bool ProcessesPage::showPage(const QString &tab)
{
    const auto isShown = [&] {
        const QJsonObject tabs = desktop.widget("tabWidget");
        const QJsonValue current = tabs.value("tabs").toArray().at(tabs.value("currentIndex").toInt());
        return current["text"].toString() == tab;
    };
    return desktop.clickTab(tab) && desktop.waitFor(isShown);
}

bool ProcessesPage::waitForDialog(const QString &title)
{
    return desktop.waitFor([&] {
        const QJsonObject dialog = desktop.dialog();
        const QString shown = dialog.value("title").toString();
        return (shown == title || shown.startsWith(title + " - ")) && dialog.value("active").toBool();
    });
}

bool ProcessesPage::waitForNoDialog()
{
    return desktop.waitFor(
        [&] { return desktop.probe("dialog").isEmpty() && desktop.mainWindow().value("active").toBool(); });
}

bool ProcessesPage::dismissAll()
{
    const auto dismissDialog = [&] { return desktop.dialog().isEmpty() || (desktop.key("Escape") && false); };
    return closeMenus() && desktop.waitFor(dismissDialog) && waitForNoDialog();
}
