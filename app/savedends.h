// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_SAVEDENDS_H
#define APP_SAVEDENDS_H

#include <QObject>

class Updater;

/// Saves the settings at the ends of the program that do not destroy the controller. One at a time.
///
/// - When the desktop's session ends: the session manager may kill the program after its answer.
/// - When exit(3) is called, as Qt does when the connection to the X server is lost. Nothing is asked of the
///   server then, since the window's geometry is known to Qt.
/// - When the connection to the Wayland compositor is lost. Qt then calls _exit(2), but logs it before.
class SavedEnds : public QObject
{
    Q_OBJECT

public:
    /// `controller` must outlive this object.
    explicit SavedEnds(Updater *controller);
    ~SavedEnds() override;

    /// Saves the settings of the present object for the last time; no-op without one.
    static void saveLastTime();

private Q_SLOTS:
    void save();

private:
    Updater *updater;
};

#endif
