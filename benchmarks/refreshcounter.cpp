// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded into the measured program: counts its process refreshes, as a 64-bit number in the file named by
// ZSM_REFRESHES. On a busy machine the program misses ticks, so elapsed seconds do not give the count.
#include <dlfcn.h>
#include <fcntl.h>
#include <glibtop/proclist.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

namespace {

volatile std::uint64_t *openCounter()
{
    static std::uint64_t nowhere;
    const char *path = std::getenv("ZSM_REFRESHES");
    const int file = path ? open(path, O_RDWR | O_CREAT, 0600) : -1;
    if (file < 0 || ftruncate(file, sizeof nowhere) != 0) {
        return &nowhere;
    }
    void *mapped = mmap(nullptr, sizeof nowhere, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    close(file);
    return mapped == MAP_FAILED ? &nowhere : static_cast<std::uint64_t *>(mapped);
}

} // namespace

extern "C" __attribute__((visibility("default"))) pid_t *glibtop_get_proclist(glibtop_proclist *buf,
                                                                              gint64 which, gint64 arg)
{
    using Call = pid_t *(*)(glibtop_proclist *, gint64, gint64);
    static const auto real = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "glibtop_get_proclist"));
    static volatile std::uint64_t *counter = openCounter();
    *counter = *counter + 1;
    return real(buf, which, arg);
}
