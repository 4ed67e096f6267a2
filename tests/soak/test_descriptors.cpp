// SPDX-License-Identifier: GPL-3.0-or-later
#include "support.h"

#include <QtTest>
#include <QtWidgets>

#include <fcntl.h>

#include <functional>

namespace {

/// Runs `act` with a lower limit on descriptors and every one that is left used up, then reverts both.
void withNoneLeft(rlim_t limit, const std::function<void()> &act)
{
    rlimit before;
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit lowered{limit, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &lowered);
    std::vector<int> hoard;
    for (int taken = open("/dev/null", O_RDONLY); taken >= 0; taken = open("/dev/null", O_RDONLY)) {
        hoard.push_back(taken);
    }
    act();
    for (int taken : hoard) {
        close(taken);
    }
    setrlimit(RLIMIT_NOFILE, &before);
}

class SeenForTheFirstTime
{
public:
    virtual ~SeenForTheFirstTime() = default;
    virtual int answer() const { return 42; }
};

} // namespace

/// Reads the real machine: libgtop exits the whole process if it cannot open /proc/stat.
class TestDescriptors : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ControllerTest::init();
        standin::machine() = {};
        fixture->start(1);
        QVERIFY(listsThisProcess());
    }

    void withNoneLeftARefreshShowsTheMachine()
    {
        makeFiguresStale();
        withNoneLeft(256, [this] {
            QVERIFY(noneIsLeft());
            for (int i = 0; i < 3; ++i) {
                refresh(*fixture);
            }
            QVERIFY(noneIsLeft()); // the reserve is held again
        });
        QVERIFY(Fixture::text("lblMemTotal") != QStringLiteral("stale"));
        QVERIFY(Fixture::text("lblMemFree") != QStringLiteral("stale"));
        QVERIFY(listsThisProcess());
        QVERIFY(processList()->rowCount() > 1);
        QVERIFY(Fixture::find<QComboBox>("comboNet")->count() > 0);
    }

    void withNoneLeftNoneIsTakenToAskAMountThatCanHang()
    {
        standin::machine().mounts = {{"files:/", "/mnt", "nfs4", 1000, 500, 250}};
        const auto firstRowTotal = [this] {
            QMetaObject::invokeMethod(
                &fixture->updater(), "slotSelectFs",
                Q_ARG(QModelIndex, Fixture::find<QTreeView>("tableFS")->model()->index(0, 0)));
            return Fixture::text("lblTotal");
        };
        withNoneLeft(256, [this] {
            refresh(*fixture);
            makeFiguresStale();
            refresh(*fixture);
        });
        QVERIFY(Fixture::text("lblMemTotal") != QStringLiteral("stale")); // the reserve is still enough
        QTRY_COMPARE((refresh(*fixture), refresh(*fixture), firstRowTotal()), QString("3.91 MB"));
    }

    void belowTheReserveTheLastFiguresStay()
    {
        const QString memory = Fixture::text("lblMemTotal");
        const int rows = processList()->rowCount();
        // Below the descriptors in use, so closing one frees none.
        withNoneLeft(3, [this] { refresh(*fixture); });
        QCOMPARE(Fixture::text("lblMemTotal"), memory);
        QCOMPARE(processList()->rowCount(), rows);
        makeFiguresStale();
        refresh(*fixture);
        QCOMPARE(Fixture::text("lblMemTotal"), memory);
    }

    void ticksWithoutARefreshStillCount()
    {
        Fixture::choosePage(0); // refreshed by tick 0
        withNoneLeft(3, [this] {
            QMetaObject::invokeMethod(&fixture->updater(), "update"); // 1
            QMetaObject::invokeMethod(&fixture->updater(), "update"); // 2
        });
        standin::resetCalls();
        QMetaObject::invokeMethod(&fixture->updater(), "update"); // 3 is due
        QCOMPARE(standin::calls().memory, 1U);
    }

    void withNoneLeftTheSettingsAreSaved()
    {
        QVERIFY(!QFile::exists(Fixture::settingsFile()));
        withNoneLeft(256, [this] { fixture->stop(); });
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
        withNoneLeft(256, [&] {
            QCOMPARE(object->answer(), 42);
            QVERIFY(noneIsLeft()); // the sanitizer has restored the limit
        });
    }

private:
    static bool noneIsLeft() { return open("/dev/null", O_RDONLY) == -1; }
    static bool listsThisProcess()
    {
        for (int row = 0; row < processList()->rowCount(); ++row) {
            const QModelIndex index = processList()->index(row, 0);
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
};

QTEST_MAIN(TestDescriptors)
#include "test_descriptors.moc"
