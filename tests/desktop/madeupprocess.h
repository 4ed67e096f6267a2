// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_MADEUPPROCESS_H
#define TESTS_DESKTOP_MADEUPPROCESS_H

#include "tests/desktop/processespage.h"

#include <string>

#include <unistd.h>

/// Pid of a made-up process. The kernel gives out none that high, so an action on it reaches nobody.
constexpr int madeUpPid(int number)
{
    return 5000000 + number;
}

/// A sleeping process of the user as whom the program runs.
inline standin::Process madeUpProcess(const std::string &name, int parent = 1)
{
    standin::Process process;
    process.parent = parent;
    process.name = name;
    process.uid = testUser() >= 0 ? testUser() : static_cast<int>(getuid());
    process.startTime = 1700000000;
    process.arguments = name + '\0';
    return process;
}

#endif
