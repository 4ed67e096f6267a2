// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QtTest>

namespace {

QString plain(QString text)
{
    return text.remove('&');
}

/// The element of an array with this text, compared without "&".
QJsonObject withText(const QJsonValue &array, const QString &text)
{
    const QJsonArray elements = array.toArray();
    for (const QJsonValue &element : elements) {
        if (plain(element["text"].toString()) == plain(text)) {
            return element.toObject();
        }
    }
    return {};
}

} // namespace

bool DesktopSession::click(const std::function<QRect()> &findRect, int button)
{
    QRect rect;
    const bool found = waitFor([&] {
        const QRect before = rect;
        rect = findRect();
        return !rect.isEmpty() && rect == before;
    });
    // Two clicks within this time would count as a double click.
    const qint64 doubleClickInterval = 500;
    while (found && sinceClick.isValid() && !sinceClick.hasExpired(doubleClickInterval)) {
        QTest::qWait(int(doubleClickInterval - sinceClick.elapsed()));
    }
    if (found) {
        client.moveTo(rect.center());
        client.click(button);
        sinceClick.start();
    }
    return found;
}

bool DesktopSession::clickWidget(const QString &name, int button)
{
    const auto visibleRect = [&] {
        const QJsonObject found = widget(name);
        return found.value("visible").toBool() ? rectOf(found.value("rect")) : QRect();
    };
    return click(visibleRect, button);
}

bool DesktopSession::clickTab(const QString &text)
{
    return click([&] {
        const QJsonObject tabs = probe("widget QTabWidget");
        return rectOf(withText(tabs.value("tabs"), text).value("rect"));
    });
}

bool DesktopSession::clickButton(const QString &text)
{
    return click([&] { return rectOf(withText(dialog().value("buttons"), text).value("rect")); });
}

bool DesktopSession::clickRow(const QString &tableName, const QString &header, const QString &text,
                              int button)
{
    const auto rowRect = [&] {
        const Table now = table(tableName);
        return now.rowRect(now.find(header, text));
    };
    return scrollToRow(tableName, header, text) && click(rowRect, button);
}

bool DesktopSession::scrollToRow(const QString &tableName, const QString &header, const QString &text)
{
    return waitFor([&] {
        const Table now = table(tableName);
        const int row = now.find(header, text);
        if (row < 0 || now.viewport.isEmpty()) {
            return false;
        }
        if (!now.rowRect(row).isEmpty()) {
            return true;
        }
        int firstShown = 0;
        while (firstShown < now.rows.size() && now.rowRect(firstShown).isEmpty()) {
            ++firstShown;
        }
        client.moveTo(now.viewport.center());
        client.click(row < firstShown ? 4 : 5);
        stateAfterInput(); // more steps of the wheel would take a slow program past the row, and back past it
        return false;
    });
}

void DesktopSession::drag(const QPoint &from, const QPoint &to)
{
    const int steps = 10;
    client.moveTo(from);
    client.press(1);
    for (int step = 1; step <= steps; ++step) {
        client.moveTo(from + (to - from) * step / steps);
    }
    client.release(1);
}

bool DesktopSession::resizeMainWindow(const QSize &size)
{
    const QSize expected = size.expandedTo(rectOf(mainWindow().value("minimumSize")).size());
    client.resizeWindow(windowId(), size);
    return waitFor([&] { return windowRect().size() == expected; });
}

QJsonObject DesktopSession::menuEntry(const QString &text)
{
    const QJsonObject menus = probe("menu");
    const QJsonArray open = menus.value("menus").toArray();
    for (const QJsonValue &menu : open) {
        const QJsonObject entry = withText(menu["actions"], text);
        if (menu["exposed"].toBool() && entry.value("visible").toBool()) {
            return entry;
        }
    }
    return withText(menus.value("bar"), text);
}

QStringList DesktopSession::menuTexts()
{
    QJsonValue innermost;
    waitFor([&] {
        const QJsonArray open = probe("menu").value("menus").toArray();
        innermost = open.isEmpty() ? QJsonValue() : QJsonValue(open.last());
        return open.isEmpty() || innermost["exposed"].toBool();
    });
    const QJsonArray actions = innermost["actions"].toArray();
    QStringList texts;
    for (const QJsonValue &action : actions) {
        if (action["visible"].toBool() && !action["separator"].toBool()) {
            texts.append(plain(action["text"].toString()));
        }
    }
    return texts;
}
