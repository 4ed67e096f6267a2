// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "fs/mountlist.h"

#include "mounts.h"

#include <QtTest>

#include <limits>

namespace {

constexpr qint32 lowest = std::numeric_limits<qint32>::min();
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

Q_DECLARE_METATYPE(MountEntry)

class TestMountList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreConverted_data()
    {
        const Rows<MountEntry, QString, QVector<qint32>> row("entry", "names", "counts");
        row("all fields", {"/dev/sdb2", "/srv/d\xc3\xa4ta", "xfs", 11, 12, 13, 14, 15},
            QStringLiteral("/dev/sdb2, /srv/d\u00e4ta, xfs"), {11, 12, 13, 14, 15});
        row("the low 32 bits of the counts are read as signed",
            {"", "", "", twoTo31, twoTo32 + 7, std::numeric_limits<quint64>::max(), 3 * twoTo32, 0x80000000U},
            ", , ", {lowest, 7, -1, 0, lowest});
        row("invalid UTF-8 is replaced", {"/dev/\xff", "/a\xc3", "\xfe", 1, 0, 0, 0, 1},
            QStringLiteral("/dev/\ufffd, /a\ufffd, \ufffd"), {1, 0, 0, 0, 1});
    }

    void entriesAreConverted()
    {
        QFETCH(MountEntry, entry);
        QTEST(namesOf(toFSInfo(entry)), "names");
        QTEST(countsOf(toFSInfo(entry)), "counts");
    }

    void anEmptyRecordHasNoNamesAndZeroCounts()
    {
        QCOMPARE(namesOf(FSInfo()), QString(", , "));
        QCOMPARE(countsOf(FSInfo()), QVector<qint32>(5, 0));
    }

    void theStoredBlockCountAndTheExactTypeDecide_data()
    {
        const Rows<QByteArray, qulonglong, bool> row("type", "blocks", "kept");
        row("an ordinary disk", "ext4", 1000, true);
        row("one block", "ext4", 1, true);
        row("no blocks", "proc", 0, false);
        row("memory file system by name", "tmpfs", 1000, false);
        row("in capitals", "TMPFS", 1000, true);
        row("a longer name", "tmpfs2", 1000, true);
        row("a name with that ending", "devtmpfs", 1000, true);
        row("no name", "", 1000, true);
        row("2^31 blocks", "xfs", twoTo31, true);
        row("2^32 - 1 blocks", "xfs", twoTo32 - 1, true);
        row("2^32 blocks", "xfs", twoTo32, false);
        row("2^32 + 1 blocks", "xfs", twoTo32 + 1, true);
        row("3 * 2^32 blocks", "xfs", 3 * twoTo32, false);
    }

    void theStoredBlockCountAndTheExactTypeDecide()
    {
        QFETCH(QByteArray, type);
        QFETCH(qulonglong, blocks);
        QFETCH(bool, kept);
        QCOMPARE(reduceMounts({entry(type.toStdString(), blocks)}).size(), std::size_t{kept ? 1U : 0U});
    }

    void whatNeverAnsweredIsKeptUnlessItIsATmpfs()
    {
        MountEntry silent = entry("nfs4", 0);
        silent.answers = false;
        MountEntry memory = entry("tmpfs", 0);
        memory.answers = false;
        const std::list<FSInfo> mounts = reduceMounts({silent, memory, entry("nfs4", 0)});
        QCOMPARE(mounts.size(), std::size_t{1});
        QVERIFY(!mounts.front().answers);
        QVERIFY(toFSInfo(entry("nfs4", 1)).answers);
    }

    void nothingIsLeftOfPseudoAndMemoryFileSystemsAlone()
    {
        QVERIFY(reduceMounts({entry("tmpfs", 500), entry("proc", 0), entry("sysfs", 0)}).empty());
        QVERIFY(reduceMounts({}).empty());
    }

    void theSameDeviceTwiceGivesTwoRecordsInOrder()
    {
        std::vector<MountEntry> entries(2, entry("ext4", 10));
        entries[0].mountdir = "/z";
        entries[1].mountdir = "/a";
        const std::list<FSInfo> mounts = reduceMounts(entries);
        QCOMPARE(mounts.size(), std::size_t{2});
        QCOMPARE(namesOf(mounts.front()), QString("/dev/sda1, /z, ext4"));
        QCOMPARE(namesOf(mounts.back()), QString("/dev/sda1, /a, ext4"));
    }

    void tenThousandEntriesKeepTheirOrder()
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
};

QTEST_APPLESS_MAIN(TestMountList)
#include "test_mountlist.moc"
