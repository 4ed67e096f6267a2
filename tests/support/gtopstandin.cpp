// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin_calls.h"

#include <glib.h>
#include <glibtop.h>
#include <glibtop/cpu.h>
#include <glibtop/fsusage.h>
#include <glibtop/mem.h>
#include <glibtop/mountlist.h>
#include <glibtop/netlist.h>
#include <glibtop/netload.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <tuple>

namespace standin {
namespace {

/// Inode, size, and time of the last change in seconds and nanoseconds.
using FileState = std::tuple<ino_t, off_t, time_t, long>;

/// Sets the index of the last CPU in libgtop's server record; without a value, restores the real one.
void setLastCpu(std::optional<int> last)
{
    static std::optional<int> real;
    if (last && !real) {
        glibtop_init();
        real = glibtop_global_server->ncpu;
    }
    if (last || real) {
        glibtop_global_server->ncpu = last ? *last : *real;
    }
    if (!last) {
        real.reset();
    }
}

/// The counters by now: those that advance do so by the clock, in whole jiffies.
Cpu advanced(Cpu cpu)
{
    using Jiffies = std::chrono::duration<std::uint64_t, std::centi>;
    const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
    if (cpu.load >= 0) {
        const std::uint64_t jiffies = std::chrono::duration_cast<Jiffies>(sinceBoot).count();
        cpu.total += jiffies;
        cpu.idle += jiffies * static_cast<std::uint64_t>(100 - cpu.load) / 100;
    }
    return cpu;
}

void fillCpu(glibtop_cpu *buf, const std::vector<Cpu> &cpus)
{
    const std::size_t count = std::min<std::size_t>(cpus.size(), GLIBTOP_NCPU);
    setLastCpu(static_cast<int>(count) - 1);
    *buf = glibtop_cpu{};
    buf->flags = allFlags;
    buf->xcpu_flags = allFlags;
    buf->frequency = 100;
    for (std::size_t i = 0; i < count; ++i) {
        const Cpu cpu = advanced(cpus[i]);
        buf->xcpu_idle[i] = cpu.idle;
        buf->xcpu_total[i] = cpu.total;
        buf->xcpu_user[i] = cpu.total - cpu.idle;
        buf->idle += buf->xcpu_idle[i];
        buf->total += buf->xcpu_total[i];
        buf->user += buf->xcpu_user[i];
    }
}

const pid_t program = getpid();

/// The mount there, once the time is over for which it blocks; null if there is none.
const Mount *blockedMount(const char *directory)
{
    using Clock = std::chrono::steady_clock;
    for (const auto begin = Clock::now();; std::this_thread::sleep_for(std::chrono::milliseconds(10))) {
        // A child process that asks file systems begins no list, and may be asked while the machine changes.
        if (getpid() != program) {
            readFileIfChanged();
        }
        if (!machine().mounts) {
            return nullptr;
        }
        const std::vector<Mount> &mounts = *machine().mounts;
        const auto mount = std::find_if(mounts.begin(), mounts.end(), [=](const Mount &each) {
            return each.directory.compare(0, GLIBTOP_MOUNTENTRY_LEN, directory) == 0;
        });
        if (mount == mounts.end()) {
            return nullptr;
        }
        if (Clock::now() - begin >= std::chrono::milliseconds(mount->blocksForMs)) {
            return &*mount;
        }
    }
}

} // namespace

Machine &machine()
{
    static Machine made;
    return made;
}

Calls &countedCalls()
{
    static Calls counted;
    return counted;
}

const Calls &calls()
{
    return countedCalls();
}

void resetCalls()
{
    countedCalls() = {};
}

void readFileIfChanged()
{
    static const char *path = std::getenv("ZSM_STANDIN");
    static FileState last;
    struct stat status;
    if (!path || stat(path, &status) != 0) {
        return;
    }
    const FileState now{status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    if (now == last) {
        return;
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file) {
        return;
    }
    try {
        machine() = fromText(text.str());
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "gtopstandin: %s: %s\n", path, error.what());
        std::abort();
    }
    last = now;
}

} // namespace standin

using namespace standin;

STANDIN_CALL void glibtop_get_cpu(glibtop_cpu *buf)
{
    static const auto real = nextCall<decltype(glibtop_get_cpu)>("glibtop_get_cpu");
    readFileIfChanged();
    if (machine().cpus) {
        return fillCpu(buf, *machine().cpus);
    }
    setLastCpu({});
    real(buf);
}

