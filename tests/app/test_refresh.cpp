// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "app/updater.h"
#include "fs/proxyfsmodel.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

// Which page is refreshed when. A refresh is told by the calls that only it makes: General reads memory,
// Processes the process list, Network the interface list; File systems and General both read the mount list.
class TestRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void slotsStandAtTheirFixedIndexes();
    void theFirstRefreshIsFull();
    void withoutAStartPageTheGeneralPageIsShown();
    void aStartPageIsRefreshedAgainAndHasItsMenuBeforeTheWindowIsShown();
    void theProcessListIsThereWhenTheWindowIsShown();
    void theShownPageIsRefreshedOnItsIntervalAndOthersAreNot_data();
    void theShownPageIsRefreshedOnItsIntervalAndOthersAreNot();
    void theNetworkIsSampledOnItsOwnIntervalWhateverIsShown();
    void aFullRefreshForcesAllButTheNetwork();
    void aTabChangeRefreshesTwiceAndRestartsTheCount();
    void everyResetOfTheProcessModelIsATick();
    void theTimerTicksEverySecond();
    void anEmptySelectionBecomesTheFirstFileSystem();
    void aChosenFileSystemStaysChosen();
    void aMachineWithoutMountsShowsAnEmptyTable();
    void theProcessProxyHasTheTotalCpuTimeOfTheRefresh();
    void aboutAndHelpDoNothing();

private:
    struct Reads
    {
        unsigned general;
        unsigned processes;
        unsigned mounts;
        unsigned network;
        bool operator==(const Reads &o) const
        {
            return general == o.general && processes == o.processes && mounts == o.mounts &&
                   network == o.network;
        }
    };

    static Reads reads()
    {
        const standin::Calls &calls = standin::calls();
        return {calls.memory, calls.processList, calls.mountList, calls.interfaceList};
    }

    // Reads of each of the next ticks.
    QList<Reads> ticks(int count)
    {
        QList<Reads> result;
        for (int i = 0; i < count; ++i) {
            standin::resetCalls();
            QMetaObject::invokeMethod(&fixture->updater(), "update");
            result << reads();
        }
        return result;
    }

    std::unique_ptr<Fixture> fixture;
};

void TestRefresh::init()
{
    fixture = std::make_unique<Fixture>();
}

void TestRefresh::cleanup()
{
    fixture.reset();
}

void TestRefresh::slotsStandAtTheirFixedIndexes()
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
    QCOMPARE(meta.methodCount(), meta.methodOffset() + index);
    QCOMPARE(QByteArray(meta.method(meta.methodOffset() + 6).typeName()), QByteArray("QMenu*"));
}

void TestRefresh::theFirstRefreshIsFull()
{
    fixture->start();
    QVERIFY(standin::calls().processList > 0);
    QCOMPARE(Fixture::find<QTreeView>("tableFS")->model()->rowCount(), 2);
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->count(), 3);
    QCOMPARE(Fixture::text("lblMemTotal"), QStringLiteral("8.00 GB"));
    QVERIFY(Fixture::window()->isVisible());
}

void TestRefresh::withoutAStartPageTheGeneralPageIsShown()
{
    fixture->start(-1);
    QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 0);
}

void TestRefresh::aStartPageIsRefreshedAgainAndHasItsMenuBeforeTheWindowIsShown()
{
    fixture->start(-1);
    const unsigned withoutPage = standin::calls().processList;
    fixture->stop();
    standin::resetCalls();
    fixture->start(1);
    QVERIFY(standin::calls().processList > withoutPage + 1);
    QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 1);
    QMenu *edit = Fixture::window()->menuBar()->actions().at(1)->menu();
    QVERIFY(edit->actions().at(1)->isVisible());
    QVERIFY(edit->actions().at(1)->isEnabled());
}

// Reading the settings resets the list twice per column, and each reset is a tick that refreshes only if due: with
// the number of columns that there are and the default interval one of the last two is.
void TestRefresh::theProcessListIsThereWhenTheWindowIsShown()
{
    fixture->start(1);
    QCOMPARE(Fixture::find<QTreeView>("treeView")->model()->rowCount(), 4);
}

void TestRefresh::theShownPageIsRefreshedOnItsIntervalAndOthersAreNot_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("General") << 0;
    QTest::newRow("Processes") << 1;
    QTest::newRow("File systems") << 2;
    QTest::newRow("Network") << 3;
}

void TestRefresh::theShownPageIsRefreshedOnItsIntervalAndOthersAreNot()
{
    QFETCH(int, page);
    fixture->start(0);
    Fixture::choosePage(3);
    Fixture::choosePage(page);
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, page));
    // The tick is 1 now; pages are due at 3, 6 and 9.
    const QList<Reads> seen = ticks(9);
    const Reads due[] = {{1, 0, 1, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}, {0, 0, 0, 1}};
    const Reads none = {0, 0, 0, 0};
    for (int i = 0; i < seen.size(); ++i) {
        const bool isDue = (i + 1) % 3 == 0;
        QVERIFY2(seen.at(i) == (isDue ? due[page] : none), QByteArray::number(i + 1).constData());
    }
}

