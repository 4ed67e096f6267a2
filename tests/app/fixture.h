// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_APP_FIXTURE_H
#define TESTS_APP_FIXTURE_H

#include "app/updater.h"
#include "tests/support/gtopstandin.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

class ProxyProcModel;

/// The whole controller on a made-up machine, with a settings folder of its own.
class Fixture
{
public:
    Fixture();
    ~Fixture();

    /// Two CPUs, 8 GiB of memory, two mounts under /dev, three interfaces and four processes of the test's
    /// user.
    static standin::Machine smallMachine();

    /// Starts the controller; stops a running one first.
    Updater &start(int page = -1);
    /// Destroys the controller, which saves the settings.
    void stop();
    Updater &updater() { return *controller; }
    /// Refreshes a page as after a change of the tab; the tick is 1 afterwards.
    void refresh(int page) { controller->slotTabChanged(page); }

    /// The main window of the running controller.
    static QMainWindow *window();
    /// A named widget or layout of the main window; null if it does not exist.
    template <class T>
    static T *find(const char *name)
    {
        return window()->findChild<T *>(QLatin1String(name));
    }
    /// The entry of a menu with that text; null if there is none.
    static QAction *entry(const QMenu *menu, const char *text);
    /// An entry of the menu of the processes, shown or not.
    static QAction *processAction(const char *text);
    static void choosePage(int page);
    static QString text(const char *label);
    /// The model of the process tree.
    static ProxyProcModel *processes();
    /// The graph of the Network page.
    static QWidget *graph();
    /// Length of the graph's line of outgoing bytes, in samples; 0 without a line.
    static int drawnSamples();

    /// Path of the settings file.
    static QString settingsFile();

private:
    QTemporaryDir folder;
    std::unique_ptr<Updater> controller;
};

/// Base of the tests of the controller: every test function has a fixture of its own.
class ControllerTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init() { fixture = std::make_unique<Fixture>(); }
    void cleanup() { fixture.reset(); }

protected:
    /// The process list and its model, and a process of the made-up machine.
    static QTreeView *view() { return Fixture::find<QTreeView>("treeView"); }
    static ProxyProcModel *list() { return Fixture::processes(); }
    static standin::Process &made(int pid) { return standin::machine().processes->at(pid); }
    /// Selects the row of a process, which must have one; -1: none.
    static void select(int pid);
    /// The row of that process, and no other, is selected and the current one; -1: none is selected.
    static void verifySelected(int pid);

    std::unique_ptr<Fixture> fixture;
};

#endif
