// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/descriptorreserve.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

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
    if (holdsEnough()) {
        drop();
        return true;
    }
    drop();
    take();
    const bool enough = holdsEnough();
    drop();
    return enough;
}

/// Whether closing what is held makes room for as much again. What lies beyond the limit, which can have
/// been lowered since, does not.
bool DescriptorReserve::holdsEnough() const
{
    rlimit limit = {};
    return held.size() == reserveSize && getrlimit(RLIMIT_NOFILE, &limit) == 0 &&
           static_cast<rlim_t>(*std::max_element(held.begin(), held.end())) < limit.rlim_cur;
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
