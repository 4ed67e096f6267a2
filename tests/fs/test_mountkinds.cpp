// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountkinds.h"

#include <QtTest>

namespace {

MountEntry mountOf(const std::string &mountdir, const std::string &type)
{
    MountEntry entry;
    entry.mountdir = mountdir;
    entry.type = type;
    return entry;
}

} // namespace

class TestMountKinds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatDependsOnOthersCanHang()
    {
        for (const char *type : {"nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "ceph", "glusterfs", "afs",
                                 "fuse", "fuseblk", "fuse.sshfs", "fuse.glusterfs", "sshfs", "virtiofs"}) {
            QVERIFY2(canHang(type), type);
        }
        for (const char *type : {"ext4", "xfs", "btrfs", "tmpfs", "proc", "overlay", "vfat", "iso9660",
                                 "autofs", "fusectl", "nfsd", "", "NFS"}) {
            QVERIFY2(!canHang(type), type);
        }
    }

    void theWayToAMountDecidesToo_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("query");
        const auto row = [](const char *name, const char *directory, const char *type, Query query) {
            QTest::newRow(name) << directory << type << static_cast<int>(query);
        };
        row("a disk", "/data", "ext4", Query::Direct);
        row("a network file system", "/other", "cifs", Query::InChild);
        row("an automount point", "/auto", "autofs", Query::None);
        row("an automount point below a network file system", "/home/auto", "autofs", Query::None);
        row("a disk below a network file system", "/home/me/disk", "ext4", Query::InChild);
        row("a disk at the same place", "/home", "ext4", Query::InChild);
        row("a longer name", "/home2", "ext4", Query::Direct);
        row("the root", "/", "ext4", Query::Direct);
        row("no name", "", "ext4", Query::Direct);
    }

    void theWayToAMountDecidesToo()
    {
        QFETCH(QString, directory);
        QFETCH(QString, type);
        const std::vector<Query> queries =
            queriesOf({mountOf(directory.toStdString(), type.toStdString()), mountOf("/home", "nfs4")});
        QCOMPARE(queries.size(), std::size_t{2});
        QTEST(static_cast<int>(queries.front()), "query");
        QVERIFY(queries.back() == Query::InChild);
    }

    void aRootThatCanHangDoesNotCountAsAWay()
    {
        QVERIFY((queriesOf({mountOf("/", "9p"), mountOf("/data", "ext4")}) ==
                 std::vector<Query>{Query::InChild, Query::Direct}));
    }

    void theServerIsThatOfTheDevice()
    {
        QCOMPARE(serverOf("files:/home"), std::string("files"));
        QCOMPARE(serverOf("[fe80::1]:/home"), std::string("[fe80::1]"));
        QCOMPARE(serverOf("me@files:/"), std::string("me@files"));
        QCOMPARE(serverOf("//files/share"), std::string("//files"));
        QCOMPARE(serverOf("//files"), std::string("//files"));
        QCOMPARE(serverOf("/dev/sda1"), std::string("/dev/sda1"));
        QCOMPARE(serverOf(""), std::string());
    }
};

QTEST_APPLESS_MAIN(TestMountKinds)
#include "test_mountkinds.moc"
