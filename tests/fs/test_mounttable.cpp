// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest>

#include <glib.h>
#include <glibtop/close.h>
#include <glibtop/mountlist.h>

#include <mntent.h>
#include <sched.h>
#include <sys/mount.h>

/// With an empty /etc, in a namespace of this program.
class TestMountTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("tmpfs", "/etc", "tmpfs", 0, nullptr) != 0) {
            QSKIP(qPrintable("no permission for a mount namespace: " + qt_error_string()));
        }
        QVERIFY(!QFile::exists(MOUNTED));
    }

    void libgtopReadsTheKernelsTableWithoutMtab()
    {
        QFile kernel("/proc/self/mounts");
        QVERIFY(kernel.open(QIODevice::ReadOnly));
        glibtop_mountlist list{};
        glibtop_mountentry *mounts = glibtop_get_mountlist(&list, 1);
        QVERIFY(mounts);
        QCOMPARE(int(list.number), kernel.readAll().count('\n'));
        QCOMPARE(mounts[list.number - 1].mountdir, "/etc");
        g_free(mounts);
        glibtop_close();
    }

    void anyOtherMissingFileIsMissing()
    {
        QVERIFY(!setmntent("/etc/fstab", "r"));
        QCOMPARE(errno, ENOENT);
    }
};

QTEST_APPLESS_MAIN(TestMountTable)
#include "test_mounttable.moc"
