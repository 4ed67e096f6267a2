// SPDX-License-Identifier: GPL-3.0-or-later
#include <dlfcn.h>
#include <mntent.h>

#include <cstdio>
#include <cstring>

/// Opens the kernel's mount table instead of /etc/mtab if that is missing, as in a minimal root: libgtop
/// reads no other file, and would warn at each refresh and list nothing. The program's definition precedes
/// the C library's.
extern "C" FILE *setmntent(const char *file, const char *mode) noexcept
{
    static const auto real = reinterpret_cast<decltype(&::setmntent)>(dlsym(RTLD_NEXT, "setmntent"));
    FILE *table = real(file, mode);
    return table || std::strcmp(file, MOUNTED) != 0 ? table : real("/proc/self/mounts", mode);
}
