// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_PROBESERVER_H
#define TESTS_SUPPORT_PROBE_PROBESERVER_H

#include "tests/support/probe/inputmarks.h"

#include <QByteArray>
#include <QObject>

/// Listens on a Unix socket; each line that comes in is answered by one line of JSON. Runs in the event loop
/// of the program that it was preloaded into, inside modal dialogs and open menus too.
class ProbeServer : public QObject
{
    Q_OBJECT

public:
    /// Without a usable path it writes a warning and listens to nothing.
    ProbeServer(const QByteArray &path, QObject *parent);
    ~ProbeServer() override;

private Q_SLOTS:
    void acceptClient();

private:
    InputMarks m_marks;
    int m_socket = -1;
};

class ProbeClient : public QObject
{
    Q_OBJECT

public:
    /// Takes over the descriptor.
    ProbeClient(int socket, QObject *parent);
    ~ProbeClient() override;

private Q_SLOTS:
    void readLines();

private:
    bool send(const QByteArray &bytes) const;

    int m_socket;
    QByteArray m_received;
};

#endif
