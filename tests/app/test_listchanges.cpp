// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of the process list by the user: types, mode and columns.
#include "../support/rows.h"
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

#include <sys/resource.h>

using namespace gtop_wrappers;

using Change = std::function<void()>;
Q_DECLARE_METATYPE(Change)

class TestListChanges : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void theListIsCompleteWhenTheActionReturns_data()
    {
        QTest::addColumn<int>("interval");
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("resets"); // of the model
        for (int interval = 1; interval <= 5; ++interval) {
            const auto row = [interval](const char *name, int resets, const Change &change) {
                QTest::addRow("%s, interval %d", name, interval) << interval << change << resets;
            };
            row("other types", 2, [] { list()->setProcessTypes(1 - list()->processTypes()); });
            row("same types", 2, [] { list()->setProcessTypes(list()->processTypes()); });
            row("other mode", 3, [] { list()->setFlat(!list()->isFlat()); });
            row("complete or required tree", 3, [] { list()->setComplete(!list()->isComplete()); });
            row("same mode", 2, [] { list()->setFlat(list()->isFlat()); });
            for (unsigned long column = 0; column < ProcessFiller::instance()->size(); ++column) {
                row(qPrintable(ProcessFiller::instance()->name(column)), 2, [column] { toggle(column); });
            }
        }
    }

    void theListIsCompleteWhenTheActionReturns()
    {
        QFETCH(int, interval);
        QFETCH(Change, change);
        QFETCH(int, resets);
        QSettings().setValue(QStringLiteral("interval/procs"), interval);
        QSettings().setValue(QStringLiteral("interval/net"), 4);
        startOnProcesses();
        list()->setFlat(false);
        fixture->refresh(1);
        const QSignalSpy seen(list(), SIGNAL(modelReset()));
        int tick = 1;
        for (int round = 0; round < 10; ++round) {
            widen();
            standin::resetCalls();
            const int before = seen.count();
            change();
            verifyComplete();
            QCOMPARE(seen.count() - before, resets);
            // One reading for all resets. The network is sampled once if it fell due in one of their ticks.
            bool networkDue = false;
            for (int i = 0; i < resets; ++i, ++tick) {
                networkDue = networkDue || tick % 4 == 0;
            }
            verifyReads(0, 1, networkDue ? 1 : 0);
            // The next tick follows on.
            standin::resetCalls();
            fixture->updater().update();
            verifyReads(0, tick % interval == 0 ? 1 : 0, tick % 4 == 0 ? 1 : 0);
            ++tick;
            verifyComplete();
        }
    }

    void theActionsOfTheMenusCompleteTheList_data()
    {
        const Rows<QString> row("action");
        row("mode", QStringLiteral("Tree view"));
        row("types", QStringLiteral("All processes"));
        row("types that are chosen already", QStringLiteral("My processes"));
        row("column", QString());
    }

    void theActionsOfTheMenusCompleteTheList()
    {
        QFETCH(QString, action);
        QSettings().setValue(QStringLiteral("interval/procs"), 5);
        startOnProcesses();
        select(300);
        const QScopedPointer<QMenu> columns(fixture->updater().menuVisibleColumns());
        QAction *chosen = columns->actions().at(CommandLineColumn);
        for (QAction *candidate : fixture->updater().findChildren<QAction *>()) {
            if (candidate->text() == action) {
                chosen = candidate;
            }
        }
        QVERIFY(action.isEmpty() || chosen->text() == action);
        const QSignalSpy resets(list(), SIGNAL(modelReset()));
        for (int round = 0; round < 4; ++round) {
            widen();
            standin::resetCalls();
            const int before = resets.count();
            chosen->trigger();
            QVERIFY(resets.count() > before);
            QCOMPARE(standin::calls().processList, 1U);
            verifyComplete();
            verifySelected(300);
        }
    }

    void aListThatIsNotShownWaits_data() { changes(); }

    void aListThatIsNotShownWaits()
    {
        QFETCH(Change, change);
        QSettings().setValue(QStringLiteral("interval/general"), 1);
        startOnProcesses();
        list()->setFlat(false);
        select(300);
        Fixture::choosePage(0);
        standin::resetCalls();
        change();
        QFETCH(unsigned, actions);
        verifyReads(actions, 0, standin::calls().interfaceList); // the shown page, which fell due in each
        QCOMPARE(list()->rowCount(), 0);
        widen();
        fixture->updater().update();
        QCOMPARE(standin::calls().processList, 0U);
        Fixture::choosePage(1);
        verifyComplete();
        verifySelected(300);
    }

    void aChangeShortOfDescriptorsIsMadeUpFor()
    {
        startOnProcesses();
        select(300);
        rlimit limit = {};
        QCOMPARE(getrlimit(RLIMIT_NOFILE, &limit), 0);
        rlimit none = limit;
        none.rlim_cur = 3;
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
        list()->setFlat(false);
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &limit), 0);
        for (int i = 0; i < 3; ++i) {
            fixture->updater().update();
        }
        verifyComplete();
        verifySelected(300);
    }

    void theSelectionStaysWithItsProcess_data() { changes(); }

    void theSelectionStaysWithItsProcess()
    {
        QFETCH(Change, change);
        startOnProcesses();
        change(); // without a selection nothing is selected
        verifySelected(-1);
        QVERIFY(!view()->currentIndex().isValid());
        for (int round = 0; round < 4; ++round) {
            for (const int pid : {100, 300}) {
                select(pid);
                change();
                verifySelected(pid);
                fixture->refresh(1);
                verifySelected(pid);
            }
        }
    }

    void theSelectionEndsWithItsProcess_data() { changes(); }

    void theSelectionEndsWithItsProcess()
    {
        QFETCH(Change, change);
        startOnProcesses();
        select(300);
        made(300).startTime += 100; // another one with this pid
        change();
        verifySelected(-1);
        select(300);
        standin::machine().processes->erase(300);
        change();
        verifySelected(-1);
    }

    void aProcessOfOthersIsSelectedWhileListed()
    {
        startOnProcesses();
        list()->setProcessTypes(AllProcesses);
        select(900);
        list()->setProcessTypes(AllProcesses);
        verifySelected(900);
        list()->setProcessTypes(MyProcesses);
        verifySelected(-1);
        list()->setProcessTypes(AllProcesses);
        verifySelected(-1);
    }

    void theCurrentCellStaysInItsColumn()
    {
        startOnProcesses();
        view()->setCurrentIndex(list()->rowOfPid(300).siblingAtColumn(4));
        list()->setFlat(false);
        verifySelected(300);
        QCOMPARE(view()->currentIndex().column(), 4);
        view()->setCurrentIndex(list()->rowOfPid(300).siblingAtColumn(list()->columnCount() - 1));
        toggle(PidColumn); // one column less
        verifySelected(300);
    }

    void whatWasInViewStaysInView_data() { changes(); }

    void whatWasInViewStaysInView()
    {
        QFETCH(Change, change);
        startWithMany();
        auto *bar = view()->verticalScrollBar();
        QVERIFY(bar->maximum() > 100);
        for (int round = 0; round < 2; ++round) {
            view()->scrollTo(list()->rowOfPid(1200), QAbstractItemView::PositionAtTop);
            QCOMPARE(top(), 1200);
            change();
            QCOMPARE(top(), 1200);
            bar->setValue(0);
            change();
            QCOMPARE(bar->value(), 0);
        }
    }

    void aSelectedRowStaysInViewAndOneOutOfViewIsNotScrolledTo()
    {
        startWithMany();
        select(1290);
        view()->verticalScrollBar()->setValue(0);
        list()->setFlat(false);
        verifySelected(1290);
        QCOMPARE(view()->verticalScrollBar()->value(), 0);

        select(1003);
        QCOMPARE(view()->verticalScrollBar()->value(), 0);
        list()->setProcessTypes(AllProcesses); // inserts many before it
        verifySelected(1003);
        QVERIFY(view()->viewport()->rect().contains(view()->visualRect(list()->rowOfPid(1003))));
    }

    void aWideListStaysWhereItWasScrolledTo()
    {
        startWithMany();
        auto *bar = view()->horizontalScrollBar();
        made(1000).name = std::string(39, 'W');
        made(1000).arguments = std::string(300, 'W') + '\0';
        list()->setFlat(true);
        bar->setValue(40);
        QCOMPARE(bar->value(), 40);
        select(1003);
        bar->setValue(40);
        list()->setFlat(true);
        QCOMPARE(bar->value(), 40);
    }

    void sortingFollowsItsColumn()
    {
        startOnProcesses();
        for (const int pid : {100, 200, 300, 400}) {
            made(pid).resident = static_cast<std::uint64_t>(pid % 300 + 1) << 20;
        }
        view()->sortByColumn(MemoryColumn, Qt::DescendingOrder);
        fixture->refresh(1);
        const QList<int> order = pids();
        QCOMPARE(order, QList<int>({200, 100, 400, 300}));
        toggle(CpuColumn);
        QCOMPARE(pids(), order);
        QCOMPARE(list()->sortedProcessColumn(), int(MemoryColumn));
        QCOMPARE(list()->sortColumn(), MemoryColumn - 1);
        QCOMPARE(list()->sortOrder(), Qt::DescendingOrder);
        // What is stored is the view's column.
        fixture->start(1);
        QCOMPARE(QSettings().value(QStringLiteral("proc_sort_column")).toInt(), MemoryColumn - 1);
        QCOMPARE(list()->sortedProcessColumn(), int(MemoryColumn));
        QCOMPARE(pids(), order);
        toggle(CpuColumn);
        QCOMPARE(pids(), order);
        QCOMPARE(list()->sortColumn(), int(MemoryColumn));
        toggle(MemoryColumn);
        QCOMPARE(pids(), QList<int>({100, 200, 300, 400}));
        QCOMPARE(list()->sortedProcessColumn(), int(NameColumn));
        QCOMPARE(list()->sortOrder(), Qt::AscendingOrder);
    }