void TestRefresh::theNetworkIsSampledOnItsOwnIntervalWhateverIsShown()
{
    QSettings().setValue(QStringLiteral("interval/net"), 1);
    fixture->start(0);
    for (const Reads &seen : ticks(6)) {
        QCOMPARE(seen.network, 1u);
    }
}

void TestRefresh::aFullRefreshForcesAllButTheNetwork()
{
    fixture->start(0);
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 0));
    standin::resetCalls();
    QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true));
    QVERIFY(reads() == (Reads{1, 1, 2, 0}));
    standin::resetCalls();
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 0));
    QCOMPARE(reads().network, 1u);
}

void TestRefresh::aTabChangeRefreshesTwiceAndRestartsTheCount()
{
    fixture->start(0);
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 0));
    ticks(2);
    // The tick is 3 now, so the refresh with the running tick is due, and so is the one from tick 0.
    standin::resetCalls();
    Fixture::choosePage(2);
    QVERIFY(reads() == (Reads{0, 0, 2, 2}));
    QCOMPARE(ticks(3).last().mounts, 1u);

    // At tick 5 only the second is due.
    ticks(1);
    standin::resetCalls();
    Fixture::choosePage(0);
    QVERIFY(reads() == (Reads{1, 0, 1, 1}));
}

void TestRefresh::everyResetOfTheProcessModelIsATick()
{
    fixture->start(1);
    auto *proxy = qobject_cast<ProxyProcModel *>(Fixture::find<QTreeView>("treeView")->model());
    QVERIFY(proxy != nullptr);
    QSignalSpy resets(proxy, SIGNAL(modelReset()));
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    // From tick 1 two resets lead to tick 3, so the tick after them is the next one due.
    standin::resetCalls();
    proxy->setProcessTypes(proxy->processTypes());
    QCOMPARE(resets.count(), 2);
    QCOMPARE(reads().processes, 0u);
    QCOMPARE(ticks(1).last().processes, 1u);
    // From tick 4 three resets pass tick 6.
    ticks(2);
    standin::resetCalls();
    proxy->setFlat(!proxy->isFlat());
    QCOMPARE(resets.count(), 5);
    QCOMPARE(reads().processes, 1u);
}

void TestRefresh::theTimerTicksEverySecond()
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

void TestRefresh::anEmptySelectionBecomesTheFirstFileSystem()
{
    fixture->start(2);
    auto *table = Fixture::find<QTreeView>("tableFS");
    QCOMPARE(table->currentIndex().data().toString(), QStringLiteral("/"));
    QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sda1"));
    table->selectionModel()->clear();
    QVERIFY(!table->selectionModel()->hasSelection());
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 2));
    QVERIFY(table->selectionModel()->hasSelection());
    QCOMPARE(table->currentIndex().row(), 0);
    QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sda1"));
}

void TestRefresh::aChosenFileSystemStaysChosen()
{
    fixture->start(2);
    auto *table = Fixture::find<QTreeView>("tableFS");
    table->setCurrentIndex(table->model()->index(1, 0));
    QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sr0"));
    QCOMPARE(Fixture::text("lblFsType"), QStringLiteral("iso9660"));
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 2));
    QCOMPARE(table->currentIndex().row(), 1);
    QCOMPARE(Fixture::text("lblMountPoint"), QStringLiteral("/dev/sr0"));
}

void TestRefresh::aMachineWithoutMountsShowsAnEmptyTable()
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

void TestRefresh::theProcessProxyHasTheTotalCpuTimeOfTheRefresh()
{
    fixture->start(1);
    const QAbstractItemModel *model = Fixture::find<QTreeView>("treeView")->model();
    const auto loadOf = [&](const QString &name) {
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, 0).data().toString() == name) {
                return model->index(row, 1).data().toString();
            }
        }
        return QString();
    };
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    standin::machine().cpus = {{1000, 4400}, {500, 4400}};
    (*standin::machine().processes)[200].userTime += 200;
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    QCOMPARE(loadOf(QStringLiteral("made-up200")), QStringLiteral("25.0 %"));
    QCOMPARE(loadOf(QStringLiteral("made-up300")), QStringLiteral("0.0 %"));
}

void TestRefresh::aboutAndHelpDoNothing()
{
    fixture->start();
    const int windows = QApplication::topLevelWidgets().size();
    QMetaObject::invokeMethod(&fixture->updater(), "slotAbout");
    QMetaObject::invokeMethod(&fixture->updater(), "slotHelp");
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
}

QTEST_MAIN(TestRefresh)
#include "test_refresh.moc"
