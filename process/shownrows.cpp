// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/shownrows.h"

namespace {

/// Notes that a descendant of the process matches; false if that was known.
bool addAncestor(ShownRows &shown, int pid)
{
    const auto [entry, isNew] = shown.reasons.emplace(pid, ShownRows::IsAncestor);
    if (!isNew && entry->second != ShownRows::IsMatch) {
        return false;
    }
    if (!isNew) {
        entry->second = ShownRows::IsMatchAndAncestor;
    }
    return true;
}

} // namespace

bool ShownRows::isAncestorOnly(int pid) const
{
    const auto found = reasons.find(pid);
    return found != reasons.end() && found->second == IsAncestor;
}

bool ShownRows::isAncestor(int pid) const
{
    const auto found = reasons.find(pid);
    return found != reasons.end() && found->second != IsMatch;
}

ShownRows shownRows(const ProcModel::Snapshot &snapshot, bool isFlat, const Matches &matches)
{
    ShownRows shown;
    shown.rows = static_cast<int>(snapshot.size());
    for (const auto &entry : snapshot) {
        if (matches(entry.first)) {
            shown.reasons.emplace(entry.first, ShownRows::IsMatch);
            ++shown.matches;
        }
    }
    if (isFlat) {
        return shown;
    }
    const std::unordered_map<int, ShownRows::Reason> matching = shown.reasons;
    for (const auto &match : matching) {
        // Ends at the latest in a ring of parents, where an ancestor has been noted before.
        auto above = snapshot.find(snapshot.at(match.first).getPPid());
        while (above != snapshot.end() && addAncestor(shown, above->first)) {
            above = snapshot.find(above->second.getPPid());
        }
    }
    return shown;
}

void addAncestors(ShownRows &shown, const std::vector<ProcModel::Row> &rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) { // children before their parents
        if (row->parent >= 0 && shown.contains(row->process->pid())) {
            addAncestor(shown, rows[static_cast<std::size_t>(row->parent)].process->pid());
        }
    }
}

ShownRows shownRows(const std::vector<ProcModel::Row> &rows, const Matches &matches)
{
    ShownRows shown;
    shown.rows = static_cast<int>(rows.size());
    for (const ProcModel::Row &row : rows) {
        const int pid = row.process->pid();
        if (matches(pid)) {
            shown.reasons.emplace(pid, ShownRows::IsMatch);
            ++shown.matches;
        }
    }
    addAncestors(shown, rows);
    return shown;
}
