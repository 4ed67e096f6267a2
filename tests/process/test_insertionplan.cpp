// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/insertionplan.h"
#include "tests/process/support/synthetic.h"
#include "tests/support/rows.h"

#include <QtTest>

Q_DECLARE_METATYPE(ProcModel::Snapshot)

namespace {

/// The lines from the top downward: "1>2>3 | ~4", with "~" before an orphan.
QString planOf(const QList<int> &fresh, const ProcModel::Snapshot &snapshot)
{
    std::vector<const gtop_wrappers::Process *> processes;
    for (const int pid : fresh) {
        processes.push_back(&snapshot.at(pid));
    }
    QStringList lines;
    for (const InsertedLine &line : planInsertions(processes, snapshot)) {
        QStringList pids;
        for (const gtop_wrappers::Process *process : line.processes) {
            pids << QString::number(process->pid());
        }
        lines << (line.isUnderRoot ? QString() : QStringLiteral("~")) + pids.join(QLatin1Char('>'));
    }
    return lines.join(QStringLiteral(" | "));
}

} // namespace

class TestInsertionPlan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theLastCopyOfEachProcessRemains_data()
    {
        const Rows<ProcModel::Snapshot, QList<int>, QString> row("snapshot", "fresh", "lines");
        row("nothing new", makeSnapshot({{1, 0}}), {}, "");
        row("no parent in the snapshot", makeSnapshot({{1, 0}, {7, 5}}), {1, 7}, "1 | 7");
        row("a chain", makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), {1, 2, 3}, "1>2>3");
        row("a chain with its end new", makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), {3}, "1>2>3");
        row("a chain with its top new", makeSnapshot({{1, 0}, {2, 1}, {3, 2}}), {1}, "1");
        row("a chain of falling pids", makeSnapshot({{1, 2}, {2, 3}, {3, 0}}), {1, 2, 3}, "~1 | ~2 | 3");
        row("siblings", makeSnapshot({{1, 0}, {2, 1}, {3, 1}}), {1, 2, 3}, "~2 | 1>3");
        row("a branch and the trunk", makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 2}}), {4, 5},
            "~3>4 | 1>2>5");
        row("its own parent", makeSnapshot({{2, 2}, {3, 2}}), {2, 3}, "2>3");
        row("a ring", makeSnapshot({{1, 3}, {2, 1}, {3, 2}}), {1, 2, 3}, "1>2>3");
        row("a ring entered at one place", makeSnapshot({{1, 3}, {2, 1}, {3, 2}}), {2}, "3>1>2");
        row("two chains above the same ring", makeSnapshot({{1, 2}, {2, 1}, {3, 1}, {4, 2}}), {3, 4},
            "~3 | 1>2>4");
    }

    void theLastCopyOfEachProcessRemains()
    {
        QFETCH(ProcModel::Snapshot, snapshot);
        QFETCH(QList<int>, fresh);
        QTEST(planOf(fresh, snapshot), "lines");
    }
};

QTEST_MAIN(TestInsertionPlan)
#include "test_insertionplan.moc"
