// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/plaintree.h"

#include <set>

namespace {

QString rowText(int pid, int parent, double load)
{
    const QString below = parent != -1 ? QStringLiteral("<%1").arg(parent) : QString();
    return QStringLiteral("%1%2:%3").arg(QString::number(pid), below, QString::number(load, 'g', 12));
}

} // namespace

Parents plainParents(const Parents &asRead)
{
    Parents parents;
    for (auto process = asRead.begin(); process != asRead.end(); ++process) {
        const int pid = process.key();
        std::set<int> way{pid};
        int above = process.value();
        while (asRead.contains(above) && way.insert(above).second) {
            above = asRead.value(above);
        }
        const bool isFirstOfRing = above == pid && *way.begin() == pid;
        const bool isAtRoot = isFirstOfRing || !asRead.contains(process.value());
        parents.insert(pid, isAtRoot ? -1 : process.value());
    }
    return parents;
}

void PlainTree::refresh(const FactsByPid &facts, quint64 totalDelta)
{
    Parents asRead;
    for (const auto &entry : facts) {
        asRead.insert(entry.first, entry.second.ppid);
    }
    current = plainParents(asRead);
    texts.clear();
    std::map<int, Counter> next;
    for (const auto &entry : facts) {
        const Facts &process = entry.second;
        const auto before = counters.find(entry.first);
        const bool isKnown =
            before != counters.end() && before->second.start == process.start && before->second.value != 0;
        const qint64 value = process.cpuCounter;
        const auto grown = static_cast<quint64>(isKnown ? value - before->second.value : 1);
        next[entry.first] = {process.start, value};
        const double load = 100.0 * static_cast<double>(grown) / static_cast<double>(totalDelta);
        texts.append(rowText(entry.first, current.value(entry.first), load));
    }
    counters = next;
    texts.sort();
}

QStringList rowsWithLoad(const ProcModel &model)
{
    QStringList texts;
    const std::vector<ProcModel::Row> rows = model.rows();
    for (const ProcModel::Row &row : rows) {
        const int parent = row.parent >= 0 ? rows[static_cast<std::size_t>(row.parent)].process->pid() : -1;
        const auto load = row.process->getParam(gtop_wrappers::CpuColumn)->sortValue();
        texts.append(rowText(row.process->pid(), parent, load.toDouble()));
    }
    texts.sort();
    return texts;
}
