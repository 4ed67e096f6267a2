// SPDX-License-Identifier: GPL-3.0-or-later
// Which page is refreshed when. A refresh shows in the calls that only it makes: General reads memory,
// Processes the process list, Network the interface list; File systems and General both read the mount list.
#include "fixture.h"

#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

class TestRefresh : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void slotsStandAtTheirFixedIndexes()
    {
        const QMetaObject &meta = Updater::staticMetaObject;
        const char *const signatures[] = {"update(bool)",          "update()",
                                          "setNetDevice(int)",     "popup()",
                                          "updateMainMenu()",      "updateProcessActions()",
                                          "menuVisibleColumns()",  "slotSelectFs(QModelIndex)",
                                          "slotTabChanged(int)",   "slotToggleColumn()",
                                          "slotIntervalGeneral()", "slotIntervalProcs()",
                                          "slotIntervalFs()",      "slotIntervalNet()",
                                          "slotAbout()",           "slotHelp()"};
        int index = 0;
        for (const char *signature : signatures) {
            const QMetaMethod method = meta.method(meta.methodOffset() + index++);
            QCOMPARE(method.methodSignature(), QByteArray(signature));
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
        }
        for (int rest = meta.methodOffset() + index; rest < meta.methodCount(); ++rest) {
            QCOMPARE(meta.method(rest).access(), QMetaMethod::Private);
        }
        QCOMPARE(QByteArray(meta.method(meta.methodOffset() + 6).typeName()), QByteArray("QMenu*"));
    }

    void firstRefreshIsFullAndTheGeneralPageIsShown()
    {
        fixture->start(-1);
        QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
        QCOMPARE(Fixture::find<QComboBox>("comboNet")->count(), 3);
        QCOMPARE(Fixture::text("lblMemTotal"), QStringLiteral("8.00 GB"));
        QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 0);
        QVERIFY(Fixture::window()->isVisible());
    }

    void startPageHasItsMenuBeforeTheWindowIsShown()
    {
        fixture->start(1);
        QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 1);
        QMenu *edit = Fixture::window()->menuBar()->actions().at(1)->menu();
        QVERIFY(edit->actions().at(1)->isVisible());
        QVERIFY(edit->actions().at(1)->isEnabled());
    }

    void shownPageIsRefreshedOnItsInterval_data()
    {
        QTest::addColumn<Reads>("due");
        QTest::newRow("General") << Reads{1, 0, 1, 1};
        QTest::newRow("Processes") << Reads{0, 1, 0, 1};
        QTest::newRow("File systems") << Reads{0, 0, 1, 1};
        QTest::newRow("Network") << Reads{0, 0, 0, 1};
    }

    void shownPageIsRefreshedOnItsInterval()
    {
        QFETCH(Reads, due);
        const int page = QStringList{"General", "Processes", "File systems", "Network"}.indexOf(
            QLatin1String(QTest::currentDataTag()));
        fixture->start(0);
        Fixture::choosePage(3);
        Fixture::choosePage(page);
        fixture->refresh(page);
        // The tick is 1 now; pages are due at 3, 6 and 9.
        const Reads none = {0, 0, 0, 0};
        QCOMPARE(ticks(9), QList<Reads>({none, none, due, none, none, due, none, none, due}));
    }

    void networkIsSampledOnItsOwnInterval()
    {
        QSettings().setValue(QStringLiteral("interval/net"), 1);
        fixture->start(0);
        for (const Reads &seen : ticks(6)) {
            QCOMPARE(seen.at(3), 1u);
        }
    }

    void fullRefreshForcesAllButTheNetwork()
    {
        fixture->start(0);
        fixture->refresh(0);
        standin::resetCalls();
        fixture->updater().update(true);
        QCOMPARE(reads(), Reads({1, 1, 2, 0}));
        standin::resetCalls();
        fixture->refresh(0);
        QCOMPARE(reads().at(3), 1u);
    }

    void aTabChangeRefreshesTwiceAndRestartsTheCount()
    {
        fixture->start(0);
        fixture->refresh(0);
        ticks(2);
        // The tick is 3 now, so the refresh with the running tick is due, and so is the one from tick 0.
        standin::resetCalls();
        Fixture::choosePage(2);
        QCOMPARE(reads(), Reads({0, 0, 2, 2}));
        QCOMPARE(ticks(3).last().at(2), 1u);

        // At tick 5 only the second is due.
        ticks(1);
        standin::resetCalls();
        Fixture::choosePage(0);
        QCOMPARE(reads(), Reads({1, 0, 1, 1}));
    }

    void theTimerTicksEverySecond()
    {
        QSettings().setValue(QStringLiteral("interval/general"), 1);
        fixture->start(0);
        const auto timers = Fixture::window()->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first()->interval(), 1000);
        QVERIFY(timers.first()->isActive());
        QVERIFY(!timers.first()->isSingleShot());
        standin::resetCalls();
        QTRY_VERIFY_WITH_TIMEOUT(standin::calls().memory >= 2, 20000);
    }

    void chosenFileSystemStaysChosenOrTheFirstIs()
    {
        fixture->start(2);
        auto *table = Fixture::find<QTreeView>("tableFS");
        QCOMPARE(table->currentIndex().data().toString(), QStringLiteral("/"));
        QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sda1"));
        table->setCurrentIndex(table->model()->index(1, 0));
        QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sr0"));
        QCOMPARE(Fixture::text("lblFsType"), QStringLiteral("iso9660"));
        fixture->refresh(2);
        QCOMPARE(table->currentIndex().row(), 1);
        QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sr0"));
        table->selectionModel()->clear();
        QVERIFY(!table->selectionModel()->hasSelection());
        fixture->refresh(2);
        QVERIFY(table->selectionModel()->hasSelection());
        QCOMPARE(table->currentIndex().row(), 0);
        QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sda1"));
    }

    void aMachineWithoutMountsShowsAnEmptyTable()
    {
        standin::machine().mounts->clear();
        fixture->start(2);
        QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 0);
        for (const char *label : {"lblTotal", "lblUsed", "lblAvail"}) {
            QCOMPARE(Fixture::text(label), QStringLiteral("0.00 B"));
        }
        QCOMPARE(Fixture::text("lblMountPoint"), QString());
        QCOMPARE(Fixture::text("lblFsType"), QString());
        QCOMPARE(Fixture::text("lblDiskFree"), QStringLiteral("0.00 B"));
    }

    void theProcessProxyHasTheTotalCpuTimeOfTheRefresh()
    {
        fixture->start(1);
        const QAbstractItemModel *model = Fixture::processes();
        const auto loadOf = [model](const QString &name) {
            const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, name);
            return found.value(0).siblingAtColumn(1).data().toString();
        };
        fixture->refresh(1);
        standin::machine().cpus = {{1000, 4400}, {500, 4400}};
        (*standin::machine().processes)[200].userTime += 200;
        fixture->refresh(1);
        QCOMPARE(loadOf(QStringLiteral("made-up200")), QStringLiteral("25.0 %"));
        QCOMPARE(loadOf(QStringLiteral("made-up300")), QStringLiteral("0.0 %"));
    }

    void aboutAndHelpDoNothing()
    {
        fixture->start();
        const int windows = QApplication::topLevelWidgets().size();
        fixture->updater().slotAbout();
        fixture->updater().slotHelp();
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

private:
    /// Reads of the General page (memory), the processes, the mounts and the network.
    using Reads = QVector<unsigned>;

    static Reads reads()
    {
        const standin::Calls &calls = standin::calls();
        return {calls.memory, calls.processList, calls.mountList, calls.interfaceList};
    }

    /// Reads of each of the next ticks.
    QList<Reads> ticks(int count)
    {
        QList<Reads> result;
        for (int i = 0; i < count; ++i) {
            standin::resetCalls();
            fixture->updater().update();
            result << reads();
        }
        return result;
    }
};

QTEST_MAIN(TestRefresh)
#include "test_refresh.moc"
