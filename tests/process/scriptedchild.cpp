// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedchild.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace gtop_wrappers;

namespace {

ParamPtr param(int pid, ProcessColumn column)
{
    const std::map<int, Process> all = ProcessFiller::instance()->getProcesses(AllProcesses);
    const auto found = all.find(pid);
    return found == all.end() ? ParamPtr() : found->second.getParam(column);
}

} // namespace

void Gate::wait() const
{
    char byte = 0;
    if (read(fd, &byte, 1) != 1) {
        _exit(1);
    }
}

ScriptedChild::ScriptedChild(const std::function<void(const Gate &)> &body)
{
    int ends[2];
    if (pipe(ends) != 0) {
        qFatal("no pipe");
    }
    id = fork();
    if (id == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(ends[1]);
        body(Gate(ends[0]));
        for (;;) {
            pause();
        }
    }
    close(ends[0]);
    fd = ends[1];
}

ScriptedChild::~ScriptedChild()
{
    end();
    close(fd);
}

void ScriptedChild::go() const
{
    if (write(fd, "", 1) != 1) {
        qFatal("the child has exited");
    }
}

void ScriptedChild::end()
{
    if (id > 0) {
        kill(id, SIGKILL);
        int status = 0;
        while (waitpid(id, &status, 0) == id && WIFSTOPPED(status)) {
            // a traced child reports each stop first
        }
        id = -1;
    }
}

QString shown(int pid, ProcessColumn column)
{
    const ParamPtr value = param(pid, column);
    return value ? value->displayValue().toString() : QString();
}

QVariant sorted(int pid, ProcessColumn column)
{
    const ParamPtr value = param(pid, column);
    return value ? value->sortValue() : QVariant();
}

bool listed(int pid, ProcessTypes types)
{
    return ProcessFiller::instance()->getProcesses(types).count(pid) == 1;
}
