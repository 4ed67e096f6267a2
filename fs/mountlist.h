// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_MOUNTLIST_H
#define FS_MOUNTLIST_H

#include <QString>
#include <QtGlobal>

#include <list>
#include <string>
#include <vector>

/// One mounted file system. Intentional: the counts are the low 32 bits of the reported ones, read as signed,
/// so they wrap for file systems of 2^31 blocks and more, and all users of the record compute with them as
/// they are.
struct FSInfo
{
    QString device;         ///< device name, for example a path under /dev
    QString mountDir;       ///< mount point
    QString type;           ///< file system type
    qint32 blocks = 0;      ///< total blocks
    qint32 freeBlocks = 0;  ///< free blocks, including those reserved for the superuser
    qint32 availBlocks = 0; ///< free blocks available to ordinary users
    qint32 files = 0;       ///< total file nodes
    qint32 blockSize = 0;   ///< bytes in one block
};

/// Bytes in `count` blocks: the product modulo 2^64 of the sign-extended factors, so a wrapped (negative)
/// count yields a huge size.
inline quint64 blocksToBytes(qint32 count, qint32 blockSize)
{
    return static_cast<quint64>(qint64{count}) * static_cast<quint64>(qint64{blockSize});
}

/// A mount as reported by libgtop (`glibtop_mountentry` and `glibtop_fsusage`): names are bytes in no
/// particular encoding, counts are untruncated.
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

/// The mounted file systems that hold data, in the order of the system's mount list; empty if that is
/// missing. Blocks for as long as the file systems take to report their usage.
std::list<FSInfo> collectMountList();

/// Converts one mount to a record: names are decoded as UTF-8 (invalid bytes become replacement characters),
/// counts are truncated to 32 bits.
FSInfo toFSInfo(const MountEntry &entry);

/// Converts the mounts that hold data, in the same order; drops those of type "tmpfs" and those whose stored
/// block count is 0.
std::list<FSInfo> reduceMounts(const std::vector<MountEntry> &entries);

#endif
