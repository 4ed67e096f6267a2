// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_STALLINGMOUNT_H
#define TESTS_SOAK_STALLINGMOUNT_H

#include <QProcess>
#include <QTemporaryDir>

/// Gives this process and its children a list of mounts of their own; to be called before any thread is
/// started. False if this isn't allowed.
bool enterOwnMounts();

/// A real FUSE file system of 4 MiB, 1 MiB of it available, that answers when it is told to.
class StallingMount
{
public:
    static constexpr int never = -1;

    /// `answerAfterMs`: milliseconds, or `never`.
    StallingMount(const QString &device, int answerAfterMs);
    /// Ends the file system and unmounts it; requests that wait are aborted.
    ~StallingMount();
    StallingMount(const StallingMount &) = delete;
    StallingMount &operator=(const StallingMount &) = delete;

    bool isMounted() const { return mounted; } ///< else error() says why
    QString error() const { return reason; }
    /// Concerns requests that are waiting, too.
    bool answerAfter(int milliseconds);
    /// The server crashes: every request fails from now on.
    void killServer();
    void unmount(); ///< even if it is in use
    QString mountPoint() const { return folder.filePath(QStringLiteral("mnt")); }

private:
    QTemporaryDir folder;
    QProcess server;
    bool mounted = false;
    QString reason;
};

#endif
