// SPDX-License-Identifier: GPL-3.0-or-later
// A FUSE file system whose answers take as long as a file says:
//   stallfs DEVICE MOUNTPOINT FILE
// The file contains a number of milliseconds, or "never", and counts for requests that are waiting too.
#define FUSE_USE_VERSION 35

#include <fuse.h>
#include <sys/prctl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <limits>
#include <string>
#include <thread>

namespace {

std::string answerFile;

std::chrono::milliseconds answerTime()
{
    long milliseconds = std::numeric_limits<int>::max();
    std::ifstream(answerFile) >> milliseconds;
    return std::chrono::milliseconds(milliseconds);
}

int getattr(const char *path, struct stat *status, fuse_file_info * /*file*/)
{
    if (path != std::string("/")) {
        return -ENOENT;
    }
    status->st_mode = S_IFDIR | 0755;
    status->st_nlink = 2;
    return 0;
}

/// 4 MiB, of which 2 MiB are free and 1 MiB is available.
int statfs(const char * /*path*/, struct statvfs *usage)
{
    const auto begin = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - begin < answerTime()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    usage->f_bsize = 4096;
    usage->f_frsize = 4096;
    usage->f_blocks = 1024;
    usage->f_bfree = 512;
    usage->f_bavail = 256;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    // Its end aborts all requests, so nothing stays stuck when a test ends, however that happens.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (argc != 4) {
        return 2;
    }
    answerFile = argv[3];
    fuse_operations operations{};
    operations.getattr = getattr;
    operations.statfs = statfs;
    std::string options = std::string("subtype=stall,fsname=") + argv[1];
    char foreground[] = "-f";
    char optionFlag[] = "-o";
    char *arguments[] = {argv[0], argv[2], foreground, optionFlag, options.data(), nullptr};
    return fuse_main(5, arguments, &operations, nullptr);
}
