// SPDX-License-Identifier: GPL-3.0-or-later
// What the monkey does while neither a menu nor a dialog is open.
#include "tests/desktop/monkey.h"

#include <QJsonArray>
#include <QtTest>

namespace {

const int margin = 4; // of the window, where a click could hit its frame

} // namespace

// The screen's part of the window. Beside it the window manager has menus of its own.
QRect Monkey::shownView()
{
    const QRect window = rectOf(m_state.value(QLatin1String("window")));
    return window.adjusted(margin, margin, -margin, -margin) & QRect(QPoint(), SessionOptions().screen);
}

void Monkey::clickTab()
{
    const QJsonArray tabs =
        m_session.widget(QStringLiteral("tabWidget")).value(QLatin1String("tabs")).toArray();
    const int tab = m_random.bounded(4);
    clickIn(rectOf(tabs.at(tab)[QLatin1String("rect")]) & shownView());
}

void Monkey::pressTabKey()
{
    static const char *const keys[] = {"ctrl+Tab", "ctrl+shift+Tab", "ctrl+Page_Down", "ctrl+Page_Up"};
    press(anyOf(keys));
}

// All but "File", where "Exit" is near.
void Monkey::openMenu()
{
    const QString menu = oneIn(4) ? QStringLiteral("Help") : QStringLiteral("Edit");
    clickIn(rectOf(m_session.menuEntry(menu).value(QLatin1String("rect"))) & shownView());
}

void Monkey::openMenuByKey()
{
    press(oneIn(4) ? QStringLiteral("alt+h") : QStringLiteral("alt+e"));
}

// Goes in and out before anything else is done.
void Monkey::lookIntoFileMenu()
{
    const int patience = 2000;
    if (oneIn(2))
        press(QStringLiteral("alt+f"));
    else
        clickIn(forbidden());
    m_session.waitFor([&] { return look() && place() == Menu; }, patience);
    m_session.waitFor([&] {
        look();
        return place() != Menu || (m_session.key(QStringLiteral("Escape")) && false);
    });
}

QRect Monkey::forbidden()
{
    return rectOf(m_session.menuEntry(QStringLiteral("File")).value(QLatin1String("rect")));
}

void Monkey::pressShortcut()
{
    static const char *const keys[] = {"ctrl+f", "ctrl+m", "ctrl+a", "ctrl+s", "ctrl+c", "ctrl+t", "ctrl+k"};
    press(anyOf(keys));
}

QRect Monkey::listOnPage()
{
    const QRect tree = rectOfWidget(QStringLiteral("treeView"));
    return (tree.isEmpty() ? rectOfWidget(QStringLiteral("tableFS")) : tree) & shownView();
}

void Monkey::openContextMenu()
{
    clickIn(listOnPage(), 3);
}

void Monkey::openContextMenuByKey()
{
    press(oneIn(2) ? QStringLiteral("Menu") : QStringLiteral("shift+F10"));
}

void Monkey::clickRow()
{
    const QRect list = listOnPage();
    // Most rows, and what opens them in a tree, are at the top on the left.
    clickIn(oneIn(2) ? list : QRect(list.topLeft(), list.size() / 2), oneIn(8) ? 2 : 1);
    if (oneIn(6))
        m_session.x().click(1);
}

void Monkey::pressRowKey()
{
    static const char *const keys[] = {"Up",    "Down", "Up",       "Down",       "Page_Up",   "Page_Down",
                                       "Home",  "End",  "Left",     "Right",      "plus",      "minus",
                                       "space", "m",    "asterisk", "shift+Down", "shift+Tab", "ctrl+space"};
    press(anyOf(keys));
}

void Monkey::wheelInList()
{
    turnWheel(shownView());
}

QRect Monkey::header()
{
    const QJsonArray headers =
        m_session.probe(QStringLiteral("widgets QHeaderView")).value(QLatin1String("widgets")).toArray();
    return rectOf(headers.at(0)[QLatin1String("rect")]) & shownView();
}

void Monkey::clickHeader()
{
    clickIn(header());
    if (oneIn(5))
        m_session.x().click(1);
}

void Monkey::dragHeader()
{
    const QRect rect = header();
    if (!rect.isEmpty())
        drag(pointIn(rect), pointIn(rect));
}

void Monkey::clickChooser()
{
    const QRect chooser = rectOfWidget(QStringLiteral("comboNet")) & shownView();
    if (oneIn(4))
        turnWheel(chooser);
    else
        clickIn(chooser);
}

void Monkey::pressChooserKey()
{
    static const char *const keys[] = {"Tab",   "Tab",  "Up",  "Down", "alt+Down",
                                       "space", "Home", "End", "e",    "w"};
    press(anyOf(keys));
}

void Monkey::dragSplitter()
{
    const QRect table = rectOfWidget(QStringLiteral("tableFS"));
    const QPoint handle(table.right() + 3, table.center().y());
    if (shownView().contains(handle))
        drag(handle, QPoint(pointIn(shownView()).x(), handle.y()));
}

void Monkey::resizeWindow()
{
    const QSize size(200 + m_random.bounded(1050), 150 + m_random.bounded(800));
    note(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()));
    m_session.x().resizeWindow(static_cast<unsigned long>(m_state.value(QLatin1String("id")).toDouble()),
                               size);
    waitUntilWindowStands();
}

void Monkey::maximise()
{
    m_session.x().toggleMaximized(static_cast<unsigned long>(m_state.value(QLatin1String("id")).toDouble()));
    waitUntilWindowStands();
}

void Monkey::waitUntilWindowStands()
{
    QTest::qWait(50);
    QJsonValue before;
    m_session.waitFor([&] {
        look();
        const QJsonValue now = m_state.value(QLatin1String("window"));
        const bool still = now == before;
        before = now;
        return still;
    });
}

void Monkey::changePalette()
{
    static const char *const colors[] = {"#efefef", "#202020", "#802020", "#ffffff", "#000000", "#20a0ff"};
    const QString color = anyOf(colors);
    note(color);
    m_session.probe(QStringLiteral("palette ") + color);
}

void Monkey::changeFont()
{
    const int size = 6 + m_random.bounded(12);
    note(QString::number(size));
    m_session.probe(QStringLiteral("font %1").arg(size));
}

void Monkey::clickAnywhere()
{
    const QPoint point = pointIn(shownView());
    if (forbidden().contains(point))
        return;
    clickAt(point, oneIn(3) ? 3 : 1);
    if (oneIn(6))
        m_session.x().click(1);
}

// Not among them: what ends the program, what opens the "File" menu, and the window manager's own keys.
void Monkey::pressAnyKey()
{
    static const char *const keys[] = {
        "a",         "b",         "c",          "d",         "e",         "f",        "g",      "h",
        "i",         "0",         "1",          "9",         "Tab",       "Tab",      "Tab",    "shift+Tab",
        "Return",    "space",     "Escape",     "Up",        "Down",      "Left",     "Right",  "Page_Up",
        "Page_Down", "Home",      "End",        "Delete",    "Insert",    "F1",       "F2",     "F5",
        "F11",       "BackSpace", "period",     "ctrl+a",    "ctrl+Home", "ctrl+End", "ctrl+v", "ctrl+x",
        "shift+Up",  "shift+End", "ctrl+Right", "ctrl+Left", "alt+x"};
    press(anyOf(keys));
}
