// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/descriptorreserve.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

// A folder and a file of it at a time, a socket, and what a look-up of a user may open; with room to spare.
constexpr std::size_t reserveSize = 8;

} // namespace

DescriptorReserve::DescriptorReserve()
{
    held.reserve(reserveSize);
    take();
}

DescriptorReserve::~DescriptorReserve()
{
    drop();
}

bool DescriptorReserve::release()
{
    // Opened anew each time: the limit can have been lowered below the descriptors that are held.
    drop();
    take();
    const bool enough = held.size() == reserveSize;
    drop();
    return enough;
}

void DescriptorReserve::take()
{
    while (held.size() < reserveSize) {
        const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) {
            return;
        }
        held.push_back(descriptor);
    }
}

void DescriptorReserve::drop()
{
    for (const int descriptor : held) {
        close(descriptor);
    }
    held.clear();
}
