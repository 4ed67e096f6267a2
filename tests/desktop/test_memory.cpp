// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"

#include <QtTest>

#include <algorithm>

class TestMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatOnlyTheStartUsedOfFilesLeavesMemory()
    {
        DesktopSession session;
        QVERIFY(session.launch({"processes"}));
        int most = 0;
        QVERIFY(session.waitFor([&] {
            const int present = presentOfFiles(session.pid());
            most = std::max(most, present);
            return present > 0 && present < most * 2 / 3;
        }));
        QVERIFY(session.waitForWindow());
        QVERIFY(session.waitForTicks(4)); // a refresh among them
        QVERIFY(ProcessesPage(session).waitForRow(int(session.pid())));
        const int present = presentOfFiles(session.pid());
        QVERIFY2(present < most * 2 / 3, qPrintable(QString("%1 KB, then %2").arg(most).arg(present)));
        QVERIFY(session.clickTab("Network"));
        QVERIFY(session.clickTab("System"));
        QVERIFY(session.waitForTicks());
        QVERIFY(session.endsCleanly());
    }

private:
    /// Kilobytes of mapped files in a process's memory; 0 if it has exited.
    static int presentOfFiles(qint64 pid)
    {
        QFile file(QString("/proc/%1/status").arg(pid));
        const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const int value = status.indexOf("RssFile:") + 8;
        return status.mid(value, status.indexOf("kB", value) - value).trimmed().toInt();
    }
};

QTEST_GUILESS_MAIN(TestMemory)
#include "test_memory.moc"
