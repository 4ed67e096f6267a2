// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/fixture.h"

#include <QtTest>
#include <QtWidgets>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

int openDescriptors()
{
    return static_cast<int>(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

/// Lowers the limit on descriptors and uses up every one that is left; gives both back at its end.
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
        for (const int taken : hoard) {
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

// libgtop is the real one here: it ends the whole process when it can't open /proc/stat.
class TestDescriptors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fixture.reset(); }
    void withNoneLeftARefreshShowsTheMachine();
    void belowTheReserveTheLastFiguresStay();
    void theTickGoesOnWithoutARefresh();
    void withNoneLeftTheSettingsAreSaved();
    void aRefreshKeepsNoDescriptor();
    void withNoneLeftTheSanitizersTakeNoSoundObjectForABrokenOne();

private:
    void refreshAll() { QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true)); }
    static bool listsThisProcess()
    {
        const QAbstractItemModel *const model = Fixture::find<QTreeView>("treeView")->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (static_cast<pid_t>(model->index(row, 0).internalId()) == getpid() ||
                model->index(row, 0).data().toString().contains(QStringLiteral("test_descr"))) {
                return true;
            }
        }
        return false;
    }
    static void forgetFigures()
    {
        for (const char *label : {"lblMemTotal", "lblMemFree", "lblTotal"}) {
            Fixture::find<QLabel>(label)->setText(QStringLiteral("stale"));
        }
    }

    std::unique_ptr<Fixture> fixture;
};

void TestDescriptors::init()
{
    fixture = std::make_unique<Fixture>();
    standin::machine() = {};
    fixture->start(1);
    QVERIFY(listsThisProcess());
}

void TestDescriptors::withNoneLeftARefreshShowsTheMachine()
{
    forgetFigures();
    {
        const NoDescriptors none(256);
        QCOMPARE(open("/dev/null", O_RDONLY), -1);
        for (int i = 0; i < 3; ++i) {
            refreshAll();
        }
        QCOMPARE(open("/dev/null", O_RDONLY), -1); // the reserve was taken back
    }
    QVERIFY(Fixture::text("lblMemTotal") != QStringLiteral("stale"));
    QVERIFY(Fixture::text("lblMemFree") != QStringLiteral("stale"));
    QVERIFY(listsThisProcess());
    QVERIFY(Fixture::find<QTreeView>("treeView")->model()->rowCount() > 1);
    QVERIFY(Fixture::find<QComboBox>("comboNet")->count() > 0);
}

void TestDescriptors::belowTheReserveTheLastFiguresStay()
{
    const QString memory = Fixture::text("lblMemTotal");
    const int rows = Fixture::find<QTreeView>("treeView")->model()->rowCount();
    {
        const NoDescriptors none(3); // lower than what is held: a descriptor that is closed is no use
        refreshAll();
    }
    QCOMPARE(Fixture::text("lblMemTotal"), memory);
    QCOMPARE(Fixture::find<QTreeView>("treeView")->model()->rowCount(), rows);
    forgetFigures();
    refreshAll();
    QCOMPARE(Fixture::text("lblMemTotal"), memory);
}

void TestDescriptors::theTickGoesOnWithoutARefresh()
{
    Fixture::choosePage(0); // tick 0 has refreshed
    {
        const NoDescriptors none(3);
        QMetaObject::invokeMethod(&fixture->updater(), "update"); // 1
        QMetaObject::invokeMethod(&fixture->updater(), "update"); // 2
    }
    standin::resetCalls();
    QMetaObject::invokeMethod(&fixture->updater(), "update"); // 3 is due
    QCOMPARE(standin::calls().memory, 1U);
}

void TestDescriptors::withNoneLeftTheSettingsAreSaved()
{
    QVERIFY(!QFile::exists(Fixture::settingsFile()));
    {
        const NoDescriptors none(256);
        fixture->stop();
    }
    QVERIFY(QFile::exists(Fixture::settingsFile()));
    QCOMPARE(QSettings().value(QStringLiteral("interval/general")).toInt(), 3);
}

void TestDescriptors::aRefreshKeepsNoDescriptor()
{
    refreshAll();
    const int before = openDescriptors();
    for (int i = 0; i < 5; ++i) {
        refreshAll();
        QCOMPARE(openDescriptors(), before);
    }
}

// Fails only where the sanitizers are on: it guards what the other functions rely on there.
void TestDescriptors::withNoneLeftTheSanitizersTakeNoSoundObjectForABrokenOne()
{
    const std::unique_ptr<SeenForTheFirstTime> object(new SeenForTheFirstTime);
    const NoDescriptors none(256);
    QCOMPARE(object->answer(), 42);
    QCOMPARE(open("/dev/null", O_RDONLY), -1); // the limit is as it was
}

QTEST_MAIN(TestDescriptors)
#include "test_descriptors.moc"
