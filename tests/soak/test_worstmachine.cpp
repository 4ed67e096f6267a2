// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages.h"
#include "resources/qprog.h"
#include "tests/app/fixture.h"

#include <QtTest>
#include <QtWidgets>

#include <unistd.h>

#include <limits>
#include <random>

namespace {

constexpr auto most = std::numeric_limits<std::uint64_t>::max();

const char *const badNames[] = {
    "",
    "\n\r\t\x01\x1b[31m\x7f",
    "\xe2\x80\xae"
    "turned round", // right-to-left override
    "\xe2\x81\xa6\xe2\x80\xab"
    "x",                // isolate and embedding left open
    "\xff\xfe\xc0\x80", // never UTF-8
    "cut \xe2\x80",
    "\xed\xa0\x80", // half of a surrogate pair
    "%1 %s %n &amp; <b>bold</b> <img src=x>",
    "a very long name that goes on and on, past what any field of the library can "
    "hold, and then some more"};

standin::Machine zeroedMachine()
{
    standin::Machine machine;
    machine.cpus = std::vector<standin::Cpu>(4);
    machine.memory = standin::Memory();
    standin::Mount failing;
    failing.device = "/dev/sda1";
    failing.directory = "/";
    failing.fails = true;
    machine.mounts = std::vector<standin::Mount>{failing, standin::Mount()};
    standin::Interface gone;
    gone.name = "eth0";
    gone.fails = true;
    machine.interfaces = std::vector<standin::Interface>{gone, standin::Interface()};
    machine.processes = std::map<int, standin::Process>();
    for (int pid = 1; pid < 50; ++pid) {
        (*machine.processes)[pid].parent = pid % 3 == 0 ? pid : 0; // some are their own parents
        (*machine.processes)[pid].answersBeforeEnd = pid % 5 - 1;  // and some end while they are read
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
    for (const int pid : {std::numeric_limits<int>::max(), 1, 100}) {
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
        standin::Process process;
        process.name = name;
        process.uid = static_cast<int>(getuid());
        process.arguments = std::string(name) + '\0' + name + '\0';
        (*machine.processes)[pid++] = process;
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

} // namespace

// The whole controller on machines that give the worst.
class TestWorstMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<Fixture>(); }
    void cleanup() { fixture.reset(); }
    void everyPageSurvivesEveryChangeOfMachine_data();
    void everyPageSurvivesEveryChangeOfMachine();
    void namesOfProcessesAreHarmless();
    void allCpusMountsAndInterfacesAreShown();
    void noInterfaceAndThenAThousand();
    void processesComeAndGoByTheThousand();

private:
    static std::vector<standin::Machine> machines()
    {
        standin::Machine nothing = Fixture::smallMachine();
        nothing.mountListFails = nothing.interfaceListFails = true;
        nothing.processes->clear();
        standin::Machine fallen = Fixture::smallMachine();
        fallen.cpus = std::vector<standin::Cpu>(2);
        for (standin::Interface &device : *fallen.interfaces) {
            device.bytesIn = device.bytesOut = 0;
        }
        return {Fixture::smallMachine(), fallen, zeroedMachine(), extremeMachine(),
                badlyNamedMachine(),     nothing};
    }
    // Every page shown, refreshed twice and painted.
    void goThroughPages()
    {
        for (int page = 0; page < 4; ++page) {
            Fixture::choosePage(page);
            for (int i = 0; i < 2; ++i) {
                QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true));
            }
            QVERIFY(!Fixture::window()->grab().isNull());
        }
    }
    static QAbstractItemModel *processes() { return Fixture::find<QTreeView>("treeView")->model(); }

    std::unique_ptr<Fixture> fixture;
};

void TestWorstMachine::everyPageSurvivesEveryChangeOfMachine_data()
{
    QTest::addColumn<int>("first");
    const char *const names[] = {"small", "fallen", "zeroed", "extreme", "badly named", "nothing"};
    for (int i = 0; i < 6; ++i) {
        QTest::newRow(names[i]) << i;
    }
}

