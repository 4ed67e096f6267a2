// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/firstcellonly.h"
#include "tests/process/support/forest.h"
#include "tests/process/support/listview.h"
#include "tests/process/support/plaintree.h"
#include "tests/process/support/referencetree.h"
#include "tests/support/rows.h"

#include <QScrollBar>
#include <QtTest>

namespace {

enum Mode { FlatList, RequiredTree, CompleteTree };

struct ShownRow
{
    int parent;
    bool isExpanded;
    QPersistentModelIndex index;
};

/// The list in a window with everything attached, the simulated machine, and the rules to compare with.
class ModelledList : public List
{
public:
    ModelledList(Shape shape, int processes) : forest(shape, processes, 15U)
    {
        setMode(CompleteTree);
        testFirstCells(proxy, &owner);
        testFirstCells(source, &owner);
        view.resize(600, 400);
        view.show();
    }

    void setMode(Mode next)
    {
        mode = next;
        proxy->setFlat(mode == FlatList);
        proxy->setComplete(mode == CompleteTree);
        plain.clear();
        required = ReferenceTree(mode == FlatList);
        fills = true;
    }

    void refresh()
    {
        before = shownRows();
        const int current = proxy->pidAt(view.currentIndex());
        forest.step();
        proxy->setTotalCpuTime(total += 100);
        proxy->refresh(makeSnapshot(forest.alive));
        if (mode == CompleteTree) {
            plain.refresh(forest.alive, 100);
        } else {
            required.refresh(forest.alive, 100);
        }
        check();
        if (mode == CompleteTree) {
            checkExpanded();
            if (shownRows().contains(current)) {
                QCOMPARE(proxy->pidAt(view.currentIndex()), current);
            }
        }
        fills = false;
    }

    void check() const
    {
        if (mode != CompleteTree) {
            QCOMPARE(shapeWithLoad(*source), required.shape());
            return;
        }
        QCOMPARE(rowsWithLoad(*source), plain.rows());
        Parents shown;
        const QMap<int, ShownRow> rows = shownRows();
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            shown.insert(row.key(), row->parent);
        }
        QCOMPARE(shown, plainlyFiltered());
    }

    /// Does what users do between two refreshes.
    void use()
    {
        const QList<int> pids = shownRows().keys();
        const QModelIndex any =
            pids.isEmpty() ? QModelIndex() : proxy->rowOfPid(pids.at(forest.pick(pids.size())));
        switch (forest.pick(9)) {
        case 0:
            view.sortByColumn(forest.pick(3), forest.pick(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 1:
            view.verticalScrollBar()->setValue(forest.pick(view.verticalScrollBar()->maximum() + 1));
            break;
        case 2:
        case 3:
            view.setExpanded(any, forest.pick(2) == 0);
            break;
        case 4:
        case 5:
            view.setCurrentIndex(any);
            break;
        case 6:
            filter(forest.pick(3) == 0 ? QString::number(forest.pick(10)) : QString());
            break;
        case 7:
            if (forest.pick(4) == 0) {
                setMode(static_cast<Mode>(forest.pick(3)));
            }
            break;
        default:
            QCoreApplication::processEvents();
            break;
        }
    }

private:
    void filter(const QString &next)
    {
        text = next;
        if (text.isEmpty() && forest.pick(2) == 0) {
            proxy->closeFilter();
        } else {
            proxy->setFilter(text);
        }
        if (!fills) {
            check();
        }
    }

    /// Fails if a process is in two rows.
    QMap<int, ShownRow> shownRows() const
    {
        QMap<int, ShownRow> rows;
        std::vector<QModelIndex> above{QModelIndex()};
        while (!above.empty()) {
            const QModelIndex parent = above.back();
            above.pop_back();
            for (int row = 0; row < proxy->rowCount(parent); ++row) {
                const QModelIndex index = proxy->index(row, 0, parent);
                above.push_back(index);
                const int pid = proxy->pidAt(index);
                if (rows.contains(pid) || proxy->data(index.siblingAtColumn(2)).toInt() != pid) {
                    qFatal("process %d is not in one row", pid);
                }
                rows.insert(pid, {proxy->pidAt(parent), view.isExpanded(index), index});
            }
        }
        return rows;
    }

    /// What the filter leaves: what contains the text in its name or pid, and what leads to it.
    Parents plainlyFiltered() const
    {
        const Parents parents = plain.parents();
        Parents shown;
        for (int pid : parents.keys()) {
            if (!QString::number(pid).contains(text) && !forest.alive.at(pid).name.contains(text)) {
                continue;
            }
            for (; pid != -1 && !shown.contains(pid); pid = parents.value(pid)) {
                shown.insert(pid, parents.value(pid));
            }
        }
        return shown;
    }

    /// By pid, and by the indexes that a view keeps. New rows are collapsed, and the first refresh expands
    /// all.
    void checkExpanded() const
    {
        const QMap<int, ShownRow> now = shownRows();
        for (auto row = now.begin(); row != now.end() && text.isEmpty(); ++row) {
            const auto old = before.find(row.key());
            const bool isOld = !fills && old != before.end();
            QCOMPARE(row->isExpanded, fills || (isOld && old->isExpanded));
            if (isOld) {
                QCOMPARE(old->index, row->index);
            }
        }
    }

    Forest forest;
    Mode mode = CompleteTree;
    PlainTree plain;
    ReferenceTree required{false};
    QString text;               ///< of the filter
    QMap<int, ShownRow> before; ///< the refresh, by pid
    unsigned long total = 1;
    bool fills = true; ///< the next refresh is the first one of the list
};

} // namespace

/// The complete tree after random changes, with everything attached, against the plain rules.
class TestCompleteList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRefreshShowsEachProcessOnceUnderItsParent_data()
    {
        const Rows<Shape, int, int> row("shape", "processes", "refreshes"); // ZSM_TEST_REFRESHES overrides
        row("few", Bushes, 6, 800);
        row("bushes", Bushes, 40, 150);
        row("many", Bushes, 200, 15);
        row("chains from small to great pids", ChainsDown, 25, 150);
        row("chains from great to small pids", ChainsUp, 25, 150);
        row("small rings", Rings, 6, 800);
        row("rings", Rings, 30, 150);
    }

    void everyRefreshShowsEachProcessOnceUnderItsParent()
    {
        QFETCH(Shape, shape);
        QFETCH(int, processes);
        QFETCH(int, refreshes);
        if (qEnvironmentVariableIsSet("ZSM_TEST_REFRESHES")) {
            refreshes = qEnvironmentVariableIntValue("ZSM_TEST_REFRESHES");
        }
        ModelledList list(shape, processes);
        for (int round = 1; round <= refreshes; ++round) {
            list.refresh();
            for (int i = 0; i < 3; ++i) {
                list.use();
            }
            if (QTest::currentTestFailed()) {
                qWarning("failed in refresh %d", round);
                return;
            }
        }
    }
};

QTEST_MAIN(TestCompleteList)
#include "test_completelist.moc"
