// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_USAGE_H
#define FS_USAGE_H

#include <QtGlobal>

/// What a file system reports about itself (`glibtop_fsusage`), untruncated.
struct Usage
{
    quint64 blocks;
    quint64 bfree;
    quint64 bavail;
    quint64 files;
    quint32 blockSize;
};

/// Asks the file system at a mount point; all 0 if the query fails. Blocks until it answers, which a hung one
/// never does. Allocates no memory.
Usage readUsage(const char *mountDir);

#endif
