// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSCONTROL_H
#define PROCESS_PROCESSCONTROL_H

#include "process/gtop_wrappers/process.h"

/// A process that the user was asked about, held until a signal or a priority is sent to it: to this process
/// or to nobody, whoever has its pid by then.
///
/// A process is its pid and its start, which is read again. Starts are whole seconds, so the kernel is asked
/// too: a pidfd (Linux 5.3), where it gives one, stays with the process. A Process without a start, as one
/// that is only a pid, is whoever has the pid when it is held.
class HeldProcess
{
public:
    /// Implicit, for calls that ask nobody.
    HeldProcess(const gtop_wrappers::Process &process);
    ~HeldProcess();
    HeldProcess(const HeldProcess &) = delete;
    HeldProcess &operator=(const HeldProcess &) = delete;

    const gtop_wrappers::Process &process() const { return held; }
    /// False once it has been reaped; a zombie still exists. False also for a pid of 0 or below, which would
    /// mean a process group or everyone.
    bool exists() const;

private:
    bool hasItsStart() const;

    gtop_wrappers::Process held;
    int pidfd;     ///< -1 if the kernel gives none
    bool wasThere; ///< when it was held
};

/// kill(2) and setpriority(2), nice value -20 to 19. A failure opens a warning box; that the process does not
/// exist is one, ESRCH, without the call.
void sendSignal(const HeldProcess &process, int signal);
void setPriority(const HeldProcess &process, int priority);

#endif
