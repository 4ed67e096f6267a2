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
    bool answers = true;    ///< false: has never reported its usage, and all counts are 0
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
    bool answers = true; ///< false: has never reported its usage
};

struct Usage;

/// The mounted file systems that hold data, in the order of the system's mount list; empty if that is
/// missing. Those that can hang are asked by a child process and, if they don't answer at once, keep the last
/// figures that they reported: the only state kept between calls.
std::list<FSInfo> collectMountList();

void setUsage(MountEntry &mount, const Usage &usage);

/// Converts one mount to a record: names are decoded as UTF-8 (invalid bytes become replacement characters),
/// counts are truncated to 32 bits.
FSInfo toFSInfo(const MountEntry &entry);

/// Converts the mounts that hold data, in the same order; drops those of type "tmpfs" and those that report a
/// stored block count of 0. Keeps those that have never reported anything.
std::list<FSInfo> reduceMounts(const std::vector<MountEntry> &entries);

#endif
