// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include <QtTest>

#include <glibtop.h>
#include <glibtop/close.h>
#include <glibtop/fsusage.h>

namespace {

unsigned long kernelWhileUsageIsRead = 1;

} // namespace

/// Replaces libgtop's function and forwards to it.
extern "C" void glibtop_get_fsusage(glibtop_fsusage *usage, const char *mountDir)
{
    kernelWhileUsageIsRead = glibtop_global_server->os_version_code;
    glibtop_get_fsusage_l(glibtop_global_server, usage, mountDir);
}

class TestLiveMounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { glibtop_init(); }
    void cleanupTestCase() { glibtop_close(); }
    void everyMountOfThisMachineHasAMountPointAndBlocks()
    {
        const std::list<FSInfo> mounts = collectMountList();
        if (mounts.empty()) {
            QSKIP("no file system with blocks is mounted here");
        }
        for (const FSInfo &info : mounts) {
            QVERIFY(info.mountDir.startsWith(QLatin1Char('/')));
            QVERIFY(info.type != QLatin1String("tmpfs"));
            QVERIFY(info.blocks != 0);
            QVERIFY(info.blockSize != 0);
        }
    }

    void libgtopDoesNotRescanTheMountTablePerMount()
    {
        const unsigned long kernel = glibtop_global_server->os_version_code;
        QVERIFY(kernel != 0);
        collectMountList();
        if (kernelWhileUsageIsRead == 1) {
            QSKIP("nothing is mounted here");
        }
        QCOMPARE(kernelWhileUsageIsRead, 0UL);
        QCOMPARE(glibtop_global_server->os_version_code, kernel);
    }
};

QTEST_APPLESS_MAIN(TestLiveMounts)
#include "test_livemounts.moc"
