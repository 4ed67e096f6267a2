// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/synthetic.h"

#include "process/gtop_wrappers/textondemand.h"

#include <QRegularExpression>
#include <QStringList>
#include <QtTest>

using namespace gtop_wrappers;

namespace {

QString nameOf(int pid)
{
    return QStringLiteral("p%1").arg(pid);
}

QString shapeUnder(const ProcModel &model, const QModelIndex &parent)
{
    QStringList shapes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = shapeUnder(model, index);
        const QString pid = QString::number(model.processAt(index).pid());
        shapes.append(below.isEmpty() ? pid : pid + QLatin1Char('(') + below + QLatin1Char(')'));
    }
    return shapes.join(QLatin1Char(' '));
}

QString orphansOf(const ProcModel &model)
{
    const QStringList shown = shapeOf(model).split(QRegularExpression(QStringLiteral("\\D+")));
    QStringList orphans;
    for (int pid = 0; pid < 100; ++pid) {
        const QString text = QString::number(pid);
        if (model.processByPid(pid).pid() == pid && !shown.contains(text)) {
            orphans.append(text);
        }
    }
    return orphans.join(QLatin1Char(' '));
}

} // namespace

FactsByPid factsUpTo(int lastPid)
{
    FactsByPid facts;
    for (int pid = 1; pid <= lastPid; ++pid) {
        facts[pid].pid = pid;
    }
    return facts;
}

Process makeProcess(const Facts &facts)
{
    Process process(facts.pid);
    process.params.resize(ColumnCount);
    process.params[NameColumn].reset(new SimpleProcessParam(facts.name));
    process.params[CpuColumn].reset(new CpuProcessParam);
    process.params[PidColumn].reset(new IntProcessParam(facts.pid));
    process.params[StateColumn].reset(new IntProcessParam(facts.state, QStringLiteral("state")));
    process.params[NiceColumn].reset(new IntProcessParam(facts.nice));
    process.params[ParentPidColumn].reset(new IntProcessParam(facts.ppid));
    // The counter is one more than the time.
    const auto time = static_cast<int>(static_cast<unsigned>(facts.cpuCounter) - 1U);
    process.params[CpuTimeColumn].reset(new IntProcessParam(time));
    if (facts.start != 0) {
        process.params[StartedColumn].reset(new StartedProcessParam(facts.start));
    }
    return process;
}

ProcModel::Snapshot makeSnapshot(const FactsByPid &facts)
{
    ProcModel::Snapshot snapshot;
    for (const auto &entry : facts) {
        snapshot.emplace_hint(snapshot.end(), entry.first, makeProcess(entry.second));
    }
    return snapshot;
}

ProcModel::Snapshot makeSnapshot(std::initializer_list<std::pair<int, int>> pidsAndParents)
{
    FactsByPid facts;
    for (const auto &[pid, parent] : pidsAndParents) {
        facts[pid] = {pid, parent, nameOf(pid)};
    }
    return makeSnapshot(facts);
}

ProcModel::Snapshot makeCpuSnapshot(std::initializer_list<std::pair<int, int>> pidsAndCounters)
{
    FactsByPid facts;
    for (const auto &[pid, counter] : pidsAndCounters) {
        facts[pid] = {pid, 0, nameOf(pid), counter};
    }
    return makeSnapshot(facts);
}

QString shapeOf(const ProcModel &model)
{
    return shapeUnder(model, QModelIndex());
}

void verifySteps(ProcModel *model, const Steps &steps)
{
    for (const Step &step : steps) {
        model->update(step.snapshot, 1);
        QCOMPARE(shapeOf(*model), QLatin1String(step.shape));
        QCOMPARE(orphansOf(*model), QLatin1String(step.orphans));
    }
}
