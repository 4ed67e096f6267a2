// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/monkey.h"

#include <QJsonArray>

#include <numeric>

/// An action: a function, or one of several keys, separated by spaces. A key that is listed twice is chosen
/// twice as often.
struct Monkey::Kind
{
    const char *name;
    int place;
    int pages;
    int weight;
    void (Monkey::*act)();
    const char *keys = nullptr;
};

// Not among the keys: what quits the program, what opens the "File" menu, and the window manager's own keys.
// clang-format off
const Monkey::Kind Monkey::kinds[] = {
    {"tab by mouse", Window, AnyPage, 8, &Monkey::clickTab},
    {"tab by key", Window, AnyPage, 4, nullptr, "ctrl+Tab ctrl+shift+Tab ctrl+Page_Down ctrl+Page_Up"},
    {"menu by mouse", Window, AnyPage, 6, &Monkey::openMenu},
    {"menu by key", Window, AnyPage, 4, nullptr, "alt+h alt+e alt+e alt+e"},
    {"File menu", Window, AnyPage, 1, &Monkey::lookIntoFileMenu},
    {"shortcut", Window, AnyPage, 4, nullptr, "ctrl+f ctrl+m ctrl+a ctrl+s ctrl+c ctrl+t ctrl+k"},
    {"shortcut", Window, Processes, 30, nullptr, "ctrl+f ctrl+m ctrl+a ctrl+s ctrl+c ctrl+t ctrl+k"},
    {"context menu by mouse", Window, Processes, 16, &Monkey::openContextMenu},
    {"context menu by key", Window, Processes, 3, nullptr, "Menu shift+F10"},
    {"row by mouse", Window, Processes | FileSystems, 20, &Monkey::clickRow},
    {"row by key", Window, Processes | FileSystems, 14, nullptr,
     "Up Down Up Down Page_Up Page_Down Home End Left Right plus minus space m asterisk shift+Down shift+Tab "
     "ctrl+space"},
    {"wheel", Window, AnyPage, 5, &Monkey::wheelInWindow},
    {"header click", Window, Processes | FileSystems, 10, &Monkey::clickHeader},
    {"header drag", Window, Processes | FileSystems, 4, &Monkey::dragHeader},
    {"chooser by mouse", Window, Network, 14, &Monkey::clickChooser},
    {"chooser by key", Window, Network, 10, nullptr, "Tab Tab Up Down alt+Down space Home End e w"},
    {"splitter drag", Window, FileSystems, 8, &Monkey::dragSplitter},
    {"window size", Window, AnyPage, 3, &Monkey::resizeWindow},
    {"window maximised", Window, AnyPage, 1, &Monkey::maximise},
    {"palette", AnyPlace, AnyPage, 1, &Monkey::changePalette},
    {"font", AnyPlace, AnyPage, 1, &Monkey::changeFont},
    {"click anywhere", Window, AnyPage, 10, &Monkey::clickAnywhere},
    {"any key", Window, AnyPage, 10, nullptr,
     "a b c d e f g h i 0 1 9 Tab Tab Tab shift+Tab Return space Escape Up Down Left Right Page_Up Page_Down "
     "Home End Delete Insert F1 F2 F5 F11 BackSpace period ctrl+a ctrl+Home ctrl+End ctrl+v ctrl+x shift+Up "
     "shift+End ctrl+Right ctrl+Left alt+x"},
    {"change of processes", AnyPlace, AnyPage, 6, &Monkey::changeProcesses},
    {"change of mounts and interfaces", AnyPlace, AnyPage, 3, &Monkey::changeMachine},
    {"wait", AnyPlace, AnyPage, 6, &Monkey::wait},
    {"menu entry by mouse", Menu, AnyPage, 26, &Monkey::clickEntry},
    {"menu entry about a process", Menu, Processes, 14, &Monkey::clickProcessEntry},
    {"menu entry pointed at", Menu, AnyPage, 10, &Monkey::hoverEntry},
    {"menu entry by key", Menu, AnyPage, 20, &Monkey::pressMenuKey},
    {"click beside a menu", Menu, AnyPage, 3, &Monkey::clickBesideMenu},
    {"interface by mouse", List, AnyPage, 20, &Monkey::clickItem},
    {"interface by key", List, AnyPage, 20, nullptr,
     "Up Down Home End Page_Up Page_Down End Return Return Escape Tab e"},
    {"button", Dialog, AnyPage, 30, &Monkey::clickButton},
    {"dialog key", Dialog, AnyPage, 20, &Monkey::pressDialogKey},
    {"slider", Dialog, AnyPage, 15, &Monkey::moveSlider},
    {"click in a dialog", Dialog, AnyPage, 5, &Monkey::clickInDialog},
    {"end of the process asked about", Dialog, Processes, 10, &Monkey::endProcessAskedAbout},
    {"dialog closed", Dialog, AnyPage, 4, &Monkey::closeDialog},
};
// clang-format on

