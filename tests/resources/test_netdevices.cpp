// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/netdevices.h"

#include <QDir>
#include <QtTest>

#include <arpa/inet.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace {

NetReading named(const QByteArray &name)
{
    NetReading reading;
    reading.name = name;
    return reading;
}

QStringList namesOf(const std::vector<NetRec> &records)
{
    QStringList names;
    for (const NetRec &record : records) {
        names << record.name;
    }
    return names;
}

QStringList sortedNames(const QList<QByteArray> &names)
{
    std::vector<NetReading> readings;
    for (const QByteArray &name : names) {
        readings.push_back(named(name));
    }
    return namesOf(netRecords(readings));
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

/// Sends `bytes` over the loopback interface to the discard port, heard there or not.
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
    void interfacesAreListedByName();
    void theOrderIsThatOfCodeUnits();
    void noReadingsGiveNoRecords();
    void equalNamesKeepTheirOrder();
    void fiveHundredInterfacesAreSorted();
    void namesThatAreNotUtf8AreShownWithReplacements();
    void aRecordCarriesWhatWasRead();
    void errorsAreCutTo32Bits();
    void differencesAreCutTo32Bits_data();
    void differencesAreCutTo32Bits();
    void addressesAreDotted_data();
    void addressesAreDotted();
    void theTextsShowTotals();
    void theLoopbackInterfaceOfThisMachineIsListed();
    void trafficOverTheLoopbackInterfaceIsCounted();
    void collectingLeavesNoDescriptorOpen();
};

void TestNetDevices::interfacesAreListedByName()
{
    QCOMPARE(sortedNames({"eth1", "eth0", "lo"}), QStringList({"eth0", "eth1", "lo"}));
}

void TestNetDevices::theOrderIsThatOfCodeUnits()
{
    QCOMPARE(sortedNames({"lo", "eth10", "eth2", "Wlan0", "eth2.5", "\xc3\xa9th0", "_x", "eth2-a"}),
             QStringList({"Wlan0", "_x", "eth10", "eth2", "eth2-a", "eth2.5", "lo",
                          QString::fromUtf8("\xc3\xa9th0")}));
    // U+1F600 is made of surrogates, which come before U+FF21 as code units and after it as code points.
    QCOMPARE(sortedNames({"\xef\xbc\xa1", "\xf0\x9f\x98\x80"}),
             QStringList({QString::fromUtf8("\xf0\x9f\x98\x80"), QString::fromUtf8("\xef\xbc\xa1")}));
}

void TestNetDevices::noReadingsGiveNoRecords()
{
    QVERIFY(netRecords({}).empty());
}

void TestNetDevices::equalNamesKeepTheirOrder()
{
    std::vector<NetReading> readings;
    for (quint64 i = 0; i < 50; ++i) {
        NetReading reading = named("eth0");
        reading.bytesIn = i;
        readings.push_back(reading);
    }
    readings.push_back(named("a"));
    const std::vector<NetRec> records = netRecords(readings);
    QCOMPARE(records.size(), readings.size());
    QCOMPARE(records[0].name, QStringLiteral("a"));
    for (quint64 i = 0; i < 50; ++i) {
        QCOMPARE(records[i + 1].bytesIn, i);
    }
}

void TestNetDevices::fiveHundredInterfacesAreSorted()
{
    QList<QByteArray> names;
    QStringList expected;
    for (int i = 0; i < 500; ++i) {
        names << "vethernet-" + QByteArray::number(10000 + (i * 37) % 500); // 15 characters, the longest
        expected << QStringLiteral("vethernet-%1").arg(10000 + i);
    }
    QCOMPARE(sortedNames(names), expected);
}

void TestNetDevices::namesThatAreNotUtf8AreShownWithReplacements()
{
    const QString replaced = QChar(QChar::ReplacementCharacter);
    QCOMPARE(sortedNames({"e\xff"
                          "0"}),
             QStringList(QStringLiteral("e") + replaced + QStringLiteral("0")));
    QCOMPARE(sortedNames({"\xc3"}), QStringList(replaced));
    QCOMPARE(sortedNames({""}), QStringList(QString()));
}

void TestNetDevices::aRecordCarriesWhatWasRead()
{
    const NetReading reading = {"eth0", 1, 2, std::numeric_limits<quint64>::max(), Q_UINT64_C(1) << 40, 5};
    const std::vector<NetRec> records = netRecords({reading});
    QCOMPARE(records.size(), size_t(1));
    QCOMPARE(records[0].name, QStringLiteral("eth0"));
    QCOMPARE(records[0].address, 1U);
    QCOMPARE(records[0].subnet, 2U);
    QCOMPARE(records[0].bytesIn, std::numeric_limits<quint64>::max());
    QCOMPARE(records[0].bytesOut, Q_UINT64_C(1) << 40);
    QCOMPARE(records[0].errors, 5U);
}

