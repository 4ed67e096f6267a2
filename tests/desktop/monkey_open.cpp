// SPDX-License-Identifier: GPL-3.0-or-later
// What the monkey does in open menus, lists and dialogs.
#include "tests/desktop/monkey.h"

#include <QJsonArray>

/// A random visible entry of the open menus, but never "Exit".
QJsonObject Monkey::anyEntry(bool aboutProcess)
{
    QVector<QJsonObject> entries;
    for (const QJsonValue &menu : session.probe("menu").value("menus").toArray()) {
        for (const QJsonValue &action : menu["actions"].toArray()) {
            const QString text = action["text"].toString();
            if (action["visible"].toBool() && !action["separator"].toBool() &&
                action["shortcut"].toString() != "Ctrl+Q" &&
                (!aboutProcess || text.endsWith(" process") || text.contains("priority"))) {
                entries.append(action.toObject());
            }
        }
    }
    return entries.isEmpty() ? QJsonObject() : entries.at(random.bounded(entries.size()));
}

void Monkey::clickOn(const QJsonObject &entry)
{
    note(entry.value("text").toString());
    clickIn(rectOf(entry.value("rect")));
}

void Monkey::hoverEntry()
{
    const QJsonObject entry = anyEntry();
    note(entry.value("text").toString());
    if (!entry.isEmpty()) {
        session.x().moveTo(pointIn(rectOf(entry.value("rect"))));
    }
}

/// Left and Right can lead into the "File" menu, whose first entry is "Exit".
void Monkey::pressMenuKey()
{
    const bool isInFileMenu = state.value("menus").toArray().contains("&File");
    press(isInFileMenu ? "Escape"
                       : anyOf("Up Down Down Down Left Right Home End Return Return Escape space"));
}

void Monkey::clickBesideMenu()
{
    const QPoint point = pointIn(shownView());
    if (!state.value("menus").toArray().contains("&File") && !forbidden().contains(point)) {
        clickAt(point, oneIn(4) ? 3 : 1);
    }
}

void Monkey::clickItem()
{
    for (const QJsonValue &window : session.probe("windows").value("windows").toArray()) {
        if (window["class"] != state.value("popup")) {
            continue;
        }
        const QRect rect = rectOf(window["rect"]);
        if (oneIn(3)) {
            turnWheel(rect);
        } else {
            clickIn(rect);
        }
    }
}

/// Whether OK in the open box acts on a process.
bool Monkey::asksAboutProcess() const
{
    return title().startsWith("Process ") || title() == "Change priority";
}

bool Monkey::mayConfirm()
{
    if (!asksAboutProcess()) {
        return true;
    }
    note(QString("about %1").arg(askedAbout));
    return isOfTheTest;
}

void Monkey::endProcessAskedAbout()
{
    if (asksAboutProcess()) {
        churn.end(askedAbout);
    }
}

void Monkey::clickButton()
{
    const QJsonArray buttons = session.dialog().value("buttons").toArray();
    if (buttons.isEmpty()) {
        return;
    }
    const QJsonValue button = buttons.at(random.bounded(buttons.size()));
    const QString text = button["text"].toString();
    note(text);
    if (!text.contains("Cancel")) {
        if (!mayConfirm()) {
            return;
        }
        if (asksAboutProcess()) {
            ++dialogCounts[title() + ", OK clicked"];
        }
    }
    clickIn(rectOf(button["rect"]));
}

void Monkey::pressDialogKey()
{
    const QString keys =
        anyOf("Return space Tab Tab shift+Tab Left Right Home End Down Page_Up Escape F1 alt+o");
    press(mayConfirm() ? keys : "Escape");
}

void Monkey::moveSlider()
{
    const QRect slider = rectOfWidget("QSlider");
    if (slider.isEmpty()) {
        return;
    }
    if (oneIn(3)) {
        turnWheel(slider);
    } else if (oneIn(2)) {
        clickIn(slider);
    } else {
        drag(pointIn(slider), pointIn(slider));
    }
}

/// Not in the box about the toolkit, whose links open a browser.
void Monkey::clickInDialog()
{
    const QJsonObject dialog = session.dialog();
    if (dialog.value("title") != "About Qt" && mayConfirm()) {
        clickIn(rectOf(dialog.value("rect")), oneIn(3) ? 3 : 1);
    }
}

void Monkey::closeDialog()
{
    const QJsonObject dialog = session.dialog();
    if (!dialog.isEmpty()) {
        session.x().closeWindow(static_cast<unsigned long>(dialog.value("id").toDouble()));
    }
}
