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
    if (m_probe >= 0)
        return true;
    const QByteArray path = m_directory.filePath(QStringLiteral("probe%1").arg(m_runs)).toLocal8Bit();
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    m_probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(m_probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return true;
    ::close(m_probe);
    m_probe = -1;
    return false;
}

void DesktopSession::disconnectProbe()
{
    if (m_probe >= 0)
        ::close(m_probe);
    m_probe = -1;
    m_received.clear();
}

// Empty if the program closes the socket or says nothing for too long. Each child of the test that ends
// interrupts the waiting.
QByteArray DesktopSession::readLine()
{
    const QDeadlineTimer deadline(desktopDeadline);
    int end = 0;
    while ((end = m_received.indexOf('\n')) < 0) {
        pollfd waiting = {m_probe, POLLIN, 0};
        char bytes[65536];
        const int ready = poll(&waiting, 1, int(deadline.remainingTime()));
        const ssize_t count = ready == 1 ? read(m_probe, bytes, sizeof bytes) : ready;
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return {};
        m_received.append(bytes, int(count));
    }
    const QByteArray line = m_received.left(end);
    m_received.remove(0, end + 1);
    return line;
}

QJsonObject DesktopSession::probe(const QString &command)
{
    const QJsonObject silence{{QStringLiteral("error"), QStringLiteral("the program doesn't answer")}};
    const QByteArray line = command.toUtf8() + '\n';
    if (!connectProbe() ||
        send(m_probe, line.constData(), std::size_t(line.size()), MSG_NOSIGNAL) != line.size())
        return silence;
    const QByteArray answer = readLine();
    if (!answer.isEmpty())
        return QJsonDocument::fromJson(answer).object();
    disconnectProbe(); // what comes too late would be taken for the answer to the next command
    return silence;
}

// Asked once more when the mark has come: what came with it may still be waiting in the toolkit's own queue.
QJsonObject DesktopSession::stateAfterInput()
{
    const QString command = QStringLiteral("state");
    QJsonObject state = probe(command);
    m_x.mark(static_cast<unsigned long>(state.value(QLatin1String("id")).toDouble()), ++m_marks);
    for (const QDeadlineTimer deadline(desktopDeadline);
         state.contains(QLatin1String("id")) && !deadline.hasExpired(); state = probe(command)) {
        if (state.value(QLatin1String("mark")).toInt() >= m_marks)
            return probe(command);
    }
    return {};
}

QJsonObject DesktopSession::widget(const QString &name)
{
    return probe(QStringLiteral("widget ") + name);
}

QString DesktopSession::text(const QString &widgetName)
{
    return widget(widgetName).value(QLatin1String("text")).toString();
}

Table DesktopSession::table(const QString &name)
{
    return Table(probe(QStringLiteral("table ") + name));
}

QJsonObject DesktopSession::dialog()
{
    const QJsonObject answer = probe(QStringLiteral("dialog"));
    return answer.value(QLatin1String("exposed")).toBool() ? answer : QJsonObject();
}

QJsonObject DesktopSession::mainWindow()
{
    const QJsonArray windows = probe(QStringLiteral("windows")).value(QLatin1String("windows")).toArray();
    for (const QJsonValue &window : windows) {
        if (window[QLatin1String("isMainWindow")].toBool())
            return window.toObject();
    }
    return {};
}
