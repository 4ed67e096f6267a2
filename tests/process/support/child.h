// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CHILD_H
#define TESTS_PROCESS_CHILD_H

#include <QtGlobal>

#include <sys/types.h>

/// A sleeping child process, in a process group of its own; ends with this object.
class Child
{
public:
    /// Runs as `user`; 0 keeps the user of the test.
    explicit Child(uid_t user = 0);
    ~Child();

    pid_t pid() const { return id; }
    /// Waits for the next change of state: the signal that stopped or ended the child, SIGCONT if it
    /// continued. 0 if it left by itself, -1 if nothing comes for ten seconds.
    int waitForSignal();
    /// Whether a change of state is there to be read.
    bool hasChanged() const;
    /// Ends the child with a signal that nobody else sends, and returns the signal that got it: a stop or
    /// an end that was under way comes first.
    int endAndTell();

private:
    Q_DISABLE_COPY(Child)
    pid_t id;
    bool ended;
};

#endif
