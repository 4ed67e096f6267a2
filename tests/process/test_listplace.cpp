// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "process/listplace.h"
#include "tests/process/support/listview.h"

#include <QScrollBar>
#include <QtTest>

using namespace gtop_wrappers;

namespace {

/// A list of processes that started at their pid, in seconds since the epoch, but for `others`.
struct Processes : List
{
    Processes()
    {
        view.resize(300, 200);
        view.show();
        view.sortByColumn(PidColumn, Qt::AscendingOrder);
    }

    ProcModel::Snapshot refresh(std::initializer_list<std::pair<int, int>> pidsAndParents)
    {
        return refresh(makeSnapshot(pidsAndParents));
    }
    ProcModel::Snapshot refresh(ProcModel::Snapshot snapshot)
    {
        for (auto &entry : snapshot) {
            const int started = others.value(entry.first, entry.first);
            entry.second.params[StartedColumn].reset(new IntProcessParam(started));
        }
        proxy->refresh(snapshot);
        return snapshot;
    }
    void select(int pid) { view.setCurrentIndex(proxy->rowOfPid(pid)); }
    /// -1 if no row is selected, or not the current one only.
    int selected() const
    {
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        const bool isCurrent = rows.size() == 1 && rows.first().row() == view.currentIndex().row();
        return isCurrent ? proxy->processAt(rows.first()).pid() : -1;
    }
    int top() const { return proxy->processAt(view.indexAt(QPoint(0, 0))).pid(); }
    ListPlace place() const { return {*proxy, view}; }

    QMap<int, int> others; ///< start of processes that have taken a pid
};

/// Counts how often it is read.
class CountedParam : public IProcessParam
{
public:
    explicit CountedParam(int *counter) : count(counter) {}

    QVariant sortValue() const override
    {
        ++*count;
        return 0;
    }

private:
    int *count;
};

} // namespace