void TestWorstMachine::everyPageSurvivesEveryChangeOfMachine()
{
    QFETCH(int, first);
    const LoggedMessages messages;
    const std::vector<standin::Machine> all = machines();
    standin::machine() = all[static_cast<std::size_t>(first)];
    fixture->start(0);
    for (const standin::Machine &machine : all) {
        standin::machine() = machine;
        goThroughPages();
        QCOMPARE(processes()->rowCount() > 0, !machine.processes->empty());
    }
    QCOMPARE(messages.text(), QString());
}

void TestWorstMachine::namesOfProcessesAreHarmless()
{
    standin::machine() = badlyNamedMachine();
    fixture->start(1);
    int seen = 0;
    for (int row = 0; row < processes()->rowCount(); ++row) {
        for (int column = 0; column < processes()->columnCount(); ++column) {
            const QString text = processes()->index(row, column).data().toString();
            for (const QChar character : text) {
                QVERIFY(character.category() != QChar::Other_Control);
                QVERIFY(character.category() != QChar::Other_Format);
            }
            ++seen;
        }
    }
    QVERIFY(seen > 20);
}

void TestWorstMachine::allCpusMountsAndInterfacesAreShown()
{
    const standin::Machine crowded = crowdedMachine();
    standin::machine().cpus = crowded.cpus;
    fixture->start(1);
    QCOMPARE(Fixture::window()->findChildren<QProg *>().size(), 1024 + 2); // and memory and disk
    standin::machine().interfaces = crowded.interfaces;
    goThroughPages();
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->count(), 1003);
    standin::machine().mounts = crowded.mounts;
    Fixture::choosePage(2);
    QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 10002);
    standin::machine() = Fixture::smallMachine();
    for (int i = 0; i < 3; ++i) { // each refresh takes half of the unmounted rows away
        goThroughPages();
    }
    QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
}

void TestWorstMachine::noInterfaceAndThenAThousand()
{
    const auto interfaces = crowdedMachine().interfaces;
    standin::machine().interfaces->clear();
    fixture->start(3);
    auto *const chooser = Fixture::find<QComboBox>("comboNet");
    for (int i = 0; i < 3; ++i) {
        standin::machine().interfaces->clear();
        Fixture::choosePage(0);
        Fixture::choosePage(3);
        QCOMPARE(chooser->count(), 0);
        standin::machine().interfaces = interfaces;
        Fixture::choosePage(0);
        Fixture::choosePage(3);
        QCOMPARE(chooser->count(), 1003);
        QMetaObject::invokeMethod(&fixture->updater(), "setNetDevice", Q_ARG(int, 1002));
    }
}

// ZSM_SOAK_PROCESSES sets how many come and go in all.
void TestWorstMachine::processesComeAndGoByTheThousand()
{
    const int wanted = qEnvironmentVariableIsSet("ZSM_SOAK_PROCESSES")
                           ? qEnvironmentVariableIntValue("ZSM_SOAK_PROCESSES")
                           : 2000;
    const LoggedMessages messages;
    std::mt19937 random(1);
    fixture->start(1);
    auto &alive = *standin::machine().processes;
    int next = 1000;
    for (int born = 0, round = 0; born < wanted; ++round) {
        for (int i = 0; i < 200; ++i, ++born) {
            standin::Process process;
            process.uid = static_cast<int>(getuid());
            process.name = "churn" + std::to_string(next);
            process.parent = 100 + static_cast<int>(random() % static_cast<unsigned>(next));
            alive[next++] = process;
        }
        for (auto it = alive.begin(); it != alive.end();) {
            it = alive.size() > 500 && random() % 4 == 0 ? alive.erase(it) : std::next(it);
        }
        QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true));
        if (round % 3 == 0) {
            const auto actions = fixture->updater().findChildren<QAction *>();
            for (QAction *action : actions) {
                if (action->text() == QStringLiteral("Tree view")) {
                    action->trigger();
                }
            }
        }
        QCoreApplication::processEvents();
    }
    alive.clear();
    QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true));
    QCOMPARE(processes()->rowCount(), 0);
    QCOMPARE(messages.text(), QString());
}

QTEST_MAIN(TestWorstMachine)
#include "test_worstmachine.moc"
