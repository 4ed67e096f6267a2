// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_SESSIONMANAGER_H
#define TESTS_DESKTOP_SESSIONMANAGER_H

#include <QString>

/// An X session manager with one client, which accepts any connection of this user. It works only while one
/// of its functions is called. At most one at a time.
class SessionManager
{
public:
    ~SessionManager();
    SessionManager() = default;
    SessionManager(const SessionManager &) = delete;
    SessionManager &operator=(const SessionManager &) = delete;

    bool listen();                                ///< false if it fails
    QString address() const { return networkId; } ///< for the variable SESSION_MANAGER

    /// Whether the client has registered and has answered the request that follows.
    bool hasClient() { return answers(1); }
    /// Asks the client to save everything, as at the end of the session.
    void askToSave();
    /// Whether the client has answered askToSave().
    bool hasSaved() { return answers(2); }
    /// Tells the client that the session goes on.
    void cancel();
    /// Tells the client to exit.
    void end();

private:
    bool answers(int number);

    QString networkId;
};

#endif
