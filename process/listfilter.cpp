// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/listfilter.h"

#include <algorithm>

void ListFilter::close()
{
    filter = ProcessFilter();
    texts.clear();
    current = ShownRows();
}

void ListFilter::decideBefore(const ProcModel::Snapshot &snapshot, bool isFlat,
                              const std::vector<ProcModel::Row> &rows)
{
    FilterTexts::Processes processes;
    processes.reserve(snapshot.size());
    for (const auto &entry : snapshot) {
        processes.push_back(&entry.second);
    }
    texts.update(processes);
    current = shownRows(snapshot, isFlat, [this](int pid) { return accepts(pid); });
    addAncestors(current, rows);
}

ShownRows ListFilter::decide(const std::vector<ProcModel::Row> &rows) const
{
    return shownRows(rows, [this](int pid) { return accepts(pid); });
}

void ListFilter::updateTexts(const std::vector<ProcModel::Row> &rows)
{
    FilterTexts::Processes processes;
    processes.reserve(rows.size());
    for (const ProcModel::Row &row : rows) {
        processes.push_back(row.process);
    }
    texts.update(processes);
}

bool ListFilter::readMissing(int milliseconds)
{
    const std::vector<int> read = texts.readMissing(milliseconds);
    return std::any_of(read.begin(), read.end(), [this](int pid) {
        const auto found = current.reasons.find(pid);
        const bool matched = found != current.reasons.end() && found->second != ShownRows::IsAncestor;
        return !matched && accepts(pid);
    });
}
