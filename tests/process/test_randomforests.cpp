// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"
#include "tests/process/support/firstcellonly.h"
#include "tests/process/support/forest.h"
#include "tests/process/support/referencetree.h"
#include "tests/support/rows.h"

#include <QTreeView>
#include <QtTest>

#include <vector>

namespace {

/// All rows of the view, and whether they are expanded.
std::vector<std::pair<QPersistentModelIndex, bool>> rowsOf(const QTreeView &view)
{
    std::vector<std::pair<QPersistentModelIndex, bool>> rows;
    std::vector<QModelIndex> above{QModelIndex()};
    while (!above.empty()) {
        const QModelIndex parent = above.back();
        above.pop_back();
        for (int row = 0; row < view.model()->rowCount(parent); ++row) {
            above.push_back(view.model()->index(row, 0, parent));
            rows.emplace_back(above.back(), view.isExpanded(above.back()));
        }
    }
    return rows;
}

} // namespace

/// The model after random changes, with everything attached, against the literal rules.
class TestRandomForests : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRefreshIsTheSameAsInTheReference_data()
    {
        const Rows<Shape, int, int> row("shape", "processes", "refreshes"); // ZSM_TEST_REFRESHES overrides
        row("few", Bushes, 6, 600);
        row("bushes", Bushes, 40, 100);
        row("chains from small to great pids", ChainsDown, 25, 120);
        row("chains from great to small pids", ChainsUp, 25, 120);
        row("deep chains from small to great pids", ChainsDown, 120, 20);
        row("deep chains from great to small pids", ChainsUp, 120, 20);
        row("small rings", Rings, 6, 600);
        row("rings", Rings, 30, 100);
    }

    void everyRefreshIsTheSameAsInTheReference()
    {
        QFETCH(Shape, shape);
        QFETCH(int, processes);
        QFETCH(int, refreshes);
        forest = std::make_unique<Forest>(shape, processes, 1U);
        reference = std::make_unique<ReferenceTree>(false);
        start();
        if (qEnvironmentVariableIsSet("ZSM_TEST_REFRESHES")) {
            refreshes = qEnvironmentVariableIntValue("ZSM_TEST_REFRESHES");
        }
        for (int round = 0; round < refreshes && !QTest::currentTestFailed(); ++round) {
            forest->step();
            refresh();
            if (forest->pick(30) == 0) {
                reset();
            }
        }
    }

private:
    void start()
    {
        view = std::make_unique<QTreeView>();
        proxy = new ProxyProcModel(view.get());
        proxy->setView(view.get());
        proxy->setFlat(false);
        view->setSortingEnabled(true);
        testFirstCells(proxy, view.get());
        testFirstCells(proxy->sourceModel(), view.get());
        total = 1;
        fills = true;
    }

    void refresh()
    {
        const auto rows = rowsOf(*view);
        proxy->setTotalCpuTime(total += 100);
        proxy->refresh(makeSnapshot(forest->alive));
        reference->refresh(forest->alive, 100);
        const auto *source = qobject_cast<ProcModel *>(proxy->sourceModel());
        QCOMPARE(shapeWithLoad(*source), reference->shape());
        const std::set<int> items = reference->pids();
        for (const auto &entry : forest->alive) {
            QCOMPARE(source->processByPid(entry.first).pid() == entry.first, items.count(entry.first) > 0);
        }
        checkExpanded(rows);
    }

    /// Old rows stay as they were, new ones are collapsed, and the first refresh expands all.
    void checkExpanded(const std::vector<std::pair<QPersistentModelIndex, bool>> &before)
    {
        std::map<QModelIndex, bool> expected;
        for (const auto &[row, isExpanded] : before) {
            expected[row] = isExpanded;
        }
        for (const auto &[row, isExpanded] : rowsOf(*view)) {
            const auto found = expected.find(row);
            QCOMPARE(isExpanded, fills || (found != expected.end() && found->second));
            if (forest->pick(20) == 0) {
                view->setExpanded(row, !isExpanded);
            }
        }
        fills = false;
    }

    void reset()
    {
        if (forest->pick(3) == 0) { // there and back, with a refresh of the flat list
            proxy->setFlat(true);
            reference->clear();
            reference->setFlat(true);
            fills = false;
            forest->step();
            proxy->refresh(makeSnapshot(forest->alive));
            proxy->setFlat(false);
            reference->setFlat(false);
        } else {
            proxy->setProcessTypes(forest->pick(2));
        }
        reference->clear();
        fills = true;
    }

    std::unique_ptr<QTreeView> view;
    std::unique_ptr<Forest> forest;
    std::unique_ptr<ReferenceTree> reference;
    ProxyProcModel *proxy = nullptr; ///< owned by the view
    unsigned long total = 1;
    bool fills = true; ///< the next refresh is the first one of the list
};

QTEST_MAIN(TestRandomForests)
#include "test_randomforests.moc"
