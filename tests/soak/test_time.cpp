// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/fixture.h"

#include <QtTest>
#include <QtWidgets>

#include <malloc.h>
#include <unistd.h>

#include <cstdio>

namespace {

int openDescriptors()
{
    return static_cast<int>(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

long residentKiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    file.open(QIODevice::ReadOnly);
    return file.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE) / 1024;
}

// 0 where the sanitizer has its own allocator.
long allocatedKiB()
{
    return static_cast<long>(mallinfo2().uordblks / 1024);
}

} // namespace

// The real machine, all pages, as fast as it goes.
class TestTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void descriptorsAndMemoryStayWhereTheyWere();
};

// ZSM_SOAK_TICKS sets how many ticks.
void TestTime::descriptorsAndMemoryStayWhereTheyWere()
{
    const int ticks =
        qEnvironmentVariableIsSet("ZSM_SOAK_TICKS") ? qEnvironmentVariableIntValue("ZSM_SOAK_TICKS") : 500;
    constexpr int warmUp = 100;
    constexpr long allowedKiB = 1024; // the machine's own processes come and go meanwhile
    Fixture fixture;
    standin::machine() = {};
    fixture.start(0);
    int descriptors = 0;
    long allocated = 0;
    long resident = 0;
    for (int i = 0; i < ticks; ++i) {
        if (i == warmUp) {
            descriptors = openDescriptors();
            allocated = allocatedKiB();
            resident = residentKiB();
        }
        if (i % 5 == 0) {
            Fixture::choosePage(i / 5 % 4);
        }
        QMetaObject::invokeMethod(&fixture.updater(), "update");
        QCoreApplication::processEvents();
    }
    Fixture::choosePage((warmUp - 1) / 5 % 4);
    QCoreApplication::processEvents();
    qInfo("%d ticks: descriptors %d -> %d, allocated %ld -> %ld KiB, resident %ld -> %ld KiB", ticks,
          descriptors, openDescriptors(), allocated, allocatedKiB(), resident, residentKiB());
    QCOMPARE(openDescriptors(), descriptors);
    QVERIFY(allocatedKiB() <= allocated + allowedKiB);
}

QTEST_MAIN(TestTime)
#include "test_time.moc"
