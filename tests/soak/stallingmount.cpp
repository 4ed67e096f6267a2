// SPDX-License-Identifier: GPL-3.0-or-later
#include "stallingmount.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

/// Maps the user to the superuser of a new namespace, who may mount.
bool becomeRoot(uid_t user, gid_t group)
{
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream users("/proc/self/uid_map");
    std::ofstream groups("/proc/self/gid_map");
    users << "0 " << user << " 1" << std::flush;
    groups << "0 " << group << " 1" << std::flush;
    return users && groups;
}

} // namespace

bool enterOwnMounts()
{
    const uid_t user = getuid();
    const gid_t group = getgid();
    const bool entered = user == 0 ? unshare(CLONE_NEWNS) == 0
                                   : unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && becomeRoot(user, group);
    return entered && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

StallingMount::StallingMount(const QString &device, int answerAfterMs)
{
    const QByteArray path = mountPoint().toLocal8Bit();
    if (!folder.isValid() || !QDir().mkpath(mountPoint()) || !answerAfter(answerAfterMs)) {
        reason = QStringLiteral("no temporary folder");
        return;
    }
    server.setProcessChannelMode(QProcess::MergedChannels);
    server.start(QStringLiteral(ZSM_STALLFS), {device, mountPoint(), folder.filePath("answer")});
    // Looks at the list of mounts, since the file system itself may not answer.
    mounted = server.waitForStarted() &&
              QTest::qWaitFor(
                  [&] {
                      QFile list(QStringLiteral("/proc/self/mounts"));
                      return server.state() == QProcess::NotRunning ||
                             (list.open(QIODevice::ReadOnly) && list.readAll().contains(' ' + path + ' '));
                  },
                  10000);
    mounted = mounted && server.state() == QProcess::Running;
    if (!mounted) {
        reason = server.errorString() + QLatin1Char(' ') + QString::fromLocal8Bit(server.readAll());
    }
}

StallingMount::~StallingMount()
{
    killServer();
    unmount();
}

bool StallingMount::answerAfter(int milliseconds)
{
    // Renamed, so that the server never reads a part.
    const QByteArray file = folder.filePath("answer").toLocal8Bit();
    const QByteArray next = file + ".new";
    std::ofstream stream(next.constData());
    if (milliseconds == never) {
        stream << "2147483647";
    } else {
        stream << milliseconds;
    }
    stream.close();
    return stream && std::rename(next.constData(), file.constData()) == 0;
}

void StallingMount::killServer()
{
    server.kill();
    server.waitForFinished();
}

void StallingMount::unmount()
{
    umount2(mountPoint().toLocal8Bit().constData(), MNT_DETACH);
}
