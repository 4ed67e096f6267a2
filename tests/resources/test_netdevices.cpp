// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "resources/netdevices.h"

#include <QtTest>

#include <arpa/inet.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace {

constexpr quint64 most = std::numeric_limits<quint64>::max();

QStringList sortedNames(const QList<QByteArray> &names)
{
    std::vector<NetReading> readings;
    for (const QByteArray &name : names) {
        readings.push_back({name});
    }
    QStringList sorted;
    for (const NetRec &record : netRecords(readings)) {
        sorted << record.name;
    }
    return sorted;
}

int openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

NetRec loopback()
{
    const std::vector<NetRec> records = collectNetDevices();
    const auto lo = std::find_if(records.begin(), records.end(),
                                 [](const NetRec &record) { return record.name == QLatin1String("lo"); });
    return lo == records.end() ? NetRec() : *lo;
}

/// Sends `bytes` over the loopback interface to the discard port, which need not be open.
bool sendOverLoopback(const QByteArray &bytes)
{
    const int sender = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in to = {};
    to.sin_family = AF_INET;
    to.sin_port = htons(9);
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const ssize_t sent = sendto(sender, bytes.constData(), static_cast<size_t>(bytes.size()), 0,
                                reinterpret_cast<const sockaddr *>(&to), sizeof to);
    close(sender);
    return sent == bytes.size();
}

} // namespace

class TestNetDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interfacesAreSortedByName_data()
    {
        const Rows<QList<QByteArray>, QStringList> row("names", "sorted");
        row("none", {}, {});
        row("alphabetical", {"eth1", "eth0", "lo"}, {"eth0", "eth1", "lo"});
        row("code units", {"lo", "eth10", "eth2", "Wlan0", "eth2.5", "\xc3\xa9th0", "_x", "eth2-a"},
            {"Wlan0", "_x", "eth10", "eth2", "eth2-a", "eth2.5", "lo", QString::fromUtf8("\xc3\xa9th0")});
        // The surrogates of U+1F600 sort before U+FF21 as code units, but after it as code points.
        row("surrogates", {"\xef\xbc\xa1", "\xf0\x9f\x98\x80"},
            {QString::fromUtf8("\xf0\x9f\x98\x80"), QString::fromUtf8("\xef\xbc\xa1")});
        row("invalid UTF-8 is replaced", {QByteArray("e\xff").append('0')}, {QStringLiteral("e\uFFFD0")});
        row("truncated UTF-8 is replaced", {"\xc3"}, {QStringLiteral("\uFFFD")});
        row("empty name", {""}, {QString()});
    }

    void interfacesAreSortedByName()
    {
        QFETCH(QList<QByteArray>, names);
        QTEST(sortedNames(names), "sorted");
    }

    void equalNamesKeepTheirOrder()
    {
        std::vector<NetReading> readings;
        for (quint64 i = 0; i < 50; ++i) {
            readings.push_back({"eth0", 0, 0, i});
        }
        readings.push_back({"a"});
        const std::vector<NetRec> records = netRecords(readings);
        QCOMPARE(records.size(), readings.size());
        QCOMPARE(records[0].name, QStringLiteral("a"));
        for (quint64 i = 0; i < 50; ++i) {
            QCOMPARE(records[i + 1].bytesIn, i);
        }
    }

    void fiveHundredInterfacesAreSorted()
    {
        QList<QByteArray> names;
        QStringList expected;
        for (int i = 0; i < 500; ++i) {
            names << "vethernet-" + QByteArray::number(10000 + (i * 37) % 500); // 15 characters, the longest
            expected << QStringLiteral("vethernet-%1").arg(10000 + i);
        }
        QCOMPARE(sortedNames(names), expected);
    }

    void aRecordHoldsWhatWasRead()
    {
        const quint64 errors = Q_UINT64_C(0x500000007); // truncated to 32 bits
        const NetReading reading = {"eth0", 1, 2, most, Q_UINT64_C(1) << 40, errors};
        const std::vector<NetRec> records = netRecords({reading});
        QCOMPARE(records.size(), size_t(1));
        QCOMPARE(records[0].name, QStringLiteral("eth0"));
        QCOMPARE(records[0].address, 1U);
        QCOMPARE(records[0].subnet, 2U);
        QCOMPARE(records[0].bytesIn, most);
        QCOMPARE(records[0].bytesOut, Q_UINT64_C(1) << 40);
        QCOMPARE(records[0].errors, 7U);
    }

    void differencesAreTruncatedTo32Bits_data()
    {
        const Rows<quint64, quint64, quint32> row("now", "last", "delta");
        row("unchanged", 5, 5, 0);
        row("increased", 1536, 512, 1024);
        row("increased by the largest 32-bit value", 0xffffffffU, 0, 0xffffffffU);
        row("increased by more than 32 bits", Q_UINT64_C(0x100000003), 0, 3);
        row("decreased by one", 9, 10, 0xffffffffU);
        row("reset to zero", 0, 1000, 0xfffffc18U);
        row("wrapped at 64 bits", 1, most, 2);
    }

    void differencesAreTruncatedTo32Bits()
    {
        QFETCH(quint64, now);
        QFETCH(quint64, last);
        QTEST(counterDelta(now, last), "delta");
    }

    void addressesAreDotted_data()
    {
        addTextRows("address", {"0.0.0.0", "127.0.0.1", "192.168.1.42", "255.255.255.255", "255.255.240.0"});
    }

    void addressesAreDotted()
    {
        QFETCH(QString, address);
        QCOMPARE(dottedAddress(inet_addr(address.toLatin1())), address);
    }

    void theTextsShowTotals()
    {
        const auto texts = [](const NetRec &record) {
            const NetTexts made = netTexts(record);
            return QStringList{made.address, made.mask, made.in, made.out, made.errors}.join(", ");
        };
        const quint32 address = inet_addr("10.0.0.7");
        const quint32 mask = inet_addr("255.0.0.0");
        QCOMPARE(texts({"eth0", address, mask, 1536, Q_UINT64_C(5) << 30, 4294967295U}),
                 QStringLiteral("10.0.0.7, 255.0.0.0, 1.50 KB, 5.00 GB, 4294967295"));
        QCOMPARE(texts({}), QStringLiteral("0.0.0.0, 0.0.0.0, 0.00 B, 0.00 B, 0"));
    }

    void theLoopbackInterfaceOfThisMachineIsListed()
    {
        if (if_nametoindex("lo") == 0) {
            QSKIP("this machine has no loopback interface");
        }
        const NetRec lo = loopback();
        QCOMPARE(lo.name, QStringLiteral("lo"));
        QCOMPARE(dottedAddress(lo.address), QStringLiteral("127.0.0.1"));
        QCOMPARE(dottedAddress(lo.subnet), QStringLiteral("255.0.0.0"));
    }

    void trafficOverTheLoopbackInterfaceIsCounted()
    {
        if (!QFile::exists("/sys/class/net/lo/statistics")) {
            QSKIP("sysfs, which has the counters, is not mounted");
        }
        const QByteArray bytes(50000, 'x');
        const NetRec before = loopback();
        if (!sendOverLoopback(bytes)) {
            QSKIP("nothing can be sent over the loopback interface of this machine");
        }
        const NetRec after = loopback();
        QVERIFY(counterDelta(after.bytesOut, before.bytesOut) >= 50000);
        QVERIFY(counterDelta(after.bytesIn, before.bytesIn) >= 50000);
    }

    void collectingLeavesNoDescriptorOpen()
    {
        collectNetDevices(); // libgtop keeps descriptors from its first call
        const int before = openDescriptors();
        for (int i = 0; i < 50; ++i) {
            collectNetDevices();
        }
        QCOMPARE(openDescriptors(), before);
    }
};

QTEST_APPLESS_MAIN(TestNetDevices)
#include "test_netdevices.moc"
