// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpages.h"

#include <QTimer>

#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>

namespace {

constexpr int startIsOver = 2000; ///< milliseconds

ElfW(Addr) addressOf(const dl_phdr_info &object, const ElfW(Phdr) & segment)
{
    return object.dlpi_addr + segment.p_vaddr;
}

/// Whether the loader changed the code of the object, which then exists in memory only.
bool hasRelocatedCode(const dl_phdr_info &object)
{
    for (int i = 0; i < object.dlpi_phnum; ++i) {
        if (object.dlpi_phdr[i].p_type != PT_DYNAMIC) {
            continue;
        }
        const auto *entry = reinterpret_cast<const ElfW(Dyn) *>(addressOf(object, object.dlpi_phdr[i]));
        for (; entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == DT_TEXTREL || (entry->d_tag == DT_FLAGS && entry->d_un.d_val & DF_TEXTREL)) {
                return true;
            }
        }
    }
    return false;
}

int releaseSegments(dl_phdr_info *object, std::size_t /*size*/, void * /*data*/)
{
    if (hasRelocatedCode(*object)) {
        return 0;
    }
    const auto pageSize = static_cast<ElfW(Addr)>(sysconf(_SC_PAGESIZE));
    for (int i = 0; i < object->dlpi_phnum; ++i) {
        const ElfW(Phdr) &segment = object->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_W) == 0) {
            const ElfW(Addr) offset = addressOf(*object, segment) % pageSize;
            const ElfW(Addr) begin = addressOf(*object, segment) - offset;
            madvise(reinterpret_cast<void *>(begin), segment.p_memsz + offset, MADV_DONTNEED);
        }
    }
    return 0;
}

} // namespace

void releaseReadOnlyPages()
{
    dl_iterate_phdr(releaseSegments, nullptr);
}

StartPages::StartPages()
{
    QTimer::singleShot(startIsOver, this, SLOT(release()));
}
