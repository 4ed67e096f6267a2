// SPDX-License-Identifier: GPL-3.0-or-later
// What the monkey does in open menus, lists and dialogs.
#include "tests/desktop/monkey.h"

#include <QJsonArray>

namespace {

bool isAnyEntry(const QString &)
{
    return true;
}

bool isAboutProcess(const QString &entry)
{
    return entry.endsWith(QLatin1String(" process")) || entry.contains(QLatin1String("priority"));
}

} // namespace

// Of the open menus, but not "Exit".
QJsonObject Monkey::anyEntry(bool (*isMeant)(const QString &text))
{
    QVector<QJsonObject> entries;
    const QJsonArray menus = m_session.probe(QStringLiteral("menu")).value(QLatin1String("menus")).toArray();
    for (const QJsonValue &menu : menus) {
        const QJsonArray actions = menu[QLatin1String("actions")].toArray();
        for (const QJsonValue &action : actions) {
            if (action[QLatin1String("visible")].toBool() && !action[QLatin1String("separator")].toBool() &&
                action[QLatin1String("shortcut")].toString() != QLatin1String("Ctrl+Q") &&
                isMeant(action[QLatin1String("text")].toString()))
                entries.append(action.toObject());
        }
    }
    return entries.isEmpty() ? QJsonObject() : entries.at(m_random.bounded(entries.size()));
}

void Monkey::clickEntry()
{
    clickOn(anyEntry(isAnyEntry));
}

void Monkey::clickProcessEntry()
{
    clickOn(anyEntry(isAboutProcess));
}

void Monkey::clickOn(const QJsonObject &entry)
{
    note(entry.value(QLatin1String("text")).toString());
    clickIn(rectOf(entry.value(QLatin1String("rect"))));
}

void Monkey::hoverEntry()
{
    const QJsonObject entry = anyEntry(isAnyEntry);
    note(entry.value(QLatin1String("text")).toString());
    if (!entry.isEmpty())
        m_session.x().moveTo(pointIn(rectOf(entry.value(QLatin1String("rect")))));
}

// Left and Right lead into the "File" menu, where the entry "Exit" is the first.
void Monkey::pressMenuKey()
{
    static const char *const keys[] = {"Up",   "Down", "Down",   "Down",   "Left",   "Right",
                                       "Home", "End",  "Return", "Return", "Escape", "space"};
    const QJsonArray menus = m_state.value(QLatin1String("menus")).toArray();
    press(menus.contains(QStringLiteral("&File")) ? QStringLiteral("Escape") : anyOf(keys));
}

void Monkey::clickBesideMenu()
{
    const QPoint point = pointIn(shownView());
    const QJsonArray menus = m_state.value(QLatin1String("menus")).toArray();
    if (!menus.contains(QStringLiteral("&File")) && !forbidden().contains(point))
        clickAt(point, oneIn(4) ? 3 : 1);
}

void Monkey::clickItem()
{
    const QJsonArray windows =
        m_session.probe(QStringLiteral("windows")).value(QLatin1String("windows")).toArray();
    for (const QJsonValue &window : windows) {
        if (window[QLatin1String("class")] != m_state.value(QLatin1String("popup")))
            continue;
        const QRect rect = rectOf(window[QLatin1String("rect")]);
        if (oneIn(3))
            turnWheel(rect);
        else
            clickIn(rect);
    }
}

void Monkey::pressItemKey()
{
    static const char *const keys[] = {"Up",  "Down",   "Home",   "End",    "Page_Up", "Page_Down",
                                       "End", "Return", "Return", "Escape", "Tab",     "e"};
    press(anyOf(keys));
}

// A box whose OK acts on a process.
bool Monkey::asksAboutProcess() const
{
    return title().startsWith(QLatin1String("Process ")) || title() == QLatin1String("Change priority");
}

bool Monkey::mayConfirm()
{
    if (!asksAboutProcess())
        return true;
    note(QStringLiteral("about %1").arg(m_askedAbout));
    return m_isOfTheTest;
}

void Monkey::endProcessAskedAbout()
{
    if (asksAboutProcess())
        m_churn.end(m_askedAbout);
}

void Monkey::clickButton()
{
    const QJsonArray buttons = m_session.dialog().value(QLatin1String("buttons")).toArray();
    if (buttons.isEmpty())
        return;
    const QJsonValue button = buttons.at(m_random.bounded(buttons.size()));
    const QString text = button[QLatin1String("text")].toString();
    note(text);
    if (!text.contains(QLatin1String("Cancel")) && !mayConfirm())
        return;
    if (asksAboutProcess() && !text.contains(QLatin1String("Cancel")))
        ++m_dialogs[title() + QStringLiteral(", OK clicked")];
    clickIn(rectOf(button[QLatin1String("rect")]));
}

void Monkey::pressDialogKey()
{
    static const char *const keys[] = {"Return", "space", "Tab",  "Tab",     "shift+Tab", "Left", "Right",
                                       "Home",   "End",   "Down", "Page_Up", "Escape",    "F1",   "alt+o"};
    const QString keysToPress = anyOf(keys);
    press(mayConfirm() ? keysToPress : QStringLiteral("Escape"));
}

void Monkey::moveSlider()
{
    const QRect slider = rectOfWidget(QStringLiteral("QSlider"));
    if (slider.isEmpty())
        return;
    if (oneIn(3))
        turnWheel(slider);
    else if (oneIn(2))
        clickIn(slider);
    else
        drag(pointIn(slider), pointIn(slider));
}

// Not in the box about the toolkit, which leads to pages of the web.
void Monkey::clickInDialog()
{
    const QJsonObject dialog = m_session.dialog();
    if (dialog.value(QLatin1String("title")) != QLatin1String("About Qt") && mayConfirm())
        clickIn(rectOf(dialog.value(QLatin1String("rect"))), oneIn(3) ? 3 : 1);
}

void Monkey::closeDialog()
{
    const QJsonObject dialog = m_session.dialog();
    if (!dialog.isEmpty())
        m_session.x().closeWindow(static_cast<unsigned long>(dialog.value(QLatin1String("id")).toDouble()));
}