void TestNetDevices::errorsAreCutTo32Bits()
{
    NetReading reading = named("eth0");
    reading.errorsTotal = Q_UINT64_C(0x500000007);
    QCOMPARE(netRecords({reading})[0].errors, 7U);
}

void TestNetDevices::differencesAreCutTo32Bits_data()
{
    QTest::addColumn<quint64>("now");
    QTest::addColumn<quint64>("last");
    QTest::addColumn<quint32>("delta");
    const quint64 most = std::numeric_limits<quint64>::max();
    QTest::newRow("stands still") << quint64(5) << quint64(5) << 0U;
    QTest::newRow("grows") << quint64(1536) << quint64(512) << 1024U;
    QTest::newRow("grows to the last 32-bit value") << quint64(0xffffffff) << quint64(0) << 0xffffffffU;
    QTest::newRow("gains more than 32 bits hold") << Q_UINT64_C(0x100000003) << quint64(0) << 3U;
    QTest::newRow("falls by one") << quint64(9) << quint64(10) << 0xffffffffU;
    QTest::newRow("falls back to zero") << quint64(0) << quint64(1000) << 0xfffffc18U;
    QTest::newRow("wraps its 64 bits") << quint64(1) << most << 2U;
}

void TestNetDevices::differencesAreCutTo32Bits()
{
    QFETCH(quint64, now);
    QFETCH(quint64, last);
    QTEST(counterDelta(now, last), "delta");
}

void TestNetDevices::addressesAreDotted_data()
{
    QTest::addColumn<QString>("address");
    for (const char *text : {"0.0.0.0", "127.0.0.1", "192.168.1.42", "255.255.255.255", "255.255.240.0"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void TestNetDevices::addressesAreDotted()
{
    QFETCH(QString, address);
    QCOMPARE(dottedAddress(inet_addr(address.toLatin1())), address);
}

void TestNetDevices::theTextsShowTotals()
{
    const NetRec record = {QStringLiteral("eth0"), inet_addr("10.0.0.7"),
                           inet_addr("255.0.0.0"), 1536,
                           Q_UINT64_C(5) << 30,    4294967295U};
    const NetTexts texts = netTexts(record);
    QCOMPARE(texts.address, QStringLiteral("10.0.0.7"));
    QCOMPARE(texts.mask, QStringLiteral("255.0.0.0"));
    QCOMPARE(texts.in, QStringLiteral("1.50 KB"));
    QCOMPARE(texts.out, QStringLiteral("5.00 GB"));
    QCOMPARE(texts.errors, QStringLiteral("4294967295"));

    const NetTexts blank = netTexts(NetRec());
    QCOMPARE(blank.address, QStringLiteral("0.0.0.0")); // an interface without an address
    QCOMPARE(blank.mask, QStringLiteral("0.0.0.0"));
    QCOMPARE(blank.in, QStringLiteral("0.00 B"));
    QCOMPARE(blank.errors, QStringLiteral("0"));
}

void TestNetDevices::theLoopbackInterfaceOfThisMachineIsListed()
{
    if (if_nametoindex("lo") == 0) {
        QSKIP("this machine has no loopback interface");
    }
    const NetRec lo = loopback();
    QCOMPARE(lo.name, QStringLiteral("lo"));
    QCOMPARE(dottedAddress(lo.address), QStringLiteral("127.0.0.1"));
    QCOMPARE(dottedAddress(lo.subnet), QStringLiteral("255.0.0.0"));
}

void TestNetDevices::trafficOverTheLoopbackInterfaceIsCounted()
{
    const QByteArray bytes(50000, 'x');
    const NetRec before = loopback();
    if (!sendOverLoopback(bytes)) {
        QSKIP("nothing can be sent over the loopback interface of this machine");
    }
    const NetRec after = loopback();
    QVERIFY(counterDelta(after.bytesOut, before.bytesOut) >= 50000);
    QVERIFY(counterDelta(after.bytesIn, before.bytesIn) >= 50000);
}

void TestNetDevices::collectingLeavesNoDescriptorOpen()
{
    collectNetDevices(); // libgtop opens what it keeps
    const int before = openDescriptors();
    for (int i = 0; i < 50; ++i) {
        collectNetDevices();
    }
    QCOMPARE(openDescriptors(), before);
}

QTEST_APPLESS_MAIN(TestNetDevices)

#include "test_netdevices.moc"
