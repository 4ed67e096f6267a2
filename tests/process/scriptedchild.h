// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_SCRIPTEDCHILD_H
#define TESTS_PROCESS_SCRIPTEDCHILD_H

#include "process/gtop_wrappers/filler.h"

#include <QVariant>

#include <functional>

/// Blocks in a child until the test calls ScriptedChild::go().
class Gate
{
public:
    explicit Gate(int end) : fd(end) {}
    void wait() const;

private:
    int fd;
};

/// A child of the test that runs a function, which must be safe between fork and exec, and then sleeps until
/// it is killed, at the latest with this object.
class ScriptedChild
{
public:
    explicit ScriptedChild(const std::function<void(const Gate &)> &body);
    ~ScriptedChild();
    ScriptedChild(const ScriptedChild &) = delete;
    ScriptedChild &operator=(const ScriptedChild &) = delete;

    int pid() const { return id; }
    void go() const;
    /// Kills it and waits for its exit.
    void end();

private:
    int id;
    int fd;
};

/// What a new snapshot of all processes shows for a pid; empty if it is not listed.
QString shown(int pid, gtop_wrappers::ProcessColumn column);
QVariant sorted(int pid, gtop_wrappers::ProcessColumn column);
bool listed(int pid, gtop_wrappers::ProcessTypes types);

#endif
