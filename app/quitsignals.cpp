// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/quitsignals.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>

namespace {

constexpr int quitSignals[] = {SIGTERM, SIGINT, SIGHUP};
constexpr std::int64_t sameEnd = 500; ///< milliseconds

// The kernel chooses the thread that a handler runs on.
std::atomic<int> wakeUp{-1};             ///< an eventfd(2)
std::atomic<std::int64_t> firstSignal{}; ///< milliseconds of the monotonic clock; 0: none
static_assert(std::atomic<std::int64_t>::is_always_lock_free, "others may not be used in a signal handler");

std::int64_t monotonicMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

/// Calls only functions that are safe in a signal handler.
void handleSignal(int number)
{
    const int error = errno;
    const std::int64_t now = monotonicMilliseconds();
    std::int64_t first = 0;
    if (firstSignal.compare_exchange_strong(first, now)) {
        eventfd_write(wakeUp, 1);
    } else if (now - first >= sameEnd) {
        std::signal(number, SIG_DFL);
        raise(number); // blocked until the handler returns
    }
    errno = error;
}

bool isIgnored(int number)
{
    struct sigaction present = {};
    return sigaction(number, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

} // namespace

void quitOnSignals(QObject *application)
{
    wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wakeUp < 0) {
        return;
    }
    // The descriptor stays open, because a handler may run until the process ends.
    auto *notifier = new QSocketNotifier(wakeUp, QSocketNotifier::Read, application);
    QObject::connect(notifier, SIGNAL(activated(int)), application, SLOT(quit()));
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : quitSignals) {
        if (!isIgnored(number)) {
            sigaction(number, &action, nullptr);
        }
    }
}
