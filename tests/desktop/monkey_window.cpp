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

void Monkey::clickTab()
{
    const QJsonArray tabs = session.widget("tabWidget").value("tabs").toArray();
    clickIn(rectOf(tabs.at(random.bounded(4))["rect"]) & shownView());
}

/// Any but "File", where "Exit" is near.
void Monkey::openMenu()
{
    const QString menu = oneIn(4) ? "Help" : "Edit";
    clickIn(rectOf(session.menuEntry(menu).value("rect")) & shownView());
}

/// Opens the menu and leaves it again before the next action.
void Monkey::lookIntoFileMenu()
{
    const int patience = 2000;
    if (oneIn(2)) {
        press("alt+f");
    } else {
        clickIn(forbidden());
    }
    session.waitFor([&] { return look() && place() == Menu; }, patience);
    session.waitFor([&] {
        look();
        return place() != Menu || (session.key("Escape") && false);
    });
}

QRect Monkey::listOnPage()
{
    const QRect tree = rectOfWidget("treeView");
    return (tree.isEmpty() ? rectOfWidget("tableFS") : tree) & shownView();
}

void Monkey::clickRow()
{
    const QRect list = listOnPage();
    // Most rows, and the expanders of a tree, are at the top left.
    clickIn(oneIn(2) ? list : QRect(list.topLeft(), list.size() / 2), oneIn(8) ? 2 : 1);
    if (oneIn(6)) {
        session.x().click(1);
    }
}

QRect Monkey::header()
{
    const QJsonArray headers = session.probe("widgets QHeaderView").value("widgets").toArray();
    return rectOf(headers.at(0)["rect"]) & shownView();
}

void Monkey::clickHeader()
{
    clickIn(header());
    if (oneIn(5)) {
        session.x().click(1);
    }
}

void Monkey::dragHeader()
{
    const QRect rect = header();
    if (!rect.isEmpty()) {
        drag(pointIn(rect), pointIn(rect));
    }
}

void Monkey::clickChooser()
{
    const QRect chooser = rectOfWidget("comboNet") & shownView();
    if (oneIn(4)) {
        turnWheel(chooser);
    } else {
        clickIn(chooser);
    }
}

void Monkey::dragSplitter()
{
    const QRect table = rectOfWidget("tableFS");
    const QPoint handle(table.right() + 3, table.center().y());
    if (shownView().contains(handle)) {
        drag(handle, QPoint(pointIn(shownView()).x(), handle.y()));
    }
}

void Monkey::resizeWindow()
{
    const QSize size(200 + random.bounded(1050), 150 + random.bounded(800));
    note(QString("%1 x %2").arg(size.width()).arg(size.height()));
    session.x().resizeWindow(windowId(), size);
    waitUntilWindowStands();
}

void Monkey::maximise()
{
    session.x().toggleMaximized(windowId());
    waitUntilWindowStands();
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

void Monkey::changePalette()
{
    const QString color = anyOf("#efefef #202020 #802020 #ffffff #000000 #20a0ff");
    note(color);
    session.probe("palette " + color);
}

void Monkey::changeFont()
{
    const QString size = QString::number(6 + random.bounded(12));
    note(size);
    session.probe("font " + size);
}

void Monkey::clickAnywhere()
{
    const QPoint point = pointIn(shownView());
    if (forbidden().contains(point)) {
        return;
    }
    clickAt(point, oneIn(3) ? 3 : 1);
    if (oneIn(6)) {
        session.x().click(1);
    }
}
