// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QNetworkDatagram>
#include <QUdpSocket>
#include <QtTest>

#include <sched.h>
#include <sys/mount.h>

/// Real mounts and real traffic, in namespaces of this program: invisible outside, and gone when it ends.
class TestRealDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (unshare(CLONE_NEWNS | CLONE_NEWNET) != 0) {
            QSKIP(qPrintable("no permission for namespaces: " + qt_error_string()));
        }
        // From here on mounts stay in this namespace.
        if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
            QSKIP(qPrintable("mounts can't be made private: " + qt_error_string()));
        }
        QVERIFY(directory.isValid());
    }

    void cleanup() { QVERIFY(!session || session->endsCleanly()); }
    void aFileSystemIsListedWhileItIsMounted()
    {
        const QString image = directory.filePath("image");
        const QString mountPoint = directory.filePath("mounted");
        QVERIFY(QDir().mkdir(mountPoint));
        QFile file(image);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(8 * 1024 * 1024));
        file.close();
        if (QProcess::execute("mkfs.ext4", {"-q", "-F", image}) != 0) {
            QSKIP("can't create an ext4 file system (Debian package e2fsprogs)");
        }
        const auto mountImage = [&] {
            return QProcess::execute("mount", {"-o", "loop", image, mountPoint}) == 0;
        };
        const auto unmount = [&] { return umount(qPrintable(mountPoint)) == 0; };
        if (!mountImage()) {
            QSKIP("can't mount loop devices");
        }
        QVERIFY(unmount());

        session = std::make_unique<PageSession>(std::nullopt);
        QVERIFY(session->start({"filesystems"}));
        const auto isListed = [&] { return session->table("tableFS").find("Mountpoint", mountPoint) >= 0; };
        const auto isShown = [&] { return session->text("lblMountPoint").startsWith("/dev/loop"); };
        QVERIFY(!isListed());
        for (int round = 0; round < 2; ++round) {
            QVERIFY(mountImage());
            QVERIFY(session->waitFor(isListed));
            QVERIFY(session->clickRow("tableFS", "Mountpoint", mountPoint));
            QVERIFY(session->waitFor(isShown));
            QCOMPARE(session->text("lblFsType"), QString("ext4"));
            const QString total = session->text("lblTotal");
            const double megabytes =
                total.section(' ', 0, 0).toDouble(); // without the file system's metadata
            QVERIFY2(total.endsWith(" MB") && megabytes > 4 && megabytes <= 8, qPrintable(total));
            QVERIFY(session->waitFor(unmount)); // fails while the program queries the usage
            QVERIFY(session->waitFor([&] { return !isListed(); }));
            QVERIFY(session->waitFor([&] { return !isShown(); }));
        }
    }

    void trafficAppearsInTheTotalsAndInTheGraph()
    {
        // The counters are files of sysfs, which shows the network namespace of the process that mounted it.
        if (::mount("sysfs", "/sys", "sysfs", 0, nullptr) != 0) {
            QSKIP("can't mount sysfs");
        }
        if (QProcess::execute("ip", {"link", "set", "lo", "up"}) != 0) {
            QSKIP("can't bring up the loopback interface (Debian package iproute2)");
        }
        standin::Machine machine; // real except for its mounts: those below /sys have just been covered
        machine.mounts.emplace();
        session = std::make_unique<PageSession>(machine);
        QVERIFY(session->start({"network"}));
        QVERIFY(session->waitForTexts({{"netAdress", "127.0.0.1"},
                                       {"netMask", "255.0.0.0"},
                                       {"netIn", "0.00 B"},
                                       {"netOut", "0.00 B"},
                                       {"netErrors", "0"}}));
        QVERIFY(
            session->waitFor([&] { return session->described("TimeHisto") == "In: 0.00 B, Out: 0.00 B"; }));
        QUdpSocket receiver;
        QVERIFY(receiver.bind(QHostAddress::LocalHost));
        const int headers = 14 + 20 + 8; // of Ethernet, IP and UDP, which count too
        const QByteArray datagram(1024 * 16 - headers, '\0');
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(receiver.writeDatagram(datagram, receiver.localAddress(), receiver.localPort()),
                     datagram.size());
            QVERIFY(receiver.waitForReadyRead(desktopDeadline));
            QCOMPARE(receiver.receiveDatagram().data(), datagram);
        }
        QVERIFY(session->waitForTexts({{"netIn", "1.56 MB"}, {"netOut", "1.56 MB"}}));
        // The peak is at the top of the graph, whether the bytes came in one sample or in two.
        QVERIFY(session->waitFor([&] {
            const QImage graph = session->picture("TimeHisto");
            for (int x = 110; x < graph.width(); ++x) {
                if (shade(graph, {x, 16}) == 'r') { // drawn over the blue line
                    return true;
                }
            }
            return false;
        }));
    }

private:
    QTemporaryDir directory;
    std::unique_ptr<PageSession> session;
};

QTEST_GUILESS_MAIN(TestRealDevices)
#include "test_real_devices.moc"
