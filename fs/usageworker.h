// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_USAGEWORKER_H
#define FS_USAGEWORKER_H

#include "fs/usage.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// After so long a worker counts as held up, and drops what else it has been asked.
constexpr std::chrono::milliseconds heldUpAfter{1000};

struct UsageAnswer
{
    quint64 request;    ///< number of the request that it belongs to
    qint64 nanoseconds; ///< time that the query took
    Usage usage;
};

/// Asks one file system after the other, in the order of the requests, while the caller goes on. Nothing here
/// blocks.
class UsageWorker
{
public:
    enum class State { Running, Ending, Ended };

    UsageWorker() = default;
    virtual ~UsageWorker() = default;
    UsageWorker(const UsageWorker &) = delete;
    UsageWorker &operator=(const UsageWorker &) = delete;

    /// False if the request can't be passed on now.
    virtual bool ask(quint64 request, const std::string &mountDir) = 0;
    /// The next answer that has arrived. After one that took longer than heldUpAfter, none follows to the
    /// requests made before it arrived.
    virtual std::optional<UsageAnswer> answer() = 0;
    /// Ended: nothing is left of it.
    virtual State state() = 0;
    /// Ends it as soon as possible.
    virtual void kill() = 0;
    virtual int descriptor() const = 0; ///< readable when there is an answer
};

#endif
