// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

bool DesktopSession::connectProbe()
{
    if (probeSocket >= 0) {
        return true;
    }
    const QByteArray path = probePath().toLocal8Bit();
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address.sun_path) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    probeSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(probeSocket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        disconnectProbe();
    }
    return probeSocket >= 0;
}

void DesktopSession::disconnectProbe()
{
    if (probeSocket >= 0) {
        ::close(probeSocket);
    }
    probeSocket = -1;
    received.clear();
}

/// One line of the probe's answer; empty if the program closes the socket or doesn't answer in time.
QByteArray DesktopSession::readLine()
{
    const QDeadlineTimer deadline(desktopDeadline);
    int end = 0;
    while ((end = received.indexOf('\n')) < 0) {
        pollfd waiting = {probeSocket, POLLIN, 0};
        char bytes[65536];
        const int ready = poll(&waiting, 1, int(deadline.remainingTime()));
        const ssize_t count = ready == 1 ? read(probeSocket, bytes, sizeof bytes) : ready;
        if (count < 0 && errno == EINTR) { // a child of the test has exited
            continue;
        }
        if (count <= 0) {
            return {};
        }
        received.append(bytes, int(count));
    }
    const QByteArray line = received.left(end);
    received.remove(0, end + 1);
    return line;
}

QJsonObject DesktopSession::probe(const QString &command)
{
    const QJsonObject silence{{"error", "the program doesn't answer"}};
    const QByteArray line = command.toUtf8() + '\n';
    if (!connectProbe() ||
        send(probeSocket, line.constData(), std::size_t(line.size()), MSG_NOSIGNAL) != line.size()) {
        return silence;
    }
    const QByteArray answer = readLine();
    if (answer.isEmpty()) {
        disconnectProbe(); // a late answer would be taken for that to the next command
        return silence;
    }
    return QJsonDocument::fromJson(answer).object();
}

QJsonObject DesktopSession::stateAfterInput()
{
    QJsonObject state = probe("state");
    client.mark(static_cast<unsigned long>(state.value("id").toDouble()), ++marks);
    for (const QDeadlineTimer deadline(desktopDeadline); state.contains("id") && !deadline.hasExpired();
         state = probe("state")) {
        if (state.value("mark").toInt() >= marks) {
            return probe("state"); // again: input that came with the mark may still be in the toolkit's queue
        }
    }
    return {};
}

QJsonObject DesktopSession::dialog()
{
    const QJsonObject answer = probe("dialog");
    return answer.value("exposed").toBool() ? answer : QJsonObject();
}

QJsonObject DesktopSession::mainWindow()
{
    const QJsonArray windows = probe("windows").value("windows").toArray();
    for (const QJsonValue &window : windows) {
        if (window["isMainWindow"].toBool()) {
            return window.toObject();
        }
    }
    return {};
}
