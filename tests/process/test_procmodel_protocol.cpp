// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"
#include "tests/process/support/firstcellonly.h"
#include "tests/process/support/referencetree.h"
#include "tests/process/support/synthetic.h"
#include "tests/process/support/world.h"
#include "tests/support/rows.h"

#include <QtTest>

namespace {

/// The signals that one refresh emits: "<" and ">" for the layout change, "+" and "-" with the pid for rows.
QString signalsOf(ProcModel *model, const ProcModel::Snapshot &snapshot)
{
    QStringList entries;
    QObject receiver; // ends the connections
    const auto note = [&](char sign) {
        return [&entries, model, sign](const QModelIndex &parent, int row) {
            const int pid = model->processAt(model->index(row, 0, parent)).pid();
            entries.append(QLatin1Char(sign) + QString::number(pid));
        };
    };
    using Model = QAbstractItemModel;
    QObject::connect(model, &Model::layoutAboutToBeChanged, &receiver,
                     [&] { entries.append(QStringLiteral("<")); });
    QObject::connect(model, &Model::layoutChanged, &receiver, [&] { entries.append(QStringLiteral(">")); });
    QObject::connect(model, &Model::dataChanged, &receiver, [&] { entries.append(QStringLiteral("data")); });
    QObject::connect(model, &Model::rowsInserted, &receiver, note('+'));
    QObject::connect(model, &Model::rowsAboutToBeRemoved, &receiver, note('-'));
    model->update(snapshot, 1);
    return entries.join(QLatin1Char(' '));
}

} // namespace

class TestProcModelProtocol : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void signalsInFlatMode()
    {
        ProcModel model;
        const ProcModel::Snapshot first = makeSnapshot({{1, 0}, {2, 0}, {3, 0}});
        QCOMPARE(signalsOf(&model, first), QStringLiteral("< > +1 +2 +3"));
        QCOMPARE(signalsOf(&model, first), QStringLiteral("< >"));
        // 2 is another process now: it goes before the layout change, comes, and goes again. 3 has exited.
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {2, 1}, {4, 0}})),
                 QStringLiteral("-2 < > +2 +4 -2 -3"));
    }

    /// Rows come before the layout change and leave after it. Those under one parent do so at once, the first
    /// standing for all of them, and what moves is part of the layout change.
    void signalsInTheCompleteTree()
    {
        ProcModel model;
        model.setFlat(false);
        model.setComplete(true);
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {2, 1}, {3, 2}})), QStringLiteral("+1 < >"));
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 1}, {6, 1}})),
                 QStringLiteral("+5 +4 < >"));
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {3, 1}, {4, 3}, {5, 1}, {6, 1}})),
                 QStringLiteral("< > -2"));
        QCOMPARE(shapeOf(model), QStringLiteral("1(5 6 3(4))"));
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}})), QStringLiteral("< > -5"));
        QCOMPARE(shapeOf(model), QStringLiteral("1"));
    }

    void signalsInTreeMode()
    {
        ProcModel model;
        model.setFlat(false);
        // A line comes and leaves as a whole: its top stands for all of it.
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {2, 1}})), QStringLiteral("< > +1"));
        // A new child: the old 1 leaves with its subtree, then the new one comes; 2 becomes an orphan.
        const ProcModel::Snapshot second = makeSnapshot({{1, 0}, {2, 1}, {3, 1}});
        QCOMPARE(signalsOf(&model, second), QStringLiteral("< > -1 +1"));
        QCOMPARE(signalsOf(&model, second), QStringLiteral("< >"));
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 2}})),
                 QStringLiteral("< > -1 +1"));
        QCOMPARE(signalsOf(&model, makeSnapshot({{1, 0}, {3, 1}})), QStringLiteral("< > -2"));
    }

    void persistentIndexesStayOnTheirProcess()
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

    void theModelKeepsTheProtocol_data()
    {
        const Rows<bool, unsigned int> row("flat", "seed");
        row("flat list", true, 20211U);
        row("tree", false, 20212U);
    }

    void theModelKeepsTheProtocol()
    {
        QFETCH(bool, flat);
        QFETCH(unsigned int, seed);
        ProcModel model;
        model.setFlat(flat);
        FirstCellOnly firstCellOnly;
        firstCellOnly.setSourceModel(&model);
        auto *tested = flat ? static_cast<QAbstractItemModel *>(&model) : &firstCellOnly;
        const QAbstractItemModelTester tester(tested, QAbstractItemModelTester::FailureReportingMode::Fatal);
        ReferenceTree reference(flat);
        World world(seed, 40);
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
};

QTEST_MAIN(TestProcModelProtocol)
#include "test_procmodel_protocol.moc"
