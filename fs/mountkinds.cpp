// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountkinds.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace {

/// Types of file systems that can hang, and who has to answer.
struct Kind
{
    const char *type;
    const char *answeredBy;
};

const Kind kindsThatCanHang[] = {
    {"9p", "a server, or the host of a virtual machine"},
    {"acfs", "a cluster"},
    {"afs", "a server"},
    {"beegfs", "a cluster"},
    {"ceph", "a cluster"},
    {"cifs", "a Windows or Samba server"},
    {"coda", "a server, through a local program"},
    {"cvmfs", "a server, through a local program"},
    {"davfs", "a web server, through a local program"},
    {"fuse", "a local program, often for a server"},
    {"fuseblk", "a local program"},
    {"gfs", "a cluster"},
    {"gfs2", "a cluster"},
    {"glusterfs", "a cluster"},
    {"gpfs", "a cluster"},
    {"lustre", "a cluster"},
    {"ncp", "a NetWare server"},
    {"ncpfs", "a NetWare server"},
    {"nfs", "a server"},
    {"nfs4", "a server"},
    {"ocfs2", "a cluster"},
    {"orangefs", "a cluster, through a local program"},
    {"panfs", "a cluster"},
    {"prl_fs", "the host of a virtual machine"},
    {"pvfs2", "a cluster, through a local program"},
    {"smb3", "a Windows or Samba server"},
    {"smbfs", "a Windows or Samba server"},
    {"sshfs", "a server, through a local program"},
    {"vboxsf", "the host of a virtual machine"},
    {"virtiofs", "the host of a virtual machine"},
    {"vmhgfs", "the host of a virtual machine"},
};

/// Whether one of the folders is the path or leads to it. The root doesn't count: without it nothing works.
bool leadsThrough(const std::unordered_set<std::string> &folders, const std::string &path)
{
    for (std::size_t end = path.find('/', 1); !folders.empty(); end = path.find('/', end + 1)) {
        if (folders.count(path.substr(0, end)) != 0) {
            return true;
        }
        if (end == std::string::npos) {
            break;
        }
    }
    return false;
}

} // namespace

bool canHang(const std::string &type)
{
    // "fuse.sshfs": the part behind the point names the program.
    const bool namesItsProgram = type.compare(0, 5, "fuse.") == 0;
    return namesItsProgram || std::any_of(std::begin(kindsThatCanHang), std::end(kindsThatCanHang),
                                          [&type](const Kind &kind) { return type == kind.type; });
}

std::vector<Query> queriesOf(const std::vector<MountEntry> &mounts)
{
    std::unordered_set<std::string> foldersThatCanHang;
    for (const MountEntry &mount : mounts) {
        if (canHang(mount.type) && mount.mountdir != "/") {
            foldersThatCanHang.insert(mount.mountdir);
        }
    }
    std::vector<Query> queries;
    queries.reserve(mounts.size());
    for (const MountEntry &mount : mounts) {
        const bool hangs = canHang(mount.type) || leadsThrough(foldersThatCanHang, mount.mountdir);
        queries.push_back(mount.type == "autofs" ? Query::None : hangs ? Query::InChild : Query::Direct);
    }
    return queries;
}

std::string serverOf(const std::string &device)
{
    const bool isShare = device.compare(0, 2, "//") == 0;
    return device.substr(0, isShare ? device.find('/', 2) : device.find(":/"));
}
