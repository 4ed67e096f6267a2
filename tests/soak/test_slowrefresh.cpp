// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/fixture.h"

#include <QtTest>
#include <QtWidgets>

/// A file system that takes two seconds to report its usage delays one refresh and nothing after it.
class TestSlowRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture.start(0); }

    void missedTicksAreNotMadeUpFor()
    {
        const auto *timer = Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(timer);
        const QSignalSpy ticks(timer, SIGNAL(timeout()));
        QElapsedTimer blocked;
        blocked.start();
        refreshSlowly();
        refreshSlowly();
        const auto missed = static_cast<int>(blocked.elapsed() / timer->interval());
        QVERIFY(missed >= 4);
        QElapsedTimer afterwards;
        afterwards.start();
        for (int i = 0; i < 50; ++i) {
            QCoreApplication::processEvents();
        }
        const auto due = static_cast<int>(afterwards.elapsed() / timer->interval()) + 1;
        QVERIFY(ticks.count() <= 1 + due);
    }

    void theWindowRespondsAfterwards()
    {
        refreshSlowly();
        const auto *tabs = Fixture::find<QTabWidget>("tabWidget");
        const QPoint fileSystems = tabs->tabBar()->tabRect(2).center();
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, fileSystems);
        QCOMPARE(tabs->currentIndex(), 2);
        QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
    }

private:
    void refreshSlowly()
    {
        standin::machine().mounts->at(1).blocksForMs = 2000;
        QMetaObject::invokeMethod(&fixture.updater(), "slotTabChanged", Q_ARG(int, 0));
        standin::machine().mounts->at(1).blocksForMs = 0;
    }

    Fixture fixture;
};

QTEST_MAIN(TestSlowRefresh)
#include "test_slowrefresh.moc"
