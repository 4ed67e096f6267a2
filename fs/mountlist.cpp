// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include "fs/mountkinds.h"
#include "fs/usageasker.h"
#include "fs/usagechild.h"

#include <glib.h>
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

MountEntry readEntry(const glibtop_mountentry &mount)
{
    MountEntry entry;
    entry.devname = boundedName(mount.devname);
    entry.mountdir = boundedName(mount.mountdir);
    entry.type = boundedName(mount.type);
    return entry;
}

/// The names alone; asks no file system.
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

/// Keeps what the file systems that can hang last reported; ends its child processes with the program.
UsageAsker &asker()
{
    static UsageAsker instance({UsageChild::start, UsageAsker::Clock::now, waitForWorkers});
    return instance;
}

/// A failed query goes unnoticed: it leaves 0 blocks, for which a vanished mount is dropped.
void readUsages(std::vector<MountEntry> &mounts)
{
    const std::vector<Query> queries = queriesOf(mounts);
    std::vector<MountEntry *> askedInChild;
    for (std::size_t i = 0; i < mounts.size(); ++i) {
        if (queries[i] == Query::Direct) {
            setUsage(mounts[i], readUsage(mounts[i].mountdir.c_str()));
        } else if (queries[i] == Query::InChild) {
            askedInChild.push_back(&mounts[i]);
        }
    }
    asker().ask(askedInChild);
}

/// The low 32 bits, read as signed.
qint32 cutTo32Bits(quint64 count)
{
    return static_cast<qint32>(static_cast<quint32>(count));
}

} // namespace

void setUsage(MountEntry &mount, const Usage &usage)
{
    mount.blocks = usage.blocks;
    mount.bfree = usage.bfree;
    mount.bavail = usage.bavail;
    mount.files = usage.files;
    mount.blockSize = usage.blockSize;
}

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
    info.answers = entry.answers;
    return info;
}

std::list<FSInfo> reduceMounts(const std::vector<MountEntry> &entries)
{
    std::list<FSInfo> mounts;
    for (const MountEntry &entry : entries) {
        FSInfo info = toFSInfo(entry);
        // Intentional: the stored count decides, so a multiple of 2^32 blocks, stored as 0, is dropped.
        if ((info.blocks != 0 || !info.answers) && info.type != QLatin1String("tmpfs")) {
            mounts.push_back(std::move(info));
        }
    }
    return mounts;
}

std::list<FSInfo> collectMountList()
{
    std::vector<MountEntry> mounts = readMounts();
    readUsages(mounts);
    return reduceMounts(mounts);
}
