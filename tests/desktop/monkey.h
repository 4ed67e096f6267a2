// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_MONKEY_H
#define TESTS_DESKTOP_MONKEY_H

#include "tests/desktop/churn.h"
#include "tests/desktop/session.h"

#include <QMap>
#include <QRandomGenerator>

/// A user who does everything that the program lets one do, in no order: by real key and mouse events, with
/// the look of the desktop and the machine around changing under the program. Never ends the program, and
/// confirms an action on a process only if it is one of the test's.
///
/// What it does next depends on the seed, the number of the action and what the program shows.
class Monkey
{
public:
    Monkey(DesktopSession &session, Churn &churn, quint32 seed);

    /// Does one thing and waits for the program to have taken it. False if the program doesn't answer.
    bool act();
    /// Closes what is open; false if that fails.
    bool comeToRest();

    QMap<QString, int> counts() const { return m_counts; }   ///< of actions by their kind, done or not
    QMap<QString, int> dialogs() const { return m_dialogs; } ///< how often each was opened, by title
    QStringList lastActions() const { return m_last; }       ///< the latest last

    /// Notes something beside the last action.
    void note(const QString &text);

private:
    /// Where input goes to.
    enum Place { Window = 1, Menu = 2, List = 4, Dialog = 8 };
    /// Pages of the window, as bits.
    enum Pages { System = 1, Processes = 2, FileSystems = 4, Network = 8, AnyPage = 15 };
    struct Kind;
    static const Kind kinds[];

    bool look();
    void lookAtDialog();
    Place place() const;
    QString title() const { return m_state.value(QLatin1String("title")).toString(); }
    const Kind &choose();
    template <std::size_t count>
    QString anyOf(const char *const (&texts)[count])
    {
        return QLatin1String(texts[m_random.bounded(int(count))]);
    }
    bool oneIn(int chances) { return m_random.bounded(chances) == 0; }
    QPoint pointIn(const QRect &rect);
    QRect rectOfWidget(const QString &name);
    QRect shownView();
    QRect listOnPage();
    QRect header();
    QRect forbidden();

    void clickAt(const QPoint &point, int button = 1);
    void clickIn(const QRect &rect, int button = 1);
    void press(const QString &keys);
    void turnWheel(const QRect &rect);
    void drag(const QPoint &from, const QPoint &to);

    // monkey_window.cpp
    void clickTab();
    void pressTabKey();
    void openMenu();
    void openMenuByKey();
    void lookIntoFileMenu();
    void pressShortcut();
    void openContextMenu();
    void openContextMenuByKey();
    void clickRow();
    void pressRowKey();
    void wheelInList();
    void clickHeader();
    void dragHeader();
    void clickChooser();
    void pressChooserKey();
    void dragSplitter();
    void resizeWindow();
    void maximise();
    void waitUntilWindowStands();
    void changePalette();
    void changeFont();
    void clickAnywhere();
    void pressAnyKey();
    // What happens around the program.
    void changeProcesses();
    void changeMachine();
    void wait();

    // monkey_open.cpp
    QJsonObject anyEntry(bool (*isMeant)(const QString &text));
    void clickOn(const QJsonObject &entry);
    void clickEntry();
    void hoverEntry();
    void pressMenuKey();
    void clickProcessEntry();
    void clickBesideMenu();
    void clickItem();
    void pressItemKey();
    bool asksAboutProcess() const;
    bool mayConfirm();
    void endProcessAskedAbout();
    void clickButton();
    void pressDialogKey();
    void moveSlider();
    void clickInDialog();
    void closeDialog();

    DesktopSession &m_session;
    Churn &m_churn;
    const quint32 m_seed;
    quint32 m_number = 0;
    QRandomGenerator m_random;
    QJsonObject m_state;
    int m_askedAbout = -1;      ///< the process that the open box is about
    bool m_isOfTheTest = false; ///< that process
    QMap<QString, int> m_counts;
    QMap<QString, int> m_dialogs;
    QStringList m_last;
};

#endif