private:
    static void toggle(unsigned long column)
    {
        list()->setColumnVisible(column, !list()->isColumnVisible(column));
    }

    /// Changes that keep the rows, each made of so many actions.
    static void changes()
    {
        const Rows<unsigned, Change> row("actions", "change");
        row("types", 1, [] { list()->setProcessTypes(list()->processTypes()); });
        row("mode", 1, [] { list()->setFlat(!list()->isFlat()); });
        row("column", 1, [] { toggle(CpuColumn); });
        row("several", 3, [] {
            toggle(UserColumn);
            list()->setFlat(!list()->isFlat());
            list()->setProcessTypes(list()->processTypes());
        });
    }

    /// The processes of the fixture, each the parent of the next, and one of another user. Only the test
    /// makes ticks; the tick is 1.
    void startOnProcesses()
    {
        for (const int pid : {200, 300, 400}) {
            made(pid).parent = pid - 100;
        }
        standin::machine().processes->emplace(900, made(400));
        made(900).parent = 400;
        made(900).uid = 65534;
        fixture->start(1);
        Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->stop();
        fixture->refresh(1);
    }

    /// 300 processes of the user from 1000 on, all at the top of a tree, with 100 of another user before.
    void startWithMany()
    {
        for (int pid = 900; pid < 1300; ++pid) {
            standin::Process process = made(100);
            process.name = "many" + std::to_string(pid);
            process.uid = pid < 1000 ? 65534 : process.uid;
            standin::machine().processes->emplace(pid, process);
        }
        for (const int pid : {100, 200, 300, 400}) {
            standin::machine().processes->erase(pid);
        }
        fixture->start(1);
        Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->stop();
        view()->sortByColumn(PidColumn, Qt::AscendingOrder);
        QCoreApplication::processEvents();
    }

    static int top() { return list()->processAt(view()->indexAt(QPoint(0, 0))).pid(); }
    static QList<int> pids()
    {
        QList<int> all;
        for (int row = 0; row < list()->rowCount(); ++row) {
            all << list()->processAt(list()->index(row, 0)).pid();
        }
        return all;
    }

    /// Gives columns a width that no contents need.
    static void widen()
    {
        for (int column = 0; column < list()->columnCount(); ++column) {
            view()->setColumnWidth(column, 777);
        }
    }

    /// All processes are listed, in a tree below their parents, expanded, and the columns fit.
    static void verifyComplete()
    {
        QList<int> expected = {100, 200, 300, 400};
        if (list()->processTypes() == AllProcesses) {
            expected << 900;
        }
        QList<int> shown;
        const QModelIndex first = list()->rowOfPid(100);
        QCOMPARE(first, list()->index(0, 0));
        for (QModelIndex row = first; row.isValid(); row = view()->indexBelow(row)) {
            shown << list()->processAt(row).pid();
        }
        QCOMPARE(shown, expected);
        QCOMPARE(list()->rowCount(), list()->isFlat() ? expected.size() : 1);
        for (int column = 0; column + 1 < list()->columnCount(); ++column) { // the last one is stretched
            QVERIFY(view()->columnWidth(column) != 777);
        }
    }

    /// The reads since the last reset of General, of the process list and of the network.
    static void verifyReads(unsigned general, unsigned processes, unsigned network)
    {
        const standin::Calls &calls = standin::calls();
        QCOMPARE(calls.memory, general);
        QCOMPARE(calls.mountList, general);
        QCOMPARE(calls.processList, processes);
        QCOMPARE(calls.interfaceList, network);
    }
};

QTEST_MAIN(TestListChanges)
#include "test_listchanges.moc"
