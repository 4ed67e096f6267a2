// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_MOUNTKINDS_H
#define FS_MOUNTKINDS_H

#include "fs/mountlist.h"

/// How a mount is asked for its usage.
enum class Query {
    Direct,  ///< by this process
    InChild, ///< by a child process, since the answer may never come
    None,    ///< not at all: an automount point has no blocks, and asking would mount what belongs there
};

/// Whether a query to a file system of that type depends on a server or another program, and so may hang.
bool canHang(const std::string &type);

/// How each mount of a list is asked. A query that can hang on its way does so whatever the type: that of a
/// mount point below or at one of a file system that can hang.
std::vector<Query> queriesOf(const std::vector<MountEntry> &mounts);

/// The server in a device name of a network file system, "host" in "host:/path" and "//host" in
/// "//host/share"; any other device is its own server.
std::string serverOf(const std::string &device);

#endif
