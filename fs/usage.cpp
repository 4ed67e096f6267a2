// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/usage.h"

#include <glibtop.h>
#include <glibtop/fsusage.h>

#include <utility>

Usage readUsage(const char *mountDir)
{
    glibtop_fsusage usage{};
    auto *server = glibtop_init();
    // glibtop_get_fsusage() rescans the whole mount table for I/O totals, which makes a refresh quadratic in
    // the number of mounts; it skips that on old kernels, so pretend to run on one during the call.
    const unsigned long kernel = std::exchange(server->os_version_code, 0UL);
    glibtop_get_fsusage(&usage, mountDir);
    server->os_version_code = kernel;
    return {usage.blocks, usage.bfree, usage.bavail, usage.files, usage.block_size};
}
