// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/systemfiles.h"

#include <QtTest>

#include <sched.h>
#include <sys/mount.h>

/// Which file of /proc is missing, in a mount namespace of its own.
class TestMissingFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            !coverProc()) {
            QSKIP("mount namespaces are not allowed here");
        }
        QVERIFY(uncoverProc());
    }

    void theFirstMissingFileIsNamed_data()
    {
        const Rows<QStringList, QByteArray, QByteArray> row("files", "forStart", "forRefresh");
        row("none", {}, "/proc/stat", "/proc/stat");
        row("no meminfo", {"stat", "cpuinfo"}, "/proc/meminfo", "/proc/meminfo");
        row("no cpuinfo", {"stat", "meminfo"}, "/proc/cpuinfo", {});
        row("all", {"stat", "meminfo", "cpuinfo"}, {}, {});
    }

    void theFirstMissingFileIsNamed()
    {
        QFETCH(QStringList, files);
        QVERIFY(coverProc());
        for (const QString &file : files) {
            QVERIFY(QFile("/proc/" + file).open(QIODevice::WriteOnly));
        }
        const QByteArray start = fileMissingForStart();
        const QByteArray refresh = fileMissingForRefresh();
        QVERIFY(uncoverProc());
        QTEST(start, "forStart");
        QTEST(refresh, "forRefresh");
    }

private:
    static bool coverProc() { return mount("none", "/proc", "tmpfs", 0, nullptr) == 0; }
    static bool uncoverProc() { return umount("/proc") == 0; }
};

QTEST_GUILESS_MAIN(TestMissingFiles)
#include "test_missingfiles.moc"
