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
/// Linked into a test program or preloaded into the real one, it replaces the libgtop calls that read CPUs,
/// memory, mounts, network interfaces and processes. Data that the machine does not set is still read from
/// the real libgtop. All names are bytes and need not be UTF-8; libgtop's fixed-size fields truncate them (79
/// bytes for the three names of a mount, 39 for a process name).
namespace standin {

/// Counters of one CPU since boot, in jiffies.
struct Cpu
{
    std::uint64_t idle = 0;
    std::uint64_t total = 0;
    int load = -1; ///< in percent: the counters also advance, 100 jiffies a second; -1: they stand still
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
    bool fails = false; ///< its record comes back zeroed, as if the interface had just been removed
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
    int answersBeforeEnd = -1; ///< exits after so many calls about it since the last list; -1: never
    bool memoryFails = false;  ///< the call for its memory fails
};

/// What the stand-in answers. What is unset is read from the real libgtop.
struct Machine
{
    std::optional<std::vector<Cpu>> cpus; ///< at most 1,024 reach the program
    std::optional<Memory> memory;
    std::optional<std::vector<Mount>> mounts;
    bool mountListFails = false; ///< the mount list is a null array; needs `mounts` set
    std::optional<std::vector<Interface>> interfaces;
    bool interfaceListFails = false;                 ///< the list of names is null; needs `interfaces` set
    std::optional<std::map<int, Process>> processes; ///< by pid
    /// Without `processes`: how many real processes are listed, oldest first, besides those of this user that
    /// descend from the parent of this process; -1: all.
    int mostOfOthers = -1;
};

/// Number of calls since resetCalls(), whether answered by the stand-in or by libgtop.
struct Calls
{
    unsigned memory = 0;
    unsigned mountList = 0;
    unsigned interfaceList = 0;
    unsigned processList = 0;
    unsigned processData = 0; ///< all calls about one process together
};

/// The machine of this process; may be changed at any time. `machine() = {}` restores the real one.
Machine &machine();

const Calls &calls();
void resetCalls();

/// Converts the machine to lines of text, and back.
/// fromText() throws a std::runtime_error that quotes the line that can't be read.
std::string toText(const Machine &machine);
Machine fromText(const std::string &text);

/// Writes toText() to a file atomically (to a temporary file that is renamed). A program with the stand-in
/// preloaded and ZSM_STANDIN set to this file uses it from its next list, CPU or memory call on.
/// Throws a std::runtime_error if the file can't be written.
void save(const Machine &machine, const std::string &path);

} // namespace standin

#endif
