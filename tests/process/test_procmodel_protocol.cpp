// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"
#include "tests/process/support/referencetree.h"
#include "tests/process/support/synthetic.h"
#include "tests/process/support/world.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QtTest>

namespace {

/// Shows the rows of a parent below its first cell only. The process model has them below every cell, which
/// is required of it and the one thing that the tester objects to.
class FirstCellOnly : public QIdentityProxyModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : QIdentityProxyModel::rowCount(parent);
    }
};

} // namespace

/// Writes down the signals of a model in their order.
class SignalLog : public QObject
{
    Q_OBJECT
public:
    explicit SignalLog(ProcModel *watched) : model(watched)
    {
        connect(model, SIGNAL(layoutAboutToBeChanged()), this, SLOT(noteLayoutBegin()));
        connect(model, SIGNAL(layoutChanged()), this, SLOT(noteLayoutEnd()));
        connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
                SLOT(noteInsertion(QModelIndex, int, int)));
        connect(model, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)), this,
                SLOT(noteRemoval(QModelIndex, int, int)));
        connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this, SLOT(noteData()));
    }
    QString take() { return std::exchange(entries, {}).join(QLatin1Char(' ')); }

private Q_SLOTS:
    void noteLayoutBegin() { entries.append(QStringLiteral("<")); }
    void noteLayoutEnd() { entries.append(QStringLiteral(">")); }
    void noteData() { entries.append(QStringLiteral("data")); }
    void noteInsertion(const QModelIndex &parent, int row, int) { note('+', parent, row); }
    void noteRemoval(const QModelIndex &parent, int row, int) { note('-', parent, row); }

private:
    void note(char sign, const QModelIndex &parent, int row)
    {
        const int pid = model->processAt(model->index(row, 0, parent)).pid();
        entries.append(QLatin1Char(sign) + QString::number(pid));
    }

    ProcModel *model;
    QStringList entries;
};

class TestProcModelProtocol : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void signalsInFlatMode();
    void signalsInTreeMode();
    void persistentIndexesStayOnTheirProcess();
    void theFlatListKeepsTheProtocol();
    void theTreeKeepsTheProtocol();
};

void TestProcModelProtocol::signalsInFlatMode()
{
    ProcModel model;
    SignalLog log(&model);
    model.update(makeSnapshot({{1, 0}, {2, 0}, {3, 0}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< > +1 +2 +3"));
    model.update(makeSnapshot({{1, 0}, {2, 0}, {3, 0}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< >"));
    // 2 is another process now: it goes before the layout change, comes, and goes again. 3 has ended.
    model.update(makeSnapshot({{1, 0}, {2, 1}, {4, 0}}), 1);
    QCOMPARE(log.take(), QStringLiteral("-2 < > +2 +4 -2 -3"));
}

void TestProcModelProtocol::signalsInTreeMode()
{
    ProcModel model;
    model.setFlat(false);
    SignalLog log(&model);
    model.update(makeSnapshot({{1, 0}, {2, 1}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< > +1 -1 +1 +2"));
    // A new child: the old 1 leaves with all below it, then the new one comes; 2 has no place any more.
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< > -1 +1 +3"));
    model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< > -1 +1 +2 +4"));
    // Children go before their parent.
    model.update(makeSnapshot({{1, 0}, {3, 1}}), 1);
    QCOMPARE(log.take(), QStringLiteral("< > -4 -2"));
}

void TestProcModelProtocol::persistentIndexesStayOnTheirProcess()
{
    ProcModel model;
    model.update(makeSnapshot({{1, 0}, {2, 0}, {3, 0}, {4, 0}}), 1);
    const QPersistentModelIndex third(model.index(2, 0));
    const QPersistentModelIndex second(model.index(1, 0));
    model.update(makeSnapshot({{2, 9}, {3, 0}, {4, 0}}), 1);
    QCOMPARE(third.row(), 0);
    QCOMPARE(model.processAt(third).pid(), 3);
    QVERIFY(!second.isValid());
    model.clear();
    QVERIFY(!third.isValid());
}

void TestProcModelProtocol::theFlatListKeepsTheProtocol()
{
    ProcModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ReferenceTree reference(true);
    World world(20211, 40);
    for (int round = 0; round < 90; ++round) {
        world.step();
        model.update(makeSnapshot(world.facts()), world.totalDelta());
        reference.refresh(world.facts(), world.totalDelta());
        QCOMPARE(shapeWithLoad(model), reference.shape());
        if (round % 30 == 29) {
            model.clear();
            reference.clear();
        }
    }
}

void TestProcModelProtocol::theTreeKeepsTheProtocol()
{
    ProcModel model;
    model.setFlat(false);
    FirstCellOnly shown;
    shown.setSourceModel(&model);
    const QAbstractItemModelTester tester(&shown, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ReferenceTree reference(false);
    World world(20212, 40);
    for (int round = 0; round < 90; ++round) {
        world.step();
        model.update(makeSnapshot(world.facts()), world.totalDelta());
        reference.refresh(world.facts(), world.totalDelta());
        QCOMPARE(shapeWithLoad(model), reference.shape());
        if (round % 30 == 29) {
            model.clear();
            reference.clear();
        }
    }
}

QTEST_MAIN(TestProcModelProtocol)
#include "test_procmodel_protocol.moc"
