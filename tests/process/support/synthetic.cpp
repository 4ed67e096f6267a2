// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/synthetic.h"

#include <QStringList>

using namespace gtop_wrappers;

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
    process.params[CpuTimeColumn].reset(new IntProcessParam(facts.cpuCounter));
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
    for (const auto &entry : pidsAndParents) {
        Facts &process = facts[entry.first];
        process.pid = entry.first;
        process.ppid = entry.second;
        process.name = QStringLiteral("p%1").arg(entry.first);
    }
    return makeSnapshot(facts);
}

static QString shapeUnder(const ProcModel &model, const QModelIndex &parent)
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

QString shapeOf(const ProcModel &model)
{
    return shapeUnder(model, QModelIndex());
}
