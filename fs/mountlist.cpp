// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include <glib.h>
#include <glibtop.h>
#include <glibtop/fsusage.h>
#include <glibtop/mountlist.h>

#include <cstring>
#include <memory>
#include <utility>

namespace {

/// Reads one of libgtop's fixed arrays, which has no terminating NUL if the name fills it.
template <std::size_t size>
std::string boundedName(const char (&bytes)[size])
{
    return std::string(bytes, strnlen(bytes, size));
}

/// glibtop_get_fsusage() rescans the whole mount table for I/O totals, which makes a refresh quadratic in the
/// number of mounts; it skips that on old kernels, so pretend to run on one during the call.
void readUsage(const std::string &mountDir, glibtop_fsusage &usage)
{
    auto *server = glibtop_init();
    const unsigned long kernel = std::exchange(server->os_version_code, 0UL);
    glibtop_get_fsusage(&usage, mountDir.c_str());
    server->os_version_code = kernel;
}

MountEntry readEntry(const glibtop_mountentry &mount)
{
    MountEntry entry;
    entry.devname = boundedName(mount.devname);
    entry.mountdir = boundedName(mount.mountdir);
    entry.type = boundedName(mount.type);

    // A failed query goes unnoticed: it leaves 0 blocks, for which a vanished mount is dropped.
    glibtop_fsusage usage{};
    readUsage(entry.mountdir, usage);
    entry.blocks = usage.blocks;
    entry.bfree = usage.bfree;
    entry.bavail = usage.bavail;
    entry.files = usage.files;
    entry.blockSize = usage.block_size;
    return entry;
}

std::vector<MountEntry> readMounts()
{
    // Unfiltered by libgtop: reduceMounts() decides which mounts to drop.
    constexpr int allFileSystems = 1;
    glibtop_mountlist list{};
    const std::unique_ptr<glibtop_mountentry, decltype(&g_free)> mounts(
        glibtop_get_mountlist(&list, allFileSystems), &g_free);

    std::vector<MountEntry> entries;
    if (!mounts) {
        return entries;
    }
    entries.reserve(list.number);
    for (quint64 i = 0; i < list.number; ++i) {
        entries.push_back(readEntry(mounts.get()[i]));
    }
    return entries;
}

/// The low 32 bits, read as signed.
qint32 cutTo32Bits(quint64 count)
{
    return static_cast<qint32>(static_cast<quint32>(count));
}

} // namespace

FSInfo toFSInfo(const MountEntry &entry)
{
    FSInfo info;
    info.device = QString::fromStdString(entry.devname);
    info.mountDir = QString::fromStdString(entry.mountdir);
    info.type = QString::fromStdString(entry.type);
    info.blocks = cutTo32Bits(entry.blocks);
    info.freeBlocks = cutTo32Bits(entry.bfree);
    info.availBlocks = cutTo32Bits(entry.bavail);
    info.files = cutTo32Bits(entry.files);
    info.blockSize = cutTo32Bits(entry.blockSize);
    return info;
}

std::list<FSInfo> reduceMounts(const std::vector<MountEntry> &entries)
{
    std::list<FSInfo> mounts;
    for (const MountEntry &entry : entries) {
        FSInfo info = toFSInfo(entry);
        // Intentional: the stored count decides, so a multiple of 2^32 blocks, stored as 0, is dropped.
        if (info.blocks != 0 && info.type != QLatin1String("tmpfs")) {
            mounts.push_back(std::move(info));
        }
    }
    return mounts;
}

std::list<FSInfo> collectMountList()
{
    return reduceMounts(readMounts());
}
