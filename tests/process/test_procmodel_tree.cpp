// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"
#include "tests/process/support/referencetree.h"
#include "tests/process/support/synthetic.h"

#include <QSignalSpy>
#include <QtTest>

using gtop_wrappers::IntProcessParam;

namespace {

class OpenModel : public ProcModel
{
public:
    using ProcModel::createIndex;
    OpenModel() { setFlat(false); }
    QString shape() const { return shapeOf(*this); }
    bool has(int pid) const { return processByPid(pid).pid() == pid; }
    QModelIndex indexOfOrphan(int pid) const { return createIndex(0, 0, static_cast<quintptr>(pid)); }
};

} // namespace

/// The shapes of the tree, worked out by hand from the rule that a new child brings new copies of its
/// ancestors.
class TestProcModelTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aProcessWithoutParentInTheSnapshotHangsUnderTheRoot();
    void aChainKeepsItsWholeLine();
    void ofTwoChildrenOnlyTheLastHangsUnderTheParent();
    void aParentWithHigherPidLosesTheChildItCameWith();
    void siblingsAtTwoLevels();
    void aNewChildBringsNewAncestors();
    void aProcessThatStaysUnderItsParentIsUpdatedInPlace();
    void aVanishedParentTakesItsShownChildren();
    void aMismatchTakesItsSubtreeForOneRefresh();
    void aMatchedChildOfALaterMismatchIsNotInsertedTwice();

    void anOrphanHasNoParentAndRowZero();
    void anOrphanIsStillUpdated();
    void anOrphanLeavesWithoutSignals();
    void anOrphansChildrenLeaveWithIt();

    void aProcessThatIsItsOwnParentHangsUnderTheRoot();
    void aRingOfTwoIsCut();
    void aRingOfThreeIsCut();
    void aRingAboveAChainIsCut();
    void randomRingsAreTheSameAsInTheReference();

    void aChainOf600Builds();
    void aLineOf30000AncestorsIsInsertedAndRemoved();
};

void TestProcModelTree::aProcessWithoutParentInTheSnapshotHangsUnderTheRoot()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {50, 49}, {60, -1}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1 50 60"));
}

void TestProcModelTree::aChainKeepsItsWholeLine()
{
    // 1 | 2 makes 1 anew | 3 makes 1 and 2 anew: the last line is whole.
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(2(3))"));
    QCOMPARE(model.index(0, 0, model.index(0, 0, model.index(0, 0))).parent().internalId(), quintptr(2));
}

void TestProcModelTree::ofTwoChildrenOnlyTheLastHangsUnderTheParent()
{
    // 3 makes 1 anew, so 2 keeps hanging under the old 1, which is gone.
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(3)"));
    QVERIFY(model.has(2));
}

void TestProcModelTree::aParentWithHigherPidLosesTheChildItCameWith()
{
    // 5 comes first and brings 9; then 9 comes in its own right as a new copy.
    OpenModel model;
    model.update(makeSnapshot({{5, 9}, {9, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("9"));
    QVERIFY(model.has(5));
}

void TestProcModelTree::siblingsAtTwoLevels()
{
    // 1(2) | 3 makes 1 anew, 2 is lost: 1(3) | 4 brings 1 and 2, 3 is lost: 1(2(4)) | 5 brings 1 and 3, 2 is
    // lost with 4 below it: 1(3(5)) | 6
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}, {5, 3}, {6, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(3(5)) 6"));
    QVERIFY(model.has(2) && model.has(4));
}

void TestProcModelTree::aNewChildBringsNewAncestors()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {7, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(2) 7"));
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {7, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("7 1(3)")); // the new 1 is appended behind 7
    QVERIFY(model.has(2));
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}, {7, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("7 1(2(4))")); // 2 is back, 3 is lost
}

void TestProcModelTree::aProcessThatStaysUnderItsParentIsUpdatedInPlace()
{
    OpenModel model;
    const ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {2, 1}, {3, 1}});
    model.update(snapshot, 1);
    const QSignalSpy insertions(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    const QSignalSpy removals(&model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    model.update(snapshot, 1);
    QCOMPARE(model.shape(), QStringLiteral("1(3)"));
    QCOMPARE(insertions.count() + removals.count(), 0);
}

void TestProcModelTree::aVanishedParentTakesItsShownChildren()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), 1);
    // 3 says the same parent as before, so it is updated first and then goes with its parent.
    model.update(makeSnapshot({{1, 0}, {3, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1"));
    QVERIFY(!model.has(3));
    model.update(makeSnapshot({{1, 0}, {3, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1 3"));
}

void TestProcModelTree::aMismatchTakesItsSubtreeForOneRefresh()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), 1);
    // 2 got another parent: it goes with 3 and comes again, with 3 anew, and both are stale still.
    const ProcModel::Snapshot reparented = makeSnapshot({{1, 0}, {2, 0}, {3, 2}});
    model.update(reparented, 1);
    QCOMPARE(model.shape(), QStringLiteral("1"));
    model.update(reparented, 1);
    QCOMPARE(model.shape(), QStringLiteral("1 2(3)"));
}

void TestProcModelTree::aMatchedChildOfALaterMismatchIsNotInsertedTwice()
{
    OpenModel model;
    model.update(makeSnapshot({{2, 8}, {8, 0}}), 1);
    model.update(makeSnapshot({{2, 8}, {8, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("8"));
    model.update(makeSnapshot({{2, 8}, {3, 8}, {8, 0}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("8(3)"));
    // 3 matches before 8 turns out to be another: it goes with 8 and waits for the next refresh.
    model.update(makeSnapshot({{2, 8}, {3, 8}, {8, 1}}), 1);
    QCOMPARE(model.shape(), QString());
    QVERIFY(!model.has(3) && model.has(2));
}

void TestProcModelTree::anOrphanHasNoParentAndRowZero()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 1);
    const QModelIndex orphan = model.indexOfOrphan(2);
    QVERIFY(!model.parent(orphan).isValid());
    QCOMPARE(model.data(orphan).toString(), QStringLiteral("p2"));
    QCOMPARE(model.rowCount(orphan), 0);
}

void TestProcModelTree::anOrphanIsStillUpdated()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 100);
    Facts orphan;
    orphan.pid = 2;
    orphan.ppid = 1;
    orphan.name = QStringLiteral("p2");
    orphan.cpuCounter = 150;
    ProcModel::Snapshot snapshot = makeSnapshot({{1, 0}, {3, 1}});
    snapshot.emplace(2, makeProcess(orphan));
    model.update(snapshot, 100);
    QVERIFY(model.has(2));
    QCOMPARE(model.processByPid(2).getParam(1)->displayValue().toString(), QStringLiteral("50.0 %"));
}

void TestProcModelTree::anOrphanLeavesWithoutSignals()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 1);
    const QSignalSpy removals(&model, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)));
    model.update(makeSnapshot({{1, 0}, {3, 1}}), 1);
    QVERIFY(!model.has(2));
    QCOMPARE(removals.count(), 0);
    QCOMPARE(model.shape(), QStringLiteral("1(3)"));
}

void TestProcModelTree::anOrphansChildrenLeaveWithIt()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), 1);
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 1}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(4)")); // 2 is an orphan with 3 below it
    const QModelIndex orphan = model.indexOfOrphan(2);
    QCOMPARE(model.rowCount(orphan), 1);
    QCOMPARE(model.index(0, 0, orphan).parent(), orphan);

    const QSignalSpy removals(&model, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)));
    model.update(makeSnapshot({{1, 0}, {3, 2}, {4, 1}}), 1);
    QVERIFY(!model.has(2) && !model.has(3));
    QCOMPARE(removals.count(), 0);
}

