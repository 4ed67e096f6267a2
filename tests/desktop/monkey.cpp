// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/monkey.h"

#include <QJsonArray>

#include <numeric>

Monkey::Monkey(DesktopSession &desktop, Churn &processChurn, quint32 seedOfRun)
    : session(desktop), churn(processChurn), seed(seedOfRun)
{
    kinds = kindsInWindow;
    kinds.insert(kinds.end(), kindsWithSomethingOpen.begin(), kindsWithSomethingOpen.end());
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
    kind.act(*this);
    return look();
}

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
    const int sum = std::accumulate(kinds.begin(), kinds.end(), 0,
                                    [=](int before, const Kind &kind) { return before + weightNow(kind); });
    int left = random.bounded(sum);
    auto kind = kinds.begin();
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
