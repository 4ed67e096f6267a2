// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/qprog.h"
#include "support.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>
#include <random>

Q_DECLARE_METATYPE(standin::Machine)

namespace {

constexpr auto most = std::numeric_limits<std::uint64_t>::max();

const char *const badNames[] = {
    "",
    "\n\r\t\x01\x1b[31m\x7f",
    "\xe2\x80\xaeturned round",  // right-to-left override
    "\xe2\x81\xa6\xe2\x80\xabx", // isolate and embedding left open
    "\xff\xfe\xc0\x80",          // never UTF-8
    "cut \xe2\x80",
    "\xed\xa0\x80", // half of a surrogate pair
    "%1 %s %n &amp; <b>bold</b> <img src=x>",
    ("a very long name that goes on and on, past what any field of the library can "
     "hold, and then some more")};

standin::Machine zeroedMachine()
{
    standin::Machine machine = Fixture::smallMachine();
    machine.cpus = std::vector<standin::Cpu>(4);
    machine.memory = standin::Memory();
    machine.mounts->front().fails = true;
    machine.mounts->back() = standin::Mount();
    machine.interfaces->resize(2);
    machine.interfaces->front().fails = true;
    machine.interfaces->back() = standin::Interface();
    machine.processes->clear();
    for (int pid = 1; pid < 50; ++pid) {
        (*machine.processes)[pid].uid = static_cast<int>(getuid());
        (*machine.processes)[pid].parent = pid % 3 == 0 ? pid : 0; // some are their own parents
        (*machine.processes)[pid].answersBeforeEnd = pid % 5 - 1;  // and some exit while they are read
    }
    return machine;
}

standin::Machine extremeMachine()
{
    standin::Machine machine = Fixture::smallMachine();
    machine.cpus = std::vector<standin::Cpu>{{most, most}, {most, 0}, {0, most}};
    machine.memory = standin::Memory{most, most, most, most};
    for (standin::Mount &mount : *machine.mounts) {
        mount.blocks = mount.freeBlocks = mount.availBlocks = mount.files = most;
        mount.blockSize = std::numeric_limits<std::uint32_t>::max();
    }
    machine.mounts->front().blocks = std::uint64_t(1) << 31;
    for (standin::Interface &device : *machine.interfaces) {
        device.address = device.mask = std::numeric_limits<std::uint32_t>::max();
        device.bytesIn = device.bytesOut = device.errors = most;
    }
    for (int pid : {std::numeric_limits<int>::max(), 1, 100}) {
        standin::Process &process = (*machine.processes)[pid];
        process.parent = std::numeric_limits<int>::min();
        process.uid = std::numeric_limits<int>::max();
        process.state = std::numeric_limits<unsigned>::max();
        process.nice = std::numeric_limits<int>::min();
        process.userTime = process.systemTime = process.startTime = most;
        process.virtualSize = process.resident = process.shared = most;
    }
    return machine;
}

standin::Machine badlyNamedMachine()
{
    standin::Machine machine = Fixture::smallMachine();
    int pid = 1000;
    for (const char *name : badNames) {
        standin::Mount mount = machine.mounts->front();
        mount.device = mount.directory = std::string("/dev/") + name;
        machine.mounts->push_back(mount);
        standin::Interface device;
        device.name = name;
        machine.interfaces->push_back(device);
        standin::Process &process = (*machine.processes)[pid++];
        process.name = name;
        process.uid = static_cast<int>(getuid());
        process.arguments = std::string(name) + '\0' + name + '\0';
    }
    return machine;
}

standin::Machine crowdedMachine()
{
    standin::Machine machine = Fixture::smallMachine();
    machine.cpus = std::vector<standin::Cpu>(1024, standin::Cpu{10, 100});
    const standin::Mount root = machine.mounts->front();
    const standin::Interface device = machine.interfaces->front();
    for (int i = 0; i < 10000; ++i) {
        machine.mounts->push_back(root);
        machine.mounts->back().device += std::to_string(i);
        machine.mounts->back().directory += "mnt/" + std::to_string(i);
    }
    for (int i = 0; i < 1000; ++i) {
        machine.interfaces->push_back(device);
        machine.interfaces->back().name = "veth" + std::to_string(i);
    }
    return machine;
}

std::vector<std::pair<QByteArray, standin::Machine>> machinesByName()
{
    standin::Machine restarted = Fixture::smallMachine();
    restarted.cpus = std::vector<standin::Cpu>(2);
    for (standin::Interface &device : *restarted.interfaces) {
        device.bytesIn = device.bytesOut = 0;
    }
    standin::Machine empty = Fixture::smallMachine();
    empty.mountListFails = empty.interfaceListFails = true;
    empty.processes->clear();
    return {{"small", Fixture::smallMachine()},   {"counters restarted", restarted},
            {"zeroed", zeroedMachine()},          {"extreme", extremeMachine()},
            {"badly named", badlyNamedMachine()}, {"empty", empty}};
}

} // namespace

