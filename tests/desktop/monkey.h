// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_MONKEY_H
#define TESTS_DESKTOP_MONKEY_H

#include "tests/desktop/churn.h"
#include "tests/desktop/session.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

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
    /// Where input goes to.
    enum Place { Window = 1, Menu = 2, List = 4, Dialog = 8, AnyPlace = 15 };
    /// Pages of the window, as bits.
    enum Pages { System = 1, Processes = 2, FileSystems = 4, Network = 8, AnyPage = 15 };
    struct Kind;
    static const Kind kinds[];

    bool look();
    void lookAtDialog();
    Place place() const;
    QString title() const { return state.value("title").toString(); }
    unsigned long windowId() const { return static_cast<unsigned long>(state.value("id").toDouble()); }
    const Kind &choose();
    void note(const QString &text);
    QString anyOf(const char *words);
    bool oneIn(int chances) { return random.bounded(chances) == 0; }
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

    // Actions in the window (monkey_window.cpp).
    void clickTab();
    void openMenu();
    void lookIntoFileMenu();
    void openContextMenu() { clickIn(listOnPage(), 3); }
    void clickRow();
    void wheelInWindow() { turnWheel(shownView()); }
    void clickHeader();
    void dragHeader();
    void clickChooser();
    void dragSplitter();
    void resizeWindow();
    void maximise();
    void waitUntilWindowStands();
    void changePalette();
    void changeFont();
    void clickAnywhere();
    // What happens around the program.
    void changeProcesses() { note(churn.changeProcesses(random)); }
    void changeMachine() { session.setMachine(Churn::machine(random)); }
    void wait() { QTest::qWait(random.bounded(500)); }

    // Actions in menus, lists and dialogs (monkey_open.cpp).
    QJsonObject anyEntry(bool aboutProcess = false);
    void clickOn(const QJsonObject &entry);
    void clickEntry() { clickOn(anyEntry()); }
    void hoverEntry();
    void pressMenuKey();
    void clickProcessEntry() { clickOn(anyEntry(true)); }
    void clickBesideMenu();
    void clickItem();
    bool asksAboutProcess() const;
    bool mayConfirm();
    void endProcessAskedAbout();
    void clickButton();
    void pressDialogKey();
    void moveSlider();
    void clickInDialog();
    void closeDialog();

    DesktopSession &session;
    Churn &churn;
    const quint32 seed;
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
