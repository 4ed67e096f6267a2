// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/mountlist.h"

#include <QtTest>

#include <glibtop.h>
#include <glibtop/close.h>

class TestLiveMounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { glibtop_init(); }
    void cleanupTestCase() { glibtop_close(); }
    void everyMountOfThisMachineHasAPlaceAndBlocks();
};

void TestLiveMounts::everyMountOfThisMachineHasAPlaceAndBlocks()
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

QTEST_APPLESS_MAIN(TestLiveMounts)
#include "test_livemounts.moc"
