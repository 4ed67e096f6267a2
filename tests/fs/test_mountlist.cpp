// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include <QtTest>

#include <limits>

namespace {

constexpr quint64 twoTo31 = Q_UINT64_C(1) << 31;
constexpr quint64 twoTo32 = Q_UINT64_C(1) << 32;

MountEntry entry(const std::string &type, quint64 blocks)
{
    MountEntry made;
    made.devname = "/dev/sda1";
    made.mountdir = "/mnt";
    made.type = type;
    made.blocks = blocks;
    made.blockSize = 4096;
    return made;
}

} // namespace

class TestMountList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyRecordHasEmptyNamesAndNoCounts();
    void aRecordTakesAllFieldsOfTheEntry();
    void countsKeepTheirLow32BitsReadAsSigned();
    void theStoredBlockCountAndTheExactTypeDecide_data();
    void theStoredBlockCountAndTheExactTypeDecide();
    void pseudoAndMemoryFileSystemsAloneLeaveNothing();
    void noEntriesGiveNoRecords();
    void theSameDeviceTwiceGivesTwoRecordsInOrder();
    void bytesThatAreNotUtf8BecomeReplacementCharacters();
    void tenThousandEntriesKeepTheirOrder();
};

void TestMountList::anEmptyRecordHasEmptyNamesAndNoCounts()
{
    const FSInfo info;
    QVERIFY(info.device.isEmpty() && info.mountDir.isEmpty() && info.type.isEmpty());
    QVERIFY(info.blocks == 0 && info.freeBlocks == 0 && info.availBlocks == 0);
    QVERIFY(info.files == 0 && info.blockSize == 0);
}

void TestMountList::aRecordTakesAllFieldsOfTheEntry()
{
    const FSInfo info = toFSInfo({"/dev/sdb2", "/srv/d\xc3\xa4ta", "xfs", 11, 12, 13, 14, 15});
    QCOMPARE(info.device, QStringLiteral("/dev/sdb2"));
    QCOMPARE(info.mountDir, QStringLiteral("/srv/d\u00e4ta"));
    QCOMPARE(info.type, QStringLiteral("xfs"));
    QCOMPARE(info.blocks, 11);
    QCOMPARE(info.freeBlocks, 12);
    QCOMPARE(info.availBlocks, 13);
    QCOMPARE(info.files, 14);
    QCOMPARE(info.blockSize, 15);
}

void TestMountList::countsKeepTheirLow32BitsReadAsSigned()
{
    const quint64 highest = std::numeric_limits<quint64>::max();
    const FSInfo info = toFSInfo({"", "", "", twoTo31, twoTo32 + 7, highest, 3 * twoTo32, 0x80000000U});
    QCOMPARE(info.blocks, std::numeric_limits<qint32>::min());
    QCOMPARE(info.freeBlocks, 7);
    QCOMPARE(info.availBlocks, -1);
    QCOMPARE(info.files, 0);
    QCOMPARE(info.blockSize, std::numeric_limits<qint32>::min());
}

void TestMountList::theStoredBlockCountAndTheExactTypeDecide_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<qulonglong>("blocks");
    QTest::addColumn<bool>("kept");
    const auto row = [](const char *title, const char *type, qulonglong blocks, bool kept) {
        QTest::newRow(title) << QByteArray(type) << blocks << kept;
    };
    row("an ordinary disk", "ext4", 1000, true);
    row("one block", "ext4", 1, true);
    row("no blocks", "proc", 0, false);
    row("memory by name", "tmpfs", 1000, false);
    row("memory in capitals", "TMPFS", 1000, true);
    row("a longer name", "tmpfs2", 1000, true);
    row("a name that ends so", "devtmpfs", 1000, true);
    row("no name", "", 1000, true);
    row("2^31 blocks", "xfs", twoTo31, true);
    row("2^32 - 1 blocks", "xfs", twoTo32 - 1, true);
    row("2^32 blocks", "xfs", twoTo32, false);
    row("2^32 + 1 blocks", "xfs", twoTo32 + 1, true);
    row("3 * 2^32 blocks", "xfs", 3 * twoTo32, false);
}

void TestMountList::theStoredBlockCountAndTheExactTypeDecide()
{
    QFETCH(QByteArray, type);
    QFETCH(qulonglong, blocks);
    QFETCH(bool, kept);
    QCOMPARE(reduceMounts({entry(type.toStdString(), blocks)}).size(), std::size_t{kept ? 1U : 0U});
}

void TestMountList::pseudoAndMemoryFileSystemsAloneLeaveNothing()
{
    QVERIFY(reduceMounts({entry("tmpfs", 500), entry("proc", 0), entry("sysfs", 0)}).empty());
}

void TestMountList::noEntriesGiveNoRecords()
{
    QVERIFY(reduceMounts({}).empty());
}

void TestMountList::theSameDeviceTwiceGivesTwoRecordsInOrder()
{
    std::vector<MountEntry> entries(2, entry("ext4", 10));
    entries[0].mountdir = "/z";
    entries[1].mountdir = "/a";
    const std::list<FSInfo> mounts = reduceMounts(entries);
    QCOMPARE(mounts.size(), std::size_t{2});
    QCOMPARE(mounts.front().mountDir, QStringLiteral("/z"));
    QCOMPARE(mounts.back().mountDir, QStringLiteral("/a"));
    QCOMPARE(mounts.front().device, mounts.back().device);
}

void TestMountList::bytesThatAreNotUtf8BecomeReplacementCharacters()
{
    const FSInfo info = toFSInfo({"/dev/\xff", "/a\xc3", "\xfe", 1, 0, 0, 0, 1});
    QCOMPARE(info.device, QStringLiteral("/dev/\ufffd"));
    QCOMPARE(info.mountDir, QStringLiteral("/a\ufffd"));
    QCOMPARE(info.type, QStringLiteral("\ufffd"));
}

void TestMountList::tenThousandEntriesKeepTheirOrder()
{
    std::vector<MountEntry> entries(10000, entry("ext4", 1));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].bavail = i;
    }
    const std::list<FSInfo> mounts = reduceMounts(entries);
    QCOMPARE(mounts.size(), entries.size());
    qint32 expected = 0;
    for (const FSInfo &info : mounts) {
        QCOMPARE(info.availBlocks, expected);
        ++expected;
    }
}

QTEST_APPLESS_MAIN(TestMountList)
#include "test_mountlist.moc"
