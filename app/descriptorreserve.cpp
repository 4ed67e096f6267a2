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
    while (held.size() < reserveSize) {
        const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) {
            return false;
        }
        held.push_back(descriptor);
    }
    return true;
}

void DescriptorReserve::release()
{
    for (const int descriptor : held) {
        close(descriptor);
    }
    held.clear();
}
