// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_PROBESERVER_H
#define TESTS_SUPPORT_PROBE_PROBESERVER_H

#include "tests/support/probe/inputmarks.h"

#include <QByteArray>
#include <QObject>

/// Listens on a Unix socket and answers each line with one line of JSON. Runs in the event loop of the
/// program that it is preloaded into, including those of modal dialogs and open menus.
class ProbeServer : public QObject
{
    Q_OBJECT

public:
    /// Prints a warning and does not listen if the path is unusable.
    ProbeServer(const QByteArray &path, QObject *parent);
    ~ProbeServer() override;

private Q_SLOTS:
    void acceptClient();

private:
    InputMarks marks;
    int listener = -1;
};

/// One connection.
class ProbeClient : public QObject
{
    Q_OBJECT

public:
    /// Owns the descriptor of the connection.
    ProbeClient(int connection, QObject *parent);
    ~ProbeClient() override;

private Q_SLOTS:
    void readLines();

private:
    bool send(const QByteArray &bytes) const;

    int descriptor;
    QByteArray received;
};

#endif
