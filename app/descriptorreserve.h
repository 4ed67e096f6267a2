// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DESCRIPTORRESERVE_H
#define APP_DESCRIPTORRESERVE_H

#include <vector>

/// File descriptors held open between refreshes for the next one to use. libgtop exits the whole process if
/// it cannot open /proc/stat or /proc/meminfo, so a refresh must not start without descriptors to spare.
class DescriptorReserve
{
public:
    DescriptorReserve();
    ~DescriptorReserve();
    DescriptorReserve(const DescriptorReserve &) = delete;
    DescriptorReserve &operator=(const DescriptorReserve &) = delete;

    /// Reopens the reserve, as far as possible. False if the limit of the process or the system leaves fewer
    /// descriptors than a refresh may need: then nothing may be read.
    bool renew();
    /// Closes the descriptors.
    void release();

private:
    std::vector<int> held;
};

/// Releases the reserve during its lifetime.
class ReleasedDescriptors
{
public:
    explicit ReleasedDescriptors(DescriptorReserve &from) : reserve(from), suffices(from.renew())
    {
        reserve.release();
    }
    ~ReleasedDescriptors() { reserve.renew(); }
    ReleasedDescriptors(const ReleasedDescriptors &) = delete;
    ReleasedDescriptors &operator=(const ReleasedDescriptors &) = delete;

    /// Whether the reserve was complete when it was released.
    bool enough() const { return suffices; }

private:
    DescriptorReserve &reserve;
    const bool suffices;
};

#endif
