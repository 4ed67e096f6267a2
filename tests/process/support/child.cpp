// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/child.h"

#include <QDeadlineTimer>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

Child::Child(uid_t user, const char *program) : id(-1), ended(false)
{
    int started[2];
    if (pipe2(started, O_CLOEXEC) != 0) {
        qFatal("no pipe");
    }
    id = fork();
    if (id == 0) {
        setpgid(0, 0);
        if (user == 0 || setuid(user) == 0) {
            execl(program, program, "1000", nullptr);
        }
        _exit(1);
    }
    if (id < 0) {
        qFatal("no child"); // the destructor would kill every process of the user
    }
    close(started[1]);
    char nothing = 0;
    while (read(started[0], &nothing, 1) == -1) { // returns when exec has closed the child's end
    }
    close(started[0]);
}

Child::~Child()
{
    if (!ended) {
        kill(id, SIGKILL);
        waitpid(id, nullptr, 0);
    }
}

int Child::waitForSignal()
{
    int status = 0;
    const QDeadlineTimer deadline(10000);
    while (waitpid(id, &status, WUNTRACED | WCONTINUED | WNOHANG) != id) {
        if (deadline.hasExpired()) {
            return -1;
        }
        usleep(1000);
    }
    if (WIFSTOPPED(status)) {
        return WSTOPSIG(status);
    }
    if (WIFCONTINUED(status)) {
        return SIGCONT;
    }
    ended = true;
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

bool Child::hasChanged() const
{
    siginfo_t info = {};
    waitid(P_PID, static_cast<id_t>(id), &info, WEXITED | WSTOPPED | WCONTINUED | WNOHANG | WNOWAIT);
    return info.si_pid != 0;
}

int Child::endAndTell()
{
    kill(id, SIGVTALRM);
    return waitForSignal();
}
