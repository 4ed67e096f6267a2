// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_LISTFILTER_H
#define PROCESS_LISTFILTER_H

#include "process/filtertexts.h"
#include "process/processfilter.h"
#include "process/shownrows.h"

#include <vector>

/// The filter of the process list: decides which processes are shown, and remembers what it needs for that
/// from one refresh to the next.
class ListFilter
{
public:
    /// While there is none, every process is shown and nothing is remembered or read.
    bool isActive() const { return !filter.isEmpty(); }
    void setText(const QString &text) { filter = ProcessFilter(text); }
    /// Forgets what was read.
    void close();

    /// Before the rows change: decides by the snapshot, so that rows which are inserted are judged right. Of
    /// the rows that there are, none is shown without those above it: the proxy would keep it in a mapping
    /// that it frees when a hidden row above is removed.
    void decideBefore(const ProcModel::Snapshot &snapshot, bool isFlat,
                      const std::vector<ProcModel::Row> &rows);
    /// What is to be shown of these rows.
    ShownRows decide(const std::vector<ProcModel::Row> &rows) const;
    /// Takes over what decide() gave.
    void show(ShownRows decision) { current = std::move(decision); }
    const ShownRows &shown() const { return current; }

    /// Whether the filter lets the process pass, whether or not it has a row.
    bool accepts(int pid) const { return !isActive() || texts.matches(filter, pid); }

    void updateTexts(const std::vector<ProcModel::Row> &rows);
    /// See FilterTexts::readMissing(). True if a process matches that didn't before.
    bool readMissing(int milliseconds);
    bool isComplete() const { return !isActive() || texts.isComplete(); }

private:
    ProcessFilter filter;
    FilterTexts texts;
    ShownRows current;
};

#endif
