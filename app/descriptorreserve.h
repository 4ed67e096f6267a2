// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DESCRIPTORRESERVE_H
#define APP_DESCRIPTORRESERVE_H

#include <vector>

/// File descriptors kept back for the next refresh. libgtop ends the whole process when it can't open
/// /proc/stat or /proc/meminfo, so reading must never begin on a process that has no descriptor left.
class DescriptorReserve
{
public:
    DescriptorReserve();
    ~DescriptorReserve();
    DescriptorReserve(const DescriptorReserve &) = delete;
    DescriptorReserve &operator=(const DescriptorReserve &) = delete;

    /// Gives the reserve up for use. False if the process or the system has not as many descriptors as a
    /// refresh can need: then nothing may be read.
    bool release();
    /// Takes the reserve back, as much of it as there is.
    void take();

private:
    void drop();

    std::vector<int> held;
};

/// Frees the reserve as long as it lives.
class ReleasedDescriptors
{
public:
    explicit ReleasedDescriptors(DescriptorReserve &from) : reserve(from), suffices(from.release()) {}
    ~ReleasedDescriptors() { reserve.take(); }
    ReleasedDescriptors(const ReleasedDescriptors &) = delete;
    ReleasedDescriptors &operator=(const ReleasedDescriptors &) = delete;

    bool enough() const { return suffices; }

private:
    DescriptorReserve &reserve;
    const bool suffices;
};

#endif