class TestListPlace : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theSelectionFollowsTheProcess_data()
    {
        const Rows<int, bool, int, int> row("mode", "remains", "started", "selected");
        int mode = 0; // 0 leaves the list as it is, 1 resets it, 2 makes a tree of it
        for (const QByteArray name : {"refreshed", "reset", "tree"}) {
            row(name + ": same process", mode, true, 2, 2);
            row(name + ": another one with the pid", mode, true, 99, -1);
            row(name + ": exited", mode++, false, 2, -1);
        }
    }

    void theSelectionFollowsTheProcess()
    {
        QFETCH(int, mode);
        QFETCH(bool, remains);
        QFETCH(int, started);
        Processes list;
        list.refresh({{1, 0}, {2, 1}, {3, 2}});
        list.select(2);
        const ListPlace place = list.place();
        if (mode == 1) {
            list.proxy->setProcessTypes(MyProcesses);
        } else if (mode == 2) {
            list.proxy->setFlat(false);
        }
        list.others[2] = started;
        if (remains) {
            list.refresh({{1, 0}, {2, 1}, {3, 2}});
        } else {
            list.refresh({{1, 0}, {3, 1}});
        }
        place.restoreSelection(*list.proxy, list.view);
        QTEST(list.selected(), "selected");
        QCOMPARE(list.view.currentIndex().isValid(), list.selected() != -1);
        QCOMPARE(selectedRow(list.view).isValid(), list.selected() != -1);
    }

    void restoringLeavesNoSelectionAndTheRightOneAlone()
    {
        Processes list;
        list.refresh({{1, 0}, {2, 0}});
        const ListPlace none = list.place();
        list.proxy->setProcessTypes(MyProcesses);
        list.refresh({{1, 0}, {2, 0}});
        none.restoreSelection(*list.proxy, list.view);
        none.restoreView(*list.proxy, list.view);
        QVERIFY(!list.view.selectionModel()->hasSelection());
        QVERIFY(!list.view.currentIndex().isValid());
        list.select(2);
        const ListPlace place = list.place();
        const QSignalSpy changes(list.view.selectionModel(),
                                 SIGNAL(selectionChanged(QItemSelection, QItemSelection)));
        const QSignalSpy moves(list.view.selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)));
        list.refresh({{1, 0}, {2, 0}, {3, 0}});
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(moves.count(), 0);
        QCOMPARE(list.selected(), 2);
    }

    void theCurrentColumnStaysOrIsTheFirst()
    {
        Processes list;
        list.refresh({{1, 0}, {2, 0}});
        list.view.setCurrentIndex(list.proxy->rowOfPid(2).siblingAtColumn(list.proxy->columnCount() - 1));
        for (const unsigned long hidden : {CpuTimeColumn, StartedColumn}) {
            const int column = list.view.currentIndex().column();
            const ListPlace place = list.place();
            list.proxy->setColumnVisible(hidden, false);
            list.refresh({{1, 0}, {2, 0}});
            place.restoreSelection(*list.proxy, list.view);
            QCOMPARE(list.selected(), 2);
            QCOMPARE(list.view.currentIndex().column(), column < list.proxy->columnCount() ? column : 0);
        }
    }

    void ancestorsAreExpandedAgainIfTheyWere_data()
    {
        const Rows<int> row("collapsed"); // pid; 0 for none
        row("expanded", 0);
        row("parent collapsed", 2);
        row("grandparent collapsed", 1);
    }

    void ancestorsAreExpandedAgainIfTheyWere()
    {
        QFETCH(int, collapsed);
        Processes list;
        list.proxy->setFlat(false);
        list.refresh({{1, 0}, {2, 1}, {3, 2}});
        list.select(3);
        if (collapsed > 0) {
            list.view.collapse(list.proxy->rowOfPid(collapsed));
        }
        const ListPlace place = list.place();
        list.refresh({{1, 0}, {2, 1}, {3, 2}, {4, 3}}); // makes all items anew
        QVERIFY(!list.view.isExpanded(list.proxy->rowOfPid(1)));
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(list.selected(), 3);
        for (const int ancestor : {1, 2}) {
            QCOMPARE(list.view.isExpanded(list.proxy->rowOfPid(ancestor)), collapsed == 0);
        }
    }

    /// In the complete tree it is the same row wherever it moves.
    void aSelectedRowThatMovesStaysInSight()
    {
        Processes list;
        list.proxy->setFlat(false);
        list.proxy->setComplete(true);
        list.refresh({{1, 0}, {2, 1}, {3, 0}, {4, 3}});
        list.select(2);
        list.view.collapse(list.proxy->rowOfPid(3));
        const ListPlace place = list.place();
        const QPersistentModelIndex row(list.proxy->rowOfPid(2));
        list.refresh({{1, 0}, {2, 3}, {3, 0}, {4, 3}});
        QCOMPARE(row.parent(), list.proxy->rowOfPid(3));
        QCOMPARE(list.selected(), 2);
        QVERIFY(!list.view.isExpanded(row.parent()));
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(list.selected(), 2);
        QVERIFY(list.view.isExpanded(row.parent()));
    }

    void aProcessWithoutARowIsNotSelected()
    {
        Processes list;
        list.proxy->setFlat(false);
        list.refresh({{1, 0}, {2, 1}});
        list.select(2);
        const ListPlace place = list.place();
        list.refresh({{1, 0}, {2, 1}, {3, 1}}); // the new item of 1 has only the new child
        QCOMPARE(list.proxy->processByPid(2).pid(), 2);
        QVERIFY(!list.proxy->rowOfPid(2).isValid());
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(list.selected(), -1);
    }

    void aProcessThatLivesWithoutARowIsRowless()
    {
        Processes list;
        list.refresh({{1, 0}, {2, 1}});
        QVERIFY(!list.place().hasSelection());
        QVERIFY(!list.place().isRowless(*list.proxy, makeSnapshot({{1, 0}, {2, 1}})));
        list.select(2);
        const ListPlace place = list.place();
        QVERIFY(place.hasSelection());
        const ProcModel::Snapshot reparented = list.refresh({{1, 0}, {2, 0}});
        QVERIFY(!list.proxy->rowOfPid(2).isValid());
        QVERIFY(place.isRowless(*list.proxy, reparented));
        list.refresh({{1, 0}, {2, 0}});
        QVERIFY(!place.isRowless(*list.proxy, reparented));
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(list.selected(), 2);
        const ProcModel::Snapshot without = list.refresh({{1, 0}});
        QVERIFY(!place.isRowless(*list.proxy, without));
        list.others[2] = 99;
        const ProcModel::Snapshot another = list.refresh({{1, 0}, {2, 1}});
        QVERIFY(!place.isRowless(*list.proxy, another));
    }

    void selectingDoesNotScroll()
    {
        Processes list;
        list.refresh(makeSnapshot(factsUpTo(300)));
        list.select(250);
        list.view.verticalScrollBar()->setValue(10);
        const ListPlace place = list.place();
        list.proxy->setProcessTypes(MyProcesses);
        list.refresh(makeSnapshot(factsUpTo(300)));
        list.view.verticalScrollBar()->setValue(20);
        place.restoreSelection(*list.proxy, list.view);
        QCOMPARE(list.selected(), 250);
        QCOMPARE(list.view.verticalScrollBar()->value(), 20);
        QVERIFY(list.view.hasAutoScroll());
        place.restoreView(*list.proxy, list.view);
        QCOMPARE(list.view.verticalScrollBar()->value(), 10);
    }

    void theViewIsScrolledToWhatWasInIt_data()
    {
        // Pids: of the top row and the selected one (0 for none) before, of the first process and the top row
        // after.
        const Rows<int, int, int, int> row("top", "selected", "first", "expected");
        row("at the top", 100, 0, 100, 100);
        row("at the top, others come before", 100, 0, 1, 1);
        row("in the middle", 200, 0, 100, 200);
        row("in the middle, others come before", 200, 0, 1, 200);
        row("in the middle, others go before", 200, 0, 150, 200);
        row("the top row goes", 200, 0, 220, 320); // as far down as before
        row("selected in view", 200, 202, 1, 200);
        row("selected out of view", 200, 390, 1, 200);
    }

    void theViewIsScrolledToWhatWasInIt()
    {
        QFETCH(int, top);
        QFETCH(int, selected);
        QFETCH(int, first);
        Processes list;
        FactsByPid facts = factsUpTo(500);
        facts.erase(facts.begin(), facts.find(100));
        list.refresh(makeSnapshot(facts));
        if (selected > 0) {
            list.select(selected);
        }
        list.view.scrollTo(list.proxy->rowOfPid(top), QAbstractItemView::PositionAtTop);
        QCOMPARE(list.top(), top);
        const ListPlace place = list.place();
        list.proxy->setProcessTypes(MyProcesses);
        facts = factsUpTo(500);
        facts.erase(facts.begin(), facts.find(first));
        list.refresh(makeSnapshot(facts));
        place.restoreSelection(*list.proxy, list.view);
        place.restoreView(*list.proxy, list.view);
        QTEST(list.top(), "expected");
    }

    void theSelectedRowComesIntoViewIfItWas()
    {
        Processes list;
        FactsByPid facts = factsUpTo(500);
        facts.erase(facts.begin(), facts.find(100));
        list.refresh(makeSnapshot(facts));
        list.select(102);
        const ListPlace place = list.place();
        list.proxy->setProcessTypes(MyProcesses);
        list.refresh(makeSnapshot(factsUpTo(500)));
        place.restoreSelection(*list.proxy, list.view);
        place.restoreView(*list.proxy, list.view);
        QVERIFY(
            list.view.viewport()->rect().contains(list.view.visualRect(list.proxy->rowOfPid(102)).center()));
    }

    void theSelectedRowIsThatOfItsFirstCell()
    {
        Processes list;
        list.refresh({{1, 0}, {2, 0}});
        QVERIFY(!selectedRow(list.view).isValid());
        list.view.setCurrentIndex(list.proxy->index(1, 4));
        QCOMPARE(selectedRow(list.view), list.proxy->index(1, 0));
        list.view.selectionModel()->clearSelection(); // the current index stays
        QVERIFY(list.view.currentIndex().isValid());
        QVERIFY(!selectedRow(list.view).isValid());
    }

    void aSelectedRowCountsEvenIfItIsNotTheCurrentOne()
    {
        Processes list;
        list.refresh({{1, 0}, {2, 0}, {3, 0}});
        const auto highlight = [&list](int row, QItemSelectionModel::SelectionFlags how) {
            list.view.selectionModel()->select(list.proxy->index(row, 3), how);
        };
        highlight(1, QItemSelectionModel::Select); // a single cell
        QVERIFY(!list.view.currentIndex().isValid());
        QCOMPARE(selectedRow(list.view), list.proxy->index(1, 0));
        list.select(1);
        highlight(2, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        QCOMPARE(list.view.currentIndex().row(), 0);
        QCOMPARE(selectedRow(list.view), list.proxy->index(2, 0));
        highlight(1, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QVERIFY(!selectedRow(list.view).isValid()); // either could be meant
        highlight(0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QCOMPARE(selectedRow(list.view), list.proxy->index(0, 0));
    }

    void onlyWhatIsInViewIsRead()
    {
        Processes list;
        ProcModel::Snapshot snapshot = makeSnapshot(factsUpTo(100));
        int first = 0;
        int last = 0;
        for (auto &entry : snapshot) {
            entry.second.params[NameColumn].reset(new CountedParam(&first));
            entry.second.params[CommandLineColumn].reset(new CountedParam(&last));
        }
        list.refresh(snapshot);
        const auto rowsRead = [&](int *count) {
            *count = 0;
            readCellsInView(list.view);
            return *count;
        };
        const int inView = rowsRead(&first);
        QVERIFY(inView > 3 && inView < 50);
        QCOMPARE(rowsRead(&last), 0);
        list.view.horizontalScrollBar()->setValue(list.view.horizontalScrollBar()->maximum());
        QCOMPARE(rowsRead(&first), 0);
        QCOMPARE(rowsRead(&last), inView);
        list.view.hide();
        QCOMPARE(rowsRead(&last), 0);
    }
};

QTEST_MAIN(TestListPlace)
#include "test_listplace.moc"
