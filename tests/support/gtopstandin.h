// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_GTOPSTANDIN_H
#define TESTS_SUPPORT_GTOPSTANDIN_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// A made-up machine that answers in place of libgtop. For tests only.
///
/// Linked into a test program, or preloaded into the real one, it takes over the libgtop calls that read
/// CPUs, memory, mounts, network interfaces and processes. Each kind of data that the machine does not set
/// is still read from the real libgtop. All names are bytes and need not be UTF-8; libgtop's fixed-size
/// fields cut them (79 bytes for a mount's three names, 39 for a process name).
namespace standin {

/// Counters of one CPU since boot, in jiffies.
struct Cpu
{
    std::uint64_t idle = 0;
    std::uint64_t total = 0;
};

/// Memory of the machine, in bytes.
struct Memory
{
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    std::uint64_t buffer = 0;
    std::uint64_t cached = 0;
};

/// One mounted file system and the answer to its usage query, counted in blocks of blockSize bytes.
struct Mount
{
    std::string device;
    std::string directory;
    std::string type;
    std::uint64_t blocks = 0;
    std::uint64_t freeBlocks = 0;
    std::uint64_t availBlocks = 0;
    std::uint64_t files = 0;
    std::uint32_t blockSize = 4096;
    bool fails = false;            ///< the usage query fails: its record comes back zeroed
    std::uint32_t blocksForMs = 0; ///< the usage query takes this long, in milliseconds
};

/// One network interface; address and mask in network byte order, counters since it came up.
struct Interface
{
    std::string name;
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;
    std::uint64_t errors = 0;
    bool fails = false; ///< its record comes back zeroed, as when the interface has just gone
};

/// One process. CPU times in jiffies (100 a second), startTime in seconds since the epoch, memory in bytes.
struct Process
{
    int parent = 1;
    std::string name;
    int uid = 0;
    unsigned state = 2; ///< a GLIBTOP_PROCESS_ code; 2 is interruptible sleep
    int nice = 0;
    std::uint64_t userTime = 0;
    std::uint64_t systemTime = 0;
    std::uint64_t startTime = 0;
    std::uint64_t virtualSize = 0;
    std::uint64_t resident = 0;
    std::uint64_t shared = 0;
    std::string arguments;     ///< as in /proc/PID/cmdline: each argument followed by a NUL byte
    int answersBeforeEnd = -1; ///< ends after so many calls about it since the last list; -1: lives on
};

/// What the stand-in answers. An empty optional: that kind is read from the real libgtop.
struct Machine
{
    std::optional<std::vector<Cpu>> cpus; ///< at most 1,024 reach the program
    std::optional<Memory> memory;
    std::optional<std::vector<Mount>> mounts;
    bool mountListFails = false; ///< the mount list is a null array; needs `mounts` set
    std::optional<std::vector<Interface>> interfaces;
    bool interfaceListFails = false;                 ///< the list of names is null; needs `interfaces` set
    std::optional<std::map<int, Process>> processes; ///< by pid
    /// Without `processes`: only so many of the real ones of other users are listed, the oldest; -1: all.
    int mostOfOthers = -1;
};

/// How often each call was answered, made up or real, since resetCalls().
struct Calls
{
    unsigned cpu = 0;
    unsigned memory = 0;
    unsigned mountList = 0;
    unsigned usage = 0;
    unsigned interfaceList = 0;
    unsigned interfaceLoad = 0;
    unsigned processList = 0;
    unsigned processData = 0; ///< all calls about one process together
};

/// The machine of this process. Change it at any time; `machine() = {}` gives the real one back.
Machine &machine();

const Calls &calls();
void resetCalls();

/// The machine as lines of text, one fact a line, and back.
/// fromText throws std::runtime_error that quotes a line it can't read.
std::string toText(const Machine &machine);
Machine fromText(const std::string &text);

/// Writes toText() to a file in one step (written beside it, then renamed). A program that has the stand-in
/// preloaded and ZSM_STANDIN set to this file answers by it from its next list, CPU or memory call on.
/// Throws std::runtime_error if the file can't be written.
void save(const Machine &machine, const std::string &path);

} // namespace standin

#endif
