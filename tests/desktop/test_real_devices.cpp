// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtTest>

#include <arpa/inet.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>

/// Real mounts and real traffic, in namespaces of this program's own: nothing outside sees them, and they are
/// gone when it ends.
class TestRealDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aFileSystemIsShownWhileItIsMounted();
    void sentBytesAreFoundInTheTotalsAndInTheGraph();

private:
    QTemporaryDir m_directory;
};

namespace {

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool done =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!done)
        qInfo("%s: %s", qPrintable(program), process.readAll().constData());
    return done;
}

bool isMounted(const QString &directory)
{
    QFile mounts(QStringLiteral("/proc/self/mounts"));
    return mounts.open(QIODevice::ReadOnly) && mounts.readAll().contains(directory.toUtf8() + ' ');
}

/// A datagram socket bound to a free port of the loopback interface.
class Receiver
{
public:
    Receiver() : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof m_address;
        m_bound = bind(m_socket, generic(), length) == 0 && getsockname(m_socket, generic(), &length) == 0;
    }
    ~Receiver() { close(m_socket); }
    Receiver(const Receiver &) = delete;
    Receiver &operator=(const Receiver &) = delete;

    bool isBound() const { return m_bound; }
    /// Sends itself so many datagrams of so many bytes.
    bool send(int count, std::size_t bytes)
    {
        std::vector<char> data(bytes);
        for (int i = 0; i < count; ++i) {
            if (sendto(m_socket, data.data(), bytes, 0, generic(), sizeof m_address) != ssize_t(bytes) ||
                recv(m_socket, data.data(), bytes, MSG_WAITALL) != ssize_t(bytes))
                return false;
        }
        return true;
    }

private:
    sockaddr *generic() { return reinterpret_cast<sockaddr *>(&m_address); }
    int m_socket;
    sockaddr_in m_address = {};
    bool m_bound = false;
};

} // namespace

void TestRealDevices::initTestCase()
{
    if (unshare(CLONE_NEWNS | CLONE_NEWNET) != 0)
        QSKIP(qPrintable(QStringLiteral("namespaces are not allowed here: ") +
                         QString::fromLocal8Bit(std::strerror(errno))));
    // What is mounted from here on stays in this namespace.
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        QSKIP(qPrintable(QStringLiteral("the mounts can't be kept apart here: ") +
                         QString::fromLocal8Bit(std::strerror(errno))));
    QVERIFY(m_directory.isValid());
}

void TestRealDevices::aFileSystemIsShownWhileItIsMounted()
{
    const QString image = m_directory.filePath(QStringLiteral("image"));
    const QString directory = m_directory.filePath(QStringLiteral("mounted"));
    QVERIFY(QDir().mkdir(directory));
    QFile file(image);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(8 * 1024 * 1024));
    file.close();
    if (!run(QStringLiteral("mkfs.ext4"), {QStringLiteral("-q"), QStringLiteral("-F"), image}))
        QSKIP("no ext4 file system can be made here (Debian package e2fsprogs)");
    const auto mountImage = [&] {
        return run(QStringLiteral("mount"), {QStringLiteral("-o"), QStringLiteral("loop"), image, directory});
    };
    if (!mountImage())
        QSKIP("loop devices can't be mounted here");
    QVERIFY(isMounted(directory) && umount(qPrintable(directory)) == 0);

    PageSession session(std::nullopt);
    QVERIFY2(session.start({QStringLiteral("filesystems")}), qPrintable(session.error()));
    const auto isListed = [&] {
        return session.table(QStringLiteral("tableFS")).find(QStringLiteral("Mountpoint"), directory) >= 0;
    };
    QVERIFY(!isListed());
    for (int round = 0; round < 2; ++round) {
        QVERIFY(mountImage());
        QVERIFY2(session.waitFor(isListed), qPrintable(session.error()));
        QVERIFY2(session.clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"), directory),
                 qPrintable(session.error()));
        const auto shownDevice = [&] { return session.text(QStringLiteral("lblMountPoint")); };
        QVERIFY(session.waitFor([&] { return shownDevice().startsWith(QLatin1String("/dev/loop")); }));
        QCOMPARE(session.text(QStringLiteral("lblFsType")), QStringLiteral("ext4"));
        // The file system's own records take some of the 8 MiB.
        const QString total = session.text(QStringLiteral("lblTotal"));
        QVERIFY2(total.endsWith(QLatin1String(" MB")) &&
                     total.section(QLatin1Char(' '), 0, 0).toDouble() > 4 &&
                     total.section(QLatin1Char(' '), 0, 0).toDouble() <= 8,
                 qPrintable(total));
        // It is busy while the program asks for its usage.
        QVERIFY(session.waitFor([&] { return umount(qPrintable(directory)) == 0; }));
        QVERIFY2(session.waitFor([&] { return !isListed(); }), qPrintable(session.error()));
        QVERIFY(session.waitFor([&] { return !shownDevice().startsWith(QLatin1String("/dev/loop")); }));
    }
    QVERIFY2(session.endsCleanly(), qPrintable(session.error()));
}

void TestRealDevices::sentBytesAreFoundInTheTotalsAndInTheGraph()
{
    // The counters of an interface are files of sysfs, which shows the network namespace of who mounted it.
    if (::mount("sysfs", "/sys", "sysfs", 0, nullptr) != 0)
        QSKIP("the network's files can't be mounted here");
    if (!run(QStringLiteral("ip"),
             {QStringLiteral("link"), QStringLiteral("set"), QStringLiteral("lo"), QStringLiteral("up")}))
        QSKIP("the loopback interface can't be brought up here (Debian package iproute2)");
    standin::Machine machine; // real but for its mounts: those inside of /sys have just been covered
    machine.mounts.emplace();
    PageSession session(machine);
    QVERIFY2(session.start({QStringLiteral("network")}), qPrintable(session.error()));
    QVERIFY(session.waitForTexts({{"netAdress", "127.0.0.1"},
                                  {"netMask", "255.0.0.0"},
                                  {"netIn", "0.00 B"},
                                  {"netOut", "0.00 B"},
                                  {"netErrors", "0"}}));
    QVERIFY(session.waitFor([&] {
        return session.described(QStringLiteral("TimeHisto")) == QLatin1String("In: 0.00 B, Out: 0.00 B");
    }));
    Receiver receiver;
    QVERIFY(receiver.isBound());
    const int headers = 14 + 20 + 8; // of Ethernet, IP and UDP count too
    QVERIFY(receiver.send(100, 1024 * 16 - headers));
    // The peak stands at the top of the graph, whether the bytes came in one sample or in two.
    QVERIFY(session.waitForTexts({{"netIn", "1.56 MB"}, {"netOut", "1.56 MB"}}));
    QVERIFY(session.waitFor([&] {
        const QImage graph = session.picture(session.widgets(QStringLiteral("TimeHisto")).value(0));
        for (int x = 110; x < graph.width(); ++x) {
            if (shade(graph, {x, 16}) == QLatin1Char('r')) // drawn over the blue line
                return true;
        }
        return false;
    }));
    QVERIFY2(session.endsCleanly(), qPrintable(session.error()));
}

QTEST_GUILESS_MAIN(TestRealDevices)
#include "test_real_devices.moc"
