// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/monkey.h"

#include <QJsonArray>
#include <QtTest>

#include <algorithm>
#include <numeric>

struct Monkey::Kind
{
    const char *name;
    int place;
    int pages;
    int weight;
    void (Monkey::*act)();
};

// clang-format off
const Monkey::Kind Monkey::kinds[] = {
    {"tab by mouse", Window, AnyPage, 8, &Monkey::clickTab},
    {"tab by key", Window, AnyPage, 4, &Monkey::pressTabKey},
    {"menu by mouse", Window, AnyPage, 6, &Monkey::openMenu},
    {"menu by key", Window, AnyPage, 4, &Monkey::openMenuByKey},
    {"File menu", Window, AnyPage, 1, &Monkey::lookIntoFileMenu},
    {"shortcut", Window, AnyPage, 4, &Monkey::pressShortcut},
    {"shortcut", Window, Processes, 30, &Monkey::pressShortcut},
    {"context menu by mouse", Window, Processes, 16, &Monkey::openContextMenu},
    {"context menu by key", Window, Processes, 3, &Monkey::openContextMenuByKey},
    {"row by mouse", Window, Processes | FileSystems, 20, &Monkey::clickRow},
    {"row by key", Window, Processes | FileSystems, 14, &Monkey::pressRowKey},
    {"wheel", Window, AnyPage, 5, &Monkey::wheelInList},
    {"header click", Window, Processes | FileSystems, 10, &Monkey::clickHeader},
    {"header drag", Window, Processes | FileSystems, 4, &Monkey::dragHeader},
    {"chooser by mouse", Window, Network, 14, &Monkey::clickChooser},
    {"chooser by key", Window, Network, 10, &Monkey::pressChooserKey},
    {"splitter drag", Window, FileSystems, 8, &Monkey::dragSplitter},
    {"window size", Window, AnyPage, 3, &Monkey::resizeWindow},
    {"window maximised", Window, AnyPage, 1, &Monkey::maximise},
    {"palette", Window | Menu | List | Dialog, AnyPage, 1, &Monkey::changePalette},
    {"font", Window | Menu | List | Dialog, AnyPage, 1, &Monkey::changeFont},
    {"click anywhere", Window, AnyPage, 10, &Monkey::clickAnywhere},
    {"any key", Window, AnyPage, 10, &Monkey::pressAnyKey},
    {"change of processes", Window | Menu | List | Dialog, AnyPage, 6, &Monkey::changeProcesses},
    {"change of mounts and interfaces", Window | Menu | List | Dialog, AnyPage, 3, &Monkey::changeMachine},
    {"wait", Window | Menu | List | Dialog, AnyPage, 6, &Monkey::wait},
    {"menu entry by mouse", Menu, AnyPage, 26, &Monkey::clickEntry},
    {"menu entry about a process", Menu, Processes, 14, &Monkey::clickProcessEntry},
    {"menu entry pointed at", Menu, AnyPage, 10, &Monkey::hoverEntry},
    {"menu entry by key", Menu, AnyPage, 20, &Monkey::pressMenuKey},
    {"click beside a menu", Menu, AnyPage, 3, &Monkey::clickBesideMenu},
    {"interface by mouse", List, AnyPage, 20, &Monkey::clickItem},
    {"interface by key", List, AnyPage, 20, &Monkey::pressItemKey},
    {"button", Dialog, AnyPage, 30, &Monkey::clickButton},
    {"dialog key", Dialog, AnyPage, 20, &Monkey::pressDialogKey},
    {"slider", Dialog, AnyPage, 15, &Monkey::moveSlider},
    {"click in a dialog", Dialog, AnyPage, 5, &Monkey::clickInDialog},
    {"end of the process asked about", Dialog, Processes, 10, &Monkey::endProcessAskedAbout},
    {"dialog closed", Dialog, AnyPage, 4, &Monkey::closeDialog},
};
// clang-format on

Monkey::Monkey(DesktopSession &session, Churn &churn, quint32 seed)
    : m_session(session), m_churn(churn), m_seed(seed)
{
    for (const Kind &kind : kinds)
        m_counts[QLatin1String(kind.name)] = 0;
}

