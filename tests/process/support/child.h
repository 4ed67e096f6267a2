// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CHILD_H
#define TESTS_PROCESS_CHILD_H

#include <QtGlobal>

#include <sys/types.h>

/// A sleeping child process in a process group of its own; killed by the destructor.
class Child
{
public:
    /// Runs as `user`; 0 means the user of the test. `program` is sleep(1), perhaps by another name.
    explicit Child(uid_t user = 0, const char *program = "/bin/sleep");
    ~Child();

    pid_t pid() const { return id; }
    /// Waits for the next change of state and returns the signal that stopped or killed the child, SIGCONT if
    /// it continued, 0 if it exited, -1 if nothing happens for ten seconds.
    int waitForSignal();
    /// Whether waitForSignal() would return at once.
    bool hasChanged() const;
    /// Kills the child by a signal that nobody else sends, and returns the signal that reached it first:
    /// another one if that was already on its way.
    int endAndTell();

private:
    Q_DISABLE_COPY(Child)
    pid_t id;
    bool ended;
};

#endif
