// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_USAGECHILD_H
#define FS_USAGECHILD_H

#include "fs/usageworker.h"

#include <sys/types.h>

/// A child process that asks file systems, connected by a socket. It is forked without another program, holds
/// nothing of this one but the socket, and ends with it: killed, or as soon as the kernel lets go of it.
class UsageChild final : public UsageWorker
{
public:
    /// Null if no process can be started, or if that would leave the program short of file descriptors.
    static std::unique_ptr<UsageWorker> start();

    /// Kills the child, and leaves it behind if it doesn't die.
    ~UsageChild() override;
    UsageChild(const UsageChild &) = delete;
    UsageChild &operator=(const UsageChild &) = delete;

    bool ask(quint64 request, const std::string &mountDir) override;
    std::optional<UsageAnswer> answer() override;
    State state() override;
    void kill() override;
    int descriptor() const override { return connection; }

private:
    UsageChild(pid_t child, int connectionToChild);

    pid_t pid; ///< 0 once it has been reaped
    int connection;
    bool connected = true;
};

/// Waits until one of the workers has something to say, at most for the time given.
void waitForWorkers(const std::vector<UsageWorker *> &workers, std::chrono::milliseconds atMost);

#endif