STANDIN_CALL void glibtop_get_mem(glibtop_mem *buf)
{
    static const auto real = nextCall<decltype(glibtop_get_mem)>("glibtop_get_mem");
    ++countedCalls().memory;
    readFileIfChanged();
    if (!machine().memory) {
        return real(buf);
    }
    const Memory &memory = *machine().memory;
    *buf = glibtop_mem{};
    buf->flags = allFlags;
    buf->total = memory.total;
    buf->free = memory.free;
    buf->used = memory.total - memory.free;
    buf->buffer = memory.buffer;
    buf->cached = memory.cached;
}

STANDIN_CALL glibtop_mountentry *glibtop_get_mountlist(glibtop_mountlist *buf, int all_fs)
{
    static const auto real = nextCall<decltype(glibtop_get_mountlist)>("glibtop_get_mountlist");
    ++countedCalls().mountList;
    readFileIfChanged();
    if (!machine().mounts) {
        return real(buf, all_fs);
    }
    *buf = glibtop_mountlist{};
    if (machine().mountListFails) {
        return nullptr;
    }
    const std::vector<Mount> &mounts = *machine().mounts;
    // One more entry than reported, so that an empty list is an array, not null.
    auto *entries =
        static_cast<glibtop_mountentry *>(g_malloc0_n(mounts.size() + 1, sizeof(glibtop_mountentry)));
    for (std::size_t i = 0; i < mounts.size(); ++i) {
        copyText(entries[i].devname, mounts[i].device);
        copyText(entries[i].mountdir, mounts[i].directory);
        copyText(entries[i].type, mounts[i].type);
    }
    buf->flags = allFlags;
    buf->number = mounts.size();
    buf->size = sizeof(glibtop_mountentry);
    buf->total = buf->number * buf->size;
    return entries;
}

STANDIN_CALL void glibtop_get_fsusage(glibtop_fsusage *buf, const char *mount_dir)
{
    static const auto real = nextCall<decltype(glibtop_get_fsusage)>("glibtop_get_fsusage");
    const Mount *mount = blockedMount(mount_dir);
    if (!machine().mounts) {
        return real(buf, mount_dir);
    }
    *buf = glibtop_fsusage{};
    if (!mount || mount->fails) {
        return;
    }
    buf->flags = allFlags;
    buf->blocks = mount->blocks;
    buf->bfree = mount->freeBlocks;
    buf->bavail = mount->availBlocks;
    buf->files = mount->files;
    buf->block_size = mount->blockSize;
}

STANDIN_CALL char **glibtop_get_netlist(glibtop_netlist *buf)
{
    static const auto real = nextCall<decltype(glibtop_get_netlist)>("glibtop_get_netlist");
    ++countedCalls().interfaceList;
    readFileIfChanged();
    if (!machine().interfaces) {
        return real(buf);
    }
    *buf = glibtop_netlist{};
    if (machine().interfaceListFails) {
        return nullptr;
    }
    const std::vector<Interface> &interfaces = *machine().interfaces;
    auto *names = static_cast<char **>(g_malloc0_n(interfaces.size() + 1, sizeof(char *)));
    for (std::size_t i = 0; i < interfaces.size(); ++i) {
        names[i] = g_strdup(interfaces[i].name.c_str());
    }
    buf->flags = allFlags;
    buf->number = static_cast<guint32>(interfaces.size());
    return names;
}

STANDIN_CALL void glibtop_get_netload(glibtop_netload *buf, const char *name)
{
    static const auto real = nextCall<decltype(glibtop_get_netload)>("glibtop_get_netload");
    if (!machine().interfaces) {
        return real(buf, name);
    }
    *buf = glibtop_netload{};
    const std::vector<Interface> &interfaces = *machine().interfaces;
    const auto net = std::find_if(interfaces.begin(), interfaces.end(),
                                  [=](const Interface &each) { return each.name == name; });
    if (net == interfaces.end() || net->fails) {
        return;
    }
    buf->flags = allFlags;
    buf->address = net->address;
    buf->subnet = net->mask;
    buf->bytes_in = net->bytesIn;
    buf->bytes_out = net->bytesOut;
    buf->bytes_total = net->bytesIn + net->bytesOut;
    buf->errors_in = net->errors;
    buf->errors_total = net->errors;
}
