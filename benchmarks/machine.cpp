// SPDX-License-Identifier: GPL-3.0-or-later
// bench_machine <file>: writes a machine with 1,024 cores, 500 mounts and 500 interfaces for the stand-in.
#include "tests/support/gtopstandin.h"

#include <cstdint>
#include <string>

int main(int argc, char **argv)
{
    constexpr std::uint64_t million = 1000000;
    standin::Machine machine;
    machine.cpus.emplace(1024, standin::Cpu{million, 2 * million});
    machine.memory = standin::Memory{64000 * million, 32000 * million, million, million};
    machine.mounts.emplace();
    machine.interfaces.emplace();
    for (int i = 0; i < 500; ++i) {
        const std::string number = std::to_string(i);
        standin::Mount mount;
        mount.device = "/dev/disk" + number;
        mount.directory = "/mnt/" + number;
        mount.type = "ext4";
        mount.blocks = million;
        mount.freeBlocks = mount.availBlocks = million / 2;
        machine.mounts->push_back(mount);
        standin::Interface interface;
        interface.name = "eth" + number;
        interface.bytesIn = interface.bytesOut = million;
        machine.interfaces->push_back(interface);
    }
    standin::save(machine, argc > 1 ? argv[1] : "machine.txt");
    return 0;
}
