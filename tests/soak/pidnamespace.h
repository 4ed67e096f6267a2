// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_PIDNAMESPACE_H
#define TESTS_SOAK_PIDNAMESPACE_H

#include <sys/types.h>

#include <functional>

/// Runs `test` in a pid namespace of its own, with a /proc of its own, where it chooses the pids of its
/// children, and returns its result. Where the machine does not allow that, runs it here. The argument tells
/// which of them. To be called before the first thread starts.
int runInPidNamespace(const std::function<int(bool isAlone)> &test);

/// The next process of the namespace gets this pid, unless somebody else takes it. False if that is refused.
bool choosePid(pid_t pid);

/// From now on no process can be held by a pidfd: pidfd_open(2) fails as it does in a sandbox. False if that
/// is refused.
bool forbidPidfds();

#endif
