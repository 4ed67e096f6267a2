// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "fs/fsdetails.h"

#include "mounts.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr qint32 lowest = std::numeric_limits<qint32>::min();
constexpr qint32 highest = std::numeric_limits<qint32>::max();

FSInfo blocks(qint32 total, qint32 free, qint32 avail, qint32 blockSize)
{
    return {{}, {}, {}, total, free, avail, 0, blockSize};
}

} // namespace

Q_DECLARE_METATYPE(FSInfo)

class TestFsDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void detailsComeFromTheRecord_data()
    {
        // The texts: device, type; total, used and available size.
        const Rows<FSInfo, double, QString> row("info", "percentAvailable", "texts");
        row("names", mount("/dev/sda1", "/home"), 30.0, "/dev/sda1, ext4; 3.91 MB, 2.73 MB, 1.17 MB");
        row("the reserve counts as used", blocks(1024, 1000, 256, 1024), 25.0,
            ", ; 1.00 MB, 768.00 KB, 256.00 KB");
        row("a fraction of a percent", blocks(3, 0, 1, 1), 100.0 / 3.0, ", ; 3.00 B, 2.00 B, 1.00 B");
        row("all available", blocks(3, 0, 3, 1), 100.0, ", ; 3.00 B, 0.00 B, 3.00 B");
        row("none available", blocks(3, 0, 0, 1), 0.0, ", ; 3.00 B, 3.00 B, 0.00 B");
        row("an empty record", FSInfo(), notANumber, ", ; 0.00 B, 0.00 B, 0.00 B");
        row("available blocks without any blocks", blocks(0, 0, 5, 0), notANumber,
            ", ; 0.00 B, 0.00 B, 0.00 B");
        row("wrapped counts stay signed", blocks(-2, 0, 1, 4096), -50.0,
            ", ; -8192.00 B, -12288.00 B, 4.00 KB");
        row("the difference wraps to positive", blocks(lowest, 0, 1, 1), 100.0 / lowest,
            ", ; -2147483648.00 B, 2.00 GB, 1.00 B");
        row("the difference wraps to negative", blocks(highest, 0, -1, 1), -100.0 / highest,
            ", ; 2.00 GB, -2147483648.00 B, -1.00 B");
    }

    void detailsComeFromTheRecord()
    {
        QFETCH(FSInfo, info);
        const FsDetails details = fsDetails(info);
        const QString names = QStringList{details.device, details.type}.join(", ");
        const QString sizes = QStringList{details.total, details.used, details.avail}.join(", ");
        QTEST(details.percentAvailable, "percentAvailable");
        QTEST(names + "; " + sizes, "texts");
    }

    void whatNeverAnsweredHasNoFigures()
    {
        FSInfo info = mount("files:/home", "/home", "nfs4");
        info.blocks = 0;
        info.answers = false;
        const FsDetails details = fsDetails(info);
        QVERIFY(std::isnan(details.percentAvailable));
        QCOMPARE(details.device, QString("files:/home"));
        QCOMPARE(details.type, QString("nfs4"));
        QCOMPARE(details.total, QString("No answer"));
        QCOMPARE(details.used + details.avail, QString());
    }

    void namesAreHarmlessLines()
    {
        const FsDetails details = fsDetails(mount("a\nb\u202ec", "/", "fuse.\x1b[1m"));
        QCOMPARE(details.device, QString("a b\ufffdc"));
        QCOMPARE(details.type, QString("fuse.\ufffd[1m"));
    }
};

QTEST_APPLESS_MAIN(TestFsDetails)
#include "test_fsdetails.moc"
