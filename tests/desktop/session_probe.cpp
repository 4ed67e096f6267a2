// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>

QJsonObject DesktopSession::probe(const QString &command)
{
    bool answers = probeSocket.state() == QLocalSocket::ConnectedState;
    if (!answers) {
        probeSocket.connectToServer(probePath());
        answers = probeSocket.waitForConnected(desktopDeadline);
    }
    if (answers) {
        probeSocket.write(command.toUtf8() + '\n');
    }
    const QDeadlineTimer deadline(desktopDeadline);
    while (answers && !probeSocket.canReadLine()) {
        answers = probeSocket.waitForReadyRead(int(deadline.remainingTime()));
    }
    if (!answers) {
        probeSocket.abort(); // a late answer would be taken for that to the next command
        return {{"error", "the program doesn't answer"}};
    }
    return QJsonDocument::fromJson(probeSocket.readLine()).object();
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
