// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/churn.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <csignal>

namespace {

QString procFolder(int pid)
{
    return QString("/proc/%1").arg(pid);
}

bool isStopped(int pid)
{
    QFile file(procFolder(pid) + "/stat");
    return file.open(QIODevice::ReadOnly) && file.readAll().contains(") T ");
}

/// A number of any length, 0 and the maximum included.
std::uint64_t anyNumber(QRandomGenerator &random)
{
    return random.generate64() >> random.bounded(64);
}

template <typename Text, std::size_t count>
std::string anyOf(const Text (&texts)[count], QRandomGenerator &random)
{
    return texts[random.bounded(int(count))];
}

bool oneIn(int chances, QRandomGenerator &random)
{
    return random.bounded(chances) == 0;
}

standin::Mount mount(int number, QRandomGenerator &random)
{
    static const char *const devices[] = {
        "/dev/sda", "/dev/mapper/root", "tmpfs", "//server/share", "/dev/\xff\xfe", "", "\xc3\xa9 \n<b>"};
    static const char *const types[] = {"ext4", "tmpfs", "vfat", "iso9660", "nfs", "", "\xf0\x9f\x92\xbe"};
    standin::Mount made;
    made.device = anyOf(devices, random) + (oneIn(4, random) ? std::string() : std::to_string(number));
    made.directory = "/mnt/" + std::string(oneIn(8, random) ? 100 : 1, 'd') + std::to_string(number);
    made.type = anyOf(types, random);
    made.blocks = anyNumber(random);
    made.freeBlocks = oneIn(8, random) ? anyNumber(random) : made.blocks / 2;
    made.availBlocks = oneIn(8, random) ? anyNumber(random) : made.blocks / 3;
    made.fails = oneIn(10, random);
    return made;
}

standin::Interface interface(int number, QRandomGenerator &random)
{
    static const char *const names[] = {"eth", "lo", "wlan", "\xc3\xa9&", "a-name-that-takes-much-room-"};
    const std::string name = anyOf(names, random) + std::to_string(number);
    const std::uint32_t address = random.generate();
    const std::uint32_t mask = random.generate();
    return {name, address, mask, anyNumber(random), anyNumber(random), anyNumber(random), oneIn(10, random)};
}

} // namespace

Churn::~Churn()
{
    samples.clear();
    if (user < 0) {
        return;
    }
    // Stopped children of the samples would not exit by themselves.
    for (const QString &folder : QDir("/proc").entryList(QDir::Dirs)) {
        const int pid = folder.toInt();
        if (pid > 0 && QFileInfo(procFolder(pid)).ownerId() == uint(user) && isStopped(pid)) {
            ::kill(pid, SIGKILL);
        }
    }
}

bool Churn::owns(int pid) const
{
    return user >= 0 && pid > 0 &&
           (started.contains(pid) || QFileInfo(procFolder(pid)).ownerId() == uint(user));
}

bool Churn::has(SampleProcess::What what) const
{
    return std::any_of(samples.begin(), samples.end(), [=](const Sample &each) { return each.what == what; });
}

void Churn::end(int pid)
{
    const auto isIt = [=](const Sample &each) { return each.process->pid() == pid; };
    samples.erase(std::remove_if(samples.begin(), samples.end(), isIt), samples.end());
}

QString Churn::startOne(QRandomGenerator &random)
{
    SampleProcess::What what = SampleProcess::Sleeping;
    if (oneIn(3, random) && !has(SampleProcess::Parent)) {
        what = SampleProcess::Parent;
    } else if (oneIn(3, random) && !has(SampleProcess::Heir)) {
        what = SampleProcess::Heir;
    }
    auto process = std::make_unique<SampleProcess>(
        QString("m%1").arg(random.bounded(1000), 3, 10, QLatin1Char('0')), what, user);
    const int pid = process->pid();
    started.insert(pid);
    samples.push_back({what, std::move(process)});
    return QString("starts %1").arg(pid);
}

QString Churn::changeProcesses(QRandomGenerator &random)
{
    const std::pair<int, const char *> signs[] = {
        {SIGUSR1, "renames"}, {SIGSTOP, "stops"}, {SIGCONT, "continues"}};
    const std::size_t fewest = 4;
    const std::size_t most = 12;

    end(0); // forgets those that the program has killed
    const int what = random.bounded(6);
    if (samples.size() < fewest || (what < 2 && samples.size() < most)) {
        return startOne(random);
    }
    const std::size_t which = random.generate() % samples.size();
    const int pid = samples[which].process->pid();
    if (what < 3) {
        samples.erase(samples.begin() + long(which));
        return QString("ends %1").arg(pid);
    }
    const auto &[signal, name] = signs[what - 3];
    samples[which].process->sendSignal(signal);
    return QString("%1 %2").arg(name).arg(pid);
}

standin::Machine Churn::machine(QRandomGenerator &random)
{
    standin::Machine made;
    made.mostOfOthers = 60;
    made.cpus.emplace(4);
    for (standin::Cpu &cpu : *made.cpus) {
        cpu.idle = anyNumber(random);
        cpu.total = oneIn(8, random) ? anyNumber(random) : cpu.idle + random.bounded(1000U);
    }
    const std::uint64_t memory = anyNumber(random);
    made.memory = standin::Memory{memory, memory / 4, memory / 8, memory / 2};
    made.mounts.emplace();
    for (int number = random.bounded(25); number > 0; --number) {
        made.mounts->push_back(mount(number, random));
    }
    made.mountListFails = oneIn(20, random);
    made.interfaces.emplace();
    for (int number = random.bounded(12); number > 0; --number) {
        made.interfaces->push_back(interface(number, random));
    }
    made.interfaceListFails = oneIn(20, random);
    return made;
}
