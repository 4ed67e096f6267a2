// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_RESOURCES_H
#define TESTS_SOAK_RESOURCES_H

#include "tests/app/fixture.h"

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

/// What this process holds.
struct Resources
{
    int descriptors;
    long allocated; ///< bytes of the heap; 0 where the sanitizer has its own allocator
    long residentKiB;

    static Resources now()
    {
        const QDir open(QStringLiteral("/proc/self/fd"));
        QFile statm(QStringLiteral("/proc/self/statm"));
        const QByteArray pages = statm.open(QIODevice::ReadOnly) ? statm.readAll() : QByteArray();
        const long page = sysconf(_SC_PAGESIZE);
        return {static_cast<int>(open.entryList(QDir::Files | QDir::System).size()),
                static_cast<long>(mallinfo2().uordblks), pages.split(' ').value(1).toLong() * page / 1024};
    }
    static long peakKiB()
    {
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    }
    QString text() const
    {
        return QStringLiteral("%1 descriptors, %2 bytes allocated, %3 KiB resident")
            .arg(descriptors)
            .arg(allocated)
            .arg(residentKiB);
    }
};

/// On a machine that is always the same: the real one's processes come and go, and their rows with them. The
/// program goes on with the real one.
inline Resources settled(Fixture &fixture)
{
    standin::machine() = Fixture::smallMachine();
    for (int page = 3; page >= 0; --page) {
        Fixture::choosePage(page);
        QMetaObject::invokeMethod(&fixture.updater(), "update", Q_ARG(bool, true));
        QCoreApplication::processEvents();
    }
    const Resources now = Resources::now();
    standin::machine() = {};
    return now;
}

#endif