Monkey::Monkey(DesktopSession &desktop, Churn &processChurn, quint32 seedOfRun)
    : session(desktop), churn(processChurn), seed(seedOfRun)
{
    for (const Kind &kind : kinds) {
        kindCounts[kind.name] = 0;
    }
}

bool Monkey::act()
{
    if (state.isEmpty() && !look()) {
        return false;
    }
    // A generator for each action: how many numbers one takes doesn't change the next.
    const quint32 seeds[] = {seed, number++};
    random = QRandomGenerator(seeds);
    const Kind &kind = choose();
    ++kindCounts[kind.name];
    const int page = state.value("tab").toInt() + 1;
    log.append(QString("%1 page %2 \"%3\": %4").arg(number).arg(page).arg(title(), kind.name));
    while (log.size() > 50) {
        log.removeFirst();
    }
    if (kind.keys) {
        press(anyOf(kind.keys));
    } else {
        (this->*kind.act)();
    }
    return look();
}

/// Adds to the log entry of the current action.
void Monkey::note(const QString &text)
{
    log.last() += ' ' + text;
}

bool Monkey::look()
{
    QCoreApplication::processEvents();
    const QString before = title();
    state = session.stateAfterInput();
    if (!title().isEmpty() && title() != before) {
        lookAtDialog();
    }
    return session.isRunning() && state.contains("tab");
}

/// While a box is open, the selection can be lost but not change: the selected process is the one that the
/// box asks about.
void Monkey::lookAtDialog()
{
    ++dialogCounts[title()];
    askedAbout = session.probe("selected treeView").value("id").toInt(-1);
    isOfTheTest = askedAbout != session.pid() && churn.owns(askedAbout);
}

Monkey::Place Monkey::place() const
{
    if (!state.value("menus").toArray().isEmpty()) {
        return Menu;
    }
    if (!state.value("popup").toString().isEmpty()) {
        return List;
    }
    return state.value("modal").toBool() ? Dialog : Window;
}

const Monkey::Kind &Monkey::choose()
{
    const int page = 1 << state.value("tab").toInt();
    const auto weightNow = [=](const Kind &kind) {
        return (kind.place & place()) && (kind.pages & page) ? kind.weight : 0;
    };
    const int sum = std::accumulate(std::begin(kinds), std::end(kinds), 0,
                                    [=](int before, const Kind &kind) { return before + weightNow(kind); });
    int left = random.bounded(sum);
    const Kind *kind = kinds;
    while (left >= weightNow(*kind)) {
        left -= weightNow(*kind++);
    }
    return *kind;
}

bool Monkey::comeToRest()
{
    return session.waitFor([&] {
        if (!look()) {
            return false;
        }
        if (place() == Window && session.mainWindow().value("active").toBool()) {
            return true;
        }
        session.key("Escape");
        return false;
    });
}

QString Monkey::anyOf(const char *words)
{
    const QStringList list = QString(words).split(' ');
    return list.at(random.bounded(list.size()));
}

QPoint Monkey::pointIn(const QRect &rect)
{
    return {rect.left() + random.bounded(qMax(1, rect.width())),
            rect.top() + random.bounded(qMax(1, rect.height()))};
}

QRect Monkey::rectOfWidget(const QString &name)
{
    const QJsonObject found = session.widget(name);
    return found.value("visible").toBool() ? rectOf(found.value("rect")) : QRect();
}

void Monkey::clickAt(const QPoint &point, int button)
{
    note(QString("at %1,%2 button %3").arg(point.x()).arg(point.y()).arg(button));
    session.x().moveTo(point);
    session.x().click(button);
}

void Monkey::clickIn(const QRect &rect, int button)
{
    if (!rect.isEmpty()) {
        clickAt(pointIn(rect), button);
    }
}

void Monkey::press(const QString &keys)
{
    note(keys);
    session.key(keys);
}

void Monkey::turnWheel(const QRect &rect)
{
    const int button = oneIn(2) ? 4 : 5;
    if (rect.isEmpty()) {
        return;
    }
    clickAt(pointIn(rect), button);
    for (int turns = random.bounded(8); turns > 0; --turns) {
        session.x().click(button);
    }
}

void Monkey::drag(const QPoint &from, const QPoint &to)
{
    note(QString("from %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
    session.drag(from, to);
}
