// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_MADEUPPROCESSES_H
#define TESTS_PROCESS_MADEUPPROCESSES_H

#include "tests/support/gtopstandin.h"

/// Processes of a made-up machine: 1, its child 10 and its grandchild 11 are old, its child 99 is young.
namespace madeup {

constexpr std::uint64_t now = 1700000000; ///< start of the youngest process

inline standin::Process process(int parent, std::uint64_t started)
{
    standin::Process made;
    made.parent = parent;
    made.name = "some";
    made.startTime = started;
    made.resident = 1024;
    made.arguments = std::string("some\0", 5);
    return made;
}

inline void setUp()
{
    standin::machine() = {};
    standin::machine().processes = {{1, process(0, now - 100)},
                                    {10, process(1, now - 50)},
                                    {11, process(10, now - 40)},
                                    {99, process(1, now)}};
}

inline standin::Process &at(int pid)
{
    return standin::machine().processes->at(pid);
}

inline void remove(int pid)
{
    standin::machine().processes->erase(pid);
}

} // namespace madeup

#endif
