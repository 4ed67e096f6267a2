// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/probeserver.h"

#include "tests/support/probe/answers.h"

#include <QApplication>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

ProbeServer::ProbeServer(const QByteArray &path, QObject *parent) : QObject(parent)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address.sun_path) {
        qWarning("probe: the path of the socket is too long");
        return;
    }
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto *generic = reinterpret_cast<const sockaddr *>(&address);
    if (listener < 0 || bind(listener, generic, sizeof address) != 0 || listen(listener, 8) != 0) {
        qWarning("probe: can't listen on %s: %s", path.constData(), std::strerror(errno));
        return;
    }
    QCoreApplication::instance()->installNativeEventFilter(&marks);
    auto *notifier = new QSocketNotifier(listener, QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), SLOT(acceptClient()));
}

ProbeServer::~ProbeServer()
{
    if (listener >= 0) {
        close(listener);
    }
}

void ProbeServer::acceptClient()
{
    const int client = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (client >= 0) {
        new ProbeClient(client, this);
    }
}

ProbeClient::ProbeClient(int connection, QObject *parent) : QObject(parent), descriptor(connection)
{
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), SLOT(readLines()));
}

ProbeClient::~ProbeClient()
{
    close(descriptor);
}

void ProbeClient::readLines()
{
    char bytes[4096];
    const ssize_t count = read(descriptor, bytes, sizeof bytes);
    if (count < 0 && errno == EINTR) {
        return;
    }
    bool open = count > 0;
    received.append(bytes, open ? int(count) : 0);
    for (int end = 0; open && (end = received.indexOf('\n')) >= 0;) {
        const QString line = QString::fromUtf8(received.left(end));
        received.remove(0, end + 1);
        open = send(QJsonDocument(probe::answer(line)).toJson(QJsonDocument::Compact) + '\n');
    }
    if (!open) {
        deleteLater();
    }
}

bool ProbeClient::send(const QByteArray &bytes) const
{
    for (int sent = 0; sent < bytes.size();) {
        const ssize_t count =
            ::send(descriptor, bytes.constData() + sent, std::size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        sent += count > 0 ? int(count) : 0;
    }
    return true;
}

namespace {

/// Runs in the constructor of the application object; the server is created by the event loop, when the
/// windows exist.
void startProbe()
{
    const QByteArray path = qgetenv("ZSM_PROBE");
    if (path.isEmpty()) {
        return;
    }
    QTimer::singleShot(0, qApp, [path] {
        if (qobject_cast<QApplication *>(qApp)) {
            new ProbeServer(path, qApp);
        }
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