/// The whole controller on the worst machines.
class TestWorstMachine : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageSurvivesEveryChangeOfMachine_data()
    {
        QTest::addColumn<standin::Machine>("first");
        for (const auto &[name, machine] : machinesByName()) {
            QTest::newRow(name) << machine;
        }
    }

    void everyPageSurvivesEveryChangeOfMachine()
    {
        QFETCH(standin::Machine, first);
        const LoggedMessages messages;
        standin::machine() = first;
        fixture->start(0);
        for (const auto &[name, machine] : machinesByName()) {
            standin::machine() = machine;
            showAllPages();
            QVERIFY2(processList()->rowCount() > 0, name); // an empty machine leaves the last list
        }
        QCOMPARE(messages.text(), QString());
    }

    void controlCharactersInNamesAreNotShown()
    {
        standin::machine() = badlyNamedMachine();
        fixture->start(1);
        int seen = 0;
        for (int row = 0; row < processList()->rowCount(); ++row) {
            for (int column = 0; column < processList()->columnCount(); ++column, ++seen) {
                for (const QChar character : processList()->index(row, column).data().toString()) {
                    QVERIFY(character.category() != QChar::Other_Control);
                    QVERIFY(character.category() != QChar::Other_Format);
                }
            }
        }
        QVERIFY(seen > 20);
    }

    void allCpusMountsAndInterfacesAreShown()
    {
        const standin::Machine crowded = crowdedMachine();
        standin::machine().cpus = crowded.cpus;
        fixture->start(1);
        QCOMPARE(Fixture::window()->findChildren<QProg *>().size(), 1024 + 2); // and memory and disk
        standin::machine().interfaces = crowded.interfaces;
        showAllPages();
        QCOMPARE(Fixture::find<QComboBox>("comboNet")->count(), 1003);
        standin::machine().mounts = crowded.mounts;
        Fixture::choosePage(2);
        QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 10002);
        standin::machine() = Fixture::smallMachine();
        for (int i = 0; i < 3; ++i) { // each refresh removes half of the unmounted rows
            showAllPages();
        }
        QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
    }

    void allInterfacesComeAndGo()
    {
        const auto interfaces = crowdedMachine().interfaces;
        standin::machine().interfaces->clear();
        fixture->start(3);
        for (int i = 0; i < 3; ++i) {
            standin::machine().interfaces->clear();
            QCOMPARE(interfacesOffered(), 0);
            standin::machine().interfaces = interfaces;
            QCOMPARE(interfacesOffered(), 1003);
            QMetaObject::invokeMethod(&fixture->updater(), "setNetDevice", Q_ARG(int, 1002));
        }
    }

    /// ZSM_SOAK_PROCESSES sets the number of processes in all.
    void processesComeAndGoByTheThousand()
    {
        const int wanted = runSize("ZSM_SOAK_PROCESSES", 2000);
        const LoggedMessages messages;
        std::mt19937 random(1);
        fixture->start(1);
        auto &alive = *standin::machine().processes;
        for (int round = 0; round * 200 < wanted; ++round) {
            for (int i = 0; i < 200; ++i) {
                const int pid = 1000 + round * 200 + i;
                standin::Process &process = alive[pid];
                process.uid = static_cast<int>(getuid());
                process.name = "churn" + std::to_string(pid);
                process.parent = 100 + static_cast<int>(random() % static_cast<unsigned>(pid));
            }
            for (auto it = alive.begin(); it != alive.end();) {
                it = alive.size() > 500 && random() % 4 == 0 ? alive.erase(it) : std::next(it);
            }
            refresh(*fixture);
            if (round % 3 == 0) {
                Fixture::processAction("Tree view")->trigger();
            }
            QCoreApplication::processEvents();
        }
        alive.erase(std::next(alive.begin()), alive.end());
        refresh(*fixture);
        QCOMPARE(processList()->rowCount(), 1);
        QCOMPARE(messages.text(), QString());
    }

private:
    /// Shows each page, refreshes it twice and paints it.
    void showAllPages()
    {
        for (int page = 0; page < 4; ++page) {
            Fixture::choosePage(page);
            refresh(*fixture);
            refresh(*fixture);
            QVERIFY(!Fixture::window()->grab().isNull());
        }
    }

    static int interfacesOffered()
    {
        Fixture::choosePage(0);
        Fixture::choosePage(3);
        return Fixture::find<QComboBox>("comboNet")->count();
    }
};

QTEST_MAIN(TestWorstMachine)
#include "test_worstmachine.moc"
