// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "process/proxyprocmodel.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include <arpa/inet.h>
#include <unistd.h>

namespace {

/// Later for each fixture: what is known of the processes of the last one must not be taken for theirs.
std::uint64_t nextStart()
{
    static std::uint64_t start = 1700000000;
    return start += 1000;
}

} // namespace

Fixture::Fixture()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Telmorra"));
    QCoreApplication::setApplicationName(QStringLiteral("zarn-system-monitor"));
    // The program's file and that of the tests' QSettings.
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
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
    machine.memory = standin::Memory{std::uint64_t(8) << 30, std::uint64_t(1) << 30, std::uint64_t(1) << 29,
                                     std::uint64_t(2) << 30};
    machine.mounts = {{"/dev/sda1", "/", "ext4", 1000000, 300000, 250000, 65536, 4096, false, 0},
                      {"/dev/sr0", "/media/disc", "iso9660", 1000000, 0, 0, 65536, 4096, false, 0}};
    machine.interfaces = {
        {"wlan0", inet_addr("192.168.1.2"), inet_addr("255.255.255.0"), 2048, 1024, 3, false},
        {"eth0", inet_addr("10.0.0.7"), inet_addr("255.0.0.0"), 4096, 512, 0, false},
        {"lo", inet_addr("127.0.0.1"), inet_addr("255.0.0.0"), 100, 100, 0, false}};
    machine.processes = std::map<int, standin::Process>();
    const std::uint64_t started = nextStart();
    for (int pid : {100, 200, 300, 400}) {
        standin::Process process;
        process.parent = pid == 100 ? 1 : 100;
        process.name = "made-up" + std::to_string(pid);
        process.uid = static_cast<int>(getuid());
        process.userTime = static_cast<std::uint64_t>(pid);
        process.startTime = started;
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

QAction *Fixture::entry(const QMenu *menu, const char *text)
{
    for (QAction *action : menu->actions()) {
        if (action->text() == QLatin1String(text)) {
            return action;
        }
    }
    return nullptr;
}

QAction *Fixture::processAction(const char *text)
{
    return entry(window()->menuBar()->actions().at(1)->menu()->actions().at(1)->menu(), text);
}

void Fixture::choosePage(int page)
{
    find<QTabWidget>("tabWidget")->setCurrentIndex(page);
}

QString Fixture::text(const char *label)
{
    return find<QLabel>(label)->text();
}

ProxyProcModel *Fixture::processes()
{
    return qobject_cast<ProxyProcModel *>(find<QTreeView>("treeView")->model());
}

QWidget *Fixture::graph()
{
    return find<QVBoxLayout>("ltTimeHisto")->itemAt(0)->widget();
}

int Fixture::drawnSamples()
{
    const QImage image = graph()->grab().toImage();
    for (int x = 110; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor color = image.pixelColor(x, y);
            if (color.red() > 150 && color.green() < 100 && color.blue() < 100) {
                return qRound((image.width() - 15 - x) * 100.0 / (image.width() - 85)) + 1;
            }
        }
    }
    return 0;
}

QString Fixture::settingsFile()
{
    return QSettings().fileName();
}

void ControllerTest::select(int pid)
{
    view()->setCurrentIndex(list()->rowOfPid(pid));
    verifySelected(pid);
}

void ControllerTest::verifySelected(int pid)
{
    const QModelIndexList rows = view()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), pid == -1 ? 0 : 1);
    if (pid != -1) {
        QCOMPARE(list()->processAt(rows.first()).pid(), pid);
        QCOMPARE(list()->processAt(view()->currentIndex()).pid(), pid);
    }
}
