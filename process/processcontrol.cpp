// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processcontrol.h"

#include "process/gtop_wrappers/starttime.h"
#include "process/processbox.h"
#include "process/procmodel.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

using gtop_wrappers::Process;

namespace {

// Called by number, since the C library has had them for a few years only. Close-on-exec is always set.
#if defined(SYS_pidfd_open) && defined(SYS_pidfd_send_signal)
int openPidfd(int pid)
{
    return static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
}

/// Signal 0 reaches nobody. A descriptor that is readable would be no answer, since that of a zombie is.
bool isReaped(int pidfd)
{
    return syscall(SYS_pidfd_send_signal, pidfd, 0, nullptr, 0) == -1 && errno == ESRCH;
}
#else
int openPidfd(int)
{
    return -1;
}

bool isReaped(int)
{
    return false;
}
#endif

void showError(const QString &whatFailed, int error, const Process &process)
{
    showProcessBox(QMessageBox::Warning, ProcModel::tr("Error"),
                   whatFailed + QString::fromLocal8Bit(strerror(error)), process, QMessageBox::Ok,
                   QMessageBox::Ok);
}

/// Runs a system call on the process and returns its errno, 0 for success.
template <typename Call>
int onProcess(const HeldProcess &process, Call call)
{
    if (!process.exists()) {
        return ESRCH;
    }
    return call(process.process().pid()) == -1 ? errno : 0;
}

} // namespace

// The descriptor is opened first: it is that of whoever has the pid, which the start then tells.
HeldProcess::HeldProcess(const Process &process)
    : held(process), pidfd(held.pid() > 0 ? openPidfd(held.pid()) : -1),
      wasThere(held.pid() > 0 && hasItsStart())
{}

HeldProcess::~HeldProcess()
{
    if (pidfd != -1) {
        close(pidfd);
    }
}

bool HeldProcess::exists() const
{
    return wasThere && hasItsStart() && (pidfd == -1 || !isReaped(pidfd));
}

bool HeldProcess::hasItsStart() const
{
    const quint64 start = held.startTime();
    return start == 0 || gtop_wrappers::readStartTime(held.pid()) == start;
}

void sendSignal(const HeldProcess &process, int signal)
{
    if (const int error = onProcess(process, [signal](int pid) { return kill(pid, signal); })) {
        showError(ProcModel::tr("Unable send signal to process. Reason - "), error, process.process());
    }
}

void setPriority(const HeldProcess &process, int priority)
{
    const auto call = [priority](int pid) {
        return setpriority(PRIO_PROCESS, static_cast<id_t>(pid), priority);
    };
    if (const int error = onProcess(process, call)) {
        showError(ProcModel::tr("Unable change priority. Reason - "), error, process.process());
    }
}
