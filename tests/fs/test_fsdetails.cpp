// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsdetails.h"

#include "mounts.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestFsDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesComeFromTheRecord();
    void theShareIsThatOfTheAvailableBlocks();
    void theReserveCountsAsUsed();
    void anEmptyRecordShowsNoSizesAndNoShare();
    void availableBlocksWithoutAnyBlocksAreNoShare();
    void wrappedCountsStaySigned();
    void theDifferenceOfCountsWrapsAt32Bits();
};

void TestFsDetails::namesComeFromTheRecord()
{
    const FsDetails details = fsDetails(mount(QStringLiteral("/dev/sda1"), QStringLiteral("/home")));
    QCOMPARE(details.device, QStringLiteral("/dev/sda1"));
    QCOMPARE(details.type, QStringLiteral("ext4"));
}

void TestFsDetails::theShareIsThatOfTheAvailableBlocks()
{
    FSInfo info;
    info.blocks = 3;
    info.availBlocks = 1;
    QCOMPARE(fsDetails(info).percentAvailable, 100.0 / 3.0);
    info.availBlocks = 3;
    QCOMPARE(fsDetails(info).percentAvailable, 100.0);
    info.availBlocks = 0;
    QCOMPARE(fsDetails(info).percentAvailable, 0.0);
}

void TestFsDetails::theReserveCountsAsUsed()
{
    FSInfo info;
    info.blocks = 1024;
    info.freeBlocks = 1000;
    info.availBlocks = 256;
    info.blockSize = 1024;
    const FsDetails details = fsDetails(info);
    QCOMPARE(details.total, QStringLiteral("1.00 MB"));
    QCOMPARE(details.used, QStringLiteral("768.00 KB"));
    QCOMPARE(details.avail, QStringLiteral("256.00 KB"));
}

void TestFsDetails::anEmptyRecordShowsNoSizesAndNoShare()
{
    const FsDetails details = fsDetails(FSInfo());
    QVERIFY(std::isnan(details.percentAvailable));
    QVERIFY(details.device.isEmpty() && details.type.isEmpty());
    QCOMPARE(details.total, QStringLiteral("0.00 B"));
    QCOMPARE(details.used, QStringLiteral("0.00 B"));
    QCOMPARE(details.avail, QStringLiteral("0.00 B"));
}

void TestFsDetails::availableBlocksWithoutAnyBlocksAreNoShare()
{
    FSInfo info;
    info.availBlocks = 5;
    QVERIFY(!std::isfinite(fsDetails(info).percentAvailable));
}

void TestFsDetails::wrappedCountsStaySigned()
{
    FSInfo info;
    info.blocks = -2;
    info.availBlocks = 1;
    info.blockSize = 4096;
    const FsDetails details = fsDetails(info);
    QCOMPARE(details.percentAvailable, -50.0);
    QCOMPARE(details.total, QStringLiteral("-8192.00 B"));
    QCOMPARE(details.used, QStringLiteral("-12288.00 B"));
    QCOMPARE(details.avail, QStringLiteral("4.00 KB"));
}

void TestFsDetails::theDifferenceOfCountsWrapsAt32Bits()
{
    FSInfo info;
    info.blocks = std::numeric_limits<qint32>::min();
    info.availBlocks = 1;
    info.blockSize = 1;
    QCOMPARE(fsDetails(info).used, QStringLiteral("2.00 GB"));
    info.blocks = std::numeric_limits<qint32>::max();
    info.availBlocks = -1;
    QCOMPARE(fsDetails(info).used, QStringLiteral("-2147483648.00 B"));
}

QTEST_APPLESS_MAIN(TestFsDetails)
#include "test_fsdetails.moc"
