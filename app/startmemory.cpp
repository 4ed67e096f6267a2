// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startmemory.h"

#include <QFile>
#include <QTimer>

#include <fcntl.h>
#include <linux/userfaultfd.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <utility>

namespace {

/// By then the page has been painted and followed up.
constexpr int startIsOver = 2000; // milliseconds
/// By then the page has been refreshed at any interval, and more than once at the default.
constexpr int usedPagesAreBack = 8000; // milliseconds after that

/// UFFD_FEATURE_WP_ASYNC, which older headers lack.
constexpr std::uint64_t asynchronousTracking = 1U << 15;

/// What /proc/PID/pagemap tells of one page.
using PageEntry = std::uint64_t;

constexpr PageEntry presentPage = PageEntry(1) << 63;
constexpr PageEntry swappedPage = PageEntry(1) << 62;
constexpr PageEntry pageOfFile = PageEntry(1) << 61;

bool isCopy(PageEntry entry)
{
    return (entry & (presentPage | swappedPage)) != 0 && (entry & pageOfFile) == 0;
}

/// Whether pages of the range are not those of the file, but copies that this process has of its own. Also
/// true if they cannot be read.
bool hasCopies(const PageRange &range, QFile &pagemap)
{
    static const auto pageSize = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    constexpr qint64 entrySize = sizeof(PageEntry);
    const auto first = static_cast<qint64>(reinterpret_cast<std::uintptr_t>(range.begin) / pageSize);
    const auto count = static_cast<qint64>(range.size / pageSize);
    std::vector<PageEntry> entries(static_cast<std::size_t>(count));
    const bool isRead =
        pagemap.seek(first * entrySize) &&
        pagemap.read(reinterpret_cast<char *>(entries.data()), count * entrySize) == count * entrySize;
    return !isRead || std::any_of(entries.begin(), entries.end(), isCopy);
}

} // namespace

std::vector<PageRange> readOnlyFiles(std::istream &maps)
{
    std::vector<PageRange> ranges;
    for (std::string line; std::getline(maps, line);) {
        void *begin = nullptr; // read as pointers: made from numbers, they would stop the compiler's analysis
        void *end = nullptr;
        char access = 'w';
        char path = '['; // as of the heap, stacks and what the kernel maps
        const int found =
            std::sscanf(line.c_str(), "%p-%p %*c%c%*s %*s %*s %*s %c", &begin, &end, &access, &path);
        if (found == 4 && access == '-' && path == '/' && begin < end) {
            auto *first = static_cast<char *>(begin);
            ranges.push_back({first, static_cast<std::size_t>(static_cast<char *>(end) - first)});
        }
    }
    return ranges;
}

bool mayBeTraced(std::istream &status)
{
    for (std::string line; std::getline(status, line);) {
        if (line == "TracerPid:\t0") {
            return false;
        }
    }
    return true;
}

void releaseReadOnlyPages(const SinglePageFaults &faults)
{
    std::ifstream maps("/proc/self/maps");
    std::ifstream status("/proc/self/status");
    QFile pagemap(QStringLiteral("/proc/self/pagemap"));
    const std::vector<PageRange> ranges = readOnlyFiles(maps);
    // Unbuffered: the kernel refuses to read parts of entries.
    if (mayBeTraced(status) || !pagemap.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return;
    }
    for (const PageRange &range : ranges) {
        if (!hasCopies(range, pagemap)) {
            madvise(range.begin, range.size, MADV_DONTNEED);
            faults.add(range);
        }
    }
}

SinglePageFaults::SinglePageFaults()
    : descriptor(static_cast<int>(syscall(SYS_userfaultfd, O_CLOEXEC | O_NONBLOCK | UFFD_USER_MODE_ONLY)))
{
    uffdio_api features = {};
    features.api = UFFD_API;
    features.features = asynchronousTracking;
    if (descriptor >= 0 && ioctl(descriptor, UFFDIO_API, &features) != 0) {
        close(std::exchange(descriptor, -1));
    }
}

SinglePageFaults::~SinglePageFaults()
{
    if (isPossible()) {
        close(descriptor); // all ranges are as before
    }
}

void SinglePageFaults::add(const PageRange &range) const
{
    uffdio_register tracked = {};
    tracked.range.start = reinterpret_cast<std::uintptr_t>(range.begin);
    tracked.range.len = range.size;
    tracked.mode = UFFDIO_REGISTER_MODE_WP;
    if (isPossible()) {
        ioctl(descriptor, UFFDIO_REGISTER, &tracked); // refused for shared mappings
    }
}

StartMemory::StartMemory()
{
    QTimer::singleShot(startIsOver, this, SLOT(release()));
}

void StartMemory::release()
{
    faults = std::make_unique<SinglePageFaults>();
    releaseReadOnlyPages(*faults);
    QTimer::singleShot(usedPagesAreBack, this, SLOT(finish()));
}
