// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/descriptorreserve.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A directory and a file in it at a time, a socket, and the files of a user name look-up; with a margin.
constexpr std::size_t reserveSize = 8;

} // namespace

DescriptorReserve::DescriptorReserve()
{
    held.reserve(reserveSize);
    renew();
}

DescriptorReserve::~DescriptorReserve()
{
    release();
}

bool DescriptorReserve::renew()
{
    // Closed first: the limit may have been lowered below the descriptors that are held.
    release();
    int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    while (descriptor >= 0) {
        held.push_back(descriptor);
        if (held.size() == reserveSize) {
            return true;
        }
        descriptor = fcntl(descriptor, F_DUPFD_CLOEXEC, 0); // cheaper than open()
    }
    return false;
}

void DescriptorReserve::release()
{
    for (const int descriptor : held) {
        close(descriptor);
    }
    held.clear();
}
