// SPDX-License-Identifier: GPL-3.0-or-later
#include "support.h"

#include <QtTest>
#include <QtWidgets>

#include <fcntl.h>

namespace {

bool noneIsLeft()
{
    return open("/dev/null", O_RDONLY) == -1;
}

/// Lowers the limit on descriptors and uses up every one that is left; reverts both at the end of its life.
class NoDescriptors
{
public:
    explicit NoDescriptors(rlim_t limit)
    {
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit lowered{limit, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &lowered);
        for (int taken = open("/dev/null", O_RDONLY); taken >= 0; taken = open("/dev/null", O_RDONLY)) {
            hoard.push_back(taken);
        }
    }
    ~NoDescriptors()
    {
        for (int taken : hoard) {
            close(taken);
        }
        setrlimit(RLIMIT_NOFILE, &before);
    }

private:
    Q_DISABLE_COPY(NoDescriptors)
    rlimit before;
    std::vector<int> hoard;
};

class SeenForTheFirstTime
{
public:
    virtual ~SeenForTheFirstTime() = default;
    virtual int answer() const { return 42; }
};

} // namespace

/// Reads the real machine: libgtop exits the whole process if it cannot open /proc/stat.
class TestDescriptors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        fixture = std::make_unique<Fixture>();
        standin::machine() = {};
        fixture->start(1);
        QVERIFY(listsThisProcess());
    }

    void cleanup() { fixture.reset(); }

    void withNoneLeftARefreshShowsTheMachine()
    {
        makeFiguresStale();
        {
            const NoDescriptors none(256);
            QVERIFY(noneIsLeft());
            for (int i = 0; i < 3; ++i) {
                refresh(*fixture);
            }
            QVERIFY(noneIsLeft()); // the reserve is held again
        }
        QVERIFY(Fixture::text("lblMemTotal") != QStringLiteral("stale"));
        QVERIFY(Fixture::text("lblMemFree") != QStringLiteral("stale"));
        QVERIFY(listsThisProcess());
        QVERIFY(processes()->rowCount() > 1);
        QVERIFY(Fixture::find<QComboBox>("comboNet")->count() > 0);
    }

    void belowTheReserveTheLastFiguresStay()
    {
        const QString memory = Fixture::text("lblMemTotal");
        const int rows = processes()->rowCount();
        {
            const NoDescriptors none(3); // below the descriptors in use, so closing one frees none
            refresh(*fixture);
        }
        QCOMPARE(Fixture::text("lblMemTotal"), memory);
        QCOMPARE(processes()->rowCount(), rows);
        makeFiguresStale();
        refresh(*fixture);
        QCOMPARE(Fixture::text("lblMemTotal"), memory);
    }

    void ticksWithoutARefreshStillCount()
    {
        Fixture::choosePage(0); // refreshed by tick 0
        {
            const NoDescriptors none(3);
            QMetaObject::invokeMethod(&fixture->updater(), "update"); // 1
            QMetaObject::invokeMethod(&fixture->updater(), "update"); // 2
        }
        standin::resetCalls();
        QMetaObject::invokeMethod(&fixture->updater(), "update"); // 3 is due
        QCOMPARE(standin::calls().memory, 1U);
    }

    void withNoneLeftTheSettingsAreSaved()
    {
        QVERIFY(!QFile::exists(Fixture::settingsFile()));
        {
            const NoDescriptors none(256);
            fixture->stop();
        }
        QVERIFY(QFile::exists(Fixture::settingsFile()));
        QCOMPARE(QSettings().value(QStringLiteral("interval/general")).toInt(), 3);
    }

    void aRefreshLeaksNoDescriptor()
    {
        refresh(*fixture);
        const int before = openDescriptors();
        for (int i = 0; i < 5; ++i) {
            refresh(*fixture);
            QCOMPARE(openDescriptors(), before);
        }
    }

    /// Can only fail in a build with sanitizers, where the other functions rely on it.
    void withNoneLeftTheSanitizersReportNoFalsePositive()
    {
        const std::unique_ptr<SeenForTheFirstTime> object(new SeenForTheFirstTime);
        const NoDescriptors none(256);
        QCOMPARE(object->answer(), 42);
        QVERIFY(noneIsLeft()); // the sanitizer has restored the limit
    }

private:
    static QAbstractItemModel *processes() { return Fixture::find<QTreeView>("treeView")->model(); }

    static bool listsThisProcess()
    {
        for (int row = 0; row < processes()->rowCount(); ++row) {
            const QModelIndex index = processes()->index(row, 0);
            if (static_cast<pid_t>(index.internalId()) == getpid() ||
                index.data().toString().contains(QStringLiteral("test_descr"))) {
                return true;
            }
        }
        return false;
    }

    static void makeFiguresStale()
    {
        for (const char *label : {"lblMemTotal", "lblMemFree", "lblTotal"}) {
            Fixture::find<QLabel>(label)->setText(QStringLiteral("stale"));
        }
    }

    std::unique_ptr<Fixture> fixture;
};

QTEST_MAIN(TestDescriptors)
#include "test_descriptors.moc"