void TestProcModelTree::aProcessThatIsItsOwnParentHangsUnderTheRoot()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 0}, {2, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1 2"));
    model.update(makeSnapshot({{1, 0}, {2, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1 2"));
}

void TestProcModelTree::aRingOfTwoIsCut()
{
    // 2 brings 3, whose parent is on the path: 3(2) | then 3 brings 2 under the root: 2(3)
    OpenModel model;
    model.update(makeSnapshot({{2, 3}, {3, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("2(3)"));
}

void TestProcModelTree::aRingOfThreeIsCut()
{
    // 1 <- 2 <- 3 <- 1. Line of 1: 2(3(1)) from the top: its parent 3, then 2, whose parent 1 is on the path.
    // Line of 3, the last: parent 2, its parent 1, whose parent 3 is on the path: 1(2(3)).
    OpenModel model;
    model.update(makeSnapshot({{1, 3}, {2, 1}, {3, 2}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(2(3))"));
}

void TestProcModelTree::aRingAboveAChainIsCut()
{
    OpenModel model;
    model.update(makeSnapshot({{1, 2}, {2, 1}, {3, 2}, {4, 3}}), 1);
    QCOMPARE(model.shape(), QStringLiteral("1(2(3(4)))"));
}

void TestProcModelTree::randomRingsAreTheSameAsInTheReference()
{
    OpenModel model;
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

void TestProcModelTree::aChainOf600Builds()
{
    OpenModel model;
    FactsByPid facts;
    for (int pid = 1; pid <= 600; ++pid) {
        facts[pid].pid = pid;
        facts[pid].ppid = pid - 1;
    }
    model.update(makeSnapshot(facts), 10);
    QModelIndex index;
    for (int pid = 1; pid <= 600; ++pid) {
        QCOMPARE(model.rowCount(index), 1);
        index = model.index(0, 0, index);
        QCOMPARE(index.internalId(), static_cast<quintptr>(pid));
    }
}

void TestProcModelTree::aLineOf30000AncestorsIsInsertedAndRemoved()
{
    // All hang under the root at first. Then their parents are changed where nobody notices, in the values
    // that model and snapshot share, so that one new process brings the whole line anew.
    const int depth = 30000;
    OpenModel model;
    ProcModel::Snapshot snapshot;
    for (int pid = 1; pid <= depth; ++pid) {
        gtop_wrappers::Process process(pid);
        process.params.resize(10);
        process.params[9].reset(new IntProcessParam(0));
        snapshot.emplace(pid, process);
    }
    model.update(snapshot, 10);
    QCOMPARE(model.rowCount(), depth);
    for (int pid = 1; pid <= depth; ++pid) {
        dynamic_cast<IntProcessParam &>(*snapshot.at(pid).params[9]) = IntProcessParam(pid - 1);
    }
    gtop_wrappers::Process last(depth + 1);
    last.params.resize(10);
    last.params[9].reset(new IntProcessParam(depth));
    snapshot.emplace(depth + 1, last);

    model.update(snapshot, 10);
    QModelIndex index;
    for (int pid = 1; pid <= depth + 1; ++pid) {
        QCOMPARE(model.rowCount(index), 1);
        index = model.index(0, 0, index);
        QCOMPARE(index.internalId(), static_cast<quintptr>(pid));
    }
    model.update({}, 10);
    QCOMPARE(model.rowCount(), 0);
}

QTEST_MAIN(TestProcModelTree)
#include "test_procmodel_tree.moc"
