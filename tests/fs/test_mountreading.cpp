// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include "mounts.h"

#include <QtTest>

#include <glib.h>
#include <glibtop/fsusage.h>
#include <glibtop/mountlist.h>

#include <algorithm>
#include <cstring>

// The two functions below replace libgtop's: a program's own definition takes precedence over a library's.

namespace {

struct Machine
{
    bool hasList = true;
    std::vector<glibtop_mountentry> mounts;
    glibtop_fsusage usage{};
    std::vector<int> askedForAll;
    std::vector<std::string> askedForUsage;
};

Machine machine;

template <std::size_t size>
void fill(char (&bytes)[size], const std::string &name)
{
    std::memcpy(bytes, name.data(), std::min(size, name.size()));
}

glibtop_mountentry mountEntry(const std::string &devname, const std::string &mountdir,
                              const std::string &type)
{
    glibtop_mountentry entry{};
    fill(entry.devname, devname);
    fill(entry.mountdir, mountdir);
    fill(entry.type, type);
    return entry;
}

} // namespace

glibtop_mountentry *glibtop_get_mountlist(glibtop_mountlist *buf, int all_fs)
{
    machine.askedForAll.push_back(all_fs);
    buf->number = machine.mounts.size();
    if (!machine.hasList) {
        return nullptr;
    }
    // Exactly as long as the list, so that the sanitizer detects an overrun and a missing g_free.
    auto *entries = g_new(glibtop_mountentry, machine.mounts.size() + (machine.mounts.empty() ? 1 : 0));
    std::copy(machine.mounts.begin(), machine.mounts.end(), entries);
    return entries;
}

void glibtop_get_fsusage(glibtop_fsusage *buf, const char *mount_dir)
{
    machine.askedForUsage.emplace_back(mount_dir);
    *buf = machine.usage;
}

class TestMountReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        machine = Machine();
        machine.usage.blocks = 10;
        machine.usage.bfree = 9;
        machine.usage.bavail = 8;
        machine.usage.files = 7;
        machine.usage.ffree = 6;
        machine.usage.block_size = 512;
    }

    void cleanup()
    {
        machine = Machine();
        collectMountList(); // without mounts, the process that asks them ends
    }

    void allFileSystemsAreQueriedAndAMissingMountListGivesAnEmptyList()
    {
        QVERIFY(collectMountList().empty());
        QCOMPARE(machine.askedForAll, std::vector<int>{1});
        machine.mounts = {mountEntry("/dev/sda1", "/", "ext4")};
        machine.hasList = false;
        QVERIFY(collectMountList().empty());
        QVERIFY(machine.askedForUsage.empty());
    }

    void countsComeFromTheUsageOfTheMountPointInThisReading()
    {
        machine.mounts.assign(500, mountEntry("/dev/sda1", "/", "ext4"));
        QCOMPARE(collectMountList().size(), std::size_t{500});
        machine.mounts.resize(1);
        const std::list<FSInfo> mounts = collectMountList();
        QCOMPARE(mounts.size(), std::size_t{1});
        QCOMPARE(namesOf(mounts.front()), QString("/dev/sda1, /, ext4"));
        QCOMPARE(countsOf(mounts.front()), (QVector<qint32>{10, 9, 8, 7, 512}));
    }

    void usageIsQueriedInOrderByTheBytesOfTheMountPointButNotOfAnAutomountPoint()
    {
        machine.mounts = {mountEntry("a", "/b\xff", "ext4"), mountEntry("b", "/a", "tmpfs"),
                          mountEntry("/etc/auto.misc", "/misc", "autofs"),
                          mountEntry("c", "/c\xc3\xa9", "xfs")};
        QCOMPARE(collectMountList().size(), std::size_t{2});
        QCOMPARE(machine.askedForUsage, (std::vector<std::string>{"/b\xff", "/a", "/c\xc3\xa9"}));
    }

    void whatCanHangIsAskedByAnotherProcess()
    {
        machine.mounts = {mountEntry("files:/", "/home", "nfs4"),
                          mountEntry("/dev/loop0", "/home/disc", "udf"), mountEntry("a", "/a", "ext4")};
        std::list<FSInfo> mounts;
        const auto allAnswered = [&] {
            machine.askedForUsage.clear();
            mounts = collectMountList();
            return std::all_of(mounts.begin(), mounts.end(), [](const FSInfo &info) { return info.answers; });
        };
        QTRY_VERIFY(allAnswered());
        QCOMPARE(machine.askedForUsage, std::vector<std::string>{"/a"});
        QStringList names;
        for (const FSInfo &info : mounts) {
            names << info.mountDir;
            QCOMPARE(countsOf(info), (QVector<qint32>{10, 9, 8, 7, 512}));
        }
        QCOMPARE(names, QStringList({"/home", "/home/disc", "/a"}));
    }

    void theAnswerOfAnotherProcessIsJudgedLikeAnyOther()
    {
        machine.usage.blocks = Q_UINT64_C(1) << 32;
        machine.mounts = {mountEntry("files:/big", "/big", "nfs4")};
        QTRY_VERIFY(collectMountList().empty());
    }

    void aVanishedMountIsDropped()
    {
        machine.mounts = {mountEntry("/dev/sdb1", "/gone", "vfat")};
        machine.usage = glibtop_fsusage{};
        QVERIFY(collectMountList().empty());
    }

    void namesThatFillTheirArrayWithoutNulAreReadInFull()
    {
        constexpr std::size_t full = GLIBTOP_MOUNTENTRY_LEN + 1;
        machine.mounts = {
            mountEntry(std::string(full, 'd'), std::string(full, 'm'), std::string(full, 't')),
        };
        const std::list<FSInfo> mounts = collectMountList();
        QCOMPARE(mounts.size(), std::size_t{1});
        QCOMPARE(mounts.front().device, QString(int{full}, QLatin1Char('d')));
        QCOMPARE(mounts.front().mountDir, QString(int{full}, QLatin1Char('m')));
        QCOMPARE(mounts.front().type, QString(int{full}, QLatin1Char('t')));
        QCOMPARE(machine.askedForUsage, std::vector<std::string>{std::string(full, 'm')});
    }
};

QTEST_APPLESS_MAIN(TestMountReading)
#include "test_mountreading.moc"
