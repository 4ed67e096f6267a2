// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_MONKEY_H
#define TESTS_DESKTOP_MONKEY_H

#include "tests/desktop/churn.h"
#include "tests/desktop/session.h"

#include <QJsonArray>
#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <functional>

/// A user who does everything that the program allows, in random order, by real key and mouse events, while
/// the look of the desktop and the machine change. Never quits the program, and confirms an action on a
/// process only if the process is one of the test's.
///
/// The next action depends on the seed, the number of the action and what the program shows.
class Monkey
{
public:
    Monkey(DesktopSession &desktop, Churn &processChurn, quint32 seedOfRun);

    /// Does one thing and waits until the program has processed it. False if the program doesn't answer.
    bool act();
    /// Closes what is open; false if that fails.
    bool comeToRest();

    QMap<QString, int> counts() const { return kindCounts; }    ///< actions by their kind, effective or not
    QMap<QString, int> dialogs() const { return dialogCounts; } ///< how often each was opened, by title
    QStringList lastActions() const { return log; }             ///< oldest first

private:
    enum Place { Window = 1, Menu = 2, List = 4, Dialog = 8, AnyPlace = 15 };
    enum Pages { System = 1, Processes = 2, FileSystems = 4, Network = 8, AnyPage = 15 };
    /// An action, and where and how often it is chosen.
    struct Kind
    {
        const char *name;
        int place;
        int pages;
        int weight;
        std::function<void(Monkey &)> act;
    };
    static const std::vector<Kind> kindsInWindow;          ///< monkey_window.cpp
    static const std::vector<Kind> kindsWithSomethingOpen; ///< menus, lists and dialogs: monkey_open.cpp
    /// Presses one of the keys, which spaces separate. One that is listed twice is chosen twice as often.
    static std::function<void(Monkey &)> keys(const char *words)
    {
        return [words](Monkey &monkey) { monkey.press(monkey.anyOf(words)); };
    }

    bool look();
    void lookAtDialog();
    Place place() const;
    QString title() const { return state.value("title").toString(); }
    unsigned long windowId() const { return static_cast<unsigned long>(state.value("id").toDouble()); }
    const Kind &choose();
    void note(const QString &text);
    QString anyOf(const char *words);
    bool oneIn(int chances) { return random.bounded(chances) == 0; }
    bool isInFileMenu() const { return state.value("menus").toArray().contains("&File"); }
    QPoint pointIn(const QRect &rect);
    QRect rectOfWidget(const QString &name);
    QRect shownView();
    QRect listOnPage();
    QRect header();
    QRect forbidden() { return rectOf(session.menuEntry("File").value("rect")); }

    void clickAt(const QPoint &point, int button = 1);
    void clickIn(const QRect &rect, int button = 1);
    void press(const QString &keys);
    void turnWheel(const QRect &rect);
    void drag(const QPoint &from, const QPoint &to);

    void waitUntilWindowStands();
    QJsonObject anyEntry(bool aboutProcess = false);
    void clickOn(const QJsonObject &entry);
    bool asksAboutProcess() const;
    bool mayConfirm();

    DesktopSession &session;
    Churn &churn;
    const quint32 seed;
    std::vector<Kind> kinds;
    quint32 number = 0;
    QRandomGenerator random;
    QJsonObject state;
    int askedAbout = -1;      ///< pid that the open box is about
    bool isOfTheTest = false; ///< that process
    QMap<QString, int> kindCounts;
    QMap<QString, int> dialogCounts;
    QStringList log;
};

#endif
