// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_APP_FIXTURE_H
#define TESTS_APP_FIXTURE_H

#include "app/updater.h"
#include "tests/support/gtopstandin.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// The whole controller on a made-up machine, with a settings folder of its own.
class Fixture
{
public:
    Fixture();
    ~Fixture();

    /// Two CPUs, 8 GiB of memory, two mounts under /dev, three interfaces and four processes of the test's
    /// user.
    static standin::Machine smallMachine();

    /// Starts the controller, as after setting the application's names; ends a running one first.
    Updater &start(int page = -1);
    /// Ends the controller, which saves the settings.
    void stop();
    Updater &updater() { return *controller; }

    /// The main window of the running controller.
    static QMainWindow *window();
    /// A named widget of the main window; nullptr when it isn't there.
    template <class T>
    static T *find(const char *name)
    {
        return window()->findChild<T *>(QLatin1String(name));
    }
    static void choosePage(int page);
    static QString text(const char *label);

    /// Path of the settings file.
    static QString settingsFile();

private:
    QTemporaryDir folder;
    std::unique_ptr<Updater> controller;
};

#endif
