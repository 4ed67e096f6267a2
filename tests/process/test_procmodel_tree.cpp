// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"
#include "tests/process/support/referencetree.h"
#include "tests/process/support/synthetic.h"
#include "tests/support/rows.h"

#include <QtTest>

using gtop_wrappers::IntProcessParam;
using gtop_wrappers::Process;

namespace {

class Tree : public ProcModel
{
public:
    Tree() { setFlat(false); }
    bool has(int pid) const { return processByPid(pid).pid() == pid; }
    QModelIndex indexOfOrphan(int pid) const { return createIndex(0, 0, static_cast<quintptr>(pid)); }
};

/// Verifies that the model holds the line 1(2(3(...))) down to `lastPid`.
void verifyLine(const Tree &model, int lastPid)
{
    QModelIndex index;
    for (int pid = 1; pid <= lastPid; ++pid) {
        QCOMPARE(model.rowCount(index), 1);
        const QModelIndex child = model.index(0, 0, index);
        QCOMPARE(child.internalId(), static_cast<quintptr>(pid));
        QCOMPARE(child.parent(), index);
        index = child;
    }
}

} // namespace

class TestProcModelTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /// Worked out by hand from the rule that a new child brings new copies of its ancestors. "|" separates
    /// the insertions of one refresh.
    void shapesOfTheTree_data()
    {
        const Rows<Steps> row("steps");
        row("a process without a parent in the snapshot is at the top",
            {{makeSnapshot({{1, 0}, {50, 49}, {60, -1}}), "1 50 60"}});
        // 1 | 2 brings a new 1 | 3 brings a new 1 and a new 2
        row("a chain keeps its whole line", {{makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), "1(2(3))"}});
        // 3 brings a new 1, so 2 stays under the old 1, which is destroyed
        row("of two children only the last one is under the parent",
            {{makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), "1(3)", "2"}});
        // 5 brings 9; then 9 is inserted itself as a new copy
        row("a parent with a higher pid loses the child that brought it",
            {{makeSnapshot({{5, 9}, {9, 0}}), "9", "5"}});
        // 1(2) | 3 brings a new 1: 1(3), without 2 | 4 brings 1 and 2: 1(2(4)), without 3
        // | 5 brings 1 and 3: 1(3(5)), without 2, which keeps 4 | 6
        row("siblings at two levels",
            {{makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}, {5, 3}, {6, 0}}), "1(3(5)) 6", "2 4"}});
        row("a new child brings new ancestors",
            {{makeSnapshot({{1, 0}, {2, 1}, {7, 0}}), "1(2) 7"},
             {makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {7, 0}}), "7 1(3)", "2"},
             {makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}, {7, 0}}), "7 1(2(4))", "3"}});
        // 3 still has its old parent pid, so it is updated first and then removed with its parent
        row("a vanished parent takes its children along for one refresh",
            {{makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), "1(2(3))"},
             {makeSnapshot({{1, 0}, {3, 2}}), "1"},
             {makeSnapshot({{1, 0}, {3, 2}}), "1 3"}});
        // 2 was reparented: it is removed with 3 and inserted again with a new 3, and both are still stale
        row("a mismatch takes its subtree along for one refresh",
            {{makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), "1(2(3))"},
             {makeSnapshot({{1, 0}, {2, 0}, {3, 2}}), "1"},
             {makeSnapshot({{1, 0}, {2, 0}, {3, 2}}), "1 2(3)"}});
        // in the end 3 matches before 8 turns out to be another process: it is removed with 8
        row("a matched child of a later mismatch is not inserted twice",
            {{makeSnapshot({{2, 8}, {8, 0}}), "8", "2"},
             {makeSnapshot({{2, 8}, {8, 0}}), "8", "2"},
             {makeSnapshot({{2, 8}, {3, 8}, {8, 0}}), "8(3)", "2"},
             {makeSnapshot({{2, 8}, {3, 8}, {8, 1}}), "", "2"}});
        row("a process that is its own parent is at the top",
            {{makeSnapshot({{1, 0}, {2, 2}}), "1 2"}, {makeSnapshot({{1, 0}, {2, 2}}), "1 2"}});
        // 2 brings 3, whose parent is already on the path: 3(2) | then 3 brings 2 at the top
        row("a ring of two is cut", {{makeSnapshot({{2, 3}, {3, 2}}), "2(3)"}});
        // the line of 1 is 2(3(1)) | the line of 3, the last one, ends at 1, whose parent 3 is on the path
        row("a ring of three is cut", {{makeSnapshot({{1, 3}, {2, 1}, {3, 2}}), "1(2(3))"}});
        row("a ring above a chain is cut", {{makeSnapshot({{1, 2}, {2, 1}, {3, 2}, {4, 3}}), "1(2(3(4)))"}});
    }

    void shapesOfTheTree()
    {
        QFETCH(Steps, steps);
        Tree model;
        verifySteps(&model, steps);
    }

    void anOrphanHasNoParentAndIsStillUpdated()
    {
        Tree model;
        model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 100);
        const QModelIndex orphan = model.indexOfOrphan(2);
        QVERIFY(!model.parent(orphan).isValid());
        QCOMPARE(model.data(orphan).toString(), QStringLiteral("p2"));
        QCOMPARE(model.rowCount(orphan), 0);

        Facts busy;
        busy.pid = 2;
        busy.ppid = 1;
        busy.name = QStringLiteral("p2");
        busy.cpuCounter = 150;
        ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {3, 1}});
        snapshot.emplace(2, makeProcess(busy));
        model.update(snapshot, 100);
        QVERIFY(model.has(2));
        QCOMPARE(model.processByPid(2).getParam(1)->displayValue().toString(), QStringLiteral("50.0 %"));
    }

    void anOrphanLeavesWithItsChildrenAndWithoutSignals()
    {
        Tree model;
        verifySteps(&model, {{makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), "1(2(3))"},
                             {makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 1}}), "1(4)", "2 3"},
                             {makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 1}, {5, 1}}), "1(5)", "2 3 4"}});
        const QModelIndex orphan = model.indexOfOrphan(2);
        QCOMPARE(model.rowCount(orphan), 1);
        QCOMPARE(model.index(0, 0, orphan).parent(), orphan);

        const QSignalSpy removals(&model, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)));
        verifySteps(&model, {{makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {5, 1}}), "1(5)", "2 3"},
                             {makeSnapshot({{1, 0}, {3, 2}, {5, 1}}), "1(5)"}});
        QCOMPARE(removals.count(), 0);
    }

    void randomRingsAreTheSameAsInTheReference()
    {
        Tree model;
        ReferenceTree reference(false);
        for (int round = 0; round < 300; ++round) {
            FactsByPid facts;
            for (int pid = 1; pid <= 12; ++pid) {
                if ((pid * 7 + round) % 5 != 0) {
                    facts[pid].pid = pid;
                    facts[pid].ppid = (pid * (round / 3 + 3) + round / 2) % 13;
                }
            }
            model.update(makeSnapshot(facts), 10);
            reference.refresh(facts, 10);
            QCOMPARE(shapeWithLoad(model), reference.shape());
        }
    }

    void aLineOf600AncestorsIsBuilt()
    {
        Tree model;
        FactsByPid facts = factsUpTo(600);
        for (auto &entry : facts) {
            entry.second.ppid = entry.first - 1;
        }
        model.update(makeSnapshot(facts), 10);
        verifyLine(model, 600);
    }

    void aLineOf30000AncestorsIsInsertedAndRemoved()
    {
        // At first all are under the root. Then their parent pids are changed in the values that model and
        // snapshot share, where the model does not notice, so that one new process brings the whole line.
        const int depth = 30000;
        Tree model;
        ProcModel::Snapshot snapshot;
        const auto add = [&](int pid, int parent) {
            Process process(pid);
            process.params.resize(10);
            process.params[9].reset(new IntProcessParam(parent));
            snapshot.emplace(pid, process);
        };
        for (int pid = 1; pid <= depth; ++pid) {
            add(pid, 0);
        }
        model.update(snapshot, 10);
        QCOMPARE(model.rowCount(), depth);
        for (int pid = 1; pid <= depth; ++pid) {
            dynamic_cast<IntProcessParam &>(*snapshot.at(pid).params[9]) = IntProcessParam(pid - 1);
        }
        add(depth + 1, depth);
        model.update(snapshot, 10);
        verifyLine(model, depth + 1);
        model.update({}, 10);
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestProcModelTree)
#include "test_procmodel_tree.moc"
