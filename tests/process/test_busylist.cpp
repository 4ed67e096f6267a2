// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/listview.h"
#include "tests/process/support/referencetree.h"
#include "tests/process/support/world.h"
#include "tests/support/rows.h"

#include <QScrollBar>
#include <QtTest>

namespace {

const int processes = 1150;
const int firstFreeColumn = 3; ///< the checks read the columns before it

/// The list in a window, the simulated machine, and the literal rules to compare with.
class BusyList : public List
{
public:
    BusyList(unsigned int seed, bool isFlat) : world(seed, processes), reference(isFlat), total(1)
    {
        proxy->setFlat(isFlat);
        view.resize(600, 400);
        view.show();
    }

    void refresh()
    {
        const int current = proxy->processAt(view.currentIndex()).pid();
        const FactsByPid before = world.facts();
        world.step();
        total += world.totalDelta();
        proxy->setTotalCpuTime(total);
        proxy->refresh(makeSnapshot(world.facts()));
        reference.refresh(world.facts(), world.totalDelta());
        if (source->isFlat() && current != -1) {
            checkCurrent(before.at(current));
        }
    }

    /// Does what users do between two refreshes.
    void use()
    {
        switch (world.pick(8)) {
        case 0:
            view.sortByColumn(world.pick(proxy->columnCount()),
                              world.pick(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 1:
        case 2:
            view.verticalScrollBar()->setValue(world.pick(view.verticalScrollBar()->maximum() + 1));
            break;
        case 3:
            view.setExpanded(anyIndex(), world.pick(2) == 0);
            break;
        case 4:
        case 5:
            view.setCurrentIndex(anyIndex());
            break;
        case 6:
            view.scrollTo(anyIndex());
            break;
        default:
            QCoreApplication::processEvents();
            break;
        }
    }

    /// Does something that empties the list, and clears the reference too.
    void reset()
    {
        switch (world.pick(4)) {
        case 0: {
            const unsigned long column = static_cast<unsigned long>(firstFreeColumn + world.pick(10));
            proxy->setColumnVisible(column, !proxy->isColumnVisible(column));
            break;
        }
        case 1:
            proxy->setProcessTypes(world.pick(2));
            break;
        case 2: // changes the mode twice
            proxy->setFlat(!proxy->isFlat());
            proxy->setFlat(!proxy->isFlat());
            break;
        default:
            proxy->setFlat(proxy->isFlat());
            break;
        }
        reference.clear();
    }

    void check() const
    {
        QCOMPARE(shapeWithLoad(*source), reference.shape());
        checkRows(QModelIndex(), QModelIndex());
    }

    /// Includes orphans.
    void checkItems() const
    {
        const std::set<int> expected = reference.pids();
        for (const auto &entry : world.facts()) {
            const int pid = entry.first;
            QCOMPARE(source->processByPid(pid).pid(), expected.count(pid) ? pid : -1);
        }
    }

private:
    QModelIndex anyIndex()
    {
        const int rows = proxy->rowCount();
        QModelIndex index = rows > 0 ? proxy->index(world.pick(rows), 0) : QModelIndex();
        while (proxy->rowCount(index) > 0 && world.pick(2) == 0) {
            index = proxy->index(world.pick(proxy->rowCount(index)), 0, index);
        }
        return index;
    }

    /// The current row stays with its process unless that was replaced.
    void checkCurrent(const Facts &before) const
    {
        const auto now = world.facts().find(before.pid);
        if (now != world.facts().end() && now->second.ppid == before.ppid &&
            now->second.name == before.name) {
            QCOMPARE(proxy->processAt(view.currentIndex()).pid(), before.pid);
        }
    }

    /// Every row of the proxy maps to a row of the model and shows its process.
    void checkRows(const QModelIndex &parent, const QModelIndex &sourceParent) const
    {
        const int rows = proxy->rowCount(parent);
        QCOMPARE(rows, source->rowCount(sourceParent));
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = proxy->index(row, 0, parent);
            const QModelIndex mapped = proxy->mapToSource(index);
            QVERIFY(mapped.isValid());
            QCOMPARE(mapped.parent(), sourceParent);
            const auto facts = world.facts().find(static_cast<int>(mapped.internalId()));
            QVERIFY(facts != world.facts().end());
            QCOMPARE(proxy->index(row, 2, parent).data().toInt(), facts->first);
            QCOMPARE(index.data().toString(), facts->second.name);
            checkRows(index, mapped);
        }
    }

    World world;
    ReferenceTree reference;
    unsigned long total;
};

} // namespace

/// More than a thousand processes that start, exit and change while a view is used.
class TestBusyList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRefreshShowsWhatTheRulesSay_data()
    {
        const Rows<bool, unsigned int> row("flat", "seed");
        row("flat", true, 4711U);
        row("tree", false, 4712U);
    }

    void everyRefreshShowsWhatTheRulesSay()
    {
        QFETCH(bool, flat);
        QFETCH(unsigned int, seed);
        const int refreshes = qEnvironmentVariableIntValue("ZSM_TEST_REFRESHES");
        BusyList list(seed, flat);
        for (int round = 1; round <= (refreshes > 0 ? refreshes : 200); ++round) {
            list.refresh();
            list.check();
            if (round % 50 == 0) {
                list.checkItems();
            }
            if (round % 20 == 0) {
                list.reset();
            }
            for (int i = 0; i < 4; ++i) {
                list.use();
            }
            if (QTest::currentTestFailed()) {
                qWarning("failed in refresh %d", round);
                return;
            }
        }
    }
};

QTEST_MAIN(TestBusyList)
#include "test_busylist.moc"
