// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/filler.h"
#include "support.h"

#include <QtTest>
#include <QtWidgets>

#include <set>

namespace {

std::set<int> runningPids()
{
    std::set<int> pids;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (const int pid = name.toInt()) {
            pids.insert(pid);
        }
    }
    return pids;
}

void collectPids(const ProxyProcModel &model, const QModelIndex &parent, std::multiset<int> &pids)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        pids.insert(model.processAt(index).pid());
        collectPids(model, index, pids);
    }
}

struct Load
{
    int forked = -1; ///< processes forked; -1 if the forker failed
    int refreshes = 0;
};

} // namespace

/// The real machine, with processes that start and exit faster than the list is read.
class TestForks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// ZSM_SOAK_SECONDS sets the length of the run.
    void twoHundredForksASecondLeakNothingAndTheListAgreesAfterwards()
    {
        const int seconds = runSize("ZSM_SOAK_SECONDS", 2);
        constexpr long allowedBytes = 65536;
        constexpr long allowedBytesPerProcess = 32;
        const LoggedMessages messages;
        standin::machine() = {};
        fixture.start(1);
        QVERIFY(refreshUnderLoad(1000).forked > 0);
        const Resources before = settledResources(fixture);
        const Load load = refreshUnderLoad(seconds * 1000);
        const Resources after = settledResources(fixture);
        qInfo("%d processes in %d seconds, %d refreshes; before %s; after %s; peak %ld KiB", load.forked,
              seconds, load.refreshes, qPrintable(before.text()), qPrintable(after.text()),
              Resources::peakKiB());
        QVERIFY(load.forked > 0);
        QVERIFY(load.refreshes > 0);
        for (bool flat : {true, false}) {
            QStringList wrong; // retried: an unrelated process can start and exit within one comparison
            const bool agrees = QTest::qWaitFor([&] { return (wrong = wronglyListed(flat)).isEmpty(); });
            QVERIFY2(agrees, qPrintable(wrong.join(QLatin1Char('\n'))));
        }
        QCOMPARE(after.descriptors, before.descriptors);
        QVERIFY(after.allocated <= before.allocated + allowedBytes + allowedBytesPerProcess * load.forked);
        QCOMPARE(messages.text(), QString());
    }

private:
    /// Refreshes the list and the tree, each once a second and then as fast as it can.
    Load refreshUnderLoad(int milliseconds)
    {
        QProcess forker;
        forker.start(QStringLiteral(ZSM_FORKER), {QStringLiteral("200")});
        Load load;
        for (bool flat : {true, false}) {
            Fixture::choosePage(1);
            processList()->setProcessTypes(gtop_wrappers::AllProcesses);
            processList()->setFlat(flat);
            refresh(fixture);
            for (int pause : {1000, 10}) {
                for (const QDeadlineTimer end(milliseconds / 4); !end.hasExpired(); ++load.refreshes) {
                    refresh(fixture);
                    QTest::qWait(pause);
                }
            }
        }
        forker.closeWriteChannel();
        if (forker.waitForFinished() && forker.exitCode() == 0) {
            load.forked = forker.readAllStandardOutput().trimmed().toInt();
        }
        return load;
    }

    /// Compares the list with /proc before and after a refresh: a process present both times is listed once,
    /// one absent both times is not listed. Intentional: the tree may lack branches where a process is new,
    /// so there only the rows that it shows are checked.
    QStringList wronglyListed(bool flat)
    {
        processList()->setFlat(flat);
        const std::set<int> before = runningPids();
        refresh(fixture);
        const std::set<int> after = runningPids();
        std::multiset<int> listed;
        collectPids(*processList(), QModelIndex(), listed);
        QStringList wrong;
        for (int pid : before) {
            const auto times = listed.count(pid);
            if (after.count(pid) == 1 && times != 1 && (flat || times > 1)) {
                wrong << QStringLiteral("%1 is listed %2 times").arg(pid).arg(times);
            }
        }
        for (int pid : listed) {
            if (before.count(pid) == 0 && after.count(pid) == 0) {
                wrong << QStringLiteral("%1 is no process").arg(pid);
            }
        }
        return wrong;
    }

    Fixture fixture;
};

QTEST_MAIN(TestForks)
#include "test_forks.moc"
