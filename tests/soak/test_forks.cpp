// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "resources.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <set>

namespace {

std::set<int> runningPids()
{
    std::set<int> pids;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &name : names) {
        if (const int pid = name.toInt()) {
            pids.insert(pid);
        }
    }
    return pids;
}

void collectPids(const QAbstractItemModel &model, const QModelIndex &parent, std::multiset<int> &pids)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        pids.insert(static_cast<const ProxyProcModel &>(model).processAt(index).pid());
        collectPids(model, index, pids);
    }
}

/// Two hundred real processes a second, as long as it lives or until ended.
class Forks
{
public:
    Forks() { forker.start(QStringLiteral(ZSM_FORKER), {QStringLiteral("200")}); }
    /// How many there were; -1 if the forker failed.
    int end()
    {
        forker.closeWriteChannel();
        const bool ended = forker.waitForFinished() && forker.exitCode() == 0;
        return ended ? forker.readAllStandardOutput().trimmed().toInt() : -1;
    }

private:
    QProcess forker;
};

} // namespace

// The real machine with processes that come and go faster than the list is read.
class TestForks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListStandsThemAndAgreesAfterwards();

private:
    ProxyProcModel *list()
    {
        return qobject_cast<ProxyProcModel *>(Fixture::find<QTreeView>("treeView")->model());
    }
    void refresh() { QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true)); }
    void show(bool flat);
    int refreshFor(int milliseconds, int pause);
    void underLoad(int milliseconds, int &forked, int &refreshes);
    QStringList wronglyListed(bool flat);

    std::unique_ptr<Fixture> fixture;
};

void TestForks::show(bool flat)
{
    Fixture::choosePage(1);
    list()->setProcessTypes(gtop_wrappers::AllProcesses);
    list()->setFlat(flat);
    refresh();
}

int TestForks::refreshFor(int milliseconds, int pause)
{
    int refreshes = 0;
    for (const QDeadlineTimer end(milliseconds); !end.hasExpired(); ++refreshes) {
        refresh();
        QTest::qWait(pause);
    }
    return refreshes;
}

// Flat and as a tree, each second and as fast as it goes. Counts processes, -1 if they can't be made, and
// refreshes.
void TestForks::underLoad(int milliseconds, int &forked, int &refreshes)
{
    Forks forks;
    refreshes = 0;
    for (const bool flat : {true, false}) {
        show(flat);
        for (const int pause : {1000, 10}) {
            refreshes += refreshFor(milliseconds / 4, pause);
        }
    }
    forked = forks.end();
}

// Others come and go between the two looks at the machine: who is there both times is listed once, and nobody
// who is there neither time. A tree is meant to lose branches where a process is new, so there only what it
// shows counts.
QStringList TestForks::wronglyListed(bool flat)
{
    list()->setFlat(flat);
    const std::set<int> before = runningPids();
    refresh();
    const std::set<int> after = runningPids();
    std::multiset<int> listed;
    collectPids(*list(), QModelIndex(), listed);
    QStringList wrong;
    for (const int pid : before) {
        const auto times = listed.count(pid);
        if (after.count(pid) == 1 && times != 1 && (flat || times > 1)) {
            wrong << QStringLiteral("%1 is listed %2 times").arg(pid).arg(times);
        }
    }
    for (const int pid : listed) {
        if (before.count(pid) == 0 && after.count(pid) == 0) {
            wrong << QStringLiteral("%1 is no process").arg(pid);
        }
    }
    return wrong;
}

// ZSM_SOAK_SECONDS sets how long.
void TestForks::theListStandsThemAndAgreesAfterwards()
{
    const int seconds =
        qEnvironmentVariableIsSet("ZSM_SOAK_SECONDS") ? qEnvironmentVariableIntValue("ZSM_SOAK_SECONDS") : 2;
    constexpr long allowedBytes = 65536;
    constexpr long allowedBytesPerProcess = 32;
    const LoggedMessages messages;
    fixture = std::make_unique<Fixture>();
    standin::machine() = {};
    fixture->start(1);
    int forked = 0;
    int refreshes = 0;
    underLoad(1000, forked, refreshes);
    QVERIFY(forked > 0);
    const Resources before = settled(*fixture);
    underLoad(seconds * 1000, forked, refreshes);
    const Resources after = settled(*fixture);
    qInfo("%d processes in %d seconds, %d refreshes; before %s; after %s; peak %ld KiB", forked, seconds,
          refreshes, qPrintable(before.text()), qPrintable(after.text()), Resources::peakKiB());
    QVERIFY(forked > 0);
    QVERIFY(refreshes > 0);
    for (const bool flat : {true, false}) {
        // Somebody else's process may come and go within one look.
        QStringList wrong;
        const bool agrees = QTest::qWaitFor([&] { return (wrong = wronglyListed(flat)).isEmpty(); });
        QVERIFY2(agrees, qPrintable(wrong.join(QLatin1Char('\n'))));
    }
    QCOMPARE(after.descriptors, before.descriptors);
    QVERIFY(after.allocated <= before.allocated + allowedBytes + allowedBytesPerProcess * forked);
    QCOMPARE(messages.text(), QString());
}

QTEST_MAIN(TestForks)
#include "test_forks.moc"