bool Monkey::act()
{
    if (m_state.isEmpty() && !look())
        return false;
    // A generator for each action: how many numbers one takes changes nothing for the next.
    const quint32 seeds[] = {m_seed, m_number++};
    m_random = QRandomGenerator(seeds);
    const Kind &kind = choose();
    ++m_counts[QLatin1String(kind.name)];
    m_last.append(QStringLiteral("%1 page %2 \"%3\": %4")
                      .arg(m_number)
                      .arg(m_state.value(QLatin1String("tab")).toInt() + 1)
                      .arg(title(), QLatin1String(kind.name)));
    while (m_last.size() > 50)
        m_last.removeFirst();
    (this->*kind.act)();
    return look();
}

void Monkey::note(const QString &text)
{
    m_last.last() += QLatin1Char(' ') + text;
}

bool Monkey::look()
{
    QCoreApplication::processEvents();
    const QString before = title();
    m_state = m_session.stateAfterInput();
    if (!title().isEmpty() && title() != before)
        lookAtDialog();
    return m_session.isRunning() && m_state.contains(QLatin1String("tab"));
}

// While a box is open the selection stays or goes, so it is what the box asks about.
void Monkey::lookAtDialog()
{
    ++m_dialogs[title()];
    const QJsonObject selected = m_session.probe(QStringLiteral("selected treeView"));
    m_askedAbout = selected.value(QLatin1String("id")).toInt(-1);
    m_isOfTheTest = m_askedAbout != m_session.pid() && m_churn.owns(m_askedAbout);
}

Monkey::Place Monkey::place() const
{
    if (!m_state.value(QLatin1String("menus")).toArray().isEmpty())
        return Menu;
    if (!m_state.value(QLatin1String("popup")).toString().isEmpty())
        return List;
    return m_state.value(QLatin1String("modal")).toBool() ? Dialog : Window;
}

const Monkey::Kind &Monkey::choose()
{
    const int page = 1 << m_state.value(QLatin1String("tab")).toInt();
    const auto weightNow = [=](const Kind &kind) {
        return (kind.place & place()) && (kind.pages & page) ? kind.weight : 0;
    };
    const int sum = std::accumulate(std::begin(kinds), std::end(kinds), 0,
                                    [=](int before, const Kind &kind) { return before + weightNow(kind); });
    int left = m_random.bounded(sum);
    const Kind *kind = kinds;
    while (left >= weightNow(*kind))
        left -= weightNow(*kind++);
    return *kind;
}

bool Monkey::comeToRest()
{
    return m_session.waitFor([&] {
        if (!look())
            return false;
        if (place() == Window && m_session.mainWindow().value(QLatin1String("active")).toBool())
            return true;
        m_session.key(QStringLiteral("Escape"));
        return false;
    });
}

QPoint Monkey::pointIn(const QRect &rect)
{
    return {rect.left() + m_random.bounded(qMax(1, rect.width())),
            rect.top() + m_random.bounded(qMax(1, rect.height()))};
}

QRect Monkey::rectOfWidget(const QString &name)
{
    const QJsonObject found = m_session.widget(name);
    return found.value(QLatin1String("visible")).toBool() ? rectOf(found.value(QLatin1String("rect")))
                                                          : QRect();
}

void Monkey::clickAt(const QPoint &point, int button)
{
    note(QStringLiteral("at %1,%2 button %3").arg(point.x()).arg(point.y()).arg(button));
    m_session.x().moveTo(point);
    m_session.x().click(button);
}

void Monkey::clickIn(const QRect &rect, int button)
{
    if (!rect.isEmpty())
        clickAt(pointIn(rect), button);
}

void Monkey::press(const QString &keys)
{
    note(keys);
    m_session.key(keys);
}

void Monkey::turnWheel(const QRect &rect)
{
    const int button = oneIn(2) ? 4 : 5;
    if (rect.isEmpty())
        return;
    clickAt(pointIn(rect), button);
    for (int turns = m_random.bounded(8); turns > 0; --turns)
        m_session.x().click(button);
}

void Monkey::drag(const QPoint &from, const QPoint &to)
{
    note(QStringLiteral("from %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
    m_session.drag(from, to);
}

void Monkey::changeProcesses()
{
    note(m_churn.changeProcesses(m_random));
}

void Monkey::changeMachine()
{
    m_session.setMachine(Churn::machine(m_random));
}

void Monkey::wait()
{
    QTest::qWait(m_random.bounded(500));
}
