// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"
#include "tests/process/support/firstcellonly.h"
#include "tests/process/support/referencetree.h"

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <QtTest>

#include <iterator>
#include <random>
#include <vector>

namespace {

/// How the parent of a process is chosen.
enum Shape {
    Bushes,
    ChainsDown, ///< parents mostly have the next smaller pid
    ChainsUp,   ///< or the next greater one
    Rings,
};

/// A few processes with many changes between two refreshes.
class Forest
{
public:
    Forest(Shape parents, int processes, unsigned int seed) : random(seed), shape(parents), size(processes)
    {
        for (int i = 0; i < size; ++i) {
            change(shape == ChainsUp ? 2 * (size - i) : 2 * i + 1);
        }
    }

    void step()
    {
        for (int changes = pick(pick(4) == 0 ? size : 4); changes > 0; --changes) {
            change(1 + pick(2 * size));
        }
        for (auto &entry : alive) {
            entry.second.cpuCounter += pick(3);
        }
    }
    int pick(int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); }

    FactsByPid alive;

private:
    void change(int pid)
    {
        const auto found = alive.find(pid);
        if (found == alive.end() && static_cast<int>(alive.size()) < size) {
            alive[pid] = Facts{pid, parentFor(pid), QString::number(pick(3)), pick(100)};
        } else if (found == alive.end()) {
            return;
        } else if (const int what = pick(8); what == 0) {
            found->second.ppid = parentFor(pid);
        } else if (what == 1) {
            found->second.name = QString::number(pick(3));
        } else if (what == 2) { // children notice that their parent is gone, or are read too early
            alive.erase(found);
            for (auto &entry : alive) {
                entry.second.ppid = entry.second.ppid == pid && pick(2) == 0 ? 0 : entry.second.ppid;
            }
        }
    }
    int parentFor(int pid)
    {
        const auto self = alive.lower_bound(pid);
        if (alive.empty() || pick(20) == 0) {
            return pick(3) * pid; // none, itself, or somewhere beyond
        }
        if (shape == ChainsDown && pick(20) != 0) {
            return self != alive.begin() ? std::prev(self)->first : 0;
        }
        if (shape == ChainsUp && pick(20) != 0) {
            return self != alive.end() ? self->first : 0;
        }
        const auto any = std::next(alive.begin(), pick(static_cast<int>(alive.size())));
        if (shape == Rings && pick(3) == 0) {
            any->second.ppid = pid;
        }
        return any->first;
    }

    std::mt19937 random;
    Shape shape;
    int size;
};

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

Q_DECLARE_METATYPE(Shape)

/// The model after random changes, with everything attached, against the literal rules.
class TestRandomForests : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRefreshIsTheSameAsInTheReference_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<int>("processes");
        QTest::addColumn<int>("refreshes"); // ZSM_TEST_REFRESHES overrides
        QTest::newRow("few") << Bushes << 6 << 600;
        QTest::newRow("bushes") << Bushes << 40 << 100;
        QTest::newRow("chains from small to great pids") << ChainsDown << 25 << 120;
        QTest::newRow("chains from great to small pids") << ChainsUp << 25 << 120;
        QTest::newRow("deep chains from small to great pids") << ChainsDown << 120 << 20;
        QTest::newRow("deep chains from great to small pids") << ChainsUp << 120 << 20;
        QTest::newRow("small rings") << Rings << 6 << 600;
        QTest::newRow("rings") << Rings << 30 << 100;
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
        using Tester = QAbstractItemModelTester;
        for (QAbstractItemModel *model : {static_cast<QAbstractItemModel *>(proxy), proxy->sourceModel()}) {
            auto *firstCellOnly = new FirstCellOnly;
            firstCellOnly->setParent(view.get());
            firstCellOnly->setSourceModel(model);
            new Tester(firstCellOnly, Tester::FailureReportingMode::Fatal, view.get());
        }
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
