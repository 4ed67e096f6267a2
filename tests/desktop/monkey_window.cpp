// SPDX-License-Identifier: GPL-3.0-or-later
// What the monkey does while neither a menu nor a dialog is open.
#include "tests/desktop/monkey.h"

#include <QJsonArray>

namespace {

const int margin = 4; ///< of the window, where a click could hit its frame

} // namespace

/// The part of the window that is on the screen. A click outside of it would open the window manager's menus.
QRect Monkey::shownView()
{
    const QRect window = rectOf(state.value("window"));
    return window.adjusted(margin, margin, -margin, -margin) & QRect(QPoint(), SessionOptions().screen);
}

QRect Monkey::listOnPage()
{
    const QRect tree = rectOfWidget("treeView");
    return (tree.isEmpty() ? rectOfWidget("tableFS") : tree) & shownView();
}

QRect Monkey::header()
{
    const QJsonArray headers = session.probe("widgets QHeaderView").value("widgets").toArray();
    return rectOf(headers.at(0)["rect"]) & shownView();
}

void Monkey::waitUntilWindowStands()
{
    QTest::qWait(50);
    QJsonValue before;
    session.waitFor([&] {
        look();
        const QJsonValue now = state.value("window");
        const bool still = now == before;
        before = now;
        return still;
    });
}

// Not among the keys: what quits the program, what opens the "File" menu, and the window manager's own keys.
const std::vector<Monkey::Kind> Monkey::kindsInWindow = {
    {"tab by mouse", Window, AnyPage, 8,
     [](Monkey &m) {
         const QJsonArray tabs = m.session.widget("tabWidget").value("tabs").toArray();
         m.clickIn(rectOf(tabs.at(m.random.bounded(4))["rect"]) & m.shownView());
     }},
    {"tab by key", Window, AnyPage, 4, keys("ctrl+Tab ctrl+shift+Tab ctrl+Page_Down ctrl+Page_Up")},
    {"menu by mouse", Window, AnyPage, 6,
     [](Monkey &m) { // any but "File", where "Exit" is near
         const QString menu = m.oneIn(4) ? "Help" : "Edit";
         m.clickIn(rectOf(m.session.menuEntry(menu).value("rect")) & m.shownView());
     }},
    {"menu by key", Window, AnyPage, 4, keys("alt+h alt+e alt+e alt+e")},
    {"File menu", Window, AnyPage, 1,
     [](Monkey &m) { // leaves the menu again before the next action
         const int patience = 2000;
         if (m.oneIn(2)) {
             m.press("alt+f");
         } else {
             m.clickIn(m.forbidden());
         }
         m.session.waitFor([&] { return m.look() && m.place() == Menu; }, patience);
         m.session.waitFor([&] {
             m.look();
             return m.place() != Menu || (m.session.key("Escape") && false);
         });
     }},
    {"shortcut", Window, AnyPage, 4, keys("ctrl+f ctrl+m ctrl+a ctrl+s ctrl+c ctrl+t ctrl+k")},
    {"shortcut", Window, Processes, 30, keys("ctrl+f ctrl+m ctrl+a ctrl+s ctrl+c ctrl+t ctrl+k")},
    {"context menu by mouse", Window, Processes, 16, [](Monkey &m) { m.clickIn(m.listOnPage(), 3); }},
    {"context menu by key", Window, Processes, 3, keys("Menu shift+F10")},
    {"row by mouse", Window, Processes | FileSystems, 20,
     [](Monkey &m) {
         const QRect list = m.listOnPage();
         // Most rows, and the expanders of a tree, are at the top left.
         m.clickIn(m.oneIn(2) ? list : QRect(list.topLeft(), list.size() / 2), m.oneIn(8) ? 2 : 1);
         if (m.oneIn(6)) {
             m.session.x().click(1);
         }
     }},
    {"row by key", Window, Processes | FileSystems, 14,
     keys("Up Down Up Down Page_Up Page_Down Home End Left Right plus minus space m asterisk shift+Down "
          "shift+Tab ctrl+space")},
    {"wheel", Window, AnyPage, 5, [](Monkey &m) { m.turnWheel(m.shownView()); }},
    {"header click", Window, Processes | FileSystems, 10,
     [](Monkey &m) {
         m.clickIn(m.header());
         if (m.oneIn(5)) {
             m.session.x().click(1);
         }
     }},
    {"header drag", Window, Processes | FileSystems, 4,
     [](Monkey &m) {
         const QRect rect = m.header();
         if (!rect.isEmpty()) {
             m.drag(m.pointIn(rect), m.pointIn(rect));
         }
     }},
    {"chooser by mouse", Window, Network, 14,
     [](Monkey &m) {
         const QRect chooser = m.rectOfWidget("comboNet") & m.shownView();
         if (m.oneIn(4)) {
             m.turnWheel(chooser);
         } else {
             m.clickIn(chooser);
         }
     }},
    {"chooser by key", Window, Network, 10, keys("Tab Tab Up Down alt+Down space Home End e w")},
    {"splitter drag", Window, FileSystems, 8,
     [](Monkey &m) {
         const QRect table = m.rectOfWidget("tableFS");
         const QPoint handle(table.right() + 3, table.center().y());
         if (m.shownView().contains(handle)) {
             m.drag(handle, QPoint(m.pointIn(m.shownView()).x(), handle.y()));
         }
     }},
    {"window size", Window, AnyPage, 3,
     [](Monkey &m) {
         const QSize size(200 + m.random.bounded(1050), 150 + m.random.bounded(800));
         m.note(QString("%1 x %2").arg(size.width()).arg(size.height()));
         m.session.x().resizeWindow(m.windowId(), size);
         m.waitUntilWindowStands();
     }},
    {"window maximised", Window, AnyPage, 1,
     [](Monkey &m) {
         m.session.x().toggleMaximized(m.windowId());
         m.waitUntilWindowStands();
     }},
    {"palette", AnyPlace, AnyPage, 1,
     [](Monkey &m) {
         const QString color = m.anyOf("#efefef #202020 #802020 #ffffff #000000 #20a0ff");
         m.note(color);
         m.session.probe("palette " + color);
     }},
    {"font", AnyPlace, AnyPage, 1,
     [](Monkey &m) {
         const QString size = QString::number(6 + m.random.bounded(12));
         m.note(size);
         m.session.probe("font " + size);
     }},
    {"click anywhere", Window, AnyPage, 10,
     [](Monkey &m) {
         const QPoint point = m.pointIn(m.shownView());
         if (m.forbidden().contains(point)) {
             return;
         }
         m.clickAt(point, m.oneIn(3) ? 3 : 1);
         if (m.oneIn(6)) {
             m.session.x().click(1);
         }
     }},
    {"any key", Window, AnyPage, 10,
     keys("a b c d e f g h i 0 1 9 Tab Tab Tab shift+Tab Return space Escape Up Down Left Right Page_Up "
          "Page_Down Home End Delete Insert F1 F2 F5 F11 BackSpace period ctrl+a ctrl+Home ctrl+End ctrl+v "
          "ctrl+x shift+Up shift+End ctrl+Right ctrl+Left alt+x")},
    {"change of processes", AnyPlace, AnyPage, 6,
     [](Monkey &m) { m.note(m.churn.changeProcesses(m.random)); }},
    {"change of mounts and interfaces", AnyPlace, AnyPage, 3,
     [](Monkey &m) { m.session.setMachine(Churn::machine(m.random)); }},
    {"wait", AnyPlace, AnyPage, 6, [](Monkey &m) { QTest::qWait(m.random.bounded(500)); }},
};
