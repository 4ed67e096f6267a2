// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/fixture.h"

#include <QtTest>
#include <QtWidgets>

// A file system that takes two seconds to report its usage holds up one refresh, and nothing after it.
class TestSlowRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noBurstOfTicksMakesUpForIt();
    void theWindowAnswersAfterwards();

private:
    static void refreshSlowly(Fixture &fixture)
    {
        standin::machine().mounts->at(1).blocksForMs = 2000;
        QMetaObject::invokeMethod(&fixture.updater(), "slotTabChanged", Q_ARG(int, 0));
        standin::machine().mounts->at(1).blocksForMs = 0;
    }
};

void TestSlowRefresh::noBurstOfTicksMakesUpForIt()
{
    Fixture fixture;
    fixture.start(0);
    auto *const timer = Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer);
    const QSignalSpy ticks(timer, SIGNAL(timeout()));
    QElapsedTimer blocked;
    blocked.start();
    refreshSlowly(fixture);
    refreshSlowly(fixture);
    const auto missed = static_cast<int>(blocked.elapsed() / timer->interval());
    QVERIFY(missed >= 4);
    QElapsedTimer afterwards;
    afterwards.start();
    for (int i = 0; i < 50; ++i) {
        QCoreApplication::processEvents();
    }
    // One may fall into a part of an interval.
    const auto ordinary = static_cast<int>(afterwards.elapsed() / timer->interval()) + 1;
    QVERIFY(ticks.count() <= 1 + ordinary);
}

void TestSlowRefresh::theWindowAnswersAfterwards()
{
    Fixture fixture;
    fixture.start(0);
    refreshSlowly(fixture);
    auto *const tabs = Fixture::find<QTabWidget>("tabWidget");
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(2).center());
    QCOMPARE(tabs->currentIndex(), 2);
    QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
}

QTEST_MAIN(TestSlowRefresh)
#include "test_slowrefresh.moc"
