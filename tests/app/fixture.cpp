// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include <QLabel>
#include <QTabWidget>

#include <arpa/inet.h>
#include <unistd.h>

Fixture::Fixture()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Telmorra"));
    QCoreApplication::setApplicationName(QStringLiteral("zarn-system-monitor"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    standin::machine() = smallMachine();
    standin::resetCalls();
}

Fixture::~Fixture()
{
    stop();
    standin::machine() = {};
}

standin::Machine Fixture::smallMachine()
{
    standin::Machine machine;
    machine.cpus = {{1000, 4000}, {500, 4000}};
    machine.memory = standin::Memory{std::uint64_t(8) << 30, std::uint64_t(1) << 30, std::uint64_t(1) << 29, std::uint64_t(2) << 30};
    standin::Mount root;
    root.device = "/dev/sda1";
    root.directory = "/";
    root.type = "ext4";
    root.blocks = 1000000;
    root.freeBlocks = 300000;
    root.availBlocks = 250000;
    root.files = 65536;
    standin::Mount disc = root;
    disc.device = "/dev/sr0";
    disc.directory = "/media/disc";
    disc.type = "iso9660";
    disc.freeBlocks = disc.availBlocks = 0;
    machine.mounts = {root, disc};
    machine.interfaces = {
        {"wlan0", inet_addr("192.168.1.2"), inet_addr("255.255.255.0"), 2048, 1024, 3, false},
        {"eth0", inet_addr("10.0.0.7"), inet_addr("255.0.0.0"), 4096, 512, 0, false},
        {"lo", inet_addr("127.0.0.1"), inet_addr("255.0.0.0"), 100, 100, 0, false}};
    machine.processes = std::map<int, standin::Process>();
    for (int pid : {100, 200, 300, 400}) {
        standin::Process process;
        process.parent = pid == 100 ? 1 : 100;
        process.name = "made-up" + std::to_string(pid);
        process.uid = static_cast<int>(getuid());
        process.userTime = static_cast<std::uint64_t>(pid);
        process.startTime = 1700000000;
        process.resident = static_cast<std::uint64_t>(pid) << 20;
        (*machine.processes)[pid] = process;
    }
    return machine;
}

Updater &Fixture::start(int page)
{
    stop();
    controller = std::make_unique<Updater>(page);
    return *controller;
}

void Fixture::stop()
{
    controller.reset();
}

QMainWindow *Fixture::window()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (auto *found = qobject_cast<QMainWindow *>(widget)) {
            return found;
        }
    }
    return nullptr;
}

void Fixture::choosePage(int page)
{
    find<QTabWidget>("tabWidget")->setCurrentIndex(page);
}

QString Fixture::text(const char *label)
{
    return find<QLabel>(label)->text();
}

QString Fixture::settingsFile()
{
    return QSettings().fileName();
}
