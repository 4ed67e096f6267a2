// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/usagechild.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <utility>

namespace {

/// One message on the socket: the request's number and the path, which ends with the message.
struct Request
{
    quint64 number;
    char mountDir[PATH_MAX];
};

constexpr std::size_t requestHead = offsetof(Request, mountDir);

/// The only descriptor of the child besides the standard ones.
constexpr int childConnection = 3;

// The functions up to runChild() run in the child. They allocate nothing, since another thread may have held
// the allocator's lock during the fork.

void closeDescriptorsFrom(int first)
{
    if (close_range(static_cast<unsigned>(first), UINT_MAX, 0) == 0) {
        return;
    }
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const int end = static_cast<int>(std::min<rlim_t>(limit.rlim_cur, 65536));
    for (int descriptor = first; descriptor < end; ++descriptor) {
        close(descriptor);
    }
}

/// A child that is stuck may outlive the program, so it must not keep a terminal, a pipe or a folder in use.
void letGoOfEverythingBut(int connection)
{
    dup2(connection, childConnection); // clears the flag that it is closed by exec, which doesn't follow
    closeDescriptorsFrom(childConnection + 1);
    const int null = open("/dev/null", O_RDWR);
    for (int standard = 0; null >= 0 && standard < childConnection; ++standard) {
        dup2(null, standard);
    }
    close(null);
    static_cast<void>(chdir("/") == 0);
}

void resetSignals()
{
    for (int number = 1; number < NSIG; ++number) {
        signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// False at the end of the connection, and without a request when none is there and `flags` say not to wait.
bool receive(Request &request, int flags = 0)
{
    // The last byte stays free for the path's terminator.
    const ssize_t size = recv(childConnection, &request, sizeof(request) - 1, flags);
    if (size < static_cast<ssize_t>(requestHead)) {
        return false;
    }
    reinterpret_cast<char *>(&request)[size] = '\0';
    return true;
}

void serve()
{
    static Request request;
    static Request dropped;
    while (receive(request)) {
        const auto begin = std::chrono::steady_clock::now();
        const Usage usage = readUsage(request.mountDir);
        const std::chrono::nanoseconds took = std::chrono::steady_clock::now() - begin;
        // Before the answer is sent, so that no request made after it is dropped.
        while (took > heldUpAfter && receive(dropped, MSG_DONTWAIT)) {
        }
        const UsageAnswer answer{request.number, took.count(), usage};
        if (send(childConnection, &answer, sizeof(answer), MSG_NOSIGNAL) < 0) {
            return;
        }
    }
}

[[noreturn]] void runChild(int connection, pid_t program)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != program) {
        _exit(0);
    }
    resetSignals();
    letGoOfEverythingBut(connection);
    prctl(PR_SET_NAME, "zsm-filesystems");
    serve();
    _exit(0);
}

/// Whether as many descriptors are left as the program may need for a refresh, with a margin: the child's
/// must come on top of those.
bool descriptorsAreLeft()
{
    std::array<int, 16> taken{};
    taken.fill(-1);
    for (int &descriptor : taken) {
        descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
    const bool enough = taken.back() >= 0;
    for (const int descriptor : taken) {
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
    return enough;
}

} // namespace

std::unique_ptr<UsageWorker> UsageChild::start()
{
    int ends[2];
    if (!descriptorsAreLeft() || socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        return nullptr;
    }
    const pid_t program = getpid();
    // A handler of the program that ran in the child could act on what both share.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = fork();
    if (child == 0) {
        runChild(ends[1], program);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    close(ends[1]);
    if (child < 0) {
        close(ends[0]);
        return nullptr;
    }
    return std::unique_ptr<UsageWorker>(new UsageChild(child, ends[0]));
}

UsageChild::UsageChild(pid_t child, int connectionToChild) : pid(child), connection(connectionToChild)
{}

UsageChild::~UsageChild()
{
    UsageChild::kill();
    close(connection);
    // An idle child is gone within a moment; a stuck one is left to the kernel.
    for (int attempt = 0; attempt < 20 && UsageChild::state() != State::Ended; ++attempt) {
        poll(nullptr, 0, 1);
    }
}

bool UsageChild::ask(quint64 request, const std::string &mountDir)
{
    Request message{};
    message.number = request;
    const std::size_t length = std::min(mountDir.size(), sizeof(message.mountDir) - 1);
    std::memcpy(message.mountDir, mountDir.data(), length);
    return connected && send(connection, &message, requestHead + length, MSG_DONTWAIT | MSG_NOSIGNAL) > 0;
}

std::optional<UsageAnswer> UsageChild::answer()
{
    UsageAnswer received{};
    const ssize_t size = recv(connection, &received, sizeof(received), MSG_DONTWAIT);
    if (size == static_cast<ssize_t>(sizeof(received))) {
        return received;
    }
    if (size >= 0 || (errno != EAGAIN && errno != EINTR)) {
        connected = false;
    }
    return std::nullopt;
}

UsageWorker::State UsageChild::state()
{
    // -1: whoever started the program has it ignore its children, so that they are reaped by themselves.
    if (pid != 0 && waitpid(pid, nullptr, WNOHANG) != 0) {
        pid = 0;
        connected = false;
    }
    return pid == 0 ? State::Ended : connected ? State::Running : State::Ending;
}

void UsageChild::kill()
{
    connected = false;
    if (UsageChild::state() != State::Ended) {
        ::kill(pid, SIGKILL);
    }
}

void waitForWorkers(const std::vector<UsageWorker *> &workers, std::chrono::milliseconds atMost)
{
    std::vector<pollfd> polled;
    polled.reserve(workers.size());
    for (const UsageWorker *worker : workers) {
        polled.push_back({worker->descriptor(), POLLIN, 0});
    }
    poll(polled.data(), polled.size(), static_cast<int>(atMost.count()));
}
