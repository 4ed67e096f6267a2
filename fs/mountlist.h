// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_MOUNTLIST_H
#define FS_MOUNTLIST_H

#include <QString>
#include <QtGlobal>

#include <list>
#include <string>
#include <vector>

/// One mounted file system. The counts are meant to be the low 32 bits of what the system reports, read
/// as signed: they wrap for file systems of 2^31 blocks and more, and all users of the record follow suit.
struct FSInfo
{
    QString device;         ///< device name, for example a path under /dev
    QString mountDir;       ///< mount point
    QString type;           ///< file system type
    qint32 blocks = 0;      ///< blocks in all
    qint32 freeBlocks = 0;  ///< free blocks, those reserved for the superuser included
    qint32 availBlocks = 0; ///< free blocks that ordinary users may fill
    qint32 files = 0;       ///< file nodes in all
    qint32 blockSize = 0;   ///< bytes in one block
};

/// Bytes in `count` blocks: the product modulo 2^64 of both factors widened with their sign, so that a
/// wrapped (negative) count makes a huge amount.
inline quint64 blocksToBytes(qint32 count, qint32 blockSize)
{
    return static_cast<quint64>(qint64{count}) * static_cast<quint64>(qint64{blockSize});
}

/// A mount as libgtop reports it (`glibtop_mountentry` and `glibtop_fsusage`): names are bytes in no
/// particular encoding, counts are whole.
struct MountEntry
{
    std::string devname;
    std::string mountdir;
    std::string type;
    quint64 blocks = 0;
    quint64 bfree = 0;
    quint64 bavail = 0;
    quint64 files = 0;
    quint32 blockSize = 0;
};

/// The mounted file systems that hold data, in the order of the system's mount list; empty if there is no
/// such list. Blocks for as long as a file system takes to report its usage.
std::list<FSInfo> collectMountList();

/// The record of one mount: names read as UTF-8 (bytes that are not become replacement characters),
/// counts cut to 32 bits.
FSInfo toFSInfo(const MountEntry &entry);

/// Reduces what was read to the mounts that hold data, in the same order: those of type "tmpfs" and those
/// whose stored block count is 0 are left out.
std::list<FSInfo> reduceMounts(const std::vector<MountEntry> &entries);

#endif
