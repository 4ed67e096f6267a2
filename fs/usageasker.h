// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_USAGEASKER_H
#define FS_USAGEASKER_H

#include "fs/mountlist.h"
#include "fs/usageworker.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <tuple>

/// Asks the file systems that can hang, through workers, and remembers what they last reported. It decides
/// who is asked when, and never waits for long:
/// - A refresh waits only for mounts that answered quickly the last time, or were never asked.
/// - A worker that is held up is left behind and its answer used whenever it comes. Others ask the rest,
///   first those that are not suspected of hanging too. One more is started per minute, up to four in all,
///   and the last one never asks a suspect.
class UsageAsker
{
public:
    using Clock = std::chrono::steady_clock;
    using Workers = std::vector<UsageWorker *>;

    /// What the asker needs of the system.
    struct Tools
    {
        std::function<std::unique_ptr<UsageWorker>()> start; ///< null if it can't
        std::function<Clock::time_point()> now;
        std::function<void(const Workers &, std::chrono::milliseconds)> wait;
    };

    static constexpr std::chrono::milliseconds longestWait{100}; ///< in all within `waitWindow`
    static constexpr std::chrono::milliseconds waitWindow{500};
    static constexpr std::chrono::milliseconds quickAnswer{20};
    static constexpr std::chrono::minutes startInterval{1};
    static constexpr std::size_t mostWorkers = 4;

    explicit UsageAsker(Tools systemTools);

    /// Asks these mounts and fills in the last usage that each has reported; clears `answers` of one that
    /// never has. They have to be all that exist: the others are forgotten.
    void ask(const std::vector<MountEntry *> &mounts);

private:
    /// Device, mount point and type: the figures of one are not those of what is mounted there later.
    using Key = std::tuple<std::string, std::string, std::string>;
    enum class Speed { Unknown, Quick, Slow };
    struct Mount
    {
        std::optional<Usage> last;
        Speed speed = Speed::Unknown;
        quint64 lastRequest = 0;
    };
    struct Request
    {
        quint64 number;
        Key mount;
    };
    struct Child
    {
        std::unique_ptr<UsageWorker> worker;
        std::deque<Request> requests;  ///< not answered yet; it is busy with the first
        Clock::time_point busySince{}; ///< with the first
    };

    static Key keyOf(const MountEntry &mount);
    void forgetAllBut(const std::set<Key> &mounts);
    void buryTheDead();
    void endSurplus();
    void takeAnswers();
    void takeAnswer(Child &child, const UsageAnswer &answer);
    void sendRequests();
    Child *idleChild();
    Child *startChild();
    std::vector<Key> nextToAsk() const;
    void waitForAnswers();
    bool isWorthWaitingFor(const Child &child) const;
    void markSlow();

    bool isHeldUp(const Child &child) const;
    bool isLost(const Child &child) const;
    bool isBeingAsked(const Key &mount) const;
    bool isSuspect(const Key &mount) const;

    Tools tools;
    std::map<Key, Mount> known;
    std::vector<Child> children;
    std::set<Key> due; ///< still to be asked in this refresh
    quint64 lastNumber = 0;
    bool hasStarted = false;                      ///< at least one since there were last no such mounts
    std::optional<Clock::time_point> startedMore; ///< the last one besides the first
    Clock::time_point windowEnd{};
    Clock::duration waited{}; ///< within the window
};

#endif
