// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"

#include <QJsonArray>

#include <unistd.h>

namespace {

int rowOf(const Table &table, int pid)
{
    return table.find(QStringLiteral("PID"), QString::number(pid));
}

} // namespace

int testUser()
{
    const int firstId = 20000;
    const int ids = 40000;
    return getuid() == 0 ? firstId + getpid() % ids : -1;
}

SessionOptions asTestUser(SessionOptions options)
{
    if (testUser() < 0)
        return options;
    options.environment[QStringLiteral("ZSM_TEST_USER")] = QString::number(testUser());
    options.environment[QStringLiteral("ZSM_TEST_PROGRAM")] = QStringLiteral(ZSM_PROGRAM);
    options.program = QStringLiteral(ZSM_AS_USER);
    return options;
}

QString ProcessesPage::text(int pid, const char *header)
{
    const Table now = list();
    return now.text(rowOf(now, pid), QLatin1String(header));
}

bool ProcessesPage::isSelected(int pid)
{
    const Table now = list();
    return now.rows.value(rowOf(now, pid)).selected;
}

bool ProcessesPage::waitForText(int pid, const char *header, const QString &expected)
{
    return m_session.waitFor([&] { return text(pid, header) == expected; });
}

bool ProcessesPage::waitForRow(int pid)
{
    return m_session.waitFor([&] { return rowOf(list(), pid) >= 0; });
}

bool ProcessesPage::waitForNoRow(int pid)
{
    return m_session.waitFor([&] {
        const Table now = list();
        return !now.rows.isEmpty() && rowOf(now, pid) < 0;
    });
}

// Clicks again when a refresh has moved the row away from under the mouse.
bool ProcessesPage::select(int pid)
{
    const int patience = 2000; // for the click to arrive
    const auto clickSelects = [&] {
        return m_session.clickRow(QStringLiteral("treeView"), QStringLiteral("PID"), QString::number(pid)) &&
               m_session.waitFor([&] { return isSelected(pid); }, patience);
    };
    return m_session.waitFor([&] { return isSelected(pid) || clickSelects(); });
}

// The right button selects the row under the mouse, which a refresh may have made another one.
bool ProcessesPage::openContextMenu(int pid)
{
    return m_session.waitFor([&] {
        return m_session.clickRow(QStringLiteral("treeView"), QStringLiteral("PID"), QString::number(pid),
                                  3) &&
               waitForMenu(QStringLiteral("Visible columns")) && (isSelected(pid) || (closeMenus() && false));
    });
}

bool ProcessesPage::openContextMenuOnEmptySpace()
{
    const QRect viewport = list().viewport;
    return m_session.click([&] { return QRect(viewport.bottomLeft() + QPoint(5, -8), QSize(4, 4)); }, 3) &&
           waitForMenu(QStringLiteral("Visible columns"));
}

bool ProcessesPage::openProcessMenu()
{
    return m_session.clickMenu(QStringLiteral("Edit")) && m_session.clickMenu(QStringLiteral("Process")) &&
           waitForMenu(QStringLiteral("Tree view"));
}

bool ProcessesPage::waitForMenu(const QString &entry)
{
    return m_session.waitFor(
        [&] { return !rectOf(m_session.menuEntry(entry).value(QLatin1String("rect"))).isEmpty(); });
}

// A key may overtake a click on its way through the window manager: the page is there when this returns.
bool ProcessesPage::showPage(const QString &tab)
{
    const auto isShown = [&] {
        const QJsonObject tabs = m_session.widget(QStringLiteral("tabWidget"));
        const QJsonValue current =
            tabs.value(QLatin1String("tabs")).toArray().at(tabs.value(QLatin1String("currentIndex")).toInt());
        return current[QLatin1String("text")].toString() == tab;
    };
    return m_session.clickTab(tab) && m_session.waitFor(isShown);
}

bool ProcessesPage::closeMenus()
{
    return m_session.waitFor([&] {
        return m_session.menuTexts().isEmpty() || (m_session.key(QStringLiteral("Escape")) && false);
    });
}

bool ProcessesPage::waitForDialog(const QString &title)
{
    return m_session.waitFor([&] {
        const QJsonObject dialog = m_session.dialog();
        return dialog.value(QLatin1String("title")).toString() == title &&
               dialog.value(QLatin1String("active")).toBool();
    });
}

bool ProcessesPage::waitForNoDialog()
{
    return m_session.waitFor([&] {
        return m_session.probe(QStringLiteral("dialog")).isEmpty() &&
               m_session.mainWindow().value(QLatin1String("active")).toBool();
    });
}

bool ProcessesPage::dismissAll()
{
    const bool closed = closeMenus() && m_session.waitFor([&] {
        return m_session.dialog().isEmpty() || (m_session.key(QStringLiteral("Escape")) && false);
    });
    return closed && waitForNoDialog();
}

bool ProcessesPage::quit()
{
    return dismissAll() && m_session.key(QStringLiteral("ctrl+q")) && m_session.waitForExit();
}
