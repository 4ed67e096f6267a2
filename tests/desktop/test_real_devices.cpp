// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtTest>

#include <arpa/inet.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

/// Real mounts and real traffic, in namespaces of this program: invisible outside, and gone when it ends.
class TestRealDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { QVERIFY(!session || session->endsCleanly()); }
    void aFileSystemIsListedWhileItIsMounted();
    void trafficAppearsInTheTotalsAndInTheGraph();

private:
    QTemporaryDir directory;
    std::unique_ptr<PageSession> session;
};

namespace {

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool done =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!done) {
        qInfo("%s: %s", qPrintable(program), process.readAll().constData());
    }
    return done;
}

bool isMounted(const QString &directory)
{
    QFile mounts("/proc/self/mounts");
    return mounts.open(QIODevice::ReadOnly) && mounts.readAll().contains(directory.toUtf8() + ' ');
}

/// A datagram socket bound to a free port of the loopback interface.
class Receiver
{
public:
    Receiver()
    {
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        bound = bind(descriptor, generic(), length) == 0 && getsockname(descriptor, generic(), &length) == 0;
    }
    ~Receiver() { close(descriptor); }
    Receiver(const Receiver &) = delete;
    Receiver &operator=(const Receiver &) = delete;

    bool isBound() const { return bound; }
    /// Sends `count` datagrams of `bytes` bytes to itself.
    bool send(int count, std::size_t bytes)
    {
        std::vector<char> data(bytes);
        for (int i = 0; i < count; ++i) {
            if (sendto(descriptor, data.data(), bytes, 0, generic(), sizeof address) != ssize_t(bytes) ||
                recv(descriptor, data.data(), bytes, MSG_WAITALL) != ssize_t(bytes)) {
                return false;
            }
        }
        return true;
    }

private:
    sockaddr *generic() { return reinterpret_cast<sockaddr *>(&address); }

    int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    bool bound = false;
};

} // namespace

void TestRealDevices::initTestCase()
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

void TestRealDevices::aFileSystemIsListedWhileItIsMounted()
{
    const QString image = directory.filePath("image");
    const QString mountPoint = directory.filePath("mounted");
    QVERIFY(QDir().mkdir(mountPoint));
    QFile file(image);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(8 * 1024 * 1024));
    file.close();
    if (!run("mkfs.ext4", {"-q", "-F", image})) {
        QSKIP("can't create an ext4 file system (Debian package e2fsprogs)");
    }
    const auto mountImage = [&] { return run("mount", {"-o", "loop", image, mountPoint}); };
    const auto unmount = [&] { return umount(qPrintable(mountPoint)) == 0; };
    if (!mountImage()) {
        QSKIP("can't mount loop devices");
    }
    QVERIFY(isMounted(mountPoint) && unmount());

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
        const double megabytes = total.section(' ', 0, 0).toDouble(); // without the file system's metadata
        QVERIFY2(total.endsWith(" MB") && megabytes > 4 && megabytes <= 8, qPrintable(total));
        QVERIFY(session->waitFor(unmount)); // fails while the program queries the usage
        QVERIFY(session->waitFor([&] { return !isListed(); }));
        QVERIFY(session->waitFor([&] { return !isShown(); }));
    }
}

void TestRealDevices::trafficAppearsInTheTotalsAndInTheGraph()
{
    // The counters are files of sysfs, which shows the network namespace of the process that mounted it.
    if (::mount("sysfs", "/sys", "sysfs", 0, nullptr) != 0) {
        QSKIP("can't mount sysfs");
    }
    if (!run("ip", {"link", "set", "lo", "up"})) {
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
    QVERIFY(session->waitFor([&] { return session->described("TimeHisto") == "In: 0.00 B, Out: 0.00 B"; }));
    Receiver receiver;
    QVERIFY(receiver.isBound());
    const int headers = 14 + 20 + 8; // of Ethernet, IP and UDP, which count too
    QVERIFY(receiver.send(100, 1024 * 16 - headers));
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

QTEST_GUILESS_MAIN(TestRealDevices)
#include "test_real_devices.moc"
