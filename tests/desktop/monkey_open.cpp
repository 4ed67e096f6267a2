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

const std::vector<Monkey::Kind> Monkey::kindsWithSomethingOpen = {
    {"menu entry by mouse", Menu, AnyPage, 26, [](Monkey &m) { m.clickOn(m.anyEntry()); }},
    {"menu entry about a process", Menu, Processes, 14, [](Monkey &m) { m.clickOn(m.anyEntry(true)); }},
    {"menu entry pointed at", Menu, AnyPage, 10,
     [](Monkey &m) {
         const QJsonObject entry = m.anyEntry();
         m.note(entry.value("text").toString());
         if (!entry.isEmpty()) {
             m.session.x().moveTo(m.pointIn(rectOf(entry.value("rect"))));
         }
     }},
    {"menu entry by key", Menu, AnyPage, 20,
     [](Monkey &m) { // Left and Right can lead into the "File" menu, whose first entry is "Exit"
         m.press(m.isInFileMenu()
                     ? "Escape"
                     : m.anyOf("Up Down Down Down Left Right Home End Return Return Escape space"));
     }},
    {"click beside a menu", Menu, AnyPage, 3,
     [](Monkey &m) {
         const QPoint point = m.pointIn(m.shownView());
         if (!m.isInFileMenu() && !m.forbidden().contains(point)) {
             m.clickAt(point, m.oneIn(4) ? 3 : 1);
         }
     }},
    {"interface by mouse", List, AnyPage, 20,
     [](Monkey &m) {
         for (const QJsonValue &window : m.session.probe("windows").value("windows").toArray()) {
             if (window["class"] != m.state.value("popup")) {
                 continue;
             }
             const QRect rect = rectOf(window["rect"]);
             if (m.oneIn(3)) {
                 m.turnWheel(rect);
             } else {
                 m.clickIn(rect);
             }
         }
     }},
    {"interface by key", List, AnyPage, 20,
     keys("Up Down Home End Page_Up Page_Down End Return Return Escape Tab e")},
    {"button", Dialog, AnyPage, 30,
     [](Monkey &m) {
         const QJsonArray buttons = m.session.dialog().value("buttons").toArray();
         if (buttons.isEmpty()) {
             return;
         }
         const QJsonValue button = buttons.at(m.random.bounded(buttons.size()));
         const QString text = button["text"].toString();
         m.note(text);
         if (!text.contains("Cancel")) {
             if (!m.mayConfirm()) {
                 return;
             }
             if (m.asksAboutProcess()) {
                 ++m.dialogCounts[m.title() + ", OK clicked"];
             }
         }
         m.clickIn(rectOf(button["rect"]));
     }},
    {"dialog key", Dialog, AnyPage, 20,
     [](Monkey &m) {
         const QString key =
             m.anyOf("Return space Tab Tab shift+Tab Left Right Home End Down Page_Up Escape F1 alt+o");
         m.press(m.mayConfirm() ? key : "Escape");
     }},
    {"slider", Dialog, AnyPage, 15,
     [](Monkey &m) {
         const QRect slider = m.rectOfWidget("QSlider");
         if (slider.isEmpty()) {
             return;
         }
         if (m.oneIn(3)) {
             m.turnWheel(slider);
         } else if (m.oneIn(2)) {
             m.clickIn(slider);
         } else {
             m.drag(m.pointIn(slider), m.pointIn(slider));
         }
     }},
    {"click in a dialog", Dialog, AnyPage, 5,
     [](Monkey &m) { // not in the box about the toolkit, whose links open a browser
         const QJsonObject dialog = m.session.dialog();
         if (dialog.value("title") != "About Qt" && m.mayConfirm()) {
             m.clickIn(rectOf(dialog.value("rect")), m.oneIn(3) ? 3 : 1);
         }
     }},
    {"end of the process asked about", Dialog, Processes, 10,
     [](Monkey &m) {
         if (m.asksAboutProcess()) {
             m.churn.end(m.askedAbout);
         }
     }},
    {"dialog closed", Dialog, AnyPage, 4,
     [](Monkey &m) {
         const QJsonObject dialog = m.session.dialog();
         if (!dialog.isEmpty()) {
             m.session.x().closeWindow(static_cast<unsigned long>(dialog.value("id").toDouble()));
         }
     }},
};
