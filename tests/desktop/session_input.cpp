// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QJsonArray>
#include <QtTest>

namespace {

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

// The element of an array whose text is the one, compared without "&".
QJsonObject withText(const QJsonValue &array, const QString &text)
{
    const QJsonArray elements = array.toArray();
    for (const QJsonValue &element : elements) {
        if (plain(element[QLatin1String("text")].toString()) == plain(text))
            return element.toObject();
    }
    return {};
}

} // namespace

QRect DesktopSession::stableRect(const std::function<QRect()> &findRect)
{
    QRect before;
    const bool found = waitFor([&] {
        const QRect now = findRect();
        const bool still = !now.isEmpty() && now == before;
        before = now;
        return still;
    });
    return found ? before : QRect();
}

bool DesktopSession::click(const std::function<QRect()> &findRect, int button)
{
    const QRect rect = stableRect(findRect);
    if (rect.isEmpty())
        return false;
    leaveDoubleClickInterval();
    m_x.moveTo(rect.center());
    m_x.click(button);
    m_sinceClick.start();
    return true;
}

// Two clicks soon after one another would be taken for a double click.
void DesktopSession::leaveDoubleClickInterval()
{
    const qint64 interval = 500;
    while (m_sinceClick.isValid() && !m_sinceClick.hasExpired(interval))
        QTest::qWait(int(interval - m_sinceClick.elapsed()));
}

bool DesktopSession::doubleClick(const std::function<QRect()> &findRect)
{
    if (!click(findRect))
        return false;
    m_x.click();
    return true;
}

bool DesktopSession::clickWidget(const QString &name, int button)
{
    return click(
        [&] {
            const QJsonObject found = widget(name);
            const bool visible = found.value(QLatin1String("visible")).toBool();
            return visible ? rectOf(found.value(QLatin1String("rect"))) : QRect();
        },
        button);
}

bool DesktopSession::clickTab(const QString &text)
{
    return click([&] {
        const QJsonObject tabs = probe(QStringLiteral("widget QTabWidget"));
        return rectOf(withText(tabs.value(QLatin1String("tabs")), text).value(QLatin1String("rect")));
    });
}

bool DesktopSession::clickMenu(const QString &text)
{
    return click([&] { return rectOf(menuEntry(text).value(QLatin1String("rect"))); });
}

bool DesktopSession::clickButton(const QString &text)
{
    return click([&] {
        return rectOf(withText(dialog().value(QLatin1String("buttons")), text).value(QLatin1String("rect")));
    });
}

bool DesktopSession::clickHeader(const QString &tableName, const QString &header)
{
    return click([&] { return table(tableName).headerRect(header); });
}

bool DesktopSession::clickRow(const QString &tableName, const QString &header, const QString &text,
                              int button)
{
    return bringIntoView(tableName, header, text) && click(
                                                         [&] {
                                                             const Table now = table(tableName);
                                                             return now.rowRect(now.find(header, text));
                                                         },
                                                         button);
}

bool DesktopSession::bringIntoView(const QString &tableName, const QString &header, const QString &text)
{
    return waitFor([&] {
        const Table now = table(tableName);
        const int row = now.find(header, text);
        if (row < 0 || now.viewport.isEmpty())
            return false;
        if (!now.rowRect(row).isEmpty())
            return true;
        int firstShown = 0;
        while (firstShown < now.rows.size() && now.rowRect(firstShown).isEmpty())
            ++firstShown;
        m_x.moveTo(now.viewport.center());
        m_x.click(row < firstShown ? 4 : 5);
        return false;
    });
}

void DesktopSession::drag(const QPoint &from, const QPoint &to)
{
    const int steps = 10;
    m_x.moveTo(from);
    m_x.press(1);
    for (int step = 1; step <= steps; ++step)
        m_x.moveTo(from + (to - from) * step / steps);
    m_x.release(1);
}

bool DesktopSession::resizeMainWindow(const QSize &size)
{
    const QJsonObject window = mainWindow();
    const QSize least = rectOf(window.value(QLatin1String("minimumSize"))).size();
    m_x.resizeWindow(static_cast<unsigned long>(window.value(QLatin1String("id")).toDouble()), size);
    return waitFor(
        [&] { return rectOf(mainWindow().value(QLatin1String("rect"))).size() == size.expandedTo(least); });
}

void DesktopSession::closeMainWindow()
{
    m_x.closeWindow(static_cast<unsigned long>(mainWindow().value(QLatin1String("id")).toDouble()));
}

QJsonObject DesktopSession::menuEntry(const QString &text)
{
    const QJsonObject menus = probe(QStringLiteral("menu"));
    const QJsonArray open = menus.value(QLatin1String("menus")).toArray();
    for (const QJsonValue &menu : open) {
        const QJsonObject entry = withText(menu[QLatin1String("actions")], text);
        if (menu[QLatin1String("exposed")].toBool() && entry.value(QLatin1String("visible")).toBool())
            return entry;
    }
    return withText(menus.value(QLatin1String("bar")), text);
}

QStringList DesktopSession::menuTexts()
{
    QJsonValue innermost;
    waitFor([&] {
        const QJsonArray open = probe(QStringLiteral("menu")).value(QLatin1String("menus")).toArray();
        innermost = open.isEmpty() ? QJsonValue() : QJsonValue(open.last());
        return open.isEmpty() || innermost[QLatin1String("exposed")].toBool();
    });
    const QJsonArray actions = innermost[QLatin1String("actions")].toArray();
    QStringList texts;
    for (const QJsonValue &action : actions) {
        if (action[QLatin1String("visible")].toBool() && !action[QLatin1String("separator")].toBool())
            texts.append(plain(action[QLatin1String("text")].toString()));
    }
    return texts;
}
