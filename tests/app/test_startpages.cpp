// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpages.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

/// Kilobytes of the memory that is mapped from files, read-only, and present.
int presentReadOnlyKilobytes()
{
    QFile file(QStringLiteral("/proc/self/smaps"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QRegularExpression mapping(QStringLiteral("^[0-9a-f]+-[0-9a-f]+ r-.p .* (/.+\\.so[^ ]*)$"));
    const QRegularExpression anyMapping(QStringLiteral("^[0-9a-f]+-[0-9a-f]+ "));
    int sum = 0;
    bool counts = false;
    const QStringList lines = QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (anyMapping.match(line).hasMatch()) {
            counts = mapping.match(line).hasMatch();
        } else if (counts && line.startsWith(QLatin1String("Rss:"))) {
            sum += line.split(QLatin1Char(' '), Qt::SkipEmptyParts).at(1).toInt();
        }
    }
    return sum;
}

} // namespace

class TestStartPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void releasedPagesComeBackOnlyWhenTheyAreUsed()
    {
        const int before = presentReadOnlyKilobytes();
        QVERIFY(before > 0);
        releaseReadOnlyPages();
        const int after = presentReadOnlyKilobytes();
        QVERIFY2(after < before * 3 / 4, qPrintable(QStringLiteral("%1 KB, then %2").arg(before).arg(after)));
    }
};

QTEST_MAIN(TestStartPages)
#include "test_startpages.moc"
